#!/usr/bin/env python3
"""The description grammar and what the generator writes from it, on small descriptions
written here: the forms the interface's families rely on before any of them is built."""

import pathlib
import sys
import tempfile
import textwrap
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tools"))
import admission  # noqa: E402
import generate  # noqa: E402
import kelidl  # noqa: E402

BASE_RECORDS = """\
record MvciServerError
    i32 code
record NegativeResponse
    i32 code
record KelError struct=KelError_struct
    i32 code
    rec MvciServerError mvciError
    rec NegativeResponse negativeResponse
record NamedItem
    wstr itemText1
    wstr itemText2
    wstr itemText3
    wstr itemText4
"""


def write(root: pathlib.Path, records: str, operations: str = "") -> pathlib.Path:
    """A description laid out in `root` as the repository lays it out."""
    (root / "interface").mkdir()
    (root / "interface" / "records.def").write_text(BASE_RECORDS + textwrap.dedent(records))
    (root / "interface" / "operations.def").write_text("family Things\n" + textwrap.dedent(operations))
    return root


def parsed(records: str, operations: str = "") -> kelidl.Interface:
    with tempfile.TemporaryDirectory() as folder:
        return kelidl.parse(write(pathlib.Path(folder), records, operations))


class Members(unittest.TestCase):
    def test_bases_lead_in_order_and_named_is_the_named_item_base(self):
        iface = parsed("""
            record Entry base=NamedItem abstract
                wstr name
                flag ok
            record File base=Entry
                u64 size
            record Leaf named
                u32 value
            """)
        self.assertEqual([f.name for f in iface.members("File")],
                         ["itemText1", "itemText2", "itemText3", "itemText4", "name", "ok", "size"])
        self.assertEqual(iface.record("Leaf").base, "NamedItem")
        self.assertTrue(iface.record("Leaf").named)
        self.assertEqual([f.name for f in iface.members("Leaf")][:4], [f"itemText{i}" for i in range(1, 5)])
        self.assertFalse(iface.record("File").named)
        self.assertEqual([r.name for r in iface.ready_records() if r.name in ("Entry", "File")], ["File"],
                         "a base only has no C record")

    def test_directions_and_flags(self):
        iface = parsed("""
            record Tree
                list Tree children childCount out
                wstr request in
                u32 in
                flag marker
            """)
        fields = {f.name: f for f in iface.record("Tree").fields}
        self.assertEqual(fields["children"].direction, "out")
        self.assertEqual(fields["request"].direction, "in")
        self.assertEqual(fields["in"].direction, "both", "a field may be called 'in'")
        self.assertEqual(fields["marker"].kind, "flag")


    def test_secret_fields_and_parameters_are_masked_where_the_engine_records_them(self):
        iface = parsed("record Login\n    wstr user\n    wstr password secret in\n",
                       "op 2 logIn (rec Login login, wstr pin secret, u32 role)\n")
        fields = {f.name: f for f in iface.record("Login").fields}
        self.assertTrue(fields["password"].secret)
        self.assertEqual(fields["password"].direction, "in")
        self.assertFalse(fields["user"].secret)
        self.assertIn('secret("password", &E::password)', generate.engine_fields_h(iface))
        self.assertIn('member("user", &E::user)', generate.engine_fields_h(iface))
        self.assertIn('script_->enter(*clock_, "logIn", login, Secret{pin}, role);',
                      generate.engine_front_cpp(iface))
        self.assertIn("return vehicle_->logIn(login, pin, role);", generate.engine_front_cpp(iface),
                      "the engine itself receives the password")


