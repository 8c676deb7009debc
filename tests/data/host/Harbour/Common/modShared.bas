Attribute VB_Name = "modShared"
Public Declare Function GetTickCount& Lib "kernel32" ()
Public Const cLimit = 5, cText = "a, b"
#If LOGGED Then
Public Sub Log(ByVal Text$)
#Else
Public Sub Mute(ByVal Text$)
#End If
End Sub