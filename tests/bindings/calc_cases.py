"""A case for each worksheet function: its arguments in a sheet, and the direct call of the library that it stands for."""

import ctypes

import numpy

import korvelmathtools as kmt

ROWS = 12
YES, NO = -1, 0
ONES = numpy.ones(ROWS)
UNFLAGGED = numpy.zeros(ROWS, dtype=numpy.int16)


def in_order(array):
    return numpy.array(array, order="F")


# The data, by the names that stand for their ranges in the cases. A missing number is a text or an empty cell in the sheet.
draws = numpy.random.default_rng(20).normal(size=(ROWS, 8))
table = in_order(draws[:, :3] * [1, 10, 0.01] + [5, 0, 1])
table[3, 0] = table[7, 2] = kmt.MISSING
x = table[:, 0].copy()
w = numpy.array([1, 2, 0.5, 1, 1, 3, 0, 0.1, 1, 2.5, 1, 1])
y = draws[:, 3].copy()
z = in_order(draws[:, 4:7])
positive = numpy.exp(draws[:, 7])
codes = numpy.array([1.0, 2, 3, 1, 2, 3, 1, 1, 2, 2, 3, 1])
steps = numpy.arange(ROWS) * 0.25 + 3
texts = numpy.array(["pear", "apple", "", "pear", "fig", "apple", "pear", " fig", "fig", "apple", "kiwi", "pear"], dtype=object)
labels = in_order(numpy.column_stack([texts, texts[::-1]]))
square = in_order(z.T @ z)
small = in_order(draws[:3, 1:3])
shares = numpy.array([1.0, 4.0, 9.0])
like = in_order([[1.0, 0.25, 0.5], [0.25, 1.0, -0.125], [0.5, -0.125, 1.0]])
keys = numpy.column_stack([codes, y])

DATA = {"table": table, "x": x, "w": w, "y": y, "z": z, "positive": positive, "codes": codes, "steps": steps, "texts": texts,
        "labels": labels, "square": square, "small": small, "shares": shares, "like": like, "keys": keys}


def column(array):
    return numpy.asarray(array).reshape(-1, 1)


def row(*parts):
    return numpy.hstack([numpy.ravel(part) for part in parts]).reshape(1, -1)


def beside(*parts):
    return numpy.hstack([numpy.asarray(part, dtype=object) for part in parts])


def changed(array, call):
    """An array that a call changes."""
    copy = in_order(array)
    call(copy)
    return copy


def flags(array):
    return kmt.Cpp_M_GetMissingDbl(array).iMissingOut


def moments(weights):
    return kmt.VB_V_MeanVarSkewPKurtP(x, iMissing=UNFLAGGED, w=weights, bUnbiased=NO, bFreq=NO)


def present():
    return x[~kmt.is_missing(x)]


def seed(value):
    return numpy.array([value], dtype=numpy.int32)


def z_scores(robust):
    return kmt.Cpp_V_ZScores(x, bRobust=robust, centre=numpy.array([kmt.MISSING]), scale=numpy.array([kmt.MISSING])).out


def grouped(array, method, weights):
    found = kmt.VB_M_GroupByW(array, kinds=[0] * array.shape[1], groupCol=1, method=method, w=weights)
    return found.out[: found.nOut]


def deduped():
    found = kmt.VB_M_Dedupe(in_order(numpy.column_stack([codes, numpy.arange(1.0, ROWS + 1)])), p=1)
    return found.out[: found.nOut]


def ranks(weights):
    return kmt.VB_V_GetRanksTiesDbl(x.copy(), bRestore=YES, w=weights.copy()).ranks


def distinct():
    found = kmt.VB_V_ExtractDistinct(codes)
    return found.out[: found.nOut]


def summary(weights, unbiased):
    found = kmt.VB_M_MeanStDevVar(table, w=weights, bUnbiased=unbiased, bFreq=NO)
    return numpy.vstack([found.means, found.sds, found.vars])


