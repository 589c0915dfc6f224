#!/usr/bin/env python3
"""Writes every file that derives from the interface description.

    python3 tools/generate.py          rewrite the generated files
    python3 tools/generate.py --check  exit 1 if a committed file differs

Outputs are plain declarations and tables; the behaviour behind them is hand-written,
generic C++ (kel_c/convert.h, kel_c/frame.h). Standard library only.
"""

from __future__ import annotations

import argparse
import pathlib
import re
import shutil
import subprocess
import sys
import textwrap

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
import admission  # noqa: E402
import remote_gen  # noqa: E402
import errors_gen  # noqa: E402
import conformance  # noqa: E402
import kelidl  # noqa: E402
import python_gen  # noqa: E402

ROOT = pathlib.Path(__file__).resolve().parent.parent
BANNER = "Generated from the interface description by tools/generate.py. Do not edit."
ENGINE_NS = "Varno::Kel_cpp"

# Exports written by hand (registry, memory); the generator lists them with the rest.
HAND_WRITTEN_EXPORTS = [
    "kel_getTarnApi",
    "kel_getRemoteConnectionByHandle",
    "releaseTarnApi",
    "allocate_Memory",
    "duplicate_String",
    "duplicate_WString",
    "release_Memory",
    "release_StringArray",
    "kel_call",
    "kel_call_result",
    "kel_call_checked",
    "py_call",
    "py_result",
    "py_call_checked",
]


# ---- type mapping ------------------------------------------------------------------

def c_field(f: kelidl.Field) -> list[str]:
    if f.kind in kelidl.SCALARS:
        return [f"{kelidl.SCALARS[f.kind][0]} {f.name};"]
    if f.kind == "array":
        return [f"{kelidl.SCALARS[f.element][0]} {f.name}[{f.length}];"]
    if f.kind == "wstr":
        return [f"wchar_t* {f.name};"]
    if f.kind == "wstrs":
        return [f"wchar_t** {f.name};", f"uint32_t {f.count};"]
    if f.kind == "bytes":
        return [f"uint8_t* {f.name};", f"uint32_t {f.count};"]
    if f.kind == "rec":
        return [f"{f.c_name}* {f.name};"]
    if f.kind == "list":
        return [f"{f.c_name}** {f.name};", f"uint32_t {f.count};"]
    raise AssertionError(f.kind)


def engine_field(f: kelidl.Field) -> str:
    if f.kind in kelidl.SCALARS:
        engine_type = kelidl.SCALARS[f.kind][1]
        init = "false" if engine_type == "bool" else "0"
        return f"{engine_type} {f.name} = {init};"
    if f.kind == "array":
        return f"std::array<{kelidl.SCALARS[f.element][1]}, {f.length}> {f.name}{{}};"
    if f.kind == "wstr":
        return f"std::wstring {f.name};"
    if f.kind == "wstrs":
        return f"std::vector<std::wstring> {f.name};"
    if f.kind == "bytes":
        return f"std::vector<uint8_t> {f.name};"
    if f.kind == "rec":
        return f"std::shared_ptr<{f.record}> {f.name};"
    if f.kind == "list":
        return f"std::vector<std::shared_ptr<{f.record}>> {f.name};"
    raise AssertionError(f.kind)


def engine_param(v: kelidl.Value) -> str:
    if v.kind in kelidl.SCALARS:
        return f"{kelidl.SCALARS[v.kind][1]} {v.name}"
    return {
        "wstr": f"const std::wstring& {v.name}",
        "wstrs": f"const std::vector<std::wstring>& {v.name}",
        "u32s": f"const std::vector<uint32_t>& {v.name}",
        "u64s": f"const std::vector<uint64_t>& {v.name}",
        "bytes": f"const std::vector<uint8_t>& {v.name}",
        "rec": f"std::shared_ptr<{v.record}> {v.name}",
        "list": f"const std::vector<std::shared_ptr<{v.record}>>& {v.name}",
        "handler": f"std::shared_ptr<ServerHandler> {v.name}",
    }[v.kind]


def engine_result(v: kelidl.Value | None) -> str:
    if v is None:
        return "void"
    if v.kind in kelidl.SCALARS:
        return kelidl.SCALARS[v.kind][1]
    return {
        "wstr": "std::wstring",
        "wstrs": "std::vector<std::wstring>",
        "bytes": "std::vector<uint8_t>",
        "blob": "std::vector<uint8_t>",
        "rec": f"std::shared_ptr<{v.record}>",
        "list": f"std::vector<std::shared_ptr<{v.record}>>",
        "engine": "std::shared_ptr<TarnApi>",
    }[v.kind]


def engine_signature(op: kelidl.Operation, names: bool = True) -> str:
    def param(v: kelidl.Value) -> str:
        text = engine_param(v)
        return text if names else text.rsplit(" ", 1)[0]

    if op.reserved:
        return f"void {op.name}()"
    if op.is_async:
        callback = f"{op.callback_class}* callback" if names else f"{op.callback_class}*"
        params = [param(p) for p in op.inputs] + [callback]
        return f"uint64_t {op.name}({', '.join(params)})"
    return f"{engine_result(op.result)} {op.name}({', '.join(param(p) for p in op.params)})"


def c_params(v: kelidl.Value) -> list[str]:
    if v.kind in kelidl.SCALARS:
        return [f"{kelidl.SCALARS[v.kind][0]} {v.name}"]
    return {
        "wstr": [f"const wchar_t* {v.name}"],
        "wstrs": [f"wchar_t** {v.name}", f"uint32_t {v.count}"],
        "u32s": [f"const uint32_t* {v.name}", f"uint32_t {v.count}"],
        "u64s": [f"const uint64_t* {v.name}", f"uint32_t {v.count}"],
        "bytes": [f"const uint8_t* {v.name}", f"uint32_t {v.count}"],
        "rec": [f"{v.c_name}* {v.name}"],
        "list": [f"{v.c_name}** {v.name}", f"uint32_t {v.count}"],
        "handler": [f"void* {v.name}"],
    }[v.kind]


def c_outputs(v: kelidl.Value) -> list[str]:
    if v.kind in kelidl.SCALARS:
        return [f"{kelidl.SCALARS[v.kind][0]}* {v.name}"]
    return {
        "wstr": [f"wchar_t** {v.name}"],
        "wstrs": [f"wchar_t*** {v.name}", f"uint32_t* {v.count}"],
        "bytes": [f"uint8_t** {v.name}", f"uint32_t* {v.count}"],
        "blob": [f"void** {v.name}", f"uint32_t* {v.count}"],
        "rec": [f"{v.c_name}** {v.name}"],
        "list": [f"{v.c_name}*** {v.name}", f"uint32_t* {v.count}"],
        "engine": [f"uint64_t* {v.name}"],
    }[v.kind]


# The header marks each pointer parameter with an empty macro that says who owns it.
CONSUMED, KEPT, OUT = "KEL_CONSUMED ", "KEL_KEPT ", "KEL_OUT "


def c_inputs(v: kelidl.Value, marked: bool) -> list[str]:
    args = c_params(v)
    if not marked or v.kind in kelidl.SCALARS:
        return args
    return [(CONSUMED if v.kind == "rec" else KEPT) + args[0]] + args[1:]


def c_results(op: kelidl.Operation, marked: bool) -> list[str]:
    if not op.result or op.discard:
        return []
    return [(OUT if marked else "") + a for a in c_outputs(op.result)]


