Attribute VB_Name = "Main"
Sub Main()
End Sub
