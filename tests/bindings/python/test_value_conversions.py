"""Each kind of value, from Python to automation and back."""

import datetime
import math

import pytest
from doubles import Host, RecordSet

import cvdeveloper

NOON = datetime.datetime(2026, 11, 23, 12)


@pytest.fixture
def copied(attached):
    """Sends a value through the library: out of one record set, as a variant, into another."""

    def copy(value):
        target = RecordSet({"A": None})
        attached.oBase.Sql_CopyFields(RecordSet({"A": value}), target)
        return target.row["A"]

    return copy


@pytest.fixture
def handed_in(host, tmp_path):
    """Hands a value in as an argument of any kind and gives what a host gets of it."""
    app = cvdeveloper.Application()
    app.LogPath = str(tmp_path)
    app.Corvanta_SetApplication(host)

    def hand_in(value):
        row = RecordSet({"DSN": "K", "A": 0})
        host.answers["SELECT DSN,A FROM AKT WHERE DSN='K'"] = row
        host.GetRecordset = lambda sql: row
        assert app.oBase.Sql_SetField("AKT", "K", "A", value)
        return row.row["A"]

    return hand_in


PLAIN = [
    None,
    True,
    False,
    0,
    -1,
    2**31 - 1,
    -(2**31),
    0.0,
    -0.5,
    1e300,
    math.inf,
    "",
    "Müller & Söhne ✓ 😀",
    "mit\0Null",
    b"",
    b"\x00\xff",
    NOON,
    datetime.datetime(1899, 12, 30),
    datetime.datetime(1899, 12, 29, 18),
    datetime.datetime(2026, 11, 23, 11, 25, 39, 123456),
    datetime.datetime(1, 1, 1),
    datetime.datetime(9999, 12, 31, 23, 59, 59),
]


@pytest.mark.parametrize("value", PLAIN, ids=repr)
def test_a_value_and_its_type_arrive_as_they_were_sent(copied, handed_in, value):
    for arrived in (copied(value), handed_in(value)):
        assert arrived == value
        assert type(arrived) is type(value)


def test_empty_stays_empty(copied, handed_in):
    assert copied(cvdeveloper.Empty) is cvdeveloper.Empty
    assert handed_in(cvdeveloper.Empty) is cvdeveloper.Empty


def test_empty_is_false_and_says_what_it_is():
    assert not cvdeveloper.Empty
    assert repr(cvdeveloper.Empty) == "cvdeveloper.Empty"


@pytest.mark.parametrize("number", [2**31, -(2**31) - 1, 2**53, 10**300])
def test_integers_that_do_not_fit_into_32_bits_become_doubles(copied, handed_in, number):
    for arrived in (copied(number), handed_in(number)):
        assert arrived == float(number)
        assert type(arrived) is float


def test_an_integer_that_no_double_holds_is_error_6(attached):
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        attached.oBase.Sql_SetField("AKT", "K", "A", 10**400)
    assert caught.value.number == 6
    assert caught.value.description == "Überlauf (Sql_SetField, Argument varValue)"


def test_not_a_number_stays_none(copied):
    assert math.isnan(copied(math.nan))


def test_bool_is_not_an_integer(copied):
    assert copied(True) is True
    assert copied(1) == 1
    assert copied(1) is not True


def test_a_date_without_a_time_is_midnight(copied, handed_in):
    for arrived in (copied(datetime.date(2026, 11, 23)), handed_in(datetime.date(2026, 11, 23))):
        assert arrived == datetime.datetime(2026, 11, 23)
        assert type(arrived) is datetime.datetime


def test_microseconds_survive(copied):
    for microsecond in (2, 499_999, 500_000, 999_998):
        moment = datetime.datetime(2026, 11, 23, 23, 59, 59, microsecond)
        assert copied(moment) == moment


def test_a_microsecond_beside_a_second_is_the_second(copied):
    # Sums of days and minutes miss their second by that much.
    for microseconds in (-1, 0, 1):
        moment = NOON + datetime.timedelta(microseconds=microseconds)
        assert copied(moment) == NOON
    midnight = datetime.datetime(2026, 11, 24)
    assert copied(midnight - datetime.timedelta(microseconds=1)) == midnight


def test_a_follow_up_date_is_the_sum_to_the_second(attached, host):
    for minutes in range(0, 1440, 7):
        started = datetime.datetime(2024, 3, 1) + datetime.timedelta(minutes=minutes)
        activity = RecordSet({"Erledigt": 0, "Datum": started, "Emsk_Dsn": None, "Vorlage": None})
        kind = {"Erledigt": 0, "Vorlage": 2, "Minuten": 90, "Ohne_Uhrzeit": 0}
        rest = ("Priorität", "Km", "Kosten", "PeriodenArt", "PeriodenIntervall", "Default_Emsk_Dsn")
        attached.AKT_SetAktArt(activity, RecordSet(kind | dict.fromkeys(rest)))
        assert activity.row["Vorlage"] == started + datetime.timedelta(days=2, minutes=90)


@pytest.mark.parametrize(
    "zone", [datetime.timezone.utc, datetime.timezone(datetime.timedelta(hours=1))]
)
def test_a_time_with_a_time_zone_is_error_13(attached, copied, zone):
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        attached.oBase.Sql_SetField("AKT", "K", "A", NOON.replace(tzinfo=zone))
    assert caught.value.number == 13
    assert caught.value.description == (
        "Typen unverträglich (Sql_SetField, Argument varValue, ein Zeitpunkt mit Zeitzone)"
    )
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        copied(NOON.replace(tzinfo=zone))
    assert caught.value.number == 13


