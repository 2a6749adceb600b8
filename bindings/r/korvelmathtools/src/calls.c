/* A call of each flat function with its arguments in slots. Made by tools/generate: edit the C headers instead. */
#include "call.h"

static void call_CleanConstraintsAndInvert(const korvel_slot* a, korvel_slot* r)
{
    r->integer = CleanConstraintsAndInvert(a[0].integer, a[1].integers, a[2].numbers, a[3].numbers);
}

static void call_CleanConstraintsAndInvertTriang(const korvel_slot* a, korvel_slot* r)
{
    r->integer = CleanConstraintsAndInvertTriang(a[0].integer, a[1].integers, a[2].numbers, a[3].flag, a[4].numbers);
}

static void call_ComputeCosines(const korvel_slot* a, korvel_slot* r)
{
    r->integer = ComputeCosines(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_Cpp_BuildDisjunctiveTable_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_BuildDisjunctiveTable_ST(a[0].table, a[1].categories, a[2].table, a[3].integer, a[4].integer);
}

static void call_Cpp_CheckForMarginalSums(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_CheckForMarginalSums(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integers,
        a[5].integers, a[6].integers, a[7].integers);
}

static void call_Cpp_CheckSameVectorStr(const korvel_slot* a, korvel_slot* r)
{
    r->flag = Cpp_CheckSameVectorStr(a[0].texts, a[1].integer, a[2].texts, a[3].integer);
}

static void call_Cpp_CheckUniqueCatByVar(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_CheckUniqueCatByVar(a[0].texts, a[1].integer, a[2].integer, a[3].integers);
}

static void call_Cpp_CopyDblToMVDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_CopyDblToMVDbl(a[0].numbers, a[1].integer, a[2].integer, a[3].table);
}

static void call_Cpp_Extractij(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_Extractij(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].integer, a[5].numbers);
}

static void call_Cpp_FilterOnSumOfSquares(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_FilterOnSumOfSquares(a[0].numbers, a[1].integer, a[2].integer, a[3].number, a[4].flags);
}

static void call_Cpp_GenerateIndicator_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_GenerateIndicator_ST(a[0].array, a[1].integer, a[2].integer, a[3].integer);
}

static void call_Cpp_GenerateRandomIndicator_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_GenerateRandomIndicator_ST(a[0].array, a[1].integer, a[2].integer, a[3].integers, a[4].flag,
        a[5].integers);
}

static void call_Cpp_GetCompMatrices(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_GetCompMatrices(a[0].numbers, a[1].integer, a[2].integer, a[3].integers, a[4].flag,
        a[5].integers, a[6].texts, a[7].integers, a[8].flags, a[9].flag);
}

static void call_Cpp_GetMaxCat(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_GetMaxCat(a[0].texts, a[1].integer, a[2].integer, a[3].integers);
}

static void call_Cpp_GetStatusMemory(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_GetStatusMemory(a[0].integer);
}

static void call_Cpp_KroneckerTensorProduct(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_KroneckerTensorProduct(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer,
        a[5].integer, a[6].numbers);
}

static void call_Cpp_MV_ProductAsymBsym(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_MV_ProductAsymBsym(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers);
}

static void call_Cpp_M_BoldCosines(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_BoldCosines(a[0].integers, a[1].integer, a[2].integers);
}

static void call_Cpp_M_ConvertBinarytoDisjTable(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ConvertBinarytoDisjTable(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_Cpp_M_CopyBlockSPV2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_CopyBlockSPV2(a[0].chunks, a[1].integer, a[2].integer, a[3].integer, a[4].integer,
        a[5].integer, a[6].integer, a[7].chunks);
}

static void call_Cpp_M_CopyBlockSPV2_T(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_CopyBlockSPV2_T(a[0].chunks, a[1].integer, a[2].integer, a[3].integer, a[4].integer,
        a[5].integer, a[6].chunks);
}

static void call_Cpp_M_CopyPasteBlock(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_CopyPasteBlock(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].integer,
        a[5].integer, a[6].integer, a[7].numbers, a[8].integer, a[9].integer, a[10].integer, a[11].integer);
}

static void call_Cpp_M_CopyPasteBlockSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_CopyPasteBlockSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].integer, a[4].integer,
        a[5].integer, a[6].integer, a[7].chunks, a[8].integer, a[9].integer, a[10].integer, a[11].integer);
}

static void call_Cpp_M_CopyPasteBlockStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_CopyPasteBlockStr(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].integer,
        a[5].integer, a[6].integer, a[7].texts, a[8].integer, a[9].integer, a[10].integer, a[11].integer);
}

static void call_Cpp_M_CopySymMatToVector(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_CopySymMatToVector(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_Cpp_M_CopyTabletoVectorByRowDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_CopyTabletoVectorByRowDbl(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_Cpp_M_CopyTabletoVectorByRowStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_CopyTabletoVectorByRowStr(a[0].texts, a[1].integer, a[2].integer, a[3].texts);
}

static void call_Cpp_M_CopyVectorToSymMat(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_CopyVectorToSymMat(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_Cpp_M_CopyVectortoTableByRowDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_CopyVectortoTableByRowDbl(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_Cpp_M_CopyVectortoTableByRowStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_CopyVectortoTableByRowStr(a[0].texts, a[1].integer, a[2].integer, a[3].texts);
}

static void call_Cpp_M_CorrMatFromCovMatSPV2_T(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_CorrMatFromCovMatSPV2_T(a[0].chunks, a[1].integer);
}

static void call_Cpp_M_CorrMatFromSymMat(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_CorrMatFromSymMat(a[0].numbers, a[1].integer);
}

static void call_Cpp_M_CorrMatFromSymMatSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_CorrMatFromSymMatSPV(a[0].chunks, a[1].integer);
}

static void call_Cpp_M_CorrMatFromSymMatSPV_T(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_CorrMatFromSymMatSPV_T(a[0].chunks, a[1].integer);
}

static void call_Cpp_M_CovCorr_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_CovCorr_ST(a[0].table, a[1].integer, a[2].integer, a[3].table, a[4].flag, a[5].flags,
        a[6].numbers, a[7].flag, a[8].flag, a[9].flag);
}

static void call_Cpp_M_CovMatFromCorrMat(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_CovMatFromCorrMat(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers);
}

static void call_Cpp_M_CovMatFromSymMat(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_CovMatFromSymMat(a[0].numbers, a[1].integer);
}

static void call_Cpp_M_DeterminantCleanedSPV_T(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_M_DeterminantCleanedSPV_T(a[0].chunks, a[1].integer, a[2].integers, a[3].flags);
}

static void call_Cpp_M_DuplicateDblSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_DuplicateDblSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].numbers, a[4].integer,
        a[5].integer, a[6].integer, a[7].integer);
}

static void call_Cpp_M_DuplicateDblSPV2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_DuplicateDblSPV2(a[0].numbers, a[1].integer, a[2].integer, a[3].chunks, a[4].integer,
        a[5].integer, a[6].integer, a[7].integer);
}

static void call_Cpp_M_DuplicateDblSPV2_T(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_DuplicateDblSPV2_T(a[0].numbers, a[1].integer, a[2].integer, a[3].chunks, a[4].integer,
        a[5].integer, a[6].integer, a[7].integer);
}

static void call_Cpp_M_DuplicateDblSPV3(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_DuplicateDblSPV3(a[0].chunks, a[1].integer, a[2].integer, a[3].chunks, a[4].integer,
        a[5].integer, a[6].integer, a[7].integer);
}

static void call_Cpp_M_DuplicateDbl_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_DuplicateDbl_ST(a[0].table, a[1].integer, a[2].integer, a[3].table, a[4].integer, a[5].integer,
        a[6].integer, a[7].integer);
}

static void call_Cpp_M_DuplicateMVDblTriang_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_DuplicateMVDblTriang_ST(a[0].table, a[1].table);
}

static void call_Cpp_M_DuplicateStr_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_DuplicateStr_ST(a[0].table, a[1].integer, a[2].integer, a[3].table, a[4].integer, a[5].integer,
        a[6].integer, a[7].integer);
}

static void call_Cpp_M_EigenSPV_T(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_EigenSPV_T(a[0].chunks, a[1].numbers, a[2].chunks, a[3].integer, a[4].flag);
}

static void call_Cpp_M_EuclidDistToVector(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_EuclidDistToVector(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].flag,
        a[5].numbers);
}

static void call_Cpp_M_ForwardDoolittle(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ForwardDoolittle(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_Cpp_M_GetMaxDistToOrigin(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_GetMaxDistToOrigin(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integers);
}

static void call_Cpp_M_GetMissingDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_GetMissingDbl(a[0].numbers, a[1].integer, a[2].integer, a[3].flags, a[4].flags);
}

static void call_Cpp_M_GetMissingDblSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_GetMissingDblSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].flags, a[4].flags);
}

static void call_Cpp_M_GetMissingStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_GetMissingStr(a[0].texts, a[1].integer, a[2].integer, a[3].flags, a[4].flags);
}

static void call_Cpp_M_HermiteCanonical(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_HermiteCanonical(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_Cpp_M_IdentifyMissingInMat(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_IdentifyMissingInMat(a[0].numbers, a[1].integer, a[2].integer, a[3].integers);
}

static void call_Cpp_M_IdentifyMissingInMatSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_IdentifyMissingInMatSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].integers);
}

static void call_Cpp_M_InfoQuali3(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_InfoQuali3(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].integer, a[5].texts,
        a[6].numbers, a[7].texts, a[8].numbers, a[9].numbers, a[10].numbers, a[11].integers, a[12].flag);
}

static void call_Cpp_M_InfoQuali3_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_InfoQuali3_ST(a[0].table, a[1].numbers, a[2].categories);
}

static void call_Cpp_M_InfoQualiNoMiss(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_InfoQualiNoMiss(a[0].texts, a[1].integer, a[2].integer, a[3].texts, a[4].numbers,
        a[5].integers, a[6].texts, a[7].numbers, a[8].numbers, a[9].integers, a[10].flag);
}

static void call_Cpp_M_InfoQualiValid_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_InfoQualiValid_ST(a[0].table, a[1].integer, a[2].integer, a[3].categories, a[4].categories,
        a[5].flags, a[6].numbers);
}

static void call_Cpp_M_InsertMissingDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_InsertMissingDbl(a[0].numbers, a[1].integer, a[2].integer, a[3].flags, a[4].integer,
        a[5].numbers);
}

static void call_Cpp_M_InsertMissingLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_InsertMissingLng(a[0].integers, a[1].integer, a[2].integer, a[3].flags, a[4].integer,
        a[5].integers);
}

static void call_Cpp_M_Inverse(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_Inverse(a[0].flags, a[1].integer, a[2].integer);
}

static void call_Cpp_M_InverseG2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_InverseG2(a[0].numbers, a[1].integer, a[2].number, a[3].numbers);
}

static void call_Cpp_M_InverseG2Selective(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_InverseG2Selective(a[0].numbers, a[1].integer, a[2].integers, a[3].number, a[4].numbers,
        a[5].flag);
}

static void call_Cpp_M_InverseG2_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_InverseG2_ST(a[0].table, a[1].integer, a[2].number, a[3].table);
}

static void call_Cpp_M_IsBinaryDbl_ST(const korvel_slot* a, korvel_slot* r)
{
    r->flag = Cpp_M_IsBinaryDbl_ST(a[0].table, a[1].flag);
}

static void call_Cpp_M_IsLong_ST(const korvel_slot* a, korvel_slot* r)
{
    r->flag = Cpp_M_IsLong_ST(a[0].table, a[1].integer, a[2].integer);
}

static void call_Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags(const korvel_slot* a, korvel_slot* r)
{
    r->flag = Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags(a[0].numbers, a[1].integer);
}

static void call_Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(const korvel_slot* a, korvel_slot* r)
{
    r->flag = Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(a[0].chunks, a[1].integer);
}

static void call_Cpp_M_IsPositive(const korvel_slot* a, korvel_slot* r)
{
    r->flag = Cpp_M_IsPositive(a[0].numbers, a[1].integer, a[2].integer, a[3].flags, a[4].flag);
}

static void call_Cpp_M_IsPositive_ST(const korvel_slot* a, korvel_slot* r)
{
    r->flag = Cpp_M_IsPositive_ST(a[0].table, a[1].integer, a[2].integer, a[3].flags, a[4].flag);
}

static void call_Cpp_M_LogDeterminant(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_M_LogDeterminant(a[0].numbers, a[1].integer);
}

static void call_Cpp_M_MaxPosByRow(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_MaxPosByRow(a[0].numbers, a[1].integer, a[2].integer, a[3].integers);
}

static void call_Cpp_M_Mean2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_Mean2(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_Cpp_M_Mean3(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_Mean3(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_Cpp_M_MeanSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_MeanSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_Cpp_M_MergeStringsByRow(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_MergeStringsByRow(a[0].texts, a[1].integer, a[2].integer, a[3].texts);
}

static void call_Cpp_M_MinAll(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_M_MinAll(a[0].numbers, a[1].integer, a[2].integer);
}

static void call_Cpp_M_MinIgnoreMissing_ST(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_M_MinIgnoreMissing_ST(a[0].table, a[1].integer, a[2].integer);
}

static void call_Cpp_M_NbMissingSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_NbMissingSPV(a[0].chunks, a[1].integer, a[2].integer);
}

static void call_Cpp_M_Norm2(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_M_Norm2(a[0].numbers, a[1].integer, a[2].integer);
}

static void call_Cpp_M_ProductABTrA_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ProductABTrA_ST(a[0].table, a[1].integer, a[2].integer, a[3].table, a[4].flag, a[5].table);
}

static void call_Cpp_M_ProductAB_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ProductAB_ST(a[0].table, a[1].integer, a[2].integer, a[3].table, a[4].integer, a[5].table);
}

static void call_Cpp_M_ProductATrB_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ProductATrB_ST(a[0].table, a[1].integer, a[2].integer, a[3].table, a[4].integer, a[5].table);
}

static void call_Cpp_M_ProductTrAALng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ProductTrAALng(a[0].integers, a[1].integer, a[2].integer, a[3].integers);
}

static void call_Cpp_M_ProductTrABV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ProductTrABV(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer,
        a[5].numbers, a[6].numbers);
}

static void call_Cpp_M_ProductTrAB_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ProductTrAB_ST(a[0].table, a[1].integer, a[2].integer, a[3].table, a[4].integer, a[5].table);
}

static void call_Cpp_M_ProductTrVSymV(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_M_ProductTrVSymV(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_Cpp_M_RecodeDataWithCodes_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_RecodeDataWithCodes_ST(a[0].table, a[1].integer, a[2].integer, a[3].table, a[4].integer,
        a[5].table);
}

static void call_Cpp_M_RemoveRowsStr2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_RemoveRowsStr2(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].integer);
}

static void call_Cpp_M_RemoveRowsWithMissing2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_RemoveRowsWithMissing2(a[0].numbers, a[1].integer, a[2].integer, a[3].flags);
}

static void call_Cpp_M_ReplaceByMissing(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ReplaceByMissing(a[0].numbers, a[1].integer, a[2].integer, a[3].integers, a[4].integer,
        a[5].flag);
}

static void call_Cpp_M_ReplaceByMissingIfVal(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ReplaceByMissingIfVal(a[0].numbers, a[1].integer, a[2].integer, a[3].integers, a[4].integer,
        a[5].integer, a[6].flag);
}

static void call_Cpp_M_ReplaceCatByCodes(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ReplaceCatByCodes(a[0].texts, a[1].integer, a[2].integer, a[3].integers, a[4].texts,
        a[5].numbers);
}

static void call_Cpp_M_ReplaceCatByCodes_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ReplaceCatByCodes_ST(a[0].table, a[1].integer, a[2].integer, a[3].integers, a[4].texts,
        a[5].table);
}

static void call_Cpp_M_ReplaceMissingByStr_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ReplaceMissingByStr_ST(a[0].table, a[1].integer, a[2].integer, a[3].text);
}

static void call_Cpp_M_ReplaceMissingByVal_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ReplaceMissingByVal_ST(a[0].table, a[1].integer, a[2].integer, a[3].number);
}

static void call_Cpp_M_ReplaceStrByCodesSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ReplaceStrByCodesSPV(a[0].texts, a[1].integer, a[2].integer, a[3].integers, a[4].texts,
        a[5].flags, a[6].integer, a[7].chunks);
}

static void call_Cpp_M_ReplaceStrByCodes_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ReplaceStrByCodes_ST(a[0].table, a[1].integer, a[2].integer, a[3].integers, a[4].texts,
        a[5].flags, a[6].integer, a[7].table);
}

static void call_Cpp_M_RowSumNorm(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_M_RowSumNorm(a[0].numbers, a[1].integer, a[2].integer);
}

static void call_Cpp_M_SamplingRandomStratifiedByStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_SamplingRandomStratifiedByStr(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].texts,
        a[5].texts, a[6].numbers, a[7].numbers, a[8].integer, a[9].integers, a[10].flag, a[11].integers);
}

static void call_Cpp_M_SetBooleanIfLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_SetBooleanIfLng(a[0].integers, a[1].integer, a[2].integer, a[3].integer, a[4].flags);
}

static void call_Cpp_M_ShuffleDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ShuffleDbl(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integers, a[5].flag,
        a[6].integers);
}

static void call_Cpp_M_ShuffleDbl2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ShuffleDbl2(a[0].numbers, a[1].integer, a[2].integer, a[3].integers, a[4].flag, a[5].integers);
}

static void call_Cpp_M_ShuffleStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ShuffleStr(a[0].texts, a[1].integer, a[2].integer, a[3].texts, a[4].integers, a[5].flag,
        a[6].integers);
}

static void call_Cpp_M_ShuffleStr2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_ShuffleStr2(a[0].texts, a[1].integer, a[2].integer, a[3].integers, a[4].flag, a[5].integers);
}

