/* Generated from the interface description by tools/generate.py. Do not edit. */
/* kel_c: the C interface of the Kel_cpp diagnostics engine.
 *
 * Calling rules: the engine object comes first; then the inputs, KelError** error
 * and the outputs (at engine positions 241 and above the error parameter comes
 * right after the engine object). Set *error to NULL before each call: the library
 * writes it only on failure, and then leaves every output untouched; free the error
 * record with release_KelError. Texts are NUL-terminated wchar_t strings and must not
 * be NULL (an empty string stands for no value). Lists travel as a pointer and a
 * uint32_t count; an empty list is NULL with count 0. Each export's comment says what
 * it does, who owns each pointer (see KEL_CONSUMED, KEL_KEPT and KEL_OUT below) and
 * how to free what it hands out. */
#ifndef KEL_C_H
#define KEL_C_H

/* The version of this header, the project's version in CMakeLists.txt, written here
 * by the generator (which the generated_up_to_date test keeps in step), so the header
 * stands alone and installs as one file. */
#define KEL_C_VERSION_MAJOR 0
#define KEL_C_VERSION_MINOR 1
#define KEL_C_VERSION_PATCH 0
#define KEL_C_VERSION "0.1.0"

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>
#include <wchar.h>

#if defined(_WIN32)
#if defined(KEL_C_BUILDING)
#define KEL_C_API __declspec(dllexport)
#else
#define KEL_C_API __declspec(dllimport)
#endif
#else
#define KEL_C_API __attribute__((visibility("default")))
#endif

/* Who owns a pointer parameter, marked before it; the marks expand to nothing.
 * KEL_CONSUMED  passes into the library, which frees it, also when the call fails: the
 *               caller's pointer dangles afterwards. Build it on the library's heap
 *               (allocate_Memory, duplicate_WString).
 * KEL_KEPT      read only during the call; it stays the caller's, to free or reuse.
 * KEL_OUT       where the library stores a result (an export only on success); what it
 *               receives belongs to the caller, who frees it as the comment says. */
#define KEL_CONSUMED
#define KEL_KEPT
#define KEL_OUT

