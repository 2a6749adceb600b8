"""The worksheet functions. Made by tools/generate from functions.txt and the C headers: edit those instead."""

import korvelmathtools as kmt

from . import cells

# Name: whether its result is a table.
FUNCTIONS = {
    'SUM': False,
    'MEAN': False,
    'HARMONICMEAN': False,
    'GEOMETRICMEAN': False,
    'GEOMETRICDEVIATION': False,
    'VARIANCE': False,
    'DEVIATION': False,
    'SKEWNESS': False,
    'KURTOSIS': False,
    'MOMENTS': True,
    'MINIMUM': False,
    'MAXIMUM': False,
    'EXTREMES': True,
    'SUMOFSQUARES': False,
    'MEANABSOLUTE': False,
    'MEANDEVIATION': False,
    'MEDIANDEVIATION': False,
    'COUNTPRESENT': False,
    'COUNTMISSING': False,
    'FREQUENCY': False,
    'RUNNINGSUM': True,
    'ZSCORES': True,
    'RESCALED': True,
    'WINSORISED': True,
    'SCOREBOXES': True,
    'TIMESTEP': False,
    'MEANERROR': False,
    'MEANPERCENTERROR': False,
    'GROUPSUM': False,
    'GROUPMEAN': False,
    'GROUPVARIANCE': False,
    'GROUPMINIMUM': False,
    'GROUPMAXIMUM': False,
    'GROUPWEIGHT': False,
    'GROUPED': True,
    'DEDUPED': True,
    'MEDIAN': False,
    'QUANTILE': False,
    'QUANTILES': True,
    'RANKS': True,
    'SORTED': True,
    'SORTEDROWS': True,
    'SORTEDBY': True,
    'SORTEDTEXTS': True,
    'REVERSED': True,
    'DISTINCT': True,
    'COLUMNMEANS': True,
    'COLUMNSUMS': True,
    'ROWSUMS': True,
    'COLUMNSUMMARY': True,
    'COLUMNEXTREMES': True,
    'COVARIANCE': True,
    'CORRELATION': True,
    'CROSSCORRELATION': True,
    'PAIRCORRELATION': False,
    'COVARIANCETOCORRELATION': True,
    'CORRELATIONTOCOVARIANCE': True,
    'STANDARDISED': True,
    'CENTRED': True,
    'DISTANCES': True,
    'PRODUCT': True,
    'PRODUCTOFTRANSPOSED': True,
    'PRODUCTWITHTRANSPOSED': True,
    'WEIGHTEDPRODUCT': True,
    'INNERPRODUCT': False,
    'KRONECKER': True,
    'TRANSPOSED': True,
    'TRACE': False,
    'DETERMINANT': False,
    'LOGDETERMINANT': False,
    'RANKOF': False,
    'INVERSE': True,
    'PSEUDOINVERSE': True,
    'SWEPTINVERSE': True,
    'SOLUTION': True,
    'CHOLESKY': True,
    'LUFACTORS': True,
    'SQUAREROOT': True,
    'EIGENVALUES': True,
    'EIGENVECTORS': True,
    'SINGULARVALUES': True,
    'LEFTSINGULARVECTORS': True,
    'RIGHTSINGULARVECTORS': True,
    'REGRESSION': True,
    'FITTED': True,
    'UNEXPLAINED': False,
    'TOLERANCES': True,
    'TRIANGULARBOUNDS': True,
    'NIPALSFILLED': True,
    'MEANFILLED': True,
    'NEARESTFILLED': True,
    'MODEFILLED': True,
    'VALUEFILLED': True,
    'COMPLETEROWS': True,
    'MODE': False,
    'TEXTWEIGHT': False,
    'CATEGORIES': True,
    'CATEGORYCOUNTS': True,
    'DISJUNCTIVE': True,
    'CODED': True,
    'JOINEDROWS': True,
    'TRIMMED': True,
    'LOGGAMMA': False,
    'LOGBETA': False,
    'BETARATIO': False,
    'BETAINTEGRAL': False,
    'LOGCOMBINATIONS': False,
    'RANDOM': True,
    'PERMUTATION': True,
    'SHUFFLED': True,
    'SUBSET': True,
    'SAMPLE': True,
}


def SUM(x, weights=None):
    x = cells.vector(x)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_V_Sum, x=x, iMissing=cells.none(x), w=weights)
    return done.result


def MEAN(x, weights=None):
    x = cells.vector(x)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_V_Mean, x=x, iMissing=cells.none(x), w=weights)
    return done.result


