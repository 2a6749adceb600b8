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

template class cST_Vect<double>;
template class cST_Vect<int>;
template class cST_Vect<short int>;
template class cST_Vect<text>;
