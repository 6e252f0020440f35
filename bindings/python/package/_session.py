"""Sessions and transactions in the forms that Python has for them."""

from typing import Any

from . import _cvdeveloper
from ._values import AutomationError

CANNOT_CREATE_OBJECT = 429
NOT_INITIALISED = 601
# The message box hides what the connector said: its own error is raised instead.
LOG_ON_FAILED = "Anmeldung in CVConnector ist fehlgeschlagen."


def connect(folder: str, user: str = "chef", password: str = "") -> "_cvdeveloper.Application":
    """Gives an Application that is logged on to a host folder.

    Raises AutomationError with the reason where that fails. As a context manager it detaches at
    the end:

        with cvdeveloper.connect("/srv/buero") as app:
            app.AKT_Create(strBetreff="Anruf")
    """
    folder = str(folder)
    app = _cvdeveloper.Application()
    messages = _cvdeveloper._messages_of(
        lambda: app.Corvanta_InitConnector(folder, user, password), LOG_ON_FAILED
    )
    if app.Corvanta_InitType == _cvdeveloper.enumInitType.INITTYPE_CONNECTOR:
        return app
    raise AutomationError(CANNOT_CREATE_OBJECT, "", " ".join(messages))


class transaction:
    """Has the connector keep what the block writes, all of it or, after an exception, nothing.

        with cvdeveloper.transaction(app):
            app.AKT_Create(strBetreff="Anruf")
            app.AKT_Create(strBetreff="Brief")
    """

    def __init__(self, app: "_cvdeveloper.Application") -> None:
        self._connector: Any = app.Corvanta_Connector
        if self._connector is None:
            raise AutomationError(NOT_INITIALISED, "", "CVDeveloper wurde nicht initialisiert")

    def __enter__(self) -> None:
        self._connector.BeginTrans()

    def __exit__(self, kind: Any, error: Any, traceback: Any) -> None:
        if kind is None:
            self._connector.CommitTrans()
        else:
            self._connector.RollbackTrans()
