/* Generated from the interface description by tools/generate.py. Do not edit. */
/* The error codes of kel_c: KelError.code of a failed call or of a per-item error. */
#ifndef KEL_C_ERRORS_H
#define KEL_C_ERRORS_H

/* Error codes of the library itself, in the error record of the call stream. */
#define KEL_ERROR_MALFORMED_INPUT (-1001) /* checked calls: input short or malformed */
#define KEL_ERROR_NOT_AVAILABLE (-1002)   /* the operation's records are not built yet */

/* The engine's codes. */
#define KEL_ERROR_NOT_SUPPORTED 1000
#define KEL_ERROR_NOT_INITIALIZED 1001
#define KEL_ERROR_ALREADY_LOCKED 1002
#define KEL_ERROR_NOT_LOCKED 1003
#define KEL_ERROR_WRONG_LOCK_ID 1004
#define KEL_ERROR_UNKNOWN_HANDLE 1005
#define KEL_ERROR_UNKNOWN_EVENT_CHANNEL                                                            \
    1006                               /* an event channel that was never opened or is closed */
#define KEL_ERROR_CONNECTION_LOST 1007 /* carried by ConnectionBroken events, not thrown */
#define KEL_ERROR_TOO_MANY_EVENT_CHANNELS 1008
#define KEL_ERROR_ECU_NOT_RESPONDING 1010
#define KEL_ERROR_UNKNOWN_TARGET 1011
#define KEL_ERROR_CALL_CANCELLED 1012 /* also ends asynchronous calls of any family */
#define KEL_ERROR_BAD_VEHICLE_DESCRIPTION 1013
#define KEL_ERROR_UNKNOWN_IDENTIFIER 1014
#define KEL_ERROR_UNKNOWN_SERVICE 1100 /* the target's catalogue has no service of that name */
#define KEL_ERROR_BAD_PARAMETER_VALUE                                                              \
    1101 /* a request that cannot be written from the values given */
#define KEL_ERROR_NEGATIVE_RESPONSE_RECEIVED                                                       \
    1102                                  /* the unit's negative response (its code in subCode) */
#define KEL_ERROR_NO_SEED_REQUESTED 1103  /* sendKey without a seed asked for first */
#define KEL_ERROR_UNKNOWN_UNLOCK 1104     /* releaseVehicleUnlock of a value no unlock has */
#define KEL_ERROR_UNKNOWN_PARAMETER 1105  /* getParameterInfo of a parameter no service has */
#define KEL_ERROR_UNKNOWN_CYCLIC_JOB 1106 /* a cyclic job that was never started or is stopped */
#define KEL_ERROR_UNKNOWN_PROJECT 1200 /* no project of that name or path in the projects folder   \
                                        */
#define KEL_ERROR_PROJECT_UNREADABLE 1201       /* its project file is missing or not valid */
#define KEL_ERROR_PROJECT_NEEDS_CONVERSION 1202 /* an older format: convertProject first */
#define KEL_ERROR_DATABASE_FILE_MISSING 1203    /* per file, inside load and unload results */
#define KEL_ERROR_NOT_A_DATABASE_FILE 1204      /* per file: the file is not a database file */
#define KEL_ERROR_DATABASE_FILE_NOT_LOADED 1205 /* per file: unloading a file that is not loaded   \
                                                 */
#define KEL_ERROR_PATH_OUTSIDE_PROJECT 1206     /* per file: the path leaves the project's folder */
#define KEL_ERROR_MISSING_INPUT 1207 /* a record input that the operation needs is null */
#define KEL_ERROR_UNKNOWN_SYSTEM_PROPERTY 1208
#define KEL_ERROR_CONFIGURATION_UNREADABLE 1209 /* a saved configuration file is not valid */
#define KEL_ERROR_CANNOT_WRITE_FILE 1210        /* saving failed */
#define KEL_ERROR_NOT_LOGGED_IN                                                                    \
    1300 /* user management is on and this connection has not logged in */
