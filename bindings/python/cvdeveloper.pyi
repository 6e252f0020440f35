# Written by make_stub.py from the interface tables; changes belong there.
import datetime
import enum
import os
from collections.abc import Callable, Iterator, Mapping
from types import TracebackType
from typing import Any, Generic, Literal, Self, TypeAlias, TypeVar, final, overload

from . import host as host

# Whatever a host hands out or takes: its objects and record sets may be of any kind, or None.
_Object: TypeAlias = Any
_RecordSet: TypeAlias = Any
# None, Empty, bool, int, float, str, bytes, datetime or an object.
_Value: TypeAlias = Any
_Date: TypeAlias = datetime.datetime | datetime.date | float

_T = TypeVar("_T")

class AutomationError(Exception):
    number: int
    source: str
    description: str
    def __init__(self, number: int, source: str = "", description: str = "") -> None: ...

class NoSuchMember(AutomationError, AttributeError): ...

class Ref(Generic[_T]):
    value: _T
    @overload
    def __init__(self: Ref[Any]) -> None: ...
    @overload
    def __init__(self, value: _T) -> None: ...

@final
class _EmptyType:
    def __bool__(self) -> Literal[False]: ...

Empty: _EmptyType

class Row(Mapping[str, Any]):
    def __getitem__(self, name: str) -> Any: ...
    def __iter__(self) -> Iterator[str]: ...
    def __len__(self) -> int: ...

class _Indexed(Generic[_T]):
    def __call__(self, Index: int) -> _T: ...
    def __getitem__(self, Index: int) -> _T: ...
    def __setitem__(self, Index: int, value: _T) -> None: ...

def connect(
    folder: str | os.PathLike[str], user: str = "chef", password: str = ""
) -> Application: ...

class transaction:
    def __init__(self, app: Application) -> None: ...
    def __enter__(self) -> None: ...
    def __exit__(
        self,
        kind: type[BaseException] | None,
        error: BaseException | None,
        traceback: TracebackType | None,
    ) -> None: ...

def register_class(progid: str, factory: Callable[[], _Object] | None) -> None: ...
def register_active_object(progid: str, obj: _Object) -> None: ...
def reset_registry() -> None: ...
def set_message_handler(handler: Callable[[str], object] | None) -> None: ...

class enumInitType(enum.IntEnum):
    INITTYPE_NONE = 0
    INITTYPE_APPLICATION = 1
    INITTYPE_CONNECTOR = 2

INITTYPE_NONE = enumInitType.INITTYPE_NONE
INITTYPE_APPLICATION = enumInitType.INITTYPE_APPLICATION
INITTYPE_CONNECTOR = enumInitType.INITTYPE_CONNECTOR

class ENUM_EART(enum.IntEnum):
    EART_KAUF = 0
    EART_MIETE = 1
    EART_KAUFMIETE = 2

EART_KAUF = ENUM_EART.EART_KAUF
EART_MIETE = ENUM_EART.EART_MIETE
EART_KAUFMIETE = ENUM_EART.EART_KAUFMIETE

class ENUM_FLDARTTYP(enum.IntEnum):
    FLDARTTYP_OPTION = 0
    FLDARTTYP_WAEHRUNG = 1
    FLDARTTYP_NUMMERISCH = 2
    FLDARTTYP_TEXT = 3
    FLDARTTYP_JANEIN = 4
    FLDARTTYP_DATUM = 5
    FLDARTTYP_PLZ = 6
    FLDARTTYP_ADRESSE = 7

FLDARTTYP_OPTION = ENUM_FLDARTTYP.FLDARTTYP_OPTION
FLDARTTYP_WAEHRUNG = ENUM_FLDARTTYP.FLDARTTYP_WAEHRUNG
FLDARTTYP_NUMMERISCH = ENUM_FLDARTTYP.FLDARTTYP_NUMMERISCH
FLDARTTYP_TEXT = ENUM_FLDARTTYP.FLDARTTYP_TEXT
FLDARTTYP_JANEIN = ENUM_FLDARTTYP.FLDARTTYP_JANEIN
FLDARTTYP_DATUM = ENUM_FLDARTTYP.FLDARTTYP_DATUM
FLDARTTYP_PLZ = ENUM_FLDARTTYP.FLDARTTYP_PLZ
FLDARTTYP_ADRESSE = ENUM_FLDARTTYP.FLDARTTYP_ADRESSE

class ENUM_DELIVERYSTATE(enum.IntEnum):
    DELIVERYSTATE_None = 0
    DELIVERYSTATE_Received = 1
    DELIVERYSTATE_Queue = 2
    DELIVERYSTATE_Send = 3
    DELIVERYSTATE_SendError = 4

DELIVERYSTATE_None = ENUM_DELIVERYSTATE.DELIVERYSTATE_None
DELIVERYSTATE_Received = ENUM_DELIVERYSTATE.DELIVERYSTATE_Received
DELIVERYSTATE_Queue = ENUM_DELIVERYSTATE.DELIVERYSTATE_Queue
DELIVERYSTATE_Send = ENUM_DELIVERYSTATE.DELIVERYSTATE_Send
DELIVERYSTATE_SendError = ENUM_DELIVERYSTATE.DELIVERYSTATE_SendError

class ENUM_BLOBTYPE(enum.IntEnum):
    BLOBTYPE_WORD = 1
    BLOBTYPE_OLE = 2
    BLOBTYPE_ARCHIV = 3
    BLOBTYPE_SOUND = 4
    BLOBTYPE_EXCEL = 5
    BLOBTYPE_ATTACHMENT = 6
    BLOBTYPE_ATTACHMENTLINK = 7

BLOBTYPE_WORD = ENUM_BLOBTYPE.BLOBTYPE_WORD
BLOBTYPE_OLE = ENUM_BLOBTYPE.BLOBTYPE_OLE
BLOBTYPE_ARCHIV = ENUM_BLOBTYPE.BLOBTYPE_ARCHIV
BLOBTYPE_SOUND = ENUM_BLOBTYPE.BLOBTYPE_SOUND
BLOBTYPE_EXCEL = ENUM_BLOBTYPE.BLOBTYPE_EXCEL
BLOBTYPE_ATTACHMENT = ENUM_BLOBTYPE.BLOBTYPE_ATTACHMENT
BLOBTYPE_ATTACHMENTLINK = ENUM_BLOBTYPE.BLOBTYPE_ATTACHMENTLINK