#ifdef __cplusplus
namespace Varno {
namespace Kel_cpp {
class TarnApi;
}
} // namespace Varno
typedef Varno::Kel_cpp::TarnApi TarnApi;
extern "C" {
#else
/* An engine object: obtained from kel_getTarnApi, given back with releaseTarnApi. */
typedef struct TarnApi TarnApi;
#endif

/* ---- records ---- */
typedef struct MvciServerError MvciServerError;
typedef struct NegativeResponse NegativeResponse;
typedef struct KelError_struct KelError;
typedef struct NamedItem NamedItem;
typedef struct ParameterResult ParameterResult;
typedef struct ClearDtcResult ClearDtcResult;
typedef struct DtcReadConfig DtcReadConfig;
typedef struct ReadDtcResult ReadDtcResult;
typedef struct DtcResult DtcResult;
typedef struct SpecialDataGroup SpecialDataGroup;
typedef struct VariantIdentResult VariantIdentResult;
typedef struct ReadDataResult ReadDataResult;
typedef struct Target Target;
typedef struct TargetStatus TargetStatus;
typedef struct TargetFilter TargetFilter;
typedef struct ParameterInput ParameterInput;
typedef struct ServiceInput ServiceInput;
typedef struct ServiceResult ServiceResult;
typedef struct ResponseResult ResponseResult;
typedef struct RequestResult RequestResult;
typedef struct UnlockResult UnlockResult;
typedef struct ServiceInfo ServiceInfo;
typedef struct ResponseInfo ResponseInfo;
typedef struct ParameterInfo ParameterInfo;
typedef struct ConstraintInfo ConstraintInfo;
typedef struct ScaleConstraintInfo ScaleConstraintInfo;
typedef struct UnitInfo UnitInfo;
typedef struct ParameterInfoConfig ParameterInfoConfig;
typedef struct KelEvent KelEvent;
typedef struct EventReport EventReport;
typedef struct FileFilter FileFilter;
typedef struct TargetConfig TargetConfig;
typedef struct ProjectConfig ProjectConfig;
typedef struct ProjectDetails ProjectDetails;
typedef struct DbFileInfo DbFileInfo;
typedef struct SystemInfo SystemInfo;
typedef struct SystemProperty SystemProperty;
typedef struct TarnApiConfig TarnApiConfig;
typedef struct ServerConfig ServerConfig;
typedef struct Oauth2Config Oauth2Config;
typedef struct MoxConfig MoxConfig;
typedef struct TcpInfo TcpInfo;
typedef struct StatusInfo StatusInfo;
typedef struct TransmissionInfo TransmissionInfo;
typedef struct ProcessInfo ProcessInfo;
typedef struct ProcessEntry ProcessEntry;
typedef struct ProcessThread ProcessThread;
typedef struct ProcessMemory ProcessMemory;
typedef struct GlobalProtocolParameterSet GlobalProtocolParameterSet;
typedef struct GlobalProtocolParameter GlobalProtocolParameter;
typedef struct LoadDatabaseResult LoadDatabaseResult;
typedef struct InterfaceInformation InterfaceInformation;
typedef struct ResourceInformation ResourceInformation;
typedef struct InterfaceInformationItem InterfaceInformationItem;
typedef struct ScanInterfaceResult ScanInterfaceResult;
typedef struct DynInterfaceDetection DynInterfaceDetection;
typedef struct ModuleDyn ModuleDyn;
typedef struct DeviceInfo DeviceInfo;
typedef struct PhysicalLinksOnModule PhysicalLinksOnModule;
typedef struct PhysicalLink PhysicalLink;
typedef struct InterfaceConfiguration InterfaceConfiguration;
typedef struct InterfaceConfigurationEntry InterfaceConfigurationEntry;
typedef struct InterfaceProvider InterfaceProvider;
typedef struct DoIPParameter DoIPParameter;
typedef struct WLanSignalData WLanSignalData;
typedef struct SupportedInterface SupportedInterface;
typedef struct MonitoringItem MonitoringItem;
typedef struct MonitoringItemDetail MonitoringItemDetail;
typedef struct PduMonitoringItem PduMonitoringItem;
typedef struct PduMonitoringItemDetail PduMonitoringItemDetail;
typedef struct FileInfo FileInfo;
typedef struct DirectoryInfo DirectoryInfo;
typedef struct FileCopyResult FileCopyResult;
typedef struct DirectoryCopyResult DirectoryCopyResult;
typedef struct DirectoryCopyItem DirectoryCopyItem;
typedef struct PathCopyResult PathCopyResult;
typedef struct PathCopyItem PathCopyItem;
typedef struct FileReferenceResult FileReferenceResult;
typedef struct FileCopyConfig FileCopyConfig;
typedef struct DirectoryCopyConfig DirectoryCopyConfig;
typedef struct PathCopyConfig PathCopyConfig;
typedef struct UserInfo UserInfo;
typedef struct LogInOutConfig LogInOutConfig;
typedef struct TarnApiServerConfig TarnApiServerConfig;
typedef struct ServerSettings ServerSettings;
typedef struct FlashSessionInfo FlashSessionInfo;
typedef struct FlashSessionResult FlashSessionResult;
typedef struct FlashSessionsConfig FlashSessionsConfig;
typedef struct CodingStringResult CodingStringResult;
typedef struct CodingFileResult CodingFileResult;
typedef struct QuickTestResult QuickTestResult;
typedef struct EcuConfigurationResult EcuConfigurationResult;
typedef struct EcuOrderEntry EcuOrderEntry;
typedef struct VehicleUpdateConfig VehicleUpdateConfig;
typedef struct VehicleUpdateResult VehicleUpdateResult;
typedef struct UpdatePackageInfo UpdatePackageInfo;
typedef struct VehicleReportConfig VehicleReportConfig;
typedef struct VehicleData VehicleData;
typedef struct UploadReportConfiguration UploadReportConfiguration;
typedef struct VehicleInformation VehicleInformation;

/* The MVCI (ISO 22900) server error beneath an engine error.
 * Freed with release_MvciServerError, which frees everything it points to; a list of them with
 * release_MvciServerError_array. */
struct MvciServerError {
    int32_t code;            /* the MVCI server's error number */
    wchar_t* codeText;       /* the text that goes with code */
    int32_t vendorCode;      /* a second number, as the engine reports it */
    wchar_t* vendorCodeText; /* the text that goes with vendorCode */
    wchar_t* extraText;      /* further text */
    int32_t extraCode;       /* a third number */
};

/* A control unit's negative response.
 * Freed with release_NegativeResponse, which frees everything it points to; a list of them
 * with release_NegativeResponse_array. */
struct NegativeResponse {
    int32_t code;    /* the response code */
    wchar_t* text;   /* the response code's name (requestOutOfRange) */
    uint64_t value1; /* the service id of the request it answers */
    uint64_t value2; /* copied bit for bit from the engine; the simulated vehicle does not set it,
                        so nothing says what it holds */
    uint8_t* bytes;  /* the raw response bytes; NULL when there are none */
    uint32_t byteCount;
};

/* An engine error: what a failed call writes through its KelError** error, and the per-item
 * error inside result records.
 * Freed with release_KelError, which frees everything it points to; a list of them with
 * release_KelError_array. */
struct KelError_struct {
    int32_t code;                       /* the engine's error code */
    wchar_t* message;                   /* what went wrong */
    wchar_t* details;                   /* further details */
    int32_t subCode;                    /* a second error number */
    MvciServerError* mvciError;         /* the MVCI server error beneath it, or NULL */
    NegativeResponse* negativeResponse; /* the control unit's negative response, or NULL; always
                                           NULL for a failed call */
};

/* Four texts that name an item; they also lead every record with the NamedItem base.
 * Freed with release_NamedItem, which frees everything it points to; a list of them with
 * release_NamedItem_array. */
struct NamedItem {
    wchar_t* itemText1; /* the item's name */
    wchar_t* itemText2; /* second text: what it holds depends on the record that lists the item (a
                           value, an identifier, a vendor) */
    wchar_t* itemText3; /* third text, as itemText2 (a unit, a version) */
    wchar_t* itemText4; /* fourth text, as itemText2 (a description) */
};

/* One decoded parameter value. A structured value carries its members as children, so the
 * values form a tree.
 * Freed with release_ParameterResult, which frees everything it points to; a list of them with
 * release_ParameterResult_array. */
struct ParameterResult {
    wchar_t* itemText1; /* the item's name */
    wchar_t* itemText2; /* second text: what it holds depends on the record that lists the item (a
                           value, an identifier, a vendor) */
    wchar_t* itemText3; /* third text, as itemText2 (a unit, a version) */
    wchar_t* itemText4; /* fourth text, as itemText2 (a description) */
    wchar_t* text1;     /* the value, as text */
    wchar_t* text2;     /* its unit; empty when it has none */
    int32_t value1;     /* how many member values it has */
    ParameterResult** children; /* the members of a structured value, in engine order */
    uint32_t childCount;
    wchar_t* text3;  /* third text; the simulated vehicle leaves it empty, so nothing says what it
                        holds */
    KelError* error; /* the error of this parameter, or NULL */
    wchar_t* text4;  /* fourth text; the simulated vehicle leaves it empty, so nothing says what it
                        holds */
    int32_t value2;  /* its byte position in the message (services) */
    uint8_t* data;   /* the raw bytes of the value, exactly as many as the engine gives; NULL when
                        there are none */
    uint32_t dataLength;
    uint32_t value3; /* how many raw bytes it has */
    uint8_t flag;    /* a one-byte flag; the simulated vehicle leaves it 0, so nothing says what it
                        holds */
    int32_t value4;  /* a number the simulated vehicle leaves 0, so nothing says what it holds */
};

/* The outcome of clearing the DTCs of one target.
 * Freed with release_ClearDtcResult, which frees everything it points to; a list of them with
 * release_ClearDtcResult_array. */
struct ClearDtcResult {
    int32_t status;  /* the engine's status of this target */
    wchar_t* target; /* the target's name */
    KelError* error; /* the error of this target, or NULL */
};

/* Options of a DTC read; an input that the reading operations consume.
 * Freed with release_DtcReadConfig; a list of them with release_DtcReadConfig_array. */
struct DtcReadConfig {
    int32_t value; /* the DTC status mask: 0 reads every stored DTC, otherwise those whose status
                      shares a bit with it */
    uint8_t flag1; /* 1 reads the snapshot data */
    uint8_t flag2; /* 1 reads the extended data */
    uint8_t flag3; /* 1 reads the special data groups */
};

/* The DTCs read from one target.
 * Freed with release_ReadDtcResult, which frees everything it points to; a list of them with
 * release_ReadDtcResult_array. */
struct ReadDtcResult {
    int32_t status;   /* the engine's status of this target */
    wchar_t* target;  /* the target's name */
    KelError* error;  /* the error of this target, or NULL */
    DtcResult** dtcs; /* the DTCs read */
    uint32_t dtcCount;
    int32_t value; /* how many DTCs were returned; 0 from kel_readSupportedDtcs */
};

/* One diagnostic trouble code.
 * Freed with release_DtcResult, which frees everything it points to; a list of them with
 * release_DtcResult_array. */
struct DtcResult {
    int32_t code;                  /* the DTC number */
    wchar_t* text1;                /* the code as text (P0301) */
    wchar_t* text2;                /* what the code means */
    int32_t value1;                /* the ISO 14229 status byte */
    ParameterResult** parameters1; /* the snapshot data */
    uint32_t parameterCount1;
    ParameterResult** parameters2; /* the extended data */
    uint32_t parameterCount2;
    wchar_t* text3;                       /* the control unit that stores it */
    wchar_t* text4;                       /* the symptom */
    SpecialDataGroup** specialDataGroups; /* groups of special data */
    uint32_t specialDataGroupCount;
    int32_t value2; /* the severity */
};

/* One group of a DTC's special data.
 * Freed with release_SpecialDataGroup, which frees everything it points to; a list of them
 * with release_SpecialDataGroup_array. */
struct SpecialDataGroup {
    NamedItem** items; /* its entries */
    uint32_t itemCount;
};

/* The identified variant of one target.
 * Freed with release_VariantIdentResult, which frees everything it points to; a list of them
 * with release_VariantIdentResult_array. */
struct VariantIdentResult {
    wchar_t* target;  /* the target's name */
    int32_t status;   /* the engine's status of this target */
    KelError* error;  /* the error of this target, or NULL */
    wchar_t* variant; /* the variant identified */
};

/* Identification values, or data read by identifier, of one target.
 * Freed with release_ReadDataResult, which frees everything it points to; a list of them with
 * release_ReadDataResult_array. */
struct ReadDataResult {
    wchar_t* target;              /* the target's name */
    int32_t status;               /* the engine's status of this target */
    wchar_t* text;                /* the target's variant */
    KelError* error;              /* the error of this target, or NULL */
    ParameterResult** parameters; /* the values read */
    uint32_t parameterCount;
};

/* One control unit known to the project.
 * Freed with release_Target, which frees everything it points to; a list of them with
 * release_Target_array. */
struct Target {
    wchar_t* itemText1; /* the item's name */
    wchar_t* itemText2; /* second text: what it holds depends on the record that lists the item (a
                           value, an identifier, a vendor) */
    wchar_t* itemText3; /* third text, as itemText2 (a unit, a version) */
    wchar_t* itemText4; /* fourth text, as itemText2 (a description) */
    int32_t value1;     /* its diagnostic address (createSeed takes it) */
    wchar_t* text1;     /* its protocol */
    wchar_t* text2;     /* the bus it is on */
    NamedItem** items;  /* its identification values: name and identifier */
    uint32_t itemCount;
    wchar_t** names; /* further names of the target Allocated even when empty: go by nameCount. */
    uint32_t nameCount;
    wchar_t* text3; /* its part number (F187) */
    wchar_t* text4; /* its software version (F189) */
    int32_t value2; /* 1 when it responds */
    wchar_t* text5; /* its hardware version (F191) */
};

/* The status of one target.
 * Freed with release_TargetStatus, which frees everything it points to; a list of them with
 * release_TargetStatus_array. */
struct TargetStatus {
    wchar_t* target;    /* the target's name */
    wchar_t* text;      /* "responding", "not responding" or "unknown" */
    KelError* error;    /* the error of this target, or NULL */
    uint32_t values[5]; /* five numbers: address, responds, identified since start, stored DTCs,
                           supported DTCs */
    wchar_t* text2;     /* the target's variant */
};

/* A pattern that selects targets by name; a session's target filter.
 * Freed with release_TargetFilter, which frees everything it points to; a list of them with
 * release_TargetFilter_array. */
struct TargetFilter {
    wchar_t* pattern; /* the pattern, where * stands for any text */
    uint8_t flag;     /* 0 includes the targets that match, non-zero excludes them */
    int32_t value;    /* kept and returned with the filter, not interpreted */
};

/* One parameter value to send with a service. A structured parameter carries its members as
 * children, so the values form a tree.
 * Freed with release_ParameterInput, which frees everything it points to; a list of them with
 * release_ParameterInput_array. */
struct ParameterInput {
    wchar_t* name;             /* the parameter's name */
    ParameterInput** children; /* the member values of a structured parameter */
    uint32_t childCount;
    wchar_t* value; /* the value, written as text */
};

/* One service to execute, with its parameter values or its raw request bytes.
 * Freed with release_ServiceInput, which frees everything it points to; a list of them with
 * release_ServiceInput_array. */
struct ServiceInput {
    ParameterInput** parameters; /* the parameter values to send */
    uint32_t parameterCount;
    wchar_t* service; /* the service's name */
    uint8_t* data;    /* raw request bytes, sent as given */
    uint32_t dataLength;
    uint64_t value; /* copied unchanged to the engine; the simulated vehicle does not read it, so
                       nothing says what it holds */
};

/* The result of one executed service: the request as sent and every response received.
 * Freed with release_ServiceResult, which frees everything it points to; a list of them with
 * release_ServiceResult_array. */
struct ServiceResult {
    wchar_t* itemText1; /* the item's name */
    wchar_t* itemText2; /* second text: what it holds depends on the record that lists the item (a
                           value, an identifier, a vendor) */
    wchar_t* itemText3; /* third text, as itemText2 (a unit, a version) */
    wchar_t* itemText4; /* fourth text, as itemText2 (a description) */
    ResponseResult** responses; /* the responses received */
    uint32_t responseCount;
    int32_t status; /* 0 positive, 1 negative response, 2 no response, 3 not sent */
    wchar_t* text1; /* "positive response", the response code's name, "no response" or "not sent" */
    KelError* error;        /* the service's own error; NULL when it succeeded */
    RequestResult* request; /* the request as sent; NULL when the engine gives none */
    int32_t value1;         /* the service id */
};

/* One response received for a service, as bytes and as decoded parameters.
 * Freed with release_ResponseResult, which frees everything it points to; a list of them with
 * release_ResponseResult_array. */
struct ResponseResult {
    wchar_t* itemText1; /* the item's name */
    wchar_t* itemText2; /* second text: what it holds depends on the record that lists the item (a
                           value, an identifier, a vendor) */
    wchar_t* itemText3; /* third text, as itemText2 (a unit, a version) */
    wchar_t* itemText4; /* fourth text, as itemText2 (a description) */
    uint8_t flag;       /* 1 for a positive response */
    KelError* error;    /* the response's own error; NULL when none */
    uint8_t* data;      /* the response bytes; NULL and 0 when empty */
    uint32_t dataLength;
    uint64_t value1;              /* vehicle time of the response, in milliseconds */
    uint64_t value2;              /* the negative response code; 0 for a positive response */
    ParameterResult** parameters; /* the decoded response parameters */
    uint32_t parameterCount;
};

/* The request of a service as it was sent, as bytes and as decoded parameters.
 * Freed with release_RequestResult, which frees everything it points to; a list of them with
 * release_RequestResult_array. */
struct RequestResult {
    KelError* error; /* the request's own error; NULL when none */
    uint8_t* data;   /* the request bytes; NULL and 0 when empty */
    uint32_t dataLength;
    uint64_t value1; /* vehicle time of the request, in milliseconds */
    uint64_t value2; /* copied unchanged from the engine; the simulated vehicle leaves it 0, so
                        nothing says what it holds */
    ParameterResult** parameters; /* the decoded request parameters */
    uint32_t parameterCount;
};

/* The result of unlocking a vehicle: the services run for the unlock.
 * Freed with release_UnlockResult, which frees everything it points to; a list of them with
 * release_UnlockResult_array. */
struct UnlockResult {
    uint64_t value;           /* the unlock, as releaseVehicleUnlock takes it; 0: none held */
    ServiceResult** services; /* the services run for the unlock */
    uint32_t serviceCount;
};

/* One service that a target offers: its request parameters and its possible responses.
 * Freed with release_ServiceInfo, which frees everything it points to; a list of them with
 * release_ServiceInfo_array. */
struct ServiceInfo {
    wchar_t* itemText1; /* the item's name */
    wchar_t* itemText2; /* second text: what it holds depends on the record that lists the item (a
                           value, an identifier, a vendor) */
    wchar_t* itemText3; /* third text, as itemText2 (a unit, a version) */
    wchar_t* itemText4; /* fourth text, as itemText2 (a description) */
    uint8_t flag;       /* 1 when the unit would accept it now (session and security) */
    ResponseInfo** responses; /* the responses the service can give */
    uint32_t responseCount;
    ParameterInfo** parameters; /* the request parameters */
    uint32_t parameterCount;
    wchar_t* text1;    /* the UDS service */
    NamedItem** items; /* the sessions it is allowed in: name and id */
    uint32_t itemCount;
    KelError* error;    /* an error describing this service; NULL when none */
    uint32_t values[5]; /* five numbers: service id, security level, session bit mask, actuator,
                           request length (0 when variable) */
};

/* One response that a service can give, with its parameters.
 * Freed with release_ResponseInfo, which frees everything it points to; a list of them with
 * release_ResponseInfo_array. */
struct ResponseInfo {
    wchar_t* itemText1; /* the item's name */
    wchar_t* itemText2; /* second text: what it holds depends on the record that lists the item (a
                           value, an identifier, a vendor) */
    wchar_t* itemText3; /* third text, as itemText2 (a unit, a version) */
    wchar_t* itemText4; /* fourth text, as itemText2 (a description) */
    int32_t status;     /* the engine's kind of response */
    ParameterInfo** parameters; /* the response parameters */
    uint32_t parameterCount;
};

/* The description of one parameter: its texts, limits and unit. Structured parameters describe
 * their members as children.
 * Freed with release_ParameterInfo, which frees everything it points to; a list of them with
 * release_ParameterInfo_array. */
struct ParameterInfo {
    wchar_t* itemText1; /* the item's name */
    wchar_t* itemText2; /* second text: what it holds depends on the record that lists the item (a
                           value, an identifier, a vendor) */
    wchar_t* itemText3; /* third text, as itemText2 (a unit, a version) */
    wchar_t* itemText4; /* fourth text, as itemText2 (a description) */
    wchar_t* text1;     /* the constant's bytes or the default */
    wchar_t* text2;     /* its unit */
    wchar_t* text3;     /* its data type (A_ASCIISTRING, A_UINT32, A_FLOAT64, A_UNICODE2STRING,
                           A_BYTEFIELD, A_STRUCTURE) */
    int32_t value1;     /* its byte position */
    wchar_t* text4;     /* its path (Settings.Channel.Mode) */
    ParameterInfo** children; /* the member parameters of a structured parameter */
    uint32_t childCount;
    wchar_t* text5;  /* its scaling */
    wchar_t** names; /* the names of an enumeration; the block is allocated even when empty
                        Allocated even when empty: go by nameCount. */
    uint32_t nameCount;
    uint8_t flag1;   /* 1 for a constant */
    int32_t value2;  /* its byte length; 0 when variable */
    KelError* error; /* an error describing this parameter; NULL when none */
    uint8_t flag2;   /* 1 for a value the caller must give (DIDs: writable) */
    uint32_t
        values[8]; /* eight numbers: position, length, names, children, repeated, then three 0 */
    uint8_t flag3; /* 1 for a structure */
    ConstraintInfo* constraint1; /* the valid values; None when none */
    ConstraintInfo* constraint2; /* what the bytes can hold; None when none */
    wchar_t* text6;              /* the smallest value */
    wchar_t* text7;              /* the largest value */
    uint8_t flag4;               /* 1 when it repeats */
    UnitInfo* unit;              /* the value's unit; NULL when none */
};

/* A constraint on a parameter's value, made of intervals.
 * Freed with release_ConstraintInfo, which frees everything it points to; a list of them with
 * release_ConstraintInfo_array. */
struct ConstraintInfo {
    wchar_t* text1;               /* "valid" or "raw" */
    wchar_t* text2;               /* "physical", "enumeration" or "bytes" */
    uint8_t flag;                 /* 1 */
    ScaleConstraintInfo** scales; /* the intervals; NULL and 0 when none */
    uint32_t scaleCount;
};

/* One interval of a constraint.
 * Freed with release_ScaleConstraintInfo, which frees everything it points to; a list of them
 * with release_ScaleConstraintInfo_array. */
struct ScaleConstraintInfo {
    wchar_t* itemText1; /* the item's name */
    wchar_t* itemText2; /* second text: what it holds depends on the record that lists the item (a
                           value, an identifier, a vendor) */
    wchar_t* itemText3; /* third text, as itemText2 (a unit, a version) */
    wchar_t* itemText4; /* fourth text, as itemText2 (a description) */
    wchar_t* text1;     /* the lower limit */
    wchar_t* text2;     /* the upper limit */
    uint8_t flag;       /* 1 when the limits belong to the interval */
    int32_t value;      /* the raw value of a name */
};

/* The unit of a parameter's value; plain data that owns no memory.
 * Freed with release_UnitInfo; a list of them with release_UnitInfo_array. */
struct UnitInfo {
    uint32_t values[7]; /* the exponents of m, kg, s, A, K, mol, cd (two's complement) */
    uint64_t value1;    /* the factor to SI, as the bits of a double */
    uint8_t flag1;      /* 1 for a unit the engine knows */
    uint64_t value2;    /* the offset to SI, as the bits of a double */
    uint8_t flag2;      /* 1 when there is an offset */
};

/* Selects the parameter that getParameterInfo describes.
 * Freed with release_ParameterInfoConfig, which frees everything it points to; a list of them
 * with release_ParameterInfoConfig_array. */
struct ParameterInfoConfig {
    wchar_t* text1; /* the target */
    wchar_t* text2; /* the service */
    int32_t value;  /* 0 a request parameter, 1 one of the positive response */
    wchar_t* text3; /* the parameter's path */
    wchar_t* text4; /* passed unchanged; the simulated engine does not read it, so nothing says what
                       it holds */
};

/* One event of the engine, fetched from an event channel.
 * Freed with release_KelEvent, which frees everything it points to; a list of them with
 * release_KelEvent_array. */
struct KelEvent {
    wchar_t* name;   /* the event's name */
    int32_t kind;    /* what happened: its kind */
    int32_t code;    /* its code, a number */
    wchar_t* text;   /* a sentence for a person: what happened */
    KelError* error; /* the error the event carries, or NULL */
    wchar_t* detail; /* further detail */
};

/* The events fetched from an event channel, oldest first.
 * Freed with release_EventReport, which frees everything it points to; a list of them with
 * release_EventReport_array. */
struct EventReport {
    KelEvent** events; /* the events; NULL when there are none */
    uint32_t eventCount;
};

/* One file filter: a name pattern with the engine's flag and value.
 * Freed with release_FileFilter, which frees everything it points to; a list of them with
 * release_FileFilter_array. */
struct FileFilter {
    wchar_t* pattern; /* the file name pattern */
    uint8_t flag;     /* 0 includes what matches, set excludes it */
    uint32_t value; /* copied unchanged; the simulated engine does not read it, so nothing says what
                       it holds */
};

/* The configuration of one target within a project.
 * Freed with release_TargetConfig, which frees everything it points to; a list of them with
 * release_TargetConfig_array. */
struct TargetConfig {
    int32_t value;  /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    wchar_t* text1; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    wchar_t* text2; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
};

/* The configuration of one diagnostic project. itemText1 is the project's name; the other
 * members are the engine's and copied unchanged.
 * Freed with release_ProjectConfig, which frees everything it points to; a list of them with
 * release_ProjectConfig_array. */
struct ProjectConfig {
    wchar_t* itemText1; /* the item's name */
    wchar_t* itemText2; /* second text: what it holds depends on the record that lists the item (a
                           value, an identifier, a vendor) */
    wchar_t* itemText3; /* third text, as itemText2 (a unit, a version) */
    wchar_t* itemText4; /* fourth text, as itemText2 (a description) */
    FileFilter** filters1; /* the project's first file filters; nothing says which, so they keep
                              their number */
    uint32_t filterCount1;
    int32_t value0; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    TargetConfig** targets; /* the project's targets */
    uint32_t targetCount;
    FileFilter** filters2; /* the second file filters: pattern and flag, value 0; nothing says
                              which, so they keep their number */
    uint32_t filterCount2;
    wchar_t**
        strings1; /* engine texts, copied in and out with no meaning written down; the block is
                     allocated even when empty Allocated even when empty: go by stringCount1. */
    uint32_t stringCount1;
    wchar_t* text1; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    uint32_t value1; /* copied in and out; the engine gives it no meaning that is written down, so
                        it keeps its number */
    wchar_t* text2; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    wchar_t**
        strings2; /* engine texts, copied in and out with no meaning written down; the block is
                     allocated even when empty Allocated even when empty: go by stringCount2. */
    uint32_t stringCount2;
    wchar_t* text3; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    uint32_t value2; /* copied in and out; the engine gives it no meaning that is written down, so
                        it keeps its number */
    uint32_t value3; /* copied in and out; the engine gives it no meaning that is written down, so
                        it keeps its number */
    bool flags[4];   /* four engine flags, copied in and out with no meaning written down */
};

/* The details of the selected project (or of one project): its database files and users.
 * Freed with release_ProjectDetails, which frees everything it points to; a list of them with
 * release_ProjectDetails_array. */
struct ProjectDetails {
    DbFileInfo** dbFiles1; /* the database files in the project's folder */
    uint32_t dbFileCount1;
    DbFileInfo** dbFiles2; /* the database files loaded now */
    uint32_t dbFileCount2;
    wchar_t* text1;   /* the project's name */
    uint32_t value1;  /* the format of the project's files */
    wchar_t* text2;   /* the project's folder */
    uint32_t value2;  /* 1 when the project is the selected one */
    UserInfo** users; /* the project's users */
    uint32_t userCount;
};

/* One database file of a project.
 * Freed with release_DbFileInfo, which frees everything it points to; a list of them with
 * release_DbFileInfo_array. */
struct DbFileInfo {
    wchar_t* name;   /* the file's name, relative to the project's folder */
    wchar_t* path;   /* the file's full path */
    uint64_t size;   /* its size in bytes; 0 when it is missing */
    uint8_t loaded;  /* 1 when the file is loaded */
    KelError* error; /* why the file cannot be loaded; NULL when it can */
};

/* Information on the system the engine runs on.
 * Freed with release_SystemInfo, which frees everything it points to; a list of them with
 * release_SystemInfo_array. */
struct SystemInfo {
    uint32_t value1; /* the number of processors */
    uint32_t value2; /* the size of a memory page in bytes */
    wchar_t* text1;  /* the operating system's name */
    uint32_t value3; /* the width of a pointer in bits */
    wchar_t* text2;  /* the operating system's release */
    wchar_t* text3;  /* the host's name */
    wchar_t* text4;  /* the processor architecture */
};

/* One system property of the engine; a property may hold child properties, so the properties
 * form a tree, which release_SystemProperty frees whole. itemText1 is the property's full
 * name, itemText2 its label, itemText4 its unit.
 * Freed with release_SystemProperty, which frees everything it points to; a list of them with
 * release_SystemProperty_array. */
struct SystemProperty {
    wchar_t* itemText1; /* the item's name */
    wchar_t* itemText2; /* second text: what it holds depends on the record that lists the item (a
                           value, an identifier, a vendor) */
    wchar_t* itemText3; /* third text, as itemText2 (a unit, a version) */
    wchar_t* itemText4; /* fourth text, as itemText2 (a description) */
    wchar_t* text1;     /* the property's value, as text */
    wchar_t* text2;     /* the value a reset gives */
    uint32_t value1; /* copied in and out; the engine gives it no meaning that is written down, so
                        it keeps its number */
    SystemProperty** children; /* the child properties */
    uint32_t childCount;
    wchar_t* text3; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    KelError* error; /* the property's own error; NULL when none */
    wchar_t* text4; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    uint32_t value2; /* copied in and out; the engine gives it no meaning that is written down, so
                        it keeps its number */
    uint8_t* data;   /* the property's bytes; NULL and 0 when empty */
    uint32_t dataLength;
    uint32_t value3; /* copied in and out; the engine gives it no meaning that is written down, so
                        it keeps its number */
    uint8_t flag;    /* 1 when the value differs from the one a reset gives */
    uint32_t value4; /* copied in and out; the engine gives it no meaning that is written down, so
                        it keeps its number */
};

/* The engine's own configuration.
 * Freed with release_TarnApiConfig, which frees everything it points to; a list of them with
 * release_TarnApiConfig_array. */
struct TarnApiConfig {
    int32_t value1; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    uint8_t flag1;  /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    uint8_t flag2;  /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    int32_t value2; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    ServerConfig* server; /* the server configuration; NULL when none */
    uint32_t value3; /* copied in and out; the engine gives it no meaning that is written down, so
                        it keeps its number */
    uint32_t value4; /* copied in and out; the engine gives it no meaning that is written down, so
                        it keeps its number */
    uint32_t value5; /* copied in and out; the engine gives it no meaning that is written down, so
                        it keeps its number */
    uint8_t flag3; /* copied in and out; the engine gives it no meaning that is written down, so it
                      keeps its number */
    uint32_t value6; /* copied in and out; the engine gives it no meaning that is written down, so
                        it keeps its number */
    uint16_t
        value7; /* copied in and out with no meaning written down; 16 bits wide, as the engine's */
    Oauth2Config** oauth2Configs; /* the OAuth 2 configurations */
    uint32_t oauth2ConfigCount;
    wchar_t* text; /* copied in and out; the engine gives it no meaning that is written down, so it
                      keeps its number */
};

/* The server part of the engine's configuration.
 * Freed with release_ServerConfig, which frees everything it points to; a list of them with
 * release_ServerConfig_array. */
struct ServerConfig {
    wchar_t* address; /* the address the server listens on */
    uint32_t port;    /* the port it listens on */
    uint8_t enabled;  /* 1 when the server starts with the engine */
    wchar_t* name;    /* the name the server gives itself to clients */
};

/* One OAuth 2 configuration of the engine. It names a client registered with an identity
 * provider; no secret is part of it.
 * Freed with release_Oauth2Config, which frees everything it points to; a list of them with
 * release_Oauth2Config_array. */
struct Oauth2Config {
    wchar_t* issuer;   /* the identity provider's address */
    wchar_t* clientId; /* the client's identifier at the provider */
    wchar_t** scopes;  /* the scopes the engine asks for */
    uint32_t scopeCount;
    wchar_t* redirectUrl; /* where the provider sends the user back */
};

/* The engine's Mox configuration, as saveMoxConfiguration stores it.
 * Freed with release_MoxConfig, which frees everything it points to; a list of them with
 * release_MoxConfig_array. */
struct MoxConfig {
    wchar_t* text1; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    wchar_t* text2; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    wchar_t* text3; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    wchar_t* text4; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    wchar_t* text5; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    uint8_t flag1;  /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    uint8_t flag2;  /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    uint8_t flag3;  /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    uint32_t value; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    uint8_t flag4;  /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    uint8_t flag5;  /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    uint8_t flag6;  /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    wchar_t* text6; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    wchar_t* text7; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    TcpInfo* tcp;   /* the TCP settings; NULL when none */
};

/* TCP settings; plain data that owns no memory.
 * Freed with release_TcpInfo; a list of them with release_TcpInfo_array. */
struct TcpInfo {
    uint8_t value1; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    uint8_t value2; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    uint8_t value3; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    uint32_t value4; /* copied in and out; the engine gives it no meaning that is written down, so
                        it keeps its number */
    uint32_t value5; /* copied in and out; the engine gives it no meaning that is written down, so
                        it keeps its number */
    uint32_t value6; /* copied in and out; the engine gives it no meaning that is written down, so
                        it keeps its number */
};

/* The engine's status information; plain data that owns no memory.
 * Freed with release_StatusInfo; a list of them with release_StatusInfo_array. */
struct StatusInfo {
    uint64_t value1; /* the calls made on this engine object before this one */
    uint64_t value2; /* how many of them failed */
    uint64_t value3; /* milliseconds since the engine started */
    uint64_t value4; /* microseconds spent in those calls */
    uint64_t value5; /* database files loaded now */
    uint32_t value6; /* projects in the projects folder */
    uint64_t value7; /* times the status text was set */
    uint64_t value8; /* when the engine started, in milliseconds since 1970 (UTC) */
};

/* The engine's transmission information; plain data that owns no memory.
 * Freed with release_TransmissionInfo; a list of them with release_TransmissionInfo_array. */
struct TransmissionInfo {
    uint64_t value1; /* requests sent to the control units */
    uint64_t value2; /* responses received from them */
    uint64_t value3; /* request bytes sent */
    uint64_t value4; /* response bytes received */
};

/* Information on the engine's process.
 * Freed with release_ProcessInfo, which frees everything it points to; a list of them with
 * release_ProcessInfo_array. */
struct ProcessInfo {
    ProcessEntry** processes; /* one entry: the engine's own process */
    uint32_t processCount;
    uint8_t flag1; /* 1 in a 64-bit process */
    uint8_t flag2; /* 1 when the engine is initialized */
    wchar_t* text; /* the engine's status text */
};

/* One process of ProcessInfo.
 * Freed with release_ProcessEntry, which frees everything it points to; a list of them with
 * release_ProcessEntry_array. */
struct ProcessEntry {
    uint32_t value;         /* the process id */
    ProcessThread** items1; /* the process's threads */
    uint32_t itemCount1;
    wchar_t* text;          /* the process's executable */
    ProcessMemory** items2; /* the process's memory figures */
    uint32_t itemCount2;
};

/* One thread of a process.
 * Freed with release_ProcessThread, which frees everything it points to; a list of them with
 * release_ProcessThread_array. */
struct ProcessThread {
    uint32_t id;   /* the thread's id */
    wchar_t* name; /* its name; empty where the system names none */
};

/* One memory figure of a process.
 * Freed with release_ProcessMemory, which frees everything it points to; a list of them with
 * release_ProcessMemory_array. */
struct ProcessMemory {
    wchar_t* name;  /* what is counted: "resident", "virtual", "peak resident" */
    uint64_t bytes; /* its size in bytes */
};

/* One set of global protocol parameters.
 * Freed with release_GlobalProtocolParameterSet, which frees everything it points to; a list
 * of them with release_GlobalProtocolParameterSet_array. */
struct GlobalProtocolParameterSet {
    wchar_t* text1; /* the set's name */
    wchar_t* text2; /* the protocol it is for */
    wchar_t* text3; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    wchar_t* text4; /* copied in and out; the engine gives it no meaning that is written down, so it
                       keeps its number */
    GlobalProtocolParameter** parameters; /* the parameters of the set */
    uint32_t parameterCount;
};

/* One global protocol parameter: a parameter description with its value. itemText1 is its
 * name, the other NamedItem texts its label, description and unit.
 * Freed with release_GlobalProtocolParameter, which frees everything it points to; a list of
 * them with release_GlobalProtocolParameter_array. */
struct GlobalProtocolParameter {
    wchar_t* itemText1; /* the item's name */
    wchar_t* itemText2; /* second text: what it holds depends on the record that lists the item (a
                           value, an identifier, a vendor) */
    wchar_t* itemText3; /* third text, as itemText2 (a unit, a version) */
    wchar_t* itemText4; /* fourth text, as itemText2 (a description) */
    wchar_t* value;     /* the value, as text */
    wchar_t* defaultValue; /* the value the engine starts with */
    ParameterInfo** infos; /* descriptions of the parameter's members */
    uint32_t infoCount;
    wchar_t** choices; /* the values it may take; none when any value within its constraints is
                          allowed Allocated even when empty: go by choiceCount. */
    uint32_t choiceCount;
    KelError* error;              /* why the value is not valid; NULL when it is */
    ConstraintInfo** constraints; /* the limits of its value */
    uint32_t constraintCount;
    TcpInfo* tcp;    /* the TCP settings of a parameter of a TCP link; NULL otherwise */
    uint32_t value1; /* copied in and out; the engine gives it no meaning that is written down, so
                        it keeps its number */
    uint8_t flag; /* copied in and out; the engine gives it no meaning that is written down, so it
                     keeps its number */
};

/* The outcome of loading or unloading one database file.
 * Freed with release_LoadDatabaseResult, which frees everything it points to; a list of them
 * with release_LoadDatabaseResult_array. */
struct LoadDatabaseResult {
    wchar_t* text;   /* the file as given */
    uint8_t flag;    /* 1 when the file is loaded after the call */
    KelError* error; /* the file's own error; NULL when none */
};

/* A diagnostic interface (a vehicle communication interface) with its resources and vendor
 * modules. itemText1 is its name, itemText2 its long name, itemText3 its vendor and itemText4
 * a description.
 * Freed with release_InterfaceInformation, which frees everything it points to; a list of them
 * with release_InterfaceInformation_array. */
struct InterfaceInformation {
    wchar_t* itemText1; /* the item's name */
    wchar_t* itemText2; /* second text: what it holds depends on the record that lists the item (a
                           value, an identifier, a vendor) */
    wchar_t* itemText3; /* third text, as itemText2 (a unit, a version) */
    wchar_t* itemText4; /* fourth text, as itemText2 (a description) */
    ResourceInformation** resources; /* the resources on the interface */
    uint32_t resourceCount;
    uint8_t flag1; /* 1 while the interface is connected */
    uint8_t flag2; /* 1 for a dynamic interface, one found on the network by detection */
    wchar_t*
        text1; /* the kind of interface, as kel_getSupportedInterfaces names it ("D-PDU", "DoIP") */
    wchar_t* text2; /* its address: a host name or IP address, or a serial port */
    uint8_t flag3;  /* 1 while the interface is plugged in (reachable); a scan reports an error for
                       one that is not */
    InterfaceInformationItem** items; /* its vendor modules */
    uint32_t itemCount;
    uint64_t value; /* the engine's handle of the interface, never 0 once the engine knows it;
                       ignored on input */
};

/* One resource on a diagnostic interface (a protocol on a physical link); also the input of
 * kel_addResource. itemText1 is its name, itemText2 a description, itemText3 its protocol and
 * itemText4 the physical link it uses.
 * Freed with release_ResourceInformation, which frees everything it points to; a list of them
 * with release_ResourceInformation_array. */
struct ResourceInformation {
    wchar_t* itemText1; /* the item's name */
    wchar_t* itemText2; /* second text: what it holds depends on the record that lists the item (a
                           value, an identifier, a vendor) */
    wchar_t* itemText3; /* third text, as itemText2 (a unit, a version) */
    wchar_t* itemText4; /* fourth text, as itemText2 (a description) */
    uint32_t
        id; /* the engine's number of the resource on its interface, from 1; ignored on input */
    uint32_t
        pin; /* the vehicle connector pin it uses; kel_addResource sets it from its 16-bit value */
    uint8_t inUse; /* 1 while a connection uses the resource */
};

/* A vendor module of an interface (the vendor's D-PDU API module that drives it). itemText1 is
 * the module's name, itemText2 its vendor, itemText3 its version and itemText4 a description.
 * Freed with release_InterfaceInformationItem, which frees everything it points to; a list of
 * them with release_InterfaceInformationItem_array. */
struct InterfaceInformationItem {
    wchar_t* itemText1; /* the item's name */
    wchar_t* itemText2; /* second text: what it holds depends on the record that lists the item (a
                           value, an identifier, a vendor) */
    wchar_t* itemText3; /* third text, as itemText2 (a unit, a version) */
    wchar_t* itemText4; /* fourth text, as itemText2 (a description) */
};

/* The outcome of scanning the connection of one interface.
 * Freed with release_ScanInterfaceResult, which frees everything it points to; a list of them
 * with release_ScanInterfaceResult_array. */
struct ScanInterfaceResult {
    InterfaceInformation*
        interfaceInfo; /* the interface; NULL when the engine knows no interface of that name */
    KelError* error;   /* the scan's error for this interface; NULL when it succeeded */
};

/* What a dynamic interface detection looks for.
 * Freed with release_DynInterfaceDetection, which frees everything it points to; a list of
 * them with release_DynInterfaceDetection_array. */
struct DynInterfaceDetection {
    wchar_t* namePattern; /* the module names to find, * standing for any text and ? for one
                             character; empty finds every module */
    wchar_t* kind;        /* only modules of this kind ("DoIP"); empty finds every kind */
    uint8_t onlyFree;     /* 1 leaves out modules that are already connected */
};

/* A dynamically detected interface module.
 * Freed with release_ModuleDyn, which frees everything it points to; a list of them with
 * release_ModuleDyn_array. */
struct ModuleDyn {
    wchar_t* name;     /* the module's name, by which kel_connectDynInterface connects it */
    wchar_t* longName; /* its long name */
    wchar_t* vendor;   /* its vendor */
    wchar_t* kind;     /* the kind of interface ("DoIP") */
    wchar_t* address;  /* its network address */
    InterfaceInformationItem*
        vendorModule;                /* the vendor module that drives it; NULL when it has none */
    uint8_t flag1;                   /* 1 while the module is connected */
    wchar_t* serialNumber;           /* its serial number */
    wchar_t* firmware;               /* its firmware version */
    wchar_t* network;                /* the network it was found on */
    ResourceInformation** resources; /* its resources */
    uint32_t resourceCount;
    uint32_t port;   /* the TCP port it listens on */
    uint8_t flag2;   /* 1 when the module was connected for exclusive use */
    uint64_t handle; /* the engine's handle of the module, never 0 */
};

/* A device registered with the engine: one per interface the engine knows.
 * Freed with release_DeviceInfo, which frees everything it points to; a list of them with
 * release_DeviceInfo_array. */
struct DeviceInfo {
    wchar_t* text1;      /* the interface's name */
    uint32_t value1;     /* the vendor's number (USB vendor id style); 0 when unknown */
    uint32_t value2;     /* the product's number; 0 when unknown */
    wchar_t* text2;      /* the vendor */
    wchar_t* text3;      /* the serial number */
    uint32_t value3;     /* the number of resources */
    wchar_t* text4;      /* the firmware version */
    wchar_t* text5;      /* the kind of interface */
    uint32_t value4;     /* the Ethernet pin state */
    uint32_t value5;     /* the number of physical links */
    wchar_t* text6;      /* the address */
    wchar_t** protocols; /* the protocols of its resources, each once, in resource order */
    uint32_t protocolCount;
    wchar_t* text7;    /* the long name */
    wchar_t** modules; /* the names of its vendor modules */
    uint32_t moduleCount;
    wchar_t* text8;   /* a description */
    uint8_t flag;     /* 1 while connected */
    uint64_t handle;  /* the engine's handle of the interface */
    uint32_t value6;  /* 1 for a dynamic interface, 0 for a configured one */
    uint64_t value8;  /* reserved, 0; nothing says what it will hold */
    uint64_t value9;  /* reserved, 0; nothing says what it will hold */
    uint64_t value10; /* reserved, 0; nothing says what it will hold */
};

/* The physical links on one interface module.
 * Freed with release_PhysicalLinksOnModule, which frees everything it points to; a list of
 * them with release_PhysicalLinksOnModule_array. */
struct PhysicalLinksOnModule {
    wchar_t* module;      /* the module's name: the name of an interface */
    PhysicalLink** links; /* the module's physical links */
    uint32_t linkCount;
};

/* One physical link of a module (a bus line of the vehicle connector). itemText1 is its name,
 * itemText2 its type ("ISO_11898_2_DWCAN"), itemText3 the connector pins it uses and itemText4
 * a description.
 * Freed with release_PhysicalLink, which frees everything it points to; a list of them with
 * release_PhysicalLink_array. */
struct PhysicalLink {
    wchar_t* itemText1; /* the item's name */
    wchar_t* itemText2; /* second text: what it holds depends on the record that lists the item (a
                           value, an identifier, a vendor) */
    wchar_t* itemText3; /* third text, as itemText2 (a unit, a version) */
    wchar_t* itemText4; /* fourth text, as itemText2 (a description) */
    uint32_t baudrate;  /* its speed in bits per second */
    uint8_t enabled;    /* 1 when the engine may use the link */
};

/* The engine's configuration of its interfaces.
 * Freed with release_InterfaceConfiguration, which frees everything it points to; a list of
 * them with release_InterfaceConfiguration_array. */
struct InterfaceConfiguration {
    InterfaceConfigurationEntry** entries; /* one entry per configured interface */
    uint32_t entryCount;
};

/* One entry of the interface configuration: one interface.
 * Freed with release_InterfaceConfigurationEntry, which frees everything it points to; a list
 * of them with release_InterfaceConfigurationEntry_array. */
struct InterfaceConfigurationEntry {
    wchar_t* text1;              /* the interface's name; must not be empty */
    wchar_t* text2;              /* its long name */
    wchar_t* text3;              /* its vendor */
    wchar_t* text4;              /* the kind of interface */
    wchar_t* text5;              /* its address */
    uint32_t value;              /* its Ethernet pin state */
    uint8_t flag;                /* 1 when kel_connectInterfaces connects it */
    ResourceInformation** items; /* its resources */
    uint32_t itemCount;
};

/* A provider of diagnostic interfaces. itemText1 is its name, itemText2 a description,
 * itemText3 its vendor and itemText4 its version.
 * Freed with release_InterfaceProvider, which frees everything it points to; a list of them
 * with release_InterfaceProvider_array. */
struct InterfaceProvider {
    wchar_t* itemText1; /* the item's name */
    wchar_t* itemText2; /* second text: what it holds depends on the record that lists the item (a
                           value, an identifier, a vendor) */
    wchar_t* itemText3; /* third text, as itemText2 (a unit, a version) */
    wchar_t* itemText4; /* fourth text, as itemText2 (a description) */
    wchar_t* text;      /* the library through which the engine reaches the provider */
    uint32_t value;     /* its priority: lower numbers are asked first */
    uint8_t flag;       /* 1 when the provider is enabled */
};

/* The engine's default DoIP parameters.
 * Freed with release_DoIPParameter, which frees everything it points to; a list of them with
 * release_DoIPParameter_array. */
struct DoIPParameter {
    uint32_t value1;   /* the UDP port of vehicle discovery (13400) */
    uint32_t value2;   /* how long a broadcast waits for vehicle announcements, in milliseconds */
    wchar_t* text;     /* the broadcast address */
    uint32_t value3;   /* the TCP port of diagnostic connections (13400) */
    wchar_t** strings; /* the network adapters the broadcast goes out on */
    uint32_t stringCount;
};

/* The WLAN signal of an interface.
 * Freed with release_WLanSignalData, which frees everything it points to; a list of them with
 * release_WLanSignalData_array. */
struct WLanSignalData {
    uint32_t value1;  /* the signal quality in percent */
    uint32_t value2;  /* the signal strength, in dBm below 0 (60 means -60 dBm) */
    uint32_t value3;  /* the noise, in dBm below 0 */
    uint32_t value4;  /* the channel */
    uint32_t value5;  /* the frequency in MHz */
    uint64_t value6;  /* the bytes received since the interface connected */
    uint32_t value7;  /* the transmit rate in Mbit/s */
    uint32_t value8;  /* the receive rate in Mbit/s */
    uint32_t value9;  /* the retransmissions */
    uint32_t value10; /* the lost beacons */
    uint16_t value11; /* the channel width in MHz; 16 bits wide, as the engine's */
    wchar_t* text;    /* the network name (SSID) */
};

/* A kind of interface the engine supports.
 * Freed with release_SupportedInterface, which frees everything it points to; a list of them
 * with release_SupportedInterface_array. */
struct SupportedInterface {
    wchar_t*
        text1; /* the kind's name ("D-PDU", "DoIP"), as InterfaceInformation.text1 carries it */
    wchar_t* text2;  /* a description */
    wchar_t** names; /* the protocols it carries */
    uint32_t nameCount;
    uint32_t value; /* how many interfaces of the kind the engine takes at most */
    wchar_t* text3; /* the vendor module that usually drives it */
};

/* One exchange with a control unit seen by a monitoring link: the request and the unit's
 * answer, live or replayed from a trace file.
 * Freed with release_MonitoringItem, which frees everything it points to; a list of them with
 * release_MonitoringItem_array. */
struct MonitoringItem {
    wchar_t* text1; /* the control unit's name */
    uint8_t* data;  /* the request's bytes; NULL and 0 when empty */
    uint32_t dataLength;
    uint64_t value1; /* vehicle time of the request, in milliseconds */
    uint32_t value2; /* the item's number in its link, from 1; a gap means items were dropped */
    uint8_t flag1;   /* 1 when the unit answered */
    uint8_t flag2;   /* 1 when the answer is a positive response */
    uint8_t flag3;   /* 1 when the item was replayed from a trace file */
    uint32_t value3; /* the negative response code; 0 for a positive answer or none */
    wchar_t* text2;  /* where the item comes from: the link's name, or the trace file's path when
                        replayed */
    uint32_t value4; /* the request's service id (its first byte); 0 for an empty request */
    MonitoringItemDetail* detail; /* the unit's answer; NULL when it stayed silent */
};

/* The answer part of a MonitoringItem.
 * Freed with release_MonitoringItemDetail, which frees everything it points to; a list of them
 * with release_MonitoringItemDetail_array. */
struct MonitoringItemDetail {
    uint8_t* response; /* the answer's bytes */
    uint32_t responseLength;
    wchar_t* text; /* the answer for reading: "positive response" or "negative response 0x31:
                      requestOutOfRange" */
};

/* One protocol data unit seen by a PDU monitor: a request sent to a control unit or the unit's
 * response.
 * Freed with release_PduMonitoringItem, which frees everything it points to; a list of them
 * with release_PduMonitoringItem_array. */
struct PduMonitoringItem {
    uint32_t value1; /* the direction: 1 request (tester to unit), 2 response (unit to tester) */
    uint8_t* data;   /* the unit's bytes as sent; NULL and 0 when empty */
    uint32_t dataLength;
    PduMonitoringItemDetail* detail; /* where the unit stands in the traffic */
    wchar_t* text1;                  /* the control unit's name */
    wchar_t* text2;                  /* the direction as a word: "request" or "response" */
    uint64_t value2;                 /* vehicle time of the exchange, in milliseconds */
    wchar_t* text3;                  /* the bytes as spaced hex digits, "19 02 FF" */
};

/* Where a PduMonitoringItem stands in the traffic.
 * Freed with release_PduMonitoringItemDetail; a list of them with
 * release_PduMonitoringItemDetail_array. */
struct PduMonitoringItemDetail {
    uint64_t
        sequence; /* the item's number in its monitor, from 1; a gap means items were dropped */
    uint64_t
        exchange; /* the exchange's number on the vehicle: a request and its response share it */
};

/* A file in the engine's file system.
 * Freed with release_FileInfo; a list of them with release_FileInfo_array. */
struct FileInfo {
    wchar_t* name;   /* the entry's name */
    KelError* error; /* the entry's own error; NULL when none */
    uint8_t flag;    /* 1 when the entry is read-only */
    uint32_t value1; /* attributes: 0x01 read-only, 0x02 hidden (a leading dot), 0x10 directory,
                        0x400 reached through a link */
    wchar_t* text1;  /* the engine path */
    wchar_t* text2;  /* last write time in UTC (2026-11-22T07:42:00Z) */
    uint64_t value2; /* the size in bytes */
    uint64_t value3; /* last write time in milliseconds since 1970 */
};

/* A directory with its files and, recursively, its sub-directories. Given as input it carries
 * its entry members and its files only.
 * Freed with release_DirectoryInfo, which frees everything it points to; a list of them with
 * release_DirectoryInfo_array. */
struct DirectoryInfo {
    wchar_t* name;    /* the entry's name */
    KelError* error;  /* the entry's own error; NULL when none */
    uint8_t flag;     /* 1 when the entry is read-only */
    uint32_t value1;  /* attributes: 0x01 read-only, 0x02 hidden (a leading dot), 0x10 directory,
                         0x400 reached through a link */
    wchar_t* text1;   /* the engine path */
    wchar_t* text2;   /* last write time in UTC (2026-11-22T07:42:00Z) */
    FileInfo** files; /* the directory's files */
    uint32_t fileCount;
    DirectoryInfo** directories; /* the sub-directories; not read from input */
    uint32_t directoryCount;
    uint8_t flag2; /* 1 when the contents were read (not for the sub-directories of a one-level
                      read, links, or below 64 levels); not read from input */
};

/* The outcome of copying one file.
 * Freed with release_FileCopyResult, which frees everything it points to; a list of them with
 * release_FileCopyResult_array. */
struct FileCopyResult {
    int32_t value1;  /* 0 copied, 1 not */
    wchar_t* text;   /* the source as given */
    KelError* error; /* the copy's own error; NULL when none */
    FileInfo* file;  /* the copied file; NULL when none */
    int32_t value2;  /* the index in the configuration's list */
};

/* The outcome of copying one directory.
 * Freed with release_DirectoryCopyResult, which frees everything it points to; a list of them
 * with release_DirectoryCopyResult_array. */
struct DirectoryCopyResult {
    int32_t value1;  /* 0 copied whole, 1 some files failed (the error lists them), 2 not copied */
    wchar_t* text;   /* the source as given */
    KelError* error; /* the copy's own error; NULL when none */
    DirectoryCopyItem* directory; /* the nested directory result; NULL when none */
};

/* What copying one directory did: where from and to, how much, and every file that failed,
 * each with its own error.
 * Freed with release_DirectoryCopyItem, which frees everything it points to; a list of them
 * with release_DirectoryCopyItem_array. */
struct DirectoryCopyItem {
    wchar_t* source;           /* the directory copied */
    wchar_t* target;           /* the copy */
    uint32_t files;            /* files copied */
    uint32_t directories;      /* directories created */
    uint64_t bytes;            /* bytes copied */
    FileCopyResult** failures; /* one result per file that failed; NULL when none */
    uint32_t failureCount;
};

/* The outcome of copying one path.
 * Freed with release_PathCopyResult, which frees everything it points to; a list of them with
 * release_PathCopyResult_array. */
struct PathCopyResult {
    int32_t value1;     /* 0 copied, 1 not */
    KelError* error;    /* the copy's own error; NULL when none */
    int32_t value2;     /* 0 a file, 1 a directory */
    PathCopyItem* item; /* the nested record; NULL when none */
};

/* One entry of a path copy: the source and target of a file or directory and its size.
 * Freed with release_PathCopyItem, which frees everything it points to; a list of them with
 * release_PathCopyItem_array. */
struct PathCopyItem {
    wchar_t* source; /* the entry copied */
    wchar_t* target; /* its copy */
    uint64_t size;   /* the file's size in bytes; 0 for a directory */
};

/* The references of one file.
 * Freed with release_FileReferenceResult, which frees everything it points to; a list of them
 * with release_FileReferenceResult_array. */
struct FileReferenceResult {
    wchar_t** references; /* the file's references */
    uint32_t referenceCount;
    KelError* error; /* the lookup's own error; NULL when none */
};

/* What copyFiles and copyProjectWithFilters copy: files into one directory.
 * Freed with release_FileCopyConfig, which frees everything it points to; a list of them with
 * release_FileCopyConfig_array. */
struct FileCopyConfig {
    wchar_t** files; /* the files to copy; copyProjectWithFilters does not read them */
    uint32_t fileCount;
    wchar_t* target;   /* the directory the copies go into */
    uint8_t overwrite; /* replace files that exist at the target */
};

/* What copyDirectories copies: directories into one directory.
 * Freed with release_DirectoryCopyConfig, which frees everything it points to; a list of them
 * with release_DirectoryCopyConfig_array. */
struct DirectoryCopyConfig {
    wchar_t** directories; /* the directories to copy, each into target under its own name */
    uint32_t directoryCount;
    wchar_t* target;   /* the directory the copies go into */
    uint8_t overwrite; /* replace files that exist at the target */
    uint8_t recursive; /* copy sub-directories too, not only each directory's files */
    wchar_t* pattern;  /* only files whose names match (* and ?); empty for every file */
};

/* What copyPath copies: one file or directory tree to a new path.
 * Freed with release_PathCopyConfig, which frees everything it points to; a list of them with
 * release_PathCopyConfig_array. */
struct PathCopyConfig {
    wchar_t* source;   /* the file or directory to copy */
    wchar_t* target;   /* the path of the copy itself, not its parent */
    uint8_t overwrite; /* replace files that exist at the target */
};

/* A user of the engine's server. The password is never handed out; the engine keeps only a
 * salted hash of it.
 * Freed with release_UserInfo, which frees everything it points to; a list of them with
 * release_UserInfo_array. */
struct UserInfo {
    wchar_t* name;  /* the user's name */
    wchar_t* text;  /* the name of the user's role ("operator", "administrator") */
    uint32_t value; /* the user's role: 1 operator, 2 administrator */
};

/* What logIn and logOut pass to the engine: who logs in or out, and for logIn the password.
 * The password never comes back, is never recorded and never traced.
 * Freed with release_LogInOutConfig, which frees everything it points to; a list of them with
 * release_LogInOutConfig_array. */
struct LogInOutConfig {
    wchar_t* user;     /* the user's name; for logOut, empty means whoever is logged in */
    wchar_t* password; /* the user's password (logIn); logOut does not read it */
};

/* The configuration of the engine's server.
 * Freed with release_TarnApiServerConfig, which frees everything it points to; a list of them
 * with release_TarnApiServerConfig_array. */
struct TarnApiServerConfig {
    UserInfo** users; /* the server's users, by name */
    uint32_t userCount;
    uint8_t flag;    /* 1 while the server's user management is on */
    uint32_t value1; /* the number of remote connections now */
    wchar_t* text1;  /* where the server listens; empty while it is stopped */
    wchar_t* text2;  /* where the SOVD server listens; empty while it is stopped */
    FileFilter**
        filters; /* the file filters of the server's clients; the simulated server has none */
    uint32_t filterCount;
    wchar_t* text3;    /* the name of the outside identity provider */
    wchar_t* text4;    /* the identity provider's login address, without a login's state */
    UserInfo** users2; /* the users logged in now, one entry per login */
    uint32_t userCount2;
    uint16_t value2; /* failed logins of one user before the engine throttles; 16 bits wide, as the
                        engine's */
};

/* The settings of the engine's server; plain data that owns no memory.
 * Freed with release_ServerSettings; a list of them with release_ServerSettings_array. */
struct ServerSettings {
    uint8_t flag;    /* 1 while the server runs */
    uint32_t value1; /* the number of remote connections now */
    uint32_t value2; /* the number of users */
    uint32_t value3; /* 1 while the SOVD server runs */
};

/* One flash session a target offers: the software it installs and what installing it takes.
 * Freed with release_FlashSessionInfo, which frees everything it points to; a list of them
 * with release_FlashSessionInfo_array. */
struct FlashSessionInfo {
    wchar_t* name;        /* the session's name, as executeFlashSessions takes it */
    wchar_t* target;      /* the target it flashes */
    wchar_t* description; /* what the session installs, for a person */
    wchar_t* version;     /* the software version the target reports after it */
    uint64_t size;        /* the bytes the session downloads into the target */
    uint32_t duration;    /* how long it is expected to take, in milliseconds */
    uint32_t level;       /* the security level the target must have unlocked */
};

/* The outcome of one flash session, or how far it has got in an asynchronous report.
 * Freed with release_FlashSessionResult, which frees everything it points to; a list of them
 * with release_FlashSessionResult_array. */
struct FlashSessionResult {
    wchar_t* name;   /* the session's name */
    wchar_t* target; /* the target flashed */
    int32_t status;  /* 0 flashed, 1 running (a report before the end), 2 failed, 3 not run */
    wchar_t* versionBefore; /* the software version the target reported before the session */
    wchar_t* versionAfter;  /* the version it reports now; empty while an update is incomplete */
    uint64_t size;          /* the bytes to download */
    uint64_t transferred;   /* the bytes downloaded so far */
    uint32_t progress;      /* per cent done, 0 to 100 */
    uint32_t duration;      /* the milliseconds the session has taken so far */
    KelError* error;        /* why the session failed or was not run; NULL when it did not */
};

/* What executeFlashSessionsConfig runs; an input that it consumes.
 * Freed with release_FlashSessionsConfig, which frees everything it points to; a list of them
 * with release_FlashSessionsConfig_array. */
struct FlashSessionsConfig {
    wchar_t* target;    /* the target to flash */
    wchar_t** sessions; /* the sessions to run, by name, in this order */
    uint32_t sessionCount;
    uint32_t blockLength; /* the largest block to transfer at once in bytes; 0: as large as the
                             target takes */
    uint8_t stopOnError; /* 1: a failed session leaves the later ones not run; 0: they run anyway */
};

/* The coding of one target.
 * Freed with release_CodingStringResult, which frees everything it points to; a list of them
 * with release_CodingStringResult_array. */
struct CodingStringResult {
    wchar_t* target;     /* the target's name */
    int32_t status;      /* 0 read, 1 silent ECU, 2 unknown target, 3 refused or not coded */
    wchar_t* identifier; /* the data identifier the coding is kept in, as hex digits */
    wchar_t* coding;     /* the coding as text */
    uint8_t* data;       /* the coding's raw bytes; NULL when none were read */
    uint32_t dataLength;
    KelError* error; /* the error of this target, or NULL */
};

/* What writing a coding file did to one target.
 * Freed with release_CodingFileResult, which frees everything it points to; a list of them
 * with release_CodingFileResult_array. */
struct CodingFileResult {
    wchar_t* target; /* the target's name */
    int32_t status;  /* 0 written and read back, 1 silent ECU, 2 unknown target, 3 refused or not in
                        the file */
    wchar_t* written; /* the coding the file gives for the target, as text */
    wchar_t* coding;  /* the coding read back after writing, as text */
    uint8_t* data;    /* the raw bytes read back; NULL when none were read */
    uint32_t dataLength;
    uint8_t verified; /* 1 when what was read back is what was written */
    KelError* error;  /* the error of this target, or NULL */
};

/* The quick test of one target: its variant and its DTCs, read in one pass.
 * Freed with release_QuickTestResult, which frees everything it points to; a list of them with
 * release_QuickTestResult_array. */
struct QuickTestResult {
    wchar_t* target;    /* the target's name */
    int32_t status;     /* 0 tested, 1 silent ECU, 2 unknown target, 3 refused */
    wchar_t* variant;   /* the variant identified; empty when none was */
    uint8_t identified; /* 1 when the variant was identified */
    DtcResult**
        dtcs; /* the DTCs read, as readDtcs gives them; dtcCount is the target's DTC count */
    uint32_t dtcCount;
    KelError* error; /* the error of this target, or NULL */
};

/* What applying an ECU configuration did to one target.
 * Freed with release_EcuConfigurationResult, which frees everything it points to; a list of
 * them with release_EcuConfigurationResult_array. */
struct EcuConfigurationResult {
    wchar_t* target;        /* the target's name */
    wchar_t* configuration; /* the configuration applied */
    int32_t status;   /* 0 applied, 1 silent ECU, 2 unknown target, 3 refused or not part of the
                         configuration */
    uint32_t written; /* the values written to the target */
    KelError* error;  /* the error of this target, or NULL */
};

/* One control unit's place in an ECU order, the order in which a vehicle update visits the
 * units.
 * Freed with release_EcuOrderEntry, which frees everything it points to; a list of them with
 * release_EcuOrderEntry_array. */
struct EcuOrderEntry {
    wchar_t* target;  /* the unit's name */
    wchar_t* bus;     /* the bus it is reached on, as the vehicle description names it */
    uint32_t address; /* its diagnostic address */
    uint8_t gateway;  /* 1 for the gateway, through which the other units are reached */
    uint8_t optional; /* 1: the vehicle may lack the unit; an update then skips it instead of
                         failing it */
};

/* What a vehicle update installs, and how it goes on after a failure. Handed out by
 * createVehicleUpdateConfig; an input that updateVehicle and performVehicleUpdate consume.
 * Freed with release_VehicleUpdateConfig, which frees everything it points to; a list of them
 * with release_VehicleUpdateConfig_array. */
struct VehicleUpdateConfig {
    wchar_t**
        targets; /* the units the update covers; it visits them in ECU order, not in this one */
    uint32_t targetCount;
    UpdatePackageInfo** packages; /* the packages to install, by name and version, at most one per
                                     unit; a covered unit without one is left as it is */
    uint32_t packageCount;
    uint8_t stopOnError;  /* 1: once a unit fails, the later units are left untouched; 0: they are
                             updated all the same */
    uint8_t force;        /* 1: also install a package on a unit that already runs its version */
    uint32_t blockLength; /* the largest block to transfer at once in bytes; 0: as large as each
                             unit takes */
};

/* What a vehicle update did to one unit, or how far it has got in an asynchronous report.
 * Freed with release_VehicleUpdateResult, which frees everything it points to; a list of them
 * with release_VehicleUpdateResult_array. */
struct VehicleUpdateResult {
    wchar_t* target; /* the unit's name */
    int32_t status;  /* 0 updated, 1 running (a report before the end), 2 failed, 3 not run
                        (cancelled, or left after a failure), 4 up to date (nothing to install), 5
                        absent (an optional unit the vehicle lacks) */
    wchar_t*
        package; /* the name of the package installed; empty when none was chosen for the unit */
    wchar_t* versionBefore;   /* the software version the unit reported before the update */
    wchar_t* versionAfter;    /* the version it reports now; empty while its update is incomplete */
    uint32_t position;        /* the unit's place in the ECU order, from 1 */
    uint32_t progress;        /* per cent of this unit's update done, 0 to 100 */
    uint32_t overallProgress; /* per cent of the whole update done, 0 to 100 */
    uint32_t duration; /* the milliseconds of vehicle time this unit's update has taken so far */
    KelError* error;   /* why the unit failed or was not run; NULL when it did not */
};

/* An update package: software for control units, or for a component of the engine, with the
 * checksum of its payload.
 * Freed with release_UpdatePackageInfo, which frees everything it points to; a list of them
 * with release_UpdatePackageInfo_array. */
struct UpdatePackageInfo {
    wchar_t* name;        /* the package's name */
    wchar_t* version;     /* the software version it installs */
    wchar_t* description; /* what it brings, for a person */
    uint32_t kind; /* 1 control-unit software (installed by a vehicle update), 2 a component of the
                      engine (installed by applyUpdatePackage or autoUpdate) */
    wchar_t** targets; /* the units it is for (kind 1), or the one component it replaces (kind 2) */
    uint32_t targetCount;
    uint64_t size;     /* the payload's bytes */
    wchar_t* checksum; /* the payload's checksum as its manifest gives it: "crc32:" and eight hex
                          digits */
    wchar_t* location; /* where it lies: its folder in the sandbox once downloaded, else its folder
                          on the broker */
    int32_t state;     /* 0 offered by the broker, 1 downloaded, 2 installed */
};

/* What createVehicleReport reads and writes; an input that it consumes.
 * Freed with release_VehicleReportConfig, which frees everything it points to; a list of them
 * with release_VehicleReportConfig_array. */
struct VehicleReportConfig {
    wchar_t* name;    /* the report's file name, without extension; empty: "vehicle-<VIN>-<time>" */
    wchar_t* title;   /* the report's heading; empty: "Vehicle report" */
    wchar_t* comment; /* a note of the workshop's, printed under the heading */
    wchar_t** targets; /* the units to report on; none: every unit of the vehicle */
    uint32_t targetCount;
    uint8_t identification; /* 1: read and list each unit's identification values */
    uint8_t dtcs;           /* 1: read and list each unit's DTCs */
};

/* One control unit of the vehicle as it is now. getVehicleData hands out one per unit, each
 * with the vehicle's VIN and model, so that every entry stands alone.
 * Freed with release_VehicleData, which frees everything it points to; a list of them with
 * release_VehicleData_array. These are the routines of ScaleConstraintInfo, whose record
 * begins with the same wide strings and owns nothing else either. */
struct VehicleData {
    wchar_t* vin; /* the vehicle identification number the vehicle reports; empty when no unit gives
                     it */
    wchar_t* model;           /* the vehicle's model, from the selected vehicle information */
    wchar_t* target;          /* the unit's name */
    wchar_t* variant;         /* the variant the unit identifies as; empty when it is silent */
    wchar_t* softwareVersion; /* the software version it reports; empty when it is silent or its
                                 update is incomplete */
    wchar_t* bus;             /* the bus it is reached on */
    uint32_t address;         /* its diagnostic address */
    int32_t status;           /* 0 answered, 1 silent */
    uint32_t dtcCount;        /* the DTCs it stores now; 0 when it is silent */
};

/* Where uploadReport copies a report, and what the broker's upload log records of it; an input
 * that it consumes.
 * Freed with release_UploadReportConfiguration, which frees everything it points to; a list of
 * them with release_UploadReportConfiguration_array. These are the routines of
 * ScaleConstraintInfo, whose record begins with the same wide strings and owns nothing else
 * either. */
struct UploadReportConfiguration {
    wchar_t*
        reportFile; /* the report, as createVehicleReport or createVehicleUpdateReport named it */
    wchar_t*
        folder; /* the broker's folder to copy it into, relative to the broker; empty: "reports" */
    wchar_t* name; /* the name it gets there; empty: the report's own name */
    wchar_t*
        vin; /* the vehicle it belongs to, for the upload log; empty: the VIN the report names */
    wchar_t* user;     /* who uploads it, for the upload log */
    wchar_t* comment;  /* a note for the upload log */
    uint8_t overwrite; /* 1: replace a report of the same name; 0: refuse to */
    uint8_t withTwin;  /* 1: also copy the report's JSON twin */
};

/* The vehicle the engine works on, as the workshop selected it; reports carry it.
 * Freed with release_VehicleInformation, which frees everything it points to; a list of them
 * with release_VehicleInformation_array. */
struct VehicleInformation {
    wchar_t* vin; /* the vehicle identification number: 17 digits and capital letters other than I,
                     O and Q */
    wchar_t* model;        /* the vehicle's model */
    uint32_t modelYear;    /* the model year; 0 when not known */
    uint32_t mileage;      /* the odometer reading in kilometres */
    wchar_t* licensePlate; /* the registration plate; may be empty */
    wchar_t** equipment;   /* the vehicle's equipment codes */
    uint32_t equipmentCount;
};

/* ---- engine objects ---- */
/* Registers the local engine object and returns its address, the `api` of every export.
 * Every kel_getTarnApi is matched by one releaseTarnApi; getting the same engine object
 * twice returns the same address and counts two uses. */
KEL_C_API TarnApi* kel_getTarnApi(void);
/* The same for a remote connection to the engine object whose engine handle (kel_getHandle)
 * is `handle`: the same connection again while it lives. An address, as
 * kel_connectRemoteServer hands out, is no handle (error 1005). After an error it returns
 * NULL and *error holds the error record (free it with release_KelError). */
KEL_C_API TarnApi* kel_getRemoteConnectionByHandle(uint64_t handle, KelError** error);
/* Gives back one use of an engine object; the last one lets the library's reference go.
 * NULL and addresses never handed out are ignored. */
KEL_C_API void releaseTarnApi(TarnApi* api);

/* ---- memory ----
 * Everything the library hands out comes from its C heap and goes back through a
 * release_* function or release_Memory. Input records that an export consumes must be
 * built on the same heap, with allocate_Memory and duplicate_WString. */
/* malloc on the library's heap; NULL when the heap is exhausted. */
KEL_C_API void* allocate_Memory(size_t size);
/* Copies of s on the library's heap, NULL for NULL; s stays the caller's. */
KEL_C_API char* duplicate_String(KEL_KEPT const char* s);
KEL_C_API wchar_t* duplicate_WString(KEL_KEPT const wchar_t* s);
/* Frees one block of the library's heap: a string or buffer it handed out; NULL is allowed. */
KEL_C_API void release_Memory(KEL_CONSUMED void* p);
/* Frees a string list that an export handed out: its `count` strings (NULL entries are
 * skipped), then the block. `count` is the uint32_t count of the export, widened; NULL is
 * allowed. */
KEL_C_API void release_StringArray(KEL_CONSUMED wchar_t** ptr, uint64_t count);

/* ---- calls by number over a byte stream (OTX runtimes, Python) ----
 * kel_call reads the arguments of operation `operation` from `input` (kept) and hands out
 * a result stream in *outStream with its size in *outSize: a status byte (1 success, 0
 * engine error), then the results or the error record. Fetch it with kel_call_result,
 * which copies it into `destination` (at least *outSize bytes), frees it and returns
 * `destination`; a second call on the same stream copies nothing. `handle` 0 is the local
 * engine; any other value is an engine handle (kel_getHandle, not an address), and the call
 * goes to the remote connection that kel_getRemoteConnectionByHandle gives for it. When the
 * engine rejects the handle, every operation answers status 0 with the engine's error.
 * Unknown numbers leave the outputs alone. */
KEL_C_API void kel_call(uint64_t handle, int32_t operation, KEL_KEPT const void* input,
                        KEL_OUT void** outStream, KEL_OUT uint64_t* outSize);
KEL_C_API void* kel_call_result(KEL_CONSUMED void* stream, KEL_OUT void* destination);

/* py_call: the same operations for a Python extension: no status byte, the error record
 * as the whole result with return value -1; 0 on success, or the 32-bit result of the
 * operations that return one. `api` NULL is the local engine. The result buffer
 * (*outBuffer, *outSize bytes) goes back through py_result, which copies `size` bytes to
 * `destination` and frees it. Unknown numbers return 0 and leave the outputs alone. */
KEL_C_API int32_t py_call(TarnApi* api, int32_t operation, uint64_t reserved,
                          KEL_KEPT const void* input, KEL_OUT uint32_t* outSize,
                          KEL_OUT void** outBuffer);
KEL_C_API void py_result(KEL_OUT void* destination, int32_t size, KEL_CONSUMED void* buffer);

/* Bounds-checked forms, additions of this library: they take the input's size and
 * answer input that is short or malformed (a count running past the end, a string
 * without NUL, records nested more than 256 levels deep) with an error record of code
 * KEL_ERROR_MALFORMED_INPUT instead of reading past the buffer or exhausting the stack.
 * The engine is not called then. Ownership as in kel_call and py_call. */
KEL_C_API void kel_call_checked(uint64_t handle, int32_t operation, KEL_KEPT const void* input,
                                uint64_t inputSize, KEL_OUT void** outStream,
                                KEL_OUT uint64_t* outSize);
KEL_C_API int32_t py_call_checked(TarnApi* api, int32_t operation, uint64_t reserved,
                                  KEL_KEPT const void* input, uint64_t inputSize,
                                  KEL_OUT uint32_t* outSize, KEL_OUT void** outBuffer);

/* The error codes, the library's own (KEL_ERROR_MALFORMED_INPUT, KEL_ERROR_NOT_AVAILABLE)
 * and the engine's, are in kel_c_errors.h. */
#include "kel_c_errors.h"

/* ---- release functions ----
 * Each frees one record with everything it points to; _array frees a list that an
 * export handed out, taking its uint32_t count widened to uint64_t. NULL is allowed. */
KEL_C_API void release_MvciServerError(KEL_CONSUMED MvciServerError* ptr);
KEL_C_API void release_MvciServerError_array(KEL_CONSUMED MvciServerError** ptr, uint64_t count);
KEL_C_API void release_NegativeResponse(KEL_CONSUMED NegativeResponse* ptr);
KEL_C_API void release_NegativeResponse_array(KEL_CONSUMED NegativeResponse** ptr, uint64_t count);
KEL_C_API void release_KelError(KEL_CONSUMED KelError* ptr);
KEL_C_API void release_KelError_array(KEL_CONSUMED KelError** ptr, uint64_t count);
KEL_C_API void release_NamedItem(KEL_CONSUMED NamedItem* ptr);
KEL_C_API void release_NamedItem_array(KEL_CONSUMED NamedItem** ptr, uint64_t count);
KEL_C_API void release_ParameterResult(KEL_CONSUMED ParameterResult* ptr);
KEL_C_API void release_ParameterResult_array(KEL_CONSUMED ParameterResult** ptr, uint64_t count);
KEL_C_API void release_ClearDtcResult(KEL_CONSUMED ClearDtcResult* ptr);
KEL_C_API void release_ClearDtcResult_array(KEL_CONSUMED ClearDtcResult** ptr, uint64_t count);
KEL_C_API void release_DtcReadConfig(KEL_CONSUMED DtcReadConfig* ptr);
KEL_C_API void release_DtcReadConfig_array(KEL_CONSUMED DtcReadConfig** ptr, uint64_t count);
KEL_C_API void release_ReadDtcResult(KEL_CONSUMED ReadDtcResult* ptr);
KEL_C_API void release_ReadDtcResult_array(KEL_CONSUMED ReadDtcResult** ptr, uint64_t count);
KEL_C_API void release_DtcResult(KEL_CONSUMED DtcResult* ptr);
KEL_C_API void release_DtcResult_array(KEL_CONSUMED DtcResult** ptr, uint64_t count);
KEL_C_API void release_SpecialDataGroup(KEL_CONSUMED SpecialDataGroup* ptr);
KEL_C_API void release_SpecialDataGroup_array(KEL_CONSUMED SpecialDataGroup** ptr, uint64_t count);
KEL_C_API void release_VariantIdentResult(KEL_CONSUMED VariantIdentResult* ptr);
KEL_C_API void release_VariantIdentResult_array(KEL_CONSUMED VariantIdentResult** ptr,
                                                uint64_t count);
KEL_C_API void release_ReadDataResult(KEL_CONSUMED ReadDataResult* ptr);
KEL_C_API void release_ReadDataResult_array(KEL_CONSUMED ReadDataResult** ptr, uint64_t count);
KEL_C_API void release_Target(KEL_CONSUMED Target* ptr);
KEL_C_API void release_Target_array(KEL_CONSUMED Target** ptr, uint64_t count);
KEL_C_API void release_TargetStatus(KEL_CONSUMED TargetStatus* ptr);
KEL_C_API void release_TargetStatus_array(KEL_CONSUMED TargetStatus** ptr, uint64_t count);
KEL_C_API void release_TargetFilter(KEL_CONSUMED TargetFilter* ptr);
KEL_C_API void release_TargetFilter_array(KEL_CONSUMED TargetFilter** ptr, uint64_t count);
KEL_C_API void release_ParameterInput(KEL_CONSUMED ParameterInput* ptr);
KEL_C_API void release_ParameterInput_array(KEL_CONSUMED ParameterInput** ptr, uint64_t count);
KEL_C_API void release_ServiceInput(KEL_CONSUMED ServiceInput* ptr);
KEL_C_API void release_ServiceInput_array(KEL_CONSUMED ServiceInput** ptr, uint64_t count);
KEL_C_API void release_ServiceResult(KEL_CONSUMED ServiceResult* ptr);
KEL_C_API void release_ServiceResult_array(KEL_CONSUMED ServiceResult** ptr, uint64_t count);
KEL_C_API void release_ResponseResult(KEL_CONSUMED ResponseResult* ptr);
KEL_C_API void release_ResponseResult_array(KEL_CONSUMED ResponseResult** ptr, uint64_t count);
KEL_C_API void release_RequestResult(KEL_CONSUMED RequestResult* ptr);
KEL_C_API void release_RequestResult_array(KEL_CONSUMED RequestResult** ptr, uint64_t count);
KEL_C_API void release_UnlockResult(KEL_CONSUMED UnlockResult* ptr);
KEL_C_API void release_UnlockResult_array(KEL_CONSUMED UnlockResult** ptr, uint64_t count);
KEL_C_API void release_ServiceInfo(KEL_CONSUMED ServiceInfo* ptr);
KEL_C_API void release_ServiceInfo_array(KEL_CONSUMED ServiceInfo** ptr, uint64_t count);
KEL_C_API void release_ResponseInfo(KEL_CONSUMED ResponseInfo* ptr);
KEL_C_API void release_ResponseInfo_array(KEL_CONSUMED ResponseInfo** ptr, uint64_t count);
KEL_C_API void release_ParameterInfo(KEL_CONSUMED ParameterInfo* ptr);
KEL_C_API void release_ParameterInfo_array(KEL_CONSUMED ParameterInfo** ptr, uint64_t count);
KEL_C_API void release_ConstraintInfo(KEL_CONSUMED ConstraintInfo* ptr);
KEL_C_API void release_ConstraintInfo_array(KEL_CONSUMED ConstraintInfo** ptr, uint64_t count);
KEL_C_API void release_ScaleConstraintInfo(KEL_CONSUMED ScaleConstraintInfo* ptr);
KEL_C_API void release_ScaleConstraintInfo_array(KEL_CONSUMED ScaleConstraintInfo** ptr,
                                                 uint64_t count);
KEL_C_API void release_UnitInfo(KEL_CONSUMED UnitInfo* ptr);
KEL_C_API void release_UnitInfo_array(KEL_CONSUMED UnitInfo** ptr, uint64_t count);
KEL_C_API void release_ParameterInfoConfig(KEL_CONSUMED ParameterInfoConfig* ptr);
KEL_C_API void release_ParameterInfoConfig_array(KEL_CONSUMED ParameterInfoConfig** ptr,
                                                 uint64_t count);
KEL_C_API void release_KelEvent(KEL_CONSUMED KelEvent* ptr);
KEL_C_API void release_KelEvent_array(KEL_CONSUMED KelEvent** ptr, uint64_t count);
KEL_C_API void release_EventReport(KEL_CONSUMED EventReport* ptr);
KEL_C_API void release_EventReport_array(KEL_CONSUMED EventReport** ptr, uint64_t count);
KEL_C_API void release_FileFilter(KEL_CONSUMED FileFilter* ptr);
KEL_C_API void release_FileFilter_array(KEL_CONSUMED FileFilter** ptr, uint64_t count);
KEL_C_API void release_TargetConfig(KEL_CONSUMED TargetConfig* ptr);
KEL_C_API void release_TargetConfig_array(KEL_CONSUMED TargetConfig** ptr, uint64_t count);
KEL_C_API void release_ProjectConfig(KEL_CONSUMED ProjectConfig* ptr);
KEL_C_API void release_ProjectConfig_array(KEL_CONSUMED ProjectConfig** ptr, uint64_t count);
KEL_C_API void release_ProjectDetails(KEL_CONSUMED ProjectDetails* ptr);
KEL_C_API void release_ProjectDetails_array(KEL_CONSUMED ProjectDetails** ptr, uint64_t count);
KEL_C_API void release_DbFileInfo(KEL_CONSUMED DbFileInfo* ptr);
KEL_C_API void release_DbFileInfo_array(KEL_CONSUMED DbFileInfo** ptr, uint64_t count);
KEL_C_API void release_SystemInfo(KEL_CONSUMED SystemInfo* ptr);
KEL_C_API void release_SystemInfo_array(KEL_CONSUMED SystemInfo** ptr, uint64_t count);
KEL_C_API void release_SystemProperty(KEL_CONSUMED SystemProperty* ptr);
KEL_C_API void release_SystemProperty_array(KEL_CONSUMED SystemProperty** ptr, uint64_t count);
KEL_C_API void release_TarnApiConfig(KEL_CONSUMED TarnApiConfig* ptr);
KEL_C_API void release_TarnApiConfig_array(KEL_CONSUMED TarnApiConfig** ptr, uint64_t count);
KEL_C_API void release_ServerConfig(KEL_CONSUMED ServerConfig* ptr);
KEL_C_API void release_ServerConfig_array(KEL_CONSUMED ServerConfig** ptr, uint64_t count);
KEL_C_API void release_Oauth2Config(KEL_CONSUMED Oauth2Config* ptr);
KEL_C_API void release_Oauth2Config_array(KEL_CONSUMED Oauth2Config** ptr, uint64_t count);
KEL_C_API void release_MoxConfig(KEL_CONSUMED MoxConfig* ptr);
KEL_C_API void release_MoxConfig_array(KEL_CONSUMED MoxConfig** ptr, uint64_t count);
KEL_C_API void release_TcpInfo(KEL_CONSUMED TcpInfo* ptr);
KEL_C_API void release_TcpInfo_array(KEL_CONSUMED TcpInfo** ptr, uint64_t count);
KEL_C_API void release_StatusInfo(KEL_CONSUMED StatusInfo* ptr);
KEL_C_API void release_StatusInfo_array(KEL_CONSUMED StatusInfo** ptr, uint64_t count);
KEL_C_API void release_TransmissionInfo(KEL_CONSUMED TransmissionInfo* ptr);
KEL_C_API void release_TransmissionInfo_array(KEL_CONSUMED TransmissionInfo** ptr, uint64_t count);
KEL_C_API void release_ProcessInfo(KEL_CONSUMED ProcessInfo* ptr);
KEL_C_API void release_ProcessInfo_array(KEL_CONSUMED ProcessInfo** ptr, uint64_t count);
KEL_C_API void release_ProcessEntry(KEL_CONSUMED ProcessEntry* ptr);
KEL_C_API void release_ProcessEntry_array(KEL_CONSUMED ProcessEntry** ptr, uint64_t count);
KEL_C_API void release_ProcessThread(KEL_CONSUMED ProcessThread* ptr);
KEL_C_API void release_ProcessThread_array(KEL_CONSUMED ProcessThread** ptr, uint64_t count);
KEL_C_API void release_ProcessMemory(KEL_CONSUMED ProcessMemory* ptr);
KEL_C_API void release_ProcessMemory_array(KEL_CONSUMED ProcessMemory** ptr, uint64_t count);
KEL_C_API void release_GlobalProtocolParameterSet(KEL_CONSUMED GlobalProtocolParameterSet* ptr);
KEL_C_API void
release_GlobalProtocolParameterSet_array(KEL_CONSUMED GlobalProtocolParameterSet** ptr,
                                         uint64_t count);
KEL_C_API void release_GlobalProtocolParameter(KEL_CONSUMED GlobalProtocolParameter* ptr);
KEL_C_API void release_GlobalProtocolParameter_array(KEL_CONSUMED GlobalProtocolParameter** ptr,
                                                     uint64_t count);
KEL_C_API void release_LoadDatabaseResult(KEL_CONSUMED LoadDatabaseResult* ptr);
KEL_C_API void release_LoadDatabaseResult_array(KEL_CONSUMED LoadDatabaseResult** ptr,
                                                uint64_t count);
KEL_C_API void release_InterfaceInformation(KEL_CONSUMED InterfaceInformation* ptr);
KEL_C_API void release_InterfaceInformation_array(KEL_CONSUMED InterfaceInformation** ptr,
                                                  uint64_t count);
KEL_C_API void release_ResourceInformation(KEL_CONSUMED ResourceInformation* ptr);
KEL_C_API void release_ResourceInformation_array(KEL_CONSUMED ResourceInformation** ptr,
                                                 uint64_t count);
KEL_C_API void release_InterfaceInformationItem(KEL_CONSUMED InterfaceInformationItem* ptr);
KEL_C_API void release_InterfaceInformationItem_array(KEL_CONSUMED InterfaceInformationItem** ptr,
                                                      uint64_t count);
KEL_C_API void release_ScanInterfaceResult(KEL_CONSUMED ScanInterfaceResult* ptr);
KEL_C_API void release_ScanInterfaceResult_array(KEL_CONSUMED ScanInterfaceResult** ptr,
                                                 uint64_t count);
KEL_C_API void release_DynInterfaceDetection(KEL_CONSUMED DynInterfaceDetection* ptr);
KEL_C_API void release_DynInterfaceDetection_array(KEL_CONSUMED DynInterfaceDetection** ptr,
                                                   uint64_t count);
KEL_C_API void release_ModuleDyn(KEL_CONSUMED ModuleDyn* ptr);
KEL_C_API void release_ModuleDyn_array(KEL_CONSUMED ModuleDyn** ptr, uint64_t count);
KEL_C_API void release_DeviceInfo(KEL_CONSUMED DeviceInfo* ptr);
KEL_C_API void release_DeviceInfo_array(KEL_CONSUMED DeviceInfo** ptr, uint64_t count);
KEL_C_API void release_PhysicalLinksOnModule(KEL_CONSUMED PhysicalLinksOnModule* ptr);
KEL_C_API void release_PhysicalLinksOnModule_array(KEL_CONSUMED PhysicalLinksOnModule** ptr,
                                                   uint64_t count);
KEL_C_API void release_PhysicalLink(KEL_CONSUMED PhysicalLink* ptr);
KEL_C_API void release_PhysicalLink_array(KEL_CONSUMED PhysicalLink** ptr, uint64_t count);
KEL_C_API void release_InterfaceConfiguration(KEL_CONSUMED InterfaceConfiguration* ptr);
KEL_C_API void release_InterfaceConfiguration_array(KEL_CONSUMED InterfaceConfiguration** ptr,
                                                    uint64_t count);
KEL_C_API void release_InterfaceConfigurationEntry(KEL_CONSUMED InterfaceConfigurationEntry* ptr);
KEL_C_API void
release_InterfaceConfigurationEntry_array(KEL_CONSUMED InterfaceConfigurationEntry** ptr,
                                          uint64_t count);
KEL_C_API void release_InterfaceProvider(KEL_CONSUMED InterfaceProvider* ptr);
KEL_C_API void release_InterfaceProvider_array(KEL_CONSUMED InterfaceProvider** ptr,
                                               uint64_t count);
KEL_C_API void release_DoIPParameter(KEL_CONSUMED DoIPParameter* ptr);
KEL_C_API void release_DoIPParameter_array(KEL_CONSUMED DoIPParameter** ptr, uint64_t count);
KEL_C_API void release_WLanSignalData(KEL_CONSUMED WLanSignalData* ptr);
KEL_C_API void release_WLanSignalData_array(KEL_CONSUMED WLanSignalData** ptr, uint64_t count);
KEL_C_API void release_SupportedInterface(KEL_CONSUMED SupportedInterface* ptr);
KEL_C_API void release_SupportedInterface_array(KEL_CONSUMED SupportedInterface** ptr,
                                                uint64_t count);
KEL_C_API void release_MonitoringItem(KEL_CONSUMED MonitoringItem* ptr);
KEL_C_API void release_MonitoringItem_array(KEL_CONSUMED MonitoringItem** ptr, uint64_t count);
KEL_C_API void release_MonitoringItemDetail(KEL_CONSUMED MonitoringItemDetail* ptr);
KEL_C_API void release_MonitoringItemDetail_array(KEL_CONSUMED MonitoringItemDetail** ptr,
                                                  uint64_t count);
KEL_C_API void release_PduMonitoringItem(KEL_CONSUMED PduMonitoringItem* ptr);
KEL_C_API void release_PduMonitoringItem_array(KEL_CONSUMED PduMonitoringItem** ptr,
                                               uint64_t count);
KEL_C_API void release_PduMonitoringItemDetail(KEL_CONSUMED PduMonitoringItemDetail* ptr);
KEL_C_API void release_PduMonitoringItemDetail_array(KEL_CONSUMED PduMonitoringItemDetail** ptr,
                                                     uint64_t count);
KEL_C_API void release_FileInfo(KEL_CONSUMED FileInfo* ptr);
KEL_C_API void release_FileInfo_array(KEL_CONSUMED FileInfo** ptr, uint64_t count);
KEL_C_API void release_DirectoryInfo(KEL_CONSUMED DirectoryInfo* ptr);
KEL_C_API void release_DirectoryInfo_array(KEL_CONSUMED DirectoryInfo** ptr, uint64_t count);
KEL_C_API void release_FileCopyResult(KEL_CONSUMED FileCopyResult* ptr);
KEL_C_API void release_FileCopyResult_array(KEL_CONSUMED FileCopyResult** ptr, uint64_t count);
KEL_C_API void release_DirectoryCopyResult(KEL_CONSUMED DirectoryCopyResult* ptr);
KEL_C_API void release_DirectoryCopyResult_array(KEL_CONSUMED DirectoryCopyResult** ptr,
                                                 uint64_t count);
KEL_C_API void release_DirectoryCopyItem(KEL_CONSUMED DirectoryCopyItem* ptr);
KEL_C_API void release_DirectoryCopyItem_array(KEL_CONSUMED DirectoryCopyItem** ptr,
                                               uint64_t count);
KEL_C_API void release_PathCopyResult(KEL_CONSUMED PathCopyResult* ptr);
KEL_C_API void release_PathCopyResult_array(KEL_CONSUMED PathCopyResult** ptr, uint64_t count);
KEL_C_API void release_PathCopyItem(KEL_CONSUMED PathCopyItem* ptr);
KEL_C_API void release_PathCopyItem_array(KEL_CONSUMED PathCopyItem** ptr, uint64_t count);
KEL_C_API void release_FileReferenceResult(KEL_CONSUMED FileReferenceResult* ptr);
KEL_C_API void release_FileReferenceResult_array(KEL_CONSUMED FileReferenceResult** ptr,
                                                 uint64_t count);
KEL_C_API void release_FileCopyConfig(KEL_CONSUMED FileCopyConfig* ptr);
KEL_C_API void release_FileCopyConfig_array(KEL_CONSUMED FileCopyConfig** ptr, uint64_t count);
KEL_C_API void release_DirectoryCopyConfig(KEL_CONSUMED DirectoryCopyConfig* ptr);
KEL_C_API void release_DirectoryCopyConfig_array(KEL_CONSUMED DirectoryCopyConfig** ptr,
                                                 uint64_t count);
KEL_C_API void release_PathCopyConfig(KEL_CONSUMED PathCopyConfig* ptr);
KEL_C_API void release_PathCopyConfig_array(KEL_CONSUMED PathCopyConfig** ptr, uint64_t count);
KEL_C_API void release_UserInfo(KEL_CONSUMED UserInfo* ptr);
KEL_C_API void release_UserInfo_array(KEL_CONSUMED UserInfo** ptr, uint64_t count);
KEL_C_API void release_LogInOutConfig(KEL_CONSUMED LogInOutConfig* ptr);
KEL_C_API void release_LogInOutConfig_array(KEL_CONSUMED LogInOutConfig** ptr, uint64_t count);
KEL_C_API void release_TarnApiServerConfig(KEL_CONSUMED TarnApiServerConfig* ptr);
KEL_C_API void release_TarnApiServerConfig_array(KEL_CONSUMED TarnApiServerConfig** ptr,
                                                 uint64_t count);
KEL_C_API void release_ServerSettings(KEL_CONSUMED ServerSettings* ptr);
KEL_C_API void release_ServerSettings_array(KEL_CONSUMED ServerSettings** ptr, uint64_t count);
KEL_C_API void release_FlashSessionInfo(KEL_CONSUMED FlashSessionInfo* ptr);
KEL_C_API void release_FlashSessionInfo_array(KEL_CONSUMED FlashSessionInfo** ptr, uint64_t count);
KEL_C_API void release_FlashSessionResult(KEL_CONSUMED FlashSessionResult* ptr);
KEL_C_API void release_FlashSessionResult_array(KEL_CONSUMED FlashSessionResult** ptr,
                                                uint64_t count);
KEL_C_API void release_FlashSessionsConfig(KEL_CONSUMED FlashSessionsConfig* ptr);
KEL_C_API void release_FlashSessionsConfig_array(KEL_CONSUMED FlashSessionsConfig** ptr,
                                                 uint64_t count);
KEL_C_API void release_CodingStringResult(KEL_CONSUMED CodingStringResult* ptr);
KEL_C_API void release_CodingStringResult_array(KEL_CONSUMED CodingStringResult** ptr,
                                                uint64_t count);
KEL_C_API void release_CodingFileResult(KEL_CONSUMED CodingFileResult* ptr);
KEL_C_API void release_CodingFileResult_array(KEL_CONSUMED CodingFileResult** ptr, uint64_t count);
KEL_C_API void release_QuickTestResult(KEL_CONSUMED QuickTestResult* ptr);
KEL_C_API void release_QuickTestResult_array(KEL_CONSUMED QuickTestResult** ptr, uint64_t count);
KEL_C_API void release_EcuConfigurationResult(KEL_CONSUMED EcuConfigurationResult* ptr);
KEL_C_API void release_EcuConfigurationResult_array(KEL_CONSUMED EcuConfigurationResult** ptr,
                                                    uint64_t count);
KEL_C_API void release_EcuOrderEntry(KEL_CONSUMED EcuOrderEntry* ptr);
KEL_C_API void release_EcuOrderEntry_array(KEL_CONSUMED EcuOrderEntry** ptr, uint64_t count);
KEL_C_API void release_VehicleUpdateConfig(KEL_CONSUMED VehicleUpdateConfig* ptr);
KEL_C_API void release_VehicleUpdateConfig_array(KEL_CONSUMED VehicleUpdateConfig** ptr,
                                                 uint64_t count);
KEL_C_API void release_VehicleUpdateResult(KEL_CONSUMED VehicleUpdateResult* ptr);
KEL_C_API void release_VehicleUpdateResult_array(KEL_CONSUMED VehicleUpdateResult** ptr,
                                                 uint64_t count);
KEL_C_API void release_UpdatePackageInfo(KEL_CONSUMED UpdatePackageInfo* ptr);
KEL_C_API void release_UpdatePackageInfo_array(KEL_CONSUMED UpdatePackageInfo** ptr,
                                               uint64_t count);
KEL_C_API void release_VehicleReportConfig(KEL_CONSUMED VehicleReportConfig* ptr);
KEL_C_API void release_VehicleReportConfig_array(KEL_CONSUMED VehicleReportConfig** ptr,
                                                 uint64_t count);
KEL_C_API void release_VehicleData(KEL_CONSUMED VehicleData* ptr);
KEL_C_API void release_VehicleData_array(KEL_CONSUMED VehicleData** ptr, uint64_t count);
KEL_C_API void release_UploadReportConfiguration(KEL_CONSUMED UploadReportConfiguration* ptr);
KEL_C_API void release_UploadReportConfiguration_array(KEL_CONSUMED UploadReportConfiguration** ptr,
                                                       uint64_t count);
KEL_C_API void release_VehicleInformation(KEL_CONSUMED VehicleInformation* ptr);
KEL_C_API void release_VehicleInformation_array(KEL_CONSUMED VehicleInformation** ptr,
                                                uint64_t count);

/* ---- callbacks of the asynchronous operations ----
 * Called once or several times per call, on a thread of the engine; isFinal marks
 * the last report, callId is the identifier the export returned and context the one
 * it was given. The results (NULL and 0 when empty) and the error (NULL when none)
 * pass to the callee, which frees them with release_X_array and release_KelError. */
/* Reports of kel_identifyAllTargetsAsync: free results with release_VariantIdentResult_array. */
typedef void (*IdentifyAllTargetsCallbackFunction)(VariantIdentResult** results,
                                                   uint32_t resultCount, bool isFinal,
                                                   uint64_t callId, KelError* error, void* context);
/* Reports of kel_readIdentificationValuesAsync: free results with
 * release_ReadDataResult_array. */
typedef void (*ReadIdentificationValuesCallbackFunction)(ReadDataResult** results,
                                                         uint32_t resultCount, bool isFinal,
                                                         uint64_t callId, KelError* error,
                                                         void* context);
/* Reports of kel_readDtcsAsync: free results with release_ReadDtcResult_array. */
typedef void (*ReadDtcsCallbackFunction)(ReadDtcResult** results, uint32_t resultCount,
                                         bool isFinal, uint64_t callId, KelError* error,
                                         void* context);
/* Reports of kel_readSupportedDtcsAsync: free results with release_ReadDtcResult_array. */
typedef void (*ReadSupportedDtcsCallbackFunction)(ReadDtcResult** results, uint32_t resultCount,
                                                  bool isFinal, uint64_t callId, KelError* error,
                                                  void* context);
/* Reports of kel_clearAllDtcsAsync: free results with release_ClearDtcResult_array. */
typedef void (*ClearAllDtcsCallbackFunction)(ClearDtcResult** results, uint32_t resultCount,
                                             bool isFinal, uint64_t callId, KelError* error,
                                             void* context);
/* Reports of kel_executeFlashSessionsAsync: free results with
 * release_FlashSessionResult_array. */
typedef void (*ExecuteFlashSessionsCallbackFunction)(FlashSessionResult** results,
                                                     uint32_t resultCount, bool isFinal,
                                                     uint64_t callId, KelError* error,
                                                     void* context);
/* Reports of kel_readCodingStringsAsync: free results with release_CodingStringResult_array. */
typedef void (*ReadCodingStringsCallbackFunction)(CodingStringResult** results,
                                                  uint32_t resultCount, bool isFinal,
                                                  uint64_t callId, KelError* error, void* context);
/* Reports of kel_performQuickTestAsync: free results with release_QuickTestResult_array. */
typedef void (*PerformQuickTestCallbackFunction)(QuickTestResult** results, uint32_t resultCount,
                                                 bool isFinal, uint64_t callId, KelError* error,
                                                 void* context);
/* Reports of kel_scanInterfaceConnectionAsync: free results with
 * release_ScanInterfaceResult_array. */
typedef void (*ScanInterfaceConnectionCallbackFunction)(ScanInterfaceResult** results,
                                                        uint32_t resultCount, bool isFinal,
                                                        uint64_t callId, KelError* error,
                                                        void* context);
/* Reports of kel_readMeasurementValuesAsync: free results with release_ReadDataResult_array. */
typedef void (*ReadMeasurementValuesCallbackFunction)(ReadDataResult** results,
                                                      uint32_t resultCount, bool isFinal,
                                                      uint64_t callId, KelError* error,
                                                      void* context);
/* Reports of kel_identifyTargetsAsync: free results with release_VariantIdentResult_array. */
typedef void (*IdentifyTargetsCallbackFunction)(VariantIdentResult** results, uint32_t resultCount,
                                                bool isFinal, uint64_t callId, KelError* error,
                                                void* context);
/* Reports of kel_executeServiceAsync: free results with release_ServiceResult_array. */
typedef void (*ExecuteServiceCallbackFunction)(ServiceResult** results, uint32_t resultCount,
                                               bool isFinal, uint64_t callId, KelError* error,
                                               void* context);
/* Reports of kel_detectDynInterfacesAsync: free results with release_ModuleDyn_array. */
typedef void (*DetectDynInterfacesCallbackFunction)(ModuleDyn** results, uint32_t resultCount,
                                                    bool isFinal, uint64_t callId, KelError* error,
                                                    void* context);
/* Reports of kel_detectDynInterfacesExAsync: free results with release_ModuleDyn_array. */
typedef void (*DetectDynInterfacesExCallbackFunction)(ModuleDyn** results, uint32_t resultCount,
                                                      bool isFinal, uint64_t callId,
                                                      KelError* error, void* context);
/* Reports of kel_copyFilesAsync: free results with release_FileCopyResult_array. */
typedef void (*CopyFilesCallbackFunction)(FileCopyResult** results, uint32_t resultCount,
                                          bool isFinal, uint64_t callId, KelError* error,
                                          void* context);
/* Reports of kel_copyDirectoriesAsync: free results with release_DirectoryCopyResult_array. */
typedef void (*CopyDirectoriesCallbackFunction)(DirectoryCopyResult** results, uint32_t resultCount,
                                                bool isFinal, uint64_t callId, KelError* error,
                                                void* context);
/* Reports of kel_executeFlashSessionsConfigAsync: free results with
 * release_FlashSessionResult_array. */
typedef void (*ExecuteFlashSessionsConfigCallbackFunction)(FlashSessionResult** results,
                                                           uint32_t resultCount, bool isFinal,
                                                           uint64_t callId, KelError* error,
                                                           void* context);
/* Reports of kel_updateVehicleAsync: free results with release_VehicleUpdateResult_array. */
typedef void (*UpdateVehicleCallbackFunction)(VehicleUpdateResult** results, uint32_t resultCount,
                                              bool isFinal, uint64_t callId, KelError* error,
                                              void* context);
/* Reports of kel_executeServiceInDefaultSessionAsync: free results with
 * release_ServiceResult_array. */
typedef void (*ExecuteServiceInDefaultSessionCallbackFunction)(ServiceResult** results,
                                                               uint32_t resultCount, bool isFinal,
                                                               uint64_t callId, KelError* error,
                                                               void* context);
/* Reports of kel_copyPathAsync: free results with release_PathCopyResult_array. */
typedef void (*CopyPathCallbackFunction)(PathCopyResult** results, uint32_t resultCount,
                                         bool isFinal, uint64_t callId, KelError* error,
                                         void* context);
/* Reports of kel_writeCodingFileAsync: free results with release_CodingFileResult_array. */
typedef void (*WriteCodingFileCallbackFunction)(CodingFileResult** results, uint32_t resultCount,
                                                bool isFinal, uint64_t callId, KelError* error,
                                                void* context);
/* Reports of kel_performVehicleUpdateAsync: free results with
 * release_VehicleUpdateResult_array. */
typedef void (*PerformVehicleUpdateCallbackFunction)(VehicleUpdateResult** results,
                                                     uint32_t resultCount, bool isFinal,
                                                     uint64_t callId, KelError* error,
                                                     void* context);
/* Reports of kel_executeSequenceAsync: free results with release_ServiceResult_array. */
typedef void (*ExecuteSequenceCallbackFunction)(ServiceResult** results, uint32_t resultCount,
                                                bool isFinal, uint64_t callId, KelError* error,
                                                void* context);
/* Reports of kel_performEcuConfigurationAsync: free results with
 * release_EcuConfigurationResult_array. */
typedef void (*PerformEcuConfigurationCallbackFunction)(EcuConfigurationResult** results,
                                                        uint32_t resultCount, bool isFinal,
                                                        uint64_t callId, KelError* error,
                                                        void* context);
/* Reports of kel_clearSpecificDtcsAsync: free results with release_ClearDtcResult_array. */
typedef void (*ClearSpecificDtcsCallbackFunction)(ClearDtcResult** results, uint32_t resultCount,
                                                  bool isFinal, uint64_t callId, KelError* error,
                                                  void* context);

/* ---- Lifecycle ----
 * The engine's lifecycle, lock, state, handle and call timing; cancelling asynchronous calls */
/* Starts the engine: the first call after kel_getTarnApi. Position 2. */
KEL_C_API void kel_initialize(TarnApi* api, KelError** error);
/* Ends the engine: the last call before releaseTarnApi. Position 3. */
KEL_C_API void kel_end(TarnApi* api, KelError** error);
/* Cancels every asynchronous call running on this engine object; whether a cancelled call
 * still reports is the engine's choice. Position 43. */
KEL_C_API void kel_cancelAllAsyncCalls(TarnApi* api, KelError** error);
/* Cancels the asynchronous calls with the given call identifiers; whether a cancelled call
 * still reports is the engine's choice. Position 99.
 * callIds: kept by the caller, read only during the call. */
KEL_C_API void kel_cancelAsyncCalls(TarnApi* api, KEL_KEPT const uint64_t* callIds,
                                    uint32_t callIdCount, KelError** error);
/* Takes the engine's lock and returns the lock identifier that kel_unlock takes. Position 115.
 * On success *lockId receives the result. */
KEL_C_API void kel_lock(TarnApi* api, KelError** error, KEL_OUT uint64_t* lockId);
/* Gives back the engine's lock taken with kel_lock. Position 116. */
KEL_C_API void kel_unlock(TarnApi* api, uint64_t lockId, KelError** error);
/* Tells whether the engine's lock is taken. Position 117.
 * On success *locked receives the result. */
KEL_C_API void kel_isLocked(TarnApi* api, KelError** error, KEL_OUT bool* locked);
/* Breaks the engine's lock, whoever holds it. Position 118. */
KEL_C_API void kel_breakLock(TarnApi* api, KelError** error);
/* Asks the engine to cancel the asynchronous calls with the given call identifiers, through
 * its second cancel operation. Position 227.
 * callIds: kept by the caller, read only during the call. */
KEL_C_API void kel_triggerAsyncCancels(TarnApi* api, KEL_KEPT const uint64_t* callIds,
                                       uint32_t callIdCount, KelError** error);
/* Reads the engine's state number; the engine defines its values. Position 242.
 * On success *state receives the result. */
KEL_C_API void kel_getState(TarnApi* api, KelError** error, KEL_OUT int32_t* state);
/* Reads the engine object's 64-bit engine handle, which is not its address. Given to
 * kel_getRemoteConnectionByHandle or kel_call it reaches the remote connection to this object;
 * a remote connection's own handle is what kel_reconnectRemoteServer takes. Position 254.
 * On success *handle receives the result. */
KEL_C_API void kel_getHandle(TarnApi* api, KelError** error, KEL_OUT uint64_t* handle);
/* Reads the engine's call duration; the engine defines what it measures and its unit.
 * Position 270.
 * On success *duration receives the result. */
KEL_C_API void kel_getCallDuration(TarnApi* api, KelError** error, KEL_OUT uint64_t* duration);

/* ---- Events ----
 * Event channels, the server handler and connection callbacks */
/* Opens an event channel and returns its identifier; kel_getCurrentEvents fetches its events.
 * Position 46.
 * On success *channel receives the result. */
KEL_C_API void kel_openEventChannel(TarnApi* api, KelError** error, KEL_OUT uint64_t* channel);
/* Closes an event channel opened with kel_openEventChannel. Position 47. */
KEL_C_API void kel_closeEventChannel(TarnApi* api, uint64_t channel, KelError** error);
/* Fetches the events waiting on an event channel; limit is passed to the engine unchanged.
 * Position 48.
 * On success *report receives an EventReport record, or NULL when the engine gives none; free
 * it with release_EventReport. */
KEL_C_API void kel_getCurrentEvents(TarnApi* api, uint64_t channel, uint32_t limit,
                                    KelError** error, KEL_OUT EventReport** report);
/* Registers the caller's server handler, an object of a class derived from the engine's
 * ServerHandler, through which the engine calls its client. Position 131.
 * api: the engine object's address as a 64-bit integer.
 * handler: the caller's object, kept by the caller: neither the library nor the engine deletes
 * it, and it must stay alive while the engine may call it. */
KEL_C_API void kel_registerServerHandler(uint64_t api, KEL_KEPT void* handler, KelError** error);
/* Tells the engine that its connection broke. Position 153. */
KEL_C_API void kel_onConnectionBroken(TarnApi* api, KelError** error);
/* Tells the engine that its connection was closed. Position 195. */
KEL_C_API void kel_onConnectionClosed(TarnApi* api, KelError** error);

/* ---- Diagnostics ----
 * Targets, identification, DTCs and the quick test */
/* Identifies the variant of every target of the project; one result per target. Position 17.
 * On success *results and *resultCount receive a VariantIdentResult list, NULL and 0 when
 * empty; free it with release_VariantIdentResult_array(results, resultCount). */
KEL_C_API void kel_identifyAllTargets(TarnApi* api, KelError** error,
                                      KEL_OUT VariantIdentResult*** results,
                                      KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_identifyAllTargets. Position 18.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * callback receives VariantIdentResult lists, once or several times until isFinal, on a thread
 * of the engine; each list and error belong to it, to free with
 * release_VariantIdentResult_array and release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_identifyAllTargetsAsync(TarnApi* api, KelError** error,
                                               IdentifyAllTargetsCallbackFunction callback,
                                               void* context);
/* Reads the identification values of the given targets; one result per target. Position 19.
 * targets: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a ReadDataResult list, NULL and 0 when empty;
 * free it with release_ReadDataResult_array(results, resultCount). */
KEL_C_API void kel_readIdentificationValues(TarnApi* api, KEL_KEPT wchar_t** targets,
                                            uint32_t targetCount, KelError** error,
                                            KEL_OUT ReadDataResult*** results,
                                            KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_readIdentificationValues. Position 20.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * targets: kept by the caller, read only during the call.
 * callback receives ReadDataResult lists, once or several times until isFinal, on a thread of
 * the engine; each list and error belong to it, to free with release_ReadDataResult_array and
 * release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_readIdentificationValuesAsync(
    TarnApi* api, KEL_KEPT wchar_t** targets, uint32_t targetCount, KelError** error,
    ReadIdentificationValuesCallbackFunction callback, void* context);
/* Reads the data with the given identifiers from one target. Position 21.
 * target, identifiers: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a ReadDataResult list, NULL and 0 when empty;
 * free it with release_ReadDataResult_array(results, resultCount). */
KEL_C_API void kel_readDataByIdentifiers(TarnApi* api, KEL_KEPT const wchar_t* target,
                                         KEL_KEPT wchar_t** identifiers, uint32_t identifierCount,
                                         KelError** error, KEL_OUT ReadDataResult*** results,
                                         KEL_OUT uint32_t* resultCount);
/* Identifies the variant of one target. A target the vehicle does not have is not an error:
 * the result is then NULL (None in Python), as the engine gives none. Position 22.
 * target: kept by the caller, read only during the call.
 * On success *result receives a VariantIdentResult record, or NULL when the engine gives none;
 * free it with release_VariantIdentResult. */
KEL_C_API void kel_identifyTarget(TarnApi* api, KEL_KEPT const wchar_t* target, KelError** error,
                                  KEL_OUT VariantIdentResult** result);
/* Reads the DTCs of the given targets with the reading options in config; one result per
 * target. Position 23.
 * config: consumed: the library frees it with release_DtcReadConfig, also when the call fails;
 * NULL passes no record.
 * targets: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a ReadDtcResult list, NULL and 0 when empty;
 * free it with release_ReadDtcResult_array(results, resultCount). */
KEL_C_API void kel_readDtcs(TarnApi* api, KEL_KEPT wchar_t** targets, uint32_t targetCount,
                            KEL_CONSUMED DtcReadConfig* config, KelError** error,
                            KEL_OUT ReadDtcResult*** results, KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_readDtcs. Position 24.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * config: consumed: the library frees it with release_DtcReadConfig, also when the call fails;
 * NULL passes no record.
 * targets: kept by the caller, read only during the call.
 * callback receives ReadDtcResult lists, once or several times until isFinal, on a thread of
 * the engine; each list and error belong to it, to free with release_ReadDtcResult_array and
 * release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_readDtcsAsync(TarnApi* api, KEL_KEPT wchar_t** targets, uint32_t targetCount,
                                     KEL_CONSUMED DtcReadConfig* config, KelError** error,
                                     ReadDtcsCallbackFunction callback, void* context);
/* Reads the DTCs that the given targets support, with the reading options in config; one
 * result per target, whose value stays 0. Position 25.
 * config: consumed: the library frees it with release_DtcReadConfig, also when the call fails;
 * NULL passes no record.
 * targets: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a ReadDtcResult list, NULL and 0 when empty;
 * free it with release_ReadDtcResult_array(results, resultCount). */
KEL_C_API void kel_readSupportedDtcs(TarnApi* api, KEL_KEPT wchar_t** targets, uint32_t targetCount,
                                     KEL_CONSUMED DtcReadConfig* config, KelError** error,
                                     KEL_OUT ReadDtcResult*** results,
                                     KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_readSupportedDtcs. Position 26.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * config: consumed: the library frees it with release_DtcReadConfig, also when the call fails;
 * NULL passes no record.
 * targets: kept by the caller, read only during the call.
 * callback receives ReadDtcResult lists, once or several times until isFinal, on a thread of
 * the engine; each list and error belong to it, to free with release_ReadDtcResult_array and
 * release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_readSupportedDtcsAsync(TarnApi* api, KEL_KEPT wchar_t** targets,
                                              uint32_t targetCount,
                                              KEL_CONSUMED DtcReadConfig* config, KelError** error,
                                              ReadSupportedDtcsCallbackFunction callback,
                                              void* context);
/* Clears every DTC of the given targets; one result per target. Position 27.
 * targets: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a ClearDtcResult list, NULL and 0 when empty;
 * free it with release_ClearDtcResult_array(results, resultCount). */
KEL_C_API void kel_clearAllDtcs(TarnApi* api, KEL_KEPT wchar_t** targets, uint32_t targetCount,
                                KelError** error, KEL_OUT ClearDtcResult*** results,
                                KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_clearAllDtcs. Position 28.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * targets: kept by the caller, read only during the call.
 * callback receives ClearDtcResult lists, once or several times until isFinal, on a thread of
 * the engine; each list and error belong to it, to free with release_ClearDtcResult_array and
 * release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_clearAllDtcsAsync(TarnApi* api, KEL_KEPT wchar_t** targets,
                                         uint32_t targetCount, KelError** error,
                                         ClearAllDtcsCallbackFunction callback, void* context);
/* Runs the quick test on the given targets, with the DTC reading options in config.
 * Position 35.
 * config: consumed: the library frees it with release_DtcReadConfig, also when the call fails;
 * NULL passes no record.
 * targets: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a QuickTestResult list, NULL and 0 when empty;
 * free it with release_QuickTestResult_array(results, resultCount). */
KEL_C_API void kel_performQuickTest(TarnApi* api, KEL_KEPT wchar_t** targets, uint32_t targetCount,
                                    KEL_CONSUMED DtcReadConfig* config, KelError** error,
                                    KEL_OUT QuickTestResult*** results,
                                    KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_performQuickTest. Position 36.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * config: consumed: the library frees it with release_DtcReadConfig, also when the call fails;
 * NULL passes no record.
 * targets: kept by the caller, read only during the call.
 * callback receives QuickTestResult lists, once or several times until isFinal, on a thread of
 * the engine; each list and error belong to it, to free with release_QuickTestResult_array and
 * release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_performQuickTestAsync(TarnApi* api, KEL_KEPT wchar_t** targets,
                                             uint32_t targetCount,
                                             KEL_CONSUMED DtcReadConfig* config, KelError** error,
                                             PerformQuickTestCallbackFunction callback,
                                             void* context);
/* Identifies the variants of the given targets; one result per target. Position 65.
 * targets: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a VariantIdentResult list, NULL and 0 when
 * empty; free it with release_VariantIdentResult_array(results, resultCount). */
KEL_C_API void kel_identifyTargets(TarnApi* api, KEL_KEPT wchar_t** targets, uint32_t targetCount,
                                   KelError** error, KEL_OUT VariantIdentResult*** results,
                                   KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_identifyTargets. Position 66.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * targets: kept by the caller, read only during the call.
 * callback receives VariantIdentResult lists, once or several times until isFinal, on a thread
 * of the engine; each list and error belong to it, to free with
 * release_VariantIdentResult_array and release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_identifyTargetsAsync(TarnApi* api, KEL_KEPT wchar_t** targets,
                                            uint32_t targetCount, KelError** error,
                                            IdentifyTargetsCallbackFunction callback,
                                            void* context);
/* Lists the targets of the project that match the given target filters. Position 74.
 * filters: kept by the caller, read only during the call.
 * On success *targets and *targetCount receive a Target list, NULL and 0 when empty; free it
 * with release_Target_array(targets, targetCount). */
KEL_C_API void kel_getFilteredTargets(TarnApi* api, KEL_KEPT TargetFilter** filters,
                                      uint32_t filterCount, KelError** error,
                                      KEL_OUT Target*** targets, KEL_OUT uint32_t* targetCount);
/* Reads the status of the given targets; one result per target. Position 181.
 * targets: kept by the caller, read only during the call.
 * On success *statuses and *statusCount receive a TargetStatus list, NULL and 0 when empty;
 * free it with release_TargetStatus_array(statuses, statusCount). */
KEL_C_API void kel_getTargetStatus(TarnApi* api, KEL_KEPT wchar_t** targets, uint32_t targetCount,
                                   KelError** error, KEL_OUT TargetStatus*** statuses,
                                   KEL_OUT uint32_t* statusCount);
/* Clears the DTCs with the given codes on one target. Position 235.
 * target, dtcCodes: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a ClearDtcResult list, NULL and 0 when empty;
 * free it with release_ClearDtcResult_array(results, resultCount). */
KEL_C_API void kel_clearSpecificDtcs(TarnApi* api, KEL_KEPT const wchar_t* target,
                                     KEL_KEPT const uint32_t* dtcCodes, uint32_t dtcCodeCount,
                                     KelError** error, KEL_OUT ClearDtcResult*** results,
                                     KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_clearSpecificDtcs. Position 236.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * target, dtcCodes: kept by the caller, read only during the call.
 * callback receives ClearDtcResult lists, once or several times until isFinal, on a thread of
 * the engine; each list and error belong to it, to free with release_ClearDtcResult_array and
 * release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_clearSpecificDtcsAsync(TarnApi* api, KEL_KEPT const wchar_t* target,
                                              KEL_KEPT const uint32_t* dtcCodes,
                                              uint32_t dtcCodeCount, KelError** error,
                                              ClearSpecificDtcsCallbackFunction callback,
                                              void* context);
/* Lists the targets (control units) of the project. Position 251.
 * On success *targets and *targetCount receive a Target list, NULL and 0 when empty; free it
 * with release_Target_array(targets, targetCount). */
KEL_C_API void kel_getTargets(TarnApi* api, KelError** error, KEL_OUT Target*** targets,
                              KEL_OUT uint32_t* targetCount);
/* Reads the session's target filters. Position 263.
 * On success *filters and *filterCount receive a TargetFilter list, NULL and 0 when empty;
 * free it with release_TargetFilter_array(filters, filterCount). */
KEL_C_API void kel_getSessionTargetFilters(TarnApi* api, KelError** error,
                                           KEL_OUT TargetFilter*** filters,
                                           KEL_OUT uint32_t* filterCount);
/* Sets the session's target filters. Position 264.
 * filters: kept by the caller, read only during the call. */
KEL_C_API void kel_setSessionTargetFilters(TarnApi* api, KelError** error,
                                           KEL_KEPT TargetFilter** filters, uint32_t filterCount);

/* ---- Services ----
 * Service execution and descriptions, security access, vehicle unlock and cyclic services */
/* Describes services with their responses and parameters; the texts, names and value select
 * them as the engine defines. Position 29.
 * text1, text2, names: kept by the caller, read only during the call.
 * On success *services and *serviceCount receive a ServiceInfo list, NULL and 0 when empty;
 * free it with release_ServiceInfo_array(services, serviceCount). */
KEL_C_API void kel_getServiceInfos(TarnApi* api, KEL_KEPT const wchar_t* text1,
                                   KEL_KEPT const wchar_t* text2, KEL_KEPT wchar_t** names,
                                   uint32_t nameCount, int32_t value, KelError** error,
                                   KEL_OUT ServiceInfo*** services, KEL_OUT uint32_t* serviceCount);
/* Describes the identification values that one target offers. Position 42.
 * target: kept by the caller, read only during the call.
 * On success *infos and *infoCount receive a ParameterInfo list, NULL and 0 when empty; free
 * it with release_ParameterInfo_array(infos, infoCount). */
KEL_C_API void kel_getIdentificationValueInfos(TarnApi* api, KEL_KEPT const wchar_t* target,
                                               KelError** error, KEL_OUT ParameterInfo*** infos,
                                               KEL_OUT uint32_t* infoCount);
/* Asks the unit at the diagnostic address (a Target's address) for the seed of a security
 * access at the given level; sendKey answers it. Position 44.
 * On success *seed receives a buffer of *seedLength bytes, allocated also for 0 bytes; free it
 * with release_Memory. */
KEL_C_API void kel_createSeed(TarnApi* api, uint32_t value1, uint32_t value2, KelError** error,
                              KEL_OUT uint8_t** seed, KEL_OUT uint32_t* seedLength);
/* Sends the key of a security access, computed from the seed. Position 45.
 * key: kept by the caller, read only during the call. */
KEL_C_API void kel_sendKey(TarnApi* api, KEL_KEPT const uint8_t* key, uint32_t keyLength,
                           KelError** error);
/* Describes the parameters of actuator services; the two texts select them as the engine
 * defines. Position 67.
 * text1, text2: kept by the caller, read only during the call.
 * On success *infos and *infoCount receive a ParameterInfo list, NULL and 0 when empty; free
 * it with release_ParameterInfo_array(infos, infoCount). */
KEL_C_API void kel_getActuatorServiceInfos(TarnApi* api, KEL_KEPT const wchar_t* text1,
                                           KEL_KEPT const wchar_t* text2, KelError** error,
                                           KEL_OUT ParameterInfo*** infos,
                                           KEL_OUT uint32_t* infoCount);
/* Starts running the given services on one target every cycleTime; returns the cyclic run's
 * identifier. Position 78.
 * target, services: kept by the caller, read only during the call.
 * On success *cyclic receives the result. */
KEL_C_API void kel_startCyclicServices(TarnApi* api, KEL_KEPT const wchar_t* target,
                                       KEL_KEPT ServiceInput** services, uint32_t serviceCount,
                                       uint32_t cycleTime, KelError** error,
                                       KEL_OUT uint64_t* cyclic);
/* Fetches the results of a cyclic run started with kel_startCyclicServices. Position 79.
 * On success *results and *resultCount receive a ServiceResult list, NULL and 0 when empty;
 * free it with release_ServiceResult_array(results, resultCount). */
KEL_C_API void kel_getCyclicResults(TarnApi* api, uint64_t cyclic, KelError** error,
                                    KEL_OUT ServiceResult*** results,
                                    KEL_OUT uint32_t* resultCount);
/* Stops a cyclic run started with kel_startCyclicServices. Position 80. */
KEL_C_API void kel_stopCyclicServices(TarnApi* api, uint64_t cyclic, KelError** error);
/* Executes diagnostic services on one target with the given parameter values. Position 92.
 * target, services: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a ServiceResult list, NULL and 0 when empty;
 * free it with release_ServiceResult_array(results, resultCount). */
KEL_C_API void kel_executeService(TarnApi* api, KEL_KEPT const wchar_t* target,
                                  KEL_KEPT ServiceInput** services, uint32_t serviceCount,
                                  KelError** error, KEL_OUT ServiceResult*** results,
                                  KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_executeService. Position 93.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * target, services: kept by the caller, read only during the call.
 * callback receives ServiceResult lists, once or several times until isFinal, on a thread of
 * the engine; each list and error belong to it, to free with release_ServiceResult_array and
 * release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_executeServiceAsync(TarnApi* api, KEL_KEPT const wchar_t* target,
                                           KEL_KEPT ServiceInput** services, uint32_t serviceCount,
                                           KelError** error,
                                           ExecuteServiceCallbackFunction callback, void* context);
/* Changes the services that a cyclic run started with kel_startCyclicServices executes.
 * Position 98.
 * services: kept by the caller, read only during the call. */
KEL_C_API void kel_updateCyclicServices(TarnApi* api, uint64_t cyclic,
                                        KEL_KEPT ServiceInput** services, uint32_t serviceCount,
                                        KelError** error);
/* Unlocks the vehicle by running the given services on one target. Position 146.
 * target, services: kept by the caller, read only during the call.
 * On success *result receives an UnlockResult record, or NULL when the engine gives none; free
 * it with release_UnlockResult. */
KEL_C_API void kel_unlockVehicle(TarnApi* api, KEL_KEPT const wchar_t* target,
                                 KEL_KEPT ServiceInput** services, uint32_t serviceCount,
                                 KelError** error, KEL_OUT UnlockResult** result);
/* Releases a vehicle unlock; value is passed to the engine unchanged. Through kel_call (number
 * 179) the answer is the status byte alone; py_call writes no result. Position 147.
 * The engine's result is not handed out. */
KEL_C_API void kel_releaseVehicleUnlock(TarnApi* api, uint64_t value, KelError** error);
/* Executes diagnostic services on one target, as kel_executeService does, in the default
 * diagnostic session. Position 179.
 * target, services: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a ServiceResult list, NULL and 0 when empty;
 * free it with release_ServiceResult_array(results, resultCount). */
KEL_C_API void kel_executeServiceInDefaultSession(TarnApi* api, KEL_KEPT const wchar_t* target,
                                                  KEL_KEPT ServiceInput** services,
                                                  uint32_t serviceCount, KelError** error,
                                                  KEL_OUT ServiceResult*** results,
                                                  KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_executeServiceInDefaultSession. Position 180.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * target, services: kept by the caller, read only during the call.
 * callback receives ServiceResult lists, once or several times until isFinal, on a thread of
 * the engine; each list and error belong to it, to free with release_ServiceResult_array and
 * release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_executeServiceInDefaultSessionAsync(
    TarnApi* api, KEL_KEPT const wchar_t* target, KEL_KEPT ServiceInput** services,
    uint32_t serviceCount, KelError** error,
    ExecuteServiceInDefaultSessionCallbackFunction callback, void* context);
/* Describes the one parameter that config selects. Position 232.
 * config: consumed: the library frees it with release_ParameterInfoConfig, also when the call
 * fails; NULL passes no record.
 * On success *info receives a ParameterInfo record, or NULL when the engine gives none; free
 * it with release_ParameterInfo. */
KEL_C_API void kel_getParameterInfo(TarnApi* api, KEL_CONSUMED ParameterInfoConfig* config,
                                    KelError** error, KEL_OUT ParameterInfo** info);

/* ---- Projects ----
 * Projects, configuration, system properties, database files and system information */
/* Reads a project's configuration. Position 7.
 * projectName: kept by the caller, read only during the call.
 * On success *config receives a ProjectConfig record, or NULL when the engine gives none; free
 * it with release_ProjectConfig. */
KEL_C_API void kel_getProjectConfiguration(TarnApi* api, KEL_KEPT const wchar_t* projectName,
                                           KelError** error, KEL_OUT ProjectConfig** config);
/* Sets a project's configuration. Position 8.
 * config: consumed: the library frees it with release_ProjectConfig, also when the call fails;
 * NULL passes no record.
 * projectName: kept by the caller, read only during the call. */
KEL_C_API void kel_setProjectConfiguration(TarnApi* api, KEL_KEPT const wchar_t* projectName,
                                           KEL_CONSUMED ProjectConfig* config, KelError** error);
/* Saves a project's configuration. Position 9.
 * projectName: kept by the caller, read only during the call. */
KEL_C_API void kel_saveProjectConfiguration(TarnApi* api, KEL_KEPT const wchar_t* projectName,
                                            KelError** error);
/* Saves the engine's configuration. Position 15. */
KEL_C_API void kel_saveConfiguration(TarnApi* api, KelError** error);
/* Has the engine read its list of projects again. Position 64. */
KEL_C_API void kel_refreshProjectList(TarnApi* api, KelError** error);
/* Tells whether a project must be converted before the engine can use it. Position 75.
 * projectPath: kept by the caller, read only during the call.
 * On success *required receives the result. */
KEL_C_API void kel_isProjectConversionRequired(TarnApi* api, KEL_KEPT const wchar_t* projectPath,
                                               KelError** error, KEL_OUT uint8_t* required);
/* Converts a project for the engine's current version. Position 76.
 * projectPath: kept by the caller, read only during the call. */
KEL_C_API void kel_convertProject(TarnApi* api, KEL_KEPT const wchar_t* projectPath,
                                  KelError** error);
/* Saves the MOX configuration. Position 77. */
KEL_C_API void kel_saveMoxConfiguration(TarnApi* api, KelError** error);
/* Reads the details of the selected project: its database files and users. Position 81.
 * On success *details receives a ProjectDetails record, or NULL when the engine gives none;
 * free it with release_ProjectDetails. */
KEL_C_API void kel_getProjectDetails(TarnApi* api, KelError** error,
                                     KEL_OUT ProjectDetails** details);
/* Reads a system property by name. Position 87.
 * name: kept by the caller, read only during the call.
 * On success *property receives a SystemProperty record, or NULL when the engine gives none;
 * free it with release_SystemProperty. */
KEL_C_API void kel_getSystemProperty(TarnApi* api, KEL_KEPT const wchar_t* name, KelError** error,
                                     KEL_OUT SystemProperty** property);
/* Sets a system property back to its default. Position 88.
 * name: kept by the caller, read only during the call. */
KEL_C_API void kel_resetSystemProperty(TarnApi* api, KEL_KEPT const wchar_t* name,
                                       KelError** error);
/* Sets a system property. Position 89.
 * property: consumed: the library frees it with release_SystemProperty, also when the call
 * fails; NULL passes no record. */
KEL_C_API void kel_setSystemProperty(TarnApi* api, KEL_CONSUMED SystemProperty* property,
                                     KelError** error);
/* Reads information about the system that the engine runs on. Position 150.
 * On success *info receives a SystemInfo record, or NULL when the engine gives none; free it
 * with release_SystemInfo. */
KEL_C_API void kel_getSystemInfo(TarnApi* api, KelError** error, KEL_OUT SystemInfo** info);
/* Loads the given database files; one result per file. Position 168.
 * files: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a LoadDatabaseResult list, NULL and 0 when
 * empty; free it with release_LoadDatabaseResult_array(results, resultCount). */
KEL_C_API void kel_loadDatabaseFile(TarnApi* api, KEL_KEPT wchar_t** files, uint32_t fileCount,
                                    KelError** error, KEL_OUT LoadDatabaseResult*** results,
                                    KEL_OUT uint32_t* resultCount);
/* Unloads the given database files; one result per file. Position 175.
 * files: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a LoadDatabaseResult list, NULL and 0 when
 * empty; free it with release_LoadDatabaseResult_array(results, resultCount). */
KEL_C_API void kel_unloadDatabaseFile(TarnApi* api, KEL_KEPT wchar_t** files, uint32_t fileCount,
                                      KelError** error, KEL_OUT LoadDatabaseResult*** results,
                                      KEL_OUT uint32_t* resultCount);
/* Reads the details of the given projects. Position 192.
 * projectNames: kept by the caller, read only during the call.
 * On success *details and *detailCount receive a ProjectDetails list, NULL and 0 when empty;
 * free it with release_ProjectDetails_array(details, detailCount). */
KEL_C_API void kel_getProjectsDetails(TarnApi* api, KEL_KEPT wchar_t** projectNames,
                                      uint32_t projectNameCount, KelError** error,
                                      KEL_OUT ProjectDetails*** details,
                                      KEL_OUT uint32_t* detailCount);
/* Selects a dynamic project made of the given items. Position 216.
 * projectName, items: kept by the caller, read only during the call. */
KEL_C_API void kel_selectDynamicProject(TarnApi* api, KEL_KEPT const wchar_t* projectName,
                                        KEL_KEPT wchar_t** items, uint32_t itemCount,
                                        KelError** error);
/* Lists the configurations of every project. Position 241.
 * On success *configs and *configCount receive a ProjectConfig list, NULL and 0 when empty;
 * free it with release_ProjectConfig_array(configs, configCount). */
KEL_C_API void kel_getProjectConfigurations(TarnApi* api, KelError** error,
                                            KEL_OUT ProjectConfig*** configs,
                                            KEL_OUT uint32_t* configCount);
/* Reads the engine's version. Position 243.
 * On success *version receives a new string; free it with release_Memory. */
KEL_C_API void kel_getVersion(TarnApi* api, KelError** error, KEL_OUT wchar_t** version);
/* Reads the name of the selected project. Position 244.
 * On success *projectName receives a new string; free it with release_Memory. */
KEL_C_API void kel_getSelectedProject(TarnApi* api, KelError** error,
                                      KEL_OUT wchar_t** projectName);
/* Selects a project by name. Position 245.
 * projectName: kept by the caller, read only during the call. */
KEL_C_API void kel_setSelectedProject(TarnApi* api, KelError** error,
                                      KEL_KEPT const wchar_t* projectName);
/* Reads the engine's configuration. Position 246.
 * On success *config receives a TarnApiConfig record, or NULL when the engine gives none; free
 * it with release_TarnApiConfig. */
KEL_C_API void kel_getConfiguration(TarnApi* api, KelError** error, KEL_OUT TarnApiConfig** config);
/* Sets the engine's configuration. Position 247.
 * config: consumed: the library frees it with release_TarnApiConfig, also when the call fails;
 * NULL passes no record. */
KEL_C_API void kel_setConfiguration(TarnApi* api, KelError** error,
                                    KEL_CONSUMED TarnApiConfig* config);
/* Reads information about the engine's processes. Position 252.
 * On success *info receives a ProcessInfo record, or NULL when the engine gives none; free it
 * with release_ProcessInfo. */
KEL_C_API void kel_getProcessInfo(TarnApi* api, KelError** error, KEL_OUT ProcessInfo** info);
/* Reads the engine's transmission information. Position 253.
 * On success *info receives a TransmissionInfo record, or NULL when the engine gives none;
 * free it with release_TransmissionInfo. */
KEL_C_API void kel_getTransmissionInfo(TarnApi* api, KelError** error,
                                       KEL_OUT TransmissionInfo** info);
/* Reads the MOX configuration. Position 255.
 * On success *config receives a MoxConfig record, or NULL when the engine gives none; free it
 * with release_MoxConfig. */
KEL_C_API void kel_getMoxConfiguration(TarnApi* api, KelError** error, KEL_OUT MoxConfig** config);
/* Sets the MOX configuration. Position 256.
 * config: consumed: the library frees it with release_MoxConfig, also when the call fails;
 * NULL passes no record. */
KEL_C_API void kel_setMoxConfiguration(TarnApi* api, KelError** error,
                                       KEL_CONSUMED MoxConfig* config);
/* Reads the global protocol parameter sets. Position 260.
 * On success *sets and *setCount receive a GlobalProtocolParameterSet list, NULL and 0 when
 * empty; free it with release_GlobalProtocolParameterSet_array(sets, setCount). */
KEL_C_API void kel_getGlobalProtocolParameterSets(TarnApi* api, KelError** error,
                                                  KEL_OUT GlobalProtocolParameterSet*** sets,
                                                  KEL_OUT uint32_t* setCount);
/* Sets the global protocol parameter sets. Position 261.
 * sets: kept by the caller, read only during the call. */
KEL_C_API void kel_setGlobalProtocolParameterSets(TarnApi* api, KelError** error,
                                                  KEL_KEPT GlobalProtocolParameterSet** sets,
                                                  uint32_t setCount);
/* Reads the engine's status information. Position 262.
 * On success *info receives a StatusInfo record, or NULL when the engine gives none; free it
 * with release_StatusInfo. */
KEL_C_API void kel_getStatusInfo(TarnApi* api, KelError** error, KEL_OUT StatusInfo** info);
/* Reads the directory that the engine writes its debug trace to. Position 268.
 * On success *directory receives a new string; free it with release_Memory. */
KEL_C_API void kel_getCurrentDebugTraceDirectory(TarnApi* api, KelError** error,
                                                 KEL_OUT wchar_t** directory);
/* Sets the engine's status text. Position 271.
 * text: kept by the caller, read only during the call. */
KEL_C_API void kel_setStatusText(TarnApi* api, KelError** error, KEL_KEPT const wchar_t* text);

/* ---- Servers ----
 * The engine's servers, remote connections, users, logins and certificates */
/* Starts the engine's server for remote clients under the given name (empty: "server") and
 * returns the address where it listens, which connectRemoteServer takes. Position 4.
 * name: kept by the caller, read only during the call.
 * On success *address receives a new string; free it with release_Memory. */
KEL_C_API void kel_startServer(TarnApi* api, KEL_KEPT const wchar_t* name, KelError** error,
                               KEL_OUT wchar_t** address);
/* Stops the engine's server; its remote connections end. The reason is passed on to the
 * server's clients in the ServerStopped event. Position 5.
 * reason: kept by the caller, read only during the call. */
KEL_C_API void kel_stopServer(TarnApi* api, KEL_KEPT const wchar_t* reason, KelError** error);
/* Restarts the engine's server at the same address; with endClients not 0 its remote
 * connections end, otherwise they stay. Position 6. */
KEL_C_API void kel_restartServer(TarnApi* api, int32_t endClients, KelError** error);
/* Connects to the engine's server at the given address and hands out the remote engine
 * object's address, not its engine handle (kel_getHandle reads that, for
 * kel_reconnectRemoteServer). Position 37.
 * address: kept by the caller, read only during the call.
 * On success *handle receives the address of the new engine object as a 64-bit value: use it
 * as (TarnApi*)(uintptr_t)handle, and give it back with releaseTarnApi. */
KEL_C_API void kel_connectRemoteServer(TarnApi* api, KEL_KEPT const wchar_t* address,
                                       KelError** error, KEL_OUT uint64_t* handle);
/* Ends this remote connection; the server's handlers hear that its client left. Position 56. */
KEL_C_API void kel_disconnect(TarnApi* api, KelError** error);
/* Adds a user with a password and a role (1 operator, 2 administrator) to the server's user
 * management. Position 124.
 * name, password: kept by the caller, read only during the call. */
KEL_C_API void kel_addUser(TarnApi* api, KEL_KEPT const wchar_t* name,
                           KEL_KEPT const wchar_t* password, uint32_t role, KelError** error);
/* Removes a user from the server's user management; its logins end. Position 125.
 * name: kept by the caller, read only during the call. */
KEL_C_API void kel_removeUser(TarnApi* api, KEL_KEPT const wchar_t* name, KelError** error);
/* Lists the server's users by name, without their passwords. Position 126.
 * On success *users and *userCount receive an UserInfo list, NULL and 0 when empty; free it
 * with release_UserInfo_array(users, userCount). */
KEL_C_API void kel_getUsers(TarnApi* api, KelError** error, KEL_OUT UserInfo*** users,
                            KEL_OUT uint32_t* userCount);
/* Logs the user of this engine object out of the server. Position 127.
 * config: consumed: the library frees it with release_LogInOutConfig, also when the call
 * fails; NULL passes no record. */
KEL_C_API void kel_logOut(TarnApi* api, KEL_CONSUMED LogInOutConfig* config, KelError** error);
/* Changes a user: a new name (empty keeps the name), a new password (empty keeps the password)
 * and the role. Position 128.
 * name, newName, newPassword: kept by the caller, read only during the call. */
KEL_C_API void kel_updateUser(TarnApi* api, KEL_KEPT const wchar_t* name,
                              KEL_KEPT const wchar_t* newName, KEL_KEPT const wchar_t* newPassword,
                              uint32_t role, KelError** error);
/* Tells whether the server's user management is on. Position 129.
 * On success *enabled receives the result. */
KEL_C_API void kel_getServerUserManagement(TarnApi* api, KelError** error,
                                           KEL_OUT uint8_t* enabled);
/* Turns the server's user management on or off. While it is on, a remote connection must log
 * in before any other call. Position 130. */
KEL_C_API void kel_setServerUserManagement(TarnApi* api, uint8_t enabled, KelError** error);
/* Ends every remote connection to the engine. Position 133. */
KEL_C_API void kel_disconnectAllClients(TarnApi* api, KelError** error);
/* Renews the remote connection whose engine handle is given (kel_getHandle, not the address
 * that kel_connectRemoteServer hands out); tells whether it is connected again (not while the
 * server is stopped). Position 172.
 * On success *reconnected receives the result. */
KEL_C_API void kel_reconnectRemoteServer(TarnApi* api, uint64_t handle, KelError** error,
                                         KEL_OUT uint8_t* reconnected);
/* Logs this engine object in with an authorization code of the outside identity provider;
 * tells whether the provider accepted the code for a user of the server. Position 213.
 * code: kept by the caller, read only during the call.
 * On success *result receives the result. */
KEL_C_API void kel_thirdPartyLogin(TarnApi* api, KEL_KEPT const wchar_t* code, KelError** error,
                                   KEL_OUT uint8_t* result);
/* The address at which a user logs in to the named outside identity provider (empty: the
 * engine's own); each address carries a login state of its own. Position 215.
 * provider: kept by the caller, read only during the call.
 * On success *url receives a new string; free it with release_Memory. */
KEL_C_API void kel_getThirdPartyLoginUrl(TarnApi* api, KEL_KEPT const wchar_t* provider,
                                         KelError** error, KEL_OUT wchar_t** url);
/* Looks up a certificate of the engine's certificate store by its public key (a PEM "PUBLIC
 * KEY" block or its Base64 text); returns it as PEM text. Position 217.
 * publicKey, text2, text3, text4: kept by the caller, read only during the call.
 * On success *certificate receives a new string; free it with release_Memory. */
KEL_C_API void kel_getCertificateByPublicKey(TarnApi* api, KEL_KEPT const wchar_t* publicKey,
                                             KEL_KEPT const wchar_t* text2,
                                             KEL_KEPT const wchar_t* text3,
                                             KEL_KEPT const wchar_t* text4, KelError** error,
                                             KEL_OUT wchar_t** certificate);
/* Issues a certificate for a certificate signing request. Position 218.
 * text1, text2, text3, text4, text5, text6: kept by the caller, read only during the call.
 * On success *certificate receives a new string; free it with release_Memory. */
KEL_C_API void kel_createCertificateFromCSR(
    TarnApi* api, KEL_KEPT const wchar_t* text1, KEL_KEPT const wchar_t* text2,
    KEL_KEPT const wchar_t* text3, KEL_KEPT const wchar_t* text4, KEL_KEPT const wchar_t* text5,
    KEL_KEPT const wchar_t* text6, KelError** error, KEL_OUT wchar_t** certificate);
/* Reads the chain of the certificate with the given identifier from the engine's certificate
 * store: the certificate first, then each issuer, as PEM texts. Position 219.
 * id, text2, text3: kept by the caller, read only during the call.
 * On success *chain and *chainCount receive a string list, NULL and 0 when empty; free it with
 * release_StringArray(chain, chainCount). */
KEL_C_API void kel_getCertificateChainById(TarnApi* api, KEL_KEPT const wchar_t* id,
                                           KEL_KEPT const wchar_t* text2,
                                           KEL_KEPT const wchar_t* text3, KelError** error,
                                           KEL_OUT wchar_t*** chain, KEL_OUT uint32_t* chainCount);
/* Starts the SOVD server. Position 237. */
KEL_C_API void kel_startSOVDServer(TarnApi* api, KelError** error);
/* Stops the SOVD server. Position 238. */
KEL_C_API void kel_stopSOVDServer(TarnApi* api, KelError** error);
/* Logs this engine object in to the server with a user's name and password. Position 239.
 * config: consumed: the library frees it with release_LogInOutConfig, also when the call
 * fails; NULL passes no record. */
KEL_C_API void kel_logIn(TarnApi* api, KEL_CONSUMED LogInOutConfig* config, KelError** error);
/* Reads the server's settings. Position 248.
 * On success *settings receives a ServerSettings record, or NULL when the engine gives none;
 * free it with release_ServerSettings. */
KEL_C_API void kel_getServerSettings(TarnApi* api, KelError** error,
                                     KEL_OUT ServerSettings** settings);
/* Reads the server's configuration: its users, logins, file filters and addresses.
 * Position 269.
 * On success *config receives a TarnApiServerConfig record, or NULL when the engine gives
 * none; free it with release_TarnApiServerConfig. */
KEL_C_API void kel_getServerConfiguration(TarnApi* api, KelError** error,
                                          KEL_OUT TarnApiServerConfig** config);

/* ---- Interfaces ----
 * Interfaces, resources, dynamic detection, devices, physical links, DoIP, socket bridge and
 * terminal */
/* Saves the interface configuration. Position 53. */
KEL_C_API void kel_saveInterfaceConfiguration(TarnApi* api, KelError** error);
/* Scans the connection of the given interfaces; one result per interface. Position 54.
 * interfaces: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a ScanInterfaceResult list, NULL and 0 when
 * empty; free it with release_ScanInterfaceResult_array(results, resultCount). */
KEL_C_API void kel_scanInterfaceConnection(TarnApi* api, KEL_KEPT wchar_t** interfaces,
                                           uint32_t interfaceCount, KelError** error,
                                           KEL_OUT ScanInterfaceResult*** results,
                                           KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_scanInterfaceConnection. Position 55.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * interfaces: kept by the caller, read only during the call.
 * callback receives ScanInterfaceResult lists, once or several times until isFinal, on a
 * thread of the engine; each list and error belong to it, to free with
 * release_ScanInterfaceResult_array and release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_scanInterfaceConnectionAsync(
    TarnApi* api, KEL_KEPT wchar_t** interfaces, uint32_t interfaceCount, KelError** error,
    ScanInterfaceConnectionCallbackFunction callback, void* context);
/* Reads the long name of an interface. Position 57.
 * name: kept by the caller, read only during the call.
 * On success *longName receives a new string; free it with release_Memory. */
KEL_C_API void kel_getInterfaceLongName(TarnApi* api, KEL_KEPT const wchar_t* name,
                                        KelError** error, KEL_OUT wchar_t** longName);
/* Connects the configured interfaces. Position 61. */
KEL_C_API void kel_connectInterfaces(TarnApi* api, KelError** error);
/* Disconnects the connected interfaces. Position 62. */
KEL_C_API void kel_disconnectInterfaces(TarnApi* api, KelError** error);
/* Sends a DoIP broadcast to find the vehicles on the network. Position 63. */
KEL_C_API void kel_executeDoIPBroadcast(TarnApi* api, KelError** error);
/* Closes a socket bridge opened with kel_createSocketBridge. Position 68. */
KEL_C_API void kel_releaseSocketBridge(TarnApi* api, uint64_t bridge, KelError** error);
/* Opens a socket bridge and returns its identifier; the two values are passed to the engine
 * unchanged. Position 69.
 * On success *bridge receives the result. */
KEL_C_API void kel_createSocketBridge(TarnApi* api, uint32_t value1, uint32_t value2,
                                      KelError** error, KEL_OUT uint64_t* bridge);
/* Clears the engine's cache of links. Position 82. */
KEL_C_API void kel_clearLinkCache(TarnApi* api, KelError** error);
/* Adds a resource to an interface; value is passed to the engine unchanged. Position 83.
 * resource: consumed: the library frees it with release_ResourceInformation, also when the
 * call fails; NULL passes no record.
 * name: kept by the caller, read only during the call. */
KEL_C_API void kel_addResource(TarnApi* api, KEL_KEPT const wchar_t* name,
                               KEL_CONSUMED ResourceInformation* resource, uint16_t value,
                               KelError** error);
/* Removes an interface. Position 84.
 * name: kept by the caller, read only during the call. */
KEL_C_API void kel_removeInterface(TarnApi* api, KEL_KEPT const wchar_t* name, KelError** error);
/* Adds an interface and returns it as the engine completed it. Position 85.
 * interfaceInfo: consumed: the library frees it with release_InterfaceInformation, also when
 * the call fails; NULL passes no record.
 * text1, text2, text3: kept by the caller, read only during the call.
 * On success *result receives an InterfaceInformation record, or NULL when the engine gives
 * none; free it with release_InterfaceInformation. */
KEL_C_API void kel_addInterface(TarnApi* api, KEL_CONSUMED InterfaceInformation* interfaceInfo,
                                KEL_KEPT const wchar_t* text1, KEL_KEPT const wchar_t* text2,
                                KEL_KEPT const wchar_t* text3, KelError** error,
                                KEL_OUT InterfaceInformation** result);
/* Removes a resource from an interface. Position 86.
 * name1, name2: kept by the caller, read only during the call. */
KEL_C_API void kel_removeResource(TarnApi* api, KEL_KEPT const wchar_t* name1,
                                  KEL_KEPT const wchar_t* name2, KelError** error);
/* Lists the vendor module names of an interface. Position 90.
 * interfaceInfo: consumed: the library frees it with release_InterfaceInformation, also when
 * the call fails; NULL passes no record.
 * On success *names and *nameCount receive a string list, NULL and 0 when empty; free it with
 * release_StringArray(names, nameCount). */
KEL_C_API void kel_getVendorModuleNames(TarnApi* api,
                                        KEL_CONSUMED InterfaceInformation* interfaceInfo,
                                        KelError** error, KEL_OUT wchar_t*** names,
                                        KEL_OUT uint32_t* nameCount);
/* Lists vendor module names; text selects them as the engine defines. Position 91.
 * text: kept by the caller, read only during the call.
 * On success *names and *nameCount receive a string list, NULL and 0 when empty; free it with
 * release_StringArray(names, nameCount). */
KEL_C_API void kel_getVendorModuleNamesEx(TarnApi* api, KEL_KEPT const wchar_t* text,
                                          KelError** error, KEL_OUT wchar_t*** names,
                                          KEL_OUT uint32_t* nameCount);
/* Detects dynamic interfaces as the detection record says; returns the modules found.
 * Position 94.
 * detection: consumed: the library frees it with release_DynInterfaceDetection, also when the
 * call fails; NULL passes no record.
 * On success *modules and *moduleCount receive a ModuleDyn list, NULL and 0 when empty; free
 * it with release_ModuleDyn_array(modules, moduleCount). */
KEL_C_API void kel_detectDynInterfaces(TarnApi* api, uint32_t value,
                                       KEL_CONSUMED DynInterfaceDetection* detection,
                                       KelError** error, KEL_OUT ModuleDyn*** modules,
                                       KEL_OUT uint32_t* moduleCount);
/* Asynchronous form of kel_detectDynInterfaces. Position 95.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * detection: consumed: the library frees it with release_DynInterfaceDetection, also when the
 * call fails; NULL passes no record.
 * callback receives ModuleDyn lists, once or several times until isFinal, on a thread of the
 * engine; each list and error belong to it, to free with release_ModuleDyn_array and
 * release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_detectDynInterfacesAsync(TarnApi* api, uint32_t value,
                                                KEL_CONSUMED DynInterfaceDetection* detection,
                                                KelError** error,
                                                DetectDynInterfacesCallbackFunction callback,
                                                void* context);
/* Connects a dynamically detected interface. Position 96.
 * detection: consumed: the library frees it with release_DynInterfaceDetection, also when the
 * call fails; NULL passes no record.
 * name: kept by the caller, read only during the call. */
KEL_C_API void kel_connectDynInterface(TarnApi* api, KEL_KEPT const wchar_t* name, uint8_t flag,
                                       KEL_CONSUMED DynInterfaceDetection* detection,
                                       KelError** error);
/* Disconnects the given dynamically detected interfaces. Position 97.
 * names: kept by the caller, read only during the call. */
KEL_C_API void kel_disconnectDynInterfaces(TarnApi* api, KEL_KEPT wchar_t** names,
                                           uint32_t nameCount, KelError** error);
/* Sets the Ethernet pin state of the given interfaces. Position 119.
 * interfaces: kept by the caller, read only during the call. */
KEL_C_API void kel_setEthernetPinState(TarnApi* api, uint8_t state, KEL_KEPT wchar_t** interfaces,
                                       uint32_t interfaceCount, KelError** error);
/* Reads the Ethernet pin state of an interface. Position 120.
 * interfaceName: kept by the caller, read only during the call.
 * On success *state receives the result. */
KEL_C_API void kel_getEthernetPinState(TarnApi* api, KEL_KEPT const wchar_t* interfaceName,
                                       KelError** error, KEL_OUT uint32_t* state);
/* Detects dynamic interfaces without a detection record; returns the modules found.
 * Position 121.
 * On success *modules and *moduleCount receive a ModuleDyn list, NULL and 0 when empty; free
 * it with release_ModuleDyn_array(modules, moduleCount). */
KEL_C_API void kel_detectDynInterfacesEx(TarnApi* api, uint32_t value, KelError** error,
                                         KEL_OUT ModuleDyn*** modules,
                                         KEL_OUT uint32_t* moduleCount);
/* Asynchronous form of kel_detectDynInterfacesEx. Position 122.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * callback receives ModuleDyn lists, once or several times until isFinal, on a thread of the
 * engine; each list and error belong to it, to free with release_ModuleDyn_array and
 * release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_detectDynInterfacesExAsync(TarnApi* api, uint32_t value, KelError** error,
                                                  DetectDynInterfacesExCallbackFunction callback,
                                                  void* context);
/* Connects a dynamically detected interface without a detection record. Position 123.
 * name: kept by the caller, read only during the call. */
KEL_C_API void kel_connectDynInterfaceEx(TarnApi* api, KEL_KEPT const wchar_t* name, uint8_t flag,
                                         KelError** error);
/* Tells whether a socket bridge works. Position 134.
 * On success *result receives the result. */
KEL_C_API void kel_testSocketBridge(TarnApi* api, uint64_t bridge, KelError** error,
                                    KEL_OUT uint8_t* result);
/* Lists the registered devices. Position 149.
 * On success *devices and *deviceCount receive a DeviceInfo list, NULL and 0 when empty; free
 * it with release_DeviceInfo_array(devices, deviceCount). */
KEL_C_API void kel_getRegisteredDevices(TarnApi* api, KelError** error,
                                        KEL_OUT DeviceInfo*** devices,
                                        KEL_OUT uint32_t* deviceCount);
/* Reads the physical links of the given modules. Position 182.
 * modules: kept by the caller, read only during the call.
 * On success *links and *linkCount receive a PhysicalLinksOnModule list, NULL and 0 when
 * empty; free it with release_PhysicalLinksOnModule_array(links, linkCount). */
KEL_C_API void kel_getPhysicalLinks(TarnApi* api, KEL_KEPT wchar_t** modules, uint32_t moduleCount,
                                    KelError** error, KEL_OUT PhysicalLinksOnModule*** links,
                                    KEL_OUT uint32_t* linkCount);
/* Sets the physical links of modules and returns them as the engine keeps them. Position 183.
 * links: kept by the caller, read only during the call.
 * On success *updated and *updatedCount receive a PhysicalLinksOnModule list, NULL and 0 when
 * empty; free it with release_PhysicalLinksOnModule_array(updated, updatedCount). */
KEL_C_API void kel_setPhysicalLinks(TarnApi* api, KEL_KEPT PhysicalLinksOnModule** links,
                                    uint32_t linkCount, KelError** error,
                                    KEL_OUT PhysicalLinksOnModule*** updated,
                                    KEL_OUT uint32_t* updatedCount);
/* Opens the terminal; tells whether it opened. Position 196.
 * On success *opened receives the result. */
KEL_C_API void kel_openTerminal(TarnApi* api, KelError** error, KEL_OUT uint8_t* opened);
/* Closes the terminal. Position 197. */
KEL_C_API void kel_closeTerminal(TarnApi* api, KelError** error);
/* Reads the WLAN signal data of an interface. Position 204.
 * interfaceName: kept by the caller, read only during the call.
 * On success *data receives a WLanSignalData record, or NULL when the engine gives none; free
 * it with release_WLanSignalData. */
KEL_C_API void kel_getWLanSignalData(TarnApi* api, KEL_KEPT const wchar_t* interfaceName,
                                     KelError** error, KEL_OUT WLanSignalData** data);
/* Clears the collection of ECUs found over DoIP; returns an error record for each entry that
 * the engine reports. Position 205.
 * On success *errors and *errorCount receive a KelError list, NULL and 0 when empty; free it
 * with release_KelError_array(errors, errorCount). */
KEL_C_API void kel_clearDoIPEcuCollection(TarnApi* api, KelError** error,
                                          KEL_OUT KelError*** errors, KEL_OUT uint32_t* errorCount);
/* Reads the interface configuration. Position 257.
 * On success *config receives an InterfaceConfiguration record, or NULL when the engine gives
 * none; free it with release_InterfaceConfiguration. */
KEL_C_API void kel_getInterfaceConfiguration(TarnApi* api, KelError** error,
                                             KEL_OUT InterfaceConfiguration** config);
/* Sets the interface configuration. Position 258.
 * config: consumed: the library frees it with release_InterfaceConfiguration, also when the
 * call fails; NULL passes no record. */
KEL_C_API void kel_setInterfaceConfiguration(TarnApi* api, KelError** error,
                                             KEL_CONSUMED InterfaceConfiguration* config);
/* Lists the supported kinds of interface. Position 265.
 * On success *interfaces and *interfaceCount receive a SupportedInterface list, NULL and 0
 * when empty; free it with release_SupportedInterface_array(interfaces, interfaceCount). */
KEL_C_API void kel_getSupportedInterfaces(TarnApi* api, KelError** error,
                                          KEL_OUT SupportedInterface*** interfaces,
                                          KEL_OUT uint32_t* interfaceCount);
/* Lists the interface providers. Position 266.
 * On success *providers and *providerCount receive an InterfaceProvider list, NULL and 0 when
 * empty; free it with release_InterfaceProvider_array(providers, providerCount). */
KEL_C_API void kel_getInterfaceProviders(TarnApi* api, KelError** error,
                                         KEL_OUT InterfaceProvider*** providers,
                                         KEL_OUT uint32_t* providerCount);
/* Sets the interface providers. Position 267.
 * providers: kept by the caller, read only during the call. */
KEL_C_API void kel_setInterfaceProviders(TarnApi* api, KelError** error,
                                         KEL_KEPT InterfaceProvider** providers,
                                         uint32_t providerCount);
/* Reads the default DoIP parameters. Position 272.
 * On success *parameter receives a DoIPParameter record, or NULL when the engine gives none;
 * free it with release_DoIPParameter. */
KEL_C_API void kel_getDefaultDoIPParameter(TarnApi* api, KelError** error,
                                           KEL_OUT DoIPParameter** parameter);

/* ---- Monitoring ----
 * Monitoring links, PDU monitors, trace-file monitoring and the API trace */
/* Opens a monitoring link on the running communication; returns its handle. Position 10.
 * name: kept by the caller, read only during the call.
 * On success *handle receives the result. */
KEL_C_API void kel_createMonitoringLink(TarnApi* api, KEL_KEPT const wchar_t* name,
                                        KelError** error, KEL_OUT uint64_t* handle);
/* Fetches the items that a monitoring link recorded; the two values are passed to the engine
 * unchanged. Position 11.
 * On success *items and *itemCount receive a MonitoringItem list, NULL and 0 when empty; free
 * it with release_MonitoringItem_array(items, itemCount). */
KEL_C_API void kel_getMonitoringItems(TarnApi* api, uint64_t handle, uint32_t value1,
                                      int32_t value2, KelError** error,
                                      KEL_OUT MonitoringItem*** items, KEL_OUT uint32_t* itemCount);
/* Closes a monitoring link. Position 12. */
KEL_C_API void kel_releaseMonitoringLink(TarnApi* api, uint64_t handle, KelError** error);
/* Fetches the protocol data units that a PDU monitor recorded; the two values are passed to
 * the engine unchanged. Position 13.
 * On success *items and *itemCount receive a PduMonitoringItem list, NULL and 0 when empty;
 * free it with release_PduMonitoringItem_array(items, itemCount). */
KEL_C_API void kel_getPduMonitoringItems(TarnApi* api, uint64_t handle, uint32_t value1,
                                         int32_t value2, KelError** error,
                                         KEL_OUT PduMonitoringItem*** items,
                                         KEL_OUT uint32_t* itemCount);
/* Opens a PDU monitor; returns its handle. Position 14.
 * On success *handle receives the result. */
KEL_C_API void kel_createPduMonitor(TarnApi* api, KelError** error, KEL_OUT uint64_t* handle);
/* Closes a PDU monitor. Position 16. */
KEL_C_API void kel_releasePduMonitor(TarnApi* api, uint64_t handle, KelError** error);
/* Opens a recorded trace file for monitoring under the given handle. Position 49.
 * traceFile: kept by the caller, read only during the call. */
KEL_C_API void kel_openTraceFileMonitoringLink(TarnApi* api, uint64_t handle,
                                               KEL_KEPT const wchar_t* traceFile, KelError** error);
/* Starts the monitoring of a trace file. Position 50. */
KEL_C_API void kel_startTraceFileMonitoringLink(TarnApi* api, uint64_t handle, KelError** error);
/* Stops the monitoring of a trace file. Position 51. */
KEL_C_API void kel_stopTraceFileMonitoringLink(TarnApi* api, uint64_t handle, KelError** error);
/* Closes the monitoring of a trace file. Position 52. */
KEL_C_API void kel_closeTraceFileMonitoringLink(TarnApi* api, uint64_t handle, KelError** error);
/* Opens an API trace monitor, which records the calls made on the engine; returns its handle.
 * Position 160.
 * On success *handle receives the result. */
KEL_C_API void kel_createApiTraceMonitor(TarnApi* api, KelError** error, KEL_OUT uint64_t* handle);
/* Fetches what an API trace monitor recorded, as bytes; the two values are passed to the
 * engine unchanged. Position 161.
 * On success *data receives a buffer of *dataLength bytes, allocated also for 0 bytes; free it
 * with release_Memory. */
KEL_C_API void kel_getApiTraceContent(TarnApi* api, uint64_t handle, uint32_t value1,
                                      int32_t value2, KelError** error, KEL_OUT void** data,
                                      KEL_OUT uint32_t* dataLength);
/* Closes an API trace monitor. Position 162. */
KEL_C_API void kel_releaseApiTraceMonitor(TarnApi* api, uint64_t handle, KelError** error);
/* Lists the names of the monitoring links. Position 259.
 * On success *links and *linkCount receive a string list, NULL and 0 when empty; free it with
 * release_StringArray(links, linkCount). */
KEL_C_API void kel_getMonitoringLinks(TarnApi* api, KelError** error, KEL_OUT wchar_t*** links,
                                      KEL_OUT uint32_t* linkCount);

/* ---- Files ----
 * The file system of the engine's public directories */
/* Reads a file from offset on: length bytes, or to the end when length is 0; with exact,
 * asking past the end is an error, otherwise what is there comes back. Position 60.
 * path: kept by the caller, read only during the call.
 * On success *data receives a buffer of *dataLength bytes, allocated also for 0 bytes; free it
 * with release_Memory. */
KEL_C_API void kel_readFile(TarnApi* api, KEL_KEPT const wchar_t* path, uint64_t value1,
                            uint32_t value2, uint8_t flag, KelError** error, KEL_OUT void** data,
                            KEL_OUT uint32_t* dataLength);
/* Reads the project directory as a tree. Position 100.
 * On success *directory receives a DirectoryInfo record, or NULL when the engine gives none;
 * free it with release_DirectoryInfo. */
KEL_C_API void kel_getProjectDirectory(TarnApi* api, uint8_t flag, KelError** error,
                                       KEL_OUT DirectoryInfo** directory);
/* Reads the selected project's directory as a tree. Position 101.
 * On success *directory receives a DirectoryInfo record, or NULL when the engine gives none;
 * free it with release_DirectoryInfo. */
KEL_C_API void kel_getSelectedProjectDirectory(TarnApi* api, uint8_t flag, KelError** error,
                                               KEL_OUT DirectoryInfo** directory);
/* Writes bytes to a file: mode 0 replaces it, 1 appends, 2 creates only; with makeDirectories,
 * missing directories are made. Returns the bytes written. Position 102.
 * path, data: kept by the caller, read only during the call.
 * On success *result receives the result. */
KEL_C_API void kel_writeFile(TarnApi* api, KEL_KEPT const wchar_t* path,
                             KEL_KEPT const uint8_t* data, uint32_t dataLength, uint32_t value,
                             uint8_t flag, KelError** error, KEL_OUT uint32_t* result);
/* Deletes the given files; the outcome comes back as an error record, NULL when the engine
 * reports none. Position 103.
 * files: kept by the caller, read only during the call.
 * On success *result receives a KelError record, or NULL when the engine gives none; free it
 * with release_KelError. */
KEL_C_API void kel_deleteFiles(TarnApi* api, KEL_KEPT FileInfo** files, uint32_t fileCount,
                               KelError** error, KEL_OUT KelError** result);
/* Finds the directories below a directory whose names match a pattern. Position 104.
 * directory: consumed: the library frees it with release_DirectoryInfo, also when the call
 * fails; NULL passes no record.
 * pattern: kept by the caller, read only during the call.
 * On success *directories and *directoryCount receive a DirectoryInfo list, NULL and 0 when
 * empty; free it with release_DirectoryInfo_array(directories, directoryCount). */
KEL_C_API void kel_findDirectories(TarnApi* api, KEL_CONSUMED DirectoryInfo* directory,
                                   KEL_KEPT const wchar_t* pattern, uint8_t flag, KelError** error,
                                   KEL_OUT DirectoryInfo*** directories,
                                   KEL_OUT uint32_t* directoryCount);
/* Finds the files in a directory whose names match a pattern. Position 105.
 * directory, pattern: kept by the caller, read only during the call.
 * On success *files and *fileCount receive a FileInfo list, NULL and 0 when empty; free it
 * with release_FileInfo_array(files, fileCount). */
KEL_C_API void kel_findFiles(TarnApi* api, KEL_KEPT const wchar_t* directory,
                             KEL_KEPT const wchar_t* pattern, uint8_t flag, KelError** error,
                             KEL_OUT FileInfo*** files, KEL_OUT uint32_t* fileCount);
/* Fills in the files and sub-directories of a directory. Position 106.
 * directory: consumed: the library frees it with release_DirectoryInfo, also when the call
 * fails; NULL passes no record.
 * On success *result receives a DirectoryInfo record, or NULL when the engine gives none; free
 * it with release_DirectoryInfo. */
KEL_C_API void kel_initializeDirectoryElements(TarnApi* api, KEL_CONSUMED DirectoryInfo* directory,
                                               uint8_t flag, KelError** error,
                                               KEL_OUT DirectoryInfo** result);
/* Creates a file in a directory. Position 107.
 * parent: consumed: the library frees it with release_DirectoryInfo, also when the call fails;
 * NULL passes no record.
 * name: kept by the caller, read only during the call.
 * On success *file receives a FileInfo record, or NULL when the engine gives none; free it
 * with release_FileInfo. */
KEL_C_API void kel_createFile(TarnApi* api, KEL_CONSUMED DirectoryInfo* parent,
                              KEL_KEPT const wchar_t* name, KelError** error,
                              KEL_OUT FileInfo** file);
/* Creates a directory in a directory. Position 108.
 * parent: consumed: the library frees it with release_DirectoryInfo, also when the call fails;
 * NULL passes no record.
 * name: kept by the caller, read only during the call.
 * On success *directory receives a DirectoryInfo record, or NULL when the engine gives none;
 * free it with release_DirectoryInfo. */
KEL_C_API void kel_createDirectory(TarnApi* api, KEL_CONSUMED DirectoryInfo* parent,
                                   KEL_KEPT const wchar_t* name, KelError** error,
                                   KEL_OUT DirectoryInfo** directory);
/* Deletes a directory; the outcome comes back as an error record, NULL when the engine reports
 * none. Position 109.
 * path: kept by the caller, read only during the call.
 * On success *result receives a KelError record, or NULL when the engine gives none; free it
 * with release_KelError. */
KEL_C_API void kel_deleteDirectory(TarnApi* api, KEL_KEPT const wchar_t* path, KelError** error,
                                   KEL_OUT KelError** result);
/* Reads the trace directory as a tree. Position 110.
 * On success *directory receives a DirectoryInfo record, or NULL when the engine gives none;
 * free it with release_DirectoryInfo. */
KEL_C_API void kel_getTraceDirectory(TarnApi* api, uint8_t flag, KelError** error,
                                     KEL_OUT DirectoryInfo** directory);
/* Copies files as config says; one result per file. Position 136.
 * config: consumed: the library frees it with release_FileCopyConfig, also when the call
 * fails; NULL passes no record.
 * On success *results and *resultCount receive a FileCopyResult list, NULL and 0 when empty;
 * free it with release_FileCopyResult_array(results, resultCount). */
KEL_C_API void kel_copyFiles(TarnApi* api, KEL_CONSUMED FileCopyConfig* config, KelError** error,
                             KEL_OUT FileCopyResult*** results, KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_copyFiles. Position 137.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * config: consumed: the library frees it with release_FileCopyConfig, also when the call
 * fails; NULL passes no record.
 * callback receives FileCopyResult lists, once or several times until isFinal, on a thread of
 * the engine; each list and error belong to it, to free with release_FileCopyResult_array and
 * release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_copyFilesAsync(TarnApi* api, KEL_CONSUMED FileCopyConfig* config,
                                      KelError** error, CopyFilesCallbackFunction callback,
                                      void* context);
/* Copies directories as config says; one result per directory. Position 138.
 * config: consumed: the library frees it with release_DirectoryCopyConfig, also when the call
 * fails; NULL passes no record.
 * On success *results and *resultCount receive a DirectoryCopyResult list, NULL and 0 when
 * empty; free it with release_DirectoryCopyResult_array(results, resultCount). */
KEL_C_API void kel_copyDirectories(TarnApi* api, KEL_CONSUMED DirectoryCopyConfig* config,
                                   KelError** error, KEL_OUT DirectoryCopyResult*** results,
                                   KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_copyDirectories. Position 139.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * config: consumed: the library frees it with release_DirectoryCopyConfig, also when the call
 * fails; NULL passes no record.
 * callback receives DirectoryCopyResult lists, once or several times until isFinal, on a
 * thread of the engine; each list and error belong to it, to free with
 * release_DirectoryCopyResult_array and release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_copyDirectoriesAsync(TarnApi* api, KEL_CONSUMED DirectoryCopyConfig* config,
                                            KelError** error,
                                            CopyDirectoriesCallbackFunction callback,
                                            void* context);
/* Renames a file. Position 152.
 * path, newName: kept by the caller, read only during the call. */
KEL_C_API void kel_renameFile(TarnApi* api, KEL_KEPT const wchar_t* path,
                              KEL_KEPT const wchar_t* newName, KelError** error);
/* Reads the configuration directory as a tree. Position 158.
 * On success *directory receives a DirectoryInfo record, or NULL when the engine gives none;
 * free it with release_DirectoryInfo. */
KEL_C_API void kel_getConfigDirectory(TarnApi* api, uint8_t flag, KelError** error,
                                      KEL_OUT DirectoryInfo** directory);
/* Copies the files of a project that pass the given file filters, as config says; returns the
 * files copied. Position 169.
 * config: consumed: the library frees it with release_FileCopyConfig, also when the call
 * fails; NULL passes no record.
 * filters, text: kept by the caller, read only during the call.
 * On success *files and *fileCount receive a FileInfo list, NULL and 0 when empty; free it
 * with release_FileInfo_array(files, fileCount). */
KEL_C_API void kel_copyProjectWithFilters(TarnApi* api, KEL_KEPT FileFilter** filters,
                                          uint32_t filterCount, uint8_t flag,
                                          KEL_CONSUMED FileCopyConfig* config,
                                          KEL_KEPT const wchar_t* text, KelError** error,
                                          KEL_OUT FileInfo*** files, KEL_OUT uint32_t* fileCount);
/* Lists the files that pass the given file filters. Position 173.
 * filters, text: kept by the caller, read only during the call.
 * On success *files and *fileCount receive a string list, NULL and 0 when empty; free it with
 * release_StringArray(files, fileCount). */
KEL_C_API void kel_filterFiles(TarnApi* api, KEL_KEPT FileFilter** filters, uint32_t filterCount,
                               KEL_KEPT const wchar_t* text, KelError** error,
                               KEL_OUT wchar_t*** files, KEL_OUT uint32_t* fileCount);
/* Lists the engine's public directories. Position 176.
 * On success *directories and *directoryCount receive a DirectoryInfo list, NULL and 0 when
 * empty; free it with release_DirectoryInfo_array(directories, directoryCount). */
KEL_C_API void kel_getPublicDirectories(TarnApi* api, KelError** error,
                                        KEL_OUT DirectoryInfo*** directories,
                                        KEL_OUT uint32_t* directoryCount);
/* Moves a file; tells whether it moved. Position 184.
 * source, target: kept by the caller, read only during the call.
 * On success *moved receives the result. */
KEL_C_API void kel_moveFile(TarnApi* api, KEL_KEPT const wchar_t* source,
                            KEL_KEPT const wchar_t* target, KelError** error,
                            KEL_OUT uint8_t* moved);
/* Moves a directory; tells whether it moved. Position 185.
 * source, target: kept by the caller, read only during the call.
 * On success *moved receives the result. */
KEL_C_API void kel_moveDirectory(TarnApi* api, KEL_KEPT const wchar_t* source,
                                 KEL_KEPT const wchar_t* target, KelError** error,
                                 KEL_OUT uint8_t* moved);
/* Tells whether a path exists. Position 186.
 * path: kept by the caller, read only during the call.
 * On success *exists receives the result. */
KEL_C_API void kel_pathExists(TarnApi* api, KEL_KEPT const wchar_t* path, KelError** error,
                              KEL_OUT uint8_t* exists);
/* Resolves a path to the engine's full path. Position 188.
 * path: kept by the caller, read only during the call.
 * On success *resolved receives a new string; free it with release_Memory. */
KEL_C_API void kel_resolvePath(TarnApi* api, KEL_KEPT const wchar_t* path, KelError** error,
                               KEL_OUT wchar_t** resolved);
/* Lists the references of the given files; one result per file. Position 194.
 * files: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a FileReferenceResult list, NULL and 0 when
 * empty; free it with release_FileReferenceResult_array(results, resultCount). */
KEL_C_API void kel_getFileReferences(TarnApi* api, KEL_KEPT wchar_t** files, uint32_t fileCount,
                                     KelError** error, KEL_OUT FileReferenceResult*** results,
                                     KEL_OUT uint32_t* resultCount);
/* Tells whether a path is a directory. Position 200.
 * path: kept by the caller, read only during the call.
 * On success *result receives the result. */
KEL_C_API void kel_isDirectory(TarnApi* api, KEL_KEPT const wchar_t* path, KelError** error,
                               KEL_OUT uint8_t* result);
/* Reads a directory as a tree. Position 201.
 * path: kept by the caller, read only during the call.
 * On success *directory receives a DirectoryInfo record, or NULL when the engine gives none;
 * free it with release_DirectoryInfo. */
KEL_C_API void kel_getDirectoryInfo(TarnApi* api, KEL_KEPT const wchar_t* path, uint8_t flag,
                                    KelError** error, KEL_OUT DirectoryInfo** directory);
/* Reads the information about one file. Position 202.
 * path: kept by the caller, read only during the call.
 * On success *file receives a FileInfo record, or NULL when the engine gives none; free it
 * with release_FileInfo. */
KEL_C_API void kel_getFileInfo(TarnApi* api, KEL_KEPT const wchar_t* path, KelError** error,
                               KEL_OUT FileInfo** file);
/* Tells whether a path is a file. Position 203.
 * path: kept by the caller, read only during the call.
 * On success *result receives the result. */
KEL_C_API void kel_isFile(TarnApi* api, KEL_KEPT const wchar_t* path, KelError** error,
                          KEL_OUT uint8_t* result);
/* Copies a path as config says. Position 207.
 * config: consumed: the library frees it with release_PathCopyConfig, also when the call
 * fails; NULL passes no record.
 * On success *results and *resultCount receive a PathCopyResult list, NULL and 0 when empty;
 * free it with release_PathCopyResult_array(results, resultCount). */
KEL_C_API void kel_copyPath(TarnApi* api, KEL_CONSUMED PathCopyConfig* config, KelError** error,
                            KEL_OUT PathCopyResult*** results, KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_copyPath. Position 208.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * config: consumed: the library frees it with release_PathCopyConfig, also when the call
 * fails; NULL passes no record.
 * callback receives PathCopyResult lists, once or several times until isFinal, on a thread of
 * the engine; each list and error belong to it, to free with release_PathCopyResult_array and
 * release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_copyPathAsync(TarnApi* api, KEL_CONSUMED PathCopyConfig* config,
                                     KelError** error, CopyPathCallbackFunction callback,
                                     void* context);
/* Adds a public directory under a name. Position 230.
 * name, path: kept by the caller, read only during the call. */
KEL_C_API void kel_addPublicDirectory(TarnApi* api, KEL_KEPT const wchar_t* name,
                                      KEL_KEPT const wchar_t* path, KelError** error);

/* ---- Flash ----
 * Flash sessions */
/* Lists the flash sessions that one target offers. Position 30.
 * target: kept by the caller, read only during the call.
 * On success *sessions and *sessionCount receive a FlashSessionInfo list, NULL and 0 when
 * empty; free it with release_FlashSessionInfo_array(sessions, sessionCount). */
KEL_C_API void kel_getFlashSessionInfos(TarnApi* api, KEL_KEPT const wchar_t* target,
                                        KelError** error, KEL_OUT FlashSessionInfo*** sessions,
                                        KEL_OUT uint32_t* sessionCount);
/* Runs the given flash sessions on one target. Position 31.
 * target, sessions: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a FlashSessionResult list, NULL and 0 when
 * empty; free it with release_FlashSessionResult_array(results, resultCount). */
KEL_C_API void kel_executeFlashSessions(TarnApi* api, KEL_KEPT const wchar_t* target,
                                        KEL_KEPT wchar_t** sessions, uint32_t sessionCount,
                                        KelError** error, KEL_OUT FlashSessionResult*** results,
                                        KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_executeFlashSessions. Position 32.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * target, sessions: kept by the caller, read only during the call.
 * callback receives FlashSessionResult lists, once or several times until isFinal, on a thread
 * of the engine; each list and error belong to it, to free with
 * release_FlashSessionResult_array and release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_executeFlashSessionsAsync(TarnApi* api, KEL_KEPT const wchar_t* target,
                                                 KEL_KEPT wchar_t** sessions, uint32_t sessionCount,
                                                 KelError** error,
                                                 ExecuteFlashSessionsCallbackFunction callback,
                                                 void* context);
/* Runs flash sessions as config says. Position 166.
 * config: consumed: the library frees it with release_FlashSessionsConfig, also when the call
 * fails; NULL passes no record.
 * On success *results and *resultCount receive a FlashSessionResult list, NULL and 0 when
 * empty; free it with release_FlashSessionResult_array(results, resultCount). */
KEL_C_API void kel_executeFlashSessionsConfig(TarnApi* api,
                                              KEL_CONSUMED FlashSessionsConfig* config,
                                              KelError** error,
                                              KEL_OUT FlashSessionResult*** results,
                                              KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_executeFlashSessionsConfig. Position 167.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * config: consumed: the library frees it with release_FlashSessionsConfig, also when the call
 * fails; NULL passes no record.
 * callback receives FlashSessionResult lists, once or several times until isFinal, on a thread
 * of the engine; each list and error belong to it, to free with
 * release_FlashSessionResult_array and release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_executeFlashSessionsConfigAsync(
    TarnApi* api, KEL_CONSUMED FlashSessionsConfig* config, KelError** error,
    ExecuteFlashSessionsConfigCallbackFunction callback, void* context);

/* ---- Coding ----
 * Coding strings and files, ECU configuration and checksums */
/* Reads the coding strings of the given targets. Position 33.
 * targets: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a CodingStringResult list, NULL and 0 when
 * empty; free it with release_CodingStringResult_array(results, resultCount). */
KEL_C_API void kel_readCodingStrings(TarnApi* api, KEL_KEPT wchar_t** targets, uint32_t targetCount,
                                     KelError** error, KEL_OUT CodingStringResult*** results,
                                     KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_readCodingStrings. Position 34.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * targets: kept by the caller, read only during the call.
 * callback receives CodingStringResult lists, once or several times until isFinal, on a thread
 * of the engine; each list and error belong to it, to free with
 * release_CodingStringResult_array and release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_readCodingStringsAsync(TarnApi* api, KEL_KEPT wchar_t** targets,
                                              uint32_t targetCount, KelError** error,
                                              ReadCodingStringsCallbackFunction callback,
                                              void* context);
/* Calculates the checksum of a file with the given algorithm. Position 140.
 * path: kept by the caller, read only during the call.
 * On success *checksum receives a new string; free it with release_Memory. */
KEL_C_API void kel_calculateChecksum(TarnApi* api, KEL_KEPT const wchar_t* path, int32_t algorithm,
                                     KelError** error, KEL_OUT wchar_t** checksum);
/* Writes a coding file to the given targets. Position 221.
 * codingFile, targets: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a CodingFileResult list, NULL and 0 when empty;
 * free it with release_CodingFileResult_array(results, resultCount). */
KEL_C_API void kel_writeCodingFile(TarnApi* api, KEL_KEPT const wchar_t* codingFile,
                                   KEL_KEPT wchar_t** targets, uint32_t targetCount,
                                   KelError** error, KEL_OUT CodingFileResult*** results,
                                   KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_writeCodingFile. Position 222.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * codingFile, targets: kept by the caller, read only during the call.
 * callback receives CodingFileResult lists, once or several times until isFinal, on a thread
 * of the engine; each list and error belong to it, to free with release_CodingFileResult_array
 * and release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_writeCodingFileAsync(TarnApi* api, KEL_KEPT const wchar_t* codingFile,
                                            KEL_KEPT wchar_t** targets, uint32_t targetCount,
                                            KelError** error,
                                            WriteCodingFileCallbackFunction callback,
                                            void* context);
/* Configures the ECUs of the given targets with a configuration. Position 233.
 * targets, configuration: kept by the caller, read only during the call.
 * On success *results and *resultCount receive an EcuConfigurationResult list, NULL and 0 when
 * empty; free it with release_EcuConfigurationResult_array(results, resultCount). */
KEL_C_API void kel_performEcuConfiguration(TarnApi* api, KEL_KEPT wchar_t** targets,
                                           uint32_t targetCount,
                                           KEL_KEPT const wchar_t* configuration, KelError** error,
                                           KEL_OUT EcuConfigurationResult*** results,
                                           KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_performEcuConfiguration. Position 234.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * targets, configuration: kept by the caller, read only during the call.
 * callback receives EcuConfigurationResult lists, once or several times until isFinal, on a
 * thread of the engine; each list and error belong to it, to free with
 * release_EcuConfigurationResult_array and release_KelError. context reaches callback
 * unchanged. */
KEL_C_API uint64_t
kel_performEcuConfigurationAsync(TarnApi* api, KEL_KEPT wchar_t** targets, uint32_t targetCount,
                                 KEL_KEPT const wchar_t* configuration, KelError** error,
                                 PerformEcuConfigurationCallbackFunction callback, void* context);

/* ---- Measurement ----
 * Measurement values */
/* Describes the measurement values that one target offers. Position 38.
 * target: kept by the caller, read only during the call.
 * On success *infos and *infoCount receive a ParameterInfo list, NULL and 0 when empty; free
 * it with release_ParameterInfo_array(infos, infoCount). */
KEL_C_API void kel_getMeasurementValueInfos(TarnApi* api, KEL_KEPT const wchar_t* target,
                                            KelError** error, KEL_OUT ParameterInfo*** infos,
                                            KEL_OUT uint32_t* infoCount);
/* Registers measurement values of one target for repeated reading; returns the registration
 * that kel_getMeasurementValues takes. Position 39.
 * target, names: kept by the caller, read only during the call.
 * On success *registration receives the result. */
KEL_C_API void kel_registerMeasurementValues(TarnApi* api, KEL_KEPT const wchar_t* target,
                                             KEL_KEPT wchar_t** names, uint32_t nameCount,
                                             KelError** error, KEL_OUT uint64_t* registration);
/* Reads the measurement values of a registration. Position 40.
 * On success *results and *resultCount receive a ReadDataResult list, NULL and 0 when empty;
 * free it with release_ReadDataResult_array(results, resultCount). */
KEL_C_API void kel_getMeasurementValues(TarnApi* api, uint64_t registration, KelError** error,
                                        KEL_OUT ReadDataResult*** results,
                                        KEL_OUT uint32_t* resultCount);
/* Ends a registration made with kel_registerMeasurementValues. Position 41. */
KEL_C_API void kel_unregisterMeasurementValues(TarnApi* api, uint64_t registration,
                                               KelError** error);
/* Reads the named measurement values of one target once. Position 58.
 * target, names: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a ReadDataResult list, NULL and 0 when empty;
 * free it with release_ReadDataResult_array(results, resultCount). */
KEL_C_API void kel_readMeasurementValues(TarnApi* api, KEL_KEPT const wchar_t* target,
                                         KEL_KEPT wchar_t** names, uint32_t nameCount,
                                         KelError** error, KEL_OUT ReadDataResult*** results,
                                         KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_readMeasurementValues. Position 59.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * target, names: kept by the caller, read only during the call.
 * callback receives ReadDataResult lists, once or several times until isFinal, on a thread of
 * the engine; each list and error belong to it, to free with release_ReadDataResult_array and
 * release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_readMeasurementValuesAsync(TarnApi* api, KEL_KEPT const wchar_t* target,
                                                  KEL_KEPT wchar_t** names, uint32_t nameCount,
                                                  KelError** error,
                                                  ReadMeasurementValuesCallbackFunction callback,
                                                  void* context);
/* Describes the named measurement values of one target. Position 73.
 * target, names: kept by the caller, read only during the call.
 * On success *infos and *infoCount receive a ParameterInfo list, NULL and 0 when empty; free
 * it with release_ParameterInfo_array(infos, infoCount). */
KEL_C_API void kel_getSingleMeasurementValueInfos(TarnApi* api, KEL_KEPT const wchar_t* target,
                                                  KEL_KEPT wchar_t** names, uint32_t nameCount,
                                                  KelError** error, KEL_OUT ParameterInfo*** infos,
                                                  KEL_OUT uint32_t* infoCount);

/* ---- Sequences ----
 * Sequences */
/* Starts a sequence with the given arguments; returns the run that kel_cancelSequence takes.
 * Position 145.
 * sequence, arguments: kept by the caller, read only during the call.
 * On success *run receives the result. */
KEL_C_API void kel_runSequence(TarnApi* api, KEL_KEPT const wchar_t* sequence,
                               KEL_KEPT wchar_t** arguments, uint32_t argumentCount,
                               KelError** error, KEL_OUT uint64_t* run);
/* Cancels a run of a sequence started with kel_runSequence. Position 148. */
KEL_C_API void kel_cancelSequence(TarnApi* api, uint64_t run, KelError** error);
/* Executes a sequence on one target with the given parameter values. Position 228.
 * target, sequence, parameters: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a ServiceResult list, NULL and 0 when empty;
 * free it with release_ServiceResult_array(results, resultCount). */
KEL_C_API void kel_executeSequence(TarnApi* api, KEL_KEPT const wchar_t* target,
                                   KEL_KEPT const wchar_t* sequence,
                                   KEL_KEPT ParameterInput** parameters, uint32_t parameterCount,
                                   KelError** error, KEL_OUT ServiceResult*** results,
                                   KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_executeSequence. Position 229.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * target, sequence, parameters: kept by the caller, read only during the call.
 * callback receives ServiceResult lists, once or several times until isFinal, on a thread of
 * the engine; each list and error belong to it, to free with release_ServiceResult_array and
 * release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_executeSequenceAsync(TarnApi* api, KEL_KEPT const wchar_t* target,
                                            KEL_KEPT const wchar_t* sequence,
                                            KEL_KEPT ParameterInput** parameters,
                                            uint32_t parameterCount, KelError** error,
                                            ExecuteSequenceCallbackFunction callback,
                                            void* context);

/* ---- EcuOrder ----
 * The ECU order */
/* Reads an ECU order from an order file in the public directories. An empty path reads the
 * vehicle's own order file, which gives the default order until one is written. Position 112.
 * path: kept by the caller, read only during the call.
 * On success *entries and *entryCount receive an EcuOrderEntry list, NULL and 0 when empty;
 * free it with release_EcuOrderEntry_array(entries, entryCount). */
KEL_C_API void kel_readEcuOrder(TarnApi* api, KEL_KEPT const wchar_t* path, KelError** error,
                                KEL_OUT EcuOrderEntry*** entries, KEL_OUT uint32_t* entryCount);
/* Keeps the entries of the given targets, named by unit name or alias, in the order's own
 * order; no targets keeps every entry. A target the order has no entry for fails the call.
 * Position 113.
 * entries, targets: kept by the caller, read only during the call.
 * On success *filtered and *filteredCount receive an EcuOrderEntry list, NULL and 0 when
 * empty; free it with release_EcuOrderEntry_array(filtered, filteredCount). */
KEL_C_API void kel_filterEcuOrder(TarnApi* api, KEL_KEPT EcuOrderEntry** entries,
                                  uint32_t entryCount, KEL_KEPT wchar_t** targets,
                                  uint32_t targetCount, KelError** error,
                                  KEL_OUT EcuOrderEntry*** filtered,
                                  KEL_OUT uint32_t* filteredCount);
/* Completes an ECU order: the entries as given, then every unit of the vehicle that they do
 * not name, in default order. Position 114.
 * entries: kept by the caller, read only during the call.
 * On success *completed and *completedCount receive an EcuOrderEntry list, NULL and 0 when
 * empty; free it with release_EcuOrderEntry_array(completed, completedCount). */
KEL_C_API void kel_addMissingTargetsToEcuOrder(TarnApi* api, KEL_KEPT EcuOrderEntry** entries,
                                               uint32_t entryCount, KelError** error,
                                               KEL_OUT EcuOrderEntry*** completed,
                                               KEL_OUT uint32_t* completedCount);
/* Creates the default ECU order of the vehicle's units: the gateway first, then by bus name,
 * then by address. Position 220.
 * On success *entries and *entryCount receive an EcuOrderEntry list, NULL and 0 when empty;
 * free it with release_EcuOrderEntry_array(entries, entryCount). */
KEL_C_API void kel_createDefaultECUOrder(TarnApi* api, KelError** error,
                                         KEL_OUT EcuOrderEntry*** entries,
                                         KEL_OUT uint32_t* entryCount);
/* Writes an ECU order to an order file in the public directories, replacing it. An empty path
 * writes the vehicle's own order file. Position 223.
 * path, entries: kept by the caller, read only during the call. */
KEL_C_API void kel_writeEcuOrder(TarnApi* api, KEL_KEPT const wchar_t* path,
                                 KEL_KEPT EcuOrderEntry** entries, uint32_t entryCount,
                                 KelError** error);
/* Reads the engine path of the vehicle's own ECU order file. Position 224.
 * On success *path receives a new string; free it with release_Memory. */
KEL_C_API void kel_getEcuOrderFilePath(TarnApi* api, KelError** error, KEL_OUT wchar_t** path);

/* ---- VehicleReports ----
 * Vehicle data, the selected vehicle and reports */
/* Reads the units as config says and writes a vehicle report into the reports directory: an
 * HTML page and its JSON twin of the same name; returns the HTML file's engine path.
 * Position 111.
 * config: consumed: the library frees it with release_VehicleReportConfig, also when the call
 * fails; NULL passes no record.
 * On success *reportFile receives a new string; free it with release_Memory. */
KEL_C_API void kel_createVehicleReport(TarnApi* api, KEL_CONSUMED VehicleReportConfig* config,
                                       KelError** error, KEL_OUT wchar_t** reportFile);
/* Reads every control unit as it is now: one entry per unit, each with the vehicle's VIN and
 * model. Position 191.
 * On success *data and *dataCount receive a VehicleData list, NULL and 0 when empty; free it
 * with release_VehicleData_array(data, dataCount). */
KEL_C_API void kel_getVehicleData(TarnApi* api, KelError** error, KEL_OUT VehicleData*** data,
                                  KEL_OUT uint32_t* dataCount);
/* Writes a report of vehicle update results into the reports directory: an HTML page and its
 * JSON twin of the same name; returns the HTML file's engine path. Position 231.
 * results: kept by the caller, read only during the call.
 * On success *reportFile receives a new string; free it with release_Memory. */
KEL_C_API void kel_createVehicleUpdateReport(TarnApi* api, KEL_KEPT VehicleUpdateResult** results,
                                             uint32_t resultCount, KelError** error,
                                             KEL_OUT wchar_t** reportFile);
/* Reads the information about the selected vehicle. Position 249.
 * On success *information receives a VehicleInformation record, or NULL when the engine gives
 * none; free it with release_VehicleInformation. */
KEL_C_API void kel_getSelectedVehicleInformation(TarnApi* api, KelError** error,
                                                 KEL_OUT VehicleInformation** information);
/* Selects a vehicle by its information; a VIN that is not 17 digits and capital letters other
 * than I, O and Q is refused. Position 250.
 * information: consumed: the library frees it with release_VehicleInformation, also when the
 * call fails; NULL passes no record. */
KEL_C_API void kel_setSelectedVehicleInformation(TarnApi* api, KelError** error,
                                                 KEL_CONSUMED VehicleInformation* information);

/* ---- VehicleUpdate ----
 * Update packages, the broker, the engine's own updates and vehicle updates */
/* Applies an update package: the newest engine-component package of that name, downloaded or
 * on the broker, after its payload's checksum is verified. Position 151.
 * package: kept by the caller, read only during the call. */
KEL_C_API void kel_applyUpdatePackage(TarnApi* api, KEL_KEPT const wchar_t* package,
                                      KelError** error);
/* Lists the update packages at hand. Position 154.
 * On success *packages and *packageCount receive an UpdatePackageInfo list, NULL and 0 when
 * empty; free it with release_UpdatePackageInfo_array(packages, packageCount). */
KEL_C_API void kel_getUpdatePackages(TarnApi* api, KelError** error,
                                     KEL_OUT UpdatePackageInfo*** packages,
                                     KEL_OUT uint32_t* packageCount);
/* Lists the update packages that the broker offers. Position 155.
 * On success *packages and *packageCount receive an UpdatePackageInfo list, NULL and 0 when
 * empty; free it with release_UpdatePackageInfo_array(packages, packageCount). */
KEL_C_API void kel_getPackagesFromBroker(TarnApi* api, KelError** error,
                                         KEL_OUT UpdatePackageInfo*** packages,
                                         KEL_OUT uint32_t* packageCount);
/* Tells whether the broker has updates. Position 156.
 * On success *available receives the result. */
KEL_C_API void kel_checkUpdatesOnBroker(TarnApi* api, KelError** error, KEL_OUT bool* available);
/* Updates automatically; tells whether anything was updated. Position 157.
 * On success *updated receives the result. */
KEL_C_API void kel_autoUpdate(TarnApi* api, KelError** error, KEL_OUT bool* updated);
/* Lists the current versions of the installed components; each item's texts are the
 * component's name, its version, what it is, and the package that installed it (empty for the
 * engine itself and its vehicle description). Position 163.
 * On success *versions and *versionCount receive a NamedItem list, NULL and 0 when empty; free
 * it with release_NamedItem_array(versions, versionCount). */
KEL_C_API void kel_getCurrentVersions(TarnApi* api, KelError** error, KEL_OUT NamedItem*** versions,
                                      KEL_OUT uint32_t* versionCount);
/* Tells whether the last update (applyUpdatePackage, autoUpdate, a vehicle update) succeeded
 * fully; true before any update. Position 164.
 * On success *succeeded receives the result. */
KEL_C_API void kel_checkUpdateSuccess(TarnApi* api, KelError** error, KEL_OUT bool* succeeded);
/* Removes the temporary files of updates. Position 165. */
KEL_C_API void kel_cleanUpdateTmp(TarnApi* api, KelError** error);
/* Updates the vehicle as config says, in the vehicle's ECU order: its order file
 * (kel_getEcuOrderFilePath) when there is one, else the default order. Position 177.
 * config: consumed: the library frees it with release_VehicleUpdateConfig, also when the call
 * fails; NULL passes no record.
 * On success *results and *resultCount receive a VehicleUpdateResult list, NULL and 0 when
 * empty; free it with release_VehicleUpdateResult_array(results, resultCount). */
KEL_C_API void kel_updateVehicle(TarnApi* api, KEL_CONSUMED VehicleUpdateConfig* config,
                                 KelError** error, KEL_OUT VehicleUpdateResult*** results,
                                 KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_updateVehicle. Position 178.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * config: consumed: the library frees it with release_VehicleUpdateConfig, also when the call
 * fails; NULL passes no record.
 * callback receives VehicleUpdateResult lists, once or several times until isFinal, on a
 * thread of the engine; each list and error belong to it, to free with
 * release_VehicleUpdateResult_array and release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_updateVehicleAsync(TarnApi* api, KEL_CONSUMED VehicleUpdateConfig* config,
                                          KelError** error, UpdateVehicleCallbackFunction callback,
                                          void* context);
/* Uploads a report as config says. Position 193.
 * config: consumed: the library frees it with release_UploadReportConfiguration, also when the
 * call fails; NULL passes no record. */
KEL_C_API void kel_uploadReport(TarnApi* api, KEL_CONSUMED UploadReportConfiguration* config,
                                KelError** error);
/* Sets the address of the update broker, a file: URL; an empty URL goes back to the default.
 * Position 206.
 * url: kept by the caller, read only during the call. */
KEL_C_API void kel_setBrokerUrl(TarnApi* api, KEL_KEPT const wchar_t* url, KelError** error);
/* Removes the update packages at hand. Position 214. */
KEL_C_API void kel_clearUpdatePackages(TarnApi* api, KelError** error);
/* Updates the vehicle's ECUs in the given ECU order, as config says. Position 225.
 * config: consumed: the library frees it with release_VehicleUpdateConfig, also when the call
 * fails; NULL passes no record.
 * entries: kept by the caller, read only during the call.
 * On success *results and *resultCount receive a VehicleUpdateResult list, NULL and 0 when
 * empty; free it with release_VehicleUpdateResult_array(results, resultCount). */
KEL_C_API void kel_performVehicleUpdate(TarnApi* api, KEL_KEPT EcuOrderEntry** entries,
                                        uint32_t entryCount,
                                        KEL_CONSUMED VehicleUpdateConfig* config, KelError** error,
                                        KEL_OUT VehicleUpdateResult*** results,
                                        KEL_OUT uint32_t* resultCount);
/* Asynchronous form of kel_performVehicleUpdate. Position 226.
 * Returns the call identifier at once; 0 after an error, and callback is then never called.
 * config: consumed: the library frees it with release_VehicleUpdateConfig, also when the call
 * fails; NULL passes no record.
 * entries: kept by the caller, read only during the call.
 * callback receives VehicleUpdateResult lists, once or several times until isFinal, on a
 * thread of the engine; each list and error belong to it, to free with
 * release_VehicleUpdateResult_array and release_KelError. context reaches callback unchanged. */
KEL_C_API uint64_t kel_performVehicleUpdateAsync(TarnApi* api, KEL_KEPT EcuOrderEntry** entries,
                                                 uint32_t entryCount,
                                                 KEL_CONSUMED VehicleUpdateConfig* config,
                                                 KelError** error,
                                                 PerformVehicleUpdateCallbackFunction callback,
                                                 void* context);
/* Creates a vehicle update configuration for the given targets. Position 240.
 * targets: kept by the caller, read only during the call.
 * On success *config receives a VehicleUpdateConfig record, or NULL when the engine gives
 * none; free it with release_VehicleUpdateConfig. */
KEL_C_API void kel_createVehicleUpdateConfig(TarnApi* api, KEL_KEPT wchar_t** targets,
                                             uint32_t targetCount, KelError** error,
                                             KEL_OUT VehicleUpdateConfig** config);

#ifdef __cplusplus
}
#endif

#endif /* KEL_C_H */
