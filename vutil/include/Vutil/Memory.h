// Temporary blocks of the utility library (conversion buffers and the like).
#pragma once

#include <Vutil/Export.h>

#include <cstddef>

VUTIL_API void* f_malloc(std::size_t size);
VUTIL_API void f_free(void* block);
