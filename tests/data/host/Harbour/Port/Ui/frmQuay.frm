VERSION 5.00
Object = "{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCTL.OCX"
Begin VB.Form frmQuay 
   Caption         =   "Причал ""А"""
   ClientHeight    =   3090
   BeginProperty Font 
      Name            =   "MS Sans Serif"
      Charset         =   204
   EndProperty
   Begin VB.Frame fraShips 
      Caption         =   "End"
      Begin VB.CommandButton cmdGo 
         Caption         =   "Begin &again"
         Picture         =   "frmQuay.frx":0000
      End
   End
End
Attribute VB_Name = "frmQuay"
Attribute VB_GlobalNameSpace = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Attribute VB_Ext_KEY = "Top_Level" ,"Yes"
Option Explicit

' Имя судна
Public Событие As String
Private WithEvents m_Ship As cShip
Attribute m_Ship.VB_VarHelpID = -1

Private Sub cmdGo_Click()
    m_Ship.Moor Событие: End Sub
