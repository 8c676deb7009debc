Attribute VB_Name = "Zeta"
Public Const Last = 1
Public Early As String
Public Property Get Prop() As Long
End Property
Public Sub Work()
End Sub
Private Sub Hidden()
End Sub
