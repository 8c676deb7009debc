VERSION 5.00
Begin VB.Form frmDesk
   Caption = "Desk"
End
Attribute VB_Name = "frmDesk"
Private Sub Form_Load()
End Sub
