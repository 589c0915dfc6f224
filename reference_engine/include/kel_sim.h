/* Scripting interface of the reference engine (the simulated vehicle), for tests in
 * C, C++ and Python. Operations are named as in the engine interface ("lock",
 * "readDtcs"). Nothing here is part of kel_c. */
#ifndef KEL_SIM_H
#define KEL_SIM_H

#include <stddef.h>
#include <stdint.h>
#include <wchar.h>

#if defined(_WIN32)
#if defined(KEL_CPP_BUILDING)
#define KEL_SIM_API __declspec(dllexport)
#else
#define KEL_SIM_API __declspec(dllimport)
#endif
#else
#define KEL_SIM_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* The next `count` calls of `operation` throw a TarnApiException with these values
 * (NULL texts are empty) and no MVCI error. A count of 0 cancels what was scripted. */
KEL_SIM_API void kelsim_failNext(const char* operation, uint32_t count, int32_t code,
                                 int32_t subCode, const wchar_t* message, const wchar_t* details);

/* The same, with an MVCI server error beneath the engine error. */
KEL_SIM_API void kelsim_failNextWithMvci(const char* operation, uint32_t count, int32_t code,
                                         int32_t subCode, const wchar_t* message,
                                         const wchar_t* details, int32_t mvciCode,
                                         const wchar_t* mvciCodeText, int32_t vendorCode,
                                         const wchar_t* vendorCodeText, const wchar_t* extraText,
                                         int32_t extraCode);

/* The next `count` calls of `operation` throw, where the vehicle would be called, an
 * exception that is not an engine error (a std::runtime_error with `what`), as a fault
 * in a family would; the engine turns it into its internal error (2301). */
KEL_SIM_API void kelsim_throwNext(const char* operation, uint32_t count, const char* what);

/* Every call of `operation` first waits `milliseconds` (0 removes the delay). */
KEL_SIM_API void kelsim_setDelay(const char* operation, uint32_t milliseconds);

/* The arguments of the last call of `operation` as a JSON array in parameter order
 * (records as objects with their field names, strings in UTF-8). Copies at most `size`
 * bytes including the terminating NUL into `buffer` and returns the full length
 * without the NUL, or -1 when the operation was never called. */
KEL_SIM_API int64_t kelsim_lastArguments(const char* operation, char* buffer, size_t size);

/* The next call of `operation` (through any engine object) returns the result that
 * `json` describes instead of reaching the vehicle; its arguments are recorded as for
 * any call. `json` has the form kelsim_lastArguments writes values in: records as
 * objects with exactly their fields in field order (NamedItem's itemText1..4 first),
 * null for a null record, strings in UTF-8, byte and integer lists and fixed-size
 * arrays as arrays of numbers, bools as true/false, bit sets as numbers. A void
 * operation takes `null` and returns at once. An asynchronous operation
 * ("readDtcsAsync") takes what its synchronous form returns: the call returns a new
 * call id and the callback receives those results in one final report without error,
 * from a thread of the engine, shortly after the call returned.
 * Each scripted result serves one call; several queue in order. A scripted failure
 * (kelsim_failNext) of the same call wins and leaves the result for the next call.
 * Returns 0, or -1 (reason from kelsim_lastScriptError) when the operation is unknown,
 * returns an engine object (connectRemoteServer), or `json` does not describe a value
 * of its result's type. */
KEL_SIM_API int32_t kelsim_scriptResult(const char* operation, const char* json);

/* Why the last kelsim_scriptResult returned -1 ("" after a success), copied into
 * `buffer` as kelsim_lastArguments does; returns the full length. */
KEL_SIM_API int64_t kelsim_lastScriptError(char* buffer, size_t size);

/* How often `operation` was called since the last reset. */
KEL_SIM_API uint64_t kelsim_callCount(const char* operation);

/* Posts an event on the vehicle of the engine object with `handle` (kel_getHandle), as
 * the vehicle would: it reaches every event channel open on that vehicle. `kind` should
 * be 100 or above, clear of the vehicle's own kinds; NULL texts are empty. With a
 * non-NULL `errorMessage` the event carries an error with `errorCode` and that message.
 * Returns 0, or -1 when no live engine object has the handle. */
KEL_SIM_API int32_t kelsim_postEvent(uint64_t handle, int32_t kind, int32_t code,
                                     const wchar_t* text, const wchar_t* detail, int32_t errorCode,
                                     const wchar_t* errorMessage);

/* The engine holds its local engine object itself (callers may use it without a
 * reference). This lets go of that hold: once every caller has released it too, the
 * next kel_getTarnApi starts a fresh engine on a fresh vehicle. */
KEL_SIM_API void kelsim_restart(void);

/* ---- the simulated vehicle ----
 * Vehicles read their description (reference_engine/README.md) when they start: the
 * one set here, else the file named by the environment variable KEL_SIM_VEHICLE, else
 * the bundled default vehicle. Setting one also reloads every live vehicle. Both return
 * 0, or -1 when the description cannot be read or is not valid (nothing changes then).
 * NULL (or "") goes back to KEL_SIM_VEHICLE or the default. */
