"""Parser for the interface description (interface/*.def).

The description is the one place where records and operations are written down; the
generator and the tests read it through this module. Standard library only.
"""

from __future__ import annotations

import dataclasses
import pathlib
import re
from typing import Iterator

SCALARS = {
    "bool": ("bool", "bool"),
    "u8": ("uint8_t", "uint8_t"),
    "u16": ("uint16_t", "uint16_t"),
    "i16": ("int16_t", "int16_t"),
    "i32": ("int32_t", "int32_t"),
    "u32": ("uint32_t", "uint32_t"),
    "bits": ("uint32_t", "uint32_t"),
    "i64": ("int64_t", "int64_t"),
    "u64": ("uint64_t", "uint64_t"),
    # A one-byte flag: any byte other than 0 is true in the engine, true is 1 in C.
    "flag": ("uint8_t", "bool"),
}

# Field kinds that carry a count member right after the pointer member.
COUNTED_FIELDS = {"wstrs", "bytes", "list"}
PARAM_KINDS = set(SCALARS) | {"wstr", "wstrs", "u32s", "u64s", "bytes", "rec", "list", "handler"}
RESULT_KINDS = set(SCALARS) | {"wstr", "wstrs", "bytes", "blob", "rec", "list", "engine"}
COUNTED_PARAMS = {"wstrs", "u32s", "u64s", "bytes", "list"}
COUNTED_RESULTS = {"wstrs", "bytes", "blob", "list"}
RECORD_KINDS = {"rec", "list"}
# A field travels both ways, only from C to the engine ("in") or only back ("out").
DIRECTIONS = ("both", "in", "out")

# From this position on, the error parameter follows the engine object directly.
ERROR_FIRST_POSITION = 241


class DescriptionError(Exception):
    pass


@dataclasses.dataclass
class Field:
    kind: str  # a scalar, "wstr", "wstrs", "bytes", "rec", "list" or "array"
    name: str
    record: str | None = None  # element or nested record
    count: str | None = None
    always: bool = False  # string list block allocated even for count 0
    element: str | None = None  # scalar kind of an array
    length: int = 0  # array length
    c_record: str | None = None  # the C record of `record` when that is an `as=` class
    direction: str = "both"  # "in": C to engine only; "out": engine to C only
    secret: bool = False  # a password: never recorded or shown in clear
    doc: str = ""  # the trailing `#:` text of its line
    readable: str | None = None  # `name=`: the name Python and the JSON output use
    type: str | None = None  # `type=`: the enum (enums.def) that gives the number its meaning

    @property
    def c_name(self) -> str | None:
        return self.c_record or self.record


@dataclasses.dataclass
class EnumMember:
    value: int
    name: str
    doc: str = ""


@dataclasses.dataclass
class Enum:
    """An `enum` of enums.def: names for the values of integer members (`flags`: for bits)."""

    name: str
    flags: bool = False
    members: list[EnumMember] = dataclasses.field(default_factory=list)
    doc: str = ""
    line: int = 0


@dataclasses.dataclass
class Rename:
    """A `rename` line: the readable name (and doc) of a base member in a derived record."""

    member: str
    readable: str
    doc: str = ""


@dataclasses.dataclass
class Record:
    name: str
    struct: str
    base: str | None = None  # the engine base class, whose members lead the C record
    abstract: bool = False  # a base only: no C record of its own
    pending: bool = False  # declared by name only
    draft: bool = False  # fields known, family not built yet: no C record yet
    alias: str | None = None  # `as=`: an engine class converted to and from this C record
    release: str | None = None  # `release=`: freed by that record's release routine
    fields: list[Field] = dataclasses.field(default_factory=list)
    renames: dict[str, Rename] = dataclasses.field(default_factory=dict)  # base member -> its readable name here
    line: int = 0
    doc: str = ""  # the `#:` lines above it

    @property
    def named(self) -> bool:
        return self.base == "NamedItem"


@dataclasses.dataclass
class Value:
    """A parameter or the result of an operation."""

    kind: str
    name: str
    record: str | None = None
    count: str | None = None
    c_record: str | None = None  # the C record of `record` when that is an `as=` class
    secret: bool = False  # a password: never recorded or shown in clear
    readable: str | None = None  # `name=`: the parameter's name in Python
    type: str | None = None  # `type=`: the enum of an integer parameter or result

    @property
    def c_name(self) -> str | None:
        return self.c_record or self.record


