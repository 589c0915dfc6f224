"""The typed Python package `kel`: its generated half, from the interface description.

Writes kel/generated/:
  records.py     one keyword-only dataclass per built C record, with the field docs
  stream.py      the py_call codec: a reader per engine class (the result stream) and a
                 writer per engine class (the input stream)
  c_records.py   ctypes views of the C records and the asynchronous exports, which
                 py_call does not offer
  operations.py  one method per built operation, with a Python name, type hints and docs

What Python offers follows the C surface: a record gets a dataclass once its family is
built (not `pending`, not `draft`), an operation a method once every record it touches
is built, and an asynchronous form once its synchronous one has a method. Standard
library only; called by tools/generate.py.
"""

from __future__ import annotations

import keyword
import re
import textwrap

import kelidl

OUT_DIR = "kel/generated"
BANNER = "Generated from the interface description by tools/generate.py. Do not edit."

# struct codes of the scalar kinds on the stream; flags and bools read as Python bools.
CODES = {"bool": "?", "flag": "?", "u8": "B", "u16": "H", "i16": "h", "i32": "i", "u32": "I", "bits": "I",
         "i64": "q", "u64": "Q"}
CTYPES = {"bool": "ctypes.c_bool", "flag": "ctypes.c_uint8", "u8": "ctypes.c_uint8", "u16": "ctypes.c_uint16",
          "i16": "ctypes.c_int16", "i32": "ctypes.c_int32", "u32": "ctypes.c_uint32", "bits": "ctypes.c_uint32",
          "i64": "ctypes.c_int64", "u64": "ctypes.c_uint64"}
# Field names that would hide a builtin the annotations use.
SHADOWING = {"bytes", "str", "int", "bool", "list", "float"}


def snake(name: str) -> str:
    """readDtcs -> read_dtcs, getWLanSignalData -> get_w_lan_signal_data, startSOVDServer ->
    start_sovd_server."""
    text = re.sub(r"([A-Z]+)([A-Z][a-z])", r"\1_\2", name)
    text = re.sub(r"([a-z0-9])([A-Z])", r"\1_\2", text).lower()
    return text + "_" if keyword.iskeyword(text) else text


def py_name(iface: kelidl.Interface, record: str, member: str) -> str:
    """A member's dataclass field: its readable name (snake case) in the C record it is
    handed out as, the C name where the description gives none."""
    return snake(iface.readable(c_name(iface, record), member)[0])


def param_name(v: kelidl.Value) -> str:
    """A parameter's name in Python: its readable name where the description gives one."""
    return snake(v.readable or v.name)


def c_name(iface: kelidl.Interface, record: str) -> str:
    """The C record (and so the dataclass) that an engine class is handed out as."""
    return iface.records[record].alias or record


def py_type(f, iface: kelidl.Interface) -> str:
    """The annotation of a record member or of a parameter/result value."""
    kind = f.kind
    if kind in ("bool", "flag"):
        return "bool"
    if getattr(f, "type", None):
        return str(f.type)
    if kind in kelidl.SCALARS:
        return "int"
    if kind == "array":
        return "list[bool]" if f.element == "bool" else "list[int]"
    if kind == "wstr":
        return "str"
    if kind == "wstrs":
        return "list[str]"
    if kind in ("bytes", "blob"):
        return "builtins.bytes"
    if kind in ("u32s", "u64s"):
        return "list[int]"
    if kind == "rec":
        return f"Optional[{c_name(iface, f.record)}]"
    if kind == "list":
        return f"list[Optional[{c_name(iface, f.record)}]]"
    raise ValueError(kind)


def default(f) -> str:
    kind = f.kind
    if kind in ("bool", "flag"):
        return "False"
    if f.type:
        return f"{f.type}(0)"
    if kind in kelidl.SCALARS:
        return "0"
    if kind == "array":
        zero = "False" if f.element == "bool" else "0"
        return f"dataclasses.field(default_factory=lambda: [{zero}] * {f.length})"
    if kind == "wstr":
        return '""'
    if kind == "bytes":
        return 'b""'
    if kind in ("wstrs", "list"):
        return "dataclasses.field(default_factory=list)"
    if kind == "rec":
        return "None"
    raise ValueError(kind)


def doc_lines(text: str, indent: str, width: int = 92) -> list[str]:
    return textwrap.wrap(text, width - len(indent), initial_indent=indent, subsequent_indent=indent) or []


def docstring(text: str, indent: str) -> list[str]:
    """A docstring block: on one line when it fits, else wrapped between quote lines."""
    text = text.replace("\\", "\\\\").replace(QUOTES, "'" * 3)
    if len(indent) + len(text) + 6 <= 100:
        return [indent + QUOTES + text + QUOTES]
    return [indent + QUOTES] + doc_lines(text, indent) + [indent + QUOTES]


QUOTES = '"' * 3


def built_operations(iface: kelidl.Interface) -> list[kelidl.Operation]:
    """Synchronous operations with a dispatcher number whose records are all built; the
    server handler's registration cannot travel on the stream and is left out."""
    return [op for op in iface.operations
            if not op.is_async and not op.reserved and op.otx is not None and iface.exported(op)
            and not any(p.kind == "handler" for p in op.params)]


