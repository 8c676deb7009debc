VERSION 5.00
Begin VB.MDIForm mdiPort 
   Caption         =   "Port"
End
Attribute VB_Name = "mdiPort"
