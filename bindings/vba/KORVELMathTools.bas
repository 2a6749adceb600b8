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

' ---- containers/host_array.h

' The block of texts behind a host array, for functions that take such a block.
Public Declare PtrSafe Function ExtractBSTR Lib "KORVELMathTools.dll" ( _
    ByVal sa As LongPtr) As LongPtr

' ---- containers/matrix3d.h

' Adds up everything that a labelled table holds: a check that a record crosses the boundary intact.
Public Declare PtrSafe Function Cpp_Test Lib "KORVELMathTools.dll" ( _
    ByVal record As LongPtr) As Double

' ---- containers/missing.h

' Tells whether a number is missing: whether it is at or below the sentinel -1.79769313486231e308.
Public Declare PtrSafe Function VB_IsMissingValueDbl Lib "KORVELMathTools.dll" ( _
    ByVal x As Double) As Integer

' Tells whether a cell, rendered as text, is empty.
Public Declare PtrSafe Function VB_IsMissingValueStr Lib "KORVELMathTools.dll" ( _
    ByRef cell As Variant) As Integer

' ---- containers/number_text.h

' Sends a line to the debugger: the label, a blank, the value with 16 decimals in a field of 36, a
' line end.
Public Declare PtrSafe Sub dprint Lib "KORVELMathTools.dll" ( _
    ByVal value As Double, ByVal label As String)

' ---- containers/record_copies.h

' Copies a table of numbers into the columns of a labelled one.
Public Declare PtrSafe Function Cpp_CopyDblToMVDbl Lib "KORVELMathTools.dll" ( _
    ByRef m As Double, ByVal rows As Long, ByVal cols As Long, ByVal mv As LongPtr) As Long

' Copies a triangle from one labelled table to another: the first j elements of column j, for j from
' 1 to the smaller number of columns.
Public Declare PtrSafe Function Cpp_M_DuplicateMVDblTriang_ST Lib "KORVELMathTools.dll" ( _
    ByVal src As LongPtr, ByVal dst As LongPtr) As Long

' ---- domain/comparison_letters.h

' Gives letters to levels, of which two share one exactly when they do not differ: when the one that
' comes first in the order of the means is significantly different neither from the other one nor
' from any level between them.
Public Declare PtrSafe Function Cpp_GetCompMatrices Lib "KORVELMathTools.dll" ( _
    ByRef means As Double, ByVal k As Long, ByVal column As Long, ByRef significance As Long, _
    ByVal sortResult As Integer, ByRef order As Long, ByVal labels As LongPtr, _
    ByRef groupCount As Long, ByRef success As Integer, ByVal descending As Integer) As Long

' ---- domain/correlation_order.h

' Sorts the variables of a correlation table by a key of each, from the largest down; equal keys
' keep their order.
Public Declare PtrSafe Function Cpp_ReOrderCorrelations Lib "KORVELMathTools.dll" ( _
    ByRef corr As Double, ByVal n As Long, ByVal method As Long, ByVal labels As LongPtr, _
    ByRef pValues As Double, ByRef flags As Long) As Long

' ---- domain/marginal_sums.h

' Copies a table without the rows and columns whose sum is not above 1e-12.
Public Declare PtrSafe Function Cpp_CheckForMarginalSums Lib "KORVELMathTools.dll" ( _
    ByRef table As Double, ByVal rows As Long, ByVal cols As Long, ByRef result As Double, _
    ByRef keptRows As Long, ByRef keptCols As Long, ByRef droppedRows As Long, _
    ByRef droppedCols As Long) As Long

' ---- domain/memory_probe.h

' Tries to allocate a tenth more than twenty tables of numbers take, and gives everything back.
Public Declare PtrSafe Function Cpp_TestMemory Lib "KORVELMathTools.dll" ( _
    ByRef rows1 As Long, ByRef cols1 As Long, ByRef rows2 As Long, ByRef cols2 As Long, _
    ByRef rows3 As Long, ByRef cols3 As Long, ByRef rows4 As Long, ByRef cols4 As Long, _
    ByRef rows5 As Long, ByRef cols5 As Long, ByRef rows6 As Long, ByRef cols6 As Long, _
    ByRef rows7 As Long, ByRef cols7 As Long, ByRef rows8 As Long, ByRef cols8 As Long, _
    ByRef rows9 As Long, ByRef cols9 As Long, ByRef rows10 As Long, ByRef cols10 As Long, _
    ByRef rows11 As Long, ByRef cols11 As Long, ByRef rows12 As Long, ByRef cols12 As Long, _
    ByRef rows13 As Long, ByRef cols13 As Long, ByRef rows14 As Long, ByRef cols14 As Long, _
    ByRef rows15 As Long, ByRef cols15 As Long, ByRef rows16 As Long, ByRef cols16 As Long, _
    ByRef rows17 As Long, ByRef cols17 As Long, ByRef rows18 As Long, ByRef cols18 As Long, _
    ByRef rows19 As Long, ByRef cols19 As Long, ByRef rows20 As Long, ByRef cols20 As Long) As Long

' Whether the address space that this process has left is large enough.
Public Declare PtrSafe Function Cpp_GetStatusMemory Lib "KORVELMathTools.dll" ( _
    ByVal amount As Long) As Long

' ---- domain/range_texts.h

' Sorts the ranges of a list by their first columns and joins ranges that follow each other.
Public Declare PtrSafe Function SimplifyRange Lib "KORVELMathTools.dll" ( _
    ByVal value As LongPtr) As LongPtr

' The column behind a column.
Public Declare PtrSafe Function Increase1Col Lib "KORVELMathTools.dll" ( _
    ByVal column As LongPtr) As LongPtr

' ---- domain/triangular_distribution.h

' The bounds of a triangular distribution with a given mode, whose distribution function is p1 at q1
' and p2 at q2.
Public Declare PtrSafe Function Cpp_TriangularQFindAB Lib "KORVELMathTools.dll" ( _
    ByVal q1 As Double, ByVal mode As Double, ByVal q2 As Double, ByVal p1 As Double, _
    ByVal p2 As Double, ByRef a As Double, ByRef b As Double) As Long

' ---- fitting/biplot.h

' Rescales the coordinates of a biplot by powers of the singular values: those of rows by s^(alpha/2
' - 1/2), those of columns by s^(-alpha/2). extraRowCoordinates (Double) may be null.
Public Declare PtrSafe Function VB_BiplotTransData Lib "KORVELMathTools.dll" ( _
    ByRef rowCoordinates As Double, ByRef extraRowCoordinates As Any, _
    ByRef columnCoordinates As Double, ByVal rows As Long, ByVal extraRows As Long, _
    ByVal columns As Long, ByVal axes As Long, ByRef singularValues As Double, _
    ByVal scaleValue As Double, ByVal alpha As Double, ByRef rowResult As Double, _
    ByRef columnResult As Double) As Long

' The same with coordinates in chunks. extraRowCoordinates (Double) may be null.
Public Declare PtrSafe Function VB_BiplotTransDataSPV Lib "KORVELMathTools.dll" ( _
    ByVal rowCoordinates As LongPtr, ByRef extraRowCoordinates As Any, _
    ByVal columnCoordinates As LongPtr, ByVal rows As Long, ByVal extraRows As Long, _
    ByVal columns As Long, ByVal axes As Long, ByRef singularValues As Double, _
    ByVal scaleValue As Double, ByVal alpha As Double, ByRef rowResult As Double, _
    ByRef columnResult As Double) As Long

' Squared cosines of the rows of a table: each cell squared, over the sum of squares of its row.
Public Declare PtrSafe Function ComputeCosines Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef result As Double) As Long

' Marks one cell in each row of a table with -1.
Public Declare PtrSafe Function Cpp_M_BoldCosines Lib "KORVELMathTools.dll" ( _
    ByRef positions As Long, ByVal n As Long, ByRef table As Long) As Long

' ---- fitting/least_squares.h

' Regression: coefficients and fitted values.
Public Declare PtrSafe Function RunOLSBasic Lib "KORVELMathTools.dll" ( _
    ByVal n As Long, ByVal p As Long, ByRef x As Double, ByRef y As Double, ByRef weights As Double, _
    ByVal degree As Long, ByVal interactions As Integer, ByVal noConstant As Integer, _
    ByVal tolerance As Double, ByRef coefficients As Double, ByRef fitted As Double) As Long

' Regression: coefficients, their standard errors and fitted values.
Public Declare PtrSafe Function RunOLSBasic2 Lib "KORVELMathTools.dll" ( _
    ByVal n As Long, ByVal p As Long, ByRef x As Double, ByRef y As Double, ByRef weights As Double, _
    ByVal degree As Long, ByVal interactions As Integer, ByVal noConstant As Integer, _
    ByVal tolerance As Double, ByRef coefficients As Double, ByRef standardErrors As Double, _
    ByRef fitted As Double) As Long

' Regression: the same with the swept table and the statistics of the columns.
Public Declare PtrSafe Function RunOLSBasic3 Lib "KORVELMathTools.dll" ( _
    ByVal n As Long, ByVal p As Long, ByRef x As Double, ByRef y As Double, ByRef weights As Double, _
    ByVal degree As Long, ByVal interactions As Integer, ByVal noConstant As Integer, _
    ByVal tolerance As Double, ByRef coefficients As Double, ByRef standardErrors As Double, _
    ByRef fitted As Double, ByRef sweptMatrix As Double, ByRef means As Double, _
    ByRef standardDeviations As Double) As Long

' ---- fitting/least_squares_blocks.h

' Regression as by RunOLSBasic2 on the columns of five tables, one behind the other, without powers
' or interactions. x1 (Double) may be null. x2 (Double) may be null. x3 (Double) may be null. x4
' (Double) may be null. x5 (Double) may be null.
Public Declare PtrSafe Function RunOLSBasic2Lg Lib "KORVELMathTools.dll" ( _
    ByVal n As Long, ByVal p1 As Long, ByRef x1 As Any, ByVal p2 As Long, ByRef x2 As Any, _
    ByVal p3 As Long, ByRef x3 As Any, ByVal p4 As Long, ByRef x4 As Any, ByVal p5 As Long, _
    ByRef x5 As Any, ByRef y As Double, ByRef weights As Double, ByVal degree As Long, _
    ByVal interactions As Integer, ByVal noConstant As Integer, ByVal tolerance As Double, _
    ByRef coefficients As Double, ByRef standardErrors As Double, ByRef fitted As Double) As Long

' ---- fitting/newton_raphson.h

' One damped step of the Newton-Raphson method: the inverse of the Hessian over the free parameters
' times the gradient is subtracted from the parameters.
Public Declare PtrSafe Function NewtonRaphson Lib "KORVELMathTools.dll" ( _
    ByRef parameters As Double, ByVal n As Long, ByRef constraints As Long, _
    ByRef gradient As Double, ByRef hessian As Double, ByVal tolerance As Double, _
    ByRef standardErrors As Double, ByRef inverse As Double, ByVal limitStep As Integer, _
    ByVal stepLimit As Double) As Long

' ---- fitting/nipals.h

' Fills the missing cells of a table from its principal components, found by the NIPALS iteration
' over the cells that are there.
Public Declare PtrSafe Function Cpp_NIPALS Lib "KORVELMathTools.dll" ( _
    ByVal n As Long, ByVal p As Long, ByRef x As Double, ByRef weights As Double, _
    ByVal tolerance As Double, ByVal components As Long, ByVal columnShare As Double, _
    ByVal tableShare As Double) As Long

' ---- fitting/tolerance_screening.h

' The tolerance of each variable of the selected groups, the share of its variation that the others
' leave unexplained, and its variance inflation factor.
Public Declare PtrSafe Function VB_CheckTolerance Lib "KORVELMathTools.dll" ( _
    ByRef r As Double, ByVal p As Long, ByVal groupCount As Long, ByRef groupSelection As Double, _
    ByRef groupNumbers As Double, ByVal tolerance As Double, ByVal duplicates As Integer, _
    ByVal entered As Integer, ByVal reverse As Integer, ByVal skipGroup As Integer, _
    ByRef status As Double, ByRef tolerances As Double, ByRef inflationFactors As Double) As Long

' ---- linalg/cholesky.h

' Cholesky decomposition.
Public Declare PtrSafe Function VB_M_CholDecomp Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef l As Double) As Long

' Cholesky decomposition with rows and columns exchanged alike.
Public Declare PtrSafe Function VB_M_CholDecompPrinc Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef l As Double, ByRef perm As Long, _
    ByVal replaceInput As Integer) As Long

' ---- linalg/constraint_cleaning.h

' The determinant of the free rows and columns.
Public Declare PtrSafe Function VB_M_DeterminantCleaned Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef constraints As Long, ByRef status As Integer) As Double

' The determinant of the free rows and columns of a symmetric table, held as a triangle.
Public Declare PtrSafe Function Cpp_M_DeterminantCleanedSPV_T Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByRef constraints As Long, ByRef status As Integer) As Double

' Cholesky factor of the free rows and columns.
Public Declare PtrSafe Function VB_M_CholDecompCleaned Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef constraints As Long, ByRef l As Double) As Long

' Inverse of the free rows and columns.
Public Declare PtrSafe Function CleanConstraintsAndInvert Lib "KORVELMathTools.dll" ( _
    ByVal n As Long, ByRef constraints As Long, ByRef h As Double, ByRef inverse As Double) As Long

' Inverse of the free rows and columns of a triangular table.
Public Declare PtrSafe Function CleanConstraintsAndInvertTriang Lib "KORVELMathTools.dll" ( _
    ByVal n As Long, ByRef constraints As Long, ByRef t As Double, ByVal lowerFlag As Integer, _
    ByRef inverse As Double) As Long

' ---- linalg/determinants.h

' The determinant, as the exponential of the logarithms of the pivots of an LU decomposition.
Public Declare PtrSafe Function VB_M_Determinant Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef status As Integer) As Double

' The logarithm of the determinant.
Public Declare PtrSafe Function Cpp_M_LogDeterminant Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long) As Double

' The determinant of a triangular table: the product of its diagonal, by logarithms.
Public Declare PtrSafe Function VB_M_DeterminantTriang Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef status As Integer) As Double

' ---- linalg/diagonal_scaling.h

' c(i, k) = a(i, k) * d(k, k).
Public Declare PtrSafe Function VB_M_ProductADiag Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef c As Double) As Long

' c(k, i) = a(i, k) * d(i, i).
Public Declare PtrSafe Function VB_M_ProductTrADiag Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef c As Double) As Long

' c(i, k) = a(i, k) * d(k).
Public Declare PtrSafe Function VB_M_ProductADiagV Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef c As Double) As Long

' c(i, k) = d(i) * a(i, k).
Public Declare PtrSafe Function VB_M_ProductDiagVA Lib "KORVELMathTools.dll" ( _
    ByRef d As Double, ByVal n As Long, ByRef a As Double, ByVal p As Long, ByRef c As Double) As Long

' c(i, k) = (d1(i) * a(i, k)) * d2(k).
Public Declare PtrSafe Function VB_M_ProductDiagV1ADiagV2 Lib "KORVELMathTools.dll" ( _
    ByRef d1 As Double, ByVal n As Long, ByRef a As Double, ByVal p As Long, ByRef d2 As Double, _
    ByRef c As Double) As Long

' c(k, r) = a(r, k) * d(r).
Public Declare PtrSafe Function VB_M_ProductTrADiagV Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef c As Double) As Long

' ---- linalg/eigenvalue_filter.h

' Drops small eigenvalues from the end, takes each one's share of the sum of those that are left,
' and counts how many of the leading ones satisfy all bounds.
Public Declare PtrSafe Function VB_FilterEigen Lib "KORVELMathTools.dll" ( _
    ByRef values As Double, ByVal n As Long, ByVal dropTail As Integer, ByVal threshold As Double, _
    ByVal cumulativePercent As Double, ByVal maxCount As Long, ByVal minValue As Double, _
    ByRef kept As Long, ByRef retained As Long, ByRef percents As Double) As Long

' ---- linalg/element_wise.h

