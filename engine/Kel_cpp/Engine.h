// Entry points of the engine library: the local engine and connections to remote ones.
#pragma once

#include <Kel_cpp/Export.h>
#include <Kel_cpp/TarnApi.h>

#include <cstdint>
#include <memory>

namespace Varno::Kel_cpp {

// The local engine. Several calls may hand out the same object.
KEL_CPP_API std::shared_ptr<TarnApi> getTarnApi();

// The engine object behind a handle (see TarnApi::getHandle); throws TarnApiException
// for a handle the engine does not know.
KEL_CPP_API std::shared_ptr<TarnApi> getRemoteConnectionByHandle(uint64_t handle);

} // namespace Varno::Kel_cpp
