"""Who may call each operation on a remote connection, from the `role=` attributes of the
description (interface/README.md): the reference engine's admission table, the table of
its README, and the conformance check of every operation against it.

Standard library only; called by tools/generate.py and tools/conformance.py.
"""

from __future__ import annotations

import pathlib

import kelidl

BANNER = "Generated from the interface description by tools/generate.py. Do not edit."
README = "reference_engine/README.md"
BEGIN = "<!-- admission table: written by tools/generate.py from interface/operations.def -->"
END = "<!-- end of the admission table -->"
ENUM = {"anyone": "Admission::Anyone", "operator": "Admission::Operator",
        "administrator": "Admission::Administrator"}


def admitted_operations(iface: kelidl.Interface) -> list[kelidl.Operation]:
    return [op for op in iface.operations if not op.reserved]


def admission_h() -> str:
    return f"""// {BANNER}
// The least a remote caller needs to be admitted to each operation (the `role=` of the
// description); ServersState::admit enforces it.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace Varno::Kel_cpp::Reference {{

enum class Admission : uint8_t {{
    Anyone,        // also a connection that has not logged in
    Operator,      // a logged-in user
    Administrator, // a user logged in as an administrator
}};

// Empty for a name the description does not know.
std::optional<Admission> admission(std::string_view operation);

}} // namespace Varno::Kel_cpp::Reference
"""


def admission_cpp(iface: kelidl.Interface) -> str:
    ops = sorted(admitted_operations(iface), key=lambda op: op.name)
    rows = [f'    {{"{op.name}", {ENUM[op.role]}}},' for op in ops]
    return "\n".join([
        f"// {BANNER}", "", '#include "Admission.h"', "", "#include <algorithm>", "#include <array>",
        "#include <utility>", "", "namespace Varno::Kel_cpp::Reference {", "namespace {", "",
        "// By name, for the binary search.",
        f"constexpr std::array<std::pair<std::string_view, Admission>, {len(ops)}> table{{{{",
        *rows, "}};", "", "} // namespace", "",
        "std::optional<Admission> admission(std::string_view operation) {",
        "    const auto found = std::lower_bound(",
        "        table.begin(), table.end(), operation,",
        "        [](const auto& entry, std::string_view name) { return entry.first < name; });",
        "    if (found == table.end() || found->first != operation) {",
        "        return std::nullopt;",
        "    }",
        "    return found->second;",
        "}", "", "} // namespace Varno::Kel_cpp::Reference", ""])


def readme_table(iface: kelidl.Interface) -> list[str]:
    out = ["| family | a remote connection before logging in | an operator (and an administrator) "
           "| an administrator only |", "|---|---|---|---|"]
    for family in iface.families():
        ops = [op for op in admitted_operations(iface) if op.family == family and not op.is_async]
        cells = []
        for role in kelidl.ROLES:
            names = [op.name for op in ops if op.role == role]
            cells.append(", ".join(f"`{n}`" for n in names) or "-")
        out.append(f"| {family} | " + " | ".join(cells) + " |")
    return out


def readme(iface: kelidl.Interface, root: pathlib.Path) -> str:
    """The README with its table rewritten between the two markers."""
    text = (root / README).read_text()
    head, begin, rest = text.partition(BEGIN)
    _, end, tail = rest.partition(END)
    if not begin or not end:
        raise kelidl.DescriptionError(f"{README} lacks the admission table's markers")
    return head + BEGIN + "\n" + "\n".join(readme_table(iface)) + "\n" + END + tail


def outputs(iface: kelidl.Interface, root: pathlib.Path) -> dict[str, str]:
    return {"reference_engine/generated/Admission.h": admission_h(),
            "reference_engine/generated/Admission.cpp": admission_cpp(iface),
            README: readme(iface, root)}


def conformance_tests(op: kelidl.Operation, family: str, export: str, cases: str, is_async: bool) -> list[str]:
    """The check that a remote connection gets what the table says for one export."""
    check = "asyncAdmission" if is_async else "admission"
    return [f"TEST_F({family}Admission, {op.name}) {{ "
            f"kc::{check}<{export}>(callers(), {cases}, {ENUM[op.role].replace('Admission', 'kc::Needs')}); }}"]