def extremes_of_columns():
    found = kmt.VB_M_MinMax(table, flag=YES)
    return numpy.vstack([found.mins, found.maxs])


def covariance(correlate, weights, unbiased=YES, frequencies=NO):
    return kmt.VB_M_CovCorr(table, bCorr=correlate, w=weights, bUnbiased=unbiased, bFreq=frequencies, bUndefinedIsZero=NO).out


def inverse():
    return kmt.VB_M_Inverse1(square, error=numpy.zeros(1, numpy.int16), tolerance=1.0).inverse


def singular(job, **wanted):
    return kmt.VB_M_SVDecomp(z, job=job, **wanted).s


def singular_vectors(name, job, order):
    vectors = numpy.zeros((order, order), order="F")
    kmt.VB_M_SVDecomp(z, job=job, **{name: vectors})
    return vectors[:, :3]


def complete(weights):
    kept = flags(table) == 0
    return {"y": y[kept], "x": in_order(table[kept]), "weights": weights[kept], "interactions": NO, "tolerance": 1e-9}


def regression(weights, degree, no_constant):
    found = kmt.RunOLSBasic2(**complete(weights), degree=degree, noConstant=no_constant)
    return beside(column(found.coefficients), column(found.standardErrors))


def fitted(weights, degree, no_constant):
    result = numpy.full(ROWS, kmt.MISSING)
    result[flags(table) == 0] = kmt.RunOLSBasic(**complete(weights), degree=degree, noConstant=no_constant).fitted
    return result


def tolerances():
    found, factors = numpy.zeros(3), numpy.zeros(3)
    kmt.VB_CheckTolerance(like, groupSelection=[1.0], groupNumbers=[1.0] * 3, tolerance=1e-9, duplicates=NO, entered=NO,
                          reverse=NO, skipGroup=NO, tolerances=found, inflationFactors=factors)
    return beside(column(found), column(factors))


def mode(weights):
    found = [""]
    kmt.VB_V_Mode(texts, w=weights, mode=found)
    return found[0]


def categories(data, weights, order):
    return kmt.VB_M_InfoQuali2(data, n=ROWS, p=1 if data.ndim == 1 else 2, width=5, weights=weights, sort=order)


def category_list(weights, order):
    found = categories(texts, weights, order)
    return beside(column(found.categories), column(found.frequencies))


def disjunctive(coding, first):
    found = categories(labels, ONES, YES)
    return kmt.VB_BuildDisjunctiveTable(labels, totalColumns=int(found.total), categoryCounts=found.categoryCounts,
                                        categories=found.categories, frequencies=found.frequencies, coding=coding,
                                        firstCategoryOption=first)[1]


def coded(first):
    found = categories(labels, ONES, YES)
    return kmt.VB_M_ReplaceStrByCodes(labels, categoryCounts=found.categoryCounts, categories=found.categories,
                                      rowFlags=UNFLAGGED, firstCode=first)[1]


def written(function, count, *arguments, **named):
    result = numpy.full(count, "", dtype=object)
    function(*arguments, out=result, **named)
    return result


def permutation(n, start):
    result = numpy.zeros(n)
    kmt.Cpp_Random1toNDbl(result, bReset=YES, seed=seed(start), flag=numpy.array([-1], numpy.int16))
    return result


def sample(n, k, start):
    blank = numpy.full(n, "", dtype=object)
    return kmt.VB_M_SamplingWithReplacement(blank, k=k, sample=blank[:k].copy(), seed=seed(start), flag=YES).selected


def special(symbol, *values):
    """A core routine, by the name that the linker knows."""
    function = LIBRARY[symbol]
    function.restype = ctypes.c_double
    return function(*map(ctypes.c_double, values))


LIBRARY = ctypes.CDLL(kmt.LIBRARY_PATH)

