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
'   chunked tables                   VarPtr(table), where table is a HostarrayTable, below
'   records                          VarPtr(record), of one of the types below
' ByVal x As String                  a short label in 8-bit characters.
'
' KORVEL_NULL stands for an array, block or record that is absent, where the function allows that.

Public Const KORVEL_NULL As LongPtr = 0

' The missing number, the missing integer and the missing text.
Public Const KORVEL_MISSING_DBL As Double = -1.79769313486231E+308
Public Const KORVEL_MISSING_LNG As Long = -2147483647 - 1
Public Const KORVEL_MISSING_STR As String = ""

' ---- records

' One column of a chunked table, 16 bytes.
Public Type Hostarray
    numbers() As Double    ' The numeric column, or null.
    texts() As String    ' The text column (BSTR), or null.
End Type

' One labelled column, 24 bytes. Its cells are numbers.
Public Type ST_Vect
    Count As Long    ' Number of observations.
    Label As String    ' Name of the column.
    Vect() As Double    ' The column.
End Type

' One labelled column, 24 bytes. Its cells are texts.
Public Type ST_VectStr
    Count As Long    ' Number of observations.
    Label As String    ' Name of the column.
    Vect() As String    ' The column.
End Type

' A table of labelled columns, 40 bytes. Its cells are numbers.
Public Type ST_MVect
    nbcols As Long    ' Number of columns.
    samenbrows As Integer    ' -1 when all columns have the same length, otherwise 0.
    nbrowsmax As Long    ' Length of the longest column.
    nbrows() As Long    ' int: row count of each column.
    Vectors() As ST_Vect    ' ST_Vect records, as many as the leftmost dimension says.
    CLabels() As String    ' BSTR: column labels.
End Type

' A table of labelled columns, 40 bytes. Its cells are texts.
Public Type ST_MVectStr
    nbcols As Long    ' Number of columns.
    samenbrows As Integer    ' -1 when all columns have the same length, otherwise 0.
    nbrowsmax As Long    ' Length of the longest column.
    nbrows() As Long    ' int: row count of each column.
    Vectors() As ST_VectStr    ' ST_Vect records, as many as the leftmost dimension says.
    CLabels() As String    ' BSTR: column labels.
End Type

' Category statistics of a set of qualitative columns, 208 bytes.
Public Type ST_QualiInfo
    Count As Long    ' Number of rows.
    SumW As Double    ' Sum of the weights.
    MaxNbCat As Long    ' Most categories of a column.
    NbCat() As Long    ' int.
    NbCatTotal As Long    ' Categories of all columns together.
    CatNames As ST_MVectStr    ' Texts.
    CatFreq As ST_MVect    ' double.
    CatFreqW As ST_MVect    ' double.
    FreqMax As Double    ' Largest frequency of a category.
    VarLabels() As String    ' BSTR.
    IgnoreNewCategoryInPred As Integer    ' 0 makes an unknown category an error in validation.
    withRecode As Integer    ' Not 0: Codes is read.
    codeStart As Long    ' Code of the first category.
    Codes() As Double    ' double; read only when withRecode is not 0.
    nCodes As Long    ' Number of codes.
    withSort As Integer    ' -1: categories are sorted.
    noWeights As Integer    ' -1: every row weighs 1.
    withLongLabels As Integer    ' -1: category names carry the label of their variable.
    CheckType As Long    ' Carried along for the caller.
End Type

' A chunked table. The address of a record is that of its first field, so VarPtr(table) is the address of an array
' variable, as functions of chunked tables want it:
'
'   Dim table As HostarrayTable, smallest(1 To 2) As Double, largest(1 To 2) As Double
'   ReDim table.columns(1 To 2)
'   ReDim table.columns(1).numbers(1 To 9): ReDim table.columns(2).numbers(1 To 9)
'   VB_M_MinMaxSPV VarPtr(table), 9, 2, smallest(1), largest(1), ByVal KORVEL_NULL, True
'
' In a triangle (_T) of n columns, column j has n + 1 - j elements.
Public Type HostarrayTable
    columns() As Hostarray
End Type

' The address of the variable of a whole array of numbers, which VarPtr itself refuses, for whoever fills in an address
' by hand. An array that holds texts would arrive as a copy in 8-bit characters: put that into a record.
Public Declare PtrSafe Function KORVEL_ArrayAddress Lib "VBE7.dll" Alias "VarPtr" ( _
    ByRef numbers() As Any) As LongPtr

' A labelled table is a record ST_MVect, or ST_MVectStr when its cells are texts, and is handed over by VarPtr(table):
'
'   Dim table As ST_MVect
'   table.nbcols = 1: table.samenbrows = True: table.nbrowsmax = 9
'   ReDim table.nbrows(1 To 1): table.nbrows(1) = 9
'   ReDim table.CLabels(1 To 1): table.CLabels(1) = "height"
'   ReDim table.Vectors(1 To 1): table.Vectors(1).Count = 9: table.Vectors(1).Label = "height"
'   ReDim table.Vectors(1).Vect(1 To 9)
'
' Sample.bas fills such tables from cells.

' ---- containers/host_array.h

' The block of texts behind a host array, for functions that take such a block.
'   sa: in, host array of String; its descriptor may be null
'   returns the array's data, or null when there is no array or it holds none
Public Declare PtrSafe Function ExtractBSTR Lib "KORVELMathTools.dll" ( _
    ByVal sa As LongPtr) As LongPtr

' ---- containers/matrix3d.h

' Adds up everything that a labelled table holds: a check that a record crosses the boundary intact.
'   record: in, a table of numbers, of which only the array of its columns is looked at
'   returns the sum over all columns, one after the other, with missing numbers taken as they are;
'       0.0 when the array is null or empty
Public Declare PtrSafe Function Cpp_Test Lib "KORVELMathTools.dll" ( _
    ByVal record As LongPtr) As Double

' ---- containers/missing.h

' Tells whether a number is missing: whether it is at or below the sentinel -1.79769313486231e308.
'   x: a number; a NaN is not missing
'   returns -1 when missing, otherwise 0
Public Declare PtrSafe Function VB_IsMissingValueDbl Lib "KORVELMathTools.dll" ( _
    ByVal x As Double) As Integer

' Tells whether a cell, rendered as text, is empty.
'   cell: in, one cell of any type, or a reference to one. A text is missing when it has no
'       characters before its first NUL; a number, a date or a Boolean never is; an empty cell
'       always is
'   returns -1 when missing, otherwise 0
Public Declare PtrSafe Function VB_IsMissingValueStr Lib "KORVELMathTools.dll" ( _
    ByRef cell As Variant) As Integer

' ---- containers/number_text.h

' Sends a line to the debugger: the label, a blank, the value with 16 decimals in a field of 36, a
' line end.
'   value: the number
'   label: in, narrow text, NUL-terminated
Public Declare PtrSafe Sub dprint Lib "KORVELMathTools.dll" ( _
    ByVal value As Double, ByVal label As String)

' ---- containers/record_copies.h

' Copies a table of numbers into the columns of a labelled one.
'   m: in, rows by cols numbers
'   rows: number of rows; below 1: nothing is copied
'   cols: number of columns; below 1: nothing is copied
'   mv: inout, labelled table of Double; column j receives column j of the table. Elements for which
'       a column has no room are dropped, as are columns that it does not have
'   returns 0
Public Declare PtrSafe Function Cpp_CopyDblToMVDbl Lib "KORVELMathTools.dll" ( _
    ByRef m As Double, ByVal rows As Long, ByVal cols As Long, ByVal mv As LongPtr) As Long

' Copies a triangle from one labelled table to another: the first j elements of column j, for j from
' 1 to the smaller number of columns.
'   src: in, labelled table of Double; an element that a column does not have counts as -1
'   dst: inout, labelled table of Double that receives the elements, as far as its columns have room
'   returns 0
Public Declare PtrSafe Function Cpp_M_DuplicateMVDblTriang_ST Lib "KORVELMathTools.dll" ( _
    ByVal src As LongPtr, ByVal dst As LongPtr) As Long

' ---- domain/comparison_letters.h

' Gives letters to levels, of which two share one exactly when they do not differ: when the one that
' comes first in the order of the means is significantly different neither from the other one nor
' from any level between them.
'   means: inout, k by column numbers: the last column has the means; changed only when sortResult
'       is 0
'   k: number of levels
'   column: the column of the means, from 1; 0 stands for 1
'   significance: in, k by k integers: for each pair of levels, at the row of the larger number and
'       the column of the smaller one, 0 when the two do not differ significantly
'   sortResult: not 0: order, means and labels come back in the order of the levels; 0: in the order
'       of the means
'   order: out, k integers: the numbers of the levels
'   labels: out, k by k texts: the letters of each level, letter c in column c. With more than 256
'       levels there are 256 columns. When the first mean in the order is missing, column 1 stays
'       empty
'   groupCount: out, one integer: how many columns are taken, 1 where there is no level; 257 when
'       there was no room for the last letter
'   success: out, one flag: -1, or 0 when there were too many letters
'   descending: not 0: from the largest mean down; 0: from the smallest one up
'   returns 0
Public Declare PtrSafe Function Cpp_GetCompMatrices Lib "KORVELMathTools.dll" ( _
    ByRef means As Double, ByVal k As Long, ByVal column As Long, ByRef significance As Long, _
    ByVal sortResult As Integer, ByRef order As Long, ByVal labels As LongPtr, _
    ByRef groupCount As Long, ByRef success As Integer, ByVal descending As Integer) As Long

' ---- domain/correlation_order.h

' Sorts the variables of a correlation table by a key of each, from the largest down; equal keys
' keep their order.
'   corr: inout, n by n numbers; not symmetric ones come back transposed
'   n: number of variables
'   method: 1: the key is the largest cell; 2: the variance of the cells; 3: the cell of the first
'       eigenvector, unless a cell is missing; any other number: the order stays
'   labels: inout, n texts
'   pValues: inout, n by n numbers, which move along
'   flags: inout, n by n integers, which move along
'   returns 0
Public Declare PtrSafe Function Cpp_ReOrderCorrelations Lib "KORVELMathTools.dll" ( _
    ByRef corr As Double, ByVal n As Long, ByVal method As Long, ByVal labels As LongPtr, _
    ByRef pValues As Double, ByRef flags As Long) As Long

' ---- domain/marginal_sums.h

' Copies a table without the rows and columns whose sum is not above 1e-12.
'   table: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table
'   result: inout, rows by cols numbers: the rows and columns that stay come to its top left corner.
'       Columns behind them stay as they were, and what is below them has no meaning
'   keptRows: out, one integer: how many rows stay
'   keptCols: out, one integer: how many columns stay
'   droppedRows: inout, rows integers, of which those of rows left out become 1
'   droppedCols: inout, cols integers, of which those of columns left out become 1
'   returns 0
Public Declare PtrSafe Function Cpp_CheckForMarginalSums Lib "KORVELMathTools.dll" ( _
    ByRef table As Double, ByVal rows As Long, ByVal cols As Long, ByRef result As Double, _
    ByRef keptRows As Long, ByRef keptCols As Long, ByRef droppedRows As Long, _
    ByRef droppedCols As Long) As Long

' ---- domain/memory_probe.h

' Tries to allocate a tenth more than twenty tables of numbers take, and gives everything back.
'   rows1: in, one integer: rows of table 1
'   cols1: in, one integer: its columns
'   rows2: in, one integer: rows of table 2
'   cols2: in, one integer: its columns
'   rows3: in, one integer: rows of table 3
'   cols3: in, one integer: its columns
'   rows4: in, one integer: rows of table 4
'   cols4: in, one integer: its columns
'   rows5: in, one integer: rows of table 5
'   cols5: in, one integer: its columns
'   rows6: in, one integer: rows of table 6
'   cols6: in, one integer: its columns
'   rows7: in, one integer: rows of table 7
'   cols7: in, one integer: its columns
'   rows8: in, one integer: rows of table 8
'   cols8: in, one integer: its columns
'   rows9: in, one integer: rows of table 9
'   cols9: in, one integer: its columns
'   rows10: in, one integer: rows of table 10
'   cols10: in, one integer: its columns
'   rows11: in, one integer: rows of table 11
'   cols11: in, one integer: its columns
'   rows12: in, one integer: rows of table 12
'   cols12: in, one integer: its columns
'   rows13: in, one integer: rows of table 13
'   cols13: in, one integer: its columns
'   rows14: in, one integer: rows of table 14
'   cols14: in, one integer: its columns
'   rows15: in, one integer: rows of table 15
'   cols15: in, one integer: its columns
'   rows16: in, one integer: rows of table 16
'   cols16: in, one integer: its columns
'   rows17: in, one integer: rows of table 17
'   cols17: in, one integer: its columns
'   rows18: in, one integer: rows of table 18
'   cols18: in, one integer: its columns
'   rows19: in, one integer: rows of table 19
'   cols19: in, one integer: its columns
'   rows20: in, one integer: rows of table 20
'   cols20: in, one integer: its columns
'   returns -1 when all fit at the same time; otherwise the number of the first table that does not,
'       from 1
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
'   amount: number of bytes; a fifth is added
'   returns -1 when it is, otherwise 0
Public Declare PtrSafe Function Cpp_GetStatusMemory Lib "KORVELMathTools.dll" ( _
    ByVal amount As Long) As Long

' ---- domain/range_texts.h

' Sorts the ranges of a list by their first columns and joins ranges that follow each other.
'   value: in, one text: the list of ranges
'   returns a new text, which the caller frees
'   raises  std::bad_alloc when memory is short
Public Declare PtrSafe Function SimplifyRange Lib "KORVELMathTools.dll" ( _
    ByVal value As LongPtr) As LongPtr

' The column behind a column.
'   column: in, one text: the letters of a column
'   returns a new text, which the caller frees
'   raises  std::bad_alloc when memory is short
Public Declare PtrSafe Function Increase1Col Lib "KORVELMathTools.dll" ( _
    ByVal column As LongPtr) As LongPtr

' ---- domain/triangular_distribution.h

' The bounds of a triangular distribution with a given mode, whose distribution function is p1 at q1
' and p2 at q2.
'   q1: the lower quantile
'   mode: the mode
'   q2: the upper quantile
'   p1: probability up to q1
'   p2: probability up to q2
'   a: out, one number: the lower bound
'   b: out, one number: the upper bound
'   returns 0
Public Declare PtrSafe Function Cpp_TriangularQFindAB Lib "KORVELMathTools.dll" ( _
    ByVal q1 As Double, ByVal mode As Double, ByVal q2 As Double, ByVal p1 As Double, _
    ByVal p2 As Double, ByRef a As Double, ByRef b As Double) As Long

' ---- fitting/biplot.h

' Rescales the coordinates of a biplot by powers of the singular values: those of rows by s^(alpha/2
' - 1/2), those of columns by s^(-alpha/2).
'   rowCoordinates: in, rows by axes numbers, column after column
'   extraRowCoordinates (Double, or ByVal KORVEL_NULL): in, extraRows by axes numbers, to stand
'       below them; may be null when there are none
'   columnCoordinates: in, columns by axes numbers
'   rows: rows
'   extraRows: further rows
'   columns: columns
'   axes: axes
'   singularValues: in, axes numbers
'   scaleValue: the coordinates of columns are multiplied by its root; a negative one makes them
'       missing numbers or what these come to
'   alpha: 1: rows stay as they are; 0: columns do
'   rowResult: out, rows + extraRows by axes numbers
'   columnResult: out, columns by axes numbers
'   returns 0
Public Declare PtrSafe Function VB_BiplotTransData Lib "KORVELMathTools.dll" ( _
    ByRef rowCoordinates As Double, ByRef extraRowCoordinates As Any, _
    ByRef columnCoordinates As Double, ByVal rows As Long, ByVal extraRows As Long, _
    ByVal columns As Long, ByVal axes As Long, ByRef singularValues As Double, _
    ByVal scaleValue As Double, ByVal alpha As Double, ByRef rowResult As Double, _
    ByRef columnResult As Double) As Long

' The same with coordinates in chunks.
'   rowCoordinates: in, host array of axes columns of rows numbers
'   extraRowCoordinates (Double, or ByVal KORVEL_NULL): in, extraRows by axes numbers, to stand
'       below them; may be null when there are none
'   columnCoordinates: in, host array of axes columns of columns numbers
'   rows: rows
'   extraRows: further rows
'   columns: columns
'   axes: axes
'   singularValues: in, axes numbers
'   scaleValue: the coordinates of columns are multiplied by its root; a negative one makes them
'       missing numbers or what these come to
'   alpha: 1: rows stay as they are; 0: columns do
'   rowResult: out, rows + extraRows by axes numbers
'   columnResult: out, columns by axes numbers
'   returns 0
Public Declare PtrSafe Function VB_BiplotTransDataSPV Lib "KORVELMathTools.dll" ( _
    ByVal rowCoordinates As LongPtr, ByRef extraRowCoordinates As Any, _
    ByVal columnCoordinates As LongPtr, ByVal rows As Long, ByVal extraRows As Long, _
    ByVal columns As Long, ByVal axes As Long, ByRef singularValues As Double, _
    ByVal scaleValue As Double, ByVal alpha As Double, ByRef rowResult As Double, _
    ByRef columnResult As Double) As Long

' Squared cosines of the rows of a table: each cell squared, over the sum of squares of its row.
'   x: in, n by p numbers, column after column
'   n: rows
'   p: columns
'   result: inout, n by p numbers; rows whose sum of squares is not above 1e-12 stay as they are.
'       May be x
'   returns 0
Public Declare PtrSafe Function ComputeCosines Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef result As Double) As Long

' Marks one cell in each row of a table with -1.
'   positions: in, n integers: the columns, counted from 1; one below 1 marks nothing
'   n: rows
'   table: inout, n by max(positions) integers, or more columns, one after the other
'   returns 0
Public Declare PtrSafe Function Cpp_M_BoldCosines Lib "KORVELMathTools.dll" ( _
    ByRef positions As Long, ByVal n As Long, ByRef table As Long) As Long

' ---- fitting/least_squares.h

' Regression: coefficients and fitted values.
'   n: rows
'   p: predictors
'   x: in, n by p numbers, column after column
'   y: in, n numbers, the response
'   weights: in, n weights
'   degree: the highest power of a predictor
'   interactions: -1: with the products of pairs of predictors
'   noConstant: not 0: the model has no intercept
'   tolerance: limit of a term's tolerance; a term is taken in when its own is greater
'   coefficients: out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when
'       interactions is -1: that of each term, the intercept last
'   fitted: out, n numbers
'   returns 0
Public Declare PtrSafe Function RunOLSBasic Lib "KORVELMathTools.dll" ( _
    ByVal n As Long, ByVal p As Long, ByRef x As Double, ByRef y As Double, ByRef weights As Double, _
    ByVal degree As Long, ByVal interactions As Integer, ByVal noConstant As Integer, _
    ByVal tolerance As Double, ByRef coefficients As Double, ByRef fitted As Double) As Long

' Regression: coefficients, their standard errors and fitted values.
'   n: rows
'   p: predictors
'   x: in, n by p numbers, column after column
'   y: in, n numbers, the response
'   weights: in, n weights
'   degree: the highest power of a predictor
'   interactions: -1: with the products of pairs of predictors
'   noConstant: not 0: the model has no intercept
'   tolerance: limit of a term's tolerance; a term is taken in when its own is greater
'   coefficients: out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when
'       interactions is -1: that of each term, the intercept last
'   standardErrors: out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when
'       interactions is -1. That of the intercept is a NaN when rounding made its square negative
'   fitted: out, n numbers
'   returns 0
Public Declare PtrSafe Function RunOLSBasic2 Lib "KORVELMathTools.dll" ( _
    ByVal n As Long, ByVal p As Long, ByRef x As Double, ByRef y As Double, ByRef weights As Double, _
    ByVal degree As Long, ByVal interactions As Integer, ByVal noConstant As Integer, _
    ByVal tolerance As Double, ByRef coefficients As Double, ByRef standardErrors As Double, _
    ByRef fitted As Double) As Long

' Regression: the same with the swept table and the statistics of the columns.
'   n: rows
'   p: predictors
'   x: in, n by p numbers, column after column
'   y: in, n numbers, the response
'   weights: in, n weights
'   degree: the highest power of a predictor
'   interactions: -1: with the products of pairs of predictors
'   noConstant: not 0: the model has no intercept
'   tolerance: limit of a term's tolerance; a term is taken in when its own is greater
'   coefficients: out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when
'       interactions is -1: that of each term, the intercept last
'   standardErrors: out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when
'       interactions is -1. That of the intercept is a NaN when rounding made its square negative
'   fitted: out, n numbers
'   sweptMatrix: out, p * degree + 1 by p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1
'       by p * degree + p * (p - 1) / 2 + 1 numbers when interactions is -1: the correlation table
'       after all sweeps, the response last. Its last cell is the share of the variation that stays
'       unexplained
'   means: out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when
'       interactions is -1
'   standardDeviations: out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers
'       when interactions is -1; 0 for each refused term
'   returns 0
Public Declare PtrSafe Function RunOLSBasic3 Lib "KORVELMathTools.dll" ( _
    ByVal n As Long, ByVal p As Long, ByRef x As Double, ByRef y As Double, ByRef weights As Double, _
    ByVal degree As Long, ByVal interactions As Integer, ByVal noConstant As Integer, _
    ByVal tolerance As Double, ByRef coefficients As Double, ByRef standardErrors As Double, _
    ByRef fitted As Double, ByRef sweptMatrix As Double, ByRef means As Double, _
    ByRef standardDeviations As Double) As Long

' ---- fitting/least_squares_blocks.h

' Regression as by RunOLSBasic2 on the columns of five tables, one behind the other, without powers
' or interactions.
'   n: rows
'   p1: columns of the first table; below 1 it does not take part
'   x1 (Double, or ByVal KORVEL_NULL): in, n by p1 numbers, column after column; not read when p1 is
'       below 1, and then may be null
'   p2: columns of the second table
'   x2 (Double, or ByVal KORVEL_NULL): in, n by p2 numbers, likewise; may be null when p2 is below 1
'   p3: columns of the third table
'   x3 (Double, or ByVal KORVEL_NULL): in, n by p3 numbers, likewise; may be null when p3 is below 1
'   p4: columns of the fourth table
'   x4 (Double, or ByVal KORVEL_NULL): in, n by p4 numbers, likewise; may be null when p4 is below 1
'   p5: columns of the fifth table
'   x5 (Double, or ByVal KORVEL_NULL): in, n by p5 numbers, likewise; may be null when p5 is below 1
'   y: in, n numbers, the response
'   weights: in, n weights
'   degree: 1
'   interactions: -1: the results have room for interactions, which are not formed: their tail stays
'       0
'   noConstant: not 0: the model has no intercept
'   tolerance: limit of a term's tolerance; a term is taken in when its own is greater
'   coefficients: out, (p1 + p2 + p3 + p4 + p5) * degree + 1 numbers, or (p1 + p2 + p3 + p4 + p5) *
'       degree + (p1 + p2 + p3 + p4 + p5) * (p1 + p2 + p3 + p4 + p5 - 1) / 2 + 1 numbers when
'       interactions is -1: that of each column, and then the intercept
'   standardErrors: out, (p1 + p2 + p3 + p4 + p5) * degree + 1 numbers, or (p1 + p2 + p3 + p4 + p5)
'       * degree + (p1 + p2 + p3 + p4 + p5) * (p1 + p2 + p3 + p4 + p5 - 1) / 2 + 1 numbers when
'       interactions is -1, likewise; missing with fewer rows than coefficients
'   fitted: out, n numbers
'   returns 0
Public Declare PtrSafe Function RunOLSBasic2Lg Lib "KORVELMathTools.dll" ( _
    ByVal n As Long, ByVal p1 As Long, ByRef x1 As Any, ByVal p2 As Long, ByRef x2 As Any, _
    ByVal p3 As Long, ByRef x3 As Any, ByVal p4 As Long, ByRef x4 As Any, ByVal p5 As Long, _
    ByRef x5 As Any, ByRef y As Double, ByRef weights As Double, ByVal degree As Long, _
    ByVal interactions As Integer, ByVal noConstant As Integer, ByVal tolerance As Double, _
    ByRef coefficients As Double, ByRef standardErrors As Double, ByRef fitted As Double) As Long

' ---- fitting/newton_raphson.h

' One damped step of the Newton-Raphson method: the inverse of the Hessian over the free parameters
' times the gradient is subtracted from the parameters.
'   parameters: inout, n numbers; the free ones are changed
'   n: parameters
'   constraints: in, n integers: 0 for a free parameter, any other value for one held fixed
'   gradient: in, n numbers
'   hessian: in, n by n numbers, column after column
'   tolerance: the largest absolute change that counts as none
'   standardErrors: out, n numbers: the roots of the magnitudes of the inverse's diagonal; 0 for a
'       fixed parameter
'   inverse: out, n by n numbers: the inverse, with 0 for fixed parameters
'   limitStep: not 0: a step longer than stepLimit is shortened, its direction kept
'   stepLimit: the largest absolute change of a parameter
'   returns 1 when every free parameter moved by at most the tolerance; 0 when one moved by more; -1
'       when the inversion failed, which it does not at present
Public Declare PtrSafe Function NewtonRaphson Lib "KORVELMathTools.dll" ( _
    ByRef parameters As Double, ByVal n As Long, ByRef constraints As Long, _
    ByRef gradient As Double, ByRef hessian As Double, ByVal tolerance As Double, _
    ByRef standardErrors As Double, ByRef inverse As Double, ByVal limitStep As Integer, _
    ByVal stepLimit As Double) As Long

' ---- fitting/nipals.h

' Fills the missing cells of a table from its principal components, found by the NIPALS iteration
' over the cells that are there.
'   n: rows
'   p: columns; with a single one no component can be found
'   x: inout, n by p numbers, column after column
'   weights: in, n weights
'   tolerance: the largest variance of the changes of the loadings that ends a component
'   components: how many components are taken; below 1 none, so that a cell becomes the mean over
'       the weight
'   columnShare: the largest share of missing cells in a column
'   tableShare: the largest share of missing cells in the table
'   returns 0 when the table is complete, or was; -6 when too many cells are missing; 1 when a
'       component cannot be found. With -6 and 1 the table is as it was
Public Declare PtrSafe Function Cpp_NIPALS Lib "KORVELMathTools.dll" ( _
    ByVal n As Long, ByVal p As Long, ByRef x As Double, ByRef weights As Double, _
    ByVal tolerance As Double, ByVal components As Long, ByVal columnShare As Double, _
    ByVal tableShare As Double) As Long

' ---- fitting/tolerance_screening.h

' The tolerance of each variable of the selected groups, the share of its variation that the others
' leave unexplained, and its variance inflation factor.
'   r: in, p by p numbers, the correlations, column after column
'   p: variables
'   groupCount: groups
'   groupSelection: in, groupCount numbers; a group is screened when its number is exactly 1
'   groupNumbers: in, p numbers, counted from 1: the group of each variable; the variables of a
'       group stand side by side
'   tolerance: limit below which a variable counts as explained; sweeping ends there
'   duplicates: not 0: variables that correlate with an earlier one at more than 0.999999999999 in
'       magnitude have the status 60000. -1: also those that are refused because others explain them
'   entered: -1: variables of status 60000 are swept too
'   reverse: -1: a group is walked from its last variable to its first
'   skipGroup: -1: variables of the same group as the one screened are not swept
'   status: out, p numbers: 50000 for a variable whose cell of the diagonal is 0, 60000 for a
'       collinear one, -1 for all others
'   tolerances: inout, p numbers; written for variables that are screened, and 0 for constant ones
'       and duplicates
'   inflationFactors: inout, p numbers, at the same places; missing where the tolerance is not above
'       0
'   returns 0
Public Declare PtrSafe Function VB_CheckTolerance Lib "KORVELMathTools.dll" ( _
    ByRef r As Double, ByVal p As Long, ByVal groupCount As Long, ByRef groupSelection As Double, _
    ByRef groupNumbers As Double, ByVal tolerance As Double, ByVal duplicates As Integer, _
    ByVal entered As Integer, ByVal reverse As Integer, ByVal skipGroup As Integer, _
    ByRef status As Double, ByRef tolerances As Double, ByRef inflationFactors As Double) As Long

' ---- linalg/cholesky.h

' Cholesky decomposition.
'   a: in, n by n numbers, column after column, of which the upper half is read
'   n: rows and columns
'   l: out, n by n numbers, column after column; 0 above the diagonal, and, on failure, in the
'       columns that were not finished. May be the array that is read
'   returns 0; -1: a is not positive definite
Public Declare PtrSafe Function VB_M_CholDecomp Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef l As Double) As Long

' Cholesky decomposition with rows and columns exchanged alike.
'   a: inout, n by n numbers, column after column
'   n: rows and columns
'   l: out, n by n numbers, the factor of the permuted table, as far as it goes
'   perm: out, n integers; element i is the number, from 1, of the variable at position i
'   replaceInput: true only when -1: a is replaced by the permuted table, on failure too
'   returns 0; -1: a pivot was below 1e-12
Public Declare PtrSafe Function VB_M_CholDecompPrinc Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef l As Double, ByRef perm As Long, _
    ByVal replaceInput As Integer) As Long

' ---- linalg/constraint_cleaning.h

' The determinant of the free rows and columns.
'   a: in, n by n numbers, column after column
'   n: rows and columns
'   constraints: in, n integers
'   status: out, one status: 0; -1: a row has only zeros, or the logarithm of the magnitude is above
'       709, or memory is short; 1: all of the first column is NaN
'   returns the determinant, as VB_M_Determinant returns it; 1.0 when no position is left
Public Declare PtrSafe Function VB_M_DeterminantCleaned Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef constraints As Long, ByRef status As Integer) As Double

' The determinant of the free rows and columns of a symmetric table, held as a triangle.
'   a: in, host array of n columns of numbers; column j runs from the diagonal down
'   n: rows and columns
'   constraints: in, n integers
'   status: out, one status: 0; -1: a row has only zeros, or the logarithm of the magnitude is above
'       709, or memory is short; 1: all of the first column is NaN
'   returns the determinant, as VB_M_Determinant returns it; 1.0 when no position is left
Public Declare PtrSafe Function Cpp_M_DeterminantCleanedSPV_T Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByRef constraints As Long, ByRef status As Integer) As Double

' Cholesky factor of the free rows and columns.
'   a: in, n by n numbers, column after column
'   n: rows and columns
'   constraints: in, n integers
'   l: inout, n by n numbers; the columns of free positions are written whole, with 0 in the other
'       rows. The other columns stay as they are, and so does all of l on failure
'   returns 0; -1: a pivot fails
Public Declare PtrSafe Function VB_M_CholDecompCleaned Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef constraints As Long, ByRef l As Double) As Long

' Inverse of the free rows and columns.
'   n: rows and columns
'   constraints: in, n integers
'   h: in, n by n numbers, column after column
'   inverse: inout, n by n numbers; the columns of free positions are written whole, with 0 in the
'       other rows. The other columns stay as they are: pass zeros. May be the array that is read
'   returns 0; 1: the reduced table was singular
Public Declare PtrSafe Function CleanConstraintsAndInvert Lib "KORVELMathTools.dll" ( _
    ByVal n As Long, ByRef constraints As Long, ByRef h As Double, ByRef inverse As Double) As Long

' Inverse of the free rows and columns of a triangular table.
'   n: rows and columns
'   constraints: in, n integers
'   t: in, n by n numbers, column after column
'   lowerFlag: 0: t is upper triangular; any other value: lower triangular
'   inverse: inout, n by n numbers, as for CleanConstraintsAndInvert; stays as it is on failure
'   returns 0; -1: an element of the diagonal is below 1e-12 in magnitude
Public Declare PtrSafe Function CleanConstraintsAndInvertTriang Lib "KORVELMathTools.dll" ( _
    ByVal n As Long, ByRef constraints As Long, ByRef t As Double, ByVal lowerFlag As Integer, _
    ByRef inverse As Double) As Long

' ---- linalg/determinants.h

' The determinant, as the exponential of the logarithms of the pivots of an LU decomposition.
'   a: in, n by n numbers, column after column
'   n: rows and columns
'   status: out, one status: 0; -1: a row has only zeros, or the logarithm of the magnitude is above
'       709, or memory is short; 1: all of the first column is NaN
'   returns the determinant; 0.0 for a singular table, for a pivot below 1e-24 in magnitude, for a
'       logarithm below -708, for a row of zeros and a first column of NaN; 1.79769313486231e308
'       when the logarithm is above 709 or memory is short; 1.0 when n is 0
Public Declare PtrSafe Function VB_M_Determinant Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef status As Integer) As Double

' The logarithm of the determinant.
'   a: in, n by n numbers, column after column
'   n: rows and columns
'   returns the logarithm; the missing value when the determinant is negative or a row has only
'       zeros
Public Declare PtrSafe Function Cpp_M_LogDeterminant Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long) As Double

' The determinant of a triangular table: the product of its diagonal, by logarithms.
'   a: in, n by n numbers, column after column, of which the diagonal is read
'   n: rows and columns
'   status: out, one status: 0
'   returns the determinant; 0.0 when an element of the diagonal is 0
Public Declare PtrSafe Function VB_M_DeterminantTriang Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef status As Integer) As Double

' ---- linalg/diagonal_scaling.h

' c(i, k) = a(i, k) * d(k, k).
'   a: in, n by p cells
'   n: rows
'   p: columns
'   d: in, p by p cells, of which the diagonal is read
'   c: out, n by p cells; may be the array of an argument
'   returns 0
Public Declare PtrSafe Function VB_M_ProductADiag Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef c As Double) As Long

' c(k, i) = a(i, k) * d(i, i).
'   a: in, n by p cells
'   n: rows
'   p: columns
'   d: in, n by n cells, of which the diagonal is read
'   c: out, p by n cells; may be the array of an argument
'   returns 0
Public Declare PtrSafe Function VB_M_ProductTrADiag Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef c As Double) As Long

' c(i, k) = a(i, k) * d(k).
'   a: in, n by p cells
'   n: rows
'   p: columns
'   d: in, p numbers
'   c: out, n by p cells; may be the array of an argument
'   returns 0
Public Declare PtrSafe Function VB_M_ProductADiagV Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef c As Double) As Long

' c(i, k) = d(i) * a(i, k).
'   d: in, n numbers
'   n: rows
'   a: in, n by p cells
'   p: columns
'   c: out, n by p cells; may be the array of an argument
'   returns 0
Public Declare PtrSafe Function VB_M_ProductDiagVA Lib "KORVELMathTools.dll" ( _
    ByRef d As Double, ByVal n As Long, ByRef a As Double, ByVal p As Long, ByRef c As Double) As Long

' c(i, k) = (d1(i) * a(i, k)) * d2(k).
'   d1: in, n numbers
'   n: rows
'   a: in, n by p cells
'   p: columns
'   d2: in, p numbers
'   c: out, n by p cells; may be the array of an argument
'   returns 0
Public Declare PtrSafe Function VB_M_ProductDiagV1ADiagV2 Lib "KORVELMathTools.dll" ( _
    ByRef d1 As Double, ByVal n As Long, ByRef a As Double, ByVal p As Long, ByRef d2 As Double, _
    ByRef c As Double) As Long

' c(k, r) = a(r, k) * d(r).
'   a: in, n by p cells
'   n: rows
'   p: columns
'   d: in, n numbers
'   c: out, p by n cells; may be the array of an argument
'   returns 0
Public Declare PtrSafe Function VB_M_ProductTrADiagV Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef c As Double) As Long

' ---- linalg/eigenvalue_filter.h

