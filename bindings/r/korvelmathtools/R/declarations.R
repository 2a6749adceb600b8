# What the flat functions take and give. Made by tools/generate: edit the C headers instead.

.functions <- list(
CleanConstraintsAndInvert = list("i", list(
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("constraints", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("h", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("inverse", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
CleanConstraintsAndInvertTriang = list("i", list(
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("constraints", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("t", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("lowerFlag", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("inverse", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
ComputeCosines = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("result", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p)))
)),
Cpp_BuildDisjunctiveTable_ST = list("i", list(
    .p("data", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("info", "x", FALSE, FALSE, FALSE, 0, NULL, list(quote(category), 1)),
    .p("result", "M", TRUE, FALSE, FALSE, 0, NULL),
    .p("coding", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("firstCategoryOption", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_CheckForMarginalSums = list("i", list(
    .p("table", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("result", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("keptRows", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("keptCols", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("droppedRows", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("droppedCols", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(cols), 1))
)),
Cpp_CheckSameVectorStr = list("s", list(
    .p("a", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(nA), 1)),
    .p("nA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(nB), 1)),
    .p("nB", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_CheckUniqueCatByVar = list("i", list(
    .p("categories", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), quote(width))),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("width", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("categoryCounts", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), 1))
)),
Cpp_CopyDblToMVDbl = list("i", list(
    .p("m", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("mv", "M", TRUE, FALSE, FALSE, 0, NULL)
)),
Cpp_Extractij = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("i", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("j", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(j - i + 1), quote(cols)))
)),
Cpp_FilterOnSumOfSquares = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("threshold", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("kept", "S", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), 1))
)),
Cpp_GenerateIndicator_ST = list("i", list(
    .p("out", "A", TRUE, FALSE, FALSE, 0, "Double"),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("first", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("last", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_GenerateRandomIndicator_ST = list("i", list(
    .p("out", "A", TRUE, FALSE, FALSE, 0, "Double"),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("k", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_GetCompMatrices = list("i", list(
    .p("means", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(k), quote(column))),
    .p("k", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("column", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("significance", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(k), quote(k))),
    .p("sortResult", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("order", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(k), 1)),
    .p("labels", "T", TRUE, TRUE, FALSE, 0, NULL, list(quote(k), quote(k))),
    .p("groupCount", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("success", "S", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("descending", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_GetMaxCat = list("i", list(
    .p("data", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("categoryCounts", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), 1))
)),
Cpp_GetStatusMemory = list("i", list(
    .p("amount", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_KroneckerTensorProduct = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(r1), quote(c1))),
    .p("r1", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c1", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(r2), quote(c2))),
    .p("r2", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c2", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(r1 * r2), quote(c1 * c2)))
)),
Cpp_MV_ProductAsymBsym = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
Cpp_M_BoldCosines = list("i", list(
    .p("positions", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("table", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(max(positions))))
)),
Cpp_M_ConvertBinarytoDisjTable = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("result", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(2 * p)))
)),
Cpp_M_CopyBlockSPV2 = list("i", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("firstRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("firstCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "H", TRUE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_CopyBlockSPV2_T = list("i", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("firstRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("firstCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "H", TRUE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_CopyPasteBlock = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("firstRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("firstCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(yRows), quote(yCols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_CopyPasteBlockSPV = list("i", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("firstRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("firstCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_CopyPasteBlockStr = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("firstRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("firstCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(yRows), quote(yCols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_CopySymMatToVector = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("v", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n * (n + 1) / 2), 1))
)),
Cpp_M_CopyTabletoVectorByRowDbl = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("v", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
Cpp_M_CopyTabletoVectorByRowStr = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("v", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
Cpp_M_CopyVectorToSymMat = list("i", list(
    .p("v", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n * (n + 1) / 2), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
Cpp_M_CopyVectortoTableByRowDbl = list("i", list(
    .p("v", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
Cpp_M_CopyVectortoTableByRowStr = list("i", list(
    .p("v", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
Cpp_M_CorrMatFromCovMatSPV2_T = list("i", list(
    .p("table", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_CorrMatFromSymMat = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_CorrMatFromSymMatSPV = list("i", list(
    .p("x", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_CorrMatFromSymMatSPV_T = list("i", list(
    .p("x", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_CovCorr_ST = list("i", list(
    .p("x", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "M", TRUE, FALSE, FALSE, 0, NULL),
    .p("bCorr", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bUndefinedIsZero", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_CovMatFromCorrMat = list("i", list(
    .p("corr", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("vars", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
Cpp_M_CovMatFromSymMat = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_DeterminantCleanedSPV_T = list("d", list(
    .p("a", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("constraints", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("status", "S", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_M_DuplicateDblSPV = list("i", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(yRows), quote(yCols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_DuplicateDblSPV2 = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("y", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_DuplicateDblSPV2_T = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("y", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_DuplicateDblSPV3 = list("i", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_DuplicateDbl_ST = list("i", list(
    .p("x", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "M", TRUE, FALSE, FALSE, 0, NULL),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_DuplicateMVDblTriang_ST = list("i", list(
    .p("src", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("dst", "M", TRUE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_DuplicateStr_ST = list("i", list(
    .p("x", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "M", TRUE, FALSE, FALSE, 0, NULL),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_EigenSPV_T = list("i", list(
    .p("a", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("values", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("vectors", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("sortFlag", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_EuclidDistToVector = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("v", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1), list(quote(cols), 1, "bRows", -1)),
    .p("bRows", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1), list(quote(rows), 1, "bRows", -1))
)),
Cpp_M_ForwardDoolittle = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("h", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
Cpp_M_GetMaxDistToOrigin = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("d", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("row", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_M_GetMissingDbl = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("iMissingOut", "S", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), 1))
)),
Cpp_M_GetMissingDblSPV = list("i", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("iMissingOut", "S", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), 1))
)),
Cpp_M_GetMissingStr = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("iMissingOut", "S", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), 1))
)),
Cpp_M_HermiteCanonical = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("h", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
Cpp_M_IdentifyMissingInMat = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("marks", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
Cpp_M_IdentifyMissingInMatSPV = list("i", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("marks", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
Cpp_M_InfoQuali3 = list("i", list(
    .p("data", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("width", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("count", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("modes", "T", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("modeFrequencies", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("categories", "T", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(width))),
    .p("frequencies", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(width))),
    .p("weightedFrequencies", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(width))),
    .p("weights", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("total", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("sort", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_InfoQuali3_ST = list("i", list(
    .p("data", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("weights", "D", FALSE, FALSE, TRUE, 0, NULL, list(quote(data.nbrowsmax), 1)),
    .p("info", "x", TRUE, FALSE, FALSE, 0, NULL, list(quote(category), 1))
)),
Cpp_M_InfoQualiNoMiss = list("i", list(
    .p("data", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("modes", "T", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("modeFrequencies", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("categoryCounts", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("categories", "T", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(n))),
    .p("frequencies", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(n))),
    .p("weights", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("total", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("sort", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_InfoQualiValid_ST = list("i", list(
    .p("data", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("reference", "x", FALSE, FALSE, FALSE, 0, NULL, list(quote(category), 1)),
    .p("result", "x", TRUE, FALSE, FALSE, 0, NULL, list(quote(category), 1)),
    .p("newCategoryFound", "S", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("weights", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
Cpp_M_InsertMissingDbl = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("flags", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n + m), 1)),
    .p("m", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("result", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n + m), quote(p)))
)),
Cpp_M_InsertMissingLng = list("i", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("flags", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n + m), 1)),
    .p("m", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("result", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(n + m), quote(p)))
)),
Cpp_M_Inverse = list("i", list(
    .p("flags", "S", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_InverseG2 = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("tolerance", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("g", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
Cpp_M_InverseG2Selective = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("selected", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("tolerance", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("g", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("zeroOthers", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_InverseG2_ST = list("i", list(
    .p("a", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("tolerance", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("g", "M", TRUE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_IsBinaryDbl_ST = list("s", list(
    .p("x", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("skipMissing", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_IsLong_ST = list("s", list(
    .p("x", "M", FALSE, FALSE, FALSE, 0, NULL, list(quote(table), 1)),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags = list("s", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T = list("s", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_IsPositive = list("s", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("bStrict", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_IsPositive_ST = list("s", list(
    .p("x", "M", FALSE, FALSE, FALSE, 0, NULL, list(quote(table), 1)),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("bStrict", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_LogDeterminant = list("d", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_MaxPosByRow = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("positions", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), 1))
)),
Cpp_M_Mean2 = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("means", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1))
)),
Cpp_M_Mean3 = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("means", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1))
)),
Cpp_M_MeanSPV = list("i", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("means", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1))
)),
Cpp_M_MergeStringsByRow = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), 1))
)),
Cpp_M_MinAll = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_MinIgnoreMissing_ST = list("d", list(
    .p("x", "M", FALSE, FALSE, FALSE, 0, NULL, list(quote(table), 1)),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_NbMissingSPV = list("i", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_Norm2 = list("d", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_ProductABTrA_ST = list("i", list(
    .p("a", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("symmetric", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "M", TRUE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_ProductAB_ST = list("i", list(
    .p("a", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("q", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "M", TRUE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_ProductATrB_ST = list("i", list(
    .p("a", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("m", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "M", TRUE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_ProductTrAALng = list("i", list(
    .p("a", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(p)))
)),
Cpp_M_ProductTrABV = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(q))),
    .p("q", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("v", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(q), 1)),
    .p("y", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), 1))
)),
Cpp_M_ProductTrAB_ST = list("i", list(
    .p("a", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("q", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "M", TRUE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_ProductTrVSymV = list("d", list(
    .p("v", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("s", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
Cpp_M_RecodeDataWithCodes_ST = list("i", list(
    .p("data", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("codes", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("codeCount", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("result", "M", TRUE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_RemoveRowsStr2 = list("i", list(
    .p("x", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("first", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("last", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_RemoveRowsWithMissing2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("flags", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
Cpp_M_ReplaceByMissing = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("marks", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(markColumns))),
    .p("markColumns", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("wholeRow", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_ReplaceByMissingIfVal = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("marks", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(markColumns))),
    .p("markColumns", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("value", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("wholeRow", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_ReplaceCatByCodes = list("i", list(
    .p("data", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("categoryCounts", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("categories", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), quote(max(categoryCounts)))),
    .p("result", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p)))
)),
Cpp_M_ReplaceCatByCodes_ST = list("i", list(
    .p("data", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("categoryCounts", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("categories", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), quote(max(categoryCounts)))),
    .p("result", "M", TRUE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_ReplaceMissingByStr_ST = list("i", list(
    .p("x", "M", TRUE, FALSE, FALSE, 0, NULL, list(quote(table), 1)),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("val", "t", FALSE, FALSE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_M_ReplaceMissingByVal_ST = list("i", list(
    .p("x", "M", TRUE, FALSE, FALSE, 0, NULL, list(quote(table), 1)),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("val", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_ReplaceStrByCodesSPV = list("i", list(
    .p("data", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("categoryCounts", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("categories", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), quote(max(categoryCounts)))),
    .p("rowFlags", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("firstCode", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("result", "H", TRUE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_ReplaceStrByCodes_ST = list("i", list(
    .p("data", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("categoryCounts", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("categories", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), quote(max(categoryCounts)))),
    .p("rowFlags", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("firstCode", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("result", "M", TRUE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_RowSumNorm = list("d", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(m))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("m", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_SamplingRandomStratifiedByStr = list("i", list(
    .p("table", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("k", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("sample", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(k), quote(cols))),
    .p("strata", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("selected", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(k), 1)),
    .p("counts", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(nCounts), 1)),
    .p("nCounts", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_M_SetBooleanIfLng = list("i", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("value", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("flags", "S", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
Cpp_M_ShuffleDbl = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_M_ShuffleDbl2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_M_ShuffleStr = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_M_ShuffleStr2 = list("i", list(
    .p("x", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_M_SquareRoot = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("r", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
Cpp_M_SquareRootAij = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("y", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
Cpp_M_SquareRootAij2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
Cpp_M_StandardizeApply2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("means", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("sds", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(cols), 1))
)),
Cpp_M_StandardizeByGroup = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("groups", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("nGroups", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bStandardize", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_SubstractFirstCol2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_M_SumBySquareCols = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1))
)),
Cpp_M_SumBySquareRows = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), 1))
)),
Cpp_M_Sums1As2B_ST = list("i", list(
    .p("A", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("B", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("a", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "M", TRUE, FALSE, FALSE, 0, NULL)
)),
Cpp_MatToVect = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("v", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
Cpp_MatToVect_NoMissing = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("counts", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("emptyColumns", "D", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("vector", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(p)))
)),
Cpp_MultiplyByVal = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("s", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_NIPALS = list("i", list(
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("weights", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("tolerance", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("components", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("columnShare", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("tableShare", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_Random01 = list("d", list(
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_Random1toNDbl = list("i", list(
    .p("out", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bReset", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "S", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_Random1toNLong = list("i", list(
    .p("out", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bReset", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "S", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_RandomAtoBDbl = list("i", list(
    .p("out", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(b - a - 1), 1)),
    .p("a", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bReset", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "S", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_RandomAtoBLng = list("i", list(
    .p("out", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(b - a - 1), 1)),
    .p("a", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bReset", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "S", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_ReOrderCorrelations = list("i", list(
    .p("corr", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("method", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("labels", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("pValues", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("flags", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
Cpp_RemoveRowsWithMissingOniMissing = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("iMissing", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("result", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(p)))
)),
Cpp_RemoveRowsWithMissingOniMissingStr = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("iMissing", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("result", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p)))
)),
Cpp_ReplaceMissingInContengencyByExp_ST = list("i", list(
    .p("x", "M", TRUE, FALSE, FALSE, 0, NULL, list(quote(table), 1)),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_SortApply2Bool = list("i", list(
    .p("x", "S", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("order", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1))
)),
Cpp_SortApply2_ST = list("i", list(
    .p("x", "M", TRUE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("order", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1))
)),
Cpp_SortQDbl_ST = list("i", list(
    .p("x", "M", TRUE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("key", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("aux", "D", TRUE, FALSE, TRUE, 0, NULL, list(quote(rows), quote(auxCols))),
    .p("auxCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("bDesc", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bSortKey", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_SortQLng_ST = list("i", list(
    .p("x", "A", TRUE, FALSE, FALSE, 0, "Long"),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("key", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("aux", "I", TRUE, FALSE, TRUE, 0, NULL, list(quote(rows), quote(auxCols))),
    .p("auxCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("bDesc", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bSortKey", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_SortQMatrixCol = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("keyCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bDesc", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_SortQMatrixColLng = list("i", list(
    .p("x", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("keyCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bDesc", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_SortQMatrixColStr = list("i", list(
    .p("x", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("keyCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bDesc", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_SortQStr_ST = list("i", list(
    .p("x", "M", TRUE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("key", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("aux", "T", TRUE, FALSE, TRUE, 0, NULL, list(quote(rows), quote(auxCols))),
    .p("auxCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("bDesc", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bSortKey", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_SortQVector2Str = list("i", list(
    .p("x", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bDesc", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("index", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
Cpp_SumMat = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(p)))
)),
Cpp_Test = list("d", list(
    .p("record", "M", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_TestMemory = list("i", list(
    .p("rows1", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols1", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("rows2", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols2", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("rows3", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols3", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("rows4", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols4", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("rows5", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols5", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("rows6", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols6", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("rows7", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols7", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("rows8", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols8", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("rows9", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols9", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("rows10", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols10", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("rows11", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols11", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("rows12", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols12", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("rows13", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols13", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("rows14", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols14", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("rows15", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols15", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("rows16", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols16", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("rows17", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols17", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("rows18", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols18", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("rows19", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols19", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("rows20", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("cols20", "I", FALSE, FALSE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_TriangularQFindAB = list("i", list(
    .p("q1", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("mode", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("q2", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("p1", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("p2", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("a", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("b", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_VMergeTablesDblSPV = list("i", list(
    .p("a", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rowsA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rowsB), quote(colsB))),
    .p("rowsB", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsB", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rowsA + rowsB), quote(max(colsA, colsB))))
)),
Cpp_V_CheckDateInterval = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("kind", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("d", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_V_CleanVectDbl2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("m", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_V_CleanVectDblW2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("m", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_V_ConvertBinaryTo01Dbl = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_CopyDoubleToLong = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
Cpp_V_CopyLongToDouble = list("i", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
Cpp_V_Correl2W = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
Cpp_V_CuSum = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
Cpp_V_DiffSqStart = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("start", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_DuplicateBool = list("i", list(
    .p("x", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "S", TRUE, FALSE, FALSE, 0, NULL, list(quote(yRows), quote(yCols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCol", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_DuplicateDbl_ST = list("i", list(
    .p("x", "A", FALSE, FALSE, FALSE, 0, "Double"),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "A", TRUE, FALSE, FALSE, 0, "Double"),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCol", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_DuplicateLng_ST = list("i", list(
    .p("x", "A", FALSE, FALSE, FALSE, 0, "Long"),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "A", TRUE, FALSE, FALSE, 0, "Long"),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCol", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_DuplicateStr_ST = list("i", list(
    .p("x", "A", FALSE, FALSE, FALSE, 0, "String"),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "A", TRUE, FALSE, FALSE, 0, "String"),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCol", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_FindLng = list("s", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("val", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_FindStr = list("s", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("val", "t", FALSE, FALSE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_V_GMeanGSD = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("gmean", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("gsd", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_V_Gauss_ST = list("i", list(
    .p("a", "M", TRUE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "C", TRUE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_HarmonicMean = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
Cpp_V_InsertValueLow = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("val", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("bSort", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_InsertValueUp = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("val", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("bSort", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_IsBinaryDbl = list("s", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("skipMissing", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_IsBinaryDblXY = list("s", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("a", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("skipMissing", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_IsWeightsAndAll1_ST = list("s", list(
    .p("x", "A", FALSE, FALSE, FALSE, 0, "Double"),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bAll1", "S", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_V_IsWeights_ST = list("s", list(
    .p("x", "A", FALSE, FALSE, FALSE, 0, "Double"),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_Max2Lng_ST = list("d", list(
    .p("sa", "A", FALSE, FALSE, FALSE, 0, "Long"),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_Max2_ST = list("d", list(
    .p("sa", "A", FALSE, FALSE, FALSE, 0, "Double"),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_MeanAbsDev = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("centre", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
Cpp_V_MeanStdev2 = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("mean", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("sd", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_V_MeanVarW2 = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("mean", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("var", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_MeanW2 = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
Cpp_V_MedianAbsDev = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("centre", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
Cpp_V_MedianAbsDev2 = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("centre", "D", TRUE, FALSE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_V_MergeVectorsStr = list("i", list(
    .p("a", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("sep", "t", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("out", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
Cpp_V_Min3 = list("d", list(
    .p("record", "M", FALSE, FALSE, FALSE, 0, NULL),
    .p("nRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("nCols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_MinIgnoreMissing = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_ModeW2 = list("i", list(
    .p("labels", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("mode", "T", TRUE, FALSE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_V_NbDistinctStr = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_NbTrue_ST = list("i", list(
    .p("x", "A", FALSE, FALSE, FALSE, 0, "Boolean"),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_PairwiseDeletion = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("z", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("xOut", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n + 1), 1)),
    .p("yOut", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n + 1), 1)),
    .p("zOut", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n + 1), 1)),
    .p("count", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_V_QuantileW2 = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("q", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_Quantiles13 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(13, 1))
)),
Cpp_V_RecodeToBinary = list("i", list(
    .p("column", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("value", "t", FALSE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("result", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
Cpp_V_Reverse2Bool = list("i", list(
    .p("x", "S", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_Reverse2Dbl = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_Reverse2Lng = list("i", list(
    .p("x", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_SetToValueLng_ST = list("i", list(
    .p("x", "A", TRUE, FALSE, FALSE, 0, "Long"),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("value", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_SetToValue_ST = list("i", list(
    .p("x", "A", TRUE, FALSE, FALSE, 0, "Double"),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("value", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_Shuffle = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_V_ShuffleLng = list("i", list(
    .p("x", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_V_Sum2Dbl_ST = list("d", list(
    .p("sa", "A", FALSE, FALSE, FALSE, 0, "Double"),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_Sum2Lng_ST = list("d", list(
    .p("sa", "A", FALSE, FALSE, FALSE, 0, "Long"),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_SumW = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
Cpp_V_SwapDbl = list("i", list(
    .p("a", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
Cpp_V_SwapStr = list("i", list(
    .p("a", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
Cpp_V_TopBottom3Box = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("top1", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("bottom1", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("top2", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("bottom2", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("top3", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("bottom3", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_V_TopBottom3BoxConditional = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("group", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("groupValue", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("top1", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("bottom1", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("top2", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("bottom2", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("top3", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("bottom3", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
Cpp_V_Trim = list("i", list(
    .p("labels", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bLeft", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bRight", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
Cpp_V_Trim2 = list("i", list(
    .p("labels", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bLeft", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bRight", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_Var2 = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_VarIf = list("d", list(
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("g", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("val", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_VarIfSup0W = list("d", list(
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("g", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_VarIfW = list("d", list(
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("g", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("val", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_Winsorize2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("qLow", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("qHigh", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_V_ZScores = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bRobust", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("centre", "D", TRUE, FALSE, TRUE, 0, NULL, list(1, 1)),
    .p("scale", "D", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
Cpp_VectToMat = list("i", list(
    .p("v", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("pattern", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
Cpp_WriteMatrixDbl = list("v", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("name", "l", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_WriteMatrixLng = list("v", list(
    .p("a", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("name", "l", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_WriteMatrixStr = list("i", list(
    .p("a", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("name", "l", FALSE, FALSE, FALSE, 0, NULL)
)),
Cpp_set_rand_algo = list("i", list(
    .p("algorithm", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
ExtractBSTR = list("T", list(
    .p("sa", "A", FALSE, FALSE, TRUE, 0, "String")
)),
Increase1Col = list("t", list(
    .p("column", "t", FALSE, FALSE, FALSE, 0, NULL, list(1, 1))
)),
KORVEL_Version = list("i", list(
)),
NewtonRaphson = list("i", list(
    .p("parameters", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("constraints", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("gradient", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("hessian", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("tolerance", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("standardErrors", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("inverse", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("limitStep", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("stepLimit", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
RunOLSBasic = list("i", list(
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("weights", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("degree", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("interactions", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("noConstant", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("tolerance", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("coefficients", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p * degree + 1), 1), list(quote(p * degree + p * (p - 1) / 2 + 1), 1, "interactions", -1)),
    .p("fitted", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
RunOLSBasic2 = list("i", list(
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("weights", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("degree", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("interactions", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("noConstant", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("tolerance", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("coefficients", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p * degree + 1), 1), list(quote(p * degree + p * (p - 1) / 2 + 1), 1, "interactions", -1)),
    .p("standardErrors", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p * degree + 1), 1), list(quote(p * degree + p * (p - 1) / 2 + 1), 1, "interactions", -1)),
    .p("fitted", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
RunOLSBasic2Lg = list("i", list(
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p1", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x1", "D", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), quote(p1))),
    .p("p2", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x2", "D", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), quote(p2))),
    .p("p3", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x3", "D", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), quote(p3))),
    .p("p4", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x4", "D", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), quote(p4))),
    .p("p5", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x5", "D", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), quote(p5))),
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("weights", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("degree", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("interactions", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("noConstant", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("tolerance", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("coefficients", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote((p1 + p2 + p3 + p4 + p5) * degree + 1), 1), list(quote((p1 + p2 + p3 + p4 + p5) * degree + (p1 + p2 + p3 + p4 + p5) * (p1 + p2 + p3 + p4 + p5 - 1) / 2 + 1), 1, "interactions", -1)),
    .p("standardErrors", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote((p1 + p2 + p3 + p4 + p5) * degree + 1), 1), list(quote((p1 + p2 + p3 + p4 + p5) * degree + (p1 + p2 + p3 + p4 + p5) * (p1 + p2 + p3 + p4 + p5 - 1) / 2 + 1), 1, "interactions", -1)),
    .p("fitted", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
RunOLSBasic3 = list("i", list(
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("weights", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("degree", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("interactions", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("noConstant", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("tolerance", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("coefficients", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p * degree + 1), 1), list(quote(p * degree + p * (p - 1) / 2 + 1), 1, "interactions", -1)),
    .p("standardErrors", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p * degree + 1), 1), list(quote(p * degree + p * (p - 1) / 2 + 1), 1, "interactions", -1)),
    .p("fitted", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("sweptMatrix", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p * degree + 1), quote(p * degree + 1)), list(quote(p * degree + p * (p - 1) / 2 + 1), quote(p * degree + p * (p - 1) / 2 + 1), "interactions", -1)),
    .p("means", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p * degree + 1), 1), list(quote(p * degree + p * (p - 1) / 2 + 1), 1, "interactions", -1)),
    .p("standardDeviations", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p * degree + 1), 1), list(quote(p * degree + p * (p - 1) / 2 + 1), 1, "interactions", -1))
)),
SimplifyRange = list("t", list(
    .p("value", "t", FALSE, FALSE, FALSE, 0, NULL, list(1, 1))
)),
VB_BiplotTransData = list("i", list(
    .p("rowCoordinates", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(axes))),
    .p("extraRowCoordinates", "D", FALSE, FALSE, TRUE, 0, NULL, list(quote(extraRows), quote(axes))),
    .p("columnCoordinates", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(columns), quote(axes))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("extraRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("columns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("axes", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("singularValues", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(axes), 1)),
    .p("scale", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("alpha", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("rowResult", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows + extraRows), quote(axes))),
    .p("columnResult", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(columns), quote(axes)))
)),
VB_BiplotTransDataSPV = list("i", list(
    .p("rowCoordinates", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("extraRowCoordinates", "D", FALSE, FALSE, TRUE, 0, NULL, list(quote(extraRows), quote(axes))),
    .p("columnCoordinates", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("extraRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("columns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("axes", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("singularValues", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(axes), 1)),
    .p("scale", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("alpha", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("rowResult", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows + extraRows), quote(axes))),
    .p("columnResult", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(columns), quote(axes)))
)),
VB_BuildDisjunctiveTable = list("i", list(
    .p("data", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("totalColumns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("categoryCounts", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("categories", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), quote(max(categoryCounts)))),
    .p("frequencies", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), quote(max(categoryCounts)))),
    .p("result", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(totalColumns))),
    .p("coding", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("firstCategoryOption", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_CheckTolerance = list("i", list(
    .p("r", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), quote(p))),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("groupCount", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("groupSelection", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(groupCount), 1)),
    .p("groupNumbers", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("tolerance", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("duplicates", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("entered", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("reverse", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("skipGroup", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("status", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("tolerances", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("inflationFactors", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(p), 1))
)),
VB_ComputeNewVar = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("coefficients", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), 1))
)),
VB_CopyMatrixColToMatrixCol = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(yRows), quote(yCols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("colTo", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bReset", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_CopyMatrixColToOneColMatStr = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "T", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), 1))
)),
VB_CopyMatrixColToVector = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), 1))
)),
VB_CopyMatrixRowToMatrixRow = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(yRows), quote(yCols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("rowTo", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bReset", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_EstimateRowsWithMissingMean = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("rowFlags", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_EstimateRowsWithMissingMeanPred = list("i", list(
    .p("statistics", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(p))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("rowFlags", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_EstimateRowsWithMissingMeanSPV = list("i", list(
    .p("x", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("rowFlags", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_EstimateRowsWithMissingMode = list("i", list(
    .p("x", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_EstimateRowsWithMissingModePred = list("i", list(
    .p("statistics", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(p))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_EstimateRowsWithMissingNN = list("i", list(
    .p("primary", "D", TRUE, FALSE, TRUE, 0, NULL, list(quote(n), quote(primaryColumns))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("primaryColumns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("rowFlags", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("second", "D", TRUE, FALSE, TRUE, 0, NULL, list(quote(n), quote(secondColumns))),
    .p("secondColumns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("third", "T", TRUE, FALSE, TRUE, 0, NULL, list(quote(n), quote(thirdColumns))),
    .p("thirdColumns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_EstimateRowsWithMissingNNPred = list("i", list(
    .p("primaryStatistics", "D", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), quote(primaryColumns))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("primary", "D", TRUE, FALSE, TRUE, 0, NULL, list(quote(rows), quote(primaryColumns))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("primaryColumns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("rowFlags", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("secondStatistics", "D", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), quote(secondColumns))),
    .p("second", "D", TRUE, FALSE, TRUE, 0, NULL, list(quote(rows), quote(secondColumns))),
    .p("secondColumns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("thirdStatistics", "T", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), quote(thirdColumns))),
    .p("third", "T", TRUE, FALSE, TRUE, 0, NULL, list(quote(rows), quote(thirdColumns))),
    .p("thirdColumns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_EstimateRowsWithMissingNNSPV = list("i", list(
    .p("primary", "H", TRUE, FALSE, TRUE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("primaryColumns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("rowFlags", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("second", "D", TRUE, FALSE, TRUE, 0, NULL, list(quote(n), quote(secondColumns))),
    .p("secondColumns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("third", "T", TRUE, FALSE, TRUE, 0, NULL, list(quote(n), quote(thirdColumns))),
    .p("thirdColumns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_EstimateRowsWithMissingNNSPV2 = list("i", list(
    .p("primary", "H", TRUE, FALSE, TRUE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("primaryColumns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("rowFlags", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("second", "H", TRUE, FALSE, TRUE, 0, NULL),
    .p("secondColumns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("third", "T", TRUE, FALSE, TRUE, 0, NULL, list(quote(n), quote(thirdColumns))),
    .p("thirdColumns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_EstimateRowsWithMissingNNStr = list("i", list(
    .p("primary", "T", TRUE, FALSE, TRUE, 0, NULL, list(quote(n), quote(primaryColumns))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("primaryColumns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("rowFlags", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("second", "D", TRUE, FALSE, TRUE, 0, NULL, list(quote(n), quote(secondColumns))),
    .p("secondColumns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("third", "T", TRUE, FALSE, TRUE, 0, NULL, list(quote(n), quote(thirdColumns))),
    .p("thirdColumns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_EstimateRowsWithMissingNNStrPred = list("i", list(
    .p("primaryStatistics", "T", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), quote(primaryColumns))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("primary", "T", TRUE, FALSE, TRUE, 0, NULL, list(quote(rows), quote(primaryColumns))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("primaryColumns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("rowFlags", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("secondStatistics", "D", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), quote(secondColumns))),
    .p("second", "D", TRUE, FALSE, TRUE, 0, NULL, list(quote(rows), quote(secondColumns))),
    .p("secondColumns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("thirdStatistics", "T", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), quote(thirdColumns))),
    .p("third", "T", TRUE, FALSE, TRUE, 0, NULL, list(quote(rows), quote(thirdColumns))),
    .p("thirdColumns", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_FilterEigen = list("i", list(
    .p("values", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("dropTail", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("threshold", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("cumulativePercent", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("maxCount", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("minValue", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("kept", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("retained", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("percents", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_GenerateIndicator = list("i", list(
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("first", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("last", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_GenerateRandomIndicator = list("i", list(
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("k", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_HMergeTableVect = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("v", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(outRows), quote(outCols))),
    .p("outRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("outCols", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
VB_HMergeTableVect2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols + 1))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("v", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_HMergeTablesBool = list("i", list(
    .p("a", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(rowsA), quote(colsA))),
    .p("rowsA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsA", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("b", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(rowsB), quote(colsB))),
    .p("rowsB", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsB", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("out", "S", TRUE, TRUE, FALSE, 0, NULL, list(quote(max(rowsA, rowsB)), quote(colsA + colsB)))
)),
VB_HMergeTablesBool2 = list("i", list(
    .p("a", "S", TRUE, FALSE, FALSE, 0, NULL, list(quote(rowsA), quote(colsA + colsB))),
    .p("rowsA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsA", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("b", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(rowsB), quote(colsB))),
    .p("rowsB", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsB", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
VB_HMergeTablesDbl = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rowsA), quote(colsA))),
    .p("rowsA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsA", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rowsB), quote(colsB))),
    .p("rowsB", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsB", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(max(rowsA, rowsB)), quote(colsA + colsB)))
)),
VB_HMergeTablesDbl2 = list("i", list(
    .p("a", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rowsA), quote(colsA + colsB))),
    .p("rowsA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsA", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rowsB), quote(colsB))),
    .p("rowsB", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsB", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
VB_HMergeTablesDbl2SPV = list("i", list(
    .p("a", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("rowsA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rowsB), quote(colsB))),
    .p("rowsB", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsB", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
VB_HMergeTablesDbl2SPV2 = list("i", list(
    .p("a", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("rowsA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rowsB", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsB", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_HMergeTablesLng2 = list("i", list(
    .p("a", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(rowsA), quote(colsA + colsB))),
    .p("rowsA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsA", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("b", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(rowsB), quote(colsB))),
    .p("rowsB", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsB", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
VB_HMergeTablesStr = list("i", list(
    .p("a", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rowsA), quote(colsA))),
    .p("rowsA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsA", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("b", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rowsB), quote(colsB))),
    .p("rowsB", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsB", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("out", "T", TRUE, TRUE, FALSE, 0, NULL, list(quote(max(rowsA, rowsB)), quote(colsA + colsB)))
)),
VB_HMergeTablesStr2 = list("i", list(
    .p("a", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(rowsA), quote(colsA + colsB))),
    .p("rowsA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsA", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("b", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rowsB), quote(colsB))),
    .p("rowsB", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsB", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
VB_HMergeVectColDbl = list("i", list(
    .p("v", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(outRows), 2)),
    .p("outRows", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_HMergeVectTable = list("i", list(
    .p("v", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(outRows), quote(outCols))),
    .p("outRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("outCols", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
VB_HMergeVectors = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(nA), 1)),
    .p("nA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(nB), 1)),
    .p("nB", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(max(nA, nB)), 2))
)),
VB_InitVectorToFalse = list("i", list(
    .p("flags", "S", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_InitVectorToTrue = list("i", list(
    .p("flags", "S", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_IsMissingValueDbl = list("s", list(
    .p("x", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_IsMissingValueStr = list("s", list(
    .p("cell", "x", FALSE, FALSE, FALSE, 0, NULL, list(1, 1))
)),
VB_MAE = list("d", list(
    .p("actual", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("predicted", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("first", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_MAPE = list("d", list(
    .p("actual", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("predicted", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("first", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
VB_MPE = list("d", list(
    .p("actual", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("predicted", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("first", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_APlusVal = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("s", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(p)))
)),
VB_M_APlusVal2 = list("i", list(
    .p("a", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("s", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_AllMissingRows = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("flagsIn", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("flagsOut", "S", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_M_AllMissingRowsStr = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("flagsIn", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("flagsOut", "S", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_M_Binarize = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("result", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(p)))
)),
VB_M_Binarize2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_Binarize2SPV = list("i", list(
    .p("x", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_Center = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
VB_M_Center2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_Center2SPV = list("i", list(
    .p("x", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_CenterW = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
VB_M_CenterW2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1))
)),
VB_M_CheckIfSimOrDissim = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_CheckIfSimOrDissimSPV = list("i", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_CholDecomp = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("l", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
VB_M_CholDecompCleaned = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("constraints", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("l", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
VB_M_CholDecompPrinc = list("i", list(
    .p("a", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("l", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("perm", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("replaceInput", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_CopyBlock = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("firstRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("firstCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(lastRow - firstRow + 1), quote(lastCol - firstCol + 1)))
)),
VB_M_CopyBlockSPV = list("i", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("firstRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("firstCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "H", TRUE, FALSE, FALSE, 0, NULL)
)),
VB_M_CopyBlockStr = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("firstRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("firstCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "T", TRUE, TRUE, FALSE, 0, NULL, list(quote(lastRow - firstRow + 1), quote(lastCol - firstCol + 1)))
)),
VB_M_CopyResize = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("y", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(newRows), quote(newCols))),
    .p("newRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("newCols", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
VB_M_CopyResizeBool = list("i", list(
    .p("x", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("y", "S", TRUE, TRUE, FALSE, 0, NULL, list(quote(newRows), quote(newCols))),
    .p("newRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("newCols", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
VB_M_CopyResizeStr = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("y", "T", TRUE, TRUE, FALSE, 0, NULL, list(quote(newRows), quote(newCols))),
    .p("newRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("newCols", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
VB_M_CopyToBigger = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("y", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(yRows), quote(yCols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
VB_M_CorrMatFromCovMat = list("i", list(
    .p("cov", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("bUndefinedIsZero", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_CorrMatMat = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(colsX))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsX", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(colsY))),
    .p("colsY", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(colsX), quote(colsY))),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("bCorr", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bSquare", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bUndefinedIsZero", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_CorrMatMatSPV = list("i", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsX", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsY", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("bCorr", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bSquare", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bUndefinedIsZero", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_CovCorr = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), quote(cols))),
    .p("bCorr", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bUndefinedIsZero", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_CovCorrAndMeanStDevVar = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), quote(cols))),
    .p("means", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("sds", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("vars", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("bCorr", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bCenter", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bReduce", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bUndefinedIsZero", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_CovCorrVAndMeanStDevVar = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), quote(cols))),
    .p("means", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("sds", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("vars", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("bCorr", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bCenter", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bReduce", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bUndefinedIsZero", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_Dedupe = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(p + 1))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("nOut", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(p + 3)))
)),
VB_M_Determinant = list("d", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("status", "S", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_M_DeterminantCleaned = list("d", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("constraints", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("status", "S", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_M_DeterminantTriang = list("d", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("status", "S", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_M_DuplicateDbl = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("y", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(yRows), quote(yCols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_DuplicateLng = list("i", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("y", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(yRows), quote(yCols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_DuplicateStr = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("y", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(yRows), quote(yCols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_DuplicateStrSPV = list("i", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(yRows), quote(yCols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_Eigen = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("values", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("vectors", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("sortFlag", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_EuclidDist2 = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1), list(quote(cols), 1, "bRows", -1)),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), quote(cols)), list(quote(nRows), quote(nRows), "bRows", -1)),
    .p("bRows", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("nRows", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_ExtractMatToMatByColDbl = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("firstCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(lastCol - firstCol + 1)))
)),
VB_M_ExtractMatToMatDbl = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("firstRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(lastRow - firstRow + 1), quote(cols)))
)),
VB_M_ExtractMatToMatDblSPV = list("i", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("firstRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(lastRow - firstRow + 1), quote(cols)))
)),
VB_M_ExtractMatToMatStr = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("firstRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "T", TRUE, TRUE, FALSE, 0, NULL, list(quote(lastRow - firstRow + 1), quote(cols)))
)),
VB_M_ExtractMatToMatStrSPV = list("i", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("firstRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lastRow", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "T", TRUE, TRUE, FALSE, 0, NULL, list(quote(lastRow - firstRow + 1), quote(cols)))
)),
VB_M_FrobeniusNorm = list("d", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p)))
)),
VB_M_Gauss = list("i", list(
    .p("a", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("m", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", TRUE, FALSE, TRUE, 0, NULL, list(quote(n), quote(m)))
)),
VB_M_GenerateRandom01 = list("i", list(
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_M_GroupBy = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("kinds", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("groupCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("method", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("nOut", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
VB_M_GroupByW = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("kinds", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("groupCol", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("method", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("nOut", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1))
)),
VB_M_InfoQuali = list("i", list(
    .p("data", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("modes", "T", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("modeFrequencies", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("categoryCounts", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("categories", "T", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(n))),
    .p("frequencies", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(n))),
    .p("weights", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("total", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("sort", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_InfoQuali2 = list("i", list(
    .p("data", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("width", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("categoryCounts", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("modes", "T", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("modeFrequencies", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("categories", "T", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(width))),
    .p("frequencies", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(width))),
    .p("weights", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("total", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("sort", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_InfoQualiValid = list("i", list(
    .p("data", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("width", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("categoryCounts", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("categories", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), quote(width))),
    .p("counts", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(width))),
    .p("newCategoryFound", "S", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("weights", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_M_InvGeneralized = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("g", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("tolerance", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("rank", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_M_InvGeneralizedSym = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("g", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("tolerance", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("rank", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_M_Inverse1 = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("inverse", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("error", "S", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("tolerance", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_InverseTriang = list("i", list(
    .p("t", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lowerFlag", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("inverse", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("tolerance", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_IsColConstant = list("s", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
VB_M_IsColConstantSPV = list("s", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_IsDiagConstant = list("s", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_IsDisjTable = list("s", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("rowFlags", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("rowSum", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_M_IsIn01 = list("s", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
VB_M_IsInIntervalSPV = list("s", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lo", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("hi", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("bOpen", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bSkipMissing", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_IsLong = list("s", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
VB_M_IsSymmetric = list("s", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_IsSymmetricSPV = list("s", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_IsTriangular = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bMirror", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_IsTriangularSPV = list("i", list(
    .p("x", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bMirror", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_LUDecomp = list("i", list(
    .p("a", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("pivots", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("sign", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("status", "S", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_M_Log10Matrix = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("y", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
VB_M_LogMatrix = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("y", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
VB_M_Max = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1))
)),
VB_M_Mean = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("means", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1))
)),
VB_M_MeanStDev = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("means", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("sds", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_MeanStDevByRow = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("means", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("sds", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_MeanStDevVar = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("means", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("sds", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("vars", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_MeanStDevVarOneInMat = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("mean", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("sd", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("var", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_Min = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1))
)),
VB_M_MinMax = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("mins", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("maxs", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_MinMaxSPV = list("i", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("mins", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("maxs", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_MinMaxSPV_T = list("i", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("mins", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("maxs", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_MoveRow = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_NbMissing = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("counts", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1))
)),
VB_M_NbMissing2 = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
VB_M_NbMissing2Str = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
VB_M_NbMissingSPV_T = list("i", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_NbMissingStr = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("counts", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1))
)),
VB_M_NbNonMissing = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("counts", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1))
)),
VB_M_Normalize = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1))
)),
VB_M_NormalizeMatrix = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", TRUE, FALSE, TRUE, 0, NULL, list(quote(yRows), quote(cols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("z", "D", TRUE, FALSE, TRUE, 0, NULL, list(quote(zRows), quote(cols))),
    .p("zRows", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_PasteBlock = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("y", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(yRows), quote(yCols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_PasteBlockLng = list("i", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("y", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(yRows), quote(yCols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_ProductAB = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), quote(q))),
    .p("q", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(q)))
)),
VB_M_ProductABC = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), quote(q))),
    .p("q", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(q), quote(r))),
    .p("r", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("d", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(r)))
)),
VB_M_ProductABLng = list("i", list(
    .p("a", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), quote(q))),
    .p("q", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(q)))
)),
VB_M_ProductABMissing = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), quote(q))),
    .p("q", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(q)))
)),
VB_M_ProductABTrA = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), quote(p))),
    .p("symmetric", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
VB_M_ProductADTrA = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("d", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), quote(p))),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
VB_M_ProductADiag = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("d", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), quote(p))),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(p)))
)),
VB_M_ProductADiagV = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("d", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(p)))
)),
VB_M_ProductADiagVB = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("d", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), quote(q))),
    .p("q", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(q)))
)),
VB_M_ProductADiagVTrA = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("d", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
VB_M_ProductADiagVTrB = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("d", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(m), quote(p))),
    .p("m", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(m)))
)),
VB_M_ProductASymV = list("i", list(
    .p("s", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(m * (m + 1) / 2), 1)),
    .p("m", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(m), 1)),
    .p("y", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(m), 1))
)),
VB_M_ProductATrA = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
VB_M_ProductATrB = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(m), quote(p))),
    .p("m", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(m)))
)),
VB_M_ProductATrBC = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(q), quote(p))),
    .p("q", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(q), quote(r))),
    .p("r", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("d", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(r)))
)),
VB_M_ProductAinvBTrA = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), quote(p))),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
VB_M_ProductBV = list("i", list(
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("v", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("y", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_M_ProductByElement = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(p)))
)),
VB_M_ProductDesignAB2 = list("i", list(
    .p("a", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(max(colsB, 1) * colsA))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsA", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(colsB))),
    .p("colsB", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("type", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("weights", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("sums", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(colsA * colsB), 1))
)),
VB_M_ProductDiagV1ADiagV2 = list("i", list(
    .p("d1", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("d2", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(p)))
)),
VB_M_ProductDiagVA = list("i", list(
    .p("d", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(p)))
)),
VB_M_ProductHorizAB = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(colsA))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(colsB))),
    .p("colsB", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(colsA * colsB))),
    .p("extra", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_ProductHorizAB2 = list("i", list(
    .p("a", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(max(colsB, 1) * colsA))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsA", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(colsB))),
    .p("colsB", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_ProductTrAA = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(p)))
)),
VB_M_ProductTrAB = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(q))),
    .p("q", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(q)))
)),
VB_M_ProductTrABA = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("symmetric", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(p)))
)),
VB_M_ProductTrABC = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(q))),
    .p("q", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(q), quote(r))),
    .p("r", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("d", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(r)))
)),
VB_M_ProductTrADA = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("d", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(p)))
)),
VB_M_ProductTrADiag = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("d", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(n)))
)),
VB_M_ProductTrADiagV = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("d", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(n)))
)),
VB_M_ProductTrADiagVA = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("d", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(p)))
)),
VB_M_ProductTrAinvBA = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("symmetric", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(p)))
)),
VB_M_ProductTrBV = list("i", list(
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("v", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("y", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), 1))
)),
VB_M_ProductTrV1BV2 = list("d", list(
    .p("x1", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("x2", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_M_ProductTrVBV = list("d", list(
    .p("v", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
VB_M_ProductTrVinvBV = list("d", list(
    .p("v", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
VB_M_ProductVASym = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(m), 1)),
    .p("m", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("s", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(m * (m + 1) / 2), 1)),
    .p("y", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(m), 1))
)),
VB_M_ProductVB = list("i", list(
    .p("v", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(q))),
    .p("q", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(q), 1))
)),
VB_M_ProductVTrB = list("i", list(
    .p("v", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(m), quote(n))),
    .p("m", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(m), 1))
)),
VB_M_Rank = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_Reduce = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_Reduce2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_ReduceW = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_ReduceW2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_RemoveCol = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("k", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols - 1)))
)),
VB_M_RemoveCols2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("first", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("last", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_RemoveColsInList = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("list", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
VB_M_RemoveRow = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("k", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows - 1), quote(cols)))
)),
VB_M_RemoveRows2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("first", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("last", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_RemoveRowsInList = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("list", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
VB_M_ReplaceMissingByStr = list("i", list(
    .p("x", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("val", "t", FALSE, FALSE, FALSE, 0, NULL, list(1, 1))
)),
VB_M_ReplaceMissingByVal = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("val", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_ReplaceMissingByValSPV = list("i", list(
    .p("x", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("val", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_ReplaceStrByCodes = list("i", list(
    .p("data", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("categoryCounts", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("categories", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(p), quote(max(categoryCounts)))),
    .p("rowFlags", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("firstCode", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("result", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(p)))
)),
VB_M_ReplaceStrByCodesBinary = list("i", list(
    .p("data", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("rowFlags", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("result", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(p)))
)),
VB_M_RescaleByVect = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lo", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("hi", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
VB_M_RescaleByVect2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lo", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("hi", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1))
)),
VB_M_SVDecomp = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("s", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("u", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("v", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(p))),
    .p("job", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("info", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_M_SVDecompSPV = list("i", list(
    .p("a", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("s", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), 1)),
    .p("u", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("v", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("job", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("info", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_M_SampleUserDefined = list("i", list(
    .p("table", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("sample", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(sum(counts)), quote(cols))),
    .p("counts", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("selected", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(sum(counts)), 1))
)),
VB_M_SampleUserDefinedSPV = list("i", list(
    .p("table", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("sample", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("counts", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("selected", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(sum(counts)), 1))
)),
VB_M_SamplingRandomStratified = list("i", list(
    .p("table", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("k", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("sample", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(k), quote(cols))),
    .p("selected", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(k), 1)),
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_M_SamplingRandomStratifiedSPV = list("i", list(
    .p("table", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("k", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("sample", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("selected", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(k), 1)),
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_M_SamplingSystematicCentered = list("i", list(
    .p("table", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("k", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("sample", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(k), quote(cols))),
    .p("selected", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), 1))
)),
VB_M_SamplingSystematicCenteredSPV = list("i", list(
    .p("table", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("k", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("sample", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("selected", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), 1))
)),
VB_M_SamplingSystematicRdStart = list("i", list(
    .p("table", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("k", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("sample", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(k), quote(cols))),
    .p("selected", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_M_SamplingSystematicRdStartSPV = list("i", list(
    .p("table", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("k", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("sample", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("selected", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_M_SamplingWithReplacement = list("i", list(
    .p("table", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("k", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("sample", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(k), quote(cols))),
    .p("selected", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(k), 1)),
    .p("seed", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("flag", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("nextSeed", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_M_ScalarsA = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("s", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(p)))
)),
VB_M_ScalarsA2 = list("i", list(
    .p("a", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("s", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_ScalarsTrA = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("s", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(p), quote(n)))
)),
VB_M_SetWeightsToZeroForMissing = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("weights", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p)), list(quote(n), 1, "mode", 1)),
    .p("mode", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_Square = list("i", list(
    .p("a", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_SquaredColumns = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1))
)),
VB_M_SquaredRows = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), 1))
)),
VB_M_Standardize = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, TRUE, 0, NULL, list(quote(rows), quote(cols))),
    .p("means", "D", TRUE, TRUE, TRUE, 0, NULL, list(quote(cols), 1)),
    .p("sds", "D", TRUE, TRUE, TRUE, 0, NULL, list(quote(cols), 1)),
    .p("vars", "D", TRUE, TRUE, TRUE, 0, NULL, list(quote(cols), 1)),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("w", "D", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_Standardize2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_Standardize2SPV = list("i", list(
    .p("x", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_Standardize3 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("means", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("sds", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_StandardizeByVect = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("means", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("sds", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
VB_M_StandardizeByVect2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("means", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("sds", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(cols), 1))
)),
VB_M_StandardizeKnownMeansStDev = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("means", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("sds", "D", FALSE, FALSE, TRUE, 0, NULL, list(quote(cols), 1)),
    .p("out", "D", TRUE, TRUE, TRUE, 0, NULL, list(quote(rows), quote(cols))),
    .p("vars", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(rows), 1))
)),
VB_M_StandardizeMatrix = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", TRUE, FALSE, TRUE, 0, NULL, list(quote(yRows), quote(cols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("z", "D", TRUE, FALSE, TRUE, 0, NULL, list(quote(zRows), quote(cols))),
    .p("zRows", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_StandardizeW = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
VB_M_StandardizeW2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_StandardizeW3 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("means", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("sds", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_SumByCols = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), 1))
)),
VB_M_SumByRows = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), 1))
)),
VB_M_SumOfElem = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_Sums1As2B = list("i", list(
    .p("A", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("B", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("a", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
VB_M_Sweep = list("i", list(
    .p("packed", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n * (n + 1) / 2), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("k", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_Symmetrize = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_SymmetrizeSPV = list("i", list(
    .p("x", "H", TRUE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_Trace = list("d", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_TransformSimToDissim = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_Transpose = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), quote(rows)))
)),
VB_M_Transpose2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_Transpose2Lng = list("i", list(
    .p("x", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_Transpose2Str = list("i", list(
    .p("x", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_M_TransposeLng = list("i", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(cols), quote(rows)))
)),
VB_M_TransposeSPV = list("i", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "H", TRUE, TRUE, FALSE, 0, NULL)
)),
VB_M_TransposeStr = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(cols), quote(rows)))
)),
VB_RMSE = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(col))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(col))),
    .p("df", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_RemoveRowsWithMissing = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("removed", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("flags", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("result", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n - removed), quote(p)))
)),
VB_RemoveRowsWithMissingBool = list("i", list(
    .p("x", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("removed", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("flags", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("result", "S", TRUE, TRUE, FALSE, 0, NULL, list(quote(n - removed), quote(p)))
)),
VB_RemoveRowsWithMissingStr = list("i", list(
    .p("x", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(p))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("removed", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("flags", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("result", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(n - removed), quote(p)))
)),
VB_ReplaceMissingObsLabels = list("i", list(
    .p("labels", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("flags", "S", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("prefix", "t", FALSE, FALSE, FALSE, 0, NULL, list(1, 1))
)),
VB_SortApply = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("order", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
VB_SortApply2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("order", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1))
)),
VB_SortApply2Lng = list("i", list(
    .p("x", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("order", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1))
)),
VB_SortApply2Str = list("i", list(
    .p("x", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("order", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1))
)),
VB_SortApplyLng = list("i", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("order", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("out", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
VB_SortApplyStr = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("order", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("out", "T", TRUE, TRUE, FALSE, 0, NULL, list(quote(rows), quote(cols)))
)),
VB_SortDataBy01 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("key", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), 1))
)),
VB_SortDataBy01Bool = list("i", list(
    .p("x", "S", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("key", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), 1))
)),
VB_SortDataBy01Str = list("i", list(
    .p("x", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("key", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), 1))
)),
VB_SortMatrixSeqQDbl = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_SortMatrixSeqQLng = list("i", list(
    .p("x", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_SortMatrixSeqQP1toP2Dbl = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p1", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p2", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_SortMatrixSeqQP1toP2Lng = list("i", list(
    .p("x", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p1", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("p2", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_SortQBool = list("i", list(
    .p("x", "S", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("key", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("aux", "S", TRUE, FALSE, TRUE, 0, NULL, list(quote(rows), quote(auxCols))),
    .p("auxCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("bDesc", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bSortKey", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_SortQByColDbl = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("key", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(cols), 1)),
    .p("aux", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(auxRows), quote(cols))),
    .p("auxRows", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("bDesc", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bSortKey", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_SortQDbl = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("key", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("aux", "D", TRUE, FALSE, TRUE, 0, NULL, list(quote(rows), quote(auxCols))),
    .p("auxCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("bDesc", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bSortKey", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_SortQDbl2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("key", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("aux", "D", TRUE, FALSE, TRUE, 0, NULL, list(quote(rows), quote(auxCols))),
    .p("auxCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("bDesc", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bSortKey", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_SortQLng = list("i", list(
    .p("x", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("key", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("aux", "I", TRUE, FALSE, TRUE, 0, NULL, list(quote(rows), quote(auxCols))),
    .p("auxCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("bDesc", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bSortKey", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_SortQStr = list("i", list(
    .p("x", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("key", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(rows), 1)),
    .p("aux", "T", TRUE, FALSE, TRUE, 0, NULL, list(quote(rows), quote(auxCols))),
    .p("auxCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("bDesc", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bSortKey", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_SortQVectorDbl = list("i", list(
    .p("sa", "A", TRUE, FALSE, FALSE, 0, "Double"),
    .p("ignored", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bDesc", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_SortQVectorLng = list("i", list(
    .p("sa", "A", TRUE, FALSE, FALSE, 0, "Long"),
    .p("ignored", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bDesc", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_SortQVectorStr = list("i", list(
    .p("x", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bDesc", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_SummarizeAllMissing = list("i", list(
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("a", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("b", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("count", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("result", "S", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_SummarizeMissing = list("i", list(
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("count", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("result", "S", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("a", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("b", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("c", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1))
)),
VB_VMergeTablesDbl = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rowsA), quote(colsA))),
    .p("rowsA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsA", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rowsB), quote(colsB))),
    .p("rowsB", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("colsB", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(rowsA + rowsB), quote(max(colsA, colsB))))
)),
VB_VMergeVectorsBool2 = list("i", list(
    .p("a", "S", TRUE, FALSE, FALSE, 0, NULL, list(quote(nA + nB), 1)),
    .p("nA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(nB), 1)),
    .p("nB", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_VMergeVectorsDbl = list("i", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(nA), 1)),
    .p("nA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(nB), 1)),
    .p("nB", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(nA + nB), 1))
)),
VB_VMergeVectorsDbl2 = list("i", list(
    .p("a", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(nA + nB), 1)),
    .p("nA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(nB), 1)),
    .p("nB", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_VMergeVectorsStr = list("i", list(
    .p("a", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(nA), 1)),
    .p("nA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(nB), 1)),
    .p("nB", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "T", TRUE, TRUE, FALSE, 0, NULL, list(quote(nA + nB), 1))
)),
VB_VMergeVectorsStr2 = list("i", list(
    .p("a", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(nA + nB), 1)),
    .p("nA", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(nB), 1)),
    .p("nB", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_DiffSq = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_DiffSqW = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_DuplicateDbl = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(yRows), quote(yCols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCol", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_DuplicateDblToLng = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(yRows), quote(yCols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCol", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_DuplicateLng = list("i", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "I", TRUE, FALSE, FALSE, 0, NULL, list(quote(yRows), quote(yCols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCol", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_DuplicateLngToDbl = list("i", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(yRows), quote(yCols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCol", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_DuplicateStr = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(rows), quote(cols))),
    .p("rows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(yRows), quote(yCols))),
    .p("yRows", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCols", "i", FALSE, FALSE, FALSE, 1, NULL),
    .p("row", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("yCol", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_ExtractDistinct = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("nOut", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_V_Freq = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("value", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("tol", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_FreqLng = list("d", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("value", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("tol", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_FreqStr = list("d", list(
    .p("labels", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("value", "t", FALSE, FALSE, TRUE, 0, NULL, list(1, 1))
)),
VB_V_Gauss = list("i", list(
    .p("a", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(n))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_GetMissingDbl = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("iMissingOut", "S", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_GetMissingStr = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("iMissingOut", "S", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_GetPositionInMatNN = list("i", list(
    .p("k", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("row", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("col", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_V_GetPositionInMatNNm1o2 = list("i", list(
    .p("k", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("row", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("col", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_V_GetRanksDbl = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_GetRanksLng = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_GetRanksTiesDbl = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bRestore", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("ranks", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("nTies", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("tieSizes", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_GetRanksTiesDbl2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bRestore", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("ranks", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("nTies", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("tieSizes", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_GetRanksTiesIntDbl = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("ranks", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("nTies", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("tieSizes", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_Is01 = list("s", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_IsCWeights = list("s", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_IsConstant = list("s", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(col))),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bSkipMissing", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
VB_V_IsConstantBool = list("s", list(
    .p("x", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_IsConstantLng = list("s", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bSkipMissing", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_IsConstantStr = list("s", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bSkipMissing", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_IsInInterval = list("s", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lo", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("hi", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("bOpen", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bSkipMissing", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_IsIndicator = list("s", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_IsIndicatorSPV = list("s", list(
    .p("x", "H", FALSE, FALSE, FALSE, 0, NULL),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("col", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_IsPositive = list("s", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bStrict", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_IsSorted = list("s", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bStrict", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_IsWeights = list("s", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_Max = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1))
)),
VB_V_Max2 = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_Max2Lng = list("d", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_MaxAndMaxPos = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("pos", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1))
)),
VB_V_MaxIf = list("d", list(
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("g", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("val", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_MaxInt = list("i", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1))
)),
VB_V_Mean = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_Mean2 = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_MeanAbs = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_MeanIf = list("d", list(
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("g", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("val", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_MeanIfW = list("d", list(
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("g", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("val", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_MeanStdev = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("mean", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("sd", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("iMissing", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_MeanVar = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("mean", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("var", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("iMissing", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_MeanVarSkewPKurtP = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("mean", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("var", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("skewP", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("kurtP", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("skew", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("kurt", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("seSkew", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("seKurt", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("iMissing", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_Min = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_Min2 = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_Min2Lng = list("d", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_MinAndMinPos = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("pos", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("bLast", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_MinIf = list("d", list(
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("g", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("val", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_MinMax = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("min", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("max", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("iMissing", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_MinMax2 = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("min", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("max", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("bSkipMissing", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_MinMaxLng = list("i", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("min", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("max", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("iMissing", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_MinMaxLng2 = list("i", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("min", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("max", "D", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),
    .p("bSkipMissing", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_Mode = list("i", list(
    .p("labels", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("mode", "T", TRUE, FALSE, FALSE, 0, NULL, list(1, 1))
)),
VB_V_ModeCatDbl = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_NbDistinct = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_NbDistinctLng = list("i", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_NbIf = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("val", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_NbIfLng = list("d", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("val", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_NbIfW = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("val", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_NbMissing = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_NbMissingStr = list("i", list(
    .p("x", "T", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_NbNonMissing = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_NbTrue = list("i", list(
    .p("x", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_NbTrueFromTo = list("i", list(
    .p("x", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(to), 1)),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_Norm = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_NormToVal = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("value", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_NormToValW = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("value", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_NormW = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_PlusVal = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("val", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1))
)),
VB_V_PlusVal2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("val", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_Product1toNDbl = list("d", list(
    .p("v", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_Product1toNLng = list("d", list(
    .p("v", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_ProductHorizV1V2 = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(m), 1)),
    .p("m", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n * m), 1))
)),
VB_V_ProductHorizV1V22 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(max(m, 1) * n), 1)),
    .p("n", "I", TRUE, FALSE, FALSE, 0, NULL, list(1, 1)),
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(m), 1)),
    .p("m", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_ProductTrV1V2 = list("d", list(
    .p("x1", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x2", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_ProductV1TrV2 = list("i", list(
    .p("x1", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x2", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("c", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), quote(n)))
)),
VB_V_ProductV1V2 = list("i", list(
    .p("x1", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x2", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("y", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_ProductV1V22 = list("i", list(
    .p("x1", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("x2", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_Quantile = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("q", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_QuantileM = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("q", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_QuantileMW = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("q", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_QuantileW = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("q", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_RemoveVal = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("pos", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n - 1), 1))
)),
VB_V_ReplaceDoubles = list("i", list(
    .p("labels", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_ReplaceVal = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("oldValue", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("newValue", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_ReplaceVal2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("oldValue", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("newValue", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_Rescale = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lo", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("hi", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_Rescale2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("lo", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("hi", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1))
)),
VB_V_ReverseBool = list("i", list(
    .p("x", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "S", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_ReverseDbl = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_Set1toNDbl = list("i", list(
    .p("x", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_Set1toNLng = list("i", list(
    .p("x", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_Set1toNStr = list("i", list(
    .p("x", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_SetToValue = list("i", list(
    .p("x", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("value", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_SetToValueLng = list("i", list(
    .p("x", "I", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("value", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_SetToValueStr = list("i", list(
    .p("x", "T", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("value", "t", FALSE, FALSE, FALSE, 0, NULL, list(1, 1))
)),
VB_V_Standardize = list("i", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("out", "D", TRUE, TRUE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_Standardize2 = list("i", list(
    .p("x", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_Stdev = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_Sum = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_Sum2Dbl = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_Sum2Lng = list("d", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_SumFromTo = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(to), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_SumFromToLng = list("i", list(
    .p("x", "I", FALSE, FALSE, FALSE, 0, NULL, list(quote(to), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("from", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("to", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_SumIf = list("d", list(
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("g", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("val", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_SumIfNotMissing = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_SumIfW = list("d", list(
    .p("y", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("g", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("val", "d", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_SumSq = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_SumSqW = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_TimeIntervalSize = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("bSort", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
VB_V_V1GreaterThanMatCols = list("s", list(
    .p("v", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("m", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), quote(cols))),
    .p("cols", "i", FALSE, FALSE, FALSE, 1, NULL)
)),
VB_V_V1inferiorV2 = list("s", list(
    .p("a", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("b", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1))
)),
VB_V_Var = list("d", list(
    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),
    .p("iMissing", "S", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("w", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),
    .p("bUnbiased", "s", FALSE, FALSE, FALSE, 0, NULL),
    .p("bFreq", "s", FALSE, FALSE, FALSE, 0, NULL)
)),
dprint = list("v", list(
    .p("value", "d", FALSE, FALSE, FALSE, 0, NULL),
    .p("label", "l", FALSE, FALSE, FALSE, 0, NULL)
)),
isQuali = list("s", list(
    .p("type", "i", FALSE, FALSE, FALSE, 0, NULL)
)),
isQualiPure = list("s", list(
    .p("type", "i", FALSE, FALSE, FALSE, 0, NULL)
))
)