' c(i, j) = s * a(i, j); a missing cell stays missing.
Public Declare PtrSafe Function VB_M_ScalarsA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByVal s As Double, ByRef c As Double) As Long

' a(i, j) = s * a(i, j); a missing cell stays missing.
Public Declare PtrSafe Function VB_M_ScalarsA2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByVal s As Double) As Long

' c(j, i) = s * a(i, j); a missing cell stays missing.
Public Declare PtrSafe Function VB_M_ScalarsTrA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByVal s As Double, ByRef c As Double) As Long

' c(i, j) = a(i, j) + s.
Public Declare PtrSafe Function VB_M_APlusVal Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByVal s As Double, ByRef c As Double) As Long

' a(i, j) = a(i, j) + s.
Public Declare PtrSafe Function VB_M_APlusVal2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByVal s As Double) As Long

' a(i, j) = a(i, j) * a(i, j); a missing cell stays missing.
Public Declare PtrSafe Function VB_M_Square Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long) As Long

' c(i, j) = a(i, j) * b(i, j).
Public Declare PtrSafe Function VB_M_ProductByElement Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByRef c As Double) As Long

' c(i, j) = a(i, j) + b(i, j).
Public Declare PtrSafe Function Cpp_SumMat Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByRef b As Double, ByVal n As Long, ByVal p As Long, ByRef c As Double) As Long

' x(i, j) = x(i, j) * s.
Public Declare PtrSafe Function Cpp_MultiplyByVal Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal s As Double) As Long

' ---- linalg/g2_sweep.h

' Generalised inverse of a square table by sweeping.
Public Declare PtrSafe Function Cpp_M_InverseG2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal tolerance As Double, ByRef g As Double) As Long

' Generalised inverse of a labelled table by sweeping.
Public Declare PtrSafe Function Cpp_M_InverseG2_ST Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal tolerance As Double, ByVal g As LongPtr) As Long

' Generalised inverse of a square table by sweeping some of its pivots.
Public Declare PtrSafe Function Cpp_M_InverseG2Selective Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef selected As Long, ByVal tolerance As Double, _
    ByRef g As Double, ByVal zeroOthers As Integer) As Long

' ---- linalg/gauss.h

' Solves a * x = b for several right sides, and inverts a. b (Double) may be null.
Public Declare PtrSafe Function VB_M_Gauss Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal m As Long, ByRef b As Any) As Long

' Solves a * x = b for one right side, and inverts a.
Public Declare PtrSafe Function VB_V_Gauss Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double) As Long

' Solves a * x = b on a labelled table and a labelled column, and inverts a.
Public Declare PtrSafe Function Cpp_V_Gauss_ST Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal b As LongPtr) As Long

' ---- linalg/generalized_inverse.h

' Moore-Penrose inverse of a square table, column after column.
Public Declare PtrSafe Function VB_M_InvGeneralized Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef g As Double, ByVal tolerance As Double, _
    ByRef rank As Long) As Long

' Generalised inverse of a symmetric positive semidefinite table: the left singular vectors stand on
' both sides, so that a negative eigenvalue has a positive inverse.
Public Declare PtrSafe Function VB_M_InvGeneralizedSym Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef g As Double, ByVal tolerance As Double, _
    ByRef rank As Long) As Long

' Rank of a table, column after column: the number of singular values up to the first that is at
' most 1e-12.
Public Declare PtrSafe Function VB_M_Rank Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long) As Long

' ---- linalg/hermite_form.h

' Forward Doolittle reduction of a symmetric table.
Public Declare PtrSafe Function Cpp_M_ForwardDoolittle Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef h As Double) As Long

' Hermite canonical form of a symmetric table.
Public Declare PtrSafe Function Cpp_M_HermiteCanonical Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef h As Double) As Long

' ---- linalg/logical_inverse.h

' Logical inversion of a table of flags in place: 0 becomes 1, and anything else becomes 0.
Public Declare PtrSafe Function Cpp_M_Inverse Lib "KORVELMathTools.dll" ( _
    ByRef flags As Integer, ByVal rows As Long, ByVal cols As Long) As Long

' ---- linalg/lu.h

' LU decomposition, in place: a, with its rows swapped, is l * u with 1 on the diagonal of l.
Public Declare PtrSafe Function VB_M_LUDecomp Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef pivots As Long, ByRef sign As Double, _
    ByRef status As Integer) As Long

' ---- linalg/lu_inverse.h

' Inverse of a square table, column after column, by LU decomposition with row scaling and partial
' pivoting.
Public Declare PtrSafe Function VB_M_Inverse1 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef inverse As Double, ByRef error As Integer, _
    ByVal tolerance As Double) As Long

' ---- linalg/packed_sweep.h

' Sweeps one pivot of a symmetric table in place: after all pivots the table is the negative of its
' inverse.
Public Declare PtrSafe Function VB_M_Sweep Lib "KORVELMathTools.dll" ( _
    ByRef packed As Double, ByVal n As Long, ByVal k As Long) As Long

' ---- linalg/products.h

' Product of two tables, c = a * b.
Public Declare PtrSafe Function VB_M_ProductAB Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByVal q As Long, _
    ByRef c As Double) As Long

' Product of two tables of integers, c = a * b, in 32-bit arithmetic that wraps around.
Public Declare PtrSafe Function VB_M_ProductABLng Lib "KORVELMathTools.dll" ( _
    ByRef a As Long, ByVal n As Long, ByVal p As Long, ByRef b As Long, ByVal q As Long, _
    ByRef c As Long) As Long

' Product of a transposed table and a table, c = a' * b.
Public Declare PtrSafe Function VB_M_ProductTrAB Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByVal q As Long, _
    ByRef c As Double) As Long

' Product of a table and a transposed table, c = a * b'.
Public Declare PtrSafe Function VB_M_ProductATrB Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByVal m As Long, _
    ByRef c As Double) As Long

' Product with a diagonal that is given as a vector, c = a * diag(d) * b, each term from left to
' right.
Public Declare PtrSafe Function VB_M_ProductADiagVB Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef b As Double, _
    ByVal q As Long, ByRef c As Double) As Long

' Product with a diagonal that is given as a vector, c = a * diag(d) * b', each term from left to
' right.
Public Declare PtrSafe Function VB_M_ProductADiagVTrB Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef b As Double, _
    ByVal m As Long, ByRef c As Double) As Long

' ---- linalg/products_design.h

' Replaces the columns of a design by their interactions with those of another.
Public Declare PtrSafe Function VB_M_ProductDesignAB2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef colsA As Long, ByRef b As Double, ByVal colsB As Long, _
    ByVal typeValue As Long, ByRef weights As Double, ByRef sums As Double) As Long

' Each column of the result is the product of two columns, cell by cell.
Public Declare PtrSafe Function VB_M_ProductHorizAB Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal colsA As Long, ByRef b As Double, ByVal colsB As Long, _
    ByRef c As Double, ByVal extra As Long) As Long

' The same in place of a, and missing where one of the two cells is.
Public Declare PtrSafe Function VB_M_ProductHorizAB2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef colsA As Long, ByRef b As Double, ByVal colsB As Long) As Long

' Every element of one vector times every element of another: x(i) * y(j), i outside.
Public Declare PtrSafe Function VB_V_ProductHorizV1V2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef y As Double, ByVal m As Long, ByRef out As Double) As Long

' The same in place of x.
Public Declare PtrSafe Function VB_V_ProductHorizV1V22 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByRef n As Long, ByRef y As Double, ByVal m As Long) As Long

' ---- linalg/products_inverse.h

' Product c = a' * g * a with g the generalised inverse of b by sweeping, as `Cpp_M_InverseG2` makes
' it with the tolerance 1e-12.
Public Declare PtrSafe Function VB_M_ProductTrAinvBA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, _
    ByVal symmetric As Integer, ByRef c As Double) As Long

' Product c = a * i * a' with i the inverse of b, as `VB_M_Inverse1` makes it: zeros when a pivot's
' magnitude is at most 1e-8.
Public Declare PtrSafe Function VB_M_ProductAinvBTrA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByRef c As Double) As Long

' The quadratic form v' * i * v with i the inverse of b, as `VB_M_Inverse1` makes it: zeros when a
' pivot's magnitude is at most 1e-8.
Public Declare PtrSafe Function VB_M_ProductTrVinvBV Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef b As Double) As Double

' ---- linalg/products_kronecker.h

' The Kronecker product: the block (i, j) of c is a(i, j) * b.
Public Declare PtrSafe Function Cpp_KroneckerTensorProduct Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Double, ByVal r2 As Long, _
    ByVal c2 As Long, ByRef c As Double) As Long

' ---- linalg/products_missing.h

' Product of two tables that heeds missing cells: where a term has a missing factor, c(i,j) is
' missing.
Public Declare PtrSafe Function VB_M_ProductABMissing Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByVal q As Long, _
    ByRef c As Double) As Long

' ---- linalg/products_packed.h

' Product of a packed symmetric table and a vector, y = s * x.
Public Declare PtrSafe Function VB_M_ProductASymV Lib "KORVELMathTools.dll" ( _
    ByRef s As Double, ByVal m As Long, ByRef x As Double, ByRef y As Double) As Long

' Product of a vector and a packed symmetric table, y = x' * s.
Public Declare PtrSafe Function VB_M_ProductVASym Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal m As Long, ByRef s As Double, ByRef y As Double) As Long

' The quadratic form v' * s * v of a full symmetric table: twice the sum over i below j of v(i) *
' v(j) * s(j, i), i outside, plus the sum of v(i)^2 * s(i, i).
Public Declare PtrSafe Function Cpp_M_ProductTrVSymV Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef s As Double) As Double

' The lower triangle of a * b, all three packed.
Public Declare PtrSafe Function Cpp_MV_ProductAsymBsym Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double, ByRef c As Double) As Long

' ---- linalg/products_records.h

' Product of two labelled tables, c = a * b.
Public Declare PtrSafe Function Cpp_M_ProductAB_ST Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal p As Long, ByVal b As LongPtr, ByVal q As Long, _
    ByVal c As LongPtr) As Long

' Product of a transposed labelled table and another, c = a' * b.
Public Declare PtrSafe Function Cpp_M_ProductTrAB_ST Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal p As Long, ByVal b As LongPtr, ByVal q As Long, _
    ByVal c As LongPtr) As Long

' Product of a labelled table and another transposed, c = a * b'.
Public Declare PtrSafe Function Cpp_M_ProductATrB_ST Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal p As Long, ByVal b As LongPtr, ByVal m As Long, _
    ByVal c As LongPtr) As Long

' Product of three labelled tables, c = a * b * a'.
Public Declare PtrSafe Function Cpp_M_ProductABTrA_ST Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal p As Long, ByVal b As LongPtr, _
    ByVal symmetric As Integer, ByVal c As LongPtr) As Long

' ---- linalg/products_symmetric.h

' Product of a table with itself, c = a' * a.
Public Declare PtrSafe Function VB_M_ProductTrAA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef c As Double) As Long

' Product of a table of integers with itself, c = a' * a.
Public Declare PtrSafe Function Cpp_M_ProductTrAALng Lib "KORVELMathTools.dll" ( _
    ByRef a As Long, ByVal n As Long, ByVal p As Long, ByRef c As Long) As Long

' Product of a table with itself, c = a * a'.
Public Declare PtrSafe Function VB_M_ProductATrA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef c As Double) As Long

' Product with a diagonal, c = a * d * a', each term from left to right.
Public Declare PtrSafe Function VB_M_ProductADTrA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef c As Double) As Long

' Product with a diagonal, c = a' * d * a, each term from left to right.
Public Declare PtrSafe Function VB_M_ProductTrADA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef c As Double) As Long

' Product with a diagonal that is given as a vector, c = a' * diag(d) * a, each term from left to
' right.
Public Declare PtrSafe Function VB_M_ProductTrADiagVA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef c As Double) As Long

' Product with a diagonal that is given as a vector, c = a * diag(d) * a', each term from left to
' right.
Public Declare PtrSafe Function VB_M_ProductADiagVTrA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef c As Double) As Long

' ---- linalg/products_table_vector.h

' Table times vector, y = b * v.
Public Declare PtrSafe Function VB_M_ProductBV Lib "KORVELMathTools.dll" ( _
    ByRef b As Double, ByVal n As Long, ByVal p As Long, ByRef v As Double, ByRef y As Double) As Long

' Vector times table, y = v' * b, that heeds missing cells: where a term has a missing factor, y(j)
' is missing.
Public Declare PtrSafe Function VB_M_ProductVB Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef b As Double, ByVal q As Long, ByRef y As Double) As Long

' Transposed table times vector, y = b' * v.
Public Declare PtrSafe Function VB_M_ProductTrBV Lib "KORVELMathTools.dll" ( _
    ByRef b As Double, ByVal n As Long, ByVal p As Long, ByRef v As Double, ByRef y As Double) As Long

' Vector times transposed table, y = v' * b'.
Public Declare PtrSafe Function VB_M_ProductVTrB Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef b As Double, ByVal m As Long, ByRef y As Double) As Long

' The quadratic form v' * b * v.
Public Declare PtrSafe Function VB_M_ProductTrVBV Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef b As Double) As Double

' The bilinear form x1' * b * x2.
Public Declare PtrSafe Function VB_M_ProductTrV1BV2 Lib "KORVELMathTools.dll" ( _
    ByRef x1 As Double, ByVal n As Long, ByRef b As Double, ByRef x2 As Double) As Double

' ---- linalg/products_triple.h

' Product of three tables, c = a * b * a'.
Public Declare PtrSafe Function VB_M_ProductABTrA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, _
    ByVal symmetric As Integer, ByRef c As Double) As Long

' Product of three tables, c = a' * b * a.
Public Declare PtrSafe Function VB_M_ProductTrABA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, _
    ByVal symmetric As Integer, ByRef c As Double) As Long

' Product of three tables, d = a * b * c.
Public Declare PtrSafe Function VB_M_ProductABC Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByVal q As Long, _
    ByRef c As Double, ByVal r As Long, ByRef d As Double) As Long

' Product of three tables, d = a' * b * c.
Public Declare PtrSafe Function VB_M_ProductTrABC Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByVal q As Long, _
    ByRef c As Double, ByVal r As Long, ByRef d As Double) As Long

' Product of three tables, d = a * b' * c.
Public Declare PtrSafe Function VB_M_ProductATrBC Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByVal q As Long, _
    ByRef c As Double, ByVal r As Long, ByRef d As Double) As Long

' Product of two tables and a vector, y = a' * b * v.
Public Declare PtrSafe Function Cpp_M_ProductTrABV Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByVal q As Long, _
    ByRef v As Double, ByRef y As Double) As Long

' ---- linalg/reductions.h

' The trace: the sum of a(i, i).
Public Declare PtrSafe Function VB_M_Trace Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long) As Double

' The trace of a' * b: the sum over the columns of the inner products of like columns.
Public Declare PtrSafe Function VB_M_FrobeniusNorm Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double) As Double

' The row sum norm: the largest sum of magnitudes of a row.
Public Declare PtrSafe Function Cpp_M_RowSumNorm Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal m As Long) As Double

' ---- linalg/singular_values.h

' Singular value decomposition.
Public Declare PtrSafe Function VB_M_SVDecomp Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef s As Double, ByRef u As Double, _
    ByRef v As Double, ByVal job As Long, ByRef info As Long) As Long

' Singular value decomposition of a chunked table.
Public Declare PtrSafe Function VB_M_SVDecompSPV Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal p As Long, ByRef s As Double, ByVal u As LongPtr, _
    ByVal v As LongPtr, ByVal job As Long, ByRef info As Long) As Long

' ---- linalg/spectral_norm.h

' The largest singular value of a square table.
Public Declare PtrSafe Function Cpp_M_Norm2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long) As Double

' ---- linalg/square_roots.h

' A root r with r' * r = a, from the eigenvalues and eigenvectors of a.
Public Declare PtrSafe Function Cpp_M_SquareRoot Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef r As Double) As Long

' ---- linalg/symmetric_eigen.h

