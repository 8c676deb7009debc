Attribute VB_Name = "Words"
Item items
none
A ITEM item
end
