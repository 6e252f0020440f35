"""CVDeveloper: one object model over the records of an estate agents' office.

    import cvdeveloper

    with cvdeveloper.connect("/srv/buero") as app:
        dsn = app.AKT_Create(strBetreff="Anruf")
        print(app.AKT_FindByDSN(dsn)["Subject"])

help(cvdeveloper.Application) lists the operations, help(cvdeveloper.Application.AKT_Create) tells
one of them in full.
"""

from . import _cvdeveloper
from ._cvdeveloper import (
    register_active_object,
    register_class,
    reset_registry,
    set_message_handler,
)
from ._rows import Row
from ._session import connect, transaction
from ._values import AutomationError, Empty, NoSuchMember, Ref

__all__ = [
    "AutomationError",
    "Empty",
    "NoSuchMember",
    "Ref",
    "Row",
    "connect",
    "host",
    "register_active_object",
    "register_class",
    "reset_registry",
    "set_message_handler",
    "transaction",
]

# The classes and enumerations are whatever the library's tables say they are.
for _described in _cvdeveloper._classes:
    globals()[_described["name"]] = getattr(_cvdeveloper, _described["name"])
    __all__.append(_described["name"])
for _described in _cvdeveloper._enumerations:
    _enumeration = getattr(_cvdeveloper, _described["name"])
    globals()[_described["name"]] = _enumeration
    globals().update(_enumeration.__members__)
    __all__ += [_described["name"], *_enumeration.__members__]
del _described, _enumeration


def _interface() -> dict:
    """The interface tables as plain values, for stubs and reference pages."""
    return {"classes": _cvdeveloper._classes, "enumerations": _cvdeveloper._enumerations}


from . import host  # noqa: E402  (it uses what stands above)