def built_asyncs(iface: kelidl.Interface) -> list[kelidl.Operation]:
    names = {op.name for op in built_operations(iface)}
    return [op for op in iface.operations if op.is_async and op.sync and op.sync.name in names]


def stream_classes(iface: kelidl.Interface) -> list[kelidl.Record]:
    """Engine classes that travel: the built records and the built `as=` classes."""
    return [r for r in iface.ready_records()] + iface.ready_aliases()


# ---- enums.py ------------------------------------------------------------------------------

def upper(name: str) -> str:
    return snake(name).rstrip("_").upper()


ENUM_HELPERS = '''

def _unnamed(cls: Any, value: object) -> Any:
    """A value the enum does not name still arrives: as a member without a name of its own
    (an engine may report numbers this version of the package does not know)."""
    if not isinstance(value, int):
        return None
    member = int.__new__(cls, value)
    member._name_ = f"{cls.__name__}_{value}"
    member._value_ = value
    return member
'''


def enums_py(iface: kelidl.Interface) -> str:
    out = [f"# {BANNER}",
           '"""Names for the numbers that mean something: an IntEnum per enum of the description, an',
           "IntFlag per `flags` enum (with a boolean property per bit). Each is still the plain",
           'integer the engine and C see."""', "",
           "from __future__ import annotations", "", "import enum", "from typing import Any", ENUM_HELPERS, ""]
    for e in iface.enums.values():
        base = "enum.IntFlag" if e.flags else "enum.IntEnum"
        out.append(f"class {e.name}({base}):")
        listing = [f"{upper(m.name)} = {m.value:#04x}: {m.doc}" if e.flags else f"{upper(m.name)} = {m.value}: {m.doc}"
                   for m in e.members]
        out.append(f"    {QUOTES}" + (doc_lines(e.doc or e.name, "    ")[0].lstrip()))
        out += doc_lines(e.doc or e.name, "    ")[1:]
        if e.flags:
            out += [""] + doc_lines("Each bit is also a property: status.confirmed, status.test_failed ...", "    ")
        out += ["", "    Members:"]
        for line in listing:
            out += textwrap.wrap(line, 88, initial_indent="        ", subsequent_indent="            ")
        out.append(f"    {QUOTES}")
        out.append("")
        for m in e.members:
            out.append(f"    {upper(m.name)} = {m.value:#04x}" if e.flags else f"    {upper(m.name)} = {m.value}")
            if m.doc:
                out += docstring(m.doc[0].upper() + m.doc[1:] + ".", "    ")
        if e.flags:
            for m in e.members:
                out += ["", "    @property", f"    def {snake(m.name)}(self) -> bool:"]
                out += docstring(f"True when {upper(m.name)} is set: {m.doc}.", "        ")
                out.append(f"        return bool(self & {m.value:#04x})")
            # IntFlag would take a negative number for its complement; the engine's
            # number arrives as it is.
            out += ["", "    @classmethod", "    def _missing_(cls, value: object) -> Any:",
                    "        if isinstance(value, int) and value < 0:", "            return _unnamed(cls, value)",
                    "        return super()._missing_(value)"]
        else:
            out += ["", "    @classmethod", "    def _missing_(cls, value: object) -> Any:",
                    "        return _unnamed(cls, value)"]
        out += ["", ""]
    out.append("__all__ = [" + ", ".join(f'"{n}"' for n in iface.enums) + "]")
    return "\n".join(out).rstrip("\n") + "\n"


# ---- records.py ----------------------------------------------------------------------------

def enum_import(iface: kelidl.Interface, classes: list[kelidl.Record]) -> list[str]:
    """The import of the enums that the members of these classes use, with a blank line."""
    used = sorted({str(f.type) for r in classes for f in iface.members(r.name) if f.type})
    return ["from .enums import " + ", ".join(used), ""] if used else []


def records_py(iface: kelidl.Interface) -> str:
    out = [f"# {BANNER}", '"""The records of the engine interface, one keyword-only dataclass each."""', "",
           "from __future__ import annotations", "", "import builtins", "import dataclasses", "import sys",
           "from typing import Any, Optional", "",
           *enum_import(iface, iface.ready_records()),
           "# Keyword-only (and slotted) where the Python version allows: records have many fields",
           "# and positions would say nothing.",
           "_OPTIONS: dict[str, Any] = {'kw_only': True, 'slots': True} if sys.version_info >= (3, 10) else {}",
           "", ""]
    names = []
    for rec in iface.ready_records():
        names.append(rec.name)
        out.append("@dataclasses.dataclass(**_OPTIONS)")
        out.append(f"class {rec.name}:")
        members = iface.members(rec.name)
        body: list[str] = []
        listing: list[str] = []
        aliases = []
        for f in members:
            readable, doc = iface.readable(rec.name, f.name)
            name = snake(readable)
            value = f"dataclasses.field(default={default(f)}, repr=False)" if f.secret else default(f)
            body.append(f"    {name}: {py_type(f, iface)} = {value}")  # a secret stays out of repr and logs
            text = ""
            if doc:
                # The description speaks C; a NULL member is None here.
                text = (doc[0].upper() + doc[1:].rstrip(".") + ".").replace("NULL", "None")
            if readable != f.name:
                text += f" C: {f.name}." if text else f"C: {f.name}."
                aliases.append((snake(f.name), name, py_type(f, iface)))
            if text:
                body += docstring(text, "    ")
            listing += textwrap.wrap(f"{name}: {text}".rstrip(": "), 92, initial_indent="        ",
                                     subsequent_indent="            ")
        # help() shows the class docstring, not the attribute docstrings (which editors
        # show): the fields are listed there too, user-facing text before the C name.
        head = doc_lines(rec.doc or rec.name, "    ")
        head[0] = f"    {QUOTES}" + head[0].lstrip()
        out += [line.replace("\\", "\\\\") for line in head]
        if listing:
            out += ["", "    Fields:"] + [line.replace("\\", "\\\\") for line in listing]
        out.append(f"    {QUOTES}")
        out += body or ["    pass"]
        for alias, name, typ in aliases:
            # The C name, as the header has it: read-only, for code ported from C.
            out += ["", "    @property", f"    def {alias}(self) -> {typ}:",
                    f'        """The C name of {name}; read-only."""', f"        return self.{name}"]
        out += ["", ""]
    out.append("__all__ = [" + ", ".join(f'"{n}"' for n in names) + "]")
    return "\n".join(out).rstrip("\n") + "\n"


