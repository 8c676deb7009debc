VERSION 5.00
Begin VB.MDIForm frmDesk 
   BackColor       =   &H8000000C&
   Caption         =   "Stock Desk"
   ClientHeight    =   6225
   ClientLeft      =   165
   ClientTop       =   735
   ClientWidth     =   9480
   LinkTopic       =   "MDIForm1"
   StartUpPosition =   3  'Windows Default
   Begin VB.PictureBox picBar 
      Align           =   1  'Align Top
      BorderStyle     =   0  'None
      Height          =   495
      Left            =   0
      ScaleHeight     =   495
      ScaleWidth      =   9480
      TabIndex        =   0
      Top             =   0
      Width           =   9480
      Begin VB.ComboBox cboItem 
         BeginProperty Font 
            Name            =   "Tahoma"
            Size            =   8.25
            Charset         =   0
            Weight          =   400
            Underline       =   0   'False
            Italic          =   0   'False
            Strikethrough   =   0   'False
         EndProperty
         Height          =   315
         Left            =   120
         Style           =   2  'Dropdown List
         TabIndex        =   1
         Top             =   90
         Width           =   4335
      End
   End
   Begin VB.Menu mnuStock 
      Caption         =   "&Stock"
      Begin VB.Menu mnuStockNew 
         Caption         =   "&New Item..."
         Shortcut        =   ^N
      End
      Begin VB.Menu mnuStockLow 
         Caption         =   "Items to &Order"
         Shortcut        =   ^O
      End
      Begin VB.Menu mnuStockBar 
         Caption         =   "-"
      End
      Begin VB.Menu mnuStockExit 
         Caption         =   "E&xit"
      End
   End
   Begin VB.Menu mnuWindow 
      Caption         =   "&Window"
      WindowList      =   -1  'True
   End
End
Attribute VB_Name = "frmDesk"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
'**
' The main window: a bar with all articles, and a window for each that is open.
'
' It listens to the warehouse, so that its windows follow whatever is booked.
' @see    frmItem frmItem, the window of one article
' @see    DeskMain.Store
' @author Zoë Marsh
' @version 1.2
Option Explicit

Private WithEvents mStore As Warehouse
Private mOrder As String

'**
' An article was chosen in the bar, by the user or by ShowItem.
' @param Code The article's code.
Public Event ItemChosen(ByVal Code As String)

'**
' How many windows of articles are open.
' @return The number; 0 if only the main window is there.
' @see    frmItem
Public Property Get OpenItems() As Long
    Dim Window As Form

    For Each Window In Forms
        If TypeOf Window Is frmItem Then OpenItems = OpenItems + 1
    Next Window
End Property

'**
' The order in which the bar shows the articles.
' @return "by code" or "by quantity".
' @see    .SortBy SortBy, to change it
Public Property Get Order() As String
    Order = mOrder
End Property

'**
' Shows an article: brings its window to the front, or opens one.
' @param Item The article.
' @return The article's window.
' @see   frmItem.Item
' @includesource yes
Public Function ShowItem(ByVal Item As StockItem) As frmItem
    Dim Window As Form
    Dim Shown As frmItem

    For Each Window In Forms
        If TypeOf Window Is frmItem Then
            If Window.Tag = Item.Code Then Set Shown = Window
        End If
    Next Window
    If Shown Is Nothing Then
        Set Shown = New frmItem
        Set Shown.Item = Item
    End If
    Shown.Show
    Shown.SetFocus
    Set ShowItem = Shown
    RaiseEvent ItemChosen(Item.Code)
End Function

'**
' Fills the bar with the articles of the warehouse.
' @param Order The order in which they stand.
' @set   Order Code     "by code"     As the codes stand in the alphabet.
' @set   Order Quantity "by quantity" The smallest quantity first.
' @see   .Order'get Order, to ask for it
Public Sub SortBy(ByVal Order As String)
    Dim Item As StockItem
    Dim Place As Long

    mOrder = Order
    cboItem.Clear
    For Each Item In Store.Items
        Place = 0
        Do While Place < cboItem.ListCount
            If ComesBefore(Item, Store.FindItem(cboItem.List(Place))) Then Exit Do
            Place = Place + 1
        Loop
        cboItem.AddItem Item.Code, Place
    Next Item
End Sub

Public Sub CloseItems()
    Dim i As Long

    For i = Forms.Count - 1 To 0 Step -1
        If TypeOf Forms(i) Is frmItem Then Unload Forms(i)
    Next i
End Sub

Private Function ComesBefore(ByVal A As StockItem, ByVal B As StockItem) As Boolean
    If mOrder = "by quantity" Then
        ComesBefore = A.Quantity < B.Quantity
    Else
        ComesBefore = A.Code < B.Code
    End If
End Function

Private Sub MDIForm_Load()
    Caption = AppTitle
    Set mStore = Store
    SortBy "by code"
End Sub

Private Sub cboItem_Click()
    ShowItem Store.FindItem(cboItem.Text)
End Sub

Private Sub mnuStockNew_Click()
    Dim Item As StockItem
    Dim Code As String

    Code = InputBox("Code of the new item:", AppTitle)
    If Len(Code) = 0 Then Exit Sub
    On Error GoTo Failed
    Set Item = New StockItem
    Item.Code = Code
    Store.Items.Add Item
    SortBy mOrder
    ShowItem Item
    Exit Sub
Failed:
    Tell Err.Description, vbExclamation
End Sub

Private Sub mnuStockLow_Click()
    Dim Item As StockItem

    For Each Item In Store.LowItems(WarnAhead)
        ShowItem Item
    Next Item
End Sub

Private Sub mnuStockExit_Click()
    CloseItems
    Unload Me
End Sub

Private Sub mStore_StockLow(ByVal Item As Stock.StockItem, Silent As Boolean)
    Tell "Please order " & Item.Title & ".", vbExclamation
End Sub
