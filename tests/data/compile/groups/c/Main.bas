Attribute VB_Name = "MAIN"
'**
' Of the second A.
Public Sub start()
End Sub