def HARMONICMEAN(x, weights=None):
    x = cells.vector(x)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.Cpp_V_HarmonicMean, x=x, iMissing=cells.none(x), w=weights)
    return done.result


def GEOMETRICMEAN(x, weights=None):
    x = cells.vector(x)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.Cpp_V_GMeanGSD, x=x, iMissing=cells.none(x), w=weights)
    return done.gmean


def GEOMETRICDEVIATION(x, weights=None):
    x = cells.vector(x)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.Cpp_V_GMeanGSD, x=x, iMissing=cells.none(x), w=weights)
    return done.gsd


def VARIANCE(x, weights=None, unbiased=None, frequencies=None):
    x = cells.vector(x)
    unbiased = cells.flag(unbiased, left_out=True)
    frequencies = cells.flag(frequencies, left_out=False)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_V_Var, x=x, iMissing=cells.none(x), w=weights, bUnbiased=unbiased, bFreq=frequencies)
    return done.result


def DEVIATION(x, weights=None, unbiased=None, frequencies=None):
    x = cells.vector(x)
    unbiased = cells.flag(unbiased, left_out=True)
    frequencies = cells.flag(frequencies, left_out=False)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_V_Stdev, x=x, iMissing=cells.none(x), w=weights, bUnbiased=unbiased, bFreq=frequencies)
    return done.result


def SKEWNESS(x, weights=None):
    x = cells.vector(x)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_V_MeanVarSkewPKurtP, x=x, iMissing=cells.none(x), w=weights, bUnbiased=False, bFreq=False)
    return done.skew


def KURTOSIS(x, weights=None):
    x = cells.vector(x)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_V_MeanVarSkewPKurtP, x=x, iMissing=cells.none(x), w=weights, bUnbiased=False, bFreq=False)
    return done.kurt


def MOMENTS(x, weights=None):
    x = cells.vector(x)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_V_MeanVarSkewPKurtP, x=x, iMissing=cells.none(x), w=weights, bUnbiased=False, bFreq=False)
    return cells.row(done.mean, done.var, done.skewP, done.kurtP, done.skew, done.kurt, done.seSkew, done.seKurt)


def MINIMUM(x):
    x = cells.vector(x)
    done = cells.call(kmt.VB_V_Min, x=x, iMissing=cells.none(x))
    return done.result


def MAXIMUM(x):
    x = cells.vector(x)
    done = cells.call(kmt.VB_V_Max, x=x)
    return done.result


def EXTREMES(x):
    x = cells.vector(x)
    done = cells.call(kmt.VB_V_MinMax, x=x, iMissing=cells.none(x))
    return cells.row(done.min, done.max)


def SUMOFSQUARES(x, weights=None):
    x = cells.vector(x)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_V_SumSqW, x=x, w=weights)
    return done.result


def MEANABSOLUTE(x, weights=None):
    x = cells.vector(x)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_V_MeanAbs, x=x, iMissing=cells.none(x), w=weights)
    return done.result


def MEANDEVIATION(x, centre, weights=None):
    x = cells.vector(x)
    centre = cells.number(centre)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.Cpp_V_MeanAbsDev, x=x, centre=centre, iMissing=cells.none(x), w=weights)
    return done.result


def MEDIANDEVIATION(x, centre, weights=None):
    x = cells.vector(x)
    centre = cells.number(centre)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.Cpp_V_MedianAbsDev, x=x, centre=centre, iMissing=cells.none(x), w=weights)
    return done.result


def COUNTPRESENT(x):
    x = cells.vector(x)
    done = cells.call(kmt.VB_V_NbNonMissing, x=x)
    return done.result


def COUNTMISSING(x):
    x = cells.vector(x)
    done = cells.call(kmt.VB_V_NbMissing, x=x)
    return done.result


def FREQUENCY(x, value, tolerance=None, weights=None):
    x = cells.vector(x)
    value = cells.number(value)
    tolerance = cells.number(tolerance, 0, 1e+300, left_out=1e-09)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_V_Freq, x=x, w=weights, value=value, tol=tolerance)
    return done.result


def RUNNINGSUM(x):
    x = cells.numbers(x)
    done = cells.call(kmt.Cpp_V_CuSum, x=x)
    return cells.column(done.out)


def ZSCORES(x, robust=None):
    x = cells.vector(x)
    robust = cells.flag(robust, left_out=False)
    its_centre = cells.cell(cells.MISSING)
    its_scale = cells.cell(cells.MISSING)
    done = cells.call(kmt.Cpp_V_ZScores, x=x, bRobust=robust, centre=its_centre, scale=its_scale)
    return cells.column(done.out)


