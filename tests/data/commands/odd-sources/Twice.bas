Public Sub A()
End Sub
