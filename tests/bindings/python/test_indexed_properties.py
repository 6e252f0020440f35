"""Properties with an index, on the salutation list and on the phone list."""

import inspect

import pytest

import cvdeveloper

SALUTATIONS = "Frau\tFrau Muster\tSehr geehrte Frau {NACHNAME}\r\nHerr\tHerrn\tSehr geehrter Herr"
PHONES = "0201 123\t\tBüro\r\n0201 456\t0171 9\tprivat"


@pytest.fixture
def salutations():
    salutation_list = cvdeveloper.clsSalutationList()
    salutation_list.AsString = SALUTATIONS
    return salutation_list


@pytest.fixture
def phones():
    phone_list = cvdeveloper.clsPhoneList()
    phone_list.AsString = PHONES
    return phone_list


def test_reading_with_brackets_and_with_parentheses_is_the_same(salutations, phones):
    for salutation, short, long, letter in [
        (1, "Frau", "Frau Muster", "Sehr geehrte Frau {NACHNAME}"),
        (2, "Herr", "Herrn", "Sehr geehrter Herr"),
    ]:
        assert salutations.SalutationShort(salutation) == short
        assert salutations.SalutationShort[salutation] == short
        assert salutations.SalutationLong(salutation) == long
        assert salutations.SalutationLong[salutation] == long
        assert salutations.SalutationLetter(salutation) == letter
        assert salutations.SalutationLetter[salutation] == letter
    for phone, first, second, comment in [
        (1, "0201 123", "", "Büro"),
        (2, "0201 456", "0171 9", "privat"),
    ]:
        assert phones.Phone1(phone) == phones.Phone1[phone] == first
        assert phones.Phone2(phone) == phones.Phone2[phone] == second
        assert phones.PhoneComment(phone) == phones.PhoneComment[phone] == comment


def test_the_index_goes_by_name_too(salutations):
    assert salutations.SalutationShort(Index=2) == "Herr"


@pytest.mark.parametrize(
    ("name", "entry"),
    [
        ("Phone1", "x\t0171 9\tprivat"),
        ("Phone2", "0201 456\tx\tprivat"),
        ("PhoneComment", "0201 456\t0171 9\tx"),
    ],
)
def test_writing_changes_one_part(phones, name, entry):
    getattr(phones, name)[2] = "x"
    assert phones.AsString == "0201 123\t\tBüro\r\n" + entry


@pytest.mark.parametrize("name", ["SalutationShort", "SalutationLong", "SalutationLetter"])
def test_writing_a_salutation_is_error_424_and_changes_nothing(salutations, name):
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        getattr(salutations, name)[1] = "x"
    assert (caught.value.number, caught.value.description) == (
        424,
        "Objekt erforderlich (SetItem)",
    )
    assert salutations.AsString == SALUTATIONS


def test_a_position_that_there_is_not_is_error_9(salutations):
    for index in (0, 3, -1):
        with pytest.raises(cvdeveloper.AutomationError) as caught:
            salutations.SalutationShort[index]
        assert caught.value.number == 9


def test_reading_a_missing_phone_makes_an_empty_entry(phones):
    assert phones.Phone1[5] == ""
    assert phones.Count == 3


@pytest.mark.parametrize(("index", "number"), [("eins", 13), (None, 94), (40_000, 6)])
def test_an_index_that_is_no_position_is_an_error_that_names_it(salutations, index, number):
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        salutations.SalutationShort[index]
    assert caught.value.number == number
    assert caught.value.description.endswith("(SalutationShort, Argument Index)")


def test_assigning_without_an_index_is_error_449(phones):
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        phones.Phone1 = "x"
    assert caught.value.number == 449
    assert phones.AsString == PHONES


def test_entries_cannot_be_deleted_through_a_property(phones):
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        del phones.Phone1[1]
    assert caught.value.number == 438
    assert phones.AsString == PHONES


def test_a_property_waiting_for_its_index_keeps_its_object_alive():
    phone_list = cvdeveloper.clsPhoneList()
    phone_list.AsString = PHONES
    numbers = phone_list.Phone1
    del phone_list
    assert numbers[2] == "0201 456"


def test_a_property_waiting_for_its_index_tells_what_it_is(phones):
    assert phones.Phone1.__name__ == "Phone1"
    assert phones.Phone1.__qualname__ == "clsPhoneList.Phone1"
    assert phones.Phone1.__self__ is phones
    assert phones.Phone1.__doc__ == cvdeveloper.clsPhoneList.Phone1.__doc__
    assert str(inspect.signature(phones.Phone1)) == "(Index: int) -> str"


def test_count_and_text_are_plain_attributes(salutations, phones):
    assert (salutations.Count, phones.Count) == (2, 2)
    assert (salutations.AsString, phones.AsString) == (SALUTATIONS, PHONES)
    with pytest.raises(cvdeveloper.AutomationError):
        salutations.Count = 3
