Attribute VB_Name = "StockErrors"
'**
' The errors of the library, and the one procedure that raises them.
'
' All numbers lie above vbObjectError, so that nobody takes them for errors of Visual Basic.
' @see    StockText
' @author Zoë Marsh
' @version 1.1
Option Explicit

'**
' A text was to become an article's code and can't.
' @see StockText.IsCode The rule for codes
Public Const ErrBadCode As Long = vbObjectError + 1001

'**
' The list holds an article of that code already.
' @see StockItems.Add
Public Const ErrCodeInUse As Long = vbObjectError + 1002

'**
' A quantity isn't above zero, or more was to be issued than there is.
' @see StockItem.Issue
Public Const ErrBadQuantity As Long = vbObjectError + 1003

'**
' Raises one of the errors of this module, with a text for the user.
' @param Number  The error's number, which is also what Err.Number tells.
' @set   Number ErrBadCode     -2147220503 The text can't be a code.
' @set   Number ErrCodeInUse   -2147220502 Another article has the code.
' @set   Number ErrBadQuantity -2147220501 The quantity can't be booked.
' @param Source  The procedure that found the error, such as "StockItem.Issue".
' @param Detail  What was wrong, in a few words; often the text or the number itself.
' @rem   Control never comes back from here.
' @see   .ErrBadCode
' @see   .ErrCodeInUse
' @see   .ErrBadQuantity
' @includesource yes
Public Sub RaiseStockError(ByVal Number As Long, ByVal Source As String, _
                           Optional ByVal Detail As String = "")
    Dim Text As String

    Select Case Number
        Case ErrBadCode
            Text = "This is no article code"
        Case ErrCodeInUse
            Text = "There is an article with this code"
        Case ErrBadQuantity
            Text = "This quantity can't be booked"
        Case Else
            Text = "Unknown error"
    End Select
    If Len(Detail) > 0 Then Text = Text & ": " & Detail
    Err.Raise Number, "Stock." & Source, Text & "."
End Sub
