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

' ---- vector_sums.h

' Weighted sum of a vector: the sum of w[i] * x[i] in ascending order. iMissing (Integer) may be
' null.
Public Declare PtrSafe Function VB_V_Sum Lib "KORVELMathTools.dll" ( _
    ByRef x As Double, ByVal n As Long, ByRef iMissing As Any, ByRef w As Double) As Double