static void call_Cpp_M_SquareRoot(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_SquareRoot(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_Cpp_M_SquareRootAij(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_SquareRootAij(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_Cpp_M_SquareRootAij2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_SquareRootAij2(a[0].numbers, a[1].integer, a[2].integer);
}

static void call_Cpp_M_StandardizeApply2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_StandardizeApply2(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_Cpp_M_StandardizeByGroup(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_StandardizeByGroup(a[0].numbers, a[1].integer, a[2].integer, a[3].integers, a[4].integer,
        a[5].flag, a[6].flag);
}

static void call_Cpp_M_SubstractFirstCol2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_SubstractFirstCol2(a[0].numbers, a[1].integer, a[2].integer);
}

static void call_Cpp_M_SumBySquareCols(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_SumBySquareCols(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_Cpp_M_SumBySquareRows(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_SumBySquareRows(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_Cpp_M_Sums1As2B_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_M_Sums1As2B_ST(a[0].table, a[1].integer, a[2].integer, a[3].table, a[4].number, a[5].number,
        a[6].table);
}

static void call_Cpp_MatToVect(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_MatToVect(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_Cpp_MatToVect_NoMissing(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_MatToVect_NoMissing(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers,
        a[5].numbers);
}

static void call_Cpp_MultiplyByVal(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_MultiplyByVal(a[0].numbers, a[1].integer, a[2].integer, a[3].number);
}

static void call_Cpp_NIPALS(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_NIPALS(a[0].integer, a[1].integer, a[2].numbers, a[3].numbers, a[4].number, a[5].integer,
        a[6].number, a[7].number);
}

static void call_Cpp_Random01(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_Random01(a[0].integers, a[1].flag, a[2].integers);
}

static void call_Cpp_Random1toNDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_Random1toNDbl(a[0].numbers, a[1].integer, a[2].flag, a[3].integers, a[4].flags, a[5].integers);
}

static void call_Cpp_Random1toNLong(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_Random1toNLong(a[0].integers, a[1].integer, a[2].flag, a[3].integers, a[4].flags, a[5].integers);
}

static void call_Cpp_RandomAtoBDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_RandomAtoBDbl(a[0].numbers, a[1].integer, a[2].integer, a[3].flag, a[4].integers, a[5].flags,
        a[6].integers);
}

static void call_Cpp_RandomAtoBLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_RandomAtoBLng(a[0].integers, a[1].integer, a[2].integer, a[3].flag, a[4].integers, a[5].flags,
        a[6].integers);
}

static void call_Cpp_ReOrderCorrelations(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_ReOrderCorrelations(a[0].numbers, a[1].integer, a[2].integer, a[3].texts, a[4].numbers,
        a[5].integers);
}

static void call_Cpp_RemoveRowsWithMissingOniMissing(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_RemoveRowsWithMissingOniMissing(a[0].numbers, a[1].integer, a[2].integer, a[3].flags,
        a[4].numbers);
}

static void call_Cpp_RemoveRowsWithMissingOniMissingStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_RemoveRowsWithMissingOniMissingStr(a[0].texts, a[1].integer, a[2].integer, a[3].flags,
        a[4].texts);
}

static void call_Cpp_ReplaceMissingInContengencyByExp_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_ReplaceMissingInContengencyByExp_ST(a[0].table, a[1].integer);
}

static void call_Cpp_SortApply2Bool(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_SortApply2Bool(a[0].flags, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_Cpp_SortApply2_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_SortApply2_ST(a[0].table, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_Cpp_SortQDbl_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_SortQDbl_ST(a[0].table, a[1].integer, a[2].integer, a[3].integer, a[4].integer, a[5].numbers,
        a[6].numbers, a[7].integer, a[8].flag, a[9].flag);
}

static void call_Cpp_SortQLng_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_SortQLng_ST(a[0].array, a[1].integer, a[2].integer, a[3].integer, a[4].integer, a[5].integers,
        a[6].integers, a[7].integer, a[8].flag, a[9].flag);
}

static void call_Cpp_SortQMatrixCol(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_SortQMatrixCol(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].integer,
        a[5].integer, a[6].flag);
}

static void call_Cpp_SortQMatrixColLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_SortQMatrixColLng(a[0].integers, a[1].integer, a[2].integer, a[3].integer, a[4].integer,
        a[5].integer, a[6].flag);
}

static void call_Cpp_SortQMatrixColStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_SortQMatrixColStr(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].integer,
        a[5].integer, a[6].flag);
}

static void call_Cpp_SortQStr_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_SortQStr_ST(a[0].table, a[1].integer, a[2].integer, a[3].integer, a[4].integer, a[5].numbers,
        a[6].texts, a[7].integer, a[8].flag, a[9].flag);
}

static void call_Cpp_SortQVector2Str(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_SortQVector2Str(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].flag, a[5].integers);
}

static void call_Cpp_SumMat(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_SumMat(a[0].numbers, a[1].numbers, a[2].integer, a[3].integer, a[4].numbers);
}

static void call_Cpp_Test(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_Test(a[0].table);
}

static void call_Cpp_TestMemory(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_TestMemory(a[0].integers, a[1].integers, a[2].integers, a[3].integers, a[4].integers,
        a[5].integers, a[6].integers, a[7].integers, a[8].integers, a[9].integers, a[10].integers, a[11].integers,
        a[12].integers, a[13].integers, a[14].integers, a[15].integers, a[16].integers, a[17].integers,
        a[18].integers, a[19].integers, a[20].integers, a[21].integers, a[22].integers, a[23].integers,
        a[24].integers, a[25].integers, a[26].integers, a[27].integers, a[28].integers, a[29].integers,
        a[30].integers, a[31].integers, a[32].integers, a[33].integers, a[34].integers, a[35].integers,
        a[36].integers, a[37].integers, a[38].integers, a[39].integers);
}

static void call_Cpp_TriangularQFindAB(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_TriangularQFindAB(a[0].number, a[1].number, a[2].number, a[3].number, a[4].number, a[5].numbers,
        a[6].numbers);
}

static void call_Cpp_VMergeTablesDblSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_VMergeTablesDblSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].numbers, a[4].integer,
        a[5].integer, a[6].numbers);
}

static void call_Cpp_V_CheckDateInterval(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_CheckDateInterval(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_Cpp_V_CleanVectDbl2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_CleanVectDbl2(a[0].numbers, a[1].integer, a[2].integers);
}

static void call_Cpp_V_CleanVectDblW2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_CleanVectDblW2(a[0].numbers, a[1].integer, a[2].numbers, a[3].integers);
}

static void call_Cpp_V_ConvertBinaryTo01Dbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_ConvertBinaryTo01Dbl(a[0].numbers, a[1].integer);
}

static void call_Cpp_V_CopyDoubleToLong(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_CopyDoubleToLong(a[0].numbers, a[1].integer, a[2].integers);
}

static void call_Cpp_V_CopyLongToDouble(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_CopyLongToDouble(a[0].integers, a[1].integer, a[2].numbers);
}

static void call_Cpp_V_Correl2W(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_V_Correl2W(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers);
}

static void call_Cpp_V_CuSum(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_CuSum(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_Cpp_V_DiffSqStart(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_V_DiffSqStart(a[0].numbers, a[1].integer, a[2].numbers, a[3].integer);
}

static void call_Cpp_V_DuplicateBool(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_DuplicateBool(a[0].flags, a[1].integer, a[2].integer, a[3].integer, a[4].integer, a[5].integer,
        a[6].flags, a[7].integer, a[8].integer, a[9].integer, a[10].integer);
}

static void call_Cpp_V_DuplicateDbl_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_DuplicateDbl_ST(a[0].array, a[1].integer, a[2].integer, a[3].integer, a[4].array, a[5].integer,
        a[6].integer);
}

static void call_Cpp_V_DuplicateLng_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_DuplicateLng_ST(a[0].array, a[1].integer, a[2].integer, a[3].integer, a[4].array, a[5].integer,
        a[6].integer);
}

static void call_Cpp_V_DuplicateStr_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_DuplicateStr_ST(a[0].array, a[1].integer, a[2].integer, a[3].integer, a[4].array, a[5].integer,
        a[6].integer);
}

static void call_Cpp_V_FindLng(const korvel_slot* a, korvel_slot* r)
{
    r->flag = Cpp_V_FindLng(a[0].integers, a[1].integer, a[2].integer);
}

static void call_Cpp_V_FindStr(const korvel_slot* a, korvel_slot* r)
{
    r->flag = Cpp_V_FindStr(a[0].texts, a[1].integer, a[2].text);
}

static void call_Cpp_V_GMeanGSD(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_GMeanGSD(a[0].numbers, a[1].integer, a[2].flags, a[3].numbers, a[4].numbers, a[5].numbers);
}

static void call_Cpp_V_Gauss_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_Gauss_ST(a[0].table, a[1].integer, a[2].column);
}

static void call_Cpp_V_HarmonicMean(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_V_HarmonicMean(a[0].numbers, a[1].integer, a[2].flags, a[3].numbers);
}

static void call_Cpp_V_InsertValueLow(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_InsertValueLow(a[0].numbers, a[1].integer, a[2].number, a[3].flag);
}

static void call_Cpp_V_InsertValueUp(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_InsertValueUp(a[0].numbers, a[1].integer, a[2].number, a[3].flag);
}

static void call_Cpp_V_IsBinaryDbl(const korvel_slot* a, korvel_slot* r)
{
    r->flag = Cpp_V_IsBinaryDbl(a[0].numbers, a[1].integer, a[2].flag);
}

static void call_Cpp_V_IsBinaryDblXY(const korvel_slot* a, korvel_slot* r)
{
    r->flag = Cpp_V_IsBinaryDblXY(a[0].numbers, a[1].integer, a[2].number, a[3].number, a[4].flag);
}

static void call_Cpp_V_IsWeightsAndAll1_ST(const korvel_slot* a, korvel_slot* r)
{
    r->flag = Cpp_V_IsWeightsAndAll1_ST(a[0].array, a[1].integer, a[2].flags);
}

static void call_Cpp_V_IsWeights_ST(const korvel_slot* a, korvel_slot* r)
{
    r->flag = Cpp_V_IsWeights_ST(a[0].array, a[1].integer);
}

static void call_Cpp_V_Max2Lng_ST(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_V_Max2Lng_ST(a[0].array, a[1].integer);
}

static void call_Cpp_V_Max2_ST(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_V_Max2_ST(a[0].array, a[1].integer);
}

static void call_Cpp_V_MeanAbsDev(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_V_MeanAbsDev(a[0].numbers, a[1].integer, a[2].number, a[3].flags, a[4].numbers);
}

static void call_Cpp_V_MeanStdev2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_MeanStdev2(a[0].numbers, a[1].integer, a[2].flag, a[3].numbers, a[4].numbers);
}

static void call_Cpp_V_MeanVarW2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_MeanVarW2(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers, a[4].numbers, a[5].flag,
        a[6].flag);
}

static void call_Cpp_V_MeanW2(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_V_MeanW2(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_Cpp_V_MedianAbsDev(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_V_MedianAbsDev(a[0].numbers, a[1].integer, a[2].number, a[3].flags, a[4].numbers);
}

static void call_Cpp_V_MedianAbsDev2(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_V_MedianAbsDev2(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_Cpp_V_MergeVectorsStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_MergeVectorsStr(a[0].texts, a[1].integer, a[2].texts, a[3].text, a[4].texts);
}

static void call_Cpp_V_Min3(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_V_Min3(a[0].table, a[1].integer, a[2].integer);
}

static void call_Cpp_V_MinIgnoreMissing(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_V_MinIgnoreMissing(a[0].numbers, a[1].integer);
}

static void call_Cpp_V_ModeW2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_ModeW2(a[0].texts, a[1].integer, a[2].numbers, a[3].texts);
}

static void call_Cpp_V_NbDistinctStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_NbDistinctStr(a[0].texts, a[1].integer);
}

static void call_Cpp_V_NbTrue_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_NbTrue_ST(a[0].array, a[1].integer);
}

static void call_Cpp_V_PairwiseDeletion(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_PairwiseDeletion(a[0].numbers, a[1].numbers, a[2].numbers, a[3].integer, a[4].numbers,
        a[5].numbers, a[6].numbers, a[7].integers);
}

static void call_Cpp_V_QuantileW2(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_V_QuantileW2(a[0].numbers, a[1].integer, a[2].numbers, a[3].number);
}

static void call_Cpp_V_Quantiles13(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_Quantiles13(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_Cpp_V_RecodeToBinary(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_RecodeToBinary(a[0].texts, a[1].integer, a[2].text, a[3].numbers);
}

static void call_Cpp_V_Reverse2Bool(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_Reverse2Bool(a[0].flags, a[1].integer);
}

static void call_Cpp_V_Reverse2Dbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_Reverse2Dbl(a[0].numbers, a[1].integer);
}

static void call_Cpp_V_Reverse2Lng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_Reverse2Lng(a[0].integers, a[1].integer);
}

static void call_Cpp_V_SetToValueLng_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_SetToValueLng_ST(a[0].array, a[1].integer, a[2].integer);
}

static void call_Cpp_V_SetToValue_ST(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_SetToValue_ST(a[0].array, a[1].integer, a[2].number);
}

static void call_Cpp_V_Shuffle(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_Shuffle(a[0].numbers, a[1].integer, a[2].integers, a[3].flag, a[4].integers);
}

static void call_Cpp_V_ShuffleLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_ShuffleLng(a[0].integers, a[1].integer, a[2].integers, a[3].flag, a[4].integers);
}

static void call_Cpp_V_Sum2Dbl_ST(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_V_Sum2Dbl_ST(a[0].array, a[1].integer);
}

static void call_Cpp_V_Sum2Lng_ST(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_V_Sum2Lng_ST(a[0].array, a[1].integer);
}

static void call_Cpp_V_SumW(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_V_SumW(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_Cpp_V_SwapDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_SwapDbl(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_Cpp_V_SwapStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_SwapStr(a[0].texts, a[1].integer, a[2].texts);
}

static void call_Cpp_V_TopBottom3Box(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_TopBottom3Box(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers, a[4].numbers,
        a[5].numbers, a[6].numbers, a[7].numbers, a[8].numbers);
}

static void call_Cpp_V_TopBottom3BoxConditional(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_TopBottom3BoxConditional(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers, a[4].number,
        a[5].numbers, a[6].numbers, a[7].numbers, a[8].numbers, a[9].numbers, a[10].numbers);
}

static void call_Cpp_V_Trim(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_Trim(a[0].texts, a[1].integer, a[2].flag, a[3].flag, a[4].texts);
}

static void call_Cpp_V_Trim2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_Trim2(a[0].texts, a[1].integer, a[2].flag, a[3].flag);
}

static void call_Cpp_V_Var2(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_V_Var2(a[0].numbers, a[1].integer, a[2].flag, a[3].flag);
}

static void call_Cpp_V_VarIf(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_V_VarIf(a[0].numbers, a[1].integer, a[2].numbers, a[3].number, a[4].flag);
}

static void call_Cpp_V_VarIfSup0W(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_V_VarIfSup0W(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers, a[4].flag);
}

static void call_Cpp_V_VarIfW(const korvel_slot* a, korvel_slot* r)
{
    r->number = Cpp_V_VarIfW(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers, a[4].number, a[5].flag);
}

static void call_Cpp_V_Winsorize2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_Winsorize2(a[0].numbers, a[1].integer, a[2].number, a[3].number);
}

static void call_Cpp_V_ZScores(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_V_ZScores(a[0].numbers, a[1].integer, a[2].flag, a[3].numbers, a[4].numbers, a[5].numbers);
}

static void call_Cpp_VectToMat(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_VectToMat(a[0].numbers, a[1].numbers, a[2].integer, a[3].integer, a[4].numbers);
}

static void call_Cpp_WriteMatrixDbl(const korvel_slot* a, korvel_slot* r)
{
    Cpp_WriteMatrixDbl(a[0].numbers, a[1].integer, a[2].integer, a[3].label);
    (void)r;
}

static void call_Cpp_WriteMatrixLng(const korvel_slot* a, korvel_slot* r)
{
    Cpp_WriteMatrixLng(a[0].integers, a[1].integer, a[2].integer, a[3].label);
    (void)r;
}

static void call_Cpp_WriteMatrixStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_WriteMatrixStr(a[0].texts, a[1].integer, a[2].integer, a[3].label);
}

static void call_Cpp_set_rand_algo(const korvel_slot* a, korvel_slot* r)
{
    r->integer = Cpp_set_rand_algo(a[0].integer);
}

static void call_ExtractBSTR(const korvel_slot* a, korvel_slot* r)
{
    r->texts = ExtractBSTR(a[0].array);
}

static void call_Increase1Col(const korvel_slot* a, korvel_slot* r)
{
    r->text = Increase1Col(a[0].text);
}

static void call_KORVEL_Version(const korvel_slot* a, korvel_slot* r)
{
    r->integer = KORVEL_Version();
    (void)a;
}

static void call_NewtonRaphson(const korvel_slot* a, korvel_slot* r)
{
    r->integer = NewtonRaphson(a[0].numbers, a[1].integer, a[2].integers, a[3].numbers, a[4].numbers, a[5].number,
        a[6].numbers, a[7].numbers, a[8].flag, a[9].number);
}

static void call_RunOLSBasic(const korvel_slot* a, korvel_slot* r)
{
    r->integer = RunOLSBasic(a[0].integer, a[1].integer, a[2].numbers, a[3].numbers, a[4].numbers, a[5].integer,
        a[6].flag, a[7].flag, a[8].number, a[9].numbers, a[10].numbers);
}

static void call_RunOLSBasic2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = RunOLSBasic2(a[0].integer, a[1].integer, a[2].numbers, a[3].numbers, a[4].numbers, a[5].integer,
        a[6].flag, a[7].flag, a[8].number, a[9].numbers, a[10].numbers, a[11].numbers);
}

static void call_RunOLSBasic2Lg(const korvel_slot* a, korvel_slot* r)
{
    r->integer = RunOLSBasic2Lg(a[0].integer, a[1].integer, a[2].numbers, a[3].integer, a[4].numbers, a[5].integer,
        a[6].numbers, a[7].integer, a[8].numbers, a[9].integer, a[10].numbers, a[11].numbers, a[12].numbers,
        a[13].integer, a[14].flag, a[15].flag, a[16].number, a[17].numbers, a[18].numbers, a[19].numbers);
}

static void call_RunOLSBasic3(const korvel_slot* a, korvel_slot* r)
{
    r->integer = RunOLSBasic3(a[0].integer, a[1].integer, a[2].numbers, a[3].numbers, a[4].numbers, a[5].integer,
        a[6].flag, a[7].flag, a[8].number, a[9].numbers, a[10].numbers, a[11].numbers, a[12].numbers, a[13].numbers,
        a[14].numbers);
}

static void call_SimplifyRange(const korvel_slot* a, korvel_slot* r)
{
    r->text = SimplifyRange(a[0].text);
}

static void call_VB_BiplotTransData(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_BiplotTransData(a[0].numbers, a[1].numbers, a[2].numbers, a[3].integer, a[4].integer,
        a[5].integer, a[6].integer, a[7].numbers, a[8].number, a[9].number, a[10].numbers, a[11].numbers);
}

static void call_VB_BiplotTransDataSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_BiplotTransDataSPV(a[0].chunks, a[1].numbers, a[2].chunks, a[3].integer, a[4].integer,
        a[5].integer, a[6].integer, a[7].numbers, a[8].number, a[9].number, a[10].numbers, a[11].numbers);
}

static void call_VB_BuildDisjunctiveTable(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_BuildDisjunctiveTable(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].integers,
        a[5].texts, a[6].numbers, a[7].numbers, a[8].integer, a[9].integer);
}

static void call_VB_CheckTolerance(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_CheckTolerance(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers, a[5].number,
        a[6].flag, a[7].flag, a[8].flag, a[9].flag, a[10].numbers, a[11].numbers, a[12].numbers);
}

static void call_VB_ComputeNewVar(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_ComputeNewVar(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_VB_CopyMatrixColToMatrixCol(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_CopyMatrixColToMatrixCol(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].numbers,
        a[5].integer, a[6].integer, a[7].integer, a[8].flag);
}

static void call_VB_CopyMatrixColToOneColMatStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_CopyMatrixColToOneColMatStr(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].texts);
}

static void call_VB_CopyMatrixColToVector(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_CopyMatrixColToVector(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].numbers);
}

static void call_VB_CopyMatrixRowToMatrixRow(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_CopyMatrixRowToMatrixRow(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].numbers,
        a[5].integer, a[6].integer, a[7].integer, a[8].flag);
}

static void call_VB_EstimateRowsWithMissingMean(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_EstimateRowsWithMissingMean(a[0].numbers, a[1].integer, a[2].integer, a[3].flags, a[4].numbers);
}

static void call_VB_EstimateRowsWithMissingMeanPred(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_EstimateRowsWithMissingMeanPred(a[0].numbers, a[1].integer, a[2].numbers, a[3].integer,
        a[4].integer, a[5].flags, a[6].numbers);
}

static void call_VB_EstimateRowsWithMissingMeanSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_EstimateRowsWithMissingMeanSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].flags, a[4].numbers);
}

