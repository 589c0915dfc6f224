# Generated from the interface description by tools/generate.py. Do not edit.
"""One method per built operation: the arguments go to py_call on the stream, the results
come back as dataclasses; asynchronous forms go through the C exports."""

from __future__ import annotations

import builtins
import struct
from typing import TYPE_CHECKING, ContextManager, Optional, Sequence

from . import c_records, enums, records, stream

if TYPE_CHECKING:
    from ..asynccall import AsyncCall
    from ..engine import Engine

# What the log shows in place of a secret argument.
_SECRET = "***"


class Operations:
    """The engine operations; kel.Engine supplies _call, _start and _adopt."""

    def _call(self, number: int, data: builtins.bytes, name: str = "",
              arguments: tuple[tuple[str, object], ...] = ()) -> builtins.bytes:
        raise NotImplementedError

    def _adopt(self, address: int) -> Engine:
        raise NotImplementedError

    def _decoding(self, data: builtins.bytes) -> ContextManager[None]:
        raise NotImplementedError

    def _start(self, start: object, convert: object, release: str, *args: object, name: str = "",
               arguments: tuple[tuple[str, object], ...] = ()) -> AsyncCall:
        raise NotImplementedError

    def initialize(self) -> None:
        """Starts the engine: the first call after kel_getTarnApi.

        C: kel_initialize; number 2; engine position 2.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(2, builtins.bytes(_o), "initialize", ())

    def end(self) -> None:
        """Ends the engine: the last call before releaseTarnApi.

        C: kel_end; number 3; engine position 3.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(3, builtins.bytes(_o), "end", ())

    def start_server(self, name: str) -> str:
        """Starts the engine's server for remote clients under the given name (empty:
        "server") and returns the address where it listens, which
        connectRemoteServer takes.

        C: kel_startServer; number 4; engine position 4.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, name)
        _b = self._call(4, builtins.bytes(_o), "start_server", (("name", name),))
        return _b[4:].decode()

    def stop_server(self, reason: str) -> None:
        """Stops the engine's server; its remote connections end. The reason is passed
        on to the server's clients in the ServerStopped event.

        C: kel_stopServer; number 5; engine position 5.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, reason)
        self._call(5, builtins.bytes(_o), "stop_server", (("reason", reason),))

    def restart_server(self, end_clients: int) -> None:
        """Restarts the engine's server at the same address; with endClients not 0 its
        remote connections end, otherwise they stay.

        C: kel_restartServer; number 6; engine position 6.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<i", end_clients)
        self._call(6, builtins.bytes(_o), "restart_server", (("end_clients", end_clients),))

    def get_project_configuration(self, project_name: str) -> Optional[records.ProjectConfig]:
        """Reads a project's configuration.

        C: kel_getProjectConfiguration; number 7; engine position 7.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, project_name)
        _b = self._call(7, builtins.bytes(_o), "get_project_configuration", (("project_name", project_name),))
        with self._decoding(_b):
            return stream.read_ProjectConfig(_b, 0)[0]

    def set_project_configuration(self, project_name: str, config: Optional[records.ProjectConfig] = None) -> None:
        """Sets a project's configuration.

        C: kel_setProjectConfiguration; number 8; engine position 8.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, project_name)
        stream.write_ProjectConfig(_o, config)
        self._call(8, builtins.bytes(_o), "set_project_configuration", (("project_name", project_name), ("config", config)))

    def save_project_configuration(self, project_name: str) -> None:
        """Saves a project's configuration.

        C: kel_saveProjectConfiguration; number 9; engine position 9.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, project_name)
        self._call(9, builtins.bytes(_o), "save_project_configuration", (("project_name", project_name),))

    def create_monitoring_link(self, name: str) -> int:
        """Opens a monitoring link on the running communication; returns its handle.

        C: kel_createMonitoringLink; number 10; engine position 10.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, name)
        _b = self._call(10, builtins.bytes(_o), "create_monitoring_link", (("name", name),))
        _value: int = struct.unpack_from("<Q", _b)[0]
        return _value

    def get_monitoring_items(self, handle: int, value1: int, value2: int) -> list[Optional[records.MonitoringItem]]:
        """Fetches the items that a monitoring link recorded; the two values are passed
        to the engine unchanged.

        C: kel_getMonitoringItems; number 11; engine position 11.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", handle)
        _o += struct.pack("<I", value1)
        _o += struct.pack("<i", value2)
        _b = self._call(11, builtins.bytes(_o), "get_monitoring_items", (("handle", handle), ("value1", value1), ("value2", value2)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.MonitoringItem]] = []
            for _ in range(_n):
                _r, _p = stream.read_MonitoringItem(_b, _p)
                _results.append(_r)
            return _results

    def release_monitoring_link(self, handle: int) -> None:
        """Closes a monitoring link.

        C: kel_releaseMonitoringLink; number 12; engine position 12.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", handle)
        self._call(12, builtins.bytes(_o), "release_monitoring_link", (("handle", handle),))

    def get_pdu_monitoring_items(self, handle: int, value1: int, value2: int) -> list[Optional[records.PduMonitoringItem]]:
        """Fetches the protocol data units that a PDU monitor recorded; the two values
        are passed to the engine unchanged.

        C: kel_getPduMonitoringItems; number 13; engine position 13.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", handle)
        _o += struct.pack("<I", value1)
        _o += struct.pack("<i", value2)
        _b = self._call(13, builtins.bytes(_o), "get_pdu_monitoring_items", (("handle", handle), ("value1", value1), ("value2", value2)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.PduMonitoringItem]] = []
            for _ in range(_n):
                _r, _p = stream.read_PduMonitoringItem(_b, _p)
                _results.append(_r)
            return _results

    def create_pdu_monitor(self) -> int:
        """Opens a PDU monitor; returns its handle.

        C: kel_createPduMonitor; number 14; engine position 14.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(14, builtins.bytes(_o), "create_pdu_monitor", ())
        _value: int = struct.unpack_from("<Q", _b)[0]
        return _value

    def save_configuration(self) -> None:
        """Saves the engine's configuration.

        C: kel_saveConfiguration; number 15; engine position 15.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(15, builtins.bytes(_o), "save_configuration", ())

    def release_pdu_monitor(self, handle: int) -> None:
        """Closes a PDU monitor.

        C: kel_releasePduMonitor; number 16; engine position 16.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", handle)
        self._call(16, builtins.bytes(_o), "release_pdu_monitor", (("handle", handle),))

    def identify_all_targets(self) -> list[Optional[records.VariantIdentResult]]:
        """Identifies the variant of every target of the project; one result per
        target.

        C: kel_identifyAllTargets; number 17; engine position 17.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(17, builtins.bytes(_o), "identify_all_targets", ())
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.VariantIdentResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_VariantIdentResult(_b, _p)
                _results.append(_r)
            return _results

    def identify_all_targets_async(self) -> AsyncCall:
        """Identifies the variant of every target of the project; one result per
        target.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_identifyAllTargetsAsync; engine position 17.
        """
        return self._start(c_records.start_identifyAllTargetsAsync, c_records.from_c_VariantIdentResult, "release_VariantIdentResult_array", name="identify_all_targets_async", arguments=())

    def read_identification_values(self, targets: Sequence[str] = ()) -> list[Optional[records.ReadDataResult]]:
        """Reads the identification values of the given targets; one result per target.

        C: kel_readIdentificationValues; number 19; engine position 19.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_texts(_o, targets, "targets")
        _b = self._call(19, builtins.bytes(_o), "read_identification_values", (("targets", targets),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ReadDataResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_ReadDataResult(_b, _p)
                _results.append(_r)
            return _results

    def read_identification_values_async(self, targets: Sequence[str] = ()) -> AsyncCall:
        """Reads the identification values of the given targets; one result per target.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_readIdentificationValuesAsync; engine position 19.
        """
        return self._start(c_records.start_readIdentificationValuesAsync, c_records.from_c_ReadDataResult, "release_ReadDataResult_array", targets, name="read_identification_values_async", arguments=(("targets", targets),))

    def read_data_by_identifiers(self, target: str, identifiers: Sequence[str] = ()) -> list[Optional[records.ReadDataResult]]:
        """Reads the data with the given identifiers from one target.

        C: kel_readDataByIdentifiers; number 21; engine position 21.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, target)
        stream.write_texts(_o, identifiers, "identifiers")
        _b = self._call(21, builtins.bytes(_o), "read_data_by_identifiers", (("target", target), ("identifiers", identifiers)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ReadDataResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_ReadDataResult(_b, _p)
                _results.append(_r)
            return _results

    def identify_target(self, target: str) -> Optional[records.VariantIdentResult]:
        """Identifies the variant of one target. A target the vehicle does not have is
        not an error: the result is then NULL (None in Python), as the engine gives
        none.

        C: kel_identifyTarget; number 22; engine position 22.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, target)
        _b = self._call(22, builtins.bytes(_o), "identify_target", (("target", target),))
        with self._decoding(_b):
            return stream.read_VariantIdentResult(_b, 0)[0]

    def read_dtcs(self, targets: Sequence[str] = (), config: Optional[records.DtcReadConfig] = None) -> list[Optional[records.ReadDtcResult]]:
        """Reads the DTCs of the given targets with the reading options in config; one
        result per target.

        C: kel_readDtcs; number 23; engine position 23.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_texts(_o, targets, "targets")
        stream.write_DtcReadConfig(_o, config)
        _b = self._call(23, builtins.bytes(_o), "read_dtcs", (("targets", targets), ("config", config)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ReadDtcResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_ReadDtcResult(_b, _p)
                _results.append(_r)
            return _results

    def read_dtcs_async(self, targets: Sequence[str] = (), config: Optional[records.DtcReadConfig] = None) -> AsyncCall:
        """Reads the DTCs of the given targets with the reading options in config; one
        result per target.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_readDtcsAsync; engine position 23.
        """
        return self._start(c_records.start_readDtcsAsync, c_records.from_c_ReadDtcResult, "release_ReadDtcResult_array", targets, config, name="read_dtcs_async", arguments=(("targets", targets), ("config", config)))

    def read_supported_dtcs(self, targets: Sequence[str] = (), config: Optional[records.DtcReadConfig] = None) -> list[Optional[records.ReadDtcResult]]:
        """Reads the DTCs that the given targets support, with the reading options in
        config; one result per target, whose value stays 0.

        C: kel_readSupportedDtcs; number 25; engine position 25.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_texts(_o, targets, "targets")
        stream.write_DtcReadConfig(_o, config)
        _b = self._call(25, builtins.bytes(_o), "read_supported_dtcs", (("targets", targets), ("config", config)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ReadDtcResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_SupportedDtcResult(_b, _p)
                _results.append(_r)
            return _results

    def read_supported_dtcs_async(self, targets: Sequence[str] = (), config: Optional[records.DtcReadConfig] = None) -> AsyncCall:
        """Reads the DTCs that the given targets support, with the reading options in
        config; one result per target, whose value stays 0.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_readSupportedDtcsAsync; engine position 25.
        """
        return self._start(c_records.start_readSupportedDtcsAsync, c_records.from_c_ReadDtcResult, "release_ReadDtcResult_array", targets, config, name="read_supported_dtcs_async", arguments=(("targets", targets), ("config", config)))

    def clear_all_dtcs(self, targets: Sequence[str] = ()) -> list[Optional[records.ClearDtcResult]]:
        """Clears every DTC of the given targets; one result per target.

        C: kel_clearAllDtcs; number 27; engine position 27.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_texts(_o, targets, "targets")
        _b = self._call(27, builtins.bytes(_o), "clear_all_dtcs", (("targets", targets),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ClearDtcResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_ClearDtcResult(_b, _p)
                _results.append(_r)
            return _results

    def clear_all_dtcs_async(self, targets: Sequence[str] = ()) -> AsyncCall:
        """Clears every DTC of the given targets; one result per target.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_clearAllDtcsAsync; engine position 27.
        """
        return self._start(c_records.start_clearAllDtcsAsync, c_records.from_c_ClearDtcResult, "release_ClearDtcResult_array", targets, name="clear_all_dtcs_async", arguments=(("targets", targets),))

    def get_service_infos(self, target: str, pattern: str, names: Sequence[str], service_id: int) -> list[Optional[records.ServiceInfo]]:
        """Describes services with their responses and parameters; the texts, names and
        value select them as the engine defines.

        C: kel_getServiceInfos; number 29; engine position 29 (target is text1,
        pattern is text2, service_id is value).

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, target)
        stream.write_text(_o, pattern)
        stream.write_texts(_o, names, "names")
        _o += struct.pack("<i", service_id)
        _b = self._call(29, builtins.bytes(_o), "get_service_infos", (("target", target), ("pattern", pattern), ("names", names), ("service_id", service_id)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ServiceInfo]] = []
            for _ in range(_n):
                _r, _p = stream.read_ServiceInfo(_b, _p)
                _results.append(_r)
            return _results

    def get_flash_session_infos(self, target: str) -> list[Optional[records.FlashSessionInfo]]:
        """Lists the flash sessions that one target offers.

        C: kel_getFlashSessionInfos; number 113; engine position 30.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, target)
        _b = self._call(113, builtins.bytes(_o), "get_flash_session_infos", (("target", target),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.FlashSessionInfo]] = []
            for _ in range(_n):
                _r, _p = stream.read_FlashSessionInfo(_b, _p)
                _results.append(_r)
            return _results

    def execute_flash_sessions(self, target: str, sessions: Sequence[str] = ()) -> list[Optional[records.FlashSessionResult]]:
        """Runs the given flash sessions on one target.

        C: kel_executeFlashSessions; number 117; engine position 31.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, target)
        stream.write_texts(_o, sessions, "sessions")
        _b = self._call(117, builtins.bytes(_o), "execute_flash_sessions", (("target", target), ("sessions", sessions)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.FlashSessionResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_FlashSessionResult(_b, _p)
                _results.append(_r)
            return _results

    def execute_flash_sessions_async(self, target: str, sessions: Sequence[str] = ()) -> AsyncCall:
        """Runs the given flash sessions on one target.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_executeFlashSessionsAsync; engine position 31.
        """
        return self._start(c_records.start_executeFlashSessionsAsync, c_records.from_c_FlashSessionResult, "release_FlashSessionResult_array", target, sessions, name="execute_flash_sessions_async", arguments=(("target", target), ("sessions", sessions)))

    def read_coding_strings(self, targets: Sequence[str] = ()) -> list[Optional[records.CodingStringResult]]:
        """Reads the coding strings of the given targets.

        C: kel_readCodingStrings; number 32; engine position 33.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_texts(_o, targets, "targets")
        _b = self._call(32, builtins.bytes(_o), "read_coding_strings", (("targets", targets),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.CodingStringResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_CodingStringResult(_b, _p)
                _results.append(_r)
            return _results

    def read_coding_strings_async(self, targets: Sequence[str] = ()) -> AsyncCall:
        """Reads the coding strings of the given targets.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_readCodingStringsAsync; engine position 33.
        """
        return self._start(c_records.start_readCodingStringsAsync, c_records.from_c_CodingStringResult, "release_CodingStringResult_array", targets, name="read_coding_strings_async", arguments=(("targets", targets),))

    def perform_quick_test(self, targets: Sequence[str] = (), config: Optional[records.DtcReadConfig] = None) -> list[Optional[records.QuickTestResult]]:
        """Runs the quick test on the given targets, with the DTC reading options in
        config.

        C: kel_performQuickTest; number 34; engine position 35.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_texts(_o, targets, "targets")
        stream.write_DtcReadConfig(_o, config)
        _b = self._call(34, builtins.bytes(_o), "perform_quick_test", (("targets", targets), ("config", config)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.QuickTestResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_QuickTestResult(_b, _p)
                _results.append(_r)
            return _results

    def perform_quick_test_async(self, targets: Sequence[str] = (), config: Optional[records.DtcReadConfig] = None) -> AsyncCall:
        """Runs the quick test on the given targets, with the DTC reading options in
        config.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_performQuickTestAsync; engine position 35.
        """
        return self._start(c_records.start_performQuickTestAsync, c_records.from_c_QuickTestResult, "release_QuickTestResult_array", targets, config, name="perform_quick_test_async", arguments=(("targets", targets), ("config", config)))

    def connect_remote_server(self, address: str) -> Engine:
        """Connects to the engine's server at the given address and hands out the
        remote engine object's address, not its engine handle (kel_getHandle reads
        that, for kel_reconnectRemoteServer).

        C: kel_connectRemoteServer; number 36; engine position 37.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, address)
        _b = self._call(36, builtins.bytes(_o), "connect_remote_server", (("address", address),))
        return self._adopt(struct.unpack_from("<Q", _b)[0])

    def get_measurement_value_infos(self, target: str) -> list[Optional[records.ParameterInfo]]:
        """Describes the measurement values that one target offers.

        C: kel_getMeasurementValueInfos; number 37; engine position 38.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, target)
        _b = self._call(37, builtins.bytes(_o), "get_measurement_value_infos", (("target", target),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ParameterInfo]] = []
            for _ in range(_n):
                _r, _p = stream.read_ParameterInfo(_b, _p)
                _results.append(_r)
            return _results

    def register_measurement_values(self, target: str, names: Sequence[str] = ()) -> int:
        """Registers measurement values of one target for repeated reading; returns the
        registration that kel_getMeasurementValues takes.

        C: kel_registerMeasurementValues; number 38; engine position 39.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, target)
        stream.write_texts(_o, names, "names")
        _b = self._call(38, builtins.bytes(_o), "register_measurement_values", (("target", target), ("names", names)))
        _value: int = struct.unpack_from("<Q", _b)[0]
        return _value

    def get_measurement_values(self, registration: int) -> list[Optional[records.ReadDataResult]]:
        """Reads the measurement values of a registration.

        C: kel_getMeasurementValues; number 39; engine position 40.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", registration)
        _b = self._call(39, builtins.bytes(_o), "get_measurement_values", (("registration", registration),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ReadDataResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_ReadDataResult(_b, _p)
                _results.append(_r)
            return _results

    def unregister_measurement_values(self, registration: int) -> None:
        """Ends a registration made with kel_registerMeasurementValues.

        C: kel_unregisterMeasurementValues; number 40; engine position 41.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", registration)
        self._call(40, builtins.bytes(_o), "unregister_measurement_values", (("registration", registration),))

    def get_identification_value_infos(self, target: str) -> list[Optional[records.ParameterInfo]]:
        """Describes the identification values that one target offers.

        C: kel_getIdentificationValueInfos; number 41; engine position 42.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, target)
        _b = self._call(41, builtins.bytes(_o), "get_identification_value_infos", (("target", target),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ParameterInfo]] = []
            for _ in range(_n):
                _r, _p = stream.read_ParameterInfo(_b, _p)
                _results.append(_r)
            return _results

    def cancel_all_async_calls(self) -> None:
        """Cancels every asynchronous call running on this engine object; whether a
        cancelled call still reports is the engine's choice.

        C: kel_cancelAllAsyncCalls; number 128; engine position 43.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(128, builtins.bytes(_o), "cancel_all_async_calls", ())

    def create_seed(self, address: int, level: int) -> builtins.bytes:
        """Asks the unit at the diagnostic address (a Target's address) for the seed of
        a security access at the given level; sendKey answers it.

        C: kel_createSeed; number 43; engine position 44 (address is value1, level
        is value2).

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<I", address)
        _o += struct.pack("<I", level)
        _b = self._call(43, builtins.bytes(_o), "create_seed", (("address", address), ("level", level)))
        return _b[4:]

    def send_key(self, key: builtins.bytes) -> None:
        """Sends the key of a security access, computed from the seed.

        C: kel_sendKey; number 44; engine position 45.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_bytes(_o, key)
        self._call(44, builtins.bytes(_o), "send_key", (("key", key),))

    def open_event_channel(self) -> int:
        """Opens an event channel and returns its identifier; kel_getCurrentEvents
        fetches its events.

        C: kel_openEventChannel; number 45; engine position 46.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(45, builtins.bytes(_o), "open_event_channel", ())
        _value: int = struct.unpack_from("<Q", _b)[0]
        return _value

    def close_event_channel(self, channel: int) -> None:
        """Closes an event channel opened with kel_openEventChannel.

        C: kel_closeEventChannel; number 46; engine position 47.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", channel)
        self._call(46, builtins.bytes(_o), "close_event_channel", (("channel", channel),))

    def get_current_events(self, channel: int, limit: int) -> Optional[records.EventReport]:
        """Fetches the events waiting on an event channel; limit is passed to the
        engine unchanged.

        C: kel_getCurrentEvents; number 47; engine position 48.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", channel)
        _o += struct.pack("<I", limit)
        _b = self._call(47, builtins.bytes(_o), "get_current_events", (("channel", channel), ("limit", limit)))
        with self._decoding(_b):
            return stream.read_EventReport(_b, 0)[0]

    def open_trace_file_monitoring_link(self, handle: int, trace_file: str) -> None:
        """Opens a recorded trace file for monitoring under the given handle.

        C: kel_openTraceFileMonitoringLink; number 67; engine position 49.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", handle)
        stream.write_text(_o, trace_file)
        self._call(67, builtins.bytes(_o), "open_trace_file_monitoring_link", (("handle", handle), ("trace_file", trace_file)))

    def start_trace_file_monitoring_link(self, handle: int) -> None:
        """Starts the monitoring of a trace file.

        C: kel_startTraceFileMonitoringLink; number 68; engine position 50.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", handle)
        self._call(68, builtins.bytes(_o), "start_trace_file_monitoring_link", (("handle", handle),))

    def stop_trace_file_monitoring_link(self, handle: int) -> None:
        """Stops the monitoring of a trace file.

        C: kel_stopTraceFileMonitoringLink; number 69; engine position 51.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", handle)
        self._call(69, builtins.bytes(_o), "stop_trace_file_monitoring_link", (("handle", handle),))

    def close_trace_file_monitoring_link(self, handle: int) -> None:
        """Closes the monitoring of a trace file.

        C: kel_closeTraceFileMonitoringLink; number 66; engine position 52.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", handle)
        self._call(66, builtins.bytes(_o), "close_trace_file_monitoring_link", (("handle", handle),))

    def save_interface_configuration(self) -> None:
        """Saves the interface configuration.

        C: kel_saveInterfaceConfiguration; number 70; engine position 53.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(70, builtins.bytes(_o), "save_interface_configuration", ())

    def scan_interface_connection(self, interfaces: Sequence[str] = ()) -> list[Optional[records.ScanInterfaceResult]]:
        """Scans the connection of the given interfaces; one result per interface.

        C: kel_scanInterfaceConnection; number 71; engine position 54.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_texts(_o, interfaces, "interfaces")
        _b = self._call(71, builtins.bytes(_o), "scan_interface_connection", (("interfaces", interfaces),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ScanInterfaceResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_ScanInterfaceResult(_b, _p)
                _results.append(_r)
            return _results

    def scan_interface_connection_async(self, interfaces: Sequence[str] = ()) -> AsyncCall:
        """Scans the connection of the given interfaces; one result per interface.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_scanInterfaceConnectionAsync; engine position 54.
        """
        return self._start(c_records.start_scanInterfaceConnectionAsync, c_records.from_c_ScanInterfaceResult, "release_ScanInterfaceResult_array", interfaces, name="scan_interface_connection_async", arguments=(("interfaces", interfaces),))

    def disconnect(self) -> None:
        """Ends this remote connection; the server's handlers hear that its client
        left.

        C: kel_disconnect; number 74; engine position 56.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(74, builtins.bytes(_o), "disconnect", ())

    def get_interface_long_name(self, name: str) -> str:
        """Reads the long name of an interface.

        C: kel_getInterfaceLongName; number 73; engine position 57.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, name)
        _b = self._call(73, builtins.bytes(_o), "get_interface_long_name", (("name", name),))
        return _b[4:].decode()

    def read_measurement_values(self, target: str, names: Sequence[str] = ()) -> list[Optional[records.ReadDataResult]]:
        """Reads the named measurement values of one target once.

        C: kel_readMeasurementValues; number 75; engine position 58.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, target)
        stream.write_texts(_o, names, "names")
        _b = self._call(75, builtins.bytes(_o), "read_measurement_values", (("target", target), ("names", names)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ReadDataResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_ReadDataResult(_b, _p)
                _results.append(_r)
            return _results

    def read_measurement_values_async(self, target: str, names: Sequence[str] = ()) -> AsyncCall:
        """Reads the named measurement values of one target once.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_readMeasurementValuesAsync; engine position 58.
        """
        return self._start(c_records.start_readMeasurementValuesAsync, c_records.from_c_ReadDataResult, "release_ReadDataResult_array", target, names, name="read_measurement_values_async", arguments=(("target", target), ("names", names)))

    def read_file(self, path: str, offset: int, length: int, exact: bool) -> builtins.bytes:
        """Reads a file from offset on: length bytes, or to the end when length is 0;
        with exact, asking past the end is an error, otherwise what is there comes
        back.

        C: kel_readFile; number 77; engine position 60 (offset is value1, length is
        value2, exact is flag).

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, path)
        _o += struct.pack("<Q", offset)
        _o += struct.pack("<I", length)
        _o += struct.pack("<?", exact)
        _b = self._call(77, builtins.bytes(_o), "read_file", (("path", path), ("offset", offset), ("length", length), ("exact", exact)))
        return _b[4:]

    def connect_interfaces(self) -> None:
        """Connects the configured interfaces.

        C: kel_connectInterfaces; number 80; engine position 61.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(80, builtins.bytes(_o), "connect_interfaces", ())

    def disconnect_interfaces(self) -> None:
        """Disconnects the connected interfaces.

        C: kel_disconnectInterfaces; number 81; engine position 62.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(81, builtins.bytes(_o), "disconnect_interfaces", ())

    def execute_do_ip_broadcast(self) -> None:
        """Sends a DoIP broadcast to find the vehicles on the network.

        C: kel_executeDoIPBroadcast; number 82; engine position 63.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(82, builtins.bytes(_o), "execute_do_ip_broadcast", ())

    def refresh_project_list(self) -> None:
        """Has the engine read its list of projects again.

        C: kel_refreshProjectList; number 85; engine position 64.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(85, builtins.bytes(_o), "refresh_project_list", ())

    def identify_targets(self, targets: Sequence[str] = ()) -> list[Optional[records.VariantIdentResult]]:
        """Identifies the variants of the given targets; one result per target.

        C: kel_identifyTargets; number 86; engine position 65.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_texts(_o, targets, "targets")
        _b = self._call(86, builtins.bytes(_o), "identify_targets", (("targets", targets),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.VariantIdentResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_VariantIdentResult(_b, _p)
                _results.append(_r)
            return _results

    def identify_targets_async(self, targets: Sequence[str] = ()) -> AsyncCall:
        """Identifies the variants of the given targets; one result per target.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_identifyTargetsAsync; engine position 65.
        """
        return self._start(c_records.start_identifyTargetsAsync, c_records.from_c_VariantIdentResult, "release_VariantIdentResult_array", targets, name="identify_targets_async", arguments=(("targets", targets),))

    def get_actuator_service_infos(self, text1: str, text2: str) -> list[Optional[records.ParameterInfo]]:
        """Describes the parameters of actuator services; the two texts select them as
        the engine defines.

        C: kel_getActuatorServiceInfos; number 89; engine position 67.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, text1)
        stream.write_text(_o, text2)
        _b = self._call(89, builtins.bytes(_o), "get_actuator_service_infos", (("text1", text1), ("text2", text2)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ParameterInfo]] = []
            for _ in range(_n):
                _r, _p = stream.read_ParameterInfo(_b, _p)
                _results.append(_r)
            return _results

    def release_socket_bridge(self, bridge: int) -> None:
        """Closes a socket bridge opened with kel_createSocketBridge.

        C: kel_releaseSocketBridge; number 93; engine position 68.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", bridge)
        self._call(93, builtins.bytes(_o), "release_socket_bridge", (("bridge", bridge),))

    def create_socket_bridge(self, local_port: int, logical_address: int) -> int:
        """Opens a socket bridge and returns its identifier; the two values are passed
        to the engine unchanged.

        C: kel_createSocketBridge; number 92; engine position 69 (local_port is
        value1, logical_address is value2).

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<I", local_port)
        _o += struct.pack("<I", logical_address)
        _b = self._call(92, builtins.bytes(_o), "create_socket_bridge", (("local_port", local_port), ("logical_address", logical_address)))
        _value: int = struct.unpack_from("<Q", _b)[0]
        return _value

    def get_single_measurement_value_infos(self, target: str, names: Sequence[str] = ()) -> list[Optional[records.ParameterInfo]]:
        """Describes the named measurement values of one target.

        C: kel_getSingleMeasurementValueInfos; number 96; engine position 73.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, target)
        stream.write_texts(_o, names, "names")
        _b = self._call(96, builtins.bytes(_o), "get_single_measurement_value_infos", (("target", target), ("names", names)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ParameterInfo]] = []
            for _ in range(_n):
                _r, _p = stream.read_ParameterInfo(_b, _p)
                _results.append(_r)
            return _results

    def get_filtered_targets(self, filters: Sequence[Optional[records.TargetFilter]] = ()) -> list[Optional[records.Target]]:
        """Lists the targets of the project that match the given target filters.

        C: kel_getFilteredTargets; number 97; engine position 74.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<I", len(filters))
        for _e in filters:
            stream.write_TargetFilter(_o, _e)
        _b = self._call(97, builtins.bytes(_o), "get_filtered_targets", (("filters", filters),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.Target]] = []
            for _ in range(_n):
                _r, _p = stream.read_Target(_b, _p)
                _results.append(_r)
            return _results

    def is_project_conversion_required(self, project_path: str) -> bool:
        """Tells whether a project must be converted before the engine can use it.

        C: kel_isProjectConversionRequired; number 99; engine position 75.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, project_path)
        _b = self._call(99, builtins.bytes(_o), "is_project_conversion_required", (("project_path", project_path),))
        return _b[0] != 0

    def convert_project(self, project_path: str) -> None:
        """Converts a project for the engine's current version.

        C: kel_convertProject; number 100; engine position 76.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, project_path)
        self._call(100, builtins.bytes(_o), "convert_project", (("project_path", project_path),))

    def save_mox_configuration(self) -> None:
        """Saves the MOX configuration.

        C: kel_saveMoxConfiguration; number 102; engine position 77.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(102, builtins.bytes(_o), "save_mox_configuration", ())

    def start_cyclic_services(self, target: str, services: Sequence[Optional[records.ServiceInput]], cycle_time: int) -> int:
        """Starts running the given services on one target every cycleTime; returns the
        cyclic run's identifier.

        C: kel_startCyclicServices; number 103; engine position 78.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, target)
        _o += struct.pack("<I", len(services))
        for _e in services:
            stream.write_ServiceInput(_o, _e)
        _o += struct.pack("<I", cycle_time)
        _b = self._call(103, builtins.bytes(_o), "start_cyclic_services", (("target", target), ("services", services), ("cycle_time", cycle_time)))
        _value: int = struct.unpack_from("<Q", _b)[0]
        return _value

    def get_cyclic_results(self, cyclic: int) -> list[Optional[records.ServiceResult]]:
        """Fetches the results of a cyclic run started with kel_startCyclicServices.

        C: kel_getCyclicResults; number 105; engine position 79.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", cyclic)
        _b = self._call(105, builtins.bytes(_o), "get_cyclic_results", (("cyclic", cyclic),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ServiceResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_ServiceResult(_b, _p)
                _results.append(_r)
            return _results

    def stop_cyclic_services(self, cyclic: int) -> None:
        """Stops a cyclic run started with kel_startCyclicServices.

        C: kel_stopCyclicServices; number 104; engine position 80.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", cyclic)
        self._call(104, builtins.bytes(_o), "stop_cyclic_services", (("cyclic", cyclic),))

    def get_project_details(self) -> Optional[records.ProjectDetails]:
        """Reads the details of the selected project: its database files and users.

        C: kel_getProjectDetails; number 106; engine position 81.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(106, builtins.bytes(_o), "get_project_details", ())
        with self._decoding(_b):
            return stream.read_ProjectDetails(_b, 0)[0]

    def clear_link_cache(self) -> None:
        """Clears the engine's cache of links.

        C: kel_clearLinkCache; number 107; engine position 82.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(107, builtins.bytes(_o), "clear_link_cache", ())

    def add_resource(self, name: str, resource: Optional[records.ResourceInformation], value: int) -> None:
        """Adds a resource to an interface; value is passed to the engine unchanged.

        C: kel_addResource; number 109; engine position 83.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, name)
        stream.write_ResourceInformation(_o, resource)
        _o += struct.pack("<H", value)
        self._call(109, builtins.bytes(_o), "add_resource", (("name", name), ("resource", resource), ("value", value)))

    def remove_interface(self, name: str) -> None:
        """Removes an interface.

        C: kel_removeInterface; number 110; engine position 84.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, name)
        self._call(110, builtins.bytes(_o), "remove_interface", (("name", name),))

    def add_interface(self, interface_info: Optional[records.InterfaceInformation], text1: str, text2: str, text3: str) -> Optional[records.InterfaceInformation]:
        """Adds an interface and returns it as the engine completed it.

        C: kel_addInterface; number 108; engine position 85.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_InterfaceInformation(_o, interface_info)
        stream.write_text(_o, text1)
        stream.write_text(_o, text2)
        stream.write_text(_o, text3)
        _b = self._call(108, builtins.bytes(_o), "add_interface", (("interface_info", interface_info), ("text1", text1), ("text2", text2), ("text3", text3)))
        with self._decoding(_b):
            return stream.read_InterfaceInformation(_b, 0)[0]

    def remove_resource(self, name1: str, name2: str) -> None:
        """Removes a resource from an interface.

        C: kel_removeResource; number 112; engine position 86.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, name1)
        stream.write_text(_o, name2)
        self._call(112, builtins.bytes(_o), "remove_resource", (("name1", name1), ("name2", name2)))

    def get_system_property(self, name: str) -> Optional[records.SystemProperty]:
        """Reads a system property by name.

        C: kel_getSystemProperty; number 114; engine position 87.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, name)
        _b = self._call(114, builtins.bytes(_o), "get_system_property", (("name", name),))
        with self._decoding(_b):
            return stream.read_SystemProperty(_b, 0)[0]

    def reset_system_property(self, name: str) -> None:
        """Sets a system property back to its default.

        C: kel_resetSystemProperty; number 115; engine position 88.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, name)
        self._call(115, builtins.bytes(_o), "reset_system_property", (("name", name),))

    def set_system_property(self, property: Optional[records.SystemProperty] = None) -> None:
        """Sets a system property.

        C: kel_setSystemProperty; number 116; engine position 89.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_SystemProperty(_o, property)
        self._call(116, builtins.bytes(_o), "set_system_property", (("property", property),))

    def get_vendor_module_names(self, interface_info: Optional[records.InterfaceInformation] = None) -> list[str]:
        """Lists the vendor module names of an interface.

        C: kel_getVendorModuleNames; number 120; engine position 90.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_InterfaceInformation(_o, interface_info)
        _b = self._call(120, builtins.bytes(_o), "get_vendor_module_names", (("interface_info", interface_info),))
        return stream.read_texts(_b, 0)[0]

    def get_vendor_module_names_ex(self, text: str) -> list[str]:
        """Lists vendor module names; text selects them as the engine defines.

        C: kel_getVendorModuleNamesEx; number 121; engine position 91.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, text)
        _b = self._call(121, builtins.bytes(_o), "get_vendor_module_names_ex", (("text", text),))
        return stream.read_texts(_b, 0)[0]

    def execute_service(self, target: str, services: Sequence[Optional[records.ServiceInput]] = ()) -> list[Optional[records.ServiceResult]]:
        """Executes diagnostic services on one target with the given parameter values.

        C: kel_executeService; number 30; engine position 92.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, target)
        _o += struct.pack("<I", len(services))
        for _e in services:
            stream.write_ServiceInput(_o, _e)
        _b = self._call(30, builtins.bytes(_o), "execute_service", (("target", target), ("services", services)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ServiceResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_ServiceResult(_b, _p)
                _results.append(_r)
            return _results

    def execute_service_async(self, target: str, services: Sequence[Optional[records.ServiceInput]] = ()) -> AsyncCall:
        """Executes diagnostic services on one target with the given parameter values.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_executeServiceAsync; engine position 92.
        """
        return self._start(c_records.start_executeServiceAsync, c_records.from_c_ServiceResult, "release_ServiceResult_array", target, services, name="execute_service_async", arguments=(("target", target), ("services", services)))

    def detect_dyn_interfaces(self, value: int, detection: Optional[records.DynInterfaceDetection] = None) -> list[Optional[records.ModuleDyn]]:
        """Detects dynamic interfaces as the detection record says; returns the modules
        found.

        C: kel_detectDynInterfaces; number 123; engine position 94.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<I", value)
        stream.write_DynInterfaceDetection(_o, detection)
        _b = self._call(123, builtins.bytes(_o), "detect_dyn_interfaces", (("value", value), ("detection", detection)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ModuleDyn]] = []
            for _ in range(_n):
                _r, _p = stream.read_ModuleDyn(_b, _p)
                _results.append(_r)
            return _results

    def detect_dyn_interfaces_async(self, value: int, detection: Optional[records.DynInterfaceDetection] = None) -> AsyncCall:
        """Detects dynamic interfaces as the detection record says; returns the modules
        found.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_detectDynInterfacesAsync; engine position 94.
        """
        return self._start(c_records.start_detectDynInterfacesAsync, c_records.from_c_ModuleDyn, "release_ModuleDyn_array", value, detection, name="detect_dyn_interfaces_async", arguments=(("value", value), ("detection", detection)))

    def connect_dyn_interface(self, name: str, flag: bool, detection: Optional[records.DynInterfaceDetection] = None) -> None:
        """Connects a dynamically detected interface.

        C: kel_connectDynInterface; number 125; engine position 96.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, name)
        _o += struct.pack("<?", flag)
        stream.write_DynInterfaceDetection(_o, detection)
        self._call(125, builtins.bytes(_o), "connect_dyn_interface", (("name", name), ("flag", flag), ("detection", detection)))

    def disconnect_dyn_interfaces(self, names: Sequence[str] = ()) -> None:
        """Disconnects the given dynamically detected interfaces.

        C: kel_disconnectDynInterfaces; number 126; engine position 97.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_texts(_o, names, "names")
        self._call(126, builtins.bytes(_o), "disconnect_dyn_interfaces", (("names", names),))

    def update_cyclic_services(self, cyclic: int, services: Sequence[Optional[records.ServiceInput]] = ()) -> None:
        """Changes the services that a cyclic run started with kel_startCyclicServices
        executes.

        C: kel_updateCyclicServices; number 127; engine position 98.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", cyclic)
        _o += struct.pack("<I", len(services))
        for _e in services:
            stream.write_ServiceInput(_o, _e)
        self._call(127, builtins.bytes(_o), "update_cyclic_services", (("cyclic", cyclic), ("services", services)))

    def cancel_async_calls(self, call_ids: Sequence[int] = ()) -> None:
        """Cancels the asynchronous calls with the given call identifiers; whether a
        cancelled call still reports is the engine's choice.

        C: kel_cancelAsyncCalls; number 42; engine position 99.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_values(_o, "Q", call_ids)
        self._call(42, builtins.bytes(_o), "cancel_async_calls", (("call_ids", call_ids),))

    def get_project_directory(self, recursive: bool) -> Optional[records.DirectoryInfo]:
        """Reads the project directory as a tree.

        C: kel_getProjectDirectory; number 129; engine position 100 (recursive is
        flag).

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<?", recursive)
        _b = self._call(129, builtins.bytes(_o), "get_project_directory", (("recursive", recursive),))
        with self._decoding(_b):
            return stream.read_DirectoryInfo(_b, 0)[0]

    def get_selected_project_directory(self, recursive: bool) -> Optional[records.DirectoryInfo]:
        """Reads the selected project's directory as a tree.

        C: kel_getSelectedProjectDirectory; number 130; engine position 101
        (recursive is flag).

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<?", recursive)
        _b = self._call(130, builtins.bytes(_o), "get_selected_project_directory", (("recursive", recursive),))
        with self._decoding(_b):
            return stream.read_DirectoryInfo(_b, 0)[0]

    def write_file(self, path: str, data: builtins.bytes, mode: int, make_directories: bool) -> int:
        """Writes bytes to a file: mode 0 replaces it, 1 appends, 2 creates only; with
        makeDirectories, missing directories are made. Returns the bytes written.

        C: kel_writeFile; number 135; engine position 102 (mode is value,
        make_directories is flag).

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, path)
        stream.write_bytes(_o, data)
        _o += struct.pack("<I", mode)
        _o += struct.pack("<?", make_directories)
        _b = self._call(135, builtins.bytes(_o), "write_file", (("path", path), ("data", data), ("mode", mode), ("make_directories", make_directories)))
        _value: int = struct.unpack_from("<I", _b)[0]
        return _value

    def delete_files(self, files: Sequence[Optional[records.FileInfo]] = ()) -> Optional[records.KelError]:
        """Deletes the given files; the outcome comes back as an error record, NULL
        when the engine reports none.

        C: kel_deleteFiles; number 137; engine position 103.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<I", len(files))
        for _e in files:
            stream.write_FileInfo(_o, _e)
        _b = self._call(137, builtins.bytes(_o), "delete_files", (("files", files),))
        with self._decoding(_b):
            return stream.read_KelError(_b, 0)[0]

    def find_directories(self, directory: Optional[records.DirectoryInfo], pattern: str, recursive: bool) -> list[Optional[records.DirectoryInfo]]:
        """Finds the directories below a directory whose names match a pattern.

        C: kel_findDirectories; number 139; engine position 104 (recursive is flag).

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_DirectoryInfo(_o, directory)
        stream.write_text(_o, pattern)
        _o += struct.pack("<?", recursive)
        _b = self._call(139, builtins.bytes(_o), "find_directories", (("directory", directory), ("pattern", pattern), ("recursive", recursive)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.DirectoryInfo]] = []
            for _ in range(_n):
                _r, _p = stream.read_DirectoryInfo(_b, _p)
                _results.append(_r)
            return _results

    def find_files(self, directory: str, pattern: str, recursive: bool) -> list[Optional[records.FileInfo]]:
        """Finds the files in a directory whose names match a pattern.

        C: kel_findFiles; number 140; engine position 105 (recursive is flag).

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, directory)
        stream.write_text(_o, pattern)
        _o += struct.pack("<?", recursive)
        _b = self._call(140, builtins.bytes(_o), "find_files", (("directory", directory), ("pattern", pattern), ("recursive", recursive)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.FileInfo]] = []
            for _ in range(_n):
                _r, _p = stream.read_FileInfo(_b, _p)
                _results.append(_r)
            return _results

    def initialize_directory_elements(self, directory: Optional[records.DirectoryInfo], recursive: bool) -> Optional[records.DirectoryInfo]:
        """Fills in the files and sub-directories of a directory.

        C: kel_initializeDirectoryElements; number 141; engine position 106
        (recursive is flag).

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_DirectoryInfo(_o, directory)
        _o += struct.pack("<?", recursive)
        _b = self._call(141, builtins.bytes(_o), "initialize_directory_elements", (("directory", directory), ("recursive", recursive)))
        with self._decoding(_b):
            return stream.read_DirectoryInfo(_b, 0)[0]

    def create_file(self, parent: Optional[records.DirectoryInfo], name: str) -> Optional[records.FileInfo]:
        """Creates a file in a directory.

        C: kel_createFile; number 132; engine position 107.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_DirectoryInfo(_o, parent)
        stream.write_text(_o, name)
        _b = self._call(132, builtins.bytes(_o), "create_file", (("parent", parent), ("name", name)))
        with self._decoding(_b):
            return stream.read_FileInfo(_b, 0)[0]

    def create_directory(self, parent: Optional[records.DirectoryInfo], name: str) -> Optional[records.DirectoryInfo]:
        """Creates a directory in a directory.

        C: kel_createDirectory; number 133; engine position 108.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_DirectoryInfo(_o, parent)
        stream.write_text(_o, name)
        _b = self._call(133, builtins.bytes(_o), "create_directory", (("parent", parent), ("name", name)))
        with self._decoding(_b):
            return stream.read_DirectoryInfo(_b, 0)[0]

    def delete_directory(self, path: str) -> Optional[records.KelError]:
        """Deletes a directory; the outcome comes back as an error record, NULL when
        the engine reports none.

        C: kel_deleteDirectory; number 134; engine position 109.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, path)
        _b = self._call(134, builtins.bytes(_o), "delete_directory", (("path", path),))
        with self._decoding(_b):
            return stream.read_KelError(_b, 0)[0]

    def get_trace_directory(self, recursive: bool) -> Optional[records.DirectoryInfo]:
        """Reads the trace directory as a tree.

        C: kel_getTraceDirectory; number 136; engine position 110 (recursive is
        flag).

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<?", recursive)
        _b = self._call(136, builtins.bytes(_o), "get_trace_directory", (("recursive", recursive),))
        with self._decoding(_b):
            return stream.read_DirectoryInfo(_b, 0)[0]

    def create_vehicle_report(self, config: Optional[records.VehicleReportConfig] = None) -> str:
        """Reads the units as config says and writes a vehicle report into the reports
        directory: an HTML page and its JSON twin of the same name; returns the HTML
        file's engine path.

        C: kel_createVehicleReport; number 146; engine position 111.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_VehicleReportConfig(_o, config)
        _b = self._call(146, builtins.bytes(_o), "create_vehicle_report", (("config", config),))
        return _b[4:].decode()

    def read_ecu_order(self, path: str) -> list[Optional[records.EcuOrderEntry]]:
        """Reads an ECU order from an order file in the public directories. An empty
        path reads the vehicle's own order file, which gives the default order until
        one is written.

        C: kel_readEcuOrder; number 143; engine position 112.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, path)
        _b = self._call(143, builtins.bytes(_o), "read_ecu_order", (("path", path),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.EcuOrderEntry]] = []
            for _ in range(_n):
                _r, _p = stream.read_EcuOrderEntry(_b, _p)
                _results.append(_r)
            return _results

    def filter_ecu_order(self, entries: Sequence[Optional[records.EcuOrderEntry]] = (), targets: Sequence[str] = ()) -> list[Optional[records.EcuOrderEntry]]:
        """Keeps the entries of the given targets, named by unit name or alias, in the
        order's own order; no targets keeps every entry. A target the order has no
        entry for fails the call.

        C: kel_filterEcuOrder; number 144; engine position 113.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<I", len(entries))
        for _e in entries:
            stream.write_EcuOrderEntry(_o, _e)
        stream.write_texts(_o, targets, "targets")
        _b = self._call(144, builtins.bytes(_o), "filter_ecu_order", (("entries", entries), ("targets", targets)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.EcuOrderEntry]] = []
            for _ in range(_n):
                _r, _p = stream.read_EcuOrderEntry(_b, _p)
                _results.append(_r)
            return _results

    def add_missing_targets_to_ecu_order(self, entries: Sequence[Optional[records.EcuOrderEntry]] = ()) -> list[Optional[records.EcuOrderEntry]]:
        """Completes an ECU order: the entries as given, then every unit of the vehicle
        that they do not name, in default order.

        C: kel_addMissingTargetsToEcuOrder; number 145; engine position 114.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<I", len(entries))
        for _e in entries:
            stream.write_EcuOrderEntry(_o, _e)
        _b = self._call(145, builtins.bytes(_o), "add_missing_targets_to_ecu_order", (("entries", entries),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.EcuOrderEntry]] = []
            for _ in range(_n):
                _r, _p = stream.read_EcuOrderEntry(_b, _p)
                _results.append(_r)
            return _results

    def lock(self) -> int:
        """Takes the engine's lock and returns the lock identifier that kel_unlock
        takes.

        C: kel_lock; number 147; engine position 115.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(147, builtins.bytes(_o), "lock", ())
        _value: int = struct.unpack_from("<Q", _b)[0]
        return _value

    def unlock(self, lock_id: int) -> None:
        """Gives back the engine's lock taken with kel_lock.

        C: kel_unlock; number 148; engine position 116.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", lock_id)
        self._call(148, builtins.bytes(_o), "unlock", (("lock_id", lock_id),))

    def is_locked(self) -> bool:
        """Tells whether the engine's lock is taken.

        C: kel_isLocked; number 149; engine position 117.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(149, builtins.bytes(_o), "is_locked", ())
        return _b[0] != 0

    def break_lock(self) -> None:
        """Breaks the engine's lock, whoever holds it.

        C: kel_breakLock; number 150; engine position 118.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(150, builtins.bytes(_o), "break_lock", ())

    def set_ethernet_pin_state(self, state: int, interfaces: Sequence[str] = ()) -> None:
        """Sets the Ethernet pin state of the given interfaces.

        C: kel_setEthernetPinState; number 151; engine position 119.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<B", state)
        stream.write_texts(_o, interfaces, "interfaces")
        self._call(151, builtins.bytes(_o), "set_ethernet_pin_state", (("state", state), ("interfaces", interfaces)))

    def get_ethernet_pin_state(self, interface_name: str) -> int:
        """Reads the Ethernet pin state of an interface.

        C: kel_getEthernetPinState; number 152; engine position 120.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, interface_name)
        _b = self._call(152, builtins.bytes(_o), "get_ethernet_pin_state", (("interface_name", interface_name),))
        _value: int = struct.unpack_from("<I", _b)[0]
        return _value

    def detect_dyn_interfaces_ex(self, value: int) -> list[Optional[records.ModuleDyn]]:
        """Detects dynamic interfaces without a detection record; returns the modules
        found.

        C: kel_detectDynInterfacesEx; number 83; engine position 121.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<I", value)
        _b = self._call(83, builtins.bytes(_o), "detect_dyn_interfaces_ex", (("value", value),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ModuleDyn]] = []
            for _ in range(_n):
                _r, _p = stream.read_ModuleDyn(_b, _p)
                _results.append(_r)
            return _results

    def detect_dyn_interfaces_ex_async(self, value: int) -> AsyncCall:
        """Detects dynamic interfaces without a detection record; returns the modules
        found.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_detectDynInterfacesExAsync; engine position 121.
        """
        return self._start(c_records.start_detectDynInterfacesExAsync, c_records.from_c_ModuleDyn, "release_ModuleDyn_array", value, name="detect_dyn_interfaces_ex_async", arguments=(("value", value),))

    def connect_dyn_interface_ex(self, name: str, flag: bool) -> None:
        """Connects a dynamically detected interface without a detection record.

        C: kel_connectDynInterfaceEx; number 153; engine position 123.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, name)
        _o += struct.pack("<?", flag)
        self._call(153, builtins.bytes(_o), "connect_dyn_interface_ex", (("name", name), ("flag", flag)))

    def add_user(self, name: str, password: str, role: int) -> None:
        """Adds a user with a password and a role (1 operator, 2 administrator) to the
        server's user management.

        C: kel_addUser; number 155; engine position 124.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, name)
        stream.write_text(_o, password)
        _o += struct.pack("<I", role)
        self._call(155, builtins.bytes(_o), "add_user", (("name", name), ("password", _SECRET), ("role", role)))

    def remove_user(self, name: str) -> None:
        """Removes a user from the server's user management; its logins end.

        C: kel_removeUser; number 158; engine position 125.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, name)
        self._call(158, builtins.bytes(_o), "remove_user", (("name", name),))

    def get_users(self) -> list[Optional[records.UserInfo]]:
        """Lists the server's users by name, without their passwords.

        C: kel_getUsers; number 160; engine position 126.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(160, builtins.bytes(_o), "get_users", ())
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.UserInfo]] = []
            for _ in range(_n):
                _r, _p = stream.read_UserInfo(_b, _p)
                _results.append(_r)
            return _results

    def log_out(self, config: Optional[records.LogInOutConfig] = None) -> None:
        """Logs the user of this engine object out of the server.

        C: kel_logOut; number 159; engine position 127.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_LogInOutConfig(_o, config)
        self._call(159, builtins.bytes(_o), "log_out", (("config", config),))

    def update_user(self, name: str, new_name: str, new_password: str, role: int) -> None:
        """Changes a user: a new name (empty keeps the name), a new password (empty
        keeps the password) and the role.

        C: kel_updateUser; number 161; engine position 128.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, name)
        stream.write_text(_o, new_name)
        stream.write_text(_o, new_password)
        _o += struct.pack("<I", role)
        self._call(161, builtins.bytes(_o), "update_user", (("name", name), ("new_name", new_name), ("new_password", _SECRET), ("role", role)))

    def get_server_user_management(self) -> bool:
        """Tells whether the server's user management is on.

        C: kel_getServerUserManagement; number 138; engine position 129.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(138, builtins.bytes(_o), "get_server_user_management", ())
        return _b[0] != 0

    def set_server_user_management(self, enabled: bool) -> None:
        """Turns the server's user management on or off. While it is on, a remote
        connection must log in before any other call.

        C: kel_setServerUserManagement; number 156; engine position 130.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<?", enabled)
        self._call(156, builtins.bytes(_o), "set_server_user_management", (("enabled", enabled),))

    def disconnect_all_clients(self) -> None:
        """Ends every remote connection to the engine.

        C: kel_disconnectAllClients; number 162; engine position 133.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(162, builtins.bytes(_o), "disconnect_all_clients", ())

    def test_socket_bridge(self, bridge: int) -> bool:
        """Tells whether a socket bridge works.

        C: kel_testSocketBridge; number 157; engine position 134.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", bridge)
        _b = self._call(157, builtins.bytes(_o), "test_socket_bridge", (("bridge", bridge),))
        return _b[0] != 0

    def copy_files(self, config: Optional[records.FileCopyConfig] = None) -> list[Optional[records.FileCopyResult]]:
        """Copies files as config says; one result per file.

        C: kel_copyFiles; number 165; engine position 136.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_FileCopyConfig(_o, config)
        _b = self._call(165, builtins.bytes(_o), "copy_files", (("config", config),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.FileCopyResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_FileCopyResult(_b, _p)
                _results.append(_r)
            return _results

    def copy_files_async(self, config: Optional[records.FileCopyConfig] = None) -> AsyncCall:
        """Copies files as config says; one result per file.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_copyFilesAsync; engine position 136.
        """
        return self._start(c_records.start_copyFilesAsync, c_records.from_c_FileCopyResult, "release_FileCopyResult_array", config, name="copy_files_async", arguments=(("config", config),))

    def copy_directories(self, config: Optional[records.DirectoryCopyConfig] = None) -> list[Optional[records.DirectoryCopyResult]]:
        """Copies directories as config says; one result per directory.

        C: kel_copyDirectories; number 166; engine position 138.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_DirectoryCopyConfig(_o, config)
        _b = self._call(166, builtins.bytes(_o), "copy_directories", (("config", config),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.DirectoryCopyResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_DirectoryCopyResult(_b, _p)
                _results.append(_r)
            return _results

    def copy_directories_async(self, config: Optional[records.DirectoryCopyConfig] = None) -> AsyncCall:
        """Copies directories as config says; one result per directory.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_copyDirectoriesAsync; engine position 138.
        """
        return self._start(c_records.start_copyDirectoriesAsync, c_records.from_c_DirectoryCopyResult, "release_DirectoryCopyResult_array", config, name="copy_directories_async", arguments=(("config", config),))

    def calculate_checksum(self, path: str, algorithm: int) -> str:
        """Calculates the checksum of a file with the given algorithm.

        C: kel_calculateChecksum; number 169; engine position 140.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, path)
        _o += struct.pack("<i", algorithm)
        _b = self._call(169, builtins.bytes(_o), "calculate_checksum", (("path", path), ("algorithm", algorithm)))
        return _b[4:].decode()

    def run_sequence(self, sequence: str, arguments: Sequence[str] = ()) -> int:
        """Starts a sequence with the given arguments; returns the run that
        kel_cancelSequence takes.

        C: kel_runSequence; number 177; engine position 145.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, sequence)
        stream.write_texts(_o, arguments, "arguments")
        _b = self._call(177, builtins.bytes(_o), "run_sequence", (("sequence", sequence), ("arguments", arguments)))
        _value: int = struct.unpack_from("<Q", _b)[0]
        return _value

    def unlock_vehicle(self, target: str, services: Sequence[Optional[records.ServiceInput]] = ()) -> Optional[records.UnlockResult]:
        """Unlocks the vehicle by running the given services on one target.

        C: kel_unlockVehicle; number 178; engine position 146.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, target)
        _o += struct.pack("<I", len(services))
        for _e in services:
            stream.write_ServiceInput(_o, _e)
        _b = self._call(178, builtins.bytes(_o), "unlock_vehicle", (("target", target), ("services", services)))
        with self._decoding(_b):
            return stream.read_UnlockResult(_b, 0)[0]

    def release_vehicle_unlock(self, unlock: int) -> None:
        """Releases a vehicle unlock; value is passed to the engine unchanged. Through
        kel_call (number 179) the answer is the status byte alone; py_call writes no
        result.

        C: kel_releaseVehicleUnlock; number 179; engine position 147 (unlock is
        value).

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", unlock)
        self._call(179, builtins.bytes(_o), "release_vehicle_unlock", (("unlock", unlock),))

    def cancel_sequence(self, run: int) -> None:
        """Cancels a run of a sequence started with kel_runSequence.

        C: kel_cancelSequence; number 180; engine position 148.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", run)
        self._call(180, builtins.bytes(_o), "cancel_sequence", (("run", run),))

    def get_registered_devices(self) -> list[Optional[records.DeviceInfo]]:
        """Lists the registered devices.

        C: kel_getRegisteredDevices; number 182; engine position 149.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(182, builtins.bytes(_o), "get_registered_devices", ())
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.DeviceInfo]] = []
            for _ in range(_n):
                _r, _p = stream.read_DeviceInfo(_b, _p)
                _results.append(_r)
            return _results

    def get_system_info(self) -> Optional[records.SystemInfo]:
        """Reads information about the system that the engine runs on.

        C: kel_getSystemInfo; number 183; engine position 150.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(183, builtins.bytes(_o), "get_system_info", ())
        with self._decoding(_b):
            return stream.read_SystemInfo(_b, 0)[0]

    def apply_update_package(self, package: str) -> None:
        """Applies an update package: the newest engine-component package of that name,
        downloaded or on the broker, after its payload's checksum is verified.

        C: kel_applyUpdatePackage; number 185; engine position 151.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, package)
        self._call(185, builtins.bytes(_o), "apply_update_package", (("package", package),))

    def rename_file(self, path: str, new_name: str) -> None:
        """Renames a file.

        C: kel_renameFile; number 186; engine position 152.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, path)
        stream.write_text(_o, new_name)
        self._call(186, builtins.bytes(_o), "rename_file", (("path", path), ("new_name", new_name)))

    def on_connection_broken(self) -> None:
        """Tells the engine that its connection broke.

        C: kel_onConnectionBroken; number 188; engine position 153.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(188, builtins.bytes(_o), "on_connection_broken", ())

    def get_update_packages(self) -> list[Optional[records.UpdatePackageInfo]]:
        """Lists the update packages at hand.

        C: kel_getUpdatePackages; number 184; engine position 154.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(184, builtins.bytes(_o), "get_update_packages", ())
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.UpdatePackageInfo]] = []
            for _ in range(_n):
                _r, _p = stream.read_UpdatePackageInfo(_b, _p)
                _results.append(_r)
            return _results

    def get_packages_from_broker(self) -> list[Optional[records.UpdatePackageInfo]]:
        """Lists the update packages that the broker offers.

        C: kel_getPackagesFromBroker; number 164; engine position 155.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(164, builtins.bytes(_o), "get_packages_from_broker", ())
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.UpdatePackageInfo]] = []
            for _ in range(_n):
                _r, _p = stream.read_UpdatePackageInfo(_b, _p)
                _results.append(_r)
            return _results

    def check_updates_on_broker(self) -> bool:
        """Tells whether the broker has updates.

        C: kel_checkUpdatesOnBroker; number 174; engine position 156.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(174, builtins.bytes(_o), "check_updates_on_broker", ())
        return _b[0] != 0

    def auto_update(self) -> bool:
        """Updates automatically; tells whether anything was updated.

        C: kel_autoUpdate; number 175; engine position 157.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(175, builtins.bytes(_o), "auto_update", ())
        return _b[0] != 0

    def get_config_directory(self, recursive: bool) -> Optional[records.DirectoryInfo]:
        """Reads the configuration directory as a tree.

        C: kel_getConfigDirectory; number 131; engine position 158 (recursive is
        flag).

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<?", recursive)
        _b = self._call(131, builtins.bytes(_o), "get_config_directory", (("recursive", recursive),))
        with self._decoding(_b):
            return stream.read_DirectoryInfo(_b, 0)[0]

    def create_api_trace_monitor(self) -> int:
        """Opens an API trace monitor, which records the calls made on the engine;
        returns its handle.

        C: kel_createApiTraceMonitor; number 189; engine position 160.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(189, builtins.bytes(_o), "create_api_trace_monitor", ())
        _value: int = struct.unpack_from("<Q", _b)[0]
        return _value

    def get_api_trace_content(self, handle: int, value1: int, value2: int) -> builtins.bytes:
        """Fetches what an API trace monitor recorded, as bytes; the two values are
        passed to the engine unchanged.

        C: kel_getApiTraceContent; number 190; engine position 161.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", handle)
        _o += struct.pack("<I", value1)
        _o += struct.pack("<i", value2)
        _b = self._call(190, builtins.bytes(_o), "get_api_trace_content", (("handle", handle), ("value1", value1), ("value2", value2)))
        return _b[4:]

    def release_api_trace_monitor(self, handle: int) -> None:
        """Closes an API trace monitor.

        C: kel_releaseApiTraceMonitor; number 192; engine position 162.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", handle)
        self._call(192, builtins.bytes(_o), "release_api_trace_monitor", (("handle", handle),))

    def get_current_versions(self) -> list[Optional[records.NamedItem]]:
        """Lists the current versions of the installed components; each item's texts
        are the component's name, its version, what it is, and the package that
        installed it (empty for the engine itself and its vehicle description).

        C: kel_getCurrentVersions; number 191; engine position 163.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(191, builtins.bytes(_o), "get_current_versions", ())
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.NamedItem]] = []
            for _ in range(_n):
                _r, _p = stream.read_NamedItem(_b, _p)
                _results.append(_r)
            return _results

    def check_update_success(self) -> bool:
        """Tells whether the last update (applyUpdatePackage, autoUpdate, a vehicle
        update) succeeded fully; true before any update.

        C: kel_checkUpdateSuccess; number 193; engine position 164.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(193, builtins.bytes(_o), "check_update_success", ())
        return _b[0] != 0

    def clean_update_tmp(self) -> None:
        """Removes the temporary files of updates.

        C: kel_cleanUpdateTmp; number 194; engine position 165.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(194, builtins.bytes(_o), "clean_update_tmp", ())

    def execute_flash_sessions_config(self, config: Optional[records.FlashSessionsConfig] = None) -> list[Optional[records.FlashSessionResult]]:
        """Runs flash sessions as config says.

        C: kel_executeFlashSessionsConfig; number 195; engine position 166.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_FlashSessionsConfig(_o, config)
        _b = self._call(195, builtins.bytes(_o), "execute_flash_sessions_config", (("config", config),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.FlashSessionResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_FlashSessionResult(_b, _p)
                _results.append(_r)
            return _results

    def execute_flash_sessions_config_async(self, config: Optional[records.FlashSessionsConfig] = None) -> AsyncCall:
        """Runs flash sessions as config says.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_executeFlashSessionsConfigAsync; engine position 166.
        """
        return self._start(c_records.start_executeFlashSessionsConfigAsync, c_records.from_c_FlashSessionResult, "release_FlashSessionResult_array", config, name="execute_flash_sessions_config_async", arguments=(("config", config),))

    def load_database_file(self, files: Sequence[str] = ()) -> list[Optional[records.LoadDatabaseResult]]:
        """Loads the given database files; one result per file.

        C: kel_loadDatabaseFile; number 198; engine position 168.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_texts(_o, files, "files")
        _b = self._call(198, builtins.bytes(_o), "load_database_file", (("files", files),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.LoadDatabaseResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_LoadDatabaseResult(_b, _p)
                _results.append(_r)
            return _results

    def copy_project_with_filters(self, filters: Sequence[Optional[records.FileFilter]], flag: bool, config: Optional[records.FileCopyConfig], text: str) -> list[Optional[records.FileInfo]]:
        """Copies the files of a project that pass the given file filters, as config
        says; returns the files copied.

        C: kel_copyProjectWithFilters; number 201; engine position 169.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<I", len(filters))
        for _e in filters:
            stream.write_FileFilter(_o, _e)
        _o += struct.pack("<?", flag)
        stream.write_FileCopyConfig(_o, config)
        stream.write_text(_o, text)
        _b = self._call(201, builtins.bytes(_o), "copy_project_with_filters", (("filters", filters), ("flag", flag), ("config", config), ("text", text)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.FileInfo]] = []
            for _ in range(_n):
                _r, _p = stream.read_FileInfo(_b, _p)
                _results.append(_r)
            return _results

    def reconnect_remote_server(self, handle: int) -> bool:
        """Renews the remote connection whose engine handle is given (kel_getHandle,
        not the address that kel_connectRemoteServer hands out); tells whether it is
        connected again (not while the server is stopped).

        C: kel_reconnectRemoteServer; number 199; engine position 172.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<Q", handle)
        _b = self._call(199, builtins.bytes(_o), "reconnect_remote_server", (("handle", handle),))
        return _b[0] != 0

    def filter_files(self, filters: Sequence[Optional[records.FileFilter]], directory: str) -> list[str]:
        """Lists the files that pass the given file filters.

        C: kel_filterFiles; number 204; engine position 173 (directory is text).

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<I", len(filters))
        for _e in filters:
            stream.write_FileFilter(_o, _e)
        stream.write_text(_o, directory)
        _b = self._call(204, builtins.bytes(_o), "filter_files", (("filters", filters), ("directory", directory)))
        return stream.read_texts(_b, 0)[0]

    def unload_database_file(self, files: Sequence[str] = ()) -> list[Optional[records.LoadDatabaseResult]]:
        """Unloads the given database files; one result per file.

        C: kel_unloadDatabaseFile; number 206; engine position 175.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_texts(_o, files, "files")
        _b = self._call(206, builtins.bytes(_o), "unload_database_file", (("files", files),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.LoadDatabaseResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_LoadDatabaseResult(_b, _p)
                _results.append(_r)
            return _results

    def get_public_directories(self) -> list[Optional[records.DirectoryInfo]]:
        """Lists the engine's public directories.

        C: kel_getPublicDirectories; number 210; engine position 176.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(210, builtins.bytes(_o), "get_public_directories", ())
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.DirectoryInfo]] = []
            for _ in range(_n):
                _r, _p = stream.read_DirectoryInfo(_b, _p)
                _results.append(_r)
            return _results

    def update_vehicle(self, config: Optional[records.VehicleUpdateConfig] = None) -> list[Optional[records.VehicleUpdateResult]]:
        """Updates the vehicle as config says, in the vehicle's ECU order: its order
        file (kel_getEcuOrderFilePath) when there is one, else the default order.

        C: kel_updateVehicle; number 211; engine position 177.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_VehicleUpdateConfig(_o, config)
        _b = self._call(211, builtins.bytes(_o), "update_vehicle", (("config", config),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.VehicleUpdateResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_VehicleUpdateResult(_b, _p)
                _results.append(_r)
            return _results

    def update_vehicle_async(self, config: Optional[records.VehicleUpdateConfig] = None) -> AsyncCall:
        """Updates the vehicle as config says, in the vehicle's ECU order: its order
        file (kel_getEcuOrderFilePath) when there is one, else the default order.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_updateVehicleAsync; engine position 177.
        """
        return self._start(c_records.start_updateVehicleAsync, c_records.from_c_VehicleUpdateResult, "release_VehicleUpdateResult_array", config, name="update_vehicle_async", arguments=(("config", config),))

    def execute_service_in_default_session(self, target: str, services: Sequence[Optional[records.ServiceInput]] = ()) -> list[Optional[records.ServiceResult]]:
        """Executes diagnostic services on one target, as kel_executeService does, in
        the default diagnostic session.

        C: kel_executeServiceInDefaultSession; number 213; engine position 179.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, target)
        _o += struct.pack("<I", len(services))
        for _e in services:
            stream.write_ServiceInput(_o, _e)
        _b = self._call(213, builtins.bytes(_o), "execute_service_in_default_session", (("target", target), ("services", services)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ServiceResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_ServiceResult(_b, _p)
                _results.append(_r)
            return _results

    def execute_service_in_default_session_async(self, target: str, services: Sequence[Optional[records.ServiceInput]] = ()) -> AsyncCall:
        """Executes diagnostic services on one target, as kel_executeService does, in
        the default diagnostic session.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_executeServiceInDefaultSessionAsync; engine position 179.
        """
        return self._start(c_records.start_executeServiceInDefaultSessionAsync, c_records.from_c_ServiceResult, "release_ServiceResult_array", target, services, name="execute_service_in_default_session_async", arguments=(("target", target), ("services", services)))

    def get_target_status(self, targets: Sequence[str] = ()) -> list[Optional[records.TargetStatus]]:
        """Reads the status of the given targets; one result per target.

        C: kel_getTargetStatus; number 215; engine position 181.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_texts(_o, targets, "targets")
        _b = self._call(215, builtins.bytes(_o), "get_target_status", (("targets", targets),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.TargetStatus]] = []
            for _ in range(_n):
                _r, _p = stream.read_TargetStatus(_b, _p)
                _results.append(_r)
            return _results

    def get_physical_links(self, modules: Sequence[str] = ()) -> list[Optional[records.PhysicalLinksOnModule]]:
        """Reads the physical links of the given modules.

        C: kel_getPhysicalLinks; number 217; engine position 182.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_texts(_o, modules, "modules")
        _b = self._call(217, builtins.bytes(_o), "get_physical_links", (("modules", modules),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.PhysicalLinksOnModule]] = []
            for _ in range(_n):
                _r, _p = stream.read_PhysicalLinksOnModule(_b, _p)
                _results.append(_r)
            return _results

    def set_physical_links(self, links: Sequence[Optional[records.PhysicalLinksOnModule]] = ()) -> list[Optional[records.PhysicalLinksOnModule]]:
        """Sets the physical links of modules and returns them as the engine keeps
        them.

        C: kel_setPhysicalLinks; number 218; engine position 183.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<I", len(links))
        for _e in links:
            stream.write_PhysicalLinksOnModule(_o, _e)
        _b = self._call(218, builtins.bytes(_o), "set_physical_links", (("links", links),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.PhysicalLinksOnModule]] = []
            for _ in range(_n):
                _r, _p = stream.read_PhysicalLinksOnModule(_b, _p)
                _results.append(_r)
            return _results

    def move_file(self, source: str, target: str) -> bool:
        """Moves a file; tells whether it moved.

        C: kel_moveFile; number 209; engine position 184.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, source)
        stream.write_text(_o, target)
        _b = self._call(209, builtins.bytes(_o), "move_file", (("source", source), ("target", target)))
        return _b[0] != 0

    def move_directory(self, source: str, target: str) -> bool:
        """Moves a directory; tells whether it moved.

        C: kel_moveDirectory; number 219; engine position 185.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, source)
        stream.write_text(_o, target)
        _b = self._call(219, builtins.bytes(_o), "move_directory", (("source", source), ("target", target)))
        return _b[0] != 0

    def path_exists(self, path: str) -> bool:
        """Tells whether a path exists.

        C: kel_pathExists; number 220; engine position 186.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, path)
        _b = self._call(220, builtins.bytes(_o), "path_exists", (("path", path),))
        return _b[0] != 0

    def resolve_path(self, path: str) -> str:
        """Resolves a path to the engine's full path.

        C: kel_resolvePath; number 225; engine position 188.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, path)
        _b = self._call(225, builtins.bytes(_o), "resolve_path", (("path", path),))
        return _b[4:].decode()

    def get_vehicle_data(self) -> list[Optional[records.VehicleData]]:
        """Reads every control unit as it is now: one entry per unit, each with the
        vehicle's VIN and model.

        C: kel_getVehicleData; number 202; engine position 191.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(202, builtins.bytes(_o), "get_vehicle_data", ())
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.VehicleData]] = []
            for _ in range(_n):
                _r, _p = stream.read_VehicleData(_b, _p)
                _results.append(_r)
            return _results

    def get_projects_details(self, project_names: Sequence[str] = ()) -> list[Optional[records.ProjectDetails]]:
        """Reads the details of the given projects.

        C: kel_getProjectsDetails; number 203; engine position 192.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_texts(_o, project_names, "project_names")
        _b = self._call(203, builtins.bytes(_o), "get_projects_details", (("project_names", project_names),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ProjectDetails]] = []
            for _ in range(_n):
                _r, _p = stream.read_ProjectDetails(_b, _p)
                _results.append(_r)
            return _results

    def upload_report(self, config: Optional[records.UploadReportConfiguration] = None) -> None:
        """Uploads a report as config says.

        C: kel_uploadReport; number 223; engine position 193.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_UploadReportConfiguration(_o, config)
        self._call(223, builtins.bytes(_o), "upload_report", (("config", config),))

    def get_file_references(self, files: Sequence[str] = ()) -> list[Optional[records.FileReferenceResult]]:
        """Lists the references of the given files; one result per file.

        C: kel_getFileReferences; number 224; engine position 194.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_texts(_o, files, "files")
        _b = self._call(224, builtins.bytes(_o), "get_file_references", (("files", files),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.FileReferenceResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_FileReferenceResult(_b, _p)
                _results.append(_r)
            return _results

    def on_connection_closed(self) -> None:
        """Tells the engine that its connection was closed.

        C: kel_onConnectionClosed; number 226; engine position 195.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(226, builtins.bytes(_o), "on_connection_closed", ())

    def open_terminal(self) -> bool:
        """Opens the terminal; tells whether it opened.

        C: kel_openTerminal; number 227; engine position 196.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(227, builtins.bytes(_o), "open_terminal", ())
        return _b[0] != 0

    def close_terminal(self) -> None:
        """Closes the terminal.

        C: kel_closeTerminal; number 228; engine position 197.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(228, builtins.bytes(_o), "close_terminal", ())

    def is_directory(self, path: str) -> bool:
        """Tells whether a path is a directory.

        C: kel_isDirectory; number 231; engine position 200.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, path)
        _b = self._call(231, builtins.bytes(_o), "is_directory", (("path", path),))
        return _b[0] != 0

    def get_directory_info(self, path: str, recursive: bool) -> Optional[records.DirectoryInfo]:
        """Reads a directory as a tree.

        C: kel_getDirectoryInfo; number 232; engine position 201 (recursive is
        flag).

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, path)
        _o += struct.pack("<?", recursive)
        _b = self._call(232, builtins.bytes(_o), "get_directory_info", (("path", path), ("recursive", recursive)))
        with self._decoding(_b):
            return stream.read_DirectoryInfo(_b, 0)[0]

    def get_file_info(self, path: str) -> Optional[records.FileInfo]:
        """Reads the information about one file.

        C: kel_getFileInfo; number 233; engine position 202.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, path)
        _b = self._call(233, builtins.bytes(_o), "get_file_info", (("path", path),))
        with self._decoding(_b):
            return stream.read_FileInfo(_b, 0)[0]

    def is_file(self, path: str) -> bool:
        """Tells whether a path is a file.

        C: kel_isFile; number 234; engine position 203.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, path)
        _b = self._call(234, builtins.bytes(_o), "is_file", (("path", path),))
        return _b[0] != 0

    def get_w_lan_signal_data(self, interface_name: str) -> Optional[records.WLanSignalData]:
        """Reads the WLAN signal data of an interface.

        C: kel_getWLanSignalData; number 235; engine position 204.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, interface_name)
        _b = self._call(235, builtins.bytes(_o), "get_w_lan_signal_data", (("interface_name", interface_name),))
        with self._decoding(_b):
            return stream.read_WLanSignalData(_b, 0)[0]

    def clear_do_ip_ecu_collection(self) -> list[Optional[records.KelError]]:
        """Clears the collection of ECUs found over DoIP; returns an error record for
        each entry that the engine reports.

        C: kel_clearDoIPEcuCollection; number 236; engine position 205.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(236, builtins.bytes(_o), "clear_do_ip_ecu_collection", ())
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.KelError]] = []
            for _ in range(_n):
                _r, _p = stream.read_KelError(_b, _p)
                _results.append(_r)
            return _results

    def set_broker_url(self, url: str) -> None:
        """Sets the address of the update broker, a file: URL; an empty URL goes back
        to the default.

        C: kel_setBrokerUrl; number 237; engine position 206.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, url)
        self._call(237, builtins.bytes(_o), "set_broker_url", (("url", url),))

    def copy_path(self, config: Optional[records.PathCopyConfig] = None) -> list[Optional[records.PathCopyResult]]:
        """Copies a path as config says.

        C: kel_copyPath; number 238; engine position 207.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_PathCopyConfig(_o, config)
        _b = self._call(238, builtins.bytes(_o), "copy_path", (("config", config),))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.PathCopyResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_PathCopyResult(_b, _p)
                _results.append(_r)
            return _results

    def copy_path_async(self, config: Optional[records.PathCopyConfig] = None) -> AsyncCall:
        """Copies a path as config says.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_copyPathAsync; engine position 207.
        """
        return self._start(c_records.start_copyPathAsync, c_records.from_c_PathCopyResult, "release_PathCopyResult_array", config, name="copy_path_async", arguments=(("config", config),))

    def third_party_login(self, code: str) -> bool:
        """Logs this engine object in with an authorization code of the outside
        identity provider; tells whether the provider accepted the code for a user
        of the server.

        C: kel_thirdPartyLogin; number 244; engine position 213.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, code)
        _b = self._call(244, builtins.bytes(_o), "third_party_login", (("code", _SECRET),))
        return _b[0] != 0

    def clear_update_packages(self) -> None:
        """Removes the update packages at hand.

        C: kel_clearUpdatePackages; number 245; engine position 214.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(245, builtins.bytes(_o), "clear_update_packages", ())

    def get_third_party_login_url(self, provider: str) -> str:
        """The address at which a user logs in to the named outside identity provider
        (empty: the engine's own); each address carries a login state of its own.

        C: kel_getThirdPartyLoginUrl; number 253; engine position 215.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, provider)
        _b = self._call(253, builtins.bytes(_o), "get_third_party_login_url", (("provider", provider),))
        return _b[4:].decode()

    def select_dynamic_project(self, project_name: str, items: Sequence[str] = ()) -> None:
        """Selects a dynamic project made of the given items.

        C: kel_selectDynamicProject; number 246; engine position 216.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, project_name)
        stream.write_texts(_o, items, "items")
        self._call(246, builtins.bytes(_o), "select_dynamic_project", (("project_name", project_name), ("items", items)))

    def get_certificate_by_public_key(self, public_key: str, text2: str, text3: str, text4: str) -> str:
        """Looks up a certificate of the engine's certificate store by its public key
        (a PEM "PUBLIC KEY" block or its Base64 text); returns it as PEM text.

        C: kel_getCertificateByPublicKey; number 247; engine position 217.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, public_key)
        stream.write_text(_o, text2)
        stream.write_text(_o, text3)
        stream.write_text(_o, text4)
        _b = self._call(247, builtins.bytes(_o), "get_certificate_by_public_key", (("public_key", public_key), ("text2", text2), ("text3", text3), ("text4", text4)))
        return _b[4:].decode()

    def create_certificate_from_csr(self, text1: str, text2: str, text3: str, text4: str, text5: str, text6: str) -> str:
        """Issues a certificate for a certificate signing request.

        C: kel_createCertificateFromCSR; number 248; engine position 218.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, text1)
        stream.write_text(_o, text2)
        stream.write_text(_o, text3)
        stream.write_text(_o, text4)
        stream.write_text(_o, text5)
        stream.write_text(_o, text6)
        _b = self._call(248, builtins.bytes(_o), "create_certificate_from_csr", (("text1", text1), ("text2", text2), ("text3", text3), ("text4", text4), ("text5", text5), ("text6", text6)))
        return _b[4:].decode()

    def get_certificate_chain_by_id(self, id: str, text2: str, text3: str) -> list[str]:
        """Reads the chain of the certificate with the given identifier from the
        engine's certificate store: the certificate first, then each issuer, as PEM
        texts.

        C: kel_getCertificateChainById; number 249; engine position 219.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, id)
        stream.write_text(_o, text2)
        stream.write_text(_o, text3)
        _b = self._call(249, builtins.bytes(_o), "get_certificate_chain_by_id", (("id", id), ("text2", text2), ("text3", text3)))
        return stream.read_texts(_b, 0)[0]

    def create_default_ecu_order(self) -> list[Optional[records.EcuOrderEntry]]:
        """Creates the default ECU order of the vehicle's units: the gateway first,
        then by bus name, then by address.

        C: kel_createDefaultECUOrder; number 250; engine position 220.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(250, builtins.bytes(_o), "create_default_ecu_order", ())
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.EcuOrderEntry]] = []
            for _ in range(_n):
                _r, _p = stream.read_EcuOrderEntry(_b, _p)
                _results.append(_r)
            return _results

    def write_coding_file(self, coding_file: str, targets: Sequence[str] = ()) -> list[Optional[records.CodingFileResult]]:
        """Writes a coding file to the given targets.

        C: kel_writeCodingFile; number 251; engine position 221.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, coding_file)
        stream.write_texts(_o, targets, "targets")
        _b = self._call(251, builtins.bytes(_o), "write_coding_file", (("coding_file", coding_file), ("targets", targets)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.CodingFileResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_CodingFileResult(_b, _p)
                _results.append(_r)
            return _results

    def write_coding_file_async(self, coding_file: str, targets: Sequence[str] = ()) -> AsyncCall:
        """Writes a coding file to the given targets.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_writeCodingFileAsync; engine position 221.
        """
        return self._start(c_records.start_writeCodingFileAsync, c_records.from_c_CodingFileResult, "release_CodingFileResult_array", coding_file, targets, name="write_coding_file_async", arguments=(("coding_file", coding_file), ("targets", targets)))

    def write_ecu_order(self, path: str, entries: Sequence[Optional[records.EcuOrderEntry]] = ()) -> None:
        """Writes an ECU order to an order file in the public directories, replacing
        it. An empty path writes the vehicle's own order file.

        C: kel_writeEcuOrder; number 255; engine position 223.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, path)
        _o += struct.pack("<I", len(entries))
        for _e in entries:
            stream.write_EcuOrderEntry(_o, _e)
        self._call(255, builtins.bytes(_o), "write_ecu_order", (("path", path), ("entries", entries)))

    def get_ecu_order_file_path(self) -> str:
        """Reads the engine path of the vehicle's own ECU order file.

        C: kel_getEcuOrderFilePath; number 256; engine position 224.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(256, builtins.bytes(_o), "get_ecu_order_file_path", ())
        return _b[4:].decode()

    def perform_vehicle_update(self, entries: Sequence[Optional[records.EcuOrderEntry]] = (), config: Optional[records.VehicleUpdateConfig] = None) -> list[Optional[records.VehicleUpdateResult]]:
        """Updates the vehicle's ECUs in the given ECU order, as config says.

        C: kel_performVehicleUpdate; number 257; engine position 225.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<I", len(entries))
        for _e in entries:
            stream.write_EcuOrderEntry(_o, _e)
        stream.write_VehicleUpdateConfig(_o, config)
        _b = self._call(257, builtins.bytes(_o), "perform_vehicle_update", (("entries", entries), ("config", config)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.VehicleUpdateResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_VehicleUpdateResult(_b, _p)
                _results.append(_r)
            return _results

    def perform_vehicle_update_async(self, entries: Sequence[Optional[records.EcuOrderEntry]] = (), config: Optional[records.VehicleUpdateConfig] = None) -> AsyncCall:
        """Updates the vehicle's ECUs in the given ECU order, as config says.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_performVehicleUpdateAsync; engine position 225.
        """
        return self._start(c_records.start_performVehicleUpdateAsync, c_records.from_c_VehicleUpdateResult, "release_VehicleUpdateResult_array", entries, config, name="perform_vehicle_update_async", arguments=(("entries", entries), ("config", config)))

    def trigger_async_cancels(self, call_ids: Sequence[int] = ()) -> None:
        """Asks the engine to cancel the asynchronous calls with the given call
        identifiers, through its second cancel operation.

        C: kel_triggerAsyncCancels; number 260; engine position 227.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_values(_o, "Q", call_ids)
        self._call(260, builtins.bytes(_o), "trigger_async_cancels", (("call_ids", call_ids),))

    def execute_sequence(self, target: str, sequence: str, parameters: Sequence[Optional[records.ParameterInput]] = ()) -> list[Optional[records.ServiceResult]]:
        """Executes a sequence on one target with the given parameter values.

        C: kel_executeSequence; number 262; engine position 228.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, target)
        stream.write_text(_o, sequence)
        _o += struct.pack("<I", len(parameters))
        for _e in parameters:
            stream.write_ParameterInput(_o, _e)
        _b = self._call(262, builtins.bytes(_o), "execute_sequence", (("target", target), ("sequence", sequence), ("parameters", parameters)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ServiceResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_ServiceResult(_b, _p)
                _results.append(_r)
            return _results

    def execute_sequence_async(self, target: str, sequence: str, parameters: Sequence[Optional[records.ParameterInput]] = ()) -> AsyncCall:
        """Executes a sequence on one target with the given parameter values.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_executeSequenceAsync; engine position 228.
        """
        return self._start(c_records.start_executeSequenceAsync, c_records.from_c_ServiceResult, "release_ServiceResult_array", target, sequence, parameters, name="execute_sequence_async", arguments=(("target", target), ("sequence", sequence), ("parameters", parameters)))

    def add_public_directory(self, name: str, path: str) -> None:
        """Adds a public directory under a name.

        C: kel_addPublicDirectory; number 261; engine position 230.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, name)
        stream.write_text(_o, path)
        self._call(261, builtins.bytes(_o), "add_public_directory", (("name", name), ("path", path)))

    def create_vehicle_update_report(self, results: Sequence[Optional[records.VehicleUpdateResult]] = ()) -> str:
        """Writes a report of vehicle update results into the reports directory: an
        HTML page and its JSON twin of the same name; returns the HTML file's engine
        path.

        C: kel_createVehicleUpdateReport; number 264; engine position 231.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<I", len(results))
        for _e in results:
            stream.write_VehicleUpdateResult(_o, _e)
        _b = self._call(264, builtins.bytes(_o), "create_vehicle_update_report", (("results", results),))
        return _b[4:].decode()

    def get_parameter_info(self, config: Optional[records.ParameterInfoConfig] = None) -> Optional[records.ParameterInfo]:
        """Describes the one parameter that config selects.

        C: kel_getParameterInfo; number 265; engine position 232.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_ParameterInfoConfig(_o, config)
        _b = self._call(265, builtins.bytes(_o), "get_parameter_info", (("config", config),))
        with self._decoding(_b):
            return stream.read_ParameterInfo(_b, 0)[0]

    def perform_ecu_configuration(self, targets: Sequence[str], configuration: str) -> list[Optional[records.EcuConfigurationResult]]:
        """Configures the ECUs of the given targets with a configuration.

        C: kel_performEcuConfiguration; number 267; engine position 233.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_texts(_o, targets, "targets")
        stream.write_text(_o, configuration)
        _b = self._call(267, builtins.bytes(_o), "perform_ecu_configuration", (("targets", targets), ("configuration", configuration)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.EcuConfigurationResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_EcuConfigurationResult(_b, _p)
                _results.append(_r)
            return _results

    def perform_ecu_configuration_async(self, targets: Sequence[str], configuration: str) -> AsyncCall:
        """Configures the ECUs of the given targets with a configuration.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_performEcuConfigurationAsync; engine position 233.
        """
        return self._start(c_records.start_performEcuConfigurationAsync, c_records.from_c_EcuConfigurationResult, "release_EcuConfigurationResult_array", targets, configuration, name="perform_ecu_configuration_async", arguments=(("targets", targets), ("configuration", configuration)))

    def clear_specific_dtcs(self, target: str, dtc_codes: Sequence[int] = ()) -> list[Optional[records.ClearDtcResult]]:
        """Clears the DTCs with the given codes on one target.

        C: kel_clearSpecificDtcs; number 268; engine position 235.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, target)
        stream.write_values(_o, "I", dtc_codes)
        _b = self._call(268, builtins.bytes(_o), "clear_specific_dtcs", (("target", target), ("dtc_codes", dtc_codes)))
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ClearDtcResult]] = []
            for _ in range(_n):
                _r, _p = stream.read_ClearDtcResult(_b, _p)
                _results.append(_r)
            return _results

    def clear_specific_dtcs_async(self, target: str, dtc_codes: Sequence[int] = ()) -> AsyncCall:
        """Clears the DTCs with the given codes on one target.

        Runs asynchronously: the handle iterates over the reports, gives the results
        with result() or await, and cancel() cancels it.

        C: kel_clearSpecificDtcsAsync; engine position 235.
        """
        return self._start(c_records.start_clearSpecificDtcsAsync, c_records.from_c_ClearDtcResult, "release_ClearDtcResult_array", target, dtc_codes, name="clear_specific_dtcs_async", arguments=(("target", target), ("dtc_codes", dtc_codes)))

    def start_sovd_server(self) -> None:
        """Starts the SOVD server.

        C: kel_startSOVDServer; number 259; engine position 237.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(259, builtins.bytes(_o), "start_sovd_server", ())

    def stop_sovd_server(self) -> None:
        """Stops the SOVD server.

        C: kel_stopSOVDServer; number 280; engine position 238.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        self._call(280, builtins.bytes(_o), "stop_sovd_server", ())

    def log_in(self, config: Optional[records.LogInOutConfig] = None) -> None:
        """Logs this engine object in to the server with a user's name and password.

        C: kel_logIn; number 216; engine position 239.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_LogInOutConfig(_o, config)
        self._call(216, builtins.bytes(_o), "log_in", (("config", config),))

    def create_vehicle_update_config(self, targets: Sequence[str] = ()) -> Optional[records.VehicleUpdateConfig]:
        """Creates a vehicle update configuration for the given targets.

        C: kel_createVehicleUpdateConfig; number 154; engine position 240.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_texts(_o, targets, "targets")
        _b = self._call(154, builtins.bytes(_o), "create_vehicle_update_config", (("targets", targets),))
        with self._decoding(_b):
            return stream.read_VehicleUpdateConfig(_b, 0)[0]

    def get_project_configurations(self) -> list[Optional[records.ProjectConfig]]:
        """Lists the configurations of every project.

        C: kel_getProjectConfigurations; number 48; engine position 241.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(48, builtins.bytes(_o), "get_project_configurations", ())
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.ProjectConfig]] = []
            for _ in range(_n):
                _r, _p = stream.read_ProjectConfig(_b, _p)
                _results.append(_r)
            return _results

    def get_state(self) -> enums.EngineState:
        """Reads the engine's state number; the engine defines its values.

        C: kel_getState; number 49; engine position 242.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(49, builtins.bytes(_o), "get_state", ())
        return enums.EngineState(struct.unpack_from("<i", _b)[0])

    def get_version(self) -> str:
        """Reads the engine's version.

        C: kel_getVersion; number 50; engine position 243.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(50, builtins.bytes(_o), "get_version", ())
        return _b[4:].decode()

    def get_selected_project(self) -> str:
        """Reads the name of the selected project.

        C: kel_getSelectedProject; number 51; engine position 244.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(51, builtins.bytes(_o), "get_selected_project", ())
        return _b[4:].decode()

    def set_selected_project(self, project_name: str) -> None:
        """Selects a project by name.

        C: kel_setSelectedProject; number 52; engine position 245.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, project_name)
        self._call(52, builtins.bytes(_o), "set_selected_project", (("project_name", project_name),))

    def get_configuration(self) -> Optional[records.TarnApiConfig]:
        """Reads the engine's configuration.

        C: kel_getConfiguration; number 53; engine position 246.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(53, builtins.bytes(_o), "get_configuration", ())
        with self._decoding(_b):
            return stream.read_TarnApiConfig(_b, 0)[0]

    def set_configuration(self, config: Optional[records.TarnApiConfig] = None) -> None:
        """Sets the engine's configuration.

        C: kel_setConfiguration; number 54; engine position 247.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_TarnApiConfig(_o, config)
        self._call(54, builtins.bytes(_o), "set_configuration", (("config", config),))

    def get_server_settings(self) -> Optional[records.ServerSettings]:
        """Reads the server's settings.

        C: kel_getServerSettings; number 55; engine position 248.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(55, builtins.bytes(_o), "get_server_settings", ())
        with self._decoding(_b):
            return stream.read_ServerSettings(_b, 0)[0]

    def get_selected_vehicle_information(self) -> Optional[records.VehicleInformation]:
        """Reads the information about the selected vehicle.

        C: kel_getSelectedVehicleInformation; number 56; engine position 249.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(56, builtins.bytes(_o), "get_selected_vehicle_information", ())
        with self._decoding(_b):
            return stream.read_VehicleInformation(_b, 0)[0]

    def set_selected_vehicle_information(self, information: Optional[records.VehicleInformation] = None) -> None:
        """Selects a vehicle by its information; a VIN that is not 17 digits and
        capital letters other than I, O and Q is refused.

        C: kel_setSelectedVehicleInformation; number 57; engine position 250.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_VehicleInformation(_o, information)
        self._call(57, builtins.bytes(_o), "set_selected_vehicle_information", (("information", information),))

    def get_targets(self) -> list[Optional[records.Target]]:
        """Lists the targets (control units) of the project.

        C: kel_getTargets; number 58; engine position 251.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(58, builtins.bytes(_o), "get_targets", ())
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.Target]] = []
            for _ in range(_n):
                _r, _p = stream.read_Target(_b, _p)
                _results.append(_r)
            return _results

    def get_process_info(self) -> Optional[records.ProcessInfo]:
        """Reads information about the engine's processes.

        C: kel_getProcessInfo; number 59; engine position 252.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(59, builtins.bytes(_o), "get_process_info", ())
        with self._decoding(_b):
            return stream.read_ProcessInfo(_b, 0)[0]

    def get_transmission_info(self) -> Optional[records.TransmissionInfo]:
        """Reads the engine's transmission information.

        C: kel_getTransmissionInfo; number 60; engine position 253.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(60, builtins.bytes(_o), "get_transmission_info", ())
        with self._decoding(_b):
            return stream.read_TransmissionInfo(_b, 0)[0]

    def get_handle(self) -> int:
        """Reads the engine object's 64-bit engine handle, which is not its address.
        Given to kel_getRemoteConnectionByHandle or kel_call it reaches the remote
        connection to this object; a remote connection's own handle is what
        kel_reconnectRemoteServer takes.

        C: kel_getHandle; number 61; engine position 254.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(61, builtins.bytes(_o), "get_handle", ())
        _value: int = struct.unpack_from("<Q", _b)[0]
        return _value

    def get_mox_configuration(self) -> Optional[records.MoxConfig]:
        """Reads the MOX configuration.

        C: kel_getMoxConfiguration; number 62; engine position 255.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(62, builtins.bytes(_o), "get_mox_configuration", ())
        with self._decoding(_b):
            return stream.read_MoxConfig(_b, 0)[0]

    def set_mox_configuration(self, config: Optional[records.MoxConfig] = None) -> None:
        """Sets the MOX configuration.

        C: kel_setMoxConfiguration; number 101; engine position 256.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_MoxConfig(_o, config)
        self._call(101, builtins.bytes(_o), "set_mox_configuration", (("config", config),))

    def get_interface_configuration(self) -> Optional[records.InterfaceConfiguration]:
        """Reads the interface configuration.

        C: kel_getInterfaceConfiguration; number 63; engine position 257.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(63, builtins.bytes(_o), "get_interface_configuration", ())
        with self._decoding(_b):
            return stream.read_InterfaceConfiguration(_b, 0)[0]

    def set_interface_configuration(self, config: Optional[records.InterfaceConfiguration] = None) -> None:
        """Sets the interface configuration.

        C: kel_setInterfaceConfiguration; number 64; engine position 258.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_InterfaceConfiguration(_o, config)
        self._call(64, builtins.bytes(_o), "set_interface_configuration", (("config", config),))

    def get_monitoring_links(self) -> list[str]:
        """Lists the names of the monitoring links.

        C: kel_getMonitoringLinks; number 65; engine position 259.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(65, builtins.bytes(_o), "get_monitoring_links", ())
        return stream.read_texts(_b, 0)[0]

    def get_global_protocol_parameter_sets(self) -> list[Optional[records.GlobalProtocolParameterSet]]:
        """Reads the global protocol parameter sets.

        C: kel_getGlobalProtocolParameterSets; number 78; engine position 260.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(78, builtins.bytes(_o), "get_global_protocol_parameter_sets", ())
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.GlobalProtocolParameterSet]] = []
            for _ in range(_n):
                _r, _p = stream.read_GlobalProtocolParameterSet(_b, _p)
                _results.append(_r)
            return _results

    def set_global_protocol_parameter_sets(self, sets: Sequence[Optional[records.GlobalProtocolParameterSet]] = ()) -> None:
        """Sets the global protocol parameter sets.

        C: kel_setGlobalProtocolParameterSets; number 79; engine position 261.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<I", len(sets))
        for _e in sets:
            stream.write_GlobalProtocolParameterSet(_o, _e)
        self._call(79, builtins.bytes(_o), "set_global_protocol_parameter_sets", (("sets", sets),))

    def get_status_info(self) -> Optional[records.StatusInfo]:
        """Reads the engine's status information.

        C: kel_getStatusInfo; number 88; engine position 262.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(88, builtins.bytes(_o), "get_status_info", ())
        with self._decoding(_b):
            return stream.read_StatusInfo(_b, 0)[0]

    def get_session_target_filters(self) -> list[Optional[records.TargetFilter]]:
        """Reads the session's target filters.

        C: kel_getSessionTargetFilters; number 90; engine position 263.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(90, builtins.bytes(_o), "get_session_target_filters", ())
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.TargetFilter]] = []
            for _ in range(_n):
                _r, _p = stream.read_TargetFilter(_b, _p)
                _results.append(_r)
            return _results

    def set_session_target_filters(self, filters: Sequence[Optional[records.TargetFilter]] = ()) -> None:
        """Sets the session's target filters.

        C: kel_setSessionTargetFilters; number 91; engine position 264.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<I", len(filters))
        for _e in filters:
            stream.write_TargetFilter(_o, _e)
        self._call(91, builtins.bytes(_o), "set_session_target_filters", (("filters", filters),))

    def get_supported_interfaces(self) -> list[Optional[records.SupportedInterface]]:
        """Lists the supported kinds of interface.

        C: kel_getSupportedInterfaces; number 111; engine position 265.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(111, builtins.bytes(_o), "get_supported_interfaces", ())
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.SupportedInterface]] = []
            for _ in range(_n):
                _r, _p = stream.read_SupportedInterface(_b, _p)
                _results.append(_r)
            return _results

    def get_interface_providers(self) -> list[Optional[records.InterfaceProvider]]:
        """Lists the interface providers.

        C: kel_getInterfaceProviders; number 118; engine position 266.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(118, builtins.bytes(_o), "get_interface_providers", ())
        with self._decoding(_b):
            (_n,) = struct.unpack_from("<I", _b)
            _p = 4
            _results: list[Optional[records.InterfaceProvider]] = []
            for _ in range(_n):
                _r, _p = stream.read_InterfaceProvider(_b, _p)
                _results.append(_r)
            return _results

    def set_interface_providers(self, providers: Sequence[Optional[records.InterfaceProvider]] = ()) -> None:
        """Sets the interface providers.

        C: kel_setInterfaceProviders; number 119; engine position 267.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _o += struct.pack("<I", len(providers))
        for _e in providers:
            stream.write_InterfaceProviderDyn(_o, _e)
        self._call(119, builtins.bytes(_o), "set_interface_providers", (("providers", providers),))

    def get_current_debug_trace_directory(self) -> str:
        """Reads the directory that the engine writes its debug trace to.

        C: kel_getCurrentDebugTraceDirectory; number 142; engine position 268.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(142, builtins.bytes(_o), "get_current_debug_trace_directory", ())
        return _b[4:].decode()

    def get_server_configuration(self) -> Optional[records.TarnApiServerConfig]:
        """Reads the server's configuration: its users, logins, file filters and
        addresses.

        C: kel_getServerConfiguration; number 181; engine position 269.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(181, builtins.bytes(_o), "get_server_configuration", ())
        with self._decoding(_b):
            return stream.read_TarnApiServerConfig(_b, 0)[0]

    def get_call_duration(self) -> int:
        """Reads the engine's call duration; the engine defines what it measures and
        its unit.

        C: kel_getCallDuration; number 187; engine position 270.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(187, builtins.bytes(_o), "get_call_duration", ())
        _value: int = struct.unpack_from("<Q", _b)[0]
        return _value

    def set_status_text(self, text: str) -> None:
        """Sets the engine's status text.

        C: kel_setStatusText; number 196; engine position 271.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        stream.write_text(_o, text)
        self._call(196, builtins.bytes(_o), "set_status_text", (("text", text),))

    def get_default_do_ip_parameter(self) -> Optional[records.DoIPParameter]:
        """Reads the default DoIP parameters.

        C: kel_getDefaultDoIPParameter; number 208; engine position 272.

        Raises EngineError when the engine reports a failure.
        """
        _o = bytearray()
        _b = self._call(208, builtins.bytes(_o), "get_default_do_ip_parameter", ())
        with self._decoding(_b):
            return stream.read_DoIPParameter(_b, 0)[0]
