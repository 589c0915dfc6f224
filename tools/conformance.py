"""The conformance suite: GoogleTest checks for every exported operation and every
dispatcher number, derived from the interface description.

A value model builds, per operation and variant, distinctive values for every parameter
and for the result. From the one model this module computes, independently of the
library: the engine's view of the arguments (the JSON the reference engine records),
the C view of every result (what the C describer of tests/conformance_support.h renders),
and the byte streams of kel_call and py_call, by the stream rules. The C++ side only
builds C inputs from JSON, calls, and compares whole strings.

Standard library only; called by tools/generate.py.
"""

from __future__ import annotations

import copy
import dataclasses
import json
import struct

import admission
import kelidl

BANNER = "Generated from the interface description by tools/generate.py. Do not edit."
OUT_DIR = "tests/generated/conformance"

# Levels of a recursive record (a record that lists itself) in the full variant, and the
# deepest nesting of records at all.
TREE_LEVELS = 3
MAX_DEPTH = 4

WIDTHS = {"bool": 1, "flag": 1, "u8": 1, "u16": 2, "i16": 2, "i32": 4, "u32": 4, "bits": 4, "i64": 8, "u64": 8}
SIGNED = {"i16", "i32", "i64"}
PACK = {"bool": "<B", "flag": "<B", "u8": "<B", "u16": "<H", "i16": "<h", "i32": "<i", "u32": "<I", "bits": "<I",
        "i64": "<q", "u64": "<Q"}

# The first values each integer kind hands out: the extremes, where a conversion that
# narrows, widens or changes sign shows first.
EXTREMES = {
    "u8": [0xFF, 0x80, 0x7F, 0x01],
    "u16": [0xFFFF, 0x8000, 0x7FFF],
    "i16": [-32768, 32767, -2],
    "i32": [-(2 ** 31), 2 ** 31 - 1, -1, -65536],
    "u32": [0xFFFFFFFF, 0x80000000, 0x7FFFFFFF],
    "bits": [0x8000000B, 0x00000007, 0x00000006, 0xFFFFFFFF],
    "i64": [-(2 ** 63), 2 ** 63 - 1, -(2 ** 32) - 5],
    "u64": [0x8000000000000001, 0xFFFFFFFFFFFFFFFF, 0x0000000100000000],
}

# Texts: non-ASCII of every UTF-8 length, astral characters, and the characters the
# recorded JSON escapes (quote, backslash, a control character).
STEMS = ["Z\u00fcndung \U0001F697", "Pr\u00fcfstand \u20ac", "\u65e5\u672c\u8a9e \U0001D11E",
         "K\u00fchler\t\U0001F527", 'say "\u00e9"', "back\\slash \u00df"]

# C bytes a caller may put in a one-byte flag: any non-zero byte means true.
FLAG_TRUE_BYTES = [0x80, 0xFF, 0x02, 0x01]


# ---- the description, read through kelidl ----------------------------------------------

def direction(f) -> str:
    return getattr(f, "direction", "both") or "both"


def is_flag(f) -> bool:
    """A one-byte flag: uint8_t in C, bool in the engine."""
    return f.kind == "flag"


def is_scalar(f) -> bool:
    return f.kind in kelidl.SCALARS and not is_flag(f)


def base_of(rec: kelidl.Record) -> str | None:
    base = getattr(rec, "base", None)
    if base:
        return base
    return "NamedItem" if rec.named else None


def members(iface: kelidl.Interface, name: str) -> list:
    """Every member of a record, base members first, in the one order of its table."""
    if hasattr(iface, "members"):
        return list(iface.members(name))
    rec = iface.record(name)
    base = base_of(rec)
    return (members(iface, base) if base else []) + list(rec.fields)


def c_record(iface: kelidl.Interface, name: str) -> str:
    """The C record an engine class is handed out as."""
    return iface.record(name).alias or name


def family_of(op: kelidl.Operation) -> str:
    return op.family or (op.sync.family if op.sync else None) or "Other"


# ---- values ------------------------------------------------------------------------------

@dataclasses.dataclass
class Rec:
    """An engine record: its class and its members by name, in table order."""

    name: str
    values: dict