#define KEL_ERROR_CONNECTION_ENDED 1301 /* the server or the client ended this remote connection   \
                                         */
#define KEL_ERROR_UNKNOWN_ROLE 1302
#define KEL_ERROR_UNKNOWN_USER 1303
#define KEL_ERROR_BAD_SERVERS_ARGUMENT                                                             \
    1304 /* an empty or unusable user name, password or server name */
#define KEL_ERROR_USER_EXISTS 1305
#define KEL_ERROR_LOGIN_FAILED 1306    /* the user name or the password is wrong */
#define KEL_ERROR_LOGIN_THROTTLED 1307 /* too many failed logins of this user in a row */
#define KEL_ERROR_NEEDS_ADMINISTRATOR 1308
#define KEL_ERROR_SERVER_NOT_RUNNING 1309 /* also: no server listens at the address */
#define KEL_ERROR_SERVER_RUNNING 1310     /* started already, or another server has the address */
#define KEL_ERROR_NOT_A_REMOTE_CONNECTION 1311
#define KEL_ERROR_UNKNOWN_IDENTITY_PROVIDER 1312
#define KEL_ERROR_UNKNOWN_CERTIFICATE 1313
#define KEL_ERROR_NOT_A_PUBLIC_KEY 1314
#define KEL_ERROR_NEEDS_CRYPTOGRAPHY                                                               \
    1315 /* what needs a cryptographic library the engine does not have */
#define KEL_ERROR_USERS_UNREADABLE                                                                 \
    1316 /* the users file in the data root cannot be read or written */
#define KEL_ERROR_SOVD_SERVER_RUNNING 1317
#define KEL_ERROR_SOVD_SERVER_NOT_RUNNING 1318
#define KEL_ERROR_NOT_LOOPBACK 1319 /* a server would listen on an address that is not loopback */
#define KEL_ERROR_NOT_REMOTABLE                                                                    \
    1320 /* what cannot travel over a remote connection (a server handler, an engine object) */
#define KEL_ERROR_PROTOCOL_ERROR                                                                   \
    1321 /* the other end of a remote connection broke the protocol or speaks another version */
#define KEL_ERROR_SERVER_BUSY                                                                      \
    1322 /* the server takes no more connections, or this connection no more pending calls */
#define KEL_ERROR_UNKNOWN_INTERFACE 1400
#define KEL_ERROR_UNKNOWN_RESOURCE 1401
#define KEL_ERROR_NAME_TAKEN 1402 /* an interface or resource of that name exists already */
#define KEL_ERROR_INTERFACE_UNPLUGGED 1403
#define KEL_ERROR_NO_INTERFACE_CONNECTED 1404 /* diagnostic calls need a connected interface */
#define KEL_ERROR_NO_W_LAN 1405
#define KEL_ERROR_UNKNOWN_SOCKET_BRIDGE 1406
#define KEL_ERROR_DO_IP_ENTITY_IN_USE 1407 /* per-entry error of clearDoIPEcuCollection */
#define KEL_ERROR_BAD_INTERFACE_ARGUMENT 1408
#define KEL_ERROR_UNKNOWN_DO_IP_ENTITY 1409
#define KEL_ERROR_TERMINAL_NOT_OPEN 1410
#define KEL_ERROR_NOT_DYNAMIC_INTERFACE 1411 /* or not found by the detection given */
#define KEL_ERROR_CONFIGURATION_UNSAVED 1412 /* the interface configuration cannot be written */
#define KEL_ERROR_UNKNOWN_MONITOR 1500 /* no open monitor of the operation's kind has the handle   \
                                        */
#define KEL_ERROR_MONITORING_LINK_EXISTS 1501 /* a link of that name is open */
#define KEL_ERROR_BAD_MONITORING_ARGUMENT                                                          \
    1502 /* an empty link name, a second fetch value other than 0 or 1 */
#define KEL_ERROR_TRACE_FILE_UNREADABLE                                                            \
    1503 /* not a trace file (its line in the details), or too large */