def c_signature(op: kelidl.Operation, marked: bool = False) -> str:
    """The export's C declaration; `marked` adds the ownership marks of the header."""
    if op.is_async:
        return c_async_signature(op, marked)
    api = "uint64_t api" if op.api64 else "TarnApi* api"
    inputs = [a for p in op.params for a in c_inputs(p, marked)]
    outputs = c_results(op, marked)
    error = ["KelError** error"]
    args = [api] + (error + inputs if op.error_first else inputs + error) + outputs
    return f"void kel_{op.name}({', '.join(args)})"


def input_expr(v: kelidl.Value) -> str:
    if v.kind == "flag":
        return f"{v.name} != 0"
    if v.kind in kelidl.SCALARS:
        return v.name
    if v.kind in kelidl.RECORD_KINDS and v.c_record:
        # An `as=` class: the engine class is not the C record's own, so it is named.
        types = f"<::{v.c_record}, {ENGINE_NS}::{v.record}>"
        if v.kind == "rec":
            return f"kel::in::record{types}({v.name})"
        return f"kel::in::records{types}({v.name}, {v.count})"
    return {
        "wstr": f"kel::in::text({v.name})",
        "wstrs": f"kel::in::texts({v.name}, {v.count})",
        "u32s": f"kel::in::values({v.name}, {v.count})",
        "u64s": f"kel::in::values({v.name}, {v.count})",
        "bytes": f"kel::in::values({v.name}, {v.count})",
        "rec": f"kel::in::record({v.name})",
        "list": f"kel::in::records({v.name}, {v.count})",
        "handler": f"kel::in::handler({v.name})",
    }[v.kind]


def output_expr(v: kelidl.Value) -> str:
    if v.kind in kelidl.SCALARS:
        return f"kel::out::value({v.name})"
    return {
        "wstr": f"kel::out::text({v.name})",
        "wstrs": f"kel::out::texts({v.name}, {v.count})",
        "bytes": f"kel::out::buffer({v.name}, {v.count})",
        "blob": f"kel::out::buffer({v.name}, {v.count})",
        "rec": f"kel::out::record({v.name})",
        "list": f"kel::out::records({v.name}, {v.count})",
        "engine": f"kel::out::engine({v.name})",
    }[v.kind]


def export_body(op: kelidl.Operation) -> str:
    if op.is_async:
        return async_export_body(op)
    api = "kel::engine(api)" if op.api64 else "api"
    call = f"{api}->{op.name}({', '.join(input_expr(p) for p in op.params)})"
    if op.result and not op.discard:
        return f"kel::invoke(error, [&] {{ return {call}; }}, {output_expr(op.result)});"
    return f"kel::invoke(error, [&] {{ {call}; }});"


# ---- the files -----------------------------------------------------------------------

def bases_first(records: list[kelidl.Record]) -> list[kelidl.Record]:
    """The records in description order, except that a base stands before what derives from it."""
    names = {rec.name: rec for rec in records}
    ordered: dict[str, kelidl.Record] = {}

    def place(rec: kelidl.Record) -> None:
        if rec.base in names and rec.base not in ordered:
            place(names[rec.base])
        ordered.setdefault(rec.name, rec)

    for rec in records:
        place(rec)
    return list(ordered.values())


def engine_classes(records: list[kelidl.Record]) -> list[str]:
    out = [f"class {rec.name};" for rec in records] + [""]
    for rec in bases_first(records):
        base = f" : public virtual {rec.base}" if rec.base else ""
        note = "  // fields come with its family" if rec.pending else ""
        out.append(f"class {rec.name}{base} {{{note}")
        out.append("public:")
        if rec.base:
            out.append(f"    ~{rec.name}() override = default;")
        else:
            out.append(f"    virtual ~{rec.name}() = default;")
        for f in rec.fields:
            out.append(f"    {engine_field(f)}")
        out.append("};")
        out.append("")
    return out


def engine_records_h(iface: kelidl.Interface) -> str:
    out = [f"// {BANNER}", "// Engine record classes. Each is polymorphic and handed around by std::shared_ptr;",
           "// records with the NamedItem base inherit it virtually.", "#pragma once", "",
           "#include <array>", "#include <cstdint>", "#include <memory>", "#include <string>",
           "#include <vector>", "", f"namespace {ENGINE_NS} {{", ""]
    out += engine_classes(list(iface.records.values()))
    out.append(f"}} // namespace {ENGINE_NS}")
    return "\n".join(out) + "\n"


def tarn_api_h(iface: kelidl.Interface) -> str:
    out = [f"// {BANNER}",
           "// The engine interface. Operations stand at fixed virtual-table positions: on the",
           "// Itanium C++ ABI the virtual destructor fills positions 0 and 1, and every",
           "// operation below sits at the position given beside it.",
           "#pragma once", "",
           "#include <Kel_cpp/Records.h>", "#include <Kel_cpp/ServerHandler.h>",
           "#include <Kel_cpp/TarnApiException.h>", "",
           "#include <cstdint>", "#include <memory>", "#include <string>", "#include <vector>", "",
           f"namespace {ENGINE_NS} {{", "",
           "class TarnApi {", "public:"]
    asyncs = [op for op in iface.operations if op.is_async]
    out.append("    // Completion callbacks of the asynchronous operations. The engine calls")
    out.append("    // onCompleted once or several times; isFinal marks the last report.")
    for op in asyncs:
        res = engine_result(op.sync.result)
        out += [f"    class {op.callback_class} {{",
                "    public:",
                f"        virtual void onCompleted({res} results, uint64_t callId,",
                "                                 std::shared_ptr<KelError> error, bool isFinal) = 0;",
                "",
                "    protected:",
                f"        {op.callback_class}() = default;",
                f"        {op.callback_class}(const {op.callback_class}&) = default;",
                f"        {op.callback_class}& operator=(const {op.callback_class}&) = default;",
                f"        ~{op.callback_class}() = default;",
                "    };", ""]
    out += ["    virtual ~TarnApi() = default; // positions 0 and 1",
            "#if defined(_MSC_VER)",
            "    // MSVC gives the destructor one slot; this keeps every later position.",
            "    virtual void reserved1() = 0;",
            "#endif", ""]
    for op in iface.operations:
        out.append(f"    virtual {engine_signature(op)} = 0; // {op.position}")
    out += ["};", "", f"}} // namespace {ENGINE_NS}"]
    return "\n".join(out) + "\n"


C_PROLOGUE = """\
#ifndef KEL_C_H
#define KEL_C_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>
#include <wchar.h>

#if defined(_WIN32)
#if defined(KEL_C_BUILDING)
#define KEL_C_API __declspec(dllexport)
#else
#define KEL_C_API __declspec(dllimport)
#endif
#else
#define KEL_C_API __attribute__((visibility("default")))
#endif

/* Who owns a pointer parameter, marked before it; the marks expand to nothing.
 * KEL_CONSUMED  passes into the library, which frees it, also when the call fails: the
 *               caller's pointer dangles afterwards. Build it on the library's heap
 *               (allocate_Memory, duplicate_WString).
 * KEL_KEPT      read only during the call; it stays the caller's, to free or reuse.
 * KEL_OUT       where the library stores a result (an export only on success); what it
 *               receives belongs to the caller, who frees it as the comment says. */
#define KEL_CONSUMED
#define KEL_KEPT
#define KEL_OUT

#ifdef __cplusplus
namespace Varno {
namespace Kel_cpp {
class TarnApi;
}
} // namespace Varno
typedef Varno::Kel_cpp::TarnApi TarnApi;
extern "C" {
#else
/* An engine object: obtained from kel_getTarnApi, given back with releaseTarnApi. */
typedef struct TarnApi TarnApi;
#endif
"""

