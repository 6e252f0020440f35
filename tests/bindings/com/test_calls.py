"""Calls from programs: bound to the interfaces early, and late with all that can be wrong."""


def test_an_early_bound_program_calls_through_the_vtable(prefix):
    result = prefix.program("early_client")
    assert result.code == 0, result.errors
    assert result.lines == [
        "Count: 00000000 1",
        "Phone2: 0171 2",
        "AsString: 0201 1\t0171 2\tBüro",
        "GetItem: 0201 1/0171 2/Büro",
        "Remove: 800A802B|(null)|Element nicht gefunden (Index 7)",
        "no address for a result: 80004003",
        "GetVersion: 0.9.30",
        "Corvanta_InitType: 0",
        "FlagSqlLog: -1",
        "AKT_Find: 800A0259|(null)|CVDeveloper wurde nicht initialisiert",
        "OBJ_Find: 800A0259|(null)|CVDeveloper wurde nicht initialisiert",
        "oTools twice: the same object",
        "StrList_DeleteFirst: a leaves b",
        "IsArbeitstag: 0",
        "no address for an argument: 80004003",
        "identity: one",
        "last release: 0",
    ]


def test_a_late_bound_program_names_arguments_and_is_told_what_is_wrong(prefix):
    result = prefix.program("late_client")
    assert result.code == 0, result.errors
    assert result.lines == [
        "one by name: 1.234,6",
        "all by name, in any case: 1234,50",
        "unknown argument: no such name 80020006",
        "given twice: 800A01C0|(null)|Benanntes Argument nicht gefunden "
        "(FormatNumber, Argument dblNumber ist doppelt angegeben)",
        "missing argument: 800A01C1|(null)|Argument ist nicht optional "
        "(FormatNumber, Argument dblNumber)",
        "too many arguments: 800A01C2|(null)|Falsche Anzahl an Argumenten "
        "(GetVersion nimmt höchstens 0 Argumente, 1 wurde übergeben)",
        "unknown member: no such name 80020006",
        "a name with an umlaut: no such name 80020006",
        "text for a number: 800A000D|(null)|Typen unverträglich (FormatNumber, Argument dblNumber)",
        "number out of range: 800A0006|(null)|Überlauf "
        "(FormatNumber, Argument NumDigitsAfterDecimal)",
        "array for a text: 800A000D|(null)|Typen unverträglich (Add, Argument strPhone1)",
        "no object for a record set: 800A005B|(null)|Objektvariable nicht festgelegt",
        "a number for an object: 800A000D|(null)|Typen unverträglich (AKT_Delete, Argument rsAkt)",
        "writing a method: 80020003",
        "writing what is only read: 80020003",
        "unknown id: 80020003",
        "negative id: 80020003",
        "no arguments structure: 80070057",
        "no place for the error: 800A0259",
    ]
