Sub B()
End Sub
