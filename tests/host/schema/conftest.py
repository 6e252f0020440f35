import pytest
from schema_files import empty_database, load


@pytest.fixture(scope="session")
def base():
    """A new database."""
    database = empty_database()
    load(database, "base")
    return database


@pytest.fixture(scope="session")
def sample():
    """A new database with the sample office in it."""
    database = empty_database()
    load(database, "base")
    load(database, "sample")
    return database
