"""Errors by cause: each exception class from a failure, real where the simulated vehicle
can give it, scripted where it cannot."""

from __future__ import annotations

import concurrent.futures

import kel
import kel.sim

from .support import EngineTest, sim


class Errors(EngineTest):
    def test_each_code_raises_its_class(self) -> None:
        cases = [(1010, kel.NoResponseError), (1011, kel.UnknownTargetError), (1306, kel.AccessDeniedError),
                 (1308, kel.AccessDeniedError), (1606, kel.SandboxError), (1000, kel.NotSupportedError),
                 (1012, kel.CallCancelledError), (1201, kel.EngineError), (-1001, kel.MalformedInputError),
                 (1301, kel.ConnectionEndedError)]
        for code, kind in cases:
            with self.subTest(code=code):
                sim.kelsim_failNext(b"getVersion", 1, code, 0, "scripted", "")
                with self.assertRaises(kel.EngineError) as caught:
                    self.engine.get_version()
                self.assertIs(type(caught.exception), kind)
        self.assertTrue(issubclass(kel.CallCancelledError, concurrent.futures.CancelledError))

    def test_a_str_where_names_are_due_is_refused_by_name(self) -> None:
        for call in (lambda: self.engine.read_dtcs("ECM"), lambda: self.engine.read_dtcs_async("ECM")):
            with self.assertRaisesRegex(TypeError, r"^targets must be a sequence of str"):
                call()
        with self.assertRaisesRegex(TypeError, r"^targets\[1\] must be a str, not int"):
            self.engine.read_dtcs(["ECM", 2])  # type: ignore[list-item]


class Conveniences(EngineTest):
    def test_unlock_security_runs_session_seed_and_key(self) -> None:
        self.assertEqual(kel.sim.key_for(bytes.fromhex("66B92BEA"), 1), bytes.fromhex("E42DE859"))  # the README's pair
        with self.assertRaises(kel.NegativeResponseError) as caught:  # a wrong key: the unit's negative response
            self.engine.unlock_security("ECM", 1, key=lambda seed, level: b"\0\0\0\0")
        self.assertEqual((caught.exception.nrc, caught.exception.nrc_name), (0x35, "invalidKey"))
        self.assertEqual(caught.exception.error_code, kel.ErrorCode.NEGATIVE_RESPONSE_RECEIVED)
        self.assertIs(self.engine.unlock_security("ECM", 1, key=kel.sim.key_for), True)
        self.assertIs(self.engine.unlock_security("ECM", 1, key=kel.sim.key_for), False, "unlocked already")
        with self.assertRaises(kel.UnknownTargetError):
            self.engine.unlock_security("NOPE", 1, key=kel.sim.key_for)

    def test_per_item_failures_stay_data(self) -> None:
        (result,) = self.engine.execute_service("ECM", [kel.ServiceInput(data=bytes.fromhex("22F1FF"))])
        self.assertEqual(result.status, kel.ServiceStatus.NEGATIVE_RESPONSE)
        assert result.error is not None and result.error.negative_response is not None
        self.assertEqual((result.error.negative_response.code, result.error.negative_response.name),
                         (0x31, "requestOutOfRange"))
        self.assertIsNone(self.engine.identify_target("NOPE"), "documented: None, not an error")

    def test_each_call_is_logged_with_masked_secrets_and_its_code(self) -> None:
        sim.kelsim_failNext(b"thirdPartyLogin", 1, 1306, 0, "scripted", "")
        with self.assertLogs("kel", "DEBUG") as logs, self.assertRaises(kel.AccessDeniedError):
            self.engine.third_party_login("s3cr3t")
        (record,) = logs.records
        self.assertRegex(record.getMessage(), r"^third_party_login\(code='\*\*\*'\): [\d.]+ ms, error 1306$")
        self.assertEqual((record.operation, record.error_code), ("third_party_login", 1306))  # type: ignore[attr-defined]
        # The hand-written get_state and the starts of asynchronous calls write the same record.
        sim.kelsim_failNext(b"clearAllDtcsAsync", 1, 77, 0, "not now", "")
        with self.assertLogs("kel", "DEBUG") as logs:
            self.engine.get_state()
            with self.assertRaises(kel.EngineError):
                self.engine.clear_all_dtcs_async(["ECM"])
            self.engine.identify_all_targets_async().result(timeout=10)
        self.assertEqual([(r.operation, r.error_code) for r in logs.records],  # type: ignore[attr-defined]
                         [("get_state", 0), ("clear_all_dtcs_async", 77), ("identify_all_targets_async", 0)])
        self.assertRegex(logs.records[1].getMessage(), r"^clear_all_dtcs_async\(targets=\['ECM'\]\): [\d.]+ ms, error 77$")