' Drops small eigenvalues from the end, takes each one's share of the sum of those that are left,
' and counts how many of the leading ones satisfy all bounds.
'   values: inout, n eigenvalues in descending order; the last may be set to 0
'   n: number of values
'   dropTail: not 0: values below the threshold are dropped from the end. 0: the last one below it
'       is set to 0, and with a threshold above 0 the call then does not return
'   threshold: what is below it is not kept
'   cumulativePercent: with a number above 0, the first values whose shares, in percent, sum up to
'       at least it are enough
'   maxCount: with a number above 0, no more than so many are enough
'   minValue: with a number above 0, each value below minValue + 1e-12 lowers the number by one
'   kept: out, one integer: how many values were not dropped; 0 when their sum is NaN
'   retained: out, one integer: the smallest of the four numbers
'   percents: out, n shares of the values in the sum of those kept, in percent; 0.0 for a dropped
'       one
'   returns 0
Public Declare PtrSafe Function VB_FilterEigen Lib "KORVELMathTools.dll" ( _
    ByRef values As Double, ByVal n As Long, ByVal dropTail As Integer, ByVal threshold As Double, _
    ByVal cumulativePercent As Double, ByVal maxCount As Long, ByVal minValue As Double, _
    ByRef kept As Long, ByRef retained As Long, ByRef percents As Double) As Long

' ---- linalg/element_wise.h

' c(i, j) = s * a(i, j); a missing cell stays missing.
'   a: in, n by p cells
'   n: rows
'   p: columns
'   s: the factor
'   c: out, n by p cells; may be the array of an argument
'   returns 0
Public Declare PtrSafe Function VB_M_ScalarsA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByVal s As Double, ByRef c As Double) As Long

' a(i, j) = s * a(i, j); a missing cell stays missing.
'   a: inout, n by p cells
'   n: rows
'   p: columns
'   s: the factor
'   returns 0
Public Declare PtrSafe Function VB_M_ScalarsA2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByVal s As Double) As Long

' c(j, i) = s * a(i, j); a missing cell stays missing.
'   a: in, n by p cells
'   n: rows
'   p: columns
'   s: the factor
'   c: out, p by n cells; may be a
'   returns 0
Public Declare PtrSafe Function VB_M_ScalarsTrA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByVal s As Double, ByRef c As Double) As Long

' c(i, j) = a(i, j) + s.
'   a: in, n by p cells
'   n: rows
'   p: columns
'   s: what is added
'   c: out, n by p cells; may be the array of an argument
'   returns 0
Public Declare PtrSafe Function VB_M_APlusVal Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByVal s As Double, ByRef c As Double) As Long

' a(i, j) = a(i, j) + s.
'   a: inout, n by p cells
'   n: rows
'   p: columns
'   s: what is added
'   returns 0
Public Declare PtrSafe Function VB_M_APlusVal2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByVal s As Double) As Long

' a(i, j) = a(i, j) * a(i, j); a missing cell stays missing.
'   a: inout, n by p cells
'   n: rows
'   p: columns
'   returns 0
Public Declare PtrSafe Function VB_M_Square Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long) As Long

' c(i, j) = a(i, j) * b(i, j).
'   a: in, n by p cells
'   n: rows
'   p: columns
'   b: in, n by p cells
'   c: out, n by p cells; may be the array of an argument
'   returns 0
Public Declare PtrSafe Function VB_M_ProductByElement Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByRef c As Double) As Long

' c(i, j) = a(i, j) + b(i, j).
'   a: in, n by p cells
'   b: in, n by p cells
'   n: rows
'   p: columns
'   c: out, n by p cells; may be the array of an argument
'   returns 0
Public Declare PtrSafe Function Cpp_SumMat Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByRef b As Double, ByVal n As Long, ByVal p As Long, ByRef c As Double) As Long

' x(i, j) = x(i, j) * s.
'   x: inout, rows by cols cells
'   rows: rows
'   cols: columns
'   s: the factor
'   returns 0
Public Declare PtrSafe Function Cpp_MultiplyByVal Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal s As Double) As Long

' ---- linalg/g2_sweep.h

' Generalised inverse of a square table by sweeping.
'   a: in, n by n numbers, column after column
'   n: rows and columns; below 1 nothing is done
'   tolerance: a pivot is passed over when its magnitude is below it
'   g: out, n by n numbers; may be the array that is read
'   returns 0
Public Declare PtrSafe Function Cpp_M_InverseG2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal tolerance As Double, ByRef g As Double) As Long

' Generalised inverse of a labelled table by sweeping.
'   a: in, labelled table of numbers, n by n
'   n: rows and columns; below 1 nothing is done
'   tolerance: a pivot is passed over when its magnitude is below it
'   g: inout, labelled table of numbers whose columns receive n by n; its counts stay as they are
'   returns 0
Public Declare PtrSafe Function Cpp_M_InverseG2_ST Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal tolerance As Double, ByVal g As LongPtr) As Long

' Generalised inverse of a square table by sweeping some of its pivots.
'   a: in, n by n numbers, column after column
'   n: rows and columns; below 1 nothing is done
'   selected: in, n numbers; a pivot is swept where the number is 1
'   tolerance: a pivot is passed over when its magnitude is below it
'   g: out, n by n numbers; may be the array that is read
'   zeroOthers: true only when -1: row and column of a pivot that is not selected become 0 when its
'       turn comes. Otherwise they stay as they are then
'   returns 0
Public Declare PtrSafe Function Cpp_M_InverseG2Selective Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef selected As Long, ByVal tolerance As Double, _
    ByRef g As Double, ByVal zeroOthers As Integer) As Long

' ---- linalg/gauss.h

' Solves a * x = b for several right sides, and inverts a.
'   a: inout, n by n numbers, column after column; becomes its inverse
'   n: rows and columns of a; below 1 nothing is done
'   m: columns of b
'   b (Double, or ByVal KORVEL_NULL): inout, n by m numbers; becomes the solution x. Null: allowed
'       when m is 0
'   returns 0, or -2 at a pivot that is exactly 0: both tables are then as the steps before have
'       left them
Public Declare PtrSafe Function VB_M_Gauss Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal m As Long, ByRef b As Any) As Long

' Solves a * x = b for one right side, and inverts a.
'   a: inout, n by n numbers, column after column; becomes its inverse
'   n: rows and columns of a; below 1 nothing is done
'   b: inout, n numbers; becomes the solution x
'   returns 0, or -2 at a pivot that is exactly 0: both are then as the steps before have left them
Public Declare PtrSafe Function VB_V_Gauss Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double) As Long

' Solves a * x = b on a labelled table and a labelled column, and inverts a.
'   a: inout, labelled table of numbers, n by n; becomes its inverse
'   n: rows and columns of a; below 1 nothing is done
'   b: inout, labelled column of n numbers; becomes the solution x
'   returns 0, or -2 at a pivot that is exactly 0: both are then as the steps before have left them
Public Declare PtrSafe Function Cpp_V_Gauss_ST Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal b As LongPtr) As Long

' ---- linalg/generalized_inverse.h

' Moore-Penrose inverse of a square table, column after column.
'   a: in, n by n numbers
'   n: rows and columns; 0: nothing is done but setting the rank
'   g: out, n by n numbers; may be the array that is read
'   tolerance: a singular value below it is dropped
'   rank: out, one number: how many singular values were kept
'   returns 0, or -1 when the decomposition has not converged; g is made of what there is then as
'       well
Public Declare PtrSafe Function VB_M_InvGeneralized Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef g As Double, ByVal tolerance As Double, _
    ByRef rank As Long) As Long

' Generalised inverse of a symmetric positive semidefinite table: the left singular vectors stand on
' both sides, so that a negative eigenvalue has a positive inverse.
'   a: in, n by n numbers
'   n: rows and columns; 0: nothing is done but setting the rank
'   g: out, n by n numbers; may be the array that is read
'   tolerance: a singular value below it is dropped
'   rank: out, one number: how many singular values were kept
'   returns 0, or -1 when the decomposition has not converged; g is made of what there is then as
'       well
Public Declare PtrSafe Function VB_M_InvGeneralizedSym Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef g As Double, ByVal tolerance As Double, _
    ByRef rank As Long) As Long

' Rank of a table, column after column: the number of singular values up to the first that is at
' most 1e-12.
'   a: in, n by p numbers
'   n: rows
'   p: columns
'   returns the rank; 0 when n or p is 0; -1 when the decomposition has not converged
Public Declare PtrSafe Function VB_M_Rank Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long) As Long

' ---- linalg/hermite_form.h

' Forward Doolittle reduction of a symmetric table.
'   a: in, n by n numbers, column after column, of which the upper triangle is read
'   n: rows and columns; below 1 nothing is done
'   h: out, n by n numbers; may be the array that is read
'   returns 0
Public Declare PtrSafe Function Cpp_M_ForwardDoolittle Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef h As Double) As Long

' Hermite canonical form of a symmetric table.
'   a: in, n by n numbers, column after column, of which the upper triangle is read
'   n: rows and columns; below 1 nothing is done
'   h: out, n by n numbers; may be the array that is read
'   returns 0
Public Declare PtrSafe Function Cpp_M_HermiteCanonical Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef h As Double) As Long

' ---- linalg/logical_inverse.h

' Logical inversion of a table of flags in place: 0 becomes 1, and anything else becomes 0.
'   flags: inout, rows by cols flags, column after column
'   rows: rows; below 1 nothing is done
'   cols: columns; below 1 nothing is done
'   returns 0
Public Declare PtrSafe Function Cpp_M_Inverse Lib "KORVELMathTools.dll" ( _
    ByRef flags As Integer, ByVal rows As Long, ByVal cols As Long) As Long

' ---- linalg/lu.h

' LU decomposition, in place: a, with its rows swapped, is l * u with 1 on the diagonal of l.
'   a: inout, n by n numbers, column after column; receives u on the diagonal and above, l below it
'   n: rows and columns
'   pivots: out, n integers; element j is the row, from 1, that was swapped with row j
'   sign: out, one number: 1, or -1 after an odd number of swaps
'   status: out, one status: 0; -1: a row has only zeros, and a is as it was; 1: the first column
'       has no pivot, because all of it is NaN
'   returns 0
Public Declare PtrSafe Function VB_M_LUDecomp Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef pivots As Long, ByRef sign As Double, _
    ByRef status As Integer) As Long

' ---- linalg/lu_inverse.h

' Inverse of a square table, column after column, by LU decomposition with row scaling and partial
' pivoting.
'   a: in, n by n numbers
'   n: rows and columns; below 1 nothing is done
'   inverse: out, n by n numbers: left alone when the table is singular; may be the array that is
'       read
'   error: inout, one number: becomes -1 when the table is singular, and otherwise stays as it is
'   tolerance: only its sign counts: when it is 0, negative or a NaN, the limit is
'       2.220446049250313e-16
'   returns 0, or -1 when the table is singular
Public Declare PtrSafe Function VB_M_Inverse1 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef inverse As Double, ByRef error As Integer, _
    ByVal tolerance As Double) As Long

' ---- linalg/packed_sweep.h

' Sweeps one pivot of a symmetric table in place: after all pivots the table is the negative of its
' inverse.
'   packed: inout, n * (n + 1) / 2 numbers, the lower triangle row after row
'   n: rows and columns of the table; at most 65535
'   k: number of the pivot, counted from 1
'   returns 0
Public Declare PtrSafe Function VB_M_Sweep Lib "KORVELMathTools.dll" ( _
    ByRef packed As Double, ByVal n As Long, ByVal k As Long) As Long

' ---- linalg/products.h

' Product of two tables, c = a * b.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   b: in, p by q numbers
'   q: columns of b
'   c: out, n by q numbers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductAB Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByVal q As Long, _
    ByRef c As Double) As Long

' Product of two tables of integers, c = a * b, in 32-bit arithmetic that wraps around.
'   a: in, n by p integers
'   n: rows of a
'   p: columns of a
'   b: in, p by q integers
'   q: columns of b
'   c: out, n by q integers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductABLng Lib "KORVELMathTools.dll" ( _
    ByRef a As Long, ByVal n As Long, ByVal p As Long, ByRef b As Long, ByVal q As Long, _
    ByRef c As Long) As Long

' Product of a transposed table and a table, c = a' * b.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   b: in, n by q numbers
'   q: columns of b
'   c: out, p by q numbers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductTrAB Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByVal q As Long, _
    ByRef c As Double) As Long

' Product of a table and a transposed table, c = a * b'.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   b: in, m by p numbers
'   m: rows of b
'   c: out, n by m numbers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductATrB Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByVal m As Long, _
    ByRef c As Double) As Long

' Product with a diagonal that is given as a vector, c = a * diag(d) * b, each term from left to
' right.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   d: in, p numbers
'   b: in, p by q numbers
'   q: columns of b
'   c: out, n by q numbers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductADiagVB Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef b As Double, _
    ByVal q As Long, ByRef c As Double) As Long

' Product with a diagonal that is given as a vector, c = a * diag(d) * b', each term from left to
' right.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   d: in, p numbers
'   b: in, m by p numbers
'   m: rows of b
'   c: out, n by m numbers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductADiagVTrB Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef b As Double, _
    ByVal m As Long, ByRef c As Double) As Long

' ---- linalg/products_design.h

' Replaces the columns of a design by their interactions with those of another.
'   a: inout, n by max(colsB, 1) * colsA numbers, the first colsA columns being the design; receives
'       the colsA * colsB columns of the result
'   n: rows
'   colsA: inout, one integer: the columns of the design; receives those of the result
'   b: in, n by colsB numbers
'   colsB: columns of b
'   typeValue: below 5: plain products; 5: effect coding; 6: effect coding with scaled negative
'       cells
'   weights: in, n weights
'   sums: out, colsA * colsB numbers: pos of each column
'   returns 0
Public Declare PtrSafe Function VB_M_ProductDesignAB2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef colsA As Long, ByRef b As Double, ByVal colsB As Long, _
    ByVal typeValue As Long, ByRef weights As Double, ByRef sums As Double) As Long

' Each column of the result is the product of two columns, cell by cell.
'   a: in, n by colsA numbers
'   n: rows
'   colsA: columns of a
'   b: in, n by colsB numbers
'   colsB: columns of b
'   c: out, n by colsA * colsB numbers; may be an array that is read
'   extra: not read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductHorizAB Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal colsA As Long, ByRef b As Double, ByVal colsB As Long, _
    ByRef c As Double, ByVal extra As Long) As Long

' The same in place of a, and missing where one of the two cells is.
'   a: inout, n by max(colsB, 1) * colsA numbers, of which the first colsA columns are read;
'       receives the colsA * colsB columns of the result
'   n: rows
'   colsA: inout, one integer: the columns of a; receives those of the result
'   b: in, n by colsB numbers; may be a
'   colsB: columns of b
'   returns 0
Public Declare PtrSafe Function VB_M_ProductHorizAB2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef colsA As Long, ByRef b As Double, ByVal colsB As Long) As Long

' Every element of one vector times every element of another: x(i) * y(j), i outside.
'   x: in, n numbers
'   n: elements of x
'   y: in, m numbers
'   m: elements of y
'   out: out, n * m numbers; may be a vector that is read
'   returns 0
Public Declare PtrSafe Function VB_V_ProductHorizV1V2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef y As Double, ByVal m As Long, ByRef out As Double) As Long

' The same in place of x.
'   x: inout, max(m, 1) * n numbers, of which the first n are read; receives the n * m products
'   n: inout, one integer: the elements of x; receives those of the result
'   y: in, m numbers; may be x
'   m: elements of y
'   returns 0
Public Declare PtrSafe Function VB_V_ProductHorizV1V22 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByRef n As Long, ByRef y As Double, ByVal m As Long) As Long

' ---- linalg/products_inverse.h

' Product c = a' * g * a with g the generalised inverse of b by sweeping, as `Cpp_M_InverseG2` makes
' it with the tolerance 1e-12.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   b: in, n by n numbers
'   symmetric: 0: all of the product is summed. Any other value promises that b is symmetric: only
'       the lower half is summed and then mirrored
'   c: out, p by p numbers; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductTrAinvBA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, _
    ByVal symmetric As Integer, ByRef c As Double) As Long

' Product c = a * i * a' with i the inverse of b, as `VB_M_Inverse1` makes it: zeros when a pivot's
' magnitude is at most 1e-8.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   b: in, p by p numbers
'   c: out, n by n numbers; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductAinvBTrA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByRef c As Double) As Long

' The quadratic form v' * i * v with i the inverse of b, as `VB_M_Inverse1` makes it: zeros when a
' pivot's magnitude is at most 1e-8.
'   v: in, n numbers
'   n: elements of v
'   b: in, n by n numbers
'   returns the number; 0.0 when b is singular, and when n is below 1
Public Declare PtrSafe Function VB_M_ProductTrVinvBV Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef b As Double) As Double

' ---- linalg/products_kronecker.h

' The Kronecker product: the block (i, j) of c is a(i, j) * b.
'   a: in, r1 by c1 numbers
'   r1: rows of a
'   c1: columns of a
'   b: in, r2 by c2 numbers
'   r2: rows of b
'   c2: columns of b
'   c: out, r1 * r2 by c1 * c2 numbers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function Cpp_KroneckerTensorProduct Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal r1 As Long, ByVal c1 As Long, ByRef b As Double, ByVal r2 As Long, _
    ByVal c2 As Long, ByRef c As Double) As Long

' ---- linalg/products_missing.h

' Product of two tables that heeds missing cells: where a term has a missing factor, c(i,j) is
' missing.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   b: in, p by q numbers
'   q: columns of b
'   c: out, n by q numbers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductABMissing Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByVal q As Long, _
    ByRef c As Double) As Long

' ---- linalg/products_packed.h

' Product of a packed symmetric table and a vector, y = s * x.
'   s: in, m * (m + 1) / 2 numbers, the lower triangle row after row
'   m: rows and columns of the table; at most 65535
'   x: in, m numbers
'   y: out, m numbers; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductASymV Lib "KORVELMathTools.dll" ( _
    ByRef s As Double, ByVal m As Long, ByRef x As Double, ByRef y As Double) As Long

' Product of a vector and a packed symmetric table, y = x' * s.
'   x: in, m numbers
'   m: rows and columns of the table; at most 65535
'   s: in, m * (m + 1) / 2 numbers, the lower triangle row after row
'   y: out, m numbers; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductVASym Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal m As Long, ByRef s As Double, ByRef y As Double) As Long

' The quadratic form v' * s * v of a full symmetric table: twice the sum over i below j of v(i) *
' v(j) * s(j, i), i outside, plus the sum of v(i)^2 * s(i, i).
'   v: in, n numbers
'   n: rows and columns of the table
'   s: in, n by n numbers, of which only the lower triangle is read
'   returns the form; 0.0 for n below 1
Public Declare PtrSafe Function Cpp_M_ProductTrVSymV Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef s As Double) As Double

' The lower triangle of a * b, all three packed.
'   a: in, n numbers, a lower triangle row after row
'   n: packed length
'   b: in, n numbers, as a
'   c: out, n numbers, as a; may be an array that is read
'   returns 0
Public Declare PtrSafe Function Cpp_MV_ProductAsymBsym Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double, ByRef c As Double) As Long

' ---- linalg/products_records.h

' Product of two labelled tables, c = a * b.
'   a: in, labelled table of numbers, n by p
'   n: rows of a
'   p: columns of a
'   b: in, labelled table of numbers, p by q
'   q: columns of b
'   c: inout, labelled table of numbers whose columns receive n by q; its counts become those
'   returns 0
Public Declare PtrSafe Function Cpp_M_ProductAB_ST Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal p As Long, ByVal b As LongPtr, ByVal q As Long, _
    ByVal c As LongPtr) As Long

' Product of a transposed labelled table and another, c = a' * b.
'   a: in, labelled table of numbers, n by p
'   n: rows of a
'   p: columns of a
'   b: in, labelled table of numbers, n by q
'   q: columns of b
'   c: inout, labelled table of numbers whose columns receive p by q; its counts become those
'   returns 0
Public Declare PtrSafe Function Cpp_M_ProductTrAB_ST Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal p As Long, ByVal b As LongPtr, ByVal q As Long, _
    ByVal c As LongPtr) As Long

' Product of a labelled table and another transposed, c = a * b'.
'   a: in, labelled table of numbers, n by p
'   n: rows of a
'   p: columns of a
'   b: in, labelled table of numbers, m by p
'   m: rows of b
'   c: inout, labelled table of numbers whose columns receive n by m; its counts become those
'   returns 0
Public Declare PtrSafe Function Cpp_M_ProductATrB_ST Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal p As Long, ByVal b As LongPtr, ByVal m As Long, _
    ByVal c As LongPtr) As Long

' Product of three labelled tables, c = a * b * a'.
'   a: in, labelled table of numbers, n by p
'   n: rows of a
'   p: columns of a
'   b: in, labelled table of numbers, p by p
'   symmetric: -1 promises that b is symmetric: only the lower half is summed and then mirrored.
'       With any other value all of the product is summed
'   c: inout, labelled table of numbers whose columns receive n by n; its counts become those
'   returns 0
Public Declare PtrSafe Function Cpp_M_ProductABTrA_ST Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal p As Long, ByVal b As LongPtr, _
    ByVal symmetric As Integer, ByVal c As LongPtr) As Long

' ---- linalg/products_symmetric.h

' Product of a table with itself, c = a' * a.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   c: out, p by p numbers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductTrAA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef c As Double) As Long

' Product of a table of integers with itself, c = a' * a.
'   a: in, n by p integers
'   n: rows of a
'   p: columns of a
'   c: out, p by p integers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function Cpp_M_ProductTrAALng Lib "KORVELMathTools.dll" ( _
    ByRef a As Long, ByVal n As Long, ByVal p As Long, ByRef c As Long) As Long

' Product of a table with itself, c = a * a'.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   c: out, n by n numbers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductATrA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef c As Double) As Long

' Product with a diagonal, c = a * d * a', each term from left to right.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   d: in, p by p numbers; only the diagonal is read
'   c: out, n by n numbers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductADTrA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef c As Double) As Long

' Product with a diagonal, c = a' * d * a, each term from left to right.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   d: in, n by n numbers; only the diagonal is read
'   c: out, p by p numbers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductTrADA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef c As Double) As Long

' Product with a diagonal that is given as a vector, c = a' * diag(d) * a, each term from left to
' right.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   d: in, n numbers
'   c: out, p by p numbers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductTrADiagVA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef c As Double) As Long

' Product with a diagonal that is given as a vector, c = a * diag(d) * a', each term from left to
' right.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   d: in, p numbers
'   c: out, n by n numbers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductADiagVTrA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef d As Double, ByRef c As Double) As Long

' ---- linalg/products_table_vector.h

' Table times vector, y = b * v.
'   b: in, n by p numbers
'   n: rows of b
'   p: columns of b
'   v: in, p numbers
'   y: out, n numbers; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductBV Lib "KORVELMathTools.dll" ( _
    ByRef b As Double, ByVal n As Long, ByVal p As Long, ByRef v As Double, ByRef y As Double) As Long

' Vector times table, y = v' * b, that heeds missing cells: where a term has a missing factor, y(j)
' is missing.
'   v: in, n numbers
'   n: elements of v, rows of b
'   b: in, n by q numbers
'   q: columns of b
'   y: out, q numbers; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductVB Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef b As Double, ByVal q As Long, ByRef y As Double) As Long

' Transposed table times vector, y = b' * v.
'   b: in, n by p numbers
'   n: rows of b
'   p: columns of b
'   v: in, n numbers
'   y: out, p numbers; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductTrBV Lib "KORVELMathTools.dll" ( _
    ByRef b As Double, ByVal n As Long, ByVal p As Long, ByRef v As Double, ByRef y As Double) As Long

' Vector times transposed table, y = v' * b'.
'   v: in, n numbers
'   n: elements of v, columns of b
'   b: in, m by n numbers
'   m: rows of b
'   y: out, m numbers; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductVTrB Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef b As Double, ByVal m As Long, ByRef y As Double) As Long

' The quadratic form v' * b * v.
'   v: in, n numbers
'   n: elements of v
'   b: in, n by n numbers
'   returns the number; 0.0 when n is below 1
Public Declare PtrSafe Function VB_M_ProductTrVBV Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef b As Double) As Double

' The bilinear form x1' * b * x2.
'   x1: in, n numbers
'   n: elements of each vector
'   b: in, n by n numbers
'   x2: in, n numbers
'   returns the number; 0.0 when n is below 1
Public Declare PtrSafe Function VB_M_ProductTrV1BV2 Lib "KORVELMathTools.dll" ( _
    ByRef x1 As Double, ByVal n As Long, ByRef b As Double, ByRef x2 As Double) As Double

' ---- linalg/products_triple.h

' Product of three tables, c = a * b * a'.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   b: in, p by p numbers
'   symmetric: 0: all of the product is summed. Any other value promises that b is symmetric: only
'       the lower half is summed and then mirrored
'   c: out, n by n numbers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductABTrA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, _
    ByVal symmetric As Integer, ByRef c As Double) As Long

' Product of three tables, c = a' * b * a.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   b: in, n by n numbers
'   symmetric: 0: all of the product is summed. Any other value promises that b is symmetric: only
'       the lower half is summed and then mirrored
'   c: out, p by p numbers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductTrABA Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, _
    ByVal symmetric As Integer, ByRef c As Double) As Long

' Product of three tables, d = a * b * c.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   b: in, p by q numbers
'   q: columns of b
'   c: in, q by r numbers
'   r: columns of c
'   d: out, n by r numbers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductABC Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByVal q As Long, _
    ByRef c As Double, ByVal r As Long, ByRef d As Double) As Long

' Product of three tables, d = a' * b * c.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   b: in, n by q numbers
'   q: columns of b
'   c: in, q by r numbers
'   r: columns of c
'   d: out, p by r numbers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductTrABC Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByVal q As Long, _
    ByRef c As Double, ByVal r As Long, ByRef d As Double) As Long

' Product of three tables, d = a * b' * c.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   b: in, q by p numbers
'   q: rows of b
'   c: in, q by r numbers
'   r: columns of c
'   d: out, n by r numbers, column after column; may be an array that is read
'   returns 0
Public Declare PtrSafe Function VB_M_ProductATrBC Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByVal q As Long, _
    ByRef c As Double, ByVal r As Long, ByRef d As Double) As Long

' Product of two tables and a vector, y = a' * b * v.
'   a: in, n by p numbers
'   n: rows of a
'   p: columns of a
'   b: in, n by q numbers
'   q: columns of b
'   v: in, q numbers
'   y: out, p numbers; may be an array that is read
'   returns 0
Public Declare PtrSafe Function Cpp_M_ProductTrABV Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double, ByVal q As Long, _
    ByRef v As Double, ByRef y As Double) As Long

' ---- linalg/reductions.h

' The trace: the sum of a(i, i).
'   a: in, n by n cells
'   n: rows and columns; below 1 nothing is read
'   returns the sum; 0.0 for n below 1
Public Declare PtrSafe Function VB_M_Trace Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long) As Double

' The trace of a' * b: the sum over the columns of the inner products of like columns.
'   a: in, n by p cells
'   n: rows
'   p: columns
'   b: in, n by p cells
'   returns the trace; 0.0 when n or p is below 1
Public Declare PtrSafe Function VB_M_FrobeniusNorm Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef b As Double) As Double

' The row sum norm: the largest sum of magnitudes of a row.
'   a: in, n by m cells
'   n: rows
'   m: columns
'   returns the norm; 0.0 for n below 1
Public Declare PtrSafe Function Cpp_M_RowSumNorm Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal m As Long) As Double

' ---- linalg/singular_values.h

' Singular value decomposition.
'   a: in, n by p numbers, column after column
'   n: rows
'   p: columns
'   s: out, p numbers, of which the first min(n + 1, p) are written: min(n, p) singular values,
'       descending, and perhaps a 0
'   u: out, n by n numbers, column after column; n by p numbers are enough when the job asks for
'       min(n, p) columns. May be null when it asks for none
'   v: out, p by p numbers, column after column. May be null when the job does not ask for it
'   job: what is wanted, see above
'   info: out, one integer: 0; minus the number of values that did not converge, which are the first
'       ones
'   returns 0
Public Declare PtrSafe Function VB_M_SVDecomp Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByVal p As Long, ByRef s As Double, ByRef u As Double, _
    ByRef v As Double, ByVal job As Long, ByRef info As Long) As Long

' Singular value decomposition of a chunked table.
'   a: in, host array of p records, each with a numeric column of n numbers
'   n: rows
'   p: columns
'   s: out, p numbers, of which the first min(n + 1, p) are written: min(n, p) singular values,
'       descending, and perhaps a 0
'   u: inout, host array of a record for each column that the job asks for, each with a numeric
'       column of n numbers; a null array when it asks for none
'   v: inout, host array of p records, each with a numeric column of p numbers; a null array when
'       the job does not ask for it
'   job: what is wanted, see above
'   info: out, one integer: 0; minus the number of values that did not converge, which are the first
'       ones
'   returns 0
Public Declare PtrSafe Function VB_M_SVDecompSPV Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal p As Long, ByRef s As Double, ByVal u As LongPtr, _
    ByVal v As LongPtr, ByVal job As Long, ByRef info As Long) As Long

' ---- linalg/spectral_norm.h

' The largest singular value of a square table.
'   a: in, rows by cols numbers, column after column; not read unless the counts are equal
'   rows: rows
'   cols: columns
'   returns the norm; 0.0 when the counts differ; the missing value when a product of two rows is
'       missing, or for counts of 0
Public Declare PtrSafe Function Cpp_M_Norm2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long) As Double

' ---- linalg/square_roots.h

' A root r with r' * r = a, from the eigenvalues and eigenvectors of a.
'   a: in, n by n numbers, column after column; of the symmetric table the lower half counts
'   n: rows and columns
'   r: out, n by n numbers, column after column; stays as it is unless 0 is returned. May be the
'       array that is read
'   returns 0; -1: an eigenvalue is -1e-12 or below, a cell is missing, or there is no convergence;
'       -2: an eigenvector has no length
Public Declare PtrSafe Function Cpp_M_SquareRoot Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef r As Double) As Long

' ---- linalg/symmetric_eigen.h

' Eigenvalues and eigenvectors of a symmetric table.
'   a: in, n by n numbers, column after column
'   values: out, n eigenvalues, written unless -1 is returned; may be a
'   vectors: out, n by n numbers, the eigenvector of value k in column k, written unless -1 is
'       returned; may be a
'   n: order; with 0 nothing is read or written
'   sortFlag: true only when -1: the values descend, and equal ones keep their order. Otherwise they
'       stand in the order in which they were found
'   returns 0; -1 when an element is missing, a value did not converge within 28 sweeps, or memory
'       is short in the work
Public Declare PtrSafe Function VB_M_Eigen Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByRef values As Double, ByRef vectors As Double, ByVal n As Long, _
    ByVal sortFlag As Integer) As Long

' Eigenvalues and eigenvectors of a symmetric table, of which each column is held from the diagonal
' down.
'   a: in, host array of n records, each with a numeric column: of n numbers the first, and of one
'       less each next
'   values: inout, n eigenvalues; as they were when an element is missing, without meaning when a
'       value did not converge
'   vectors: inout, host array of n records, each with a numeric column of n numbers, which become
'       eigenvector k in column k; as for values
'   n: order
'   sortFlag: true only when -1: the values descend, and equal ones keep their order. Otherwise they
'       stand in the order in which they were found
'   returns 0; -1 when an element is missing or a value did not converge
Public Declare PtrSafe Function Cpp_M_EigenSPV_T Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByRef values As Double, ByVal vectors As LongPtr, ByVal n As Long, _
    ByVal sortFlag As Integer) As Long

' ---- linalg/triangular_inverse.h

' Inverse of a triangular table by back substitution.
'   t: in, n by n numbers, column after column; the other triangle is not read
'   n: rows and columns; below 1 nothing is done
'   lowerFlag: 0: t is upper triangular. Any other value: it is lower triangular
'   inverse: inout, n by n numbers; receives the same triangle. The other one is not written, so the
'       caller passes zeros. May be the array that is read
'   tolerance: magnitude below which a diagonal element counts as 0; not scaled to the data
'   returns 0, or -1 at the first diagonal element below the tolerance: the diagonal of `inverse`
'       then has the reciprocals of those before it, and nothing else is written
Public Declare PtrSafe Function VB_M_InverseTriang Lib "KORVELMathTools.dll" ( _
    ByRef t As Double, ByVal n As Long, ByVal lowerFlag As Integer, ByRef inverse As Double, _
    ByVal tolerance As Double) As Long

' ---- linalg/vector_products.h

' The inner product: the sum of x1(i) * x2(i).
'   x1: in, n elements
'   n: number of elements
'   x2: in, n elements
'   returns the sum; 0.0 for n below 1
Public Declare PtrSafe Function VB_V_ProductTrV1V2 Lib "KORVELMathTools.dll" ( _
    ByRef x1 As Double, ByVal n As Long, ByRef x2 As Double) As Double

' y(i) = x1(i) * x2(i), missing when one of the two is.
'   x1: in, n elements
'   n: number of elements
'   x2: in, n elements
'   y: out, n elements; may be x1 or x2
'   returns 0
Public Declare PtrSafe Function VB_V_ProductV1V2 Lib "KORVELMathTools.dll" ( _
    ByRef x1 As Double, ByVal n As Long, ByRef x2 As Double, ByRef y As Double) As Long

' x1(i) = x1(i) * x2(i).
'   x1: inout, n elements
'   n: number of elements
'   x2: in, n elements; may be x1
'   returns 0
Public Declare PtrSafe Function VB_V_ProductV1V22 Lib "KORVELMathTools.dll" ( _
    ByRef x1 As Double, ByVal n As Long, ByRef x2 As Double) As Long

' The outer product: c(i, j) = x1(i) * x2(j).
'   x1: in, n elements
'   n: number of elements
'   x2: in, n elements
'   c: out, n by n cells, column after column
'   returns 0
Public Declare PtrSafe Function VB_V_ProductV1TrV2 Lib "KORVELMathTools.dll" ( _
    ByRef x1 As Double, ByVal n As Long, ByRef x2 As Double, ByRef c As Double) As Long

' The product of all elements in ascending order, from 1.0.
'   v: in, n elements
'   n: number of elements
'   returns the product; 1.0 for n below 1
Public Declare PtrSafe Function VB_V_Product1toNDbl Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long) As Double

' The product of all elements in ascending order, from 1.0, in Double.
'   v: in, n elements
'   n: number of elements
'   returns the product; 1.0 for n below 1
Public Declare PtrSafe Function VB_V_Product1toNLng Lib "KORVELMathTools.dll" ( _
    ByRef v As Long, ByVal n As Long) As Double

' ---- missing/column_estimates.h

' Fills the missing numbers of flagged rows by the weighted means of their columns.
'   x: inout, n by p numbers
'   n: rows of the table
'   p: columns of the table; 0 stands for 1, and then the mean of a column without numbers is
'       missing
'   rowFlags (Integer, or ByVal KORVEL_NULL): in, n flags; a row whose flag is 0 stays as it is.
'       Null: all rows stay
'   w: in, n weights
'   returns 0
Public Declare PtrSafe Function VB_EstimateRowsWithMissingMean Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef rowFlags As Any, ByRef w As Double) As Long

' Fills the missing numbers of flagged rows by the weighted means of the columns of another table,
' of which a column without numbers has the mean 0.0.
'   statistics: in, n by p numbers, of which the means are taken
'   n: rows of that table
'   x: inout, rows by p numbers
'   rows: rows of the table that is filled
'   p: columns of both tables; 0 stands for 1, and then the mean of a column without numbers is
'       missing
'   rowFlags (Integer, or ByVal KORVEL_NULL): in, rows flags; a row whose flag is 0 stays as it is.
'       Null: all rows stay
'   w: in, n weights
'   returns 0
Public Declare PtrSafe Function VB_EstimateRowsWithMissingMeanPred Lib "KORVELMathTools.dll" ( _
    ByRef statistics As Double, ByVal n As Long, ByRef x As Double, ByVal rows As Long, _
    ByVal p As Long, ByRef rowFlags As Any, ByRef w As Double) As Long

' Fills the missing numbers of flagged rows of a chunked table by the weighted means of their
' columns.
'   x: inout, p columns of n numbers
'   n: rows of the table
'   p: columns of the table
'   rowFlags (Integer, or ByVal KORVEL_NULL): in, n flags; a row whose flag is 0 stays as it is.
'       Null: all rows stay
'   w: in, n weights
'   returns 0
Public Declare PtrSafe Function VB_EstimateRowsWithMissingMeanSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal p As Long, ByRef rowFlags As Any, ByRef w As Double) As Long