@dataclasses.dataclass
class Operation:
    position: int
    name: str
    params: list[Value] = dataclasses.field(default_factory=list)
    result: Value | None = None
    otx: int | None = None
    remote: bool = False
    discard: bool = False
    api64: bool = False
    pyreturn: bool = False  # py_call also returns the 32-bit result
    is_async: bool = False
    reserved: bool = False
    custom: bool = False  # the export is declared but written by hand (kel_c/custom/)
    # Who may call it on a remote connection (ROLES); an async form takes its sync form's.
    role: str = "operator"
    sync: Operation | None = None  # for async operations
    family: str | None = None  # the `family` section it stands in; None for reserved positions
    line: int = 0
    doc: str = ""  # the `#:` lines above it

    @property
    def error_first(self) -> bool:
        return self.position >= ERROR_FIRST_POSITION

    @property
    def callback_class(self) -> str:
        base = self.sync.name if self.sync else self.name
        return base[0].upper() + base[1:] + "Callback"

    @property
    def inputs(self) -> list[Value]:
        return self.sync.params if self.is_async and self.sync else self.params


@dataclasses.dataclass
class Interface:
    records: dict[str, Record]
    operations: list[Operation]
    family_docs: dict[str, str] = dataclasses.field(default_factory=dict)  # trailing `#:` of each family
    enums: dict[str, Enum] = dataclasses.field(default_factory=dict)  # enums.def

    def record(self, name: str) -> Record:
        return self.records[name]

    def members(self, record_name: str) -> list[Field]:
        """Every member of the record in C order: the base's members first, recursively
        (the four NamedItem strings for named records), then the record's own fields.
        For an `as=` class these are its own members, a subset of the C record's."""
        rec = self.records[record_name]
        return (self.members(rec.base) if rec.base else []) + rec.fields

    def readable(self, record_name: str, member: str) -> tuple[str, str]:
        """The readable name and the doc of a member of the record's C record: a `rename`
        line of the record (or of a base between it and the member) first, then the
        field's own `name=`, else the member's C name and doc."""
        rec = self.records[record_name]
        while True:
            if member in rec.renames:
                found = rec.renames[member]
                own = next(f for f in self.members(record_name) if f.name == member)
                return found.readable, found.doc or own.doc
            for f in rec.fields:
                if f.name == member:
                    return f.readable or f.name, f.doc
            if not rec.base:
                raise KeyError(f"{record_name} has no member {member}")
            rec = self.records[rec.base]

    def families(self) -> list[str]:
        """The families in the order of the description."""
        seen: dict[str, None] = {}
        for op in sorted(self.operations, key=lambda o: o.line):
            if op.family:
                seen.setdefault(op.family)
        return list(seen)

    def ready(self, record_name: str, _seen: set[str] | None = None) -> bool:
        """True when the record and every record it contains have C records."""
        seen = _seen if _seen is not None else set()
        if record_name in seen:
            return True
        seen.add(record_name)
        rec = self.records[record_name]
        if rec.pending or rec.draft:
            return False
        refs = [f.record for f in rec.fields if f.record]
        if rec.base:
            refs.append(rec.base)
        if rec.alias:
            refs.append(rec.alias)
        return all(self.ready(r, seen) for r in refs)

    def exported(self, op: Operation) -> bool:
        """An operation has a C export once all the records it touches are ready."""
        if op.reserved:
            return False
        if op.is_async:
            return op.sync is not None and self.exported(op.sync)
        values = list(op.params) + ([op.result] if op.result else [])
        return all(self.ready(v.record) for v in values if v.record)

    def streamable(self, op: Operation, _seen: set[str] | None = None) -> bool:
        """True when no record the operation touches is still pending."""
        seen: set[str] = set()

        def complete(name: str) -> bool:
            if name in seen:
                return True
            seen.add(name)
            rec = self.records[name]
            refs = [f.record for f in rec.fields if f.record] + ([rec.base] if rec.base else [])
            return not rec.pending and all(complete(r) for r in refs)

        values = list(op.params) + ([op.result] if op.result else [])
        return all(complete(v.record) for v in values if v.record)

    def ready_records(self) -> list[Record]:
        """The records that have a C record of their own."""
        return [r for r in self.records.values() if not r.alias and not r.abstract and self.ready(r.name)]

    def ready_aliases(self) -> list[Record]:
        """The built `as=` classes: engine classes converted through another C record."""
        return [r for r in self.records.values() if r.alias and self.ready(r.name)]


