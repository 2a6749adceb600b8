Attribute VB_Name = "KORVELSample"
Option Explicit

' How macros call the flat functions: a table from cells, moments, correlations, a regression, sorted texts, a labelled
' record, a chunked table. Each procedure stands alone; import KORVELMathTools.bas beside this module.

' Makes a table of numbers, from 1 on, of the cells of a range. The value of a range of several cells is a table, that of
' one cell is the cell itself. Value2 gives dates and amounts as plain numbers; whatever is no number is missing.
Public Sub ReadRange(source As Object, table() As Double)
    ReadCells source.Value2, table
End Sub

Public Sub ReadCells(cells As Variant, table() As Double)
    Dim i As Long, j As Long
    If IsArray(cells) Then
        ReDim table(1 To UBound(cells, 1), 1 To UBound(cells, 2))
        For j = 1 To UBound(cells, 2)
            For i = 1 To UBound(cells, 1)
                table(i, j) = NumberOfCell(cells(i, j))
            Next i
        Next j
    Else
        ReDim table(1 To 1, 1 To 1)
        table(1, 1) = NumberOfCell(cells)
    End If
End Sub

Public Function NumberOfCell(cell As Variant) As Double
    NumberOfCell = KORVEL_MISSING_DBL
    If VarType(cell) = vbDouble Then NumberOfCell = cell
End Function

' A number that can be shown in a cell: nothing when it is missing.
Public Function CellOfNumber(number As Double) As Variant
    CellOfNumber = Empty
    If number > KORVEL_MISSING_DBL Then CellOfNumber = number
End Function

' Makes weights of 1. Most functions want weights even when all rows count alike.
Public Sub WeighEqually(weights() As Double, rows As Long)
    Dim i As Long
    ReDim weights(1 To rows)
    For i = 1 To rows
        weights(i) = 1
    Next i
End Sub

' Mean, variance, skewness and kurtosis of one column.
Public Sub ShowMoments(source As Object, column As Long)
    Dim table() As Double, weights() As Double, leftOut() As Integer, rows As Long
    Dim mean As Double, variance As Double, skewP As Double, kurtP As Double
    Dim skew As Double, kurt As Double, seSkew As Double, seKurt As Double
    ReadRange source, table
    rows = UBound(table, 1)
    WeighEqually weights, rows
    ReDim leftOut(1 To rows)    ' True leaves a row out
    VB_V_MeanVarSkewPKurtP table(1, column), rows, mean, variance, skewP, kurtP, skew, kurt, seSkew, seKurt, _
        leftOut(1), weights(1), True, True
    Debug.Print "mean", CellOfNumber(mean)
    Debug.Print "variance", CellOfNumber(variance)
    Debug.Print "skewness", CellOfNumber(skew), CellOfNumber(seSkew)
    Debug.Print "kurtosis", CellOfNumber(kurt), CellOfNumber(seKurt)
End Sub

' The correlations of all pairs of columns, each over the rows in which neither cell is missing.
Public Sub Correlate(source As Object, correlations() As Double)
    Dim table() As Double, weights() As Double, rows As Long, columns As Long
    ReadRange source, table
    rows = UBound(table, 1): columns = UBound(table, 2)
    WeighEqually weights, rows
    ReDim correlations(1 To columns, 1 To columns)
    VB_M_CovCorr table(1, 1), rows, columns, correlations(1, 1), True, ByVal KORVEL_NULL, weights(1), True, True, False
End Sub

' The regression of the last column on the others: coefficients and standard errors, the intercept last. Regressions take
' no missing cells, so rows that have one are left out first.
Public Sub ShowRegression(source As Object)
    Dim table() As Double, kept() As Double, response() As Double, weights() As Double
    Dim coefficients() As Double, errors() As Double, fitted() As Double
    Dim rows As Long, predictors As Long, count As Long, i As Long, j As Long, complete As Boolean
    ReadRange source, table
    rows = UBound(table, 1): predictors = UBound(table, 2) - 1
    If predictors < 1 Then Err.Raise 5, , "A regression needs two columns."
    For i = 1 To rows
        complete = True
        For j = 1 To predictors + 1
            If VB_IsMissingValueDbl(table(i, j)) Then complete = False
        Next j
        If complete Then
            count = count + 1
            For j = 1 To predictors + 1
                table(count, j) = table(i, j)
            Next j
        End If
    Next i
    If count = 0 Then Err.Raise 5, , "Each row has a missing cell."
    ' A function finds its columns behind each other, without gaps: the table must have as many rows as it is told.
    ReDim kept(1 To count, 1 To predictors): ReDim response(1 To count)
    For i = 1 To count
        For j = 1 To predictors
            kept(i, j) = table(i, j)
        Next j
        response(i) = table(i, predictors + 1)
    Next i
    WeighEqually weights, count
    ReDim coefficients(1 To predictors + 1): ReDim errors(1 To predictors + 1): ReDim fitted(1 To count)
    RunOLSBasic2 count, predictors, kept(1, 1), response(1), weights(1), 1, False, False, 0.00000001, _
        coefficients(1), errors(1), fitted(1)
    For j = 1 To predictors + 1
        Debug.Print IIf(j > predictors, "intercept", "column " & j), coefficients(j), errors(j)
    Next j
