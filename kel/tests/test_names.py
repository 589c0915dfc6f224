"""Readable names: the dataclasses use them, the C names stay read-only aliases, and a
member that keeps its number says why. (The conformance suite builds every record with
the readable names and reads it back through the C names.)"""

from __future__ import annotations

import pydoc
import re
import unittest

import kel

from .support import ROOT

import kelidl  # noqa: E402,I100  (tools/, put on the path by .support)

IFACE = kelidl.parse(ROOT)
NUMBERED = re.compile(r"(\d+$)|^(flag|flags|text|values|strings)$")


class Names(unittest.TestCase):
    def test_c_names_are_read_only_aliases(self) -> None:
        dtc = kel.DtcResult(display_code="P0301", status=0x2F, snapshots=[kel.ParameterResult(name="rpm")])
        self.assertEqual((dtc.text1, dtc.value1, dtc.parameters1), ("P0301", 0x2F, dtc.snapshots))
        with self.assertRaises(AttributeError):
            dtc.text1 = "P0302"  # type: ignore[misc]
        with self.assertRaises(TypeError):
            kel.DtcReadConfig(value=8)  # type: ignore[call-arg]  # the old silent mistake is now loud

    def test_a_member_that_keeps_its_number_says_why(self) -> None:
        for rec in IFACE.ready_records():
            for f in IFACE.members(rec.name):
                readable, doc = IFACE.readable(rec.name, f.name)
                if readable == f.name and NUMBERED.search(f.name):
                    with self.subTest(record=rec.name, member=f.name):
                        self.assertRegex(doc, r"nothing says|no meaning|depends on the record|as itemText2")

    def test_help_shows_field_docs_and_the_c_line_after_the_text(self) -> None:
        text = pydoc.render_doc(kel.Target, renderer=pydoc.plaintext)
        self.assertIn("address: Its diagnostic address (createSeed takes it). C: value1.", text)
        method = pydoc.render_doc(kel.Engine.create_seed, renderer=pydoc.plaintext)
        self.assertLess(method.index("security"), method.index("C: kel_createSeed"))
        self.assertIn("address is value1", method)


if __name__ == "__main__":
    unittest.main()
