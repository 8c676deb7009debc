Public Const Max = 3