# (function, arguments, what the direct call gives)
CASES = [
    ("SUM", "x;w", lambda: kmt.VB_V_Sum(x, w=w)),
    ("SUM", "x", lambda: kmt.VB_V_Sum(x, w=ONES)),
    ("MEAN", "x;w", lambda: kmt.VB_V_Mean(x, iMissing=UNFLAGGED, w=w)),
    ("MEAN", "x", lambda: kmt.VB_V_Mean(x, iMissing=UNFLAGGED, w=ONES)),
    ("HARMONICMEAN", "positive;w", lambda: kmt.Cpp_V_HarmonicMean(positive, iMissing=UNFLAGGED, w=w)),
    ("GEOMETRICMEAN", "positive;w", lambda: kmt.Cpp_V_GMeanGSD(positive, iMissing=UNFLAGGED, w=w).gmean),
    ("GEOMETRICMEAN", "y", lambda: kmt.MISSING),
    ("GEOMETRICDEVIATION", "positive", lambda: kmt.Cpp_V_GMeanGSD(positive, iMissing=UNFLAGGED, w=ONES).gsd),
    ("VARIANCE", "x;w;TRUE();TRUE()", lambda: kmt.VB_V_Var(x, iMissing=UNFLAGGED, w=w, bUnbiased=YES, bFreq=YES)),
    ("VARIANCE", "x", lambda: kmt.VB_V_Var(x, iMissing=UNFLAGGED, w=ONES, bUnbiased=YES, bFreq=NO)),
    ("DEVIATION", "x;w;FALSE()", lambda: kmt.VB_V_Stdev(x, iMissing=UNFLAGGED, w=w, bUnbiased=NO, bFreq=NO)),
    ("SKEWNESS", "x;w", lambda: moments(w).skew),
    ("KURTOSIS", "x", lambda: moments(ONES).kurt),
    ("MOMENTS", "x;w", lambda: row(*moments(w)[1:])),
    ("MINIMUM", "x", lambda: kmt.VB_V_Min(x, iMissing=UNFLAGGED)),
    ("MAXIMUM", "x", lambda: kmt.VB_V_Max(x)),
    ("EXTREMES", "x", lambda: row(*kmt.VB_V_MinMax(x, iMissing=UNFLAGGED)[1:])),
    ("SUMOFSQUARES", "x;w", lambda: kmt.VB_V_SumSqW(x, w=w)),
    ("MEANABSOLUTE", "y;w", lambda: kmt.VB_V_MeanAbs(y, iMissing=UNFLAGGED, w=w)),
    ("MEANDEVIATION", "x;4.5;w", lambda: kmt.Cpp_V_MeanAbsDev(x, centre=4.5, iMissing=UNFLAGGED, w=w)),
    ("MEDIANDEVIATION", "x;4.5", lambda: kmt.Cpp_V_MedianAbsDev(x, centre=4.5, iMissing=UNFLAGGED, w=ONES)),
    ("COUNTPRESENT", "table", lambda: kmt.VB_V_NbNonMissing(table.ravel(order="F"))),
    ("COUNTMISSING", "table", lambda: kmt.VB_V_NbMissing(table.ravel(order="F"))),
    ("FREQUENCY", "codes;2;;w", lambda: kmt.VB_V_Freq(codes, w=w, value=2.0, tol=1e-9)),
    ("RUNNINGSUM", "y", lambda: column(kmt.Cpp_V_CuSum(y).out)),
    ("ZSCORES", "x", lambda: column(z_scores(NO))),
    ("ZSCORES", "x;TRUE()", lambda: column(z_scores(YES))),
    ("RESCALED", "x;-1;3", lambda: column(kmt.VB_V_Rescale(x, lo=-1.0, hi=3.0, iMissing=flags(x)).out)),
    ("WINSORISED", "x;0.25;0.75", lambda: column(changed(x, lambda a: kmt.Cpp_V_Winsorize2(a, qLow=0.25, qHigh=0.75)))),
    ("SCOREBOXES", "codes;w", lambda: row(*kmt.Cpp_V_TopBottom3Box(codes, w=w)[1:])),
    ("TIMESTEP", "steps", lambda: kmt.VB_V_TimeIntervalSize(steps, bSort=NO)),
    ("TIMESTEP", "y", lambda: kmt.MISSING),
    ("MEANERROR", "positive;steps;w", lambda: kmt.VB_MAE(positive, steps, w=w, first=1)),
    ("MEANPERCENTERROR", "positive;steps", lambda: kmt.VB_MAPE(positive, steps, w=ONES, first=1)),
    ("GROUPSUM", "x;codes;1;w", lambda: kmt.VB_V_SumIfW(x, g=codes, w=w, val=1.0)),
    ("GROUPMEAN", "x;codes;2;w", lambda: kmt.VB_V_MeanIfW(x, g=codes, w=w, val=2.0)),
    ("GROUPVARIANCE", "x;codes;2", lambda: kmt.Cpp_V_VarIfW(x, g=codes, w=ONES, val=2.0, bUnbiased=YES)),
    ("GROUPMINIMUM", "x;codes;3", lambda: kmt.VB_V_MinIf(x, g=codes, val=3.0)),
    ("GROUPMAXIMUM", "x;codes;9", lambda: kmt.MISSING),
    ("GROUPWEIGHT", "codes;2;w", lambda: kmt.VB_V_NbIfW(codes, w=w, val=2.0)),
    ("GROUPED", "keys", lambda: grouped(keys, 1, ONES)),
    ("GROUPED", "keys;1;0;w", lambda: grouped(keys, 0, w)),
    ("DEDUPED", "codes", deduped),
    ("MEDIAN", "x;w", lambda: kmt.VB_V_QuantileMW(x, iMissing=UNFLAGGED, w=w, q=0.5)),
    ("QUANTILE", "x;0.1", lambda: kmt.VB_V_QuantileMW(x, iMissing=UNFLAGGED, w=ONES, q=0.1)),
    ("QUANTILES", "x", lambda: column(kmt.Cpp_V_Quantiles13(present()).out)),
    ("RANKS", "x", lambda: column(ranks(ONES))),
    ("RANKS", "x;w", lambda: column(ranks(w))),
    ("SORTED", "table;2;TRUE()",
     lambda: changed(table, lambda a: kmt.Cpp_SortQMatrixCol(a, keyCol=2, from_=1, to=ROWS, bDesc=YES))),
    ("SORTEDROWS", "keys", lambda: changed(keys, kmt.VB_SortMatrixSeqQDbl)),
    ("SORTEDBY", "table;y", lambda: changed(table, lambda a: kmt.VB_SortQDbl(
        a, from_=1, to=ROWS, key=y.copy(), auxCols=-1, bDesc=NO, bSortKey=NO))),
    ("SORTEDTEXTS", "labels;2", lambda: changed(labels, lambda a: kmt.Cpp_SortQMatrixColStr(
        a, keyCol=2, from_=1, to=ROWS, bDesc=NO))),
    ("REVERSED", "x", lambda: column(kmt.VB_V_ReverseDbl(x).out)),
    ("DISTINCT", "codes", lambda: column(distinct())),
    ("COLUMNMEANS", "table;w", lambda: row(kmt.VB_M_Mean(table, w=w).means)),
    ("COLUMNSUMS", "table", lambda: row(kmt.VB_M_SumByCols(table).out)),
    ("ROWSUMS", "table", lambda: column(kmt.VB_M_SumByRows(table).out)),
    ("COLUMNSUMMARY", "table;w;FALSE()", lambda: summary(w, NO)),
    ("COLUMNEXTREMES", "table", extremes_of_columns),
    ("COVARIANCE", "table;w;TRUE();TRUE()", lambda: covariance(NO, w, YES, YES)),
    ("CORRELATION", "table", lambda: covariance(YES, ONES)),
    ("CORRELATION", "table;w", lambda: covariance(YES, w)),
    ("CROSSCORRELATION", "table;z;w", lambda: kmt.VB_M_CorrMatMat(
        table, y=z, w=w, bCorr=YES, bSquare=NO, bUnbiased=YES, bFreq=NO, bUndefinedIsZero=NO).out),
    ("PAIRCORRELATION", "x;y;w", lambda: kmt.Cpp_V_Correl2W(x, y=y, w=w)),
    ("COVARIANCETOCORRELATION", "square", lambda: kmt.VB_M_CorrMatFromCovMat(square, bUndefinedIsZero=NO).out),
    ("CORRELATIONTOCOVARIANCE", "like;shares", lambda: kmt.Cpp_M_CovMatFromCorrMat(like, vars=shares).out),
    ("STANDARDISED", "z;w", lambda: kmt.VB_M_StandardizeW(z, w=w, bUnbiased=YES, bFreq=NO).out),
    ("STANDARDISED", "table", lambda: kmt.VB_M_StandardizeW(table, w=ONES, bUnbiased=YES, bFreq=NO).out),
    ("CENTRED", "table;w", lambda: kmt.VB_M_CenterW(table, w=w).out),
    ("DISTANCES", "z", lambda: kmt.VB_M_EuclidDist2(z, w=[1.0] * 3, bRows=YES, nRows=ROWS).out),
    ("PRODUCT", "z;square", lambda: kmt.VB_M_ProductAB(z, b=square).c),
    ("PRODUCTOFTRANSPOSED", "z;keys", lambda: kmt.VB_M_ProductTrAB(z, b=keys).c),
    ("PRODUCTWITHTRANSPOSED", "z;like", lambda: kmt.VB_M_ProductATrB(z, b=like).c),
    ("WEIGHTEDPRODUCT", "z;w", lambda: kmt.VB_M_ProductTrADiagVA(z, d=w).c),
    ("INNERPRODUCT", "y;w", lambda: kmt.VB_V_ProductTrV1V2(y, x2=w)),
    ("KRONECKER", "like;small", lambda: kmt.Cpp_KroneckerTensorProduct(like, b=small).c),
    ("TRANSPOSED", "table", lambda: kmt.VB_M_Transpose(table).y),
    ("TRACE", "square", lambda: kmt.VB_M_Trace(square)),
    ("DETERMINANT", "square", lambda: kmt.VB_M_Determinant(square).result),
    ("LOGDETERMINANT", "square", lambda: kmt.Cpp_M_LogDeterminant(square)),
    ("RANKOF", "z", lambda: kmt.VB_M_Rank(z)),
    ("INVERSE", "square", inverse),
    ("PSEUDOINVERSE", "square", lambda: kmt.VB_M_InvGeneralized(square, tolerance=1e-12).g),
    ("SWEPTINVERSE", "square", lambda: kmt.Cpp_M_InverseG2(square, tolerance=1e-12).g),
    ("SOLUTION", "square;small", lambda: changed(small, lambda b: kmt.VB_M_Gauss(in_order(square), b=b))),
    ("CHOLESKY", "square", lambda: kmt.VB_M_CholDecomp(square).l),
    ("LUFACTORS", "square", lambda: changed(square, kmt.VB_M_LUDecomp)),
    ("SQUAREROOT", "square", lambda: kmt.Cpp_M_SquareRoot(square).r),
    ("EIGENVALUES", "square", lambda: column(kmt.VB_M_Eigen(square, sortFlag=YES).values)),
    ("EIGENVECTORS", "square", lambda: kmt.VB_M_Eigen(square, sortFlag=YES).vectors),
    ("SINGULARVALUES", "z", lambda: column(singular(0))),
    ("LEFTSINGULARVECTORS", "z", lambda: singular_vectors("u", 20, ROWS)),
    ("RIGHTSINGULARVECTORS", "z", lambda: singular_vectors("v", 1, 3)),
    ("REGRESSION", "y;table", lambda: regression(ONES, 1, NO)),
    ("REGRESSION", "y;table;w;2", lambda: regression(w, 2, NO)),
    ("FITTED", "y;table;w;1;TRUE()", lambda: column(fitted(w, 1, YES))),
    ("UNEXPLAINED", "y;table", lambda: kmt.RunOLSBasic3(**complete(ONES), degree=1, noConstant=NO).sweptMatrix[-1, -1]),
    ("TOLERANCES", "like", tolerances),
    ("TRIANGULARBOUNDS", "1;2;4;0.1;0.9", lambda: row(*kmt.Cpp_TriangularQFindAB(1.0, 2.0, 4.0, 0.1, 0.9)[1:])),
    ("NIPALSFILLED", "table;1", lambda: changed(table, lambda a: kmt.Cpp_NIPALS(
        x=a, weights=ONES, tolerance=1e-8, components=1, columnShare=1.0, tableShare=1.0))),
    ("MEANFILLED", "table;w", lambda: changed(table, lambda a: kmt.VB_EstimateRowsWithMissingMean(a, rowFlags=flags(a), w=w))),
    ("NEARESTFILLED", "table", lambda: changed(table, lambda a: kmt.VB_EstimateRowsWithMissingNN(
        a, rowFlags=flags(a), secondColumns=0, thirdColumns=0, w=ONES))),
    ("MODEFILLED", "labels;w", lambda: changed(labels, lambda a: kmt.VB_EstimateRowsWithMissingMode(a, w=w))),
    ("VALUEFILLED", "table;-1.5", lambda: changed(table, lambda a: kmt.VB_M_ReplaceMissingByVal(a, val=-1.5))),
    ("COMPLETEROWS", "table", lambda: kmt.VB_RemoveRowsWithMissing(table, removed=2, flags=flags(table))[1]),
    ("MODE", "texts;w", lambda: mode(w)),
    ("TEXTWEIGHT", 'texts;"fig";w', lambda: kmt.VB_V_FreqStr(texts, w=w, value="fig")),
    ("CATEGORIES", "texts;w", lambda: category_list(w, YES)),
    ("CATEGORIES", "texts;;FALSE()", lambda: category_list(ONES, NO)),
    ("CATEGORYCOUNTS", "labels", lambda: row(kmt.Cpp_GetMaxCat(labels).categoryCounts)),
    ("DISJUNCTIVE", "labels", lambda: disjunctive(0, 2)),
    ("DISJUNCTIVE", "labels;3;0", lambda: disjunctive(3, 0)),
    ("CODED", "labels;5", lambda: coded(5)),
    ("JOINEDROWS", "labels", lambda: column(written(kmt.Cpp_M_MergeStringsByRow, ROWS, labels))),
    ("TRIMMED", "texts;;FALSE()", lambda: column(written(kmt.Cpp_V_Trim, ROWS, texts, bLeft=YES, bRight=NO))),
    ("LOGGAMMA", "4.25", lambda: special("_Z7GammaLnd", 4.25)),
    ("LOGBETA", "2.5;40", lambda: special("_Z6betalndd", 2.5, 40.0)),
    ("BETARATIO", "0.3;2.5;4", lambda: special("_Z15IncompleteBetaRddd", 0.3, 2.5, 4.0)),
    ("BETAINTEGRAL", "0.3;2.5;4", lambda: special("_Z14IncompleteBetaddd", 0.3, 2.5, 4.0)),
    ("LOGCOMBINATIONS", "50;7", lambda: special("_Z7cLogCnkdd", 50.0, 7.0)),
    ("RANDOM", "4;3;77", lambda: kmt.VB_M_GenerateRandom01(rows=4, cols=3, seed=seed(77), flag=YES).out),
    ("PERMUTATION", "9;77", lambda: column(permutation(9, 77))),
    ("SHUFFLED", "table;5", lambda: kmt.Cpp_M_ShuffleDbl(table, seed=seed(5), flag=YES).out),
    ("SUBSET", "9;4;77", lambda: column(kmt.VB_GenerateRandomIndicator(n=9, k=4, seed=seed(77), flag=YES).out)),
    ("SAMPLE", "9;4;77", lambda: column(sample(9, 4, 77))),
]
