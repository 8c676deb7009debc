#If Win32 Then
Public Const A = 1, _
  B = 2#Else
Public Const C = 3
#End If
Public X As Long: Public Y As Long


' a plain comment _
'
Sub S(): End Sub: _
Property Get P() As Long
Attribute P.VB_Description = "A\r\nB _"
End Property