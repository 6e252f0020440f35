"""Enumerations are IntEnum classes with the interface's names."""

import enum

import pytest

import cvdeveloper

MEMBERS = {
    "enumInitType": {"INITTYPE_NONE": 0, "INITTYPE_APPLICATION": 1, "INITTYPE_CONNECTOR": 2},
    "ENUM_EART": {"EART_KAUF": 0, "EART_MIETE": 1, "EART_KAUFMIETE": 2},
    "ENUM_FLDARTTYP": {
        "FLDARTTYP_OPTION": 0,
        "FLDARTTYP_WAEHRUNG": 1,
        "FLDARTTYP_NUMMERISCH": 2,
        "FLDARTTYP_TEXT": 3,
        "FLDARTTYP_JANEIN": 4,
        "FLDARTTYP_DATUM": 5,
        "FLDARTTYP_PLZ": 6,
        "FLDARTTYP_ADRESSE": 7,
    },
    "ENUM_DELIVERYSTATE": {
        "DELIVERYSTATE_None": 0,
        "DELIVERYSTATE_Received": 1,
        "DELIVERYSTATE_Queue": 2,
        "DELIVERYSTATE_Send": 3,
        "DELIVERYSTATE_SendError": 4,
    },
    "ENUM_BLOBTYPE": {
        "BLOBTYPE_WORD": 1,
        "BLOBTYPE_OLE": 2,
        "BLOBTYPE_ARCHIV": 3,
        "BLOBTYPE_SOUND": 4,
        "BLOBTYPE_EXCEL": 5,
        "BLOBTYPE_ATTACHMENT": 6,
        "BLOBTYPE_ATTACHMENTLINK": 7,
    },
}


@pytest.mark.parametrize("name", MEMBERS)
def test_the_members_have_their_numbers_and_stand_in_the_module_too(name):
    kind = getattr(cvdeveloper, name)
    assert issubclass(kind, enum.IntEnum)
    assert (kind.__name__, kind.__module__) == (name, "cvdeveloper")
    assert {member.name: int(member) for member in kind} == MEMBERS[name]
    for member in kind:
        assert getattr(cvdeveloper, member.name) is member


def test_there_are_no_other_enumerations():
    assert [e["name"] for e in cvdeveloper._interface()["enumerations"]] == list(MEMBERS)


def test_results_are_members():
    kind = cvdeveloper.Application().Corvanta_InitType
    assert kind is cvdeveloper.INITTYPE_NONE


@pytest.mark.parametrize("given", [cvdeveloper.EART_MIETE, cvdeveloper.ENUM_EART.EART_MIETE, 1, 1.0])
def test_members_and_numbers_are_taken_where_an_enumeration_is_asked_for(attached, host, given):
    attached.OBJ_Create("Haus am See", given)
    assert host.updates[0].rows[0]["EART"] == 1


def test_what_is_no_number_is_error_13(attached):
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        attached.OBJ_Create("Haus am See", "Miete")
    assert caught.value.number == 13
    assert caught.value.description == "Typen unverträglich (OBJ_Create, Argument enumEART)"