static void call_VB_EstimateRowsWithMissingMode(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_EstimateRowsWithMissingMode(a[0].texts, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_EstimateRowsWithMissingModePred(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_EstimateRowsWithMissingModePred(a[0].texts, a[1].integer, a[2].texts, a[3].integer, a[4].integer,
        a[5].numbers);
}

static void call_VB_EstimateRowsWithMissingNN(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_EstimateRowsWithMissingNN(a[0].numbers, a[1].integer, a[2].integer, a[3].flags, a[4].numbers,
        a[5].integer, a[6].texts, a[7].integer, a[8].numbers);
}

static void call_VB_EstimateRowsWithMissingNNPred(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_EstimateRowsWithMissingNNPred(a[0].numbers, a[1].integer, a[2].numbers, a[3].integer,
        a[4].integer, a[5].flags, a[6].numbers, a[7].numbers, a[8].integer, a[9].texts, a[10].texts, a[11].integer,
        a[12].numbers);
}

static void call_VB_EstimateRowsWithMissingNNSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_EstimateRowsWithMissingNNSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].flags, a[4].numbers,
        a[5].integer, a[6].texts, a[7].integer, a[8].numbers);
}

static void call_VB_EstimateRowsWithMissingNNSPV2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_EstimateRowsWithMissingNNSPV2(a[0].chunks, a[1].integer, a[2].integer, a[3].flags, a[4].chunks,
        a[5].integer, a[6].texts, a[7].integer, a[8].numbers);
}

static void call_VB_EstimateRowsWithMissingNNStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_EstimateRowsWithMissingNNStr(a[0].texts, a[1].integer, a[2].integer, a[3].flags, a[4].numbers,
        a[5].integer, a[6].texts, a[7].integer, a[8].numbers);
}

static void call_VB_EstimateRowsWithMissingNNStrPred(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_EstimateRowsWithMissingNNStrPred(a[0].texts, a[1].integer, a[2].texts, a[3].integer, a[4].integer,
        a[5].flags, a[6].numbers, a[7].numbers, a[8].integer, a[9].texts, a[10].texts, a[11].integer, a[12].numbers);
}

static void call_VB_FilterEigen(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_FilterEigen(a[0].numbers, a[1].integer, a[2].flag, a[3].number, a[4].number, a[5].integer,
        a[6].number, a[7].integers, a[8].integers, a[9].numbers);
}

static void call_VB_GenerateIndicator(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_GenerateIndicator(a[0].numbers, a[1].integer, a[2].integer, a[3].integer);
}

static void call_VB_GenerateRandomIndicator(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_GenerateRandomIndicator(a[0].numbers, a[1].integer, a[2].integer, a[3].integers, a[4].flag,
        a[5].integers);
}

static void call_VB_HMergeTableVect(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_HMergeTableVect(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer,
        a[5].numbers, a[6].integer, a[7].integer);
}

static void call_VB_HMergeTableVect2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_HMergeTableVect2(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer);
}

static void call_VB_HMergeTablesBool(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_HMergeTablesBool(a[0].flags, a[1].integer, a[2].integer, a[3].flags, a[4].integer, a[5].integer,
        a[6].flags);
}

static void call_VB_HMergeTablesBool2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_HMergeTablesBool2(a[0].flags, a[1].integer, a[2].integer, a[3].flags, a[4].integer, a[5].integer);
}

static void call_VB_HMergeTablesDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_HMergeTablesDbl(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer,
        a[5].integer, a[6].numbers);
}

static void call_VB_HMergeTablesDbl2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_HMergeTablesDbl2(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer,
        a[5].integer);
}

static void call_VB_HMergeTablesDbl2SPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_HMergeTablesDbl2SPV(a[0].chunks, a[1].integer, a[2].integer, a[3].numbers, a[4].integer,
        a[5].integer);
}

static void call_VB_HMergeTablesDbl2SPV2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_HMergeTablesDbl2SPV2(a[0].chunks, a[1].integer, a[2].integer, a[3].chunks, a[4].integer,
        a[5].integer);
}

static void call_VB_HMergeTablesLng2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_HMergeTablesLng2(a[0].integers, a[1].integer, a[2].integer, a[3].integers, a[4].integer,
        a[5].integer);
}

static void call_VB_HMergeTablesStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_HMergeTablesStr(a[0].texts, a[1].integer, a[2].integer, a[3].texts, a[4].integer, a[5].integer,
        a[6].texts);
}

static void call_VB_HMergeTablesStr2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_HMergeTablesStr2(a[0].texts, a[1].integer, a[2].integer, a[3].texts, a[4].integer, a[5].integer);
}

static void call_VB_HMergeVectColDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_HMergeVectColDbl(a[0].numbers, a[1].integer, a[2].numbers, a[3].integer, a[4].integer,
        a[5].integer, a[6].numbers, a[7].integer);
}

static void call_VB_HMergeVectTable(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_HMergeVectTable(a[0].numbers, a[1].integer, a[2].numbers, a[3].integer, a[4].integer,
        a[5].numbers, a[6].integer, a[7].integer);
}

static void call_VB_HMergeVectors(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_HMergeVectors(a[0].numbers, a[1].integer, a[2].numbers, a[3].integer, a[4].numbers);
}

static void call_VB_InitVectorToFalse(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_InitVectorToFalse(a[0].flags, a[1].integer);
}

static void call_VB_InitVectorToTrue(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_InitVectorToTrue(a[0].flags, a[1].integer);
}

static void call_VB_IsMissingValueDbl(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_IsMissingValueDbl(a[0].number);
}

static void call_VB_IsMissingValueStr(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_IsMissingValueStr(a[0].cell);
}

static void call_VB_MAE(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_MAE(a[0].numbers, a[1].numbers, a[2].integer, a[3].numbers, a[4].integer);
}

static void call_VB_MAPE(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_MAPE(a[0].numbers, a[1].numbers, a[2].integer, a[3].numbers, a[4].integer);
}

static void call_VB_MPE(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_MPE(a[0].numbers, a[1].numbers, a[2].integer, a[3].numbers, a[4].integer);
}

static void call_VB_M_APlusVal(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_APlusVal(a[0].numbers, a[1].integer, a[2].integer, a[3].number, a[4].numbers);
}

static void call_VB_M_APlusVal2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_APlusVal2(a[0].numbers, a[1].integer, a[2].integer, a[3].number);
}

static void call_VB_M_AllMissingRows(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_AllMissingRows(a[0].numbers, a[1].integer, a[2].integer, a[3].flags, a[4].flags);
}

static void call_VB_M_AllMissingRowsStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_AllMissingRowsStr(a[0].texts, a[1].integer, a[2].integer, a[3].flags, a[4].flags);
}

static void call_VB_M_Binarize(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Binarize(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_M_Binarize2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Binarize2(a[0].numbers, a[1].integer, a[2].integer);
}

static void call_VB_M_Binarize2SPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Binarize2SPV(a[0].chunks, a[1].integer, a[2].integer);
}

static void call_VB_M_Center(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Center(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_M_Center2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Center2(a[0].numbers, a[1].integer, a[2].integer);
}

static void call_VB_M_Center2SPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Center2SPV(a[0].chunks, a[1].integer, a[2].integer);
}

static void call_VB_M_CenterW(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CenterW(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_VB_M_CenterW2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CenterW2(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_M_CheckIfSimOrDissim(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CheckIfSimOrDissim(a[0].numbers, a[1].integer, a[2].integer);
}

static void call_VB_M_CheckIfSimOrDissimSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CheckIfSimOrDissimSPV(a[0].chunks, a[1].integer, a[2].integer);
}

static void call_VB_M_CholDecomp(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CholDecomp(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_VB_M_CholDecompCleaned(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CholDecompCleaned(a[0].numbers, a[1].integer, a[2].integers, a[3].numbers);
}

static void call_VB_M_CholDecompPrinc(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CholDecompPrinc(a[0].numbers, a[1].integer, a[2].numbers, a[3].integers, a[4].flag);
}

static void call_VB_M_CopyBlock(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CopyBlock(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].integer, a[5].integer,
        a[6].integer, a[7].numbers);
}

static void call_VB_M_CopyBlockSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CopyBlockSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].integer, a[4].integer, a[5].integer,
        a[6].integer, a[7].chunks);
}

static void call_VB_M_CopyBlockStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CopyBlockStr(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].integer, a[5].integer,
        a[6].integer, a[7].texts);
}

static void call_VB_M_CopyResize(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CopyResize(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer, a[5].integer);
}

static void call_VB_M_CopyResizeBool(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CopyResizeBool(a[0].flags, a[1].integer, a[2].integer, a[3].flags, a[4].integer, a[5].integer);
}

static void call_VB_M_CopyResizeStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CopyResizeStr(a[0].texts, a[1].integer, a[2].integer, a[3].texts, a[4].integer, a[5].integer);
}

static void call_VB_M_CopyToBigger(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CopyToBigger(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer,
        a[5].integer);
}

static void call_VB_M_CorrMatFromCovMat(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CorrMatFromCovMat(a[0].numbers, a[1].integer, a[2].numbers, a[3].flag);
}

static void call_VB_M_CorrMatMat(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CorrMatMat(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer, a[5].numbers,
        a[6].flags, a[7].numbers, a[8].flag, a[9].flag, a[10].flag, a[11].flag, a[12].flag);
}

static void call_VB_M_CorrMatMatSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CorrMatMatSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].chunks, a[4].integer, a[5].chunks,
        a[6].flags, a[7].numbers, a[8].flag, a[9].flag, a[10].flag, a[11].flag, a[12].flag);
}

static void call_VB_M_CovCorr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CovCorr(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].flag, a[5].flags,
        a[6].numbers, a[7].flag, a[8].flag, a[9].flag);
}

static void call_VB_M_CovCorrAndMeanStDevVar(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CovCorrAndMeanStDevVar(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers,
        a[5].numbers, a[6].numbers, a[7].flag, a[8].flags, a[9].numbers, a[10].flag, a[11].flag, a[12].flag,
        a[13].flag, a[14].flag);
}

static void call_VB_M_CovCorrVAndMeanStDevVar(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_CovCorrVAndMeanStDevVar(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers,
        a[5].numbers, a[6].numbers, a[7].flag, a[8].flags, a[9].numbers, a[10].flag, a[11].flag, a[12].flag,
        a[13].flag, a[14].flag);
}

static void call_VB_M_Dedupe(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Dedupe(a[0].numbers, a[1].integer, a[2].integer, a[3].integers, a[4].numbers);
}

static void call_VB_M_Determinant(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_M_Determinant(a[0].numbers, a[1].integer, a[2].flags);
}

static void call_VB_M_DeterminantCleaned(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_M_DeterminantCleaned(a[0].numbers, a[1].integer, a[2].integers, a[3].flags);
}

static void call_VB_M_DeterminantTriang(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_M_DeterminantTriang(a[0].numbers, a[1].integer, a[2].flags);
}

static void call_VB_M_DuplicateDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_DuplicateDbl(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer, a[5].integer,
        a[6].integer, a[7].integer);
}

static void call_VB_M_DuplicateLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_DuplicateLng(a[0].integers, a[1].integer, a[2].integer, a[3].integers, a[4].integer,
        a[5].integer, a[6].integer, a[7].integer);
}

static void call_VB_M_DuplicateStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_DuplicateStr(a[0].texts, a[1].integer, a[2].integer, a[3].texts, a[4].integer, a[5].integer,
        a[6].integer, a[7].integer);
}

static void call_VB_M_DuplicateStrSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_DuplicateStrSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].texts, a[4].integer, a[5].integer,
        a[6].integer, a[7].integer);
}

static void call_VB_M_Eigen(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Eigen(a[0].numbers, a[1].numbers, a[2].numbers, a[3].integer, a[4].flag);
}

static void call_VB_M_EuclidDist2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_EuclidDist2(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers, a[5].flag,
        a[6].integer);
}

static void call_VB_M_ExtractMatToMatByColDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ExtractMatToMatByColDbl(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].integer,
        a[5].numbers);
}

static void call_VB_M_ExtractMatToMatDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ExtractMatToMatDbl(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].integer,
        a[5].numbers);
}

static void call_VB_M_ExtractMatToMatDblSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ExtractMatToMatDblSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].integer, a[4].integer,
        a[5].numbers);
}

static void call_VB_M_ExtractMatToMatStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ExtractMatToMatStr(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].integer,
        a[5].texts);
}

static void call_VB_M_ExtractMatToMatStrSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ExtractMatToMatStrSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].integer, a[4].integer,
        a[5].texts);
}

static void call_VB_M_FrobeniusNorm(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_M_FrobeniusNorm(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_M_Gauss(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Gauss(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_M_GenerateRandom01(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_GenerateRandom01(a[0].numbers, a[1].integer, a[2].integer, a[3].integers, a[4].flag,
        a[5].integers);
}

static void call_VB_M_GroupBy(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_GroupBy(a[0].numbers, a[1].integer, a[2].integer, a[3].integers, a[4].integer, a[5].integer,
        a[6].integers, a[7].numbers);
}

static void call_VB_M_GroupByW(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_GroupByW(a[0].numbers, a[1].integer, a[2].integer, a[3].integers, a[4].integer, a[5].integer,
        a[6].integers, a[7].numbers, a[8].numbers);
}

static void call_VB_M_InfoQuali(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_InfoQuali(a[0].texts, a[1].integer, a[2].integer, a[3].texts, a[4].numbers, a[5].integers,
        a[6].texts, a[7].numbers, a[8].numbers, a[9].integers, a[10].flag);
}

static void call_VB_M_InfoQuali2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_InfoQuali2(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].integers, a[5].texts,
        a[6].numbers, a[7].texts, a[8].numbers, a[9].numbers, a[10].integers, a[11].flag);
}

static void call_VB_M_InfoQualiValid(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_InfoQualiValid(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].integers, a[5].texts,
        a[6].numbers, a[7].flags, a[8].numbers);
}

static void call_VB_M_InvGeneralized(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_InvGeneralized(a[0].numbers, a[1].integer, a[2].numbers, a[3].number, a[4].integers);
}

static void call_VB_M_InvGeneralizedSym(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_InvGeneralizedSym(a[0].numbers, a[1].integer, a[2].numbers, a[3].number, a[4].integers);
}

static void call_VB_M_Inverse1(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Inverse1(a[0].numbers, a[1].integer, a[2].numbers, a[3].flags, a[4].number);
}

static void call_VB_M_InverseTriang(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_InverseTriang(a[0].numbers, a[1].integer, a[2].flag, a[3].numbers, a[4].number);
}

static void call_VB_M_IsColConstant(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_M_IsColConstant(a[0].numbers, a[1].integer, a[2].integer);
}

static void call_VB_M_IsColConstantSPV(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_M_IsColConstantSPV(a[0].chunks, a[1].integer, a[2].integer);
}

static void call_VB_M_IsDiagConstant(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_M_IsDiagConstant(a[0].numbers, a[1].integer);
}

static void call_VB_M_IsDisjTable(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_M_IsDisjTable(a[0].numbers, a[1].integer, a[2].integer, a[3].flags, a[4].integers);
}

static void call_VB_M_IsIn01(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_M_IsIn01(a[0].numbers, a[1].integer, a[2].integer);
}

static void call_VB_M_IsInIntervalSPV(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_M_IsInIntervalSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].number, a[4].number, a[5].flag,
        a[6].flag);
}

static void call_VB_M_IsLong(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_M_IsLong(a[0].numbers, a[1].integer, a[2].integer);
}

static void call_VB_M_IsSymmetric(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_M_IsSymmetric(a[0].numbers, a[1].integer);
}

static void call_VB_M_IsSymmetricSPV(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_M_IsSymmetricSPV(a[0].chunks, a[1].integer);
}

static void call_VB_M_IsTriangular(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_IsTriangular(a[0].numbers, a[1].integer, a[2].flag);
}

static void call_VB_M_IsTriangularSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_IsTriangularSPV(a[0].chunks, a[1].integer, a[2].flag);
}

static void call_VB_M_LUDecomp(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_LUDecomp(a[0].numbers, a[1].integer, a[2].integers, a[3].numbers, a[4].flags);
}

