Attribute VB_Name = "Main"
'**
' Of B, for $ 5.
Public Sub Start()
End Sub
