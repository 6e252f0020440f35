Option Explicit

' A host that keeps what it is asked, with record sets of one row whose fields have any name.
Class ScriptField
    Public Name
    Public Recordset
    Public Property Get Value
        If Recordset.Values.Exists(Name) Then
            Value = Recordset.Values.Item(Name)
        ElseIf Name = "AKTIV" Or Name = "Chef" Then
            Value = 1
        ElseIf Name = "Version" Then
            Value = 2.5
        Else
            Value = "Wert von " & Name
        End If
    End Property
    Public Property Let Value(what)
        Recordset.Values.Item(Name) = what
    End Property
    Public Property Get Type
        Type = 200
    End Property
End Class

Class ScriptFields
    Public Recordset
    Public Property Get Count
        Count = 1
    End Property
    Public Function Item(which)
        Set Item = New ScriptField
        Item.Name = which
        Set Item.Recordset = Recordset
    End Function
End Class

Class ScriptRecordset
    Public Values
    Public At
    Private Sub Class_Initialize
        Set Values = CreateObject("Scripting.Dictionary")
        At = 0
    End Sub
    Public Property Get EOF
        EOF = At > 0
    End Property
    Public Property Get Fields
        Set Fields = New ScriptFields
        Set Fields.Recordset = Me
    End Property
    Public Sub MoveFirst
        At = 0
    End Sub
    Public Sub MoveNext
        At = At + 1
    End Sub
    Public Sub AddNew
        At = 0
    End Sub
    Public Sub Delete
        At = 1
    End Sub
End Class

Class ScriptUtil
    Public Function SqlUid(key)
        SqlUid = "#" & key & "#"
    End Function
    Public Function SqlStrNull(text)
        If text = "" Then SqlStrNull = Null Else SqlStrNull = text
    End Function
    Public Function NewGUID
        NewGUID = "NEU"
    End Function
    Public Function k(value)
        k = value & ""
    End Function
    Public Function d(value)
        d = CDbl(value)
    End Function
    Public Function b(value)
        b = CBool(value)
    End Function
End Class

Class ScriptHost
    Public Util
    Public LastRecordset
    Public Replacement
    Private lines
    Private Sub Class_Initialize
        Set Util = New ScriptUtil
        Set Replacement = Nothing
        lines = Array()
    End Sub
    Private Sub Note(line)
        ReDim Preserve lines(UBound(lines) + 1)
        lines(UBound(lines)) = line
    End Sub
    Public Property Get Statements
        Statements = lines
    End Property
    Public Property Get IsLoggedIn
        IsLoggedIn = True
    End Property
    Public Property Get Folder
        Folder = "C:\Corvanta"
    End Property
    Public Property Get VersionBuild
        VersionBuild = 133
    End Property
    Public Property Get Blob
        Set Blob = Nothing
    End Property
    Public Property Get DbIni
        Set DbIni = Nothing
    End Property
    Public Property Get CurrentUserRS
        Set CurrentUserRS = New ScriptRecordset
    End Property
    Public Property Get STDRS
        Set STDRS = New ScriptRecordset
    End Property
    Public Function GetRecordset(sql)
        Note sql
        If InStr(sql, "FEHLER") > 0 Then
            Err.Raise vbObjectError + 1000, "ScriptHost", "Die Anweisung ist falsch"
        End If
        Set LastRecordset = New ScriptRecordset
        Set GetRecordset = LastRecordset
    End Function
    Public Sub UpdateRecordset(ByRef rs)
        Dim name, line
        line = "Update"
        For Each name In rs.Values.Keys
            line = line & " " & name & "=" & rs.Values.Item(name)
        Next
        Note line
        If Not Replacement Is Nothing Then Set rs = Replacement
    End Sub
End Class
