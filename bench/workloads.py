"""What is measured: which workload in which office, beside whom, and what it must reach."""

from dataclasses import dataclass

GIBIBYTE = 1 << 30


@dataclass(frozen=True)
class Workload:
    name: str  # in the table, and what a filter looks at
    what: str
    operation: str  # as the workers know it
    office: str = ""
    full_sync: bool = False
    base: str = "by_hand"  # the side that the others are measured against
    aim: float | None = None  # the library's ratio at most
    rivals: tuple[str, ...] = ()  # further sides that are always measured
    has_peers: bool = False
    shares_office: bool = False  # no side changes what another reads
    memory_aim: str = ""  # "", "allowed" by the worker, or "64 MiB"
    times: bool = True
    most_rounds: int = 1000
    runs: int = 0  # of a round, where the office must not grow much; 0: as many as fill the time


# The same by hand with random keys, as most programs make them.
KEYS = ("by_hand_random_keys",)

WORKLOADS = [
    Workload("create", "create an activity (user with two standard features), sync off",
             "create_activity", "sample", aim=1.0, rivals=KEYS, has_peers=True),
    Workload("create-synced", "the same, full sync",
             "create_activity", "sample", full_sync=True, aim=0.5, rivals=KEYS, has_peers=True),
    Workload("get-detail", "read a detail value (100,000 activities, ten details each)",
             "get_detail", "activities", aim=1.05, has_peers=True, shares_office=True),
    Workload("set-detail", "set a detail value",
             "set_detail", "activities", has_peers=True),
    Workload("add-features", "Mkm_Add of five features",
             "add_features", "activities", rivals=KEYS, has_peers=True),
    Workload("find", "find 1,000 rows, ten fields by name of each",
             "find_rows", "activities", aim=1.4, has_peers=True, shares_office=True),
    Workload("copy", "copy a project of 200 activities (two features, five details each), sync off",
             "copy_project", "project", aim=0.45, rivals=KEYS, has_peers=True, runs=1),
    Workload("copy-synced", "the same, full sync",
             "copy_project", "project", full_sync=True, aim=0.1, rivals=KEYS, has_peers=True, runs=1),
    Workload("cross-table", "cross table, 10,000 addresses, five details / its statement by hand",
             "cross_table", "addresses", aim=1.02, shares_office=True),
    Workload("attach", "add an attachment of {size} / cp",
             "add_attachment", "file", full_sync=True, base="cp", rivals=("cp_and_sync",),
             shares_office=True, memory_aim="64 MiB", most_rounds=5),
    Workload("read-attachment", "read an attachment of {size} back / cp",
             "read_attachment", "file", full_sync=True, base="cp", rivals=("cp_and_sync",),
             shares_office=True, memory_aim="64 MiB", most_rounds=5),
    Workload("large-result", "memory of a 100,000-row result / twice its values + 16 bytes a field",
             "large_result", "activities", shares_office=True, memory_aim="allowed", times=False),
    Workload("call", "call by name with conversions / virtual call",
             "call_by_name", base="virtual_call", aim=20),
    Workload("python-call", "Python call without arguments / pybind11",
             "get", base="pybind11", aim=1.0),
    Workload("python-call-texts", "Python call with two texts / pybind11",
             "two_texts", base="pybind11", aim=1.0),
]

PEERS = {
    "soci": "SOCI",
    "qt_query": "QSqlQuery",
    "qt_model": "QSqlTableModel",
    "python_sqlite3": "Python sqlite3",
    "sqlalchemy": "SQLAlchemy",
}
