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
typedef struct KelEvent KelEvent;
typedef struct EventReport EventReport;
typedef struct FileFilter FileFilter;
typedef struct UserInfo UserInfo;
typedef struct LogInOutConfig LogInOutConfig;
typedef struct TarnApiServerConfig TarnApiServerConfig;
typedef struct ServerSettings ServerSettings;

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
    wchar_t* text;   /* its text */
    uint64_t value1; /* copied bit for bit from the engine */
    uint64_t value2; /* copied bit for bit from the engine */
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
    wchar_t* itemText1; /* the item's first text, usually its name */
    wchar_t* itemText2; /* second text */
    wchar_t* itemText3; /* third text */
    wchar_t* itemText4; /* fourth text */
};

/* One decoded parameter value. A structured value carries its members as children, so the
 * values form a tree.
 * Freed with release_ParameterResult, which frees everything it points to; a list of them with
 * release_ParameterResult_array. */
struct ParameterResult {
    wchar_t* itemText1;         /* the item's first text, usually its name */
    wchar_t* itemText2;         /* second text */
    wchar_t* itemText3;         /* third text */
    wchar_t* itemText4;         /* fourth text */
    wchar_t* text1;             /* first text, usually the value */
    wchar_t* text2;             /* second text, usually the unit */
    int32_t value1;             /* copied unchanged from the engine */
    ParameterResult** children; /* the members of a structured value, in engine order */
    uint32_t childCount;
    wchar_t* text3;  /* third text */
    KelError* error; /* the error of this parameter, or NULL */
    wchar_t* text4;  /* fourth text */
    int32_t value2;  /* copied unchanged from the engine */
    uint8_t* data;   /* the raw bytes of the value, exactly as many as the engine gives; NULL when
                        there are none */
    uint32_t dataLength;
    uint32_t value3; /* copied unchanged from the engine */
    uint8_t flag;    /* a one-byte flag, copied unchanged */
    int32_t value4;  /* copied unchanged from the engine */
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
    int32_t value; /* the engine's first option, a number */
    uint8_t flag1; /* first one-byte option */
    uint8_t flag2; /* second one-byte option */
    uint8_t flag3; /* third one-byte option */
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
    int32_t value; /* a further number of the engine; 0 from kel_readSupportedDtcs */
};

/* One diagnostic trouble code.
 * Freed with release_DtcResult, which frees everything it points to; a list of them with
 * release_DtcResult_array. */
struct DtcResult {
    int32_t code;                  /* the DTC number */
    wchar_t* text1;                /* first text, usually the code as text */
    wchar_t* text2;                /* second text, usually what the code means */
    int32_t value1;                /* copied unchanged from the engine, usually the status byte */
    ParameterResult** parameters1; /* first parameter list, usually the snapshot data */
    uint32_t parameterCount1;
    ParameterResult** parameters2; /* second parameter list, usually the extended data */
    uint32_t parameterCount2;
    wchar_t* text3;                       /* third text */
    wchar_t* text4;                       /* fourth text */
    SpecialDataGroup** specialDataGroups; /* groups of special data */
    uint32_t specialDataGroupCount;
    int32_t value2; /* copied unchanged from the engine */
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
    wchar_t* text;                /* a text of the engine, usually the variant */
    KelError* error;              /* the error of this target, or NULL */
    ParameterResult** parameters; /* the values read */
    uint32_t parameterCount;
};

/* One control unit known to the project.
 * Freed with release_Target, which frees everything it points to; a list of them with
 * release_Target_array. */
struct Target {
    wchar_t* itemText1; /* the item's first text, usually its name */
    wchar_t* itemText2; /* second text */
    wchar_t* itemText3; /* third text */
    wchar_t* itemText4; /* fourth text */
    int32_t value1;     /* copied unchanged from the engine */
    wchar_t* text1;     /* first text */
    wchar_t* text2;     /* second text */
    NamedItem** items;  /* named items of the target */
    uint32_t itemCount;
    wchar_t** names; /* further names of the target Allocated even when empty: go by nameCount. */
    uint32_t nameCount;
    wchar_t* text3; /* third text */
    wchar_t* text4; /* fourth text */
    int32_t value2; /* copied unchanged from the engine */
    wchar_t* text5; /* fifth text */
};

