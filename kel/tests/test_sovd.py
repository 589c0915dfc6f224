"""The SOVD server over real HTTP on loopback: resources, tokens, problem documents, and
that its requests are the engine's own calls (the bus monitors see them, the admission
table decides)."""

from __future__ import annotations

import ctypes
import http.client
import json
import shutil
import socket
import tempfile
import unittest
import urllib.parse
from typing import Any, Optional

import kel

from .support import ROOT, sim

sim.kelsim_setDataRoot.argtypes = [ctypes.c_wchar_p]
sim.kelsim_setDataRoot.restype = None
sim.kelsim_advanceClock.argtypes = [ctypes.c_uint64]
sim.kelsim_advanceClock.restype = None

PASSWORD = "S3cret-P\u00e4ssw\u00f6rt"


class SovdTest(unittest.TestCase):
    """An engine on a data root of its own (users live there), its SOVD server started."""

    def setUp(self) -> None:
        self.root = tempfile.mkdtemp(prefix="kel_sovd_test")
        sim.kelsim_reset()
        sim.kelsim_setDataRoot(self.root)
        self.start_vehicle()
        self.engine.start_sovd_server()
        config = self.engine.get_server_configuration()
        assert config is not None
        address = urllib.parse.urlsplit(config.sovd_address)
        self.assertEqual((address.scheme, address.hostname), ("http", "127.0.0.1"))
        assert address.port is not None
        self.port = address.port

    def start_vehicle(self, **servers: Any) -> None:
        description = json.loads((ROOT / "reference_engine/vehicles/default.json").read_text())
        description["servers"] = {"passwordIterations": 1000, "failedLogins": 3, **servers}
        self.assertEqual(sim.kelsim_setVehicleJson(json.dumps(description).encode()), 0)
        sim.kelsim_restart()
        self.engine = kel.Engine()
        self.engine.__enter__()

    def tearDown(self) -> None:
        self.engine.__exit__(None, None, None)
        sim.kelsim_setDataRoot(None)
        sim.kelsim_reset()
        sim.kelsim_restart()  # the vehicle ends, and its SOVD server with it
        shutil.rmtree(self.root, ignore_errors=True)

    def call(self, method: str, path: str, body: Any = None,
             token: Optional[str] = None) -> tuple[int, http.client.HTTPResponse, Any]:
        connection = http.client.HTTPConnection("127.0.0.1", self.port, timeout=30)
        headers = {"Authorization": f"Bearer {token}"} if token else {}
        if body is not None:
            headers["Content-Type"] = "application/json"
        connection.request(method, path, None if body is None else json.dumps(body), headers)
        response = connection.getresponse()
        data = response.read()
        connection.close()
        return response.status, response, json.loads(data) if data else None

    def problem(self, method: str, path: str, status: int, body: Any = None,
                token: Optional[str] = None) -> Any:
        got, response, document = self.call(method, path, body, token)
        self.assertEqual(got, status, document)
        self.assertEqual(response.getheader("Content-Type"), "application/problem+json")
        self.assertEqual(document["status"], status)
        self.assertTrue(document["title"])
        return document

    def authorize(self, user: str, password: str = PASSWORD) -> str:
        status, _, answer = self.call("POST", "/sovd/v1/authorize", {"user": user, "password": password})
        self.assertEqual(status, 200, answer)
        self.assertEqual((answer["token_type"], answer["expires_in"]), ("Bearer", 300))
        return str(answer["access_token"])