# ---- stream.py -----------------------------------------------------------------------------

class StructPool:
    def __init__(self) -> None:
        self.codes: dict[str, str] = {}

    def name(self, code: str) -> str:
        if code not in self.codes:
            self.codes[code] = "_S_" + code.replace("?", "b").replace("<", "")
        return self.codes[code]


def scalar_runs(members: list) -> list[list]:
    """Members grouped so that consecutive scalars read and write as one struct."""
    runs: list[list] = []
    for f in members:
        if f.kind in kelidl.SCALARS and runs and runs[-1][0].kind in kelidl.SCALARS:
            runs[-1].append(f)
        else:
            runs.append([f])
    return runs


def reader(iface: kelidl.Interface, rec: kelidl.Record, pool: StructPool) -> list[str]:
    target = c_name(iface, rec.name)
    out = [f"def read_{rec.name}(b: bytes, p: int) -> tuple[Optional[{target}], int]:",
           "    if not b[p]:", "        return None, p + 1", "    p += 1"]
    values = []
    sized = ("wstr", "bytes", "list")
    runs = scalar_runs(iface.members(rec.name))
    # Each struct read costs about as much as a short string's decode, so a member's
    # length prefix is read with the scalars before it, and an empty text, common in
    # results, is not decoded at all.
    counted = False  # the next member's length is in `n` already and p is past it
    for i, run in enumerate(runs):
        f = run[0]
        local = "v_" + snake(f.name).rstrip("_")
        if f.kind in kelidl.SCALARS:
            following = runs[i + 1][0] if i + 1 < len(runs) else None
            counted = following is not None and following.kind in sized
            code = "<" + "".join(CODES[x.kind] for x in run) + ("I" if counted else "")
            size = sum(kelidl_width(x.kind) for x in run) + (4 if counted else 0)
            locals_ = ["v_" + snake(x.name).rstrip("_") for x in run] + (["n"] if counted else [])
            out.append(f"    {', '.join(locals_)}{',' if len(locals_) == 1 else ''} = {pool.name(code)}_read(b, p)")
            out.append(f"    p += {size}")
            values += [(x, loc) for x, loc in zip(run, locals_)]
            continue
        start, skip = "p", ""  # where the member's data starts, relative to p
        if f.kind in sized:
            if not counted:
                out.append("    (n,) = _u32_read(b, p)")
                start, skip = "p + 4", "4 + "
            counted = False
        if f.kind == "list" and skip:
            out.append("    p += 4")
        if f.kind == "array":
            code = f"<{f.length}{CODES[f.element]}"
            out.append(f"    {local} = list({pool.name(code)}_read(b, p))")
            out.append(f"    p += {f.length * kelidl_width(f.element)}")
        elif f.kind == "wstr":
            out += [f"    {local} = b[{start} : {start} + n].decode() if n else \"\"", f"    p += {skip}n"]
        elif f.kind == "wstrs":
            out.append(f"    {local}, p = read_texts(b, p)")
        elif f.kind == "bytes":
            out += [f"    {local} = b[{start} : {start} + n]", f"    p += {skip}n"]
        elif f.kind == "rec":
            # An absent record is one byte: no call for it.
            out += ["    if b[p]:", f"        {local}, p = read_{f.record}(b, p)", "    else:",
                    f"        {local} = None", "        p += 1"]
        elif f.kind == "list":
            elem = c_name(iface, f.record)
            out += [f"    {local}: list[Optional[{elem}]] = []",
                    "    for _ in range(n):",
                    f"        e_{local}, p = read_{f.record}(b, p)",
                    f"        {local}.append(e_{local})"]
        values.append((f, local))
    if target == rec.name:
        # The values are in the order of the dataclass's fields (both follow the members):
        # positions instead of keywords, see kel/_stream.py.
        out.append(f"    return _make_{target}({', '.join(decoded(f, loc) for f, loc in values)}), p")
    else:
        args = ", ".join(f"{py_name(iface, rec.name, f.name)}={decoded(f, loc)}" for f, loc in values)
        out.append(f"    return {target}({args}), p")
    return out + ["", ""]


