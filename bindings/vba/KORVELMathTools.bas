Attribute VB_Name = "KORVELMathTools"
Option Explicit

' The flat functions of KORVELMathTools.dll, for 64-bit hosts. Made by tools/generate: edit the C headers instead.
'
' What a parameter's type asks for:
'
' ByRef x As Double, Long, Integer   the first element of an array, x(0) or x(1, 1) as its bounds are, or a variable
'                                    for a single result. Tables are stored column after column, as Visual Basic
'                                    stores them. Integer arrays of Booleans hold True as -1 and False as 0.
' ByRef x As Any                     an array that may be absent: its first element as above, of the type that the
'                                    comment names, or ByVal KORVEL_NULL.
' ByRef x() As Double                a whole dynamic array. The function may resize it.
' ByVal x As LongPtr                 the address of what Visual Basic cannot hand over as it is:
'   a block of texts                 VarPtr(x(0)), with x an array of String
'   one text                         StrPtr(x)
'   a host array of String           VarPtr(holder) + 8, where holder is a Variant that holds the array (ReDim holder(1
'                                    To 9) As String): as an array parameter its texts would arrive in 8-bit characters
'   chunked tables                   the address of the array variable that holds the column records
'   records                          VarPtr(record)
' ByVal x As String                  a short label in 8-bit characters.
'
' KORVEL_NULL stands for an array, block or record that is absent, where the function allows that.

Public Const KORVEL_NULL As LongPtr = 0

' ---- apply_order.h

' Takes the rows of a table of numbers in a given order: row i of the result is row order[i] of the
' table.
Public Declare PtrSafe Function VB_SortApply Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef order As Double, _
    ByRef out As Double) As Long

' Takes the rows of a table of integers in a given order: row i of the result is row order[i] of the
' table.
Public Declare PtrSafe Function VB_SortApplyLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByRef order As Double, _
    ByRef out As Long) As Long

' Takes the rows of a table of texts in a given order: row i of the result is row order[i] of the
' table.
Public Declare PtrSafe Function VB_SortApplyStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef order As Double, _
    ByVal out As LongPtr) As Long

' Puts the rows of a table of numbers into a given order, in place: row i becomes what row order[i]
' was.
Public Declare PtrSafe Function VB_SortApply2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef order As Double) As Long

' Puts the rows of a table of integers into a given order, in place: row i becomes what row order[i]
' was.
Public Declare PtrSafe Function VB_SortApply2Lng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByRef order As Double) As Long

' Puts the rows of a table of texts into a given order, in place: row i becomes what row order[i]
' was.
Public Declare PtrSafe Function VB_SortApply2Str Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef order As Double) As Long

' Puts the rows of a table of flags into a given order, in place: row i becomes what row order[i]
' was.
Public Declare PtrSafe Function Cpp_SortApply2Bool Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal rows As Long, ByVal cols As Long, ByRef order As Double) As Long

' Puts the rows of a record of labelled columns of numbers into a given order, in place: row i
' becomes what row order[i] was.
Public Declare PtrSafe Function Cpp_SortApply2_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef order As Double) As Long

' ---- containers.h

' Tells whether a number is missing: whether it is at or below the sentinel -1.79769313486231e308.
Public Declare PtrSafe Function VB_IsMissingValueDbl Lib "KORVELMathTools.dll" ( _
    ByVal x As Double) As Integer

' Tells whether a cell, rendered as text, is empty.
Public Declare PtrSafe Function VB_IsMissingValueStr Lib "KORVELMathTools.dll" ( _
    ByRef cell As Variant) As Integer

' The block of texts behind a host array, for functions that take such a block.
Public Declare PtrSafe Function ExtractBSTR Lib "KORVELMathTools.dll" ( _
    ByVal sa As LongPtr) As LongPtr

' Sends a line to the debugger: the label, a blank, the value with 16 decimals in a field of 36, a
' line end.
Public Declare PtrSafe Sub dprint Lib "KORVELMathTools.dll" ( _
    ByVal value As Double, ByVal label As String)

' ---- sort_table.h

