"""Every built operation through its generated method, against the C export.

The values come from the conformance model (tools/conformance.py), which also gives
kel_conformance its expectations: what the engine must receive and the C view of the
result that the C export hands out. Here the same scripted engine results are fetched
through the package and rendered as that C view, so a method that disagrees with its C
export in any member, count or null fails. The asynchronous forms go through the C
exports and their callbacks, and are held to the same views."""

from __future__ import annotations

import json
import unittest
from typing import Any, Callable, Optional

import kel
from kel.generated import records

from .support import ROOT, EngineTest, last_arguments, script, sim

import conformance  # noqa: E402,I100  (tools/, put on the path by .support)
import kelidl  # noqa: E402
import python_gen  # noqa: E402

IFACE = kelidl.parse(ROOT)
SYNC = [op for op in python_gen.built_operations(IFACE) if conformance.scriptable(op.result)]
ASYNC = {op.sync.name: op for op in python_gen.built_asyncs(IFACE) if op.sync}


# ---- the model's engine values as the package's inputs --------------------------------

def to_python(kind: str, value: Any, record: Optional[str]) -> Any:
    if value is None:
        return None
    if kind == "flag" or kind == "bool":
        return bool(value)
    if kind in ("bytes", "blob"):
        return bytes(value)
    if kind == "rec":
        return to_dataclass(value)
    if kind == "list":
        return [to_python("rec", e, record) for e in value]
    return value


def to_dataclass(value: conformance.Rec) -> Any:
    cls = getattr(records, python_gen.c_name(IFACE, value.name))
    members = IFACE.members(value.name)
    # Built with the readable names, read back below through the C names (aliases).
    return cls(**{python_gen.py_name(IFACE, value.name, f.name): to_python(f.kind, value.values[f.name], f.record)
                  for f in members})


# ---- the package's results as the C view ------------------------------------------------

def c_view(value: Any, c_name: str) -> Any:
    """What the C describer prints for the C record the export hands out (see c_json)."""
    if value is None:
        return None
    out: dict[str, Any] = {}
    for f in IFACE.members(c_name):
        v = getattr(value, python_gen.snake(f.name))
        if f.direction == "in":
            v = conformance.default_value(f)  # the export does not hand these out
        if f.kind == "flag":
            out[f.name] = int(v)
        elif f.kind == "wstrs":
            out[f.name] = list(v) if v or f.always else None
            out[f.count] = len(v)
        elif f.kind == "bytes":
            out[f.name] = list(v) if v else None
            out[f.count] = len(v)
        elif f.kind == "rec":
            out[f.name] = c_view(v, f.c_name)
        elif f.kind == "list":
            out[f.name] = [c_view(e, f.c_name) for e in v] if v else None
            out[f.count] = len(v)
        elif f.type and type(v).__name__ != f.type:
            out[f.name] = f"{v!r} is not a {f.type}"  # a member with type= arrives as its enum
        else:
            out[f.name] = list(v) if f.kind == "array" else v
    return out


def result_view(v: kelidl.Value, value: Any) -> Any:
    if v.kind == "flag":
        return int(value)
    if v.kind == "wstrs":
        return list(value) if value else None
    if v.kind in ("bytes", "blob"):
        return list(value)
    if v.kind == "rec":
        return c_view(value, v.c_name)
    if v.kind == "list":
        return [c_view(e, v.c_name) for e in value] if value else None
    if v.type and type(value).__name__ != v.type:
        return f"{value!r} is not a {v.type}"
    return value


class Conformance(EngineTest):
    maxDiff = None
    def check_operation(self, op: kelidl.Operation) -> None:
        method: Callable[..., Any] = getattr(self.engine, python_gen.snake(op.name))
        cases = conformance.build_cases(IFACE, op, op.position)
        for case in cases:
            with self.subTest(operation=op.name, variant=case.variant):
                model = conformance.Model(IFACE, next(v for v in conformance.VARIANTS if v.name == case.variant),
                                          op.position)
                params = [model.param(p) for p in op.params]
                arguments = [to_python(p.kind, x, p.record) for p, x in zip(op.params, params)]
                script(op.name, case.script or "null")
                result = method(*arguments)
                self.assertEqual(last_arguments(op.name), json.loads(case.py_arguments))
                if op.result is None or op.discard:
                    self.assertIsNone(result)
                else:
                    self.assertEqual(result_view(op.result, result), json.loads(case.c_view or "null"))
                asynchronous = ASYNC.get(op.name)
                if asynchronous is not None:
                    script(asynchronous.name, case.script or "null")
                    reports = getattr(self.engine, python_gen.snake(asynchronous.name))(*arguments).result(timeout=10)
                    # The engine records the callback object after the inputs.
                    self.assertEqual(last_arguments(asynchronous.name), json.loads(case.arguments) + ["callback"])
                    self.assertEqual(result_view(op.result, reports), json.loads(case.c_view or "null"))
        # A failure of the engine arrives whole, with the MVCI error beneath it.
        failure = conformance.FAILURES[op.position % len(conformance.FAILURES)]
        mvci = failure.get("mvci")
        with self.subTest(operation=op.name, variant="failure"):
            if mvci:
                sim.kelsim_failNextWithMvci(op.name.encode(), 1, failure["code"], failure["subCode"],
                                            failure["message"], failure["details"], mvci["code"], mvci["codeText"],
                                            mvci["vendorCode"], mvci["vendorCodeText"], mvci["extraText"],
                                            mvci["extraCode"])
            else:
                sim.kelsim_failNext(op.name.encode(), 1, failure["code"], failure["subCode"], failure["message"],
                                    failure["details"])
            params = [conformance.Model(IFACE, conformance.VARIANTS[1], 0).param(p) for p in op.params]
            with self.assertRaises(kel.EngineError) as raised:
                method(*[to_python(p.kind, x, p.record) for p, x in zip(op.params, params)])
            self.assertEqual(c_view(raised.exception.record, "KelError"),
                             json.loads(conformance.c_json(IFACE, conformance.error_record(IFACE, failure),
                                                           "KelError")))


class Surface(unittest.TestCase):
    def test_python_offers_what_is_built(self) -> None:
        """A method exactly for the built operations, a dataclass exactly for the built
        records: a family arrives in Python when its records lose `draft`."""
        built = {op.name for op in python_gen.built_operations(IFACE)} | {
            op.name for op in python_gen.built_asyncs(IFACE)}
        for op in IFACE.operations:
            if not op.reserved:
                with self.subTest(operation=op.name):
                    self.assertEqual(hasattr(kel.Engine, python_gen.snake(op.name)), op.name in built)
                    if op.otx is not None and not op.is_async and all(p.kind != "handler" for p in op.params):
                        self.assertEqual(op.name in built, IFACE.exported(op))
        ready = {r.name for r in IFACE.ready_records()}
        for name in IFACE.records:
            with self.subTest(record=name):
                self.assertEqual(hasattr(kel, name), name in ready)


def _family_test(family: str) -> Callable[[Conformance], None]:
    def test(self: Conformance) -> None:
        ops = [op for op in SYNC if op.family == family]
        if not ops:
            self.skipTest(f"no operation of {family} is built yet")
        for op in ops:
            self.check_operation(op)

    test.__doc__ = f"Every built operation of the family {family}, with its asynchronous forms."
    return test


for _family in IFACE.families():
    setattr(Conformance, f"test_{_family}", _family_test(_family))

if __name__ == "__main__":
    unittest.main()