KEL_SIM_API int32_t kelsim_setVehicleFile(const char* path);
KEL_SIM_API int32_t kelsim_setVehicleJson(const char* json);
/* Every live vehicle goes back to the fault memory of its description. */
KEL_SIM_API void kelsim_reloadVehicle(void);
/* The description that vehicles start from now (set above, else KEL_SIM_VEHICLE's file,
 * else the default) as compact JSON in UTF-8, so that a caller can change one member and
 * set it back with kelsim_setVehicleJson. Copies it as kelsim_lastArguments does and
 * returns its full length, or -1 when it cannot be read or is not a JSON object. */
KEL_SIM_API int64_t kelsim_vehicleJson(char* buffer, size_t size);

/* ---- the data root ----
 * The real folder under which the engine keeps its files (reference_engine/README.md,
 * "The data root"): the one set here, else the one named by the environment variable
 * KEL_SIM_DATA_ROOT, else a folder made per process in the temporary folder and removed
 * when the process ends. NULL (or L"") goes back to KEL_SIM_DATA_ROOT or the default.
 * Families read their files when their vehicle starts: kelsim_restart after a change. */
KEL_SIM_API void kelsim_setDataRoot(const wchar_t* folder);
/* The current root (created if needed), copied into `buffer` (`size` wide characters,
 * NUL-terminated, cut if short); returns its full length, or -1 when it cannot be
 * created. */
KEL_SIM_API int64_t kelsim_dataRoot(wchar_t* buffer, size_t size);

/* ---- asynchronous calls, by operation name ("readDtcsAsync") ----
 * Number of reports of each call (0, the default: one per result, at least one). */
KEL_SIM_API void kelsim_setAsyncReports(const char* operation, uint32_t reports);
/* Time before each report (default 5 ms). */
KEL_SIM_API void kelsim_setAsyncInterval(const char* operation, uint32_t milliseconds);
/* The next `count` calls start normally and end with one final report that carries
 * this error and no results. */
KEL_SIM_API void kelsim_failAsync(const char* operation, uint32_t count, int32_t code,
                                  const wchar_t* message, const wchar_t* details);
/* The next `count` calls start normally, and their work throws on the engine's worker an
 * exception that is not an engine error (a std::runtime_error with `what`), as a fault
 * in a family would: the call ends with one final report carrying the internal error
 * (2301). */
KEL_SIM_API void kelsim_throwAsync(const char* operation, uint32_t count, const char* what);
/* Asynchronous calls still running on the vehicle of the engine object with `handle`,
 * or -1 when no live engine object has it. */
KEL_SIM_API int64_t kelsim_runningAsyncCalls(uint64_t handle);

/* ---- vehicle time ----
 * Every timeout of the simulated vehicle (a diagnostic session falling back to the
 * default session, a security access lockout, a login throttle) runs on vehicle time: the steady clock
 * plus what this moved it on by. Tests advance it instead of sleeping. One clock for
 * the process; it never goes back, and kelsim_reset leaves it as it is. */
KEL_SIM_API void kelsim_advanceClock(uint64_t milliseconds);
/* Vehicle time in milliseconds since the engine first read it. */
KEL_SIM_API int64_t kelsim_clockMs(void);
/* ---- servers and logins ----
 * Throttled logins and identity provider codes run on vehicle time too.
 * The simulated identity provider (reference_engine/README.md, "Servers"): `user` signs
 * in at `url`, an address from getThirdPartyLoginUrl, as a browser would. Copies the
 * one-time authorization code for thirdPartyLogin into `code` (`size` wide characters,
 * NUL-terminated) and returns its length, or -1 when the address's login state was
 * never handed out or is used up. */
KEL_SIM_API int64_t kelsim_signInAtIdentityProvider(const wchar_t* url, const wchar_t* user,
                                                    wchar_t* code, size_t size);

/* ---- monitoring ----
 * Saves what the PDU monitor `monitor` holds (it keeps it) as the trace file
 * `traces/<name>` of the vehicle of the engine object with `handle` (kel_getHandle), for
 * kel_openTraceFileMonitoringLink to replay (reference_engine/README.md, "Trace files").
 * `name` goes through the sandbox of the file operations. Returns 0, the engine's error
 * code (1500 unknown monitor, the sandbox's refusals, 1612 not written), or -1 when no
 * live engine object has the handle. */
KEL_SIM_API int32_t kelsim_savePduMonitor(uint64_t handle, uint64_t monitor, const wchar_t* name);

/* Forgets scripted failures, results, delays, recorded calls, asynchronous scripts, and
 * the vehicle description and data root set above. Scripted reports of asynchronous
 * calls still on their way are delivered first, so none arrives after the test that
 * asked for it. */
KEL_SIM_API void kelsim_reset(void);

#ifdef __cplusplus
}
#endif

#endif /* KEL_SIM_H */