class Application:
    """The root of the object model: session, records, worker objects."""
    def GetVersion(self) -> str:
        """The library's release: major, minor and revision."""
    def Corvanta_InitApplication(self) -> None:
        """Attaches to the running host application. Shows "Corvanta.Application-Objekt konnte
        nicht erstellt werden." where none is running, and goes on as Corvanta_SetApplication
        otherwise.
        """
    def Corvanta_InitConnector(self, strCorvantaPath: str, strUser: str, strPassword: str) -> None:
        """Logs on through the host's connector. An earlier session is gone whatever follows.
        Failures are shown: no connector, no path, no such folder, a failed log-on (which
        FlagSqlLog logs instead); Corvanta_InitType stays 0.
        """
    def Corvanta_SetApplication(self, oCV: _Value) -> None:
        """Attaches to the given host application object. No object, an object without
        IsLoggedIn, and a host that is not logged in are shown in message boxes and change
        nothing.
        """
    def Corvanta_Done(self) -> None:
        """Detaches from the host. The host's own session stays as it is; FlagSqlLog, LogPath and
        the worker objects are kept.
        """
    @property
    def Corvanta_InitType(self) -> enumInitType:
        """Which kind of session is attached."""
    @property
    def Corvanta_Application(self) -> _Object:
        """The host application object of the session."""
    @property
    def Corvanta_Connector(self) -> _Object:
        """The connector object; also after a log-on that failed."""
    def Corvanta_CurrentUserRS(self) -> _RecordSet:
        """The logged-on user's row."""
    def Corvanta_STDRS(self) -> _RecordSet:
        """The master-data row."""
    def Corvanta_IsAdmin(self) -> bool:
        """Whether the logged-on user is an active administrator: both AKTIV and Chef are 1."""
    def Corvanta_DbVersion(self) -> float:
        """The schema version of the host's database."""
    def Corvanta_Folder(self) -> str:
        """The host's folder."""
    @property
    def oUtil(self) -> _Object:
        """The host's Util object: keys, literals, null-tolerant conversions."""
    @property
    def oBlob(self) -> _Object:
        """The host's Blob object: attachments."""
    @property
    def oDbIni(self) -> _Object:
        """The host's DbIni object: settings kept in the database."""
    def DoLog(self, strProcName: str, strMessageString: str) -> None:
        """Appends one line to the diagnostic log: local date and time, " - ", the procedure, " :
        ", the message. A line that cannot be written is tried again with its first 300
        characters and " ...", and is lost after that.
        """
    @property
    def FlagSqlLog(self) -> bool:
        """Whether every statement and every written row is logged. While it is set, errors of
        the host's GetRecordset and UpdateRecordset are logged and swallowed, and a failed
        log-on is logged instead of shown.
        """
    @FlagSqlLog.setter
    def FlagSqlLog(self, blnFlag: bool) -> None: ...
    @property
    def LogPath(self) -> str:
        """The folder of the log file."""
    @LogPath.setter
    def LogPath(self, strPath: str) -> None: ...
    @property
    def oBase(self) -> clsBase:
        """The data operations that work on any table."""
    @property
    def oTools(self) -> clsTools:
        """Formatting, texts, working days and placeholders."""
    @property
    def oFileSystem(self) -> clsFileSystem:
        """Files and folders."""
    def AKT_Find(self, strWhere: str, strOderBy: str = "") -> _RecordSet:
        """Finds the activities that fit a condition, with all columns. The condition "1=2" gives
        an empty record set, the start of a new row.
        """
    def AKT_FindDSN(self, strWhere: str, strOderBy: str = "") -> str:
        """The key of the first activity that fits a condition. All columns are read."""
    def AKT_FindByDSN(self, strDsn: str) -> _RecordSet:
        """Finds the activity of a key."""
    def AKT_FindByKennung(self, strKennung: str) -> _RecordSet:
        """Finds the activities of a human key, ordered by key. A quote inside it breaks the
        statement.
        """
    def AKT_FindDsnByKennung(self, strKennung: str) -> str:
        """The key of a human key's activity, the lowest where several carry it."""
    def AKT_Delete(self, rsAkt: _RecordSet) -> bool:
        """Deletes the current row of a record set and writes that back."""
    def AKT_DeleteByDsn(self, strDsn: str) -> bool:
        """Deletes the activity of a key. Links to it stay."""
    def AKT_Update(self, rsAkt: _RecordSet | Ref[Any]) -> None:
        """Hands a changed record set to the host to be written."""
    def AKT_Show(self, strWhere: str) -> None:
        """Shows the activities that fit a condition in the application's form F_AKT: the form is
        opened empty, filled and brought to the front.
        """
    def AKT_ShowDSN(self, strDsn: str) -> None:
        """Shows an activity in the application's form F_AKT."""
    def AKT_Merkmal_Add(self, strAktDsn: str, strMkmDSNCommaList: str) -> None:
        """Gives an activity features. One it carries already, and an empty item, are passed
        over.
        """
    def AKT_Merkmal_Del(self, strAktDsn: str, strMkmDSNCommaList: str) -> None:
        """Takes features off an activity: one link row for each key named."""
    def AKT_Merkmal_Switch(self, strAktDsn: str, strMkmDsnOld: str, strMkmDsnNew: str) -> None:
        """Replaces one feature of an activity by another. An empty old key adds the new one
        where it is missing, an empty new key removes the first link of the old one. Replacing
        does not look whether the activity carries the new feature already.
        """
    def AKT_Merkmal_Contains(self, strAktDsn: str, strMkmDSN: str) -> bool:
        """Whether an activity carries a feature."""
    def AKT_Merkmal_StdDsnCommaList(self) -> str:
        """The user's standard features, which new activities get. The same for all families."""
    def AKT_Merkmal_Get(self, strAktDsn: str) -> str:
        """The features of an activity, in the order in which the host gives them."""
    def AKT_Merkmal_Copy(self, strSourceDsn: str, strDestDsn: str) -> None:
        """Gives one activity the features of another. Those it has stay, none is doubled."""
    def AKT_Detail_Delete(self, strAktDsn: str, strFldArtDsn: str) -> None:
        """Deletes the detail values of one field kind of an activity."""
    def AKT_Detail_Set(
        self,
        strAktDsn: str,
        strFldArtDsn: str,
        strValue: str,
        strAcl: str = "[NOTHING]",
        strLinkDsn: str = "[NOTHING]",
    ) -> None:
        """Writes the detail value of one field kind of an activity as text: into the first such
        row, or into a new one. An empty key does nothing.
        """
    def AKT_Detail_Get(self, strAktDsn: str, strFldArtDsn: str) -> str:
        """The detail value of one field kind of an activity."""
    def AKT_Detail_SetOptionDsn(
        self,
        strAktDsn: str,
        strFldArtDsn: str,
        strOpDsn: str,
        strAcl: str = "[NOTHING]",
    ) -> None:
        """Makes an option the detail value of one field kind of an activity; a text, a range and
        a link that the value had are cleared.
        """
    def AKT_Detail_GetOptionDsn(self, strAktDsn: str, strFldArtDsn: str) -> str:
        """The option that is the detail value of one field kind of an activity."""
    def AKT_Detail_Copy(self, strSourceDsn: str, strDestDsn: str) -> int:
        """Copies all detail values of one activity to another, which keeps those it has: copying
        twice doubles them.
        """
    def AKT_New(self) -> _RecordSet:
        """A new, unsaved activity with its key, its human key, priority 1 and the archive flag
        0. Fill it and hand it to AKT_Update.
        """
    def AKT_Create(
        self,
        strAktArtDsn: str = "",
        strBetreff: str = "",
        strNotiz: str = "",
        blnErledigt: bool = False,
        dateDatum: _Date = 0,
        dateDatumBis: _Date = 0,
        dateDatumVorlage: _Date = 0,
        dateDatumAlarm: _Date = 0,
        dateLoeschdatum: _Date = 0,
        strStichwort1: str = "",
        strStichwort2: str = "",
        strEmskDsn: str = "",
        strAdDsn1: str = "",
        strAdDsn2: str = "",
        strObjDsn: str = "",
        strAnfDsn: str = "",
        strProjekteDsn: str = "",
        strAktenDsn: str = "",
        strVertraegeDsn: str = "",
        strDetailsDsn: str = "",
        strRootAktDsn: str = "",
    ) -> str:
        """Saves a new activity and gives it the user's standard features. The rights are the
        user's standard ones. The defaults of the activity type are not applied;
        AKT_SetAktArtByDsn does that. Empty keys and dates of 0 are stored as null.
        """
    def AKT_SetAktArt(self, rsAkt: _RecordSet | Ref[Any], rsAktArt: _RecordSet | Ref[Any]) -> None:
        """Copies the defaults of an activity type into an activity and saves it: done flag,
        priority, kilometres, amount, recurrence; the follow-up date of an open activity is
        its date plus the type's days and minutes, without a time where the type has none (day
        0 where it is done); the entry mask, where both have one. Art_Dsn stays.
        """
    def AKT_SetAktArtByDsn(self, strAktDsn: str, strAktArtDsn: str) -> None:
        """As AKT_SetAktArt, by the keys of activity and activity type."""
    def AKT_CreateEMail(
        self,
        strAktArtDsn: str = "",
        strMailTo: str = "",
        strMailFrom: str = "",
        strMailSubject: str = "",
        strMailBody: str = "",
        strAttachmentPipeList: str = "",
        strMailCC: str = "",
        strMailBCC: str = "",
        blnErledigt: bool = False,
        dateDatum: _Date = 0,
        dateDatumBis: _Date = 0,
        dateDatumVorlage: _Date = 0,
        dateDatumAlarm: _Date = 0,
        dateLoeschdatum: _Date = 0,
        strStichwort1: str = "",
        strStichwort2: str = "",
        strEmskDsn: str = "",
        strAdDsn1: str = "",
        strAdDsn2: str = "",
        strObjDsn: str = "",
        strAnfDsn: str = "",
        strProjekteDsn: str = "",
        strAktenDsn: str = "",
        strVertraegeDsn: str = "",
        strDetailsDsn: str = "",
        strRootAktDsn: str = "",
    ) -> str:
        """Saves an outgoing e-mail as an activity and queues it for the host's delivery. Files
        are attached as links, marked as sent, and not looked at. The user's standard features
        are added last.
        """
    def AKT_Copy(
        self,
        rsAkt: _RecordSet,
        strUserDsn: str = "",
        strProjekteDsn: str = "",
        datStartDate: _Date | Ref[Any] = 0,
        datRefDate: _Date | Ref[Any] = 0,
        blnWochenende: bool | Ref[Any] = True,
        blnFeiertag: bool | Ref[Any] = True,
    ) -> _RecordSet:
        """Copies activities with their features, attachments and detail values. Parents among
        them are the copies, others stay. With both dates given, the copies' dates move from
        the reference date to the start, counted in working days. Hand the result to
        AKT_Update to save it; what hangs on the copies is written already.
        """
    def AKT_Blob_Add(
        self,
        strAktDsn: str,
        strFileName: str,
        blnAsLink: bool = False,
        blnMarkSend: bool = True,
    ) -> str:
        """Attaches a file to an activity, as a copy of its content or as a link."""
    def AKT_GetParentAKTDsn(self, strAktDsn: str) -> str:
        """The activity that an activity hangs under."""
    def AKT_GetRootAKTDsn(self, strAktDsn: str) -> str:
        """The top of an activity's chain of parents."""
    def OBJ_Find(self, strWhere: str, strOderBy: str = "") -> _RecordSet:
        """Finds the property objects that fit a condition, with all columns. The condition "1=2"
        gives an empty record set, the start of a new row.
        """
    def OBJ_FindDSN(self, strWhere: str, strOderBy: str = "") -> str:
        """The key of the first property object that fits a condition. All columns are read."""
    def OBJ_FindByDSN(self, strDsn: str) -> _RecordSet:
        """Finds the property object of a key."""
    def OBJ_FindByKennung(self, strKennung: str) -> _RecordSet:
        """Finds the property objects of a human key, ordered by key. A quote inside it breaks
        the statement.
        """
    def OBJ_FindDsnByKennung(self, strKennung: str) -> str:
        """The key of a human key's property object, the lowest where several carry it."""
    def OBJ_Delete(self, rsObj: _RecordSet) -> bool:
        """Deletes the current row of a record set and writes that back."""
    def OBJ_DeleteByDsn(self, strDsn: str) -> bool:
        """Deletes the property object of a key. Links to it stay."""
    def OBJ_Update(self, rsObj: _RecordSet | Ref[Any]) -> None:
        """Hands a changed record set to the host to be written."""
    def OBJ_Show(self, strWhere: str) -> None:
        """Shows the property objects that fit a condition in the application's form F_OBJ: the
        form is opened empty, filled and brought to the front.
        """
    def OBJ_ShowDSN(self, strDsn: str) -> None:
        """Shows a property object in the application's form F_OBJ."""
    def OBJ_Merkmal_Add(self, strObjDsn: str, strMkmDSNCommaList: str) -> None:
        """Gives a property object features. One it carries already, and an empty item, are
        passed over.
        """
    def OBJ_Merkmal_Del(self, strObjDsn: str, strMkmDSNCommaList: str) -> None:
        """Takes features off a property object: one link row for each key named."""
    def OBJ_Merkmal_Switch(self, strObjDsn: str, strMkmDsnOld: str, strMkmDsnNew: str) -> None:
        """Replaces one feature of a property object by another. An empty old key adds the new
        one where it is missing, an empty new key removes the first link of the old one.
        Replacing does not look whether the property object carries the new feature already.
        """
    def OBJ_Merkmal_Contains(self, strObjDsn: str, strMkmDSN: str) -> bool:
        """Whether a property object carries a feature."""
    def OBJ_Merkmal_StdDsnCommaList(self) -> str:
        """The user's standard features, which new property objects get. The same for all
        families.
        """
    def OBJ_Detail_Delete(self, strObjDsn: str, strFldArtDsn: str) -> None:
        """Deletes the detail values of one field kind of a property object."""
    def OBJ_Detail_Set(
        self,
        strObjDsn: str,
        strFldArtDsn: str,
        strValue: str,
        strAcl: str = "[NOTHING]",
        strLinkDsn: str = "[NOTHING]",
    ) -> None:
        """Writes the detail value of one field kind of a property object as text: into the first
        such row, or into a new one. An empty key does nothing.
        """
    def OBJ_Detail_Get(self, strObjDsn: str, strFldArtDsn: str) -> str:
        """The detail value of one field kind of a property object."""
    def OBJ_Detail_SetOptionDsn(
        self,
        strObjDsn: str,
        strFldArtDsn: str,
        strOpDsn: str,
        strAcl: str = "[NOTHING]",
    ) -> None:
        """Makes an option the detail value of one field kind of a property object; a text, a
        range and a link that the value had are cleared.
        """
    def OBJ_Detail_GetOptionDsn(self, strObjDsn: str, strFldArtDsn: str) -> str:
        """The option that is the detail value of one field kind of a property object."""
    def OBJ_New(self) -> _RecordSet:
        """A new, unsaved property object with its key, its human key, active, priority 1 and the
        archive flag 0. Fill it and hand it to OBJ_Update.
        """
    def OBJ_Create(
        self,
        strIntern: str = "",
        enumEART: ENUM_EART | int = 0,
        strEmskDsn: str = "",
        strAnbieterAdDsn: str = "",
        strAuftragsende: str = "",
        strNotiz: str = "",
        intAbteilung: int = 0,
    ) -> str:
        """Saves a new property object and gives it the user's standard features. The rights are
        the user's standard ones. Empty keys are stored as null.
        """
    def OBJ_Bild_MakeFileName(
        self,
        rsOBJ: _RecordSet,
        intIndex: int,
        strBezeichnung: str,
        strFileExt: str,
    ) -> str:
        """The path for a picture of a property object: the host folder, "pic.obj", and a name of
        the object's Datei, the word for short or long pictures, the number of a long one, and
        the caption. No file is looked at, no folder made.
        """
    def OBJ_Bild_Set(
        self,
        rsOBJ: _RecordSet,
        strSourceFileName: str,
        intIndex: int,
        strBezeichnung: str,
    ) -> None:
        """Copies a picture to where the host looks for it, over one of the same name. Nothing is
        written to the database.
        """
    def OBJ_Bild_Get(self, rsOBJ: _RecordSet, intIndex: int) -> str:
        """Finds a picture of a property object by its number, whatever its caption and
        extension, without regard to case.
        """
    def OBJ_Bild_StdBezLang(self) -> str:
        """The word in the names of long pictures. Read once and kept, unless it is empty."""
    def OBJ_Bild_StdBezKurz(self) -> str:
        """The word in the names of short pictures. Read once and kept, unless it is empty."""
    def OBJ_GetParentOBJDsn(self, strObjDsn: str) -> str:
        """The property object that a property object hangs under."""
    def OBJ_GetRootOBJDsn(self, strObjDsn: str) -> str:
        """The top of a property object's chain of parents."""
    def PROJEKTE_Find(self, strWhere: str, strOderBy: str = "") -> _RecordSet:
        """Finds the projects that fit a condition, with all columns. The condition "1=2" gives
        an empty record set, the start of a new row.
        """
    def PROJEKTE_FindDSN(self, strWhere: str, strOderBy: str = "") -> str:
        """The key of the first project that fits a condition. All columns are read."""
    def PROJEKTE_FindByDSN(self, strDsn: str) -> _RecordSet:
        """Finds the project of a key."""
    def PROJEKTE_FindByKennung(self, strKennung: str) -> _RecordSet:
        """Finds the projects of a human key, ordered by key. A quote inside it breaks the
        statement.
        """
    def PROJEKTE_FindDsnByKennung(self, strKennung: str) -> str:
        """The key of a human key's project, the lowest where several carry it."""
    def PROJEKTE_Delete(self, rsProjekte: _RecordSet) -> bool:
        """Deletes the current row of a record set and writes that back."""
    def PROJEKTE_DeleteByDsn(self, strDsn: str) -> bool:
        """Deletes the project of a key. Links to it stay."""
    def PROJEKTE_Update(self, rsProjekte: _RecordSet | Ref[Any]) -> None:
        """Hands a changed record set to the host to be written."""
    def PROJEKTE_Show(self, strWhere: str) -> None:
        """Shows the projects that fit a condition in the application's form F_PROJEKTE: the form
        is opened empty, filled and brought to the front.
        """
    def PROJEKTE_ShowDSN(self, strDsn: str) -> None:
        """Shows a project in the application's form F_PROJEKTE."""
    def PROJEKTE_Merkmal_Add(self, strProjekteDsn: str, strMkmDSNCommaList: str) -> None:
        """Gives a project features. One it carries already, and an empty item, are passed over."""
    def PROJEKTE_Merkmal_Del(self, strProjekteDsn: str, strMkmDSNCommaList: str) -> None:
        """Takes features off a project: one link row for each key named."""
    def PROJEKTE_Merkmal_Switch(
        self,
        strProjekteDsn: str,
        strMkmDsnOld: str,
        strMkmDsnNew: str,
    ) -> None:
        """Replaces one feature of a project by another. An empty old key adds the new one where
        it is missing, an empty new key removes the first link of the old one. Replacing does
        not look whether the project carries the new feature already.
        """
    def PROJEKTE_Merkmal_Contains(self, strProjekteDsn: str, strMkmDSN: str) -> bool:
        """Whether a project carries a feature."""
    def PROJEKTE_Merkmal_StdDsnCommaList(self) -> str:
        """The user's standard features, which new projects get. The same for all families."""
    def PROJEKTE_Detail_Delete(self, strProjekteDsn: str, strFldArtDsn: str) -> None:
        """Deletes the detail values of one field kind of a project."""
    def PROJEKTE_Detail_Set(
        self,
        strProjekteDsn: str,
        strFldArtDsn: str,
        strValue: str,
        strAcl: str = "[NOTHING]",
        strLinkDsn: str = "[NOTHING]",
    ) -> None:
        """Writes the detail value of one field kind of a project as text: into the first such
        row, or into a new one. An empty key does nothing.
        """
    def PROJEKTE_Detail_Get(self, strProjekteDsn: str, strFldArtDsn: str) -> str:
        """The detail value of one field kind of a project."""
    def PROJEKTE_Detail_SetOptionDsn(
        self,
        strProjekteDsn: str,
        strFldArtDsn: str,
        strOpDsn: str,
        strAcl: str = "[NOTHING]",
    ) -> None:
        """Makes an option the detail value of one field kind of a project; a text, a range and a
        link that the value had are cleared.
        """
    def PROJEKTE_Detail_GetOptionDsn(self, strProjekteDsn: str, strFldArtDsn: str) -> str:
        """The option that is the detail value of one field kind of a project."""
    def PROJEKTE_FindDsnByName(self, strProjektBezeichnung: str) -> str:
        """The key of the project of a name, the lowest where several carry it. A quote inside it
        breaks the statement.
        """
    def PROJEKTE_New(self) -> _RecordSet:
        """A new, unsaved project with its key, its human key and the archive flag 0. Fill it and
        hand it to PROJEKTE_Update.
        """
    def PROJEKTE_Create(
        self,
        strBezeichnung: str = "",
        strNotiz: str = "",
        strStichwort: str = "",
        strStichwort2: str = "",
        strEmskDsn: str = "",
        strRootProjekteDsn: str = "",
    ) -> str:
        """Saves a new project and gives it the user's standard features. The rights are the
        user's standard ones. Empty keys are stored as null.
        """
    def PROJEKTE_GetParentProjekteDsn(self, strProjekteDsn: str) -> str:
        """The project that a project hangs under."""
    def PROJEKTE_GetRootProjekteDsn(self, strProjekteDsn: str) -> str:
        """The top of a project's chain of parents."""
    def ANF_Find(self, strWhere: str, strOderBy: str = "") -> _RecordSet:
        """Finds the requests that fit a condition, with all columns. The condition "1=2" gives
        an empty record set, the start of a new row.
        """
    def ANF_FindDSN(self, strWhere: str, strOderBy: str = "") -> str:
        """The key of the first request that fits a condition. All columns are read."""
    def ANF_FindByDSN(self, strDsn: str) -> _RecordSet:
        """Finds the request of a key."""
    def ANF_FindByKennung(self, strKennung: str) -> _RecordSet:
        """Finds the requests of a human key, ordered by key. A quote inside it breaks the
        statement.
        """
    def ANF_FindDsnByKennung(self, strKennung: str) -> str:
        """The key of a human key's request, the lowest where several carry it."""
    def ANF_Delete(self, rsAnf: _RecordSet) -> bool:
        """Deletes the current row of a record set and writes that back."""
    def ANF_DeleteByDsn(self, strDsn: str) -> bool:
        """Deletes the request of a key. Links to it stay."""
    def ANF_Update(self, rsAnf: _RecordSet | Ref[Any]) -> None:
        """Hands a changed record set to the host to be written."""
    def ANF_Show(self, strWhere: str) -> None:
        """Shows the requests that fit a condition in the application's form F_ANF: the form is
        opened empty, filled and brought to the front.
        """
    def ANF_ShowDSN(self, strDsn: str) -> None:
        """Shows a request in the application's form F_ANF."""
    def ANF_Merkmal_Add(self, strAnfDsn: str, strMkmDSNCommaList: str) -> None:
        """Gives a request features. One it carries already, and an empty item, are passed over."""
    def ANF_Merkmal_Del(self, strAnfDsn: str, strMkmDSNCommaList: str) -> None:
        """Takes features off a request: one link row for each key named."""
    def ANF_Merkmal_Switch(self, strAnfDsn: str, strMkmDsnOld: str, strMkmDsnNew: str) -> None:
        """Replaces one feature of a request by another. An empty old key adds the new one where
        it is missing, an empty new key removes the first link of the old one. Replacing does
        not look whether the request carries the new feature already.
        """
    def ANF_Merkmal_Contains(self, strAnfDsn: str, strMkmDSN: str) -> bool:
        """Whether a request carries a feature."""
    def ANF_Merkmal_StdDsnCommaList(self) -> str:
        """The user's standard features, which new requests get. The same for all families."""
    def ANF_Detail_Delete(self, strAnfDsn: str, strFldArtDsn: str) -> None:
        """Deletes the detail values of one field kind of a request."""
    def ANF_Detail_Set(
        self,
        strAnfDsn: str,
        strFldArtDsn: str,
        strValue: str,
        strAcl: str = "[NOTHING]",
        strLinkDsn: str = "[NOTHING]",
    ) -> None:
        """Writes the detail value of one field kind of a request as text: into the first such
        row, or into a new one. An empty key does nothing.
        """
    def ANF_Detail_Get(self, strAnfDsn: str, strFldArtDsn: str) -> str:
        """The detail value of one field kind of a request."""
    def ANF_Detail_SetOptionDsn(
        self,
        strAnfDsn: str,
        strFldArtDsn: str,
        strOpDsn: str,
        strAcl: str = "[NOTHING]",
    ) -> None:
        """Makes an option the detail value of one field kind of a request; a text, a range and a
        link that the value had are cleared.
        """
    def ANF_Detail_GetOptionDsn(self, strAnfDsn: str, strFldArtDsn: str) -> str:
        """The option that is the detail value of one field kind of a request."""
    def ANF_New(self) -> _RecordSet:
        """A new, unsaved request with its key, its human key, active, priority 1 and the archive
        flag 0. Fill it and hand it to ANF_Update.
        """
    def ANF_Create(
        self,
        strAdDsn: str = "",
        strEmskDsn: str = "",
        strNotiz: str = "",
        enumEART: ENUM_EART | int = 0,
        lngAbteilung: int = 0,
        strManuell: str = "",
    ) -> str:
        """Saves a new request and gives it the user's standard features. The rights are the
        user's standard ones. Empty keys are stored as null.
        """
    def AKTEN_Find(self, strWhere: str, strOderBy: str = "") -> _RecordSet:
        """Finds the case files that fit a condition, with all columns. The condition "1=2" gives
        an empty record set, the start of a new row.
        """
    def AKTEN_FindDSN(self, strWhere: str, strOderBy: str = "") -> str:
        """The key of the first case file that fits a condition. All columns are read."""
    def AKTEN_FindByDSN(self, strDsn: str) -> _RecordSet:
        """Finds the case file of a key."""
    def AKTEN_FindByKennung(self, strKennung: str) -> _RecordSet:
        """Finds the case files of a human key, ordered by key. A quote inside it breaks the
        statement.
        """
    def AKTEN_FindDsnByKennung(self, strKennung: str) -> str:
        """The key of a human key's case file, the lowest where several carry it."""
    def AKTEN_Delete(self, rsAkten: _RecordSet) -> bool:
        """Deletes the current row of a record set and writes that back."""
    def AKTEN_DeleteByDsn(self, strDsn: str) -> bool:
        """Deletes the case file of a key. Links to it stay."""
    def AKTEN_Update(self, rsAkten: _RecordSet | Ref[Any]) -> None:
        """Hands a changed record set to the host to be written."""
    def AKTEN_Show(self, strWhere: str) -> None:
        """Shows the case files that fit a condition in the application's form F_AKTEN: the form
        is opened empty, filled and brought to the front.
        """
    def AKTEN_ShowDSN(self, strDsn: str) -> None:
        """Shows a case file in the application's form F_AKTEN."""
    def AKTEN_Merkmal_Add(self, strAktenDsn: str, strMkmDSNCommaList: str) -> None:
        """Gives a case file features. One it carries already, and an empty item, are passed
        over.
        """
    def AKTEN_Merkmal_Del(self, strAktenDsn: str, strMkmDSNCommaList: str) -> None:
        """Takes features off a case file: one link row for each key named."""
    def AKTEN_Merkmal_Switch(self, strAktenDsn: str, strMkmDsnOld: str, strMkmDsnNew: str) -> None:
        """Replaces one feature of a case file by another. An empty old key adds the new one
        where it is missing, an empty new key removes the first link of the old one. Replacing
        does not look whether the case file carries the new feature already.
        """
    def AKTEN_Merkmal_Contains(self, strAktenDsn: str, strMkmDSN: str) -> bool:
        """Whether a case file carries a feature."""
    def AKTEN_Merkmal_StdDsnCommaList(self) -> str:
        """The user's standard features, which new case files get. The same for all families."""
    def AKTEN_Detail_Delete(self, strAktenDsn: str, strFldArtDsn: str) -> None:
        """Deletes the detail values of one field kind of a case file."""
    def AKTEN_Detail_Set(
        self,
        strAktenDsn: str,
        strFldArtDsn: str,
        strValue: str,
        strAcl: str = "[NOTHING]",
        strLinkDsn: str = "[NOTHING]",
    ) -> None:
        """Writes the detail value of one field kind of a case file as text: into the first such
        row, or into a new one. An empty key does nothing.
        """
    def AKTEN_Detail_Get(self, strAktenDsn: str, strFldArtDsn: str) -> str:
        """The detail value of one field kind of a case file."""
    def AKTEN_Detail_SetOptionDsn(
        self,
        strAktenDsn: str,
        strFldArtDsn: str,
        strOpDsn: str,
        strAcl: str = "[NOTHING]",
    ) -> None:
        """Makes an option the detail value of one field kind of a case file; a text, a range and
        a link that the value had are cleared.
        """
    def AKTEN_Detail_GetOptionDsn(self, strAktenDsn: str, strFldArtDsn: str) -> str:
        """The option that is the detail value of one field kind of a case file."""
    def AKTEN_New(self) -> _RecordSet:
        """A new, unsaved case file with its key, its human key and the archive flag 0. Fill it
        and hand it to AKTEN_Update.
        """
    def AKTEN_Create(self, strEmskDsn: str = "", strNotiz: str = "", strRubrum: str = "") -> str:
        """Saves a new case file and gives it the user's standard features. The rights are the
        user's standard ones. An empty key is stored as null.
        """
    def VERTRAEGE_Find(self, strWhere: str, strOderBy: str = "") -> _RecordSet:
        """Finds the contracts that fit a condition, with all columns. The condition "1=2" gives
        an empty record set, the start of a new row.
        """
    def VERTRAEGE_FindDSN(self, strWhere: str, strOderBy: str = "") -> str:
        """The key of the first contract that fits a condition. All columns are read."""
    def VERTRAEGE_FindByDSN(self, strDsn: str) -> _RecordSet:
        """Finds the contract of a key."""
    def VERTRAEGE_FindByKennung(self, strKennung: str) -> _RecordSet:
        """Finds the contracts of a human key, ordered by key. A quote inside it breaks the
        statement.
        """
    def VERTRAEGE_FindDsnByKennung(self, strKennung: str) -> str:
        """The key of a human key's contract, the lowest where several carry it."""
    def VERTRAEGE_Delete(self, rsVertraege: _RecordSet) -> bool:
        """Deletes the current row of a record set and writes that back."""
    def VERTRAEGE_DeleteByDsn(self, strDsn: str) -> bool:
        """Deletes the contract of a key. Links to it stay."""
    def VERTRAEGE_Update(self, rsVertraege: _RecordSet | Ref[Any]) -> None:
        """Hands a changed record set to the host to be written."""
    def VERTRAEGE_Show(self, strWhere: str) -> None:
        """Shows the contracts that fit a condition in the application's form F_VERTRÄGE: the
        form is opened empty, filled and brought to the front.
        """
    def VERTRAEGE_ShowDSN(self, strDsn: str) -> None:
        """Shows a contract in the application's form F_VERTRÄGE."""
    def VERTRAEGE_Merkmal_Add(self, strVertraegeDsn: str, strMkmDSNCommaList: str) -> None:
        """Gives a contract features. One it carries already, and an empty item, are passed over."""
    def VERTRAEGE_Merkmal_Del(self, strVertraegeDsn: str, strMkmDSNCommaList: str) -> None:
        """Takes features off a contract: one link row for each key named."""
    def VERTRAEGE_Merkmal_Switch(
        self,
        strVertraegeDsn: str,
        strMkmDsnOld: str,
        strMkmDsnNew: str,
    ) -> None:
        """Replaces one feature of a contract by another. An empty old key adds the new one where
        it is missing, an empty new key removes the first link of the old one. Replacing does
        not look whether the contract carries the new feature already.
        """
    def VERTRAEGE_Merkmal_Contains(self, strVertraegeDsn: str, strMkmDSN: str) -> bool:
        """Whether a contract carries a feature."""
    def VERTRAEGE_Merkmal_StdDsnCommaList(self) -> str:
        """The user's standard features, which new contracts get. The same for all families."""
    def VERTRAEGE_Detail_Delete(self, strVertraegeDsn: str, strFldArtDsn: str) -> None:
        """Deletes the detail values of one field kind of a contract."""
    def VERTRAEGE_Detail_Set(
        self,
        strVertraegeDsn: str,
        strFldArtDsn: str,
        strValue: str,
        strAcl: str = "[NOTHING]",
        strLinkDsn: str = "[NOTHING]",
    ) -> None:
        """Writes the detail value of one field kind of a contract as text: into the first such
        row, or into a new one. An empty key does nothing.
        """
    def VERTRAEGE_Detail_Get(self, strVertraegeDsn: str, strFldArtDsn: str) -> str:
        """The detail value of one field kind of a contract."""
    def VERTRAEGE_Detail_SetOptionDsn(
        self,
        strVertraegeDsn: str,
        strFldArtDsn: str,
        strOpDsn: str,
        strAcl: str = "[NOTHING]",
    ) -> None:
        """Makes an option the detail value of one field kind of a contract; a text, a range and
        a link that the value had are cleared.
        """
    def VERTRAEGE_Detail_GetOptionDsn(self, strVertraegeDsn: str, strFldArtDsn: str) -> str:
        """The option that is the detail value of one field kind of a contract."""
    def VERTRAEGE_New(self) -> _RecordSet:
        """A new, unsaved contract with its key, its human key, active and the archive flag 0.
        Fill it and hand it to VERTRAEGE_Update.
        """
    def VERTRAEGE_Create(
        self,
        strVertragsnummer: str = "",
        strIntern: str = "",
        strNotiz: str = "",
        strEmskDsn: str = "",
        strAdNehmerDsn: str = "",
        strAdGesellschaftDsn: str = "",
        strAdVermittlerDsn: str = "",
    ) -> str:
        """Saves a new contract and gives it the user's standard features. The rights are the
        user's standard ones. Empty keys are stored as null.
        """
    def AD_Find(self, strWhere: str, strOderBy: str = "") -> _RecordSet:
        """Finds the addresses that fit a condition, with all columns. The condition "1=2" gives
        an empty record set, the start of a new row.
        """
    def AD_FindDSN(self, strWhere: str, strOderBy: str = "") -> str:
        """The key of the first address that fits a condition. All columns are read."""
    def AD_FindByDSN(self, strDsn: str) -> _RecordSet:
        """Finds the address of a key."""
    def AD_FindByKennung(self, strKennung: str) -> _RecordSet:
        """Finds the addresses of a human key, ordered by key. A quote inside it breaks the
        statement.
        """
    def AD_FindDsnByKennung(self, strKennung: str) -> str:
        """The key of a human key's address, the lowest where several carry it."""
    def AD_Delete(self, rsAd: _RecordSet) -> bool:
        """Deletes the current row of a record set and writes that back."""
    def AD_DeleteByDsn(self, strDsn: str) -> bool:
        """Deletes the address of a key. Links to it stay."""
    def AD_Update(self, rsAd: _RecordSet | Ref[Any]) -> None:
        """Hands a changed record set to the host to be written."""
    def AD_Show(self, strWhere: str) -> None:
        """Shows the addresses that fit a condition in the application's form F_AD: the form is
        opened empty, filled and brought to the front.
        """
    def AD_ShowDSN(self, strDsn: str) -> None:
        """Shows an address in the application's form F_AD."""
    def AD_Merkmal_Add(self, strAdDsn: str, strMkmDSNCommaList: str) -> None:
        """Gives an address features. One it carries already, and an empty item, are passed over."""
    def AD_Merkmal_Del(self, strAdDsn: str, strMkmDSNCommaList: str) -> None:
        """Takes features off an address: one link row for each key named."""
    def AD_Merkmal_Switch(self, strAdDsn: str, strMkmDsnOld: str, strMkmDsnNew: str) -> None:
        """Replaces one feature of an address by another. An empty old key adds the new one where
        it is missing, an empty new key removes the first link of the old one. Replacing does
        not look whether the address carries the new feature already.
        """
    def AD_Merkmal_Contains(self, strAdDsn: str, strMkmDSN: str) -> bool:
        """Whether an address carries a feature."""
    def AD_Merkmal_StdDsnCommaList(self) -> str:
        """The user's standard features, which new addresses get. The same for all families."""
    def AD_New(self) -> _RecordSet:
        """A new, unsaved address with its key, its human key, the archive flag 0 and the
        standard letter salutation, cut to 200 characters. Fill it and hand it to AD_Update.
        """
    def AD_Create(
        self,
        strFirma: str = "",
        strName: str = "",
        strStrasse: str = "",
        strPLZ: str = "",
        strOrt: str = "",
        strNotiz: str = "",
        strAdRootDsn: str = "",
    ) -> str:
        """Saves a new address and gives it the user's standard features. The rights are the
        user's standard ones. An empty key is stored as null.
        """
    def AD_SetName(
        self,
        rsAd: _RecordSet,
        strTitle: str,
        strFirstName: str,
        strFamilyName: str,
    ) -> None:
        """Writes NAME in the current row, with "#" before the family name, cut to 100
        characters. Nothing is saved.
        """
    def AD_SetNameAndSalutation(
        self,
        rsAd: _RecordSet,
        strSalutationShort: str,
        strTitle: str,
        strFirstName: str,
        strFamilyName: str,
    ) -> None:
        """Writes ANREDEKURZ, ANREDE and BRIEFANREDE of a salutation in the current row, with the
        person's name in the letter's line, then NAME as AD_SetName does. Without any
        salutation in the master data NAME alone. Nothing is saved.
        """
    def AD_GetName(
        self,
        rsAd: _RecordSet,
        strTitle: _Value | Ref[Any],
        strFirstName: _Value | Ref[Any],
        strFamilyName: _Value | Ref[Any],
    ) -> bool:
        """Takes the name of the current row apart. IDX_NAME is the family name; of the words
        before it those that TITEL lists are the title. Several titles or first names come in
        reverse order.
        """
    def AD_FindDSNByPhoneEMail(self, strPhoneEMail: str) -> str:
        """Finds an address by a phone number or an e-mail address, the lowest entry where
        several fit. A quote inside the text breaks the statement.
        """
    def AD_GetPhoneList(self, rsAd: _RecordSet) -> clsPhoneList:
        """The phone entries of the current row."""
    def AD_SetPhoneList(self, rsAd: _RecordSet, oPhoneList: clsPhoneList | None) -> None:
        """Writes phone entries into the current row. Nothing is saved."""
    def AD_GetDetails(self, strAdDsn: str, strEmskDsn: str) -> _RecordSet:
        """The detail sheets of an address with one entry mask, ordered by key."""
    def AD_GetDetailsDsn(self, strAdDsn: str, strEmskDsn: str) -> str:
        """The key of the first detail sheet that AD_GetDetails finds."""
    def AD_GetStdBriefAnrede(self) -> str:
        """The letter form of the first salutation, with its name tags. Read once and kept,
        unless it is empty.
        """
    def AD_GetParentAdDsn(self, strAdDsn: str) -> str:
        """The address that an address hangs under."""
    def AD_GetRootAdDsn(self, strAdDsn: str) -> str:
        """The top of an address's chain of parents."""
    def Details_Find(self, strWhere: str, strOderBy: str = "") -> _RecordSet:
        """Finds the detail sheets that fit a condition, with all columns. The condition "1=2"
        gives an empty record set, the start of a new row.
        """
    def Details_FindDSN(self, strWhere: str, strOderBy: str = "") -> str:
        """The key of the first detail sheet that fits a condition. All columns are read."""
    def Details_FindByDSN(self, strDsn: str) -> _RecordSet:
        """Finds the detail sheet of a key."""
    def Details_FindByKennung(self, strKennung: str) -> _RecordSet:
        """Finds the detail sheets of a human key, ordered by key. A quote inside it breaks the
        statement.
        """
    def Details_FindDsnByKennung(self, strKennung: str) -> str:
        """The key of a human key's detail sheet, the lowest where several carry it."""
    def Details_Delete(self, rsDetails: _RecordSet) -> bool:
        """Deletes the current row of a record set and writes that back."""
    def Details_DeleteByDsn(self, strDsn: str) -> bool:
        """Deletes the detail sheet of a key. Links to it stay."""
    def Details_Update(self, rsDetails: _RecordSet | Ref[Any]) -> None:
        """Hands a changed record set to the host to be written."""
    def Details_Show(self, strWhere: str) -> None:
        """Shows the detail sheets that fit a condition in the application's form F_Details: the
        form is opened empty, filled and brought to the front.
        """
    def Details_ShowDSN(self, strDsn: str) -> None:
        """Shows a detail sheet in the application's form F_Details."""
    def Details_Merkmal_Add(self, strDetailsDsn: str, strMkmDSNCommaList: str) -> None:
        """Gives a detail sheet features. One it carries already, and an empty item, are passed
        over.
        """
    def Details_Merkmal_Del(self, strDetailsDsn: str, strMkmDSNCommaList: str) -> None:
        """Takes features off a detail sheet: one link row for each key named."""
    def Details_Merkmal_Switch(
        self,
        strDetailsDsn: str,
        strMkmDsnOld: str,
        strMkmDsnNew: str,
    ) -> None:
        """Replaces one feature of a detail sheet by another. An empty old key adds the new one
        where it is missing, an empty new key removes the first link of the old one. Replacing
        does not look whether the detail sheet carries the new feature already.
        """
    def Details_Merkmal_Contains(self, strDetailsDsn: str, strMkmDSN: str) -> bool:
        """Whether a detail sheet carries a feature."""
    def Details_Merkmal_StdDsnCommaList(self) -> str:
        """The user's standard features, which new detail sheets get. The same for all families."""
    def Details_Del(self, strDetailsDsn: str, strFldArtDsn: str) -> None:
        """Deletes the detail values of one field kind of a detail sheet."""
    def Details_Set(
        self,
        strDetailsDsn: str,
        strFldArtDsn: str,
        strValue: str,
        strAcl: str = "[NOTHING]",
        strLinkDsn: str = "[NOTHING]",
    ) -> None:
        """Writes the detail value of one field kind of a detail sheet as text: into the first
        such row, or into a new one. An empty key does nothing.
        """
    def Details_Get(self, strDetailsDsn: str, strFldArtDsn: str) -> str:
        """The detail value of one field kind of a detail sheet."""
    def Details_SetOptionDsn(
        self,
        strDetailsDsn: str,
        strFldArtDsn: str,
        strOpDsn: str,
        strAcl: str = "[NOTHING]",
    ) -> None:
        """Makes an option the detail value of one field kind of a detail sheet; a text, a range
        and a link that the value had are cleared.
        """
    def Details_GetOptionDsn(self, strDetailsDsn: str, strFldArtDsn: str) -> str:
        """The option that is the detail value of one field kind of a detail sheet."""
    def Details_FindByName(self, strDetailsOberbegriff: str) -> _RecordSet:
        """Finds the detail sheets of a name, ordered by key. A quote inside it breaks the
        statement.
        """
    def Details_FindDsnByName(self, strDetailsOberbegriff: str) -> str:
        """The key of the detail sheet of a name, the lowest where several carry it. A quote
        inside it breaks the statement.
        """
    def Details_New(self) -> _RecordSet:
        """A new, unsaved detail sheet with its key and the archive flag 0; detail sheets have no
        human key. Fill it and hand it to Details_Update.
        """
    def Details_Create(
        self,
        strAdDsn: str,
        strEmskDsn: str,
        strOberbegriff: str = "",
        strNotiz: str = "",
    ) -> str:
        """Saves a new detail sheet and gives it the user's standard features. The rights are the
        user's standard ones. Empty keys are stored as null.
        """
    def MKM_Find(self, strWhere: str, strOderBy: str = "") -> _RecordSet:
        """Finds the features that fit a condition, with all columns. The condition "1=2" gives
        an empty record set, the start of a new row.
        """
    def MKM_FindDSN(self, strWhere: str, strOderBy: str = "") -> str:
        """The key of the first feature that fits a condition. All columns are read."""
    def MKM_FindByDSN(self, strDsn: str) -> _RecordSet:
        """Finds the feature of a key."""
    def MKM_Delete(self, rsMkm: _RecordSet) -> bool:
        """Deletes the current row of a record set and writes that back."""
    def MKM_DeleteByDsn(self, strDsn: str) -> bool:
        """Deletes the feature of a key. Links to it stay."""
    def MKM_Update(self, rsMkm: _RecordSet | Ref[Any]) -> None:
        """Hands a changed record set to the host to be written."""
    def MKM_FindByName(self, strMerkmalName: str) -> _RecordSet:
        """Finds the features of a name, ordered by key. A quote inside it breaks the statement."""
    def MKM_FindDsnByName(self, strMerkmalName: str) -> str:
        """The key of the feature of a name, the lowest where several carry it. A quote inside it
        breaks the statement.
        """
    def MKM_NameByDSN(self, strDsn: str) -> str:
        """The name of a feature."""
    def MKM_NameByDSNList(self, strDsnCommaList: str) -> str:
        """The name of the last feature of a list. The names before it are looked up and dropped,
        not joined.
        """
    def MKM_New(self) -> _RecordSet:
        """A new feature in use, not saved: fill it and pass it to MKM_Update."""
    def MKM_Create(
        self,
        strMerkmalName: str = "",
        strSortierung: str = "",
        strNotiz: str = "",
        strTableCommaList: str = "",
        strGruppe: str = "",
    ) -> str:
        """Makes a feature, in use, black on white, and saves it. Longer texts are cut."""
    def EMSK_Find(self, strWhere: str, strOderBy: str = "") -> _RecordSet:
        """Finds the entry masks that fit a condition, with all columns. The condition "1=2"
        gives an empty record set, the start of a new row.
        """
    def EMSK_FindDSN(self, strWhere: str, strOderBy: str = "") -> str:
        """The key of the first entry mask that fits a condition. All columns are read."""
    def EMSK_FindByDSN(self, strDsn: str) -> _RecordSet:
        """Finds the entry mask of a key."""
    def EMSK_Delete(self, rsEmsk: _RecordSet) -> bool:
        """Deletes the current row of a record set and writes that back."""
    def EMSK_DeleteByDsn(self, strDsn: str) -> bool:
        """Deletes the entry mask of a key. Links to it stay."""
    def EMSK_Update(self, rsEmsk: _RecordSet | Ref[Any]) -> None:
        """Hands a changed record set to the host to be written."""
    def EMSK_FindByName(self, strEmskName: str) -> _RecordSet:
        """Finds the entry masks of a name, ordered by key. A quote inside it breaks the
        statement.
        """
    def EMSK_FindDsnByName(self, strEmskName: str) -> str:
        """The key of the entry mask of a name, the lowest where several carry it. A quote inside
        it breaks the statement.
        """
    def EMSK_NameByDSN(self, strDsn: str) -> str:
        """The name of an entry mask."""
    def EMSK_NameByDSNList(self, strDsnCommaList: str) -> str:
        """The names of a list of entry masks, in the order of the keys."""
    def EMSK_New(self) -> _RecordSet:
        """A new entry mask in use, not saved: fill it and pass it to EMSK_Update."""
    def EMSK_Create(
        self,
        strEmskName: str = "",
        enumEART: ENUM_EART | int = 0,
        strNotiz: str = "",
        strTableCommaList: str = "",
        strGruppen: str = "",
    ) -> str:
        """Makes an entry mask, in use and without field kinds, and saves it. Longer texts are
        cut.
        """
    def EMSK_GetFldArtDsnList(self, strEmskDsn: str) -> str:
        """The field kinds of an entry mask, in their order."""
    def EMSK_AddFldArt(
        self,
        strEmskDsn: str,
        strFldArtDsn: str,
        blnPflichtfeld: bool = False,
        intBackColor: int = 0,
        strDefaultACL: str = "",
        strFldArtOp_Filter: str = "",
    ) -> bool:
        """Adds a field kind to an entry mask. One that it has already is left as it is."""
    def EMSK_DelFldArt(self, strEmskDsn: str, strFldArtDsn: str) -> bool:
        """Takes a field kind out of an entry mask."""
    def EMSK_ContainsFldArt(self, strEmskDsn: str, strFldArtDsn: str) -> bool:
        """Whether an entry mask has a field kind."""
    def EMSK_GetField(self, strEmskDsn: str, strFldArtDsn: str, strFieldName: str) -> _Value:
        """One column of an entry mask's row for a field kind, as it is."""
    def EMSK_GetDefaultACL(self, strEmskDsn: str, strFldArtDsn: str) -> str:
        """The access-control string that values of a field kind get from an entry mask."""
    def EMSK_GetBackcolor(self, strEmskDsn: str, strFldArtDsn: str) -> int:
        """The background colour that an entry mask gives a field kind."""
    def EMSK_GetFldArtOpFilter(self, strEmskDsn: str, strFldArtDsn: str) -> int:
        """The option filter that an entry mask gives a field kind, as a number, though it is
        written as text.
        """
    def EMSK_GetMandatory(self, strEmskDsn: str, strFldArtDsn: str) -> bool:
        """Whether an entry mask asks for a value of a field kind."""
    def FldArt_Find(self, strWhere: str, strOderBy: str = "") -> _RecordSet:
        """Finds the field kinds that fit a condition, with all columns. The condition "1=2"
        gives an empty record set, the start of a new row.
        """
    def FldArt_FindDSN(self, strWhere: str, strOderBy: str = "") -> str:
        """The key of the first field kind that fits a condition. All columns are read."""
    def FldArt_FindByDSN(self, strDsn: str) -> _RecordSet:
        """Finds the field kind of a key."""
    def FldArt_Delete(self, rsFldArt: _RecordSet) -> bool:
        """Deletes the current row of a record set and writes that back."""
    def FldArt_DeleteByDsn(self, strDsn: str) -> bool:
        """Deletes the field kind of a key. Links to it stay."""
    def FldArt_Update(self, rsFldArt: _RecordSet | Ref[Any]) -> None:
        """Hands a changed record set to the host to be written."""
    def FldArt_FindByName(self, strFldArtKuerzel: str) -> _RecordSet:
        """Finds the field kinds of a name, ordered by key. A quote inside it breaks the
        statement.
        """
    def FldArt_FindDsnByName(self, strFldArtKuerzel: str) -> str:
        """The key of the field kind of a name, the lowest where several carry it. A quote inside
        it breaks the statement.
        """
    def FldArt_NameByDSN(self, strDsn: str) -> str:
        """The name of a field kind."""
    def FldArt_NameByDSNList(self, strDsnCommaList: str) -> str:
        """The names of a list of field kinds, in the order of the keys."""
    def FldArt_New(self) -> _RecordSet:
        """A new field kind in use, not saved: fill it and pass it to FldArt_Update."""
    def FldArt_Create(
        self,
        strFldArtKuerzel: str = "",
        enumFldArtTyp: ENUM_FLDARTTYP | int = 3,
        strSortierung: str = "",
        strPlausibilitaet: str = "",
        strFormat: str = "",
        strNotiz: str = "",
        strTableCommaList: str = "",
        strIntern: str = "",
        strGruppen: str = "",
    ) -> str:
        """Makes a field kind, in use, and saves it. Longer texts are cut."""
    def FldArt_SetTyp(self, rsFldArt: _RecordSet, enumTyp: ENUM_FLDARTTYP | int) -> None:
        """Sets what the values of a field kind are, in the current row; it is not saved."""
    def FldArt_GetTyp(self, rsFldArt: _RecordSet) -> ENUM_FLDARTTYP:
        """What the values of a field kind are, from the current row."""
    def FldArtOp_Find(self, strWhere: str, strOderBy: str = "") -> _RecordSet:
        """Finds the options that fit a condition, with all columns. The condition "1=2" gives an
        empty record set, the start of a new row.
        """
    def FldArtOp_FindDSN(self, strWhere: str, strOderBy: str = "") -> str:
        """The key of the first option that fits a condition. All columns are read."""
    def FldArtOp_FindByDSN(self, strDsn: str) -> _RecordSet:
        """Finds the option of a key."""
    def FldArtOp_Delete(self, rsFldArtOp: _RecordSet) -> bool:
        """Deletes the current row of a record set and writes that back."""
    def FldArtOp_DeleteByDsn(self, strDsn: str) -> bool:
        """Deletes the option of a key. Links to it stay."""
    def FldArtOp_Update(self, rsFldArtOp: _RecordSet | Ref[Any]) -> None:
        """Hands a changed record set to the host to be written."""
    def FldArtOp_FindByName(self, strFldArtDsn: str, strFldArtOpBezeichnung: str) -> _RecordSet:
        """Finds the options of a field kind by their text, ordered by key. A quote inside it
        breaks the statement.
        """
    def FldArtOp_FindDsnByName(self, strFldArtDsn: str, strFldArtOpBezeichnung: str) -> str:
        """The key of the option of a field kind that has this text, the lowest where several
        have it. A quote inside it breaks the statement.
        """
    def FldArtOp_NameByDSN(self, strDsn: str) -> str:
        """The name of an option."""
    def FldArtOp_NameByDSNList(self, strDsnCommaList: str) -> str:
        """The name of the last option of a list. The names before it are looked up and dropped,
        not joined.
        """
    def FldArtOp_New(self) -> _RecordSet:
        """A new option, not saved: fill it and pass it to FldArtOp_Update."""
    def FldArtOp_Create(
        self,
        strFldArtOpBezeichnung: str,
        strFldArtDsn: str,
        strWert: str = "",
        strKurz: str = "",
        blnDefaultwert: bool = False,
    ) -> str:
        """Makes an option of a field kind and saves it. Longer texts are cut."""
    def FldArtOp_FindByFldArt(self, strFldArtDsn: str) -> _RecordSet:
        """Finds all options of a field kind, ordered by their texts."""
    def AKTART_Find(self, strWhere: str, strOderBy: str = "") -> _RecordSet:
        """Finds the activity types that fit a condition, with all columns. The condition "1=2"
        gives an empty record set, the start of a new row.
        """
    def AKTART_FindDSN(self, strWhere: str, strOderBy: str = "") -> str:
        """The key of the first activity type that fits a condition. All columns are read."""
    def AKTART_FindByDSN(self, strDsn: str) -> _RecordSet:
        """Finds the activity type of a key."""
    def AKTART_Delete(self, rsAktArt: _RecordSet) -> bool:
        """Deletes the current row of a record set and writes that back."""
    def AKTART_DeleteByDsn(self, strDsn: str) -> bool:
        """Deletes the activity type of a key. Links to it stay."""
    def AKTART_Update(self, rsAktArt: _RecordSet | Ref[Any]) -> None:
        """Hands a changed record set to the host to be written."""
    def AKTART_FindByName(self, strAktivitaetenartName: str) -> _RecordSet:
        """Finds the activity types of a name, ordered by key. A quote inside it breaks the
        statement.
        """
    def AKTART_FindDsnByName(self, strAktivitaetenartName: str) -> str:
        """The key of the activity type of a name, the lowest where several carry it. A quote
        inside it breaks the statement.
        """
    def AKTART_NameByDSN(self, strDsn: str) -> str:
        """The name of an activity type."""
    def AKTART_NameByDSNList(self, strDsnCommaList: str) -> str:
        """The name of the last activity type of a list. The names before it are looked up and
        dropped, not joined.
        """
    def AKTART_New(self) -> _RecordSet:
        """A new, unsaved activity type with its key, active, priority 1. Fill it and hand it to
        AKTART_Update.
        """
    def AKTART_Create(
        self,
        strAktivitaetenartName: str = "",
        strKurz: str = "",
        strNotiz: str = "",
        strDefaultViews: str = "",
        dblVorlageInTagen: int = 0,
        dblVorlageInMinuten: float = 0.0,
        dblKosten: float = 0.0,
        dblKilometer: float = 0.0,
        intBackColor: int = 0,
        intFontColor: int = 0,
        blnOhneUhrzeit: bool = False,
        blnInKalenderAnzeigen: bool = False,
        blnAlsQuickAktAnzeigen: bool = False,
        blnErledigtNachAktCreate: bool = False,
        blnAdressverknuepfungLoesen: bool = False,
        strDefEmskDsn: str = "",
    ) -> str:
        """Saves a new activity type. Flags are stored as 1 and 0."""
    def STD_Find(self) -> _RecordSet:
        """The whole master-data table."""
    def STD_GetField(self, strFieldName: str) -> str:
        """One master-data value as text, asked of the database each time. Asking for a Kennung_*
        column takes the next number for that table.
        """
    def STD_GetSalutationList(self) -> clsSalutationList:
        """The installation's salutations."""
    def BLOB_Add(
        self,
        strFileName: str,
        strLinkDsn: str,
        blnAsLink: bool,
        blnMarkSend: bool,
    ) -> str:
        """Attaches a file to a record. A link's file is not looked at. One that is marked as
        sent is saved twice, the second time with its key and the mark.
        """
    def BLOB_Del(self, strBlobDsn: str, strInfo: str) -> None:
        """Deletes an attachment. Whatever its kind, the host is told that of stored content, and
        no owner.
        """
    def BLOB_GetInfo(self, strLinkDsn: str) -> _RecordSet:
        """A record's attachments: key, owner, kind, original path, sent or not."""
    def BLOB_GetDsnCommaList(self, strLinkDsn: str) -> str:
        """The keys of a record's attachments."""
    def BLOB_GetFilename(self, strBlobDsn: str) -> str:
        """The path from which an attachment came."""
    def BLOB_SaveAs(self, rsBlob: _RecordSet, strPath: str, strNewFileName: str = "") -> str:
        """Writes an attachment to a folder: stored content, which overwrites nothing; the file
        that a link leads to, over one of the same name; or the folder that it leads to, whose
        content goes into strPath itself.
        """
    def BLOB_Copy(self, strSorceLinkDsn: str, strDestLinkDsn: str) -> int:
        """Copies a record's attachments to another record: stored content and links; other kinds
        are passed over. The sent mark goes along. Files that the host extracts stay where it
        put them.
        """
    def __enter__(self) -> Self: ...
    def __exit__(
        self,
        kind: type[BaseException] | None,
        error: BaseException | None,
        traceback: TracebackType | None,
    ) -> None: ...

