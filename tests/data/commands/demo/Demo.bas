Sub A()
End Sub