def RESCALED(x, low=None, high=None):
    x = cells.vector(x)
    low = cells.number(low, left_out=0)
    high = cells.number(high, left_out=1)
    done = cells.call(kmt.VB_V_Rescale, x=x, lo=low, hi=high, iMissing=cells.gaps(x))
    return cells.column(done.out)


def WINSORISED(x, low=None, high=None):
    x = cells.vector(x)
    low = cells.number(low, 0, 1, left_out=0.05)
    high = cells.number(high, 0, 1, left_out=0.95)
    done = cells.call(kmt.Cpp_V_Winsorize2, x=x, qLow=low, qHigh=high)
    return cells.column(x)


def SCOREBOXES(x, weights=None):
    x = cells.vector(x)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.Cpp_V_TopBottom3Box, x=x, w=weights)
    return cells.row(done.top1, done.bottom1, done.top2, done.bottom2, done.top3, done.bottom3)


def TIMESTEP(x, sort=None):
    x = cells.numbers(x)
    sort = cells.flag(sort, left_out=False)
    done = cells.call(kmt.VB_V_TimeIntervalSize, x=x, bSort=sort)
    return done.result


def MEANERROR(actual, predicted, weights=None):
    actual = cells.numbers(actual)
    predicted = cells.numbers(predicted)
    weights = cells.weights(weights, actual)
    cells.as_many(actual, predicted)
    done = cells.call(kmt.VB_MAE, actual=actual, predicted=predicted, w=weights, first=1)
    return done.result


def MEANPERCENTERROR(actual, predicted, weights=None):
    actual = cells.numbers(actual)
    predicted = cells.numbers(predicted)
    weights = cells.weights(weights, actual)
    cells.as_many(actual, predicted)
    done = cells.call(kmt.VB_MAPE, actual=actual, predicted=predicted, w=weights, first=1)
    return done.result


def GROUPSUM(y, codes, code, weights=None):
    y = cells.vector(y)
    codes = cells.vector(codes)
    code = cells.number(code)
    weights = cells.weights(weights, y)
    cells.as_many(y, codes)
    done = cells.call(kmt.VB_V_SumIfW, y=y, g=codes, w=weights, val=code)
    return done.result


def GROUPMEAN(y, codes, code, weights=None):
    y = cells.vector(y)
    codes = cells.vector(codes)
    code = cells.number(code)
    weights = cells.weights(weights, y)
    cells.as_many(y, codes)
    done = cells.call(kmt.VB_V_MeanIfW, y=y, g=codes, w=weights, val=code)
    return done.result


def GROUPVARIANCE(y, codes, code, weights=None, unbiased=None):
    y = cells.vector(y)
    codes = cells.vector(codes)
    code = cells.number(code)
    unbiased = cells.flag(unbiased, left_out=True)
    weights = cells.weights(weights, y)
    cells.as_many(y, codes)
    done = cells.call(kmt.Cpp_V_VarIfW, y=y, g=codes, w=weights, val=code, bUnbiased=unbiased)
    return done.result


def GROUPMINIMUM(y, codes, code):
    y = cells.vector(y)
    codes = cells.vector(codes)
    code = cells.number(code)
    cells.as_many(y, codes)
    done = cells.call(kmt.VB_V_MinIf, y=y, g=codes, val=code)
    return done.result


def GROUPMAXIMUM(y, codes, code):
    y = cells.vector(y)
    codes = cells.vector(codes)
    code = cells.number(code)
    cells.as_many(y, codes)
    done = cells.call(kmt.VB_V_MaxIf, y=y, g=codes, val=code)
    return done.result


def GROUPWEIGHT(x, value, weights=None):
    x = cells.vector(x)
    value = cells.number(value)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_V_NbIfW, x=x, w=weights, val=value)
    return done.result


def GROUPED(x, key=None, method=None, weights=None):
    x = cells.table(x)
    key = cells.integer(key, left_out=1)
    method = cells.integer(method, 0, 7, left_out=1)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_M_GroupByW, x=x, kinds=cells.noIntegers(cells.columns(x)), groupCol=cells.within(key, cells.columns(x)), method=method, w=weights)
    return cells.leading(done.out, done.nOut)


def DEDUPED(x):
    x = cells.table(x)
    done = cells.call(kmt.VB_M_Dedupe, x=cells.numbered(x), p=cells.columns(x))
    return cells.leading(done.out, done.nOut)


