Attribute VB_Name = "Tools"
'**
' Tools.
Option Explicit

'**
' The limit.
Public Const Limit As Long = 5
Public Total#

'**
' Waits.
' @param Milliseconds How long.
Public Declare Sub Sleep Lib "kernel32" (ByVal Milliseconds As Long)

'**
' Twice the value.
' @return Twice the value.
Public Function Twice(ByVal Value As Long) As Long
    Twice = 2 * Value
End Function

'**
' A property of a standard module.
Public Property Get Mood() As String
End Property