C_FRAME = """\
/* ---- engine objects ---- */
/* Registers the local engine object and returns its address, the `api` of every export.
 * Every kel_getTarnApi is matched by one releaseTarnApi; getting the same engine object
 * twice returns the same address and counts two uses. */
KEL_C_API TarnApi* kel_getTarnApi(void);
/* The same for a remote connection to the engine object whose engine handle (kel_getHandle)
 * is `handle`: the same connection again while it lives. An address, as
 * kel_connectRemoteServer hands out, is no handle (error 1005). After an error it returns
 * NULL and *error holds the error record (free it with release_KelError). */
KEL_C_API TarnApi* kel_getRemoteConnectionByHandle(uint64_t handle, KelError** error);
/* Gives back one use of an engine object; the last one lets the library's reference go.
 * NULL and addresses never handed out are ignored. */
KEL_C_API void releaseTarnApi(TarnApi* api);

/* ---- memory ----
 * Everything the library hands out comes from its C heap and goes back through a
 * release_* function or release_Memory. Input records that an export consumes must be
 * built on the same heap, with allocate_Memory and duplicate_WString. */
/* malloc on the library's heap; NULL when the heap is exhausted. */
KEL_C_API void* allocate_Memory(size_t size);
/* Copies of s on the library's heap, NULL for NULL; s stays the caller's. */
KEL_C_API char* duplicate_String(KEL_KEPT const char* s);
KEL_C_API wchar_t* duplicate_WString(KEL_KEPT const wchar_t* s);
/* Frees one block of the library's heap: a string or buffer it handed out; NULL is allowed. */
KEL_C_API void release_Memory(KEL_CONSUMED void* p);
/* Frees a string list that an export handed out: its `count` strings (NULL entries are
 * skipped), then the block. `count` is the uint32_t count of the export, widened; NULL is
 * allowed. */
KEL_C_API void release_StringArray(KEL_CONSUMED wchar_t** ptr, uint64_t count);

/* ---- calls by number over a byte stream (OTX runtimes, Python) ----
 * kel_call reads the arguments of operation `operation` from `input` (kept) and hands out
 * a result stream in *outStream with its size in *outSize: a status byte (1 success, 0
 * engine error), then the results or the error record. Fetch it with kel_call_result,
 * which copies it into `destination` (at least *outSize bytes), frees it and returns
 * `destination`; a second call on the same stream copies nothing. `handle` 0 is the local
 * engine; any other value is an engine handle (kel_getHandle, not an address), and the call
 * goes to the remote connection that kel_getRemoteConnectionByHandle gives for it. When the
 * engine rejects the handle, every operation answers status 0 with the engine's error.
 * Unknown numbers leave the outputs alone. */
KEL_C_API void kel_call(uint64_t handle, int32_t operation, KEL_KEPT const void* input,
                        KEL_OUT void** outStream, KEL_OUT uint64_t* outSize);
KEL_C_API void* kel_call_result(KEL_CONSUMED void* stream, KEL_OUT void* destination);

/* py_call: the same operations for a Python extension: no status byte, the error record
 * as the whole result with return value -1; 0 on success, or the 32-bit result of the
 * operations that return one. `api` NULL is the local engine. The result buffer
 * (*outBuffer, *outSize bytes) goes back through py_result, which copies `size` bytes to
 * `destination` and frees it. Unknown numbers return 0 and leave the outputs alone. */
KEL_C_API int32_t py_call(TarnApi* api, int32_t operation, uint64_t reserved,
                          KEL_KEPT const void* input, KEL_OUT uint32_t* outSize,
                          KEL_OUT void** outBuffer);
KEL_C_API void py_result(KEL_OUT void* destination, int32_t size, KEL_CONSUMED void* buffer);

/* Bounds-checked forms, additions of this library: they take the input's size and
 * answer input that is short or malformed (a count running past the end, a string
 * without NUL, records nested more than 256 levels deep) with an error record of code
 * KEL_ERROR_MALFORMED_INPUT instead of reading past the buffer or exhausting the stack.
 * The engine is not called then. Ownership as in kel_call and py_call. */
KEL_C_API void kel_call_checked(uint64_t handle, int32_t operation, KEL_KEPT const void* input,
                                uint64_t inputSize, KEL_OUT void** outStream,
                                KEL_OUT uint64_t* outSize);
KEL_C_API int32_t py_call_checked(TarnApi* api, int32_t operation, uint64_t reserved,
                                  KEL_KEPT const void* input, uint64_t inputSize,
                                  KEL_OUT uint32_t* outSize, KEL_OUT void** outBuffer);

/* The error codes, the library's own (KEL_ERROR_MALFORMED_INPUT, KEL_ERROR_NOT_AVAILABLE)
 * and the engine's, are in kel_c_errors.h. */
#include "kel_c_errors.h"
"""

# Header comments are wrapped to this width (the comment's own text, after " * ").
DOC_WIDTH = 92


def c_comment(paragraphs: list[str]) -> list[str]:
    """A block comment: each paragraph starts a new line and is wrapped on its own; a
    "Position N" stays on one line."""
    lines = [line.replace("Position\0", "Position ") for text in paragraphs if text
             for line in textwrap.wrap(text.replace("Position ", "Position\0"), DOC_WIDTH)]
    if not lines:
        return []
    out = [f"/* {lines[0]}"] + [f" * {line}" for line in lines[1:]]
    out[-1] += " */"
    return out


def a(noun: str | None) -> str:
    return ("an " if noun and noun[0] in "AEIOU" else "a ") + (noun or "")


def input_ownership(inputs: list[kelidl.Value]) -> list[str]:
    """Who owns each pointer input, from its kind: a record is consumed, the rest kept."""
    out = []
    for v in inputs:
        if v.kind == "rec":
            out.append(f"{v.name}: consumed: the library frees it with release_{v.c_name}, also when "
                       "the call fails; NULL passes no record.")
        elif v.kind == "handler":
            out.append(f"{v.name}: the caller's object, kept by the caller: neither the library nor the "
                       "engine deletes it, and it must stay alive while the engine may call it.")
    kept = [v.name for v in inputs if v.kind in ("wstr", "wstrs", "u32s", "u64s", "bytes", "list")]
    if kept:
        out.append(f"{', '.join(kept)}: kept by the caller, read only during the call.")
    return out