def MEDIAN(x, weights=None):
    x = cells.vector(x)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_V_QuantileMW, x=x, iMissing=cells.none(x), w=weights, q=0.5)
    return done.result


def QUANTILE(x, q, weights=None):
    x = cells.vector(x)
    q = cells.number(q, 0, 1)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_V_QuantileMW, x=x, iMissing=cells.none(x), w=weights, q=q)
    return done.result


def QUANTILES(x):
    x = cells.vector(x)
    its_x = cells.present(x)
    done = cells.call(kmt.Cpp_V_Quantiles13, x=its_x)
    return cells.column(done.out)


def RANKS(x, weights=None):
    x = cells.vector(x)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_V_GetRanksTiesDbl, x=x, bRestore=True, w=weights)
    return cells.column(done.ranks)


def SORTED(x, key=None, descending=None):
    x = cells.table(x)
    key = cells.integer(key, left_out=1)
    descending = cells.flag(descending, left_out=False)
    done = cells.call(kmt.Cpp_SortQMatrixCol, x=x, keyCol=cells.within(key, cells.columns(x)), from_=1, to=cells.rows(x), bDesc=descending)
    return x


def SORTEDROWS(x):
    x = cells.table(x)
    done = cells.call(kmt.VB_SortMatrixSeqQDbl, x=x)
    return x


def SORTEDBY(x, key, descending=None):
    x = cells.table(x)
    key = cells.vector(key)
    descending = cells.flag(descending, left_out=False)
    cells.as_many(x, key)
    done = cells.call(kmt.VB_SortQDbl, x=x, from_=1, to=cells.rows(x), key=key, auxCols=-1, bDesc=descending, bSortKey=False)
    return x


def SORTEDTEXTS(x, key=None, descending=None):
    x = cells.labels(x)
    key = cells.integer(key, left_out=1)
    descending = cells.flag(descending, left_out=False)
    done = cells.call(kmt.Cpp_SortQMatrixColStr, x=x, keyCol=cells.within(key, cells.columns(x)), from_=1, to=cells.rows(x), bDesc=descending)
    return x


def REVERSED(x):
    x = cells.vector(x)
    done = cells.call(kmt.VB_V_ReverseDbl, x=x)
    return cells.column(done.out)


def DISTINCT(x):
    x = cells.vector(x)
    done = cells.call(kmt.VB_V_ExtractDistinct, x=cells.present(x))
    return cells.column(cells.leading(done.out, done.nOut))


def COLUMNMEANS(x, weights=None):
    x = cells.table(x)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_M_Mean, x=x, w=weights)
    return cells.row(done.means)


def COLUMNSUMS(x):
    x = cells.table(x)
    done = cells.call(kmt.VB_M_SumByCols, x=x)
    return cells.row(done.out)


def ROWSUMS(x):
    x = cells.table(x)
    done = cells.call(kmt.VB_M_SumByRows, x=x)
    return cells.column(done.out)


def COLUMNSUMMARY(x, weights=None, unbiased=None):
    x = cells.table(x)
    unbiased = cells.flag(unbiased, left_out=True)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_M_MeanStDevVar, x=x, w=weights, bUnbiased=unbiased, bFreq=False)
    return cells.below(cells.row(done.means), cells.row(done.sds), cells.row(done.vars))


def COLUMNEXTREMES(x):
    x = cells.table(x)
    done = cells.call(kmt.VB_M_MinMax, x=x, flag=True)
    return cells.below(cells.row(done.mins), cells.row(done.maxs))


def COVARIANCE(x, weights=None, unbiased=None, frequencies=None):
    x = cells.table(x)
    unbiased = cells.flag(unbiased, left_out=True)
    frequencies = cells.flag(frequencies, left_out=False)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_M_CovCorr, x=x, bCorr=False, w=weights, bUnbiased=unbiased, bFreq=frequencies, bUndefinedIsZero=False)
    return done.out


def CORRELATION(x, weights=None):
    x = cells.table(x)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_M_CovCorr, x=x, bCorr=True, w=weights, bUnbiased=True, bFreq=False, bUndefinedIsZero=False)
    return done.out


def CROSSCORRELATION(x, y, weights=None):
    x = cells.table(x)
    y = cells.table(y)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_M_CorrMatMat, x=x, y=y, w=weights, bCorr=True, bSquare=False, bUnbiased=True, bFreq=False, bUndefinedIsZero=False)
    return done.out


def PAIRCORRELATION(x, y, weights=None):
    x = cells.vector(x)
    y = cells.vector(y)
    weights = cells.weights(weights, x)
    cells.as_many(x, y)
    done = cells.call(kmt.Cpp_V_Correl2W, x=x, y=y, w=weights)
    return done.result


