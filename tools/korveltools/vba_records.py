"""The records of callers and the values of missing cells, in Visual Basic."""

TYPES = {"int": "Long", "short int": "Integer", "double": "Double", "BSTR": "String"}

HANDING_OVER = """\
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
"""


def field_type(field, texts):
    if field.type == "SAFEARRAY*":
        element = field.element or ("BSTR" if texts else "double")
        return TYPES.get(element, f"{element}Str" if texts else element)
    return TYPES.get(field.type, f"{field.type}Str" if field.holds_texts else field.type)


def type_lines(record, texts):
    """One `Type`; of texts when its columns may hold these or numbers."""
    cells = " Its cells are texts." if texts else " Its cells are numbers." if record.holds_either else ""
    lines = ["", f"' {record.text}{cells}", f"Public Type {record.name}{'Str' if texts else ''}"]
    for field in record.fields:
        name = f"{field.name}()" if field.type == "SAFEARRAY*" else field.name
        lines.append(f"    {name} As {field_type(field, texts)}    ' {field.text}".replace("`", ""))
    return [*lines, "End Type"]


def make(records, missing):
    number, integer = missing
    lines = [
        "", "' The missing number, the missing integer and the missing text.",
        f"Public Const KORVEL_MISSING_DBL As Double = {number.replace('e', 'E+')}",
        f"Public Const KORVEL_MISSING_LNG As Long = {integer}",
        'Public Const KORVEL_MISSING_STR As String = ""',
        "", "' ---- records",
    ]
    for record in records:
        lines += type_lines(record, False)
        if record.holds_either:
            lines += type_lines(record, True)
    return [*lines, "", *HANDING_OVER.splitlines()]