class Source:
    """Hands out distinctive values, so that two members never share one by accident."""

    def __init__(self, salt: int):
        self.used: dict[str, int] = {}
        self.seen: dict[str, set] = {}
        self.salt = salt
        self.texts = 0
        self.bools = 0
        self.flags = 0

    def number(self, kind: str):
        if kind in ("bool", "flag"):
            self.bools += 1
            return self.bools % 2 == 1
        n = self.used.get(kind, 0)
        self.used[kind] = n + 1
        seen = self.seen.setdefault(kind, set())
        bits = WIDTHS[kind] * 8
        signed = kind in SIGNED
        lo, hi = (-(2 ** (bits - 1)), 2 ** (bits - 1) - 1) if signed else (0, 2 ** bits - 1)
        extremes = EXTREMES[kind]
        if n < len(extremes):
            value = extremes[n]
        else:
            value = ((n * 2654435761 + self.salt * 40503) % min(hi, 2 ** 31 - 1)) | 1
            if signed and n % 2:
                value = -value
        for _ in range(64):  # a narrow kind runs out of fresh values in a big tree
            if value not in seen:
                break
            value = lo + (value - lo + 7919) % (hi - lo + 1)
        seen.add(value)
        return value

    def flag_byte(self) -> int:
        """A C byte for a flag: alternately a non-zero byte (true) and 0 (false)."""
        self.flags += 1
        if self.flags % 2 == 0:
            return 0
        return FLAG_TRUE_BYTES[(self.flags // 2) % len(FLAG_TRUE_BYTES)]

    def text(self) -> str:
        self.texts += 1
        return f"{STEMS[self.texts % len(STEMS)]} {self.salt}.{self.texts}"


@dataclasses.dataclass
class Variant:
    name: str
    sparse: bool  # texts, buffers and lists empty, records null from the third level on
    empty_result: bool = False  # the top-level result in its empty or null form


VARIANTS = [Variant("full", False), Variant("sparse", True), Variant("empty", True, True)]


class Model:
    """Builds engine values for one operation and variant."""

    def __init__(self, iface: kelidl.Interface, variant: Variant, salt: int):
        self.iface = iface
        self.variant = variant
        self.source = Source(salt)

    def default(self, name: str) -> Rec:
        """A record as the engine creates it: zero, empty, null."""
        out = {}
        for f in members(self.iface, name):
            out[f.name] = default_value(f)
        return Rec(name, out)

    def record(self, name: str, for_input: bool, path: tuple = (), shallow: bool = False) -> Rec:
        """A record with a value of its own in every member. A shallow one leaves its
        nested records null and its record lists empty (the second element of every list
        is shallow, so that trees stay small while each level still has two elements)."""
        out = {}
        for f in members(self.iface, name):
            if for_input and direction(f) == "out":
                out[f.name] = default_value(f)  # a C caller cannot send it
            elif shallow and f.kind in ("rec", "list"):
                out[f.name] = default_value(f)
            else:
                out[f.name] = self.member(f, for_input, path + (name,))
        return Rec(name, out)

    def member(self, f, for_input: bool, path: tuple):
        sparse = self.variant.sparse
        if is_scalar(f):
            return self.source.number(f.kind)
        if is_flag(f):
            return self.source.number("bool")
        if f.kind == "array":
            return [self.source.number(f.element) for _ in range(f.length)]
        if f.kind == "wstr":
            return "" if sparse else self.source.text()
        if f.kind == "wstrs":
            return [] if sparse else [self.source.text(), self.source.text()]
        if f.kind == "bytes":
            return [] if sparse else self.bytes(2)
        if sparse:
            # Records right below the top one are there, with empty texts, buffers and
            # lists of their own; below them everything is null or empty.
            near = len(path) < 2
            if f.kind == "rec":
                return self.record(f.record, for_input, path) if near else None
            return [self.record(f.record, for_input, path)] if near else []
        deep = path.count(f.record) < TREE_LEVELS and len(path) <= MAX_DEPTH
        if f.kind == "rec":
            return self.record(f.record, for_input, path) if deep else None
        if f.kind == "list":
            if not deep:
                return []
            return [self.record(f.record, for_input, path), self.record(f.record, for_input, path, True)]
        raise ValueError(f"unknown member kind {f.kind}")

    def bytes(self, n: int) -> list[int]:
        return [0x00, 0xFF] + [self.source.number("u8") for _ in range(n)]

    def param(self, v: kelidl.Value):
        sparse = self.variant.sparse
        if v.kind in kelidl.SCALARS:
            return self.source.number(v.kind)
        if v.kind == "wstr":
            return "" if sparse else self.source.text()
        if v.kind == "wstrs":
            return [] if sparse else [self.source.text(), "", self.source.text()]
        if v.kind == "u32s":
            return [] if sparse else [0xFFFFFFFF, 0, 0x80000000]
        if v.kind == "u64s":
            return [] if sparse else [0x8000000000000001, 0xFFFFFFFFFFFFFFFF, 0]
        if v.kind == "bytes":
            return [] if sparse else self.bytes(4)
        if v.kind == "rec":
            return None if sparse else self.record(v.record, True)
        if v.kind == "list":
            return [] if sparse else [self.record(v.record, True), self.record(v.record, True, (), True)]
        if v.kind == "handler":
            return HANDLER
        raise ValueError(f"unknown parameter kind {v.kind}")

    def result(self, v: kelidl.Value):
        empty = self.variant.empty_result
        if v.kind in kelidl.SCALARS:  # a flag is true or false in the engine
            return self.source.number(v.kind)
        if v.kind == "wstr":
            return "" if self.variant.sparse else self.source.text()
        if v.kind == "wstrs":
            return [] if empty else [self.source.text(), "", self.source.text()]
        if v.kind in ("bytes", "blob"):
            return [] if empty else self.bytes(5)
        if v.kind == "rec":
            return None if empty else self.record(v.record, False)
        if v.kind == "list":
            if empty:
                return []
            first = self.record(v.record, False)
            # A null element becomes a NULL entry; the sparse variant carries one.
            return [first, None] if self.variant.sparse else [first, self.record(v.record, False, (), True)]
        if v.kind == "engine":
            return None
        raise ValueError(f"unknown result kind {v.kind}")


HANDLER = object()  # the server handler argument: its address is only known at run time


def default_value(f):
    if is_scalar(f):
        return False if f.kind == "bool" else 0
    if is_flag(f):
        return False
    if f.kind == "array":
        return [False if f.element == "bool" else 0] * f.length
    if f.kind == "wstr":
        return ""
    if f.kind in ("wstrs", "bytes", "list"):
        return []
    if f.kind == "rec":
        return None
    raise ValueError(f.kind)


# ---- JSON in the reference engine's format ----------------------------------------------

def json_text(text: str) -> str:
    out = ['"']
    for ch in text:
        if ch in '"\\':
            out.append("\\" + ch)
        elif ord(ch) < 0x20:
            out.append(f"\\u{ord(ch):04x}")
        else:
            out.append(ch)
    out.append('"')
    return "".join(out)


def engine_json(value) -> str:
    """An engine value as the reference engine describes it (and reads scripted results)."""
    if value is None:
        return "null"
    if value is HANDLER:
        return '"@handler"'
    if isinstance(value, bool):
        return "true" if value else "false"
    if isinstance(value, int):
        return str(value)
    if isinstance(value, str):
        return json_text(value)
    if isinstance(value, list):
        return "[" + ",".join(engine_json(v) for v in value) + "]"
    if isinstance(value, Rec):
        return "{" + ",".join(f'"{k}":{engine_json(v)}' for k, v in value.values.items()) + "}"
    raise TypeError(type(value))


def recorded(iface: kelidl.Interface, value, secret: bool = False):
    """A value as the engine records it: passwords (`secret`) as "***", also inside records."""
    if secret:
        return "***"
    if isinstance(value, list):
        return [recorded(iface, v) for v in value]
    if isinstance(value, Rec) and value.name in iface.records:
        secrets = {f.name for f in members(iface, value.name) if getattr(f, "secret", False)}
        return Rec(value.name, {k: recorded(iface, v, k in secrets) for k, v in value.values.items()})
    return value


# ---- the C view --------------------------------------------------------------------------

def c_zero(f) -> list[tuple[str, str]]:
    """A C member the conversion does not write: zero, NULL."""
    if is_scalar(f):
        return [(f.name, "false" if f.kind == "bool" else "0")]
    if is_flag(f):
        return [(f.name, "0")]
    if f.kind == "array":
        return [(f.name, "[" + ",".join(["false" if f.element == "bool" else "0"] * f.length) + "]")]
    if f.kind in ("wstr", "rec"):
        return [(f.name, "null")]
    return [(f.name, "null"), (f.count, "0")]


def c_json(iface: kelidl.Interface, value: Rec | None, c_name: str) -> str:
    """A result record as the C describer renders the C record the library hands out."""
    if value is None:
        return "null"
    parts = []
    for f in members(iface, c_name):
        if f.name not in value.values or direction(f) == "in":
            parts += c_zero(f)
            continue
        v = value.values[f.name]
        if is_scalar(f) or f.kind == "array":
            parts.append((f.name, engine_json(v)))
        elif is_flag(f):
            parts.append((f.name, "1" if v else "0"))
        elif f.kind == "wstr":
            parts.append((f.name, json_text(v)))
        elif f.kind == "wstrs":
            block = "null" if not v and not f.always else engine_json(v)
            parts += [(f.name, block), (f.count, str(len(v)))]
        elif f.kind == "bytes":
            parts += [(f.name, engine_json(v) if v else "null"), (f.count, str(len(v)))]
        elif f.kind == "rec":
            parts.append((f.name, c_json(iface, v, f.c_name)))
        elif f.kind == "list":
            block = "[" + ",".join(c_json(iface, e, f.c_name) for e in v) + "]" if v else "null"
            parts += [(f.name, block), (f.count, str(len(v)))]
        else:
            raise ValueError(f.kind)
    return "{" + ",".join(f'"{k}":{v}' for k, v in parts) + "}"


def c_result_json(iface: kelidl.Interface, v: kelidl.Value, value) -> str:
    """The C view of an operation's result, as the output holders render it."""
    if v.kind == "flag":
        return "1" if value else "0"
    if v.kind in kelidl.SCALARS or v.kind == "wstr":
        return engine_json(value)
    if v.kind == "wstrs":
        return engine_json(value) if value else "null"
    if v.kind in ("bytes", "blob"):
        return engine_json(value)  # handed out directly: allocated also for 0 bytes
    if v.kind == "rec":
        return c_json(iface, value, v.c_name)
    if v.kind == "list":
        return "[" + ",".join(c_json(iface, e, v.c_name) for e in value) + "]" if value else "null"
    raise ValueError(v.kind)


def c_input(iface: kelidl.Interface, value: Rec | None, c_name: str, source: Source):
    """The C record a caller builds so that the engine receives `value` (as JSON for the
    test's builder; counts follow from the lists). Members the engine does not receive
    (written by the engine only, or missing from an `as=` class) get values of their own
    that must not arrive."""
    if value is None:
        return None
    out = {}
    for f in members(iface, c_name):
        received = f.name in value.values and direction(f) != "out"
        v = value.values[f.name] if received else stray_value(iface, f, source)
        if is_flag(f) and received:
            v = source.flag_byte() if v else 0
            while (v != 0) != value.values[f.name]:
                v = source.flag_byte()
        elif f.kind == "rec" and received:
            v = c_input(iface, v, f.c_name, source)
        elif f.kind == "list" and received:
            v = [c_input(iface, e, f.c_name, source) for e in v]
        out[f.name] = v
    return out


def stray_value(iface: kelidl.Interface, f, source: Source):
    if is_scalar(f):
        return source.number(f.kind)
    if is_flag(f):
        return 0x7F
    if f.kind == "array":
        return [source.number(f.element) for _ in range(f.length)]
    if f.kind == "wstr":
        return source.text()
    if f.kind == "wstrs":
        return [source.text()]
    if f.kind == "bytes":
        return [0xEE]
    return None if f.kind == "rec" else []


def c_input_json(value) -> str:
    if value is None:
        return "null"
    if isinstance(value, dict):
        return "{" + ",".join(f'"{k}":{c_input_json(v)}' for k, v in value.items()) + "}"
    if isinstance(value, list):
        return "[" + ",".join(c_input_json(v) for v in value) + "]"
    return engine_json(value)


def c_param_json(iface: kelidl.Interface, v: kelidl.Value, value, source: Source) -> str:
    if v.kind == "rec":
        return c_input_json(c_input(iface, value, v.c_name, source))
    if v.kind == "list":
        return c_input_json([c_input(iface, e, v.c_name, source) for e in value])
    if v.kind == "handler":
        return "null"
    if v.kind == "flag":
        byte = source.flag_byte()
        while (byte != 0) != value:
            byte = source.flag_byte()
        return str(byte)
    return engine_json(value)


# ---- the byte stream ---------------------------------------------------------------------

class Stream:
    """Encodes values by the stream rules. `otx`: the OTX dispatcher's settings (strings
    length-prefixed on input, no presence bytes on input, bit sets as lists); otherwise
    the Python dispatcher's. `result`: the writer (always length prefixes and presence
    bytes) rather than what a caller sends."""

    def __init__(self, iface: kelidl.Interface, otx: bool, result: bool):
        self.iface = iface
        self.otx = otx
        self.result = result
        self.out = bytearray()

    def scalar(self, kind: str, value) -> None:
        self.out += struct.pack(PACK[kind], int(value))

    def text(self, value: str) -> None:
        data = value.encode("utf-8")
        if self.result or self.otx:
            self.scalar("u32", len(data))
            self.out += data
        else:
            self.out += data + b"\0"

    def bits(self, value: int) -> None:
        if not self.otx:
            self.scalar("u32", value)
        elif self.result:
            # Only the unbroken run of set bits from bit 0 travels.
            run = 0
            while run < 32 and value & (1 << run):
                run += 1
            self.scalar("u32", run)
            for bit in range(run):
                self.scalar("u32", 1 << bit)
        else:
            set_bits = [1 << b for b in range(32) if value & (1 << b)]
            self.scalar("u32", len(set_bits))
            for bit in set_bits:
                self.scalar("u32", bit)

    def record(self, value: Rec | None, name: str) -> None:
        presence = self.result or not self.otx
        if value is None:
            if presence:
                self.out.append(0)
                return
            raise ValueError("the OTX input form has no null record")
        if presence:
            self.out.append(1)
        for f in members(self.iface, name):
            self.member(f, value.values[f.name])

    def member(self, f, value) -> None:
        if f.kind == "bits":
            self.bits(value)
        elif is_scalar(f):
            self.scalar(f.kind, value)
        elif is_flag(f):
            self.scalar("bool", value)
        elif f.kind == "array":
            for e in value:
                self.scalar(f.element, e)
        elif f.kind == "wstr":
            self.text(value)
        elif f.kind == "wstrs":
            self.scalar("u32", len(value))
            for t in value:
                self.text(t)
        elif f.kind == "bytes":
            self.scalar("u32", len(value))
            self.out += bytes(value)
        elif f.kind == "rec":
            self.record(value, f.record)
        elif f.kind == "list":
            self.scalar("u32", len(value))
            for e in value:
                self.record(e, f.record)
        else:
            raise ValueError(f.kind)

    def value(self, v: kelidl.Value, value) -> None:
        """A parameter or a result: integral parameters travel plain, bit sets included."""
        if v.kind in kelidl.SCALARS:
            self.scalar(v.kind, value)
        elif v.kind == "wstr":
            self.text(value)
        elif v.kind in ("wstrs", "u32s", "u64s", "bytes", "blob", "list"):
            self.scalar("u32", len(value))
            for e in value:
                if v.kind == "wstrs":
                    self.text(e)
                elif v.kind == "u32s":
                    self.scalar("u32", e)
                elif v.kind == "u64s":
                    self.scalar("u64", e)
                elif v.kind == "list":
                    self.record(e, v.record)
                else:
                    self.out.append(e)
        elif v.kind == "rec":
            self.record(value, v.record)
        elif v.kind == "handler":
            pass  # cannot travel: the engine gets an empty handler
        else:
            raise ValueError(v.kind)


def created(iface: kelidl.Interface, value, name: str, depth: int = 0):
    """What the OTX reader makes of a value: without presence bytes every record is
    created, so a null record arrives as a default one."""
    if depth > 8:
        raise ValueError(f"{name} nests records without end")
    if value is None:
        value = Rec(name, {f.name: default_value(f) for f in members(iface, name)})
    out = {}
    for f in members(iface, name):
        v = value.values[f.name]
        if f.kind == "rec":
            v = created(iface, v, f.record, depth + 1)
        elif f.kind == "list":
            v = [created(iface, e, f.record, depth + 1) for e in v]
        out[f.name] = v
    return Rec(name, out)


def error_record(iface: kelidl.Interface, failure: dict) -> Rec:
    mvci = failure.get("mvci")
    values = {"code": failure["code"], "message": failure["message"], "details": failure["details"],
              "subCode": failure["subCode"],
              "mvciError": Rec("MvciServerError", dict(mvci)) if mvci else None,
              "negativeResponse": None}
    return Rec("KelError", values)


# Two engine failures: without and with an MVCI error beneath.
FAILURES = [
    {"name": "plain", "code": -559038737, "subCode": 2147483647,
     "message": "Z\u00fcndung aus \U0001F697", "details": ""},
    {"name": "mvci", "code": -2147483648, "subCode": -1,
     "message": "", "details": "D\u00e9tails \"q\" \\ \U0001D11E",
     "mvci": {"code": 2147483647, "codeText": "MVCI \u26a1", "vendorCode": -2147483648,
              "vendorCodeText": "", "extraText": "Extra \u00e4\U0001F527", "extraCode": 305419896}},
]


# ---- C++ literals ------------------------------------------------------------------------

def c_string(text: str, indent: str = "        ") -> str:
    """A narrow string literal: printable ASCII as is, every other byte as an octal escape."""
    pieces, line = [], ""
    for byte in text.encode("utf-8"):
        ch = chr(byte)
        if ch in '"\\':
            piece = "\\" + ch
        elif 0x20 <= byte < 0x7F:
            piece = ch
        else:
            piece = f"\\{byte:03o}"
        if len(line) + len(piece) > 88:
            pieces.append(line)
            line = ""
        line += piece
    pieces.append(line)
    return f"\n{indent}".join(f'"{p}"' for p in pieces)


def wide_string(text: str) -> str:
    out = []
    for ch in text:
        if 0x20 <= ord(ch) < 0x7F and ch not in '"\\':
            out.append(ch)
        elif ch in '"\\':
            out.append("\\" + ch)
        else:
            out.append(f"\\U{ord(ch):08X}")
    return 'L"' + "".join(out) + '"'


def hex_string(data: bytes, indent: str = "        ") -> str:
    text = data.hex()
    chunks = [text[i:i + 88] for i in range(0, len(text), 88)] or [""]
    return f"\n{indent}".join(f'"{c}"' for c in chunks)


# ---- C++ types of the export's arguments --------------------------------------------------

def c_scalar(kind: str) -> str:
    return kelidl.SCALARS[kind][0]


def input_decl(iface: kelidl.Interface, i: int, v: kelidl.Value) -> tuple[str | None, list[str]]:
    """A local that holds argument i (or None) and the C arguments it gives."""
    a = f"a{i}"
    if v.kind in kelidl.SCALARS:
        return None, [f"kc::number<{c_scalar(v.kind)}>(in[{i}])"]
    if v.kind == "wstr":
        return f"const kc::Text {a}(in[{i}]);", [f"{a}.get()"]
    if v.kind == "wstrs":
        return f"kc::Texts {a}(in[{i}]);", [f"{a}.data()", f"{a}.count()"]
    if v.kind == "u32s":
        return f"const kc::Values<uint32_t> {a}(in[{i}]);", [f"{a}.data()", f"{a}.count()"]
    if v.kind == "u64s":
        return f"const kc::Values<uint64_t> {a}(in[{i}]);", [f"{a}.data()", f"{a}.count()"]
    if v.kind == "bytes":
        return f"const kc::Values<uint8_t> {a}(in[{i}]);", [f"{a}.data()", f"{a}.count()"]
    if v.kind == "rec":
        return None, [f"kc::record<{v.c_name}>(in[{i}])"]
    if v.kind == "list":
        return (f"kc::RecordList<{v.c_name}, release_{v.c_name}_array> {a}(in[{i}]);",
                [f"{a}.data()", f"{a}.count()"])
    if v.kind == "handler":
        return None, ["kc::handlerAddress()"]
    raise ValueError(v.kind)


def output_type(v: kelidl.Value | None) -> str:
    if v is None:
        return "kc::NoResult"
    if v.kind in kelidl.SCALARS:
        return f"kc::ValueResult<{c_scalar(v.kind)}>"
    return {
        "wstr": "kc::TextResult",
        "wstrs": "kc::TextsResult",
        "bytes": "kc::BufferResult<uint8_t>",
        "blob": "kc::BufferResult<void>",
        "rec": f"kc::RecordResult<{v.c_name}, release_{v.c_name}>",
        "list": f"kc::ListResult<{v.c_name}, release_{v.c_name}_array>",
        "engine": "kc::EngineResult",
    }[v.kind]


def output_args(v: kelidl.Value | None) -> list[str]:
    if v is None:
        return []
    if v.kind in ("wstrs", "bytes", "blob", "list"):
        return ["&out.data", "&out.count"]
    return ["&out.data"]


# ---- cases -------------------------------------------------------------------------------

@dataclasses.dataclass
class Case:
    variant: str
    c_inputs: str  # the C arguments as JSON, for the test's builder
    arguments: str  # what the engine records for the export's call
    script: str | None  # the scripted result (None: the result cannot be scripted)
    c_view: str | None  # the C view of the result
    otx_in: bytes = b""
    py_in: bytes = b""
    otx_arguments: str = ""
    py_arguments: str = ""
    otx_out: bytes = b""
    py_out: bytes = b""
    py_return: int = 0


def scriptable(v: kelidl.Value | None) -> bool:
    return v is None or v.kind != "engine"


def build_cases(iface: kelidl.Interface, op: kelidl.Operation, salt: int) -> list[Case]:
    """The variants of one synchronous operation; duplicates are dropped."""
    cases, seen = [], set()
    result = op.result
    for variant in VARIANTS:
        if variant.empty_result and (result is None or result.kind not in
                                     ("wstrs", "bytes", "blob", "rec", "list")):
            continue
        model = Model(iface, variant, salt)
        params = [model.param(p) for p in op.params]
        value = model.result(result) if result else None
        c_source = model.source  # strays continue the sequence, so they never repeat a value
        c_inputs = "[" + ",".join(c_param_json(iface, p, x, c_source) for p, x in zip(op.params, params)) + "]"
        arguments = "[" + ",".join(engine_json(recorded(iface, x, p.secret)) for p, x in zip(op.params, params)) + "]"
        script = None
        c_view = None
        if scriptable(result):
            script = engine_json(value) if result else "null"
            if result and not op.discard:
                c_view = c_result_json(iface, result, value)
        case = Case(variant.name, c_inputs, arguments, script, c_view)
        if op.otx is not None and iface.streamable(op):
            stream_case(iface, op, case, params, value)
        key = (case.c_inputs, case.script, case.otx_in, case.py_in)
        if key in seen:
            continue
        seen.add(key)
        cases.append(case)
    return cases


def stream_case(iface: kelidl.Interface, op: kelidl.Operation, case: Case, params: list, value) -> None:
    otx_in, py_in = Stream(iface, True, False), Stream(iface, False, False)
    otx_args, py_args = [], []
    for p, x in zip(op.params, params):
        if p.kind == "handler":
            otx_args.append('"@nohandler"')
            py_args.append('"@nohandler"')
            continue
        otx_value = x
        if p.kind == "rec":
            otx_value = created(iface, x, p.record)
        elif p.kind == "list":
            otx_value = [created(iface, e, p.record) for e in x]
        otx_in.value(p, otx_value)
        py_in.value(p, x)
        otx_args.append(engine_json(recorded(iface, otx_value, p.secret)))
        py_args.append(engine_json(recorded(iface, x, p.secret)))
    case.otx_in, case.py_in = bytes(otx_in.out), bytes(py_in.out)
    case.otx_arguments = "[" + ",".join(otx_args) + "]"
    case.py_arguments = "[" + ",".join(py_args) + "]"
    otx_out, py_out = Stream(iface, True, True), Stream(iface, False, True)
    otx_out.out.append(1)
    if op.result and not op.discard and scriptable(op.result):
        otx_out.value(op.result, value)
        py_out.value(op.result, value)
        if op.pyreturn:
            returned = int(value) & 0xFFFFFFFF  # the 32-bit result, as int32_t
            case.py_return = returned - (1 << 32) if returned >= 1 << 31 else returned
    case.otx_out, case.py_out = bytes(otx_out.out), bytes(py_out.out)


def error_bytes(iface: kelidl.Interface, failure: dict, otx: bool) -> bytes:
    s = Stream(iface, otx, True)
    if otx:
        s.out.append(0)
    s.record(error_record(iface, failure), "KelError")
    return bytes(s.out)


# ---- emitting ----------------------------------------------------------------------------

def case_literal(case: Case) -> str:
    fields = [c_string(case.variant), c_string(case.c_inputs), c_string(case.arguments),
              c_string(case.script) if case.script is not None else "nullptr",
              c_string(case.c_view) if case.c_view is not None else "nullptr",
              hex_string(case.otx_in), hex_string(case.py_in), c_string(case.otx_arguments),
              c_string(case.py_arguments), hex_string(case.otx_out), hex_string(case.py_out),
              str(case.py_return)]
    return "    {" + ",\n        ".join(fields) + "},"


def cases_table(op: kelidl.Operation, cases: list[Case]) -> list[str]:
    out = [f"// ---- {op.name} (position {op.position}"
           + (f", number {op.otx}" if op.otx is not None else "") + ") ----", "",
           f"const kc::Case k{ident(op.name)}Cases[] = {{"]
    out += [case_literal(c) for c in cases]
    return out + ["};", ""]


def ident(name: str) -> str:
    return name[0].upper() + name[1:]


def export_block(iface: kelidl.Interface, op: kelidl.Operation, cases: list[Case], family: str) -> list[str]:
    """The call of one export (and of its asynchronous form), its cases and its tests."""
    out = []
    decls, args = [], []
    for i, p in enumerate(op.params):
        decl, given = input_decl(iface, i, p)
        if decl:
            decls.append(decl)
        args += given
    result = None if op.discard else op.result
    api = "reinterpret_cast<uintptr_t>(api)" if op.api64 else "api"
    call_args = [api] + (["error"] + args if op.error_first else args + ["error"]) + output_args(result)
    name = f"{ident(op.name)}Export"
    out += [f"struct {name} {{",
            f'    static constexpr const char* operation = "{op.name}";',
            f"    using Result = {output_type(result)};",
            "    static void call(TarnApi* api, const kc::Json& in, KelError** error, Result& out) {"]
    out += [f"        {d}" for d in decls]
    if result is None:
        out.append("        static_cast<void>(out);")
    if all(p.kind == "handler" for p in op.params):
        out.append("        static_cast<void>(in);")
    out += [f"        kel_{op.name}({', '.join(call_args)});", "    }", "};", ""]
    if scriptable(op.result):
        out.append(f"TEST_F({family}, {op.name}_Exchange) {{ kc::exchange<{name}>(api, k{ident(op.name)}Cases); }}")
    out.append(f"TEST_F({family}, {op.name}_Failure) {{ kc::failure<{name}>(api, k{ident(op.name)}Cases); }}")
    out += admission.conformance_tests(op, family, name, f"k{ident(op.name)}Cases", False)
    asyncs = [a for a in iface.operations if a.is_async and a.sync is op and iface.exported(a)]
    for a in asyncs:
        aname = f"{ident(a.name)}Export"
        rec = op.result.c_name
        out += ["", f"struct {aname} {{",
                f'    static constexpr const char* operation = "{a.name}";',
                f"    using Reports = kc::Reports<{rec}, release_{rec}_array>;",
                "    static uint64_t call(TarnApi* api, const kc::Json& in, KelError** error, Reports& reports) {"]
        out += [f"        {d}" for d in decls]
        if all(p.kind == "handler" for p in op.params):
            out.append("        static_cast<void>(in);")
        async_args = ["api"] + args + ["error", "&Reports::onReport", "&reports"]
        out += [f"        return kel_{a.name}({', '.join(async_args)});", "    }", "};", "",
                f"TEST_F({family}, {a.name}_Exchange) {{ kc::asyncExchange<{aname}>(api, k{ident(op.name)}Cases); }}",
                f"TEST_F({family}, {a.name}_Failure) {{ kc::asyncFailure<{aname}>(api, k{ident(op.name)}Cases); }}"]
        out += admission.conformance_tests(a, family, aname, f"k{ident(op.name)}Cases", True)
    return out + [""]


def number_block(iface: kelidl.Interface, op: kelidl.Operation, cases: list[Case], family: str) -> list[str]:
    test = f"n{op.otx}_{op.name}"
    if not iface.streamable(op):
        return [f"TEST_F({family}ByNumber, {test}_NotAvailable) {{ "
                f'kc::notAvailable(api, {op.otx}, "{op.name}"); }}', ""]
    out = [f'const kc::Number kNumber{op.otx}{{{op.otx}, "{op.name}", k{ident(op.name)}Cases}};', ""]
    if scriptable(op.result):
        out += [f"TEST_F({family}ByNumber, {test}_KelCall) {{ kc::kelCall(api, kNumber{op.otx}); }}",
                f"TEST_F({family}ByNumber, {test}_PyCall) {{ kc::pyCall(api, kNumber{op.otx}); }}"]
    out.append(f"TEST_F({family}ByNumber, {test}_Failure) {{ kc::numberFailure(api, kNumber{op.otx}); }}")
    if any(c.otx_in or c.py_in for c in cases):
        out.append(f"TEST_F({family}ByNumber, {test}_ShortInput) {{ kc::shortInput(api, kNumber{op.otx}); }}")
    return out + [""]


def family_file(iface: kelidl.Interface, family: str, ops: list[kelidl.Operation]) -> str:
    out = [f"// {BANNER}",
           f"// Conformance checks of the family {family}: every export and every dispatcher number.",
           "", '#include "conformance_support.h"', '#include "generated/conformance/records.h"', "",
           "namespace {", "", "namespace kc = kel_conformance;", "",
           f"using {family} = kc::ConformanceTest;",
           f"using {family}ByNumber = kc::ConformanceTest;",
           f"using {family}Admission = kc::AdmissionTest;", ""]
    for op in ops:
        salt = op.position
        cases = build_cases(iface, op, salt)
        if iface.exported(op) or iface.streamable(op):
            out += cases_table(op, cases)
        if iface.exported(op):
            out += export_block(iface, op, cases, family)
            out += surrogate_block(iface, op, family)
        if op.otx is not None:
            out += number_block(iface, op, cases, family)
    out += ["} // namespace"]
    return "\n".join(out) + "\n"


# ---- text with no UTF-8 form -------------------------------------------------------------

# Stand-ins for an unpaired low and high surrogate while a case's JSON is built; the
# C++ side reads the \\u escapes they become as the lone UTF-16 units (and, with 32-bit
# wchar_t, also puts a value above U+10FFFF where the high one was).
LONE_LOW, LONE_HIGH = "\ufdd0", "\ufdd1"


def text_slots(value, key: tuple = ()) -> list[tuple[tuple, list]]:
    """The wide strings among C inputs given as JSON (every string there is one): each as
    (what kind of string it is, its place), the first of each kind only, so that a tree
    of records adds a case per member rather than per node."""
    found: list[tuple[tuple, list]] = []
    seen: set[tuple] = set()

    def walk(v, kind: tuple, place: list) -> None:
        if isinstance(v, str):
            if kind not in seen:
                seen.add(kind)
                found.append((kind, place))
        elif isinstance(v, list):
            for i, e in enumerate(v):
                walk(e, kind + ("[]",), place + [i])
        elif isinstance(v, dict):
            for name, e in v.items():
                walk(e, (name,), place + [name])

    walk(value, key, [])
    return found


def surrogate_inputs(iface: kelidl.Interface, op: kelidl.Operation, salt: int) -> list[str]:
    """The full variant's C inputs once per wide-string input (also inside records and
    string lists), that string framed by an unpaired low and high surrogate."""
    model = Model(iface, VARIANTS[0], salt)
    params = [model.param(p) for p in op.params]
    inputs = [json.loads(c_param_json(iface, p, x, model.source)) for p, x in zip(op.params, params)]
    out = []
    for i in range(len(inputs)):
        for _, place in text_slots(inputs[i], (i,)):
            changed = copy.deepcopy(inputs)
            holder = changed[i] if place else changed
            at = place[-1] if place else i
            for step in place[:-1]:
                holder = holder[step]
            holder[at] = LONE_LOW + holder[at] + LONE_HIGH
            text = json.dumps(changed, ensure_ascii=False, separators=(",", ":"))
            out.append(text.replace(LONE_LOW, "\\udc00").replace(LONE_HIGH, "\\ud800"))
    return out


def surrogate_block(iface: kelidl.Interface, op: kelidl.Operation, family: str) -> list[str]:
    """Every wide-string input of the export (and of its asynchronous form) with text that
    has no UTF-8 form: each call returns, normally or with an engine error."""
    inputs = surrogate_inputs(iface, op, op.position)
    if not inputs:
        return []
    table = f"k{ident(op.name)}NoUtf8"
    out = [f"const char* const {table}[] = {{"]
    out += [f"    {c_string(text, '    ')}," for text in inputs]
    out += ["};", f"TEST_F({family}, {op.name}_TextWithNoUtf8Form) {{ "
            f"kc::noUtf8<{ident(op.name)}Export>(api, {table}); }}"]
    for a in iface.operations:
        if a.is_async and a.sync is op and iface.exported(a):
            out.append(f"TEST_F({family}, {a.name}_TextWithNoUtf8Form) {{ "
                       f"kc::asyncNoUtf8<{ident(a.name)}Export>(api, {table}); }}")
    return out + [""]


def c_members(iface: kelidl.Interface, rec: kelidl.Record) -> list:
    return members(iface, rec.name)


def records_header(iface: kelidl.Interface) -> str:
    """Describers and builders of every C record, member by member from the description,
    and the scripted failures with their expected forms."""
    ready = iface.ready_records()
    out = [f"// {BANNER}",
           "// The C records as the conformance suite sees them: describe() renders a record as",
           "// JSON (pointers that are NULL as null, each count after its list), build() fills",
           "// one from JSON with the library's allocation exports.",
           "#pragma once", "", '#include "conformance_support.h"', "", "namespace kel_conformance {", ""]
    for rec in ready:
        out.append(f"inline void describe(Out& o, const {rec.name}& r);")
        out.append(f"inline void build(const Json& j, {rec.name}& r);")
    out.append("")
    for rec in ready:
        out.append(f"inline void describe(Out& o, const {rec.name}& r) {{")
        body = []
        for f in c_members(iface, rec):
            if f.kind in ("wstrs", "bytes", "list"):
                body.append(f'o.member("{f.name}", r.{f.name}, r.{f.count});')
                body.append(f'o.member("{f.count}", r.{f.count});')
            else:
                body.append(f'o.member("{f.name}", r.{f.name});')
        out += [f"    {b}" for b in body] or ["    static_cast<void>(o);", "    static_cast<void>(r);"]
        out += ["    o.end();", "}", ""]
        out.append(f"inline void build(const Json& j, {rec.name}& r) {{")
        body = []
        for f in c_members(iface, rec):
            if f.kind in ("wstrs", "bytes", "list"):
                body.append(f'set(j.at("{f.name}"), r.{f.name}, r.{f.count});')
            else:
                body.append(f'set(j.at("{f.name}"), r.{f.name});')
        out += [f"    {b}" for b in body] or ["    static_cast<void>(j);", "    static_cast<void>(r);"]
        out += ["}", ""]
    out.append("// The scripted engine failures and what each must give.")
    out.append("inline std::span<const Failure> scriptedFailures() {")
    out.append("    static const Failure list[] = {")
    for failure in FAILURES:
        mvci = failure.get("mvci")
        err = error_record(iface, failure)
        fields = [c_string(failure["name"]), str(failure["code"]), str(failure["subCode"]),
                  wide_string(failure["message"]), wide_string(failure["details"]),
                  "true" if mvci else "false"]
        if mvci:
            fields += [str(mvci["code"]), wide_string(mvci["codeText"]), str(mvci["vendorCode"]),
                       wide_string(mvci["vendorCodeText"]), wide_string(mvci["extraText"]), str(mvci["extraCode"])]
        else:
            fields += ["0", 'L""', "0", 'L""', 'L""', "0"]
        fields += [c_string(c_json(iface, err, "KelError")), hex_string(error_bytes(iface, failure, True)),
                   hex_string(error_bytes(iface, failure, False))]
        out.append("    {" + ",\n        ".join(fields) + "},")
    out += ["    };", "    return list;", "}", ""]
    numbers = sorted(op.otx for op in iface.operations if op.otx is not None)
    out.append("// Every dispatcher number the description names.")
    out.append("inline std::span<const int32_t> namedNumbers() {")
    out.append("    static const int32_t list[] = {" + ", ".join(map(str, numbers)) + "};")
    out += ["    return list;", "}"]
    out += ["", "} // namespace kel_conformance"]
    return "\n".join(out) + "\n"


NUMBERING = f"""// {BANNER}
// The dispatchers recognise exactly the numbers the description names.

#include "conformance_support.h"
#include "generated/conformance/records.h"

namespace {{

namespace kc = kel_conformance;

using Numbering = kc::ConformanceTest;

TEST_F(Numbering, NumbersThatNameNothingLeaveTheOutputsAlone) {{ kc::unnamedNumbers(api); }}

}} // namespace
"""


def outputs(iface: kelidl.Interface) -> dict[str, str]:
    by_family: dict[str, list[kelidl.Operation]] = {}
    for op in iface.operations:
        if op.reserved or op.is_async:
            continue
        if iface.exported(op) or op.otx is not None:
            by_family.setdefault(family_of(op), []).append(op)
    files = {f"{OUT_DIR}/records.h": records_header(iface),
             f"{OUT_DIR}/Numbering_test.cpp": NUMBERING}
    for family, ops in by_family.items():
        files[f"{OUT_DIR}/{family}_test.cpp"] = family_file(iface, family, ops)
    return files