' Fills the empty texts of a table by the modes of their columns: of all texts of a column the one
' whose weights have the largest sum, the first of equals.
'   x: inout, n by p texts, replaced where they are empty
'   n: rows of the table
'   p: columns of the table; 0 stands for 1
'   w: in, n weights
'   returns 0
Public Declare PtrSafe Function VB_EstimateRowsWithMissingMode Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal p As Long, ByRef w As Double) As Long

' Fills the empty texts of a table by the modes of the columns of another table: of all texts of a
' column the one whose weights have the largest sum, the first of equals.
'   statistics: in, n by p texts, of which the modes are taken
'   n: rows of that table
'   x: inout, rows by p texts, replaced where they are empty
'   rows: rows of the table that is filled
'   p: columns of both tables; 0 stands for 1
'   w: in, n weights
'   returns 0
Public Declare PtrSafe Function VB_EstimateRowsWithMissingModePred Lib "KORVELMathTools.dll" ( _
    ByVal statistics As LongPtr, ByVal n As Long, ByVal x As LongPtr, ByVal rows As Long, _
    ByVal p As Long, ByRef w As Double) As Long

' ---- missing/expected_frequencies.h

' Replaces each missing cell of a contingency table, a number at or below `KORVEL_MISSING_DBL`, by
' the sum of its row times the sum of its column over the total.
'   x: inout, table of numbers; only its cells are changed
'   rows: rows of the table
'   returns 0
Public Declare PtrSafe Function Cpp_ReplaceMissingInContengencyByExp_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long) As Long

' ---- missing/missing_cells.h

' Replaces the missing numbers of a table.
'   x: inout, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   val: what a missing number becomes
'   returns 0
Public Declare PtrSafe Function VB_M_ReplaceMissingByVal Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal val As Double) As Long

' Replaces the missing numbers of a chunked table.
'   x: inout, cols columns of rows numbers
'   rows: rows of the table
'   cols: columns of the table
'   val: what a missing number becomes
'   returns 0
Public Declare PtrSafe Function VB_M_ReplaceMissingByValSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal val As Double) As Long

' Replaces the empty texts of a table.
'   x: inout, rows by cols texts, replaced where they are empty
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   val: in, one text: what an empty one becomes
'   returns 0
Public Declare PtrSafe Function VB_M_ReplaceMissingByStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal val As LongPtr) As Long

' Replaces the missing numbers of a labelled table, as far as it has columns.
'   x: inout, table of numbers
'   rows: rows of the table
'   cols: columns of the table
'   val: what a missing number becomes
'   returns 0
Public Declare PtrSafe Function Cpp_M_ReplaceMissingByVal_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal val As Double) As Long

' Replaces the empty texts of a labelled table, as far as it has columns.
'   x: inout, table of texts
'   rows: rows of the table
'   cols: columns of the table
'   val: in, one text: what an empty one becomes
'   returns 0
Public Declare PtrSafe Function Cpp_M_ReplaceMissingByStr_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal val As LongPtr) As Long

' Makes cells missing where a table of marks has a 1.
'   x: inout, n by p numbers
'   n: rows of both tables
'   p: columns of the table; 0 stands for 1
'   marks: in, n by markColumns integers
'   markColumns: columns of the marks; 0 stands for 1
'   wholeRow: -1: all cells of a row with a mark become missing; otherwise only the cell in the same
'       column
'   returns 0
Public Declare PtrSafe Function Cpp_M_ReplaceByMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef marks As Long, _
    ByVal markColumns As Long, ByVal wholeRow As Integer) As Long

' Makes cells missing where a table of marks has a value.
'   x: inout, n by p numbers
'   n: rows of both tables
'   p: columns of the table; 0 stands for 1
'   marks: in, n by markColumns integers
'   markColumns: columns of the marks; 0 stands for 1
'   value: the mark
'   wholeRow: -1: all cells of a row with a mark become missing; otherwise only the cell in the same
'       column
'   returns 0
Public Declare PtrSafe Function Cpp_M_ReplaceByMissingIfVal Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef marks As Long, _
    ByVal markColumns As Long, ByVal value As Long, ByVal wholeRow As Integer) As Long

' Marks the missing numbers of a table.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   marks: inout, rows by cols integers: 1 where the number is missing; the others stay
'   returns 0
Public Declare PtrSafe Function Cpp_M_IdentifyMissingInMat Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef marks As Long) As Long

' Marks the missing numbers of a chunked table.
'   x: in, cols columns of rows numbers
'   rows: rows of the table
'   cols: columns of the table
'   marks: inout, rows by cols integers: 1 where the number is missing; the others stay
'   returns 0
Public Declare PtrSafe Function Cpp_M_IdentifyMissingInMatSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef marks As Long) As Long

' Sets weights to 0 where numbers are missing.
'   x: in, n by p numbers
'   n: rows of the table
'   p: columns of the table; 0 stands for 1
'   weights: inout, n by p weights, or n weights when mode is 1
'   mode: 1: a row with a missing number gets weight 0; otherwise the weight cell of each missing
'       number does
'   returns 0
Public Declare PtrSafe Function VB_M_SetWeightsToZeroForMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef weights As Double, ByVal mode As Long) As Long

' ---- missing/missing_counts.h

' Counts the missing numbers.
'   x: in, n numbers
'   n: number of elements
'   returns the count
Public Declare PtrSafe Function VB_V_NbMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' Counts the empty texts.
'   x: in, n texts
'   n: number of elements
'   returns the count
Public Declare PtrSafe Function VB_V_NbMissingStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long) As Long

' Counts the numbers that are not missing.
'   x: in, n numbers
'   n: number of elements
'   returns the count
Public Declare PtrSafe Function VB_V_NbNonMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' Counts the missing numbers of each column.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   counts: out, cols counts
'   returns 0
Public Declare PtrSafe Function VB_M_NbMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef counts As Long) As Long

' Counts the empty texts of each column.
'   x: in, rows by cols texts
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   counts: out, cols counts
'   returns 0
Public Declare PtrSafe Function VB_M_NbMissingStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef counts As Long) As Long

' Counts the numbers of each column that are not missing.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   counts: out, cols counts
'   returns 0
Public Declare PtrSafe Function VB_M_NbNonMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef counts As Long) As Long

' Counts the missing numbers of a whole table.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   returns the count
Public Declare PtrSafe Function VB_M_NbMissing2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Long

' Counts the empty texts of a whole table.
'   x: in, rows by cols texts
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   returns the count
Public Declare PtrSafe Function VB_M_NbMissing2Str Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Long

' Counts the missing numbers of a chunked table.
'   x: in, cols columns of rows numbers
'   rows: rows of the table
'   cols: columns of the table
'   returns the count
Public Declare PtrSafe Function Cpp_M_NbMissingSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Long

' Counts the missing numbers of a triangle.
'   x: in, cols columns, the first of rows numbers and each next one of a number less
'   rows: numbers in the first column
'   cols: number of columns
'   returns the count
Public Declare PtrSafe Function VB_M_NbMissingSPV_T Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Long

' ---- missing/missing_flags.h

' Combines the two sources of missingness of a vector: a flag, and a number at or below the missing
' one.
'   x: in, n numbers
'   n: number of elements
'   iMissing (Integer, or ByVal KORVEL_NULL): in, n flags, -1 for one that is left out; null: none
'       is
'   iMissingOut: out, n flags: -1 when the flag is -1 or the element is missing, otherwise 0; it may
'       be iMissing
'   returns 0
Public Declare PtrSafe Function VB_V_GetMissingDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Any, ByRef iMissingOut As Integer) As Long

' The same for texts, which are missing when empty.
'   x: in, n texts
'   n: number of elements
'   iMissing (Integer, or ByVal KORVEL_NULL): in, n flags, -1 for one that is left out; null: none
'       is
'   iMissingOut: out, n flags: -1 when the flag is -1 or the element is missing, otherwise 0; it may
'       be iMissing
'   returns 0
Public Declare PtrSafe Function VB_V_GetMissingStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByRef iMissing As Any, ByRef iMissingOut As Integer) As Long

' Flags the rows of a table that have a missing number, one at or below the missing one.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags, one for each row, -1 for one that is
'       left out; null: none is
'   iMissingOut: out, rows flags, one for each row: -1 when its flag is -1 or a cell of it is
'       missing, otherwise 0; it may be iMissing
'   returns 0
Public Declare PtrSafe Function Cpp_M_GetMissingDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef iMissing As Any, _
    ByRef iMissingOut As Integer) As Long

' The same for texts, which are missing when empty.
'   x: in, rows by cols texts
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags, one for each row, -1 for one that is
'       left out; null: none is
'   iMissingOut: out, rows flags, one for each row: -1 when its flag is -1 or a cell of it is
'       missing, otherwise 0; it may be iMissing
'   returns 0
Public Declare PtrSafe Function Cpp_M_GetMissingStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef iMissing As Any, _
    ByRef iMissingOut As Integer) As Long

' The same for a chunked table of numbers.
'   x: in, cols columns of rows numbers
'   rows: rows of the table
'   cols: columns of the table
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags, one for each row, -1 for one that is
'       left out; null: none is
'   iMissingOut: out, rows flags, one for each row: -1 when its flag is -1 or a cell of it is
'       missing, otherwise 0; it may be iMissing
'   returns 0
Public Declare PtrSafe Function Cpp_M_GetMissingDblSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef iMissing As Any, _
    ByRef iMissingOut As Integer) As Long

' Sets the result to -1 where one of the flags is -1, and leaves the other entries as they were.
'   n: number of entries
'   count: out, one integer: how many entries were set
'   result: inout, n flags; it may be one of the others
'   a: in, n flags, set where -1
'   b: in, n flags, set where -1
'   c (Integer, or ByVal KORVEL_NULL): in, n flags, set where -1; null: only the first two count
'   returns 0
Public Declare PtrSafe Function VB_SummarizeMissing Lib "KORVELMathTools.dll" ( _
    ByVal n As Long, ByRef count As Long, ByRef result As Integer, ByRef a As Integer, _
    ByRef b As Integer, ByRef c As Any) As Long

' Sets the result to -1 where both flags are -1, and leaves the other entries as they were.
'   n: number of entries
'   a: in, n flags, set where -1
'   b: in, n flags, set where -1
'   count: out, one integer: how many entries were set
'   result: inout, n flags; it may be one of the others
'   returns 0
Public Declare PtrSafe Function VB_SummarizeAllMissing Lib "KORVELMathTools.dll" ( _
    ByVal n As Long, ByRef a As Integer, ByRef b As Integer, ByRef count As Long, _
    ByRef result As Integer) As Long

' Flags the flagged rows that have nothing but missing numbers.
'   x: in, n by p numbers
'   n: rows of the table
'   p: columns of the table; 0 stands for 1
'   flagsIn: in, n flags, one for each row; only rows with -1 are looked at
'   flagsOut: inout, n flags, one for each row: -1 for one that has nothing but missing cells; the
'       others stay
'   returns 0
Public Declare PtrSafe Function VB_M_AllMissingRows Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef flagsIn As Integer, _
    ByRef flagsOut As Integer) As Long

' Flags the flagged rows that have nothing but empty texts.
'   x: in, n by p texts
'   n: rows of the table
'   p: columns of the table; 0 stands for 1
'   flagsIn: in, n flags, one for each row; only rows with -1 are looked at
'   flagsOut: inout, n flags, one for each row: -1 for one that has nothing but missing cells; the
'       others stay
'   returns 0
Public Declare PtrSafe Function VB_M_AllMissingRowsStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal p As Long, ByRef flagsIn As Integer, _
    ByRef flagsOut As Integer) As Long

' Whether some cell (i, j), i below j, of a square table is missing while the cells (i, i) and (j,
' j) are both above the missing number.
'   x: in, n by n numbers
'   n: rows of the table; below 2 the result is 0
'   returns -1 or 0
Public Declare PtrSafe Function Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Integer

' The same for a symmetric table of which column j holds the cells from the diagonal down.
'   x: in, n columns, the first of n numbers and each next one of a number less
'   n: rows of the table; below 2 the result is 0
'   returns -1 or 0
Public Declare PtrSafe Function Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long) As Integer

' ---- missing/missing_rows.h

' Takes the flagged rows out in place: those below move up, and the rows that become free stay as
' they were.
'   x: inout, n by p numbers
'   n: rows of the table
'   p: columns of the table; 0 stands for 1
'   flags: in, n flags, one for each row; not 0: the row is taken out
'   returns 0
Public Declare PtrSafe Function Cpp_M_RemoveRowsWithMissing2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef flags As Integer) As Long

' Copies a table without the flagged rows.
'   x: in, n by p numbers
'   n: rows of the table
'   p: columns of the table; 0 stands for 1
'   removed: how many rows the result is shorter
'   flags: in, n flags, one for each row; not 0: the row is taken out
'   result: out, n - removed by p numbers; it may be x
'   returns 0
Public Declare PtrSafe Function VB_RemoveRowsWithMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByVal removed As Long, _
    ByRef flags As Integer, ByRef result As Double) As Long

' Takes the flagged rows out of a table of texts in place, as Cpp_M_RemoveRowsWithMissing2 does, and
' copies its first rows.
'   x: inout, n by p texts, replaced where they differ
'   n: rows of the table
'   p: columns of the table; 0 stands for 1
'   removed: how many rows the result is shorter
'   flags: in, n flags, one for each row; not 0: the row is taken out
'   result: inout, n - removed by p texts, replaced where they differ; it may be x
'   returns 0
Public Declare PtrSafe Function VB_RemoveRowsWithMissingStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal p As Long, ByVal removed As Long, _
    ByRef flags As Integer, ByVal result As LongPtr) As Long

' Copies a table of flags without the flagged rows.
'   x: in, n by p flags
'   n: rows of the table
'   p: columns of the table; 0 stands for 1
'   removed: how many rows the result is shorter
'   flags: in, n flags, one for each row; not 0: the row is taken out
'   result: out, n - removed by p flags; it may be x
'   returns 0
Public Declare PtrSafe Function VB_RemoveRowsWithMissingBool Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal n As Long, ByVal p As Long, ByVal removed As Long, _
    ByRef flags As Integer, ByRef result As Integer) As Long

' Copies a table without the flagged rows, and tells how many stay.
'   x: in, n by p numbers
'   n: rows of the table
'   p: columns of the table; 0 stands for 1
'   iMissing: in, n flags, one for each row; not 0: the row is taken out
'   result: out, n by p numbers, of which as many rows as stay, by p, are written; it may be x
'   returns how many rows stay
Public Declare PtrSafe Function Cpp_RemoveRowsWithMissingOniMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef iMissing As Integer, _
    ByRef result As Double) As Long

' The same for texts.
'   x: in, n by p texts
'   n: rows of the table
'   p: columns of the table; 0 stands for 1
'   iMissing: in, n flags, one for each row; not 0: the row is taken out
'   result: inout, n by p texts, of which as many rows as stay, by p, are replaced where they
'       differ; it may be x
'   returns how many rows stay
Public Declare PtrSafe Function Cpp_RemoveRowsWithMissingOniMissingStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal p As Long, ByRef iMissing As Integer, _
    ByVal result As LongPtr) As Long

' Spreads the rows of a table, with rows of missing numbers between them.
'   x: in, n by p numbers
'   n: rows of the table
'   p: columns of the table; 0 stands for 1
'   flags: in, n + m flags: 0 for a row that takes the next one of the table, otherwise for one that
'       is all missing
'   m: how many rows the result is longer
'   result: out, n + m by p numbers
'   returns 0
Public Declare PtrSafe Function Cpp_M_InsertMissingDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef flags As Integer, ByVal m As Long, _
    ByRef result As Double) As Long

' The same for integers; the missing one is -2147483648.
'   x: in, n by p integers
'   n: rows of the table
'   p: columns of the table; 0 stands for 1
'   flags: in, n + m flags: 0 for a row that takes the next one of the table, otherwise for one that
'       is all missing
'   m: how many rows the result is longer
'   result: out, n + m by p integers
'   returns 0
Public Declare PtrSafe Function Cpp_M_InsertMissingLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByVal p As Long, ByRef flags As Integer, ByVal m As Long, _
    ByRef result As Long) As Long

' ---- missing/missing_summaries.h

' Sum of the numbers of one vector where neither it nor another vector is missing.
'   x: in, n numbers
'   n: number of elements
'   y: in, n numbers
'   returns the sum, 0.0 when there are none; the missing number for n below 1
Public Declare PtrSafe Function VB_V_SumIfNotMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef y As Double) As Double

' Strings the numbers that are not missing together, column after column.
'   x: in, n by p numbers
'   n: rows of the table
'   p: columns of the table; 0 stands for 1
'   counts: inout, p numbers, each of which grows by the number of such cells in its column
'   emptyColumns: inout, one number: grows by 1 for each column whose count is 0 then
'   vector: out, n by p numbers, of which the first receive the cells
'   returns 0
Public Declare PtrSafe Function Cpp_MatToVect_NoMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef counts As Double, _
    ByRef emptyColumns As Double, ByRef vector As Double) As Long

' The smallest number that is not missing.
'   x: in, n numbers
'   n: number of elements
'   returns the smallest number; the missing one when there is none
Public Declare PtrSafe Function Cpp_V_MinIgnoreMissing Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double

' The smallest number of a labelled table that is not missing.
'   x: in, table of numbers
'   rows: rows of the table
'   cols: columns of the table
'   returns the smallest number below 1.79769313486231e308; the missing one when there is none
Public Declare PtrSafe Function Cpp_M_MinIgnoreMissing_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Double

' ---- missing/nearest_neighbours.h

' Fills missing cells of flagged rows by the value of the nearest row; see the head of this file.
'   primary (Double, or ByVal KORVEL_NULL): inout, n by primaryColumns numbers; may be null when
'       primaryColumns is 0
'   n: rows of all groups
'   primaryColumns: columns of the primary group; below 1 there is none
'   rowFlags (Integer, or ByVal KORVEL_NULL): in, n flags; a row whose flag is not 0 is filled.
'       Null: no row is
'   second (Double, or ByVal KORVEL_NULL): inout, n by secondColumns numbers; may be null when
'       secondColumns is 0
'   secondColumns: columns of the second group; below 1 there is none
'   third: inout, n by thirdColumns texts, replaced where they are empty; may be null when
'       thirdColumns is 0
'   thirdColumns: columns of the third group; below 1 there is none
'   w: in, n weights for means, variances and modes
'   returns 0
Public Declare PtrSafe Function VB_EstimateRowsWithMissingNN Lib "KORVELMathTools.dll" ( _
    ByRef primary As Any, ByVal n As Long, ByVal primaryColumns As Long, ByRef rowFlags As Any, _
    ByRef second As Any, ByVal secondColumns As Long, ByVal third As LongPtr, _
    ByVal thirdColumns As Long, ByRef w As Double) As Long

' Fills missing cells of flagged rows by the value of the nearest row; see the head of this file.
'   primaryStatistics (Double, or ByVal KORVEL_NULL): in, n by primaryColumns numbers; may be null
'       when primaryColumns is 0
'   n: rows of the tables of which means, variances and modes are taken
'   primary (Double, or ByVal KORVEL_NULL): inout, rows by primaryColumns numbers; may be null when
'       primaryColumns is 0
'   rows: rows of the tables that are filled
'   primaryColumns: columns of the primary group; below 1 there is none
'   rowFlags (Integer, or ByVal KORVEL_NULL): in, rows flags; a row whose flag is not 0 is filled.
'       Null: no row is
'   secondStatistics (Double, or ByVal KORVEL_NULL): in, n by secondColumns numbers; may be null
'       when secondColumns is 0
'   second (Double, or ByVal KORVEL_NULL): inout, rows by secondColumns numbers; may be null when
'       secondColumns is 0
'   secondColumns: columns of the second group; below 1 there is none
'   thirdStatistics: in, n by thirdColumns texts; may be null when thirdColumns is 0
'   third: inout, rows by thirdColumns texts, replaced where they are empty; may be null when
'       thirdColumns is 0
'   thirdColumns: columns of the third group; below 1 there is none
'   w: in, n weights for means, variances and modes
'   returns 0
Public Declare PtrSafe Function VB_EstimateRowsWithMissingNNPred Lib "KORVELMathTools.dll" ( _
    ByRef primaryStatistics As Any, ByVal n As Long, ByRef primary As Any, ByVal rows As Long, _
    ByVal primaryColumns As Long, ByRef rowFlags As Any, ByRef secondStatistics As Any, _
    ByRef second As Any, ByVal secondColumns As Long, ByVal thirdStatistics As LongPtr, _
    ByVal third As LongPtr, ByVal thirdColumns As Long, ByRef w As Double) As Long

' Fills missing cells of flagged rows by the value of the nearest row; see the head of this file.
'   primary: inout, primaryColumns columns of n numbers; may be null when primaryColumns is 0
'   n: rows of all groups
'   primaryColumns: columns of the primary group; below 1 there is none
'   rowFlags (Integer, or ByVal KORVEL_NULL): in, n flags; a row whose flag is not 0 is filled.
'       Null: no row is
'   second (Double, or ByVal KORVEL_NULL): inout, n by secondColumns numbers; may be null when
'       secondColumns is 0
'   secondColumns: columns of the second group; below 1 there is none
'   third: inout, n by thirdColumns texts, replaced where they are empty; may be null when
'       thirdColumns is 0
'   thirdColumns: columns of the third group; below 1 there is none
'   w: in, n weights for means, variances and modes
'   returns 0
Public Declare PtrSafe Function VB_EstimateRowsWithMissingNNSPV Lib "KORVELMathTools.dll" ( _
    ByVal primary As LongPtr, ByVal n As Long, ByVal primaryColumns As Long, ByRef rowFlags As Any, _
    ByRef second As Any, ByVal secondColumns As Long, ByVal third As LongPtr, _
    ByVal thirdColumns As Long, ByRef w As Double) As Long

' Fills missing cells of flagged rows by the value of the nearest row; see the head of this file.
'   primary: inout, primaryColumns columns of n numbers; may be null when primaryColumns is 0
'   n: rows of all groups
'   primaryColumns: columns of the primary group; below 1 there is none
'   rowFlags (Integer, or ByVal KORVEL_NULL): in, n flags; a row whose flag is not 0 is filled.
'       Null: no row is
'   second: inout, secondColumns columns of n numbers; may be null when secondColumns is 0
'   secondColumns: columns of the second group; below 1 there is none
'   third: inout, n by thirdColumns texts, replaced where they are empty; may be null when
'       thirdColumns is 0
'   thirdColumns: columns of the third group; below 1 there is none
'   w: in, n weights for means, variances and modes
'   returns 0
Public Declare PtrSafe Function VB_EstimateRowsWithMissingNNSPV2 Lib "KORVELMathTools.dll" ( _
    ByVal primary As LongPtr, ByVal n As Long, ByVal primaryColumns As Long, ByRef rowFlags As Any, _
    ByVal second As LongPtr, ByVal secondColumns As Long, ByVal third As LongPtr, _
    ByVal thirdColumns As Long, ByRef w As Double) As Long

' Fills missing cells of flagged rows by the value of the nearest row; see the head of this file.
'   primary: inout, n by primaryColumns texts, replaced where they are empty; may be null when
'       primaryColumns is 0
'   n: rows of all groups
'   primaryColumns: columns of the primary group; below 1 there is none
'   rowFlags (Integer, or ByVal KORVEL_NULL): in, n flags; a row whose flag is not 0 is filled.
'       Null: no row is
'   second (Double, or ByVal KORVEL_NULL): inout, n by secondColumns numbers; may be null when
'       secondColumns is 0
'   secondColumns: columns of the second group; below 1 there is none
'   third: inout, n by thirdColumns texts, replaced where they are empty; may be null when
'       thirdColumns is 0
'   thirdColumns: columns of the third group; below 1 there is none
'   w: in, n weights for means, variances and modes
'   returns 0
Public Declare PtrSafe Function VB_EstimateRowsWithMissingNNStr Lib "KORVELMathTools.dll" ( _
    ByVal primary As LongPtr, ByVal n As Long, ByVal primaryColumns As Long, ByRef rowFlags As Any, _
    ByRef second As Any, ByVal secondColumns As Long, ByVal third As LongPtr, _
    ByVal thirdColumns As Long, ByRef w As Double) As Long

' Fills missing cells of flagged rows by the value of the nearest row; see the head of this file.
'   primaryStatistics: in, n by primaryColumns texts; may be null when primaryColumns is 0
'   n: rows of the tables of which means, variances and modes are taken
'   primary: inout, rows by primaryColumns texts, replaced where they are empty; may be null when
'       primaryColumns is 0
'   rows: rows of the tables that are filled
'   primaryColumns: columns of the primary group; below 1 there is none
'   rowFlags (Integer, or ByVal KORVEL_NULL): in, rows flags; a row whose flag is not 0 is filled.
'       Null: no row is
'   secondStatistics (Double, or ByVal KORVEL_NULL): in, n by secondColumns numbers; may be null
'       when secondColumns is 0
'   second (Double, or ByVal KORVEL_NULL): inout, rows by secondColumns numbers; may be null when
'       secondColumns is 0
'   secondColumns: columns of the second group; below 1 there is none
'   thirdStatistics: in, n by thirdColumns texts; may be null when thirdColumns is 0
'   third: inout, rows by thirdColumns texts, replaced where they are empty; may be null when
'       thirdColumns is 0
'   thirdColumns: columns of the third group; below 1 there is none
'   w: in, n weights for means, variances and modes
'   returns 0
Public Declare PtrSafe Function VB_EstimateRowsWithMissingNNStrPred Lib "KORVELMathTools.dll" ( _
    ByVal primaryStatistics As LongPtr, ByVal n As Long, ByVal primary As LongPtr, _
    ByVal rows As Long, ByVal primaryColumns As Long, ByRef rowFlags As Any, _
    ByRef secondStatistics As Any, ByRef second As Any, ByVal secondColumns As Long, _
    ByVal thirdStatistics As LongPtr, ByVal third As LongPtr, ByVal thirdColumns As Long, _
    ByRef w As Double) As Long

' ---- missing/observation_labels.h

' Makes a label for each flagged row: the prefix and the row number, and a further number while
' another row has that label.
'   labels: inout, n texts, replaced where they differ
'   n: number of rows
'   flags: inout, n flags, one for each row, -1 for one that gets a label; it is 0 then
'   prefix: in, one text: what a made label starts with
'   returns 0
Public Declare PtrSafe Function VB_ReplaceMissingObsLabels Lib "KORVELMathTools.dll" ( _
    ByVal labels As LongPtr, ByVal n As Long, ByRef flags As Integer, ByVal prefix As LongPtr) As Long

' ---- missing/pairwise_deletion.h

' Keeps the elements of three series where the first two are both above `KORVEL_MISSING_DBL`; a NaN
' is not.
'   x: in, n numbers, the first series
'   y: in, n numbers, the second series
'   z: in, n numbers that go with them
'   n: length of the series
'   xOut: inout, n + 1 numbers: the kept elements of x, from the second place on. The first place,
'       and those behind the kept elements, stay as they are
'   yOut: inout, n + 1 numbers: likewise for y
'   zOut: inout, n + 1 numbers: likewise for z
'   count: out, one integer: how many elements are kept
'   returns 0
Public Declare PtrSafe Function Cpp_V_PairwiseDeletion Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByRef y As Double, ByRef z As Double, ByVal n As Long, ByRef xOut As Double, _
    ByRef yOut As Double, ByRef zOut As Double, ByRef count As Long) As Long

' ---- ordering/apply_order.h

' Takes the rows of a table of numbers in a given order: row i of the result is row order[i] of the
' table.
'   x: in, rows by cols numbers
'   rows: rows of both tables
'   cols: columns of both tables
'   order: in, rows row numbers from 1, truncated to integers; one that is not the number of a row
'       gives -1
'   out: out, rows by cols numbers; may be x
'   returns 0
Public Declare PtrSafe Function VB_SortApply Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef order As Double, _
    ByRef out As Double) As Long

' Takes the rows of a table of integers in a given order: row i of the result is row order[i] of the
' table.
'   x: in, rows by cols integers
'   rows: rows of both tables
'   cols: columns of both tables
'   order: in, rows row numbers from 1, truncated to integers; one that is not the number of a row
'       gives -1
'   out: out, rows by cols integers; may be x
'   returns 0
Public Declare PtrSafe Function VB_SortApplyLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByRef order As Double, _
    ByRef out As Long) As Long

' Takes the rows of a table of texts in a given order: row i of the result is row order[i] of the
' table.
'   x: in, rows by cols texts
'   rows: rows of both tables
'   cols: columns of both tables
'   order: in, rows row numbers from 1, truncated to integers; one that is not the number of a row
'       gives an empty text
'   out: out, rows by cols texts; may be x
'   returns 0
Public Declare PtrSafe Function VB_SortApplyStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef order As Double, _
    ByVal out As LongPtr) As Long

' Puts the rows of a table of numbers into a given order, in place: row i becomes what row order[i]
' was.
'   x: inout, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table
'   order: in, rows row numbers from 1, truncated to integers; one that is not the number of a row
'       gives -1
'   returns 0
Public Declare PtrSafe Function VB_SortApply2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef order As Double) As Long

' Puts the rows of a table of integers into a given order, in place: row i becomes what row order[i]
' was.
'   x: inout, rows by cols integers
'   rows: rows of the table
'   cols: columns of the table
'   order: in, rows row numbers from 1, truncated to integers; one that is not the number of a row
'       gives -1
'   returns 0
Public Declare PtrSafe Function VB_SortApply2Lng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByRef order As Double) As Long

' Puts the rows of a table of texts into a given order, in place: row i becomes what row order[i]
' was.
'   x: inout, rows by cols texts
'   rows: rows of the table
'   cols: columns of the table
'   order: in, rows row numbers from 1, truncated to integers; one that is not the number of a row
'       gives an empty text
'   returns 0
Public Declare PtrSafe Function VB_SortApply2Str Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef order As Double) As Long

' Puts the rows of a table of flags into a given order, in place: row i becomes what row order[i]
' was.
'   x: inout, rows by cols flags
'   rows: rows of the table
'   cols: columns of the table
'   order: in, rows row numbers from 1, truncated to integers; one that is not the number of a row
'       gives 0
'   returns 0
Public Declare PtrSafe Function Cpp_SortApply2Bool Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal rows As Long, ByVal cols As Long, ByRef order As Double) As Long

' Puts the rows of a record of labelled columns of numbers into a given order, in place: row i
' becomes what row order[i] was.
'   x: inout, the record; its columns are changed in place
'   rows: rows of the table
'   cols: columns of the table
'   order: in, rows row numbers from 1, truncated to integers; one that is not the number of a row
'       gives -1
'   returns 0
Public Declare PtrSafe Function Cpp_SortApply2_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef order As Double) As Long

' ---- ordering/deviations.h

' Weighted mean of the absolute deviations from a centre.
'   x: in, n numbers
'   n: number of elements
'   centre: the centre
'   iMissing: in, n flags; an element with a non-zero flag is left out
'   w: in, n weights
'   returns the mean over the elements kept that are not missing; missing when their weights sum to
'       0
Public Declare PtrSafe Function Cpp_V_MeanAbsDev Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal centre As Double, ByRef iMissing As Integer, _
    ByRef w As Double) As Double

' Median of the absolute deviations from a centre; weighted unless the weights are constant.
'   x: in, n numbers
'   n: number of elements
'   centre: the centre
'   iMissing: in, n flags; an element with a non-zero flag is left out
'   w: in, n weights
'   returns the median over the elements kept that are not missing; missing when there are none
Public Declare PtrSafe Function Cpp_V_MedianAbsDev Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal centre As Double, ByRef iMissing As Integer, _
    ByRef w As Double) As Double

' Median of the absolute deviations from a centre, missing elements taking part as the smallest
' numbers.
'   x: in, n numbers
'   n: number of elements
'   centre: inout, one number: the centre; when missing, it becomes the median of x
'   returns the median; missing for n below 1
Public Declare PtrSafe Function Cpp_V_MedianAbsDev2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef centre As Double) As Double

' Moves the elements outside two quantiles onto them.
'   x: inout, n numbers, changed in place
'   n: number of elements
'   qLow: probability of the lower quantile
'   qHigh: probability of the upper quantile
'   returns 0
Public Declare PtrSafe Function Cpp_V_Winsorize2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal qLow As Double, ByVal qHigh As Double) As Long

' ---- ordering/distinct.h

' Number of distinct values; neighbours in ascending order differ by more than
' 2.220446049250313e-16.
'   x: in, n numbers
'   n: number of elements
'   returns the number; 1 for n below 1
Public Declare PtrSafe Function VB_V_NbDistinct Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' Number of distinct integers.
'   x: in, n integers
'   n: number of elements
'   returns the number; 1 for n below 1
Public Declare PtrSafe Function VB_V_NbDistinctLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long) As Long

' Number of distinct texts, compared exactly.
'   x: in, n texts
'   n: number of elements
'   returns the number; 1 for n below 1
Public Declare PtrSafe Function Cpp_V_NbDistinctStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long) As Long

' The distinct values in ascending order: each that exceeds the one before it by more than the
' smaller of 2.220446049250313e-16 and the range of the data.
'   x: in, n numbers
'   n: number of elements
'   out: out, n numbers; the values
'   nOut: out, one integer: their number, 0 for n below 1
'   returns 0
Public Declare PtrSafe Function VB_V_ExtractDistinct Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef out As Double, ByRef nOut As Long) As Long

' ---- ordering/modes.h

' The most frequent code of a vector of codes 0, 1, 2, ...; a number x is code trunc(x + 1) - 1.
'   x: in, n numbers; missing ones and negative codes are not counted
'   n: number of elements
'   returns the code, the smallest of equals; missing when there is none
Public Declare PtrSafe Function VB_V_ModeCatDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double

' The label with the greatest sum of weights, the first in the order of code units of equals.
'   labels: in, n texts
'   n: number of elements
'   iMissing (Integer, or ByVal KORVEL_NULL): in, n flags; an element with a non-zero flag is left
'       out. Null: none is
'   w: in, n weights
'   mode: inout, one text, replaced by the label, empty when there is none
'   returns 0
Public Declare PtrSafe Function VB_V_Mode Lib "KORVELMathTools.dll" ( _
    ByVal labels As LongPtr, ByVal n As Long, ByRef iMissing As Any, ByRef w As Double, _
    ByVal mode As LongPtr) As Long

' The label with the greatest sum of weights, the first in the order of code units of equals.
'   labels: in, n texts
'   n: number of elements
'   w: in, n weights
'   mode: inout, one text, replaced by the label, empty when there is none
'   returns 0
Public Declare PtrSafe Function Cpp_V_ModeW2 Lib "KORVELMathTools.dll" ( _
    ByVal labels As LongPtr, ByVal n As Long, ByRef w As Double, ByVal mode As LongPtr) As Long

' ---- ordering/quantiles.h

' Quantile by linear interpolation between order statistics (type 7 of Hyndman and Fan).
'   x: in, n numbers
'   n: number of elements
'   q: probability, not tested: a position outside the data reads -1
'   returns the quantile; missing for n below 1
Public Declare PtrSafe Function VB_V_Quantile Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal q As Double) As Double

' Weighted quantile: the first value whose cumulative weight exceeds q times the total, or the mean
' of it and the one before where a cumulative weight hits that exactly.
'   x: in, n numbers
'   n: number of elements
'   w: in, n weights
'   q: probability, not tested: a position outside the data reads -1
'   returns the quantile; missing for n below 1, and when no element that is not missing has a
'       positive weight
Public Declare PtrSafe Function VB_V_QuantileW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByVal q As Double) As Double

' Weighted quantile of the elements of positive weight that are not missing.
'   x: in, n numbers
'   n: number of elements
'   w: in, n weights
'   q: probability, not tested: a position outside the data reads -1
'   returns the quantile; missing when there are none
Public Declare PtrSafe Function Cpp_V_QuantileW2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByVal q As Double) As Double

