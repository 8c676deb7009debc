Attribute VB_Name = "Empty"