def COVARIANCETOCORRELATION(covariances):
    covariances = cells.square(covariances, 1000)
    done = cells.call(kmt.VB_M_CorrMatFromCovMat, cov=covariances, bUndefinedIsZero=False)
    return done.out


def CORRELATIONTOCOVARIANCE(correlations, variances):
    correlations = cells.square(correlations, 1000)
    variances = cells.numbers(variances)
    cells.as_many(correlations, variances)
    done = cells.call(kmt.Cpp_M_CovMatFromCorrMat, corr=correlations, vars=variances)
    return done.out


def STANDARDISED(x, weights=None, unbiased=None):
    x = cells.table(x)
    unbiased = cells.flag(unbiased, left_out=True)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_M_StandardizeW, x=x, w=weights, bUnbiased=unbiased, bFreq=False)
    return done.out


def CENTRED(x, weights=None):
    x = cells.table(x)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_M_CenterW, x=x, w=weights)
    return done.out


def DISTANCES(x):
    x = cells.full(x, 2000)
    done = cells.call(kmt.VB_M_EuclidDist2, x=x, w=cells.ones(cells.columns(x)), bRows=True, nRows=cells.rows(x))
    return done.out


def PRODUCT(a, b):
    a = cells.full(a, 2000)
    b = cells.full(b, 2000)
    done = cells.call(kmt.VB_M_ProductAB, a=a, b=b)
    return done.c


def PRODUCTOFTRANSPOSED(a, b):
    a = cells.full(a)
    b = cells.full(b)
    done = cells.call(kmt.VB_M_ProductTrAB, a=a, b=b)
    return done.c


def PRODUCTWITHTRANSPOSED(a, b):
    a = cells.full(a, 2000)
    b = cells.full(b, 2000)
    done = cells.call(kmt.VB_M_ProductATrB, a=a, b=b)
    return done.c


def WEIGHTEDPRODUCT(a, d):
    a = cells.full(a)
    d = cells.numbers(d)
    cells.as_many(a, d)
    done = cells.call(kmt.VB_M_ProductTrADiagVA, a=a, d=d)
    return done.c


def INNERPRODUCT(a, b):
    a = cells.numbers(a)
    b = cells.numbers(b)
    cells.as_many(a, b)
    done = cells.call(kmt.VB_V_ProductTrV1V2, x1=a, x2=b)
    return done.result


def KRONECKER(a, b):
    a = cells.full(a)
    b = cells.full(b)
    done = cells.call(kmt.Cpp_KroneckerTensorProduct, a=cells.withRoom(a, b), b=b)
    return done.c


def TRANSPOSED(x):
    x = cells.table(x, 2000)
    done = cells.call(kmt.VB_M_Transpose, x=x)
    return done.y


def TRACE(a):
    a = cells.square(a, 1000)
    done = cells.call(kmt.VB_M_Trace, a=a)
    return done.result


def DETERMINANT(a):
    a = cells.square(a, 1000)
    done = cells.call(kmt.VB_M_Determinant, a=a)
    cells.fail_if(done.status != 0, 'the determinant cannot be computed')
    return done.result


def LOGDETERMINANT(a):
    a = cells.square(a, 1000)
    done = cells.call(kmt.Cpp_M_LogDeterminant, a=a)
    return done.result


def RANKOF(a):
    a = cells.full(a, 1000)
    done = cells.call(kmt.VB_M_Rank, a=a)
    cells.fail_if(done.result < 0, 'the decomposition has not converged')
    return done.result


def INVERSE(a):
    a = cells.square(a, 1000)
    its_error = cells.mark(0)
    done = cells.call(kmt.VB_M_Inverse1, a=a, error=its_error, tolerance=1)
    cells.fail_if(done.result != 0, 'the table is singular')
    return done.inverse


def PSEUDOINVERSE(a, tolerance=None):
    a = cells.square(a, 1000)
    tolerance = cells.number(tolerance, 0, 1e+300, left_out=1e-12)
    done = cells.call(kmt.VB_M_InvGeneralized, a=a, tolerance=tolerance)
    cells.fail_if(done.result != 0, 'the decomposition has not converged')
    return done.g


def SWEPTINVERSE(a, tolerance=None):
    a = cells.square(a, 1000)
    tolerance = cells.number(tolerance, 0, 1e+300, left_out=1e-12)
    done = cells.call(kmt.Cpp_M_InverseG2, a=a, tolerance=tolerance)
    return done.g


