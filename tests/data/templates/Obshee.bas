Attribute VB_Name = "Общее"
'**
' Общее.
Option Explicit

'**
' Предел.
Public Const Предел As Long = 5
