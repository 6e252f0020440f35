' A loop over one property, and the same loop over a variable.
Dim list: Set list = CreateObject("CVDeveloper.clsPhoneList")
Dim i, value, start, called, empty_loop
start = Timer
For i = 1 To 200000
    value = list.Count
Next
called = Timer - start
start = Timer
For i = 1 To 200000
    value = i
Next
empty_loop = Timer - start
WScript.Echo "VBScript loop: " & Round(called * 5000) & " ns a call, " & _
    Round(empty_loop * 5000) & " ns a loop without one"
