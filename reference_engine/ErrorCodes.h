// Every error code the reference engine throws or reports, one range per family. The
// numbers are part of what callers and tests see: never renumber, only add within the
// owning family's range (README.md, "Error codes").
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

    // Events: 1006-1009, continued at 2400-2499.
    UnknownEventChannel = 1006, // an event channel that was never opened or is closed
    ConnectionLost = 1007,      // carried by ConnectionBroken events, not thrown
    TooManyEventChannels = 1008,

    // Diagnostics: 1010-1099. Mostly per-target errors inside results.
    EcuNotResponding = 1010,
    UnknownTarget = 1011,
    CallCancelled = 1012, // also ends asynchronous calls of any family
    BadVehicleDescription = 1013,
    UnknownIdentifier = 1014,

    // Services: 1100-1199.

    // Projects: 1200-1299.

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

    // Interfaces: 1400-1499.

    // Monitoring: 1500-1599.

    // Files: 1600-1699.

    // Flash: 1700-1799.

    // Coding: 1800-1899.

    // Measurement: 1900-1999.

    // Sequences: 2000-2099.

    // EcuOrder: 2100-2199.

    // VehicleUpdate: 2200-2299.

    // Lifecycle, continued: engine-wide conditions.
    DataRootUnavailable = 2300, // the data root cannot be created or used
};

} // namespace Varno::Kel_cpp::Reference
