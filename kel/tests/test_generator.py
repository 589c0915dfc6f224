"""The generated half of the package on small descriptions written here: every field kind
through the codec, Python names, and what a draft record holds back."""

from __future__ import annotations

import importlib
import pathlib
import sys
import tempfile
import textwrap
import unittest
from typing import Any

from .support import ROOT  # (also puts tools/ on the path)

import conformance  # noqa: E402,I100
import kelidl  # noqa: E402
import python_gen  # noqa: E402

RECORDS = """\
record MvciServerError
    i32 code
record NegativeResponse
    i32 code
record KelError struct=KelError_struct
    i32 code
    wstr message
    rec MvciServerError mvciError
    rec NegativeResponse negativeResponse
record NamedItem
    wstr itemText1
    wstr itemText2
    wstr itemText3
    wstr itemText4
#: A thing of every kind.
record Thing named
    i32 value                   #: a number
    wstr from                   #: a keyword as a name
    bytes bytes byteCount       #: a builtin as a name
    u32[3] values
    bool[2] switches
    bits mask
    flag flag
    u16 small
    i16 signed
    i64 big
    u64 huge
    wstrs names nameCount
    rec KelError error
    list Thing children childCount
    wstr outward out
record Part as=Thing
    i32 value
    wstr from
record Later draft
    wstr text
"""

OPERATIONS = """\
family Things
#: Reads a thing.
op 2 readThing (wstr name, rec Thing thing, list Part parts partCount, u64s ids idCount) -> rec Thing result otx=2
#: Reads things.
op 3 readThings (bits mask) -> list Thing things thingCount otx=3
op 4 readThingsAsync async
#: Reads a later.
op 5 readLater () -> rec Later later otx=5
#: Reads a WLAN DoIP thing.
op 6 getWLanDoIPThing () -> flag thing otx=6
"""


class GeneratedPackage:
    """The generated modules of a description, importable as a package of their own."""

    counter = 0

    def __init__(self, records: str) -> None:
        self.folder = tempfile.TemporaryDirectory()
        root = pathlib.Path(self.folder.name)
        (root / "interface").mkdir()
        (root / "interface" / "records.def").write_text(textwrap.dedent(records))
        (root / "interface" / "operations.def").write_text(OPERATIONS)
        self.iface = kelidl.parse(root)
        GeneratedPackage.counter += 1
        self.name = f"generated_kel_{GeneratedPackage.counter}"
        package = root / "packages" / self.name
        for rel, text in python_gen.outputs(self.iface).items():
            path = package / rel.replace(python_gen.OUT_DIR, "generated")
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
        (package / "__init__.py").write_text("")
        # The runtime support the generated decoders import, as the package has it.
        (package / "_stream.py").write_text((ROOT / "kel" / "_stream.py").read_text())
        sys.path.insert(0, str(root / "packages"))

    def module(self, name: str) -> Any:
        return importlib.import_module(f"{self.name}.generated.{name}")

    def close(self) -> None:
        sys.path.remove(str(pathlib.Path(self.folder.name) / "packages"))
        self.folder.cleanup()


class Generated(unittest.TestCase):
    def setUp(self) -> None:
        self.package = self.built(RECORDS)
        self.records = self.package.module("records")
        self.stream = self.package.module("stream")
        self.iface = self.package.iface

    def built(self, records: str) -> GeneratedPackage:
        package = GeneratedPackage(records)
        self.addCleanup(package.close)
        return package

    def value(self, variant: int) -> conformance.Rec:
        model = conformance.Model(self.iface, conformance.VARIANTS[variant], 7)
        return model.record("Thing", False)

    def dataclass_of(self, value: Any) -> Any:
        if isinstance(value, conformance.Rec):
            cls = getattr(self.records, python_gen.c_name(self.iface, value.name))
            return cls(**{python_gen.snake(k): self.dataclass_of(v) if not isinstance(v, list) or k != "bytes"
                          else bytes(v) for k, v in value.values.items()})
        if isinstance(value, list):
            return [self.dataclass_of(v) for v in value]
        return value

    def test_every_kind_reads_as_the_engine_writes_it_and_writes_as_py_call_reads_it(self) -> None:
        for variant in (0, 1):
            value = self.value(variant)
            engine, py_call = (conformance.Stream(self.iface, otx=False, result=r) for r in (True, False))
            engine.record(value, "Thing")
            py_call.record(value, "Thing")
            decoded, end = self.stream.read_Thing(bytes(engine.out) + b"tail", 0)
            self.assertEqual((end, decoded), (len(engine.out), self.dataclass_of(value)), variant)
            written = bytearray()
            self.stream.write_Thing(written, self.dataclass_of(value))
            self.assertEqual(bytes(written), bytes(py_call.out), variant)

    def test_an_as_class_travels_with_its_own_members_only(self) -> None:
        written = bytearray()
        self.stream.write_Part(written, self.records.Thing(value=-2, from_="x", small=9))
        self.assertEqual(bytes(written), b"\x01\xfe\xff\xff\xffx\x00")
        part, _ = self.stream.read_Part(b"\x01\x05\x00\x00\x00\x01\x00\x00\x00y", 0)
        self.assertEqual(part, self.records.Thing(value=5, from_="y"))

    def test_python_names(self) -> None:
        fields = [f for f in self.records.Thing.__dataclass_fields__]
        self.assertEqual(fields[:6], ["item_text1", "item_text2", "item_text3", "item_text4", "value", "from_"])
        self.assertIn("bytes", fields)
        self.assertNotIn("byte_count", fields, "a count is the length of its list")
        operations = self.package.module("operations").Operations
        self.assertTrue(hasattr(operations, "get_w_lan_do_ip_thing"))
        self.assertIn("A number.", (pathlib.Path(self.records.__file__).read_text()))
        self.assertIn("Reads a thing.", operations.read_thing.__doc__)

    def test_a_draft_record_holds_back_its_dataclass_and_operations(self) -> None:
        operations = self.package.module("operations").Operations
        self.assertFalse(hasattr(self.records, "Later"))
        self.assertFalse(hasattr(operations, "read_later"))
        self.assertTrue(hasattr(operations, "read_things_async"))
        built = self.built(RECORDS.replace("record Later draft", "record Later"))
        self.assertTrue(hasattr(built.module("records"), "Later"))
        self.assertTrue(hasattr(built.module("operations").Operations, "read_later"))
        # A draft record inside another holds back the outer one too.
        nested = self.built(RECORDS.replace("    wstr outward out\n", "    wstr outward out\n    rec Later later\n"))
        self.assertFalse(hasattr(nested.module("records"), "Thing"))
        self.assertFalse(hasattr(nested.module("operations").Operations, "read_thing"))


if __name__ == "__main__":
    unittest.main()