def _words(line: str) -> str:
    return line.split("#", 1)[0].rstrip()


def _trailing_doc(line: str) -> str:
    """The text of a trailing `#: text` comment, or ""."""
    comment = line.partition("#")[2]
    return comment[1:].strip() if comment.startswith(":") else ""


class _Docs:
    """Collects the `#:` lines that document the record or operation right below them."""

    def __init__(self) -> None:
        self.lines: list[str] = []
        self.where = ""

    def read(self, raw: str, where: str) -> bool:
        """True when `raw` is a `#:` line (and so taken)."""
        if not raw.lstrip().startswith("#:"):
            return False
        if raw[0].isspace():
            raise DescriptionError(f"{where}: a field's doc trails its field line ('<field>  #: text')")
        if not self.lines:
            self.where = where
        self.lines.append(raw.strip()[2:].strip())
        return True

    def take(self) -> str:
        text = " ".join(line for line in self.lines if line)
        self.lines = []
        return text

    def none_pending(self, what: str) -> None:
        if self.lines:
            raise DescriptionError(f"{self.where}: a #: doc must stand directly above its {what}")


def _secret(words: list[str], where: str) -> bool:
    """Takes a trailing `secret` off `words`: allowed on a wide string only."""
    if len(words) < 3 or words[-1] != "secret":
        return False
    if words[0] != "wstr":
        raise DescriptionError(f"{where}: only a 'wstr' can be secret")
    words.pop()
    return True


def _readable(words: list[str], where: str) -> str | None:
    """Takes a `name=<readable>` off `words`."""
    found = [w for w in words if w.startswith("name=")]
    if not found:
        return None
    if len(found) > 1 or not re.fullmatch(r"[A-Za-z]\w*", found[0][5:]):
        raise DescriptionError(f"{where}: 'name=' takes one readable name")
    words.remove(found[0])
    return found[0][5:]


# The kinds a `type=` may give an enum to.
TYPED_KINDS = {"u8", "u16", "i16", "i32", "u32", "bits", "i64", "u64"}


def _typed(words: list[str], where: str) -> str | None:
    """Takes a `type=<Enum>` off `words`; allowed on an integer only."""
    found = [w for w in words if w.startswith("type=")]
    if not found:
        return None
    if len(found) > 1 or not re.fullmatch(r"[A-Z]\w*", found[0][5:]):
        raise DescriptionError(f"{where}: 'type=' takes one enum name")
    words.remove(found[0])
    if words[0] not in TYPED_KINDS:
        raise DescriptionError(f"{where}: only an integer can have a 'type='")
    return found[0][5:]


def _parse_field(words: list[str], where: str) -> Field:
    readable = _readable(words, where)
    typed = _typed(words, where)
    direction = "both"
    if len(words) > 2 and words[-1] in DIRECTIONS[1:]:
        direction = words.pop()
    secret = _secret(words, where)
    field = _parse_field_kind(words, where)
    field.direction = direction
    field.secret = secret
    field.readable = readable
    field.type = typed
    return field


def _parse_field_kind(words: list[str], where: str) -> Field:
    kind = words[0]
    m = re.fullmatch(r"(\w+)\[(\d+)\]", kind)
    if m:
        if m.group(1) not in SCALARS or m.group(1) == "flag" or len(words) != 2:
            raise DescriptionError(f"{where}: bad array field")
        return Field("array", words[1], element=m.group(1), length=int(m.group(2)))
    if kind in SCALARS or kind == "wstr":
        if len(words) != 2:
            raise DescriptionError(f"{where}: '{kind}' takes one name")
        return Field(kind, words[1])
    if kind == "rec":
        if len(words) != 3:
            raise DescriptionError(f"{where}: 'rec' takes a record and a name")
        return Field(kind, words[2], record=words[1])
    if kind == "list":
        if len(words) != 4:
            raise DescriptionError(f"{where}: 'list' takes a record, a name and a count")
        return Field(kind, words[2], record=words[1], count=words[3])
    if kind in ("wstrs", "bytes"):
        always = words[-1] == "always"
        rest = words[1:-1] if always else words[1:]
        if len(rest) != 2 or (always and kind != "wstrs"):
            raise DescriptionError(f"{where}: '{kind}' takes a name and a count")
        return Field(kind, rest[0], count=rest[1], always=always)
    raise DescriptionError(f"{where}: unknown field kind '{kind}'")


