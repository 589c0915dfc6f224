"""Records, lifetimes, the lock, remote engines and the library's errors. What the vehicle
answers is the C++ family tests' to check; the conversions are the conformance suite's."""

from __future__ import annotations

import os
import unittest
import unittest.mock

import kel

from .support import EngineTest, last_arguments, script, sim


class Records(unittest.TestCase):
    def test_records_are_keyword_only_dataclasses_with_their_docs(self) -> None:
        config = kel.DtcReadConfig(status_mask=3)
        self.assertEqual((config.status_mask, config.with_snapshots), (3, 0))
        self.assertIn("Options of a DTC read", kel.DtcReadConfig.__doc__ or "")
        import sys
        if sys.version_info >= (3, 10):
            with self.assertRaises(TypeError):
                kel.DtcReadConfig(3)


class Lifetimes(unittest.TestCase):
    def setUp(self) -> None:
        sim.kelsim_reset()
        sim.kelsim_restart()

    def test_the_with_block_initialises_ends_and_releases(self) -> None:
        with kel.Engine() as engine:
            self.assertEqual(engine.get_state(), 1)
            with engine.locked() as lock_id:
                self.assertNotEqual(lock_id, 0)
                self.assertTrue(engine.is_locked())
            self.assertFalse(engine.is_locked())
            address = engine.address
        self.assertEqual(sim.kelsim_callCount(b"end"), 1)
        with self.assertRaises(RuntimeError):
            engine.get_state()
        # The object was given back: the local engine is the same address again, with one
        # use counted (a second release would be a double free in the registry).
        with kel.Engine(initialize=False) as again:
            self.assertEqual(again.address, address)
            self.assertEqual(again.get_state(), 2)

    def test_the_lock_is_given_back_when_the_block_raises(self) -> None:
        with kel.Engine() as engine:
            with self.assertRaises(ZeroDivisionError):
                with engine.locked():
                    1 / 0
            self.assertFalse(engine.is_locked())

    def test_a_remote_connection_is_an_engine_of_its_own(self) -> None:
        with kel.Engine() as engine, engine.events() as channel:
            with kel.Engine.remote(engine.get_handle()) as remote:
                self.assertNotEqual(remote.address, engine.address)
                self.assertEqual(remote.get_state(), 1)  # the same vehicle
                with remote.locked():
                    self.assertTrue(engine.is_locked())
            self.assertEqual(sim.kelsim_callCount(b"end"), 0, "a remote engine is not ended")
            self.assertEqual(channel.poll()[-1].name, "ClientDisconnected", "but released")

    def test_an_unknown_remote_handle_raises(self) -> None:
        with self.assertRaises(kel.EngineError) as raised:
            kel.Engine.remote(12345)
        self.assertEqual(raised.exception.code, 1005)


class Errors(EngineTest):
    def test_an_engine_failure_raises_with_its_record(self) -> None:
        sim.kelsim_failNext(b"getTargets", 1, 42, 7, "Verriegelt \u26a1", "by the test")
        with self.assertRaises(kel.EngineError) as raised:
            self.engine.get_targets()
        e = raised.exception
        self.assertNotIsInstance(e, kel.LibraryError)
        self.assertEqual((e.code, e.sub_code, e.message, e.details), (42, 7, "Verriegelt \u26a1", "by the test"))
        self.assertIsNone(e.mvci_error)
        self.assertIn("error 42", str(e))

    def test_a_per_item_error_can_be_raised_by_the_caller(self) -> None:
        acc = self.engine.identify_target("ACC")
        assert acc is not None and acc.error is not None
        error = kel.EngineError.of(acc.error)
        self.assertEqual(error.code, 1010)
        self.assertIs(error.record, acc.error)

    def test_a_state_of_minus_one_is_a_result_not_an_error(self) -> None:
        # py_call returns the state itself, so -1 alone cannot mean failure.
        script("getState", "-1")
        self.assertEqual(self.engine.get_state(), -1)

    def test_the_library_reports_malformed_input(self) -> None:
        with self.assertRaises(kel.MalformedInputError) as raised:
            self.engine._call(23, b"\x05\x00")  # a count of 5 texts and nothing after it
        self.assertIsInstance(raised.exception, kel.LibraryError)
        self.assertEqual(raised.exception.code, -1001)
        self.assertEqual(sim.kelsim_callCount(b"readDtcs"), 0)

    def test_a_text_with_a_nul_is_refused_before_the_engine(self) -> None:
        with self.assertRaises(ValueError):
            self.engine.identify_target("EC\0M")
        self.assertEqual(sim.kelsim_callCount(b"identifyTarget"), 0)

    def test_an_unpaired_surrogate_travels_as_a_replacement(self) -> None:
        # It has no UTF-8 form; encoding it raised before the call was made.
        self.engine.identify_target("EC\udc00M")
        self.assertEqual(last_arguments("identifyTarget"), ["EC\ufffdM"])


class LibraryLookup(unittest.TestCase):
    def test_the_environment_variable_comes_first_and_alone(self) -> None:
        with unittest.mock.patch.dict(os.environ, {kel.ENVIRONMENT: "/nowhere/libkel_c.so"}):
            self.assertEqual([str(p) for p in kel.candidates()], ["/nowhere/libkel_c.so"])
            with self.assertRaises(kel.LibraryNotFound) as raised:
                kel.load("/nowhere/libkel_c.so")
            self.assertIn("/nowhere/libkel_c.so", str(raised.exception))


if __name__ == "__main__":
    unittest.main()