def decoded(v, expression: str) -> str:
    """A decoded member's value, as its enum where it has `type=` (through the fast lookup
    that stream.py binds for each enum, see kel/_stream.py)."""
    return f"_as_{v.type}({expression})" if v.type else expression


def typed(v, expression: str, prefix: str = "") -> str:
    """The expression as the enum of a member or value with `type=`."""
    return f"{prefix}{v.type}({expression})" if v.type else expression


def kelidl_width(kind: str) -> int:
    return {"bool": 1, "flag": 1, "u8": 1, "u16": 2, "i16": 2, "i32": 4, "u32": 4, "bits": 4, "i64": 8,
            "u64": 8}[kind]


def writer(iface: kelidl.Interface, rec: kelidl.Record, pool: StructPool) -> list[str]:
    target = c_name(iface, rec.name)
    out = [f"def write_{rec.name}(o: bytearray, v: Optional[{target}]) -> None:",
           "    if v is None:", "        o.append(0)", "        return", "    o.append(1)"]
    for run in scalar_runs(iface.members(rec.name)):
        f = run[0]
        attr = f"v.{py_name(iface, rec.name, f.name)}"
        if f.kind in kelidl.SCALARS:
            code = "<" + "".join(CODES[x.kind] for x in run)
            out.append(f"    o += {pool.name(code)}_write({', '.join('v.' + py_name(iface, rec.name, x.name) for x in run)})")
        elif f.kind == "array":
            code = f"<{f.length}{CODES[f.element]}"
            out.append(f"    o += {pool.name(code)}_write(*{attr})")
        elif f.kind == "wstr":
            out.append(f"    write_text(o, {attr})")
        elif f.kind == "wstrs":
            out.append(f"    write_texts(o, {attr})")
        elif f.kind == "bytes":
            out.append(f"    write_bytes(o, {attr})")
        elif f.kind == "rec":
            out.append(f"    write_{f.record}(o, {attr})")
        elif f.kind == "list":
            e = "e_" + snake(f.name).rstrip("_")
            out += [f"    o += _U32.pack(len({attr}))", f"    for {e} in {attr}:", f"        write_{f.record}(o, {e})"]
    return out + ["", ""]


STREAM_HELPERS = '''
_U32 = struct.Struct("<I")
_u32_read = _U32.unpack_from


def read_texts(b: bytes, p: int) -> tuple[list[str], int]:
    (n,) = _U32.unpack_from(b, p)
    p += 4
    texts = []
    for _ in range(n):
        (m,) = _U32.unpack_from(b, p)
        texts.append(b[p + 4 : p + 4 + m].decode())
        p += 4 + m
    return texts, p


def write_text(o: bytearray, text: str) -> None:
    """Input strings travel NUL-terminated, so a NUL inside cannot travel. An unpaired
    surrogate has no UTF-8 form: U+FFFD takes its place, as in the engine and the library."""
    try:
        data = text.encode()
    except UnicodeEncodeError:
        data = "".join("\\ufffd" if "\\ud800" <= c <= "\\udfff" else c for c in text).encode()
    if b"\\0" in data:
        raise ValueError(f"a text with a NUL character cannot be passed: {text!r}")
    o += data
    o.append(0)


def write_texts(o: bytearray, texts: Sequence[str], parameter: str = "texts") -> None:
    """A str is a sequence of strings too, one per character: refused, as is any element
    that is not a str, with the parameter's name."""
    if isinstance(texts, (str, builtins.bytes)):
        raise TypeError(f"{parameter} must be a sequence of str, not a single {type(texts).__name__}: "
                        f"write [{texts!r}]")
    o += _U32.pack(len(texts))
    for i, text in enumerate(texts):
        if not isinstance(text, str):
            raise TypeError(f"{parameter}[{i}] must be a str, not {type(text).__name__}")
        write_text(o, text)


def write_bytes(o: bytearray, data: builtins.bytes) -> None:
    o += _U32.pack(len(data))
    o += data


def write_values(o: bytearray, code: str, values: Sequence[int]) -> None:
    o += _U32.pack(len(values))
    o += struct.pack(f"<{len(values)}{code}", *values)
'''


def stream_py(iface: kelidl.Interface) -> str:
    pool = StructPool()
    body: list[str] = []
    for rec in stream_classes(iface):
        body += reader(iface, rec, pool)
    for rec in stream_classes(iface):
        body += writer(iface, rec, pool)
    names = sorted({c_name(iface, r.name) for r in stream_classes(iface)})
    out = [f"# {BANNER}",
           '"""The stream form of every record for py_call: results arrive with length-prefixed',
           "strings and a presence byte before every record; inputs go with NUL-terminated strings,",
           'a presence byte before every record and bit sets as one 32-bit value."""', "",
           "from __future__ import annotations", "", "import builtins", "import struct",
           "from typing import Optional, Sequence", ""]
    if names:
        out.append("from .records import " + ", ".join(names))
    out += enum_import(iface, stream_classes(iface))[:1]
    made = [r.name for r in stream_classes(iface) if c_name(iface, r.name) == r.name]
    enums = sorted({str(f.type) for r in stream_classes(iface) for f in iface.members(r.name) if f.type})
    if made:
        out += ["from .._stream import member_of, positional", ""]
        out += [f"_make_{name} = positional({name})" for name in made]
        out += [f"_as_{name} = member_of({name})" for name in enums]
    out.append(STREAM_HELPERS)
    # Bound methods: one attribute lookup less per value on the hot path.
    for code, name in pool.codes.items():
        out.append(f'{name}_read = struct.Struct("{code}").unpack_from')
        out.append(f'{name}_write = struct.Struct("{code}").pack')
    out += ["", ""] + body
    return "\n".join(out).rstrip("\n") + "\n"


