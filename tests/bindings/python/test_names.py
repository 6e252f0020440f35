"""What the module offers has the names of the interface."""

import importlib.util

import pytest

import cvdeveloper

CREATABLE = ["Application", "clsTools", "clsSalutationList", "clsPhoneList", "clsFileSystem"]
ATTRIBUTES = {
    "Application": {
        "Corvanta_InitType", "Corvanta_Application", "Corvanta_Connector", "FlagSqlLog", "LogPath",
        "oBase", "oTools", "oFileSystem", "oUtil", "oBlob", "oDbIni",
    },
    "clsBase": set(),
    "clsTools": set(),
    "clsSalutationList": {
        "AsString", "Count", "SalutationShort", "SalutationLong", "SalutationLetter",
    },
    "clsPhoneList": {"AsString", "Count", "Phone1", "Phone2", "PhoneComment"},
    "clsFileSystem": set(),
}  # fmt: skip
CLASSES = {described["name"]: described for described in cvdeveloper._interface()["classes"]}


def operations(described):
    return [row for topic in described["topics"] for row in topic["operations"]]


@pytest.mark.parametrize("name", CREATABLE)
def test_the_class_can_be_created(name):
    assert type(getattr(cvdeveloper, name)()).__name__ == name


def test_base_objects_come_from_the_application_alone():
    assert type(cvdeveloper.Application().oBase) is cvdeveloper.clsBase
    with pytest.raises(TypeError, match=r"cannot create 'cvdeveloper\.clsBase' instances"):
        cvdeveloper.clsBase()


def test_creating_takes_no_arguments():
    with pytest.raises(cvdeveloper.AutomationError) as caught:
        cvdeveloper.Application("/srv/buero")
    assert caught.value.number == 450
    assert caught.value.description == "Falsche Anzahl an Argumenten (Application)"


@pytest.mark.parametrize("name", CLASSES)
def test_every_operation_has_its_own_name(name):
    kind = getattr(cvdeveloper, name)
    for row in operations(CLASSES[name]):
        member = getattr(kind, row["name"])
        assert member.__name__ == row["name"]
        assert member.__qualname__ == f"{name}.{row['name']}"
        assert member.__module__ == "cvdeveloper"
        assert member.__objclass__ is kind


@pytest.mark.parametrize("name", CLASSES)
def test_what_the_interface_calls_a_property_is_an_attribute_and_the_rest_are_methods(name):
    properties = {row["name"] for row in operations(CLASSES[name]) if row["kind"] != "method"}
    assert properties == ATTRIBUTES[name]
    for row in operations(CLASSES[name]):
        member = getattr(getattr(cvdeveloper, name), row["name"])
        assert callable(member) == (row["name"] not in properties)


def test_operations_without_arguments_are_called(attached, host):
    assert attached.GetVersion() == "0.9.30"
    assert attached.Corvanta_Folder() == "C:\\Corvanta"
    host.answers["SELECT AD_STDBRIEFANREDE FROM Std"] = [{"AD_STDBRIEFANREDE": "Guten Tag"}]
    assert callable(attached.AD_GetStdBriefAnrede)


def test_operations_are_reached_through_the_worker_objects(attached, host):
    assert attached.oBase.Sql_Find("AKT", "1=2").EOF
    assert host.statements == ["SELECT * FROM AKT  WHERE 1=2"]


def test_the_worker_objects_are_the_same_each_time():
    app = cvdeveloper.Application()
    assert app.oBase is app.oBase
    assert app.oTools is app.oTools
    assert app.oFileSystem is app.oFileSystem


def test_attributes_are_read_and_written():
    app = cvdeveloper.Application()
    assert (app.FlagSqlLog, app.LogPath) == (False, "")
    app.FlagSqlLog = True
    app.LogPath = "/var/log/büro"
    assert (app.FlagSqlLog, app.LogPath) == (True, "/var/log/büro")


def test_attributes_without_a_session_are_none():
    app = cvdeveloper.Application()
    for name in ("Corvanta_Application", "Corvanta_Connector", "oUtil", "oBlob", "oDbIni"):
        assert getattr(app, name) is None


def test_read_only_attributes_and_operations_cannot_be_replaced():
    app = cvdeveloper.Application()
    for name in ("oBase", "Corvanta_InitType", "AKT_Create"):
        with pytest.raises(cvdeveloper.AutomationError) as caught:
            setattr(app, name, None)
        assert caught.value.number == 438
        assert caught.value.description == (
            f"Objekt unterstützt diese Eigenschaft oder Methode nicht ({name})"
        )


def test_attributes_cannot_be_deleted():
    app = cvdeveloper.Application()
    for name in ("LogPath", "oBase"):
        with pytest.raises(cvdeveloper.AutomationError) as caught:
            delattr(app, name)
        assert caught.value.number == 438


def test_everything_public_is_listed_and_there():
    for name in cvdeveloper.__all__:
        assert hasattr(cvdeveloper, name)
    assert len(set(cvdeveloper.__all__)) == len(cvdeveloper.__all__)
    assert {*CLASSES, "Empty", "Ref", "AutomationError", "connect", "transaction", "host",
            "register_class", "register_active_object", "reset_registry",
            "set_message_handler"} <= set(cvdeveloper.__all__)  # fmt: skip


def test_a_type_stub_ships_with_the_module():
    folder = importlib.util.find_spec("cvdeveloper").submodule_search_locations[0]
    assert importlib.util.find_spec("cvdeveloper").origin == f"{folder}/__init__.py"
    with open(f"{folder}/__init__.pyi", encoding="utf-8") as stub:
        assert "class Application" in stub.read()
    with open(f"{folder}/py.typed", encoding="utf-8") as marker:
        assert marker.read() == ""
