"""The stand-alone host: host folders with a database of their own."""


def create(folder: str, sample: bool = False, user: str = "chef", password: str = "") -> None:
    """Makes a host folder with an empty or sample database and one active administrator.

    Fails where the folder holds a database already.
    """
    raise NotImplementedError
