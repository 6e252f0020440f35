"""Values and errors of automation that Python has no type of its own for."""

from typing import Generic, TypeVar

T = TypeVar("T")


class AutomationError(Exception):
    """An error of the library or of a host.

    number is the error's number (int, signed); source and description are texts, "" where the
    error gives none.
    """

    def __init__(self, number: int, source: str = "", description: str = "") -> None:
        super().__init__(number, source, description)
        self.number = number
        self.source = source
        self.description = description

    def __str__(self) -> str:
        text = f"Fehler {self.number}"
        if self.source:
            text += f" ({self.source})"
        if self.description:
            text += f": {self.description}"
        return text


class NoSuchMember(AutomationError, AttributeError):
    """Error 438 for an attribute of a library object, for Python an AttributeError as well."""


class Ref(Generic[T]):
    """A variable for an in/out argument: its value goes in, what the call leaves comes back."""

    __slots__ = ("value",)

    def __init__(self, value: T = ...) -> None:
        self.value = Empty if value is ... else value

    def __repr__(self) -> str:
        return f"cvdeveloper.Ref({self.value!r})"


class EmptyType:
    """The type of Empty, the value of a variant that nothing has been put into."""

    __slots__ = ()

    def __repr__(self) -> str:
        return "cvdeveloper.Empty"

    def __bool__(self) -> bool:
        return False

    def __reduce__(self) -> str:
        return "Empty"


Empty = EmptyType()

for _class in (AutomationError, NoSuchMember, Ref, EmptyType):
    _class.__module__ = "cvdeveloper"
