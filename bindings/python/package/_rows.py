"""Rows of a record set as Python mappings."""

from collections.abc import Iterator, Mapping
from typing import Any

from . import _cvdeveloper


class Row(Mapping):
    """One row as it was when the record set stood there; names without regard to case."""

    __slots__ = ("_names", "_places", "_values")

    def __init__(self, names: tuple, places: dict, values: tuple) -> None:
        self._names = names
        self._places = places
        self._values = values

    def __getitem__(self, name: str) -> Any:
        try:
            return self._values[self._places[name.lower()]]
        except (KeyError, AttributeError):
            raise KeyError(name) from None

    def __iter__(self) -> Iterator[str]:
        return iter(self._names)

    def __len__(self) -> int:
        return len(self._names)

    def __repr__(self) -> str:
        return f"Row({dict(self)!r})"


Row.__module__ = "cvdeveloper"


def iterate(record_set: Any) -> Iterator[Row]:
    """Gives the rows from the current one on; the record set stands on the row that is given."""
    names = _cvdeveloper._field_names(record_set)
    places: dict = {}
    for place, name in enumerate(names):
        places.setdefault(name.lower(), place)
    while (values := _cvdeveloper._current_row(record_set)) is not None:
        yield Row(names, places, values)
        record_set.MoveNext()