@final
class clsBase:
    """The data operations that work on any table."""
    def CV_GetRecordset(self, strSQL: str) -> _RecordSet:
        """Sends a statement to the host and gives back its record set. Every empty result is
        logged; with FlagSqlLog every statement is.
        """
    def CV_UpdateRecordset(self, rs: _RecordSet | Ref[Any]) -> None:
        """Hands a changed record set to the host to be written. With FlagSqlLog the current row
        is logged first.
        """
    def CV_CurrentUserRS(self) -> _RecordSet:
        """The logged-on user's row."""
    def CV_STDRS(self) -> _RecordSet:
        """The master-data row."""
    def SetDBPassword(self, strNewDBPassword: str) -> None:
        """Keeps a database password, which every later statement and every written record set
        passes to the host. Attaching a session drops it.
        """
    def ResetDBPassword(self) -> None:
        """Drops the database password: the host is called without one again."""
    def CV_CreateProgress(self) -> _Object:
        """A progress window: a new one in a running application, the connector's own otherwise."""
    def CV_ParseAndFill(
        self,
        rsDets: _RecordSet | Ref[Any],
        typ: int | Ref[Any],
        bMsg: bool | Ref[Any] = False,
    ) -> str:
        """Hands a record set of detail rows to the host, which reads the entered texts and fills
        the value columns.
        """
    def Pane_Find(self, strFormName: str, strWhere: str) -> None:
        """Has a form find the records that fit a condition. A form that the host does not know
        is passed over.
        """
    def Pane_FindDSN(self, strFormName: str, strDsn: str) -> None:
        """Has a form find one record and shows the form. A form that the host does not know is
        passed over.
        """
    def Pane_Show(self, strFormName: str) -> None:
        """Shows a form. A form that the host does not know is passed over."""
    def Sql_Find(self, strTable: str, strWhere: str, strOderBy: str = "") -> _RecordSet:
        """Finds the rows of a table that fit a condition, with all columns. The condition "1=2"
        gives an empty record set, the start of a new row.
        """
    def Sql_GetDSN(self, strTable: str, strWhere: str, strOderBy: str = "") -> str:
        """The key of the first row that fits a condition."""
    def Sql_FindByDSN(self, strTable: str, strDsn: str) -> _RecordSet:
        """Finds the row of a key."""
    def Sql_FindByKennung(self, strTable: str, strKennung: str) -> _RecordSet:
        """Finds the rows of a human key, ordered by key. A quote inside it breaks the statement."""
    def Sql_FindDsnByKennung(self, strTable: str, strKennung: str) -> str:
        """The key of a human key's row, the lowest where several carry it."""
    def Sql_GetField(
        self,
        strTable: str,
        strDsn: str | Ref[Any],
        strFieldName: str | Ref[Any],
    ) -> str:
        """One field of one row as text."""
    def Sql_GetKennung(
        self,
        strTable: str,
        strDsn: str | Ref[Any],
        blnWithBlank: bool = True,
    ) -> str:
        """The human key of a record."""
    def Sql_SetField(
        self,
        strTable: str,
        strDsn: str | Ref[Any],
        strFieldName: str | Ref[Any],
        varValue: _Value,
    ) -> bool:
        """Writes one field of one row."""
    def SQL_Delete(self, rs: _RecordSet | Ref[Any]) -> bool:
        """Deletes the current row of a record set and writes that back."""
    def SQL_DeleteAll(self, rs: _RecordSet | Ref[Any]) -> bool:
        """Deletes every row of a record set that is not at its end, and writes that back in one
        go.
        """
    def SQL_DeleteWhere(self, strTable: str, strWhere: str) -> int:
        """Deletes all rows of a table that fit a condition; an empty condition deletes every row
        of the table.
        """
    def Sql_CopyFields(
        self,
        rsSource: _RecordSet,
        rsDest: _RecordSet,
        strNegFieldList: str = "|DSN|KENNUNG|STAMP|",
    ) -> None:
        """Copies the fields of one row to the fields of the same names in another. Nothing is
        written to the database, nothing is moved.
        """
    def Sql_CrossTable(
        self,
        strMainTable: str,
        strTblFieldPipeList: str,
        strDetailPipeList: str,
        strWhere: str = "",
        strOrderBy: str = "",
    ) -> str:
        """Builds the statement that lists the rows of a main table with detail values beside
        them, one column for each. "Zimmer" shows the entered text of the field kind of that
        short name, "Preis.Von_Num" another detail column, called Preis_Von_Num;
        "Lage=Kürzel#LAGE1" finds the field kind by another column and value. Nothing is sent,
        quoted or checked; without a column of the main table the statement is no valid one.
        """
    def BEN_MerkmalDsnCommaList(self) -> str:
        """The user's standard features, which new records get."""
    def BEN_VorlageDsnCommaList(self) -> str:
        """The user's template features."""
    def BEN_EMailAktArt(self) -> str:
        """The activity type of the user's e-mails."""
    def BEN_ScannerAktArt(self) -> str:
        """The activity type of the user's scanned documents."""
    def BEN_Rechteschablone(self, lngNr: int) -> str:
        """One of the user's rights templates: what follows the first "|" of its line."""
    def BEN_StdACL(self) -> str:
        """The access-control string that the user's new records get: the fourth rights template."""
    def BEN_Mkm(self) -> str:
        """The user's own feature: the one whose Benutzer is the user's log-on name, the first by
        Touch.
        """
    def Mkm_Exists(self, strTable: str, strLinkDsn: str, strMkmDSN: str) -> bool:
        """Whether a record carries a feature."""
    def Mkm_Switch(
        self,
        strTable: str,
        strLinkDsn: str,
        strDSNOld: str,
        strDSNNew: str | Ref[Any],
    ) -> bool:
        """Replaces one feature of a record by another: the first link row found is changed. An
        empty old key adds the new one where it is missing, an empty new key removes the first
        link of the old one. Replacing does not look whether the record carries the new
        feature already.
        """
    def Mkm_Add(self, strTable: str, strLinkDsn: str, strMkmDSNCommaList: str) -> bool:
        """Gives a record features. One it carries already, and an empty item, are passed over."""
    def Mkm_Del(self, strTable: str, strLinkDsn: str, strMkmDSNCommaList: str) -> bool:
        """Takes features off a record: one link row for each key named."""
    def Mkm_Get(self, strTable: str, strLinkDsn: str) -> str:
        """A record's features, in the order in which the host gives them."""
    def Mkm_Copy(self, strTable: str, strSourceDsn: str, strDestDsn: str) -> None:
        """Gives one record the features of another of the same table. Those it has stay, none is
        doubled.
        """
    def Det_GetValue(self, strTable: str, strTableDsn: str, strFldArtDsn: str) -> str:
        """The detail value of one field kind of a record as text."""
    def Det_GetNumValue(
        self,
        strTable: str,
        strTableDsn: str,
        strFldArtDsn: str,
        lngVonNum: _Value | Ref[Any],
        lngBisNum: _Value | Ref[Any],
    ) -> bool:
        """The numeric range of one field kind of a record."""
    def Det_SetValue(
        self,
        strTable: str,
        strTableDsn: str,
        strFldArtDsn: str,
        strValue: str | Ref[Any],
        strAcl: str = "[NOTHING]",
        strLinkDsn: str = "[NOTHING]",
    ) -> bool:
        """Writes the detail value of one field kind as text: into the first such row of the
        record, or into a new one. The text is not interpreted; ranges and the option stay as
        they are.
        """
    def Det_Delete(self, strTable: str, strTableDsn: str, strFldArtDsn: str) -> bool:
        """Deletes all detail values of one field kind of a record."""
    def Det_SetValueWithEMSK(
        self,
        strTable: str,
        strTableDsn: str,
        strFldArtDsn: str,
        strValue: str | Ref[Any],
        strEmskDsn: str = "",
        strLinkDsn: str = "[NOTHING]",
    ) -> bool:
        """Writes a detail value as Det_SetValue does, with the access-control string that an
        entry mask gives the field kind; one that the mask lacks gets an empty string.
        """
    def Det_Copy(self, strTable: str, strSourceDsn: str, strDestDsn: str) -> int:
        """Copies all detail values of one record to another of the same table, which keeps those
        it has: copying twice doubles them. Made for activities: the new owner is always
        written into the column Akt_Dsn.
        """
    def Det_GetOptionDsn(self, strTable: str, strTableDsn: str, strFldArtDsn: str) -> str:
        """The option that is the detail value of one field kind of a record."""
    def Det_SetOptionDsn(
        self,
        strTable: str,
        strTableDsn: str,
        strFldArtDsn: str,
        strValue: str,
        strAcl: str = "[NOTHING]",
    ) -> bool:
        """Makes an option the detail value of one field kind of a record. A text, a range and a
        link that the first such row had are cleared. Deleting the value is the way to clear
        an option.
        """
    def FieldToFile(
        self,
        fld: _Object,
        FName: str,
        FieldSize: int | Ref[Any] = -1,
        Threshold: int | Ref[Any] = 1048576,
    ) -> bool:
        """Writes a field's long text or bytes to a file. Without a size, or with one above the
        threshold, it is read in pieces of 163840. A field of any other type leaves the file
        empty.
        """