# ---- c_records.py --------------------------------------------------------------------------

def member(name: str) -> str:
    """A C member's name as a ctypes field: a Python keyword gets a trailing underscore
    (only the order and types matter for the layout)."""
    return name + "_" if keyword.iskeyword(name) else name


def c_struct_fields(f) -> list[str]:
    if f.kind in kelidl.SCALARS:
        return [f'("{member(f.name)}", {CTYPES[f.kind]})']
    if f.kind == "array":
        return [f'("{member(f.name)}", {CTYPES[f.element]} * {f.length})']
    if f.kind in ("wstr", "rec"):
        return [f'("{member(f.name)}", ctypes.c_void_p)']
    return [f'("{member(f.name)}", ctypes.c_void_p)', f'("{member(f.count)}", ctypes.c_uint32)']


def from_c(iface: kelidl.Interface, rec: kelidl.Record) -> list[str]:
    out = [f"def from_c_{rec.name}(address: Optional[int]) -> Optional[records.{rec.name}]:",
           "    if not address:", "        return None",
           f"    s = C_{rec.name}.from_address(address)"]
    args = []
    for f in iface.members(rec.name):
        py, src, count = py_name(iface, rec.name, f.name), f"s.{member(f.name)}", f"s.{member(f.count or '')}"
        if f.kind in ("bool", "flag"):
            value = f"bool({src})"
        elif f.kind in kelidl.SCALARS:
            value = typed(f, src, "enums.")
        elif f.kind == "array":
            value = f"list({src})"
        elif f.kind == "wstr":
            value = f"_text({src})"
        elif f.kind == "wstrs":
            value = f"_texts({src}, {count})"
        elif f.kind == "bytes":
            value = f"ctypes.string_at({src}, {count}) if {src} else b\"\""
        elif f.kind == "rec":
            value = f"from_c_{f.c_name}({src})"
        else:
            value = f"from_c_list({src}, {count}, from_c_{f.c_name})"
        args.append(f"{py}={value}")
    out.append(f"    return records.{rec.name}(")
    out += [f"        {a}," for a in args]
    out.append("    )")
    return out + ["", ""]


def to_c(iface: kelidl.Interface, rec: kelidl.Record) -> list[str]:
    """Builds the C record on the library's heap, as a consumed input must be."""
    out = [f"def to_c_{rec.name}(lib: Any, v: Optional[records.{rec.name}]) -> int:",
           "    if v is None:", "        return 0",
           f"    address = heap_block(lib, ctypes.sizeof(C_{rec.name}))",
           f"    s = C_{rec.name}.from_address(address)"]
    for f in iface.members(rec.name):
        py, dst, count = "v." + py_name(iface, rec.name, f.name), f"s.{member(f.name)}", f"s.{member(f.count or '')}"
        if f.kind in kelidl.SCALARS:
            out.append(f"    {dst} = {py}")
        elif f.kind == "array":
            out.append(f"    {dst}[:] = {py}")
        elif f.kind == "wstr":
            out.append(f"    {dst} = lib.duplicate_WString({py})")
        elif f.kind == "wstrs":
            out.append(f"    {dst}, {count} = heap_texts(lib, {py}, {f.always})")
        elif f.kind == "bytes":
            out.append(f"    {dst}, {count} = heap_bytes(lib, {py})")
        elif f.kind == "rec":
            out.append(f"    {dst} = to_c_{f.c_name}(lib, {py})")
        else:
            out.append(f"    {dst}, {count} = heap_list(lib, {py}, to_c_{f.c_name})")
    out.append("    return address")
    return out + ["", ""]


def c_args(v: kelidl.Value) -> tuple[list[str], list[str], list[str]]:
    """The ctypes argument types, the argument expressions and what to release after the
    call (kept lists built on the library's heap)."""
    name = param_name(v)
    if v.kind in kelidl.SCALARS:
        return [CTYPES[v.kind]], [name], []
    if v.kind == "wstr":
        return ["ctypes.c_wchar_p"], [name], []
    if v.kind == "wstrs":
        return (["ctypes.c_void_p", "ctypes.c_uint32"],
                [f"ctypes.cast((ctypes.c_wchar_p * len({name}))(*{name}), ctypes.c_void_p)", f"len({name})"], [])
    if v.kind in ("u32s", "u64s", "bytes"):
        ctype = {"u32s": "ctypes.c_uint32", "u64s": "ctypes.c_uint64", "bytes": "ctypes.c_uint8"}[v.kind]
        return (["ctypes.c_void_p", "ctypes.c_uint32"],
                [f"ctypes.cast(({ctype} * len({name}))(*{name}), ctypes.c_void_p)", f"len({name})"], [])
    if v.kind == "rec":
        return ["ctypes.c_void_p"], [f"to_c_{v.c_name}(lib, {name})"], []
    if v.kind == "list":
        return (["ctypes.c_void_p", "ctypes.c_uint32"], [f"l_{name}", f"len({name})"],
                [f"l_{name}", f"heap_list(lib, {name}, to_c_{v.c_name})[0]", f"release_{v.c_name}_array"])
    raise ValueError(v.kind)


