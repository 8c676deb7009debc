Attribute VB_Name = "DeskMain"
'**
' Where the program starts, and what is shared by all of its windows.
' @see    frmDesk frmDesk, the main window
' @author Zoë Marsh
' @version 1.2
Option Explicit

'**
' The program's name, as it stands in title bars and message boxes.
Public Const AppTitle As String = "Stock Desk"

'**
' The settings file's name. The file lies beside the program.
' @see .Main
Public Const SettingsName As String = "desk.ini"

Private Const MaxText As Long = 255

'**
' The warehouse that all windows show.
' @see frmDesk.ShowItem
Public Store As Warehouse

'**
' How far above its reorder level an article counts as low already. Main reads it.
' @see .Main
' @see frmItem.Reload
Public WarnAhead As Long

'**
' Reads a text from an INI file.
' @param Section  The section's name, without its brackets.
' @param Key      The name of the text.
' @param Default  What to give if the file or the text isn't there.
' @param Buffer   Takes the text.
' @param Size     The length of Buffer.
' @param FileName The full path of the file.
' @return The length of the text in Buffer.
' @see   .ReadText ReadText, which is easier to use
Public Declare Function GetPrivateProfileString Lib "kernel32" _
    Alias "GetPrivateProfileStringA" (ByVal Section As String, ByVal Key As String, _
    ByVal Default As String, ByVal Buffer As String, ByVal Size As Long, _
    ByVal FileName As String) As Long

'**
' The program starts here: reads the settings, makes the warehouse and shows the main window.
' @see frmDesk
' @see .WarnAhead
' @see .ReadText
' @includesource yes
Public Sub Main()
    Dim FileName As String

    FileName = App.Path & "\" & SettingsName
    WarnAhead = Val(ReadText(FileName, "Desk", "WarnAhead", "10"))
    Set Store = New Warehouse
    Store.AuditFile = ReadText(FileName, "Desk", "AuditFile")
    frmDesk.Show
End Sub

'**
' Reads a text from an INI file, without any care for buffers.
' @param  FileName The full path of the file.
' @param  Section  The section's name, without its brackets.
' @param  Key      The name of the text.
' @param  Default  What to give if the file or the text isn't there.
' @return The text, cut at 255 characters.
' @includesource yes
Public Function ReadText(ByVal FileName As String, ByVal Section As String, ByVal Key As String, _
                         Optional ByVal Default As String = "") As String
    Dim Buffer As String
    Dim Length As Long

    Buffer = String$(MaxText + 1, vbNullChar)
    Length = GetPrivateProfileString(Section, Key, Default, Buffer, Len(Buffer), FileName)
    ReadText = Left$(Buffer, Length)
End Function

'**
' Tells the user something.
' @param Text What there is to tell.
' @param Icon The picture beside it.
' @set   Icon vbInformation 64 Something went well.
' @set   Icon vbExclamation 48 Something needs attention.
' @set   Icon vbCritical    16 Something can't be done.
Public Sub Tell(ByVal Text As String, Optional ByVal Icon As VbMsgBoxStyle = vbInformation)
    MsgBox Text, Icon, AppTitle
End Sub
