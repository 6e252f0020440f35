"""Writes the module's type stub from its interface tables.

    PYTHONPATH=build/release/python python3 bindings/python/make_stub.py

The stub is checked in beside this script; a test compares it with what the script would write.
"""

import sys
import textwrap
from pathlib import Path

import cvdeveloper

STUB = Path(__file__).with_name("cvdeveloper.pyi")
WIDTH = 100

# What does not come from the tables: functions and the values that Python has no type for.
HEAD = '''\
# Written by make_stub.py from the interface tables; changes belong there.
import datetime
import enum
import os
from collections.abc import Callable, Iterator, Mapping
from types import TracebackType
from typing import Any, Generic, Literal, Self, TypeAlias, TypeVar, final, overload

from . import host as host

# Whatever a host hands out or takes: its objects and record sets may be of any kind, or None.
_Object: TypeAlias = Any
_RecordSet: TypeAlias = Any
# None, Empty, bool, int, float, str, bytes, datetime or an object.
_Value: TypeAlias = Any
_Date: TypeAlias = datetime.datetime | datetime.date | float

_T = TypeVar("_T")

class AutomationError(Exception):
    number: int
    source: str
    description: str
    def __init__(self, number: int, source: str = "", description: str = "") -> None: ...

class NoSuchMember(AutomationError, AttributeError): ...

class Ref(Generic[_T]):
    value: _T
    @overload
    def __init__(self: Ref[Any]) -> None: ...
    @overload
    def __init__(self, value: _T) -> None: ...

@final
class _EmptyType:
    def __bool__(self) -> Literal[False]: ...

Empty: _EmptyType

class Row(Mapping[str, Any]):
    def __getitem__(self, name: str) -> Any: ...
    def __iter__(self) -> Iterator[str]: ...
    def __len__(self) -> int: ...

class _Indexed(Generic[_T]):
    def __call__(self, Index: int) -> _T: ...
    def __getitem__(self, Index: int) -> _T: ...
    def __setitem__(self, Index: int, value: _T) -> None: ...

def connect(
    folder: str | os.PathLike[str], user: str = "chef", password: str = ""
) -> Application: ...

class transaction:
    def __init__(self, app: Application) -> None: ...
    def __enter__(self) -> None: ...
    def __exit__(
        self,
        kind: type[BaseException] | None,
        error: BaseException | None,
        traceback: TracebackType | None,
    ) -> None: ...

def register_class(progid: str, factory: Callable[[], _Object] | None) -> None: ...
def register_active_object(progid: str, obj: _Object) -> None: ...
def reset_registry() -> None: ...
def set_message_handler(handler: Callable[[str], object] | None) -> None: ...
'''

SESSION_METHODS = '''\
    def __enter__(self) -> Self: ...
    def __exit__(
        self,
        kind: type[BaseException] | None,
        error: BaseException | None,
        traceback: TracebackType | None,
    ) -> None: ...
'''

TYPES = {
    "nothing": "None",
    "string": "str",
    "boolean": "bool",
    "int16": "int",
    "int32": "int",
    "double": "float",
    "date": "datetime.datetime",
    "variant": "_Value",
    "object": "_Object",
    "record set": "_RecordSet",
}


NAMED = {
    described["name"]
    for described in [
        *cvdeveloper._interface()["classes"],
        *cvdeveloper._interface()["enumerations"],
    ]
}


def result_type(row: dict) -> str:
    # Files and folders have classes too, which the module does not name.
    return row["result_name"] if row["result_name"] in NAMED else TYPES[row["result"]]


def argument_type(parameter: dict) -> str:
    if parameter["type"] == "enumeration":
        kind = f"{parameter['type_name']} | int"
    elif parameter["type_name"]:
        kind = f"{parameter['type_name']} | None"
    elif parameter["type"] == "date":
        kind = "_Date"
    else:
        kind = TYPES[parameter["type"]]
    return f"{kind} | Ref[Any]" if parameter["in_out"] else kind


def argument(parameter: dict) -> str:
    text = f"{parameter['name']}: {argument_type(parameter)}"
    if not parameter["required"]:
        default = parameter["default"]
        shown = f'"{default}"' if isinstance(default, str) else repr(default)
        text += f" = {'...' if default is ... else shown}"
    return text


def docstring(text: str) -> list[str]:
    indent = " " * 8
    lines = textwrap.wrap(text, WIDTH - len(indent) - 6, break_on_hyphens=False)
    if len(lines) == 1:
        return [f'{indent}"""{lines[0]}"""']
    return [f'{indent}"""{lines[0]}', *(indent + line for line in lines[1:]), f'{indent}"""']


def definition(name: str, arguments: list[str], result: str) -> list[str]:
    line = f"    def {name}({', '.join(['self', *arguments])}) -> {result}:"
    if len(line) <= WIDTH:
        return [line]
    return [
        f"    def {name}(",
        "        self,",
        *(f"        {text}," for text in arguments),
        f"    ) -> {result}:",
    ]


def method(row: dict) -> list[str]:
    arguments = [argument(parameter) for parameter in row["parameters"]]
    return definition(row["name"], arguments, result_type(row)) + docstring(row["what"])


def getter(row: dict) -> list[str]:
    kind = result_type(row)
    if row["parameters"]:
        places = [(parameter["name"], parameter["type"]) for parameter in row["parameters"]]
        assert places == [("Index", "int16")], row["name"]
        kind = f"_Indexed[{kind}]"
    return ["    @property", *definition(row["name"], [], kind), *docstring(row["what"])]


def setter(row: dict) -> list[str]:
    if len(row["parameters"]) > 1:  # through the brackets of _Indexed
        return []
    line = definition(row["name"], [argument(row["parameters"][0])], "None")[0]
    return [f"    @{row['name']}.setter", f"{line} ..."]


def class_lines(described: dict) -> list[str]:
    write = {"method": method, "get": getter, "put": setter}
    lines = ["", "@final"] if not described["creatable"] else [""]
    lines.append(f"class {described['name']}:")
    lines.append(f'    """{described["help"]}"""')
    rows = [row for topic in described["topics"] for row in topic["operations"]]
    for row in sorted(rows, key=lambda row: (row["id"], row["kind"])):
        lines += write[row["kind"]](row)
    if described["name"] == "Application":
        lines += SESSION_METHODS.splitlines()
    return lines


def enumeration_lines(described: dict) -> list[str]:
    lines = ["", f"class {described['name']}(enum.IntEnum):"]
    lines += [f"    {name} = {value}" for name, value in described["members"]]
    lines.append("")
    lines += [f"{name} = {described['name']}.{name}" for name, _ in described["members"]]
    return lines


def stub() -> str:
    tables = cvdeveloper._interface()
    lines = HEAD.splitlines()
    for described in tables["enumerations"]:
        lines += enumeration_lines(described)
    for described in tables["classes"]:
        lines += class_lines(described)
    return "\n".join(lines) + "\n"


def main() -> None:
    STUB.write_text(stub(), encoding="utf-8")
    print(f"{STUB}: {len(stub().splitlines())} lines", file=sys.stderr)


if __name__ == "__main__":
    main()