def result_ownership(op: kelidl.Operation) -> str:
    """What the caller receives on success and how it frees it, from the result's kind."""
    v = op.result
    if v is None:
        return ""
    if op.discard:
        return "The engine's result is not handed out."
    n, c = v.name, v.count
    if v.kind in kelidl.SCALARS:
        return f"On success *{n} receives the result."
    return {
        "wstr": f"On success *{n} receives a new string; free it with release_Memory.",
        "wstrs": f"On success *{n} and *{c} receive a string list, NULL and 0 when empty; free it "
                 f"with release_StringArray({n}, {c}).",
        "bytes": f"On success *{n} receives a buffer of *{c} bytes, allocated also for 0 bytes; free it "
                 "with release_Memory.",
        "rec": f"On success *{n} receives {a(v.c_name)} record, or NULL when the engine gives none; "
               f"free it with release_{v.c_name}.",
        "list": f"On success *{n} and *{c} receive {a(v.c_name)} list, NULL and 0 when empty; free it "
                f"with release_{v.c_name}_array({n}, {c}).",
        "engine": f"On success *{n} receives the address of the new engine object as a 64-bit value: "
                  f"use it as (TarnApi*)(uintptr_t){n}, and give it back with releaseTarnApi.",
    }["bytes" if v.kind == "blob" else v.kind]


def operation_doc(op: kelidl.Operation) -> list[str]:
    """The comment above an export: what it does, then who owns each pointer."""
    if op.is_async:
        sync = op.sync
        record = sync.result.c_name
        what = op.doc or f"Asynchronous form of kel_{sync.name}."
        return [f"{what} Position {op.position}.",
                "Returns the call identifier at once; 0 after an error, and callback is then never "
                "called.",
                *input_ownership(op.inputs),
                f"callback receives {record} lists, once or several times until isFinal, on a thread of "
                f"the engine; each list and error belong to it, to free with release_{record}_array and "
                "release_KelError. context reaches callback unchanged."]
    api = ["api: the engine object's address as a 64-bit integer."] if op.api64 else []
    return [f"{op.doc} Position {op.position}.", *api, *input_ownership(op.params), result_ownership(op)]


def field_doc(f: kelidl.Field) -> str:
    always = f"Allocated even when empty: go by {f.count}." if f.always else ""
    return " ".join(text for text in (f.doc, always) if text)


def c_structs(records: list[kelidl.Record], iface: kelidl.Interface, documented: bool = False) -> list[str]:
    """C records, members in order (a base's first); `documented`: each record and member
    carries its doc, as in the public header."""
    out = []
    for rec in records:
        if documented:
            owns = rec.named or any(f.kind in ("wstr", "wstrs", "bytes", "rec", "list") for f in rec.fields)
            release = (f"Freed with release_{rec.name}{', which frees everything it points to' if owns else ''}; "
                       f"a list of them with release_{rec.name}_array.")
            if rec.release:
                release += (f" These are the routines of {rec.release}, whose record begins with the same "
                            "wide strings and owns nothing else either.")
            out += c_comment([rec.doc, release])
        out.append(f"struct {rec.struct} {{")
        members: list[tuple[str, str]] = []
        for f in iface.members(rec.name):
            lines = c_field(f)
            members += [(lines[0], field_doc(f) if documented else "")] + [(line, "") for line in lines[1:]]
        out += [f"    {line} /* {doc} */" if doc else f"    {line}" for line, doc in members]
        out += ["};", ""]
    return out


def cmake_version(root: pathlib.Path) -> tuple[int, int, int]:
    """The project's one version, from `project(kel_c VERSION x.y.z ...)` in CMakeLists.txt."""
    text = (root / "CMakeLists.txt").read_text()
    match = re.search(r"^project\(\s*kel_c\s+VERSION\s+(\d+)\.(\d+)\.(\d+)[\s)]", text, re.M)
    if match is None:
        raise kelidl.DescriptionError("CMakeLists.txt names no version x.y.z in project(kel_c VERSION ...)")
    major, minor, patch = (int(x) for x in match.groups())
    return major, minor, patch


def c_version(version: tuple[int, int, int]) -> str:
    major, minor, patch = version
    return "\n".join([
        "/* The version of this header, the project's version in CMakeLists.txt, written here",
        " * by the generator (which the generated_up_to_date test keeps in step), so the header",
        " * stands alone and installs as one file. */",
        f"#define KEL_C_VERSION_MAJOR {major}",
        f"#define KEL_C_VERSION_MINOR {minor}",
        f"#define KEL_C_VERSION_PATCH {patch}",
        f'#define KEL_C_VERSION "{major}.{minor}.{patch}"', ""])


def c_header(iface: kelidl.Interface, version: tuple[int, int, int] | None = None) -> str:
    ready = iface.ready_records()
    version = cmake_version(ROOT) if version is None else version
    out = [f"/* {BANNER} */",
           "/* kel_c: the C interface of the Kel_cpp diagnostics engine.",
           " *",
           " * Calling rules: the engine object comes first; then the inputs, KelError** error",
           " * and the outputs (at engine positions 241 and above the error parameter comes",
           " * right after the engine object). Set *error to NULL before each call: the library",
           " * writes it only on failure, and then leaves every output untouched; free the error",
           " * record with release_KelError. Texts are NUL-terminated wchar_t strings and must not",
           " * be NULL (an empty string stands for no value). Lists travel as a pointer and a",
           " * uint32_t count; an empty list is NULL with count 0. Each export's comment says what",
           " * it does, who owns each pointer (see KEL_CONSUMED, KEL_KEPT and KEL_OUT below) and",
           " * how to free what it hands out. */",
           C_PROLOGUE.replace("#define KEL_C_H\n", "#define KEL_C_H\n\n" + c_version(version), 1),
           "/* ---- records ---- */"]
    for rec in ready:
        out.append(f"typedef struct {rec.struct} {rec.name};")
    out.append("")
    out += c_structs(ready, iface, documented=True)
    out.append(C_FRAME)
    out += ["/* ---- release functions ----",
            " * Each frees one record with everything it points to; _array frees a list that an",
            " * export handed out, taking its uint32_t count widened to uint64_t. NULL is allowed. */"]
    for rec in ready:
        out.append(f"KEL_C_API void release_{rec.name}(KEL_CONSUMED {rec.name}* ptr);")
        out.append(f"KEL_C_API void release_{rec.name}_array(KEL_CONSUMED {rec.name}** ptr, uint64_t count);")
    out += c_callback_typedefs(iface)
    for family in iface.families():
        ops = [op for op in iface.operations if op.family == family and iface.exported(op)]
        if not ops:
            continue
        out += [""] + c_comment([f"---- {family} ----", iface.family_docs.get(family, "")])
        for op in ops:
            out += c_comment(operation_doc(op))
            out.append(f"KEL_C_API {c_signature(op, marked=True)};")
    out += ["", "#ifdef __cplusplus", "}", "#endif", "", "#endif /* KEL_C_H */"]
    return "\n".join(out) + "\n"


def table_entry(c: str, f: kelidl.Field, c_member: kelidl.Field) -> str:
    """One descriptor of a field table: the C record's member paired with the engine's.
    `c_member` is the C record's field (count and `always` are the C layout's)."""
    if c_member.count:
        extra = ", always" if c_member.always else ""
        entry = f"field(&{c}::{f.name}, &{c}::{c_member.count}, &Engine::{f.name}{extra})"
    else:
        entry = f"field(&{c}::{f.name}, &Engine::{f.name})"
    return {"both": entry, "in": f"inOnly({entry})", "out": f"outOnly({entry})"}[f.direction]


