// Generated from the interface description by tools/generate.py. Do not edit.
// Every error code the reference engine throws or reports, one range per family
// (interface/errors.def; README.md, "Error codes").
#pragma once

#include <cstdint>

namespace Varno::Kel_cpp::Reference {

enum ErrorCode : int32_t {
    // Every family: an operation the simulated vehicle does not have yet.
    NotSupported = 1000,

    // Lifecycle: 1001-1005, continued at 2300-2399.
    NotInitialized = 1001,
    AlreadyLocked = 1002,
    NotLocked = 1003,
    WrongLockId = 1004,
    UnknownHandle = 1005,

    // Events: 1006-1009.
    UnknownEventChannel = 1006, // an event channel that was never opened or is closed
    ConnectionLost = 1007,      // carried by ConnectionBroken events, not thrown
    TooManyEventChannels = 1008,

    // Diagnostics: 1010-1099. Mostly per-target errors inside results.
    EcuNotResponding = 1010,
    UnknownTarget = 1011,
    CallCancelled = 1012, // also ends asynchronous calls of any family
    BadVehicleDescription = 1013,
    UnknownIdentifier = 1014,

    // Services: 1100-1199. Mostly per-service errors inside results.
    UnknownService = 1100,           // the target's catalogue has no service of that name
    BadParameterValue = 1101,        // a request that cannot be written from the values given
    NegativeResponseReceived = 1102, // the unit's negative response (its code in subCode)
    NoSeedRequested = 1103,          // sendKey without a seed asked for first
    UnknownUnlock = 1104,            // releaseVehicleUnlock of a value no unlock has
    UnknownParameter = 1105,         // getParameterInfo of a parameter no service has
    UnknownCyclicJob = 1106,         // a cyclic job that was never started or is stopped

    // Projects: 1200-1299.
    UnknownProject = 1200,         // no project of that name or path in the projects folder
    ProjectUnreadable = 1201,      // its project file is missing or not valid
    ProjectNeedsConversion = 1202, // an older format: convertProject first
    DatabaseFileMissing = 1203,    // per file, inside load and unload results
    NotADatabaseFile = 1204,       // per file: the file is not a database file
    DatabaseFileNotLoaded = 1205,  // per file: unloading a file that is not loaded
    PathOutsideProject = 1206,     // per file: the path leaves the project's folder
    MissingInput = 1207,           // a record input that the operation needs is null
    UnknownSystemProperty = 1208,
    ConfigurationUnreadable = 1209, // a saved configuration file is not valid
    CannotWriteFile = 1210,         // saving failed

    // Servers: 1300-1399.
    NotLoggedIn = 1300,     // user management is on and this connection has not logged in
    ConnectionEnded = 1301, // the server or the client ended this remote connection
    UnknownRole = 1302,
    UnknownUser = 1303,
    BadServersArgument = 1304, // an empty or unusable user name, password or server name
    UserExists = 1305,
    LoginFailed = 1306,    // the user name or the password is wrong
    LoginThrottled = 1307, // too many failed logins of this user in a row
    NeedsAdministrator = 1308,
    ServerNotRunning = 1309, // also: no server listens at the address
    ServerRunning = 1310,    // started already, or another server has the address
    NotARemoteConnection = 1311,
    UnknownIdentityProvider = 1312,
    UnknownCertificate = 1313,
    NotAPublicKey = 1314,
    NeedsCryptography = 1315, // what needs a cryptographic library the engine does not have
    UsersUnreadable = 1316,   // the users file in the data root cannot be read or written
    SovdServerRunning = 1317,
    SovdServerNotRunning = 1318,
    NotLoopback = 1319, // a server would listen on an address that is not loopback
    NotRemotable =
        1320, // what cannot travel over a remote connection (a server handler, an engine object)
    ProtocolError =
        1321, // the other end of a remote connection broke the protocol or speaks another version
    ServerBusy =
        1322, // the server takes no more connections, or this connection no more pending calls

    // Interfaces: 1400-1499.
    UnknownInterface = 1400,
    UnknownResource = 1401,
    NameTaken = 1402, // an interface or resource of that name exists already
    InterfaceUnplugged = 1403,
    NoInterfaceConnected = 1404, // diagnostic calls need a connected interface
    NoWLan = 1405,
    UnknownSocketBridge = 1406,
    DoIPEntityInUse = 1407, // per-entry error of clearDoIPEcuCollection
    BadInterfaceArgument = 1408,
    UnknownDoIPEntity = 1409,
    TerminalNotOpen = 1410,
    NotDynamicInterface = 1411,  // or not found by the detection given
    ConfigurationUnsaved = 1412, // the interface configuration cannot be written

    // Monitoring: 1500-1599.
    UnknownMonitor = 1500,        // no open monitor of the operation's kind has the handle
    MonitoringLinkExists = 1501,  // a link of that name is open
    BadMonitoringArgument = 1502, // an empty link name, a second fetch value other than 0 or 1
    TraceFileUnreadable = 1503,   // not a trace file (its line in the details), or too large
    TraceFileNotOpen = 1504,      // start, stop or close on a link without a trace file
    TraceFileOpen = 1505,         // the link has a trace file open already

