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


class Description:
    """A description in a temporary folder laid out as the repository is."""

    def __init__(self, records: str, operations: str = ""):
        self.folder = tempfile.TemporaryDirectory()
        self.root = pathlib.Path(self.folder.name)
        (self.root / "interface").mkdir()
        (self.root / "interface" / "records.def").write_text(BASE_RECORDS + textwrap.dedent(records))
        (self.root / "interface" / "operations.def").write_text(
            "family Things\n" + textwrap.dedent(operations))

    def parse(self) -> kelidl.Interface:
        return kelidl.parse(self.root)

    def close(self):
        self.folder.cleanup()


def parsed(records: str, operations: str = "") -> kelidl.Interface:
    description = Description(records, operations)
    try:
        return description.parse()
    finally:
        description.close()


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


class Secrets(unittest.TestCase):
    def setUp(self):
        self.iface = parsed("""
            record Login
                wstr user
                wstr password secret in
            """, "op 2 logIn (rec Login login, wstr pin secret, u32 role)\n")

    def test_secret_fields_and_parameters_are_masked_where_the_engine_records_them(self):
        fields = {f.name: f for f in self.iface.record("Login").fields}
        self.assertTrue(fields["password"].secret)
        self.assertEqual(fields["password"].direction, "in")
        self.assertFalse(fields["user"].secret)
        self.assertIn('secret("password", &E::password)', generate.engine_fields_h(self.iface))
        self.assertIn('member("user", &E::user)', generate.engine_fields_h(self.iface))
        self.assertIn('script_->enter(*clock_, "logIn", login, Secret{pin}, role);',
                      generate.engine_front_cpp(self.iface))
        self.assertIn("return vehicle_->logIn(login, pin, role);", generate.engine_front_cpp(self.iface),
                      "the engine itself receives the password")

    def test_only_a_wide_string_input_is_secret(self):
        for records, operations in (("record A\n    u32 pin secret\n", ""),
                                    ("", "op 2 get () -> wstr pin secret\n"),
                                    ("", "op 2 put (u32 pin secret)\n")):
            with self.assertRaises(kelidl.DescriptionError):
                parsed(records, operations)


class Rejected(unittest.TestCase):
    def assertRejected(self, records: str, operations: str = "", message: str = ""):
        with self.assertRaises(kelidl.DescriptionError) as caught:
            parsed(records, operations)
        self.assertIn(message, str(caught.exception))

    def test_base_chains(self):
        self.assertRejected("""
            record A base=B
                u32 a
            record B base=A
                u32 b
            """, message="cycle")
        self.assertRejected("""
            record A named
                wstr itemText2
            """, message="itemText2 given twice")
        self.assertRejected("""
            record A named base=NamedItem
            """, message="one base")
        self.assertRejected("""
            record A base=Missing
            """, message="base Missing")

    def test_a_base_only_is_never_passed_or_nested(self):
        self.assertRejected("""
            record Entry abstract
                u32 a
            record Holder
                rec Entry entry
            """, message="base only")
        self.assertRejected("""
            record Entry abstract
                u32 a
            """, "op 2 get () -> rec Entry entry\n", message="base only")

    def test_as_classes_pair_by_name_along_bases(self):
        self.assertRejected("""
            record Thing
                u32 value
            record View named as=Thing
            """, message="no member itemText1")
        self.assertRejected("""
            record Thing
                u32 value
            record View as=Thing
                u16 value
            """, message="differs")

    def test_a_shared_release_routine_needs_the_same_leading_strings_and_nothing_else_owned(self):
        shared = """
            record Scale named
                wstr text1
                u32 value
            """
        iface = parsed(shared + """
            record Info release=Scale
                wstr a
                wstr b
                wstr c
                wstr d
                wstr e
                u32 n
                flag f
            """)
        lines = generate.shared_release(iface, iface.record("Info"))
        self.assertIn("static_assert(offsetof(Info, e) == offsetof(Scale, text1));", lines)
        self.assertIn("release_Scale(reinterpret_cast<Scale*>(ptr))", lines[-2])
        strings = ["wstr a", "wstr b", "wstr c", "wstr d", "wstr e"]
        for fields, why in [(strings[:4], "fewer strings"),
                            (strings + ["wstr f"], "more strings"),
                            (strings[:4] + ["u32 n", "wstr e"], "a string after a number"),
                            (strings + ["bytes data dataLength"], "other memory")]:
            with self.subTest(why):
                self.assertRejected(shared.rstrip(" ") + "            record Info release=Scale\n" +
                                    "".join(f"                {f}\n" for f in fields),
                                    message="same wide strings")
        self.assertRejected(shared + """
            record Info release=Nothing
                wstr a
            """, message="its own release routine")

    def test_field_and_operation_forms(self):
        self.assertRejected("""
            record Thing
                wstr name sideways
            """, message="takes one name")
        self.assertRejected("""
            record Thing
                flag[4] flags
            """, message="bad array")


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
        with self.assertRaises(kelidl.DescriptionError) as caught:
            parsed("", "op 2 take () role=root\n")
        self.assertIn("unknown role", str(caught.exception))


class Generated(unittest.TestCase):
    def setUp(self):
        self.description = Description("", "op 4 special (wstr text) -> wstr result custom\n")
        self.iface = self.description.parse()

    def tearDown(self):
        self.description.close()

    def test_custom_exports_are_declared_but_not_written(self):
        header = generate.c_header(self.iface)
        self.assertIn("KEL_C_API void kel_special(TarnApi* api, KEL_KEPT const wchar_t* text, "
                      "KelError** error, KEL_OUT wchar_t** result);", header)
        self.assertIn("kel_special", generate.exports_txt(self.iface).split())
        self.assertNotIn("kel_special", generate.binding_exports_cpp(self.iface))
        self.assertEqual(generate.missing_custom_exports(self.iface, self.description.root),
                         ["kel_c/custom/special.cpp"])
        (self.description.root / "kel_c" / "custom").mkdir(parents=True)
        (self.description.root / "kel_c" / "custom" / "special.cpp").write_text("")
        self.assertEqual(generate.missing_custom_exports(self.iface, self.description.root), [])

    def test_header_version_is_the_cmake_project_version(self):
        cmake = self.description.root / "CMakeLists.txt"
        cmake.write_text("cmake_minimum_required(VERSION 3.25)\n"
                         "project(kel_c VERSION 2.10.3 LANGUAGES C CXX)\n")
        version = generate.cmake_version(self.description.root)
        self.assertEqual(version, (2, 10, 3))
        header = generate.c_header(self.iface, version)
        for line in ["#define KEL_C_VERSION_MAJOR 2", "#define KEL_C_VERSION_MINOR 10",
                     "#define KEL_C_VERSION_PATCH 3", '#define KEL_C_VERSION "2.10.3"']:
            self.assertIn(line + "\n", header)
        cmake.write_text("project(kel_c LANGUAGES C CXX)\n")
        with self.assertRaises(kelidl.DescriptionError):
            generate.cmake_version(self.description.root)


if __name__ == "__main__":
    unittest.main()