def record_tables(records: list[kelidl.Record], engine_ns: str, iface: kelidl.Interface) -> list[str]:
    out = []
    for rec in records:
        fields = [table_entry("C", f, f) for f in iface.members(rec.name)]
        out.append(f"template <class V> struct Record<::{rec.name}, V> {{")
        out.append(f"    using C = typename Deferred<V, ::{rec.name}>::type;")
        out.append(f"    using Engine = typename Deferred<V, {engine_ns}::{rec.name}>::type;")
        out.append(f'    static constexpr const char* name = "{rec.name}";')
        out.append("    static constexpr auto fields = std::make_tuple(")
        out.append(",\n".join(f"        {x}" for x in fields) + ");")
        out.append("};")
        out.append("")
    return out


def binding_records_h(iface: kelidl.Interface) -> str:
    out = [f"// {BANNER}",
           "// Field tables of the C records: each pairs a C member with its engine member, in",
           "// record order. Conversion, release and streaming walk these tables.",
           "#pragma once", "", '#include "record_fields.h"', "", "namespace kel {", ""]
    out += record_tables(iface.ready_records(), ENGINE_NS, iface)
    out += alias_tables(iface.ready_aliases(), ENGINE_NS, iface)
    out.append("} // namespace kel")
    return "\n".join(out) + "\n"


def test_records_h(iface: kelidl.Interface) -> str:
    own = kelidl.parse_records(ROOT / "tests" / "interface" / "records.def", known=iface.records)
    both = kelidl.Interface({**iface.records, **own}, [])
    records = [r for r in own.values() if not r.alias and not r.abstract]
    aliases = [r for r in own.values() if r.alias]
    out = [f"// {BANNER}",
           "// The test-only records of tests/interface/records.def: C records, engine classes",
           "// and field tables, made exactly as for the interface's own records.",
           "#pragma once", "", "#include <EngineFields.h>", "#include <record_fields.h>", "",
           "#include <array>", "#include <cstdint>",
           "#include <memory>", "#include <string>", "#include <vector>", ""]
    out += [f"typedef struct {rec.struct} {rec.name};" for rec in records] + [""]
    out += c_structs(records, both)
    refs = {f.record for r in own.values() for f in r.fields if f.record} | {
        r.base for r in own.values() if r.base} | {r.alias for r in own.values() if r.alias}
    used = sorted(refs - set(own))
    out += ["namespace kel_test {"] + [f"using {ENGINE_NS}::{name};" for name in used] + [""]
    out += engine_classes(list(own.values()))
    out += ["} // namespace kel_test", "", "namespace kel {", ""]
    out += record_tables(records, "kel_test", both)
    out += alias_tables(aliases, "kel_test", both)
    out += ["} // namespace kel", "", f"namespace {ENGINE_NS}::Fields {{", ""]
    out += fields_of(list(own.values()), "kel_test::", both)
    out.append(f"}} // namespace {ENGINE_NS}::Fields")
    return "\n".join(out) + "\n"


# Record classes per generated test file: one object file over every class outgrows the
# Windows object format (too many long section names).
RECORD_CLASSES_PER_FILE = 24


def record_classes_tests(iface: kelidl.Interface) -> dict[str, str]:
    """The tests of tests/record_classes.h, instantiated over every engine record class."""
    records = list(iface.records.values())
    chunks = [records[i:i + RECORD_CLASSES_PER_FILE] for i in range(0, len(records), RECORD_CLASSES_PER_FILE)]
    files = {}
    for k, chunk in enumerate(chunks):
        names = ",\n".join(f"    {ENGINE_NS}::{rec.name}" for rec in chunk)
        files[f"tests/generated/record_classes/records_{k}.cpp"] = "\n".join([
            f"// {BANNER}", "", '#include "record_classes.h"', "",
            "namespace kel_test::record_classes {", "",
            f"using Records{k} = ::testing::Types<\n{names}>;",
            f"INSTANTIATE_TYPED_TEST_SUITE_P(Records{k}, EveryRecordClass, Records{k});", "",
            "} // namespace kel_test::record_classes"]) + "\n"
    return files


def shared_release(iface: kelidl.Interface, rec: kelidl.Record) -> list[str]:
    """The release routines of a `release=` record: those of the record it names, which
    free the same leading strings and then the block (checked here at compile time)."""
    n, o = rec.name, rec.release
    mine, theirs = iface.members(n), iface.members(o)
    owned = len(kelidl.owned_prefix(iface, n) or [])
    out = [f"static_assert(offsetof({n}, {a.name}) == offsetof({o}, {b.name}));"
           for a, b in zip(mine[:owned], theirs[:owned])]
    out.append(f"void release_{n}({n}* ptr) {{ release_{o}(reinterpret_cast<{o}*>(ptr)); }}")
    out.append(f"void release_{n}_array({n}** ptr, uint64_t count) {{ "
               f"release_{o}_array(reinterpret_cast<{o}**>(ptr), count); }}")
    return out


# The exports and the dispatcher's calls compile in a few parts, each holding whole
# families in description order: one object of all of them needed about 1.2 GB to compile
# and more sections than a plain COFF object holds, and could not use a second core.
# Every part instantiates again the stream and conversion code of the records that its
# families share with others' (four parts cost 40 s of CPU where one object cost 29 s),
# so not one part per family.
BINDING_PARTS = 4


def binding_parts(iface: kelidl.Interface) -> list[list[str]]:
    """The families of each part: consecutive families, a part closed before the family
    that would take it further past its share of the exports and dispatcher calls than
    it stays short without."""
    def weight(family: str) -> int:
        ops = [op for op in iface.operations if op.family == family]
        return (sum(iface.exported(op) and not op.custom for op in ops) +
                sum(op.otx is not None and iface.streamable(op) for op in ops))
    families = iface.families()
    share = sum(map(weight, families)) / BINDING_PARTS
    parts: list[list[str]] = [[]]
    done = 0
    for family in families:
        if parts[-1] and done + weight(family) / 2 > share * len(parts) and len(parts) < BINDING_PARTS:
            parts.append([])
        parts[-1].append(family)
        done += weight(family)
    return parts


def binding_releases_cpp(iface: kelidl.Interface) -> str:
    out = [f"// {BANNER}", "// The release exports of the records.", "",
           '#include "convert.h"', "", "#include <kel_c.h>", "", "#include <cstddef>", "",
           'extern "C" {', ""]
    for rec in iface.ready_records():
        n = rec.name
        if rec.release:
            out += shared_release(iface, rec)
            continue
        out.append(f"void release_{n}({n}* ptr) {{ kel::release(ptr); }}")
        out.append(f"void release_{n}_array({n}** ptr, uint64_t count) {{ kel::releaseArray(ptr, count); }}")
    out += ["", '} // extern "C"']
    return "\n".join(out) + "\n"


def binding_exports_cpp(iface: kelidl.Interface, families: list[str] | None = None) -> str:
    """One part's exports (every family's by default), each one line over the generic
    frame, with the handler classes of its asynchronous operations."""
    families = iface.families() if families is None else families
    ops = [op for op in iface.operations
           if op.family in families and iface.exported(op) and not op.custom]
    handlers = [op for op in async_ops(iface) if op.family in families]
    out = [f"// {BANNER}", f"// The exports of the families {', '.join(families)}: each one line",
           "// over the generic frame.", "",
           '#include "async.h"' if handlers else '#include "frame.h"', ""]
    out += handler_classes(handlers)
    out += ['extern "C" {', ""]
    for op in ops:
        out.append(f"{c_signature(op)} {{ {export_body(op)} }}")
    out += ["", '} // extern "C"']
    return "\n".join(out) + "\n"