#define KEL_ERROR_TRACE_FILE_NOT_OPEN 1504 /* start, stop or close on a link without a trace file  \
                                            */
#define KEL_ERROR_TRACE_FILE_OPEN 1505     /* the link has a trace file open already */
#define KEL_ERROR_INVALID_PATH 1600        /* empty, or a name no file system of the engine holds */
#define KEL_ERROR_PATH_TOO_LONG 1601       /* over 1024 characters, or a name over 255 */
#define KEL_ERROR_CONTROL_CHARACTER_IN_PATH 1602 /* NUL or another control character */
#define KEL_ERROR_UNC_PATH 1603                  /* \\server\share, //server, \\?\ ... */
#define KEL_ERROR_ABSOLUTE_PATH 1604             /* begins with a slash */
#define KEL_ERROR_DRIVE_LETTER_PATH 1605         /* C:, C:\ ... */
#define KEL_ERROR_PARENT_SEGMENT 1606            /* a .. segment */
#define KEL_ERROR_UNKNOWN_PUBLIC_DIRECTORY 1607  /* the first segment names no public directory */
#define KEL_ERROR_OUTSIDE_SANDBOX 1608 /* a link leads outside its public directory, or nowhere */
#define KEL_ERROR_PATH_NOT_FOUND 1609
#define KEL_ERROR_PATH_EXISTS 1610    /* the target exists and the call may not replace it */
#define KEL_ERROR_WRONG_KIND 1611     /* a directory where a file is wanted, or the reverse */
#define KEL_ERROR_FILE_IO_FAILED 1612 /* the operating system refused a read or write */
#define KEL_ERROR_PUBLIC_DIRECTORY_ROOT                                                            \
    1613 /* a public directory itself cannot be deleted, moved or renamed */
#define KEL_ERROR_BAD_FILE_ARGUMENT 1614 /* a mode, offset or record the engine cannot use */
#define KEL_ERROR_FILE_TOO_LARGE 1615    /* more than 4 GiB - 1 bytes in one read */
#define KEL_ERROR_SOME_ENTRIES_FAILED                                                              \
    1616 /* a delete or copy outcome: the details name each entry */
#define KEL_ERROR_TARGET_INSIDE_SOURCE 1617 /* a directory copied or moved into itself */
#define KEL_ERROR_ENGINE_FOLDER 1618 /* the engine's own files, which no public directory reaches  \
                                      */
#define KEL_ERROR_FLASH_STEP_REFUSED 1700 /* per session: a negative response, attached */
#define KEL_ERROR_UNKNOWN_FLASH_SESSION                                                            \
    1701 /* per session: the target offers no session of that name */
#define KEL_ERROR_FLASH_SESSION_NOT_RUN                                                            \
    1702 /* per session: an earlier session of the call failed */
#define KEL_ERROR_FLASH_CHECK_FAILED                                                               \
    1703 /* per session: the unit rejected the image; update incomplete */
#define KEL_ERROR_BAD_FLASH_ARGUMENT 1704 /* no sessions, or no config */
#define KEL_ERROR_NOT_CODED 1800          /* per target: the description names no coding for it */
#define KEL_ERROR_NOT_IN_CODING_FILE 1801 /* per target: the coding file has no line for it */
#define KEL_ERROR_BAD_CODING_FILE 1802    /* the coding file cannot be read as one */
#define KEL_ERROR_UNKNOWN_CHECKSUM_ALGORITHM 1803
#define KEL_ERROR_UNKNOWN_ECU_CONFIGURATION 1804
#define KEL_ERROR_NOT_IN_ECU_CONFIGURATION                                                         \
    1805                                /* per target: the configuration writes nothing to it */
#define KEL_ERROR_CODING_REFUSED 1806   /* per target: a negative response, attached */
#define KEL_ERROR_BAD_CODING_VALUE 1807 /* per target: a value its identifier cannot hold */
#define KEL_ERROR_UNKNOWN_MEASUREMENT_VALUE                                                        \
    1900 /* the target has no measurement value of that name */
