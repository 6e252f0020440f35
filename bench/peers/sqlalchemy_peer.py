"""The workloads with SQLAlchemy's Core: text() with bound parameters for what is read, Table
inserts for what is written, mappings for fields by name, "with engine.begin()" for each operation.

    sqlalchemy_peer.py SIDE WORKLOAD FOLDER (full|off)
"""

import sys

from python_common import (COPIED_PROJECT, FEATURES, FOUND_FIELDS, STATEMENTS, TEXT_ORDER, USER, USER_FEATURES, Log,
                           Places, field_kind_key, human_key, new_key, project_key, serve,
                           standard_rights)
from sqlalchemy import DateTime, MetaData, Table, create_engine, event, text
from sqlalchemy.dialects import sqlite
from sqlalchemy.pool import StaticPool

TEXTS = {name: text(statement) for name, statement in STATEMENTS.items()}


def connect(folder: str, full_sync: bool):
    engine = create_engine(f"sqlite:///{folder}/corvanta.db", poolclass=StaticPool)

    @event.listens_for(engine, "connect")
    def set_up(connection, _):
        connection.enable_load_extension(True)
        connection.load_extension(TEXT_ORDER)
        connection.execute("PRAGMA cache_size=-16000")
        connection.execute("PRAGMA temp_store=MEMORY")
        connection.execute(f"PRAGMA synchronous={'FULL' if full_sync else 'OFF'}")

    return engine


def leave_out_microseconds(_inspector, _table, column) -> None:
    """The office's dates have no fraction of a second."""
    if isinstance(column["type"], DateTime):
        column["type"] = sqlite.DATETIME(truncate_microseconds=True)


class Peer:
    def __init__(self, folder: str, full_sync: bool):
        self.engine = connect(folder, full_sync)
        tables = MetaData()
        event.listen(tables, "column_reflect", leave_out_microseconds)
        self.activities = Table("AKT", tables, autoload_with=self.engine)
        self.details = Table("AKTDET", tables, autoload_with=self.engine)
        self.log = Log(folder)
        self.places = Places()
        self.number = 0

    @staticmethod
    def _rows(connection, name: str, **values) -> list:
        return connection.execute(TEXTS[name], values).mappings().all()

    def _expect_empty(self, connection, name: str, **values) -> bool:
        if self._rows(connection, name, **values):
            return False
        self.log.empty_result(STATEMENTS[name])
        return True

    def _take_number(self, connection) -> str:
        self._rows(connection, "number")
        [taken] = self._rows(connection, "take_number")
        return human_key(taken["prefix"], taken["last_number"])

    def _user_field(self, connection, name: str) -> str:
        return self._rows(connection, "user", user=USER)[0][name]

    def _add_feature(self, connection, record: str, feature: str) -> None:
        if self._expect_empty(connection, "link", record=record, feature=feature):
            connection.execute(TEXTS["insert_link"],
                               {"dsn": new_key(), "record": record, "feature": feature})

    def create_activity(self) -> None:
        with self.engine.begin() as connection:
            self._expect_empty(connection, "no_activity")
            key = new_key()
            code = self._take_number(connection)
            rights = standard_rights(self._user_field(connection, "Rechteschablonen"))
            connection.execute(TEXTS["insert_activity"],
                               {"dsn": key, "code": code, "subject": "Anruf", "acl": rights})
            for feature in [self._user_field(connection, column) for column in USER_FEATURES]:
                if feature:
                    self._add_feature(connection, key, feature)

    def get_detail(self) -> None:
        with self.engine.connect() as connection:
            assert connection.execute(
                TEXTS["detail_value"],
                {"record": self.places.next_activity(), "kind": self.places.next_field_kind()},
            ).scalar_one()

    def set_detail(self) -> None:
        with self.engine.begin() as connection:
            [row] = self._rows(connection, "detail_row", record=self.places.next_activity(),
                               kind=self.places.next_field_kind())
            self.number += 1
            connection.execute(
                TEXTS["update_detail"],
                {"value": f"neu {self.number}", "stamp": row["STAMP"] + 1, "dsn": row["DSN"],
                 "before": row["STAMP"]})

    def add_features(self) -> None:
        with self.engine.begin() as connection:
            record = new_key()
            for number in range(FEATURES):
                self._add_feature(connection, record, field_kind_key(number))

    def find_rows(self) -> None:
        with self.engine.connect() as connection:
            found = connection.execute(TEXTS["find"], {"project": self.places.next_project()})
            for row in found.mappings():
                for field in FOUND_FIELDS:
                    row[field]

    def copy_project(self) -> None:
        with self.engine.begin() as connection:
            copies = []
            originals = connection.execute(
                self.activities.select()
                .where(self.activities.c.Projekte_Dsn == project_key(COPIED_PROJECT))
                .order_by(self.activities.c.Kennung)).mappings().all()
            self._expect_empty(connection, "no_copy")
            project = new_key()
            for original in originals:
                copy = dict(original, DSN=new_key(), STAMP=0, Kennung=self._take_number(connection),
                            Projekte_Dsn=project)
                copies.append(copy)
                self._copy_what_hangs_on(connection, original["DSN"], copy["DSN"])
            connection.execute(self.activities.insert(), copies)

    def _copy_what_hangs_on(self, connection, original: str, copied: str) -> None:
        for link in self._rows(connection, "features_to_copy", record=original):
            self._add_feature(connection, copied, link["MKM_DSN"])
        self._rows(connection, "attachments_to_copy", record=original)
        details = self._rows(connection, "details_to_copy", record=original)
        self._expect_empty(connection, "no_detail")
        connection.execute(
            self.details.insert(),
            [dict(detail, DSN=new_key(), STAMP=0, AKT_DSN=copied) for detail in details])


def main() -> None:
    _, _, workload, folder, sync = sys.argv
    serve(getattr(Peer(folder, sync == "full"), workload))


if __name__ == "__main__":
    main()