def dispatch_calls(iface: kelidl.Interface, families: list[str] | None = None) -> list[str]:
    """The `call` instantiation of each streamable operation with a dispatcher number."""
    out = []
    for op in sorted((o for o in iface.operations if o.otx is not None), key=lambda o: o.otx):
        if iface.streamable(op) and (families is None or op.family in families):
            discard = ", true" if op.discard else ", false"
            out.append(f"void call<&TarnApi::{op.name}{discard}>(TarnApi&, OTXStream&, OTXStream&, int32_t*);")
    return out


def dispatch_part_cpp(iface: kelidl.Interface, families: list[str]) -> str:
    out = [f"// {BANNER}", f"// The dispatcher's calls of the families {', '.join(families)}.", "",
           '#include "dispatch.h"', "", "namespace kel::dispatch {", ""]
    out += [f"template {line}" for line in dispatch_calls(iface, families)]
    out += ["", "} // namespace kel::dispatch"]
    return "\n".join(out) + "\n"


def exports_txt(iface: kelidl.Interface) -> str:
    names = list(HAND_WRITTEN_EXPORTS)
    for rec in iface.ready_records():
        names += [f"release_{rec.name}", f"release_{rec.name}_array"]
    names += [f"kel_{op.name}" for op in iface.operations if iface.exported(op)]
    return "\n".join(sorted(names)) + "\n"


def engine_front_h(iface: kelidl.Interface) -> str:
    out = [f"// {BANNER}",
           "// EngineFront is the object callers get: it records each call's arguments, lets",
           "// tests script failures and results, times the call, then forwards to the vehicle",
           "// (a FamilyRouter, Families.h).",
           "#pragma once", "", "#include <Kel_cpp/TarnApi.h>", "", '#include "Script.h"', "",
           "#include <memory>", "", f"namespace {ENGINE_NS}::Reference {{", ""]
    out += ["class EngineFront final : public TarnApi {", "public:",
            "    EngineFront(std::shared_ptr<TarnApi> vehicle, std::shared_ptr<Script> script,",
            "                std::shared_ptr<CallClock> clock);",
            "    const std::shared_ptr<Script>& script() const { return script_; }",
            "    const std::shared_ptr<TarnApi>& vehicle() const { return vehicle_; }", ""]
    for op in iface.operations:
        out.append(f"    {engine_signature(op)} override;")
    out += ["", "private:", "    std::shared_ptr<TarnApi> vehicle_;", "    std::shared_ptr<Script> script_;",
            "    std::shared_ptr<CallClock> clock_;",
            "};", "", f"}} // namespace {ENGINE_NS}::Reference"]
    return "\n".join(out) + "\n"


def engine_front_cpp(iface: kelidl.Interface) -> str:
    out = [f"// {BANNER}", "", '#include "EngineFront.h"', "", "#include <utility>", "",
           f"namespace {ENGINE_NS}::Reference {{", ""]
    out += ["EngineFront::EngineFront(std::shared_ptr<TarnApi> vehicle, std::shared_ptr<Script> script,",
            "                         std::shared_ptr<CallClock> clock)",
            "    : vehicle_(std::move(vehicle)), script_(std::move(script)), clock_(std::move(clock)) {}", ""]
    for op in iface.operations:
        sig = engine_signature(op)
        ret, rest = sig.split(f" {op.name}(", 1)
        names = [p.name for p in op.inputs] + (["callback"] if op.is_async else [])
        recorded = [f"Secret{{{p.name}}}" if p.secret else p.name for p in op.inputs]
        recorded += ["callback"] if op.is_async else []
        out.append(f"{ret} EngineFront::{op.name}({rest} {{")
        out.append(f'    auto call = script_->enter(*clock_, "{op.name}"' +
                   "".join(f", {n}" for n in recorded) + ");")
        # Every exception leaves as an engine error, its code in the API trace (front_catch).
        out.append("    try {")
        out += ["    " + line for line in scripted_return(op)]
        out.append(f"        return vehicle_->{op.name}({', '.join(names)});")
        out += front_catch()
    out += ["", f"}} // namespace {ENGINE_NS}::Reference"]
    return "\n".join(out) + "\n"


def front_catch() -> list[str]:
    """The end of every call of the engine front: whatever the family threw leaves as an
    engine error (the binding catches nothing else), and the call's error code reaches the
    API trace."""
    return ["    } catch (...) {", "        call.rethrow();", "    }", "}"]


def family_class(family: str) -> str:
    return f"{family}Family"


def family_member(family: str) -> str:
    return family[0].lower() + family[1:]


def forwarded_argument(v: kelidl.Value) -> str:
    """Arguments taken by value are moved on; the rest are passed as they came."""
    return f"std::move({v.name})" if v.kind in ("rec", "handler") else v.name


def engine_families_h(iface: kelidl.Interface) -> str:
    out = [f"// {BANNER}",
           "// The reference engine by family: one interface per family of the interface",
           "// description, whose operations answer \"not simulated yet\" until a simulated",
           "// family overrides them, and FamilyRouter, the TarnApi that hands each operation to",
           "// the family that owns it.",
           "#pragma once", "", "#include <Kel_cpp/TarnApi.h>", "", '#include "Script.h"', "",
           "#include <memory>", "", f"namespace {ENGINE_NS}::Reference {{", ""]
    for family in iface.families():
        out += [f"class {family_class(family)} {{", "public:",
                f"    {family_class(family)}() = default;",
                f"    {family_class(family)}(const {family_class(family)}&) = delete;",
                f"    {family_class(family)}& operator=(const {family_class(family)}&) = delete;",
                f"    virtual ~{family_class(family)}() = default;", ""]
        ops = [op for op in iface.operations if op.family == family]
        callbacks = [op.callback_class for op in ops if op.is_async]
        out += [f"    using {c} = TarnApi::{c};" for c in callbacks] + ([""] if callbacks else [])
        out += [f"    virtual {engine_signature(op)};" for op in ops]
        out += ["};", ""]
    out += ["// One engine object's families; a family left as it is answers every operation",
            "// with \"not simulated yet\".",
            "struct Families {"]
    for family in iface.families():
        out.append(f"    std::shared_ptr<{family_class(family)}> {family_member(family)} ="
                   f" std::make_shared<{family_class(family)}>();")
    out += ["};", "", "class FamilyRouter final : public TarnApi {", "public:",
            "    explicit FamilyRouter(Families families) : families_(std::move(families)) {}", ""]
    for op in iface.operations:
        out.append(f"    {engine_signature(op)} override;")
    out += ["", "private:", "    Families families_;", "};", "",
            f"}} // namespace {ENGINE_NS}::Reference"]
    return "\n".join(out) + "\n"


def scripted_type(op: kelidl.Operation) -> str | None:
    """What a scripted result of `op` holds, "void", or None when it cannot be scripted."""
    if op.is_async:
        return engine_result(op.sync.result)
    if op.reserved or op.result is None:
        return "void"
    if op.result.kind == "engine":
        return None
    return engine_result(op.result)


def scripted_return(op: kelidl.Operation) -> list[str]:
    """The front's check for a scripted result, right after the call is recorded."""
    kind = scripted_type(op)
    if kind is None:
        return []
    if kind == "void":
        return [f'    if (script_->scriptedVoid("{op.name}")) {{', "        return;", "    }"]
    done = "script_->deliver(callback, std::move(*scripted))" if op.is_async else "std::move(*scripted)"
    return [f'    if (auto scripted = script_->scripted<{kind}>("{op.name}")) {{',
            f"        return {done};", "    }"]


