# Generated from the interface description by tools/generate.py. Do not edit.
"""The error codes of the engine and of kel_c, and the exception each raises."""

from __future__ import annotations

import enum


class ErrorCode(enum.IntEnum):
    """KelError.code: the library's own codes (negative) and the engine's."""

    MALFORMED_INPUT = -1001
    """Checked calls: input short or malformed."""
    NOT_AVAILABLE = -1002
    """The operation's records are not built yet."""
    NOT_SUPPORTED = 1000
    NOT_INITIALIZED = 1001
    ALREADY_LOCKED = 1002
    NOT_LOCKED = 1003
    WRONG_LOCK_ID = 1004
    UNKNOWN_HANDLE = 1005
    UNKNOWN_EVENT_CHANNEL = 1006
    """An event channel that was never opened or is closed."""
    CONNECTION_LOST = 1007
    """Carried by ConnectionBroken events, not thrown."""
    TOO_MANY_EVENT_CHANNELS = 1008
    ECU_NOT_RESPONDING = 1010
    UNKNOWN_TARGET = 1011
    CALL_CANCELLED = 1012
    """Also ends asynchronous calls of any family."""
    BAD_VEHICLE_DESCRIPTION = 1013
    UNKNOWN_IDENTIFIER = 1014
    UNKNOWN_SERVICE = 1100
    """The target's catalogue has no service of that name."""
    BAD_PARAMETER_VALUE = 1101
    """A request that cannot be written from the values given."""
    NEGATIVE_RESPONSE_RECEIVED = 1102
    """The unit's negative response (its code in subCode)."""
    NO_SEED_REQUESTED = 1103
    """SendKey without a seed asked for first."""
    UNKNOWN_UNLOCK = 1104
    """ReleaseVehicleUnlock of a value no unlock has."""
    UNKNOWN_PARAMETER = 1105
    """GetParameterInfo of a parameter no service has."""
    UNKNOWN_CYCLIC_JOB = 1106
    """A cyclic job that was never started or is stopped."""
    UNKNOWN_PROJECT = 1200
    """No project of that name or path in the projects folder."""
    PROJECT_UNREADABLE = 1201
    """Its project file is missing or not valid."""
    PROJECT_NEEDS_CONVERSION = 1202
    """An older format: convertProject first."""
    DATABASE_FILE_MISSING = 1203
    """Per file, inside load and unload results."""
    NOT_A_DATABASE_FILE = 1204
    """Per file: the file is not a database file."""
    DATABASE_FILE_NOT_LOADED = 1205
    """Per file: unloading a file that is not loaded."""
    PATH_OUTSIDE_PROJECT = 1206
    """Per file: the path leaves the project's folder."""
    MISSING_INPUT = 1207
    """A record input that the operation needs is null."""
    UNKNOWN_SYSTEM_PROPERTY = 1208
    CONFIGURATION_UNREADABLE = 1209
    """A saved configuration file is not valid."""
    CANNOT_WRITE_FILE = 1210
    """Saving failed."""
    NOT_LOGGED_IN = 1300
    """User management is on and this connection has not logged in."""
    CONNECTION_ENDED = 1301
    """The server or the client ended this remote connection."""
    UNKNOWN_ROLE = 1302
    UNKNOWN_USER = 1303
    BAD_SERVERS_ARGUMENT = 1304
    """An empty or unusable user name, password or server name."""
    USER_EXISTS = 1305
    LOGIN_FAILED = 1306
    """The user name or the password is wrong."""
    LOGIN_THROTTLED = 1307
    """Too many failed logins of this user in a row."""
    NEEDS_ADMINISTRATOR = 1308
    SERVER_NOT_RUNNING = 1309
    """Also: no server listens at the address."""
    SERVER_RUNNING = 1310
    """Started already, or another server has the address."""
    NOT_A_REMOTE_CONNECTION = 1311
    UNKNOWN_IDENTITY_PROVIDER = 1312
    UNKNOWN_CERTIFICATE = 1313
    NOT_A_PUBLIC_KEY = 1314
    NEEDS_CRYPTOGRAPHY = 1315
    """What needs a cryptographic library the engine does not have."""
    USERS_UNREADABLE = 1316
    """The users file in the data root cannot be read or written."""
    SOVD_SERVER_RUNNING = 1317
    SOVD_SERVER_NOT_RUNNING = 1318
    NOT_LOOPBACK = 1319
    """A server would listen on an address that is not loopback."""
    NOT_REMOTABLE = 1320
    """What cannot travel over a remote connection (a server handler, an engine object)."""
    PROTOCOL_ERROR = 1321
    """The other end of a remote connection broke the protocol or speaks another version."""
    SERVER_BUSY = 1322
    """The server takes no more connections, or this connection no more pending calls."""
    UNKNOWN_INTERFACE = 1400
    UNKNOWN_RESOURCE = 1401
    NAME_TAKEN = 1402
    """An interface or resource of that name exists already."""
    INTERFACE_UNPLUGGED = 1403
    NO_INTERFACE_CONNECTED = 1404
    """Diagnostic calls need a connected interface."""
    NO_W_LAN = 1405
    UNKNOWN_SOCKET_BRIDGE = 1406
    DO_IP_ENTITY_IN_USE = 1407
    """Per-entry error of clearDoIPEcuCollection."""
    BAD_INTERFACE_ARGUMENT = 1408
    UNKNOWN_DO_IP_ENTITY = 1409
    TERMINAL_NOT_OPEN = 1410
    NOT_DYNAMIC_INTERFACE = 1411
    """Or not found by the detection given."""
    CONFIGURATION_UNSAVED = 1412
    """The interface configuration cannot be written."""
    UNKNOWN_MONITOR = 1500
    """No open monitor of the operation's kind has the handle."""
    MONITORING_LINK_EXISTS = 1501
    """A link of that name is open."""
    BAD_MONITORING_ARGUMENT = 1502
    """An empty link name, a second fetch value other than 0 or 1."""
    TRACE_FILE_UNREADABLE = 1503
    """Not a trace file (its line in the details), or too large."""
    TRACE_FILE_NOT_OPEN = 1504
    """Start, stop or close on a link without a trace file."""
    TRACE_FILE_OPEN = 1505
    """The link has a trace file open already."""
    INVALID_PATH = 1600
    """Empty, or a name no file system of the engine holds."""
    PATH_TOO_LONG = 1601
    """Over 1024 characters, or a name over 255."""
    CONTROL_CHARACTER_IN_PATH = 1602
    """NUL or another control character."""
    UNC_PATH = 1603
    """\\\\server\\share, //server, \\\\?\\ ."""
    ABSOLUTE_PATH = 1604
    """Begins with a slash."""
    DRIVE_LETTER_PATH = 1605
    """C:, C:\\ ."""
    PARENT_SEGMENT = 1606
    """A .. segment."""
    UNKNOWN_PUBLIC_DIRECTORY = 1607
    """The first segment names no public directory."""
    OUTSIDE_SANDBOX = 1608
    """A link leads outside its public directory, or nowhere."""
    PATH_NOT_FOUND = 1609
    PATH_EXISTS = 1610
    """The target exists and the call may not replace it."""
    WRONG_KIND = 1611
    """A directory where a file is wanted, or the reverse."""
    FILE_IO_FAILED = 1612
    """The operating system refused a read or write."""
    PUBLIC_DIRECTORY_ROOT = 1613
    """A public directory itself cannot be deleted, moved or renamed."""
    BAD_FILE_ARGUMENT = 1614
    """A mode, offset or record the engine cannot use."""
    FILE_TOO_LARGE = 1615
    """More than 4 GiB - 1 bytes in one read."""
    SOME_ENTRIES_FAILED = 1616
    """A delete or copy outcome: the details name each entry."""
    TARGET_INSIDE_SOURCE = 1617
    """A directory copied or moved into itself."""
    ENGINE_FOLDER = 1618
    """The engine's own files, which no public directory reaches."""
    FLASH_STEP_REFUSED = 1700
    """Per session: a negative response, attached."""
    UNKNOWN_FLASH_SESSION = 1701
    """Per session: the target offers no session of that name."""
    FLASH_SESSION_NOT_RUN = 1702
    """Per session: an earlier session of the call failed."""
    FLASH_CHECK_FAILED = 1703
    """Per session: the unit rejected the image; update incomplete."""
    BAD_FLASH_ARGUMENT = 1704
    """No sessions, or no config."""
    NOT_CODED = 1800
    """Per target: the description names no coding for it."""
    NOT_IN_CODING_FILE = 1801
    """Per target: the coding file has no line for it."""
    BAD_CODING_FILE = 1802
    """The coding file cannot be read as one."""
    UNKNOWN_CHECKSUM_ALGORITHM = 1803
    UNKNOWN_ECU_CONFIGURATION = 1804
    NOT_IN_ECU_CONFIGURATION = 1805
    """Per target: the configuration writes nothing to it."""
    CODING_REFUSED = 1806
    """Per target: a negative response, attached."""
    BAD_CODING_VALUE = 1807
    """Per target: a value its identifier cannot hold."""
    UNKNOWN_MEASUREMENT_VALUE = 1900
    """The target has no measurement value of that name."""
    UNKNOWN_MEASUREMENT_REGISTRATION = 1901
    """Never registered, or unregistered."""
    UNKNOWN_SEQUENCE = 2000
    """The description names no such sequence."""
    UNKNOWN_SEQUENCE_RUN = 2001
    """A run never started, or ended."""
    BAD_SEQUENCE_ARGUMENT = 2002
    """A parameter the sequence lacks, one missing, or too many."""
    SEQUENCE_STOPPED = 2003
    """Per service: not sent, an earlier service failed."""
    SEQUENCE_NEEDS_TARGET = 2004
    """RunSequence of a sequence that names no target."""
    BAD_ECU_ORDER_FILE = 2100
    """Not an order file: its header, a line (named), its size."""
    BAD_ECU_ORDER = 2101
    """An order given: a missing entry, a target empty or twice."""
    TARGET_NOT_IN_ECU_ORDER = 2102
    """FilterEcuOrder: the order has no entry for the target."""
    BROKER_URL_REFUSED = 2200
    """Not a file: URL of the sandbox (another host, a query, no path)."""
    BROKER_SCHEME_NOT_SIMULATED = 2201
    """Http:, https:, ...: only file: brokers are simulated."""
    UNKNOWN_UPDATE_PACKAGE = 2202
    """No package of that name is downloaded or on the broker."""
    PACKAGE_CORRUPT = 2203
    """Its payload's size or CRC-32 differs from its manifest."""
    BAD_MANIFEST = 2204
    """A manifest that cannot be used (skipped with an event)."""
    PACKAGE_FOR_VEHICLE_UPDATE = 2205
    """Control-unit software given to applyUpdatePackage."""
    UPDATE_STORE_UNUSABLE = 2206
    """Installed.json or last-update.json cannot be used."""
    UNIT_NOT_IN_VEHICLE = 2207
    """Per unit: the vehicle lacks a unit that is not optional."""
    UNIT_NOT_UPDATED = 2208
    """Per unit: not run, an earlier unit failed."""
    UNIT_NOT_PROGRAMMABLE = 2209
    """Per unit: no programming, or the package is not for it."""
    UNIT_REFUSED_PROGRAMMING = 2210
    """Per unit: session or security access refused (attached)."""
    BAD_UPDATE_ARGUMENT = 2211
    """A missing config."""
    UPLOAD_EXISTS = 2212
    """The broker has a report of that name; overwrite is 0."""
    REPORT_TWIN_MISSING = 2213
    """WithTwin, and the report has no JSON twin beside it."""
    DATA_ROOT_UNAVAILABLE = 2300
    """The data root cannot be created or used."""
    INTERNAL_ERROR = 2301
    """A fault of the engine, not of the call: the details say what."""
    INVALID_VIN = 2400
    """Not 17 digits and capital letters other than I, O and Q."""
    BAD_VEHICLE_INFORMATION = 2401
    """No record, a control character, a model year out of range."""
    REPORT_EXISTS = 2402
    """A report of that name is in the reports directory."""
    BAD_REPORT_ARGUMENT = 2403
    """A missing result record."""


# The exception kind of the codes that have one (kel.errors maps the kind to its class).
RAISES: dict[int, str] = {
    1000: "NotSupported",
    1010: "NoResponse",
    1011: "UnknownTarget",
    1012: "CallCancelled",
    1102: "NegativeResponse",
    1300: "AccessDenied",
    1301: "ConnectionEnded",
    1306: "AccessDenied",
    1307: "AccessDenied",
    1308: "AccessDenied",
    1600: "Sandbox",
    1601: "Sandbox",
    1602: "Sandbox",
    1603: "Sandbox",
    1604: "Sandbox",
    1605: "Sandbox",
    1606: "Sandbox",
    1607: "Sandbox",
    1608: "Sandbox",
}
