"""The stand-alone host: host folders with a database of their own."""

from typing import Any

from . import _cvdeveloper


def create(folder: str, sample: bool = False, user: str = "chef", password: str = "") -> None:
    """Makes a host folder with an empty or sample database and one active administrator.

    Fails where the folder holds a database already.
    """
    _cvdeveloper._create_host_folder(str(folder), sample, user, password)


def start(folder: str, user: str = "chef", password: str = "") -> Any:
    """Starts the host's application on a host folder and makes it the running one.

    Gives the object. An Application finds it, forms and letter placeholders included:

        cvdeveloper.host.start("/srv/buero")
        app = cvdeveloper.Application()
        app.Corvanta_InitApplication()
    """
    return _cvdeveloper._start_host_application(str(folder), user, password)
