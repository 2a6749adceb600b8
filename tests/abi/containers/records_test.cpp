#include "containers/records.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"

#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;

} // namespace

TEST(RecordsOfASibling, ShowChangedScalarsToTheCaller)
{
    caller_memory caller;
    ST_MVect record = caller.table({caller.column(u"x", numbers{5.0})}, {u"a"});
    {
        cST_MVect<double> table(&record);
        table.nbrowsmax = 12;
    }
    EXPECT_EQ(record.nbrowsmax, 12);
}

TEST(RecordsOfASibling, WriteJsonThroughTheBase)
{
    cST_QualiInfo info;
    info.CatFreq = new cST_MVect<double>(1, 1);
    JsonMakerBase& base = info;
    JsonMaker maker;
    base.writeJson(maker, "");
    const std::string json = maker.written();
    EXPECT_NE(json.find("\"Vect\": [0.0]"), std::string::npos);
    EXPECT_EQ(json.back(), '}');
    maker.dispose();
}