' Eigenvalues and eigenvectors of a symmetric table.
Public Declare PtrSafe Function VB_M_Eigen Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByRef values As Double, ByRef vectors As Double, ByVal n As Long, _
    ByVal sortFlag As Integer) As Long

' Eigenvalues and eigenvectors of a symmetric table, of which each column is held from the diagonal
' down.
Public Declare PtrSafe Function Cpp_M_EigenSPV_T Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByRef values As Double, ByVal vectors As LongPtr, ByVal n As Long, _
    ByVal sortFlag As Integer) As Long

' ---- linalg/triangular_inverse.h

' Inverse of a triangular table by back substitution.
Public Declare PtrSafe Function VB_M_InverseTriang Lib "KORVELMathTools.dll" ( _
    ByRef t As Double, ByVal n As Long, ByVal lowerFlag As Integer, ByRef inverse As Double, _
    ByVal tolerance As Double) As Long

' ---- linalg/vector_products.h

' The inner product: the sum of x1(i) * x2(i).
Public Declare PtrSafe Function VB_V_ProductTrV1V2 Lib "KORVELMathTools.dll" ( _
    ByRef x1 As Double, ByVal n As Long, ByRef x2 As Double) As Double

' y(i) = x1(i) * x2(i), missing when one of the two is.
Public Declare PtrSafe Function VB_V_ProductV1V2 Lib "KORVELMathTools.dll" ( _
    ByRef x1 As Double, ByVal n As Long, ByRef x2 As Double, ByRef y As Double) As Long

' x1(i) = x1(i) * x2(i).
Public Declare PtrSafe Function VB_V_ProductV1V22 Lib "KORVELMathTools.dll" ( _
    ByRef x1 As Double, ByVal n As Long, ByRef x2 As Double) As Long

' The outer product: c(i, j) = x1(i) * x2(j).
Public Declare PtrSafe Function VB_V_ProductV1TrV2 Lib "KORVELMathTools.dll" ( _
    ByRef x1 As Double, ByVal n As Long, ByRef x2 As Double, ByRef c As Double) As Long

' The product of all elements in ascending order, from 1.0.
Public Declare PtrSafe Function VB_V_Product1toNDbl Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long) As Double

' The product of all elements in ascending order, from 1.0, in Double.
Public Declare PtrSafe Function VB_V_Product1toNLng Lib "KORVELMathTools.dll" ( _
    ByRef v As Long, ByVal n As Long) As Double

' ---- missing/column_estimates.h

' Fills the missing numbers of flagged rows by the weighted means of their columns. rowFlags
' (Integer) may be null.
Public Declare PtrSafe Function VB_EstimateRowsWithMissingMean Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef rowFlags As Any, ByRef w As Double) As Long

' Fills the missing numbers of flagged rows by the weighted means of the columns of another table,
' of which a column without numbers has the mean 0.0. rowFlags (Integer) may be null.
Public Declare PtrSafe Function VB_EstimateRowsWithMissingMeanPred Lib "KORVELMathTools.dll" ( _
    ByRef statistics As Double, ByVal n As Long, ByRef x As Double, ByVal rows As Long, _
    ByVal p As Long, ByRef rowFlags As Any, ByRef w As Double) As Long

' Fills the missing numbers of flagged rows of a chunked table by the weighted means of their
' columns. rowFlags (Integer) may be null.
Public Declare PtrSafe Function VB_EstimateRowsWithMissingMeanSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal p As Long, ByRef rowFlags As Any, ByRef w As Double) As Long

' Fills the empty texts of a table by the modes of their columns: of all texts of a column the one
' whose weights have the largest sum, the first of equals.
Public Declare PtrSafe Function VB_EstimateRowsWithMissingMode Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal p As Long, ByRef w As Double) As Long

' Fills the empty texts of a table by the modes of the columns of another table: of all texts of a
' column the one whose weights have the largest sum, the first of equals.
Public Declare PtrSafe Function VB_EstimateRowsWithMissingModePred Lib "KORVELMathTools.dll" ( _
    ByVal statistics As LongPtr, ByVal n As Long, ByVal x As LongPtr, ByVal rows As Long, _
    ByVal p As Long, ByRef w As Double) As Long

' ---- missing/expected_frequencies.h

' Replaces each missing cell of a contingency table, a number at or below `KORVEL_MISSING_DBL`, by
' the sum of its row times the sum of its column over the total.
Public Declare PtrSafe Function Cpp_ReplaceMissingInContengencyByExp_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long) As Long

' ---- missing/missing_cells.h

' Replaces the missing numbers of a table.
Public Declare PtrSafe Function VB_M_ReplaceMissingByVal Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal val As Double) As Long

' Replaces the missing numbers of a chunked table.
Public Declare PtrSafe Function VB_M_ReplaceMissingByValSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal val As Double) As Long

' Replaces the empty texts of a table.
Public Declare PtrSafe Function VB_M_ReplaceMissingByStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal val As LongPtr) As Long

' Replaces the missing numbers of a labelled table, as far as it has columns.
Public Declare PtrSafe Function Cpp_M_ReplaceMissingByVal_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal val As Double) As Long

' Replaces the empty texts of a labelled table, as far as it has columns.
Public Declare PtrSafe Function Cpp_M_ReplaceMissingByStr_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal val As LongPtr) As Long

' Makes cells missing where a table of marks has a 1.
Public Declare PtrSafe Function Cpp_M_ReplaceByMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef marks As Long, _
    ByVal markColumns As Long, ByVal wholeRow As Integer) As Long

' Makes cells missing where a table of marks has a value.
Public Declare PtrSafe Function Cpp_M_ReplaceByMissingIfVal Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef marks As Long, _
    ByVal markColumns As Long, ByVal value As Long, ByVal wholeRow As Integer) As Long

' Marks the missing numbers of a table.
Public Declare PtrSafe Function Cpp_M_IdentifyMissingInMat Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef marks As Long) As Long

' Marks the missing numbers of a chunked table.
Public Declare PtrSafe Function Cpp_M_IdentifyMissingInMatSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef marks As Long) As Long

' Sets weights to 0 where numbers are missing.
Public Declare PtrSafe Function VB_M_SetWeightsToZeroForMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef weights As Double, ByVal mode As Long) As Long

' ---- missing/missing_counts.h

' Counts the missing numbers.
Public Declare PtrSafe Function VB_V_NbMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' Counts the empty texts.
Public Declare PtrSafe Function VB_V_NbMissingStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long) As Long

' Counts the numbers that are not missing.
Public Declare PtrSafe Function VB_V_NbNonMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' Counts the missing numbers of each column.
Public Declare PtrSafe Function VB_M_NbMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef counts As Long) As Long

' Counts the empty texts of each column.
Public Declare PtrSafe Function VB_M_NbMissingStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef counts As Long) As Long

' Counts the numbers of each column that are not missing.
Public Declare PtrSafe Function VB_M_NbNonMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef counts As Long) As Long

' Counts the missing numbers of a whole table.
Public Declare PtrSafe Function VB_M_NbMissing2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Long

' Counts the empty texts of a whole table.
Public Declare PtrSafe Function VB_M_NbMissing2Str Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Long

' Counts the missing numbers of a chunked table.
Public Declare PtrSafe Function Cpp_M_NbMissingSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Long

' Counts the missing numbers of a triangle.
Public Declare PtrSafe Function VB_M_NbMissingSPV_T Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Long

' ---- missing/missing_flags.h

' Combines the two sources of missingness of a vector: a flag, and a number at or below the missing
' one. iMissing (Integer) may be null.
Public Declare PtrSafe Function VB_V_GetMissingDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Any, ByRef iMissingOut As Integer) As Long

' The same for texts, which are missing when empty. iMissing (Integer) may be null.
Public Declare PtrSafe Function VB_V_GetMissingStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByRef iMissing As Any, ByRef iMissingOut As Integer) As Long

' Flags the rows of a table that have a missing number, one at or below the missing one. iMissing
' (Integer) may be null.
Public Declare PtrSafe Function Cpp_M_GetMissingDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef iMissing As Any, _
    ByRef iMissingOut As Integer) As Long

' The same for texts, which are missing when empty. iMissing (Integer) may be null.
Public Declare PtrSafe Function Cpp_M_GetMissingStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef iMissing As Any, _
    ByRef iMissingOut As Integer) As Long

' The same for a chunked table of numbers. iMissing (Integer) may be null.
Public Declare PtrSafe Function Cpp_M_GetMissingDblSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef iMissing As Any, _
    ByRef iMissingOut As Integer) As Long

' Sets the result to -1 where one of the flags is -1, and leaves the other entries as they were. c
' (Integer) may be null.
Public Declare PtrSafe Function VB_SummarizeMissing Lib "KORVELMathTools.dll" ( _
    ByVal n As Long, ByRef count As Long, ByRef result As Integer, ByRef a As Integer, _
    ByRef b As Integer, ByRef c As Any) As Long

' Sets the result to -1 where both flags are -1, and leaves the other entries as they were.
Public Declare PtrSafe Function VB_SummarizeAllMissing Lib "KORVELMathTools.dll" ( _
    ByVal n As Long, ByRef a As Integer, ByRef b As Integer, ByRef count As Long, _
    ByRef result As Integer) As Long

' Flags the flagged rows that have nothing but missing numbers.
Public Declare PtrSafe Function VB_M_AllMissingRows Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef flagsIn As Integer, _
    ByRef flagsOut As Integer) As Long

' Flags the flagged rows that have nothing but empty texts.
Public Declare PtrSafe Function VB_M_AllMissingRowsStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal p As Long, ByRef flagsIn As Integer, _
    ByRef flagsOut As Integer) As Long

' Whether some cell (i, j), i below j, of a square table is missing while the cells (i, i) and (j,
' j) are both above the missing number.
Public Declare PtrSafe Function Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Integer

' The same for a symmetric table of which column j holds the cells from the diagonal down.
Public Declare PtrSafe Function Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long) As Integer

' ---- missing/missing_rows.h

' Takes the flagged rows out in place: those below move up, and the rows that become free stay as
' they were.
Public Declare PtrSafe Function Cpp_M_RemoveRowsWithMissing2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef flags As Integer) As Long

' Copies a table without the flagged rows.
Public Declare PtrSafe Function VB_RemoveRowsWithMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByVal removed As Long, _
    ByRef flags As Integer, ByRef result As Double) As Long

' Takes the flagged rows out of a table of texts in place, as Cpp_M_RemoveRowsWithMissing2 does, and
' copies its first rows.
Public Declare PtrSafe Function VB_RemoveRowsWithMissingStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal p As Long, ByVal removed As Long, _
    ByRef flags As Integer, ByVal result As LongPtr) As Long

' Copies a table of flags without the flagged rows.
Public Declare PtrSafe Function VB_RemoveRowsWithMissingBool Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal n As Long, ByVal p As Long, ByVal removed As Long, _
    ByRef flags As Integer, ByRef result As Integer) As Long

' Copies a table without the flagged rows, and tells how many stay.
Public Declare PtrSafe Function Cpp_RemoveRowsWithMissingOniMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef iMissing As Integer, _
    ByRef result As Double) As Long

' The same for texts.
Public Declare PtrSafe Function Cpp_RemoveRowsWithMissingOniMissingStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal p As Long, ByRef iMissing As Integer, _
    ByVal result As LongPtr) As Long

' Spreads the rows of a table, with rows of missing numbers between them.
Public Declare PtrSafe Function Cpp_M_InsertMissingDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef flags As Integer, ByVal m As Long, _
    ByRef result As Double) As Long

' The same for integers; the missing one is -2147483648.
Public Declare PtrSafe Function Cpp_M_InsertMissingLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByVal p As Long, ByRef flags As Integer, ByVal m As Long, _
    ByRef result As Long) As Long

' ---- missing/missing_summaries.h

' Sum of the numbers of one vector where neither it nor another vector is missing.
Public Declare PtrSafe Function VB_V_SumIfNotMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef y As Double) As Double

' Strings the numbers that are not missing together, column after column.
Public Declare PtrSafe Function Cpp_MatToVect_NoMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef counts As Double, _
    ByRef emptyColumns As Double, ByRef vector As Double) As Long

' The smallest number that is not missing.
Public Declare PtrSafe Function Cpp_V_MinIgnoreMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double

' The smallest number of a labelled table that is not missing.
Public Declare PtrSafe Function Cpp_M_MinIgnoreMissing_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Double

' ---- missing/nearest_neighbours.h

' Fills missing cells of flagged rows by the value of the nearest row; see the head of this file.
' primary (Double) may be null. rowFlags (Integer) may be null. second (Double) may be null.
Public Declare PtrSafe Function VB_EstimateRowsWithMissingNN Lib "KORVELMathTools.dll" ( _
    ByRef primary As Any, ByVal n As Long, ByVal primaryColumns As Long, ByRef rowFlags As Any, _
    ByRef second As Any, ByVal secondColumns As Long, ByVal third As LongPtr, _
    ByVal thirdColumns As Long, ByRef w As Double) As Long

' Fills missing cells of flagged rows by the value of the nearest row; see the head of this file.
' primaryStatistics (Double) may be null. primary (Double) may be null. rowFlags (Integer) may be
' null. secondStatistics (Double) may be null. second (Double) may be null.
Public Declare PtrSafe Function VB_EstimateRowsWithMissingNNPred Lib "KORVELMathTools.dll" ( _
    ByRef primaryStatistics As Any, ByVal n As Long, ByRef primary As Any, ByVal rows As Long, _
    ByVal primaryColumns As Long, ByRef rowFlags As Any, ByRef secondStatistics As Any, _
    ByRef second As Any, ByVal secondColumns As Long, ByVal thirdStatistics As LongPtr, _
    ByVal third As LongPtr, ByVal thirdColumns As Long, ByRef w As Double) As Long

' Fills missing cells of flagged rows by the value of the nearest row; see the head of this file.
' rowFlags (Integer) may be null. second (Double) may be null.
Public Declare PtrSafe Function VB_EstimateRowsWithMissingNNSPV Lib "KORVELMathTools.dll" ( _
    ByVal primary As LongPtr, ByVal n As Long, ByVal primaryColumns As Long, ByRef rowFlags As Any, _
    ByRef second As Any, ByVal secondColumns As Long, ByVal third As LongPtr, _
    ByVal thirdColumns As Long, ByRef w As Double) As Long

' Fills missing cells of flagged rows by the value of the nearest row; see the head of this file.
' rowFlags (Integer) may be null.
Public Declare PtrSafe Function VB_EstimateRowsWithMissingNNSPV2 Lib "KORVELMathTools.dll" ( _
    ByVal primary As LongPtr, ByVal n As Long, ByVal primaryColumns As Long, ByRef rowFlags As Any, _
    ByVal second As LongPtr, ByVal secondColumns As Long, ByVal third As LongPtr, _
    ByVal thirdColumns As Long, ByRef w As Double) As Long

' Fills missing cells of flagged rows by the value of the nearest row; see the head of this file.
' rowFlags (Integer) may be null. second (Double) may be null.
Public Declare PtrSafe Function VB_EstimateRowsWithMissingNNStr Lib "KORVELMathTools.dll" ( _
    ByVal primary As LongPtr, ByVal n As Long, ByVal primaryColumns As Long, ByRef rowFlags As Any, _
    ByRef second As Any, ByVal secondColumns As Long, ByVal third As LongPtr, _
    ByVal thirdColumns As Long, ByRef w As Double) As Long

' Fills missing cells of flagged rows by the value of the nearest row; see the head of this file.
' rowFlags (Integer) may be null. secondStatistics (Double) may be null. second (Double) may be
' null.
Public Declare PtrSafe Function VB_EstimateRowsWithMissingNNStrPred Lib "KORVELMathTools.dll" ( _
    ByVal primaryStatistics As LongPtr, ByVal n As Long, ByVal primary As LongPtr, _
    ByVal rows As Long, ByVal primaryColumns As Long, ByRef rowFlags As Any, _
    ByRef secondStatistics As Any, ByRef second As Any, ByVal secondColumns As Long, _
    ByVal thirdStatistics As LongPtr, ByVal third As LongPtr, ByVal thirdColumns As Long, _
    ByRef w As Double) As Long

