"""Making the classes known to a Windows installation, and forgetting them."""

import pytest

from wine_prefix import windows_path

CLASSES = ("Application", "clsBase", "clsTools", "clsSalutationList", "clsPhoneList",
           "clsFileSystem")


@pytest.fixture(scope="module")
def fresh(new_prefix):
    return new_prefix("registration")


def registry(prefix, root: str) -> dict[str, str]:
    """The default values of the keys below a root, which mention the library."""
    values, key = {}, ""
    for line in prefix.run("reg", "query", root, "/s", timeout=120).lines:
        if line and not line.startswith(" "):
            key = line.strip()
        elif "REG_SZ" in line and line.strip().startswith("("):
            values[key.lower()] = line.split("REG_SZ", 1)[1].strip()
    return values


@pytest.mark.parametrize(
    ("root", "flags"),
    [("HKEY_LOCAL_MACHINE", ()), ("HKEY_CURRENT_USER", ("/n", "/i:user"))],
)
def test_classes_are_known_after_registering_and_forgotten_after(fresh, root, flags):
    base = f"{root}\\Software\\Classes".lower()
    assert fresh.register("CVDeveloper.dll", *flags).code == 0
    known = registry(fresh, base)
    for name in CLASSES:
        class_id = known[f"{base}\\cvdeveloper.{name}\\clsid".lower()]
        assert class_id == known[f"{base}\\cvdeveloper.{name}.1\\clsid".lower()]
        assert known[f"{base}\\cvdeveloper.{name}\\curver".lower()] == f"CVDeveloper.{name}.1"
        key = f"{base}\\clsid\\{class_id}".lower()
        dll = windows_path(fresh.dll("CVDeveloper.dll"))
        assert known[f"{key}\\inprocserver32"].lower() == dll.lower()
        assert known[f"{key}\\progid"] == f"CVDeveloper.{name}.1"
        assert known[f"{key}\\versionindependentprogid"] == f"CVDeveloper.{name}"
        library = known[f"{key}\\typelib"]
    libraries = registry(fresh, f"HKEY_CLASSES_ROOT\\TypeLib\\{library}")
    assert "Corvanta Entwicklungstools" in libraries.values()
    # Wine looks for classes among the machine's only.
    expected = 0 if root == "HKEY_LOCAL_MACHINE" else 1
    assert fresh.program("early_client").code == expected

    assert fresh.register("CVDeveloper.dll", "/u", *flags).code == 0
    left = [key for key in registry(fresh, base) if "cvdeveloper" in key or class_id in key]
    assert left == []
    assert registry(fresh, f"HKEY_CLASSES_ROOT\\TypeLib\\{library}") == {}


def test_an_unknown_way_of_installing_is_refused(fresh):
    assert fresh.register("CVDeveloper.dll", "/n", "/i:everybody").code != 0
    base = "HKEY_LOCAL_MACHINE\\Software\\Classes"
    assert [key for key in registry(fresh, base) if "cvdeveloper" in key] == []
