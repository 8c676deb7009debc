Attribute VB_Name = "Notes"
' kept