' ---- missing/observation_labels.h

' Makes a label for each flagged row: the prefix and the row number, and a further number while
' another row has that label.
Public Declare PtrSafe Function VB_ReplaceMissingObsLabels Lib "KORVELMathTools.dll" ( _
    ByVal labels As LongPtr, ByVal n As Long, ByRef flags As Integer, ByVal prefix As LongPtr) As Long

' ---- missing/pairwise_deletion.h

' Keeps the elements of three series where the first two are both above `KORVEL_MISSING_DBL`; a NaN
' is not.
Public Declare PtrSafe Function Cpp_V_PairwiseDeletion Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByRef y As Double, ByRef z As Double, ByVal n As Long, ByRef xOut As Double, _
    ByRef yOut As Double, ByRef zOut As Double, ByRef count As Long) As Long

' ---- ordering/apply_order.h

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

' ---- ordering/deviations.h

' Weighted mean of the absolute deviations from a centre.
Public Declare PtrSafe Function Cpp_V_MeanAbsDev Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal centre As Double, ByRef iMissing As Integer, _
    ByRef w As Double) As Double

' Median of the absolute deviations from a centre; weighted unless the weights are constant.
Public Declare PtrSafe Function Cpp_V_MedianAbsDev Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal centre As Double, ByRef iMissing As Integer, _
    ByRef w As Double) As Double

' Median of the absolute deviations from a centre, missing elements taking part as the smallest
' numbers.
Public Declare PtrSafe Function Cpp_V_MedianAbsDev2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef centre As Double) As Double

' Moves the elements outside two quantiles onto them.
Public Declare PtrSafe Function Cpp_V_Winsorize2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal qLow As Double, ByVal qHigh As Double) As Long

' ---- ordering/distinct.h

' Number of distinct values; neighbours in ascending order differ by more than
' 2.220446049250313e-16.
Public Declare PtrSafe Function VB_V_NbDistinct Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' Number of distinct integers.
Public Declare PtrSafe Function VB_V_NbDistinctLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long) As Long

' Number of distinct texts, compared exactly.
Public Declare PtrSafe Function Cpp_V_NbDistinctStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long) As Long

' The distinct values in ascending order: each that exceeds the one before it by more than the
' smaller of 2.220446049250313e-16 and the range of the data.
Public Declare PtrSafe Function VB_V_ExtractDistinct Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef out As Double, ByRef nOut As Long) As Long

' ---- ordering/modes.h

' The most frequent code of a vector of codes 0, 1, 2, ...; a number x is code trunc(x + 1) - 1.
Public Declare PtrSafe Function VB_V_ModeCatDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double

' The label with the greatest sum of weights, the first in the order of code units of equals.
' iMissing (Integer) may be null.
Public Declare PtrSafe Function VB_V_Mode Lib "KORVELMathTools.dll" ( _
    ByVal labels As LongPtr, ByVal n As Long, ByRef iMissing As Any, ByRef w As Double, _
    ByVal mode As LongPtr) As Long

' The label with the greatest sum of weights, the first in the order of code units of equals.
Public Declare PtrSafe Function Cpp_V_ModeW2 Lib "KORVELMathTools.dll" ( _
    ByVal labels As LongPtr, ByVal n As Long, ByRef w As Double, ByVal mode As LongPtr) As Long

' ---- ordering/quantiles.h

' Quantile by linear interpolation between order statistics (type 7 of Hyndman and Fan).
Public Declare PtrSafe Function VB_V_Quantile Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal q As Double) As Double

' Weighted quantile: the first value whose cumulative weight exceeds q times the total, or the mean
' of it and the one before where a cumulative weight hits that exactly.
Public Declare PtrSafe Function VB_V_QuantileW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByVal q As Double) As Double

' Weighted quantile of the elements of positive weight that are not missing.
Public Declare PtrSafe Function Cpp_V_QuantileW2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByVal q As Double) As Double

' Plain quantile of the elements that are not missing and not flagged.
Public Declare PtrSafe Function VB_V_QuantileM Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Integer, ByVal q As Double) As Double

' Weighted quantile of the elements that are not missing and not flagged.
Public Declare PtrSafe Function VB_V_QuantileMW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Integer, ByRef w As Double, _
    ByVal q As Double) As Double

' Sorts a vector, ascending, and takes its quantiles at 0.05, 0.1, 0.2, 0.25, 0.3, 0.4, 0.5, 0.6,
' 0.7, 0.75, 0.8, 0.9 and 0.95, at position (n - 1) p + 0.5 up to the median and (n - 1) p + 1 above
' it, from 1.
Public Declare PtrSafe Function Cpp_V_Quantiles13 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef out As Double) As Long

' ---- ordering/ranks.h

' Dense ranks: 1 for the smallest element, one more at each change of value.
Public Declare PtrSafe Function VB_V_GetRanksDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef out As Double) As Long

' Dense ranks as integers: 1 for the smallest element, one more at each change of value.
Public Declare PtrSafe Function VB_V_GetRanksLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef out As Long) As Long

' Weighted mid-ranks: a weight acts as a count of repetitions; tied elements, closer than 1e-15,
' share the mean of their ranks; a missing element has a missing rank.
Public Declare PtrSafe Function VB_V_GetRanksTiesDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bRestore As Integer, ByRef w As Double, _
    ByRef ranks As Double, ByRef nTies As Long, ByRef tieSizes As Double) As Long

' Mid-ranks: tied elements, closer than 1e-15, share the mean of their ranks; a missing element has
' a missing rank.
Public Declare PtrSafe Function VB_V_GetRanksTiesDbl2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bRestore As Integer, ByRef ranks As Double, _
    ByRef nTies As Long, ByRef tieSizes As Double) As Long

' Ranks 1, 2, ...
Public Declare PtrSafe Function VB_V_GetRanksTiesIntDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByRef ranks As Double, _
    ByRef nTies As Long, ByRef tieSizes As Double) As Long

' Position of a linear index in the strict upper triangle of a square table, read row by row.
Public Declare PtrSafe Function VB_V_GetPositionInMatNNm1o2 Lib "KORVELMathTools.dll" ( _
    ByVal k As Long, ByVal n As Long, ByRef row As Long, ByRef col As Long) As Long

' Position of a linear index in a square table, read row by row.
Public Declare PtrSafe Function VB_V_GetPositionInMatNN Lib "KORVELMathTools.dll" ( _
    ByVal k As Long, ByVal n As Long, ByRef row As Long, ByRef col As Long) As Long

' ---- ordering/reverse.h

' A vector of numbers back to front.
Public Declare PtrSafe Function VB_V_ReverseDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef out As Double) As Long

' A vector of flags back to front.
Public Declare PtrSafe Function VB_V_ReverseBool Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal n As Long, ByRef out As Integer) As Long

' A vector of numbers back to front, in place.
Public Declare PtrSafe Function Cpp_V_Reverse2Dbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' A vector of integers back to front, in place.
Public Declare PtrSafe Function Cpp_V_Reverse2Lng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long) As Long

' A vector of flags back to front, in place.
Public Declare PtrSafe Function Cpp_V_Reverse2Bool Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal n As Long) As Long

' ---- ordering/sort_by_column.h

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

' ---- ordering/sort_table.h

' Orders the rows of a table of numbers by a key, on copies that then replace the caller's arrays.
' aux (Double) may be null.
Public Declare PtrSafe Function VB_SortQDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByRef aux As Any, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a table of numbers by a key, in the caller's arrays. aux (Double) may be null.
Public Declare PtrSafe Function VB_SortQDbl2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByRef aux As Any, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the columns of a table of numbers by a key with one entry a column: the column of rank k,
' from 0, goes to column from + k.
Public Declare PtrSafe Function VB_SortQByColDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByRef aux As Double, ByVal auxRows As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a table of integers by a key of integers. aux (Long) may be null.
Public Declare PtrSafe Function VB_SortQLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Long, ByRef aux As Any, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a table of flags by a key of numbers. aux (Integer) may be null.
Public Declare PtrSafe Function VB_SortQBool Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByRef aux As Any, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a table of texts by a key of numbers.
Public Declare PtrSafe Function VB_SortQStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByVal aux As LongPtr, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a record of labelled columns of numbers by a key. aux (Double) may be null.
Public Declare PtrSafe Function Cpp_SortQDbl_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByRef aux As Any, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a table of integers, a single array that comes out of a record, by a key of
' integers. aux (Long) may be null.
Public Declare PtrSafe Function Cpp_SortQLng_ST Lib "KORVELMathTools.dll" ( _
    ByRef x() As Long, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Long, ByRef aux As Any, ByVal auxCols As Long, _
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

' ---- ordering/sort_vector.h

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

' ---- ordering/sorted_insertion.h

' Puts a value into an ascending vector and lets the smallest fall out, unless the value is not
' above it.
Public Declare PtrSafe Function Cpp_V_InsertValueLow Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double, ByVal bSort As Integer) As Long

' Puts a value into an ascending vector and lets the largest fall out, unless the value is not below
' it.
Public Declare PtrSafe Function Cpp_V_InsertValueUp Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double, ByVal bSort As Integer) As Long

' ---- ordering/survey_boxes.h

' Weights of the highest and lowest distinct scores, cumulative over one, two and three levels.
Public Declare PtrSafe Function Cpp_V_TopBottom3Box Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByRef top1 As Double, _
    ByRef bottom1 As Double, ByRef top2 As Double, ByRef bottom2 As Double, ByRef top3 As Double, _
    ByRef bottom3 As Double) As Long

' The boxes of one group: only elements whose group value is within 1e-12 of groupValue add their
' weight.
Public Declare PtrSafe Function Cpp_V_TopBottom3BoxConditional Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByRef group As Double, _
    ByVal groupValue As Double, ByRef top1 As Double, ByRef bottom1 As Double, ByRef top2 As Double, _
    ByRef bottom2 As Double, ByRef top3 As Double, ByRef bottom3 As Double) As Long

' ---- ordering/trim.h

' Strips spaces (U+0020) from the ends of texts.
Public Declare PtrSafe Function Cpp_V_Trim Lib "KORVELMathTools.dll" ( _
    ByVal labels As LongPtr, ByVal n As Long, ByVal bLeft As Integer, ByVal bRight As Integer, _
    ByVal out As LongPtr) As Long

' Strips spaces (U+0020) from the ends of texts, in place.
Public Declare PtrSafe Function Cpp_V_Trim2 Lib "KORVELMathTools.dll" ( _
    ByVal labels As LongPtr, ByVal n As Long, ByVal bLeft As Integer, ByVal bRight As Integer) As Long

' ---- platform/version.h

' The version of the library that is loaded.
Public Declare PtrSafe Function KORVEL_Version Lib "KORVELMathTools.dll" () As Long

' ---- qualitative/binary_tables.h

' 0 for a number closer to 0 than the machine epsilon, 1 for any other.
Public Declare PtrSafe Function VB_M_Binarize Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef result As Double) As Long

' 0 for a number closer to 0 than the machine epsilon, 1 for any other, in place.
Public Declare PtrSafe Function VB_M_Binarize2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long) As Long

' The same of a chunked table.
Public Declare PtrSafe Function VB_M_Binarize2SPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal p As Long, ByVal n As Long) As Long

' Whether a table looks like a disjunctive one. rowFlags (Integer) may be null.
Public Declare PtrSafe Function VB_M_IsDisjTable Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef rowFlags As Any, ByRef rowSum As Long) As Integer

' Whether a vector has at most two different values.
Public Declare PtrSafe Function Cpp_V_IsBinaryDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal skipMissing As Integer) As Integer

' Whether each element of a vector is one of two values.
Public Declare PtrSafe Function Cpp_V_IsBinaryDblXY Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal a As Double, ByVal b As Double, _
    ByVal skipMissing As Integer) As Integer

' Whether each column of a labelled table has at most two different values, as `Cpp_V_IsBinaryDbl`
' tells it of its first `Count` rows.
Public Declare PtrSafe Function Cpp_M_IsBinaryDbl_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal skipMissing As Integer) As Integer

' Makes a vector of two values one of 0 and 1, the smaller value becoming 0.
Public Declare PtrSafe Function Cpp_V_ConvertBinaryTo01Dbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' Each column, followed by 1 less the column.
Public Declare PtrSafe Function Cpp_M_ConvertBinarytoDisjTable Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef result As Double) As Long

' ---- qualitative/category_codes.h

' The code of each text: `firstCode` for the first category of its variable, and one more for each
' next one.
Public Declare PtrSafe Function VB_M_ReplaceStrByCodes Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByRef categoryCounts As Long, _
    ByVal categories As LongPtr, ByRef rowFlags As Integer, ByVal firstCode As Long, _
    ByRef result As Double) As Long

' The same from a labelled table into another one.
Public Declare PtrSafe Function Cpp_M_ReplaceStrByCodes_ST Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByRef categoryCounts As Long, _
    ByVal categories As LongPtr, ByRef rowFlags As Integer, ByVal firstCode As Long, _
    ByVal result As LongPtr) As Long

' The same into a chunked table.
Public Declare PtrSafe Function Cpp_M_ReplaceStrByCodesSPV Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByRef categoryCounts As Long, _
    ByVal categories As LongPtr, ByRef rowFlags As Integer, ByVal firstCode As Long, _
    ByVal result As LongPtr) As Long

' The code of each text, from 1 on.
Public Declare PtrSafe Function Cpp_M_ReplaceCatByCodes Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByRef categoryCounts As Long, _
    ByVal categories As LongPtr, ByRef result As Double) As Long

' The same from a labelled table into another one.
Public Declare PtrSafe Function Cpp_M_ReplaceCatByCodes_ST Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByRef categoryCounts As Long, _
    ByVal categories As LongPtr, ByVal result As LongPtr) As Long

' Codes from 0 on in the order in which texts first appear in the whole table, column after column.
' rowFlags (Integer) may be null.
Public Declare PtrSafe Function VB_M_ReplaceStrByCodesBinary Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByRef rowFlags As Any, _
    ByRef result As Double) As Long

' Replaces texts by others.
Public Declare PtrSafe Function Cpp_M_RecodeDataWithCodes_ST Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByVal codes As LongPtr, _
    ByVal codeCount As Long, ByVal result As LongPtr) As Long

' 1 for each element that is the given text, 0 for all others.
Public Declare PtrSafe Function Cpp_V_RecodeToBinary Lib "KORVELMathTools.dll" ( _
    ByVal column As LongPtr, ByVal n As Long, ByVal value As LongPtr, ByRef result As Double) As Long

' ---- qualitative/category_counts.h

' The number of different texts in each column, the empty one left out.
Public Declare PtrSafe Function Cpp_GetMaxCat Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByRef categoryCounts As Long) As Long

' Whether a name is used twice: in a slot of one variable, and in a later slot of the same or of any
' other variable.
Public Declare PtrSafe Function Cpp_CheckUniqueCatByVar Lib "KORVELMathTools.dll" ( _
    ByVal categories As LongPtr, ByVal p As Long, ByVal width As Long, ByRef categoryCounts As Long) As Long

' ---- qualitative/category_info.h

' The categories of each variable, in tables as wide as there are rows.
Public Declare PtrSafe Function VB_M_InfoQuali Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByVal modes As LongPtr, _
    ByRef modeFrequencies As Double, ByRef categoryCounts As Long, ByVal categories As LongPtr, _
    ByRef frequencies As Double, ByRef weights As Double, ByRef total As Long, ByVal sort As Integer) As Long

' The same function under the name that sibling modules know.
Public Declare PtrSafe Function Cpp_M_InfoQualiNoMiss Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByVal modes As LongPtr, _
    ByRef modeFrequencies As Double, ByRef categoryCounts As Long, ByVal categories As LongPtr, _
    ByRef frequencies As Double, ByRef weights As Double, ByRef total As Long, ByVal sort As Integer) As Long

