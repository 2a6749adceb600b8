/* A caller in strict C99: the umbrella header and the shared library are all it has. */
#include <korvelmathtools/KORVELMathTools.h>

#include <stdio.h>

static int failures = 0;

static void check(int holds, const char* what)
{
    printf("%s: %s\n", holds ? "ok" : "FAILED", what);
    failures += !holds;
}

int main(void)
{
    double values[] = {1.0, 2.0, 4.0, 8.0};
    double weights[] = {1.0, 0.5, 2.0, 1.0};
    short int flags[] = {0, 0, 0, -1};
    check(VB_V_Sum(values, 4, NULL, weights) == 18.0, "the weighted sum of a vector");
    check(VB_V_Sum(values, 4, flags, weights) == 10.0, "a flagged element is left out");
    check(VB_IsMissingValueDbl(KORVEL_MISSING_DBL) == -1, "the missing number is missing");
    check(VB_IsMissingValueDbl(0.0) == 0, "zero is not missing");

    const OLECHAR word[] = {'w', 'o', 'r', 'd', 0};
    VARIANT cell = {0};
    cell.vt = VT_BSTR;
    cell.bstrVal = SysAllocString(word);
    check(VB_IsMissingValueStr(&cell) == 0, "a text cell is not missing");
    SysFreeString(cell.bstrVal);

    SAFEARRAYBOUND bound = {2, 1};
    SAFEARRAY* texts = SafeArrayCreate(VT_BSTR, 1, &bound);
    check(texts != NULL && ExtractBSTR(&texts) == texts->pvData, "the block of texts behind a host array");
    SafeArrayDestroy(texts);

    check(KORVEL_Version() == KORVEL_VERSION_NUMBER, "headers and library are of one version");
    return failures != 0;
}