def _parse_value(text: str, kinds: set[str], counted: set[str], where: str) -> Value:
    words = text.split()
    if not words:
        raise DescriptionError(f"{where}: empty parameter")
    readable = _readable(words, where)
    if readable and kinds is not PARAM_KINDS:
        raise DescriptionError(f"{where}: a result has no readable name")
    typed = _typed(words, where)
    value = _parse_value_kind(words, text, kinds, counted, where)
    value.readable = readable
    value.type = typed
    return value


def _parse_value_kind(words: list[str], text: str, kinds: set[str], counted: set[str], where: str) -> Value:
    secret = _secret(words, where)
    if secret and kinds is not PARAM_KINDS:
        raise DescriptionError(f"{where}: a result cannot be secret")
    kind = words[0]
    if kind not in kinds:
        raise DescriptionError(f"{where}: unknown kind '{kind}'")
    if kind in RECORD_KINDS:
        want = 4 if kind in counted else 3
        if len(words) != want:
            raise DescriptionError(f"{where}: '{text}' needs record, name{' and count' if want == 4 else ''}")
        return Value(kind, words[2], record=words[1], count=words[3] if want == 4 else None)
    want = 3 if kind in counted else 2
    if len(words) != want:
        raise DescriptionError(f"{where}: '{text}' needs a name{' and a count' if want == 3 else ''}")
    return Value(kind, words[1], count=words[2] if want == 3 else None, secret=secret)


ATTRIBUTES = ("remote", "discard", "api64", "pyreturn", "custom")
# The least a remote caller needs to be admitted, weakest first: `anyone` also before
# logging in, `operator` (the default) any logged-in user, `administrator` an
# administrator. The local engine object may call everything.
ROLES = ("anyone", "operator", "administrator")


def _parse_operation(line: str, where: str) -> Operation:
    words = line.split()
    if len(words) == 3 and words[2] == "reserved":
        return Operation(int(words[1]), f"reserved{words[1]}", reserved=True)
    if len(words) == 4 and words[3] == "async":
        return Operation(int(words[1]), words[2], is_async=True)
    m = re.fullmatch(r"op\s+(\d+)\s+(\w+)\s*\((.*?)\)(.*)", line.strip())
    if not m:
        raise DescriptionError(f"{where}: cannot read operation '{line.strip()}'")
    op = Operation(int(m.group(1)), m.group(2))
    params = m.group(3).strip()
    if params:
        op.params = [_parse_value(p, PARAM_KINDS, COUNTED_PARAMS, where) for p in params.split(",")]
    rest = m.group(4).split()
    if rest and rest[0] == "->":
        rest.pop(0)
        rwords = []
        while rest and not (rest[0] in ATTRIBUTES or rest[0].startswith(("otx=", "role="))):
            rwords.append(rest.pop(0))
        op.result = _parse_value(" ".join(rwords), RESULT_KINDS, COUNTED_RESULTS, where)
    for a in rest:
        if re.fullmatch(r"otx=\d+", a):
            op.otx = int(a[4:])
        elif a.startswith("role="):
            if a[5:] not in ROLES:
                raise DescriptionError(f"{where}: unknown role '{a[5:]}'; the roles are {', '.join(ROLES)}")
            op.role = a[5:]
        elif a in ATTRIBUTES:
            setattr(op, a, True)
        else:
            raise DescriptionError(f"{where}: unknown attribute '{a}'")
    return op


def _statements(path: pathlib.Path, docs: _Docs, kind: str) -> Iterator[tuple[int, str, list[str]]]:
    """The lines of a description file that say something, as (line number, the raw line,
    its words without comments); `#:` lines go to `docs` for the `kind` below them."""
    for n, raw in enumerate(path.read_text().splitlines(), 1):
        if docs.read(raw, f"{path.name}:{n}"):
            continue
        line = _words(raw)
        if not line.strip():
            docs.none_pending(kind)
            continue
        yield n, raw, line.split()