class clsTools:
    """Formatting, texts, working days and placeholders."""
    def StrList_DeleteFirst(self, varBuffer: _Value | Ref[Any], strDelim: str = "|") -> str:
        """Takes the first element off a list in a text, with its delimiter. The last element
        leaves an empty text.
        """
    def FormatCurrencyCV(self, dblWert: float, strCurrency: str = "", lngPos: int = 1) -> str:
        """Formats an amount as FormatNumber does and adds the currency, with a blank between.
        Blanks at the ends are cut off.
        """
    def FormatNumber(
        self,
        dblNumber: float,
        NumDigitsAfterDecimal: int = -1,
        IncludeLeadingDigit: int = -2,
        UseParensForNegativeNumbers: int = -2,
        GroupDigits: int = -2,
    ) -> str:
        """Formats a number by the regional settings; German ones off Windows. Midpoints are
        rounded away from zero.
        """
    def FormatCurrency(
        self,
        dblNumber: float,
        NumDigitsAfterDecimal: int = -1,
        IncludeLeadingDigit: int = -2,
        UseParensForNegativeNumbers: int = -2,
        GroupDigits: int = -2,
    ) -> str:
        """Formats an amount in the currency of the regional settings; the euro off Windows."""
    def FormatPercent(
        self,
        dblNumber: float,
        NumDigitsAfterDecimal: int = -1,
        IncludeLeadingDigit: int = -2,
        UseParensForNegativeNumbers: int = -2,
        GroupDigits: int = -2,
    ) -> str:
        """Formats the hundredfold of a number with a percent sign."""
    def FormatDateTime(self, datDate: _Date, NamedFormat: int = 0) -> str:
        """Formats date and time by the regional settings; German ones off Windows. A general
        date leaves out midnight.
        """
    def MoveDate(
        self,
        varDate: _Value,
        datStartDate: _Date,
        datRefDate: _Date,
        blnWochenende: bool | Ref[Any] = True,
        blnFeiertag: bool | Ref[Any] = True,
    ) -> _Value:
        """Carries a date over to a new start: the calendar days from datRefDate to varDate are
        walked in working days from datStartDate on. The start itself moves on to a working
        day first; a date on or before datRefDate gives just that day. With a time of day in
        varDate the result has the start's time, else it is at midnight.
        """
    def IsArbeitstag(
        self,
        datDate: _Date,
        blnFeiertag: bool | Ref[Any] = True,
        blnSaturday: bool | Ref[Any] = True,
        blnSunday: bool | Ref[Any] = True,
    ) -> bool:
        """Whether a day is a working day. Saturdays and Sundays go by their flags alone; from
        Monday to Friday a holiday would count, but IsFeiertag never tells of one.
        """
    def IsFeiertag(self, datDate: _Date) -> str:
        """Asks the holiday component for the day. Its answer is not handed on."""
    def ReplacePlatzhalter(
        self,
        strText: str,
        rs: _RecordSet,
        strSQL: str,
        blnHtml: bool = False,
        strDefault: str = "",
    ) -> str:
        """Replaces each {NAME} in a text by GetSinglePlatzhalter. A blank or a carriage return
        inside braces makes them ordinary text; a brace still open at the end is dropped with
        what follows it.
        """
    def GetSinglePlatzhalter(
        self,
        strPlatzhalter: str,
        rs: _RecordSet,
        strSQL: str,
        blnHtml: bool | Ref[Any] = False,
        strDefault: str | Ref[Any] = "",
    ) -> str:
        """The value of one placeholder: JETZT is date and time, HEUTE the short date, anything
        else is asked of the running application.
        """
    def GetLandRS(self) -> _RecordSet:
        """The countries of the host's postcode tables, by name."""
    def vbVal(self, strText: str) -> float:
        """The number that a text begins with, with "." as decimal point whatever the regional
        settings. Blanks are skipped; reading stops where the number cannot go on. Also reads
        "&H" and "&O".
        """
    def vbStr(self, varNumber: _Value) -> str:
        """A number's text with "." as decimal point, and with a leading blank where it is not
        negative. No 0 stands before the point. A date gives its general text.
        """
    def vbDir(self, strPath: str = "", lngAttributes: int = 0) -> str:
        """The first name that fits a path; with an empty path the next one of the search before.
        Names come in the file system's order.
        """
    def vbLike(self, strText: str, strPattern: str) -> bool:
        """Whether all of a text fits a pattern; case matters."""

