#include "containers/records.h"

#include <memory>

cST_QualiInfo::cST_QualiInfo(ST_QualiInfo* record) : cST_QualiInfo()
{
    if (record == nullptr) {
        return;
    }
    Count = record->Count;
    SumW = record->SumW;
    MaxNbCat = record->MaxNbCat;
    NbCatTotal = record->NbCatTotal;
    FreqMax = record->FreqMax;
    IgnoreNewCategoryInPred = record->IgnoreNewCategoryInPred;
    withRecode = record->withRecode;
    codeStart = record->codeStart;
    nCodes = record->nCodes;
    withSort = record->withSort;
    noWeights = record->noWeights;
    withLongLabels = record->withLongLabels;
    CheckType = record->CheckType;

    // The object counts as constructed from here on: a failure below runs the destructor, which releases the
    // parts.
    NbCat = new matrix<int>(record->NbCat);
    VarLabels = new matrix<text>(record->VarLabels);
    CatNames = new cST_MVect<text>(&record->CatNames);
    CatFreq = new cST_MVect<double>(&record->CatFreq);
    CatFreqW = new cST_MVect<double>(&record->CatFreqW);
    if (withRecode != 0) {
        Codes = new matrix<double>(record->Codes);
    }
    source = record;
}

cST_QualiInfo::~cST_QualiInfo()
{
    if (source != nullptr) {
        source->Count = Count;
        source->SumW = SumW;
        source->MaxNbCat = MaxNbCat;
        source->NbCatTotal = NbCatTotal;
        source->FreqMax = FreqMax;
        source->IgnoreNewCategoryInPred = IgnoreNewCategoryInPred;
        source->withRecode = withRecode;
        source->codeStart = codeStart;
        source->nCodes = nCodes;
        source->withSort = withSort;
        source->noWeights = noWeights;
        source->withLongLabels = withLongLabels;
        source->CheckType = CheckType;
        if (VarLabels != nullptr) {
            // The destructor of a table of texts writes them back to its array. A routine may have put
            // another table here.
            VarLabels->safeArray = source->VarLabels;
        }
    }
    delete VarLabels;
    delete NbCat;
    delete CatNames;
    delete CatFreq;
    delete CatFreqW;
    delete Codes;
}

namespace
{

template <class T>
void writePart(JsonMaker& writer, const std::string& key, const matrix<T>* part)
{
    if (part != nullptr) {
        writer.writeTable(key, *part);
    }
}

template <class T>
void writePart(JsonMaker& writer, const std::string& key, cST_MVect<T>* part)
{
    if (part != nullptr) {
        part->writeJson(writer, key);
    }
}

} // namespace

void cST_QualiInfo::writeJson(JsonMaker& writer, const std::string& key)
{
    writer.startObject(key);
    writer.write("Count", Count);
    writer.write("SumW", SumW);
    writer.write("MaxNbCat", MaxNbCat);
    writer.write("NbCatTotal", NbCatTotal);
    writer.write("FreqMax", FreqMax);
    writePart(writer, "NbCat", NbCat);
    writePart(writer, "VarLabels", VarLabels);
    writePart(writer, "CatNames", CatNames);
    writePart(writer, "CatFreq", CatFreq);
    writePart(writer, "CatFreqW", CatFreqW);
    writer.write("IgnoreNewCategoryInPred", IgnoreNewCategoryInPred);
    writer.write("withRecode", withRecode);
    writer.write("codeStart", codeStart);
    writePart(writer, "Codes", Codes);
    writer.write("nCodes", nCodes);
    writer.write("withSort", withSort);
    writer.write("noWeights", noWeights);
    writer.write("withLongLabels", withLongLabels);
    writer.write("CheckType", CheckType);
    writer.endObject();
}