def parse_records(path: pathlib.Path, known: dict[str, Record] | None = None) -> dict[str, Record]:
    """The records of one description file. `known` are records of another file that
    these may use (the test records use the interface's); they are not returned."""
    records: dict[str, Record] = {}
    current: Record | None = None
    docs = _Docs()
    for n, raw, words in _statements(path, docs, "record"):
        where = f"{path.name}:{n}"
        if not raw[0].isspace():
            if words[0] != "record" or len(words) < 2:
                raise DescriptionError(f"{where}: expected 'record <Name>'")
            name = words[1]
            if name in records or (known and name in known):
                raise DescriptionError(f"{where}: record {name} declared twice")
            if _trailing_doc(raw):
                raise DescriptionError(f"{where}: a record's doc stands in #: lines above it")
            current = Record(name, name, line=n, doc=docs.take())
            for attr in words[2:]:
                if attr == "named" or attr.startswith("base="):
                    if current.base:
                        raise DescriptionError(f"{where}: a record has one base")
                    current.base = "NamedItem" if attr == "named" else attr[5:]
                elif attr == "abstract":
                    current.abstract = True
                elif attr == "pending":
                    current.pending = True
                elif attr == "draft":
                    current.draft = True
                elif attr.startswith("struct="):
                    current.struct = attr[7:]
                elif attr.startswith("as="):
                    current.alias = attr[3:]
                elif attr.startswith("release="):
                    current.release = attr[8:]
                else:
                    raise DescriptionError(f"{where}: unknown record attribute '{attr}'")
            records[name] = current
        else:
            if current is None:
                raise DescriptionError(f"{where}: field outside a record")
            if current.pending:
                raise DescriptionError(f"{where}: a pending record has no fields")
            docs.none_pending("record")
            if words[0] == "rename":
                if len(words) != 3 or not re.fullmatch(r"[A-Za-z]\w*", words[2]):
                    raise DescriptionError(f"{where}: expected 'rename <base member> <readable name>'")
                current.renames[words[1]] = Rename(words[1], words[2], _trailing_doc(raw))
                continue
            current.fields.append(_parse_field(words, where))
            current.fields[-1].doc = _trailing_doc(raw)
    docs.none_pending("record")
    every = {**(known or {}), **records}
    for rec in records.values():
        for f in rec.fields:
            if f.record in every and every[f.record].alias:
                f.c_record = every[f.record].alias
    validate_records(every)
    return records


def parse_enums(path: pathlib.Path) -> dict[str, Enum]:
    """The enums of enums.def:

        #: doc
        enum <Name> [flags]
            <value> <memberName>  #: doc

    Values are decimal or 0x hex; a `flags` enum's values are single bits."""
    enums: dict[str, Enum] = {}
    current: Enum | None = None
    docs = _Docs()
    for n, raw, words in _statements(path, docs, "enum"):
        where = f"{path.name}:{n}"
        if not raw[0].isspace():
            if words[0] != "enum" or len(words) not in (2, 3) or words[2:] not in ([], ["flags"]) \
                    or not re.fullmatch(r"[A-Z]\w*", words[1]):
                raise DescriptionError(f"{where}: expected 'enum <Name> [flags]'")
            if words[1] in enums:
                raise DescriptionError(f"{where}: enum {words[1]} declared twice")
            current = enums[words[1]] = Enum(words[1], len(words) == 3, doc=docs.take(), line=n)
            continue
        if current is None or len(words) != 2 or not re.fullmatch(r"(0x[0-9A-Fa-f]+|\d+)", words[0]) \
                or not re.fullmatch(r"[a-z]\w*", words[1]):
            raise DescriptionError(f"{where}: expected '<value> <memberName>' inside an enum")
        value = int(words[0], 0)
        if current.flags and (value == 0 or value & (value - 1)):
            raise DescriptionError(f"{where}: a flags member is one bit")
        if any(m.value == value or m.name == words[1] for m in current.members):
            raise DescriptionError(f"{where}: {current.name} has {words[1]} or the value {value} twice")
        current.members.append(EnumMember(value, words[1], _trailing_doc(raw)))
    docs.none_pending("enum")
    return enums