class clsSalutationList:
    """The salutations of the master data."""
    @property
    def AsString(self) -> str:
        """The whole list as the host keeps it."""
    @AsString.setter
    def AsString(self, strText: str) -> None: ...
    @property
    def Count(self) -> int:
        """How many items the list has."""
    def FindByShort(self, strSalutationShort: str) -> int:
        """Finds the first item of a short form."""
    def GetItem(
        self,
        Index: int,
        strSalutationShort: _Value | Ref[Any],
        strSalutationLong: _Value | Ref[Any],
        strSalutationLetter: _Value | Ref[Any],
    ) -> None:
        """Gives the three parts of an item. Missing parts are empty; what follows a third tab is
        dropped.
        """
    def ReplaceSalutationLetterTag(
        self,
        strSalutationLetter: str,
        strTitle: str,
        strFirstName: str,
        strFamilyName: str,
    ) -> str:
        """Makes the opening line for one person: {NACHNAME} becomes title and family name,
        {VORNAME} the first name, and then every "/" a line break. Does not use the list.
        """
    @property
    def SalutationShort(self) -> _Indexed[str]:
        """An item's short form."""
    @property
    def SalutationLong(self) -> _Indexed[str]:
        """An item's address line."""
    @property
    def SalutationLetter(self) -> _Indexed[str]:
        """An item's opening line of a letter, with its tags."""
    def Clear(self) -> None:
        """Empties the list."""
    def Add(
        self,
        strSalutationShort: str,
        strSalutationLong: str,
        strSalutationLetter: str,
    ) -> None:
        """Adds an item at the end. A short form may come twice."""
    def Remove(self, Index: int) -> _Value:
        """Takes an item out; those behind it move up."""
    def SetItem(
        self,
        Index: int,
        strSalutationShort: str,
        strSalutationLong: str,
        strSalutationLetter: str,
    ) -> None:
        """Always fails, as items are texts and cannot be assigned to. Write AsString anew, or
        Remove the item and Add it again at the end.
        """

