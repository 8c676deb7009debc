Attribute VB_Name = "Main"
'**
' Of A.
Public Sub Start()
End Sub
'**
' Of A alone.
Public Sub Finish()
End Sub