' The categories of each variable, in tables of a width of the caller's; more categories are not
' kept.
Public Declare PtrSafe Function VB_M_InfoQuali2 Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByVal width As Long, _
    ByRef categoryCounts As Long, ByVal modes As LongPtr, ByRef modeFrequencies As Double, _
    ByVal categories As LongPtr, ByRef frequencies As Double, ByRef weights As Double, _
    ByRef total As Long, ByVal sort As Integer) As Long

' The categories of variables that all have the same number of them.
Public Declare PtrSafe Function Cpp_M_InfoQuali3 Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByVal width As Long, _
    ByVal count As Long, ByVal modes As LongPtr, ByRef modeFrequencies As Double, _
    ByVal categories As LongPtr, ByRef frequencies As Double, ByRef weightedFrequencies As Double, _
    ByRef weights As Double, ByRef total As Long, ByVal sort As Integer) As Long

' ---- qualitative/category_records.h

' The categories of each variable of a labelled table, in order of first appearance, with their
' numbers of rows and their weights. weights (Double) may be null.
Public Declare PtrSafe Function Cpp_M_InfoQuali3_ST Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByRef weights As Any, ByVal info As LongPtr) As Long

' ---- qualitative/category_validation.h

' Counts the rows of each category by their weights.
Public Declare PtrSafe Function VB_M_InfoQualiValid Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByVal width As Long, _
    ByRef categoryCounts As Long, ByVal categories As LongPtr, ByRef counts As Double, _
    ByRef newCategoryFound As Integer, ByRef weights As Double) As Long

' Counts the rows of each category on records.
Public Declare PtrSafe Function Cpp_M_InfoQualiValid_ST Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByVal reference As LongPtr, _
    ByVal result As LongPtr, ByRef newCategoryFound As Integer, ByRef weights As Double) As Long

' ---- qualitative/column_types.h

' Whether a column is qualitative: the types 2, 4 and 5.
Public Declare PtrSafe Function isQuali Lib "KORVELMathTools.dll" ( _
    ByVal typeValue As Long) As Integer

' Whether a column is qualitative and nothing else: the types 2 and 4.
Public Declare PtrSafe Function isQualiPure Lib "KORVELMathTools.dll" ( _
    ByVal typeValue As Long) As Integer

' ---- qualitative/disjunctive_tables.h

' The disjunctive table of a table of texts.
Public Declare PtrSafe Function VB_BuildDisjunctiveTable Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByVal totalColumns As Long, _
    ByRef categoryCounts As Long, ByVal categories As LongPtr, ByRef frequencies As Double, _
    ByRef result As Double, ByVal coding As Long, ByVal firstCategoryOption As Long) As Long

' The disjunctive table of a record.
Public Declare PtrSafe Function Cpp_BuildDisjunctiveTable_ST Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal info As LongPtr, ByVal result As LongPtr, ByVal coding As Long, _
    ByVal firstCategoryOption As Long) As Long

' ---- random/indicator.h

' Marks a range of elements.
Public Declare PtrSafe Function VB_GenerateIndicator Lib "KORVELMathTools.dll" ( _
    ByRef out As Double, ByVal n As Long, ByVal first As Long, ByVal last As Long) As Long

' Marks a range of elements of a host array.
Public Declare PtrSafe Function Cpp_GenerateIndicator_ST Lib "KORVELMathTools.dll" ( _
    ByRef out() As Double, ByVal n As Long, ByVal first As Long, ByVal last As Long) As Long

' Marks a random subset of k out of n elements: those of the k smallest of n uniform draws.
Public Declare PtrSafe Function VB_GenerateRandomIndicator Lib "KORVELMathTools.dll" ( _
    ByRef out As Double, ByVal n As Long, ByVal k As Long, ByRef seed As Long, _
    ByVal flag As Integer, ByRef nextSeed As Long) As Long

' Marks a random subset of k out of n elements of a host array.
Public Declare PtrSafe Function Cpp_GenerateRandomIndicator_ST Lib "KORVELMathTools.dll" ( _
    ByRef out() As Double, ByVal n As Long, ByVal k As Long, ByRef seed As Long, _
    ByVal flag As Integer, ByRef nextSeed As Long) As Long

' ---- random/permutation.h

' Random permutation of the integers 1 to n.
Public Declare PtrSafe Function Cpp_Random1toNLong Lib "KORVELMathTools.dll" ( _
    ByRef out As Long, ByVal n As Long, ByVal bReset As Integer, ByRef seed As Long, _
    ByRef flag As Integer, ByRef nextSeed As Long) As Long

' Random permutation of the numbers 1 to n.
Public Declare PtrSafe Function Cpp_Random1toNDbl Lib "KORVELMathTools.dll" ( _
    ByRef out As Double, ByVal n As Long, ByVal bReset As Integer, ByRef seed As Long, _
    ByRef flag As Integer, ByRef nextSeed As Long) As Long

' Random permutation of the integers from a to b, of which the array gets all but the last two.
Public Declare PtrSafe Function Cpp_RandomAtoBLng Lib "KORVELMathTools.dll" ( _
    ByRef out As Long, ByVal a As Long, ByVal b As Long, ByVal bReset As Integer, _
    ByRef seed As Long, ByRef flag As Integer, ByRef nextSeed As Long) As Long

' Random permutation of the numbers from a to b in steps of 1, of which the array gets all but the
' last two.
Public Declare PtrSafe Function Cpp_RandomAtoBDbl Lib "KORVELMathTools.dll" ( _
    ByRef out As Double, ByVal a As Long, ByVal b As Long, ByVal bReset As Integer, _
    ByRef seed As Long, ByRef flag As Integer, ByRef nextSeed As Long) As Long

' ---- random/random_generators.h

' Seeds the random source and draws one uniform number.
Public Declare PtrSafe Function Cpp_Random01 Lib "KORVELMathTools.dll" ( _
    ByRef seed As Long, ByVal flag As Integer, ByRef nextSeed As Long) As Double

' ---- random/random_source.h

' Selects the random generator.
Public Declare PtrSafe Function Cpp_set_rand_algo Lib "KORVELMathTools.dll" ( _
    ByVal algorithm As Long) As Long

' ---- random/random_table.h

' Seeds the random source and fills an array with uniform numbers in storage order, column after
' column.
Public Declare PtrSafe Function VB_M_GenerateRandom01 Lib "KORVELMathTools.dll" ( _
    ByRef out As Double, ByVal rows As Long, ByVal cols As Long, ByRef seed As Long, _
    ByVal flag As Integer, ByRef nextSeed As Long) As Long

' ---- random/sampling.h

' Simple random sample of rows with replacement, in the order of the rows.
Public Declare PtrSafe Function VB_M_SamplingWithReplacement Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, _
    ByVal sample As LongPtr, ByRef selected As Double, ByRef seed As Long, ByVal flag As Integer, _
    ByRef nextSeed As Long) As Long

' Takes each row as many times as the caller says, in the order of the rows.
Public Declare PtrSafe Function VB_M_SampleUserDefined Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal sample As LongPtr, _
    ByRef counts As Double, ByRef selected As Double) As Long

' Takes each row of a chunked table as many times as the caller says, in the order of the rows.
Public Declare PtrSafe Function VB_M_SampleUserDefinedSPV Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal sample As LongPtr, _
    ByRef counts As Double, ByRef selected As Double) As Long

' Systematic sample of rows with a random start: with the step s, the quotient (rows - 1) / (k - 1)
' without its fraction, every s-th row from a random one of the first rows - (k - 1) s.
Public Declare PtrSafe Function VB_M_SamplingSystematicRdStart Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, _
    ByVal sample As LongPtr, ByRef selected As Double, ByRef seed As Long, ByVal flag As Integer, _
    ByRef nextSeed As Long) As Long

' Systematic sample of the rows of a chunked table with a random start: see
' VB_M_SamplingSystematicRdStart.
Public Declare PtrSafe Function VB_M_SamplingSystematicRdStartSPV Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, _
    ByVal sample As LongPtr, ByRef selected As Double, ByRef seed As Long, ByVal flag As Integer, _
    ByRef nextSeed As Long) As Long

' Systematic sample of rows with a start in the middle of the possible ones.
Public Declare PtrSafe Function VB_M_SamplingSystematicCentered Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, _
    ByVal sample As LongPtr, ByRef selected As Double) As Long

' Systematic sample of the rows of a chunked table with a start in the middle of the possible ones.
Public Declare PtrSafe Function VB_M_SamplingSystematicCenteredSPV Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, _
    ByVal sample As LongPtr, ByRef selected As Double) As Long

' One random row from each of k strata of consecutive rows.
Public Declare PtrSafe Function VB_M_SamplingRandomStratified Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, _
    ByVal sample As LongPtr, ByRef selected As Double, ByRef seed As Long, ByVal flag As Integer, _
    ByRef nextSeed As Long) As Long

' One random row of a chunked table from each of k strata of consecutive rows.
Public Declare PtrSafe Function VB_M_SamplingRandomStratifiedSPV Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, _
    ByVal sample As LongPtr, ByRef selected As Double, ByRef seed As Long, ByVal flag As Integer, _
    ByRef nextSeed As Long) As Long

' Simple random sample with replacement from each stratum, a stratum being the rows of one label.
Public Declare PtrSafe Function Cpp_M_SamplingRandomStratifiedByStr Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, _
    ByVal sample As LongPtr, ByVal strata As LongPtr, ByRef selected As Double, _
    ByRef counts As Double, ByVal nCounts As Long, ByRef seed As Long, ByVal flag As Integer, _
    ByRef nextSeed As Long) As Long

' ---- random/shuffle.h

' Shuffles a vector of numbers.
Public Declare PtrSafe Function Cpp_V_Shuffle Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef seed As Long, ByVal flag As Integer, _
    ByRef nextSeed As Long) As Long

' Shuffles a vector of integers.
Public Declare PtrSafe Function Cpp_V_ShuffleLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByRef seed As Long, ByVal flag As Integer, _
    ByRef nextSeed As Long) As Long

' Shuffles the rows of a table of numbers in place; the columns of a row stay together.
Public Declare PtrSafe Function Cpp_M_ShuffleDbl2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef seed As Long, _
    ByVal flag As Integer, ByRef nextSeed As Long) As Long

' Shuffles the rows of a table of texts in place; the columns of a row stay together.
Public Declare PtrSafe Function Cpp_M_ShuffleStr2 Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef seed As Long, _
    ByVal flag As Integer, ByRef nextSeed As Long) As Long

' Shuffles the rows of a table of numbers into another table; the columns of a row stay together.
Public Declare PtrSafe Function Cpp_M_ShuffleDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double, _
    ByRef seed As Long, ByVal flag As Integer, ByRef nextSeed As Long) As Long

' Shuffles the rows of a table of texts into another table; the columns of a row stay together.
Public Declare PtrSafe Function Cpp_M_ShuffleStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal out As LongPtr, _
    ByRef seed As Long, ByVal flag As Integer, ByRef nextSeed As Long) As Long

' ---- statistics/centering.h

' Standardises in place.
Public Declare PtrSafe Function VB_M_Standardize2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal bUnbiased As Integer) As Long

' The same on a table of separate columns.
Public Declare PtrSafe Function VB_M_Standardize2SPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal bUnbiased As Integer) As Long

' Standardises in place and returns the statistics.
Public Declare PtrSafe Function VB_M_Standardize3 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef sds As Double, ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Standardises, with weights, into a result.
Public Declare PtrSafe Function VB_M_StandardizeW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Double, _
    ByVal bUnbiased As Integer, ByVal bFreq As Integer, ByRef out As Double) As Long

' Standardises, with weights, in place.
Public Declare PtrSafe Function VB_M_StandardizeW2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Double, _
    ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Standardises, with weights, in place and returns the statistics.
Public Declare PtrSafe Function VB_M_StandardizeW3 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Double, _
    ByRef means As Double, ByRef sds As Double, ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Centres into a result.
Public Declare PtrSafe Function VB_M_Center Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double) As Long

' Centres, with weights, into a result.
Public Declare PtrSafe Function VB_M_CenterW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Double, _
    ByRef out As Double) As Long

' Centres in place.
Public Declare PtrSafe Function VB_M_Center2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Long

' The same on a table of separate columns.
Public Declare PtrSafe Function VB_M_Center2SPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Long

' Centres, with weights, in place.
Public Declare PtrSafe Function VB_M_CenterW2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Double) As Long

' Reduces into a result.
Public Declare PtrSafe Function VB_M_Reduce Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double, _
    ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Reduces, with weights, into a result.
Public Declare PtrSafe Function VB_M_ReduceW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Double, _
    ByRef out As Double, ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Reduces in place.
Public Declare PtrSafe Function VB_M_Reduce2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal bUnbiased As Integer) As Long

' Reduces, with weights, in place.
Public Declare PtrSafe Function VB_M_ReduceW2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Double, _
    ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' ---- statistics/column_deviations.h

' Means and standard deviations of the columns. iMissing (Integer) may be null.
Public Declare PtrSafe Function VB_M_MeanStDev Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef sds As Double, ByRef iMissing As Any, ByRef w As Double, ByVal bUnbiased As Integer, _
    ByVal bFreq As Integer, ByVal flag As Integer) As Long

' Means, standard deviations and variances of the columns. iMissing (Integer) may be null.
Public Declare PtrSafe Function VB_M_MeanStDevVar Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef sds As Double, ByRef vars As Double, ByRef iMissing As Any, ByRef w As Double, _
    ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Means and standard deviations of the rows.
Public Declare PtrSafe Function VB_M_MeanStDevByRow Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef sds As Double, ByRef w As Double, ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Mean, standard deviation and variance of all cells as one sample, column after column, each cell
' with the weight of its row.
Public Declare PtrSafe Function VB_M_MeanStDevVarOneInMat Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef mean As Double, _
    ByRef sd As Double, ByRef var As Double, ByRef w As Double, ByVal bUnbiased As Integer, _
    ByVal bFreq As Integer) As Long

' ---- statistics/column_extremes.h

' Both extremes of each column. iMissing (Integer) may be null.
Public Declare PtrSafe Function VB_M_MinMax Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef mins As Double, _
    ByRef maxs As Double, ByRef iMissing As Any, ByVal flag As Integer) As Long

' VB_M_MinMax on a table of separate columns. iMissing (Integer) may be null.
Public Declare PtrSafe Function VB_M_MinMaxSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef mins As Double, _
    ByRef maxs As Double, ByRef iMissing As Any, ByVal flag As Integer) As Long

' VB_M_MinMax on a symmetric table, of which each separate column starts at the diagonal. iMissing
' (Integer) may be null.
Public Declare PtrSafe Function VB_M_MinMaxSPV_T Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef mins As Double, _
    ByRef maxs As Double, ByRef iMissing As Any, ByVal flag As Integer) As Long

' The largest number of each column; missing numbers do not count.
Public Declare PtrSafe Function VB_M_Max Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double) As Long

' The smallest number of each column; missing numbers do not count.
Public Declare PtrSafe Function VB_M_Min Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double) As Long

' The smallest number of a table; missing numbers do not count.
Public Declare PtrSafe Function Cpp_M_MinAll Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Double

' ---- statistics/column_means.h

' Weighted means over the cells that are not missing.
Public Declare PtrSafe Function VB_M_Mean Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef w As Double) As Long

' VB_M_Mean on a table of separate columns.
Public Declare PtrSafe Function Cpp_M_MeanSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef w As Double) As Long

' Weighted means over the cells greater than the missing value, so that a NaN is not kept.
Public Declare PtrSafe Function Cpp_M_Mean2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Double, _
    ByRef means As Double) As Long

' Cpp_M_Mean2 with all weights 1.0.
Public Declare PtrSafe Function Cpp_M_Mean3 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double) As Long

' ---- statistics/column_sums.h

' The sum of each row.
Public Declare PtrSafe Function VB_M_SumByRows Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double) As Long

' The sum of each column.
Public Declare PtrSafe Function VB_M_SumByCols Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double) As Long

' The sum of all cells.
Public Declare PtrSafe Function VB_M_SumOfElem Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Double

' The sum of squares of each column.
Public Declare PtrSafe Function Cpp_M_SumBySquareCols Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double) As Long

