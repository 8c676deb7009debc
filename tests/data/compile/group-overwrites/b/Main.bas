Attribute VB_Name = "Main"
'**
' Of B.
Public Sub Start()
End Sub