' Plain quantile of the elements that are not missing and not flagged.
'   x: in, n numbers
'   n: number of elements
'   iMissing: in, n flags; an element with a non-zero flag is left out
'   q: probability, not tested: a position outside the data reads -1
'   returns the quantile; missing when there are none
Public Declare PtrSafe Function VB_V_QuantileM Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Integer, ByVal q As Double) As Double

' Weighted quantile of the elements that are not missing and not flagged.
'   x: in, n numbers
'   n: number of elements
'   iMissing: in, n flags; an element with a non-zero flag is left out
'   w: in, n weights
'   q: probability, not tested: a position outside the data reads -1
'   returns the quantile; missing when there are none
Public Declare PtrSafe Function VB_V_QuantileMW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Integer, ByRef w As Double, _
    ByVal q As Double) As Double

' Sorts a vector, ascending, and takes its quantiles at 0.05, 0.1, 0.2, 0.25, 0.3, 0.4, 0.5, 0.6,
' 0.7, 0.75, 0.8, 0.9 and 0.95, at position (n - 1) p + 0.5 up to the median and (n - 1) p + 1 above
' it, from 1.
'   x: inout, n numbers, sorted in place
'   n: number of elements
'   out: out, 13 numbers; all missing for n below 1
'   returns 0
Public Declare PtrSafe Function Cpp_V_Quantiles13 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef out As Double) As Long

' ---- ordering/ranks.h

' Dense ranks: 1 for the smallest element, one more at each change of value.
'   x: in, n numbers
'   n: number of elements
'   out: out, n ranks, in the order of x
'   returns 0
Public Declare PtrSafe Function VB_V_GetRanksDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef out As Double) As Long

' Dense ranks as integers: 1 for the smallest element, one more at each change of value.
'   x: in, n numbers
'   n: number of elements
'   out: out, n ranks, in the order of x
'   returns 0
Public Declare PtrSafe Function VB_V_GetRanksLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef out As Long) As Long

' Weighted mid-ranks: a weight acts as a count of repetitions; tied elements, closer than 1e-15,
' share the mean of their ranks; a missing element has a missing rank.
'   x: inout, n numbers, sorted ascending
'   n: number of elements
'   bRestore: -1: x, w and ranks return to the original order; otherwise they stay sorted
'   w: inout, n weights, sorted along
'   ranks: out, n ranks
'   nTies: out, one integer: the number of groups: tied ones, and single elements that weigh more
'       than 1
'   tieSizes: out, n numbers; the weight of each group
'   returns 0
Public Declare PtrSafe Function VB_V_GetRanksTiesDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bRestore As Integer, ByRef w As Double, _
    ByRef ranks As Double, ByRef nTies As Long, ByRef tieSizes As Double) As Long

' Mid-ranks: tied elements, closer than 1e-15, share the mean of their ranks; a missing element has
' a missing rank.
'   x: inout, n numbers, sorted ascending
'   n: number of elements
'   bRestore: -1: x and ranks return to the original order; otherwise they stay sorted
'   ranks: out, n ranks
'   nTies: out, one integer: the number of groups: tied ones, and single elements that weigh more
'       than 1
'   tieSizes: out, n numbers; the weight of each group
'   returns 0
Public Declare PtrSafe Function VB_V_GetRanksTiesDbl2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bRestore As Integer, ByRef ranks As Double, _
    ByRef nTies As Long, ByRef tieSizes As Double) As Long

' Ranks 1, 2, ...
'   x: in, n numbers
'   n: number of elements
'   w: in, n weights
'   ranks: out, n ranks, in the order of x
'   nTies: out, one integer: the number of groups: tied ones, and single elements that weigh more
'       than 1
'   tieSizes: out, n numbers; the weight of each group
'   returns 0
Public Declare PtrSafe Function VB_V_GetRanksTiesIntDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByRef ranks As Double, _
    ByRef nTies As Long, ByRef tieSizes As Double) As Long

' Position of a linear index in the strict upper triangle of a square table, read row by row.
'   k: linear index, from 1
'   n: order of the table
'   row: out, one integer: row, from 1
'   col: out, one integer: column, from 1
'   returns 0
Public Declare PtrSafe Function VB_V_GetPositionInMatNNm1o2 Lib "KORVELMathTools.dll" ( _
    ByVal k As Long, ByVal n As Long, ByRef row As Long, ByRef col As Long) As Long

' Position of a linear index in a square table, read row by row.
'   k: linear index, from 1
'   n: order of the table
'   row: out, one integer: row, from 1
'   col: out, one integer: column, from 1
'   returns 0
Public Declare PtrSafe Function VB_V_GetPositionInMatNN Lib "KORVELMathTools.dll" ( _
    ByVal k As Long, ByVal n As Long, ByRef row As Long, ByRef col As Long) As Long

' ---- ordering/reverse.h

' A vector of numbers back to front.
'   x: in, n numbers
'   n: number of elements
'   out: out, n numbers; may be x
'   returns 0
Public Declare PtrSafe Function VB_V_ReverseDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef out As Double) As Long

' A vector of flags back to front.
'   x: in, n flags
'   n: number of elements
'   out: out, n flags; may be x
'   returns 0
Public Declare PtrSafe Function VB_V_ReverseBool Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal n As Long, ByRef out As Integer) As Long

' A vector of numbers back to front, in place.
'   x: inout, n numbers
'   n: number of elements
'   returns 0
Public Declare PtrSafe Function Cpp_V_Reverse2Dbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' A vector of integers back to front, in place.
'   x: inout, n integers
'   n: number of elements
'   returns 0
Public Declare PtrSafe Function Cpp_V_Reverse2Lng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long) As Long

' A vector of flags back to front, in place.
'   x: inout, n flags
'   n: number of elements
'   returns 0
Public Declare PtrSafe Function Cpp_V_Reverse2Bool Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal n As Long) As Long

' ---- ordering/sort_by_column.h

' Orders rows from..to of a table of numbers by one of its columns, all columns moving.
'   x: inout, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table
'   keyCol: the column that orders, from 1
'   from: first row to sort, from 1
'   toValue: last row to sort, included
'   bDesc: not 0: descending
'   returns 0
Public Declare PtrSafe Function Cpp_SortQMatrixCol Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal keyCol As Long, _
    ByVal from As Long, ByVal toValue As Long, ByVal bDesc As Integer) As Long

' Orders rows from..to of a table of integers by one of its columns, all columns moving.
'   x: inout, rows by cols integers
'   rows: rows of the table
'   cols: columns of the table
'   keyCol: the column that orders, from 1
'   from: first row to sort, from 1
'   toValue: last row to sort, included
'   bDesc: not 0: descending
'   returns 0
Public Declare PtrSafe Function Cpp_SortQMatrixColLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByVal keyCol As Long, _
    ByVal from As Long, ByVal toValue As Long, ByVal bDesc As Integer) As Long

' Orders rows from..to of a table of texts by one of its columns, by 16-bit code units, all columns
' moving.
'   x: inout, rows by cols texts
'   rows: rows of the table
'   cols: columns of the table
'   keyCol: the column that orders, from 1
'   from: first row to sort, from 1
'   toValue: last row to sort, included
'   bDesc: not 0: descending
'   returns 0
Public Declare PtrSafe Function Cpp_SortQMatrixColStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal keyCol As Long, _
    ByVal from As Long, ByVal toValue As Long, ByVal bDesc As Integer) As Long

' Orders all rows of a table of numbers, ascending, by column 1, then column 2, and so on.
'   x: inout, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table
'   returns 0
Public Declare PtrSafe Function VB_SortMatrixSeqQDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Long

' Orders all rows of a table of integers, ascending, by column 1, then column 2, and so on.
'   x: inout, rows by cols integers
'   rows: rows of the table
'   cols: columns of the table
'   returns 0
Public Declare PtrSafe Function VB_SortMatrixSeqQLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long) As Long

' Sorts all rows of a table of numbers, ascending, by column p1, then again by the next, up to p2:
' column p2 orders first, then the one before it.
'   x: inout, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table
'   p1: first column, from 1
'   p2: last column, included
'   returns 0
Public Declare PtrSafe Function VB_SortMatrixSeqQP1toP2Dbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal p1 As Long, ByVal p2 As Long) As Long

' Sorts all rows of a table of integers, ascending, by column p1, then again by the next, up to p2:
' column p2 orders first, then the one before it.
'   x: inout, rows by cols integers
'   rows: rows of the table
'   cols: columns of the table
'   p1: first column, from 1
'   p2: last column, included
'   returns 0
Public Declare PtrSafe Function VB_SortMatrixSeqQP1toP2Lng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByVal p1 As Long, ByVal p2 As Long) As Long

' ---- ordering/sort_table.h

' Orders the rows of a table of numbers by a key, on copies that then replace the caller's arrays.
'   x: inout, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 counts as 1
'   from: first row to sort, from 1
'   toValue: last row to sort, included
'   key: inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey is
'       set
'   aux (Double, or ByVal KORVEL_NULL): inout, rows by auxCols numbers, a second table that moves
'       along; may be null when auxCols is below 0
'   auxCols: columns of aux; 0 counts as 1, so there must be one; below 0 there is none
'   bDesc: not 0: descending
'   bSortKey: not 0: the key is rewritten in sorted order
'   returns 0
Public Declare PtrSafe Function VB_SortQDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByRef aux As Any, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a table of numbers by a key, in the caller's arrays.
'   x: inout, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 counts as 1
'   from: first row to sort, from 1
'   toValue: last row to sort, included
'   key: inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey is
'       set
'   aux (Double, or ByVal KORVEL_NULL): inout, rows by auxCols numbers, moved along unless it is the
'       key or the table itself; may be null when auxCols is below 0
'   auxCols: columns of aux; 0 counts as 1, so there must be one; below 0 there is none
'   bDesc: not 0: descending
'   bSortKey: not 0: the key is rewritten in sorted order
'   returns 0
Public Declare PtrSafe Function VB_SortQDbl2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByRef aux As Any, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the columns of a table of numbers by a key with one entry a column: the column of rank k,
' from 0, goes to column from + k.
'   x: inout, rows by cols numbers
'   rows: rows of the table; 0 counts as 1
'   cols: columns of the table
'   from: first column to sort, from 1
'   toValue: last column to sort, included
'   key: inout, cols keys, read at positions from..to, rewritten in sorted order when bSortKey is
'       set
'   aux: inout, auxRows by cols numbers, a second table whose columns move along
'   auxRows: rows of aux; 0 counts as 1
'   bDesc: not 0: descending
'   bSortKey: not 0: the key is rewritten in sorted order
'   returns 0
Public Declare PtrSafe Function VB_SortQByColDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByRef aux As Double, ByVal auxRows As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a table of integers by a key of integers.
'   x: inout, rows by cols integers
'   rows: rows of the table
'   cols: columns of the table; 0 counts as 1
'   from: first row to sort, from 1
'   toValue: last row to sort, included
'   key: inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey is
'       set
'   aux (Long, or ByVal KORVEL_NULL): inout, rows by auxCols integers, a second table that moves
'       along; may be null when auxCols is below 0
'   auxCols: columns of aux; 0 counts as 1, so there must be one; below 0 there is none
'   bDesc: not 0: descending
'   bSortKey: not 0: the key is rewritten in sorted order
'   returns 0
Public Declare PtrSafe Function VB_SortQLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Long, ByRef aux As Any, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a table of flags by a key of numbers.
'   x: inout, rows by cols flags
'   rows: rows of the table
'   cols: columns of the table; 0 counts as 1
'   from: first row to sort, from 1
'   toValue: last row to sort, included
'   key: inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey is
'       set
'   aux (Integer, or ByVal KORVEL_NULL): inout, rows by auxCols flags, a second table that moves
'       along; may be null when auxCols is below 0
'   auxCols: columns of aux; 0 counts as 1, so there must be one; below 0 there is none
'   bDesc: not 0: descending
'   bSortKey: not 0: the key is rewritten in sorted order
'   returns 0
Public Declare PtrSafe Function VB_SortQBool Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByRef aux As Any, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a table of texts by a key of numbers.
'   x: inout, rows by cols texts
'   rows: rows of the table
'   cols: columns of the table; 0 counts as 1
'   from: first row to sort, from 1
'   toValue: last row to sort, included
'   key: inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey is
'       set
'   aux: inout, rows by auxCols texts, a second table that moves along; may be null when auxCols is
'       below 0
'   auxCols: columns of aux; 0 counts as 1, so there must be one; below 0 there is none
'   bDesc: not 0: descending
'   bSortKey: not 0: the key is rewritten in sorted order
'   returns 0
Public Declare PtrSafe Function VB_SortQStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByVal aux As LongPtr, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a record of labelled columns of numbers by a key.
'   x: inout, the record; its columns are changed in place
'   rows: rows of the table
'   cols: columns of the table; 0 counts as 1
'   from: first row to sort, from 1
'   toValue: last row to sort, included
'   key: inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey is
'       set
'   aux (Double, or ByVal KORVEL_NULL): inout, rows by auxCols numbers, a second table that moves
'       along; may be null when auxCols is below 0
'   auxCols: columns of aux; 0 counts as 1, so there must be one; below 0 there is none
'   bDesc: not 0: descending
'   bSortKey: not 0: the key is rewritten in sorted order
'   returns 0
Public Declare PtrSafe Function Cpp_SortQDbl_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByRef aux As Any, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a table of integers, a single array that comes out of a record, by a key of
' integers.
'   x: inout, host array of Long, rows by cols
'   rows: rows of the table
'   cols: columns of the table; 0 counts as 1
'   from: first row to sort, from 1
'   toValue: last row to sort, included
'   key: inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey is
'       set
'   aux (Long, or ByVal KORVEL_NULL): inout, rows by auxCols integers, a second table that moves
'       along; may be null when auxCols is below 0
'   auxCols: columns of aux; 0 counts as 1, so there must be one; below 0 there is none
'   bDesc: not 0: descending
'   bSortKey: not 0: the key is rewritten in sorted order
'   returns 0
Public Declare PtrSafe Function Cpp_SortQLng_ST Lib "KORVELMathTools.dll" ( _
    ByRef x() As Long, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Long, ByRef aux As Any, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Orders the rows of a record of labelled columns of texts by a key.
'   x: inout, the record; the texts of its columns are put back where they changed
'   rows: rows of the table
'   cols: columns of the table; 0 counts as 1
'   from: first row to sort, from 1
'   toValue: last row to sort, included
'   key: inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey is
'       set
'   aux: inout, rows by auxCols texts, a second table that moves along; may be null when auxCols is
'       below 0
'   auxCols: columns of aux; 0 counts as 1, so there must be one; below 0 there is none
'   bDesc: not 0: descending
'   bSortKey: not 0: the key is rewritten in sorted order
'   returns 0
Public Declare PtrSafe Function Cpp_SortQStr_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef key As Double, ByVal aux As LongPtr, ByVal auxCols As Long, _
    ByVal bDesc As Integer, ByVal bSortKey As Integer) As Long

' Puts the rows of a table of numbers with key 0 first, in their order, then those with key 1.
'   x: inout, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 counts as 1
'   key: inout, rows keys, rewritten in sorted order
'   returns 0
Public Declare PtrSafe Function VB_SortDataBy01 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef key As Double) As Long

' Puts the rows of a table of flags with key 0 first, in their order, then those with key 1.
'   x: inout, rows by cols flags
'   rows: rows of the table
'   cols: columns of the table; 0 counts as 1
'   key: inout, rows keys, rewritten in sorted order
'   returns 0
Public Declare PtrSafe Function VB_SortDataBy01Bool Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal rows As Long, ByVal cols As Long, ByRef key As Double) As Long

' Puts the rows of a table of texts with key 0 first, in their order, then those with key 1.
'   x: inout, rows by cols texts
'   rows: rows of the table
'   cols: columns of the table; 0 counts as 1
'   key: inout, rows keys, rewritten in sorted order
'   returns 0
Public Declare PtrSafe Function VB_SortDataBy01Str Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef key As Double) As Long

' ---- ordering/sort_vector.h

' Sorts positions `from..to` of a vector of numbers.
'   sa: inout, host array of Double, one column, sorted in place
'   ignored: not used; the array knows its length
'   from: first position, from 1
'   toValue: last position, included
'   bDesc: not 0: descending
'   returns 0
Public Declare PtrSafe Function VB_SortQVectorDbl Lib "KORVELMathTools.dll" ( _
    ByRef sa() As Double, ByVal ignored As Long, ByVal from As Long, ByVal toValue As Long, _
    ByVal bDesc As Integer) As Long

' Sorts positions `from..to` of a vector of integers.
'   sa: inout, host array of Long, one column, sorted in place
'   ignored: not used; the array knows its length
'   from: first position, from 1
'   toValue: last position, included
'   bDesc: not 0: descending
'   returns 0
Public Declare PtrSafe Function VB_SortQVectorLng Lib "KORVELMathTools.dll" ( _
    ByRef sa() As Long, ByVal ignored As Long, ByVal from As Long, ByVal toValue As Long, _
    ByVal bDesc As Integer) As Long

' Sorts positions `from..to` of a vector of texts by 16-bit code units, a prefix before its
' extensions.
'   x: inout, n texts
'   n: number of texts
'   from: first position, from 1
'   toValue: last position, included
'   bDesc: not 0: descending
'   returns 0
Public Declare PtrSafe Function VB_SortQVectorStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal from As Long, ByVal toValue As Long, _
    ByVal bDesc As Integer) As Long

' Sorts positions `from..to` of a vector of texts, and tells where each text came from.
'   x: inout, n texts
'   n: number of texts
'   from: first position, from 1
'   toValue: last position, included
'   bDesc: not 0: descending
'   index: out, n numbers: the original position, from 1, of the text that now stands there
'   returns 0
Public Declare PtrSafe Function Cpp_SortQVector2Str Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal from As Long, ByVal toValue As Long, _
    ByVal bDesc As Integer, ByRef index As Long) As Long

' Tells whether a vector is in ascending order.
'   x: in, n numbers
'   n: number of elements; below 2 the vector is sorted
'   bStrict: not 0: every element must be smaller than the next one; 0: not greater
'   returns -1 when sorted, otherwise 0
Public Declare PtrSafe Function VB_V_IsSorted Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bStrict As Integer) As Integer

' ---- ordering/sorted_insertion.h

' Puts a value into an ascending vector and lets the smallest fall out, unless the value is not
' above it.
'   x: inout, n numbers
'   n: number of elements
'   val: the value
'   bSort: -1: the vector is sorted first; otherwise it is taken to be sorted
'   returns 0
Public Declare PtrSafe Function Cpp_V_InsertValueLow Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double, ByVal bSort As Integer) As Long

' Puts a value into an ascending vector and lets the largest fall out, unless the value is not below
' it.
'   x: inout, n numbers
'   n: number of elements
'   val: the value
'   bSort: -1: the vector is sorted first; otherwise it is taken to be sorted
'   returns 0
Public Declare PtrSafe Function Cpp_V_InsertValueUp Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double, ByVal bSort As Integer) As Long

' ---- ordering/survey_boxes.h

' Weights of the highest and lowest distinct scores, cumulative over one, two and three levels.
'   x: in, n scores
'   n: number of scores; below 1 all boxes are 0
'   w: in, n weights
'   top1: out, one number: weight of the highest level
'   bottom1: out, one number: weight of the lowest level
'   top2: out, one number: weight of the highest two levels
'   bottom2: out, one number: weight of the lowest two levels
'   top3: out, one number: weight of the highest three levels
'   bottom3: out, one number: weight of the lowest three levels
'   returns 0
Public Declare PtrSafe Function Cpp_V_TopBottom3Box Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByRef top1 As Double, _
    ByRef bottom1 As Double, ByRef top2 As Double, ByRef bottom2 As Double, ByRef top3 As Double, _
    ByRef bottom3 As Double) As Long

' The boxes of one group: only elements whose group value is within 1e-12 of groupValue add their
' weight.
'   x: in, n scores
'   n: number of scores; below 1 all boxes are 0
'   w: inout, n weights, moved into the order of the scores
'   group: in, n group values
'   groupValue: the group to count
'   top1: out, one number: weight of the highest level
'   bottom1: out, one number: weight of the lowest level
'   top2: out, one number: weight of the highest two levels
'   bottom2: out, one number: weight of the lowest two levels
'   top3: out, one number: weight of the highest three levels
'   bottom3: out, one number: weight of the lowest three levels
'   returns 0
Public Declare PtrSafe Function Cpp_V_TopBottom3BoxConditional Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByRef group As Double, _
    ByVal groupValue As Double, ByRef top1 As Double, ByRef bottom1 As Double, ByRef top2 As Double, _
    ByRef bottom2 As Double, ByRef top3 As Double, ByRef bottom3 As Double) As Long

' ---- ordering/trim.h

' Strips spaces (U+0020) from the ends of texts.
'   labels: in, n texts
'   n: number of texts
'   bLeft: -1: at the left end
'   bRight: -1: at the right end
'   out: inout, n texts, replaced where they differ; may be labels
'   returns 0
Public Declare PtrSafe Function Cpp_V_Trim Lib "KORVELMathTools.dll" ( _
    ByVal labels As LongPtr, ByVal n As Long, ByVal bLeft As Integer, ByVal bRight As Integer, _
    ByVal out As LongPtr) As Long

' Strips spaces (U+0020) from the ends of texts, in place.
'   labels: inout, n texts
'   n: number of texts
'   bLeft: -1: at the left end
'   bRight: -1: at the right end
'   returns 0
Public Declare PtrSafe Function Cpp_V_Trim2 Lib "KORVELMathTools.dll" ( _
    ByVal labels As LongPtr, ByVal n As Long, ByVal bLeft As Integer, ByVal bRight As Integer) As Long

' ---- platform/version.h

' The version of the library that is loaded.
'   returns 10000 times the major number, plus 100 times the minor one, plus the patch: 10203 for
'       1.2.3
Public Declare PtrSafe Function KORVEL_Version Lib "KORVELMathTools.dll" () As Long

' ---- qualitative/binary_tables.h

' 0 for a number closer to 0 than the machine epsilon, 1 for any other.
'   x: in, n by p numbers
'   n: number of rows
'   p: number of columns
'   result: out, n by p numbers; may be x
'   returns 0
Public Declare PtrSafe Function VB_M_Binarize Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef result As Double) As Long

' 0 for a number closer to 0 than the machine epsilon, 1 for any other, in place.
'   x: inout, n by p numbers
'   n: number of rows
'   p: number of columns
'   returns 0
Public Declare PtrSafe Function VB_M_Binarize2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long) As Long

' The same of a chunked table.
'   x: inout, p columns of n numbers
'   p: number of columns
'   n: number of rows
'   returns 0
Public Declare PtrSafe Function VB_M_Binarize2SPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal p As Long, ByVal n As Long) As Long

' Whether a table looks like a disjunctive one.
'   x: in, n by p numbers
'   n: number of rows
'   p: number of columns
'   rowFlags (Integer, or ByVal KORVEL_NULL): in, n flags: -1 moves the reference row, any but 0
'       leaves a later row out. Null: no row is flagged
'   rowSum: out, one integer: the sum of the reference row, truncated
'   returns -1 for a disjunctive table, and for one without columns; otherwise 0
Public Declare PtrSafe Function VB_M_IsDisjTable Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef rowFlags As Any, ByRef rowSum As Long) As Integer

' Whether a vector has at most two different values.
'   x: in, n numbers
'   n: number of elements
'   skipMissing: -1: missing numbers are passed over, and at the start a NaN too; otherwise they
'       make the result false
'   returns -1 when there are at least two elements from the first that is kept on, and they have at
'       most two values; -1 for n below 1 unless missing numbers are passed over; otherwise 0
Public Declare PtrSafe Function Cpp_V_IsBinaryDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal skipMissing As Integer) As Integer

' Whether each element of a vector is one of two values.
'   x: in, n numbers
'   n: number of elements
'   a: a value
'   b: another value
'   skipMissing: -1: missing numbers are passed over, and at the start a NaN too
'   returns -1 when there are at least two elements from the first that is kept on, and each is one
'       of the values; -1 for n below 1 unless missing numbers are passed over; otherwise 0
Public Declare PtrSafe Function Cpp_V_IsBinaryDblXY Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal a As Double, ByVal b As Double, _
    ByVal skipMissing As Integer) As Integer

' Whether each column of a labelled table has at most two different values, as `Cpp_V_IsBinaryDbl`
' tells it of its first `Count` rows.
'   x: in, labelled table of numbers
'   skipMissing: -1: missing numbers are passed over, and at the start a NaN too; otherwise they
'       make the result false
'   returns -1 when all have, otherwise 0
Public Declare PtrSafe Function Cpp_M_IsBinaryDbl_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal skipMissing As Integer) As Integer

' Makes a vector of two values one of 0 and 1, the smaller value becoming 0.
'   x: inout, n numbers
'   n: number of elements
'   returns 0
Public Declare PtrSafe Function Cpp_V_ConvertBinaryTo01Dbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' Each column, followed by 1 less the column.
'   x: in, n by p numbers
'   n: number of rows
'   p: number of columns
'   result: out, n by 2 * p numbers
'   returns 0
Public Declare PtrSafe Function Cpp_M_ConvertBinarytoDisjTable Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal p As Long, ByRef result As Double) As Long

' ---- qualitative/category_codes.h

' The code of each text: `firstCode` for the first category of its variable, and one more for each
' next one.
'   data: in, n by p texts
'   n: number of rows
'   p: number of variables
'   categoryCounts: in, p integers: the number of categories of each variable
'   categories: in, p by max(categoryCounts) texts: their names, a row for each variable
'   rowFlags: in, n flags: not 0 leaves a row out
'   firstCode: the code of a first category
'   result: out, n by p numbers: the codes
'   returns 0
Public Declare PtrSafe Function VB_M_ReplaceStrByCodes Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByRef categoryCounts As Long, _
    ByVal categories As LongPtr, ByRef rowFlags As Integer, ByVal firstCode As Long, _
    ByRef result As Double) As Long

' The same from a labelled table into another one.
'   data: in, labelled table of texts, n by p
'   n: number of rows
'   p: number of variables
'   categoryCounts: in, p integers: the number of categories of each variable
'   categories: in, p by max(categoryCounts) texts: their names, a row for each variable
'   rowFlags: in, n flags: not 0 leaves a row out
'   firstCode: the code of a first category
'   result: inout, labelled table of numbers whose columns receive n by p codes
'   returns 0
Public Declare PtrSafe Function Cpp_M_ReplaceStrByCodes_ST Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByRef categoryCounts As Long, _
    ByVal categories As LongPtr, ByRef rowFlags As Integer, ByVal firstCode As Long, _
    ByVal result As LongPtr) As Long

' The same into a chunked table.
'   data: in, n by p texts
'   n: number of rows
'   p: number of variables
'   categoryCounts: in, p integers: the number of categories of each variable
'   categories: in, p by max(categoryCounts) texts: their names, a row for each variable
'   rowFlags: in, n flags: not 0 leaves a row out
'   firstCode: the code of a first category
'   result: inout, p columns that each receive n codes
'   returns 0
Public Declare PtrSafe Function Cpp_M_ReplaceStrByCodesSPV Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByRef categoryCounts As Long, _
    ByVal categories As LongPtr, ByRef rowFlags As Integer, ByVal firstCode As Long, _
    ByVal result As LongPtr) As Long

' The code of each text, from 1 on.
'   data: in, n by p texts
'   n: number of rows
'   p: number of variables
'   categoryCounts: in, p integers: the number of categories of each variable
'   categories: in, p by max(categoryCounts) texts: their names, a row for each variable
'   result: inout, n by p numbers: the codes
'   returns 0
Public Declare PtrSafe Function Cpp_M_ReplaceCatByCodes Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByRef categoryCounts As Long, _
    ByVal categories As LongPtr, ByRef result As Double) As Long

' The same from a labelled table into another one.
'   data: in, labelled table of texts, n by p
'   n: number of rows
'   p: number of variables
'   categoryCounts: in, p integers: the number of categories of each variable
'   categories: in, p by max(categoryCounts) texts: their names, a row for each variable
'   result: inout, labelled table of numbers whose columns receive n by p codes
'   returns 0
Public Declare PtrSafe Function Cpp_M_ReplaceCatByCodes_ST Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByRef categoryCounts As Long, _
    ByVal categories As LongPtr, ByVal result As LongPtr) As Long

' Codes from 0 on in the order in which texts first appear in the whole table, column after column.
'   data: in, n by p texts
'   n: number of rows
'   p: number of columns
'   rowFlags (Integer, or ByVal KORVEL_NULL): in, n flags: not 0 gives a row missing numbers, and
'       its texts no code. Null: no row is flagged
'   result: out, n by p numbers: the codes
'   returns 0
Public Declare PtrSafe Function VB_M_ReplaceStrByCodesBinary Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByRef rowFlags As Any, _
    ByRef result As Double) As Long

' Replaces texts by others.
'   data: in, labelled table of texts, n by p
'   n: number of rows
'   p: number of columns
'   codes: in, labelled table of two columns: the texts to look for, and what replaces them; of
'       equal ones the first counts
'   codeCount: number of texts to look for; below 1 the result is left alone
'   result: inout, labelled table of texts whose columns receive n by p texts; one that is not
'       looked for stays
'   returns 0
Public Declare PtrSafe Function Cpp_M_RecodeDataWithCodes_ST Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByVal codes As LongPtr, _
    ByVal codeCount As Long, ByVal result As LongPtr) As Long

' 1 for each element that is the given text, 0 for all others.
'   column: in, n texts
'   n: number of elements
'   value: in, one text; it may be empty
'   result: out, n numbers
'   returns 0
Public Declare PtrSafe Function Cpp_V_RecodeToBinary Lib "KORVELMathTools.dll" ( _
    ByVal column As LongPtr, ByVal n As Long, ByVal value As LongPtr, ByRef result As Double) As Long

' ---- qualitative/category_counts.h

' The number of different texts in each column, the empty one left out.
'   data: in, n by p texts
'   n: number of rows
'   p: number of columns
'   categoryCounts: out, p integers: the numbers
'   returns the largest number; 0 when there is no column
Public Declare PtrSafe Function Cpp_GetMaxCat Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByRef categoryCounts As Long) As Long

' Whether a name is used twice: in a slot of one variable, and in a later slot of the same or of any
' other variable.
'   categories: in, p by width texts: a row of names for each variable
'   p: number of variables
'   width: columns of the table; slots beyond it are empty
'   categoryCounts: in, p integers: the number of slots of each variable
'   returns 1 when a name is used twice, otherwise 0
Public Declare PtrSafe Function Cpp_CheckUniqueCatByVar Lib "KORVELMathTools.dll" ( _
    ByVal categories As LongPtr, ByVal p As Long, ByVal width As Long, ByRef categoryCounts As Long) As Long

' ---- qualitative/category_info.h

' The categories of each variable, in tables as wide as there are rows.
'   data: in, n by p texts
'   n: number of rows
'   p: number of variables
'   modes: out, p texts: the mode of each variable
'   modeFrequencies: out, p numbers: its frequency
'   categoryCounts: out, p integers: the number of categories
'   categories: out, p by n texts: the names
'   frequencies: out, p by n numbers: the frequencies
'   weights: in, n weights
'   total: out, one integer: the sum of the numbers of categories
'   sort: -1: the categories are sorted
'   returns 0
Public Declare PtrSafe Function VB_M_InfoQuali Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByVal modes As LongPtr, _
    ByRef modeFrequencies As Double, ByRef categoryCounts As Long, ByVal categories As LongPtr, _
    ByRef frequencies As Double, ByRef weights As Double, ByRef total As Long, ByVal sort As Integer) As Long

' The same function under the name that sibling modules know.
'   data: in, n by p texts
'   n: number of rows
'   p: number of variables
'   modes: out, p texts: the mode of each variable
'   modeFrequencies: out, p numbers: its frequency
'   categoryCounts: out, p integers: the number of categories
'   categories: out, p by n texts: the names
'   frequencies: out, p by n numbers: the frequencies
'   weights: in, n weights
'   total: out, one integer: the sum of the numbers of categories
'   sort: -1: the categories are sorted
'   returns 0
Public Declare PtrSafe Function Cpp_M_InfoQualiNoMiss Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByVal modes As LongPtr, _
    ByRef modeFrequencies As Double, ByRef categoryCounts As Long, ByVal categories As LongPtr, _
    ByRef frequencies As Double, ByRef weights As Double, ByRef total As Long, ByVal sort As Integer) As Long

' The categories of each variable, in tables of a width of the caller's; more categories are not
' kept.
'   data: in, n by p texts
'   n: number of rows
'   p: number of variables
'   width: columns of the tables
'   categoryCounts: out, p integers: the number of categories
'   modes: out, p texts: the mode of each variable
'   modeFrequencies: out, p numbers: its frequency
'   categories: out, p by width texts: the names
'   frequencies: out, p by width numbers: the frequencies
'   weights: in, n weights
'   total: out, one integer: the sum of the numbers of categories
'   sort: -1: the categories are sorted
'   returns 0
Public Declare PtrSafe Function VB_M_InfoQuali2 Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByVal width As Long, _
    ByRef categoryCounts As Long, ByVal modes As LongPtr, ByRef modeFrequencies As Double, _
    ByVal categories As LongPtr, ByRef frequencies As Double, ByRef weights As Double, _
    ByRef total As Long, ByVal sort As Integer) As Long

' The categories of variables that all have the same number of them.
'   data: in, n by p texts
'   n: number of rows
'   p: number of variables
'   width: columns of the tables
'   count: number of categories of every variable
'   modes: out, p texts: the mode of each variable
'   modeFrequencies: out, p numbers: its number of rows
'   categories: out, p by width texts: the names
'   frequencies: out, p by width numbers: the numbers of rows
'   weightedFrequencies: out, p by width numbers: the sums of the weights
'   weights: in, n weights
'   total: out, one integer: p times count
'   sort: -1: the categories are sorted
'   returns 0
Public Declare PtrSafe Function Cpp_M_InfoQuali3 Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByVal width As Long, _
    ByVal count As Long, ByVal modes As LongPtr, ByRef modeFrequencies As Double, _
    ByVal categories As LongPtr, ByRef frequencies As Double, ByRef weightedFrequencies As Double, _
    ByRef weights As Double, ByRef total As Long, ByVal sort As Integer) As Long

' ---- qualitative/category_records.h

' The categories of each variable of a labelled table, in order of first appearance, with their
' numbers of rows and their weights.
'   data: in, labelled table of texts. All columns are read down to the longest one: `nbrowsmax`
'       rows of `nbcols`
'   weights (Double, or ByVal KORVEL_NULL): in, data.nbrowsmax weights, a weight for each row; may
'       be null with `noWeights`
'   info: inout, category statistics: the record
'   returns 0
Public Declare PtrSafe Function Cpp_M_InfoQuali3_ST Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByRef weights As Any, ByVal info As LongPtr) As Long

' ---- qualitative/category_validation.h

' Counts the rows of each category by their weights.
'   data: in, n by p texts
'   n: number of rows
'   p: number of variables
'   width: columns of the tables of categories
'   categoryCounts: in, p integers: the number of known categories of each variable
'   categories: in, p by width texts: their names
'   counts: out, p by width numbers: the sum of the weights of each
'   newCategoryFound: out, one flag: -1 when a text is no known category, otherwise 0
'   weights: in, n weights
'   returns 0
Public Declare PtrSafe Function VB_M_InfoQualiValid Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByVal width As Long, _
    ByRef categoryCounts As Long, ByVal categories As LongPtr, ByRef counts As Double, _
    ByRef newCategoryFound As Integer, ByRef weights As Double) As Long