def SOLUTION(a, b):
    a = cells.square(a, 1000)
    b = cells.full(b)
    done = cells.call(kmt.VB_M_Gauss, a=a, b=b)
    cells.fail_if(done.result != 0, 'a pivot is 0')
    return b


def CHOLESKY(a):
    a = cells.square(a, 1000)
    done = cells.call(kmt.VB_M_CholDecomp, a=a)
    cells.fail_if(done.result != 0, 'the table is not positive definite')
    return done.l


def LUFACTORS(a):
    a = cells.square(a, 1000)
    done = cells.call(kmt.VB_M_LUDecomp, a=a)
    cells.fail_if(done.status != 0, 'a row has only zeros')
    return a


def SQUAREROOT(a):
    a = cells.square(a, 1000)
    done = cells.call(kmt.Cpp_M_SquareRoot, a=a)
    cells.fail_if(done.result != 0, 'the table is not positive semidefinite')
    return done.r


def EIGENVALUES(a):
    a = cells.square(a, 1000)
    done = cells.call(kmt.VB_M_Eigen, a=a, sortFlag=True)
    cells.fail_if(done.result != 0, 'an eigenvalue was not found')
    return cells.column(done.values)


def EIGENVECTORS(a):
    a = cells.square(a, 1000)
    done = cells.call(kmt.VB_M_Eigen, a=a, sortFlag=True)
    cells.fail_if(done.result != 0, 'an eigenvalue was not found')
    return done.vectors


def SINGULARVALUES(a):
    a = cells.full(a, 2000)
    done = cells.call(kmt.VB_M_SVDecomp, a=a, job=0)
    cells.fail_if(done.info != 0, 'a singular value was not found')
    return cells.column(cells.leading(done.s, cells.least(cells.rows(a), cells.columns(a))))


def LEFTSINGULARVECTORS(a):
    a = cells.full(a, 1000)
    its_u = cells.zeros(cells.rows(a), cells.rows(a))
    done = cells.call(kmt.VB_M_SVDecomp, a=a, job=20, u=its_u)
    cells.fail_if(done.info != 0, 'a singular value was not found')
    return cells.leadingColumns(its_u, cells.least(cells.rows(a), cells.columns(a)))


def RIGHTSINGULARVECTORS(a):
    a = cells.full(a, 2000)
    its_v = cells.zeros(cells.columns(a), cells.columns(a))
    done = cells.call(kmt.VB_M_SVDecomp, a=a, job=1, v=its_v)
    cells.fail_if(done.info != 0, 'a singular value was not found')
    return cells.leadingColumns(its_v, cells.least(cells.rows(a), cells.columns(a)))


def REGRESSION(y, x, weights=None, degree=None, noConstant=None):
    y = cells.vector(y)
    x = cells.table(x)
    degree = cells.integer(degree, 1, 9, left_out=1)
    noConstant = cells.flag(noConstant, left_out=False)
    weights = cells.weights(weights, y)
    kept = cells.complete(y, x)
    done = cells.call(kmt.RunOLSBasic2, y=cells.keep(y, kept), x=cells.keep(x, kept), weights=cells.keep(weights, kept), degree=cells.power(degree, x), interactions=False, noConstant=noConstant, tolerance=1e-09)
    return cells.beside(cells.column(done.coefficients), cells.column(done.standardErrors))


def FITTED(y, x, weights=None, degree=None, noConstant=None):
    y = cells.vector(y)
    x = cells.table(x)
    degree = cells.integer(degree, 1, 9, left_out=1)
    noConstant = cells.flag(noConstant, left_out=False)
    weights = cells.weights(weights, y)
    kept = cells.complete(y, x)
    done = cells.call(kmt.RunOLSBasic, y=cells.keep(y, kept), x=cells.keep(x, kept), weights=cells.keep(weights, kept), degree=cells.power(degree, x), interactions=False, noConstant=noConstant, tolerance=1e-09)
    return cells.column(cells.spread(done.fitted, kept))


def UNEXPLAINED(y, x, weights=None, degree=None, noConstant=None):
    y = cells.vector(y)
    x = cells.table(x)
    degree = cells.integer(degree, 1, 9, left_out=1)
    noConstant = cells.flag(noConstant, left_out=False)
    weights = cells.weights(weights, y)
    kept = cells.complete(y, x)
    done = cells.call(kmt.RunOLSBasic3, y=cells.keep(y, kept), x=cells.keep(x, kept), weights=cells.keep(weights, kept), degree=cells.power(degree, x), interactions=False, noConstant=noConstant, tolerance=1e-09)
    return cells.last(done.sweptMatrix)