def test_a_bytearray_is_taken_as_bytes(copied):
    assert copied(bytearray(b"\x01\x02")) == b"\x01\x02"


def test_half_a_surrogate_pair_is_no_text(attached):
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        attached.DoLog("\ud83d", "x")
    assert caught.value.number == 13
    assert caught.value.description == (
        "Typen unverträglich (DoLog, Argument strProcName, kein gültiger Text)"
    )


@pytest.mark.parametrize("value", [object(), [1], {"a": 1}, RecordSet(), Host()], ids=type)
def test_any_other_object_arrives_as_itself(copied, handed_in, value):
    assert copied(value) is value
    assert handed_in(value) is value


def test_library_objects_arrive_as_themselves(copied, handed_in):
    phones = cvdeveloper.clsPhoneList()
    assert copied(phones) is phones
    assert handed_in(phones) is phones


class TextOfItsOwn(str):
    """A text, for whoever asks."""


def test_kinds_of_text_and_number_are_taken_for_what_they_are(copied):
    assert copied(TextOfItsOwn("abc")) == "abc"
    assert copied(cvdeveloper.EART_MIETE) == 1


# Conversion to the declared type of an argument.

DAY = "Montag, 23. November 2026"


@pytest.mark.parametrize(
    "given",
    [NOON, datetime.date(2026, 11, 23), 46349, 46349.5, "23.11.2026", "46349"],
    ids=repr,
)
def test_arguments_that_are_dates_take_dates_numbers_and_texts(given):
    assert cvdeveloper.clsTools().FormatDateTime(given, 1) == DAY


def test_a_date_of_zero_is_day_zero():
    assert cvdeveloper.clsTools().FormatDateTime(0, 2) == "30.12.1899"


def test_numbers_without_a_date_are_error_6():
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        cvdeveloper.clsTools().FormatDateTime(1e9)
    assert caught.value.number == 6
    assert caught.value.description == "Überlauf (FormatDateTime, Argument datDate)"


@pytest.mark.parametrize(
    ("value", "number", "text"),
    [
        ("kein Datum", 13, "Typen unverträglich"),
        (None, 94, "Unzulässige Verwendung von Null"),
        (object(), 13, "Typen unverträglich"),
        (b"\x00", 13, "Typen unverträglich"),
    ],
    ids=repr,
)
def test_what_cannot_be_converted_is_error_13_and_null_error_94(value, number, text):
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        cvdeveloper.clsTools().FormatDateTime(value)
    assert caught.value.number == number
    assert caught.value.description == f"{text} (FormatDateTime, Argument datDate)"


def test_arguments_that_are_texts_take_numbers_and_dates_in_the_regional_form(app, log_lines):
    for value in (1.5, 7, True, NOON, "x"):
        app.DoLog("Wert", value)
    assert log_lines() == [
        "Wert : 1,5",
        "Wert : 7",
        "Wert : Wahr",
        "Wert : 23.11.2026 12:00:00",
        "Wert : x",
    ]


def test_none_is_nothing_where_an_object_is_asked_for(app):
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        app.AKT_Update(None)
    assert caught.value.number == 91


def test_a_plain_value_where_an_object_is_asked_for_is_error_13(app):
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        app.AKT_Update(5)
    assert caught.value.number == 13
    assert caught.value.description == "Typen unverträglich (AKT_Update, Argument rsAkt)"


def test_an_object_of_another_class_is_error_13(app):
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        app.AD_SetPhoneList(None, cvdeveloper.clsSalutationList())
    assert caught.value.number == 13
    assert caught.value.description == (
        "Typen unverträglich (AD_SetPhoneList, Argument oPhoneList, erwartet clsPhoneList)"
    )


# Results.


def test_results_have_their_python_types(app):
    salutations = cvdeveloper.clsSalutationList()
    salutations.Add("Herr", "Herrn", "Sehr geehrter Herr")
    assert type(app.GetVersion()) is str
    assert app.Corvanta_IsAdmin() is True
    assert type(app.Corvanta_DbVersion()) is float
    assert type(salutations.Count) is int
    assert app.Corvanta_Done() is None


def test_a_result_that_is_an_empty_variant_is_empty():
    salutations = cvdeveloper.clsSalutationList()
    salutations.Add("Herr", "Herrn", "Sehr geehrter Herr")
    assert salutations.Remove(1) is cvdeveloper.Empty


def test_a_result_that_is_nothing_is_none():
    assert cvdeveloper.Application().Corvanta_Application is None


def test_dates_come_as_datetimes():
    tools = cvdeveloper.clsTools()
    moved = tools.MoveDate(NOON, NOON, NOON + datetime.timedelta(days=2))
    assert type(moved) is datetime.datetime


@pytest.mark.parametrize("answer", [1, -1, 1.0, "1", "Wahr", True])
def test_what_a_host_gives_is_converted_to_what_is_asked_for(answer, messages):
    host = Host()
    host.IsLoggedIn = answer
    app = cvdeveloper.Application()
    app.Corvanta_SetApplication(host)
    assert (app.Corvanta_InitType, messages) == (1, [])


def test_what_a_host_gives_and_cannot_be_converted_is_error_13(attached, host):
    host.GetRecordset = lambda sql: 5
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        attached.oBase.CV_GetRecordset("SELECT 1")
    assert (caught.value.number, caught.value.description) == (13, "Typen unverträglich")