def parse(root: pathlib.Path) -> Interface:
    records = parse_records(root / "interface" / "records.def")
    enums_path = root / "interface" / "enums.def"
    enums = parse_enums(enums_path) if enums_path.exists() else {}

    operations: list[Operation] = []
    path = root / "interface" / "operations.def"
    family: str | None = None
    family_docs: dict[str, str] = {}
    docs = _Docs()
    for n, raw, words in _statements(path, docs, "operation"):
        where = f"{path.name}:{n}"
        if words[0] == "family":
            if len(words) != 2 or not re.fullmatch(r"[A-Za-z]\w*", words[1]):
                raise DescriptionError(f"{where}: expected 'family <Name>'")
            docs.none_pending("operation")
            family = None if words[1] == "none" else words[1]
            if family:
                family_docs[family] = _trailing_doc(raw)
            continue
        if _trailing_doc(raw):
            raise DescriptionError(f"{where}: an operation's doc stands in #: lines above it")
        op = _parse_operation(_words(raw), where)
        op.line = n
        op.family = family
        op.doc = docs.take()
        if (family is None) != op.reserved:
            raise DescriptionError(f"{where}: every operation but the reserved ones belongs to a family")
        operations.append(op)
    docs.none_pending("operation")
    operations.sort(key=lambda o: o.position)
    iface = Interface(records, operations, family_docs, enums)
    _validate(iface)
    return iface


def undocumented(iface: Interface) -> tuple[list[Operation], list[Record]]:
    """Operations with no doc of their own (the reserved ones and asynchronous forms,
    which share their synchronous form's text, need none), and the records whose fields are
    written down (all but the pending ones) that have none."""
    ops = [op for op in iface.operations if not (op.doc or op.reserved or op.is_async)]
    recs = [r for r in iface.records.values() if not (r.doc or r.pending)]
    return ops, recs


def _validate(iface: Interface) -> None:
    seen: dict[int, Operation] = {}
    names: set[str] = set()
    otx: dict[int, str] = {}
    by_position = {op.position: op for op in iface.operations}
    for op in iface.operations:
        if op.position in seen:
            raise DescriptionError(f"position {op.position} given twice")
        seen[op.position] = op
        if op.name in names:
            raise DescriptionError(f"operation {op.name} given twice")
        names.add(op.name)
        if op.otx is not None:
            if op.otx in otx:
                raise DescriptionError(f"dispatcher number {op.otx} given twice")
            otx[op.otx] = op.name
        if op.is_async:
            sync = by_position.get(op.position - 1)
            if not sync or op.name != sync.name + "Async":
                raise DescriptionError(f"{op.name} does not follow its synchronous form")
            if not sync.result or sync.result.kind != "list":
                raise DescriptionError(f"{sync.name} must hand out a record list to have an async form")
            op.sync = sync
            op.role = sync.role
        given = [v.readable or v.name for v in op.params]
        if len(set(given)) != len(given):
            raise DescriptionError(f"{op.name}: two parameters have one name")
        for v in op.params + ([op.result] if op.result else []):
            if v.record and v.record not in iface.records:
                raise DescriptionError(f"{op.name}: unknown record {v.record}")
            if v.record:
                v.c_record = iface.records[v.record].alias
    typed = [(f"record {r.name}", f) for r in iface.records.values() for f in r.fields] + [
        (f"operation {op.name}", v) for op in iface.operations for v in op.params + ([op.result] if op.result else [])]
    for where, v in typed:
        if v.type and v.type not in iface.enums:
            raise DescriptionError(f"{where}: {v.name} has the unknown type {v.type}")
    for op in iface.operations:
        for v in op.params + ([op.result] if op.result else []):
            if v.record and iface.records[v.record].abstract:
                raise DescriptionError(f"{op.name}: {v.record} is a base only and cannot be passed")


def validate_records(records: dict[str, Record]) -> None:
    """Checks what the records say about one another: references, bases, `as=` pairs."""
    iface = Interface(records, [])
    for rec in records.values():
        for f in rec.fields:
            if f.record and f.record not in records:
                raise DescriptionError(f"record {rec.name}: unknown record {f.record}")
            if f.record and records[f.record].abstract:
                raise DescriptionError(f"record {rec.name}: {f.record} is a base only and cannot be a field")
        _validate_base(iface, rec)
    for rec in records.values():
        _validate_readable(iface, rec)
        if rec.alias:
            _validate_alias(iface, rec)
        if rec.release:
            _validate_release(iface, rec)