class clsPhoneList:
    """The phone entries of one address."""
    @property
    def AsString(self) -> str:
        """All entries as the host keeps them: those numbered 1 to Count. A number that was
        removed gets an empty entry.
        """
    @AsString.setter
    def AsString(self, strText: str) -> None: ...
    def Clear(self) -> None:
        """Removes all entries."""
    @property
    def Count(self) -> int:
        """How many entries there are, empty ones included."""
    def Add(self, strPhone1: str, strPhone2: str, strPhoneComment: str) -> None:
        """Adds an entry under the number Count + 1."""
    def Remove(self, Index: int) -> _Value:
        """Removes an entry. The others keep their numbers, so AsString then shows an empty entry
        in its place and loses the last; build the list anew through AsString instead.
        """
    def GetItem(
        self,
        Index: int,
        strPhone1: _Value | Ref[Any],
        strPhone2: _Value | Ref[Any],
        strPhoneComment: _Value | Ref[Any],
    ) -> None:
        """Gives the three parts of an entry. Missing parts are empty; what follows a third tab
        is dropped.
        """
    def SetItem(self, Index: int, strPhone1: str, strPhone2: str, strPhoneComment: str) -> None:
        """Stores an entry under a number, in place of what was there."""
    @property
    def Phone1(self) -> _Indexed[str]:
        """An entry's first number."""
    @property
    def Phone2(self) -> _Indexed[str]:
        """An entry's second number."""
    @property
    def PhoneComment(self) -> _Indexed[str]:
        """An entry's comment."""