End Sub

' Texts in ascending order. VarPtr of the first text is the address of the block. Only VarPtr reaches the texts
' themselves: a text that is an argument of its own would arrive as a copy in 8-bit characters.
Public Sub SortTexts(texts() As String)
    Dim first As Long
    first = LBound(texts)
    VB_SortQVectorStr VarPtr(texts(first)), UBound(texts) - first + 1, 1, UBound(texts) - first + 1, False
End Sub

' A table of labelled columns, with equal numbers of rows. Arrays are made by themselves and then put into the record,
' which has copies of its own.
Public Function LabelledTable(cells() As Double, labels() As String) As ST_MVect
    Dim record As ST_MVect, vectors() As ST_Vect, column() As Double, counts() As Long
    Dim rows As Long, columns As Long, i As Long, j As Long
    rows = UBound(cells, 1): columns = UBound(cells, 2)
    ReDim vectors(1 To columns): ReDim counts(1 To columns): ReDim column(1 To rows)
    For j = 1 To columns
        For i = 1 To rows
            column(i) = cells(i, j)
        Next i
        vectors(j).Count = rows
        vectors(j).Label = labels(j)
        vectors(j).Vect = column
        counts(j) = rows
    Next j
    record.nbcols = columns
    record.samenbrows = True
    record.nbrowsmax = rows
    record.nbrows = counts
    record.Vectors = vectors
    record.CLabels = labels
    LabelledTable = record
End Function

' Correlations of a range whose first row has the labels, from one labelled table into another.
Public Sub ShowLabelledCorrelations(source As Object)
    Dim cells As Variant, numbers() As Double, labels() As String, weights() As Double, empties() As Double
    Dim data As ST_MVect, correlations As ST_MVect, rows As Long, columns As Long, i As Long, j As Long
    cells = source.Value2
    If Not IsArray(cells) Then Err.Raise 5, , "A row of labels and rows of numbers are needed."
    rows = UBound(cells, 1) - 1: columns = UBound(cells, 2)
    If rows < 1 Then Err.Raise 5, , "There is no row below the labels."
    ReDim numbers(1 To rows, 1 To columns): ReDim labels(1 To columns): ReDim empties(1 To columns, 1 To columns)
    For j = 1 To columns
        labels(j) = CStr(cells(1, j))
        For i = 1 To rows
            numbers(i, j) = NumberOfCell(cells(i + 1, j))
        Next i
    Next j
    data = LabelledTable(numbers, labels)
    correlations = LabelledTable(empties, labels)    ' room for the result
    WeighEqually weights, rows
    Cpp_M_CovCorr_ST VarPtr(data), rows, columns, VarPtr(correlations), True, ByVal KORVEL_NULL, weights(1), True, True, False
    For j = 2 To columns
        For i = 1 To j - 1
            Debug.Print labels(i), labels(j), CellOfNumber(correlations.Vectors(j).Vect(i))
        Next i
    Next j
End Sub

' A chunked table: a record for each column.
Public Function ChunkedTable(cells() As Double) As HostarrayTable
    Dim table As HostarrayTable, chunks() As Hostarray, column() As Double, i As Long, j As Long
    ReDim chunks(1 To UBound(cells, 2)): ReDim column(1 To UBound(cells, 1))
    For j = 1 To UBound(cells, 2)
        For i = 1 To UBound(cells, 1)
            column(i) = cells(i, j)
        Next i
        chunks(j).numbers = column
    Next j
    table.columns = chunks
    ChunkedTable = table
End Function

' The smallest and largest number of each column, from a chunked table.
Public Sub ShowExtremes(source As Object)
    Dim cells() As Double, table As HostarrayTable, smallest() As Double, largest() As Double
    Dim rows As Long, columns As Long, j As Long
    ReadRange source, cells
    rows = UBound(cells, 1): columns = UBound(cells, 2)
    table = ChunkedTable(cells)
    ReDim smallest(1 To columns): ReDim largest(1 To columns)
    VB_M_MinMaxSPV VarPtr(table), rows, columns, smallest(1), largest(1), ByVal KORVEL_NULL, True
    For j = 1 To columns
        Debug.Print "column " & j, CellOfNumber(smallest(j)), CellOfNumber(largest(j))
    Next j
End Sub
