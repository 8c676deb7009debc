VERSION 5.00
Begin VB.Form frmItem 
   Caption         =   "Item"
   ClientHeight    =   2535
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   4695
   LinkTopic       =   "Form1"
   MDIChild        =   -1  'True
   ScaleHeight     =   2535
   ScaleWidth      =   4695
   Begin VB.TextBox txtTitle 
      Height          =   315
      Left            =   1320
      TabIndex        =   1
      Top             =   240
      Width           =   3135
   End
   Begin VB.TextBox txtQuantity 
      Alignment       =   1  'Right Justify
      Height          =   315
      Left            =   1320
      TabIndex        =   3
      Top             =   720
      Width           =   1215
   End
   Begin Desk.StockGauge gauge 
      Height          =   375
      Left            =   1320
      TabIndex        =   4
      Top             =   1200
      Width           =   3135
      _ExtentX        =   5530
      _ExtentY        =   661
   End
   Begin VB.CommandButton cmdReceive 
      Caption         =   "&Receive"
      Height          =   375
      Left            =   1920
      TabIndex        =   5
      Top             =   1920
      Width           =   1215
   End
   Begin VB.CommandButton cmdIssue 
      Caption         =   "&Issue"
      Height          =   375
      Left            =   3240
      TabIndex        =   6
      Top             =   1920
      Width           =   1215
   End
   Begin VB.Label lblTitle 
      Caption         =   "&Title:"
      Height          =   255
      Left            =   240
      TabIndex        =   0
      Top             =   270
      Width           =   975
   End
   Begin VB.Label lblQuantity 
      Caption         =   "&Quantity:"
      Height          =   255
      Left            =   240
      TabIndex        =   2
      Top             =   750
      Width           =   975
   End
End
Attribute VB_Name = "frmItem"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
'**
' The window of one article: its title, a gauge with its quantity, and two buttons to book.
' @see    frmDesk.ShowItem ShowItem, which opens it
' @see    StockGauge
' @author Zoë Marsh
Option Explicit

Private WithEvents mItem As StockItem

'**
' The user has changed the article's title.
' @param Title The new title.
Public Event TitleChanged(ByVal Title As String)

'**
' The article that the window shows.
' @param NewItem The article. It must have a code, which becomes the window's Tag.
' @see   frmDesk.ShowItem
' @see   .Reload
Public Property Get Item() As StockItem
    Set Item = mItem
End Property

Public Property Set Item(ByVal NewItem As StockItem)
    Set mItem = NewItem
    Tag = mItem.Code
    Reload
End Property

'**
' Shows the article anew, after its title or quantity has changed.
' @see StockGauge.Value
Public Sub Reload()
    Caption = mItem.Code
    txtTitle.Text = mItem.Title
    gauge.Warning = mItem.ReorderLevel + WarnAhead
    If mItem.Quantity > gauge.Maximum Then gauge.Maximum = mItem.Quantity
    gauge.Value = mItem.Quantity
End Sub

Private Sub txtTitle_Validate(Cancel As Boolean)
    If txtTitle.Text = mItem.Title Then Exit Sub
    mItem.Title = txtTitle.Text
    RaiseEvent TitleChanged(mItem.Title)
End Sub

Private Sub cmdReceive_Click()
    On Error GoTo Failed
    Store.Receive mItem, Val(txtQuantity.Text)
    Exit Sub
Failed:
    Tell Err.Description, vbExclamation
End Sub

Private Sub cmdIssue_Click()
    On Error GoTo Failed
    If Not Store.Issue(mItem, Val(txtQuantity.Text)) Then Tell "There isn't enough.", vbExclamation
    Exit Sub
Failed:
    Tell Err.Description, vbExclamation
End Sub

Private Sub mItem_Changed(ByVal OldQuantity As Long)
    Reload
End Sub