' Counts the rows of each category on records.
'   data: in, labelled table of texts, n by p
'   n: number of rows
'   p: number of variables
'   reference: in, category statistics that have the known categories: `NbCat` and `CatNames`
'   result: inout, category statistics: `CatFreq` receives the number of rows of each, `CatFreqW`
'       the sum of their weights; all slots of the p variables are cleared first
'   newCategoryFound: out, one flag: -1 when a text that is no known category ended the function,
'       otherwise 0
'   weights: in, n weights
'   returns 0
Public Declare PtrSafe Function Cpp_M_InfoQualiValid_ST Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByVal reference As LongPtr, _
    ByVal result As LongPtr, ByRef newCategoryFound As Integer, ByRef weights As Double) As Long

' ---- qualitative/column_types.h

' Whether a column is qualitative: the types 2, 4 and 5.
'   typeValue: code of the column's type
'   returns -1 for a qualitative column, otherwise 0
Public Declare PtrSafe Function isQuali Lib "KORVELMathTools.dll" ( _
    ByVal typeValue As Long) As Integer

' Whether a column is qualitative and nothing else: the types 2 and 4.
'   typeValue: code of the column's type
'   returns -1 for a purely qualitative column, otherwise 0
Public Declare PtrSafe Function isQualiPure Lib "KORVELMathTools.dll" ( _
    ByVal typeValue As Long) As Integer

' ---- qualitative/disjunctive_tables.h

' The disjunctive table of a table of texts.
'   data: in, n by p texts
'   n: number of rows
'   p: number of variables
'   totalColumns: columns of the result
'   categoryCounts: in, p integers: the number of categories of each variable
'   categories: in, p by max(categoryCounts) texts: their names, a row for each variable
'   frequencies: in, p by max(categoryCounts) numbers: their frequencies
'   result: out, n by totalColumns numbers
'   coding: 0, 1, 2 or 3
'   firstCategoryOption: 1, 2 or another value
'   returns 0
Public Declare PtrSafe Function VB_BuildDisjunctiveTable Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal n As Long, ByVal p As Long, ByVal totalColumns As Long, _
    ByRef categoryCounts As Long, ByVal categories As LongPtr, ByRef frequencies As Double, _
    ByRef result As Double, ByVal coding As Long, ByVal firstCategoryOption As Long) As Long

' The disjunctive table of a record.
'   data: in, labelled table of texts; all columns are read down to the longest one
'   info: in, category statistics: `NbCat`, `CatNames` and `CatFreq` of its columns
'   result: inout, labelled table of numbers: each column that is needed and there receives as many
'       rows, and is resized where it can be; its counts and labels stay
'   coding: 0, 1, 2 or 3
'   firstCategoryOption: 1, 2 or another value
'   returns 0
Public Declare PtrSafe Function Cpp_BuildDisjunctiveTable_ST Lib "KORVELMathTools.dll" ( _
    ByVal data As LongPtr, ByVal info As LongPtr, ByVal result As LongPtr, ByVal coding As Long, _
    ByVal firstCategoryOption As Long) As Long

' ---- random/indicator.h

' Marks a range of elements.
'   out: out, n numbers: 1 at positions first..last, 0 elsewhere
'   n: number of elements
'   first: first position to mark, from 1; a position outside is left out
'   last: last position to mark, included
'   returns 0
Public Declare PtrSafe Function VB_GenerateIndicator Lib "KORVELMathTools.dll" ( _
    ByRef out As Double, ByVal n As Long, ByVal first As Long, ByVal last As Long) As Long

' Marks a range of elements of a host array.
'   out: inout, host array of Double: its first n elements become 1 at positions first..last, 0
'       elsewhere
'   n: number of elements
'   first: first position to mark, from 1; a position outside the array is left out
'   last: last position to mark, included
'   returns 0
Public Declare PtrSafe Function Cpp_GenerateIndicator_ST Lib "KORVELMathTools.dll" ( _
    ByRef out() As Double, ByVal n As Long, ByVal first As Long, ByVal last As Long) As Long

' Marks a random subset of k out of n elements: those of the k smallest of n uniform draws.
'   out: out, n numbers, 1 for the elements of the subset, 0 for the others
'   n: number of elements
'   k: size of the subset; below 1 none, from n on all
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: not 0: a seed is given
'   nextSeed: out, one integer: a seed for the next run
'   returns 0
Public Declare PtrSafe Function VB_GenerateRandomIndicator Lib "KORVELMathTools.dll" ( _
    ByRef out As Double, ByVal n As Long, ByVal k As Long, ByRef seed As Long, _
    ByVal flag As Integer, ByRef nextSeed As Long) As Long

' Marks a random subset of k out of n elements of a host array.
'   out: inout, host array of Double: its first n elements become 1 for the elements of the subset,
'       0 for the others
'   n: number of elements
'   k: size of the subset; below 1 none, from n on all
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: not 0: a seed is given
'   nextSeed: out, one integer: a seed for the next run
'   returns 0
Public Declare PtrSafe Function Cpp_GenerateRandomIndicator_ST Lib "KORVELMathTools.dll" ( _
    ByRef out() As Double, ByVal n As Long, ByVal k As Long, ByRef seed As Long, _
    ByVal flag As Integer, ByRef nextSeed As Long) As Long

' ---- random/permutation.h

' Random permutation of the integers 1 to n.
'   out: inout, n integers
'   n: number of elements; below 2 nothing is drawn
'   bReset: -1: start from 1 to n in order, as is also done when the first element is 0. Otherwise
'       what out holds is shuffled
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: inout, one flag: 0 when no seed is given, and then set to -1
'   nextSeed: out, one integer: a seed for the next run
'   returns 0
Public Declare PtrSafe Function Cpp_Random1toNLong Lib "KORVELMathTools.dll" ( _
    ByRef out As Long, ByVal n As Long, ByVal bReset As Integer, ByRef seed As Long, _
    ByRef flag As Integer, ByRef nextSeed As Long) As Long

' Random permutation of the numbers 1 to n.
'   out: inout, n numbers
'   n: number of elements; below 2 nothing is drawn
'   bReset: -1: start from 1 to n in order, as is also done when the first element is 0. Otherwise
'       what out holds is shuffled
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: inout, one flag: 0 when no seed is given, and then set to -1
'   nextSeed: out, one integer: a seed for the next run
'   returns 0
Public Declare PtrSafe Function Cpp_Random1toNDbl Lib "KORVELMathTools.dll" ( _
    ByRef out As Double, ByVal n As Long, ByVal bReset As Integer, ByRef seed As Long, _
    ByRef flag As Integer, ByRef nextSeed As Long) As Long

' Random permutation of the integers from a to b, of which the array gets all but the last two.
'   out: inout, b - a - 1 integers, the first ones of the b - a + 1 that are permuted; a single one
'       when a equals b
'   a: the smallest integer
'   b: the largest integer
'   bReset: -1: start from a to b in order, as is also done when the first element is 0. Otherwise
'       what out holds is shuffled, and a - 1 added to it
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: inout, one flag: 0 when no seed is given, and then set to -1
'   nextSeed: out, one integer: a seed for the next run
'   returns 0
Public Declare PtrSafe Function Cpp_RandomAtoBLng Lib "KORVELMathTools.dll" ( _
    ByRef out As Long, ByVal a As Long, ByVal b As Long, ByVal bReset As Integer, _
    ByRef seed As Long, ByRef flag As Integer, ByRef nextSeed As Long) As Long

' Random permutation of the numbers from a to b in steps of 1, of which the array gets all but the
' last two.
'   out: inout, b - a - 1 numbers, the first ones of the b - a + 1 that are permuted; a single one
'       when a equals b
'   a: the smallest number
'   b: the largest number
'   bReset: -1: start from a to b in order, as is also done when the first element is 0. Otherwise
'       what out holds is shuffled, and a - 1 added to it
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: inout, one flag: 0 when no seed is given, and then set to -1
'   nextSeed: out, one integer: a seed for the next run
'   returns 0
Public Declare PtrSafe Function Cpp_RandomAtoBDbl Lib "KORVELMathTools.dll" ( _
    ByRef out As Double, ByVal a As Long, ByVal b As Long, ByVal bReset As Integer, _
    ByRef seed As Long, ByRef flag As Integer, ByRef nextSeed As Long) As Long

' ---- random/random_generators.h

' Seeds the random source and draws one uniform number.
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: not 0: the source starts from the seed; 0: the sequence goes on, with the second state of
'       the combined generator set to a tenth of the first
'   nextSeed: out, one integer: a seed for the next run: the first state of the combined generator,
'       or a further raw draw of MT19937
'   returns strictly between 0 and 1 from the combined generator; from -1.0000000004656613 to 1.0
'       from MT19937, whose outputs count as signed. Seed 0 with a non-zero flag makes the combined
'       generator take the clock
Public Declare PtrSafe Function Cpp_Random01 Lib "KORVELMathTools.dll" ( _
    ByRef seed As Long, ByVal flag As Integer, ByRef nextSeed As Long) As Double

' ---- random/random_source.h

' Selects the random generator.
'   algorithm: 1: MT19937 (Matsumoto and Nishimura 1998). Anything else: the combined generator of
'       L'Ecuyer (1988), which is the one in use after loading
'   returns 0
Public Declare PtrSafe Function Cpp_set_rand_algo Lib "KORVELMathTools.dll" ( _
    ByVal algorithm As Long) As Long

' ---- random/random_table.h

' Seeds the random source and fills an array with uniform numbers in storage order, column after
' column.
'   out: out, rows by cols numbers, each as Cpp_Random01 returns it
'   rows: number of rows; below 1 nothing is drawn
'   cols: number of columns; below 1 nothing is drawn
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: not 0: a seed is given
'   nextSeed: out, one integer: a seed for the next run
'   returns 0
Public Declare PtrSafe Function VB_M_GenerateRandom01 Lib "KORVELMathTools.dll" ( _
    ByRef out As Double, ByVal rows As Long, ByVal cols As Long, ByRef seed As Long, _
    ByVal flag As Integer, ByRef nextSeed As Long) As Long

' ---- random/sampling.h

' Simple random sample of rows with replacement, in the order of the rows.
'   table: in, rows by cols texts
'   rows: number of rows
'   cols: number of columns
'   k: size of the sample
'   sample: inout, k by cols texts
'   selected: out, k numbers: the row number of each row of the sample, ascending
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: not 0: a seed is given
'   nextSeed: out, one integer: a seed for the next run
'   returns 0
Public Declare PtrSafe Function VB_M_SamplingWithReplacement Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, _
    ByVal sample As LongPtr, ByRef selected As Double, ByRef seed As Long, ByVal flag As Integer, _
    ByRef nextSeed As Long) As Long

' Takes each row as many times as the caller says, in the order of the rows.
'   table: in, rows by cols texts
'   rows: number of rows
'   cols: number of columns
'   sample: inout, sum(counts) by cols texts, the sum being that of the truncated positive counts
'   counts: in, rows numbers, truncated; a row with a number below 1 is left out
'   selected: out, sum(counts) numbers: the row number in the table of each row of the sample
'   returns 0
Public Declare PtrSafe Function VB_M_SampleUserDefined Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal sample As LongPtr, _
    ByRef counts As Double, ByRef selected As Double) As Long

' Takes each row of a chunked table as many times as the caller says, in the order of the rows.
'   table: in, host array of cols records, each with a text column of rows texts
'   rows: number of rows
'   cols: number of columns
'   sample: inout, host array of cols records, each with a text column of as many rows as the
'       truncated positive counts add up to
'   counts: in, rows numbers, truncated; a row with a number below 1 is left out
'   selected: out, sum(counts) numbers: the row number in the table of each row of the sample
'   returns 0
Public Declare PtrSafe Function VB_M_SampleUserDefinedSPV Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal sample As LongPtr, _
    ByRef counts As Double, ByRef selected As Double) As Long

' Systematic sample of rows with a random start: with the step s, the quotient (rows - 1) / (k - 1)
' without its fraction, every s-th row from a random one of the first rows - (k - 1) s.
'   table: in, rows by cols texts
'   rows: number of rows
'   cols: number of columns
'   k: size of the sample; of 1, or above the number of rows, takes one row
'   sample: inout, k by cols texts
'   selected: inout, rows numbers: receives rows + 1 for each row that is not taken; the others stay
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: not 0: a seed is given
'   nextSeed: out, one integer: a seed for the next run
'   returns 0
Public Declare PtrSafe Function VB_M_SamplingSystematicRdStart Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, _
    ByVal sample As LongPtr, ByRef selected As Double, ByRef seed As Long, ByVal flag As Integer, _
    ByRef nextSeed As Long) As Long

' Systematic sample of the rows of a chunked table with a random start: see
' VB_M_SamplingSystematicRdStart.
'   table: in, host array of cols records, each with a text column of rows texts
'   rows: number of rows
'   cols: number of columns
'   k: size of the sample; of 1, or above the number of rows, takes one row
'   sample: inout, host array of cols records, each with a text column of k texts
'   selected: inout, rows numbers: receives rows + 1 for each row that is not taken; the others stay
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: not 0: a seed is given
'   nextSeed: out, one integer: a seed for the next run
'   returns 0
Public Declare PtrSafe Function VB_M_SamplingSystematicRdStartSPV Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, _
    ByVal sample As LongPtr, ByRef selected As Double, ByRef seed As Long, ByVal flag As Integer, _
    ByRef nextSeed As Long) As Long

' Systematic sample of rows with a start in the middle of the possible ones.
'   table: in, rows by cols texts
'   rows: number of rows
'   cols: number of columns
'   k: size of the sample; of 1, or above the number of rows, takes one row
'   sample: inout, k by cols texts
'   selected: inout, rows numbers: receives rows + 1 for each row that is not taken; the others stay
'   returns 0
Public Declare PtrSafe Function VB_M_SamplingSystematicCentered Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, _
    ByVal sample As LongPtr, ByRef selected As Double) As Long

' Systematic sample of the rows of a chunked table with a start in the middle of the possible ones.
'   table: in, host array of cols records, each with a text column of rows texts
'   rows: number of rows
'   cols: number of columns
'   k: size of the sample; of 1, or above the number of rows, takes one row
'   sample: inout, host array of cols records, each with a text column of k texts
'   selected: inout, rows numbers: receives rows + 1 for each row that is not taken; the others stay
'   returns 0
Public Declare PtrSafe Function VB_M_SamplingSystematicCenteredSPV Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, _
    ByVal sample As LongPtr, ByRef selected As Double) As Long

' One random row from each of k strata of consecutive rows.
'   table: in, rows by cols texts
'   rows: number of rows
'   cols: number of columns
'   k: size of the sample; of 1, or above the number of rows, takes one row
'   sample: inout, k by cols texts
'   selected: inout, k numbers: the row number of each row of the sample
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: not 0: a seed is given
'   nextSeed: out, one integer: a seed for the next run
'   returns 0
Public Declare PtrSafe Function VB_M_SamplingRandomStratified Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, _
    ByVal sample As LongPtr, ByRef selected As Double, ByRef seed As Long, ByVal flag As Integer, _
    ByRef nextSeed As Long) As Long

' One random row of a chunked table from each of k strata of consecutive rows.
'   table: in, host array of cols records, each with a text column of rows texts
'   rows: number of rows
'   cols: number of columns
'   k: size of the sample; of 1, or above the number of rows, takes one row
'   sample: inout, host array of cols records, each with a text column of k texts
'   selected: inout, k numbers: the row number of each row of the sample
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: not 0: a seed is given
'   nextSeed: out, one integer: a seed for the next run
'   returns 0
Public Declare PtrSafe Function VB_M_SamplingRandomStratifiedSPV Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, _
    ByVal sample As LongPtr, ByRef selected As Double, ByRef seed As Long, ByVal flag As Integer, _
    ByRef nextSeed As Long) As Long

' Simple random sample with replacement from each stratum, a stratum being the rows of one label.
'   table: in, rows by cols texts
'   rows: number of rows
'   cols: number of columns
'   k: size of the whole sample
'   sample: inout, k by cols texts: stratum after stratum in ascending order of the labels
'   strata: in, rows labels
'   selected: inout, k numbers: the row number of each row of the sample
'   counts: in, nCounts numbers: the size of the sample from each stratum, truncated
'   nCounts: number of strata
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: not 0: a seed is given
'   nextSeed: out, one integer: a seed for the next run
'   returns 0
Public Declare PtrSafe Function Cpp_M_SamplingRandomStratifiedByStr Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, _
    ByVal sample As LongPtr, ByVal strata As LongPtr, ByRef selected As Double, _
    ByRef counts As Double, ByVal nCounts As Long, ByRef seed As Long, ByVal flag As Integer, _
    ByRef nextSeed As Long) As Long

' ---- random/shuffle.h

' Shuffles a vector of numbers.
'   x: inout, n numbers
'   n: number of elements
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: not 0: a seed is given
'   nextSeed: out, one integer: a seed for the next run
'   returns 0
Public Declare PtrSafe Function Cpp_V_Shuffle Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef seed As Long, ByVal flag As Integer, _
    ByRef nextSeed As Long) As Long

' Shuffles a vector of integers.
'   x: inout, n integers
'   n: number of elements
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: not 0: a seed is given
'   nextSeed: out, one integer: a seed for the next run
'   returns 0
Public Declare PtrSafe Function Cpp_V_ShuffleLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByRef seed As Long, ByVal flag As Integer, _
    ByRef nextSeed As Long) As Long

' Shuffles the rows of a table of numbers in place; the columns of a row stay together.
'   x: inout, rows by cols numbers
'   rows: number of rows
'   cols: number of columns
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: not 0: a seed is given
'   nextSeed: out, one integer: a seed for the next run
'   returns 0
Public Declare PtrSafe Function Cpp_M_ShuffleDbl2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef seed As Long, _
    ByVal flag As Integer, ByRef nextSeed As Long) As Long

' Shuffles the rows of a table of texts in place; the columns of a row stay together.
'   x: inout, rows by cols texts
'   rows: number of rows
'   cols: number of columns
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: not 0: a seed is given
'   nextSeed: out, one integer: a seed for the next run
'   returns 0
Public Declare PtrSafe Function Cpp_M_ShuffleStr2 Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef seed As Long, _
    ByVal flag As Integer, ByRef nextSeed As Long) As Long

' Shuffles the rows of a table of numbers into another table; the columns of a row stay together.
'   x: in, rows by cols numbers
'   rows: number of rows
'   cols: number of columns
'   out: out, rows by cols numbers; may be x
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: not 0: a seed is given
'   nextSeed: out, one integer: a seed for the next run
'   returns 0
Public Declare PtrSafe Function Cpp_M_ShuffleDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double, _
    ByRef seed As Long, ByVal flag As Integer, ByRef nextSeed As Long) As Long

' Shuffles the rows of a table of texts into another table; the columns of a row stay together.
'   x: in, rows by cols texts
'   rows: number of rows
'   cols: number of columns
'   out: inout, rows by cols texts, replaced where they differ; may be x
'   seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
'   flag: not 0: a seed is given
'   nextSeed: out, one integer: a seed for the next run
'   returns 0
Public Declare PtrSafe Function Cpp_M_ShuffleStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal out As LongPtr, _
    ByRef seed As Long, ByVal flag As Integer, ByRef nextSeed As Long) As Long

' ---- statistics/centering.h

' Standardises in place.
'   x: inout, rows by cols numbers
'   rows: rows
'   cols: columns
'   bUnbiased: whether the denominator is corrected; true only when -1
'   returns 0
Public Declare PtrSafe Function VB_M_Standardize2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal bUnbiased As Integer) As Long

' The same on a table of separate columns.
'   x: inout, cols columns of rows numbers
'   rows: rows
'   cols: columns
'   bUnbiased: whether the denominator is corrected; true only when -1
'   returns 0
Public Declare PtrSafe Function VB_M_Standardize2SPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal bUnbiased As Integer) As Long

' Standardises in place and returns the statistics.
'   x: inout, rows by cols numbers
'   rows: rows
'   cols: columns
'   means: out, cols means
'   sds: out, cols deviations
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   returns 0
Public Declare PtrSafe Function VB_M_Standardize3 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef sds As Double, ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Standardises, with weights, into a result.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   w: in, rows weights
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   out: out, rows by cols numbers; may be the array of an argument
'   returns 0
Public Declare PtrSafe Function VB_M_StandardizeW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Double, _
    ByVal bUnbiased As Integer, ByVal bFreq As Integer, ByRef out As Double) As Long

' Standardises, with weights, in place.
'   x: inout, rows by cols numbers
'   rows: rows
'   cols: columns
'   w: in, rows weights; may be a column of x
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   returns 0
Public Declare PtrSafe Function VB_M_StandardizeW2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Double, _
    ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Standardises, with weights, in place and returns the statistics.
'   x: inout, rows by cols numbers
'   rows: rows
'   cols: columns
'   w: in, rows weights; may be a column of x
'   means: out, cols means
'   sds: out, cols deviations
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   returns 0
Public Declare PtrSafe Function VB_M_StandardizeW3 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Double, _
    ByRef means As Double, ByRef sds As Double, ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Centres into a result.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   out: out, rows by cols numbers; may be the array of x
'   returns 0
Public Declare PtrSafe Function VB_M_Center Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double) As Long

' Centres, with weights, into a result.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   w: in, rows weights
'   out: out, rows by cols numbers; may be the array of an argument
'   returns 0
Public Declare PtrSafe Function VB_M_CenterW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Double, _
    ByRef out As Double) As Long

' Centres in place.
'   x: inout, rows by cols numbers
'   rows: rows
'   cols: columns
'   returns 0
Public Declare PtrSafe Function VB_M_Center2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Long

' The same on a table of separate columns.
'   x: inout, cols columns of rows numbers
'   rows: rows
'   cols: columns
'   returns 0
Public Declare PtrSafe Function VB_M_Center2SPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Long

' Centres, with weights, in place.
'   x: inout, rows by cols numbers
'   rows: rows
'   cols: columns
'   w: in, rows weights; may be a column of x
'   returns 0
Public Declare PtrSafe Function VB_M_CenterW2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Double) As Long

' Reduces into a result.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   out: out, rows by cols numbers; may be the array of x
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   returns 0
Public Declare PtrSafe Function VB_M_Reduce Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double, _
    ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Reduces, with weights, into a result.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   w: in, rows weights
'   out: out, rows by cols numbers; may be the array of an argument
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   returns 0
Public Declare PtrSafe Function VB_M_ReduceW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Double, _
    ByRef out As Double, ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Reduces in place.
'   x: inout, rows by cols numbers
'   rows: rows
'   cols: columns
'   bUnbiased: whether the denominator is corrected; true only when -1
'   returns 0
Public Declare PtrSafe Function VB_M_Reduce2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal bUnbiased As Integer) As Long

' Reduces, with weights, in place.
'   x: inout, rows by cols numbers
'   rows: rows
'   cols: columns
'   w: in, rows weights; may be a column of x
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   returns 0
Public Declare PtrSafe Function VB_M_ReduceW2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Double, _
    ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' ---- statistics/column_deviations.h

' Means and standard deviations of the columns.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   means: out, cols means
'   sds: out, cols deviations
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags, read only when flag is 0; a row with a
'       flag other than 0 is left out; may be null, then none is
'   w: in, rows weights
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   flag: 0: rows with a flag other than 0 are left out; -1: all rows are kept, whatever their
'       flags; any other value: no row is kept
'   returns 0
Public Declare PtrSafe Function VB_M_MeanStDev Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef sds As Double, ByRef iMissing As Any, ByRef w As Double, ByVal bUnbiased As Integer, _
    ByVal bFreq As Integer, ByVal flag As Integer) As Long

' Means, standard deviations and variances of the columns.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   means: out, cols means
'   sds: out, cols deviations
'   vars: out, cols variances
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags; a row with a non-zero flag is left
'       out; may be null, then none is
'   w: in, rows weights
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   returns 0
Public Declare PtrSafe Function VB_M_MeanStDevVar Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef sds As Double, ByRef vars As Double, ByRef iMissing As Any, ByRef w As Double, _
    ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Means and standard deviations of the rows.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   means: out, rows means
'   sds: out, rows deviations
'   w: in, cols weights, one for each column
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   returns 0
Public Declare PtrSafe Function VB_M_MeanStDevByRow Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef sds As Double, ByRef w As Double, ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Mean, standard deviation and variance of all cells as one sample, column after column, each cell
' with the weight of its row.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   mean: out, one number: the mean
'   sd: out, one number: the deviation
'   var: out, one number: the variance
'   w: in, rows weights
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   returns 0
Public Declare PtrSafe Function VB_M_MeanStDevVarOneInMat Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef mean As Double, _
    ByRef sd As Double, ByRef var As Double, ByRef w As Double, ByVal bUnbiased As Integer, _
    ByVal bFreq As Integer) As Long

' ---- statistics/column_extremes.h

' Both extremes of each column.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   mins: out, cols smallest numbers
'   maxs: out, cols largest numbers
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags, read only when flag is 0; a row with a
'       flag other than 0 is left out; may be null, then none is
'   flag: -1: every number that is not missing counts; 0: every number of a row whose flag is 0
'       counts, a missing one too; any other value: none counts
'   returns 0
Public Declare PtrSafe Function VB_M_MinMax Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef mins As Double, _
    ByRef maxs As Double, ByRef iMissing As Any, ByVal flag As Integer) As Long

' VB_M_MinMax on a table of separate columns.
'   x: in, host array of cols columns of rows numbers
'   rows: rows
'   cols: columns
'   mins: out, cols smallest numbers
'   maxs: out, cols largest numbers
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags, read only when flag is 0; a row with a
'       flag other than 0 is left out; may be null, then none is
'   flag: -1: every number that is not missing counts; 0: every number of a row whose flag is 0
'       counts, a missing one too; any other value: none counts
'   returns 0
Public Declare PtrSafe Function VB_M_MinMaxSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef mins As Double, _
    ByRef maxs As Double, ByRef iMissing As Any, ByVal flag As Integer) As Long

' VB_M_MinMax on a symmetric table, of which each separate column starts at the diagonal.
'   x: in, host array of cols columns of numbers, column j holding rows - j + 1 of them
'   rows: rows
'   cols: columns
'   mins: out, cols smallest numbers
'   maxs: out, cols largest numbers
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags, read only when flag is 0; a row with a
'       flag other than 0 is left out; may be null, then none is
'   flag: -1: every number that is not missing counts; 0: every number of a row whose flag is 0
'       counts, a missing one too; any other value: none counts
'   returns 0
Public Declare PtrSafe Function VB_M_MinMaxSPV_T Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef mins As Double, _
    ByRef maxs As Double, ByRef iMissing As Any, ByVal flag As Integer) As Long

' The largest number of each column; missing numbers do not count.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   out: out, cols numbers
'   returns 0
Public Declare PtrSafe Function VB_M_Max Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double) As Long

' The smallest number of each column; missing numbers do not count.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   out: out, cols numbers
'   returns 0
Public Declare PtrSafe Function VB_M_Min Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double) As Long

' The smallest number of a table; missing numbers do not count.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   returns the number
Public Declare PtrSafe Function Cpp_M_MinAll Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Double

' ---- statistics/column_means.h

' Weighted means over the cells that are not missing.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   means: out, cols means; 0.0 for a column with nothing kept
'   w: in, rows weights
'   returns 0
Public Declare PtrSafe Function VB_M_Mean Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef w As Double) As Long

' VB_M_Mean on a table of separate columns.
'   x: in, host array of cols columns of rows numbers
'   rows: rows
'   cols: columns
'   means: out, cols means; 0.0 for a column with nothing kept
'   w: in, rows weights
'   returns 0
Public Declare PtrSafe Function Cpp_M_MeanSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef w As Double) As Long

' Weighted means over the cells greater than the missing value, so that a NaN is not kept.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   w: in, rows weights
'   means: out, cols means; missing for a column with nothing kept
'   returns 0
Public Declare PtrSafe Function Cpp_M_Mean2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Double, _
    ByRef means As Double) As Long

' Cpp_M_Mean2 with all weights 1.0.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   means: out, cols means; missing for a column with nothing kept
'   returns 0
Public Declare PtrSafe Function Cpp_M_Mean3 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double) As Long

' ---- statistics/column_sums.h

' The sum of each row.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   out: out, rows sums
'   returns 0
Public Declare PtrSafe Function VB_M_SumByRows Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double) As Long

' The sum of each column.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   out: out, cols sums
'   returns 0
Public Declare PtrSafe Function VB_M_SumByCols Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double) As Long

' The sum of all cells.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   returns the sum
Public Declare PtrSafe Function VB_M_SumOfElem Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Double

' The sum of squares of each column.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   out: out, cols sums
'   returns 0
Public Declare PtrSafe Function Cpp_M_SumBySquareCols Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double) As Long

' The sum of squares of each row.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   out: out, rows sums
'   returns 0
Public Declare PtrSafe Function Cpp_M_SumBySquareRows Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double) As Long

' The sum of squares of each row.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   out: out, rows sums
'   returns 0
Public Declare PtrSafe Function VB_M_SquaredRows Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double) As Long

' The sum of squares of each column.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   out: out, cols sums
'   returns 0
Public Declare PtrSafe Function VB_M_SquaredColumns Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double) As Long

' ---- statistics/conditional_summaries.h

' Counts the elements that equal a value, exactly; the missing number is one like the others.
'   x: in, n numbers
'   n: number of rows
'   val: the value
'   returns the count; 0.0 when there are none
Public Declare PtrSafe Function VB_V_NbIf Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double) As Double

' The same for integers.
'   x: in, n integers
'   n: number of rows
'   val: the value
'   returns the count; 0.0 when there are none
Public Declare PtrSafe Function VB_V_NbIfLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByVal val As Long) As Double

' Total weight of the elements that equal a value, exactly.
'   x: in, n numbers
'   n: number of rows
'   w: in, n weights
'   val: the value
'   returns the total; 0.0 when there are none
Public Declare PtrSafe Function VB_V_NbIfW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByVal val As Double) As Double

' Sum of the values of a group.
'   y: in, n values
'   n: number of rows
'   g: in, n codes
'   val: code of the group
'   returns the sum; the missing number when no row counts
Public Declare PtrSafe Function VB_V_SumIf Lib "KORVELMathTools.dll" ( _
    ByRef y As Double, ByVal n As Long, ByRef g As Double, ByVal val As Double) As Double

' Mean of the values of a group.
'   y: in, n values
'   n: number of rows
'   g: in, n codes
'   val: code of the group
'   returns the mean; the missing number when no row counts
Public Declare PtrSafe Function VB_V_MeanIf Lib "KORVELMathTools.dll" ( _
    ByRef y As Double, ByVal n As Long, ByRef g As Double, ByVal val As Double) As Double

' Sum of weight times value of a group, over the rows of a weight above 0 of which neither is
' missing.
'   y: in, n values
'   n: number of rows
'   g: in, n codes
'   w: in, n weights
'   val: code of the group
'   returns the sum; the missing number when no row counts
Public Declare PtrSafe Function VB_V_SumIfW Lib "KORVELMathTools.dll" ( _
    ByRef y As Double, ByVal n As Long, ByRef g As Double, ByRef w As Double, ByVal val As Double) As Double

' Weighted mean of a group.
'   y: in, n values
'   n: number of rows
'   g: in, n codes
'   w: in, n weights
'   val: code of the group
'   returns the mean; the missing number unless the total weight is greater than 0
Public Declare PtrSafe Function VB_V_MeanIfW Lib "KORVELMathTools.dll" ( _
    ByRef y As Double, ByVal n As Long, ByRef g As Double, ByRef w As Double, ByVal val As Double) As Double

' Largest value of a group.
'   y: in, n values
'   n: number of rows
'   g: in, n codes
'   val: code of the group
'   returns the largest value; the missing number when no row counts
Public Declare PtrSafe Function VB_V_MaxIf Lib "KORVELMathTools.dll" ( _
    ByRef y As Double, ByVal n As Long, ByRef g As Double, ByVal val As Double) As Double

' Smallest value of a group, below 1.79769313486231e308.
'   y: in, n values
'   n: number of rows
'   g: in, n codes
'   val: code of the group
'   returns the smallest value; the missing number when there is none
Public Declare PtrSafe Function VB_V_MinIf Lib "KORVELMathTools.dll" ( _
    ByRef y As Double, ByVal n As Long, ByRef g As Double, ByVal val As Double) As Double

' Variance of a group.
'   y: in, n values
'   n: number of rows
'   g: in, n codes
'   val: code of the group
'   bUnbiased: -1: divided by the number of rows less 1; otherwise by their number
'   returns the variance; the missing number unless the divisor is greater than 0
Public Declare PtrSafe Function Cpp_V_VarIf Lib "KORVELMathTools.dll" ( _
    ByRef y As Double, ByVal n As Long, ByRef g As Double, ByVal val As Double, _
    ByVal bUnbiased As Integer) As Double

' Weighted variance of a group.
'   y: in, n values
'   n: number of rows
'   g: in, n codes
'   w: in, n weights
'   val: code of the group
'   bUnbiased: -1: divided by the total weight less 1; otherwise by the total weight
'   returns the variance; the missing number unless the divisor is greater than 0
Public Declare PtrSafe Function Cpp_V_VarIfW Lib "KORVELMathTools.dll" ( _
    ByRef y As Double, ByVal n As Long, ByRef g As Double, ByRef w As Double, ByVal val As Double, _
    ByVal bUnbiased As Integer) As Double

' Weighted variance of the rows whose code is above 1e-12, with a step of its own.
'   y: in, n values
'   n: number of rows
'   g: in, n codes
'   w: in, n weights
'   bUnbiased: -1: divided by the total weight less 1; otherwise by the total weight
'   returns the variance; the missing number unless the divisor is greater than 0
Public Declare PtrSafe Function Cpp_V_VarIfSup0W Lib "KORVELMathTools.dll" ( _
    ByRef y As Double, ByVal n As Long, ByRef g As Double, ByRef w As Double, _
    ByVal bUnbiased As Integer) As Double

' ---- statistics/constant_tests.h

' Tests a column of a table.
'   x: in, n by col numbers or more
'   n: number of rows
'   bSkipMissing: -1: missing numbers are passed over; otherwise every one is compared with the
'       first
'   col: the column, from 1; 0 stands for 1
'   returns -1 when it holds one value only, otherwise 0
Public Declare PtrSafe Function VB_V_IsConstant Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bSkipMissing As Integer, ByVal col As Long) As Integer

' Tests integers.
'   x: in, n integers
'   n: number of elements
'   bSkipMissing: -1: missing integers are passed over; otherwise every one is compared with the
'       first
'   returns -1 when all are equal, otherwise 0
Public Declare PtrSafe Function VB_V_IsConstantLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByVal bSkipMissing As Integer) As Integer

' Tests texts.
'   x: in, n texts
'   n: number of elements
'   bSkipMissing: -1: empty texts are passed over; otherwise every one is compared with the first
'   returns -1 when all are equal, otherwise 0
Public Declare PtrSafe Function VB_V_IsConstantStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal bSkipMissing As Integer) As Integer

' Tests flags.
'   x: in, n flags
'   n: number of flags
'   returns -1 when all are equal, otherwise 0
Public Declare PtrSafe Function VB_V_IsConstantBool Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal n As Long) As Integer

' Tests each column of a table by itself, passing over missing numbers.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   returns -1 when every column is constant, otherwise 0
Public Declare PtrSafe Function VB_M_IsColConstant Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Integer

' The same for a chunked table.
'   x: in, cols columns of rows numbers
'   rows: rows of the table
'   cols: columns of the table
'   returns -1 when every column is constant, otherwise 0
Public Declare PtrSafe Function VB_M_IsColConstantSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Integer

' ---- statistics/correlation_conversion.h

' Correlations from covariances: each cell over the root of the product of the two variances on the
' diagonal, where that product is greater than 0.
'   cov: in, n by n covariances, read cell by cell: they need not be symmetric
'   n: order
'   out: out, n by n correlations
'   bUndefinedIsZero: not 0: an undefined cell is 0.0; otherwise it is missing
'   returns 0
Public Declare PtrSafe Function VB_M_CorrMatFromCovMat Lib "KORVELMathTools.dll" ( _
    ByRef cov As Double, ByVal n As Long, ByRef out As Double, ByVal bUndefinedIsZero As Integer) As Long

