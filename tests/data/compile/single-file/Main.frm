VERSION 5.00
Begin VB.Form Main 
   Caption         =   "Main"
   Begin VB.TextBox Text1 
      Text            =   "End"
   End
End
Attribute VB_Name = "Main"
Public Sub Open_()
End Sub
