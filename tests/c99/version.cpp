// The header's version macros against the project's version in CMake, passed in by the
// build: a version changed in one place only fails to compile here.
#include <kel_c.h>

#include <string_view>

static_assert(KEL_C_VERSION_MAJOR == KEL_C_EXPECTED_MAJOR);
static_assert(KEL_C_VERSION_MINOR == KEL_C_EXPECTED_MINOR);
static_assert(KEL_C_VERSION_PATCH == KEL_C_EXPECTED_PATCH);
static_assert(std::string_view(KEL_C_VERSION) == KEL_C_EXPECTED_VERSION);
