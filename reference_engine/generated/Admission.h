// Generated from the interface description by tools/generate.py. Do not edit.
// The least a remote caller needs to be admitted to each operation (the `role=` of the
// description); ServersState::admit enforces it.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace Varno::Kel_cpp::Reference {

enum class Admission : uint8_t {
    Anyone,        // also a connection that has not logged in
    Operator,      // a logged-in user
    Administrator, // a user logged in as an administrator
};

// Empty for a name the description does not know.
std::optional<Admission> admission(std::string_view operation);

} // namespace Varno::Kel_cpp::Reference