/* The status of one target.
 * Freed with release_TargetStatus, which frees everything it points to; a list of them with
 * release_TargetStatus_array. */
struct TargetStatus {
    wchar_t* target;    /* the target's name */
    wchar_t* text;      /* the status as text */
    KelError* error;    /* the error of this target, or NULL */
    uint32_t values[5]; /* five numbers, copied in order from the engine */
    wchar_t* text2;     /* a second text */
};

/* A pattern that selects targets by name; a session's target filter.
 * Freed with release_TargetFilter, which frees everything it points to; a list of them with
 * release_TargetFilter_array. */
struct TargetFilter {
    wchar_t* pattern; /* the pattern, where * stands for any text */
    uint8_t flag;     /* a one-byte option, copied unchanged */
    int32_t value;    /* copied unchanged from the engine */
};

/* One event of the engine, fetched from an event channel.
 * Freed with release_KelEvent, which frees everything it points to; a list of them with
 * release_KelEvent_array. */
struct KelEvent {
    wchar_t* name;   /* the event's name */
    int32_t kind;    /* its kind, a number */
    int32_t code;    /* its code, a number */
    wchar_t* text;   /* what happened */
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
    uint8_t flag;     /* copied unchanged from the engine */
    uint32_t value;   /* copied unchanged from the engine */
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

/* ---- engine objects ---- */
/* Registers the local engine object and returns its address, the `api` of every export.
 * Every kel_getTarnApi is matched by one releaseTarnApi; getting the same engine object
 * twice returns the same address and counts two uses. */
KEL_C_API TarnApi* kel_getTarnApi(void);
/* The same for the engine object of the remote connection with `handle`. After an error
 * it returns NULL and *error holds the error record (free it with release_KelError). */
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
 * engine, any other value the engine object with that handle (see kel_getHandle); when
 * the engine rejects the handle, every operation answers status 0 with the engine's
 * error. Unknown numbers leave the outputs alone. */
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

/* Error codes of the library itself, in the error record of the call stream. */
#define KEL_ERROR_MALFORMED_INPUT (-1001) /* checked calls: input short or malformed */
#define KEL_ERROR_NOT_AVAILABLE (-1002)   /* the operation's records are not built yet */

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
KEL_C_API void release_KelEvent(KEL_CONSUMED KelEvent* ptr);
KEL_C_API void release_KelEvent_array(KEL_CONSUMED KelEvent** ptr, uint64_t count);
KEL_C_API void release_EventReport(KEL_CONSUMED EventReport* ptr);
KEL_C_API void release_EventReport_array(KEL_CONSUMED EventReport** ptr, uint64_t count);
KEL_C_API void release_FileFilter(KEL_CONSUMED FileFilter* ptr);
KEL_C_API void release_FileFilter_array(KEL_CONSUMED FileFilter** ptr, uint64_t count);
KEL_C_API void release_UserInfo(KEL_CONSUMED UserInfo* ptr);
KEL_C_API void release_UserInfo_array(KEL_CONSUMED UserInfo** ptr, uint64_t count);
KEL_C_API void release_LogInOutConfig(KEL_CONSUMED LogInOutConfig* ptr);
KEL_C_API void release_LogInOutConfig_array(KEL_CONSUMED LogInOutConfig** ptr, uint64_t count);
KEL_C_API void release_TarnApiServerConfig(KEL_CONSUMED TarnApiServerConfig* ptr);
KEL_C_API void release_TarnApiServerConfig_array(KEL_CONSUMED TarnApiServerConfig** ptr,
                                                 uint64_t count);
KEL_C_API void release_ServerSettings(KEL_CONSUMED ServerSettings* ptr);
KEL_C_API void release_ServerSettings_array(KEL_CONSUMED ServerSettings** ptr, uint64_t count);

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
/* Reports of kel_readMeasurementValuesAsync: free results with release_ReadDataResult_array. */
typedef void (*ReadMeasurementValuesCallbackFunction)(ReadDataResult** results,
                                                      uint32_t resultCount, bool isFinal,
                                                      uint64_t callId, KelError* error,
                                                      void* context);
/* Reports of kel_identifyTargetsAsync: free results with release_VariantIdentResult_array. */
typedef void (*IdentifyTargetsCallbackFunction)(VariantIdentResult** results, uint32_t resultCount,
                                                bool isFinal, uint64_t callId, KelError* error,
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
/* Reads the engine object's 64-bit handle, by which kel_call reaches it. Position 254.
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
/* Identifies the variant of one target. Position 22.
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
/* Asks for the seed of a security access; the two values reach the engine in this order.
 * Position 44.
 * On success *seed receives a buffer of *seedLength bytes, allocated also for 0 bytes; free it
 * with release_Memory. */
KEL_C_API void kel_createSeed(TarnApi* api, uint32_t value1, uint32_t value2, KelError** error,
                              KEL_OUT uint8_t** seed, KEL_OUT uint32_t* seedLength);
/* Sends the key of a security access, computed from the seed. Position 45.
 * key: kept by the caller, read only during the call. */
KEL_C_API void kel_sendKey(TarnApi* api, KEL_KEPT const uint8_t* key, uint32_t keyLength,
                           KelError** error);
/* Stops a cyclic run started with kel_startCyclicServices. Position 80. */
KEL_C_API void kel_stopCyclicServices(TarnApi* api, uint64_t cyclic, KelError** error);
/* Releases a vehicle unlock; value is passed to the engine unchanged. Position 147.
 * The engine's result is not handed out. */
KEL_C_API void kel_releaseVehicleUnlock(TarnApi* api, uint64_t value, KelError** error);

/* ---- Projects ----
 * Projects, configuration, system properties, database files and system information */
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
/* Sets a system property back to its default. Position 88.
 * name: kept by the caller, read only during the call. */
KEL_C_API void kel_resetSystemProperty(TarnApi* api, KEL_KEPT const wchar_t* name,
                                       KelError** error);
/* Lists vendor module names; text selects them as the engine defines. Position 91.
 * text: kept by the caller, read only during the call.
 * On success *names and *nameCount receive a string list, NULL and 0 when empty; free it with
 * release_StringArray(names, nameCount). */
KEL_C_API void kel_getVendorModuleNamesEx(TarnApi* api, KEL_KEPT const wchar_t* text,
                                          KelError** error, KEL_OUT wchar_t*** names,
                                          KEL_OUT uint32_t* nameCount);
/* Selects a dynamic project made of the given items. Position 216.
 * projectName, items: kept by the caller, read only during the call. */
KEL_C_API void kel_selectDynamicProject(TarnApi* api, KEL_KEPT const wchar_t* projectName,
                                        KEL_KEPT wchar_t** items, uint32_t itemCount,
                                        KelError** error);
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
/* Connects to the engine's server at the given address and hands out the remote engine object.
 * Position 37.
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
/* Renews the remote connection whose engine handle is given (kel_getHandle); tells whether it
 * is connected again (not while the server is stopped). Position 172.
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
/* Removes an interface. Position 84.
 * name: kept by the caller, read only during the call. */
KEL_C_API void kel_removeInterface(TarnApi* api, KEL_KEPT const wchar_t* name, KelError** error);
/* Removes a resource from an interface. Position 86.
 * name1, name2: kept by the caller, read only during the call. */
KEL_C_API void kel_removeResource(TarnApi* api, KEL_KEPT const wchar_t* name1,
                                  KEL_KEPT const wchar_t* name2, KelError** error);
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
/* Connects a dynamically detected interface without a detection record. Position 123.
 * name: kept by the caller, read only during the call. */
KEL_C_API void kel_connectDynInterfaceEx(TarnApi* api, KEL_KEPT const wchar_t* name, uint8_t flag,
                                         KelError** error);
/* Tells whether a socket bridge works. Position 134.
 * On success *result receives the result. */
KEL_C_API void kel_testSocketBridge(TarnApi* api, uint64_t bridge, KelError** error,
                                    KEL_OUT uint8_t* result);
/* Opens the terminal; tells whether it opened. Position 196.
 * On success *opened receives the result. */
KEL_C_API void kel_openTerminal(TarnApi* api, KelError** error, KEL_OUT uint8_t* opened);
/* Closes the terminal. Position 197. */
KEL_C_API void kel_closeTerminal(TarnApi* api, KelError** error);
/* Clears the collection of ECUs found over DoIP; returns an error record for each entry that
 * the engine reports. Position 205.
 * On success *errors and *errorCount receive a KelError list, NULL and 0 when empty; free it
 * with release_KelError_array(errors, errorCount). */
KEL_C_API void kel_clearDoIPEcuCollection(TarnApi* api, KelError** error,
                                          KEL_OUT KelError*** errors, KEL_OUT uint32_t* errorCount);

/* ---- Monitoring ----
 * Monitoring links, PDU monitors, trace-file monitoring and the API trace */
/* Opens a monitoring link on the running communication; returns its handle. Position 10.
 * name: kept by the caller, read only during the call.
 * On success *handle receives the result. */
KEL_C_API void kel_createMonitoringLink(TarnApi* api, KEL_KEPT const wchar_t* name,
                                        KelError** error, KEL_OUT uint64_t* handle);
/* Closes a monitoring link. Position 12. */
KEL_C_API void kel_releaseMonitoringLink(TarnApi* api, uint64_t handle, KelError** error);
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
/* Reads a file; the two values and the flag are passed to the engine unchanged. Position 60.
 * path: kept by the caller, read only during the call.
 * On success *data receives a buffer of *dataLength bytes, allocated also for 0 bytes; free it
 * with release_Memory. */
KEL_C_API void kel_readFile(TarnApi* api, KEL_KEPT const wchar_t* path, uint64_t value1,
                            uint32_t value2, uint8_t flag, KelError** error, KEL_OUT void** data,
                            KEL_OUT uint32_t* dataLength);
/* Writes bytes to a file; returns the engine's 32-bit result. Position 102.
 * path, data: kept by the caller, read only during the call.
 * On success *result receives the result. */
KEL_C_API void kel_writeFile(TarnApi* api, KEL_KEPT const wchar_t* path,
                             KEL_KEPT const uint8_t* data, uint32_t dataLength, uint32_t value,
                             uint8_t flag, KelError** error, KEL_OUT uint32_t* result);
/* Deletes a directory; the outcome comes back as an error record, NULL when the engine reports
 * none. Position 109.
 * path: kept by the caller, read only during the call.
 * On success *result receives a KelError record, or NULL when the engine gives none; free it
 * with release_KelError. */
KEL_C_API void kel_deleteDirectory(TarnApi* api, KEL_KEPT const wchar_t* path, KelError** error,
                                   KEL_OUT KelError** result);
/* Renames a file. Position 152.
 * path, newName: kept by the caller, read only during the call. */
KEL_C_API void kel_renameFile(TarnApi* api, KEL_KEPT const wchar_t* path,
                              KEL_KEPT const wchar_t* newName, KelError** error);
/* Lists the files that pass the given file filters. Position 173.
 * filters, text: kept by the caller, read only during the call.
 * On success *files and *fileCount receive a string list, NULL and 0 when empty; free it with
 * release_StringArray(files, fileCount). */
KEL_C_API void kel_filterFiles(TarnApi* api, KEL_KEPT FileFilter** filters, uint32_t filterCount,
                               KEL_KEPT const wchar_t* text, KelError** error,
                               KEL_OUT wchar_t*** files, KEL_OUT uint32_t* fileCount);
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
/* Tells whether a path is a directory. Position 200.
 * path: kept by the caller, read only during the call.
 * On success *result receives the result. */
KEL_C_API void kel_isDirectory(TarnApi* api, KEL_KEPT const wchar_t* path, KelError** error,
                               KEL_OUT uint8_t* result);
/* Tells whether a path is a file. Position 203.
 * path: kept by the caller, read only during the call.
 * On success *result receives the result. */
KEL_C_API void kel_isFile(TarnApi* api, KEL_KEPT const wchar_t* path, KelError** error,
                          KEL_OUT uint8_t* result);
/* Adds a public directory under a name. Position 230.
 * name, path: kept by the caller, read only during the call. */
KEL_C_API void kel_addPublicDirectory(TarnApi* api, KEL_KEPT const wchar_t* name,
                                      KEL_KEPT const wchar_t* path, KelError** error);

/* ---- Coding ----
 * Coding strings and files, ECU configuration and checksums */
/* Calculates the checksum of a file with the given algorithm. Position 140.
 * path: kept by the caller, read only during the call.
 * On success *checksum receives a new string; free it with release_Memory. */
KEL_C_API void kel_calculateChecksum(TarnApi* api, KEL_KEPT const wchar_t* path, int32_t algorithm,
                                     KelError** error, KEL_OUT wchar_t** checksum);

/* ---- Measurement ----
 * Measurement values */
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

/* ---- EcuOrder ----
 * The ECU order */
/* Reads the path of the ECU order file. Position 224.
 * On success *path receives a new string; free it with release_Memory. */
KEL_C_API void kel_getEcuOrderFilePath(TarnApi* api, KelError** error, KEL_OUT wchar_t** path);

/* ---- VehicleUpdate ----
 * Vehicle data and reports, update packages, the broker and vehicle updates */
/* Applies an update package. Position 151.
 * package: kept by the caller, read only during the call. */
KEL_C_API void kel_applyUpdatePackage(TarnApi* api, KEL_KEPT const wchar_t* package,
                                      KelError** error);
/* Tells whether the broker has updates. Position 156.
 * On success *available receives the result. */
KEL_C_API void kel_checkUpdatesOnBroker(TarnApi* api, KelError** error, KEL_OUT bool* available);
/* Updates automatically; tells whether anything was updated. Position 157.
 * On success *updated receives the result. */
KEL_C_API void kel_autoUpdate(TarnApi* api, KelError** error, KEL_OUT bool* updated);
/* Lists the current versions of the installed components. Position 163.
 * On success *versions and *versionCount receive a NamedItem list, NULL and 0 when empty; free
 * it with release_NamedItem_array(versions, versionCount). */
KEL_C_API void kel_getCurrentVersions(TarnApi* api, KelError** error, KEL_OUT NamedItem*** versions,
                                      KEL_OUT uint32_t* versionCount);
/* Tells whether the last update succeeded. Position 164.
 * On success *succeeded receives the result. */
KEL_C_API void kel_checkUpdateSuccess(TarnApi* api, KelError** error, KEL_OUT bool* succeeded);
/* Removes the temporary files of updates. Position 165. */
KEL_C_API void kel_cleanUpdateTmp(TarnApi* api, KelError** error);
/* Sets the address of the update broker. Position 206.
 * url: kept by the caller, read only during the call. */
KEL_C_API void kel_setBrokerUrl(TarnApi* api, KEL_KEPT const wchar_t* url, KelError** error);
/* Removes the update packages at hand. Position 214. */
KEL_C_API void kel_clearUpdatePackages(TarnApi* api, KelError** error);

#ifdef __cplusplus
}
#endif

#endif /* KEL_C_H */
