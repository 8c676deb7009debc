Attribute VB_Name = "Quiet"
Public Sub Uncommented()
End Sub
'**
'With a comment.
Public Sub Commented()
End Sub