static void call_VB_M_Log10Matrix(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Log10Matrix(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_M_LogMatrix(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_LogMatrix(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_M_Max(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Max(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_M_Mean(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Mean(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_VB_M_MeanStDev(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_MeanStDev(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers, a[5].flags,
        a[6].numbers, a[7].flag, a[8].flag, a[9].flag);
}

static void call_VB_M_MeanStDevByRow(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_MeanStDevByRow(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers,
        a[5].numbers, a[6].flag, a[7].flag);
}

static void call_VB_M_MeanStDevVar(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_MeanStDevVar(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers, a[5].numbers,
        a[6].flags, a[7].numbers, a[8].flag, a[9].flag);
}

static void call_VB_M_MeanStDevVarOneInMat(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_MeanStDevVarOneInMat(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers,
        a[5].numbers, a[6].numbers, a[7].flag, a[8].flag);
}

static void call_VB_M_Min(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Min(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_M_MinMax(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_MinMax(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers, a[5].flags,
        a[6].flag);
}

static void call_VB_M_MinMaxSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_MinMaxSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers, a[5].flags,
        a[6].flag);
}

static void call_VB_M_MinMaxSPV_T(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_MinMaxSPV_T(a[0].chunks, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers, a[5].flags,
        a[6].flag);
}

static void call_VB_M_MoveRow(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_MoveRow(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].integer);
}

static void call_VB_M_NbMissing(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_NbMissing(a[0].numbers, a[1].integer, a[2].integer, a[3].integers);
}

static void call_VB_M_NbMissing2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_NbMissing2(a[0].numbers, a[1].integer, a[2].integer);
}

static void call_VB_M_NbMissing2Str(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_NbMissing2Str(a[0].texts, a[1].integer, a[2].integer);
}

static void call_VB_M_NbMissingSPV_T(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_NbMissingSPV_T(a[0].chunks, a[1].integer, a[2].integer);
}

static void call_VB_M_NbMissingStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_NbMissingStr(a[0].texts, a[1].integer, a[2].integer, a[3].integers);
}

static void call_VB_M_NbNonMissing(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_NbNonMissing(a[0].numbers, a[1].integer, a[2].integer, a[3].integers);
}

static void call_VB_M_Normalize(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Normalize(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].flags);
}

static void call_VB_M_NormalizeMatrix(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_NormalizeMatrix(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer,
        a[5].numbers, a[6].integer);
}

static void call_VB_M_PasteBlock(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_PasteBlock(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer, a[5].integer,
        a[6].integer, a[7].integer);
}

static void call_VB_M_PasteBlockLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_PasteBlockLng(a[0].integers, a[1].integer, a[2].integer, a[3].integers, a[4].integer,
        a[5].integer, a[6].integer, a[7].integer);
}

static void call_VB_M_ProductAB(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductAB(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer, a[5].numbers);
}

static void call_VB_M_ProductABC(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductABC(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer, a[5].numbers,
        a[6].integer, a[7].numbers);
}

static void call_VB_M_ProductABLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductABLng(a[0].integers, a[1].integer, a[2].integer, a[3].integers, a[4].integer,
        a[5].integers);
}

static void call_VB_M_ProductABMissing(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductABMissing(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer,
        a[5].numbers);
}

static void call_VB_M_ProductABTrA(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductABTrA(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].flag, a[5].numbers);
}

static void call_VB_M_ProductADTrA(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductADTrA(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_VB_M_ProductADiag(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductADiag(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_VB_M_ProductADiagV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductADiagV(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_VB_M_ProductADiagVB(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductADiagVB(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers,
        a[5].integer, a[6].numbers);
}

static void call_VB_M_ProductADiagVTrA(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductADiagVTrA(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_VB_M_ProductADiagVTrB(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductADiagVTrB(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers,
        a[5].integer, a[6].numbers);
}

static void call_VB_M_ProductASymV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductASymV(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers);
}

static void call_VB_M_ProductATrA(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductATrA(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_M_ProductATrB(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductATrB(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer, a[5].numbers);
}

static void call_VB_M_ProductATrBC(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductATrBC(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer, a[5].numbers,
        a[6].integer, a[7].numbers);
}

static void call_VB_M_ProductAinvBTrA(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductAinvBTrA(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_VB_M_ProductBV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductBV(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_VB_M_ProductByElement(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductByElement(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_VB_M_ProductDesignAB2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductDesignAB2(a[0].numbers, a[1].integer, a[2].integers, a[3].numbers, a[4].integer,
        a[5].integer, a[6].numbers, a[7].numbers);
}

static void call_VB_M_ProductDiagV1ADiagV2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductDiagV1ADiagV2(a[0].numbers, a[1].integer, a[2].numbers, a[3].integer, a[4].numbers,
        a[5].numbers);
}

static void call_VB_M_ProductDiagVA(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductDiagVA(a[0].numbers, a[1].integer, a[2].numbers, a[3].integer, a[4].numbers);
}

static void call_VB_M_ProductHorizAB(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductHorizAB(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer,
        a[5].numbers, a[6].integer);
}

static void call_VB_M_ProductHorizAB2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductHorizAB2(a[0].numbers, a[1].integer, a[2].integers, a[3].numbers, a[4].integer);
}

static void call_VB_M_ProductTrAA(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductTrAA(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_M_ProductTrAB(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductTrAB(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer, a[5].numbers);
}

static void call_VB_M_ProductTrABA(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductTrABA(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].flag, a[5].numbers);
}

static void call_VB_M_ProductTrABC(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductTrABC(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer, a[5].numbers,
        a[6].integer, a[7].numbers);
}

static void call_VB_M_ProductTrADA(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductTrADA(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_VB_M_ProductTrADiag(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductTrADiag(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_VB_M_ProductTrADiagV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductTrADiagV(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_VB_M_ProductTrADiagVA(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductTrADiagVA(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_VB_M_ProductTrAinvBA(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductTrAinvBA(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].flag,
        a[5].numbers);
}

static void call_VB_M_ProductTrBV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductTrBV(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_VB_M_ProductTrV1BV2(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_M_ProductTrV1BV2(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers);
}

static void call_VB_M_ProductTrVBV(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_M_ProductTrVBV(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_VB_M_ProductTrVinvBV(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_M_ProductTrVinvBV(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_VB_M_ProductVASym(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductVASym(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers);
}

static void call_VB_M_ProductVB(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductVB(a[0].numbers, a[1].integer, a[2].numbers, a[3].integer, a[4].numbers);
}

static void call_VB_M_ProductVTrB(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ProductVTrB(a[0].numbers, a[1].integer, a[2].numbers, a[3].integer, a[4].numbers);
}

static void call_VB_M_Rank(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Rank(a[0].numbers, a[1].integer, a[2].integer);
}

static void call_VB_M_Reduce(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Reduce(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].flag, a[5].flag);
}

static void call_VB_M_Reduce2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Reduce2(a[0].numbers, a[1].integer, a[2].integer, a[3].flag);
}

static void call_VB_M_ReduceW(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ReduceW(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers, a[5].flag,
        a[6].flag);
}

static void call_VB_M_ReduceW2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ReduceW2(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].flag, a[5].flag);
}

static void call_VB_M_RemoveCol(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_RemoveCol(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].numbers);
}

static void call_VB_M_RemoveCols2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_RemoveCols2(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].integer);
}

static void call_VB_M_RemoveColsInList(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_RemoveColsInList(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer,
        a[5].numbers);
}

static void call_VB_M_RemoveRow(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_RemoveRow(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].numbers);
}

static void call_VB_M_RemoveRows2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_RemoveRows2(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].integer);
}

static void call_VB_M_RemoveRowsInList(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_RemoveRowsInList(a[0].numbers, a[1].integer, a[2].integer, a[3].integers, a[4].integer,
        a[5].numbers);
}

static void call_VB_M_ReplaceMissingByStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ReplaceMissingByStr(a[0].texts, a[1].integer, a[2].integer, a[3].text);
}

static void call_VB_M_ReplaceMissingByVal(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ReplaceMissingByVal(a[0].numbers, a[1].integer, a[2].integer, a[3].number);
}

static void call_VB_M_ReplaceMissingByValSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ReplaceMissingByValSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].number);
}

static void call_VB_M_ReplaceStrByCodes(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ReplaceStrByCodes(a[0].texts, a[1].integer, a[2].integer, a[3].integers, a[4].texts, a[5].flags,
        a[6].integer, a[7].numbers);
}

static void call_VB_M_ReplaceStrByCodesBinary(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ReplaceStrByCodesBinary(a[0].texts, a[1].integer, a[2].integer, a[3].flags, a[4].numbers);
}

static void call_VB_M_RescaleByVect(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_RescaleByVect(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers, a[5].flags,
        a[6].numbers);
}

static void call_VB_M_RescaleByVect2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_RescaleByVect2(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers,
        a[5].flags);
}

static void call_VB_M_SVDecomp(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_SVDecomp(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers, a[5].numbers,
        a[6].integer, a[7].integers);
}

static void call_VB_M_SVDecompSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_SVDecompSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].numbers, a[4].chunks, a[5].chunks,
        a[6].integer, a[7].integers);
}

static void call_VB_M_SampleUserDefined(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_SampleUserDefined(a[0].texts, a[1].integer, a[2].integer, a[3].texts, a[4].numbers,
        a[5].numbers);
}

static void call_VB_M_SampleUserDefinedSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_SampleUserDefinedSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].chunks, a[4].numbers,
        a[5].numbers);
}

static void call_VB_M_SamplingRandomStratified(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_SamplingRandomStratified(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].texts,
        a[5].numbers, a[6].integers, a[7].flag, a[8].integers);
}

static void call_VB_M_SamplingRandomStratifiedSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_SamplingRandomStratifiedSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].integer, a[4].chunks,
        a[5].numbers, a[6].integers, a[7].flag, a[8].integers);
}

static void call_VB_M_SamplingSystematicCentered(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_SamplingSystematicCentered(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].texts,
        a[5].numbers);
}

static void call_VB_M_SamplingSystematicCenteredSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_SamplingSystematicCenteredSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].integer,
        a[4].chunks, a[5].numbers);
}

static void call_VB_M_SamplingSystematicRdStart(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_SamplingSystematicRdStart(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].texts,
        a[5].numbers, a[6].integers, a[7].flag, a[8].integers);
}

static void call_VB_M_SamplingSystematicRdStartSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_SamplingSystematicRdStartSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].integer, a[4].chunks,
        a[5].numbers, a[6].integers, a[7].flag, a[8].integers);
}

static void call_VB_M_SamplingWithReplacement(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_SamplingWithReplacement(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].texts,
        a[5].numbers, a[6].integers, a[7].flag, a[8].integers);
}

static void call_VB_M_ScalarsA(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ScalarsA(a[0].numbers, a[1].integer, a[2].integer, a[3].number, a[4].numbers);
}

static void call_VB_M_ScalarsA2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ScalarsA2(a[0].numbers, a[1].integer, a[2].integer, a[3].number);
}

static void call_VB_M_ScalarsTrA(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_ScalarsTrA(a[0].numbers, a[1].integer, a[2].integer, a[3].number, a[4].numbers);
}

static void call_VB_M_SetWeightsToZeroForMissing(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_SetWeightsToZeroForMissing(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers,
        a[4].integer);
}

static void call_VB_M_Square(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Square(a[0].numbers, a[1].integer, a[2].integer);
}

static void call_VB_M_SquaredColumns(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_SquaredColumns(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_M_SquaredRows(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_SquaredRows(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_M_Standardize(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Standardize(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers, a[5].numbers,
        a[6].numbers, a[7].flags, a[8].numbers, a[9].flag, a[10].flag);
}

static void call_VB_M_Standardize2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Standardize2(a[0].numbers, a[1].integer, a[2].integer, a[3].flag);
}

static void call_VB_M_Standardize2SPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Standardize2SPV(a[0].chunks, a[1].integer, a[2].integer, a[3].flag);
}

static void call_VB_M_Standardize3(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Standardize3(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers, a[5].flag,
        a[6].flag);
}

static void call_VB_M_StandardizeByVect(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_StandardizeByVect(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers,
        a[5].numbers);
}

static void call_VB_M_StandardizeByVect2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_StandardizeByVect2(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_VB_M_StandardizeKnownMeansStDev(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_StandardizeKnownMeansStDev(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers,
        a[5].numbers, a[6].numbers, a[7].flags);
}

static void call_VB_M_StandardizeMatrix(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_StandardizeMatrix(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer,
        a[5].numbers, a[6].integer);
}

static void call_VB_M_StandardizeW(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_StandardizeW(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].flag, a[5].flag,
        a[6].numbers);
}

static void call_VB_M_StandardizeW2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_StandardizeW2(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].flag, a[5].flag);
}

static void call_VB_M_StandardizeW3(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_StandardizeW3(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers,
        a[5].numbers, a[6].flag, a[7].flag);
}

static void call_VB_M_SumByCols(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_SumByCols(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_M_SumByRows(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_SumByRows(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_M_SumOfElem(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_M_SumOfElem(a[0].numbers, a[1].integer, a[2].integer);
}

static void call_VB_M_Sums1As2B(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Sums1As2B(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].number, a[5].number,
        a[6].numbers);
}

static void call_VB_M_Sweep(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Sweep(a[0].numbers, a[1].integer, a[2].integer);
}

static void call_VB_M_Symmetrize(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Symmetrize(a[0].numbers, a[1].integer, a[2].integer);
}

static void call_VB_M_SymmetrizeSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_SymmetrizeSPV(a[0].chunks, a[1].integer, a[2].integer);
}

static void call_VB_M_Trace(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_M_Trace(a[0].numbers, a[1].integer);
}

static void call_VB_M_TransformSimToDissim(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_TransformSimToDissim(a[0].numbers, a[1].integer);
}

static void call_VB_M_Transpose(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Transpose(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_M_Transpose2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Transpose2(a[0].numbers, a[1].integer, a[2].integer);
}

static void call_VB_M_Transpose2Lng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Transpose2Lng(a[0].integers, a[1].integer, a[2].integer);
}

static void call_VB_M_Transpose2Str(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_Transpose2Str(a[0].texts, a[1].integer, a[2].integer);
}

static void call_VB_M_TransposeLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_TransposeLng(a[0].integers, a[1].integer, a[2].integer, a[3].integers);
}

static void call_VB_M_TransposeSPV(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_TransposeSPV(a[0].chunks, a[1].integer, a[2].integer, a[3].chunks);
}

static void call_VB_M_TransposeStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_M_TransposeStr(a[0].texts, a[1].integer, a[2].integer, a[3].texts);
}

static void call_VB_RMSE(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_RMSE(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].number);
}

static void call_VB_RemoveRowsWithMissing(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_RemoveRowsWithMissing(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].flags,
        a[5].numbers);
}

static void call_VB_RemoveRowsWithMissingBool(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_RemoveRowsWithMissingBool(a[0].flags, a[1].integer, a[2].integer, a[3].integer, a[4].flags,
        a[5].flags);
}

static void call_VB_RemoveRowsWithMissingStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_RemoveRowsWithMissingStr(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].flags,
        a[5].texts);
}

static void call_VB_ReplaceMissingObsLabels(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_ReplaceMissingObsLabels(a[0].texts, a[1].integer, a[2].flags, a[3].text);
}

static void call_VB_SortApply(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortApply(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].numbers);
}

static void call_VB_SortApply2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortApply2(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_SortApply2Lng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortApply2Lng(a[0].integers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_SortApply2Str(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortApply2Str(a[0].texts, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_SortApplyLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortApplyLng(a[0].integers, a[1].integer, a[2].integer, a[3].numbers, a[4].integers);
}

static void call_VB_SortApplyStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortApplyStr(a[0].texts, a[1].integer, a[2].integer, a[3].numbers, a[4].texts);
}

static void call_VB_SortDataBy01(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortDataBy01(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_SortDataBy01Bool(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortDataBy01Bool(a[0].flags, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_SortDataBy01Str(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortDataBy01Str(a[0].texts, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_SortMatrixSeqQDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortMatrixSeqQDbl(a[0].numbers, a[1].integer, a[2].integer);
}

static void call_VB_SortMatrixSeqQLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortMatrixSeqQLng(a[0].integers, a[1].integer, a[2].integer);
}

static void call_VB_SortMatrixSeqQP1toP2Dbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortMatrixSeqQP1toP2Dbl(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].integer);
}

static void call_VB_SortMatrixSeqQP1toP2Lng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortMatrixSeqQP1toP2Lng(a[0].integers, a[1].integer, a[2].integer, a[3].integer, a[4].integer);
}

static void call_VB_SortQBool(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortQBool(a[0].flags, a[1].integer, a[2].integer, a[3].integer, a[4].integer, a[5].numbers,
        a[6].flags, a[7].integer, a[8].flag, a[9].flag);
}

static void call_VB_SortQByColDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortQByColDbl(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].integer, a[5].numbers,
        a[6].numbers, a[7].integer, a[8].flag, a[9].flag);
}

static void call_VB_SortQDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortQDbl(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].integer, a[5].numbers,
        a[6].numbers, a[7].integer, a[8].flag, a[9].flag);
}

static void call_VB_SortQDbl2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortQDbl2(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].integer, a[5].numbers,
        a[6].numbers, a[7].integer, a[8].flag, a[9].flag);
}

static void call_VB_SortQLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortQLng(a[0].integers, a[1].integer, a[2].integer, a[3].integer, a[4].integer, a[5].integers,
        a[6].integers, a[7].integer, a[8].flag, a[9].flag);
}

static void call_VB_SortQStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortQStr(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].integer, a[5].numbers,
        a[6].texts, a[7].integer, a[8].flag, a[9].flag);
}

static void call_VB_SortQVectorDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortQVectorDbl(a[0].array, a[1].integer, a[2].integer, a[3].integer, a[4].flag);
}

static void call_VB_SortQVectorLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortQVectorLng(a[0].array, a[1].integer, a[2].integer, a[3].integer, a[4].flag);
}

static void call_VB_SortQVectorStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SortQVectorStr(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].flag);
}

static void call_VB_SummarizeAllMissing(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SummarizeAllMissing(a[0].integer, a[1].flags, a[2].flags, a[3].integers, a[4].flags);
}

static void call_VB_SummarizeMissing(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_SummarizeMissing(a[0].integer, a[1].integers, a[2].flags, a[3].flags, a[4].flags, a[5].flags);
}

static void call_VB_VMergeTablesDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_VMergeTablesDbl(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers, a[4].integer,
        a[5].integer, a[6].numbers);
}

static void call_VB_VMergeVectorsBool2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_VMergeVectorsBool2(a[0].flags, a[1].integer, a[2].flags, a[3].integer);
}

static void call_VB_VMergeVectorsDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_VMergeVectorsDbl(a[0].numbers, a[1].integer, a[2].numbers, a[3].integer, a[4].numbers);
}

static void call_VB_VMergeVectorsDbl2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_VMergeVectorsDbl2(a[0].numbers, a[1].integer, a[2].numbers, a[3].integer);
}

static void call_VB_VMergeVectorsStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_VMergeVectorsStr(a[0].texts, a[1].integer, a[2].texts, a[3].integer, a[4].texts);
}

static void call_VB_VMergeVectorsStr2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_VMergeVectorsStr2(a[0].texts, a[1].integer, a[2].texts, a[3].integer);
}

static void call_VB_V_DiffSq(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_DiffSq(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_VB_V_DiffSqW(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_DiffSqW(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers);
}

static void call_VB_V_DuplicateDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_DuplicateDbl(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].integer, a[5].integer,
        a[6].numbers, a[7].integer, a[8].integer, a[9].integer, a[10].integer);
}

static void call_VB_V_DuplicateDblToLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_DuplicateDblToLng(a[0].numbers, a[1].integer, a[2].integer, a[3].integer, a[4].integer,
        a[5].integer, a[6].integers, a[7].integer, a[8].integer, a[9].integer, a[10].integer);
}

static void call_VB_V_DuplicateLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_DuplicateLng(a[0].integers, a[1].integer, a[2].integer, a[3].integer, a[4].integer,
        a[5].integer, a[6].integers, a[7].integer, a[8].integer, a[9].integer, a[10].integer);
}

static void call_VB_V_DuplicateLngToDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_DuplicateLngToDbl(a[0].integers, a[1].integer, a[2].integer, a[3].integer, a[4].integer,
        a[5].integer, a[6].numbers, a[7].integer, a[8].integer, a[9].integer, a[10].integer);
}

static void call_VB_V_DuplicateStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_DuplicateStr(a[0].texts, a[1].integer, a[2].integer, a[3].integer, a[4].integer, a[5].integer,
        a[6].texts, a[7].integer, a[8].integer, a[9].integer, a[10].integer);
}

static void call_VB_V_ExtractDistinct(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_ExtractDistinct(a[0].numbers, a[1].integer, a[2].numbers, a[3].integers);
}

static void call_VB_V_Freq(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_Freq(a[0].numbers, a[1].integer, a[2].numbers, a[3].number, a[4].number);
}

static void call_VB_V_FreqLng(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_FreqLng(a[0].integers, a[1].integer, a[2].numbers, a[3].number, a[4].number);
}

static void call_VB_V_FreqStr(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_FreqStr(a[0].texts, a[1].integer, a[2].numbers, a[3].text);
}

static void call_VB_V_Gauss(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_Gauss(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_VB_V_GetMissingDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_GetMissingDbl(a[0].numbers, a[1].integer, a[2].flags, a[3].flags);
}

static void call_VB_V_GetMissingStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_GetMissingStr(a[0].texts, a[1].integer, a[2].flags, a[3].flags);
}

static void call_VB_V_GetPositionInMatNN(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_GetPositionInMatNN(a[0].integer, a[1].integer, a[2].integers, a[3].integers);
}

static void call_VB_V_GetPositionInMatNNm1o2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_GetPositionInMatNNm1o2(a[0].integer, a[1].integer, a[2].integers, a[3].integers);
}

static void call_VB_V_GetRanksDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_GetRanksDbl(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_VB_V_GetRanksLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_GetRanksLng(a[0].numbers, a[1].integer, a[2].integers);
}

static void call_VB_V_GetRanksTiesDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_GetRanksTiesDbl(a[0].numbers, a[1].integer, a[2].flag, a[3].numbers, a[4].numbers,
        a[5].integers, a[6].numbers);
}

static void call_VB_V_GetRanksTiesDbl2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_GetRanksTiesDbl2(a[0].numbers, a[1].integer, a[2].flag, a[3].numbers, a[4].integers,
        a[5].numbers);
}

static void call_VB_V_GetRanksTiesIntDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_GetRanksTiesIntDbl(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers, a[4].integers,
        a[5].numbers);
}

static void call_VB_V_Is01(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_V_Is01(a[0].numbers, a[1].integer);
}

static void call_VB_V_IsCWeights(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_V_IsCWeights(a[0].numbers, a[1].integer);
}

static void call_VB_V_IsConstant(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_V_IsConstant(a[0].numbers, a[1].integer, a[2].flag, a[3].integer);
}

static void call_VB_V_IsConstantBool(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_V_IsConstantBool(a[0].flags, a[1].integer);
}

static void call_VB_V_IsConstantLng(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_V_IsConstantLng(a[0].integers, a[1].integer, a[2].flag);
}

