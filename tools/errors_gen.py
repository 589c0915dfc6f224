"""The error table (interface/errors.def): the engine's error codes, written once.

Writes the reference engine's ErrorCodes.h, the public include/kel_c_errors.h (with the
library's own -1001 and -1002), the Python package's ErrorCode and the exception class of
each code (kel/generated/errors.py), and the code table of reference_engine/README.md
between its two markers.

    group <comment text>                                  a comment line above the next codes
    error <code> <Name> [raises=<Kind>]  #: what it means

`raises=` names the exception a failed call with that code raises in Python
(`<Kind>Error`, a subclass of kel.EngineError); codes without it raise EngineError.
Standard library only; called by tools/generate.py.
"""

from __future__ import annotations

import dataclasses
import pathlib
import re

import python_gen

BANNER = "Generated from the interface description by tools/generate.py. Do not edit."
README = "reference_engine/README.md"
BEGIN = "<!-- error codes: written by tools/generate.py from interface/errors.def -->"
END = "<!-- end of the error codes -->"
KINDS = ("NegativeResponse", "NoResponse", "UnknownTarget", "AccessDenied", "Sandbox", "NotSupported",
         "CallCancelled", "ConnectionEnded")
# The library's own codes, beside the engine's.
LIBRARY = [(-1001, "MalformedInput", "checked calls: input short or malformed"),
           (-1002, "NotAvailable", "the operation's records are not built yet")]


@dataclasses.dataclass
class Error:
    code: int
    name: str
    raises: str | None
    doc: str
    comments: list[str]  # the group comment lines above it


def parse(root: pathlib.Path) -> list[Error]:
    errors: list[Error] = []
    comments: list[str] = []
    seen: set[int] = set()
    path = root / "interface" / "errors.def"
    for n, raw in enumerate(path.read_text().splitlines(), 1):
        code_part, _, doc = raw.partition("#:")
        words = code_part.split("#", 1)[0].split()
        if not words:
            continue
        if words[0] == "group":
            comments.append(code_part.strip()[len("group"):].strip())
            continue
        m = re.fullmatch(r"error (\d+) ([A-Z]\w*)(?: raises=(\w+))?", " ".join(words))
        if not m or (m.group(3) and m.group(3) not in KINDS):
            raise SystemExit(f"errors.def:{n}: expected 'error <code> <Name> [raises=<{'|'.join(KINDS)}>]'")
        code = int(m.group(1))
        if code in seen:
            raise SystemExit(f"errors.def:{n}: code {code} given twice")
        seen.add(code)
        errors.append(Error(code, m.group(2), m.group(3), doc.strip(), comments))
        comments = []
    return errors


def constant(name: str) -> str:
    return python_gen.snake(name).upper()


def error_codes_h(errors: list[Error]) -> str:
    out = [f"// {BANNER}", "// Every error code the reference engine throws or reports, one range per family",
           "// (interface/errors.def; README.md, \"Error codes\").", "#pragma once", "", "#include <cstdint>", "",
           "namespace Varno::Kel_cpp::Reference {", "", "enum ErrorCode : int32_t {"]
    for i, e in enumerate(errors):
        if e.comments:
            if i:
                out.append("")
            out += [f"    // {c}" for c in e.comments]
        out.append(f"    {e.name} = {e.code}," + (f" // {e.doc}" if e.doc else ""))
    out += ["};", "", "} // namespace Varno::Kel_cpp::Reference", ""]
    return "\n".join(out)


def c_errors_h(errors: list[Error]) -> str:
    out = [f"/* {BANNER} */", "/* The error codes of kel_c: KelError.code of a failed call or of a per-item error. */",
           "#ifndef KEL_C_ERRORS_H", "#define KEL_C_ERRORS_H", "",
           "/* Error codes of the library itself, in the error record of the call stream. */"]
    out += [f"#define KEL_ERROR_{constant(name)} ({code}) /* {doc} */" for code, name, doc in LIBRARY]
    out += ["", "/* The engine's codes. */"]
    for e in errors:
        out.append(f"#define KEL_ERROR_{constant(e.name)} {e.code}" + (f" /* {e.doc} */" if e.doc else ""))
    out += ["", "#endif", ""]
    return "\n".join(out)


def errors_py(errors: list[Error]) -> str:
    out = [f"# {BANNER}", '"""The error codes of the engine and of kel_c, and the exception each raises."""', "",
           "from __future__ import annotations", "", "import enum", "", "",
           "class ErrorCode(enum.IntEnum):",
           '    """KelError.code: the library\'s own codes (negative) and the engine\'s."""', ""]
    for code, name, doc in LIBRARY:
        out += [f"    {constant(name)} = {code}", f'    """{doc[0].upper() + doc[1:]}."""']
    for e in errors:
        out.append(f"    {constant(e.name)} = {e.code}")
        if e.doc:
            out += python_gen.docstring(e.doc[0].upper() + e.doc[1:].rstrip(".") + ".", "    ")
    out += ["", "", "# The exception kind of the codes that have one (kel.errors maps the kind to its class).",
            "RAISES: dict[int, str] = {"]
    out += [f"    {e.code}: \"{e.raises}\"," for e in errors if e.raises]
    out += ["}", ""]
    return "\n".join(out)


def readme_table(errors: list[Error]) -> str:
    rows = ["| code | `ErrorCode` | Python raises | meaning |", "|---|---|---|---|"]
    for code, name, doc in LIBRARY:
        rows.append(f"| {code} | `{constant(name)}` | `{name}Error` | {doc} |")
    for e in errors:
        rows.append(f"| {e.code} | `{constant(e.name)}` | `{(e.raises or 'Engine') + 'Error'}` | {e.doc} |")
    return "\n".join(rows)


def outputs(root: pathlib.Path) -> dict[str, str]:
    errors = parse(root)
    readme = (root / README).read_text()
    if BEGIN in readme and END in readme:
        head, rest = readme.split(BEGIN, 1)
        readme = head + BEGIN + "\n" + readme_table(errors) + "\n" + END + rest.split(END, 1)[1]
    return {
        "reference_engine/ErrorCodes.h": error_codes_h(errors),
        "include/kel_c_errors.h": c_errors_h(errors),
        "kel/generated/errors.py": errors_py(errors),
        README: readme,
    }
