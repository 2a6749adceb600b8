#include "containers/bstr.h"
#include "containers/records.h"

template <class T>
cST_Vect<T>::cST_Vect(ST_Vect* record) requires(!std::same_as<T, int>)
    : kind(korvel::recordKind<T>), source(record), Count(record->Count), Label(record->Label),
      Vect(record->Vect)
{
}

template <class T>
cST_Vect<T>::~cST_Vect()
{
    if (source != nullptr) {
        source->Count = Count;
        source->Label = Label;
    }
}

template <class T>
void cST_Vect<T>::writeJson(JsonMaker& writer, const std::string& key)
{
    writer.startObject(key);
    writer.write("Label", korvel::readBstr(Label));
    writer.write("Count", Count);
    writer.writeTable("Vect", Vect);
    writer.endObject();
}

// Instantiated member by member: when a whole class is instantiated, Clang 14 also makes the members whose
// constraint does not hold.
template cST_Vect<double>::cST_Vect(ST_Vect*);
template cST_Vect<short int>::cST_Vect(ST_Vect*);
template cST_Vect<text>::cST_Vect(ST_Vect*);

template cST_Vect<double>::~cST_Vect();
template cST_Vect<int>::~cST_Vect();
template cST_Vect<short int>::~cST_Vect();
template cST_Vect<text>::~cST_Vect();

template void cST_Vect<double>::writeJson(JsonMaker&, const std::string&);
template void cST_Vect<int>::writeJson(JsonMaker&, const std::string&);
template void cST_Vect<short int>::writeJson(JsonMaker&, const std::string&);
template void cST_Vect<text>::writeJson(JsonMaker&, const std::string&);
