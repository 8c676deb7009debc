Attribute VB_Name = "Tools"
'**
'Helpers for <carts>.
'@author Ann
'@see Cart the carts
Option Explicit

'** a marker may hold words
'How many.
'@Remark the constant's own
Public Const LIMIT As Long = 5
Public Total#
Private Declare Function Tick Lib "kernel32" _
    (ByVal a As Long) As Long

'**
'Rounds $$ amounts.
'  Second line.
'@param value Amount.
' and more
'@param digits
'@return Rounded.
'@see .LIMIT the limit
'@see Cart.Gone
'@see
'@see "notes.txt
'@set digits 0 "no digits" whole numbers
'@set value 1 2 3
'@set digits 1 one
'@set other x
'@set fourth y
'@rem First.
'Second.
'@includesource yes
'@Remark hello
'@λόγος, word
Public Function Rounded(ByVal value As Double, Optional ByVal digits As Long = 2) As Double
    Rounded = value ' 5 $

End Function