' The same in place on a symmetric table, of which each separate column starts at the diagonal; an
' undefined cell is missing.
'   table: inout, host array of n columns of numbers, column j holding n - j + 1 of them
'   n: order
'   returns 0
Public Declare PtrSafe Function Cpp_M_CorrMatFromCovMatSPV2_T Lib "KORVELMathTools.dll" ( _
    ByVal table As LongPtr, ByVal n As Long) As Long

' Covariances from correlations: each cell times the root of the product of two variances, of which
' nothing is tested.
'   corr: in, n by n correlations
'   n: order
'   vars: in, n variances
'   out: out, n by n covariances
'   returns 0
Public Declare PtrSafe Function Cpp_M_CovMatFromCorrMat Lib "KORVELMathTools.dll" ( _
    ByRef corr As Double, ByVal n As Long, ByRef vars As Double, ByRef out As Double) As Long

' ---- statistics/correlation_repair.h

' Replaces a symmetric table by the nearest correlation matrix, by alternating projections (Higham,
' IMA Journal of Numerical Analysis 22, 2002): cells are right to about 1e-6.
'   x: inout, n by n numbers; of each step's table only the lower triangle is used
'   n: rows and columns
'   returns 0; -1 when a cell is missing, and then nothing is changed
Public Declare PtrSafe Function Cpp_M_CorrMatFromSymMat Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' The same for a table of separate columns.
'   x: inout, host array of n columns of n numbers
'   n: rows and columns
'   returns 0; -1 when a cell is missing, and then nothing is changed
Public Declare PtrSafe Function Cpp_M_CorrMatFromSymMatSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long) As Long

' The same for a table of which each separate column starts at the diagonal.
'   x: inout, host array of n columns of numbers, column j holding n - j + 1 of them
'   n: rows and columns
'   returns 0; -1 when a cell is missing, and then nothing is changed
Public Declare PtrSafe Function Cpp_M_CorrMatFromSymMatSPV_T Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long) As Long

' Replaces a symmetric table by a covariance table with the same variances: its correlations, those
' of a variance that is not above 0 being 0.0, become the nearest correlation matrix, and are
' multiplied with the roots of the variances again.
'   x: inout, n by n numbers
'   n: rows and columns
'   returns 0; -1 when a cell is missing, and then nothing is changed
Public Declare PtrSafe Function Cpp_M_CovMatFromSymMat Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' ---- statistics/covariance.h

' Covariances, or correlations, of all pairs of columns.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   out: out, cols by cols numbers, both halves
'   bCorr: not 0: correlations
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags; a row with a non-zero flag is left
'       out; may be null, then none is
'   w: in, rows weights
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   bUndefinedIsZero: what an undefined cell is; true unless 0
'   returns 0
Public Declare PtrSafe Function VB_M_CovCorr Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double, _
    ByVal bCorr As Integer, ByRef iMissing As Any, ByRef w As Double, ByVal bUnbiased As Integer, _
    ByVal bFreq As Integer, ByVal bUndefinedIsZero As Integer) As Long

' VB_M_CovCorr on a labelled table.
'   x: in, labelled table of numbers, rows by cols
'   rows: rows
'   cols: columns
'   out: inout, labelled table of numbers whose columns receive cols by cols; its counts stay
'   bCorr: not 0: correlations
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags; a row with a non-zero flag is left
'       out; may be null, then none is
'   w: in, rows weights
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   bUndefinedIsZero: what an undefined cell is; true unless 0
'   returns 0
Public Declare PtrSafe Function Cpp_M_CovCorr_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal out As LongPtr, _
    ByVal bCorr As Integer, ByRef iMissing As Any, ByRef w As Double, ByVal bUnbiased As Integer, _
    ByVal bFreq As Integer, ByVal bUndefinedIsZero As Integer) As Long

' Covariances, or correlations, with the mean, the standard deviation and the variance of each
' column; on request the table itself is centred and reduced.
'   x: inout, rows by cols numbers
'   rows: rows
'   cols: columns
'   out: out, cols by cols numbers, both halves
'   means: out, cols means; missing for a column without rows
'   sds: out, cols deviations: the root of a variance greater than 0, any other variance as it is
'   vars: out, cols variances; missing for a column without rows
'   bCorr: -1: correlations
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags; a row with a non-zero flag is left
'       out; may be null, then none is
'   w: in, rows weights
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   bCenter: -1: each number that is neither missing nor in a flagged row loses the mean of its
'       column
'   bReduce: -1: it is divided by the deviation, after the mean is subtracted if bCenter asks for
'       that; a column whose variance is not greater than 0 stays as it is
'   bUndefinedIsZero: what an undefined cell is; true unless 0
'   returns 0
Public Declare PtrSafe Function VB_M_CovCorrAndMeanStDevVar Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double, _
    ByRef means As Double, ByRef sds As Double, ByRef vars As Double, ByVal bCorr As Integer, _
    ByRef iMissing As Any, ByRef w As Double, ByVal bUnbiased As Integer, ByVal bFreq As Integer, _
    ByVal bCenter As Integer, ByVal bReduce As Integer, ByVal bUndefinedIsZero As Integer) As Long

' The same as VB_M_CovCorrAndMeanStDevVar.
'   x: inout, rows by cols numbers
'   rows: rows
'   cols: columns
'   out: out, cols by cols numbers
'   means: out, cols means
'   sds: out, cols deviations
'   vars: out, cols variances
'   bCorr: -1: correlations
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags; a row with a non-zero flag is left
'       out; may be null, then none is
'   w: in, rows weights
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   bCenter: -1: the table is centred
'   bReduce: -1: it is reduced
'   bUndefinedIsZero: what an undefined cell is; true unless 0
'   returns 0
Public Declare PtrSafe Function VB_M_CovCorrVAndMeanStDevVar Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Double, _
    ByRef means As Double, ByRef sds As Double, ByRef vars As Double, ByVal bCorr As Integer, _
    ByRef iMissing As Any, ByRef w As Double, ByVal bUnbiased As Integer, ByVal bFreq As Integer, _
    ByVal bCenter As Integer, ByVal bReduce As Integer, ByVal bUndefinedIsZero As Integer) As Long

' ---- statistics/cross_covariance.h

' Covariances, or correlations, of each column of one table with each column of another.
'   x: in, rows by colsX numbers
'   rows: rows
'   colsX: columns of x
'   y: in, rows by colsY numbers
'   colsY: columns of y
'   out: out, colsX by colsY numbers
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags; a row with a non-zero flag is left
'       out; may be null, then none is
'   w: in, rows weights
'   bCorr: not 0: correlations, where the magnitude of the product of the variances is greater than
'       1e-12; elsewhere the cell is undefined
'   bSquare: not 0: correlations are squared
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   bUndefinedIsZero: not 0: an undefined cell is 0.0; otherwise it is missing
'   returns 0
Public Declare PtrSafe Function VB_M_CorrMatMat Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal colsX As Long, ByRef y As Double, _
    ByVal colsY As Long, ByRef out As Double, ByRef iMissing As Any, ByRef w As Double, _
    ByVal bCorr As Integer, ByVal bSquare As Integer, ByVal bUnbiased As Integer, _
    ByVal bFreq As Integer, ByVal bUndefinedIsZero As Integer) As Long

' VB_M_CorrMatMat on tables of separate columns.
'   x: in, host array of colsX columns of rows numbers
'   rows: rows
'   colsX: columns of x
'   y: in, host array of colsY columns of rows numbers
'   colsY: columns of y
'   out: inout, host array of colsY columns that receive colsX numbers each
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags; a row with a non-zero flag is left
'       out; may be null, then none is
'   w: in, rows weights
'   bCorr: not 0: correlations, where the magnitude of the product of the variances is greater than
'       1e-12; elsewhere the cell is undefined
'   bSquare: not 0: correlations are squared
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   bUndefinedIsZero: not 0: an undefined cell is 0.0; otherwise it is missing
'   returns 0
Public Declare PtrSafe Function VB_M_CorrMatMatSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal colsX As Long, ByVal y As LongPtr, _
    ByVal colsY As Long, ByVal out As LongPtr, ByRef iMissing As Any, ByRef w As Double, _
    ByVal bCorr As Integer, ByVal bSquare As Integer, ByVal bUnbiased As Integer, _
    ByVal bFreq As Integer, ByVal bUndefinedIsZero As Integer) As Long

' Weighted correlation of two vectors, over the elements of which the weight is greater than 0 and
' both values are greater than the missing value, so that a NaN is not kept.
'   x: in, n numbers
'   n: number of elements
'   y: in, n numbers
'   w: in, n weights
'   returns the correlation; missing unless the product of the two sums of squares is greater than 0
Public Declare PtrSafe Function Cpp_V_Correl2W Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef y As Double, ByRef w As Double) As Double

' ---- statistics/distances.h

' Weighted Euclidean distances between the columns, or between rows: the root of the sum of w * d *
' d, d being the difference of two coordinates.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   w: in, rows weights, or cols weights when bRows is -1, one for each coordinate
'   out: out, cols by cols distances, or nRows by nRows distances when bRows is -1
'   bRows: -1: between rows; otherwise between columns
'   nRows: the number of first rows to compare; not used between columns
'   returns 0
Public Declare PtrSafe Function VB_M_EuclidDist2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Double, _
    ByRef out As Double, ByVal bRows As Integer, ByVal nRows As Long) As Long

' The root mean square difference of each column, or row, from a vector, over the coordinates in
' which both are greater than the missing value, so that a NaN is not kept.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   v: in, rows numbers, or cols numbers when bRows is -1
'   bRows: -1: of each row; otherwise of each column
'   out: out, cols distances, or rows distances when bRows is -1; missing where no coordinate is
'       kept
'   returns 0
Public Declare PtrSafe Function Cpp_M_EuclidDistToVector Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, _
    ByVal bRows As Integer, ByRef out As Double) As Long

' The row that lies farthest from the origin.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   d: out, one number: the largest root of a row's sum of squares; missing without rows
'   row: out, one integer: the number of the first such row, from 1; 0 without rows
'   returns 0
Public Declare PtrSafe Function Cpp_M_GetMaxDistToOrigin Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef d As Double, ByRef row As Long) As Long

' ---- statistics/error_measures.h

' Mean absolute percentage error, weighted, over the rows whose observed value is not 0.
'   actual: in, n values observed
'   predicted: in, n values forecast
'   n: number of rows
'   w (Double, or ByVal KORVEL_NULL): in, n weights; null: all 1.0
'   first: first row, from 1; 0 stands for 1
'   returns the error in percent; 0.0 when no row counts
Public Declare PtrSafe Function VB_MAPE Lib "KORVELMathTools.dll" ( _
    ByRef actual As Double, ByRef predicted As Double, ByVal n As Long, ByRef w As Any, _
    ByVal first As Long) As Double

' Mean percentage error, weighted, over the rows whose observed value is not 0.
'   actual: in, n values observed
'   predicted: in, n values forecast
'   n: number of rows
'   w (Double, or ByVal KORVEL_NULL): in, n weights; null: all 1.0
'   first: first row, from 1
'   returns the error in percent; the missing number when first is above n or the weights add up to
'       0
Public Declare PtrSafe Function VB_MPE Lib "KORVELMathTools.dll" ( _
    ByRef actual As Double, ByRef predicted As Double, ByVal n As Long, ByRef w As Any, _
    ByVal first As Long) As Double

' Mean absolute error, weighted.
'   actual: in, n values observed
'   predicted: in, n values forecast
'   n: number of rows
'   w (Double, or ByVal KORVEL_NULL): in, n weights; null: all 1.0
'   first: first row, from 1
'   returns the error; the missing number when first is above n or the weights add up to 0
Public Declare PtrSafe Function VB_MAE Lib "KORVELMathTools.dll" ( _
    ByRef actual As Double, ByRef predicted As Double, ByVal n As Long, ByRef w As Any, _
    ByVal first As Long) As Double

' Root mean squared error of one column of two tables, over the rows whose first value is above the
' missing number.
'   x: in, n by col numbers or more
'   n: number of rows
'   col: the column, from 1
'   y: in, n by col numbers or more, not tested for missing
'   df: what the sum of squares is divided by; 0 gives infinity, or a NaN when the sum is 0
'   returns the error; 0.0 when col is below 1
Public Declare PtrSafe Function VB_RMSE Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal col As Long, ByRef y As Double, ByVal df As Double) As Double

' ---- statistics/normalize.h

' Divides a vector by the root of its sum of squares, so that that becomes 1.
'   x: inout, n numbers
'   n: number of elements
'   returns 0
Public Declare PtrSafe Function VB_V_Norm Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' The same with the sum of x * w * x.
'   x: inout, n numbers
'   n: number of elements
'   w: in, n weights; may be the array of x
'   returns 0
Public Declare PtrSafe Function VB_V_NormW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double) As Long

' Multiplies a vector by the root of value over its sum of squares, so that that becomes value.
'   x: inout, n numbers
'   n: number of elements
'   value: the sum of squares to come to
'   returns 0
Public Declare PtrSafe Function VB_V_NormToVal Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal value As Double) As Long

' The same with the sum of x * w * x.
'   x: inout, n numbers
'   n: number of elements
'   value: the sum of squares to come to
'   w: in, n weights; may be the array of x
'   returns 0
Public Declare PtrSafe Function VB_V_NormToValW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal value As Double, ByRef w As Double) As Long

' Changes the cells of each column to (x / s) * sqrt(n / (n - 1)), where s is the root of the
' column's sum of x * x * w and n is rows, whatever is left out.
'   x: inout, rows by cols numbers
'   rows: rows
'   cols: columns
'   w (Double, or ByVal KORVEL_NULL): in, rows weights; may be null, then all are 1
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags; a row with a non-zero flag is left out
'       and stays; may be null, then none is
'   returns 0
Public Declare PtrSafe Function VB_M_Normalize Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef w As Any, ByRef iMissing As Any) As Long

' VB_M_Normalize, without weights and flags, on a table and two companions, tables of other rows and
' the same columns, which are changed by the sums of squares and the number of rows of x.
'   x: inout, rows by cols numbers
'   rows: rows of x
'   cols: columns of all three
'   y (Double, or ByVal KORVEL_NULL): inout, yRows by cols numbers; may be null when yRows is 0
'   yRows: rows of y
'   z (Double, or ByVal KORVEL_NULL): inout, zRows by cols numbers; may be null when zRows is 0
'   zRows: rows of z
'   returns 0
Public Declare PtrSafe Function VB_M_NormalizeMatrix Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Any, ByVal yRows As Long, _
    ByRef z As Any, ByVal zRows As Long) As Long

' ---- statistics/rescale.h

' Brings a vector to the range from lo to hi: (x - a) * (hi - lo) / r + lo, where a is the smallest
' number kept and r the largest less the smallest.
'   x: in, n numbers
'   n: number of elements
'   lo: what the smallest becomes
'   hi: what the largest becomes
'   iMissing (Integer, or ByVal KORVEL_NULL): in, n flags; an element with a non-zero flag is left
'       out; may be null, then none is
'   out: out, n numbers, missing where an element is left out; may be the array of x
'   returns 0
Public Declare PtrSafe Function VB_V_Rescale Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal lo As Double, ByVal hi As Double, _
    ByRef iMissing As Any, ByRef out As Double) As Long

' The same in place; an element left out stays.
'   x: inout, n numbers
'   n: number of elements
'   lo: what the smallest becomes
'   hi: what the largest becomes
'   iMissing (Integer, or ByVal KORVEL_NULL): in, n flags; what has a flag other than 0 is left out;
'       may be null
'   returns 0
Public Declare PtrSafe Function VB_V_Rescale2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal lo As Double, ByVal hi As Double, _
    ByRef iMissing As Any) As Long

' VB_V_Rescale on each column, each to a range of its own.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   lo: in, cols lower ends
'   hi: in, cols upper ends
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags; what has a flag other than 0 is left
'       out; may be null
'   out: out, rows by cols numbers, missing where a cell is left out; may be the array of x
'   returns 0
Public Declare PtrSafe Function VB_M_RescaleByVect Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef lo As Double, _
    ByRef hi As Double, ByRef iMissing As Any, ByRef out As Double) As Long

' The same in place; a cell left out stays.
'   x: inout, rows by cols numbers
'   rows: rows
'   cols: columns
'   lo: in, cols lower ends
'   hi: in, cols upper ends
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags; what has a flag other than 0 is left
'       out; may be null
'   returns 0
Public Declare PtrSafe Function VB_M_RescaleByVect2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef lo As Double, _
    ByRef hi As Double, ByRef iMissing As Any) As Long

' How far each number lies from the centre, in deviations.
'   x: in, n numbers
'   n: number of elements
'   bRobust: 0: (x - centre) / scale; any other value: 0.6745 * (x - median) / MAD, by the median
'       and the median absolute deviation, in which a missing number counts as the smallest
'   centre (Double, or ByVal KORVEL_NULL): inout, one number: the centre; when it is missing, it and
'       scale become the mean and the standard deviation, divided by the number of elements less 1,
'       of the numbers above the missing one. Not used, and may be null, for the robust scores
'   scaleValue: inout, one number: the deviation; the same
'   out: out, n scores; may be the array of x
'   returns 0
Public Declare PtrSafe Function Cpp_V_ZScores Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bRobust As Integer, ByRef centre As Any, _
    ByRef scaleValue As Double, ByRef out As Double) As Long

' ---- statistics/row_grouping.h

' Aggregates the rows that share the value of a key column, in ascending order of the keys, compared
' exactly.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table
'   kinds: in, cols entries, not 0 for a qualitative column, whose aggregate is the most frequent
'       code
'   groupCol: the key column, from 1
'   method: aggregate of the other columns: 0 sum, 1 mean, 2 median, 3 first row, 4 last row, 5
'       minimum, 6 maximum, 7 range; any other number leaves the sorted input
'   nOut: out, one integer: the number of groups
'   out: out, rows by cols numbers; the first nOut rows are the result, those below keep the sorted
'       input
'   returns 0
Public Declare PtrSafe Function VB_M_GroupBy Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef kinds As Long, _
    ByVal groupCol As Long, ByVal method As Long, ByRef nOut As Long, ByRef out As Double) As Long

' Aggregates the rows that share the value of a key column, with a weight for each row.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table
'   kinds: in, cols entries, not 0 for a qualitative column, whose aggregate is the most frequent
'       code
'   groupCol: the key column, from 1
'   method: aggregate of the other columns: 0 weighted sum, 1 weighted mean, 2 weighted median, 3
'       first row, 4 last row, 5 minimum, 6 maximum, 7 range; any other number leaves the sorted
'       input
'   nOut: out, one integer: the number of groups
'   out: out, rows by cols numbers; the first nOut rows are the result, those below keep the sorted
'       input
'   w: in, rows weights
'   returns 0
Public Declare PtrSafe Function VB_M_GroupByW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef kinds As Long, _
    ByVal groupCol As Long, ByVal method As Long, ByRef nOut As Long, ByRef out As Double, _
    ByRef w As Double) As Long

' Merges rows that are equal, exactly, in all data columns.
'   x: in, rows by p + 1 numbers: p data columns, then an identifier of the row
'   rows: rows of both tables
'   p: number of data columns
'   nOut: out, one integer: the number of rows kept
'   out: out, rows by p + 3 numbers: the data, the number of rows merged (0 for a dropped row), the
'       identifier, and 1 for a kept row, 0 for a dropped one
'   returns 0
Public Declare PtrSafe Function VB_M_Dedupe Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal p As Long, ByRef nOut As Long, ByRef out As Double) As Long

' ---- statistics/standardize.h

' Standardises each column in turn.
'   x: inout, rows by cols numbers; unchanged unless out is null
'   rows: rows
'   cols: columns
'   out (Double, or ByVal KORVEL_NULL): out, rows by cols numbers, missing where a cell is not kept;
'       null: the cells of x that are kept are replaced. May be the array of x
'   means (Double, or ByVal KORVEL_NULL): out, cols means; may be null
'   sds (Double, or ByVal KORVEL_NULL): out, cols deviations; may be null
'   vars (Double, or ByVal KORVEL_NULL): out, cols variances; may be null
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags; a row with a non-zero flag is left
'       out; may be null, then none is
'   w (Double, or ByVal KORVEL_NULL): in, rows weights; may be null, then all are 1
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   returns 0
Public Declare PtrSafe Function VB_M_Standardize Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef out As Any, ByRef means As Any, _
    ByRef sds As Any, ByRef vars As Any, ByRef iMissing As Any, ByRef w As Any, _
    ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' VB_M_Standardize with a result, on one vector and with bFreq false.
'   x: in, n numbers
'   n: number of elements
'   iMissing (Integer, or ByVal KORVEL_NULL): in, n flags; what has a flag other than 0 is left out;
'       may be null
'   w (Double, or ByVal KORVEL_NULL): in, n weights; may be null
'   bUnbiased: whether the denominator is corrected; true only when -1
'   out: out, n numbers; may be the array of x
'   returns 0
Public Declare PtrSafe Function VB_V_Standardize Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Any, ByRef w As Any, _
    ByVal bUnbiased As Integer, ByRef out As Double) As Long

' VB_M_Standardize in place, on one vector and with bFreq false.
'   x: inout, n numbers
'   n: number of elements
'   iMissing (Integer, or ByVal KORVEL_NULL): in, n flags; what has a flag other than 0 is left out;
'       may be null
'   w (Double, or ByVal KORVEL_NULL): in, n weights; may be null
'   bUnbiased: whether the denominator is corrected; true only when -1
'   returns 0
Public Declare PtrSafe Function VB_V_Standardize2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Any, ByRef w As Any, _
    ByVal bUnbiased As Integer) As Long

' Standardises the columns by given statistics.
'   x: inout, rows by cols numbers; unchanged unless out is null
'   rows: rows
'   cols: columns
'   means: in, cols means
'   sds (Double, or ByVal KORVEL_NULL): in, cols deviations; null: the roots of vars
'   out (Double, or ByVal KORVEL_NULL): out, rows by cols numbers, missing where a cell is not kept;
'       null: the cells of x that are kept are replaced. May be the array of x
'   vars: in, cols variances, read only when sds is null
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags; a row with a non-zero flag is left
'       out; may be null, then none is
'   returns 0
Public Declare PtrSafe Function VB_M_StandardizeKnownMeansStDev Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef sds As Any, ByRef out As Any, ByRef vars As Double, ByRef iMissing As Any) As Long

' VB_M_StandardizeKnownMeansStDev with deviations and a result, no row left out.
'   x: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   means: in, cols means
'   sds: in, cols deviations
'   out: out, rows by cols numbers; may be the array of x
'   returns 0
Public Declare PtrSafe Function VB_M_StandardizeByVect Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef sds As Double, ByRef out As Double) As Long

' VB_M_StandardizeKnownMeansStDev with deviations, in place, no row left out.
'   x: inout, rows by cols numbers
'   rows: rows
'   cols: columns
'   means: in, cols means
'   sds: in, cols deviations
'   returns 0
Public Declare PtrSafe Function VB_M_StandardizeByVect2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef sds As Double) As Long

' Standardises the columns in place by given statistics.
'   x: inout, rows by cols numbers
'   rows: rows
'   cols: columns
'   means: in, cols means
'   sds: in, cols deviations
'   returns 0
Public Declare PtrSafe Function Cpp_M_StandardizeApply2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef means As Double, _
    ByRef sds As Double) As Long

' ---- statistics/standardize_row_sets.h

' Standardises a table in place, (x - mean) / sd by column, the sum of squares divided by the number
' of cells less 1, and by the same means and deviations two companions, tables of other rows and the
' same columns.
'   x: inout, rows by cols numbers
'   rows: rows of x
'   cols: columns of all three
'   y (Double, or ByVal KORVEL_NULL): inout, yRows by cols numbers; may be null when yRows is 0
'   yRows: rows of y
'   z (Double, or ByVal KORVEL_NULL): inout, zRows by cols numbers; may be null when zRows is 0
'   zRows: rows of z
'   returns 0
Public Declare PtrSafe Function VB_M_StandardizeMatrix Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Any, ByVal yRows As Long, _
    ByRef z As Any, ByVal zRows As Long) As Long

' Standardises or centres each group of rows for itself, in place.
'   x: inout, rows by cols numbers
'   rows: rows
'   cols: columns
'   groups: in, rows group codes; a row with a code that is not from 1 to nGroups stays
'   nGroups: number of groups; below 1 nothing is done
'   bStandardize: -1: each group is treated by VB_M_Standardize2; any other value: by VB_M_Center2
'   bUnbiased: whether the denominator is the number of cells less 1; true only when -1
'   returns 0
Public Declare PtrSafe Function Cpp_M_StandardizeByGroup Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef groups As Long, _
    ByVal nGroups As Long, ByVal bStandardize As Integer, ByVal bUnbiased As Integer) As Long

' ---- statistics/table_extremes.h

' The smallest element of a record of labelled columns that is not missing.
'   record: in, the record
'   nRows: rows to look at; below 1 there is nothing
'   nCols: columns to look at
'   returns the element; missing when there is none, or when it is 1.79769313486231e308 or above
Public Declare PtrSafe Function Cpp_V_Min3 Lib "KORVELMathTools.dll" ( _
    ByVal record As LongPtr, ByVal nRows As Long, ByVal nCols As Long) As Double

' ---- statistics/time_steps.h

' The step of a time scale, whose differences must all be within 1e-6 of the first.
'   x: in, n numbers
'   n: number of elements
'   bSort: -1: the step of the sorted numbers; otherwise of the numbers as they stand
'   returns the first difference; the missing number when another one differs, and when there is
'       none
Public Declare PtrSafe Function VB_V_TimeIntervalSize Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bSort As Integer) As Double

' The step of numbers, whose differences must all be within 1e-8 of the first, or of dates, which
' must agree in days and months.
'   x: in, n numbers
'   n: number of elements
'   kind: 2: dates, as days since 30 December 1899; otherwise numbers
'   d: out, one number: the first difference; the missing number when the steps differ or there is
'       none
'   returns 0
Public Declare PtrSafe Function Cpp_V_CheckDateInterval Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal kind As Long, ByRef d As Double) As Long

' ---- statistics/vector_extremes.h

' The smallest element that is kept.
'   x: in, n numbers
'   n: number of elements
'   iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one
'   returns the element; missing when none is kept
Public Declare PtrSafe Function VB_V_Min Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Integer) As Double

' The smallest element that is not missing.
'   x: in, n numbers
'   n: number of elements
'   returns the element; missing when there is none
Public Declare PtrSafe Function VB_V_Min2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double

' The smallest of some integers.
'   x: in, n integers
'   n: number of elements
'   returns the element as a number; the missing number when n is below 1
Public Declare PtrSafe Function VB_V_Min2Lng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long) As Double

' The largest element that is kept.
'   x: in, n numbers
'   n: number of elements
'   iMissing (Integer, or ByVal KORVEL_NULL): in, n flags; an element with a non-zero flag is left
'       out, and so is a missing one. Null: no flag is set
'   returns the element; missing when none is kept
Public Declare PtrSafe Function VB_V_Max Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Any) As Double

' The largest element that is not missing.
'   x: in, n numbers
'   n: number of elements
'   returns the element; missing when there is none
Public Declare PtrSafe Function VB_V_Max2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double

' The largest of some integers.
'   x: in, n integers
'   n: number of elements
'   returns the element as a number; the missing number when n is below 1
Public Declare PtrSafe Function VB_V_Max2Lng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long) As Double

' The largest element of a host array that is not missing.
'   sa: in, host array of Double
'   n: number of elements to read; one that the array does not have reads as -1
'   returns the element; missing when there is none
Public Declare PtrSafe Function Cpp_V_Max2_ST Lib "KORVELMathTools.dll" ( _
    ByRef sa() As Double, ByVal n As Long) As Double

' The largest integer of a host array.
'   sa: in, host array of Long
'   n: number of elements to read; one that the array does not have reads as -1
'   returns the element as a number; the missing number when n is below 1
Public Declare PtrSafe Function Cpp_V_Max2Lng_ST Lib "KORVELMathTools.dll" ( _
    ByRef sa() As Long, ByVal n As Long) As Double

' The largest integer that is kept, as an integer.
'   x: in, n integers
'   n: number of elements
'   iMissing (Integer, or ByVal KORVEL_NULL): in, n flags; an element with a non-zero flag is left
'       out. Null: no flag is set
'   returns the element; -2147483648 when none is kept
Public Declare PtrSafe Function VB_V_MaxInt Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByRef iMissing As Any) As Long

' The smallest and the largest element that are kept.
'   x: in, n numbers
'   n: number of elements
'   min: out, one number: the smallest
'   max: out, one number: the largest
'   iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one
'   returns 0
Public Declare PtrSafe Function VB_V_MinMax Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef min As Double, ByRef max As Double, _
    ByRef iMissing As Integer) As Long

' The smallest and the largest integer that are kept.
'   x: in, n integers
'   n: number of elements
'   min: out, one number: the smallest, as a number
'   max: out, one number: the largest, as a number
'   iMissing: in, n flags; an element with a non-zero flag is left out
'   returns 0
Public Declare PtrSafe Function VB_V_MinMaxLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByRef min As Double, ByRef max As Double, _
    ByRef iMissing As Integer) As Long

' The smallest and the largest element.
'   x: in, n numbers
'   n: number of elements; with none, element 1 reads as -1
'   min: out, one number: the smallest; missing when missing elements are passed over and there is
'       no other
'   max: out, one number: the largest; in that case element 1
'   bSkipMissing: not 0: missing elements are passed over
'   returns 0
Public Declare PtrSafe Function VB_V_MinMax2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef min As Double, ByRef max As Double, _
    ByVal bSkipMissing As Integer) As Long

' The smallest and the largest of some integers.
'   x: in, n integers
'   n: number of elements; with none, element 1 reads as -1
'   min: out, one number: the smallest, as a number; with no elements and bSkipMissing not 0 the
'       missing number
'   max: out, one number: the largest, as a number
'   bSkipMissing: no integer is missing, so this matters only without elements; true unless 0
'   returns 0
Public Declare PtrSafe Function VB_V_MinMaxLng2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByRef min As Double, ByRef max As Double, _
    ByVal bSkipMissing As Integer) As Long

' The smallest of all elements, missing ones too, and its position.
'   x: in, n numbers
'   n: number of elements; below 2 only the first is read
'   pos: out, one integer: the position, from 1
'   bLast: not 0: the last of equal elements; 0: the first
'   returns the element
Public Declare PtrSafe Function VB_V_MinAndMinPos Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef pos As Long, ByVal bLast As Integer) As Double

' The largest of all elements, missing ones too, and the first of its positions.
'   x: in, n numbers
'   n: number of elements; below 2 only the first is read
'   pos: out, one integer: the position, from 1
'   returns the element
Public Declare PtrSafe Function VB_V_MaxAndMaxPos Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef pos As Long) As Double

' ---- statistics/vector_frequencies.h

' Total weight of the numbers that are near a value.
'   x: in, n numbers
'   n: number of elements
'   w: in, n weights
'   value: the value
'   tol: an element counts when its distance from the value is less than this, so that 0 counts none
'   returns the sum of their weights; 0.0 when there are none
Public Declare PtrSafe Function VB_V_Freq Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByVal value As Double, _
    ByVal tol As Double) As Double

' Total weight of the integers that are near a value.
'   x: in, n integers
'   n: number of elements
'   w: in, n weights
'   value: the value
'   tol: an element counts when its distance from the value is less than this, so that 0 counts none
'   returns the sum of their weights; 0.0 when there are none
Public Declare PtrSafe Function VB_V_FreqLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByRef w As Double, ByVal value As Double, ByVal tol As Double) As Double

' Total weight of the texts that equal a value: of the same length and with the same code units.
'   labels: in, n texts, each up to its first NUL
'   n: number of elements
'   w: in, n weights
'   value: in, one text (BSTR), up to its first NUL. Null: the empty text
'   returns the sum of their weights; 0.0 when there are none
Public Declare PtrSafe Function VB_V_FreqStr Lib "KORVELMathTools.dll" ( _
    ByVal labels As LongPtr, ByVal n As Long, ByRef w As Double, ByVal value As LongPtr) As Double

' ---- statistics/vector_means.h

' Weighted mean: the sum of w[i] * x[i] over the sum of w[i].
'   x: in, n numbers
'   n: number of elements
'   iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one
'   w: in, n weights; a missing one is a number like any other
'   returns the mean; missing when n is below 1 or the weights kept sum to exactly 0
Public Declare PtrSafe Function VB_V_Mean Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Integer, ByRef w As Double) As Double

' Weighted mean of absolute values.
'   x: in, n numbers
'   n: number of elements
'   iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one
'   w: in, n weights; a missing one is a number like any other
'   returns the sum of w[i] * |x[i]| over the sum of w[i]; missing when n is below 1 or the weights
'       kept sum to exactly 0
Public Declare PtrSafe Function VB_V_MeanAbs Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Integer, ByRef w As Double) As Double

' Mean of the elements that are not missing.
'   x: in, n numbers
'   n: number of elements
'   returns the mean; missing when there is no such element
Public Declare PtrSafe Function VB_V_Mean2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double

' Weighted mean of the elements that are not missing.
'   x: in, n numbers
'   n: number of elements
'   w: in, n weights; a missing one is a number like any other
'   returns the sum of w[i] * x[i] over the sum of w[i]; missing when n is below 1, and unless the
'       sum of the weights is greater than 0
Public Declare PtrSafe Function Cpp_V_MeanW2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double) As Double

' Weighted harmonic mean: the sum of w[i] over the sum of w[i] / x[i].
'   x: in, n numbers
'   n: number of elements
'   iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one
'   w: in, n weights; a missing one is a number like any other
'   returns the mean; missing when n is below 1, when an element kept is 0, and when the quotients
'       sum to exactly 0
Public Declare PtrSafe Function Cpp_V_HarmonicMean Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Integer, ByRef w As Double) As Double

' Geometric mean and geometric standard deviation.
'   x: in, n numbers
'   n: number of elements
'   iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one
'   w: in, n weights; a missing one is a number like any other
'   gmean: out, one number: the geometric mean
'   gsd: out, one number: the geometric standard deviation: missing when the denominator is exactly
'       0, 0.0 when the variance of the logarithms is negative
'   returns 0. Both results are missing when no element is kept or one that is kept is not greater
'       than 0
Public Declare PtrSafe Function Cpp_V_GMeanGSD Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Integer, ByRef w As Double, _
    ByRef gmean As Double, ByRef gsd As Double) As Long

' ---- statistics/vector_moments.h

' Weighted mean, variance, skewness and kurtosis, with standard errors.
'   x: in, n numbers
'   n: number of elements
'   mean: out, one number: the mean
'   var: out, one number: the variance: the sum of squares over S - u if bUnbiased, over S otherwise
'   skewP: out, one number: the skewness of the population
'   kurtP: out, one number: the excess kurtosis of the population
'   skew: out, one number: the skewness corrected for the sample size; missing unless S is above 2a
'   kurt: out, one number: the excess kurtosis corrected for the sample size; missing unless S is
'       above 2u and 3u
'   seSkew: out, one number: the standard error of skew; missing with it
'   seKurt: out, one number: the standard error of kurt; missing with it
'   iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one
'   w: in, n weights; a missing one is a number like any other
'   bUnbiased: true only when -1
'   bFreq: true only when -1: each weight counts as so many observations
'   returns 0
Public Declare PtrSafe Function VB_V_MeanVarSkewPKurtP Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef mean As Double, ByRef var As Double, _
    ByRef skewP As Double, ByRef kurtP As Double, ByRef skew As Double, ByRef kurt As Double, _
    ByRef seSkew As Double, ByRef seKurt As Double, ByRef iMissing As Integer, ByRef w As Double, _
    ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' ---- statistics/vector_sums.h

' Weighted sum of a vector: the sum of w[i] * x[i] in ascending order.
'   x: in, n numbers
'   n: number of elements
'   iMissing (Integer, or ByVal KORVEL_NULL): in, n flags; an element with a non-zero flag is left
'       out. Null: none is
'   w: in, n weights; not null unless n is below 1
'   returns the sum over the elements whose flag is 0 and of which neither value nor weight is
'       missing; 0.0 when there are none
Public Declare PtrSafe Function VB_V_Sum Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Any, ByRef w As Double) As Double

