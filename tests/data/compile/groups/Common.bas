Attribute VB_Name = "Common"
'**
' A property of a standard module that has no topic.
'@see Main.Start
Public Property Get Conn() As Long
End Property