    // Files: 1600-1699. 1600-1608 are the sandbox's refusals: nothing was read, made or
    // changed.
    InvalidPath = 1600,            // empty, or a name no file system of the engine holds
    PathTooLong = 1601,            // over 1024 characters, or a name over 255
    ControlCharacterInPath = 1602, // NUL or another control character
    UncPath = 1603,                // \\server\share, //server, \\?\ ...
    AbsolutePath = 1604,           // begins with a slash
    DriveLetterPath = 1605,        // C:, C:\ ...
    ParentSegment = 1606,          // a .. segment
    UnknownPublicDirectory = 1607, // the first segment names no public directory
    OutsideSandbox = 1608,         // a link leads outside its public directory, or nowhere
    PathNotFound = 1609,
    PathExists = 1610,          // the target exists and the call may not replace it
    WrongKind = 1611,           // a directory where a file is wanted, or the reverse
    FileIoFailed = 1612,        // the operating system refused a read or write
    PublicDirectoryRoot = 1613, // a public directory itself cannot be deleted, moved or renamed
    BadFileArgument = 1614,     // a mode, offset or record the engine cannot use
    FileTooLarge = 1615,        // more than 4 GiB - 1 bytes in one read
    SomeEntriesFailed = 1616,   // a delete or copy outcome: the details name each entry
    TargetInsideSource = 1617,  // a directory copied or moved into itself
    EngineFolder = 1618,        // the engine's own files, which no public directory reaches

    // Flash: 1700-1799.
    FlashStepRefused = 1700,    // per session: a negative response, attached
    UnknownFlashSession = 1701, // per session: the target offers no session of that name
    FlashSessionNotRun = 1702,  // per session: an earlier session of the call failed
    FlashCheckFailed = 1703,    // per session: the unit rejected the image; update incomplete
    BadFlashArgument = 1704,    // no sessions, or no config

    // Coding: 1800-1899.
    NotCoded = 1800,        // per target: the description names no coding for it
    NotInCodingFile = 1801, // per target: the coding file has no line for it
    BadCodingFile = 1802,   // the coding file cannot be read as one
    UnknownChecksumAlgorithm = 1803,
    UnknownEcuConfiguration = 1804,
    NotInEcuConfiguration = 1805, // per target: the configuration writes nothing to it
    CodingRefused = 1806,         // per target: a negative response, attached
    BadCodingValue = 1807,        // per target: a value its identifier cannot hold

    // Measurement: 1900-1999.
    UnknownMeasurementValue = 1900,        // the target has no measurement value of that name
    UnknownMeasurementRegistration = 1901, // never registered, or unregistered

    // Sequences: 2000-2099.
    UnknownSequence = 2000,     // the description names no such sequence
    UnknownSequenceRun = 2001,  // a run never started, or ended
    BadSequenceArgument = 2002, // a parameter the sequence lacks, one missing, or too many
    SequenceStopped = 2003,     // per service: not sent, an earlier service failed
    SequenceNeedsTarget = 2004, // runSequence of a sequence that names no target

    // EcuOrder: 2100-2199.
    BadEcuOrderFile = 2100,     // not an order file: its header, a line (named), its size
    BadEcuOrder = 2101,         // an order given: a missing entry, a target empty or twice
    TargetNotInEcuOrder = 2102, // filterEcuOrder: the order has no entry for the target

    // VehicleUpdate: 2200-2299.
    BrokerUrlRefused = 2200, // not a file: URL of the sandbox (another host, a query, no path)
    BrokerSchemeNotSimulated = 2201, // http:, https:, ...: only file: brokers are simulated
    UnknownUpdatePackage = 2202,     // no package of that name is downloaded or on the broker
    PackageCorrupt = 2203,           // its payload's size or CRC-32 differs from its manifest
    BadManifest = 2204,              // a manifest that cannot be used (skipped with an event)
    PackageForVehicleUpdate = 2205,  // control-unit software given to applyUpdatePackage
    UpdateStoreUnusable = 2206,      // installed.json or last-update.json cannot be used
    UnitNotInVehicle = 2207,         // per unit: the vehicle lacks a unit that is not optional
    UnitNotUpdated = 2208,           // per unit: not run, an earlier unit failed
    UnitNotProgrammable = 2209,      // per unit: no programming, or the package is not for it
    UnitRefusedProgramming = 2210,   // per unit: session or security access refused (attached)
    BadUpdateArgument = 2211,        // a missing config
    UploadExists = 2212,             // the broker has a report of that name; overwrite is 0
    ReportTwinMissing = 2213,        // withTwin, and the report has no JSON twin beside it

    // Lifecycle, continued: engine-wide conditions.
    DataRootUnavailable = 2300, // the data root cannot be created or used
    InternalError = 2301,       // a fault of the engine, not of the call: the details say what

    // VehicleReports: 2400-2499.
    InvalidVin = 2400,            // not 17 digits and capital letters other than I, O and Q
    BadVehicleInformation = 2401, // no record, a control character, a model year out of range
    ReportExists = 2402,          // a report of that name is in the reports directory
    BadReportArgument = 2403,     // a missing result record
};

} // namespace Varno::Kel_cpp::Reference