def async_starter(iface: kelidl.Interface, op: kelidl.Operation) -> tuple[list[str], str]:
    params = [f"{param_name(p)}: {param_type(p, iface)}" for p in op.inputs]
    rec = op.sync.result.c_name
    argtypes = ["ctypes.c_void_p"]
    exprs = ["api"]
    kept = []
    for p in op.inputs:
        types, values, release = c_args(p)
        argtypes += types
        exprs += values
        if release:
            kept.append(release)
    argtypes += ["ctypes.POINTER(ctypes.c_void_p)", "CALLBACK", "ctypes.c_void_p"]
    exprs += ["ctypes.byref(error)", "callback", "None"]
    out = [f"def start_{op.name}(lib: Any, api: int, callback: Any, {', '.join(params + [''])}"
           f") -> tuple[int, Optional[records.KelError]]:".replace(", )", ")"),
           f'    """kel_{op.name}: the call id, or 0 and the error of a failed start."""',
           "    error = ctypes.c_void_p()"]
    out += [f'    check_texts({param_name(p)}, "{param_name(p)}")' for p in op.inputs if p.kind == "wstrs"]
    for local, build, _ in kept:
        out.append(f"    {local} = {build}")
    call = f"call_id: int = lib.kel_{op.name}({', '.join(exprs)})"
    if kept:
        # Lists stay the caller's: built on the library's heap for the call, freed after it.
        out += ["    try:", f"        {call}", "    finally:"]
        out += [f"        lib.{release}({local}, len({local[2:]}))" for local, _, release in kept]
    else:
        out.append(f"    {call}")
    out += ["    failure = from_c_KelError(error.value)", "    if error.value:",
            "        lib.release_KelError(error.value)", "    return call_id, failure", "", ""]
    declaration = f'    "kel_{op.name}": (ctypes.c_uint64, [{", ".join(argtypes)}]),'
    return out, declaration


C_HELPERS = '''
# The callback of every asynchronous export: results, count, isFinal, callId, error, context.
CALLBACK = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_uint32, ctypes.c_bool, ctypes.c_uint64,
                            ctypes.c_void_p, ctypes.c_void_p)

_POINTER_SIZE = ctypes.sizeof(ctypes.c_void_p)
T = TypeVar("T")


def check_texts(texts: Sequence[str], parameter: str) -> None:
    """As the stream's write_texts: a single str, or an element that is not a str, is refused."""
    if isinstance(texts, (str, bytes)):
        raise TypeError(f"{parameter} must be a sequence of str, not a single {type(texts).__name__}: "
                        f"write [{texts!r}]")
    for i, text in enumerate(texts):
        if not isinstance(text, str):
            raise TypeError(f"{parameter}[{i}] must be a str, not {type(text).__name__}")


def _text(address: Optional[int]) -> str:
    return ctypes.wstring_at(address) if address else ""


def _texts(address: Optional[int], count: int) -> list[str]:
    if not address:
        return []
    block = (ctypes.c_void_p * count).from_address(address)
    return [_text(p) for p in block]


def from_c_list(address: Optional[int], count: int, convert: Callable[[Optional[int]], T]) -> list[T]:
    if not address:
        return []
    return [convert(p) for p in (ctypes.c_void_p * count).from_address(address)]


def heap_block(lib: Any, size: int) -> int:
    address: Optional[int] = lib.allocate_Memory(size)
    if not address:
        raise MemoryError("the library's heap is exhausted")
    ctypes.memset(address, 0, size)
    return address


def heap_texts(lib: Any, texts: Sequence[str], always: bool) -> tuple[int, int]:
    if not texts and not always:
        return 0, 0
    address = heap_block(lib, max(len(texts), 1) * _POINTER_SIZE)
    block = (ctypes.c_void_p * max(len(texts), 1)).from_address(address)
    for i, text in enumerate(texts):
        block[i] = lib.duplicate_WString(text)
    return address, len(texts)


def heap_bytes(lib: Any, data: bytes) -> tuple[int, int]:
    if not data:
        return 0, 0
    address = heap_block(lib, len(data))
    ctypes.memmove(address, data, len(data))
    return address, len(data)


def heap_list(lib: Any, values: Sequence[Optional[T]], convert: Callable[[Any, Optional[T]], int]) -> tuple[int, int]:
    if not values:
        return 0, 0
    address = heap_block(lib, len(values) * _POINTER_SIZE)
    block = (ctypes.c_void_p * len(values)).from_address(address)
    for i, value in enumerate(values):
        block[i] = convert(lib, value)
    return address, len(values)
'''


