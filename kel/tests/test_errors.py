"""Errors by cause: each exception class from a failure, real where the simulated vehicle
can give it, scripted where it cannot."""

from __future__ import annotations

import concurrent.futures

import kel

from .support import EngineTest, sim


class Errors(EngineTest):
    def test_a_wrong_key_raises_the_units_negative_response(self) -> None:
        ecm = next(t for t in self.engine.get_targets() if t and t.name == "ECM")
        self.engine.execute_service("ECM", [kel.ServiceInput(data=bytes([0x10, 0x03]))])  # the extended session
        seed = self.engine.create_seed(ecm.address, 1)
        self.assertEqual(len(seed), 4)
        with self.assertRaises(kel.NegativeResponseError) as caught:
            self.engine.send_key(b"\0\0\0\0")
        self.assertEqual((caught.exception.nrc, caught.exception.nrc_name), (0x35, "invalidKey"))
        self.assertEqual(caught.exception.error_code, kel.ErrorCode.NEGATIVE_RESPONSE_RECEIVED)

    def test_each_code_raises_its_class(self) -> None:
        cases = [(1010, kel.NoResponseError), (1011, kel.UnknownTargetError), (1306, kel.AccessDeniedError),
                 (1308, kel.AccessDeniedError), (1606, kel.SandboxError), (1000, kel.NotSupportedError),
                 (1012, kel.CallCancelledError), (1201, kel.EngineError), (-1001, kel.MalformedInputError)]
        for code, kind in cases:
            with self.subTest(code=code):
                sim.kelsim_failNext(b"getVersion", 1, code, 0, "scripted", "")
                with self.assertRaises(kel.EngineError) as caught:
                    self.engine.get_version()
                self.assertIs(type(caught.exception), kind)
        self.assertTrue(issubclass(kel.CallCancelledError, concurrent.futures.CancelledError))

    def test_a_cancelled_asynchronous_call_is_a_cancellation(self) -> None:
        sim.kelsim_setDelay(b"readDtcsAsync", 2000)
        call = self.engine.read_dtcs_async(["ECM"])
        call.cancel()
        with self.assertRaises(concurrent.futures.CancelledError):
            call.result(timeout=10)

    def test_a_str_where_names_are_due_is_refused_by_name(self) -> None:
        for call in (lambda: self.engine.read_dtcs("ECM"), lambda: self.engine.read_dtcs_async("ECM")):
            with self.assertRaisesRegex(TypeError, r"^targets must be a sequence of str"):
                call()
        with self.assertRaisesRegex(TypeError, r"^targets\[1\] must be a str, not int"):
            self.engine.read_dtcs(["ECM", 2])  # type: ignore[list-item]
