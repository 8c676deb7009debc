VERSION 5.00
Begin VB.UserControl StockGauge 
   AutoRedraw      =   -1  'True
   ClientHeight    =   375
   ClientLeft      =   0
   ClientTop       =   0
   ClientWidth     =   2400
   ScaleHeight     =   25
   ScaleMode       =   3  'Pixel
   ScaleWidth      =   160
End
Attribute VB_Name = "StockGauge"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = True
Attribute VB_PredeclaredId = False
Attribute VB_Exposed = False
'**
' A bar that fills up with a quantity, and turns red below a warning level.
' @see    frmItem
' @author Zoë Marsh
' @version 1.1
Option Explicit

Private mValue As Long
Private mMaximum As Long
Private mWarning As Long
Private mBarColor As OLE_COLOR

'**
' The gauge was clicked.
Public Event Click()

'**
' Value has crossed the warning level.
' @param Below True if it is below the level now.
' @see   .Warning
Public Event Crossed(ByVal Below As Boolean)

'**
' The quantity that the bar shows.
'
' A quantity above Maximum fills the whole bar.
' @param NewValue The quantity, not below 0.
' @see   .Maximum
' @see   .Crossed
Public Property Get Value() As Long
Attribute Value.VB_Description = "The quantity that the bar shows."
Attribute Value.VB_UserMemId = 0
    Value = mValue
End Property

Public Property Let Value(ByVal NewValue As Long)
    Dim WasBelow As Boolean

    WasBelow = mValue < mWarning
    mValue = NewValue
    PropertyChanged "Value"
    Draw
    If WasBelow <> (mValue < mWarning) Then RaiseEvent Crossed(mValue < mWarning)
End Property

'**
' The quantity of a full bar.
' @param NewMaximum The quantity, above 0.
' @see   .Value
Public Property Get Maximum() As Long
    Maximum = mMaximum
End Property

Public Property Let Maximum(ByVal NewMaximum As Long)
    If NewMaximum > 0 Then mMaximum = NewMaximum
    PropertyChanged "Maximum"
    Draw
End Property

'**
' The quantity below which the bar is red.
' @param NewWarning The quantity; with 0 the bar never is red.
' @see   .BarColor BarColor, the colour above it
Public Property Get Warning() As Long
    Warning = mWarning
End Property

Public Property Let Warning(ByVal NewWarning As Long)
    mWarning = NewWarning
    PropertyChanged "Warning"
    Draw
End Property

'**
' The colour of the bar while there is enough.
' @param NewBarColor A colour, which may be one of the system's.
' @see   .Warning
Public Property Get BarColor() As OLE_COLOR
Attribute BarColor.VB_ProcData.VB_Invoke_Property = ";Appearance"
    BarColor = mBarColor
End Property

Public Property Let BarColor(ByVal NewBarColor As OLE_COLOR)
    mBarColor = NewBarColor
    PropertyChanged "BarColor"
    Draw
End Property

'**
' Draws the gauge anew. There is no need to call it after a property was set.
Public Sub Refresh()
    Draw
End Sub

Private Sub Draw()
    Dim Filled As Long
    Dim Color As OLE_COLOR

    Filled = ScaleWidth
    If mValue < mMaximum Then Filled = mValue * ScaleWidth \ mMaximum
    Color = mBarColor
    If mValue < mWarning Then Color = vbRed
    UserControl.Cls
    If Filled > 0 Then UserControl.Line (0, 0)-(Filled - 1, ScaleHeight - 1), Color, BF
End Sub

Private Sub UserControl_InitProperties()
    mMaximum = 100
    mBarColor = vbHighlight
End Sub

Private Sub UserControl_ReadProperties(PropBag As PropertyBag)
    mMaximum = PropBag.ReadProperty("Maximum", 100)
    mWarning = PropBag.ReadProperty("Warning", 0)
    mValue = PropBag.ReadProperty("Value", 0)
    mBarColor = PropBag.ReadProperty("BarColor", vbHighlight)
    Draw
End Sub

Private Sub UserControl_WriteProperties(PropBag As PropertyBag)
    PropBag.WriteProperty "Maximum", mMaximum, 100
    PropBag.WriteProperty "Warning", mWarning, 0
    PropBag.WriteProperty "Value", mValue, 0
    PropBag.WriteProperty "BarColor", mBarColor, vbHighlight
End Sub

Private Sub UserControl_Resize()
    Draw
End Sub

Private Sub UserControl_Click()
    RaiseEvent Click
End Sub
