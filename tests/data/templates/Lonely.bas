Attribute VB_Name = "Lonely"
Option Explicit