' Sum of x[i] * w[i] over all elements: a missing value or weight multiplies through.
'   x: in, n numbers
'   n: number of elements
'   w: in, n weights
'   returns the sum; 0.0 when n is below 1
Public Declare PtrSafe Function Cpp_V_SumW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double) As Double

' Sum of the elements that are not missing.
'   x: in, n numbers
'   n: number of elements
'   returns the sum; 0.0 when there are none
Public Declare PtrSafe Function VB_V_Sum2Dbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double

' Sum of integers in 32-bit arithmetic that wraps around.
'   x: in, n integers
'   n: number of elements
'   returns the wrapped sum as a number; 0.0 when n is below 1
Public Declare PtrSafe Function VB_V_Sum2Lng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long) As Double

' Sum of the elements of a host array that are not missing.
'   sa: in, host array of Double
'   n: number of elements to read; one that the array does not have reads as -1
'   returns the sum; 0.0 when there are none
Public Declare PtrSafe Function Cpp_V_Sum2Dbl_ST Lib "KORVELMathTools.dll" ( _
    ByRef sa() As Double, ByVal n As Long) As Double

' Sum of the integers of a host array in 32-bit arithmetic that wraps around.
'   sa: in, host array of Long
'   n: number of elements to read; one that the array does not have reads as -1
'   returns the wrapped sum as a number; 0.0 when n is below 1
Public Declare PtrSafe Function Cpp_V_Sum2Lng_ST Lib "KORVELMathTools.dll" ( _
    ByRef sa() As Long, ByVal n As Long) As Double

' Sum over a stretch of a vector, missing elements too.
'   x: in, to numbers, or more
'   n: not used
'   from: first position, from 1
'   toValue: last position, from 1
'   returns the sum; 0.0 when `from` is above `to`
Public Declare PtrSafe Function VB_V_SumFromTo Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal from As Long, ByVal toValue As Long) As Double

' Sum over a stretch of a vector of integers, in 32-bit arithmetic that wraps around.
'   x: in, to integers, or more
'   n: not used
'   from: first position, from 1
'   toValue: last position, from 1
'   returns the wrapped sum; 0 when `from` is above `to`
Public Declare PtrSafe Function VB_V_SumFromToLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByVal from As Long, ByVal toValue As Long) As Long

' Sum of squares of the elements that are not missing.
'   x: in, n numbers
'   n: number of elements
'   returns the sum; 0.0 when there are none
Public Declare PtrSafe Function VB_V_SumSq Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Double

' Weighted sum of squares of the elements that are not missing: the sum of x[i] * w[i] * x[i].
'   x: in, n numbers
'   n: number of elements
'   w: in, n weights
'   returns the sum; 0.0 when there are none
Public Declare PtrSafe Function VB_V_SumSqW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double) As Double

' Squared distance of two vectors, over all elements, missing ones too.
'   x: in, n numbers
'   n: number of elements
'   y: in, n numbers
'   returns the sum of the squares of x[i] - y[i]; 0.0 when n is below 1
Public Declare PtrSafe Function VB_V_DiffSq Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef y As Double) As Double

' Weighted squared distance of two vectors, over all elements, missing ones too.
'   x: in, n numbers
'   n: number of elements
'   y: in, n numbers
'   w: in, n weights
'   returns the sum of w[i] times the square of x[i] - y[i]; 0.0 when n is below 1
Public Declare PtrSafe Function VB_V_DiffSqW Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef y As Double, ByRef w As Double) As Double

' Squared distance of the tails of two vectors, over all elements, missing ones too.
'   x: in, n numbers
'   n: last position, from 1
'   y: in, n numbers
'   start: first position, from 1
'   returns the sum of the squares of the differences; 0.0 when `start` is above n
Public Declare PtrSafe Function Cpp_V_DiffSqStart Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef y As Double, ByVal start As Long) As Double

' Running sum over all elements, missing ones too.
'   x: in, n numbers
'   n: number of elements; below 1 nothing is written
'   out: out, n numbers: the first element, and then the one before plus x[i]. May be x itself
'   returns 0
Public Declare PtrSafe Function Cpp_V_CuSum Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef out As Double) As Long

' ---- statistics/vector_tests.h

' Whether no number is negative, missing ones left aside.
'   x: in, n numbers
'   n: number of elements
'   bStrict: not 0: a number must be above 0; 0: it may be 0
'   returns -1 or 0
Public Declare PtrSafe Function VB_V_IsPositive Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bStrict As Integer) As Integer

' The same for a table.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags, one for each row; a row with a flag
'       other than 0 is left out. Null: none is
'   bStrict: not 0: a number must be above 0; 0: it may be 0
'   returns -1 or 0
Public Declare PtrSafe Function Cpp_M_IsPositive Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef iMissing As Any, _
    ByVal bStrict As Integer) As Integer

' The same for a labelled table, as far as it has columns.
'   x: in, table of numbers
'   rows: rows to test
'   cols: columns to test
'   iMissing (Integer, or ByVal KORVEL_NULL): in, rows flags, one for each row; a row with a flag
'       other than 0 is left out. Null: none is
'   bStrict: not 0: a number must be above 0; 0: it may be 0
'   returns -1 or 0
Public Declare PtrSafe Function Cpp_M_IsPositive_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef iMissing As Any, _
    ByVal bStrict As Integer) As Integer

' Whether numbers can be weights: none is negative and their sum is above 0, missing ones left
' aside.
'   x: in, n numbers
'   n: number of elements
'   returns -1 or 0; 0 for nothing
Public Declare PtrSafe Function VB_V_IsWeights Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Integer

' The same for a host array.
'   x: in, host array of Double
'   n: number of elements
'   returns -1 or 0; 0 for nothing
Public Declare PtrSafe Function Cpp_V_IsWeights_ST Lib "KORVELMathTools.dll" ( _
    ByRef x() As Double, ByVal n As Long) As Integer

' The same, which also looks for weights that are all 1.
'   x: in, host array of Double
'   n: number of elements
'   bAll1: out, one flag: -1 when every number that is not missing is exactly 1, otherwise 0
'   returns -1 or 0; 0 for nothing
Public Declare PtrSafe Function Cpp_V_IsWeightsAndAll1_ST Lib "KORVELMathTools.dll" ( _
    ByRef x() As Double, ByVal n As Long, ByRef bAll1 As Integer) As Integer

' Whether numbers can be counts: weights, each of them an integer within 1e-12.
'   x: in, n numbers
'   n: number of elements
'   returns -1 or 0; 0 for nothing
Public Declare PtrSafe Function VB_V_IsCWeights Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Integer

' Whether every number is 0 or 1, and some number is 1.
'   x: in, n numbers
'   n: number of elements
'   returns -1 or 0; 0 for nothing
Public Declare PtrSafe Function VB_V_IsIndicator Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Integer

' The same for a column of a chunked table.
'   x: in, columns of n numbers
'   n: number of rows
'   col: the column, from 1
'   returns -1 or 0; 0 for nothing
Public Declare PtrSafe Function VB_V_IsIndicatorSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal col As Long) As Integer

' Whether every number is exactly 0 or 1; a missing one is not.
'   x: in, n numbers
'   n: number of elements
'   returns -1 or 0
Public Declare PtrSafe Function VB_V_Is01 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Integer

' Whether every number lies from 0 to 1; a missing one does not.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   returns -1 or 0
Public Declare PtrSafe Function VB_M_IsIn01 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Integer

' Whether every number lies in an interval.
'   x: in, n numbers
'   n: number of elements
'   lo: lower end
'   hi: upper end
'   bOpen: -1: the ends do not belong to the interval
'   bSkipMissing: -1: missing numbers are passed over
'   returns -1 or 0
Public Declare PtrSafe Function VB_V_IsInInterval Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal lo As Double, ByVal hi As Double, _
    ByVal bOpen As Integer, ByVal bSkipMissing As Integer) As Integer

' Whether every number is an integer within 1e-12; the missing number is.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   returns -1 or 0
Public Declare PtrSafe Function VB_M_IsLong Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Integer

' The same for a labelled table, as far as it has columns.
'   x: in, table of numbers
'   rows: rows to test
'   cols: columns to test
'   returns -1 or 0
Public Declare PtrSafe Function Cpp_M_IsLong_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Integer

' Whether each row of a vector is at least as large as every number in that row of a table.
'   v: in, n numbers
'   n: number of rows
'   m: in, n by cols numbers
'   cols: columns of the table; 0 stands for 1
'   returns -1 or 0
Public Declare PtrSafe Function VB_V_V1GreaterThanMatCols Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef m As Double, ByVal cols As Long) As Integer

' Whether each number of one vector is at most that of another.
'   a: in, n numbers
'   n: number of rows
'   b: in, n numbers
'   returns -1 or 0
Public Declare PtrSafe Function VB_V_V1inferiorV2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double) As Integer

' Whether an integer occurs.
'   x: in, n integers
'   n: number of elements
'   val: the integer to find
'   returns -1 or 0; 0 for nothing
Public Declare PtrSafe Function Cpp_V_FindLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByVal val As Long) As Integer

' Whether a text occurs.
'   x: in, n texts
'   n: number of elements
'   val: in, one text, to be found
'   returns -1 or 0; 0 for nothing
Public Declare PtrSafe Function Cpp_V_FindStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal val As LongPtr) As Integer

' Counts the flags that are -1; another value than 0 does not count.
'   x: in, n flags
'   n: number of flags
'   returns the count
Public Declare PtrSafe Function VB_V_NbTrue Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal n As Long) As Long

' The same for a host array.
'   x: in, host array of Boolean
'   n: number of flags
'   returns the count
Public Declare PtrSafe Function Cpp_V_NbTrue_ST Lib "KORVELMathTools.dll" ( _
    ByRef x() As Boolean, ByVal n As Long) As Long

' The same for a stretch of flags.
'   x: in, to flags
'   from: first position, from 1
'   toValue: last position, included
'   returns the count; 0 when from is above to
Public Declare PtrSafe Function VB_V_NbTrueFromTo Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal from As Long, ByVal toValue As Long) As Long

' ---- statistics/vector_variance.h

' Weighted variance.
'   x: in, n numbers
'   n: number of elements
'   iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one
'   w: in, n weights; a missing one is a number like any other
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   returns the variance; missing when the denominator is exactly 0. A negative denominator is
'       divided by like any other; when nothing is kept the result is missing unless unbiased, -0.0
'       with frequency weights, and a NaN without
Public Declare PtrSafe Function VB_V_Var Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Integer, ByRef w As Double, _
    ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Double

' Variance of the elements that are not missing, all of weight 1: VB_V_Var with no flag set.
'   x: in, n numbers
'   n: number of elements
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   returns as for VB_V_Var
Public Declare PtrSafe Function Cpp_V_Var2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Double

' Weighted standard deviation: the square root of VB_V_Var.
'   x: in, n numbers
'   n: number of elements
'   iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one
'   w: in, n weights; a missing one is a number like any other
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   returns the root; 0.0 for a variance of 0; missing for a negative one and for a missing one
Public Declare PtrSafe Function VB_V_Stdev Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Integer, ByRef w As Double, _
    ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Double

' Weighted mean and variance.
'   x: in, n numbers
'   n: number of elements
'   mean: out, one number: the mean
'   var: out, one number: the variance: missing unless the denominator is greater than 0
'   iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one
'   w: in, n weights; a missing one is a number like any other
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   returns 0
Public Declare PtrSafe Function VB_V_MeanVar Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef mean As Double, ByRef var As Double, _
    ByRef iMissing As Integer, ByRef w As Double, ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Weighted mean and variance of the elements that are not missing.
'   x: in, n numbers
'   n: number of elements
'   w: in, n weights; a missing one is a number like any other
'   mean: out, one number: the mean; 0.0 when there is no such element
'   var: out, one number: the variance: missing unless the denominator is greater than 0
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   returns 0
Public Declare PtrSafe Function Cpp_V_MeanVarW2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByRef mean As Double, _
    ByRef var As Double, ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Weighted mean and standard deviation.
'   x: in, n numbers
'   n: number of elements
'   mean: out, one number: the mean
'   sd: out, one number: the standard deviation: missing unless the denominator is greater than 0,
'       and for a negative variance
'   iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one
'   w: in, n weights; a missing one is a number like any other
'   bUnbiased: whether the denominator is corrected; true only when -1
'   bFreq: how it is; true only when -1
'   returns 0
Public Declare PtrSafe Function VB_V_MeanStdev Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef mean As Double, ByRef sd As Double, _
    ByRef iMissing As Integer, ByRef w As Double, ByVal bUnbiased As Integer, ByVal bFreq As Integer) As Long

' Mean and standard deviation of the elements greater than the missing number, all of weight 1; a
' NaN is left out as well.
'   x: in, n numbers
'   n: number of elements
'   bUnbiased: -1: divided by the number kept less 1, otherwise by the number kept
'   mean: out, one number: the mean; 0.0 when nothing is kept
'   sd: out, one number: the standard deviation; a NaN with one element and unbiased; without
'       elements a NaN, or -0.0 when unbiased
'   returns 0
Public Declare PtrSafe Function Cpp_V_MeanStdev2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bUnbiased As Integer, ByRef mean As Double, _
    ByRef sd As Double) As Long

' ---- statistics/weighted_sums.h

' The sum of two tables, each times a number: a * A + b * B, cell by cell.
'   A: in, rows by cols numbers
'   rows: rows
'   cols: columns
'   B: in, rows by cols numbers
'   a2: factor of A
'   b2: factor of B
'   out: out, rows by cols numbers, 0.0 where one is missing in either table; may be A or B
'   returns 0
Public Declare PtrSafe Function VB_M_Sums1As2B Lib "KORVELMathTools.dll" ( _
    ByRef A As Double, ByVal rows As Long, ByVal cols As Long, ByRef B As Double, _
    ByVal a2 As Double, ByVal b2 As Double, ByRef out As Double) As Long

' VB_M_Sums1As2B on labelled tables.
'   A: in, labelled table of numbers, rows by cols
'   rows: rows
'   cols: columns
'   B: in, labelled table of numbers, rows by cols
'   a2: factor of A
'   b2: factor of B
'   out: inout, labelled table of numbers whose columns receive rows by cols; its counts stay
'   returns 0
Public Declare PtrSafe Function Cpp_M_Sums1As2B_ST Lib "KORVELMathTools.dll" ( _
    ByVal A As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal B As LongPtr, _
    ByVal a2 As Double, ByVal b2 As Double, ByVal out As LongPtr) As Long

' ---- tables/blocks.h

' Copies a block of a table of numbers.
'   x: in, rows by cols numbers; cells outside of them read as -1
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   firstRow: first row of the block
'   lastRow: last row of the block; below firstRow nothing is done
'   firstCol: first column of the block
'   lastCol: last column of the block; below firstCol nothing is done
'   out: out, lastRow - firstRow + 1 by lastCol - firstCol + 1 numbers
'   returns 0
Public Declare PtrSafe Function VB_M_CopyBlock Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByVal firstCol As Long, ByVal lastCol As Long, ByRef out As Double) As Long

' Copies a block of a table of texts.
'   x: in, rows by cols texts; cells outside of them read as the empty text
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   firstRow: first row of the block
'   lastRow: last row of the block; below firstRow nothing is done
'   firstCol: first column of the block
'   lastCol: last column of the block; below firstCol nothing is done
'   out: out, lastRow - firstRow + 1 by lastCol - firstCol + 1 texts
'   returns 0
Public Declare PtrSafe Function VB_M_CopyBlockStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByVal firstCol As Long, ByVal lastCol As Long, ByVal out As LongPtr) As Long

' Copies a block of a chunked table.
'   x: in, host array of cols records, each with a numeric column of rows numbers
'   rows: rows of the table
'   cols: columns of the table
'   firstRow: first row of the block
'   lastRow: last row of the block; below firstRow nothing is done
'   firstCol: first column of the block, at least 1
'   lastCol: last column of the block, at most cols; below firstCol nothing is done
'   out: inout, host array of a record for each column of the block, each with a numeric column of
'       as many numbers as the block has rows
'   returns 0
Public Declare PtrSafe Function VB_M_CopyBlockSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByVal firstCol As Long, ByVal lastCol As Long, ByVal out As LongPtr) As Long

' Copies a block of a chunked table.
'   x: in, host array of cols records, each with a numeric column of rows numbers
'   rows: rows of the table
'   cols: columns of the table
'   firstRow: first row of the block
'   lastRow: last row of the block; below firstRow nothing is done
'   firstCol: first column of the block, at least 1
'   lastCol: last column of the block, at most cols; below firstCol nothing is done
'   out: inout, host array of a record for each column of the block, each with a numeric column of
'       as many numbers as the block has rows
'   returns 0
Public Declare PtrSafe Function Cpp_M_CopyBlockSPV2 Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByVal firstCol As Long, ByVal lastCol As Long, ByVal out As LongPtr) As Long

' Copies a block of a symmetric table, of which each column is held from the diagonal down.
'   x: in, host array of n records, each with a numeric column: of n numbers the first, and of one
'       less each next
'   n: order of the table
'   firstRow: first row of the block, at least 1
'   lastRow: last row of the block, at most n; below firstRow nothing is done
'   firstCol: first column of the block, at least 1
'   lastCol: last column of the block, at most n; below firstCol nothing is done
'   out: inout, host array of a record for each column of the block, each with a numeric column of
'       as many numbers as the block has rows
'   returns 0
Public Declare PtrSafe Function Cpp_M_CopyBlockSPV2_T Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal firstRow As Long, ByVal lastRow As Long, _
    ByVal firstCol As Long, ByVal lastCol As Long, ByVal out As LongPtr) As Long

' Writes a table of numbers into a larger one.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   y: inout, yRows by yCols numbers
'   yRows: rows of the larger table
'   yCols: columns of the larger table; 0 stands for 1
'   row: its row for the first row
'   col: its column for the first column
'   returns 0
Public Declare PtrSafe Function VB_M_PasteBlock Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Double, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Writes a table of integers into a larger one.
'   x: in, rows by cols integers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   y: inout, yRows by yCols integers
'   yRows: rows of the larger table
'   yCols: columns of the larger table; 0 stands for 1
'   row: its row for the first row
'   col: its column for the first column
'   returns 0
Public Declare PtrSafe Function VB_M_PasteBlockLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByRef y As Long, ByVal yRows As Long, _
    ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a block of a table of numbers to a place in another, which may be the same.
'   x: in, rows by cols numbers; cells outside of them read as -1
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   firstRow: first row of the block
'   lastRow: last row of the block; below firstRow nothing is done
'   firstCol: first column of the block
'   lastCol: last column of the block; below firstCol nothing is done
'   y: inout, yRows by yCols numbers
'   yRows: rows of the other table
'   yCols: columns of the other table; 0 stands for 1
'   row: its row for the first row of the block
'   col: its column for the first column of the block
'   returns 0
Public Declare PtrSafe Function Cpp_M_CopyPasteBlock Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByVal firstCol As Long, ByVal lastCol As Long, ByRef y As Double, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a block of a table of texts to a place in another, which may be the same.
'   x: in, rows by cols texts; cells outside of them read as the empty text
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   firstRow: first row of the block
'   lastRow: last row of the block; below firstRow nothing is done
'   firstCol: first column of the block
'   lastCol: last column of the block; below firstCol nothing is done
'   y: inout, yRows by yCols texts
'   yRows: rows of the other table
'   yCols: columns of the other table; 0 stands for 1
'   row: its row for the first row of the block
'   col: its column for the first column of the block
'   returns 0
Public Declare PtrSafe Function Cpp_M_CopyPasteBlockStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByVal firstCol As Long, ByVal lastCol As Long, ByVal y As LongPtr, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a block of a chunked table to a place in another.
'   x: in, host array of cols records, each with a numeric column of rows numbers
'   rows: rows of the table
'   cols: columns of the table
'   firstRow: first row of the block
'   lastRow: last row of the block; below firstRow nothing is done
'   firstCol: first column of the block, at least 1
'   lastCol: last column of the block, at most cols; below firstCol nothing is done
'   y: inout, host array of yCols records, each with a numeric column of yRows numbers; another than
'       x
'   yRows: rows of the other table; what would fall below is left out
'   yCols: columns of the other table; all columns of the block must fall among them
'   row: its row for the first row of the block
'   col: its column for the first column of the block
'   returns 0
Public Declare PtrSafe Function Cpp_M_CopyPasteBlockSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByVal firstCol As Long, ByVal lastCol As Long, ByVal y As LongPtr, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' ---- tables/cell_maps.h

' Natural logarithms.
'   x: in, rows by cols numbers
'   rows: rows of both tables
'   cols: columns of both tables; 0 stands for 1
'   y: out, rows by cols numbers, missing for a cell of 0 or below and for a missing one; may be x
'   returns 0
Public Declare PtrSafe Function VB_M_LogMatrix Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Double) As Long

' Logarithms to base 10.
'   x: in, rows by cols numbers
'   rows: rows of both tables
'   cols: columns of both tables; 0 stands for 1
'   y: out, rows by cols numbers, missing for a cell of 0 or below and for a missing one; may be x
'   returns 0
Public Declare PtrSafe Function VB_M_Log10Matrix Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Double) As Long

' Square roots.
'   x: in, rows by cols numbers
'   rows: rows of both tables
'   cols: columns of both tables; 0 stands for 1
'   y: out, rows by cols numbers, missing for a cell below 0 and for a missing one; may be x
'   returns 0
Public Declare PtrSafe Function Cpp_M_SquareRootAij Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Double) As Long

' Square roots, in place.
'   x: inout, rows by cols numbers; a cell below 0 becomes missing
'   rows: rows of x
'   cols: columns of x; 0 stands for 1
'   returns 0
Public Declare PtrSafe Function Cpp_M_SquareRootAij2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Long

' Subtracts the first cell of its row from each cell, in place; the first column becomes 0.
'   x: inout, rows by cols numbers. A missing cell stays missing, and a row whose first cell is
'       missing becomes missing
'   rows: rows of x
'   cols: columns of x
'   returns 0
Public Declare PtrSafe Function Cpp_M_SubstractFirstCol2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Long

' Tells whether all cells of a table lie in an interval.
'   x: in, chunked table of cols columns of rows numbers
'   rows: rows of x
'   cols: columns of x
'   lo: lower end
'   hi: upper end
'   bOpen: -1: a cell equal to an end is outside; otherwise it is inside
'   bSkipMissing: -1: missing cells are passed over; otherwise they are compared like others
'   returns -1 when no cell is outside, also when there is none; otherwise 0
Public Declare PtrSafe Function VB_M_IsInIntervalSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal lo As Double, _
    ByVal hi As Double, ByVal bOpen As Integer, ByVal bSkipMissing As Integer) As Integer

' ---- tables/columns.h

' Copies a column of a table into a column of another.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   col: the column to copy; one that the table does not have reads as -1
'   y: inout, yRows by yCols numbers; may be x
'   yRows: rows of y; what would fall below is left out
'   yCols: columns of y; 0 stands for 1
'   colTo: the column of y; nothing is stored in one that it does not have
'   bReset: not 0: all other cells of y become 0
'   returns 0
Public Declare PtrSafe Function VB_CopyMatrixColToMatrixCol Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, ByRef y As Double, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal colTo As Long, ByVal bReset As Integer) As Long

' Copies a row of a table into a row of another.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   row: the row to copy; one that the table does not have reads as -1
'   y: inout, yRows by yCols numbers; may be x
'   yRows: rows of y
'   yCols: columns of y; 0 stands for 1. What would fall to the right is left out
'   rowTo: the row of y; nothing is stored in one that it does not have
'   bReset: not 0: all other cells of y become 0
'   returns 0
Public Declare PtrSafe Function VB_CopyMatrixRowToMatrixRow Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal row As Long, ByRef y As Double, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal rowTo As Long, ByVal bReset As Integer) As Long

' Copies a column of a table into a vector.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   col: the column to copy; one that the table does not have reads as -1
'   y: out, rows numbers
'   returns 0
Public Declare PtrSafe Function VB_CopyMatrixColToVector Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, ByRef y As Double) As Long

' Copies a column of a table of texts into a vector.
'   x: in, rows by cols texts
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   col: the column to copy; one that the table does not have reads as empty texts
'   y: out, rows texts
'   returns 0
Public Declare PtrSafe Function VB_CopyMatrixColToOneColMatStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, _
    ByVal y As LongPtr) As Long

' Moves a row of a table to another place, in place; the rows between the two move up or down by
' one.
'   x: inout, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   from: the row to move
'   toValue: where it goes. Nothing happens unless both are rows of the table
'   returns 0
Public Declare PtrSafe Function VB_M_MoveRow Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal from As Long, _
    ByVal toValue As Long) As Long

' Copies a range of rows of a column of numbers to a place in a table.
'   x: in, rows by cols numbers; cells outside of them read as -1
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   col: the column to copy
'   from: first row to copy
'   toValue: last row to copy; below from nothing is done
'   y: inout, yRows by yCols numbers; may be x
'   yRows: rows of the table written; what would fall outside is left out
'   yCols: columns of the table written; 0 stands for 1
'   row: row of y for the first
'   yCol: column of y
'   returns 0
Public Declare PtrSafe Function VB_V_DuplicateDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, _
    ByVal from As Long, ByVal toValue As Long, ByRef y As Double, ByVal yRows As Long, _
    ByVal yCols As Long, ByVal row As Long, ByVal yCol As Long) As Long

' Copies a range of rows of a column of integers to a place in a table.
'   x: in, rows by cols integers; cells outside of them read as -1
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   col: the column to copy
'   from: first row to copy
'   toValue: last row to copy; below from nothing is done
'   y: inout, yRows by yCols integers; may be x
'   yRows: rows of the table written; what would fall outside is left out
'   yCols: columns of the table written; 0 stands for 1
'   row: row of y for the first
'   yCol: column of y
'   returns 0
Public Declare PtrSafe Function VB_V_DuplicateLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef y As Long, ByVal yRows As Long, ByVal yCols As Long, _
    ByVal row As Long, ByVal yCol As Long) As Long

' Copies a range of rows of a column of numbers to a place in a table of integers.
'   x: in, rows by cols numbers; cells outside of them read as -1
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   col: the column to copy
'   from: first row to copy
'   toValue: last row to copy; below from nothing is done
'   y: inout, yRows by yCols integers
'   yRows: rows of the table written; what would fall outside is left out
'   yCols: columns of the table written; 0 stands for 1
'   row: row of y for the first
'   yCol: column of y
'   returns 0
Public Declare PtrSafe Function VB_V_DuplicateDblToLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, _
    ByVal from As Long, ByVal toValue As Long, ByRef y As Long, ByVal yRows As Long, _
    ByVal yCols As Long, ByVal row As Long, ByVal yCol As Long) As Long

' Copies a range of rows of a column of integers to a place in a table of numbers.
'   x: in, rows by cols integers; cells outside of them read as -1
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   col: the column to copy
'   from: first row to copy
'   toValue: last row to copy; below from nothing is done
'   y: inout, yRows by yCols numbers
'   yRows: rows of the table written; what would fall outside is left out
'   yCols: columns of the table written; 0 stands for 1
'   row: row of y for the first
'   yCol: column of y
'   returns 0
Public Declare PtrSafe Function VB_V_DuplicateLngToDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, ByVal from As Long, _
    ByVal toValue As Long, ByRef y As Double, ByVal yRows As Long, ByVal yCols As Long, _
    ByVal row As Long, ByVal yCol As Long) As Long

' Copies a range of rows of a column of texts to a place in a table.
'   x: in, rows by cols texts; cells outside of them read as the empty text
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   col: the column to copy
'   from: first row to copy
'   toValue: last row to copy; below from nothing is done
'   y: inout, yRows by yCols texts; may be x
'   yRows: rows of the table written; what would fall outside is left out
'   yCols: columns of the table written; 0 stands for 1
'   row: row of y for the first
'   yCol: column of y
'   returns 0
Public Declare PtrSafe Function VB_V_DuplicateStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, _
    ByVal from As Long, ByVal toValue As Long, ByVal y As LongPtr, ByVal yRows As Long, _
    ByVal yCols As Long, ByVal row As Long, ByVal yCol As Long) As Long

' Copies a range of rows of a column of flags to a place in a table.
'   x: in, rows by cols flags; cells outside of them read as 0
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   col: the column to copy
'   from: first row to copy
'   toValue: last row to copy; below from nothing is done
'   y: inout, yRows by yCols flags; may be x
'   yRows: rows of the table written; what would fall outside is left out
'   yCols: columns of the table written; 0 stands for 1
'   row: row of y for the first
'   yCol: column of y
'   returns 0
Public Declare PtrSafe Function Cpp_V_DuplicateBool Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal rows As Long, ByVal cols As Long, ByVal col As Long, _
    ByVal from As Long, ByVal toValue As Long, ByRef y As Integer, ByVal yRows As Long, _
    ByVal yCols As Long, ByVal row As Long, ByVal yCol As Long) As Long

' Copies a range of rows of a column of numbers to a place in a table, both host arrays that come
' out of a record.
'   x: in, host array of Double; cells outside of it read as -1
'   col: the column to copy
'   from: first row to copy
'   toValue: last row to copy; below from nothing is done
'   y: inout, host array of Double; may be x. What would fall outside is left out
'   row: row of y for the first
'   yCol: column of y
'   returns 0
Public Declare PtrSafe Function Cpp_V_DuplicateDbl_ST Lib "KORVELMathTools.dll" ( _
    ByRef x() As Double, ByVal col As Long, ByVal from As Long, ByVal toValue As Long, _
    ByRef y() As Double, ByVal row As Long, ByVal yCol As Long) As Long

' Copies a range of rows of a column of integers to a place in a table, both host arrays that come
' out of a record.
'   x: in, host array of Long; cells outside of it read as -1
'   col: the column to copy
'   from: first row to copy
'   toValue: last row to copy; below from nothing is done
'   y: inout, host array of Long; may be x. What would fall outside is left out
'   row: row of y for the first
'   yCol: column of y
'   returns 0
Public Declare PtrSafe Function Cpp_V_DuplicateLng_ST Lib "KORVELMathTools.dll" ( _
    ByRef x() As Long, ByVal col As Long, ByVal from As Long, ByVal toValue As Long, _
    ByRef y() As Long, ByVal row As Long, ByVal yCol As Long) As Long

' Copies a range of rows of a column of texts to a place in a table, both host arrays that come out
' of a record.
'   x: in, host array of String; cells outside of it read as the empty text
'   col: the column to copy
'   from: first row to copy
'   toValue: last row to copy; below from nothing is done
'   y: inout, host array of String; may be x. What would fall outside is left out
'   row: row of y for the first
'   yCol: column of y
'   returns 0
Public Declare PtrSafe Function Cpp_V_DuplicateStr_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal col As Long, ByVal from As Long, ByVal toValue As Long, _
    ByVal y As LongPtr, ByVal row As Long, ByVal yCol As Long) As Long

' ---- tables/duplicate.h

' Copies a table of numbers into another.
'   x: in, rows by cols numbers
'   rows: rows of x
'   cols: columns of x; 0 stands for 1
'   y: inout, yRows by yCols numbers; may be x
'   yRows: rows of y
'   yCols: columns of y; 0 stands for 1
'   row: row of y for the first row of x
'   col: column of y for the first column of x
'   returns 0
Public Declare PtrSafe Function VB_M_DuplicateDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Double, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a table of integers into another.
'   x: in, rows by cols integers
'   rows: rows of x
'   cols: columns of x; 0 stands for 1
'   y: inout, yRows by yCols integers; may be x
'   yRows: rows of y
'   yCols: columns of y; 0 stands for 1
'   row: row of y for the first row of x
'   col: column of y for the first column of x
'   returns 0
Public Declare PtrSafe Function VB_M_DuplicateLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByRef y As Long, ByVal yRows As Long, _
    ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a table of texts into another.
'   x: in, rows by cols texts
'   rows: rows of x
'   cols: columns of x; 0 stands for 1
'   y: inout, yRows by yCols texts; may be x
'   yRows: rows of y
'   yCols: columns of y; 0 stands for 1
'   row: row of y for the first row of x
'   col: column of y for the first column of x
'   returns 0
Public Declare PtrSafe Function VB_M_DuplicateStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a chunked table of texts into a dense one.
'   x: in, host array of cols records, each with a text column of rows texts
'   rows: rows of x
'   cols: columns of x
'   y: inout, yRows by yCols texts
'   yRows: rows of y
'   yCols: columns of y; 0 stands for 1
'   row: row of y for the first row of x
'   col: column of y for the first column of x
'   returns 0
Public Declare PtrSafe Function VB_M_DuplicateStrSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a table of labelled columns of numbers into another.
'   x: in, the record, with columns of numbers; an element that a column does not have reads as -1
'   rows: rows of x
'   cols: columns of x
'   y: inout, another record; elements for which a column has no room are left out
'   yRows: rows of y
'   yCols: columns of y
'   row: row of y for the first row of x
'   col: column of y for the first column of x
'   returns 0
Public Declare PtrSafe Function Cpp_M_DuplicateDbl_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a table of labelled columns of texts into another.
'   x: in, the record, with columns of texts; an element that a column does not have reads as the
'       empty text
'   rows: rows of x
'   cols: columns of x
'   y: inout, another record; elements for which a column has no room are left out
'   yRows: rows of y
'   yCols: columns of y
'   row: row of y for the first row of x
'   col: column of y for the first column of x
'   returns 0
Public Declare PtrSafe Function Cpp_M_DuplicateStr_ST Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a chunked table into a dense one.
'   x: in, host array of cols records, each with a numeric column of rows numbers
'   rows: rows of x
'   cols: columns of x
'   y: inout, yRows by yCols numbers
'   yRows: rows of y
'   yCols: columns of y; 0 stands for 1
'   row: row of y for the first row of x
'   col: column of y for the first column of x
'   returns 0
Public Declare PtrSafe Function Cpp_M_DuplicateDblSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByRef y As Double, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a dense table into a chunked one.
'   x: in, rows by cols numbers
'   rows: rows of x
'   cols: columns of x; 0 stands for 1
'   y: inout, host array of yCols records, each with a numeric column of yRows numbers
'   yRows: rows of y
'   yCols: columns of y
'   row: row of y for the first row of x
'   col: column of y for the first column of x
'   returns 0
Public Declare PtrSafe Function Cpp_M_DuplicateDblSPV2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a dense table into a triangle, of which each column is held from the diagonal down.
'   x: in, rows by cols numbers
'   rows: rows of x
'   cols: columns of x; 0 stands for 1
'   y: inout, host array of yCols records, each with a numeric column: of yRows numbers the first,
'       and of one less each next
'   yRows: rows of y
'   yCols: columns of y
'   row: row of y for the first row of x
'   col: column of y for the first column of x
'   returns 0
Public Declare PtrSafe Function Cpp_M_DuplicateDblSPV2_T Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' Copies a chunked table into another.
'   x: in, host array of cols records, each with a numeric column of rows numbers
'   rows: rows of x
'   cols: columns of x
'   y: inout, host array of yCols records, each with a numeric column of yRows numbers; another than
'       x
'   yRows: rows of y
'   yCols: columns of y
'   row: row of y for the first row of x
'   col: column of y for the first column of x
'   returns 0
Public Declare PtrSafe Function Cpp_M_DuplicateDblSPV3 Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr, _
    ByVal yRows As Long, ByVal yCols As Long, ByVal row As Long, ByVal col As Long) As Long

' ---- tables/extract.h

' Takes a range of rows of a table of numbers.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   firstRow: first row of the range
'   lastRow: last row of the range; below firstRow nothing is done
'   out: out, lastRow - firstRow + 1 by cols numbers
'   returns 0
Public Declare PtrSafe Function VB_M_ExtractMatToMatDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByRef out As Double) As Long

' Takes a range of rows of a table of texts.
'   x: in, rows by cols texts
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   firstRow: first row of the range
'   lastRow: last row of the range; below firstRow nothing is done
'   out: out, lastRow - firstRow + 1 by cols texts
'   returns 0
Public Declare PtrSafe Function VB_M_ExtractMatToMatStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByVal out As LongPtr) As Long

