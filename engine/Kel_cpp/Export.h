// Visibility of the engine library's entry points.
#pragma once

#if defined(_WIN32)
#if defined(KEL_CPP_BUILDING)
#define KEL_CPP_API __declspec(dllexport)
#else
#define KEL_CPP_API __declspec(dllimport)
#endif
#else
#define KEL_CPP_API __attribute__((visibility("default")))
#endif