' The sum of squares of each row.
Public Declare PtrSafe Function Cpp_M_SumBySquareRows Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double) As Long

' The sum of squares of each row.
Public Declare PtrSafe Function VB_M_SquaredRows Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double) As Long

' The sum of squares of each column.
Public Declare PtrSafe Function VB_M_SquaredColumns Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double) As Long

' ---- statistics/conditional_summaries.h

' Counts the elements that equal a value, exactly; the missing number is one like the others.
Public Declare PtrSafe Function VB_V_NbIf Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double) As Double

' The same for integers.
Public Declare PtrSafe Function VB_V_NbIfLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByVal val As Long) As Double

' Total weight of the elements that equal a value, exactly.
Public Declare PtrSafe Function VB_V_NbIfW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByVal val As Double) As Double

' Sum of the values of a group.
Public Declare PtrSafe Function VB_V_SumIf Lib "KORVELMathTools.dll" ( _
    ByRef y As Double, ByVal n As Long, ByRef g As Double, ByVal val As Double) As Double

' Mean of the values of a group.
Public Declare PtrSafe Function VB_V_MeanIf Lib "KORVELMathTools.dll" ( _
    ByRef y As Double, ByVal n As Long, ByRef g As Double, ByVal val As Double) As Double

' Sum of weight times value of a group, over the rows of a weight above 0 of which neither is
' missing.
Public Declare PtrSafe Function VB_V_SumIfW Lib "KORVELMathTools.dll" ( _
    ByRef y As Double, ByVal n As Long, ByRef g As Double, ByRef w As Double, ByVal val As Double) As Double

' Weighted mean of a group.
Public Declare PtrSafe Function VB_V_MeanIfW Lib "KORVELMathTools.dll" ( _
    ByRef y As Double, ByVal n As Long, ByRef g As Double, ByRef w As Double, ByVal val As Double) As Double

' Largest value of a group.
Public Declare PtrSafe Function VB_V_MaxIf Lib "KORVELMathTools.dll" ( _
    ByRef y As Double, ByVal n As Long, ByRef g As Double, ByVal val As Double) As Double

' Smallest value of a group, below 1.79769313486231e308.
Public Declare PtrSafe Function VB_V_MinIf Lib "KORVELMathTools.dll" ( _
    ByRef y As Double, ByVal n As Long, ByRef g As Double, ByVal val As Double) As Double

' Variance of a group.
Public Declare PtrSafe Function Cpp_V_VarIf Lib "KORVELMathTools.dll" ( _
    ByRef y As Double, ByVal n As Long, ByRef g As Double, ByVal val As Double, _
    ByVal bUnbiased As Integer) As Double

' Weighted variance of a group.
Public Declare PtrSafe Function Cpp_V_VarIfW Lib "KORVELMathTools.dll" ( _
    ByRef y As Double, ByVal n As Long, ByRef g As Double, ByRef w As Double, ByVal val As Double, _
    ByVal bUnbiased As Integer) As Double

' Weighted variance of the rows whose code is above 1e-12, with a step of its own.
Public Declare PtrSafe Function Cpp_V_VarIfSup0W Lib "KORVELMathTools.dll" ( _
    ByRef y As Double, ByVal n As Long, ByRef g As Double, ByRef w As Double, _
    ByVal bUnbiased As Integer) As Double

' ---- statistics/constant_tests.h

' Tests a column of a table.
Public Declare PtrSafe Function VB_V_IsConstant Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bSkipMissing As Integer, ByVal col As Long) As Integer

' Tests integers.
Public Declare PtrSafe Function VB_V_IsConstantLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByVal bSkipMissing As Integer) As Integer

' Tests texts.
Public Declare PtrSafe Function VB_V_IsConstantStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal bSkipMissing As Integer) As Integer

' Tests flags.
Public Declare PtrSafe Function VB_V_IsConstantBool Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal n As Long) As Integer

' Tests each column of a table by itself, passing over missing numbers.
Public Declare PtrSafe Function VB_M_IsColConstant Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Integer

' The same for a chunked table.
Public Declare PtrSafe Function VB_M_IsColConstantSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Integer

' ---- statistics/correlation_conversion.h

' Correlations from covariances: each cell over the root of the product of the two variances on the
' diagonal, where that product is greater than 0.
Public Declare PtrSafe Function VB_M_CorrMatFromCovMat Lib "KORVELMathTools.dll" ( _
    ByRef cov As Double, ByVal n As Long, ByRef out As Double, ByVal bUndefinedIsZero As Integer) As Long

' The same in place on a symmetric table, of which each separate column starts at the diagonal; an
' undefined cell is missing.
Public Declare PtrSafe Function Cpp_M_CorrMatFromCovMatSPV2_T Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal n As Long) As Long

' Covariances from correlations: each cell times the root of the product of two variances, of which
' nothing is tested.
Public Declare PtrSafe Function Cpp_M_CovMatFromCorrMat Lib "KORVELMathTools.dll" ( _
    ByRef corr As Double, ByVal n As Long, ByRef vars As Double, ByRef out As Double) As Long

' ---- statistics/correlation_repair.h

' Replaces a symmetric table by the nearest correlation matrix, by alternating projections (Higham,
' IMA Journal of Numerical Analysis 22, 2002): cells are right to about 1e-6.
Public Declare PtrSafe Function Cpp_M_CorrMatFromSymMat Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' The same for a table of separate columns.
Public Declare PtrSafe Function Cpp_M_CorrMatFromSymMatSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long) As Long

' The same for a table of which each separate column starts at the diagonal.
Public Declare PtrSafe Function Cpp_M_CorrMatFromSymMatSPV_T Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long) As Long

' Replaces a symmetric table by a covariance table with the same variances: its correlations, those
' of a variance that is not above 0 being 0.0, become the nearest correlation matrix, and are
' multiplied with the roots of the variances again.
Public Declare PtrSafe Function Cpp_M_CovMatFromSymMat Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' ---- statistics/covariance.h

' Covariances, or correlations, of all pairs of columns. iMissing (Integer) may be null.
Public Declare PtrSafe Function VB_M_CovCorr Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double, _
    ByVal bCorr As Integer, ByRef iMissing As Any, ByRef w As Double, ByVal bUnbiased As Integer, _
    ByVal bFreq As Integer, ByVal bUndefinedIsZero As Integer) As Long

' VB_M_CovCorr on a labelled table. iMissing (Integer) may be null.
Public Declare PtrSafe Function Cpp_M_CovCorr_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal out As LongPtr, _
    ByVal bCorr As Integer, ByRef iMissing As Any, ByRef w As Double, ByVal bUnbiased As Integer, _
    ByVal bFreq As Integer, ByVal bUndefinedIsZero As Integer) As Long

' Covariances, or correlations, with the mean, the standard deviation and the variance of each
' column; on request the table itself is centred and reduced. iMissing (Integer) may be null.
Public Declare PtrSafe Function VB_M_CovCorrAndMeanStDevVar Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double, _
    ByRef means As Double, ByRef sds As Double, ByRef vars As Double, ByVal bCorr As Integer, _
    ByRef iMissing As Any, ByRef w As Double, ByVal bUnbiased As Integer, ByVal bFreq As Integer, _
    ByVal bCenter As Integer, ByVal bReduce As Integer, ByVal bUndefinedIsZero As Integer) As Long

' The same as VB_M_CovCorrAndMeanStDevVar. iMissing (Integer) may be null.
Public Declare PtrSafe Function VB_M_CovCorrVAndMeanStDevVar Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double, _
    ByRef means As Double, ByRef sds As Double, ByRef vars As Double, ByVal bCorr As Integer, _
    ByRef iMissing As Any, ByRef w As Double, ByVal bUnbiased As Integer, ByVal bFreq As Integer, _
    ByVal bCenter As Integer, ByVal bReduce As Integer, ByVal bUndefinedIsZero As Integer) As Long

' ---- statistics/cross_covariance.h

' Covariances, or correlations, of each column of one table with each column of another. iMissing
' (Integer) may be null.
Public Declare PtrSafe Function VB_M_CorrMatMat Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal colsX As Long, ByRef y As Double, _
    ByVal colsY As Long, ByRef out As Double, ByRef iMissing As Any, ByRef w As Double, _
    ByVal bCorr As Integer, ByVal bSquare As Integer, ByVal bUnbiased As Integer, _
    ByVal bFreq As Integer, ByVal bUndefinedIsZero As Integer) As Long

' VB_M_CorrMatMat on tables of separate columns. iMissing (Integer) may be null.
Public Declare PtrSafe Function VB_M_CorrMatMatSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal colsX As Long, ByVal y As LongPtr, _
    ByVal colsY As Long, ByVal out As LongPtr, ByRef iMissing As Any, ByRef w As Double, _
    ByVal bCorr As Integer, ByVal bSquare As Integer, ByVal bUnbiased As Integer, _
    ByVal bFreq As Integer, ByVal bUndefinedIsZero As Integer) As Long

' Weighted correlation of two vectors, over the elements of which the weight is greater than 0 and
' both values are greater than the missing value, so that a NaN is not kept.
Public Declare PtrSafe Function Cpp_V_Correl2W Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef y As Double, ByRef w As Double) As Double

' ---- statistics/distances.h

' Weighted Euclidean distances between the columns, or between rows: the root of the sum of w * d *
' d, d being the difference of two coordinates.
Public Declare PtrSafe Function VB_M_EuclidDist2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Double, _
    ByRef out As Double, ByVal bRows As Integer, ByVal nRows As Long) As Long

' The root mean square difference of each column, or row, from a vector, over the coordinates in
' which both are greater than the missing value, so that a NaN is not kept.
Public Declare PtrSafe Function Cpp_M_EuclidDistToVector Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByVal bRows As Integer, ByRef out As Double) As Long

' The row that lies farthest from the origin.
Public Declare PtrSafe Function Cpp_M_GetMaxDistToOrigin Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef d As Double, ByRef row As Long) As Long

' ---- statistics/error_measures.h

' Mean absolute percentage error, weighted, over the rows whose observed value is not 0. w (Double)
' may be null.
Public Declare PtrSafe Function VB_MAPE Lib "KORVELMathTools.dll" ( _
    ByRef actual As Double, ByRef predicted As Double, ByVal n As Long, ByRef w As Any, _
    ByVal first As Long) As Double

' Mean percentage error, weighted, over the rows whose observed value is not 0. w (Double) may be
' null.
Public Declare PtrSafe Function VB_MPE Lib "KORVELMathTools.dll" ( _
    ByRef actual As Double, ByRef predicted As Double, ByVal n As Long, ByRef w As Any, _
    ByVal first As Long) As Double

' Mean absolute error, weighted. w (Double) may be null.
Public Declare PtrSafe Function VB_MAE Lib "KORVELMathTools.dll" ( _
    ByRef actual As Double, ByRef predicted As Double, ByVal n As Long, ByRef w As Any, _
    ByVal first As Long) As Double

' Root mean squared error of one column of two tables, over the rows whose first value is above the
' missing number.
Public Declare PtrSafe Function VB_RMSE Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal col As Long, ByRef y As Double, ByVal df As Double) As Double

' ---- statistics/normalize.h

' Divides a vector by the root of its sum of squares, so that that becomes 1.
Public Declare PtrSafe Function VB_V_Norm Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' The same with the sum of x * w * x.
Public Declare PtrSafe Function VB_V_NormW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double) As Long

' Multiplies a vector by the root of value over its sum of squares, so that that becomes value.
Public Declare PtrSafe Function VB_V_NormToVal Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal value As Double) As Long

' The same with the sum of x * w * x.
Public Declare PtrSafe Function VB_V_NormToValW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal value As Double, ByRef w As Double) As Long

' Changes the cells of each column to (x / s) * sqrt(n / (n - 1)), where s is the root of the
' column's sum of x * x * w and n is rows, whatever is left out. w (Double) may be null. iMissing
' (Integer) may be null.
Public Declare PtrSafe Function VB_M_Normalize Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Any, ByRef iMissing As Any) As Long

' VB_M_Normalize, without weights and flags, on a table and two companions, tables of other rows and
' the same columns, which are changed by the sums of squares and the number of rows of x. y (Double)
' may be null. z (Double) may be null.
Public Declare PtrSafe Function VB_M_NormalizeMatrix Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Any, ByVal yRows As Long, _
    ByRef z As Any, ByVal zRows As Long) As Long

' ---- statistics/rescale.h

' Brings a vector to the range from lo to hi: (x - a) * (hi - lo) / r + lo, where a is the smallest
' number kept and r the largest less the smallest. iMissing (Integer) may be null.
Public Declare PtrSafe Function VB_V_Rescale Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal lo As Double, ByVal hi As Double, _
    ByRef iMissing As Any, ByRef out As Double) As Long

' The same in place; an element left out stays. iMissing (Integer) may be null.
Public Declare PtrSafe Function VB_V_Rescale2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal lo As Double, ByVal hi As Double, _
    ByRef iMissing As Any) As Long

' VB_V_Rescale on each column, each to a range of its own. iMissing (Integer) may be null.
Public Declare PtrSafe Function VB_M_RescaleByVect Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef lo As Double, _
    ByRef hi As Double, ByRef iMissing As Any, ByRef out As Double) As Long

' The same in place; a cell left out stays. iMissing (Integer) may be null.
Public Declare PtrSafe Function VB_M_RescaleByVect2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef lo As Double, _
    ByRef hi As Double, ByRef iMissing As Any) As Long

' How far each number lies from the centre, in deviations. centre (Double) may be null.
Public Declare PtrSafe Function Cpp_V_ZScores Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bRobust As Integer, ByRef centre As Any, _
    ByRef scaleValue As Double, ByRef out As Double) As Long

' ---- statistics/row_grouping.h

' Aggregates the rows that share the value of a key column, in ascending order of the keys, compared
' exactly.
Public Declare PtrSafe Function VB_M_GroupBy Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef kinds As Long, _
    ByVal groupCol As Long, ByVal method As Long, ByRef nOut As Long, ByRef out As Double) As Long

' Aggregates the rows that share the value of a key column, with a weight for each row.
Public Declare PtrSafe Function VB_M_GroupByW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef kinds As Long, _
    ByVal groupCol As Long, ByVal method As Long, ByRef nOut As Long, ByRef out As Double, _
    ByRef w As Double) As Long

' Merges rows that are equal, exactly, in all data columns.
Public Declare PtrSafe Function VB_M_Dedupe Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal p As Long, ByRef nOut As Long, ByRef out As Double) As Long

' ---- statistics/standardize.h

' Standardises each column in turn. out (Double) may be null. means (Double) may be null. sds
' (Double) may be null. vars (Double) may be null. iMissing (Integer) may be null. w (Double) may be
' null.
Public Declare PtrSafe Function VB_M_Standardize Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Any, ByRef means As Any, _
    ByRef sds As Any, ByRef vars As Any, ByRef iMissing As Any, ByRef w As Any, _
    ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' VB_M_Standardize with a result, on one vector and with bFreq false. iMissing (Integer) may be
' null. w (Double) may be null.
Public Declare PtrSafe Function VB_V_Standardize Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Any, ByRef w As Any, _
    ByVal bUnbiased As Integer, ByRef out As Double) As Long

' VB_M_Standardize in place, on one vector and with bFreq false. iMissing (Integer) may be null. w
' (Double) may be null.
Public Declare PtrSafe Function VB_V_Standardize2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Any, ByRef w As Any, _
    ByVal bUnbiased As Integer) As Long

' Standardises the columns by given statistics. sds (Double) may be null. out (Double) may be null.
' iMissing (Integer) may be null.
Public Declare PtrSafe Function VB_M_StandardizeKnownMeansStDev Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef sds As Any, ByRef out As Any, ByRef vars As Double, ByRef iMissing As Any) As Long

' VB_M_StandardizeKnownMeansStDev with deviations and a result, no row left out.
Public Declare PtrSafe Function VB_M_StandardizeByVect Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef sds As Double, ByRef out As Double) As Long

' VB_M_StandardizeKnownMeansStDev with deviations, in place, no row left out.
Public Declare PtrSafe Function VB_M_StandardizeByVect2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef sds As Double) As Long

