"""In/out arguments: a Ref brings back what is left there, a plain value does not."""

import pytest
from doubles import RecordSet

import cvdeveloper
from cvdeveloper import Ref


@pytest.fixture
def tools():
    return cvdeveloper.clsTools()


def test_a_ref_holds_what_the_call_leaves(tools):
    buffer = Ref("a|b|c")
    assert tools.StrList_DeleteFirst(buffer, "|") == "a"
    assert buffer.value == "b|c"
    assert tools.StrList_DeleteFirst(buffer, "|") == "b"
    assert tools.StrList_DeleteFirst(buffer, "|") == "c"
    assert buffer.value == ""


def test_a_plain_value_is_taken_and_the_change_is_dropped(tools):
    text = "a|b"
    assert tools.StrList_DeleteFirst(text, "|") == "a"
    assert text == "a|b"


def test_a_ref_goes_by_name_too(tools):
    buffer = Ref("a,b")
    assert tools.StrList_DeleteFirst(strDelim=",", varBuffer=buffer) == "a"
    assert buffer.value == "b"


def test_several_refs_are_filled_by_one_call():
    phones = cvdeveloper.clsPhoneList()
    phones.Add("0201 1", "0171 2", "Büro")
    first, second, comment = Ref(), Ref(None), Ref("alt")
    assert phones.GetItem(1, first, second, comment) is None
    assert (first.value, second.value, comment.value) == ("0201 1", "0171 2", "Büro")


def test_refs_and_plain_values_mix():
    phones = cvdeveloper.clsPhoneList()
    phones.Add("0201 1", "0171 2", "Büro")
    second = Ref("")
    phones.GetItem(1, None, second, "")
    assert second.value == "0171 2"


def test_a_ref_made_without_a_value_holds_empty():
    assert Ref().value is cvdeveloper.Empty
    assert Ref(None).value is None
    assert repr(Ref("x")) == "cvdeveloper.Ref('x')"


def test_a_ref_may_say_what_it_holds(tools):
    buffer = Ref[str]("a|b")
    assert tools.StrList_DeleteFirst(buffer) == "a"
    assert buffer.value == "b"


class Variable(Ref):
    """A Ref of the caller's own making."""


def test_classes_derived_from_ref_are_refs(tools):
    buffer = Variable("a|b")
    assert tools.StrList_DeleteFirst(buffer) == "a"
    assert buffer.value == "b"


def test_a_ref_for_an_argument_that_only_goes_in_is_read_and_left_alone(tools):
    text, pattern = Ref("Meier"), Ref("M*")
    assert tools.vbLike(text, pattern) is True
    assert (text.value, pattern.value) == ("Meier", "M*")


def test_a_call_that_fails_leaves_the_ref_as_it_was():
    salutations = cvdeveloper.clsSalutationList()
    short = Ref("alt")
    with pytest.raises(cvdeveloper.AutomationError):
        salutations.GetItem(7, short, Ref(), Ref())
    assert short.value == "alt"


def test_a_value_that_cannot_be_converted_names_the_argument(tools):
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        tools.IsArbeitstag(46349, Ref("vielleicht"))
    assert caught.value.number == 13
    assert caught.value.description == "Typen unverträglich (IsArbeitstag, Argument blnFeiertag)"


def test_what_the_host_leaves_in_update_recordset_reaches_the_caller(attached, host):
    replaced = RecordSet({"DSN": "neu"})

    def update(rs):
        rs.value = replaced

    host.UpdateRecordset = update
    for write in (attached.AKT_Update, attached.oBase.CV_UpdateRecordset):
        rs = Ref(RecordSet({"DSN": "alt"}))
        write(rs)
        assert rs.value is replaced


def test_a_record_set_that_the_host_leaves_alone_stays_the_same_object(attached, host):
    given = RecordSet({"DSN": "K"})
    rs = Ref(given)
    attached.AKT_Update(rs)
    assert rs.value is given
    assert host.updates == [given]


def test_parse_and_fill_brings_all_three_back(attached, host):
    seen = []
    replaced = RecordSet()

    def parse_and_fill(rs, kind, show):
        seen.append((rs.value, kind.value, show.value))
        rs.value, kind.value, show.value = replaced, 3, False
        return "gelesen"

    host.ParseAndFill = parse_and_fill
    given = RecordSet()
    rs, kind, show = Ref(given), Ref(2), Ref(True)
    assert attached.oBase.CV_ParseAndFill(rs, kind, show) == "gelesen"
    assert seen == [(given, 2, True)]
    assert rs.value is replaced
    assert show.value is False