class Resources(SovdTest):
    def get(self, path: str) -> Any:
        status, _, document = self.call("GET", "/sovd/v1/components" + path)
        self.assertEqual(status, 200, path)
        return document

    def test_components_faults_and_data_of_the_simulated_vehicle(self) -> None:
        components = self.get("")["items"]
        self.assertEqual([c["id"] for c in components], ["ECM", "TCM", "ESP", "BCM", "GW", "ACC"])
        self.assertEqual(components[0]["name"], "Engine control module")
        ecm = self.get("/ECM")
        self.assertEqual((ecm["identification"], ecm["faults"]),
                         ({"variant": "ECM_EDC17_CR_2L0_V3"}, "/sovd/v1/components/ECM/faults"))

        faults = self.get("/ECM/faults")["items"]
        self.assertEqual([f["code"] for f in faults], ["P0301", "P2463"])
        first = faults[0]
        self.assertEqual((first["number"], first["status"]["mask"]), (0x030100, 0x2F))
        self.assertEqual((first["status"]["confirmedDtc"], first["status"]["warningIndicatorRequested"]),
                         (True, False))
        self.assertTrue(first["description"])
        self.assertIn("Engine speed", [s["label"] for s in first["snapshot"]])
        # One fault, by display code or by number, with its special data too.
        for code in ("P0301", "p0301", "030100"):
            fault = self.get(f"/ECM/faults/{code}")
            self.assertEqual(fault["code"], "P0301", code)
            self.assertTrue(fault["specialData"])

        vin = next(d for d in self.get("/ECM/data")["items"] if d["id"] == "F190")
        self.assertEqual(vin["value"], "WVWZZZ1KZ8W000417")
        self.assertEqual(self.get("/ECM/data/F190"), vin)

    def test_faults_are_read_and_cleared_over_the_bus_the_monitors_hear(self) -> None:
        monitor = self.engine.create_pdu_monitor()
        self.get("/TCM/faults")
        heard = [(p.unit, p.direction_text, p.hex) for p in self.engine.get_pdu_monitoring_items(monitor, 0, 0) if p]
        self.assertIn(("TCM", "request", "19 02 FF"), heard)
        self.assertIn("response", [direction for unit, direction, _ in heard if unit == "TCM"])
        # Clearing empties the fault memory.
        self.assertEqual(self.call("DELETE", "/sovd/v1/components/ECM/faults")[0], 204)
        after = self.engine.read_dtcs(["ECM"])[0]
        self.assertEqual(after and after.dtcs, [])
        self.problem("GET", "/sovd/v1/components/ECM/faults/P0301", 404)

    def test_problem_documents(self) -> None:
        # The silent unit (ACC): the engine's per-target error, not a success with nothing in it.
        for method, path, status, code, body in (
                ("GET", "/sovd/v1/nothing", 404, None, None), ("GET", "/other", 404, None, None),
                ("GET", "/sovd/v1/components/XX", 404, 1011, None),
                ("GET", "/sovd/v1/components/XX/faults", 404, 1011, None),
                ("GET", "/sovd/v1/components/ECM/data/ABCD", 404, 1014, None),
                ("GET", "/sovd/v1/components/ACC/faults", 504, 1010, None),
                ("GET", "/sovd/v1/components/%E", 400, None, None),
                ("POST", "/sovd/v1/authorize", 400, None, ["not", "an", "object"])):
            with self.subTest(method=method, path=path):
                document = self.problem(method, path, status, body)
                self.assertEqual(document["code"] if code else None, code)
        _, response, _ = self.call("PUT", "/sovd/v1/components/ECM/faults")
        self.assertEqual((response.status, response.getheader("Allow")), (405, "GET, DELETE"))

    def test_malformed_or_oversized_http_is_refused_and_the_server_goes_on(self) -> None:
        for request, status in ((b"NONSENSE\r\n\r\n", b"400"),
                                (b"POST /sovd/v1/authorize HTTP/1.1\r\nHost: x\r\nContent-Length: 999999\r\n\r\n", b"413")):
            with socket.create_connection(("127.0.0.1", self.port), timeout=30) as raw:
                raw.sendall(request)
                answer = b""
                while chunk := raw.recv(4096):  # the server closes the connection
                    answer += chunk
                self.assertTrue(answer.startswith(b"HTTP/1.1 " + status), answer[:100])
        self.assertEqual(self.call("GET", "/sovd/v1/components")[0], 200)

    def test_a_fixed_port_that_another_socket_holds_is_refused(self) -> None:
        self.engine.__exit__(None, None, None)
        with socket.socket() as taken:
            taken.bind(("127.0.0.1", 0))
            taken.listen()
            self.start_vehicle(sovdPort=taken.getsockname()[1])
            with self.assertRaises(kel.EngineError) as refused:
                self.engine.start_sovd_server()
            self.assertEqual(refused.exception.code, 1310)


class Tokens(SovdTest):
    def setUp(self) -> None:
        super().setUp()
        self.engine.add_user("olga", PASSWORD, 1)
        self.engine.add_user("anna", PASSWORD, 2)
        self.engine.set_server_user_management(True)

    def test_an_operator_reads_and_clears_and_is_refused_what_the_table_refuses(self) -> None:
        trace = self.engine.create_api_trace_monitor()
        token = self.authorize("olga")
        self.assertEqual(len(token), 64)
        self.assertEqual(self.call("GET", "/sovd/v1/components/ECM/faults", token=token)[0], 200)
        self.assertEqual(self.call("DELETE", "/sovd/v1/components/ECM/faults", token=token)[0], 204)
        self.assertEqual(self.call("GET", "/sovd/v1/components/ECM/faults", token=token)[2], {"items": []})
        self.assertEqual(self.problem("GET", "/sovd/v1/users", 403, token=token)["code"], 1308)
        status, _, users = self.call("GET", "/sovd/v1/users", token=self.authorize("anna"))
        self.assertEqual((status, [u["name"] for u in users["items"]]), (200, ["anna", "olga"]))
        recorded = self.engine.get_api_trace_content(trace, 0, 0).decode()
        self.assertIn("readDtcs", recorded)
        self.assertNotIn(token, recorded)
        self.assertNotIn(PASSWORD, recorded)

    def test_missing_wrong_unknown_expired_and_removed_tokens_and_the_throttle(self) -> None:
        for token in (None, "f" * 64):
            _, response, document = self.call("GET", "/sovd/v1/components", token=token)
            self.assertEqual(response.status, 401, document)
            self.assertTrue((response.getheader("WWW-Authenticate") or "").startswith("Bearer"))
        self.assertEqual(self.problem("GET", "/sovd/v1/components", 401)["code"], 1300)
        self.assertEqual(self.problem("POST", "/sovd/v1/authorize", 401, {"user": "olga", "password": "wrong"})["code"], 1306)

        token = self.authorize("olga")
        sim.kelsim_advanceClock(299_000)
        self.assertEqual(self.call("GET", "/sovd/v1/components", token=token)[0], 200)
        sim.kelsim_advanceClock(1_000)
        _, response, document = self.call("GET", "/sovd/v1/components", token=token)
        self.assertEqual(response.status, 401)
        self.assertIn("expired", document["detail"])
        self.assertIn('error="invalid_token"', response.getheader("WWW-Authenticate") or "")

        # A removed user's token ends; failed logins are throttled.
        token = self.authorize("olga")
        self.engine.remove_user("olga")
        self.problem("GET", "/sovd/v1/components", 401, token=token)
        for _ in range(3):
            self.problem("POST", "/sovd/v1/authorize", 401, {"user": "anna", "password": "wrong"})
        self.assertEqual(self.problem("POST", "/sovd/v1/authorize", 429, {"user": "anna", "password": PASSWORD})["code"], 1307)


if __name__ == "__main__":
    unittest.main()