' Standardises the columns in place by given statistics.
Public Declare PtrSafe Function Cpp_M_StandardizeApply2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef sds As Double) As Long

' ---- statistics/standardize_row_sets.h

' Standardises a table in place, (x - mean) / sd by column, the sum of squares divided by the number
' of cells less 1, and by the same means and deviations two companions, tables of other rows and the
' same columns. y (Double) may be null. z (Double) may be null.
Public Declare PtrSafe Function VB_M_StandardizeMatrix Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Any, ByVal yRows As Long, _
    ByRef z As Any, ByVal zRows As Long) As Long

' Standardises or centres each group of rows for itself, in place.
Public Declare PtrSafe Function Cpp_M_StandardizeByGroup Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef groups As Long, _
    ByVal nGroups As Long, ByVal bStandardize As Integer, ByVal bUnbiased As Integer) As Long

' ---- statistics/table_extremes.h

' The smallest element of a record of labelled columns that is not missing.
Public Declare PtrSafe Function Cpp_V_Min3 Lib "KORVELMathTools.dll" ( _
    ByVal record As LongPtr, ByVal nRows As Long, ByVal nCols As Long) As Double

' ---- statistics/time_steps.h

' The step of a time scale, whose differences must all be within 1e-6 of the first.
Public Declare PtrSafe Function VB_V_TimeIntervalSize Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bSort As Integer) As Double

' The step of numbers, whose differences must all be within 1e-8 of the first, or of dates, which
' must agree in days and months.
Public Declare PtrSafe Function Cpp_V_CheckDateInterval Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal kind As Long, ByRef d As Double) As Long

' ---- statistics/vector_extremes.h

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

' ---- statistics/vector_frequencies.h

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

' ---- statistics/vector_means.h

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

' ---- statistics/vector_moments.h

' Weighted mean, variance, skewness and kurtosis, with standard errors.
Public Declare PtrSafe Function VB_V_MeanVarSkewPKurtP Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef mean As Double, ByRef var As Double, _
    ByRef skewP As Double, ByRef kurtP As Double, ByRef skew As Double, ByRef kurt As Double, _
    ByRef seSkew As Double, ByRef seKurt As Double, ByRef iMissing As Integer, ByRef w As Double, _
    ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' ---- statistics/vector_sums.h

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

' ---- statistics/vector_tests.h

' Whether no number is negative, missing ones left aside.
Public Declare PtrSafe Function VB_V_IsPositive Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bStrict As Integer) As Integer

' The same for a table. iMissing (Integer) may be null.
Public Declare PtrSafe Function Cpp_M_IsPositive Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef iMissing As Any, _
    ByVal bStrict As Integer) As Integer

' The same for a labelled table, as far as it has columns. iMissing (Integer) may be null.
Public Declare PtrSafe Function Cpp_M_IsPositive_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef iMissing As Any, _
    ByVal bStrict As Integer) As Integer

' Whether numbers can be weights: none is negative and their sum is above 0, missing ones left
' aside.
Public Declare PtrSafe Function VB_V_IsWeights Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Integer

' The same for a host array.
Public Declare PtrSafe Function Cpp_V_IsWeights_ST Lib "KORVELMathTools.dll" ( _
    ByRef x() As Double, ByVal n As Long) As Integer

' The same, which also looks for weights that are all 1.
Public Declare PtrSafe Function Cpp_V_IsWeightsAndAll1_ST Lib "KORVELMathTools.dll" ( _
    ByRef x() As Double, ByVal n As Long, ByRef bAll1 As Integer) As Integer

' Whether numbers can be counts: weights, each of them an integer within 1e-12.
Public Declare PtrSafe Function VB_V_IsCWeights Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Integer

' Whether every number is 0 or 1, and some number is 1.
Public Declare PtrSafe Function VB_V_IsIndicator Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Integer

' The same for a column of a chunked table.
Public Declare PtrSafe Function VB_V_IsIndicatorSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal col As Long) As Integer

' Whether every number is exactly 0 or 1; a missing one is not.
Public Declare PtrSafe Function VB_V_Is01 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Integer

' Whether every number lies from 0 to 1; a missing one does not.
Public Declare PtrSafe Function VB_M_IsIn01 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Integer

' Whether every number lies in an interval.
Public Declare PtrSafe Function VB_V_IsInInterval Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal lo As Double, ByVal hi As Double, _
    ByVal bOpen As Integer, ByVal bSkipMissing As Integer) As Integer

' Whether every number is an integer within 1e-12; the missing number is.
Public Declare PtrSafe Function VB_M_IsLong Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Integer

' The same for a labelled table, as far as it has columns.
Public Declare PtrSafe Function Cpp_M_IsLong_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Integer

' Whether each row of a vector is at least as large as every number in that row of a table.
Public Declare PtrSafe Function VB_V_V1GreaterThanMatCols Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef m As Double, ByVal cols As Long) As Integer

' Whether each number of one vector is at most that of another.
Public Declare PtrSafe Function VB_V_V1inferiorV2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double) As Integer

' Whether an integer occurs.
Public Declare PtrSafe Function Cpp_V_FindLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByVal val As Long) As Integer

' Whether a text occurs.
Public Declare PtrSafe Function Cpp_V_FindStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal val As LongPtr) As Integer

' Counts the flags that are -1; another value than 0 does not count.
Public Declare PtrSafe Function VB_V_NbTrue Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal n As Long) As Long

' The same for a host array.
Public Declare PtrSafe Function Cpp_V_NbTrue_ST Lib "KORVELMathTools.dll" ( _
    ByRef x() As Boolean, ByVal n As Long) As Long

' The same for a stretch of flags.
Public Declare PtrSafe Function VB_V_NbTrueFromTo Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal from As Long, ByVal toValue As Long) As Long

' ---- statistics/vector_variance.h

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

' ---- statistics/weighted_sums.h

' The sum of two tables, each times a number: a * A + b * B, cell by cell.
Public Declare PtrSafe Function VB_M_Sums1As2B Lib "KORVELMathTools.dll" ( _
    ByRef A As Double, ByVal rows As Long, ByVal cols As Long, ByRef B As Double, _
    ByVal a2 As Double, ByVal b2 As Double, ByRef out As Double) As Long

' VB_M_Sums1As2B on labelled tables.
Public Declare PtrSafe Function Cpp_M_Sums1As2B_ST Lib "KORVELMathTools.dll" ( _
    ByVal A As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal B As LongPtr, _
    ByVal a2 As Double, ByVal b2 As Double, ByVal out As LongPtr) As Long

' ---- tables/blocks.h

' Copies a block of a table of numbers.
Public Declare PtrSafe Function VB_M_CopyBlock Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByVal firstCol As Long, ByVal lastCol As Long, ByRef out As Double) As Long

' Copies a block of a table of texts.
Public Declare PtrSafe Function VB_M_CopyBlockStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByVal firstCol As Long, ByVal lastCol As Long, ByVal out As LongPtr) As Long

' Copies a block of a chunked table.
Public Declare PtrSafe Function VB_M_CopyBlockSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByVal firstCol As Long, ByVal lastCol As Long, ByVal out As LongPtr) As Long

' Copies a block of a chunked table.
Public Declare PtrSafe Function Cpp_M_CopyBlockSPV2 Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByVal firstCol As Long, ByVal lastCol As Long, ByVal out As LongPtr) As Long

' Copies a block of a symmetric table, of which each column is held from the diagonal down.
Public Declare PtrSafe Function Cpp_M_CopyBlockSPV2_T Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal firstRow As Long, ByVal lastRow As Long, _
    ByVal firstCol As Long, ByVal lastCol As Long, ByVal out As LongPtr) As Long

' Writes a table of numbers into a larger one.
Public Declare PtrSafe Function VB_M_PasteBlock Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Double, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Writes a table of integers into a larger one.
Public Declare PtrSafe Function VB_M_PasteBlockLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByRef y As Long, ByVal yRows As Long, _
    ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a block of a table of numbers to a place in another, which may be the same.
Public Declare PtrSafe Function Cpp_M_CopyPasteBlock Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByVal firstCol As Long, ByVal lastCol As Long, ByRef y As Double, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a block of a table of texts to a place in another, which may be the same.
Public Declare PtrSafe Function Cpp_M_CopyPasteBlockStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByVal firstCol As Long, ByVal lastCol As Long, ByVal y As LongPtr, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a block of a chunked table to a place in another.
Public Declare PtrSafe Function Cpp_M_CopyPasteBlockSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByVal firstCol As Long, ByVal lastCol As Long, ByVal y As LongPtr, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' ---- tables/cell_maps.h

' Natural logarithms.
Public Declare PtrSafe Function VB_M_LogMatrix Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Double) As Long

' Logarithms to base 10.
Public Declare PtrSafe Function VB_M_Log10Matrix Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Double) As Long

' Square roots.
Public Declare PtrSafe Function Cpp_M_SquareRootAij Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Double) As Long

' Square roots, in place.
Public Declare PtrSafe Function Cpp_M_SquareRootAij2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Long

' Subtracts the first cell of its row from each cell, in place; the first column becomes 0.
Public Declare PtrSafe Function Cpp_M_SubstractFirstCol2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Long

' Tells whether all cells of a table lie in an interval.
Public Declare PtrSafe Function VB_M_IsInIntervalSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal lo As Double, _
    ByVal hi As Double, ByVal bOpen As Integer, ByVal bSkipMissing As Integer) As Integer

' ---- tables/columns.h

' Copies a column of a table into a column of another.
Public Declare PtrSafe Function VB_CopyMatrixColToMatrixCol Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, ByRef y As Double, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal colTo As Long, ByVal bReset As Integer) As Long

' Copies a row of a table into a row of another.
Public Declare PtrSafe Function VB_CopyMatrixRowToMatrixRow Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal row As Long, ByRef y As Double, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal rowTo As Long, ByVal bReset As Integer) As Long

' Copies a column of a table into a vector.
Public Declare PtrSafe Function VB_CopyMatrixColToVector Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, ByRef y As Double) As Long

' Copies a column of a table of texts into a vector.
Public Declare PtrSafe Function VB_CopyMatrixColToOneColMatStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, _
    ByVal y As LongPtr) As Long

' Moves a row of a table to another place, in place; the rows between the two move up or down by
' one.
Public Declare PtrSafe Function VB_M_MoveRow Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long) As Long

' Copies a range of rows of a column of numbers to a place in a table.
Public Declare PtrSafe Function VB_V_DuplicateDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, _
    ByVal from As Long, ByVal toValue As Long, ByRef y As Double, ByVal yRows As Long, _
    ByVal yCols As Long, ByVal row As Long, ByVal yCol As Long) As Long

' Copies a range of rows of a column of integers to a place in a table.
Public Declare PtrSafe Function VB_V_DuplicateLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef y As Long, ByVal yRows As Long, ByVal yCols As Long, _
    ByVal row As Long, ByVal yCol As Long) As Long

' Copies a range of rows of a column of numbers to a place in a table of integers.
Public Declare PtrSafe Function VB_V_DuplicateDblToLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, _
    ByVal from As Long, ByVal toValue As Long, ByRef y As Long, ByVal yRows As Long, _
    ByVal yCols As Long, ByVal row As Long, ByVal yCol As Long) As Long

' Copies a range of rows of a column of integers to a place in a table of numbers.
Public Declare PtrSafe Function VB_V_DuplicateLngToDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef y As Double, ByVal yRows As Long, ByVal yCols As Long, _
    ByVal row As Long, ByVal yCol As Long) As Long

' Copies a range of rows of a column of texts to a place in a table.
Public Declare PtrSafe Function VB_V_DuplicateStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, _
    ByVal from As Long, ByVal toValue As Long, ByVal y As LongPtr, ByVal yRows As Long, _
    ByVal yCols As Long, ByVal row As Long, ByVal yCol As Long) As Long

' Copies a range of rows of a column of flags to a place in a table.
Public Declare PtrSafe Function Cpp_V_DuplicateBool Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, _
    ByVal from As Long, ByVal toValue As Long, ByRef y As Integer, ByVal yRows As Long, _
    ByVal yCols As Long, ByVal row As Long, ByVal yCol As Long) As Long

' Copies a range of rows of a column of numbers to a place in a table, both host arrays that come
' out of a record.
Public Declare PtrSafe Function Cpp_V_DuplicateDbl_ST Lib "KORVELMathTools.dll" ( _
    ByRef x() As Double, ByVal col As Long, ByVal from As Long, ByVal toValue As Long, _
    ByRef y() As Double, ByVal row As Long, ByVal yCol As Long) As Long

' Copies a range of rows of a column of integers to a place in a table, both host arrays that come
' out of a record.
Public Declare PtrSafe Function Cpp_V_DuplicateLng_ST Lib "KORVELMathTools.dll" ( _
    ByRef x() As Long, ByVal col As Long, ByVal from As Long, ByVal toValue As Long, _
    ByRef y() As Long, ByVal row As Long, ByVal yCol As Long) As Long

' Copies a range of rows of a column of texts to a place in a table, both host arrays that come out
' of a record.
Public Declare PtrSafe Function Cpp_V_DuplicateStr_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal col As Long, ByVal from As Long, ByVal toValue As Long, _
    ByVal y As LongPtr, ByVal row As Long, ByVal yCol As Long) As Long

' ---- tables/duplicate.h

' Copies a table of numbers into another.
Public Declare PtrSafe Function VB_M_DuplicateDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Double, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a table of integers into another.
Public Declare PtrSafe Function VB_M_DuplicateLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByRef y As Long, ByVal yRows As Long, _
    ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a table of texts into another.
Public Declare PtrSafe Function VB_M_DuplicateStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a chunked table of texts into a dense one.
Public Declare PtrSafe Function VB_M_DuplicateStrSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a table of labelled columns of numbers into another.
Public Declare PtrSafe Function Cpp_M_DuplicateDbl_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a table of labelled columns of texts into another.
Public Declare PtrSafe Function Cpp_M_DuplicateStr_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a chunked table into a dense one.
Public Declare PtrSafe Function Cpp_M_DuplicateDblSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef y As Double, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a dense table into a chunked one.
Public Declare PtrSafe Function Cpp_M_DuplicateDblSPV2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a dense table into a triangle, of which each column is held from the diagonal down.
Public Declare PtrSafe Function Cpp_M_DuplicateDblSPV2_T Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a chunked table into another.
Public Declare PtrSafe Function Cpp_M_DuplicateDblSPV3 Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' ---- tables/extract.h

' Takes a range of rows of a table of numbers.
Public Declare PtrSafe Function VB_M_ExtractMatToMatDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByRef out As Double) As Long

' Takes a range of rows of a table of texts.
Public Declare PtrSafe Function VB_M_ExtractMatToMatStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByVal out As LongPtr) As Long

' Takes a range of rows of a chunked table of numbers.
Public Declare PtrSafe Function VB_M_ExtractMatToMatDblSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByRef out As Double) As Long

' Takes a range of rows of a chunked table of texts.
Public Declare PtrSafe Function VB_M_ExtractMatToMatStrSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByVal out As LongPtr) As Long

' Takes a range of rows of a table of numbers.
Public Declare PtrSafe Function Cpp_Extractij Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal i As Long, ByVal j As Long, _
    ByRef out As Double) As Long

' Takes a range of columns of a table.
Public Declare PtrSafe Function VB_M_ExtractMatToMatByColDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal firstCol As Long, _
    ByVal lastCol As Long, ByRef out As Double) As Long

' ---- tables/fill.h

' Numbers a vector: element k, from 1, becomes k.
Public Declare PtrSafe Function VB_V_Set1toNDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' Numbers a vector: element k, from 1, becomes k.
Public Declare PtrSafe Function VB_V_Set1toNLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long) As Long

' Numbers a vector: element k, from 1, becomes k, in decimal digits.
Public Declare PtrSafe Function VB_V_Set1toNStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long) As Long

' Sets flags to false.
Public Declare PtrSafe Function VB_InitVectorToFalse Lib "KORVELMathTools.dll" ( _
    ByRef flags As Integer, ByVal n As Long) As Long