class Rejected(unittest.TestCase):
    CASES = [  # (records, operations, what the error says)
        ("record A base=B\n    u32 a\nrecord B base=A\n    u32 b\n", "", "cycle"),
        ("record A named\n    wstr itemText2\n", "", "itemText2 given twice"),
        ("record A named base=NamedItem\n", "", "one base"),
        ("record A base=Missing\n", "", "base Missing"),
        ("record Entry abstract\n    u32 a\nrecord Holder\n    rec Entry entry\n", "", "base only"),
        ("record Entry abstract\n    u32 a\n", "op 2 get () -> rec Entry entry\n", "base only"),
        ("record Thing\n    u32 value\nrecord View named as=Thing\n", "", "no member itemText1"),
        ("record Thing\n    u32 value\nrecord View as=Thing\n    u16 value\n", "", "differs"),
        ("record Thing\n    wstr name sideways\n", "", "takes one name"),
        ("record Thing\n    flag[4] flags\n", "", "bad array"),
        # only a wide string input may be secret
        ("record A\n    u32 pin secret\n", "", "secret"),
        ("", "op 2 get () -> wstr pin secret\n", "secret"),
        ("", "op 2 put (u32 pin secret)\n", "secret"),
        ("", "op 2 take () role=root\n", "unknown role"),
    ]

    def assertRejected(self, records: str, operations: str = "", message: str = ""):
        with self.assertRaises(kelidl.DescriptionError) as caught:
            parsed(records, operations)
        self.assertIn(message, str(caught.exception))

    def test_descriptions_the_grammar_refuses(self):
        for records, operations, message in self.CASES:
            with self.subTest(message, records=records, operations=operations):
                self.assertRejected(records, operations, message)

    def test_a_shared_release_routine_needs_the_same_leading_strings_and_nothing_else_owned(self):
        shared = "record Scale named\n    wstr text1\n    u32 value\n"
        strings = ["wstr a", "wstr b", "wstr c", "wstr d", "wstr e"]
        iface = parsed(shared + "record Info release=Scale\n" +
                       "".join(f"    {f}\n" for f in strings + ["u32 n", "flag f"]))
        lines = generate.shared_release(iface, iface.record("Info"))
        self.assertIn("static_assert(offsetof(Info, e) == offsetof(Scale, text1));", lines)
        self.assertIn("release_Scale(reinterpret_cast<Scale*>(ptr))", lines[-2])
        for fields, why in [(strings[:4], "fewer strings"),
                            (strings + ["wstr f"], "more strings"),
                            (strings[:4] + ["u32 n", "wstr e"], "a string after a number"),
                            (strings + ["bytes data dataLength"], "other memory")]:
            with self.subTest(why):
                self.assertRejected(shared + "record Info release=Scale\n" +
                                    "".join(f"    {f}\n" for f in fields), message="same wide strings")
        self.assertRejected(shared + "record Info release=Nothing\n    wstr a\n",
                            message="its own release routine")


class Roles(unittest.TestCase):
    def test_a_role_follows_a_result_reaches_the_async_form_and_the_sorted_engine_table(self):
        iface = parsed("""
            record Thing
                wstr name
            """, """\
            op 2 list () -> list Thing things thingCount role=administrator
            op 3 listAsync async
            op 4 look () -> u32 value
            op 5 enter () role=anyone
            """)
        self.assertEqual({op.name: op.role for op in iface.operations},
                         {"list": "administrator", "listAsync": "administrator", "look": "operator",
                          "enter": "anyone"})
        table = admission.admission_cpp(iface)
        self.assertIn('{"listAsync", Admission::Administrator}', table)
        self.assertLess(table.index('"enter"'), table.index('"list"'), "sorted for the binary search")


class Generated(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = write(pathlib.Path(folder.name), "", "op 4 special (wstr text) -> wstr result custom\n")
        self.iface = kelidl.parse(self.root)

    def test_custom_exports_are_declared_but_not_written(self):
        header = generate.c_header(self.iface)
        self.assertIn("KEL_C_API void kel_special(TarnApi* api, KEL_KEPT const wchar_t* text, "
                      "KelError** error, KEL_OUT wchar_t** result);", header)
        self.assertIn("kel_special", generate.exports_txt(self.iface).split())
        self.assertNotIn("kel_special", generate.binding_exports_cpp(self.iface))
        self.assertEqual(generate.missing_custom_exports(self.iface, self.root),
                         ["kel_c/custom/special.cpp"])
        (self.root / "kel_c" / "custom").mkdir(parents=True)
        (self.root / "kel_c" / "custom" / "special.cpp").write_text("")
        self.assertEqual(generate.missing_custom_exports(self.iface, self.root), [])

    def test_a_project_without_a_version_is_refused(self):
        # The version itself reaching the header is checked by tests/c99/version.cpp.
        (self.root / "CMakeLists.txt").write_text("project(kel_c LANGUAGES C CXX)\n")
        with self.assertRaises(kelidl.DescriptionError):
            generate.cmake_version(self.root)


if __name__ == "__main__":
    unittest.main()
