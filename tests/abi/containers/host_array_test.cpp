#include "containers/element_types.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/host_arrays.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatContainers, TheTextsOfAHostArrayAreItsData)
{
    host_array array(VT_BSTR, {2}, {u"a", u"b"});
    EXPECT_EQ(static_cast<void*>(ExtractBSTR(array.address())), array->pvData);

    SAFEARRAY* none = nullptr;
    EXPECT_EQ(ExtractBSTR(&none), nullptr);
    SAFEARRAY withoutData{};
    SAFEARRAY* descriptor = &withoutData;
    EXPECT_EQ(ExtractBSTR(&descriptor), nullptr);
}
