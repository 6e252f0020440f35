"""The stand-alone host: host folders with a database of their own."""

from . import _cvdeveloper


def create(folder: str, sample: bool = False, user: str = "chef", password: str = "") -> None:
    """Makes a host folder with an empty or sample database and one active administrator.

    Fails where the folder holds a database already.
    """
    _cvdeveloper._create_host_folder(str(folder), sample, user, password)