' Sets flags to true.
Public Declare PtrSafe Function VB_InitVectorToTrue Lib "KORVELMathTools.dll" ( _
    ByRef flags As Integer, ByVal n As Long) As Long

' Flags the cells of a table that equal a number.
Public Declare PtrSafe Function Cpp_M_SetBooleanIfLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByVal value As Long, _
    ByRef flags As Integer) As Long

' ---- tables/labels.h

' Makes repeated labels distinct: a repeat gets a number behind it, from 2 on.
Public Declare PtrSafe Function VB_V_ReplaceDoubles Lib "KORVELMathTools.dll" ( _
    ByVal labels As LongPtr, ByVal n As Long) As Long

' Joins two vectors of labels.
Public Declare PtrSafe Function Cpp_V_MergeVectorsStr Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal b As LongPtr, ByVal sep As LongPtr, _
    ByVal out As LongPtr) As Long

' ---- tables/matrix_dump.h

' Writes a table of numbers to a text file.
Public Declare PtrSafe Sub Cpp_WriteMatrixDbl Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal name As String)

' Writes a table of integers to a text file.
Public Declare PtrSafe Sub Cpp_WriteMatrixLng Lib "KORVELMathTools.dll" ( _
    ByRef a As Long, ByVal rows As Long, ByVal cols As Long, ByVal name As String)

' Writes a table of texts to a text file.
Public Declare PtrSafe Function Cpp_WriteMatrixStr Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal name As String) As Long

' ---- tables/merge.h

' Puts two tables of numbers side by side.
Public Declare PtrSafe Function VB_HMergeTablesDbl Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal rowsA As Long, ByVal colsA As Long, ByRef b As Double, _
    ByVal rowsB As Long, ByVal colsB As Long, ByRef out As Double) As Long

' Puts two tables of flags side by side.
Public Declare PtrSafe Function VB_HMergeTablesBool Lib "KORVELMathTools.dll" ( _
    ByRef a As Integer, ByVal rowsA As Long, ByVal colsA As Long, ByRef b As Integer, _
    ByVal rowsB As Long, ByVal colsB As Long, ByRef out As Integer) As Long

' Puts two tables of texts side by side.
Public Declare PtrSafe Function VB_HMergeTablesStr Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal rowsA As Long, ByVal colsA As Long, ByVal b As LongPtr, _
    ByVal rowsB As Long, ByVal colsB As Long, ByVal out As LongPtr) As Long

' Adds the columns of a table of numbers to the right of another, in place.
Public Declare PtrSafe Function VB_HMergeTablesDbl2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal rowsA As Long, ByVal colsA As Long, ByRef b As Double, _
    ByVal rowsB As Long, ByVal colsB As Long) As Long

' Adds the columns of a table of integers to the right of another, in place.
Public Declare PtrSafe Function VB_HMergeTablesLng2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Long, ByVal rowsA As Long, ByVal colsA As Long, ByRef b As Long, ByVal rowsB As Long, _
    ByVal colsB As Long) As Long

' Adds the columns of a table of flags to the right of another, in place.
Public Declare PtrSafe Function VB_HMergeTablesBool2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Integer, ByVal rowsA As Long, ByVal colsA As Long, ByRef b As Integer, _
    ByVal rowsB As Long, ByVal colsB As Long) As Long

' Adds the columns of a table of texts to the right of another, in place.
Public Declare PtrSafe Function VB_HMergeTablesStr2 Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal rowsA As Long, ByVal colsA As Long, ByVal b As LongPtr, _
    ByVal rowsB As Long, ByVal colsB As Long) As Long

' Adds the columns of a table of numbers to a chunked one, in place.
Public Declare PtrSafe Function VB_HMergeTablesDbl2SPV Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal rowsA As Long, ByVal colsA As Long, ByRef b As Double, _
    ByVal rowsB As Long, ByVal colsB As Long) As Long

' Adds the columns of a chunked table of numbers to another, in place.
Public Declare PtrSafe Function VB_HMergeTablesDbl2SPV2 Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal rowsA As Long, ByVal colsA As Long, ByVal b As LongPtr, _
    ByVal rowsB As Long, ByVal colsB As Long) As Long

' Puts two vectors side by side.
Public Declare PtrSafe Function VB_HMergeVectors Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal nA As Long, ByRef b As Double, ByVal nB As Long, ByRef out As Double) As Long

' Puts a vector to the right of a table.
Public Declare PtrSafe Function VB_HMergeTableVect Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, ByVal n As Long, _
    ByRef out As Double, ByVal outRows As Long, ByVal outCols As Long) As Long

' Adds a vector to the right of a table, in place.
Public Declare PtrSafe Function VB_HMergeTableVect2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, ByVal n As Long) As Long

' Puts a vector to the left of a table.
Public Declare PtrSafe Function VB_HMergeVectTable Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef x As Double, ByVal rows As Long, ByVal cols As Long, _
    ByRef out As Double, ByVal outRows As Long, ByVal outCols As Long) As Long

' Puts a vector to the left of one column of a table.
Public Declare PtrSafe Function VB_HMergeVectColDbl Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef x As Double, ByVal rows As Long, ByVal cols As Long, _
    ByVal col As Long, ByRef out As Double, ByVal outRows As Long) As Long

' Puts a vector of numbers behind another.
Public Declare PtrSafe Function VB_VMergeVectorsDbl Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal nA As Long, ByRef b As Double, ByVal nB As Long, ByRef out As Double) As Long

' Puts a vector of texts behind another.
Public Declare PtrSafe Function VB_VMergeVectorsStr Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal nA As Long, ByVal b As LongPtr, ByVal nB As Long, ByVal out As LongPtr) As Long

' Adds a vector of numbers behind another, in place.
Public Declare PtrSafe Function VB_VMergeVectorsDbl2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal nA As Long, ByRef b As Double, ByVal nB As Long) As Long

' Adds a vector of flags behind another, in place.
Public Declare PtrSafe Function VB_VMergeVectorsBool2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Integer, ByVal nA As Long, ByRef b As Integer, ByVal nB As Long) As Long

' Adds a vector of texts behind another, in place.
Public Declare PtrSafe Function VB_VMergeVectorsStr2 Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal nA As Long, ByVal b As LongPtr, ByVal nB As Long) As Long

' Puts a table of numbers below another.
Public Declare PtrSafe Function VB_VMergeTablesDbl Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal rowsA As Long, ByVal colsA As Long, ByRef b As Double, _
    ByVal rowsB As Long, ByVal colsB As Long, ByRef out As Double) As Long

' Puts a table of numbers below a chunked one.
Public Declare PtrSafe Function Cpp_VMergeTablesDblSPV Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal rowsA As Long, ByVal colsA As Long, ByRef b As Double, _
    ByVal rowsB As Long, ByVal colsB As Long, ByRef out As Double) As Long

' ---- tables/proximity.h

' Tells similarities from dissimilarities.
Public Declare PtrSafe Function VB_M_CheckIfSimOrDissim Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Long

' Tells similarities from dissimilarities.
Public Declare PtrSafe Function VB_M_CheckIfSimOrDissimSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Long

' Turns similarities into dissimilarities: every cell becomes the largest cell of the table less
' itself.
Public Declare PtrSafe Function VB_M_TransformSimToDissim Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' ---- tables/remove.h

' Copies a table without one column.
Public Declare PtrSafe Function VB_M_RemoveCol Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, ByRef out As Double) As Long

' Copies a table without one row.
Public Declare PtrSafe Function VB_M_RemoveRow Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, ByRef out As Double) As Long

' Takes a run of columns out of a table in place: those behind it move left.
Public Declare PtrSafe Function VB_M_RemoveCols2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal first As Long, _
    ByVal last As Long) As Long

' Takes a run of rows out of a table in place: those below it move up.
Public Declare PtrSafe Function VB_M_RemoveRows2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal first As Long, _
    ByVal last As Long) As Long

' Takes a run of rows out of a table of texts in place: those below it move up.
Public Declare PtrSafe Function Cpp_M_RemoveRowsStr2 Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal first As Long, _
    ByVal last As Long) As Long

' Copies a table without the columns in a list.
Public Declare PtrSafe Function VB_M_RemoveColsInList Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef list As Double, _
    ByVal n As Long, ByRef out As Double) As Long

' Copies a table without the rows in a list.
Public Declare PtrSafe Function VB_M_RemoveRowsInList Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef list As Long, ByVal n As Long, _
    ByRef out As Double) As Long

' ---- tables/resize.h

' Copies a table of numbers into another shape.
Public Declare PtrSafe Function VB_M_CopyResize Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Double, _
    ByVal newRows As Long, ByVal newCols As Long) As Long

' Copies a table of flags into another shape.
Public Declare PtrSafe Function VB_M_CopyResizeBool Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal rows As Long, ByVal cols As Long, ByRef y As Integer, _
    ByVal newRows As Long, ByVal newCols As Long) As Long

' Copies a table of texts into another shape.
Public Declare PtrSafe Function VB_M_CopyResizeStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr, _
    ByVal newRows As Long, ByVal newCols As Long) As Long

' Copies a table to the top left corner of a larger one, of which all other cells stay.
Public Declare PtrSafe Function VB_M_CopyToBigger Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Double, _
    ByVal yRows As Long, ByVal yCols As Long) As Long

' ---- tables/row_maps.h

' The column of the largest cell of each row.
Public Declare PtrSafe Function Cpp_M_MaxPosByRow Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef positions As Long) As Long

' A new variable as a weighted sum of those of a table.
Public Declare PtrSafe Function VB_ComputeNewVar Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef coefficients As Double, _
    ByRef out As Double) As Long

' Picks the rows that are not negligible.
Public Declare PtrSafe Function Cpp_FilterOnSumOfSquares Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal threshold As Double, _
    ByRef kept As Integer) As Long

' ---- tables/symmetric.h

' Makes a table symmetric: both cells of a pair (i, j), (j, i) become their mean.
Public Declare PtrSafe Function VB_M_Symmetrize Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Long

' Makes a table symmetric: both cells of a pair (i, j), (j, i) become their mean.
Public Declare PtrSafe Function VB_M_SymmetrizeSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Long

' Tells whether a square table is symmetric.
Public Declare PtrSafe Function VB_M_IsSymmetric Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Integer

' Tells whether a square table is symmetric.
Public Declare PtrSafe Function VB_M_IsSymmetricSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long) As Integer

' Tells whether the diagonal of a square table is constant.
Public Declare PtrSafe Function VB_M_IsDiagConstant Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Integer

' Packs a symmetric table: its lower triangle row after row.
Public Declare PtrSafe Function Cpp_M_CopySymMatToVector Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef v As Double) As Long

' Unpacks a vector that holds a triangle row after row into both halves of a table.
Public Declare PtrSafe Function Cpp_M_CopyVectorToSymMat Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef x As Double) As Long

' ---- tables/text_rows.h

' Joins the cells of each row of texts, from the first column on, with nothing between them.
Public Declare PtrSafe Function Cpp_M_MergeStringsByRow Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal out As LongPtr) As Long

' Tells whether two vectors have the same texts in the same order.
Public Declare PtrSafe Function Cpp_CheckSameVectorStr Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal nA As Long, ByVal b As LongPtr, ByVal nB As Long) As Integer

' ---- tables/transpose.h

' Transposes a table of numbers.
Public Declare PtrSafe Function VB_M_Transpose Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Double) As Long

' Transposes a table of integers.
Public Declare PtrSafe Function VB_M_TransposeLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByRef y As Long) As Long

' Transposes a table of texts.
Public Declare PtrSafe Function VB_M_TransposeStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr) As Long

' Transposes a table of numbers in place.
Public Declare PtrSafe Function VB_M_Transpose2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Long

' Transposes a table of integers in place.
Public Declare PtrSafe Function VB_M_Transpose2Lng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long) As Long

' Transposes a table of texts in place.
Public Declare PtrSafe Function VB_M_Transpose2Str Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Long

' Transposes a table of separate columns of numbers.
Public Declare PtrSafe Function VB_M_TransposeSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr) As Long

' ---- tables/triangular.h

' Tells which half of a square table is filled, and fills the other half from it on request.
Public Declare PtrSafe Function VB_M_IsTriangular Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bMirror As Integer) As Long

' Tells which half of a square table is filled, and fills the other half from it on request.
Public Declare PtrSafe Function VB_M_IsTriangularSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal bMirror As Integer) As Long

' ---- tables/vector_table.h

' The columns of a table one below the other, as a vector.
Public Declare PtrSafe Function Cpp_MatToVect Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double) As Long

' A vector back in the shape of the table that Cpp_MatToVect laid it out from.
Public Declare PtrSafe Function Cpp_VectToMat Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByRef pattern As Double, ByVal rows As Long, ByVal cols As Long, _
    ByRef x As Double) As Long

' The rows of a table one after the other, as a vector.
Public Declare PtrSafe Function Cpp_M_CopyTabletoVectorByRowDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double) As Long

' The rows of a table one after the other, as a vector.
Public Declare PtrSafe Function Cpp_M_CopyTabletoVectorByRowStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal v As LongPtr) As Long

' A vector cut into the rows of a table.
Public Declare PtrSafe Function Cpp_M_CopyVectortoTableByRowDbl Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal rows As Long, ByVal cols As Long, ByRef x As Double) As Long

' A vector cut into the rows of a table.
Public Declare PtrSafe Function Cpp_M_CopyVectortoTableByRowStr Lib "KORVELMathTools.dll" ( _
    ByVal v As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal x As LongPtr) As Long

' ---- tables/vector_values.h

' Adds a number to the elements that are not flagged, missing ones too. iMissing (Integer) may be
' null.
Public Declare PtrSafe Function VB_V_PlusVal Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double, ByRef iMissing As Any) As Long

' Adds a number to the elements that are not missing.
Public Declare PtrSafe Function VB_V_PlusVal2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double) As Long

' Copies a vector, in which each element that equals a number, exactly, becomes another.
Public Declare PtrSafe Function VB_V_ReplaceVal Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal oldValue As Double, ByVal newValue As Double, _
    ByRef out As Double) As Long

' Replaces each element that equals a number, exactly, by another.
Public Declare PtrSafe Function VB_V_ReplaceVal2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal oldValue As Double, ByVal newValue As Double) As Long

' Copies a vector without one element.
Public Declare PtrSafe Function VB_V_RemoveVal Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal pos As Long, ByRef out As Double) As Long

' Sets every element to one number.
Public Declare PtrSafe Function VB_V_SetToValue Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal value As Double) As Long

' Sets the elements of a host array to one number.
Public Declare PtrSafe Function Cpp_V_SetToValue_ST Lib "KORVELMathTools.dll" ( _
    ByRef x() As Double, ByVal n As Long, ByVal value As Double) As Long

' Sets every element to one integer.
Public Declare PtrSafe Function VB_V_SetToValueLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByVal value As Long) As Long

' Sets the elements of a host array to one integer.
Public Declare PtrSafe Function Cpp_V_SetToValueLng_ST Lib "KORVELMathTools.dll" ( _
    ByRef x() As Long, ByVal n As Long, ByVal value As Long) As Long

' Sets every element to one text.
Public Declare PtrSafe Function VB_V_SetToValueStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal value As LongPtr) As Long

' Copies numbers to integers, without their fraction.
Public Declare PtrSafe Function Cpp_V_CopyDoubleToLong Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef y As Long) As Long

' Copies integers to numbers.
Public Declare PtrSafe Function Cpp_V_CopyLongToDouble Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByRef y As Double) As Long

' Exchanges two vectors of numbers.
Public Declare PtrSafe Function Cpp_V_SwapDbl Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double) As Long

' Exchanges two vectors of texts.
Public Declare PtrSafe Function Cpp_V_SwapStr Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal b As LongPtr) As Long

' Moves the numbers above the missing one to the front, in their order.
Public Declare PtrSafe Function Cpp_V_CleanVectDbl2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef m As Long) As Long

' The same, with weights moved along.
Public Declare PtrSafe Function Cpp_V_CleanVectDblW2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByRef m As Long) As Long
