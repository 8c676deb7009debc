Attribute VB_Name = "mod表"
Public Sub Pointー(ByVal 表 As Long)
Attribute Pointー.VB_Description = "ソ[表]"
End Sub