' Orders the rows of a table of numbers by a key, on copies that then replace the caller's arrays.
Public Declare PtrSafe Function VB_SortQDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByRef aux As Double, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a table of numbers by a key, in the caller's arrays.
Public Declare PtrSafe Function VB_SortQDbl2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByRef aux As Double, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the columns of a table of numbers by a key with one entry a column: the column of rank k,
' from 0, goes to column from + k.
Public Declare PtrSafe Function VB_SortQByColDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByRef aux As Double, ByVal auxRows As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a table of integers by a key of integers.
Public Declare PtrSafe Function VB_SortQLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Long, ByRef aux As Long, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a table of flags by a key of numbers.
Public Declare PtrSafe Function VB_SortQBool Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByRef aux As Integer, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a table of texts by a key of numbers.
Public Declare PtrSafe Function VB_SortQStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByVal aux As LongPtr, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a record of labelled columns of numbers by a key.
Public Declare PtrSafe Function Cpp_SortQDbl_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByRef aux As Double, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a table of integers, a single array that comes out of a record, by a key of
' integers.
Public Declare PtrSafe Function Cpp_SortQLng_ST Lib "KORVELMathTools.dll" ( _
    ByRef x() As Long, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Long, ByRef aux As Long, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a record of labelled columns of texts by a key.
Public Declare PtrSafe Function Cpp_SortQStr_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByVal aux As LongPtr, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Puts the rows of a table of numbers with key 0 first, in their order, then those with key 1.
Public Declare PtrSafe Function VB_SortDataBy01 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef key As Double) As Long

' Puts the rows of a table of flags with key 0 first, in their order, then those with key 1.
Public Declare PtrSafe Function VB_SortDataBy01Bool Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal rows As Long, ByVal cols As Long, ByRef key As Double) As Long

' Puts the rows of a table of texts with key 0 first, in their order, then those with key 1.
Public Declare PtrSafe Function VB_SortDataBy01Str Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef key As Double) As Long

' Orders rows from..to of a table of numbers by one of its columns, all columns moving.
Public Declare PtrSafe Function Cpp_SortQMatrixCol Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal keyCol As Long, _
    ByVal from As Long, ByVal toValue As Long, ByVal bDesc As Integer) As Long

' Orders rows from..to of a table of integers by one of its columns, all columns moving.
Public Declare PtrSafe Function Cpp_SortQMatrixColLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByVal keyCol As Long, _
    ByVal from As Long, ByVal toValue As Long, ByVal bDesc As Integer) As Long

' Orders rows from..to of a table of texts by one of its columns, by 16-bit code units, all columns
' moving.
Public Declare PtrSafe Function Cpp_SortQMatrixColStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal keyCol As Long, _
    ByVal from As Long, ByVal toValue As Long, ByVal bDesc As Integer) As Long

' Orders all rows of a table of numbers, ascending, by column 1, then column 2, and so on.
Public Declare PtrSafe Function VB_SortMatrixSeqQDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Long

' Orders all rows of a table of integers, ascending, by column 1, then column 2, and so on.
Public Declare PtrSafe Function VB_SortMatrixSeqQLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long) As Long

' Sorts all rows of a table of numbers, ascending, by column p1, then again by the next, up to p2:
' column p2 orders first, then the one before it.
Public Declare PtrSafe Function VB_SortMatrixSeqQP1toP2Dbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal p1 As Long, ByVal p2 As Long) As Long

' Sorts all rows of a table of integers, ascending, by column p1, then again by the next, up to p2:
' column p2 orders first, then the one before it.
Public Declare PtrSafe Function VB_SortMatrixSeqQP1toP2Lng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByVal p1 As Long, ByVal p2 As Long) As Long

' ---- sort_vector.h

' Sorts positions `from..to` of a vector of numbers.
Public Declare PtrSafe Function VB_SortQVectorDbl Lib "KORVELMathTools.dll" ( _
    ByRef sa() As Double, ByVal ignored As Long, ByVal from As Long, ByVal toValue As Long, _
    ByVal bDesc As Integer) As Long

' Sorts positions `from..to` of a vector of integers.
Public Declare PtrSafe Function VB_SortQVectorLng Lib "KORVELMathTools.dll" ( _
    ByRef sa() As Long, ByVal ignored As Long, ByVal from As Long, ByVal toValue As Long, _
    ByVal bDesc As Integer) As Long

' Sorts positions `from..to` of a vector of texts by 16-bit code units, a prefix before its
' extensions.
Public Declare PtrSafe Function VB_SortQVectorStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal from As Long, ByVal toValue As Long, _
    ByVal bDesc As Integer) As Long

