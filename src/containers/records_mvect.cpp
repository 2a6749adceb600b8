#include "containers/host_array.h"
#include "containers/records.h"

#include <span>

template <class T>
cST_MVect<T>::cST_MVect(ST_MVect* record) requires(std::same_as<T, double> || korvel::is_text<T>)
    : kind(korvel::recordKind<T>), source(record), nbcols(record->nbcols), samenbrows(record->samenbrows),
      nbrowsmax(record->nbrowsmax), nbrows(record->nbrows), CLabels(record->CLabels)
{
    const std::span<ST_Vect> columns = korvel::recordsIn<ST_Vect>(record->Vectors);
    Vectors.reserve(columns.size());
    for (ST_Vect& column : columns) {
        Vectors.emplace_back(&column);
    }
}

template <class T>
cST_MVect<T>::cST_MVect(int rows, int cols)
    : nbcols(cols), samenbrows(-1), nbrowsmax(rows), nbrows(cols, 1, rows), CLabels(cols, 1, text{})
{
    Vectors.reserve(nbrows.nbElem);
    for (int j = 0; j < cols; ++j) {
        cST_Vect<T>& column = Vectors.emplace_back();
        column.Count = rows;
        column.Vect = matrix<T>(rows, 1, T{});
    }
}

template <class T>
cST_MVect<T>::cST_MVect(const cST_MVect& src)
    : JsonMakerBase(src), nbcols(src.nbcols), samenbrows(src.samenbrows), nbrowsmax(src.nbrowsmax),
      nbrows(src.nbrows), CLabels(src.CLabels), bTriangular(src.bTriangular)
{
    Vectors.reserve(src.Vectors.size());
    for (const cST_Vect<T>& original : src.Vectors) {
        cST_Vect<T>& column = Vectors.emplace_back();
        column.Count = original.Count;
        column.Label = original.Label;
        column.Vect = matrix<T>(original.Vect);
    }
}

template <class T>
cST_MVect<T>::~cST_MVect()
{
    if (source != nullptr) {
        source->nbcols = nbcols;
        source->samenbrows = samenbrows;
        source->nbrowsmax = nbrowsmax;
    }
}

template <class T>
void cST_MVect<T>::writeJson(JsonMaker& writer, const std::string& key)
{
    writer.startObject(key);
    writer.writeTable("CLabels", CLabels);
    if (!Vectors.empty()) {
        writer.startArray("Vectors");
        for (cST_Vect<T>& column : Vectors) {
            column.writeJson(writer, {});
        }
        writer.endArray();
    }
    writer.write("nbcols", nbcols);
    writer.write("nbrowsmax", nbrowsmax);
    writer.write("samenbrows", samenbrows);
    writer.writeTable("nbrows", nbrows);
    writer.writeBoolean("bTriangular", bTriangular);
    writer.endObject();
}

// Instantiated member by member: when a whole class is instantiated, Clang 14 also makes the members whose
// constraint does not hold.
template cST_MVect<double>::cST_MVect(ST_MVect*);
template cST_MVect<text>::cST_MVect(ST_MVect*);

template cST_MVect<double>::cST_MVect(int, int);
template cST_MVect<int>::cST_MVect(int, int);
template cST_MVect<short int>::cST_MVect(int, int);
template cST_MVect<text>::cST_MVect(int, int);

template cST_MVect<double>::cST_MVect(const cST_MVect&);
template cST_MVect<int>::cST_MVect(const cST_MVect&);
template cST_MVect<short int>::cST_MVect(const cST_MVect&);
template cST_MVect<text>::cST_MVect(const cST_MVect&);

template cST_MVect<double>::~cST_MVect();
template cST_MVect<int>::~cST_MVect();
template cST_MVect<short int>::~cST_MVect();
template cST_MVect<text>::~cST_MVect();

template void cST_MVect<double>::writeJson(JsonMaker&, const std::string&);
template void cST_MVect<int>::writeJson(JsonMaker&, const std::string&);
template void cST_MVect<short int>::writeJson(JsonMaker&, const std::string&);
template void cST_MVect<text>::writeJson(JsonMaker&, const std::string&);