def TOLERANCES(correlations, tolerance=None):
    correlations = cells.square(correlations, 1000)
    tolerance = cells.number(tolerance, 0, 1, left_out=1e-09)
    its_tolerances = cells.zeros(cells.rows(correlations), 1)
    its_inflationFactors = cells.zeros(cells.rows(correlations), 1)
    done = cells.call(kmt.VB_CheckTolerance, r=correlations, groupSelection=cells.ones(1), groupNumbers=cells.ones(cells.rows(correlations)), tolerance=tolerance, duplicates=False, entered=False, reverse=False, skipGroup=False, tolerances=its_tolerances, inflationFactors=its_inflationFactors)
    return cells.beside(cells.column(its_tolerances), cells.column(its_inflationFactors))


def TRIANGULARBOUNDS(low, mode, high, lowProbability, highProbability):
    low = cells.number(low)
    mode = cells.number(mode)
    high = cells.number(high)
    lowProbability = cells.number(lowProbability, 0, 1)
    highProbability = cells.number(highProbability, 0, 1)
    done = cells.call(kmt.Cpp_TriangularQFindAB, q1=low, mode=mode, q2=high, p1=lowProbability, p2=highProbability)
    return cells.row(done.a, done.b)


def NIPALSFILLED(x, components=None, weights=None, tolerance=None):
    x = cells.table(x)
    components = cells.integer(components, 0, 100, left_out=2)
    tolerance = cells.number(tolerance, 1e-14, 1, left_out=1e-08)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.Cpp_NIPALS, x=x, weights=weights, tolerance=tolerance, components=components, columnShare=1, tableShare=1)
    cells.fail_if(done.result != 0, 'a component was not found')
    return x


def MEANFILLED(x, weights=None):
    x = cells.table(x)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_EstimateRowsWithMissingMean, x=x, rowFlags=cells.gaps(x), w=weights)
    return x


def NEARESTFILLED(x, weights=None):
    x = cells.table(x, 5000)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_EstimateRowsWithMissingNN, primary=x, rowFlags=cells.gaps(x), secondColumns=0, thirdColumns=0, w=weights)
    return x


def MODEFILLED(x, weights=None):
    x = cells.labels(x)
    weights = cells.weights(weights, x)
    done = cells.call(kmt.VB_EstimateRowsWithMissingMode, x=x, w=weights)
    return x


def VALUEFILLED(x, value):
    x = cells.table(x)
    value = cells.number(value)
    done = cells.call(kmt.VB_M_ReplaceMissingByVal, x=x, val=value)
    return x


def COMPLETEROWS(x):
    x = cells.table(x)
    done = cells.call(kmt.VB_RemoveRowsWithMissing, x=x, removed=cells.count(cells.gaps(x)), flags=cells.gaps(x))
    return done[1]


def MODE(labels, weights=None):
    labels = cells.texts(labels)
    weights = cells.weights(weights, labels)
    its_mode = cells.emptyTexts(1)
    done = cells.call(kmt.VB_V_Mode, labels=labels, w=weights, mode=its_mode)
    return its_mode


def TEXTWEIGHT(labels, value, weights=None):
    labels = cells.texts(labels)
    value = cells.text(value)
    weights = cells.weights(weights, labels)
    done = cells.call(kmt.VB_V_FreqStr, labels=labels, w=weights, value=value)
    return done.result


def CATEGORIES(labels, weights=None, sort=None):
    labels = cells.texts(labels)
    sort = cells.flag(sort, left_out=True)
    weights = cells.weights(weights, labels)
    done = cells.call(kmt.VB_M_InfoQuali2, data=labels, p=1, width=cells.distinctTexts(labels), weights=weights, sort=sort)
    return cells.beside(cells.column(done.categories), cells.column(done.frequencies))


def CATEGORYCOUNTS(data):
    data = cells.labels(data)
    done = cells.call(kmt.Cpp_GetMaxCat, data=data)
    return cells.row(done.categoryCounts)


def DISJUNCTIVE(data, coding=None, first=None):
    data = cells.labels(data)
    coding = cells.integer(coding, 0, 3, left_out=0)
    first = cells.integer(first, 0, 2, left_out=2)
    found = cells.call(kmt.VB_M_InfoQuali2, data=data, width=cells.distinctTexts(data), weights=cells.ones(cells.rows(data)), sort=True)
    done = cells.call(kmt.VB_BuildDisjunctiveTable, data=data, totalColumns=cells.within(found.total, cells.mostColumns(data)), categoryCounts=found.categoryCounts, categories=found.categories, frequencies=found.frequencies, coding=coding, firstCategoryOption=first)
    return done[1]