static void call_VB_V_IsConstantStr(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_V_IsConstantStr(a[0].texts, a[1].integer, a[2].flag);
}

static void call_VB_V_IsInInterval(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_V_IsInInterval(a[0].numbers, a[1].integer, a[2].number, a[3].number, a[4].flag, a[5].flag);
}

static void call_VB_V_IsIndicator(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_V_IsIndicator(a[0].numbers, a[1].integer);
}

static void call_VB_V_IsIndicatorSPV(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_V_IsIndicatorSPV(a[0].chunks, a[1].integer, a[2].integer);
}

static void call_VB_V_IsPositive(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_V_IsPositive(a[0].numbers, a[1].integer, a[2].flag);
}

static void call_VB_V_IsSorted(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_V_IsSorted(a[0].numbers, a[1].integer, a[2].flag);
}

static void call_VB_V_IsWeights(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_V_IsWeights(a[0].numbers, a[1].integer);
}

static void call_VB_V_Max(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_Max(a[0].numbers, a[1].integer, a[2].flags);
}

static void call_VB_V_Max2(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_Max2(a[0].numbers, a[1].integer);
}

static void call_VB_V_Max2Lng(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_Max2Lng(a[0].integers, a[1].integer);
}

static void call_VB_V_MaxAndMaxPos(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_MaxAndMaxPos(a[0].numbers, a[1].integer, a[2].integers);
}

static void call_VB_V_MaxIf(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_MaxIf(a[0].numbers, a[1].integer, a[2].numbers, a[3].number);
}

static void call_VB_V_MaxInt(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_MaxInt(a[0].integers, a[1].integer, a[2].flags);
}

static void call_VB_V_Mean(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_Mean(a[0].numbers, a[1].integer, a[2].flags, a[3].numbers);
}

static void call_VB_V_Mean2(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_Mean2(a[0].numbers, a[1].integer);
}

static void call_VB_V_MeanAbs(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_MeanAbs(a[0].numbers, a[1].integer, a[2].flags, a[3].numbers);
}

static void call_VB_V_MeanIf(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_MeanIf(a[0].numbers, a[1].integer, a[2].numbers, a[3].number);
}

static void call_VB_V_MeanIfW(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_MeanIfW(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers, a[4].number);
}

static void call_VB_V_MeanStdev(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_MeanStdev(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers, a[4].flags, a[5].numbers,
        a[6].flag, a[7].flag);
}

static void call_VB_V_MeanVar(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_MeanVar(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers, a[4].flags, a[5].numbers,
        a[6].flag, a[7].flag);
}

static void call_VB_V_MeanVarSkewPKurtP(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_MeanVarSkewPKurtP(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers, a[4].numbers,
        a[5].numbers, a[6].numbers, a[7].numbers, a[8].numbers, a[9].numbers, a[10].flags, a[11].numbers, a[12].flag,
        a[13].flag);
}

static void call_VB_V_Min(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_Min(a[0].numbers, a[1].integer, a[2].flags);
}

static void call_VB_V_Min2(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_Min2(a[0].numbers, a[1].integer);
}

static void call_VB_V_Min2Lng(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_Min2Lng(a[0].integers, a[1].integer);
}

static void call_VB_V_MinAndMinPos(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_MinAndMinPos(a[0].numbers, a[1].integer, a[2].integers, a[3].flag);
}

static void call_VB_V_MinIf(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_MinIf(a[0].numbers, a[1].integer, a[2].numbers, a[3].number);
}

static void call_VB_V_MinMax(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_MinMax(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers, a[4].flags);
}

static void call_VB_V_MinMax2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_MinMax2(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers, a[4].flag);
}

static void call_VB_V_MinMaxLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_MinMaxLng(a[0].integers, a[1].integer, a[2].numbers, a[3].numbers, a[4].flags);
}

static void call_VB_V_MinMaxLng2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_MinMaxLng2(a[0].integers, a[1].integer, a[2].numbers, a[3].numbers, a[4].flag);
}

static void call_VB_V_Mode(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_Mode(a[0].texts, a[1].integer, a[2].flags, a[3].numbers, a[4].texts);
}

static void call_VB_V_ModeCatDbl(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_ModeCatDbl(a[0].numbers, a[1].integer);
}

static void call_VB_V_NbDistinct(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_NbDistinct(a[0].numbers, a[1].integer);
}

static void call_VB_V_NbDistinctLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_NbDistinctLng(a[0].integers, a[1].integer);
}

static void call_VB_V_NbIf(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_NbIf(a[0].numbers, a[1].integer, a[2].number);
}

static void call_VB_V_NbIfLng(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_NbIfLng(a[0].integers, a[1].integer, a[2].integer);
}

static void call_VB_V_NbIfW(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_NbIfW(a[0].numbers, a[1].integer, a[2].numbers, a[3].number);
}

static void call_VB_V_NbMissing(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_NbMissing(a[0].numbers, a[1].integer);
}

static void call_VB_V_NbMissingStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_NbMissingStr(a[0].texts, a[1].integer);
}

static void call_VB_V_NbNonMissing(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_NbNonMissing(a[0].numbers, a[1].integer);
}

static void call_VB_V_NbTrue(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_NbTrue(a[0].flags, a[1].integer);
}

static void call_VB_V_NbTrueFromTo(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_NbTrueFromTo(a[0].flags, a[1].integer, a[2].integer);
}

static void call_VB_V_Norm(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_Norm(a[0].numbers, a[1].integer);
}

static void call_VB_V_NormToVal(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_NormToVal(a[0].numbers, a[1].integer, a[2].number);
}

static void call_VB_V_NormToValW(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_NormToValW(a[0].numbers, a[1].integer, a[2].number, a[3].numbers);
}

static void call_VB_V_NormW(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_NormW(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_VB_V_PlusVal(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_PlusVal(a[0].numbers, a[1].integer, a[2].number, a[3].flags);
}

static void call_VB_V_PlusVal2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_PlusVal2(a[0].numbers, a[1].integer, a[2].number);
}

static void call_VB_V_Product1toNDbl(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_Product1toNDbl(a[0].numbers, a[1].integer);
}

static void call_VB_V_Product1toNLng(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_Product1toNLng(a[0].integers, a[1].integer);
}

static void call_VB_V_ProductHorizV1V2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_ProductHorizV1V2(a[0].numbers, a[1].integer, a[2].numbers, a[3].integer, a[4].numbers);
}

static void call_VB_V_ProductHorizV1V22(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_ProductHorizV1V22(a[0].numbers, a[1].integers, a[2].numbers, a[3].integer);
}

static void call_VB_V_ProductTrV1V2(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_ProductTrV1V2(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_VB_V_ProductV1TrV2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_ProductV1TrV2(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers);
}

static void call_VB_V_ProductV1V2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_ProductV1V2(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers);
}

static void call_VB_V_ProductV1V22(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_ProductV1V22(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_VB_V_Quantile(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_Quantile(a[0].numbers, a[1].integer, a[2].number);
}

static void call_VB_V_QuantileM(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_QuantileM(a[0].numbers, a[1].integer, a[2].flags, a[3].number);
}

static void call_VB_V_QuantileMW(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_QuantileMW(a[0].numbers, a[1].integer, a[2].flags, a[3].numbers, a[4].number);
}

static void call_VB_V_QuantileW(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_QuantileW(a[0].numbers, a[1].integer, a[2].numbers, a[3].number);
}

static void call_VB_V_RemoveVal(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_RemoveVal(a[0].numbers, a[1].integer, a[2].integer, a[3].numbers);
}

static void call_VB_V_ReplaceDoubles(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_ReplaceDoubles(a[0].texts, a[1].integer);
}

static void call_VB_V_ReplaceVal(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_ReplaceVal(a[0].numbers, a[1].integer, a[2].number, a[3].number, a[4].numbers);
}

static void call_VB_V_ReplaceVal2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_ReplaceVal2(a[0].numbers, a[1].integer, a[2].number, a[3].number);
}

static void call_VB_V_Rescale(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_Rescale(a[0].numbers, a[1].integer, a[2].number, a[3].number, a[4].flags, a[5].numbers);
}

static void call_VB_V_Rescale2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_Rescale2(a[0].numbers, a[1].integer, a[2].number, a[3].number, a[4].flags);
}

static void call_VB_V_ReverseBool(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_ReverseBool(a[0].flags, a[1].integer, a[2].flags);
}

static void call_VB_V_ReverseDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_ReverseDbl(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_VB_V_Set1toNDbl(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_Set1toNDbl(a[0].numbers, a[1].integer);
}

static void call_VB_V_Set1toNLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_Set1toNLng(a[0].integers, a[1].integer);
}

static void call_VB_V_Set1toNStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_Set1toNStr(a[0].texts, a[1].integer);
}

static void call_VB_V_SetToValue(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_SetToValue(a[0].numbers, a[1].integer, a[2].number);
}

static void call_VB_V_SetToValueLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_SetToValueLng(a[0].integers, a[1].integer, a[2].integer);
}

static void call_VB_V_SetToValueStr(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_SetToValueStr(a[0].texts, a[1].integer, a[2].text);
}

static void call_VB_V_Standardize(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_Standardize(a[0].numbers, a[1].integer, a[2].flags, a[3].numbers, a[4].flag, a[5].numbers);
}

static void call_VB_V_Standardize2(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_Standardize2(a[0].numbers, a[1].integer, a[2].flags, a[3].numbers, a[4].flag);
}

static void call_VB_V_Stdev(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_Stdev(a[0].numbers, a[1].integer, a[2].flags, a[3].numbers, a[4].flag, a[5].flag);
}

static void call_VB_V_Sum(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_Sum(a[0].numbers, a[1].integer, a[2].flags, a[3].numbers);
}

static void call_VB_V_Sum2Dbl(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_Sum2Dbl(a[0].numbers, a[1].integer);
}

static void call_VB_V_Sum2Lng(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_Sum2Lng(a[0].integers, a[1].integer);
}

static void call_VB_V_SumFromTo(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_SumFromTo(a[0].numbers, a[1].integer, a[2].integer, a[3].integer);
}

static void call_VB_V_SumFromToLng(const korvel_slot* a, korvel_slot* r)
{
    r->integer = VB_V_SumFromToLng(a[0].integers, a[1].integer, a[2].integer, a[3].integer);
}

static void call_VB_V_SumIf(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_SumIf(a[0].numbers, a[1].integer, a[2].numbers, a[3].number);
}