def param_type(p: kelidl.Value, iface: kelidl.Interface) -> str:
    if p.kind in ("wstrs", "u32s", "u64s"):
        return "Sequence[str]" if p.kind == "wstrs" else "Sequence[int]"
    if p.kind == "list":
        return f"Sequence[Optional[records.{c_name(iface, p.record)}]]"
    if p.kind == "rec":
        return f"Optional[records.{c_name(iface, p.record)}]"
    if p.type:
        return "int"  # any number is taken: the enum's members are numbers too
    return py_type(p, iface)


def c_records_py(iface: kelidl.Interface) -> str:
    ready = iface.ready_records()
    out = [f"# {BANNER}",
           '"""The C records as ctypes sees them, and the asynchronous exports, which py_call does',
           "not offer: their results arrive as C records in a callback, and their consumed inputs",
           'are built on the library\'s heap."""', "",
           "from __future__ import annotations", "", "import ctypes",
           "from typing import Any, Callable, Optional, Sequence, TypeVar", "",
           "from . import enums, records", C_HELPERS]
    for rec in ready:
        out.append(f"class C_{rec.name}(ctypes.Structure):")
        fields = [x for f in iface.members(rec.name) for x in c_struct_fields(f)]
        out.append("    _fields_ = [" + ", ".join(fields) + "]" if fields else "    _fields_: list[Any] = []")
        out += ["", ""]
    for rec in ready:
        out += from_c(iface, rec)
    for rec in ready:
        out += to_c(iface, rec)
    declarations = []
    for op in built_asyncs(iface):
        code, decl = async_starter(iface, op)
        out += code
        declarations.append(decl)
    out.append("# The C declarations of the exports used here: name -> (result, arguments).")
    out.append("EXPORTS: dict[str, tuple[Any, list[Any]]] = {")
    out += declarations
    for rec in ready:
        out.append(f'    "release_{rec.name}_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),')
    out.append("}")
    return "\n".join(out).rstrip("\n") + "\n"


# ---- operations.py -------------------------------------------------------------------------

def encode(p: kelidl.Value, iface: kelidl.Interface) -> str:
    name = param_name(p)
    if p.kind in kelidl.SCALARS:
        return f'_o += struct.pack("<{CODES[p.kind]}", {name})'
    if p.kind == "wstr":
        return f"stream.write_text(_o, {name})"
    if p.kind == "wstrs":
        return f'stream.write_texts(_o, {name}, "{name}")'
    if p.kind == "u32s":
        return f'stream.write_values(_o, "I", {name})'
    if p.kind == "u64s":
        return f'stream.write_values(_o, "Q", {name})'
    if p.kind == "bytes":
        return f"stream.write_bytes(_o, {name})"
    if p.kind == "rec":
        return f"stream.write_{p.record}(_o, {name})"
    raise ValueError(p.kind)


def result_type(v: kelidl.Value | None, op: kelidl.Operation, iface: kelidl.Interface) -> str:
    if v is None or op.discard:
        return "None"
    if v.type:
        return f"enums.{v.type}"
    if v.kind == "engine":
        return "Engine"
    if v.kind == "rec":
        return f"Optional[records.{c_name(iface, v.record)}]"
    if v.kind == "list":
        return f"list[Optional[records.{c_name(iface, v.record)}]]"
    return py_type(v, iface)


def decode(v: kelidl.Value, iface: kelidl.Interface) -> list[str]:
    if v.kind in ("bool", "flag"):
        return ["return _b[0] != 0"]
    if v.kind in kelidl.SCALARS and v.type:
        return [f'return enums.{v.type}(struct.unpack_from("<{CODES[v.kind]}", _b)[0])']
    if v.kind in kelidl.SCALARS:
        return [f'_value: int = struct.unpack_from("<{CODES[v.kind]}", _b)[0]', "return _value"]
    if v.kind == "wstr":
        return ["return _b[4:].decode()"]
    if v.kind == "wstrs":
        return ["return stream.read_texts(_b, 0)[0]"]
    if v.kind in ("bytes", "blob"):
        return ["return _b[4:]"]
    if v.kind == "rec":
        return [f"return stream.read_{v.record}(_b, 0)[0]"]
    if v.kind == "list":
        return ["(_n,) = struct.unpack_from(\"<I\", _b)", "_p = 4",
                f"_results: list[Optional[records.{c_name(iface, v.record)}]] = []",
                "for _ in range(_n):", f"    _r, _p = stream.read_{v.record}(_b, _p)", "    _results.append(_r)",
                "return _results"]
    if v.kind == "engine":
        return ['return self._adopt(struct.unpack_from("<Q", _b)[0])']
    raise ValueError(v.kind)


def method_doc(op: kelidl.Operation, iface: kelidl.Interface, asynchronous: bool) -> list[str]:
    lines = doc_lines(op.doc or f"The engine operation {op.name}.", "        ")
    lines[0] = '        """' + lines[0].lstrip()
    renamed = [f"{param_name(p)} is {p.name}" for p in op.params if p.readable]
    extra = [f"C: kel_{op.name}{'Async' if asynchronous else ''}"
             + ("" if asynchronous else f"; number {op.otx}") + f"; engine position {op.position}"
             + (f" ({', '.join(renamed)})" if renamed else "") + "."]
    if asynchronous:
        extra.insert(0, "Runs asynchronously: the handle iterates over the reports, gives the results "
                        "with result() or await, and cancel() cancels it.")
    else:
        extra.append("Raises EngineError when the engine reports a failure.")
    for e in extra:
        lines += [""] + doc_lines(e, "        ")
    lines.append('        """')
    return lines