def _validate_readable(iface: Interface, rec: Record) -> None:
    """`rename` names a base member, and no two members of a record end up with one name
    (readable or C: the C name stays reachable as an alias)."""
    own = {f.name for f in rec.fields}
    for member in rec.renames:
        if member in own or member not in {f.name for f in iface.members(rec.name)}:
            raise DescriptionError(f"record {rec.name}: 'rename {member}' names no member of its bases")
    if rec.alias:
        if rec.renames or any(f.readable for f in rec.fields):
            raise DescriptionError(f"record {rec.name}: an `as=` class takes the readable names of {rec.alias}")
        return
    names: dict[str, str] = {}
    for f in iface.members(rec.name):
        readable = iface.readable(rec.name, f.name)[0]
        for name in {readable, f.name}:
            if names.setdefault(name, f.name) != f.name:
                raise DescriptionError(f"record {rec.name}: the name {name} is given twice")


def _validate_base(iface: Interface, rec: Record) -> None:
    """A base chain ends, names plain records, and no member name repeats along it."""
    seen = [rec.name]
    current = rec
    while current.base:
        base = iface.records.get(current.base)
        if base is None or base.alias:
            raise DescriptionError(
                f"record {current.name}: base {current.base} must name a record, not an `as=` class")
        if base.name in seen:
            raise DescriptionError(f"record {rec.name}: its bases form a cycle")
        seen.append(base.name)
        current = base
    if rec.abstract and rec.alias:
        raise DescriptionError(f"record {rec.name}: a base only cannot be an `as=` class")
    names = [f.name for f in iface.members(rec.name)]
    repeated = {n for n in names if names.count(n) > 1}
    if repeated:
        raise DescriptionError(f"record {rec.name}: member {sorted(repeated)[0]} given twice along its bases")


OWNING_KINDS = ("wstr", "wstrs", "bytes", "rec", "list")


def owned_prefix(iface: Interface, name: str) -> list[str] | None:
    """The kinds of the members that own memory, when they all lead the C record (and
    nothing after them owns any); None otherwise."""
    kinds = [f.kind for f in iface.members(name)]
    owned = [k for k in kinds if k in OWNING_KINDS]
    return owned if kinds[:len(owned)] == owned else None


def _validate_release(iface: Interface, rec: Record) -> None:
    """`release=` shares another record's release routine, which frees what that record's
    layout says: both must own memory only in the same leading members."""
    target = iface.records.get(rec.release)
    if target is None or target.alias or target.abstract or target.release or target.pending:
        raise DescriptionError(f"record {rec.name}: release={rec.release} must name a record with its own release routine")
    if rec.alias or rec.abstract:
        raise DescriptionError(f"record {rec.name}: only a record with a C record can share a release routine")
    mine, theirs = owned_prefix(iface, rec.name), owned_prefix(iface, target.name)
    if mine is None or theirs is None or mine != theirs or any(k != "wstr" for k in mine):
        raise DescriptionError(
            f"record {rec.name}: release={rec.release} needs both records to begin with the same wide "
            "strings and to own nothing else")


def _validate_alias(iface: Interface, rec: Record) -> None:
    """An `as=` class pairs each of its members with the C record's member of that name."""
    target = iface.records.get(rec.alias)
    if target is None or target.alias or target.abstract:
        raise DescriptionError(f"record {rec.name}: as={rec.alias} must name a record with a C record")
    theirs = {f.name: f for f in iface.members(target.name)}
    for f in iface.members(rec.name):
        other = theirs.get(f.name)
        if other is None:
            raise DescriptionError(f"record {rec.name}: {rec.alias} has no member {f.name}")
        if (f.kind, f.c_name, f.count, f.element, f.length) != (
                other.kind, other.c_name, other.count, other.element, other.length):
            raise DescriptionError(f"record {rec.name}: field {f.name} differs from {rec.alias}.{f.name}")
        if f.type not in (None, other.type):
            raise DescriptionError(f"record {rec.name}: an `as=` class takes the types of {rec.alias}")
        f.type = other.type
