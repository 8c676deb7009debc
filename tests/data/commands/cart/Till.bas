x = "é"
Sub Main()
End Sub