#define KEL_ERROR_UNKNOWN_MEASUREMENT_REGISTRATION 1901 /* never registered, or unregistered */
#define KEL_ERROR_UNKNOWN_SEQUENCE 2000                 /* the description names no such sequence */
#define KEL_ERROR_UNKNOWN_SEQUENCE_RUN 2001             /* a run never started, or ended */
#define KEL_ERROR_BAD_SEQUENCE_ARGUMENT                                                            \
    2002 /* a parameter the sequence lacks, one missing, or too many */
#define KEL_ERROR_SEQUENCE_STOPPED 2003      /* per service: not sent, an earlier service failed */
#define KEL_ERROR_SEQUENCE_NEEDS_TARGET 2004 /* runSequence of a sequence that names no target */
#define KEL_ERROR_BAD_ECU_ORDER_FILE                                                               \
    2100                             /* not an order file: its header, a line (named), its size */
#define KEL_ERROR_BAD_ECU_ORDER 2101 /* an order given: a missing entry, a target empty or twice   \
                                      */
#define KEL_ERROR_TARGET_NOT_IN_ECU_ORDER                                                          \
    2102 /* filterEcuOrder: the order has no entry for the target */
#define KEL_ERROR_BROKER_URL_REFUSED                                                               \
    2200 /* not a file: URL of the sandbox (another host, a query, no path) */
#define KEL_ERROR_BROKER_SCHEME_NOT_SIMULATED                                                      \
    2201 /* http:, https:, ...: only file: brokers are simulated */
#define KEL_ERROR_UNKNOWN_UPDATE_PACKAGE                                                           \
    2202                               /* no package of that name is downloaded or on the broker */
#define KEL_ERROR_PACKAGE_CORRUPT 2203 /* its payload's size or CRC-32 differs from its manifest   \
                                        */
#define KEL_ERROR_BAD_MANIFEST 2204    /* a manifest that cannot be used (skipped with an event) */
#define KEL_ERROR_PACKAGE_FOR_VEHICLE_UPDATE                                                       \
    2205                                     /* control-unit software given to applyUpdatePackage */
#define KEL_ERROR_UPDATE_STORE_UNUSABLE 2206 /* installed.json or last-update.json cannot be used  \
                                              */
#define KEL_ERROR_UNIT_NOT_IN_VEHICLE                                                              \
    2207 /* per unit: the vehicle lacks a unit that is not optional */
#define KEL_ERROR_UNIT_NOT_UPDATED 2208 /* per unit: not run, an earlier unit failed */
#define KEL_ERROR_UNIT_NOT_PROGRAMMABLE                                                            \
    2209 /* per unit: no programming, or the package is not for it */
#define KEL_ERROR_UNIT_REFUSED_PROGRAMMING                                                         \
    2210 /* per unit: session or security access refused (attached) */
#define KEL_ERROR_BAD_UPDATE_ARGUMENT 2211 /* a missing config */
#define KEL_ERROR_UPLOAD_EXISTS 2212 /* the broker has a report of that name; overwrite is 0 */
#define KEL_ERROR_REPORT_TWIN_MISSING 2213 /* withTwin, and the report has no JSON twin beside it  \
                                            */
#define KEL_ERROR_DATA_ROOT_UNAVAILABLE 2300 /* the data root cannot be created or used */
#define KEL_ERROR_INTERNAL_ERROR                                                                   \
    2301 /* a fault of the engine, not of the call: the details say what */
#define KEL_ERROR_INVALID_VIN 2400 /* not 17 digits and capital letters other than I, O and Q */
#define KEL_ERROR_BAD_VEHICLE_INFORMATION                                                          \
    2401                             /* no record, a control character, a model year out of range */
#define KEL_ERROR_REPORT_EXISTS 2402 /* a report of that name is in the reports directory */
#define KEL_ERROR_BAD_REPORT_ARGUMENT 2403 /* a missing result record */

#endif