def scripted_results_cpp(iface: kelidl.Interface) -> str:
    out = [f"// {BANNER}",
           "// How the scripted result of each operation is read from JSON: the value the",
           "// operation returns (an asynchronous one: what its callback receives).", "",
           '#include "Parse.h"', '#include "Script.h"', "", "#include <array>", "",
           f"namespace {ENGINE_NS}::Reference {{", "",
           "namespace {", "",
           # The size is spelled out: deducing it folds over every element, past clang's limit.
           f"constexpr std::array<ScriptedOperation, {len(iface.operations)}> operations{{"]
    for op in iface.operations:
        kind = scripted_type(op)
        parse = "nullptr" if kind is None else f"&parseResult<{kind}>"
        out.append(f'    ScriptedOperation{{"{op.name}", {parse}}},')
    out += ["};", "", "} // namespace", "",
            "std::span<const ScriptedOperation> scriptedOperations() { return operations; }", "",
            f"}} // namespace {ENGINE_NS}::Reference"]
    return "\n".join(out) + "\n"


def engine_families_cpp(iface: kelidl.Interface) -> str:
    out = [f"// {BANNER}", "", '#include "Families.h"', "", "#include <utility>", "",
           f"namespace {ENGINE_NS}::Reference {{", ""]
    for family in iface.families():
        for op in iface.operations:
            if op.family != family:
                continue
            ret, rest = engine_signature(op, names=False).split(f" {op.name}(", 1)
            out += [f"{ret} {family_class(family)}::{op.name}({rest} {{",
                    f'    throw unsupported("{op.name}");', "}"]
        out.append("")
    for op in iface.operations:
        ret, rest = engine_signature(op).split(f" {op.name}(", 1)
        out.append(f"{ret} FamilyRouter::{op.name}({rest} {{")
        if op.reserved:
            out.append(f'    throw unsupported("{op.name}");')
        else:
            args = [forwarded_argument(p) for p in op.inputs] + (["callback"] if op.is_async else [])
            out.append(f"    return families_.{family_member(op.family)}->{op.name}({', '.join(args)});")
        out.append("}")
    out += ["", f"}} // namespace {ENGINE_NS}::Reference"]
    return "\n".join(out) + "\n"


def engine_fields_h(iface: kelidl.Interface) -> str:
    out = [f"// {BANNER}",
           "// Every engine record's fields by name, in record order: the one order in which",
           "// a record is streamed and described.",
           "#pragma once", "", "#include <Kel_cpp/Records.h>", "", "#include <tuple>", "",
           f"namespace {ENGINE_NS}::Fields {{", "",
           "template <class C, class M, bool Bits = false, bool Secret = false> struct Member {",
           "    static constexpr bool bits = Bits; // a bit set, streamed as a list of bits",
           "    static constexpr bool secret = Secret; // a password: never described in clear",
           "    const char* name;",
           "    M C::*pointer;",
           "};",
           "template <class C, class M> constexpr Member<C, M> member(const char* name, M C::*pointer) {",
           "    return {name, pointer};",
           "}",
           "template <class C, class M> constexpr Member<C, M, true> bitset(const char* name, M C::*pointer) {",
           "    return {name, pointer};",
           "}",
           "template <class C, class M> constexpr Member<C, M, false, true> secret(const char* name, M C::*pointer) {",
           "    return {name, pointer};",
           "}", "",
           "// Makes a table's members name the record through V, so that the compiler builds",
           "// a table only for the records a translation unit uses: built eagerly, the tables",
           "// cost every includer about 2 s and 450 MB.",
           "template <class V, class T> struct Deferred { using type = T; };", "",
           "// Specialised for every engine record class.",
           "template <class E, class = void> struct Of;", ""]
    out += fields_of(list(iface.records.values()), "", iface)
    out.append(f"}} // namespace {ENGINE_NS}::Fields")
    return "\n".join(out) + "\n"


def fields_of(records: list[kelidl.Record], engine_ns: str, iface: kelidl.Interface) -> list[str]:
    """The engine field lists (`Fields::Of<E>`): every member, base members first, in
    both directions: the stream carries what the engine class holds."""
    out = []
    for rec in records:
        cls = f"{engine_ns}{rec.name}"
        names = [("bitset" if f.kind == "bits" else "secret" if f.secret else "member", f.name)
                 for f in iface.members(rec.name)]
        out.append(f"template <class V> struct Of<{cls}, V> {{")
        if names:
            out.append(f"    using E = typename Deferred<V, {cls}>::type;")
            out.append("    static constexpr auto list = std::make_tuple(")
            out.append(",\n".join(f'        {k}("{n}", &E::{n})' for k, n in names) + ");")
        else:
            out.append("    static constexpr auto list = std::make_tuple();")
        out.append("};")
        out.append("")
    return out


def dispatch_table_h(iface: kelidl.Interface) -> str:
    out = [f"// {BANNER}",
           "// The dispatcher numbers of kel_call and py_call, in order: each names one engine",
           "// operation. Numbers not listed name no operation.",
           "#pragma once", "", '#include "dispatch.h"', "", "#include <array>", "",
           "namespace kel::dispatch {", "",
           "// Instantiated in the parts (dispatch_<k>.cpp), by family.", ""]
    out += [f"extern template {line}" for line in dispatch_calls(iface)]
    out += ["",
           f"inline constexpr std::array<Operation, {sum(o.otx is not None for o in iface.operations)}> operations{{"]
    for op in sorted((o for o in iface.operations if o.otx is not None), key=lambda o: o.otx):
        if iface.streamable(op):
            discard = ", true" if op.discard else ""
            call = f"&call<&TarnApi::{op.name}{discard}>"
        else:
            call = "nullptr"
        out.append(f'    Operation{{{op.otx}, "{op.name}", {call}, {str(op.remote).lower()}, '
                   f"{str(op.pyreturn).lower()}}},")
    out += ["};", "", "} // namespace kel::dispatch"]
    return "\n".join(out) + "\n"


def positions_inc(iface: kelidl.Interface) -> str:
    out = [f"// {BANNER}", "// Every TarnApi operation with the virtual-table position it must occupy."]
    for op in iface.operations:
        out.append(f"KEL_POSITION({op.position}, {op.name})")
    return "\n".join(out) + "\n"


# ---- asynchronous calls and second engine classes -----------------------------------

def alias_tables(aliases: list[kelidl.Record], engine_ns: str, iface: kelidl.Interface) -> list[str]:
    """Tables of the `as=` classes: their members paired with the C record's, by name."""
    out = []
    for rec in aliases:
        theirs = {f.name: f for f in iface.members(rec.alias)}
        fields = [table_entry("C", f, theirs[f.name]) for f in iface.members(rec.name)]
        out.append(f"template <class V> struct Alias<::{rec.alias}, {engine_ns}::{rec.name}, V> {{")
        out.append(f"    using C = typename Deferred<V, ::{rec.alias}>::type;")
        out.append(f"    using Engine = typename Deferred<V, {engine_ns}::{rec.name}>::type;")
        out.append("    static constexpr auto fields = std::make_tuple(")
        out.append(",\n".join(f"        {x}" for x in fields) + ");")
        out.append("};")
        out.append("")
    return out


