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
KEL_SIM_API void kelsim_failNext(const char* operation, uint32_t count, int32_t code, int32_t subCode,
                                 const wchar_t* message, const wchar_t* details);

/* The same, with an MVCI server error beneath the engine error. */
KEL_SIM_API void kelsim_failNextWithMvci(const char* operation, uint32_t count, int32_t code,
                                         int32_t subCode, const wchar_t* message,
                                         const wchar_t* details, int32_t mvciCode,
                                         const wchar_t* mvciCodeText, int32_t vendorCode,
                                         const wchar_t* vendorCodeText, const wchar_t* extraText,
                                         int32_t extraCode);

/* Every call of `operation` first waits `milliseconds` (0 removes the delay). */
KEL_SIM_API void kelsim_setDelay(const char* operation, uint32_t milliseconds);

/* The arguments of the last call of `operation` as a JSON array in parameter order
 * (records as objects with their field names, strings in UTF-8). Copies at most `size`
 * bytes including the terminating NUL into `buffer` and returns the full length
 * without the NUL, or -1 when the operation was never called. */
KEL_SIM_API int64_t kelsim_lastArguments(const char* operation, char* buffer, size_t size);

/* How often `operation` was called since the last reset. */
KEL_SIM_API uint64_t kelsim_callCount(const char* operation);

/* Forgets scripted failures, delays and recorded calls. */
KEL_SIM_API void kelsim_reset(void);

#ifdef __cplusplus
}
#endif

#endif /* KEL_SIM_H */
