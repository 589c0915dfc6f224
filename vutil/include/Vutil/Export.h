// Visibility of the utility library's entry points.
#pragma once

#if defined(_WIN32)
#if defined(VUTIL_BUILDING)
#define VUTIL_API __declspec(dllexport)
#else
#define VUTIL_API __declspec(dllimport)
#endif
#else
#define VUTIL_API __attribute__((visibility("default")))
#endif