' Takes a range of rows of a chunked table of numbers.
'   x: in, host array of cols records, each with a numeric column of rows numbers
'   rows: rows of the table
'   cols: columns of the table
'   firstRow: first row of the range
'   lastRow: last row of the range; below firstRow nothing is done
'   out: out, lastRow - firstRow + 1 by cols numbers
'   returns 0
Public Declare PtrSafe Function VB_M_ExtractMatToMatDblSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByRef out As Double) As Long

' Takes a range of rows of a chunked table of texts.
'   x: in, host array of cols records, each with a text column of rows texts
'   rows: rows of the table
'   cols: columns of the table
'   firstRow: first row of the range
'   lastRow: last row of the range; below firstRow nothing is done
'   out: out, lastRow - firstRow + 1 by cols texts
'   returns 0
Public Declare PtrSafe Function VB_M_ExtractMatToMatStrSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal firstRow As Long, _
    ByVal lastRow As Long, ByVal out As LongPtr) As Long

' Takes a range of rows of a table of numbers.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   i: first row of the range
'   j: last row of the range; below i nothing is done
'   out: out, j - i + 1 by cols numbers
'   returns 0
Public Declare PtrSafe Function Cpp_Extractij Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal i As Long, ByVal j As Long, _
    ByRef out As Double) As Long

' Takes a range of columns of a table.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   firstCol: first column of the range
'   lastCol: last column of the range; below firstCol nothing is done
'   out: out, rows by lastCol - firstCol + 1 numbers
'   returns 0
Public Declare PtrSafe Function VB_M_ExtractMatToMatByColDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal firstCol As Long, _
    ByVal lastCol As Long, ByRef out As Double) As Long

' ---- tables/fill.h

' Numbers a vector: element k, from 1, becomes k.
'   x: out, n numbers
'   n: number of elements
'   returns 0
Public Declare PtrSafe Function VB_V_Set1toNDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' Numbers a vector: element k, from 1, becomes k.
'   x: out, n integers
'   n: number of elements
'   returns 0
Public Declare PtrSafe Function VB_V_Set1toNLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long) As Long

' Numbers a vector: element k, from 1, becomes k, in decimal digits.
'   x: inout, n texts, replaced where they differ
'   n: number of elements
'   returns 0
Public Declare PtrSafe Function VB_V_Set1toNStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long) As Long

' Sets flags to false.
'   flags: out, n flags, each 0 on return
'   n: number of flags
'   returns 0
Public Declare PtrSafe Function VB_InitVectorToFalse Lib "KORVELMathTools.dll" ( _
    ByRef flags As Integer, ByVal n As Long) As Long

' Sets flags to true.
'   flags: out, n flags, each -1 on return
'   n: number of flags
'   returns 0
Public Declare PtrSafe Function VB_InitVectorToTrue Lib "KORVELMathTools.dll" ( _
    ByRef flags As Integer, ByVal n As Long) As Long

' Flags the cells of a table that equal a number.
'   x: in, rows by cols integers
'   rows: rows of both tables
'   cols: columns of both tables; 0 stands for 1
'   value: the number; the missing integer is one like the others
'   flags: out, rows by cols flags: -1 where the cell equals value, otherwise 0
'   returns 0
Public Declare PtrSafe Function Cpp_M_SetBooleanIfLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByVal value As Long, _
    ByRef flags As Integer) As Long

' ---- tables/labels.h

' Makes repeated labels distinct: a repeat gets a number behind it, from 2 on.
'   labels: inout, n texts, replaced where they differ
'   n: number of labels
'   returns 0
Public Declare PtrSafe Function VB_V_ReplaceDoubles Lib "KORVELMathTools.dll" ( _
    ByVal labels As LongPtr, ByVal n As Long) As Long

' Joins two vectors of labels.
'   a: in, n texts
'   n: number of labels
'   b: in, n texts
'   sep: in, one text: what stands between them
'   out: inout, n texts, replaced where they differ; it may be a or b
'   returns 0
Public Declare PtrSafe Function Cpp_V_MergeVectorsStr Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal b As LongPtr, ByVal sep As LongPtr, _
    ByVal out As LongPtr) As Long

' ---- tables/matrix_dump.h

' Writes a table of numbers to a text file.
'   a: in, rows by cols numbers, written with 20 significant digits, a missing one like the others
'   rows: rows of a
'   cols: columns of a
'   name: in, base name of the file
Public Declare PtrSafe Sub Cpp_WriteMatrixDbl Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal rows As Long, ByVal cols As Long, ByVal name As String)

' Writes a table of integers to a text file.
'   a: in, rows by cols integers
'   rows: rows of a
'   cols: columns of a
'   name: in, base name of the file
Public Declare PtrSafe Sub Cpp_WriteMatrixLng Lib "KORVELMathTools.dll" ( _
    ByRef a As Long, ByVal rows As Long, ByVal cols As Long, ByVal name As String)

' Writes a table of texts to a text file.
'   a: in, rows by cols texts, written in UTF-8, a missing one as nothing
'   rows: rows of a
'   cols: columns of a
'   name: in, base name of the file
'   returns 0
Public Declare PtrSafe Function Cpp_WriteMatrixStr Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal name As String) As Long

' ---- tables/merge.h

' Puts two tables of numbers side by side.
'   a: in, rowsA by colsA numbers
'   rowsA: rows of the first table
'   colsA: columns of the first table; 0 stands for 1
'   b: in, rowsB by colsB numbers
'   rowsB: rows of the second table
'   colsB: columns of the second table; 0 stands for 1
'   out: out, max(rowsA, rowsB) by colsA + colsB numbers: the columns of the first table, then those
'       of the second
'   returns 0
Public Declare PtrSafe Function VB_HMergeTablesDbl Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal rowsA As Long, ByVal colsA As Long, ByRef b As Double, _
    ByVal rowsB As Long, ByVal colsB As Long, ByRef out As Double) As Long

' Puts two tables of flags side by side.
'   a: in, rowsA by colsA flags
'   rowsA: rows of the first table
'   colsA: columns of the first table; 0 stands for 1
'   b: in, rowsB by colsB flags
'   rowsB: rows of the second table
'   colsB: columns of the second table; 0 stands for 1
'   out: out, max(rowsA, rowsB) by colsA + colsB flags: the columns of the first table, then those
'       of the second
'   returns 0
Public Declare PtrSafe Function VB_HMergeTablesBool Lib "KORVELMathTools.dll" ( _
    ByRef a As Integer, ByVal rowsA As Long, ByVal colsA As Long, ByRef b As Integer, _
    ByVal rowsB As Long, ByVal colsB As Long, ByRef out As Integer) As Long

' Puts two tables of texts side by side.
'   a: in, rowsA by colsA texts
'   rowsA: rows of the first table
'   colsA: columns of the first table; 0 stands for 1
'   b: in, rowsB by colsB texts
'   rowsB: rows of the second table
'   colsB: columns of the second table; 0 stands for 1
'   out: out, max(rowsA, rowsB) by colsA + colsB texts: the columns of the first table, then those
'       of the second
'   returns 0
Public Declare PtrSafe Function VB_HMergeTablesStr Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal rowsA As Long, ByVal colsA As Long, ByVal b As LongPtr, _
    ByVal rowsB As Long, ByVal colsB As Long, ByVal out As LongPtr) As Long

' Adds the columns of a table of numbers to the right of another, in place.
'   a: inout, rowsA by colsA + colsB numbers, of which the last colsB columns receive the second
'       table; of these, rows that it does not have stay
'   rowsA: rows of the first table
'   colsA: columns that the first table has already; 0 stands for 1
'   b: in, rowsB by colsB numbers; rows beyond rowsA are left out
'   rowsB: rows of the second table
'   colsB: columns of the second table; 0 stands for 1
'   returns 0
Public Declare PtrSafe Function VB_HMergeTablesDbl2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal rowsA As Long, ByVal colsA As Long, ByRef b As Double, _
    ByVal rowsB As Long, ByVal colsB As Long) As Long

' Adds the columns of a table of integers to the right of another, in place.
'   a: inout, rowsA by colsA + colsB integers, of which the last colsB columns receive the second
'       table; of these, rows that it does not have stay
'   rowsA: rows of the first table
'   colsA: columns that the first table has already; 0 stands for 1
'   b: in, rowsB by colsB integers; rows beyond rowsA are left out
'   rowsB: rows of the second table
'   colsB: columns of the second table; 0 stands for 1
'   returns 0
Public Declare PtrSafe Function VB_HMergeTablesLng2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Long, ByVal rowsA As Long, ByVal colsA As Long, ByRef b As Long, ByVal rowsB As Long, _
    ByVal colsB As Long) As Long

' Adds the columns of a table of flags to the right of another, in place.
'   a: inout, rowsA by colsA + colsB flags, of which the last colsB columns receive the second
'       table; of these, rows that it does not have stay
'   rowsA: rows of the first table
'   colsA: columns that the first table has already; 0 stands for 1
'   b: in, rowsB by colsB flags; rows beyond rowsA are left out
'   rowsB: rows of the second table
'   colsB: columns of the second table; 0 stands for 1
'   returns 0
Public Declare PtrSafe Function VB_HMergeTablesBool2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Integer, ByVal rowsA As Long, ByVal colsA As Long, ByRef b As Integer, _
    ByVal rowsB As Long, ByVal colsB As Long) As Long

' Adds the columns of a table of texts to the right of another, in place.
'   a: inout, rowsA by colsA + colsB texts, of which the last colsB columns receive the second
'       table; of these, rows that it does not have stay
'   rowsA: rows of the first table
'   colsA: columns that the first table has already; 0 stands for 1
'   b: in, rowsB by colsB texts; rows beyond rowsA are left out
'   rowsB: rows of the second table
'   colsB: columns of the second table; 0 stands for 1
'   returns 0
Public Declare PtrSafe Function VB_HMergeTablesStr2 Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal rowsA As Long, ByVal colsA As Long, ByVal b As LongPtr, _
    ByVal rowsB As Long, ByVal colsB As Long) As Long

' Adds the columns of a table of numbers to a chunked one, in place.
'   a: inout, host array of colsA + colsB records, each with a numeric column of rowsA numbers, of
'       which the last colsB receive the second table
'   rowsA: rows of the first table
'   colsA: columns that the first table has already
'   b: in, rowsB by colsB numbers; rows beyond rowsA are left out
'   rowsB: rows of the second table
'   colsB: columns of the second table; 0 stands for 1
'   returns 0
Public Declare PtrSafe Function VB_HMergeTablesDbl2SPV Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal rowsA As Long, ByVal colsA As Long, ByRef b As Double, _
    ByVal rowsB As Long, ByVal colsB As Long) As Long

' Adds the columns of a chunked table of numbers to another, in place.
'   a: inout, host array of colsA + colsB records, each with a numeric column of rowsA numbers, of
'       which the last colsB receive the second table
'   rowsA: rows of the first table
'   colsA: columns that the first table has already
'   b: in, host array of colsB records, each with a numeric column of rowsB numbers; rows beyond
'       rowsA are left out
'   rowsB: rows of the second table
'   colsB: columns of the second table
'   returns 0
Public Declare PtrSafe Function VB_HMergeTablesDbl2SPV2 Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal rowsA As Long, ByVal colsA As Long, ByVal b As LongPtr, _
    ByVal rowsB As Long, ByVal colsB As Long) As Long

' Puts two vectors side by side.
'   a: in, nA numbers
'   nA: length of the first vector
'   b: in, nB numbers
'   nB: length of the second vector
'   out: out, max(nA, nB) by 2 numbers
'   returns 0
Public Declare PtrSafe Function VB_HMergeVectors Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal nA As Long, ByRef b As Double, ByVal nB As Long, ByRef out As Double) As Long

' Puts a vector to the right of a table.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   v: in, n numbers, for column cols + 1
'   n: length of the vector
'   out: out, outRows by outCols numbers; what falls outside of them is left out
'   outRows: rows of the result
'   outCols: columns of the result; 0 stands for 1
'   returns 0
Public Declare PtrSafe Function VB_HMergeTableVect Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, ByVal n As Long, _
    ByRef out As Double, ByVal outRows As Long, ByVal outCols As Long) As Long

' Adds a vector to the right of a table, in place.
'   x: inout, rows by cols + 1 numbers, of which the last column receives the vector; rows that it
'       does not have stay
'   rows: rows of the table
'   cols: columns that the table has already; 0 stands for 1
'   v: in, n numbers; those beyond rows are left out
'   n: length of the vector
'   returns 0
Public Declare PtrSafe Function VB_HMergeTableVect2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double, ByVal n As Long) As Long

' Puts a vector to the left of a table.
'   v: in, n numbers, for column 1
'   n: length of the vector
'   x: in, rows by cols numbers, for the columns from 2 on
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   out: out, outRows by outCols numbers; what falls outside of them is left out
'   outRows: rows of the result
'   outCols: columns of the result; 0 stands for 1
'   returns 0
Public Declare PtrSafe Function VB_HMergeVectTable Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef x As Double, ByVal rows As Long, ByVal cols As Long, _
    ByRef out As Double, ByVal outRows As Long, ByVal outCols As Long) As Long

' Puts a vector to the left of one column of a table.
'   v: in, n numbers, for column 1
'   n: length of the vector
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   col: the table's column, from 1, for column 2; one that it does not have gives -1
'   out: out, outRows by 2 numbers; what falls outside of them is left out
'   outRows: rows of the result
'   returns 0
Public Declare PtrSafe Function VB_HMergeVectColDbl Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef x As Double, ByVal rows As Long, ByVal cols As Long, _
    ByVal col As Long, ByRef out As Double, ByVal outRows As Long) As Long

' Puts a vector of numbers behind another.
'   a: in, nA numbers
'   nA: length of the first vector
'   b: in, nB numbers
'   nB: length of the second vector
'   out: out, nA + nB numbers
'   returns 0
Public Declare PtrSafe Function VB_VMergeVectorsDbl Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal nA As Long, ByRef b As Double, ByVal nB As Long, ByRef out As Double) As Long

' Puts a vector of texts behind another.
'   a: in, nA texts
'   nA: length of the first vector
'   b: in, nB texts
'   nB: length of the second vector
'   out: out, nA + nB texts
'   returns 0
Public Declare PtrSafe Function VB_VMergeVectorsStr Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal nA As Long, ByVal b As LongPtr, ByVal nB As Long, ByVal out As LongPtr) As Long

' Adds a vector of numbers behind another, in place.
'   a: inout, nA + nB numbers, of which the last nB receive the second vector
'   nA: length that the first vector has already
'   b: in, nB numbers
'   nB: length of the second vector
'   returns 0
Public Declare PtrSafe Function VB_VMergeVectorsDbl2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal nA As Long, ByRef b As Double, ByVal nB As Long) As Long

' Adds a vector of flags behind another, in place.
'   a: inout, nA + nB flags, of which the last nB receive the second vector
'   nA: length that the first vector has already
'   b: in, nB flags
'   nB: length of the second vector
'   returns 0
Public Declare PtrSafe Function VB_VMergeVectorsBool2 Lib "KORVELMathTools.dll" ( _
    ByRef a As Integer, ByVal nA As Long, ByRef b As Integer, ByVal nB As Long) As Long

' Adds a vector of texts behind another, in place.
'   a: inout, nA + nB texts, of which the last nB receive the second vector
'   nA: length that the first vector has already
'   b: in, nB texts
'   nB: length of the second vector
'   returns 0
Public Declare PtrSafe Function VB_VMergeVectorsStr2 Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal nA As Long, ByVal b As LongPtr, ByVal nB As Long) As Long

' Puts a table of numbers below another.
'   a: in, rowsA by colsA numbers
'   rowsA: rows of the first table
'   colsA: columns of the first table; 0 stands for 1
'   b: in, rowsB by colsB numbers
'   rowsB: rows of the second table
'   colsB: columns of the second table; 0 stands for 1
'   out: out, rowsA + rowsB by max(colsA, colsB) numbers
'   returns 0
Public Declare PtrSafe Function VB_VMergeTablesDbl Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal rowsA As Long, ByVal colsA As Long, ByRef b As Double, _
    ByVal rowsB As Long, ByVal colsB As Long, ByRef out As Double) As Long

' Puts a table of numbers below a chunked one.
'   a: in, host array of colsA records, each with a numeric column of rowsA numbers
'   rowsA: rows of the first table
'   colsA: columns of the first table
'   b: in, rowsB by colsB numbers
'   rowsB: rows of the second table
'   colsB: columns of the second table; 0 stands for 1
'   out: out, rowsA + rowsB by max(colsA, colsB) numbers
'   returns 0
Public Declare PtrSafe Function Cpp_VMergeTablesDblSPV Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal rowsA As Long, ByVal colsA As Long, ByRef b As Double, _
    ByVal rowsB As Long, ByVal colsB As Long, ByRef out As Double) As Long

' ---- tables/proximity.h

' Tells similarities from dissimilarities.
'   x: in, rows by cols numbers
'   rows: rows of x
'   cols: columns of x
'   returns 1 for similarities; 2 for dissimilarities, also when all cells are 0; 0 for neither, and
'       for a table that is not square or has no rows
Public Declare PtrSafe Function VB_M_CheckIfSimOrDissim Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Long

' Tells similarities from dissimilarities.
'   x: in, chunked table of cols columns of rows numbers
'   rows: rows of x
'   cols: columns of x
'   returns 1 for similarities; 2 for dissimilarities, also when all cells are 0; 0 for neither, and
'       for a table that is not square or has no rows
Public Declare PtrSafe Function VB_M_CheckIfSimOrDissimSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Long

' Turns similarities into dissimilarities: every cell becomes the largest cell of the table less
' itself.
'   x: inout, n by n numbers
'   n: order
'   returns 0
Public Declare PtrSafe Function VB_M_TransformSimToDissim Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Long

' ---- tables/remove.h

' Copies a table without one column.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   k: the column to leave out; one below 1 counts as 1, and one above cols as cols
'   out: out, rows by cols - 1 numbers
'   returns 0
Public Declare PtrSafe Function VB_M_RemoveCol Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, ByRef out As Double) As Long

' Copies a table without one row.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   k: the row to leave out; one below 1 counts as 1, and one above rows as rows
'   out: out, rows - 1 by cols numbers
'   returns 0
Public Declare PtrSafe Function VB_M_RemoveRow Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal k As Long, ByRef out As Double) As Long

' Takes a run of columns out of a table in place: those behind it move left.
'   x: inout, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   first: first column of the run; one below 1 counts as 1
'   last: last column of the run; one above cols counts as cols. Below first, nothing happens
'   returns 0
Public Declare PtrSafe Function VB_M_RemoveCols2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal first As Long, _
    ByVal last As Long) As Long

' Takes a run of rows out of a table in place: those below it move up.
'   x: inout, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   first: first row of the run; one below 1 counts as 1
'   last: last row of the run; one above rows counts as rows. Below first, nothing happens
'   returns 0
Public Declare PtrSafe Function VB_M_RemoveRows2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal first As Long, _
    ByVal last As Long) As Long

' Takes a run of rows out of a table of texts in place: those below it move up.
'   x: inout, rows by cols texts
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   first: first row of the run; one below 1 counts as 1
'   last: last row of the run; one above rows counts as rows. Below first, nothing happens
'   returns 0
Public Declare PtrSafe Function Cpp_M_RemoveRowsStr2 Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal first As Long, _
    ByVal last As Long) As Long

' Copies a table without the columns in a list.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   list: in, n numbers of columns, in any order, also more than once. One that is not exactly the
'       number of a column leaves out none
'   n: length of the list
'   out: out, rows by cols numbers, of which as many columns as stay are written
'   returns 0
Public Declare PtrSafe Function VB_M_RemoveColsInList Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef list As Double, _
    ByVal n As Long, ByRef out As Double) As Long

' Copies a table without the rows in a list.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   list: in, n numbers of rows, in any order, also more than once. One that is not the number of a
'       row leaves out none
'   n: length of the list
'   out: out, rows by cols numbers, of which as many rows as stay, by cols, are written
'   returns 0
Public Declare PtrSafe Function VB_M_RemoveRowsInList Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef list As Long, ByVal n As Long, _
    ByRef out As Double) As Long

' ---- tables/resize.h

' Copies a table of numbers into another shape.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   y: out, newRows by newCols numbers; may be x
'   newRows: rows of the result
'   newCols: columns of the result; 0 stands for 1
'   returns 0
Public Declare PtrSafe Function VB_M_CopyResize Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Double, _
    ByVal newRows As Long, ByVal newCols As Long) As Long

' Copies a table of flags into another shape.
'   x: in, rows by cols flags
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   y: out, newRows by newCols flags; may be x
'   newRows: rows of the result
'   newCols: columns of the result; 0 stands for 1
'   returns 0
Public Declare PtrSafe Function VB_M_CopyResizeBool Lib "KORVELMathTools.dll" ( _
    ByRef x As Integer, ByVal rows As Long, ByVal cols As Long, ByRef y As Integer, _
    ByVal newRows As Long, ByVal newCols As Long) As Long

' Copies a table of texts into another shape.
'   x: in, rows by cols texts
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   y: out, newRows by newCols texts; may be x
'   newRows: rows of the result
'   newCols: columns of the result; 0 stands for 1
'   returns 0
Public Declare PtrSafe Function VB_M_CopyResizeStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr, _
    ByVal newRows As Long, ByVal newCols As Long) As Long

' Copies a table to the top left corner of a larger one, of which all other cells stay.
'   x: in, rows by cols numbers
'   rows: rows of the table
'   cols: columns of the table; 0 stands for 1
'   y: inout, yRows by yCols numbers; may be x
'   yRows: rows of the larger table
'   yCols: columns of the larger table; 0 stands for 1
'   returns 0
Public Declare PtrSafe Function VB_M_CopyToBigger Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Double, _
    ByVal yRows As Long, ByVal yCols As Long) As Long

' ---- tables/row_maps.h

' The column of the largest cell of each row.
'   x: in, rows by cols numbers
'   rows: rows of x
'   cols: columns of x
'   positions: out, rows column numbers from 1; of equal cells the first
'   returns 0
Public Declare PtrSafe Function Cpp_M_MaxPosByRow Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef positions As Long) As Long

' A new variable as a weighted sum of those of a table.
'   x: in, rows by cols numbers
'   rows: rows of x
'   cols: columns of x
'   coefficients: in, cols factors
'   out: out, rows numbers: the sum over the columns of cell times factor; missing when one of the
'       cells or factors is
'   returns 0
Public Declare PtrSafe Function VB_ComputeNewVar Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef coefficients As Double, _
    ByRef out As Double) As Long

' Picks the rows that are not negligible.
'   x: in, rows by cols numbers
'   rows: rows of x
'   cols: columns of x
'   threshold: a row is kept when the sum of squares of its cells, missing ones left out, is greater
'   kept: out, rows flags: -1 for a row that is kept, otherwise 0
'   returns the number of rows kept
Public Declare PtrSafe Function Cpp_FilterOnSumOfSquares Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByVal threshold As Double, _
    ByRef kept As Integer) As Long

' ---- tables/symmetric.h

' Makes a table symmetric: both cells of a pair (i, j), (j, i) become their mean.
'   x: inout, rows by cols numbers; the square in the top left corner is treated
'   rows: rows of x
'   cols: columns of x
'   returns 0
Public Declare PtrSafe Function VB_M_Symmetrize Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Long

' Makes a table symmetric: both cells of a pair (i, j), (j, i) become their mean.
'   x: inout, chunked table of cols columns of rows numbers; the square in the top left corner is
'       treated
'   rows: rows of x
'   cols: columns of x
'   returns 0
Public Declare PtrSafe Function VB_M_SymmetrizeSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Long

' Tells whether a square table is symmetric.
'   x: in, n by n numbers
'   n: order
'   returns -1 when the cells of every pair are exactly equal, missing ones too, and for n below 2;
'       otherwise 0
Public Declare PtrSafe Function VB_M_IsSymmetric Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Integer

' Tells whether a square table is symmetric.
'   x: in, chunked table of n columns of n numbers
'   n: order
'   returns -1 when the cells of every pair are exactly equal, missing ones too, and for n below 2;
'       otherwise 0
Public Declare PtrSafe Function VB_M_IsSymmetricSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long) As Integer

' Tells whether the diagonal of a square table is constant.
'   x: in, n by n numbers
'   n: order
'   returns -1 when all its cells exactly equal the first, and for n below 2; otherwise 0
Public Declare PtrSafe Function VB_M_IsDiagConstant Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long) As Integer

' Packs a symmetric table: its lower triangle row after row.
'   x: in, n by n numbers; the upper half is not read
'   n: order
'   v: out, n * (n + 1) / 2 numbers: cell (i, j) with j <= i at place i(i - 1)/2 + j, from 1; may be
'       x
'   returns 0
Public Declare PtrSafe Function Cpp_M_CopySymMatToVector Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef v As Double) As Long

' Unpacks a vector that holds a triangle row after row into both halves of a table.
'   v: in, n * (n + 1) / 2 numbers
'   n: order
'   x: out, n by n numbers; may be v
'   returns 0
Public Declare PtrSafe Function Cpp_M_CopyVectorToSymMat Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal n As Long, ByRef x As Double) As Long

' ---- tables/text_rows.h

' Joins the cells of each row of texts, from the first column on, with nothing between them.
'   x: in, rows by cols texts
'   rows: rows of x
'   cols: columns of x
'   out: inout, rows texts, replaced where they differ; may be x
'   returns 0
Public Declare PtrSafe Function Cpp_M_MergeStringsByRow Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal out As LongPtr) As Long

' Tells whether two vectors have the same texts in the same order.
'   a: in, nA texts
'   nA: number of elements of a
'   b: in, nB texts
'   nB: number of elements of b
'   returns -1 when the numbers are the same and so is every text, letter by letter; otherwise 0
Public Declare PtrSafe Function Cpp_CheckSameVectorStr Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal nA As Long, ByVal b As LongPtr, ByVal nB As Long) As Integer

' ---- tables/transpose.h

' Transposes a table of numbers.
'   x: in, rows by cols numbers
'   rows: rows of x
'   cols: columns of x
'   y: out, cols by rows numbers; may be x
'   returns 0
Public Declare PtrSafe Function VB_M_Transpose Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef y As Double) As Long

' Transposes a table of integers.
'   x: in, rows by cols integers
'   rows: rows of x
'   cols: columns of x
'   y: out, cols by rows integers; may be x
'   returns 0
Public Declare PtrSafe Function VB_M_TransposeLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long, ByRef y As Long) As Long

' Transposes a table of texts.
'   x: in, rows by cols texts
'   rows: rows of x
'   cols: columns of x
'   y: inout, cols by rows texts, replaced where they differ; may be x
'   returns 0
Public Declare PtrSafe Function VB_M_TransposeStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr) As Long

' Transposes a table of numbers in place.
'   x: inout, rows by cols numbers; cols by rows on return
'   rows: rows of x
'   cols: columns of x
'   returns 0
Public Declare PtrSafe Function VB_M_Transpose2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long) As Long

' Transposes a table of integers in place.
'   x: inout, rows by cols integers; cols by rows on return
'   rows: rows of x
'   cols: columns of x
'   returns 0
Public Declare PtrSafe Function VB_M_Transpose2Lng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal rows As Long, ByVal cols As Long) As Long

' Transposes a table of texts in place.
'   x: inout, rows by cols texts, replaced where they differ; cols by rows on return
'   rows: rows of x
'   cols: columns of x
'   returns 0
Public Declare PtrSafe Function VB_M_Transpose2Str Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long) As Long

' Transposes a table of separate columns of numbers.
'   x: in, chunked table of cols columns of rows numbers
'   rows: rows of x
'   cols: columns of x
'   y: out, chunked table of rows columns of cols numbers; none of x
'   returns 0
Public Declare PtrSafe Function VB_M_TransposeSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal y As LongPtr) As Long

' ---- tables/triangular.h

' Tells which half of a square table is filled, and fills the other half from it on request.
'   x: inout, n by n numbers; changed only with bMirror -1
'   n: order
'   bMirror: -1: unless the result is 0, the filled half is copied over the empty one, which leaves
'       the table symmetric; at result 2 the upper half is the one that is copied
'   returns 2 when every cell below the diagonal is empty, and for n below 2; 1 when some cell below
'       it is filled and every cell above it is empty; 0 when both halves have a filled cell
Public Declare PtrSafe Function VB_M_IsTriangular Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal bMirror As Integer) As Long

' Tells which half of a square table is filled, and fills the other half from it on request.
'   x: inout, chunked table of n columns of n numbers; changed only with bMirror -1
'   n: order
'   bMirror: -1: unless the result is 0, the filled half is copied over the empty one, which leaves
'       the table symmetric; at result 2 the upper half is the one that is copied
'   returns 2 when every cell below the diagonal is empty, and for n below 2; 1 when some cell below
'       it is filled and every cell above it is empty; 0 when both halves have a filled cell
Public Declare PtrSafe Function VB_M_IsTriangularSPV Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal bMirror As Integer) As Long

' ---- tables/vector_table.h

' The columns of a table one below the other, as a vector.
'   x: in, rows by cols numbers
'   rows: rows of x
'   cols: columns of x
'   v: out, rows by cols numbers; may be x
'   returns 0
Public Declare PtrSafe Function Cpp_MatToVect Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double) As Long

' A vector back in the shape of the table that Cpp_MatToVect laid it out from.
'   v: in, rows by cols numbers
'   pattern: in, rows by cols numbers; only its missing cells matter
'   rows: rows of the tables
'   cols: columns of the tables
'   x: out, rows by cols numbers; may be v or pattern
'   returns 0
Public Declare PtrSafe Function Cpp_VectToMat Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByRef pattern As Double, ByVal rows As Long, ByVal cols As Long, _
    ByRef x As Double) As Long

' The rows of a table one after the other, as a vector.
'   x: in, rows by cols numbers
'   rows: rows of x
'   cols: columns of x
'   v: out, rows by cols numbers; may be x
'   returns 0
Public Declare PtrSafe Function Cpp_M_CopyTabletoVectorByRowDbl Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal rows As Long, ByVal cols As Long, ByRef v As Double) As Long

' The rows of a table one after the other, as a vector.
'   x: in, rows by cols texts
'   rows: rows of x
'   cols: columns of x
'   v: inout, rows by cols texts, replaced where they differ; may be x
'   returns 0
Public Declare PtrSafe Function Cpp_M_CopyTabletoVectorByRowStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal v As LongPtr) As Long

' A vector cut into the rows of a table.
'   v: in, rows by cols numbers, row after row
'   rows: rows of x
'   cols: columns of x
'   x: out, rows by cols numbers; may be v
'   returns 0
Public Declare PtrSafe Function Cpp_M_CopyVectortoTableByRowDbl Lib "KORVELMathTools.dll" ( _
    ByRef v As Double, ByVal rows As Long, ByVal cols As Long, ByRef x As Double) As Long

' A vector cut into the rows of a table.
'   v: in, rows by cols texts, row after row
'   rows: rows of x
'   cols: columns of x
'   x: inout, rows by cols texts, replaced where they differ; may be v
'   returns 0
Public Declare PtrSafe Function Cpp_M_CopyVectortoTableByRowStr Lib "KORVELMathTools.dll" ( _
    ByVal v As LongPtr, ByVal rows As Long, ByVal cols As Long, ByVal x As LongPtr) As Long

' ---- tables/vector_values.h

' Adds a number to the elements that are not flagged, missing ones too.
'   x: inout, n numbers
'   n: number of elements
'   val: the number
'   iMissing (Integer, or ByVal KORVEL_NULL): in, n flags; an element with a flag other than 0
'       stays. Null: none is flagged
'   returns 0
Public Declare PtrSafe Function VB_V_PlusVal Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double, ByRef iMissing As Any) As Long

' Adds a number to the elements that are not missing.
'   x: inout, n numbers
'   n: number of elements
'   val: the number
'   returns 0
Public Declare PtrSafe Function VB_V_PlusVal2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal val As Double) As Long

' Copies a vector, in which each element that equals a number, exactly, becomes another.
'   x: in, n numbers
'   n: number of elements
'   oldValue: the number to replace
'   newValue: what it becomes
'   out: out, n numbers; it may be x
'   returns 0
Public Declare PtrSafe Function VB_V_ReplaceVal Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal oldValue As Double, ByVal newValue As Double, _
    ByRef out As Double) As Long

' Replaces each element that equals a number, exactly, by another.
'   x: inout, n numbers
'   n: number of elements
'   oldValue: the number to replace
'   newValue: what it becomes
'   returns 0
Public Declare PtrSafe Function VB_V_ReplaceVal2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal oldValue As Double, ByVal newValue As Double) As Long

' Copies a vector without one element.
'   x: in, n numbers
'   n: number of elements
'   pos: the element to leave out, from 1. One above n or below 1 leaves out none, so that the last
'       or the first falls outside
'   out: out, n - 1 numbers; it may be x
'   returns 0
Public Declare PtrSafe Function VB_V_RemoveVal Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal pos As Long, ByRef out As Double) As Long

' Sets every element to one number.
'   x: out, n numbers
'   n: number of elements
'   value: the value
'   returns 0
Public Declare PtrSafe Function VB_V_SetToValue Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByVal value As Double) As Long

' Sets the elements of a host array to one number.
'   x: inout, host array of Double
'   n: number of elements
'   value: the value
'   returns 0
Public Declare PtrSafe Function Cpp_V_SetToValue_ST Lib "KORVELMathTools.dll" ( _
    ByRef x() As Double, ByVal n As Long, ByVal value As Double) As Long

' Sets every element to one integer.
'   x: out, n integers
'   n: number of elements
'   value: the value
'   returns 0
Public Declare PtrSafe Function VB_V_SetToValueLng Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByVal value As Long) As Long

' Sets the elements of a host array to one integer.
'   x: inout, host array of Long
'   n: number of elements
'   value: the value
'   returns 0
Public Declare PtrSafe Function Cpp_V_SetToValueLng_ST Lib "KORVELMathTools.dll" ( _
    ByRef x() As Long, ByVal n As Long, ByVal value As Long) As Long

' Sets every element to one text.
'   x: inout, n texts, replaced where they differ
'   n: number of elements
'   value: in, one text
'   returns 0
Public Declare PtrSafe Function VB_V_SetToValueStr Lib "KORVELMathTools.dll" ( _
    ByVal x As LongPtr, ByVal n As Long, ByVal value As LongPtr) As Long

' Copies numbers to integers, without their fraction.
'   x: in, n numbers
'   n: number of elements
'   y: out, n integers
'   returns 0
Public Declare PtrSafe Function Cpp_V_CopyDoubleToLong Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef y As Long) As Long

' Copies integers to numbers.
'   x: in, n integers
'   n: number of elements
'   y: out, n numbers
'   returns 0
Public Declare PtrSafe Function Cpp_V_CopyLongToDouble Lib "KORVELMathTools.dll" ( _
    ByRef x As Long, ByVal n As Long, ByRef y As Double) As Long

' Exchanges two vectors of numbers.
'   a: inout, n numbers
'   n: number of elements
'   b: inout, n numbers
'   returns 0
Public Declare PtrSafe Function Cpp_V_SwapDbl Lib "KORVELMathTools.dll" ( _
    ByRef a As Double, ByVal n As Long, ByRef b As Double) As Long

' Exchanges two vectors of texts.
'   a: inout, n texts, replaced where they differ
'   n: number of elements
'   b: inout, n texts, replaced where they differ
'   returns 0
Public Declare PtrSafe Function Cpp_V_SwapStr Lib "KORVELMathTools.dll" ( _
    ByVal a As LongPtr, ByVal n As Long, ByVal b As LongPtr) As Long

' Moves the numbers above the missing one to the front, in their order.
'   x: inout, n numbers
'   n: number of elements
'   m: out, one integer: how many they are
'   returns 0
Public Declare PtrSafe Function Cpp_V_CleanVectDbl2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef m As Long) As Long

' The same, with weights moved along.
'   x: inout, n numbers
'   n: number of elements
'   w: inout, n weights
'   m: out, one integer: how many they are
'   returns 0
Public Declare PtrSafe Function Cpp_V_CleanVectDblW2 Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef w As Double, ByRef m As Long) As Long
