"""The typical path, lifetimes, the lock, remote engines and the library's errors."""

from __future__ import annotations

import unittest

import kel

from .support import EngineTest, last_arguments, script, sim


class TypicalPath(EngineTest):
    def test_identify_then_read_every_dtc(self) -> None:
        targets = [t for t in self.engine.identify_all_targets() if t]
        self.assertEqual([t.target for t in targets], ["ECM", "TCM", "ESP", "BCM", "GW", "ACC"])
        self.assertEqual(targets[0].variant, "ECM_EDC17_CR_2L0_V3")
        results = self.engine.read_dtcs([t.target for t in targets], kel.DtcReadConfig(with_snapshots=True, with_extended_data=True))
        by_target = {r.target: r for r in results if r}
        ecm = by_target["ECM"]
        self.assertIsNone(ecm.error)
        self.assertEqual([d.display_code for d in ecm.dtcs if d], ["P0301", "P2463"])
        first = ecm.dtcs[0]
        assert first is not None
        self.assertEqual((first.code, first.status), (0x030100, 0x2F))
        self.assertTrue(first.parameters1, "snapshot data was asked for")
        self.assertFalse(first.special_data_groups, "special data groups were not asked for")
        # A silent control unit is data on the result, not an exception.
        acc = by_target["ACC"]
        assert acc.error is not None
        self.assertEqual(acc.error.code, 1010)
        self.assertIsNotNone(acc.error.mvci_error)
        self.assertEqual(acc.dtcs, [])

    def test_status_mask_and_clearing(self) -> None:
        confirmed_only = self.engine.read_dtcs(["ECM"], kel.DtcReadConfig(status_mask=0x01))
        assert confirmed_only[0] is not None
        self.assertEqual([d.display_code for d in confirmed_only[0].dtcs if d], ["P0301"])
        cleared = self.engine.clear_specific_dtcs("ECM", [0x030100])
        self.assertIsNone(cleared[0] and cleared[0].error)
        after = self.engine.read_dtcs(["ECM"])[0]
        assert after is not None
        self.assertEqual([d.display_code for d in after.dtcs if d], ["P2463"])

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
            names = [e.name for e in channel.poll()]
            self.assertEqual(names[0], "ClientConnected")
            self.assertEqual(names[-1], "ClientDisconnected")

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
        import os
        old = os.environ.get(kel.ENVIRONMENT)
        try:
            os.environ[kel.ENVIRONMENT] = "/nowhere/libkel_c.so"
            self.assertEqual([str(p) for p in kel.candidates()], ["/nowhere/libkel_c.so"])
            with self.assertRaises(kel.LibraryNotFound) as raised:
                kel.load("/nowhere/libkel_c.so")
            self.assertIn("/nowhere/libkel_c.so", str(raised.exception))
        finally:
            if old is None:
                del os.environ[kel.ENVIRONMENT]
            else:
                os.environ[kel.ENVIRONMENT] = old


if __name__ == "__main__":
    unittest.main()