class clsFileSystem:
    """Files and folders."""
    def CreateTextFile(self, strFile: str, bolOverwrite: bool = False) -> _Object:
        """Creates a text file and opens it for writing. Its text is in the system's code page,
        not in UTF-16.
        """
    def CreateFolder(self, strPath: str) -> _Object:
        """Creates one folder; the folder it lies in must exist."""
    def CopyFile(self, strSource: str, strDest: str, bolOverwrite: bool = False) -> None:
        """Copies one file, or all that fit. The first failure ends it; what was copied stays."""
    def CopyFolder(self, strSource: str, strDest: str, bolOverwrite: bool = False) -> None:
        """Copies one folder with all that is in it, or all folders that fit. Into a folder that
        exists the content is added. The first failure ends it; what was copied stays.
        """
    def MoveFile(self, strSource: str, strDest: str) -> None:
        """Moves or renames one file, or moves all that fit. Nothing is overwritten. The first
        failure ends it; what was moved stays moved.
        """
    def MoveFolder(self, strSource: str, strDest: str) -> None:
        """Moves or renames one folder, or moves all that fit. Nothing is overwritten. The first
        failure ends it; what was moved stays moved.
        """
    def DeleteFile(self, strFile: str) -> None:
        """Deletes one file, or all that fit. The first failure ends it."""
    def DeleteFolder(self, strFolder: str) -> None:
        """Deletes one folder with all that is in it, or all folders that fit. Links in it go,
        what they lead to stays. The first failure ends it.
        """
    def FileExists(self, strFile: str) -> bool:
        """Whether there is such a file. Wildcards have no meaning here."""
    def FolderExists(self, strFolder: str) -> bool:
        """Whether there is such a folder. Wildcards have no meaning here."""
    def AppendFile(self, strFileName: str, strMsg: str) -> None:
        """Adds the text and CR LF at the end of a text file, which is created where it is
        missing. A file that cannot be opened receives nothing.
        """
