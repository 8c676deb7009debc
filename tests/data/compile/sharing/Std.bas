Attribute VB_Name = "Std"
'**
'A function of a name that classes have as well.
Public Sub Target()
End Sub
