Attribute VB_Name = "Shared"
' one
' two