static void call_VB_V_SumIfNotMissing(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_SumIfNotMissing(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_VB_V_SumIfW(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_SumIfW(a[0].numbers, a[1].integer, a[2].numbers, a[3].numbers, a[4].number);
}

static void call_VB_V_SumSq(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_SumSq(a[0].numbers, a[1].integer);
}

static void call_VB_V_SumSqW(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_SumSqW(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_VB_V_TimeIntervalSize(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_TimeIntervalSize(a[0].numbers, a[1].integer, a[2].flag);
}

static void call_VB_V_V1GreaterThanMatCols(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_V_V1GreaterThanMatCols(a[0].numbers, a[1].integer, a[2].numbers, a[3].integer);
}

static void call_VB_V_V1inferiorV2(const korvel_slot* a, korvel_slot* r)
{
    r->flag = VB_V_V1inferiorV2(a[0].numbers, a[1].integer, a[2].numbers);
}

static void call_VB_V_Var(const korvel_slot* a, korvel_slot* r)
{
    r->number = VB_V_Var(a[0].numbers, a[1].integer, a[2].flags, a[3].numbers, a[4].flag, a[5].flag);
}

static void call_dprint(const korvel_slot* a, korvel_slot* r)
{
    dprint(a[0].number, a[1].label);
    (void)r;
}

static void call_isQuali(const korvel_slot* a, korvel_slot* r)
{
    r->flag = isQuali(a[0].integer);
}

static void call_isQualiPure(const korvel_slot* a, korvel_slot* r)
{
    r->flag = isQualiPure(a[0].integer);
}

const korvel_function korvel_functions[] = {
    {"CleanConstraintsAndInvert", "iIDD", "i", call_CleanConstraintsAndInvert},
    {"CleanConstraintsAndInvertTriang", "iIDsD", "i", call_CleanConstraintsAndInvertTriang},
    {"ComputeCosines", "DiiD", "i", call_ComputeCosines},
    {"Cpp_BuildDisjunctiveTable_ST", "MxMii", "i", call_Cpp_BuildDisjunctiveTable_ST},
    {"Cpp_CheckForMarginalSums", "DiiDIIII", "i", call_Cpp_CheckForMarginalSums},
    {"Cpp_CheckSameVectorStr", "TiTi", "s", call_Cpp_CheckSameVectorStr},
    {"Cpp_CheckUniqueCatByVar", "TiiI", "i", call_Cpp_CheckUniqueCatByVar},
    {"Cpp_CopyDblToMVDbl", "DiiM", "i", call_Cpp_CopyDblToMVDbl},
    {"Cpp_Extractij", "DiiiiD", "i", call_Cpp_Extractij},
    {"Cpp_FilterOnSumOfSquares", "DiidS", "i", call_Cpp_FilterOnSumOfSquares},
    {"Cpp_GenerateIndicator_ST", "Aiii", "i", call_Cpp_GenerateIndicator_ST},
    {"Cpp_GenerateRandomIndicator_ST", "AiiIsI", "i", call_Cpp_GenerateRandomIndicator_ST},
    {"Cpp_GetCompMatrices", "DiiIsITISs", "i", call_Cpp_GetCompMatrices},
    {"Cpp_GetMaxCat", "TiiI", "i", call_Cpp_GetMaxCat},
    {"Cpp_GetStatusMemory", "i", "i", call_Cpp_GetStatusMemory},
    {"Cpp_KroneckerTensorProduct", "DiiDiiD", "i", call_Cpp_KroneckerTensorProduct},
    {"Cpp_MV_ProductAsymBsym", "DiDD", "i", call_Cpp_MV_ProductAsymBsym},
    {"Cpp_M_BoldCosines", "IiI", "i", call_Cpp_M_BoldCosines},
    {"Cpp_M_ConvertBinarytoDisjTable", "DiiD", "i", call_Cpp_M_ConvertBinarytoDisjTable},
    {"Cpp_M_CopyBlockSPV2", "HiiiiiiH", "i", call_Cpp_M_CopyBlockSPV2},
    {"Cpp_M_CopyBlockSPV2_T", "HiiiiiH", "i", call_Cpp_M_CopyBlockSPV2_T},
    {"Cpp_M_CopyPasteBlock", "DiiiiiiDiiii", "i", call_Cpp_M_CopyPasteBlock},
    {"Cpp_M_CopyPasteBlockSPV", "HiiiiiiHiiii", "i", call_Cpp_M_CopyPasteBlockSPV},
    {"Cpp_M_CopyPasteBlockStr", "TiiiiiiTiiii", "i", call_Cpp_M_CopyPasteBlockStr},
    {"Cpp_M_CopySymMatToVector", "DiD", "i", call_Cpp_M_CopySymMatToVector},
    {"Cpp_M_CopyTabletoVectorByRowDbl", "DiiD", "i", call_Cpp_M_CopyTabletoVectorByRowDbl},
    {"Cpp_M_CopyTabletoVectorByRowStr", "TiiT", "i", call_Cpp_M_CopyTabletoVectorByRowStr},
    {"Cpp_M_CopyVectorToSymMat", "DiD", "i", call_Cpp_M_CopyVectorToSymMat},
    {"Cpp_M_CopyVectortoTableByRowDbl", "DiiD", "i", call_Cpp_M_CopyVectortoTableByRowDbl},
    {"Cpp_M_CopyVectortoTableByRowStr", "TiiT", "i", call_Cpp_M_CopyVectortoTableByRowStr},
    {"Cpp_M_CorrMatFromCovMatSPV2_T", "Hi", "i", call_Cpp_M_CorrMatFromCovMatSPV2_T},
    {"Cpp_M_CorrMatFromSymMat", "Di", "i", call_Cpp_M_CorrMatFromSymMat},
    {"Cpp_M_CorrMatFromSymMatSPV", "Hi", "i", call_Cpp_M_CorrMatFromSymMatSPV},
    {"Cpp_M_CorrMatFromSymMatSPV_T", "Hi", "i", call_Cpp_M_CorrMatFromSymMatSPV_T},
    {"Cpp_M_CovCorr_ST", "MiiMsSDsss", "i", call_Cpp_M_CovCorr_ST},
    {"Cpp_M_CovMatFromCorrMat", "DiDD", "i", call_Cpp_M_CovMatFromCorrMat},
    {"Cpp_M_CovMatFromSymMat", "Di", "i", call_Cpp_M_CovMatFromSymMat},
    {"Cpp_M_DeterminantCleanedSPV_T", "HiIS", "d", call_Cpp_M_DeterminantCleanedSPV_T},
    {"Cpp_M_DuplicateDblSPV", "HiiDiiii", "i", call_Cpp_M_DuplicateDblSPV},
    {"Cpp_M_DuplicateDblSPV2", "DiiHiiii", "i", call_Cpp_M_DuplicateDblSPV2},
    {"Cpp_M_DuplicateDblSPV2_T", "DiiHiiii", "i", call_Cpp_M_DuplicateDblSPV2_T},
    {"Cpp_M_DuplicateDblSPV3", "HiiHiiii", "i", call_Cpp_M_DuplicateDblSPV3},
    {"Cpp_M_DuplicateDbl_ST", "MiiMiiii", "i", call_Cpp_M_DuplicateDbl_ST},
    {"Cpp_M_DuplicateMVDblTriang_ST", "MM", "i", call_Cpp_M_DuplicateMVDblTriang_ST},
    {"Cpp_M_DuplicateStr_ST", "MiiMiiii", "i", call_Cpp_M_DuplicateStr_ST},
    {"Cpp_M_EigenSPV_T", "HDHis", "i", call_Cpp_M_EigenSPV_T},
    {"Cpp_M_EuclidDistToVector", "DiiDsD", "i", call_Cpp_M_EuclidDistToVector},
    {"Cpp_M_ForwardDoolittle", "DiD", "i", call_Cpp_M_ForwardDoolittle},
    {"Cpp_M_GetMaxDistToOrigin", "DiiDI", "i", call_Cpp_M_GetMaxDistToOrigin},
    {"Cpp_M_GetMissingDbl", "DiiSS", "i", call_Cpp_M_GetMissingDbl},
    {"Cpp_M_GetMissingDblSPV", "HiiSS", "i", call_Cpp_M_GetMissingDblSPV},
    {"Cpp_M_GetMissingStr", "TiiSS", "i", call_Cpp_M_GetMissingStr},
    {"Cpp_M_HermiteCanonical", "DiD", "i", call_Cpp_M_HermiteCanonical},
    {"Cpp_M_IdentifyMissingInMat", "DiiI", "i", call_Cpp_M_IdentifyMissingInMat},
    {"Cpp_M_IdentifyMissingInMatSPV", "HiiI", "i", call_Cpp_M_IdentifyMissingInMatSPV},
    {"Cpp_M_InfoQuali3", "TiiiiTDTDDDIs", "i", call_Cpp_M_InfoQuali3},
    {"Cpp_M_InfoQuali3_ST", "MDx", "i", call_Cpp_M_InfoQuali3_ST},
    {"Cpp_M_InfoQualiNoMiss", "TiiTDITDDIs", "i", call_Cpp_M_InfoQualiNoMiss},
    {"Cpp_M_InfoQualiValid_ST", "MiixxSD", "i", call_Cpp_M_InfoQualiValid_ST},
    {"Cpp_M_InsertMissingDbl", "DiiSiD", "i", call_Cpp_M_InsertMissingDbl},
    {"Cpp_M_InsertMissingLng", "IiiSiI", "i", call_Cpp_M_InsertMissingLng},
    {"Cpp_M_Inverse", "Sii", "i", call_Cpp_M_Inverse},
    {"Cpp_M_InverseG2", "DidD", "i", call_Cpp_M_InverseG2},
    {"Cpp_M_InverseG2Selective", "DiIdDs", "i", call_Cpp_M_InverseG2Selective},
    {"Cpp_M_InverseG2_ST", "MidM", "i", call_Cpp_M_InverseG2_ST},
    {"Cpp_M_IsBinaryDbl_ST", "Ms", "s", call_Cpp_M_IsBinaryDbl_ST},
    {"Cpp_M_IsLong_ST", "Mii", "s", call_Cpp_M_IsLong_ST},
    {"Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags", "Di", "s", call_Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags},
    {"Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T", "Hi", "s", call_Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T},
    {"Cpp_M_IsPositive", "DiiSs", "s", call_Cpp_M_IsPositive},
    {"Cpp_M_IsPositive_ST", "MiiSs", "s", call_Cpp_M_IsPositive_ST},
    {"Cpp_M_LogDeterminant", "Di", "d", call_Cpp_M_LogDeterminant},
    {"Cpp_M_MaxPosByRow", "DiiI", "i", call_Cpp_M_MaxPosByRow},
    {"Cpp_M_Mean2", "DiiDD", "i", call_Cpp_M_Mean2},
    {"Cpp_M_Mean3", "DiiD", "i", call_Cpp_M_Mean3},
    {"Cpp_M_MeanSPV", "HiiDD", "i", call_Cpp_M_MeanSPV},
    {"Cpp_M_MergeStringsByRow", "TiiT", "i", call_Cpp_M_MergeStringsByRow},
    {"Cpp_M_MinAll", "Dii", "d", call_Cpp_M_MinAll},
    {"Cpp_M_MinIgnoreMissing_ST", "Mii", "d", call_Cpp_M_MinIgnoreMissing_ST},
    {"Cpp_M_NbMissingSPV", "Hii", "i", call_Cpp_M_NbMissingSPV},
    {"Cpp_M_Norm2", "Dii", "d", call_Cpp_M_Norm2},
    {"Cpp_M_ProductABTrA_ST", "MiiMsM", "i", call_Cpp_M_ProductABTrA_ST},
    {"Cpp_M_ProductAB_ST", "MiiMiM", "i", call_Cpp_M_ProductAB_ST},
    {"Cpp_M_ProductATrB_ST", "MiiMiM", "i", call_Cpp_M_ProductATrB_ST},
    {"Cpp_M_ProductTrAALng", "IiiI", "i", call_Cpp_M_ProductTrAALng},
    {"Cpp_M_ProductTrABV", "DiiDiDD", "i", call_Cpp_M_ProductTrABV},
    {"Cpp_M_ProductTrAB_ST", "MiiMiM", "i", call_Cpp_M_ProductTrAB_ST},
    {"Cpp_M_ProductTrVSymV", "DiD", "d", call_Cpp_M_ProductTrVSymV},
    {"Cpp_M_RecodeDataWithCodes_ST", "MiiMiM", "i", call_Cpp_M_RecodeDataWithCodes_ST},
    {"Cpp_M_RemoveRowsStr2", "Tiiii", "i", call_Cpp_M_RemoveRowsStr2},
    {"Cpp_M_RemoveRowsWithMissing2", "DiiS", "i", call_Cpp_M_RemoveRowsWithMissing2},
    {"Cpp_M_ReplaceByMissing", "DiiIis", "i", call_Cpp_M_ReplaceByMissing},
    {"Cpp_M_ReplaceByMissingIfVal", "DiiIiis", "i", call_Cpp_M_ReplaceByMissingIfVal},
    {"Cpp_M_ReplaceCatByCodes", "TiiITD", "i", call_Cpp_M_ReplaceCatByCodes},
    {"Cpp_M_ReplaceCatByCodes_ST", "MiiITM", "i", call_Cpp_M_ReplaceCatByCodes_ST},
    {"Cpp_M_ReplaceMissingByStr_ST", "Miit", "i", call_Cpp_M_ReplaceMissingByStr_ST},
    {"Cpp_M_ReplaceMissingByVal_ST", "Miid", "i", call_Cpp_M_ReplaceMissingByVal_ST},
    {"Cpp_M_ReplaceStrByCodesSPV", "TiiITSiH", "i", call_Cpp_M_ReplaceStrByCodesSPV},
    {"Cpp_M_ReplaceStrByCodes_ST", "MiiITSiM", "i", call_Cpp_M_ReplaceStrByCodes_ST},
    {"Cpp_M_RowSumNorm", "Dii", "d", call_Cpp_M_RowSumNorm},
    {"Cpp_M_SamplingRandomStratifiedByStr", "TiiiTTDDiIsI", "i", call_Cpp_M_SamplingRandomStratifiedByStr},
    {"Cpp_M_SetBooleanIfLng", "IiiiS", "i", call_Cpp_M_SetBooleanIfLng},
    {"Cpp_M_ShuffleDbl", "DiiDIsI", "i", call_Cpp_M_ShuffleDbl},
    {"Cpp_M_ShuffleDbl2", "DiiIsI", "i", call_Cpp_M_ShuffleDbl2},
    {"Cpp_M_ShuffleStr", "TiiTIsI", "i", call_Cpp_M_ShuffleStr},
    {"Cpp_M_ShuffleStr2", "TiiIsI", "i", call_Cpp_M_ShuffleStr2},
    {"Cpp_M_SquareRoot", "DiD", "i", call_Cpp_M_SquareRoot},
    {"Cpp_M_SquareRootAij", "DiiD", "i", call_Cpp_M_SquareRootAij},
    {"Cpp_M_SquareRootAij2", "Dii", "i", call_Cpp_M_SquareRootAij2},
    {"Cpp_M_StandardizeApply2", "DiiDD", "i", call_Cpp_M_StandardizeApply2},
    {"Cpp_M_StandardizeByGroup", "DiiIiss", "i", call_Cpp_M_StandardizeByGroup},
    {"Cpp_M_SubstractFirstCol2", "Dii", "i", call_Cpp_M_SubstractFirstCol2},
    {"Cpp_M_SumBySquareCols", "DiiD", "i", call_Cpp_M_SumBySquareCols},
    {"Cpp_M_SumBySquareRows", "DiiD", "i", call_Cpp_M_SumBySquareRows},
    {"Cpp_M_Sums1As2B_ST", "MiiMddM", "i", call_Cpp_M_Sums1As2B_ST},
    {"Cpp_MatToVect", "DiiD", "i", call_Cpp_MatToVect},
    {"Cpp_MatToVect_NoMissing", "DiiDDD", "i", call_Cpp_MatToVect_NoMissing},
    {"Cpp_MultiplyByVal", "Diid", "i", call_Cpp_MultiplyByVal},
    {"Cpp_NIPALS", "iiDDdidd", "i", call_Cpp_NIPALS},
    {"Cpp_Random01", "IsI", "d", call_Cpp_Random01},
    {"Cpp_Random1toNDbl", "DisISI", "i", call_Cpp_Random1toNDbl},
    {"Cpp_Random1toNLong", "IisISI", "i", call_Cpp_Random1toNLong},
    {"Cpp_RandomAtoBDbl", "DiisISI", "i", call_Cpp_RandomAtoBDbl},
    {"Cpp_RandomAtoBLng", "IiisISI", "i", call_Cpp_RandomAtoBLng},
    {"Cpp_ReOrderCorrelations", "DiiTDI", "i", call_Cpp_ReOrderCorrelations},
    {"Cpp_RemoveRowsWithMissingOniMissing", "DiiSD", "i", call_Cpp_RemoveRowsWithMissingOniMissing},
    {"Cpp_RemoveRowsWithMissingOniMissingStr", "TiiST", "i", call_Cpp_RemoveRowsWithMissingOniMissingStr},
    {"Cpp_ReplaceMissingInContengencyByExp_ST", "Mi", "i", call_Cpp_ReplaceMissingInContengencyByExp_ST},
    {"Cpp_SortApply2Bool", "SiiD", "i", call_Cpp_SortApply2Bool},
    {"Cpp_SortApply2_ST", "MiiD", "i", call_Cpp_SortApply2_ST},
    {"Cpp_SortQDbl_ST", "MiiiiDDiss", "i", call_Cpp_SortQDbl_ST},
    {"Cpp_SortQLng_ST", "AiiiiIIiss", "i", call_Cpp_SortQLng_ST},
    {"Cpp_SortQMatrixCol", "Diiiiis", "i", call_Cpp_SortQMatrixCol},
    {"Cpp_SortQMatrixColLng", "Iiiiiis", "i", call_Cpp_SortQMatrixColLng},
    {"Cpp_SortQMatrixColStr", "Tiiiiis", "i", call_Cpp_SortQMatrixColStr},
    {"Cpp_SortQStr_ST", "MiiiiDTiss", "i", call_Cpp_SortQStr_ST},
    {"Cpp_SortQVector2Str", "TiiisI", "i", call_Cpp_SortQVector2Str},
    {"Cpp_SumMat", "DDiiD", "i", call_Cpp_SumMat},
    {"Cpp_Test", "M", "d", call_Cpp_Test},
    {"Cpp_TestMemory", "IIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIII", "i", call_Cpp_TestMemory},
    {"Cpp_TriangularQFindAB", "dddddDD", "i", call_Cpp_TriangularQFindAB},
    {"Cpp_VMergeTablesDblSPV", "HiiDiiD", "i", call_Cpp_VMergeTablesDblSPV},
    {"Cpp_V_CheckDateInterval", "DiiD", "i", call_Cpp_V_CheckDateInterval},
    {"Cpp_V_CleanVectDbl2", "DiI", "i", call_Cpp_V_CleanVectDbl2},
    {"Cpp_V_CleanVectDblW2", "DiDI", "i", call_Cpp_V_CleanVectDblW2},
    {"Cpp_V_ConvertBinaryTo01Dbl", "Di", "i", call_Cpp_V_ConvertBinaryTo01Dbl},
    {"Cpp_V_CopyDoubleToLong", "DiI", "i", call_Cpp_V_CopyDoubleToLong},
    {"Cpp_V_CopyLongToDouble", "IiD", "i", call_Cpp_V_CopyLongToDouble},
    {"Cpp_V_Correl2W", "DiDD", "d", call_Cpp_V_Correl2W},
    {"Cpp_V_CuSum", "DiD", "i", call_Cpp_V_CuSum},
    {"Cpp_V_DiffSqStart", "DiDi", "d", call_Cpp_V_DiffSqStart},
    {"Cpp_V_DuplicateBool", "SiiiiiSiiii", "i", call_Cpp_V_DuplicateBool},
    {"Cpp_V_DuplicateDbl_ST", "AiiiAii", "i", call_Cpp_V_DuplicateDbl_ST},
    {"Cpp_V_DuplicateLng_ST", "AiiiAii", "i", call_Cpp_V_DuplicateLng_ST},
    {"Cpp_V_DuplicateStr_ST", "AiiiAii", "i", call_Cpp_V_DuplicateStr_ST},
    {"Cpp_V_FindLng", "Iii", "s", call_Cpp_V_FindLng},
    {"Cpp_V_FindStr", "Tit", "s", call_Cpp_V_FindStr},
    {"Cpp_V_GMeanGSD", "DiSDDD", "i", call_Cpp_V_GMeanGSD},
    {"Cpp_V_Gauss_ST", "MiC", "i", call_Cpp_V_Gauss_ST},
    {"Cpp_V_HarmonicMean", "DiSD", "d", call_Cpp_V_HarmonicMean},
    {"Cpp_V_InsertValueLow", "Dids", "i", call_Cpp_V_InsertValueLow},
    {"Cpp_V_InsertValueUp", "Dids", "i", call_Cpp_V_InsertValueUp},
    {"Cpp_V_IsBinaryDbl", "Dis", "s", call_Cpp_V_IsBinaryDbl},
    {"Cpp_V_IsBinaryDblXY", "Didds", "s", call_Cpp_V_IsBinaryDblXY},
    {"Cpp_V_IsWeightsAndAll1_ST", "AiS", "s", call_Cpp_V_IsWeightsAndAll1_ST},
    {"Cpp_V_IsWeights_ST", "Ai", "s", call_Cpp_V_IsWeights_ST},
    {"Cpp_V_Max2Lng_ST", "Ai", "d", call_Cpp_V_Max2Lng_ST},
    {"Cpp_V_Max2_ST", "Ai", "d", call_Cpp_V_Max2_ST},
    {"Cpp_V_MeanAbsDev", "DidSD", "d", call_Cpp_V_MeanAbsDev},
    {"Cpp_V_MeanStdev2", "DisDD", "i", call_Cpp_V_MeanStdev2},
    {"Cpp_V_MeanVarW2", "DiDDDss", "i", call_Cpp_V_MeanVarW2},
    {"Cpp_V_MeanW2", "DiD", "d", call_Cpp_V_MeanW2},
    {"Cpp_V_MedianAbsDev", "DidSD", "d", call_Cpp_V_MedianAbsDev},
    {"Cpp_V_MedianAbsDev2", "DiD", "d", call_Cpp_V_MedianAbsDev2},
    {"Cpp_V_MergeVectorsStr", "TiTtT", "i", call_Cpp_V_MergeVectorsStr},
    {"Cpp_V_Min3", "Mii", "d", call_Cpp_V_Min3},
    {"Cpp_V_MinIgnoreMissing", "Di", "d", call_Cpp_V_MinIgnoreMissing},
    {"Cpp_V_ModeW2", "TiDT", "i", call_Cpp_V_ModeW2},
    {"Cpp_V_NbDistinctStr", "Ti", "i", call_Cpp_V_NbDistinctStr},
    {"Cpp_V_NbTrue_ST", "Ai", "i", call_Cpp_V_NbTrue_ST},
    {"Cpp_V_PairwiseDeletion", "DDDiDDDI", "i", call_Cpp_V_PairwiseDeletion},
    {"Cpp_V_QuantileW2", "DiDd", "d", call_Cpp_V_QuantileW2},
    {"Cpp_V_Quantiles13", "DiD", "i", call_Cpp_V_Quantiles13},
    {"Cpp_V_RecodeToBinary", "TitD", "i", call_Cpp_V_RecodeToBinary},
    {"Cpp_V_Reverse2Bool", "Si", "i", call_Cpp_V_Reverse2Bool},
    {"Cpp_V_Reverse2Dbl", "Di", "i", call_Cpp_V_Reverse2Dbl},
    {"Cpp_V_Reverse2Lng", "Ii", "i", call_Cpp_V_Reverse2Lng},
    {"Cpp_V_SetToValueLng_ST", "Aii", "i", call_Cpp_V_SetToValueLng_ST},
    {"Cpp_V_SetToValue_ST", "Aid", "i", call_Cpp_V_SetToValue_ST},
    {"Cpp_V_Shuffle", "DiIsI", "i", call_Cpp_V_Shuffle},
    {"Cpp_V_ShuffleLng", "IiIsI", "i", call_Cpp_V_ShuffleLng},
    {"Cpp_V_Sum2Dbl_ST", "Ai", "d", call_Cpp_V_Sum2Dbl_ST},
    {"Cpp_V_Sum2Lng_ST", "Ai", "d", call_Cpp_V_Sum2Lng_ST},
    {"Cpp_V_SumW", "DiD", "d", call_Cpp_V_SumW},
    {"Cpp_V_SwapDbl", "DiD", "i", call_Cpp_V_SwapDbl},
    {"Cpp_V_SwapStr", "TiT", "i", call_Cpp_V_SwapStr},
    {"Cpp_V_TopBottom3Box", "DiDDDDDDD", "i", call_Cpp_V_TopBottom3Box},
    {"Cpp_V_TopBottom3BoxConditional", "DiDDdDDDDDD", "i", call_Cpp_V_TopBottom3BoxConditional},
    {"Cpp_V_Trim", "TissT", "i", call_Cpp_V_Trim},
    {"Cpp_V_Trim2", "Tiss", "i", call_Cpp_V_Trim2},
    {"Cpp_V_Var2", "Diss", "d", call_Cpp_V_Var2},
    {"Cpp_V_VarIf", "DiDds", "d", call_Cpp_V_VarIf},
    {"Cpp_V_VarIfSup0W", "DiDDs", "d", call_Cpp_V_VarIfSup0W},
    {"Cpp_V_VarIfW", "DiDDds", "d", call_Cpp_V_VarIfW},
    {"Cpp_V_Winsorize2", "Didd", "i", call_Cpp_V_Winsorize2},
    {"Cpp_V_ZScores", "DisDDD", "i", call_Cpp_V_ZScores},
    {"Cpp_VectToMat", "DDiiD", "i", call_Cpp_VectToMat},
    {"Cpp_WriteMatrixDbl", "Diil", "v", call_Cpp_WriteMatrixDbl},
    {"Cpp_WriteMatrixLng", "Iiil", "v", call_Cpp_WriteMatrixLng},
    {"Cpp_WriteMatrixStr", "Tiil", "i", call_Cpp_WriteMatrixStr},
    {"Cpp_set_rand_algo", "i", "i", call_Cpp_set_rand_algo},
    {"ExtractBSTR", "A", "T", call_ExtractBSTR},
    {"Increase1Col", "t", "t", call_Increase1Col},
    {"KORVEL_Version", "", "i", call_KORVEL_Version},
    {"NewtonRaphson", "DiIDDdDDsd", "i", call_NewtonRaphson},
    {"RunOLSBasic", "iiDDDissdDD", "i", call_RunOLSBasic},
    {"RunOLSBasic2", "iiDDDissdDDD", "i", call_RunOLSBasic2},
    {"RunOLSBasic2Lg", "iiDiDiDiDiDDDissdDDD", "i", call_RunOLSBasic2Lg},
    {"RunOLSBasic3", "iiDDDissdDDDDDD", "i", call_RunOLSBasic3},
    {"SimplifyRange", "t", "t", call_SimplifyRange},
    {"VB_BiplotTransData", "DDDiiiiDddDD", "i", call_VB_BiplotTransData},
    {"VB_BiplotTransDataSPV", "HDHiiiiDddDD", "i", call_VB_BiplotTransDataSPV},
    {"VB_BuildDisjunctiveTable", "TiiiITDDii", "i", call_VB_BuildDisjunctiveTable},
    {"VB_CheckTolerance", "DiiDDdssssDDD", "i", call_VB_CheckTolerance},
    {"VB_ComputeNewVar", "DiiDD", "i", call_VB_ComputeNewVar},
    {"VB_CopyMatrixColToMatrixCol", "DiiiDiiis", "i", call_VB_CopyMatrixColToMatrixCol},
    {"VB_CopyMatrixColToOneColMatStr", "TiiiT", "i", call_VB_CopyMatrixColToOneColMatStr},
    {"VB_CopyMatrixColToVector", "DiiiD", "i", call_VB_CopyMatrixColToVector},
    {"VB_CopyMatrixRowToMatrixRow", "DiiiDiiis", "i", call_VB_CopyMatrixRowToMatrixRow},
    {"VB_EstimateRowsWithMissingMean", "DiiSD", "i", call_VB_EstimateRowsWithMissingMean},
    {"VB_EstimateRowsWithMissingMeanPred", "DiDiiSD", "i", call_VB_EstimateRowsWithMissingMeanPred},
    {"VB_EstimateRowsWithMissingMeanSPV", "HiiSD", "i", call_VB_EstimateRowsWithMissingMeanSPV},
    {"VB_EstimateRowsWithMissingMode", "TiiD", "i", call_VB_EstimateRowsWithMissingMode},
    {"VB_EstimateRowsWithMissingModePred", "TiTiiD", "i", call_VB_EstimateRowsWithMissingModePred},
    {"VB_EstimateRowsWithMissingNN", "DiiSDiTiD", "i", call_VB_EstimateRowsWithMissingNN},
    {"VB_EstimateRowsWithMissingNNPred", "DiDiiSDDiTTiD", "i", call_VB_EstimateRowsWithMissingNNPred},
    {"VB_EstimateRowsWithMissingNNSPV", "HiiSDiTiD", "i", call_VB_EstimateRowsWithMissingNNSPV},
    {"VB_EstimateRowsWithMissingNNSPV2", "HiiSHiTiD", "i", call_VB_EstimateRowsWithMissingNNSPV2},
    {"VB_EstimateRowsWithMissingNNStr", "TiiSDiTiD", "i", call_VB_EstimateRowsWithMissingNNStr},
    {"VB_EstimateRowsWithMissingNNStrPred", "TiTiiSDDiTTiD", "i", call_VB_EstimateRowsWithMissingNNStrPred},
    {"VB_FilterEigen", "DisddidIID", "i", call_VB_FilterEigen},
    {"VB_GenerateIndicator", "Diii", "i", call_VB_GenerateIndicator},
    {"VB_GenerateRandomIndicator", "DiiIsI", "i", call_VB_GenerateRandomIndicator},
    {"VB_HMergeTableVect", "DiiDiDii", "i", call_VB_HMergeTableVect},
    {"VB_HMergeTableVect2", "DiiDi", "i", call_VB_HMergeTableVect2},
    {"VB_HMergeTablesBool", "SiiSiiS", "i", call_VB_HMergeTablesBool},
    {"VB_HMergeTablesBool2", "SiiSii", "i", call_VB_HMergeTablesBool2},
    {"VB_HMergeTablesDbl", "DiiDiiD", "i", call_VB_HMergeTablesDbl},
    {"VB_HMergeTablesDbl2", "DiiDii", "i", call_VB_HMergeTablesDbl2},
    {"VB_HMergeTablesDbl2SPV", "HiiDii", "i", call_VB_HMergeTablesDbl2SPV},
    {"VB_HMergeTablesDbl2SPV2", "HiiHii", "i", call_VB_HMergeTablesDbl2SPV2},
    {"VB_HMergeTablesLng2", "IiiIii", "i", call_VB_HMergeTablesLng2},
    {"VB_HMergeTablesStr", "TiiTiiT", "i", call_VB_HMergeTablesStr},
    {"VB_HMergeTablesStr2", "TiiTii", "i", call_VB_HMergeTablesStr2},
    {"VB_HMergeVectColDbl", "DiDiiiDi", "i", call_VB_HMergeVectColDbl},
    {"VB_HMergeVectTable", "DiDiiDii", "i", call_VB_HMergeVectTable},
    {"VB_HMergeVectors", "DiDiD", "i", call_VB_HMergeVectors},
    {"VB_InitVectorToFalse", "Si", "i", call_VB_InitVectorToFalse},
    {"VB_InitVectorToTrue", "Si", "i", call_VB_InitVectorToTrue},
    {"VB_IsMissingValueDbl", "d", "s", call_VB_IsMissingValueDbl},
    {"VB_IsMissingValueStr", "x", "s", call_VB_IsMissingValueStr},
    {"VB_MAE", "DDiDi", "d", call_VB_MAE},
    {"VB_MAPE", "DDiDi", "d", call_VB_MAPE},
    {"VB_MPE", "DDiDi", "d", call_VB_MPE},
    {"VB_M_APlusVal", "DiidD", "i", call_VB_M_APlusVal},
    {"VB_M_APlusVal2", "Diid", "i", call_VB_M_APlusVal2},
    {"VB_M_AllMissingRows", "DiiSS", "i", call_VB_M_AllMissingRows},
    {"VB_M_AllMissingRowsStr", "TiiSS", "i", call_VB_M_AllMissingRowsStr},
    {"VB_M_Binarize", "DiiD", "i", call_VB_M_Binarize},
    {"VB_M_Binarize2", "Dii", "i", call_VB_M_Binarize2},
    {"VB_M_Binarize2SPV", "Hii", "i", call_VB_M_Binarize2SPV},
    {"VB_M_Center", "DiiD", "i", call_VB_M_Center},
    {"VB_M_Center2", "Dii", "i", call_VB_M_Center2},
    {"VB_M_Center2SPV", "Hii", "i", call_VB_M_Center2SPV},
    {"VB_M_CenterW", "DiiDD", "i", call_VB_M_CenterW},
    {"VB_M_CenterW2", "DiiD", "i", call_VB_M_CenterW2},
    {"VB_M_CheckIfSimOrDissim", "Dii", "i", call_VB_M_CheckIfSimOrDissim},
    {"VB_M_CheckIfSimOrDissimSPV", "Hii", "i", call_VB_M_CheckIfSimOrDissimSPV},
    {"VB_M_CholDecomp", "DiD", "i", call_VB_M_CholDecomp},
    {"VB_M_CholDecompCleaned", "DiID", "i", call_VB_M_CholDecompCleaned},
    {"VB_M_CholDecompPrinc", "DiDIs", "i", call_VB_M_CholDecompPrinc},
    {"VB_M_CopyBlock", "DiiiiiiD", "i", call_VB_M_CopyBlock},
    {"VB_M_CopyBlockSPV", "HiiiiiiH", "i", call_VB_M_CopyBlockSPV},
    {"VB_M_CopyBlockStr", "TiiiiiiT", "i", call_VB_M_CopyBlockStr},
    {"VB_M_CopyResize", "DiiDii", "i", call_VB_M_CopyResize},
    {"VB_M_CopyResizeBool", "SiiSii", "i", call_VB_M_CopyResizeBool},
    {"VB_M_CopyResizeStr", "TiiTii", "i", call_VB_M_CopyResizeStr},
    {"VB_M_CopyToBigger", "DiiDii", "i", call_VB_M_CopyToBigger},
    {"VB_M_CorrMatFromCovMat", "DiDs", "i", call_VB_M_CorrMatFromCovMat},
    {"VB_M_CorrMatMat", "DiiDiDSDsssss", "i", call_VB_M_CorrMatMat},
    {"VB_M_CorrMatMatSPV", "HiiHiHSDsssss", "i", call_VB_M_CorrMatMatSPV},
    {"VB_M_CovCorr", "DiiDsSDsss", "i", call_VB_M_CovCorr},
    {"VB_M_CovCorrAndMeanStDevVar", "DiiDDDDsSDsssss", "i", call_VB_M_CovCorrAndMeanStDevVar},
    {"VB_M_CovCorrVAndMeanStDevVar", "DiiDDDDsSDsssss", "i", call_VB_M_CovCorrVAndMeanStDevVar},
    {"VB_M_Dedupe", "DiiID", "i", call_VB_M_Dedupe},
    {"VB_M_Determinant", "DiS", "d", call_VB_M_Determinant},
    {"VB_M_DeterminantCleaned", "DiIS", "d", call_VB_M_DeterminantCleaned},
    {"VB_M_DeterminantTriang", "DiS", "d", call_VB_M_DeterminantTriang},
    {"VB_M_DuplicateDbl", "DiiDiiii", "i", call_VB_M_DuplicateDbl},
    {"VB_M_DuplicateLng", "IiiIiiii", "i", call_VB_M_DuplicateLng},
    {"VB_M_DuplicateStr", "TiiTiiii", "i", call_VB_M_DuplicateStr},
    {"VB_M_DuplicateStrSPV", "HiiTiiii", "i", call_VB_M_DuplicateStrSPV},
    {"VB_M_Eigen", "DDDis", "i", call_VB_M_Eigen},
    {"VB_M_EuclidDist2", "DiiDDsi", "i", call_VB_M_EuclidDist2},
    {"VB_M_ExtractMatToMatByColDbl", "DiiiiD", "i", call_VB_M_ExtractMatToMatByColDbl},
    {"VB_M_ExtractMatToMatDbl", "DiiiiD", "i", call_VB_M_ExtractMatToMatDbl},
    {"VB_M_ExtractMatToMatDblSPV", "HiiiiD", "i", call_VB_M_ExtractMatToMatDblSPV},
    {"VB_M_ExtractMatToMatStr", "TiiiiT", "i", call_VB_M_ExtractMatToMatStr},
    {"VB_M_ExtractMatToMatStrSPV", "HiiiiT", "i", call_VB_M_ExtractMatToMatStrSPV},
    {"VB_M_FrobeniusNorm", "DiiD", "d", call_VB_M_FrobeniusNorm},
    {"VB_M_Gauss", "DiiD", "i", call_VB_M_Gauss},
    {"VB_M_GenerateRandom01", "DiiIsI", "i", call_VB_M_GenerateRandom01},
    {"VB_M_GroupBy", "DiiIiiID", "i", call_VB_M_GroupBy},
    {"VB_M_GroupByW", "DiiIiiIDD", "i", call_VB_M_GroupByW},
    {"VB_M_InfoQuali", "TiiTDITDDIs", "i", call_VB_M_InfoQuali},
    {"VB_M_InfoQuali2", "TiiiITDTDDIs", "i", call_VB_M_InfoQuali2},
    {"VB_M_InfoQualiValid", "TiiiITDSD", "i", call_VB_M_InfoQualiValid},
    {"VB_M_InvGeneralized", "DiDdI", "i", call_VB_M_InvGeneralized},
    {"VB_M_InvGeneralizedSym", "DiDdI", "i", call_VB_M_InvGeneralizedSym},
    {"VB_M_Inverse1", "DiDSd", "i", call_VB_M_Inverse1},
    {"VB_M_InverseTriang", "DisDd", "i", call_VB_M_InverseTriang},
    {"VB_M_IsColConstant", "Dii", "s", call_VB_M_IsColConstant},
    {"VB_M_IsColConstantSPV", "Hii", "s", call_VB_M_IsColConstantSPV},
    {"VB_M_IsDiagConstant", "Di", "s", call_VB_M_IsDiagConstant},
    {"VB_M_IsDisjTable", "DiiSI", "s", call_VB_M_IsDisjTable},
    {"VB_M_IsIn01", "Dii", "s", call_VB_M_IsIn01},
    {"VB_M_IsInIntervalSPV", "Hiiddss", "s", call_VB_M_IsInIntervalSPV},
    {"VB_M_IsLong", "Dii", "s", call_VB_M_IsLong},
    {"VB_M_IsSymmetric", "Di", "s", call_VB_M_IsSymmetric},
    {"VB_M_IsSymmetricSPV", "Hi", "s", call_VB_M_IsSymmetricSPV},
    {"VB_M_IsTriangular", "Dis", "i", call_VB_M_IsTriangular},
    {"VB_M_IsTriangularSPV", "His", "i", call_VB_M_IsTriangularSPV},
    {"VB_M_LUDecomp", "DiIDS", "i", call_VB_M_LUDecomp},
    {"VB_M_Log10Matrix", "DiiD", "i", call_VB_M_Log10Matrix},
    {"VB_M_LogMatrix", "DiiD", "i", call_VB_M_LogMatrix},
    {"VB_M_Max", "DiiD", "i", call_VB_M_Max},
    {"VB_M_Mean", "DiiDD", "i", call_VB_M_Mean},
    {"VB_M_MeanStDev", "DiiDDSDsss", "i", call_VB_M_MeanStDev},
    {"VB_M_MeanStDevByRow", "DiiDDDss", "i", call_VB_M_MeanStDevByRow},
    {"VB_M_MeanStDevVar", "DiiDDDSDss", "i", call_VB_M_MeanStDevVar},
    {"VB_M_MeanStDevVarOneInMat", "DiiDDDDss", "i", call_VB_M_MeanStDevVarOneInMat},
    {"VB_M_Min", "DiiD", "i", call_VB_M_Min},
    {"VB_M_MinMax", "DiiDDSs", "i", call_VB_M_MinMax},
    {"VB_M_MinMaxSPV", "HiiDDSs", "i", call_VB_M_MinMaxSPV},
    {"VB_M_MinMaxSPV_T", "HiiDDSs", "i", call_VB_M_MinMaxSPV_T},
    {"VB_M_MoveRow", "Diiii", "i", call_VB_M_MoveRow},
    {"VB_M_NbMissing", "DiiI", "i", call_VB_M_NbMissing},
    {"VB_M_NbMissing2", "Dii", "i", call_VB_M_NbMissing2},
    {"VB_M_NbMissing2Str", "Tii", "i", call_VB_M_NbMissing2Str},
    {"VB_M_NbMissingSPV_T", "Hii", "i", call_VB_M_NbMissingSPV_T},
    {"VB_M_NbMissingStr", "TiiI", "i", call_VB_M_NbMissingStr},
    {"VB_M_NbNonMissing", "DiiI", "i", call_VB_M_NbNonMissing},
    {"VB_M_Normalize", "DiiDS", "i", call_VB_M_Normalize},
    {"VB_M_NormalizeMatrix", "DiiDiDi", "i", call_VB_M_NormalizeMatrix},
    {"VB_M_PasteBlock", "DiiDiiii", "i", call_VB_M_PasteBlock},
    {"VB_M_PasteBlockLng", "IiiIiiii", "i", call_VB_M_PasteBlockLng},
    {"VB_M_ProductAB", "DiiDiD", "i", call_VB_M_ProductAB},
    {"VB_M_ProductABC", "DiiDiDiD", "i", call_VB_M_ProductABC},
    {"VB_M_ProductABLng", "IiiIiI", "i", call_VB_M_ProductABLng},
    {"VB_M_ProductABMissing", "DiiDiD", "i", call_VB_M_ProductABMissing},
    {"VB_M_ProductABTrA", "DiiDsD", "i", call_VB_M_ProductABTrA},
    {"VB_M_ProductADTrA", "DiiDD", "i", call_VB_M_ProductADTrA},
    {"VB_M_ProductADiag", "DiiDD", "i", call_VB_M_ProductADiag},
    {"VB_M_ProductADiagV", "DiiDD", "i", call_VB_M_ProductADiagV},
    {"VB_M_ProductADiagVB", "DiiDDiD", "i", call_VB_M_ProductADiagVB},
    {"VB_M_ProductADiagVTrA", "DiiDD", "i", call_VB_M_ProductADiagVTrA},
    {"VB_M_ProductADiagVTrB", "DiiDDiD", "i", call_VB_M_ProductADiagVTrB},
    {"VB_M_ProductASymV", "DiDD", "i", call_VB_M_ProductASymV},
    {"VB_M_ProductATrA", "DiiD", "i", call_VB_M_ProductATrA},
    {"VB_M_ProductATrB", "DiiDiD", "i", call_VB_M_ProductATrB},
    {"VB_M_ProductATrBC", "DiiDiDiD", "i", call_VB_M_ProductATrBC},
    {"VB_M_ProductAinvBTrA", "DiiDD", "i", call_VB_M_ProductAinvBTrA},
    {"VB_M_ProductBV", "DiiDD", "i", call_VB_M_ProductBV},
    {"VB_M_ProductByElement", "DiiDD", "i", call_VB_M_ProductByElement},
    {"VB_M_ProductDesignAB2", "DiIDiiDD", "i", call_VB_M_ProductDesignAB2},
    {"VB_M_ProductDiagV1ADiagV2", "DiDiDD", "i", call_VB_M_ProductDiagV1ADiagV2},
    {"VB_M_ProductDiagVA", "DiDiD", "i", call_VB_M_ProductDiagVA},
    {"VB_M_ProductHorizAB", "DiiDiDi", "i", call_VB_M_ProductHorizAB},
    {"VB_M_ProductHorizAB2", "DiIDi", "i", call_VB_M_ProductHorizAB2},
    {"VB_M_ProductTrAA", "DiiD", "i", call_VB_M_ProductTrAA},
    {"VB_M_ProductTrAB", "DiiDiD", "i", call_VB_M_ProductTrAB},
    {"VB_M_ProductTrABA", "DiiDsD", "i", call_VB_M_ProductTrABA},
    {"VB_M_ProductTrABC", "DiiDiDiD", "i", call_VB_M_ProductTrABC},
    {"VB_M_ProductTrADA", "DiiDD", "i", call_VB_M_ProductTrADA},
    {"VB_M_ProductTrADiag", "DiiDD", "i", call_VB_M_ProductTrADiag},
    {"VB_M_ProductTrADiagV", "DiiDD", "i", call_VB_M_ProductTrADiagV},
    {"VB_M_ProductTrADiagVA", "DiiDD", "i", call_VB_M_ProductTrADiagVA},
    {"VB_M_ProductTrAinvBA", "DiiDsD", "i", call_VB_M_ProductTrAinvBA},
    {"VB_M_ProductTrBV", "DiiDD", "i", call_VB_M_ProductTrBV},
    {"VB_M_ProductTrV1BV2", "DiDD", "d", call_VB_M_ProductTrV1BV2},
    {"VB_M_ProductTrVBV", "DiD", "d", call_VB_M_ProductTrVBV},
    {"VB_M_ProductTrVinvBV", "DiD", "d", call_VB_M_ProductTrVinvBV},
    {"VB_M_ProductVASym", "DiDD", "i", call_VB_M_ProductVASym},
    {"VB_M_ProductVB", "DiDiD", "i", call_VB_M_ProductVB},
    {"VB_M_ProductVTrB", "DiDiD", "i", call_VB_M_ProductVTrB},
    {"VB_M_Rank", "Dii", "i", call_VB_M_Rank},
    {"VB_M_Reduce", "DiiDss", "i", call_VB_M_Reduce},
    {"VB_M_Reduce2", "Diis", "i", call_VB_M_Reduce2},
    {"VB_M_ReduceW", "DiiDDss", "i", call_VB_M_ReduceW},
    {"VB_M_ReduceW2", "DiiDss", "i", call_VB_M_ReduceW2},
    {"VB_M_RemoveCol", "DiiiD", "i", call_VB_M_RemoveCol},
    {"VB_M_RemoveCols2", "Diiii", "i", call_VB_M_RemoveCols2},
    {"VB_M_RemoveColsInList", "DiiDiD", "i", call_VB_M_RemoveColsInList},
    {"VB_M_RemoveRow", "DiiiD", "i", call_VB_M_RemoveRow},
    {"VB_M_RemoveRows2", "Diiii", "i", call_VB_M_RemoveRows2},
    {"VB_M_RemoveRowsInList", "DiiIiD", "i", call_VB_M_RemoveRowsInList},
    {"VB_M_ReplaceMissingByStr", "Tiit", "i", call_VB_M_ReplaceMissingByStr},
    {"VB_M_ReplaceMissingByVal", "Diid", "i", call_VB_M_ReplaceMissingByVal},
    {"VB_M_ReplaceMissingByValSPV", "Hiid", "i", call_VB_M_ReplaceMissingByValSPV},
    {"VB_M_ReplaceStrByCodes", "TiiITSiD", "i", call_VB_M_ReplaceStrByCodes},
    {"VB_M_ReplaceStrByCodesBinary", "TiiSD", "i", call_VB_M_ReplaceStrByCodesBinary},
    {"VB_M_RescaleByVect", "DiiDDSD", "i", call_VB_M_RescaleByVect},
    {"VB_M_RescaleByVect2", "DiiDDS", "i", call_VB_M_RescaleByVect2},
    {"VB_M_SVDecomp", "DiiDDDiI", "i", call_VB_M_SVDecomp},
    {"VB_M_SVDecompSPV", "HiiDHHiI", "i", call_VB_M_SVDecompSPV},
    {"VB_M_SampleUserDefined", "TiiTDD", "i", call_VB_M_SampleUserDefined},
    {"VB_M_SampleUserDefinedSPV", "HiiHDD", "i", call_VB_M_SampleUserDefinedSPV},
    {"VB_M_SamplingRandomStratified", "TiiiTDIsI", "i", call_VB_M_SamplingRandomStratified},
    {"VB_M_SamplingRandomStratifiedSPV", "HiiiHDIsI", "i", call_VB_M_SamplingRandomStratifiedSPV},
    {"VB_M_SamplingSystematicCentered", "TiiiTD", "i", call_VB_M_SamplingSystematicCentered},
    {"VB_M_SamplingSystematicCenteredSPV", "HiiiHD", "i", call_VB_M_SamplingSystematicCenteredSPV},
    {"VB_M_SamplingSystematicRdStart", "TiiiTDIsI", "i", call_VB_M_SamplingSystematicRdStart},
    {"VB_M_SamplingSystematicRdStartSPV", "HiiiHDIsI", "i", call_VB_M_SamplingSystematicRdStartSPV},
    {"VB_M_SamplingWithReplacement", "TiiiTDIsI", "i", call_VB_M_SamplingWithReplacement},
    {"VB_M_ScalarsA", "DiidD", "i", call_VB_M_ScalarsA},
    {"VB_M_ScalarsA2", "Diid", "i", call_VB_M_ScalarsA2},
    {"VB_M_ScalarsTrA", "DiidD", "i", call_VB_M_ScalarsTrA},
    {"VB_M_SetWeightsToZeroForMissing", "DiiDi", "i", call_VB_M_SetWeightsToZeroForMissing},
    {"VB_M_Square", "Dii", "i", call_VB_M_Square},
    {"VB_M_SquaredColumns", "DiiD", "i", call_VB_M_SquaredColumns},
    {"VB_M_SquaredRows", "DiiD", "i", call_VB_M_SquaredRows},
    {"VB_M_Standardize", "DiiDDDDSDss", "i", call_VB_M_Standardize},
    {"VB_M_Standardize2", "Diis", "i", call_VB_M_Standardize2},
    {"VB_M_Standardize2SPV", "Hiis", "i", call_VB_M_Standardize2SPV},
    {"VB_M_Standardize3", "DiiDDss", "i", call_VB_M_Standardize3},
    {"VB_M_StandardizeByVect", "DiiDDD", "i", call_VB_M_StandardizeByVect},
    {"VB_M_StandardizeByVect2", "DiiDD", "i", call_VB_M_StandardizeByVect2},
    {"VB_M_StandardizeKnownMeansStDev", "DiiDDDDS", "i", call_VB_M_StandardizeKnownMeansStDev},
    {"VB_M_StandardizeMatrix", "DiiDiDi", "i", call_VB_M_StandardizeMatrix},
    {"VB_M_StandardizeW", "DiiDssD", "i", call_VB_M_StandardizeW},
    {"VB_M_StandardizeW2", "DiiDss", "i", call_VB_M_StandardizeW2},
    {"VB_M_StandardizeW3", "DiiDDDss", "i", call_VB_M_StandardizeW3},
    {"VB_M_SumByCols", "DiiD", "i", call_VB_M_SumByCols},
    {"VB_M_SumByRows", "DiiD", "i", call_VB_M_SumByRows},
    {"VB_M_SumOfElem", "Dii", "d", call_VB_M_SumOfElem},
    {"VB_M_Sums1As2B", "DiiDddD", "i", call_VB_M_Sums1As2B},
    {"VB_M_Sweep", "Dii", "i", call_VB_M_Sweep},
    {"VB_M_Symmetrize", "Dii", "i", call_VB_M_Symmetrize},
    {"VB_M_SymmetrizeSPV", "Hii", "i", call_VB_M_SymmetrizeSPV},
    {"VB_M_Trace", "Di", "d", call_VB_M_Trace},
    {"VB_M_TransformSimToDissim", "Di", "i", call_VB_M_TransformSimToDissim},
    {"VB_M_Transpose", "DiiD", "i", call_VB_M_Transpose},
    {"VB_M_Transpose2", "Dii", "i", call_VB_M_Transpose2},
    {"VB_M_Transpose2Lng", "Iii", "i", call_VB_M_Transpose2Lng},
    {"VB_M_Transpose2Str", "Tii", "i", call_VB_M_Transpose2Str},
    {"VB_M_TransposeLng", "IiiI", "i", call_VB_M_TransposeLng},
    {"VB_M_TransposeSPV", "HiiH", "i", call_VB_M_TransposeSPV},
    {"VB_M_TransposeStr", "TiiT", "i", call_VB_M_TransposeStr},
    {"VB_RMSE", "DiiDd", "d", call_VB_RMSE},
    {"VB_RemoveRowsWithMissing", "DiiiSD", "i", call_VB_RemoveRowsWithMissing},
    {"VB_RemoveRowsWithMissingBool", "SiiiSS", "i", call_VB_RemoveRowsWithMissingBool},
    {"VB_RemoveRowsWithMissingStr", "TiiiST", "i", call_VB_RemoveRowsWithMissingStr},
    {"VB_ReplaceMissingObsLabels", "TiSt", "i", call_VB_ReplaceMissingObsLabels},
    {"VB_SortApply", "DiiDD", "i", call_VB_SortApply},
    {"VB_SortApply2", "DiiD", "i", call_VB_SortApply2},
    {"VB_SortApply2Lng", "IiiD", "i", call_VB_SortApply2Lng},
    {"VB_SortApply2Str", "TiiD", "i", call_VB_SortApply2Str},
    {"VB_SortApplyLng", "IiiDI", "i", call_VB_SortApplyLng},
    {"VB_SortApplyStr", "TiiDT", "i", call_VB_SortApplyStr},
    {"VB_SortDataBy01", "DiiD", "i", call_VB_SortDataBy01},
    {"VB_SortDataBy01Bool", "SiiD", "i", call_VB_SortDataBy01Bool},
    {"VB_SortDataBy01Str", "TiiD", "i", call_VB_SortDataBy01Str},
    {"VB_SortMatrixSeqQDbl", "Dii", "i", call_VB_SortMatrixSeqQDbl},
    {"VB_SortMatrixSeqQLng", "Iii", "i", call_VB_SortMatrixSeqQLng},
    {"VB_SortMatrixSeqQP1toP2Dbl", "Diiii", "i", call_VB_SortMatrixSeqQP1toP2Dbl},
    {"VB_SortMatrixSeqQP1toP2Lng", "Iiiii", "i", call_VB_SortMatrixSeqQP1toP2Lng},
    {"VB_SortQBool", "SiiiiDSiss", "i", call_VB_SortQBool},
    {"VB_SortQByColDbl", "DiiiiDDiss", "i", call_VB_SortQByColDbl},
    {"VB_SortQDbl", "DiiiiDDiss", "i", call_VB_SortQDbl},
    {"VB_SortQDbl2", "DiiiiDDiss", "i", call_VB_SortQDbl2},
    {"VB_SortQLng", "IiiiiIIiss", "i", call_VB_SortQLng},
    {"VB_SortQStr", "TiiiiDTiss", "i", call_VB_SortQStr},
    {"VB_SortQVectorDbl", "Aiiis", "i", call_VB_SortQVectorDbl},
    {"VB_SortQVectorLng", "Aiiis", "i", call_VB_SortQVectorLng},
    {"VB_SortQVectorStr", "Tiiis", "i", call_VB_SortQVectorStr},
    {"VB_SummarizeAllMissing", "iSSIS", "i", call_VB_SummarizeAllMissing},
    {"VB_SummarizeMissing", "iISSSS", "i", call_VB_SummarizeMissing},
    {"VB_VMergeTablesDbl", "DiiDiiD", "i", call_VB_VMergeTablesDbl},
    {"VB_VMergeVectorsBool2", "SiSi", "i", call_VB_VMergeVectorsBool2},
    {"VB_VMergeVectorsDbl", "DiDiD", "i", call_VB_VMergeVectorsDbl},
    {"VB_VMergeVectorsDbl2", "DiDi", "i", call_VB_VMergeVectorsDbl2},
    {"VB_VMergeVectorsStr", "TiTiT", "i", call_VB_VMergeVectorsStr},
    {"VB_VMergeVectorsStr2", "TiTi", "i", call_VB_VMergeVectorsStr2},
    {"VB_V_DiffSq", "DiD", "d", call_VB_V_DiffSq},
    {"VB_V_DiffSqW", "DiDD", "d", call_VB_V_DiffSqW},
    {"VB_V_DuplicateDbl", "DiiiiiDiiii", "i", call_VB_V_DuplicateDbl},
    {"VB_V_DuplicateDblToLng", "DiiiiiIiiii", "i", call_VB_V_DuplicateDblToLng},
    {"VB_V_DuplicateLng", "IiiiiiIiiii", "i", call_VB_V_DuplicateLng},
    {"VB_V_DuplicateLngToDbl", "IiiiiiDiiii", "i", call_VB_V_DuplicateLngToDbl},
    {"VB_V_DuplicateStr", "TiiiiiTiiii", "i", call_VB_V_DuplicateStr},
    {"VB_V_ExtractDistinct", "DiDI", "i", call_VB_V_ExtractDistinct},
    {"VB_V_Freq", "DiDdd", "d", call_VB_V_Freq},
    {"VB_V_FreqLng", "IiDdd", "d", call_VB_V_FreqLng},
    {"VB_V_FreqStr", "TiDt", "d", call_VB_V_FreqStr},
    {"VB_V_Gauss", "DiD", "i", call_VB_V_Gauss},
    {"VB_V_GetMissingDbl", "DiSS", "i", call_VB_V_GetMissingDbl},
    {"VB_V_GetMissingStr", "TiSS", "i", call_VB_V_GetMissingStr},
    {"VB_V_GetPositionInMatNN", "iiII", "i", call_VB_V_GetPositionInMatNN},
    {"VB_V_GetPositionInMatNNm1o2", "iiII", "i", call_VB_V_GetPositionInMatNNm1o2},
    {"VB_V_GetRanksDbl", "DiD", "i", call_VB_V_GetRanksDbl},
    {"VB_V_GetRanksLng", "DiI", "i", call_VB_V_GetRanksLng},
    {"VB_V_GetRanksTiesDbl", "DisDDID", "i", call_VB_V_GetRanksTiesDbl},
    {"VB_V_GetRanksTiesDbl2", "DisDID", "i", call_VB_V_GetRanksTiesDbl2},
    {"VB_V_GetRanksTiesIntDbl", "DiDDID", "i", call_VB_V_GetRanksTiesIntDbl},
    {"VB_V_Is01", "Di", "s", call_VB_V_Is01},
    {"VB_V_IsCWeights", "Di", "s", call_VB_V_IsCWeights},
    {"VB_V_IsConstant", "Disi", "s", call_VB_V_IsConstant},
    {"VB_V_IsConstantBool", "Si", "s", call_VB_V_IsConstantBool},
    {"VB_V_IsConstantLng", "Iis", "s", call_VB_V_IsConstantLng},
    {"VB_V_IsConstantStr", "Tis", "s", call_VB_V_IsConstantStr},
    {"VB_V_IsInInterval", "Diddss", "s", call_VB_V_IsInInterval},
    {"VB_V_IsIndicator", "Di", "s", call_VB_V_IsIndicator},
    {"VB_V_IsIndicatorSPV", "Hii", "s", call_VB_V_IsIndicatorSPV},
    {"VB_V_IsPositive", "Dis", "s", call_VB_V_IsPositive},
    {"VB_V_IsSorted", "Dis", "s", call_VB_V_IsSorted},
    {"VB_V_IsWeights", "Di", "s", call_VB_V_IsWeights},
    {"VB_V_Max", "DiS", "d", call_VB_V_Max},
    {"VB_V_Max2", "Di", "d", call_VB_V_Max2},
    {"VB_V_Max2Lng", "Ii", "d", call_VB_V_Max2Lng},
    {"VB_V_MaxAndMaxPos", "DiI", "d", call_VB_V_MaxAndMaxPos},
    {"VB_V_MaxIf", "DiDd", "d", call_VB_V_MaxIf},
    {"VB_V_MaxInt", "IiS", "i", call_VB_V_MaxInt},
    {"VB_V_Mean", "DiSD", "d", call_VB_V_Mean},
    {"VB_V_Mean2", "Di", "d", call_VB_V_Mean2},
    {"VB_V_MeanAbs", "DiSD", "d", call_VB_V_MeanAbs},
    {"VB_V_MeanIf", "DiDd", "d", call_VB_V_MeanIf},
    {"VB_V_MeanIfW", "DiDDd", "d", call_VB_V_MeanIfW},
    {"VB_V_MeanStdev", "DiDDSDss", "i", call_VB_V_MeanStdev},
    {"VB_V_MeanVar", "DiDDSDss", "i", call_VB_V_MeanVar},
    {"VB_V_MeanVarSkewPKurtP", "DiDDDDDDDDSDss", "i", call_VB_V_MeanVarSkewPKurtP},
    {"VB_V_Min", "DiS", "d", call_VB_V_Min},
    {"VB_V_Min2", "Di", "d", call_VB_V_Min2},
    {"VB_V_Min2Lng", "Ii", "d", call_VB_V_Min2Lng},
    {"VB_V_MinAndMinPos", "DiIs", "d", call_VB_V_MinAndMinPos},
    {"VB_V_MinIf", "DiDd", "d", call_VB_V_MinIf},
    {"VB_V_MinMax", "DiDDS", "i", call_VB_V_MinMax},
    {"VB_V_MinMax2", "DiDDs", "i", call_VB_V_MinMax2},
    {"VB_V_MinMaxLng", "IiDDS", "i", call_VB_V_MinMaxLng},
    {"VB_V_MinMaxLng2", "IiDDs", "i", call_VB_V_MinMaxLng2},
    {"VB_V_Mode", "TiSDT", "i", call_VB_V_Mode},
    {"VB_V_ModeCatDbl", "Di", "d", call_VB_V_ModeCatDbl},
    {"VB_V_NbDistinct", "Di", "i", call_VB_V_NbDistinct},
    {"VB_V_NbDistinctLng", "Ii", "i", call_VB_V_NbDistinctLng},
    {"VB_V_NbIf", "Did", "d", call_VB_V_NbIf},
    {"VB_V_NbIfLng", "Iii", "d", call_VB_V_NbIfLng},
    {"VB_V_NbIfW", "DiDd", "d", call_VB_V_NbIfW},
    {"VB_V_NbMissing", "Di", "i", call_VB_V_NbMissing},
    {"VB_V_NbMissingStr", "Ti", "i", call_VB_V_NbMissingStr},
    {"VB_V_NbNonMissing", "Di", "i", call_VB_V_NbNonMissing},
    {"VB_V_NbTrue", "Si", "i", call_VB_V_NbTrue},
    {"VB_V_NbTrueFromTo", "Sii", "i", call_VB_V_NbTrueFromTo},
    {"VB_V_Norm", "Di", "i", call_VB_V_Norm},
    {"VB_V_NormToVal", "Did", "i", call_VB_V_NormToVal},
    {"VB_V_NormToValW", "DidD", "i", call_VB_V_NormToValW},
    {"VB_V_NormW", "DiD", "i", call_VB_V_NormW},
    {"VB_V_PlusVal", "DidS", "i", call_VB_V_PlusVal},
    {"VB_V_PlusVal2", "Did", "i", call_VB_V_PlusVal2},
    {"VB_V_Product1toNDbl", "Di", "d", call_VB_V_Product1toNDbl},
    {"VB_V_Product1toNLng", "Ii", "d", call_VB_V_Product1toNLng},
    {"VB_V_ProductHorizV1V2", "DiDiD", "i", call_VB_V_ProductHorizV1V2},
    {"VB_V_ProductHorizV1V22", "DIDi", "i", call_VB_V_ProductHorizV1V22},
    {"VB_V_ProductTrV1V2", "DiD", "d", call_VB_V_ProductTrV1V2},
    {"VB_V_ProductV1TrV2", "DiDD", "i", call_VB_V_ProductV1TrV2},
    {"VB_V_ProductV1V2", "DiDD", "i", call_VB_V_ProductV1V2},
    {"VB_V_ProductV1V22", "DiD", "i", call_VB_V_ProductV1V22},
    {"VB_V_Quantile", "Did", "d", call_VB_V_Quantile},
    {"VB_V_QuantileM", "DiSd", "d", call_VB_V_QuantileM},
    {"VB_V_QuantileMW", "DiSDd", "d", call_VB_V_QuantileMW},
    {"VB_V_QuantileW", "DiDd", "d", call_VB_V_QuantileW},
    {"VB_V_RemoveVal", "DiiD", "i", call_VB_V_RemoveVal},
    {"VB_V_ReplaceDoubles", "Ti", "i", call_VB_V_ReplaceDoubles},
    {"VB_V_ReplaceVal", "DiddD", "i", call_VB_V_ReplaceVal},
    {"VB_V_ReplaceVal2", "Didd", "i", call_VB_V_ReplaceVal2},
    {"VB_V_Rescale", "DiddSD", "i", call_VB_V_Rescale},
    {"VB_V_Rescale2", "DiddS", "i", call_VB_V_Rescale2},
    {"VB_V_ReverseBool", "SiS", "i", call_VB_V_ReverseBool},
    {"VB_V_ReverseDbl", "DiD", "i", call_VB_V_ReverseDbl},
    {"VB_V_Set1toNDbl", "Di", "i", call_VB_V_Set1toNDbl},
    {"VB_V_Set1toNLng", "Ii", "i", call_VB_V_Set1toNLng},
    {"VB_V_Set1toNStr", "Ti", "i", call_VB_V_Set1toNStr},
    {"VB_V_SetToValue", "Did", "i", call_VB_V_SetToValue},
    {"VB_V_SetToValueLng", "Iii", "i", call_VB_V_SetToValueLng},
    {"VB_V_SetToValueStr", "Tit", "i", call_VB_V_SetToValueStr},
    {"VB_V_Standardize", "DiSDsD", "i", call_VB_V_Standardize},
    {"VB_V_Standardize2", "DiSDs", "i", call_VB_V_Standardize2},
    {"VB_V_Stdev", "DiSDss", "d", call_VB_V_Stdev},
    {"VB_V_Sum", "DiSD", "d", call_VB_V_Sum},
    {"VB_V_Sum2Dbl", "Di", "d", call_VB_V_Sum2Dbl},
    {"VB_V_Sum2Lng", "Ii", "d", call_VB_V_Sum2Lng},
    {"VB_V_SumFromTo", "Diii", "d", call_VB_V_SumFromTo},
    {"VB_V_SumFromToLng", "Iiii", "i", call_VB_V_SumFromToLng},
    {"VB_V_SumIf", "DiDd", "d", call_VB_V_SumIf},
    {"VB_V_SumIfNotMissing", "DiD", "d", call_VB_V_SumIfNotMissing},
    {"VB_V_SumIfW", "DiDDd", "d", call_VB_V_SumIfW},
    {"VB_V_SumSq", "Di", "d", call_VB_V_SumSq},
    {"VB_V_SumSqW", "DiD", "d", call_VB_V_SumSqW},
    {"VB_V_TimeIntervalSize", "Dis", "d", call_VB_V_TimeIntervalSize},
    {"VB_V_V1GreaterThanMatCols", "DiDi", "s", call_VB_V_V1GreaterThanMatCols},
    {"VB_V_V1inferiorV2", "DiD", "s", call_VB_V_V1inferiorV2},
    {"VB_V_Var", "DiSDss", "d", call_VB_V_Var},
    {"dprint", "dl", "v", call_dprint},
    {"isQuali", "i", "s", call_isQuali},
    {"isQualiPure", "i", "s", call_isQualiPure},
};

const size_t korvel_function_count = 613;
