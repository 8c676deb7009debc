Attribute VB_Name = "StockText"
'**
' Limits, texts and small conversions that the whole library shares.
'
' Nothing here keeps a state, apart from the two variables for tracing.
' @see StockErrors StockErrors, for texts that are no good
' @author Zoë Marsh
' @version 1.2
Option Explicit

'**
' The most characters that an article code may have.
' @see .IsCode
Public Const MaxCodeLength As Long = 12

'**
' The unit of an article that was given none.
Public Const DefaultUnit As String = "pcs"

'**
' Stands between two fields of a line in the audit file.
' @see .JoinFields
' @see Warehouse.AuditFile
Public Const FieldSeparator As String = "|"

Private Const MaxMachineName As Long = 15

'**
' True while the library writes what it does to the Immediate window.
' @see .Trace
Public TraceOn As Boolean

Public TraceCount As Long

'**
' Milliseconds since Windows was started. The number starts again at 0 after 49 days.
' @return Milliseconds; negative in the second half of the 49 days.
Public Declare Function GetTickCount Lib "kernel32" () As Long

'**
' Asks Windows for the computer's name.
' @param Buffer Takes the name; it must have room for it and for a closing zero.
' @param Size   The length of Buffer. On return it is the length of the name.
' @return 0 if it failed.
' @rem   Use MachineName, which takes care of the buffer.
' @see   .MachineName
Public Declare Function GetComputerName Lib "kernel32" Alias "GetComputerNameA" ( _
    ByVal Buffer As String, Size As Long) As Long

'**
' The name of this computer, as the network knows it.
'
' The audit file puts it into each line, since several desks may write to one file.
' @return The name, or an empty string if Windows doesn't tell it.
' @see    .GetComputerName
' @includesource yes
Public Property Get MachineName() As String
    Dim Buffer As String
    Dim Size As Long

    Size = MaxMachineName + 1
    Buffer = String$(Size, vbNullChar)
    If GetComputerName(Buffer, Size) <> 0 Then
        MachineName = Left$(Buffer, Size)
    End If
End Property

'**
' Tells whether a text can be the code of an article.
'
' A code has 1 to MaxCodeLength characters: letters, digits and "-", and no blank.
' @param Text The text to look at. Its case doesn't matter.
' @return True if StockItem.Code would take the text.
' @see   .MaxCodeLength
' @see   StockItem.Code'let
' @includesource yes
Public Function IsCode(ByVal Text As String) As Boolean
    Dim i As Long

    If Len(Text) < 1 Or Len(Text) > MaxCodeLength Then Exit Function
    For i = 1 To Len(Text)
        If Not UCase$(Mid$(Text, i, 1)) Like "[0-9A-Z-]" Then Exit Function
    Next i
    IsCode = True
End Function

'**
' Writes an amount of money as people read it: two decimals, and the thousands set apart.
'$CODE$
'Debug.Print MoneyText(1234.5)         ' 1,234.50$EOL$
'Debug.Print MoneyText(-7, "EUR")      ' -7.00 EUR
'$END-CODE$
' @param Amount The amount. It is rounded to two decimals.
' @param Sign   The currency's sign, put behind the amount. Without one the amount stands alone.
' @return The text.
Public Function MoneyText(ByVal Amount As Currency, Optional ByVal Sign As String = "") As String
    MoneyText = Format$(Amount, "#,##0.00")
    If Len(Sign) > 0 Then MoneyText = MoneyText & " " & Sign
End Function

'**
' Puts any number of values into one line, with FieldSeparator between them.
' @param Fields The values. A Null becomes an empty field; an object must have a default property.
' @return The line, without an end of line.
' @see .FieldSeparator
Public Function JoinFields(ParamArray Fields() As Variant) As String
    Dim i As Long

    For i = LBound(Fields) To UBound(Fields)
        If i > LBound(Fields) Then JoinFields = JoinFields & FieldSeparator
        JoinFields = JoinFields & Fields(i)
    Next i
End Function

'**
' Writes a line to the Immediate window if TraceOn is set.
' @param Text What there is to tell.
' @see   .TraceOn
Public Sub Trace(ByVal Text As String)
    If Not TraceOn Then Exit Sub
    TraceCount = TraceCount + 1
    Debug.Print GetTickCount(); " "; Text
End Sub