' Sorts positions `from..to` of a vector of texts, and tells where each text came from.
Public Declare PtrSafe Function Cpp_SortQVector2Str Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal from As Long, ByVal toValue As Long, _
    ByVal bDesc As Integer, ByRef index As Long) As Long

' Tells whether a vector is in ascending order.
Public Declare PtrSafe Function VB_V_IsSorted Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bStrict As Integer) As Integer

' ---- vector_extremes.h

' The smallest element that is kept.
Public Declare PtrSafe Function VB_V_Min Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Integer) As Double

' The smallest element that is not missing.
Public Declare PtrSafe Function VB_V_Min2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double

' The smallest of some integers.
Public Declare PtrSafe Function VB_V_Min2Lng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long) As Double

' The largest element that is kept. iMissing (Integer) may be null.
Public Declare PtrSafe Function VB_V_Max Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Any) As Double

' The largest element that is not missing.
Public Declare PtrSafe Function VB_V_Max2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double

' The largest of some integers.
Public Declare PtrSafe Function VB_V_Max2Lng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long) As Double

' The largest element of a host array that is not missing.
Public Declare PtrSafe Function Cpp_V_Max2_ST Lib "KORVELMathTools.dll" ( _
    ByRef sa() As Double, ByVal n As Long) As Double

' The largest integer of a host array.
Public Declare PtrSafe Function Cpp_V_Max2Lng_ST Lib "KORVELMathTools.dll" ( _
    ByRef sa() As Long, ByVal n As Long) As Double

' The largest integer that is kept, as an integer. iMissing (Integer) may be null.
Public Declare PtrSafe Function VB_V_MaxInt Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByRef iMissing As Any) As Long

' The smallest and the largest element that are kept.
Public Declare PtrSafe Function VB_V_MinMax Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef min As Double, ByRef max As Double, _
    ByRef iMissing As Integer) As Long

' The smallest and the largest integer that are kept.
Public Declare PtrSafe Function VB_V_MinMaxLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByRef min As Double, ByRef max As Double, _
    ByRef iMissing As Integer) As Long

' The smallest and the largest element.
Public Declare PtrSafe Function VB_V_MinMax2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef min As Double, ByRef max As Double, _
    ByVal bSkipMissing As Integer) As Long

' The smallest and the largest of some integers.
Public Declare PtrSafe Function VB_V_MinMaxLng2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByRef min As Double, ByRef max As Double, _
    ByVal bSkipMissing As Integer) As Long

' The smallest of all elements, missing ones too, and its position.
Public Declare PtrSafe Function VB_V_MinAndMinPos Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef pos As Long, ByVal bLast As Integer) As Double

' The largest of all elements, missing ones too, and the first of its positions.
Public Declare PtrSafe Function VB_V_MaxAndMaxPos Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef pos As Long) As Double

' ---- vector_frequencies.h

' Total weight of the numbers that are near a value.
Public Declare PtrSafe Function VB_V_Freq Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByVal value As Double, _
    ByVal tol As Double) As Double

' Total weight of the integers that are near a value.
Public Declare PtrSafe Function VB_V_FreqLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByRef w As Double, ByVal value As Double, ByVal tol As Double) As Double

' Total weight of the texts that equal a value: of the same length and with the same code units.
Public Declare PtrSafe Function VB_V_FreqStr Lib "KORVELMathTools.dll" ( _
    ByVal labels As LongPtr, ByVal n As Long, ByRef w As Double, ByVal value As LongPtr) As Double

' ---- vector_means.h

' Weighted mean: the sum of w[i] * x[i] over the sum of w[i].
Public Declare PtrSafe Function VB_V_Mean Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Integer, ByRef w As Double) As Double

' Weighted mean of absolute values.
Public Declare PtrSafe Function VB_V_MeanAbs Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Integer, ByRef w As Double) As Double

' Mean of the elements that are not missing.
Public Declare PtrSafe Function VB_V_Mean2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double

' Weighted mean of the elements that are not missing.
Public Declare PtrSafe Function Cpp_V_MeanW2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double) As Double

' Weighted harmonic mean: the sum of w[i] over the sum of w[i] / x[i].
Public Declare PtrSafe Function Cpp_V_HarmonicMean Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Integer, ByRef w As Double) As Double

' Geometric mean and geometric standard deviation.
Public Declare PtrSafe Function Cpp_V_GMeanGSD Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Integer, ByRef w As Double, _
    ByRef gmean As Double, ByRef gsd As Double) As Long