def async_ops(iface: kelidl.Interface) -> list[kelidl.Operation]:
    return [op for op in iface.operations if op.is_async and iface.exported(op)]


def callback_function(op: kelidl.Operation) -> str:
    """The C type of an asynchronous operation's callback: <Operation>CallbackFunction."""
    return f"{op.callback_class}Function"


def handler_class(op: kelidl.Operation) -> str:
    return f"{op.callback_class}Handler"


def c_callback_typedefs(iface: kelidl.Interface) -> list[str]:
    ops = async_ops(iface)
    if not ops:
        return []
    out = ["", "/* ---- callbacks of the asynchronous operations ----",
           " * Called once or several times per call, on a thread of the engine; isFinal marks",
           " * the last report, callId is the identifier the export returned and context the one",
           " * it was given. The results (NULL and 0 when empty) and the error (NULL when none)",
           " * pass to the callee, which frees them with release_X_array and release_KelError. */"]
    for op in ops:
        rec = op.sync.result.c_name
        out += c_comment([f"Reports of kel_{op.name}: free results with release_{rec}_array."])
        out.append(f"typedef void (*{callback_function(op)})({rec}** results, uint32_t resultCount, "
                   "bool isFinal, uint64_t callId, KelError* error, void* context);")
    return out


def c_async_signature(op: kelidl.Operation, marked: bool = False) -> str:
    inputs = [a for p in op.inputs for a in c_inputs(p, marked)]
    args = ["TarnApi* api"] + inputs + ["KelError** error", f"{callback_function(op)} callback",
                                        "void* context"]
    return f"uint64_t kel_{op.name}({', '.join(args)})"


def async_export_body(op: kelidl.Operation) -> str:
    call = f"api->{op.name}({', '.join([input_expr(p) for p in op.inputs] + ['handler'])})"
    return (f"return kel::start<{handler_class(op)}>(error, callback, context, "
            f"[&](auto* handler) {{ return {call}; }});")


def handler_classes(ops: list[kelidl.Operation]) -> list[str]:
    """One handler class per asynchronous operation, deriving (through kel::Handler) from
    the engine's callback class. Handlers that convert the same results share their
    kel::Completion base."""
    out = []
    for op in ops:
        result = op.sync.result
        name = handler_class(op)
        out += [f"class {name} final",
                f"    : public kel::Handler<{name}, {ENGINE_NS}::TarnApi::{op.callback_class}, "
                f"::{result.c_name}, {ENGINE_NS}::{result.record}, {callback_function(op)}> {{",
                "    using Handler::Handler;",
                "};", ""]
    return out


def binding_outputs(iface: kelidl.Interface) -> dict[str, str]:
    files = {"kel_c/generated/releases.cpp": binding_releases_cpp(iface)}
    for k, families in enumerate(binding_parts(iface), start=1):
        files[f"kel_c/generated/exports_{k}.cpp"] = binding_exports_cpp(iface, families)
        files[f"kel_c/generated/dispatch_{k}.cpp"] = dispatch_part_cpp(iface, families)
    return files


def outputs(iface: kelidl.Interface) -> dict[str, str]:
    return {
        "engine/Kel_cpp/Records.h": engine_records_h(iface),
        "engine/Kel_cpp/TarnApi.h": tarn_api_h(iface),
        "include/kel_c.h": c_header(iface),
        "kel_c/generated/records.h": binding_records_h(iface),
        **binding_outputs(iface),
        "kel_c/generated/exports.txt": exports_txt(iface),
        "kel_c/generated/dispatch_table.h": dispatch_table_h(iface),
        "reference_engine/generated/EngineFront.h": engine_front_h(iface),
        "reference_engine/generated/EngineFront.cpp": engine_front_cpp(iface),
        "reference_engine/generated/Families.h": engine_families_h(iface),
        "reference_engine/generated/Families.cpp": engine_families_cpp(iface),
        "reference_engine/generated/ScriptedResults.cpp": scripted_results_cpp(iface),
        "tests/generated/positions.inc": positions_inc(iface),
        "tests/generated/test_records.h": test_records_h(iface),
        "interface/generated/EngineFields.h": engine_fields_h(iface),
        **conformance.outputs(iface),
        **admission.outputs(iface, ROOT),
        **remote_gen.outputs(iface, engine_signature, engine_result),
        **errors_gen.outputs(ROOT),
        **record_classes_tests(iface),
        **python_gen.outputs(iface),
    }


def missing_custom_exports(iface: kelidl.Interface, root: pathlib.Path) -> list[str]:
    """The `custom` operations whose export body, kel_c/custom/<name>.cpp, is missing."""
    return [f"kel_c/custom/{op.name}.cpp" for op in iface.operations
            if op.custom and iface.exported(op) and not (root / "kel_c" / "custom" / f"{op.name}.cpp").exists()]


def formatted(rel: str, text: str) -> str:
    """Runs C and C++ outputs through the project's clang-format, as committed."""
    if not rel.endswith((".h", ".cpp", ".inc")):
        return text
    tool = shutil.which("clang-format") or shutil.which("clang-format-14")
    if tool is None:
        raise SystemExit("clang-format is needed to write the generated sources")
    return subprocess.run([tool, "--style=file", f"--assume-filename={ROOT / rel}"], input=text,
                          capture_output=True, text=True, check=True, cwd=ROOT).stdout


def check_docs(iface: kelidl.Interface) -> None:
    """Every operation and record arrives documented: the header's comments come from
    their docs."""
    ops, records = kelidl.undocumented(iface)
    if ops:
        raise kelidl.DescriptionError("operations without a '#:' doc: " + ", ".join(op.name for op in ops))
    if records:
        raise kelidl.DescriptionError("records without a '#:' doc: " + ", ".join(r.name for r in records))


GENERATED_FOLDERS = ["kel_c/generated", "tests/generated/conformance", "tests/generated/record_classes", python_gen.OUT_DIR]


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true", help="fail if a generated file is stale")
    args = parser.parse_args()
    try:
        iface = kelidl.parse(ROOT)
        check_docs(iface)
    except kelidl.DescriptionError as e:
        print(f"interface description: {e}", file=sys.stderr)
        return 2
    missing = missing_custom_exports(iface, ROOT)
    if missing:
        print("custom operations need their hand-written export:", *missing, sep="\n  ", file=sys.stderr)
        return 2
    stale = []
    try:
        written = outputs(iface)
    except kelidl.DescriptionError as e:
        print(f"interface description: {e}", file=sys.stderr)
        return 2
    # Folders whose files are all generated: a file no longer generated goes too.
    for folder in GENERATED_FOLDERS:
        for path in sorted((ROOT / folder).glob("*")):
            rel = path.relative_to(ROOT).as_posix()
            if path.is_file() and rel not in written:
                if args.check:
                    stale.append(rel)
                else:
                    path.unlink()
                    print(f"removed {rel}")
    for rel, text in written.items():
        text = formatted(rel, text)
        path = ROOT / rel
        if path.exists() and path.read_text() == text:
            continue
        if args.check:
            stale.append(rel)
        else:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
            print(f"wrote {rel}")
    if stale:
        print("generated files differ from the interface description; run tools/generate.py:",
              *stale, sep="\n  ", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
