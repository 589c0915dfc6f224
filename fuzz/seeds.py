"""Seeds for the dispatcher fuzz target, written from the interface description.

A seed is: dispatcher byte (0 kel_call_checked, 1 py_call_checked), the operation number
(u32 LE), then the operation's arguments in that dispatcher's input form. Every operation
with a dispatcher number gets a well-formed seed for each dispatcher, so the fuzzer starts
past the argument layout; operations whose arguments hold a recursive record (a parameter
or directory tree) also get chains of records nested just under, at and past the bound of
the checked forms and far past it, so it explores deep inputs from the start.

    python3 fuzz/seeds.py CORPUS_DIR
"""

from __future__ import annotations

import pathlib
import re
import struct
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tools"))
import kelidl  # noqa: E402

SCALAR_SIZES = {"bool": 1, "u8": 1, "u16": 2, "i16": 2, "i32": 4, "u32": 4, "i64": 8, "u64": 8}
# The nesting bound of the checked forms, as the stream declares it.
MAX_RECORD_DEPTH = int(
    re.search(r"maxRecordDepth = (\d+);", (ROOT / "kel_c" / "OTXStream.h").read_text()).group(1)
)
SHALLOW = 3
DEPTHS = (SHALLOW, MAX_RECORD_DEPTH, MAX_RECORD_DEPTH + 1, 4000)


class Encoder:
    def __init__(self, iface: kelidl.Interface, python: bool, depth: int) -> None:
        self.iface = iface
        self.python = python  # py_call: NUL-terminated strings, presence bytes before records
        self.depth = depth  # how deep recursive records nest
        self.recursion: dict[str, bool] = {}

    def reaches(self, name: str, target: str, seen: set[str] | None = None) -> bool:
        seen = seen if seen is not None else set()
        for f in self.fields(name):
            if f.record and f.record not in seen:
                seen.add(f.record)
                if f.record == target or self.reaches(f.record, target, seen):
                    return True
        return False

    def fields(self, name: str) -> list[kelidl.Field]:
        rec = self.iface.records.get(name)
        if rec is None or rec.pending:
            raise ValueError(f"no fields for {name}")
        if not rec.fields and rec.alias:
            return self.fields(rec.alias)
        return rec.fields

    def recursive(self, name: str) -> bool:
        if name not in self.recursion:
            self.recursion[name] = self.reaches(name, name)
        return self.recursion[name]

    def text(self, value: str = "a\u00e4") -> bytes:
        data = value.encode() if self.depth <= SHALLOW else b""  # deep seeds stay small
        return data + b"\0" if self.python else struct.pack("<I", len(data)) + data

    def scalar(self, kind: str) -> bytes:
        if kind == "bits":
            return struct.pack("<I", 1) if self.python else struct.pack("<II", 1, 1)
        return (1).to_bytes(SCALAR_SIZES[kind], "little")

    def record(self, name: str, level: int) -> bytes:
        if level > self.depth + 16:
            raise ValueError(f"{name} cannot end in this form")
        named = self.iface.records[name].named
        out = bytearray(b"\x01" if self.python else b"")
        out += b"".join(self.text() for _ in range(4)) if named else b""
        for f in self.fields(name):
            out += self.field(f, level)
        return bytes(out)

    def field(self, f: kelidl.Field, level: int) -> bytes:
        if f.kind in SCALAR_SIZES or f.kind == "bits":
            return self.scalar(f.kind)
        if f.kind == "wstr":
            return self.text()
        if f.kind == "wstrs":
            return struct.pack("<I", 2) + self.text() + self.text("")
        if f.kind == "bytes":
            return struct.pack("<I", 3) + b"\x01\x02\x03"
        if f.kind == "array":
            return self.scalar(f.element) * f.length
        if f.kind in ("rec", "list"):
            deeper = f.record is not None and self.recursive(f.record)
            if deeper and level >= self.depth:
                if f.kind == "list":
                    return struct.pack("<I", 0)
                if self.python:
                    return b"\x00"
            if not deeper and self.depth > SHALLOW:
                if f.kind == "list":
                    return struct.pack("<I", 0)
                if self.python:
                    return b"\x00"  # a null record
            body = self.record(f.record, level + 1 if deeper else level)
            return struct.pack("<I", 1) + body if f.kind == "list" else body
        raise ValueError(f"field kind {f.kind}")

    def arguments(self, op: kelidl.Operation) -> bytes:
        out = bytearray()
        for p in op.params:
            if p.kind == "handler":
                continue
            if p.kind in ("rec", "list"):
                body = self.record(p.record, 1)
                out += struct.pack("<I", 1) + body if p.kind == "list" else body
            elif p.kind in ("u32s", "u64s"):
                out += struct.pack("<I", 2) + (b"\x01" * (8 if p.kind == "u32s" else 16))
            else:
                out += self.field(kelidl.Field(kind=p.kind, name=p.name), 1)
        return bytes(out)


def main() -> None:
    sys.setrecursionlimit(50000)  # the deepest seeds recurse once per level
    corpus = pathlib.Path(sys.argv[1])
    corpus.mkdir(parents=True, exist_ok=True)
    iface = kelidl.parse(ROOT)
    written = 0
    for op in iface.operations:
        if op.otx is None:
            continue
        for dispatcher in (0, 1):
            for depth in DEPTHS:
                enc = Encoder(iface, dispatcher == 1, depth)
                try:
                    data = enc.arguments(op)
                    shallow = Encoder(iface, dispatcher == 1, SHALLOW).arguments(op)
                except (ValueError, KeyError):
                    break
                if depth != SHALLOW and len(data) <= len(shallow):
                    break  # no recursive record: one seed is enough
                name = f"{op.name}-{dispatcher}-{depth}"
                (corpus / name).write_bytes(bytes([dispatcher]) + struct.pack("<I", op.otx) + data)
                written += 1
    print(f"{written} seeds in {corpus}")


if __name__ == "__main__":
    main()
