"""Arguments by position, by the interface's names, or left out."""

import datetime

import pytest

import cvdeveloper


@pytest.fixture
def tools():
    return cvdeveloper.clsTools()


def raised(call):
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        call()
    return caught.value.number, caught.value.description


def test_arguments_go_by_position(tools):
    assert tools.vbLike("Meier", "M*r") is True


def test_arguments_go_by_name_in_any_order(tools):
    assert tools.vbLike(strPattern="M*r", strText="Meier") is True


def test_arguments_by_name_follow_those_by_position(tools):
    assert tools.vbLike("Meier", strPattern="M*r") is True


def test_names_of_arguments_are_taken_without_regard_to_case(tools):
    assert tools.vbLike(STRTEXT="Meier", strpattern="M*r") is True


def test_names_made_at_run_time_are_as_good_as_written_ones(tools):
    assert tools.vbLike(**{"".join(["str", "Text"]): "a", "".join(["str", "Pattern"]): "a"}) is True


def test_optional_arguments_may_be_left_out(tools):
    assert tools.StrList_DeleteFirst("a|b") == "a"
    assert tools.StrList_DeleteFirst("a,b", ",") == "a"
    assert tools.StrList_DeleteFirst("a,b", strDelim=",") == "a"


def test_an_ellipsis_leaves_an_argument_out(tools):
    assert tools.StrList_DeleteFirst("a|b", ...) == "a"


def test_a_required_argument_that_is_left_out_is_error_449(tools):
    expected = (449, "Argument ist nicht optional (vbLike, Argument strPattern)")
    assert raised(lambda: tools.vbLike("Meier")) == expected
    assert raised(lambda: tools.vbLike(strText="Meier")) == expected


def test_too_many_arguments_are_error_450(tools):
    expected = (
        450,
        "Falsche Anzahl an Argumenten (vbLike nimmt höchstens 2 Argumente, 3 wurden übergeben)",
    )
    assert raised(lambda: tools.vbLike("a", "b", "c")) == expected
    assert raised(lambda: tools.vbLike("a", "b", strText="c")) == expected


def test_an_unknown_name_is_error_448_with_the_nearest_ones(tools):
    assert raised(lambda: tools.vbLike("a", strPatern="b")) == (
        448,
        "Benanntes Argument nicht gefunden (vbLike, Argument strPatern. Meinten Sie strPattern?)",
    )


def test_an_argument_given_twice_is_error_448(tools):
    assert raised(lambda: tools.vbLike("a", strText="b")) == (
        448,
        "Benanntes Argument nicht gefunden (vbLike, Argument strText ist doppelt angegeben)",
    )
    assert raised(lambda: tools.vbLike(**{"strText": "a", "STRTEXT": "b"})) == (
        448,
        "Benanntes Argument nicht gefunden (vbLike, Argument STRTEXT ist doppelt angegeben)",
    )


def test_an_operation_called_on_its_class_takes_the_object_first(tools):
    assert cvdeveloper.clsTools.vbLike(tools, "Meier", "M*r") is True


def test_an_operation_called_on_something_else_is_error_424():
    expected = (424, "Objekt erforderlich (GetVersion)")
    assert raised(lambda: cvdeveloper.Application.GetVersion()) == expected
    assert raised(lambda: cvdeveloper.Application.GetVersion(cvdeveloper.clsTools())) == expected
    assert raised(lambda: cvdeveloper.Application.GetVersion(5)) == expected


def test_a_bound_operation_can_be_kept_and_called_later(tools):
    like = tools.vbLike
    del tools
    assert like("Meier", "M*r") is True


def test_twenty_one_arguments_arrive_at_their_places(attached, host):
    host.answers["SELECT Kennung_AKT FROM Std"] = [{"Kennung_AKT": "A-1"}]
    texts = [f"T{n}" for n in range(1, 13)]
    attached.AKT_Create("ART", "Anruf", "Notiz", True, 1, 2, 3, 4, 5, *texts)
    row = host.updates[0].rows[0]
    assert list(row.items())[4:25] == [
        ("Art_Dsn", "ART"),
        ("Subject", "Anruf"),
        ("Notiz", "Notiz"),
        ("Erledigt", 1),
        ("Datum", datetime.datetime(1899, 12, 31)),
        ("Datum_Bis", datetime.datetime(1900, 1, 1)),
        ("Vorlage", datetime.datetime(1900, 1, 2)),
        ("Alarm", datetime.datetime(1900, 1, 3)),
        ("Loeschdatum", datetime.datetime(1900, 1, 4)),
        ("Stichwort1", "T1"),
        ("Stichwort2", "T2"),
        ("Emsk_Dsn", "T3"),
        ("AD_Dsn", "T4"),
        ("AD_B_Dsn", "T5"),
        ("OBJ_Dsn", "T6"),
        ("ANF_Dsn", "T7"),
        ("Projekte_Dsn", "T8"),
        ("Akten_Dsn", "T9"),
        ("Verträge_Dsn", "T10"),
        ("Details_Dsn", "T11"),
        ("Akt_Dsn", "T12"),
    ]