def CODED(data, first=None):
    data = cells.labels(data)
    first = cells.integer(first, left_out=1)
    found = cells.call(kmt.VB_M_InfoQuali2, data=data, width=cells.distinctTexts(data), weights=cells.ones(cells.rows(data)), sort=True)
    done = cells.call(kmt.VB_M_ReplaceStrByCodes, data=data, categoryCounts=found.categoryCounts, categories=found.categories, rowFlags=cells.none(data), firstCode=first)
    return done[1]


def JOINEDROWS(x):
    x = cells.labels(x)
    its_out = cells.emptyTexts(cells.rows(x))
    done = cells.call(kmt.Cpp_M_MergeStringsByRow, x=x, out=its_out)
    return cells.column(its_out)


def TRIMMED(labels, left=None, right=None):
    labels = cells.texts(labels)
    left = cells.flag(left, left_out=True)
    right = cells.flag(right, left_out=True)
    its_out = cells.emptyTexts(cells.rows(labels))
    done = cells.call(kmt.Cpp_V_Trim, labels=labels, bLeft=left, bRight=right, out=its_out)
    return cells.column(its_out)


def LOGGAMMA(x):
    x = cells.number(x, -6.5, 1e+300)
    done = cells.call_core('_Z7GammaLnd', x)
    return done.result


def LOGBETA(a, b):
    a = cells.number(a, 0, 1e+300)
    b = cells.number(b, 0, 1e+300)
    done = cells.call_core('_Z6betalndd', a, b)
    return done.result


def BETARATIO(x, a, b):
    x = cells.number(x, 0, 1)
    a = cells.number(a, 0, 1e+300)
    b = cells.number(b, 0, 1e+300)
    done = cells.call_core('_Z15IncompleteBetaRddd', x, a, b)
    return done.result


def BETAINTEGRAL(x, a, b):
    x = cells.number(x, 0, 1)
    a = cells.number(a, 0, 1e+300)
    b = cells.number(b, 0, 1e+300)
    done = cells.call_core('_Z14IncompleteBetaddd', x, a, b)
    return done.result


def LOGCOMBINATIONS(n, k):
    n = cells.number(n, 0, 10000000.0)
    k = cells.number(k, 0, 10000000.0)
    done = cells.call_core('_Z7cLogCnkdd', n, k)
    return done.result


def RANDOM(rows, columns, seed):
    rows = cells.integer(rows, 1, 10000)
    columns = cells.integer(columns, 1, 400)
    seed = cells.integer(seed, 1, 2147483398)
    its_seed = cells.one(seed)
    done = cells.call(kmt.VB_M_GenerateRandom01, rows=rows, cols=columns, seed=its_seed, flag=True)
    return done.out


def PERMUTATION(n, seed):
    n = cells.integer(n, 1, 1000000)
    seed = cells.integer(seed, 1, 2147483398)
    its_out = cells.zeros(n, 1)
    its_seed = cells.one(seed)
    its_flag = cells.mark(-1)
    done = cells.call(kmt.Cpp_Random1toNDbl, out=its_out, n=n, bReset=True, seed=its_seed, flag=its_flag)
    return cells.column(its_out)


def SHUFFLED(x, seed):
    x = cells.table(x)
    seed = cells.integer(seed, 1, 2147483398)
    its_seed = cells.one(seed)
    done = cells.call(kmt.Cpp_M_ShuffleDbl, x=x, seed=its_seed, flag=True)
    return done.out


def SUBSET(n, k, seed):
    n = cells.integer(n, 1, 1000000)
    k = cells.integer(k, 0, 1000000)
    seed = cells.integer(seed, 1, 2147483398)
    its_seed = cells.one(seed)
    done = cells.call(kmt.VB_GenerateRandomIndicator, n=n, k=k, seed=its_seed, flag=True)
    return cells.column(done.out)


def SAMPLE(n, k, seed):
    n = cells.integer(n, 1, 100000)
    k = cells.integer(k, 1, 100000)
    seed = cells.integer(seed, 1, 2147483398)
    its_sample = cells.emptyTexts(k)
    its_seed = cells.one(seed)
    done = cells.call(kmt.VB_M_SamplingWithReplacement, table=cells.emptyTexts(n), k=k, sample=its_sample, seed=its_seed, flag=True)
    return cells.column(done.selected)