' ---- vector_moments.h

' Weighted mean, variance, skewness and kurtosis, with standard errors.
Public Declare PtrSafe Function VB_V_MeanVarSkewPKurtP Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef mean As Double, ByRef var As Double, _
    ByRef skewP As Double, ByRef kurtP As Double, ByRef skew As Double, ByRef kurt As Double, _
    ByRef seSkew As Double, ByRef seKurt As Double, ByRef iMissing As Integer, ByRef w As Double, _
    ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' ---- vector_sums.h

' Weighted sum of a vector: the sum of w[i] * x[i] in ascending order. iMissing (Integer) may be
' null.
Public Declare PtrSafe Function VB_V_Sum Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Any, ByRef w As Double) As Double

' Sum of x[i] * w[i] over all elements: a missing value or weight multiplies through.
Public Declare PtrSafe Function Cpp_V_SumW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double) As Double

' Sum of the elements that are not missing.
Public Declare PtrSafe Function VB_V_Sum2Dbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double

' Sum of integers in 32-bit arithmetic that wraps around.
Public Declare PtrSafe Function VB_V_Sum2Lng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long) As Double

' Sum of the elements of a host array that are not missing.
Public Declare PtrSafe Function Cpp_V_Sum2Dbl_ST Lib "KORVELMathTools.dll" ( _
    ByRef sa() As Double, ByVal n As Long) As Double

' Sum of the integers of a host array in 32-bit arithmetic that wraps around.
Public Declare PtrSafe Function Cpp_V_Sum2Lng_ST Lib "KORVELMathTools.dll" ( _
    ByRef sa() As Long, ByVal n As Long) As Double

' Sum over a stretch of a vector, missing elements too.
Public Declare PtrSafe Function VB_V_SumFromTo Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal from As Long, ByVal toValue As Long) As Double

' Sum over a stretch of a vector of integers, in 32-bit arithmetic that wraps around.
Public Declare PtrSafe Function VB_V_SumFromToLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByVal from As Long, ByVal toValue As Long) As Long

' Sum of squares of the elements that are not missing.
Public Declare PtrSafe Function VB_V_SumSq Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double

' Weighted sum of squares of the elements that are not missing: the sum of x[i] * w[i] * x[i].
Public Declare PtrSafe Function VB_V_SumSqW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double) As Double

' Squared distance of two vectors, over all elements, missing ones too.
Public Declare PtrSafe Function VB_V_DiffSq Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef y As Double) As Double

' Weighted squared distance of two vectors, over all elements, missing ones too.
Public Declare PtrSafe Function VB_V_DiffSqW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef y As Double, ByRef w As Double) As Double

' Squared distance of the tails of two vectors, over all elements, missing ones too.
Public Declare PtrSafe Function Cpp_V_DiffSqStart Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef y As Double, ByVal start As Long) As Double

' Running sum over all elements, missing ones too.
Public Declare PtrSafe Function Cpp_V_CuSum Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef out As Double) As Long

' ---- vector_variance.h

' Weighted variance.
Public Declare PtrSafe Function VB_V_Var Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Integer, ByRef w As Double, _
    ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Double

' Variance of the elements that are not missing, all of weight 1: VB_V_Var with no flag set.
Public Declare PtrSafe Function Cpp_V_Var2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Double

' Weighted standard deviation: the square root of VB_V_Var.
Public Declare PtrSafe Function VB_V_Stdev Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Integer, ByRef w As Double, _
    ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Double

' Weighted mean and variance.
Public Declare PtrSafe Function VB_V_MeanVar Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef mean As Double, ByRef var As Double, _
    ByRef iMissing As Integer, ByRef w As Double, ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Weighted mean and variance of the elements that are not missing.
Public Declare PtrSafe Function Cpp_V_MeanVarW2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByRef mean As Double, _
    ByRef var As Double, ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Weighted mean and standard deviation.
Public Declare PtrSafe Function VB_V_MeanStdev Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef mean As Double, ByRef sd As Double, _
    ByRef iMissing As Integer, ByRef w As Double, ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Mean and standard deviation of the elements greater than the missing number, all of weight 1; a
' NaN is left out as well.
Public Declare PtrSafe Function Cpp_V_MeanStdev2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bUnbiased As Integer, ByRef mean As Double, _
    ByRef sd As Double) As Long
