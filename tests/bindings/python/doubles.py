"""Hosts and record sets written in Python, as callers' own tests would write them."""


class Field:
    """One column of the current row."""

    Type = 200

    def __init__(self, record_set, name):
        self._record_set = record_set
        self.Name = name

    @property
    def Value(self):
        return self._record_set.row[self.Name]

    @Value.setter
    def Value(self, value):
        self._record_set.written.append((self.Name, value))
        self._record_set.row[self.Name] = value

    def GetChunk(self, size):
        raise AssertionError("no piece of a value is asked for here")


class Fields:
    """The columns of a record set, by name without regard to case or by position from 0."""

    def __init__(self, record_set):
        self._record_set = record_set

    @property
    def Count(self):
        return len(self._record_set.columns)

    def Item(self, key):
        columns = self._record_set.columns
        if isinstance(key, int):
            return Field(self._record_set, columns[key])
        for name in columns:
            if name.lower() == key.lower():
                return Field(self._record_set, name)
        columns.append(key)
        return Field(self._record_set, key)


class RecordSet:
    """Rows as dictionaries. Asked for any member that is not the protocol's, it fails the test."""

    def __init__(self, *rows):
        self.rows = list(rows)
        self.at = 0
        self.written = []
        self.columns = list(rows[0]) if rows else []

    def __getattr__(self, name):
        raise AssertionError(f"a record set is asked for {name}")

    @property
    def row(self):
        return self.rows[self.at]

    @property
    def EOF(self):
        return self.at >= len(self.rows)

    @property
    def Fields(self):
        return Fields(self)

    def MoveFirst(self):
        self.at = 0

    def MoveNext(self):
        self.at += 1

    def AddNew(self):
        self.rows.append({})
        self.at = len(self.rows) - 1

    def Delete(self):
        del self.rows[self.at]


class Util:
    """Keys G1, G2, ... and the null-tolerant conversions."""

    def __init__(self):
        self.made = 0

    def NewGUID(self):
        self.made += 1
        return f"G{self.made}"

    def Kill(self, path):
        """Nothing is there to be deleted."""

    def SqlUid(self, key):
        return f"'{key}'"

    def SqlStrNull(self, text):
        return text or None

    def k(self, value):
        return "" if value is None else str(value)

    def d(self, value):
        return 0.0 if value is None else float(value)

    def b(self, value):
        return bool(value)


class Host:
    """A running application that answers statements from a dictionary and keeps what it is sent."""

    IsLoggedIn = True
    Folder = "C:\\Corvanta"

    def __init__(self, answers=None):
        self.Util = Util()
        self.answers = answers or {}
        self.statements = []
        self.updates = []
        self.user = {"Rechteschablonen": "A|1\r\nB|2\r\nC|3\r\nStandard|S:1"}

    def GetRecordset(self, sql):
        self.statements.append(sql)
        answer = self.answers.get(sql)
        if isinstance(answer, BaseException):
            raise answer
        return answer if isinstance(answer, RecordSet) else RecordSet(*(answer or ()))

    def UpdateRecordset(self, rs):
        self.updates.append(rs.value)

    @property
    def CurrentUserRS(self):
        columns = {f"{prefix}_MKM{n}": None for prefix in ("STD", "VOR") for n in range(1, 6)}
        return RecordSet(columns | self.user)

    @property
    def STDRS(self):
        return RecordSet({"DSN": "STD"})
