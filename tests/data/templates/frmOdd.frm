VERSION 5.00
Begin VB.Form frmOdd
   Caption = "Odd"
End
Attribute VB_Name = "frmOdd"
'**
' A form.
Option Explicit

'**
' Shows it.
' @see Oddity.Run
' @see .Depth
Public Sub Present()
End Sub

'**
' How deep.
Public Property Get Depth() As Long
End Property
