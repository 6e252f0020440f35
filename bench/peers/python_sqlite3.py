"""The workloads with Python's sqlite3 module: sqlite3.Row for fields by name, "with connection" as
the transaction of each operation, executemany where several rows are written.

    python_sqlite3.py SIDE WORKLOAD FOLDER (full|off)
"""

import sqlite3
import sys

from python_common import (COPIED_PROJECT, FEATURES, FOUND_FIELDS, STATEMENTS, TEXT_ORDER, USER, USER_FEATURES, Log,
                           Places, field_kind_key, human_key, insert_text, new_key, project_key,
                           serve, standard_rights)


def connect(folder: str, full_sync: bool) -> sqlite3.Connection:
    connection = sqlite3.connect(folder + "/corvanta.db")
    connection.enable_load_extension(True)
    connection.load_extension(TEXT_ORDER)
    connection.row_factory = sqlite3.Row
    connection.execute("PRAGMA cache_size=-16000")
    connection.execute("PRAGMA temp_store=MEMORY")
    connection.execute(f"PRAGMA synchronous={'FULL' if full_sync else 'OFF'}")
    return connection


class Peer:
    def __init__(self, folder: str, full_sync: bool):
        self.connection = connect(folder, full_sync)
        self.log = Log(folder)
        self.places = Places()
        self.number = 0

    def _rows(self, name: str, *values) -> list[sqlite3.Row]:
        return self.connection.execute(STATEMENTS[name], values).fetchall()

    def _expect_empty(self, name: str, *values) -> bool:
        if self._rows(name, *values):
            return False
        self.log.empty_result(STATEMENTS[name])
        return True

    def _take_number(self) -> str:
        self._rows("number")
        [(prefix, number)] = self._rows("take_number")
        return human_key(prefix, number)

    def _user_field(self, name: str) -> str:
        return self._rows("user", USER)[0][name]

    def _add_feature(self, record: str, feature: str) -> None:
        if self._expect_empty("link", record, feature):
            self.connection.execute(STATEMENTS["insert_link"], (new_key(), record, feature))

    def create_activity(self) -> None:
        with self.connection:
            self._expect_empty("no_activity")
            key = new_key()
            code = self._take_number()
            rights = standard_rights(self._user_field("Rechteschablonen"))
            self.connection.execute(STATEMENTS["insert_activity"], (key, code, "Anruf", rights))
            for feature in [self._user_field(column) for column in USER_FEATURES]:
                if feature:
                    self._add_feature(key, feature)

    def get_detail(self) -> None:
        [(value,)] = self._rows("detail_value", self.places.next_activity(),
                                self.places.next_field_kind())
        assert value

    def set_detail(self) -> None:
        with self.connection:
            [row] = self._rows("detail_row", self.places.next_activity(),
                               self.places.next_field_kind())
            self.number += 1
            self.connection.execute(
                STATEMENTS["update_detail"],
                (f"neu {self.number}", row["STAMP"] + 1, row["DSN"], row["STAMP"]))

    def add_features(self) -> None:
        with self.connection:
            record = new_key()
            for number in range(FEATURES):
                self._add_feature(record, field_kind_key(number))

    def find_rows(self) -> None:
        for row in self.connection.execute(STATEMENTS["find"], (self.places.next_project(),)):
            for field in FOUND_FIELDS:
                row[field]

    def copy_project(self) -> None:
        with self.connection:
            copies = []
            originals = self._rows("activities_to_copy", project_key(COPIED_PROJECT))
            columns = originals[0].keys()
            project_column = columns.index("Projekte_Dsn")
            self._expect_empty("no_copy")
            project = new_key()
            for original in originals:
                copy = list(original)
                copy[0], copy[1], copy[2] = new_key(), 0, self._take_number()
                copy[project_column] = project
                copies.append(copy)
                self._copy_what_hangs_on(original["DSN"], copy[0])
            self.connection.executemany(insert_text("AKT", columns), copies)

    def _copy_what_hangs_on(self, original: str, copied: str) -> None:
        for link in self._rows("features_to_copy", original):
            self._add_feature(copied, link["MKM_DSN"])
        self._rows("attachments_to_copy", original)
        details = self._rows("details_to_copy", original)
        self._expect_empty("no_detail")
        self.connection.executemany(
            insert_text("AKTDET", details[0].keys()),
            [(new_key(), 0, copied, *tuple(detail)[3:]) for detail in details])


def main() -> None:
    _, _, workload, folder, sync = sys.argv
    serve(getattr(Peer(folder, sync == "full"), workload))


if __name__ == "__main__":
    main()