def operations_py(iface: kelidl.Interface) -> str:
    out = [f"# {BANNER}",
           '"""One method per built operation: the arguments go to py_call on the stream, the results',
           'come back as dataclasses; asynchronous forms go through the C exports."""', "",
           "from __future__ import annotations", "", "import builtins", "import struct",
           "from typing import TYPE_CHECKING, ContextManager, Optional, Sequence", "",
           "from . import c_records, enums, records, stream", "",
           "if TYPE_CHECKING:", "    from ..asynccall import AsyncCall", "    from ..engine import Engine", "",
           "# What the log shows in place of a secret argument.", '_SECRET = "***"', "",
           "", "class Operations:",
           '    """The engine operations; kel.Engine supplies _call, _start and _adopt."""', "",
           "    def _call(self, number: int, data: builtins.bytes, name: str = \"\",",
           "              arguments: tuple[tuple[str, object], ...] = ()) -> builtins.bytes:",
           "        raise NotImplementedError", "",
           "    def _adopt(self, address: int) -> Engine:",
           "        raise NotImplementedError", "",
           "    def _decoding(self, data: builtins.bytes) -> ContextManager[None]:",
           "        raise NotImplementedError", ""]
    out += ["    def _start(self, start: object, convert: object, release: str, *args: object, name: str = \"\",",
            "               arguments: tuple[tuple[str, object], ...] = ()) -> AsyncCall:",
            "        raise NotImplementedError", ""]
    asyncs = {op.sync.name: op for op in built_asyncs(iface)}
    for op in built_operations(iface):
        params = signature(op.params, iface)
        out.append(f"    def {snake(op.name)}({', '.join(['self'] + params)}) -> {result_type(op.result, op, iface)}:")
        out += method_doc(op, iface, False)
        out.append("        _o = bytearray()")
        for p in op.params:
            name = param_name(p)
            if p.kind == "list":
                out += [f'        _o += struct.pack("<I", len({name}))', f"        for _e in {name}:",
                        f"            stream.write_{p.record}(_o, _e)"]
            else:
                out.append(f"        {encode(p, iface)}")
        # The name and the arguments for the log (kel.engine); a secret shows as ***.
        logged = ", ".join(f'("{param_name(p)}", {"_SECRET" if p.secret else param_name(p)})' for p in op.params)
        logged = f"({logged},)" if len(op.params) == 1 else f"({logged})"
        call = f'self._call({op.otx}, builtins.bytes(_o), "{snake(op.name)}", {logged})'
        if op.result is None or op.discard:
            out.append(f"        {call}")
        else:
            out.append(f"        _b = {call}")
            out += decoding(op.result, iface)
        out.append("")
        a = asyncs.get(op.name)
        if a:
            rec = op.result
            out.append(f"    def {snake(a.name)}({', '.join(['self'] + params)}) -> AsyncCall:")
            out += method_doc(op, iface, True)
            args = ", ".join([f"c_records.start_{a.name}", f"c_records.from_c_{rec.c_name}",
                              f'"release_{rec.c_name}_array"'] + [param_name(p) for p in op.params]
                             + [f'name="{snake(a.name)}"', f"arguments={logged}"])
            out.append(f"        return self._start({args})")
            out.append("")
    return "\n".join(out).rstrip("\n") + "\n"


def decoding(result: kelidl.Value, iface: kelidl.Interface) -> list[str]:
    """The lines that decode a result: records and lists of them inside _decoding, which
    suspends the cyclic collector for a large result (the decoded tree has no cycles)."""
    lines = decode(result, iface)
    if result.kind not in ("rec", "list"):
        return [f"        {line}" for line in lines]
    return ["        with self._decoding(_b):"] + [f"            {line}" for line in lines]


def signature(params: list[kelidl.Value], iface: kelidl.Interface) -> list[str]:
    """Parameters with defaults where every later one has one too: lists default to empty,
    records to None."""
    out = []
    defaults = True
    for p in reversed(params):
        typ = param_type(p, iface)
        if defaults and p.kind in ("wstrs", "u32s", "u64s", "list"):
            out.append(f"{param_name(p)}: {typ} = ()")
        elif defaults and p.kind == "rec":
            out.append(f"{param_name(p)}: {typ} = None")
        else:
            defaults = False
            out.append(f"{param_name(p)}: {typ}")
    return list(reversed(out))


def outputs(iface: kelidl.Interface) -> dict[str, str]:
    return {
        f"{OUT_DIR}/__init__.py": f'# {BANNER}\n"""The half of the package generated from the interface description."""\n',
        f"{OUT_DIR}/enums.py": enums_py(iface),
        f"{OUT_DIR}/records.py": records_py(iface),
        f"{OUT_DIR}/stream.py": stream_py(iface),
        f"{OUT_DIR}/c_records.py": c_records_py(iface),
        f"{OUT_DIR}/operations.py": operations_py(iface),
    }
