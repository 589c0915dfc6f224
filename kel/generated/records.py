# Generated from the interface description by tools/generate.py. Do not edit.
"""The records of the engine interface, one keyword-only dataclass each."""

from __future__ import annotations

import builtins
import dataclasses
import sys
from typing import Any, Optional

from .enums import DtcStatus, EventKind, FlashStatus, ServiceStatus, TargetResultStatus

# Keyword-only (and slotted) where the Python version allows: records have many fields
# and positions would say nothing.
_OPTIONS: dict[str, Any] = {'kw_only': True, 'slots': True} if sys.version_info >= (3, 10) else {}


@dataclasses.dataclass(**_OPTIONS)
class MvciServerError:
    """The MVCI (ISO 22900) server error beneath an engine error.

    Fields:
        code: The MVCI server's error number.
        code_text: The text that goes with code.
        vendor_code: A second number, as the engine reports it.
        vendor_code_text: The text that goes with vendorCode.
        extra_text: Further text.
        extra_code: A third number.
    """
    code: int = 0
    """The MVCI server's error number."""
    code_text: str = ""
    """The text that goes with code."""
    vendor_code: int = 0
    """A second number, as the engine reports it."""
    vendor_code_text: str = ""
    """The text that goes with vendorCode."""
    extra_text: str = ""
    """Further text."""
    extra_code: int = 0
    """A third number."""


@dataclasses.dataclass(**_OPTIONS)
class NegativeResponse:
    """A control unit's negative response.

    Fields:
        code: The response code.
        name: The response code's name (requestOutOfRange). C: text.
        service_id: The service id of the request it answers. C: value1.
        value2: Copied bit for bit from the engine; the simulated vehicle does not set it,
            so nothing says what it holds.
        bytes: The raw response bytes; None when there are none.
    """
    code: int = 0
    """The response code."""
    name: str = ""
    """The response code's name (requestOutOfRange). C: text."""
    service_id: int = 0
    """The service id of the request it answers. C: value1."""
    value2: int = 0
    """
    Copied bit for bit from the engine; the simulated vehicle does not set it, so
    nothing says what it holds.
    """
    bytes: builtins.bytes = b""
    """The raw response bytes; None when there are none."""

    @property
    def text(self) -> str:
        """The C name of name; read-only."""
        return self.name

    @property
    def value1(self) -> int:
        """The C name of service_id; read-only."""
        return self.service_id


@dataclasses.dataclass(**_OPTIONS)
class KelError:
    """An engine error: what a failed call writes through its KelError** error, and the
    per-item error inside result records.

    Fields:
        code: The engine's error code.
        message: What went wrong.
        details: Further details.
        sub_code: A second error number.
        mvci_error: The MVCI server error beneath it, or None.
        negative_response: The control unit's negative response, or None; always None for a
            failed call.
    """
    code: int = 0
    """The engine's error code."""
    message: str = ""
    """What went wrong."""
    details: str = ""
    """Further details."""
    sub_code: int = 0
    """A second error number."""
    mvci_error: Optional[MvciServerError] = None
    """The MVCI server error beneath it, or None."""
    negative_response: Optional[NegativeResponse] = None
    """The control unit's negative response, or None; always None for a failed call."""


@dataclasses.dataclass(**_OPTIONS)
class NamedItem:
    """Four texts that name an item; they also lead every record with the NamedItem base.

    Fields:
        name: The item's name. C: itemText1.
        item_text2: Second text: what it holds depends on the record that lists the item (a
            value, an identifier, a vendor).
        item_text3: Third text, as itemText2 (a unit, a version).
        item_text4: Fourth text, as itemText2 (a description).
    """
    name: str = ""
    """The item's name. C: itemText1."""
    item_text2: str = ""
    """
    Second text: what it holds depends on the record that lists the item (a value, an
    identifier, a vendor).
    """
    item_text3: str = ""
    """Third text, as itemText2 (a unit, a version)."""
    item_text4: str = ""
    """Fourth text, as itemText2 (a description)."""

    @property
    def item_text1(self) -> str:
        """The C name of name; read-only."""
        return self.name


@dataclasses.dataclass(**_OPTIONS)
class ParameterResult:
    """One decoded parameter value. A structured value carries its members as children, so
    the values form a tree.

    Fields:
        name: The parameter's name. C: itemText1.
        description: Its label; for an identification value, the identifier. C: itemText2.
        codec: How its bytes are read (constant, ascii, unsigned, enumeration, bytes,
            structure); empty outside services. C: itemText3.
        item_text4: Fourth name text; the simulated vehicle leaves it empty, so nothing says
            what it holds.
        value: The value, as text. C: text1.
        unit: Its unit; empty when it has none. C: text2.
        child_count: How many member values it has. C: value1.
        children: The members of a structured value, in engine order.
        text3: Third text; the simulated vehicle leaves it empty, so nothing says what it
            holds.
        error: The error of this parameter, or None.
        text4: Fourth text; the simulated vehicle leaves it empty, so nothing says what it
            holds.
        byte_position: Its byte position in the message (services). C: value2.
        data: The raw bytes of the value, exactly as many as the engine gives; None when
            there are none.
        data_length: How many raw bytes it has. C: value3.
        flag: A one-byte flag; the simulated vehicle leaves it 0, so nothing says what it
            holds.
        value4: A number the simulated vehicle leaves 0, so nothing says what it holds.
    """
    name: str = ""
    """The parameter's name. C: itemText1."""
    description: str = ""
    """Its label; for an identification value, the identifier. C: itemText2."""
    codec: str = ""
    """
    How its bytes are read (constant, ascii, unsigned, enumeration, bytes, structure);
    empty outside services. C: itemText3.
    """
    item_text4: str = ""
    """Fourth name text; the simulated vehicle leaves it empty, so nothing says what it holds."""
    value: str = ""
    """The value, as text. C: text1."""
    unit: str = ""
    """Its unit; empty when it has none. C: text2."""
    child_count: int = 0
    """How many member values it has. C: value1."""
    children: list[Optional[ParameterResult]] = dataclasses.field(default_factory=list)
    """The members of a structured value, in engine order."""
    text3: str = ""
    """Third text; the simulated vehicle leaves it empty, so nothing says what it holds."""
    error: Optional[KelError] = None
    """The error of this parameter, or None."""
    text4: str = ""
    """Fourth text; the simulated vehicle leaves it empty, so nothing says what it holds."""
    byte_position: int = 0
    """Its byte position in the message (services). C: value2."""
    data: builtins.bytes = b""
    """The raw bytes of the value, exactly as many as the engine gives; None when there are none."""
    data_length: int = 0
    """How many raw bytes it has. C: value3."""
    flag: int = 0
    """A one-byte flag; the simulated vehicle leaves it 0, so nothing says what it holds."""
    value4: int = 0
    """A number the simulated vehicle leaves 0, so nothing says what it holds."""

    @property
    def item_text1(self) -> str:
        """The C name of name; read-only."""
        return self.name

    @property
    def item_text2(self) -> str:
        """The C name of description; read-only."""
        return self.description

    @property
    def item_text3(self) -> str:
        """The C name of codec; read-only."""
        return self.codec

    @property
    def text1(self) -> str:
        """The C name of value; read-only."""
        return self.value

    @property
    def text2(self) -> str:
        """The C name of unit; read-only."""
        return self.unit

    @property
    def value1(self) -> int:
        """The C name of child_count; read-only."""
        return self.child_count

    @property
    def value2(self) -> int:
        """The C name of byte_position; read-only."""
        return self.byte_position

    @property
    def value3(self) -> int:
        """The C name of data_length; read-only."""
        return self.data_length


@dataclasses.dataclass(**_OPTIONS)
class ClearDtcResult:
    """The outcome of clearing the DTCs of one target.

    Fields:
        status: The engine's status of this target.
        target: The target's name.
        error: The error of this target, or None.
    """
    status: TargetResultStatus = TargetResultStatus(0)
    """The engine's status of this target."""
    target: str = ""
    """The target's name."""
    error: Optional[KelError] = None
    """The error of this target, or None."""


@dataclasses.dataclass(**_OPTIONS)
class DtcReadConfig:
    """Options of a DTC read; an input that the reading operations consume.

    Fields:
        status_mask: The DTC status mask: 0 reads every stored DTC, otherwise those whose
            status shares a bit with it. C: value.
        with_snapshots: 1 reads the snapshot data. C: flag1.
        with_extended_data: 1 reads the extended data. C: flag2.
        with_special_data: 1 reads the special data groups. C: flag3.
    """
    status_mask: int = 0
    """
    The DTC status mask: 0 reads every stored DTC, otherwise those whose status shares a
    bit with it. C: value.
    """
    with_snapshots: int = 0
    """1 reads the snapshot data. C: flag1."""
    with_extended_data: int = 0
    """1 reads the extended data. C: flag2."""
    with_special_data: int = 0
    """1 reads the special data groups. C: flag3."""

    @property
    def value(self) -> int:
        """The C name of status_mask; read-only."""
        return self.status_mask

    @property
    def flag1(self) -> int:
        """The C name of with_snapshots; read-only."""
        return self.with_snapshots

    @property
    def flag2(self) -> int:
        """The C name of with_extended_data; read-only."""
        return self.with_extended_data

    @property
    def flag3(self) -> int:
        """The C name of with_special_data; read-only."""
        return self.with_special_data


@dataclasses.dataclass(**_OPTIONS)
class ReadDtcResult:
    """The DTCs read from one target.

    Fields:
        status: The engine's status of this target.
        target: The target's name.
        error: The error of this target, or None.
        dtcs: The DTCs read.
        dtc_total: How many DTCs were returned; 0 from kel_readSupportedDtcs. C: value.
    """
    status: TargetResultStatus = TargetResultStatus(0)
    """The engine's status of this target."""
    target: str = ""
    """The target's name."""
    error: Optional[KelError] = None
    """The error of this target, or None."""
    dtcs: list[Optional[DtcResult]] = dataclasses.field(default_factory=list)
    """The DTCs read."""
    dtc_total: int = 0
    """How many DTCs were returned; 0 from kel_readSupportedDtcs. C: value."""

    @property
    def value(self) -> int:
        """The C name of dtc_total; read-only."""
        return self.dtc_total


@dataclasses.dataclass(**_OPTIONS)
class DtcResult:
    """One diagnostic trouble code.

    Fields:
        code: The DTC number.
        display_code: The code as text (P0301). C: text1.
        description: What the code means. C: text2.
        status: The ISO 14229 status byte. C: value1.
        snapshots: The snapshot data. C: parameters1.
        extended_data: The extended data. C: parameters2.
        ecu: The control unit that stores it. C: text3.
        symptom: The symptom. C: text4.
        special_data_groups: Groups of special data.
        severity: The severity. C: value2.
    """
    code: int = 0
    """The DTC number."""
    display_code: str = ""
    """The code as text (P0301). C: text1."""
    description: str = ""
    """What the code means. C: text2."""
    status: DtcStatus = DtcStatus(0)
    """The ISO 14229 status byte. C: value1."""
    snapshots: list[Optional[ParameterResult]] = dataclasses.field(default_factory=list)
    """The snapshot data. C: parameters1."""
    extended_data: list[Optional[ParameterResult]] = dataclasses.field(default_factory=list)
    """The extended data. C: parameters2."""
    ecu: str = ""
    """The control unit that stores it. C: text3."""
    symptom: str = ""
    """The symptom. C: text4."""
    special_data_groups: list[Optional[SpecialDataGroup]] = dataclasses.field(default_factory=list)
    """Groups of special data."""
    severity: int = 0
    """The severity. C: value2."""

    @property
    def text1(self) -> str:
        """The C name of display_code; read-only."""
        return self.display_code

    @property
    def text2(self) -> str:
        """The C name of description; read-only."""
        return self.description

    @property
    def value1(self) -> DtcStatus:
        """The C name of status; read-only."""
        return self.status

    @property
    def parameters1(self) -> list[Optional[ParameterResult]]:
        """The C name of snapshots; read-only."""
        return self.snapshots

    @property
    def parameters2(self) -> list[Optional[ParameterResult]]:
        """The C name of extended_data; read-only."""
        return self.extended_data

    @property
    def text3(self) -> str:
        """The C name of ecu; read-only."""
        return self.ecu

    @property
    def text4(self) -> str:
        """The C name of symptom; read-only."""
        return self.symptom

    @property
    def value2(self) -> int:
        """The C name of severity; read-only."""
        return self.severity


@dataclasses.dataclass(**_OPTIONS)
class SpecialDataGroup:
    """One group of a DTC's special data.

    Fields:
        items: Its entries.
    """
    items: list[Optional[NamedItem]] = dataclasses.field(default_factory=list)
    """Its entries."""


@dataclasses.dataclass(**_OPTIONS)
class VariantIdentResult:
    """The identified variant of one target.

    Fields:
        target: The target's name.
        status: The engine's status of this target.
        error: The error of this target, or None.
        variant: The variant identified.
    """
    target: str = ""
    """The target's name."""
    status: TargetResultStatus = TargetResultStatus(0)
    """The engine's status of this target."""
    error: Optional[KelError] = None
    """The error of this target, or None."""
    variant: str = ""
    """The variant identified."""


@dataclasses.dataclass(**_OPTIONS)
class ReadDataResult:
    """Identification values, or data read by identifier, of one target.

    Fields:
        target: The target's name.
        status: The engine's status of this target.
        variant: The target's variant. C: text.
        error: The error of this target, or None.
        parameters: The values read.
    """
    target: str = ""
    """The target's name."""
    status: TargetResultStatus = TargetResultStatus(0)
    """The engine's status of this target."""
    variant: str = ""
    """The target's variant. C: text."""
    error: Optional[KelError] = None
    """The error of this target, or None."""
    parameters: list[Optional[ParameterResult]] = dataclasses.field(default_factory=list)
    """The values read."""

    @property
    def text(self) -> str:
        """The C name of variant; read-only."""
        return self.variant


@dataclasses.dataclass(**_OPTIONS)
class Target:
    """One control unit known to the project.

    Fields:
        name: The target's name. C: itemText1.
        description: Its description. C: itemText2.
        variant: Its variant. C: itemText3.
        item_text4: Fourth name text; the simulated vehicle leaves it empty, so nothing says
            what it holds.
        address: Its diagnostic address (createSeed takes it). C: value1.
        protocol: Its protocol. C: text1.
        bus: The bus it is on. C: text2.
        items: Its identification values: name and identifier.
        aliases: Further names of the target. C: names.
        part_number: Its part number (F187). C: text3.
        software_version: Its software version (F189). C: text4.
        responds: 1 when it responds. C: value2.
        hardware_version: Its hardware version (F191). C: text5.
    """
    name: str = ""
    """The target's name. C: itemText1."""
    description: str = ""
    """Its description. C: itemText2."""
    variant: str = ""
    """Its variant. C: itemText3."""
    item_text4: str = ""
    """Fourth name text; the simulated vehicle leaves it empty, so nothing says what it holds."""
    address: int = 0
    """Its diagnostic address (createSeed takes it). C: value1."""
    protocol: str = ""
    """Its protocol. C: text1."""
    bus: str = ""
    """The bus it is on. C: text2."""
    items: list[Optional[NamedItem]] = dataclasses.field(default_factory=list)
    """Its identification values: name and identifier."""
    aliases: list[str] = dataclasses.field(default_factory=list)
    """Further names of the target. C: names."""
    part_number: str = ""
    """Its part number (F187). C: text3."""
    software_version: str = ""
    """Its software version (F189). C: text4."""
    responds: int = 0
    """1 when it responds. C: value2."""
    hardware_version: str = ""
    """Its hardware version (F191). C: text5."""

    @property
    def item_text1(self) -> str:
        """The C name of name; read-only."""
        return self.name

    @property
    def item_text2(self) -> str:
        """The C name of description; read-only."""
        return self.description

    @property
    def item_text3(self) -> str:
        """The C name of variant; read-only."""
        return self.variant

    @property
    def value1(self) -> int:
        """The C name of address; read-only."""
        return self.address

    @property
    def text1(self) -> str:
        """The C name of protocol; read-only."""
        return self.protocol

    @property
    def text2(self) -> str:
        """The C name of bus; read-only."""
        return self.bus

    @property
    def names(self) -> list[str]:
        """The C name of aliases; read-only."""
        return self.aliases

    @property
    def text3(self) -> str:
        """The C name of part_number; read-only."""
        return self.part_number

    @property
    def text4(self) -> str:
        """The C name of software_version; read-only."""
        return self.software_version

    @property
    def value2(self) -> int:
        """The C name of responds; read-only."""
        return self.responds

    @property
    def text5(self) -> str:
        """The C name of hardware_version; read-only."""
        return self.hardware_version


@dataclasses.dataclass(**_OPTIONS)
class TargetStatus:
    """The status of one target.

    Fields:
        target: The target's name.
        state: "responding", "not responding" or "unknown". C: text.
        error: The error of this target, or None.
        counts: Five numbers: address, responds, identified since start, stored DTCs,
            supported DTCs. C: values.
        variant: The target's variant. C: text2.
    """
    target: str = ""
    """The target's name."""
    state: str = ""
    """"responding", "not responding" or "unknown". C: text."""
    error: Optional[KelError] = None
    """The error of this target, or None."""
    counts: list[int] = dataclasses.field(default_factory=lambda: [0] * 5)
    """
    Five numbers: address, responds, identified since start, stored DTCs, supported
    DTCs. C: values.
    """
    variant: str = ""
    """The target's variant. C: text2."""

    @property
    def text(self) -> str:
        """The C name of state; read-only."""
        return self.state

    @property
    def values(self) -> list[int]:
        """The C name of counts; read-only."""
        return self.counts

    @property
    def text2(self) -> str:
        """The C name of variant; read-only."""
        return self.variant


@dataclasses.dataclass(**_OPTIONS)
class TargetFilter:
    """A pattern that selects targets by name; a session's target filter.

    Fields:
        pattern: The pattern, where * stands for any text.
        exclude: 0 includes the targets that match, non-zero excludes them. C: flag.
        tag: Kept and returned with the filter, not interpreted. C: value.
    """
    pattern: str = ""
    """The pattern, where * stands for any text."""
    exclude: int = 0
    """0 includes the targets that match, non-zero excludes them. C: flag."""
    tag: int = 0
    """Kept and returned with the filter, not interpreted. C: value."""

    @property
    def flag(self) -> int:
        """The C name of exclude; read-only."""
        return self.exclude

    @property
    def value(self) -> int:
        """The C name of tag; read-only."""
        return self.tag


@dataclasses.dataclass(**_OPTIONS)
class ParameterInput:
    """One parameter value to send with a service. A structured parameter carries its
    members as children, so the values form a tree.

    Fields:
        name: The parameter's name.
        children: The member values of a structured parameter.
        value: The value, written as text.
    """
    name: str = ""
    """The parameter's name."""
    children: list[Optional[ParameterInput]] = dataclasses.field(default_factory=list)
    """The member values of a structured parameter."""
    value: str = ""
    """The value, written as text."""


@dataclasses.dataclass(**_OPTIONS)
class ServiceInput:
    """One service to execute, with its parameter values or its raw request bytes.

    Fields:
        parameters: The parameter values to send.
        service: The service's name.
        data: Raw request bytes, sent as given.
        value: Copied unchanged to the engine; the simulated vehicle does not read it, so
            nothing says what it holds.
    """
    parameters: list[Optional[ParameterInput]] = dataclasses.field(default_factory=list)
    """The parameter values to send."""
    service: str = ""
    """The service's name."""
    data: builtins.bytes = b""
    """Raw request bytes, sent as given."""
    value: int = 0
    """
    Copied unchanged to the engine; the simulated vehicle does not read it, so nothing
    says what it holds.
    """


@dataclasses.dataclass(**_OPTIONS)
class ServiceResult:
    """The result of one executed service: the request as sent and every response received.

    Fields:
        service: The service's name. C: itemText1.
        target: The target. C: itemText2.
        description: The service's description. C: itemText3.
        session: The unit's session afterwards. C: itemText4.
        responses: The responses received.
        status: 0 positive, 1 negative response, 2 no response, 3 not sent.
        outcome: "positive response", the response code's name, "no response" or "not sent".
            C: text1.
        error: The service's own error; None when it succeeded.
        request: The request as sent; None when the engine gives none.
        service_id: The service id. C: value1.
    """
    service: str = ""
    """The service's name. C: itemText1."""
    target: str = ""
    """The target. C: itemText2."""
    description: str = ""
    """The service's description. C: itemText3."""
    session: str = ""
    """The unit's session afterwards. C: itemText4."""
    responses: list[Optional[ResponseResult]] = dataclasses.field(default_factory=list)
    """The responses received."""
    status: ServiceStatus = ServiceStatus(0)
    """0 positive, 1 negative response, 2 no response, 3 not sent."""
    outcome: str = ""
    """"positive response", the response code's name, "no response" or "not sent". C: text1."""
    error: Optional[KelError] = None
    """The service's own error; None when it succeeded."""
    request: Optional[RequestResult] = None
    """The request as sent; None when the engine gives none."""
    service_id: int = 0
    """The service id. C: value1."""

    @property
    def item_text1(self) -> str:
        """The C name of service; read-only."""
        return self.service

    @property
    def item_text2(self) -> str:
        """The C name of target; read-only."""
        return self.target

    @property
    def item_text3(self) -> str:
        """The C name of description; read-only."""
        return self.description

    @property
    def item_text4(self) -> str:
        """The C name of session; read-only."""
        return self.session

    @property
    def text1(self) -> str:
        """The C name of outcome; read-only."""
        return self.outcome

    @property
    def value1(self) -> int:
        """The C name of service_id; read-only."""
        return self.service_id


@dataclasses.dataclass(**_OPTIONS)
class ResponseResult:
    """One response received for a service, as bytes and as decoded parameters.

    Fields:
        kind: PositiveResponse or NegativeResponse. C: itemText1.
        target: The target. C: itemText2.
        item_text3: Third name text; the simulated vehicle leaves it empty, so nothing says
            what it holds.
        item_text4: Fourth name text; the simulated vehicle leaves it empty, so nothing says
            what it holds.
        positive: 1 for a positive response. C: flag.
        error: The response's own error; None when none.
        data: The response bytes; None and 0 when empty.
        time: Vehicle time of the response, in milliseconds. C: value1.
        nrc: The negative response code; 0 for a positive response. C: value2.
        parameters: The decoded response parameters.
    """
    kind: str = ""
    """PositiveResponse or NegativeResponse. C: itemText1."""
    target: str = ""
    """The target. C: itemText2."""
    item_text3: str = ""
    """Third name text; the simulated vehicle leaves it empty, so nothing says what it holds."""
    item_text4: str = ""
    """Fourth name text; the simulated vehicle leaves it empty, so nothing says what it holds."""
    positive: bool = False
    """1 for a positive response. C: flag."""
    error: Optional[KelError] = None
    """The response's own error; None when none."""
    data: builtins.bytes = b""
    """The response bytes; None and 0 when empty."""
    time: int = 0
    """Vehicle time of the response, in milliseconds. C: value1."""
    nrc: int = 0
    """The negative response code; 0 for a positive response. C: value2."""
    parameters: list[Optional[ParameterResult]] = dataclasses.field(default_factory=list)
    """The decoded response parameters."""

    @property
    def item_text1(self) -> str:
        """The C name of kind; read-only."""
        return self.kind

    @property
    def item_text2(self) -> str:
        """The C name of target; read-only."""
        return self.target

    @property
    def flag(self) -> bool:
        """The C name of positive; read-only."""
        return self.positive

    @property
    def value1(self) -> int:
        """The C name of time; read-only."""
        return self.time

    @property
    def value2(self) -> int:
        """The C name of nrc; read-only."""
        return self.nrc


@dataclasses.dataclass(**_OPTIONS)
class RequestResult:
    """The request of a service as it was sent, as bytes and as decoded parameters.

    Fields:
        error: The request's own error; None when none.
        data: The request bytes; None and 0 when empty.
        time: Vehicle time of the request, in milliseconds. C: value1.
        value2: Copied unchanged from the engine; the simulated vehicle leaves it 0, so
            nothing says what it holds.
        parameters: The decoded request parameters.
    """
    error: Optional[KelError] = None
    """The request's own error; None when none."""
    data: builtins.bytes = b""
    """The request bytes; None and 0 when empty."""
    time: int = 0
    """Vehicle time of the request, in milliseconds. C: value1."""
    value2: int = 0
    """
    Copied unchanged from the engine; the simulated vehicle leaves it 0, so nothing says
    what it holds.
    """
    parameters: list[Optional[ParameterResult]] = dataclasses.field(default_factory=list)
    """The decoded request parameters."""

    @property
    def value1(self) -> int:
        """The C name of time; read-only."""
        return self.time


@dataclasses.dataclass(**_OPTIONS)
class UnlockResult:
    """The result of unlocking a vehicle: the services run for the unlock.

    Fields:
        unlock: The unlock, as releaseVehicleUnlock takes it; 0: none held. C: value.
        services: The services run for the unlock.
    """
    unlock: int = 0
    """The unlock, as releaseVehicleUnlock takes it; 0: none held. C: value."""
    services: list[Optional[ServiceResult]] = dataclasses.field(default_factory=list)
    """The services run for the unlock."""

    @property
    def value(self) -> int:
        """The C name of unlock; read-only."""
        return self.unlock


@dataclasses.dataclass(**_OPTIONS)
class ServiceInfo:
    """One service that a target offers: its request parameters and its possible responses.

    Fields:
        name: The service's name. C: itemText1.
        description: Its description. C: itemText2.
        service_id: Its service id, in hex. C: itemText3.
        target: The target. C: itemText4.
        available: 1 when the unit would accept it now (session and security). C: flag.
        responses: The responses the service can give.
        parameters: The request parameters.
        uds_service: The UDS service. C: text1.
        sessions: The sessions it is allowed in: name and id. C: items.
        error: An error describing this service; None when none.
        numbers: Five numbers: service id, security level, session bit mask, actuator,
            request length (0 when variable). C: values.
    """
    name: str = ""
    """The service's name. C: itemText1."""
    description: str = ""
    """Its description. C: itemText2."""
    service_id: str = ""
    """Its service id, in hex. C: itemText3."""
    target: str = ""
    """The target. C: itemText4."""
    available: bool = False
    """1 when the unit would accept it now (session and security). C: flag."""
    responses: list[Optional[ResponseInfo]] = dataclasses.field(default_factory=list)
    """The responses the service can give."""
    parameters: list[Optional[ParameterInfo]] = dataclasses.field(default_factory=list)
    """The request parameters."""
    uds_service: str = ""
    """The UDS service. C: text1."""
    sessions: list[Optional[NamedItem]] = dataclasses.field(default_factory=list)
    """The sessions it is allowed in: name and id. C: items."""
    error: Optional[KelError] = None
    """An error describing this service; None when none."""
    numbers: list[int] = dataclasses.field(default_factory=lambda: [0] * 5)
    """
    Five numbers: service id, security level, session bit mask, actuator, request length
    (0 when variable). C: values.
    """

    @property
    def item_text1(self) -> str:
        """The C name of name; read-only."""
        return self.name

    @property
    def item_text2(self) -> str:
        """The C name of description; read-only."""
        return self.description

    @property
    def item_text3(self) -> str:
        """The C name of service_id; read-only."""
        return self.service_id

    @property
    def item_text4(self) -> str:
        """The C name of target; read-only."""
        return self.target

    @property
    def flag(self) -> bool:
        """The C name of available; read-only."""
        return self.available

    @property
    def text1(self) -> str:
        """The C name of uds_service; read-only."""
        return self.uds_service

    @property
    def items(self) -> list[Optional[NamedItem]]:
        """The C name of sessions; read-only."""
        return self.sessions

    @property
    def values(self) -> list[int]:
        """The C name of numbers; read-only."""
        return self.numbers


@dataclasses.dataclass(**_OPTIONS)
class ResponseInfo:
    """One response that a service can give, with its parameters.

    Fields:
        kind: PositiveResponse or NegativeResponse. C: itemText1.
        first_byte: Its first byte. C: itemText2.
        item_text3: Third name text; the simulated vehicle leaves it empty, so nothing says
            what it holds.
        item_text4: Fourth name text; the simulated vehicle leaves it empty, so nothing says
            what it holds.
        status: The engine's kind of response.
        parameters: The response parameters.
    """
    kind: str = ""
    """PositiveResponse or NegativeResponse. C: itemText1."""
    first_byte: str = ""
    """Its first byte. C: itemText2."""
    item_text3: str = ""
    """Third name text; the simulated vehicle leaves it empty, so nothing says what it holds."""
    item_text4: str = ""
    """Fourth name text; the simulated vehicle leaves it empty, so nothing says what it holds."""
    status: int = 0
    """The engine's kind of response."""
    parameters: list[Optional[ParameterInfo]] = dataclasses.field(default_factory=list)
    """The response parameters."""

    @property
    def item_text1(self) -> str:
        """The C name of kind; read-only."""
        return self.kind

    @property
    def item_text2(self) -> str:
        """The C name of first_byte; read-only."""
        return self.first_byte


@dataclasses.dataclass(**_OPTIONS)
class ParameterInfo:
    """The description of one parameter: its texts, limits and unit. Structured parameters
    describe their members as children.

    Fields:
        name: The parameter's name. C: itemText1.
        description: Its label; for a DID, its identifier. C: itemText2.
        codec: How its bytes are read, as in ParameterResult. C: itemText3.
        item_text4: Fourth name text; the simulated vehicle leaves it empty, so nothing says
            what it holds.
        default_value: The constant's bytes or the default. C: text1.
        unit_text: Its unit. C: text2.
        data_type: Its data type (A_ASCIISTRING, A_UINT32, A_FLOAT64, A_UNICODE2STRING,
            A_BYTEFIELD, A_STRUCTURE). C: text3.
        byte_position: Its byte position. C: value1.
        path: Its path (Settings.Channel.Mode). C: text4.
        children: The member parameters of a structured parameter.
        scaling: Its scaling. C: text5.
        choices: The names of an enumeration; the block is allocated even when empty. C:
            names.
        constant: 1 for a constant. C: flag1.
        byte_length: Its byte length; 0 when variable. C: value2.
        error: An error describing this parameter; None when none.
        required: 1 for a value the caller must give (DIDs: writable). C: flag2.
        numbers: Eight numbers: position, length, names, children, repeated, then three 0.
            C: values.
        structure: 1 for a structure. C: flag3.
        valid_values: The valid values; None when none. C: constraint1.
        raw_range: What the bytes can hold; None when none. C: constraint2.
        minimum: The smallest value. C: text6.
        maximum: The largest value. C: text7.
        repeated: 1 when it repeats. C: flag4.
        unit: The value's unit; None when none.
    """
    name: str = ""
    """The parameter's name. C: itemText1."""
    description: str = ""
    """Its label; for a DID, its identifier. C: itemText2."""
    codec: str = ""
    """How its bytes are read, as in ParameterResult. C: itemText3."""
    item_text4: str = ""
    """Fourth name text; the simulated vehicle leaves it empty, so nothing says what it holds."""
    default_value: str = ""
    """The constant's bytes or the default. C: text1."""
    unit_text: str = ""
    """Its unit. C: text2."""
    data_type: str = ""
    """
    Its data type (A_ASCIISTRING, A_UINT32, A_FLOAT64, A_UNICODE2STRING, A_BYTEFIELD,
    A_STRUCTURE). C: text3.
    """
    byte_position: int = 0
    """Its byte position. C: value1."""
    path: str = ""
    """Its path (Settings.Channel.Mode). C: text4."""
    children: list[Optional[ParameterInfo]] = dataclasses.field(default_factory=list)
    """The member parameters of a structured parameter."""
    scaling: str = ""
    """Its scaling. C: text5."""
    choices: list[str] = dataclasses.field(default_factory=list)
    """The names of an enumeration; the block is allocated even when empty. C: names."""
    constant: bool = False
    """1 for a constant. C: flag1."""
    byte_length: int = 0
    """Its byte length; 0 when variable. C: value2."""
    error: Optional[KelError] = None
    """An error describing this parameter; None when none."""
    required: bool = False
    """1 for a value the caller must give (DIDs: writable). C: flag2."""
    numbers: list[int] = dataclasses.field(default_factory=lambda: [0] * 8)
    """Eight numbers: position, length, names, children, repeated, then three 0. C: values."""
    structure: bool = False
    """1 for a structure. C: flag3."""
    valid_values: Optional[ConstraintInfo] = None
    """The valid values; None when none. C: constraint1."""
    raw_range: Optional[ConstraintInfo] = None
    """What the bytes can hold; None when none. C: constraint2."""
    minimum: str = ""
    """The smallest value. C: text6."""
    maximum: str = ""
    """The largest value. C: text7."""
    repeated: bool = False
    """1 when it repeats. C: flag4."""
    unit: Optional[UnitInfo] = None
    """The value's unit; None when none."""

    @property
    def item_text1(self) -> str:
        """The C name of name; read-only."""
        return self.name

    @property
    def item_text2(self) -> str:
        """The C name of description; read-only."""
        return self.description

    @property
    def item_text3(self) -> str:
        """The C name of codec; read-only."""
        return self.codec

    @property
    def text1(self) -> str:
        """The C name of default_value; read-only."""
        return self.default_value

    @property
    def text2(self) -> str:
        """The C name of unit_text; read-only."""
        return self.unit_text

    @property
    def text3(self) -> str:
        """The C name of data_type; read-only."""
        return self.data_type

    @property
    def value1(self) -> int:
        """The C name of byte_position; read-only."""
        return self.byte_position

    @property
    def text4(self) -> str:
        """The C name of path; read-only."""
        return self.path

    @property
    def text5(self) -> str:
        """The C name of scaling; read-only."""
        return self.scaling

    @property
    def names(self) -> list[str]:
        """The C name of choices; read-only."""
        return self.choices

    @property
    def flag1(self) -> bool:
        """The C name of constant; read-only."""
        return self.constant

    @property
    def value2(self) -> int:
        """The C name of byte_length; read-only."""
        return self.byte_length

    @property
    def flag2(self) -> bool:
        """The C name of required; read-only."""
        return self.required

    @property
    def values(self) -> list[int]:
        """The C name of numbers; read-only."""
        return self.numbers

    @property
    def flag3(self) -> bool:
        """The C name of structure; read-only."""
        return self.structure

    @property
    def constraint1(self) -> Optional[ConstraintInfo]:
        """The C name of valid_values; read-only."""
        return self.valid_values

    @property
    def constraint2(self) -> Optional[ConstraintInfo]:
        """The C name of raw_range; read-only."""
        return self.raw_range

    @property
    def text6(self) -> str:
        """The C name of minimum; read-only."""
        return self.minimum

    @property
    def text7(self) -> str:
        """The C name of maximum; read-only."""
        return self.maximum

    @property
    def flag4(self) -> bool:
        """The C name of repeated; read-only."""
        return self.repeated


@dataclasses.dataclass(**_OPTIONS)
class ConstraintInfo:
    """A constraint on a parameter's value, made of intervals.

    Fields:
        kind: "valid" or "raw". C: text1.
        scale: "physical", "enumeration" or "bytes". C: text2.
        present: 1. C: flag.
        scales: The intervals; None and 0 when none.
    """
    kind: str = ""
    """"valid" or "raw". C: text1."""
    scale: str = ""
    """"physical", "enumeration" or "bytes". C: text2."""
    present: bool = False
    """1. C: flag."""
    scales: list[Optional[ScaleConstraintInfo]] = dataclasses.field(default_factory=list)
    """The intervals; None and 0 when none."""

    @property
    def text1(self) -> str:
        """The C name of kind; read-only."""
        return self.kind

    @property
    def text2(self) -> str:
        """The C name of scale; read-only."""
        return self.scale

    @property
    def flag(self) -> bool:
        """The C name of present; read-only."""
        return self.present


@dataclasses.dataclass(**_OPTIONS)
class ScaleConstraintInfo:
    """One interval of a constraint.

    Fields:
        name: The name of an enumeration's value. C: itemText1.
        item_text2: Second name text; the simulated vehicle leaves it empty, so nothing says
            what it holds.
        item_text3: Third name text; the simulated vehicle leaves it empty, so nothing says
            what it holds.
        item_text4: Fourth name text; the simulated vehicle leaves it empty, so nothing says
            what it holds.
        lower: The lower limit. C: text1.
        upper: The upper limit. C: text2.
        inclusive: 1 when the limits belong to the interval. C: flag.
        raw_value: The raw value of a name. C: value.
    """
    name: str = ""
    """The name of an enumeration's value. C: itemText1."""
    item_text2: str = ""
    """Second name text; the simulated vehicle leaves it empty, so nothing says what it holds."""
    item_text3: str = ""
    """Third name text; the simulated vehicle leaves it empty, so nothing says what it holds."""
    item_text4: str = ""
    """Fourth name text; the simulated vehicle leaves it empty, so nothing says what it holds."""
    lower: str = ""
    """The lower limit. C: text1."""
    upper: str = ""
    """The upper limit. C: text2."""
    inclusive: bool = False
    """1 when the limits belong to the interval. C: flag."""
    raw_value: int = 0
    """The raw value of a name. C: value."""

    @property
    def item_text1(self) -> str:
        """The C name of name; read-only."""
        return self.name

    @property
    def text1(self) -> str:
        """The C name of lower; read-only."""
        return self.lower

    @property
    def text2(self) -> str:
        """The C name of upper; read-only."""
        return self.upper

    @property
    def flag(self) -> bool:
        """The C name of inclusive; read-only."""
        return self.inclusive

    @property
    def value(self) -> int:
        """The C name of raw_value; read-only."""
        return self.raw_value


@dataclasses.dataclass(**_OPTIONS)
class UnitInfo:
    """The unit of a parameter's value; plain data that owns no memory.

    Fields:
        exponents: The exponents of m, kg, s, A, K, mol, cd (two's complement). C: values.
        factor_bits: The factor to SI, as the bits of a double. C: value1.
        known: 1 for a unit the engine knows. C: flag1.
        offset_bits: The offset to SI, as the bits of a double. C: value2.
        has_offset: 1 when there is an offset. C: flag2.
    """
    exponents: list[int] = dataclasses.field(default_factory=lambda: [0] * 7)
    """The exponents of m, kg, s, A, K, mol, cd (two's complement). C: values."""
    factor_bits: int = 0
    """The factor to SI, as the bits of a double. C: value1."""
    known: bool = False
    """1 for a unit the engine knows. C: flag1."""
    offset_bits: int = 0
    """The offset to SI, as the bits of a double. C: value2."""
    has_offset: bool = False
    """1 when there is an offset. C: flag2."""

    @property
    def values(self) -> list[int]:
        """The C name of exponents; read-only."""
        return self.exponents

    @property
    def value1(self) -> int:
        """The C name of factor_bits; read-only."""
        return self.factor_bits

    @property
    def flag1(self) -> bool:
        """The C name of known; read-only."""
        return self.known

    @property
    def value2(self) -> int:
        """The C name of offset_bits; read-only."""
        return self.offset_bits

    @property
    def flag2(self) -> bool:
        """The C name of has_offset; read-only."""
        return self.has_offset


@dataclasses.dataclass(**_OPTIONS)
class ParameterInfoConfig:
    """Selects the parameter that getParameterInfo describes.

    Fields:
        target: The target. C: text1.
        service: The service. C: text2.
        in_response: 0 a request parameter, 1 one of the positive response. C: value.
        path: The parameter's path. C: text3.
        text4: Passed unchanged; the simulated engine does not read it, so nothing says what
            it holds.
    """
    target: str = ""
    """The target. C: text1."""
    service: str = ""
    """The service. C: text2."""
    in_response: int = 0
    """0 a request parameter, 1 one of the positive response. C: value."""
    path: str = ""
    """The parameter's path. C: text3."""
    text4: str = ""
    """Passed unchanged; the simulated engine does not read it, so nothing says what it holds."""

    @property
    def text1(self) -> str:
        """The C name of target; read-only."""
        return self.target

    @property
    def text2(self) -> str:
        """The C name of service; read-only."""
        return self.service

    @property
    def value(self) -> int:
        """The C name of in_response; read-only."""
        return self.in_response

    @property
    def text3(self) -> str:
        """The C name of path; read-only."""
        return self.path


@dataclasses.dataclass(**_OPTIONS)
class KelEvent:
    """One event of the engine, fetched from an event channel.

    Fields:
        name: The event's name.
        kind: What happened: its kind.
        code: Its code, a number.
        message: A sentence for a person: what happened. C: text.
        error: The error the event carries, or None.
        detail: Further detail.
    """
    name: str = ""
    """The event's name."""
    kind: EventKind = EventKind(0)
    """What happened: its kind."""
    code: int = 0
    """Its code, a number."""
    message: str = ""
    """A sentence for a person: what happened. C: text."""
    error: Optional[KelError] = None
    """The error the event carries, or None."""
    detail: str = ""
    """Further detail."""

    @property
    def text(self) -> str:
        """The C name of message; read-only."""
        return self.message


@dataclasses.dataclass(**_OPTIONS)
class EventReport:
    """The events fetched from an event channel, oldest first.

    Fields:
        events: The events; None when there are none.
    """
    events: list[Optional[KelEvent]] = dataclasses.field(default_factory=list)
    """The events; None when there are none."""


@dataclasses.dataclass(**_OPTIONS)
class FileFilter:
    """One file filter: a name pattern with the engine's flag and value.

    Fields:
        pattern: The file name pattern.
        exclude: 0 includes what matches, set excludes it. C: flag.
        value: Copied unchanged; the simulated engine does not read it, so nothing says what
            it holds.
    """
    pattern: str = ""
    """The file name pattern."""
    exclude: bool = False
    """0 includes what matches, set excludes it. C: flag."""
    value: int = 0
    """Copied unchanged; the simulated engine does not read it, so nothing says what it holds."""

    @property
    def flag(self) -> bool:
        """The C name of exclude; read-only."""
        return self.exclude


@dataclasses.dataclass(**_OPTIONS)
class TargetConfig:
    """The configuration of one target within a project.

    Fields:
        value: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        text1: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        text2: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
    """
    value: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    text1: str = ""
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    text2: str = ""
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """


@dataclasses.dataclass(**_OPTIONS)
class ProjectConfig:
    """The configuration of one diagnostic project. itemText1 is the project's name; the
    other members are the engine's and copied unchanged.

    Fields:
        name: The item's name. C: itemText1.
        item_text2: Second text: what it holds depends on the record that lists the item (a
            value, an identifier, a vendor).
        item_text3: Third text, as itemText2 (a unit, a version).
        item_text4: Fourth text, as itemText2 (a description).
        filters1: The project's first file filters; nothing says which, so they keep their
            number.
        value0: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
        targets: The project's targets.
        filters2: The second file filters: pattern and flag, value 0; nothing says which, so
            they keep their number.
        strings1: Engine texts, copied in and out with no meaning written down; the block is
            allocated even when empty.
        text1: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        value1: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
        text2: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        strings2: Engine texts, copied in and out with no meaning written down; the block is
            allocated even when empty.
        text3: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        value2: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
        value3: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
        flags: Four engine flags, copied in and out with no meaning written down.
    """
    name: str = ""
    """The item's name. C: itemText1."""
    item_text2: str = ""
    """
    Second text: what it holds depends on the record that lists the item (a value, an
    identifier, a vendor).
    """
    item_text3: str = ""
    """Third text, as itemText2 (a unit, a version)."""
    item_text4: str = ""
    """Fourth text, as itemText2 (a description)."""
    filters1: list[Optional[FileFilter]] = dataclasses.field(default_factory=list)
    """The project's first file filters; nothing says which, so they keep their number."""
    value0: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    targets: list[Optional[TargetConfig]] = dataclasses.field(default_factory=list)
    """The project's targets."""
    filters2: list[Optional[FileFilter]] = dataclasses.field(default_factory=list)
    """
    The second file filters: pattern and flag, value 0; nothing says which, so they keep
    their number.
    """
    strings1: list[str] = dataclasses.field(default_factory=list)
    """
    Engine texts, copied in and out with no meaning written down; the block is allocated
    even when empty.
    """
    text1: str = ""
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    value1: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    text2: str = ""
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    strings2: list[str] = dataclasses.field(default_factory=list)
    """
    Engine texts, copied in and out with no meaning written down; the block is allocated
    even when empty.
    """
    text3: str = ""
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    value2: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    value3: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    flags: list[bool] = dataclasses.field(default_factory=lambda: [False] * 4)
    """Four engine flags, copied in and out with no meaning written down."""

    @property
    def item_text1(self) -> str:
        """The C name of name; read-only."""
        return self.name


@dataclasses.dataclass(**_OPTIONS)
class ProjectDetails:
    """The details of the selected project (or of one project): its database files and
    users.

    Fields:
        database_files: The database files in the project's folder. C: dbFiles1.
        loaded_database_files: The database files loaded now. C: dbFiles2.
        name: The project's name. C: text1.
        format: The format of the project's files. C: value1.
        folder: The project's folder. C: text2.
        selected: 1 when the project is the selected one. C: value2.
        users: The project's users.
    """
    database_files: list[Optional[DbFileInfo]] = dataclasses.field(default_factory=list)
    """The database files in the project's folder. C: dbFiles1."""
    loaded_database_files: list[Optional[DbFileInfo]] = dataclasses.field(default_factory=list)
    """The database files loaded now. C: dbFiles2."""
    name: str = ""
    """The project's name. C: text1."""
    format: int = 0
    """The format of the project's files. C: value1."""
    folder: str = ""
    """The project's folder. C: text2."""
    selected: int = 0
    """1 when the project is the selected one. C: value2."""
    users: list[Optional[UserInfo]] = dataclasses.field(default_factory=list)
    """The project's users."""

    @property
    def db_files1(self) -> list[Optional[DbFileInfo]]:
        """The C name of database_files; read-only."""
        return self.database_files

    @property
    def db_files2(self) -> list[Optional[DbFileInfo]]:
        """The C name of loaded_database_files; read-only."""
        return self.loaded_database_files

    @property
    def text1(self) -> str:
        """The C name of name; read-only."""
        return self.name

    @property
    def value1(self) -> int:
        """The C name of format; read-only."""
        return self.format

    @property
    def text2(self) -> str:
        """The C name of folder; read-only."""
        return self.folder

    @property
    def value2(self) -> int:
        """The C name of selected; read-only."""
        return self.selected


@dataclasses.dataclass(**_OPTIONS)
class DbFileInfo:
    """One database file of a project.

    Fields:
        name: The file's name, relative to the project's folder.
        path: The file's full path.
        size: Its size in bytes; 0 when it is missing.
        loaded: 1 when the file is loaded.
        error: Why the file cannot be loaded; None when it can.
    """
    name: str = ""
    """The file's name, relative to the project's folder."""
    path: str = ""
    """The file's full path."""
    size: int = 0
    """Its size in bytes; 0 when it is missing."""
    loaded: bool = False
    """1 when the file is loaded."""
    error: Optional[KelError] = None
    """Why the file cannot be loaded; None when it can."""


@dataclasses.dataclass(**_OPTIONS)
class SystemInfo:
    """Information on the system the engine runs on.

    Fields:
        processors: The number of processors. C: value1.
        page_size: The size of a memory page in bytes. C: value2.
        system: The operating system's name. C: text1.
        pointer_bits: The width of a pointer in bits. C: value3.
        release: The operating system's release. C: text2.
        host: The host's name. C: text3.
        architecture: The processor architecture. C: text4.
    """
    processors: int = 0
    """The number of processors. C: value1."""
    page_size: int = 0
    """The size of a memory page in bytes. C: value2."""
    system: str = ""
    """The operating system's name. C: text1."""
    pointer_bits: int = 0
    """The width of a pointer in bits. C: value3."""
    release: str = ""
    """The operating system's release. C: text2."""
    host: str = ""
    """The host's name. C: text3."""
    architecture: str = ""
    """The processor architecture. C: text4."""

    @property
    def value1(self) -> int:
        """The C name of processors; read-only."""
        return self.processors

    @property
    def value2(self) -> int:
        """The C name of page_size; read-only."""
        return self.page_size

    @property
    def text1(self) -> str:
        """The C name of system; read-only."""
        return self.system

    @property
    def value3(self) -> int:
        """The C name of pointer_bits; read-only."""
        return self.pointer_bits

    @property
    def text2(self) -> str:
        """The C name of release; read-only."""
        return self.release

    @property
    def text3(self) -> str:
        """The C name of host; read-only."""
        return self.host

    @property
    def text4(self) -> str:
        """The C name of architecture; read-only."""
        return self.architecture


@dataclasses.dataclass(**_OPTIONS)
class SystemProperty:
    """One system property of the engine; a property may hold child properties, so the
    properties form a tree, which release_SystemProperty frees whole. itemText1 is the
    property's full name, itemText2 its label, itemText4 its unit.

    Fields:
        name: The property's full name. C: itemText1.
        label: Its label. C: itemText2.
        item_text3: Third name text; the simulated engine leaves it empty, so nothing says
            what it holds.
        unit: Its unit. C: itemText4.
        value: The property's value, as text. C: text1.
        default_value: The value a reset gives. C: text2.
        value1: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
        children: The child properties.
        text3: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        error: The property's own error; None when none.
        text4: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        value2: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
        data: The property's bytes; None and 0 when empty.
        value3: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
        changed: 1 when the value differs from the one a reset gives. C: flag.
        value4: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
    """
    name: str = ""
    """The property's full name. C: itemText1."""
    label: str = ""
    """Its label. C: itemText2."""
    item_text3: str = ""
    """Third name text; the simulated engine leaves it empty, so nothing says what it holds."""
    unit: str = ""
    """Its unit. C: itemText4."""
    value: str = ""
    """The property's value, as text. C: text1."""
    default_value: str = ""
    """The value a reset gives. C: text2."""
    value1: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    children: list[Optional[SystemProperty]] = dataclasses.field(default_factory=list)
    """The child properties."""
    text3: str = ""
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    error: Optional[KelError] = None
    """The property's own error; None when none."""
    text4: str = ""
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    value2: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    data: builtins.bytes = b""
    """The property's bytes; None and 0 when empty."""
    value3: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    changed: bool = False
    """1 when the value differs from the one a reset gives. C: flag."""
    value4: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """

    @property
    def item_text1(self) -> str:
        """The C name of name; read-only."""
        return self.name

    @property
    def item_text2(self) -> str:
        """The C name of label; read-only."""
        return self.label

    @property
    def item_text4(self) -> str:
        """The C name of unit; read-only."""
        return self.unit

    @property
    def text1(self) -> str:
        """The C name of value; read-only."""
        return self.value

    @property
    def text2(self) -> str:
        """The C name of default_value; read-only."""
        return self.default_value

    @property
    def flag(self) -> bool:
        """The C name of changed; read-only."""
        return self.changed


@dataclasses.dataclass(**_OPTIONS)
class TarnApiConfig:
    """The engine's own configuration.

    Fields:
        value1: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
        flag1: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        flag2: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        value2: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
        server: The server configuration; None when none.
        value3: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
        value4: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
        value5: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
        flag3: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        value6: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
        value7: Copied in and out with no meaning written down; 16 bits wide, as the
            engine's.
        oauth2_configs: The OAuth 2 configurations.
        text: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
    """
    value1: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    flag1: bool = False
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    flag2: bool = False
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    value2: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    server: Optional[ServerConfig] = None
    """The server configuration; None when none."""
    value3: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    value4: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    value5: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    flag3: bool = False
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    value6: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    value7: int = 0
    """Copied in and out with no meaning written down; 16 bits wide, as the engine's."""
    oauth2_configs: list[Optional[Oauth2Config]] = dataclasses.field(default_factory=list)
    """The OAuth 2 configurations."""
    text: str = ""
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """


@dataclasses.dataclass(**_OPTIONS)
class ServerConfig:
    """The server part of the engine's configuration.

    Fields:
        address: The address the server listens on.
        port: The port it listens on.
        enabled: 1 when the server starts with the engine.
        name: The name the server gives itself to clients.
    """
    address: str = ""
    """The address the server listens on."""
    port: int = 0
    """The port it listens on."""
    enabled: bool = False
    """1 when the server starts with the engine."""
    name: str = ""
    """The name the server gives itself to clients."""


@dataclasses.dataclass(**_OPTIONS)
class Oauth2Config:
    """One OAuth 2 configuration of the engine. It names a client registered with an
    identity provider; no secret is part of it.

    Fields:
        issuer: The identity provider's address.
        client_id: The client's identifier at the provider.
        scopes: The scopes the engine asks for.
        redirect_url: Where the provider sends the user back.
    """
    issuer: str = ""
    """The identity provider's address."""
    client_id: str = ""
    """The client's identifier at the provider."""
    scopes: list[str] = dataclasses.field(default_factory=list)
    """The scopes the engine asks for."""
    redirect_url: str = ""
    """Where the provider sends the user back."""


@dataclasses.dataclass(**_OPTIONS)
class MoxConfig:
    """The engine's Mox configuration, as saveMoxConfiguration stores it.

    Fields:
        text1: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        text2: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        text3: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        text4: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        text5: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        flag1: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        flag2: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        flag3: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        value: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        flag4: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        flag5: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        flag6: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        text6: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        text7: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        tcp: The TCP settings; None when none.
    """
    text1: str = ""
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    text2: str = ""
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    text3: str = ""
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    text4: str = ""
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    text5: str = ""
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    flag1: bool = False
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    flag2: bool = False
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    flag3: bool = False
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    value: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    flag4: bool = False
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    flag5: bool = False
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    flag6: bool = False
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    text6: str = ""
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    text7: str = ""
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    tcp: Optional[TcpInfo] = None
    """The TCP settings; None when none."""


@dataclasses.dataclass(**_OPTIONS)
class TcpInfo:
    """TCP settings; plain data that owns no memory.

    Fields:
        value1: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
        value2: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
        value3: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
        value4: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
        value5: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
        value6: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
    """
    value1: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    value2: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    value3: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    value4: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    value5: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    value6: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """


@dataclasses.dataclass(**_OPTIONS)
class StatusInfo:
    """The engine's status information; plain data that owns no memory.

    Fields:
        calls: The calls made on this engine object before this one. C: value1.
        failed_calls: How many of them failed. C: value2.
        uptime_ms: Milliseconds since the engine started. C: value3.
        call_microseconds: Microseconds spent in those calls. C: value4.
        database_files_loaded: Database files loaded now. C: value5.
        projects: Projects in the projects folder. C: value6.
        status_text_changes: Times the status text was set. C: value7.
        started_ms: When the engine started, in milliseconds since 1970 (UTC). C: value8.
    """
    calls: int = 0
    """The calls made on this engine object before this one. C: value1."""
    failed_calls: int = 0
    """How many of them failed. C: value2."""
    uptime_ms: int = 0
    """Milliseconds since the engine started. C: value3."""
    call_microseconds: int = 0
    """Microseconds spent in those calls. C: value4."""
    database_files_loaded: int = 0
    """Database files loaded now. C: value5."""
    projects: int = 0
    """Projects in the projects folder. C: value6."""
    status_text_changes: int = 0
    """Times the status text was set. C: value7."""
    started_ms: int = 0
    """When the engine started, in milliseconds since 1970 (UTC). C: value8."""

    @property
    def value1(self) -> int:
        """The C name of calls; read-only."""
        return self.calls

    @property
    def value2(self) -> int:
        """The C name of failed_calls; read-only."""
        return self.failed_calls

    @property
    def value3(self) -> int:
        """The C name of uptime_ms; read-only."""
        return self.uptime_ms

    @property
    def value4(self) -> int:
        """The C name of call_microseconds; read-only."""
        return self.call_microseconds

    @property
    def value5(self) -> int:
        """The C name of database_files_loaded; read-only."""
        return self.database_files_loaded

    @property
    def value6(self) -> int:
        """The C name of projects; read-only."""
        return self.projects

    @property
    def value7(self) -> int:
        """The C name of status_text_changes; read-only."""
        return self.status_text_changes

    @property
    def value8(self) -> int:
        """The C name of started_ms; read-only."""
        return self.started_ms


@dataclasses.dataclass(**_OPTIONS)
class TransmissionInfo:
    """The engine's transmission information; plain data that owns no memory.

    Fields:
        requests: Requests sent to the control units. C: value1.
        responses: Responses received from them. C: value2.
        request_bytes: Request bytes sent. C: value3.
        response_bytes: Response bytes received. C: value4.
    """
    requests: int = 0
    """Requests sent to the control units. C: value1."""
    responses: int = 0
    """Responses received from them. C: value2."""
    request_bytes: int = 0
    """Request bytes sent. C: value3."""
    response_bytes: int = 0
    """Response bytes received. C: value4."""

    @property
    def value1(self) -> int:
        """The C name of requests; read-only."""
        return self.requests

    @property
    def value2(self) -> int:
        """The C name of responses; read-only."""
        return self.responses

    @property
    def value3(self) -> int:
        """The C name of request_bytes; read-only."""
        return self.request_bytes

    @property
    def value4(self) -> int:
        """The C name of response_bytes; read-only."""
        return self.response_bytes


@dataclasses.dataclass(**_OPTIONS)
class ProcessInfo:
    """Information on the engine's process.

    Fields:
        processes: One entry: the engine's own process.
        is64_bit: 1 in a 64-bit process. C: flag1.
        initialized: 1 when the engine is initialized. C: flag2.
        status_text: The engine's status text. C: text.
    """
    processes: list[Optional[ProcessEntry]] = dataclasses.field(default_factory=list)
    """One entry: the engine's own process."""
    is64_bit: bool = False
    """1 in a 64-bit process. C: flag1."""
    initialized: bool = False
    """1 when the engine is initialized. C: flag2."""
    status_text: str = ""
    """The engine's status text. C: text."""

    @property
    def flag1(self) -> bool:
        """The C name of is64_bit; read-only."""
        return self.is64_bit

    @property
    def flag2(self) -> bool:
        """The C name of initialized; read-only."""
        return self.initialized

    @property
    def text(self) -> str:
        """The C name of status_text; read-only."""
        return self.status_text


@dataclasses.dataclass(**_OPTIONS)
class ProcessEntry:
    """One process of ProcessInfo.

    Fields:
        pid: The process id. C: value.
        threads: The process's threads. C: items1.
        executable: The process's executable. C: text.
        memory: The process's memory figures. C: items2.
    """
    pid: int = 0
    """The process id. C: value."""
    threads: list[Optional[ProcessThread]] = dataclasses.field(default_factory=list)
    """The process's threads. C: items1."""
    executable: str = ""
    """The process's executable. C: text."""
    memory: list[Optional[ProcessMemory]] = dataclasses.field(default_factory=list)
    """The process's memory figures. C: items2."""

    @property
    def value(self) -> int:
        """The C name of pid; read-only."""
        return self.pid

    @property
    def items1(self) -> list[Optional[ProcessThread]]:
        """The C name of threads; read-only."""
        return self.threads

    @property
    def text(self) -> str:
        """The C name of executable; read-only."""
        return self.executable

    @property
    def items2(self) -> list[Optional[ProcessMemory]]:
        """The C name of memory; read-only."""
        return self.memory


@dataclasses.dataclass(**_OPTIONS)
class ProcessThread:
    """One thread of a process.

    Fields:
        id: The thread's id.
        name: Its name; empty where the system names none.
    """
    id: int = 0
    """The thread's id."""
    name: str = ""
    """Its name; empty where the system names none."""


@dataclasses.dataclass(**_OPTIONS)
class ProcessMemory:
    """One memory figure of a process.

    Fields:
        name: What is counted: "resident", "virtual", "peak resident".
        bytes: Its size in bytes.
    """
    name: str = ""
    """What is counted: "resident", "virtual", "peak resident"."""
    bytes: int = 0
    """Its size in bytes."""


@dataclasses.dataclass(**_OPTIONS)
class GlobalProtocolParameterSet:
    """One set of global protocol parameters.

    Fields:
        name: The set's name. C: text1.
        protocol: The protocol it is for. C: text2.
        text3: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        text4: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
        parameters: The parameters of the set.
    """
    name: str = ""
    """The set's name. C: text1."""
    protocol: str = ""
    """The protocol it is for. C: text2."""
    text3: str = ""
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    text4: str = ""
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    parameters: list[Optional[GlobalProtocolParameter]] = dataclasses.field(default_factory=list)
    """The parameters of the set."""

    @property
    def text1(self) -> str:
        """The C name of name; read-only."""
        return self.name

    @property
    def text2(self) -> str:
        """The C name of protocol; read-only."""
        return self.protocol


@dataclasses.dataclass(**_OPTIONS)
class GlobalProtocolParameter:
    """One global protocol parameter: a parameter description with its value. itemText1 is
    its name, the other NamedItem texts its label, description and unit.

    Fields:
        name: The item's name. C: itemText1.
        item_text2: Second text: what it holds depends on the record that lists the item (a
            value, an identifier, a vendor).
        item_text3: Third text, as itemText2 (a unit, a version).
        item_text4: Fourth text, as itemText2 (a description).
        value: The value, as text.
        default_value: The value the engine starts with.
        infos: Descriptions of the parameter's members.
        choices: The values it may take; none when any value within its constraints is
            allowed.
        error: Why the value is not valid; None when it is.
        constraints: The limits of its value.
        tcp: The TCP settings of a parameter of a TCP link; None otherwise.
        value1: Copied in and out; the engine gives it no meaning that is written down, so
            it keeps its number.
        flag: Copied in and out; the engine gives it no meaning that is written down, so it
            keeps its number.
    """
    name: str = ""
    """The item's name. C: itemText1."""
    item_text2: str = ""
    """
    Second text: what it holds depends on the record that lists the item (a value, an
    identifier, a vendor).
    """
    item_text3: str = ""
    """Third text, as itemText2 (a unit, a version)."""
    item_text4: str = ""
    """Fourth text, as itemText2 (a description)."""
    value: str = ""
    """The value, as text."""
    default_value: str = ""
    """The value the engine starts with."""
    infos: list[Optional[ParameterInfo]] = dataclasses.field(default_factory=list)
    """Descriptions of the parameter's members."""
    choices: list[str] = dataclasses.field(default_factory=list)
    """The values it may take; none when any value within its constraints is allowed."""
    error: Optional[KelError] = None
    """Why the value is not valid; None when it is."""
    constraints: list[Optional[ConstraintInfo]] = dataclasses.field(default_factory=list)
    """The limits of its value."""
    tcp: Optional[TcpInfo] = None
    """The TCP settings of a parameter of a TCP link; None otherwise."""
    value1: int = 0
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """
    flag: bool = False
    """
    Copied in and out; the engine gives it no meaning that is written down, so it keeps
    its number.
    """

    @property
    def item_text1(self) -> str:
        """The C name of name; read-only."""
        return self.name


@dataclasses.dataclass(**_OPTIONS)
class LoadDatabaseResult:
    """The outcome of loading or unloading one database file.

    Fields:
        file: The file as given. C: text.
        loaded: 1 when the file is loaded after the call. C: flag.
        error: The file's own error; None when none.
    """
    file: str = ""
    """The file as given. C: text."""
    loaded: bool = False
    """1 when the file is loaded after the call. C: flag."""
    error: Optional[KelError] = None
    """The file's own error; None when none."""

    @property
    def text(self) -> str:
        """The C name of file; read-only."""
        return self.file

    @property
    def flag(self) -> bool:
        """The C name of loaded; read-only."""
        return self.loaded


@dataclasses.dataclass(**_OPTIONS)
class InterfaceInformation:
    """A diagnostic interface (a vehicle communication interface) with its resources and
    vendor modules. itemText1 is its name, itemText2 its long name, itemText3 its vendor
    and itemText4 a description.

    Fields:
        name: The interface's name. C: itemText1.
        long_name: Its long name. C: itemText2.
        vendor: Its vendor. C: itemText3.
        description: Its description. C: itemText4.
        resources: The resources on the interface.
        connected: 1 while the interface is connected. C: flag1.
        dynamic: 1 for a dynamic interface, one found on the network by detection. C: flag2.
        kind: The kind of interface, as kel_getSupportedInterfaces names it ("D-PDU",
            "DoIP"). C: text1.
        address: Its address: a host name or IP address, or a serial port. C: text2.
        plugged_in: 1 while the interface is plugged in (reachable); a scan reports an error
            for one that is not. C: flag3.
        vendor_modules: Its vendor modules. C: items.
        handle: The engine's handle of the interface, never 0 once the engine knows it;
            ignored on input. C: value.
    """
    name: str = ""
    """The interface's name. C: itemText1."""
    long_name: str = ""
    """Its long name. C: itemText2."""
    vendor: str = ""
    """Its vendor. C: itemText3."""
    description: str = ""
    """Its description. C: itemText4."""
    resources: list[Optional[ResourceInformation]] = dataclasses.field(default_factory=list)
    """The resources on the interface."""
    connected: bool = False
    """1 while the interface is connected. C: flag1."""
    dynamic: bool = False
    """1 for a dynamic interface, one found on the network by detection. C: flag2."""
    kind: str = ""
    """The kind of interface, as kel_getSupportedInterfaces names it ("D-PDU", "DoIP"). C: text1."""
    address: str = ""
    """Its address: a host name or IP address, or a serial port. C: text2."""
    plugged_in: bool = False
    """
    1 while the interface is plugged in (reachable); a scan reports an error for one
    that is not. C: flag3.
    """
    vendor_modules: list[Optional[InterfaceInformationItem]] = dataclasses.field(default_factory=list)
    """Its vendor modules. C: items."""
    handle: int = 0
    """
    The engine's handle of the interface, never 0 once the engine knows it; ignored on
    input. C: value.
    """

    @property
    def item_text1(self) -> str:
        """The C name of name; read-only."""
        return self.name

    @property
    def item_text2(self) -> str:
        """The C name of long_name; read-only."""
        return self.long_name

    @property
    def item_text3(self) -> str:
        """The C name of vendor; read-only."""
        return self.vendor

    @property
    def item_text4(self) -> str:
        """The C name of description; read-only."""
        return self.description

    @property
    def flag1(self) -> bool:
        """The C name of connected; read-only."""
        return self.connected

    @property
    def flag2(self) -> bool:
        """The C name of dynamic; read-only."""
        return self.dynamic

    @property
    def text1(self) -> str:
        """The C name of kind; read-only."""
        return self.kind

    @property
    def text2(self) -> str:
        """The C name of address; read-only."""
        return self.address

    @property
    def flag3(self) -> bool:
        """The C name of plugged_in; read-only."""
        return self.plugged_in

    @property
    def items(self) -> list[Optional[InterfaceInformationItem]]:
        """The C name of vendor_modules; read-only."""
        return self.vendor_modules

    @property
    def value(self) -> int:
        """The C name of handle; read-only."""
        return self.handle


@dataclasses.dataclass(**_OPTIONS)
class ResourceInformation:
    """One resource on a diagnostic interface (a protocol on a physical link); also the
    input of kel_addResource. itemText1 is its name, itemText2 a description, itemText3
    its protocol and itemText4 the physical link it uses.

    Fields:
        name: The resource's name. C: itemText1.
        description: Its description. C: itemText2.
        protocol: Its protocol. C: itemText3.
        physical_link: Its physical link. C: itemText4.
        id: The engine's number of the resource on its interface, from 1; ignored on input.
        pin: The vehicle connector pin it uses; kel_addResource sets it from its 16-bit
            value.
        in_use: 1 while a connection uses the resource.
    """
    name: str = ""
    """The resource's name. C: itemText1."""
    description: str = ""
    """Its description. C: itemText2."""
    protocol: str = ""
    """Its protocol. C: itemText3."""
    physical_link: str = ""
    """Its physical link. C: itemText4."""
    id: int = 0
    """The engine's number of the resource on its interface, from 1; ignored on input."""
    pin: int = 0
    """The vehicle connector pin it uses; kel_addResource sets it from its 16-bit value."""
    in_use: bool = False
    """1 while a connection uses the resource."""

    @property
    def item_text1(self) -> str:
        """The C name of name; read-only."""
        return self.name

    @property
    def item_text2(self) -> str:
        """The C name of description; read-only."""
        return self.description

    @property
    def item_text3(self) -> str:
        """The C name of protocol; read-only."""
        return self.protocol

    @property
    def item_text4(self) -> str:
        """The C name of physical_link; read-only."""
        return self.physical_link


@dataclasses.dataclass(**_OPTIONS)
class InterfaceInformationItem:
    """A vendor module of an interface (the vendor's D-PDU API module that drives it).
    itemText1 is the module's name, itemText2 its vendor, itemText3 its version and
    itemText4 a description.

    Fields:
        name: The vendor module's name. C: itemText1.
        vendor: Its vendor. C: itemText2.
        version: Its version. C: itemText3.
        description: Its description. C: itemText4.
    """
    name: str = ""
    """The vendor module's name. C: itemText1."""
    vendor: str = ""
    """Its vendor. C: itemText2."""
    version: str = ""
    """Its version. C: itemText3."""
    description: str = ""
    """Its description. C: itemText4."""

    @property
    def item_text1(self) -> str:
        """The C name of name; read-only."""
        return self.name

    @property
    def item_text2(self) -> str:
        """The C name of vendor; read-only."""
        return self.vendor

    @property
    def item_text3(self) -> str:
        """The C name of version; read-only."""
        return self.version

    @property
    def item_text4(self) -> str:
        """The C name of description; read-only."""
        return self.description


@dataclasses.dataclass(**_OPTIONS)
class ScanInterfaceResult:
    """The outcome of scanning the connection of one interface.

    Fields:
        interface_info: The interface; None when the engine knows no interface of that name.
        error: The scan's error for this interface; None when it succeeded.
    """
    interface_info: Optional[InterfaceInformation] = None
    """The interface; None when the engine knows no interface of that name."""
    error: Optional[KelError] = None
    """The scan's error for this interface; None when it succeeded."""


@dataclasses.dataclass(**_OPTIONS)
class DynInterfaceDetection:
    """What a dynamic interface detection looks for.

    Fields:
        name_pattern: The module names to find, * standing for any text and ? for one
            character; empty finds every module.
        kind: Only modules of this kind ("DoIP"); empty finds every kind.
        only_free: 1 leaves out modules that are already connected.
    """
    name_pattern: str = ""
    """
    The module names to find, * standing for any text and ? for one character; empty
    finds every module.
    """
    kind: str = ""
    """Only modules of this kind ("DoIP"); empty finds every kind."""
    only_free: bool = False
    """1 leaves out modules that are already connected."""


@dataclasses.dataclass(**_OPTIONS)
class ModuleDyn:
    """A dynamically detected interface module.

    Fields:
        name: The module's name, by which kel_connectDynInterface connects it.
        long_name: Its long name.
        vendor: Its vendor.
        kind: The kind of interface ("DoIP").
        address: Its network address.
        vendor_module: The vendor module that drives it; None when it has none.
        connected: 1 while the module is connected. C: flag1.
        serial_number: Its serial number.
        firmware: Its firmware version.
        network: The network it was found on.
        resources: Its resources.
        port: The TCP port it listens on.
        exclusive: 1 when the module was connected for exclusive use. C: flag2.
        handle: The engine's handle of the module, never 0.
    """
    name: str = ""
    """The module's name, by which kel_connectDynInterface connects it."""
    long_name: str = ""
    """Its long name."""
    vendor: str = ""
    """Its vendor."""
    kind: str = ""
    """The kind of interface ("DoIP")."""
    address: str = ""
    """Its network address."""
    vendor_module: Optional[InterfaceInformationItem] = None
    """The vendor module that drives it; None when it has none."""
    connected: bool = False
    """1 while the module is connected. C: flag1."""
    serial_number: str = ""
    """Its serial number."""
    firmware: str = ""
    """Its firmware version."""
    network: str = ""
    """The network it was found on."""
    resources: list[Optional[ResourceInformation]] = dataclasses.field(default_factory=list)
    """Its resources."""
    port: int = 0
    """The TCP port it listens on."""
    exclusive: bool = False
    """1 when the module was connected for exclusive use. C: flag2."""
    handle: int = 0
    """The engine's handle of the module, never 0."""

    @property
    def flag1(self) -> bool:
        """The C name of connected; read-only."""
        return self.connected

    @property
    def flag2(self) -> bool:
        """The C name of exclusive; read-only."""
        return self.exclusive


@dataclasses.dataclass(**_OPTIONS)
class DeviceInfo:
    """A device registered with the engine: one per interface the engine knows.

    Fields:
        name: The interface's name. C: text1.
        vendor_id: The vendor's number (USB vendor id style); 0 when unknown. C: value1.
        product_id: The product's number; 0 when unknown. C: value2.
        vendor: The vendor. C: text2.
        serial_number: The serial number. C: text3.
        resources: The number of resources. C: value3.
        firmware: The firmware version. C: text4.
        kind: The kind of interface. C: text5.
        ethernet_pin_state: The Ethernet pin state. C: value4.
        links: The number of physical links. C: value5.
        address: The address. C: text6.
        protocols: The protocols of its resources, each once, in resource order.
        long_name: The long name. C: text7.
        modules: The names of its vendor modules.
        description: A description. C: text8.
        connected: 1 while connected. C: flag.
        handle: The engine's handle of the interface.
        dynamic: 1 for a dynamic interface, 0 for a configured one. C: value6.
        value8: Reserved, 0; nothing says what it will hold.
        value9: Reserved, 0; nothing says what it will hold.
        value10: Reserved, 0; nothing says what it will hold.
    """
    name: str = ""
    """The interface's name. C: text1."""
    vendor_id: int = 0
    """The vendor's number (USB vendor id style); 0 when unknown. C: value1."""
    product_id: int = 0
    """The product's number; 0 when unknown. C: value2."""
    vendor: str = ""
    """The vendor. C: text2."""
    serial_number: str = ""
    """The serial number. C: text3."""
    resources: int = 0
    """The number of resources. C: value3."""
    firmware: str = ""
    """The firmware version. C: text4."""
    kind: str = ""
    """The kind of interface. C: text5."""
    ethernet_pin_state: int = 0
    """The Ethernet pin state. C: value4."""
    links: int = 0
    """The number of physical links. C: value5."""
    address: str = ""
    """The address. C: text6."""
    protocols: list[str] = dataclasses.field(default_factory=list)
    """The protocols of its resources, each once, in resource order."""
    long_name: str = ""
    """The long name. C: text7."""
    modules: list[str] = dataclasses.field(default_factory=list)
    """The names of its vendor modules."""
    description: str = ""
    """A description. C: text8."""
    connected: bool = False
    """1 while connected. C: flag."""
    handle: int = 0
    """The engine's handle of the interface."""
    dynamic: int = 0
    """1 for a dynamic interface, 0 for a configured one. C: value6."""
    value8: int = 0
    """Reserved, 0; nothing says what it will hold."""
    value9: int = 0
    """Reserved, 0; nothing says what it will hold."""
    value10: int = 0
    """Reserved, 0; nothing says what it will hold."""

    @property
    def text1(self) -> str:
        """The C name of name; read-only."""
        return self.name

    @property
    def value1(self) -> int:
        """The C name of vendor_id; read-only."""
        return self.vendor_id

    @property
    def value2(self) -> int:
        """The C name of product_id; read-only."""
        return self.product_id

    @property
    def text2(self) -> str:
        """The C name of vendor; read-only."""
        return self.vendor

    @property
    def text3(self) -> str:
        """The C name of serial_number; read-only."""
        return self.serial_number

    @property
    def value3(self) -> int:
        """The C name of resources; read-only."""
        return self.resources

    @property
    def text4(self) -> str:
        """The C name of firmware; read-only."""
        return self.firmware

    @property
    def text5(self) -> str:
        """The C name of kind; read-only."""
        return self.kind

    @property
    def value4(self) -> int:
        """The C name of ethernet_pin_state; read-only."""
        return self.ethernet_pin_state

    @property
    def value5(self) -> int:
        """The C name of links; read-only."""
        return self.links

    @property
    def text6(self) -> str:
        """The C name of address; read-only."""
        return self.address

    @property
    def text7(self) -> str:
        """The C name of long_name; read-only."""
        return self.long_name

    @property
    def text8(self) -> str:
        """The C name of description; read-only."""
        return self.description

    @property
    def flag(self) -> bool:
        """The C name of connected; read-only."""
        return self.connected

    @property
    def value6(self) -> int:
        """The C name of dynamic; read-only."""
        return self.dynamic


@dataclasses.dataclass(**_OPTIONS)
class PhysicalLinksOnModule:
    """The physical links on one interface module.

    Fields:
        module: The module's name: the name of an interface.
        links: The module's physical links.
    """
    module: str = ""
    """The module's name: the name of an interface."""
    links: list[Optional[PhysicalLink]] = dataclasses.field(default_factory=list)
    """The module's physical links."""


@dataclasses.dataclass(**_OPTIONS)
class PhysicalLink:
    """One physical link of a module (a bus line of the vehicle connector). itemText1 is
    its name, itemText2 its type ("ISO_11898_2_DWCAN"), itemText3 the connector pins it
    uses and itemText4 a description.

    Fields:
        name: The link's name. C: itemText1.
        type: Its type. C: itemText2.
        pins: Its pins. C: itemText3.
        description: Its description. C: itemText4.
        baudrate: Its speed in bits per second.
        enabled: 1 when the engine may use the link.
    """
    name: str = ""
    """The link's name. C: itemText1."""
    type: str = ""
    """Its type. C: itemText2."""
    pins: str = ""
    """Its pins. C: itemText3."""
    description: str = ""
    """Its description. C: itemText4."""
    baudrate: int = 0
    """Its speed in bits per second."""
    enabled: bool = False
    """1 when the engine may use the link."""

    @property
    def item_text1(self) -> str:
        """The C name of name; read-only."""
        return self.name

    @property
    def item_text2(self) -> str:
        """The C name of type; read-only."""
        return self.type

    @property
    def item_text3(self) -> str:
        """The C name of pins; read-only."""
        return self.pins

    @property
    def item_text4(self) -> str:
        """The C name of description; read-only."""
        return self.description


@dataclasses.dataclass(**_OPTIONS)
class InterfaceConfiguration:
    """The engine's configuration of its interfaces.

    Fields:
        entries: One entry per configured interface.
    """
    entries: list[Optional[InterfaceConfigurationEntry]] = dataclasses.field(default_factory=list)
    """One entry per configured interface."""


@dataclasses.dataclass(**_OPTIONS)
class InterfaceConfigurationEntry:
    """One entry of the interface configuration: one interface.

    Fields:
        name: The interface's name; must not be empty. C: text1.
        long_name: Its long name. C: text2.
        vendor: Its vendor. C: text3.
        kind: The kind of interface. C: text4.
        address: Its address. C: text5.
        ethernet_pin_state: Its Ethernet pin state. C: value.
        enabled: 1 when kel_connectInterfaces connects it. C: flag.
        resources: Its resources. C: items.
    """
    name: str = ""
    """The interface's name; must not be empty. C: text1."""
    long_name: str = ""
    """Its long name. C: text2."""
    vendor: str = ""
    """Its vendor. C: text3."""
    kind: str = ""
    """The kind of interface. C: text4."""
    address: str = ""
    """Its address. C: text5."""
    ethernet_pin_state: int = 0
    """Its Ethernet pin state. C: value."""
    enabled: bool = False
    """1 when kel_connectInterfaces connects it. C: flag."""
    resources: list[Optional[ResourceInformation]] = dataclasses.field(default_factory=list)
    """Its resources. C: items."""

    @property
    def text1(self) -> str:
        """The C name of name; read-only."""
        return self.name

    @property
    def text2(self) -> str:
        """The C name of long_name; read-only."""
        return self.long_name

    @property
    def text3(self) -> str:
        """The C name of vendor; read-only."""
        return self.vendor

    @property
    def text4(self) -> str:
        """The C name of kind; read-only."""
        return self.kind

    @property
    def text5(self) -> str:
        """The C name of address; read-only."""
        return self.address

    @property
    def value(self) -> int:
        """The C name of ethernet_pin_state; read-only."""
        return self.ethernet_pin_state

    @property
    def flag(self) -> bool:
        """The C name of enabled; read-only."""
        return self.enabled

    @property
    def items(self) -> list[Optional[ResourceInformation]]:
        """The C name of resources; read-only."""
        return self.resources


@dataclasses.dataclass(**_OPTIONS)
class InterfaceProvider:
    """A provider of diagnostic interfaces. itemText1 is its name, itemText2 a description,
    itemText3 its vendor and itemText4 its version.

    Fields:
        name: The provider's name. C: itemText1.
        description: Its description. C: itemText2.
        vendor: Its vendor. C: itemText3.
        version: Its version. C: itemText4.
        library: The library through which the engine reaches the provider. C: text.
        priority: Its priority: lower numbers are asked first. C: value.
        enabled: 1 when the provider is enabled. C: flag.
    """
    name: str = ""
    """The provider's name. C: itemText1."""
    description: str = ""
    """Its description. C: itemText2."""
    vendor: str = ""
    """Its vendor. C: itemText3."""
    version: str = ""
    """Its version. C: itemText4."""
    library: str = ""
    """The library through which the engine reaches the provider. C: text."""
    priority: int = 0
    """Its priority: lower numbers are asked first. C: value."""
    enabled: bool = False
    """1 when the provider is enabled. C: flag."""

    @property
    def item_text1(self) -> str:
        """The C name of name; read-only."""
        return self.name

    @property
    def item_text2(self) -> str:
        """The C name of description; read-only."""
        return self.description

    @property
    def item_text3(self) -> str:
        """The C name of vendor; read-only."""
        return self.vendor

    @property
    def item_text4(self) -> str:
        """The C name of version; read-only."""
        return self.version

    @property
    def text(self) -> str:
        """The C name of library; read-only."""
        return self.library

    @property
    def value(self) -> int:
        """The C name of priority; read-only."""
        return self.priority

    @property
    def flag(self) -> bool:
        """The C name of enabled; read-only."""
        return self.enabled


@dataclasses.dataclass(**_OPTIONS)
class DoIPParameter:
    """The engine's default DoIP parameters.

    Fields:
        discovery_port: The UDP port of vehicle discovery (13400). C: value1.
        announcement_wait_ms: How long a broadcast waits for vehicle announcements, in
            milliseconds. C: value2.
        broadcast_address: The broadcast address. C: text.
        tcp_port: The TCP port of diagnostic connections (13400). C: value3.
        adapters: The network adapters the broadcast goes out on. C: strings.
    """
    discovery_port: int = 0
    """The UDP port of vehicle discovery (13400). C: value1."""
    announcement_wait_ms: int = 0
    """How long a broadcast waits for vehicle announcements, in milliseconds. C: value2."""
    broadcast_address: str = ""
    """The broadcast address. C: text."""
    tcp_port: int = 0
    """The TCP port of diagnostic connections (13400). C: value3."""
    adapters: list[str] = dataclasses.field(default_factory=list)
    """The network adapters the broadcast goes out on. C: strings."""

    @property
    def value1(self) -> int:
        """The C name of discovery_port; read-only."""
        return self.discovery_port

    @property
    def value2(self) -> int:
        """The C name of announcement_wait_ms; read-only."""
        return self.announcement_wait_ms

    @property
    def text(self) -> str:
        """The C name of broadcast_address; read-only."""
        return self.broadcast_address

    @property
    def value3(self) -> int:
        """The C name of tcp_port; read-only."""
        return self.tcp_port

    @property
    def strings(self) -> list[str]:
        """The C name of adapters; read-only."""
        return self.adapters


@dataclasses.dataclass(**_OPTIONS)
class WLanSignalData:
    """The WLAN signal of an interface.

    Fields:
        quality: The signal quality in percent. C: value1.
        signal_dbm_below_zero: The signal strength, in dBm below 0 (60 means -60 dBm). C:
            value2.
        noise_dbm_below_zero: The noise, in dBm below 0. C: value3.
        channel: The channel. C: value4.
        frequency_mhz: The frequency in MHz. C: value5.
        bytes_received: The bytes received since the interface connected. C: value6.
        transmit_rate_mbits: The transmit rate in Mbit/s. C: value7.
        receive_rate_mbits: The receive rate in Mbit/s. C: value8.
        retransmissions: The retransmissions. C: value9.
        lost_beacons: The lost beacons. C: value10.
        channel_width_mhz: The channel width in MHz; 16 bits wide, as the engine's. C:
            value11.
        ssid: The network name (SSID). C: text.
    """
    quality: int = 0
    """The signal quality in percent. C: value1."""
    signal_dbm_below_zero: int = 0
    """The signal strength, in dBm below 0 (60 means -60 dBm). C: value2."""
    noise_dbm_below_zero: int = 0
    """The noise, in dBm below 0. C: value3."""
    channel: int = 0
    """The channel. C: value4."""
    frequency_mhz: int = 0
    """The frequency in MHz. C: value5."""
    bytes_received: int = 0
    """The bytes received since the interface connected. C: value6."""
    transmit_rate_mbits: int = 0
    """The transmit rate in Mbit/s. C: value7."""
    receive_rate_mbits: int = 0
    """The receive rate in Mbit/s. C: value8."""
    retransmissions: int = 0
    """The retransmissions. C: value9."""
    lost_beacons: int = 0
    """The lost beacons. C: value10."""
    channel_width_mhz: int = 0
    """The channel width in MHz; 16 bits wide, as the engine's. C: value11."""
    ssid: str = ""
    """The network name (SSID). C: text."""

    @property
    def value1(self) -> int:
        """The C name of quality; read-only."""
        return self.quality

    @property
    def value2(self) -> int:
        """The C name of signal_dbm_below_zero; read-only."""
        return self.signal_dbm_below_zero

    @property
    def value3(self) -> int:
        """The C name of noise_dbm_below_zero; read-only."""
        return self.noise_dbm_below_zero

    @property
    def value4(self) -> int:
        """The C name of channel; read-only."""
        return self.channel

    @property
    def value5(self) -> int:
        """The C name of frequency_mhz; read-only."""
        return self.frequency_mhz

    @property
    def value6(self) -> int:
        """The C name of bytes_received; read-only."""
        return self.bytes_received

    @property
    def value7(self) -> int:
        """The C name of transmit_rate_mbits; read-only."""
        return self.transmit_rate_mbits

    @property
    def value8(self) -> int:
        """The C name of receive_rate_mbits; read-only."""
        return self.receive_rate_mbits

    @property
    def value9(self) -> int:
        """The C name of retransmissions; read-only."""
        return self.retransmissions

    @property
    def value10(self) -> int:
        """The C name of lost_beacons; read-only."""
        return self.lost_beacons

    @property
    def value11(self) -> int:
        """The C name of channel_width_mhz; read-only."""
        return self.channel_width_mhz

    @property
    def text(self) -> str:
        """The C name of ssid; read-only."""
        return self.ssid


@dataclasses.dataclass(**_OPTIONS)
class SupportedInterface:
    """A kind of interface the engine supports.

    Fields:
        kind: The kind's name ("D-PDU", "DoIP"), as InterfaceInformation.text1 carries it.
            C: text1.
        description: A description. C: text2.
        protocols: The protocols it carries. C: names.
        max_interfaces: How many interfaces of the kind the engine takes at most. C: value.
        vendor_module: The vendor module that usually drives it. C: text3.
    """
    kind: str = ""
    """The kind's name ("D-PDU", "DoIP"), as InterfaceInformation.text1 carries it. C: text1."""
    description: str = ""
    """A description. C: text2."""
    protocols: list[str] = dataclasses.field(default_factory=list)
    """The protocols it carries. C: names."""
    max_interfaces: int = 0
    """How many interfaces of the kind the engine takes at most. C: value."""
    vendor_module: str = ""
    """The vendor module that usually drives it. C: text3."""

    @property
    def text1(self) -> str:
        """The C name of kind; read-only."""
        return self.kind

    @property
    def text2(self) -> str:
        """The C name of description; read-only."""
        return self.description

    @property
    def names(self) -> list[str]:
        """The C name of protocols; read-only."""
        return self.protocols

    @property
    def value(self) -> int:
        """The C name of max_interfaces; read-only."""
        return self.max_interfaces

    @property
    def text3(self) -> str:
        """The C name of vendor_module; read-only."""
        return self.vendor_module


@dataclasses.dataclass(**_OPTIONS)
class MonitoringItem:
    """One exchange with a control unit seen by a monitoring link: the request and the
    unit's answer, live or replayed from a trace file.

    Fields:
        unit: The control unit's name. C: text1.
        data: The request's bytes; None and 0 when empty.
        time: Vehicle time of the request, in milliseconds. C: value1.
        number: The item's number in its link, from 1; a gap means items were dropped. C:
            value2.
        answered: 1 when the unit answered. C: flag1.
        positive: 1 when the answer is a positive response. C: flag2.
        replayed: 1 when the item was replayed from a trace file. C: flag3.
        nrc: The negative response code; 0 for a positive answer or none. C: value3.
        source: Where the item comes from: the link's name, or the trace file's path when
            replayed. C: text2.
        service_id: The request's service id (its first byte); 0 for an empty request. C:
            value4.
        detail: The unit's answer; None when it stayed silent.
    """
    unit: str = ""
    """The control unit's name. C: text1."""
    data: builtins.bytes = b""
    """The request's bytes; None and 0 when empty."""
    time: int = 0
    """Vehicle time of the request, in milliseconds. C: value1."""
    number: int = 0
    """The item's number in its link, from 1; a gap means items were dropped. C: value2."""
    answered: bool = False
    """1 when the unit answered. C: flag1."""
    positive: bool = False
    """1 when the answer is a positive response. C: flag2."""
    replayed: bool = False
    """1 when the item was replayed from a trace file. C: flag3."""
    nrc: int = 0
    """The negative response code; 0 for a positive answer or none. C: value3."""
    source: str = ""
    """
    Where the item comes from: the link's name, or the trace file's path when replayed.
    C: text2.
    """
    service_id: int = 0
    """The request's service id (its first byte); 0 for an empty request. C: value4."""
    detail: Optional[MonitoringItemDetail] = None
    """The unit's answer; None when it stayed silent."""

    @property
    def text1(self) -> str:
        """The C name of unit; read-only."""
        return self.unit

    @property
    def value1(self) -> int:
        """The C name of time; read-only."""
        return self.time

    @property
    def value2(self) -> int:
        """The C name of number; read-only."""
        return self.number

    @property
    def flag1(self) -> bool:
        """The C name of answered; read-only."""
        return self.answered

    @property
    def flag2(self) -> bool:
        """The C name of positive; read-only."""
        return self.positive

    @property
    def flag3(self) -> bool:
        """The C name of replayed; read-only."""
        return self.replayed

    @property
    def value3(self) -> int:
        """The C name of nrc; read-only."""
        return self.nrc

    @property
    def text2(self) -> str:
        """The C name of source; read-only."""
        return self.source

    @property
    def value4(self) -> int:
        """The C name of service_id; read-only."""
        return self.service_id


@dataclasses.dataclass(**_OPTIONS)
class MonitoringItemDetail:
    """The answer part of a MonitoringItem.

    Fields:
        response: The answer's bytes.
        summary: The answer for reading: "positive response" or "negative response 0x31:
            requestOutOfRange". C: text.
    """
    response: builtins.bytes = b""
    """The answer's bytes."""
    summary: str = ""
    """
    The answer for reading: "positive response" or "negative response 0x31:
    requestOutOfRange". C: text.
    """

    @property
    def text(self) -> str:
        """The C name of summary; read-only."""
        return self.summary


@dataclasses.dataclass(**_OPTIONS)
class PduMonitoringItem:
    """One protocol data unit seen by a PDU monitor: a request sent to a control unit or
    the unit's response.

    Fields:
        direction: The direction: 1 request (tester to unit), 2 response (unit to tester).
            C: value1.
        data: The unit's bytes as sent; None and 0 when empty.
        detail: Where the unit stands in the traffic.
        unit: The control unit's name. C: text1.
        direction_text: The direction as a word: "request" or "response". C: text2.
        time: Vehicle time of the exchange, in milliseconds. C: value2.
        hex: The bytes as spaced hex digits, "19 02 FF". C: text3.
    """
    direction: int = 0
    """The direction: 1 request (tester to unit), 2 response (unit to tester). C: value1."""
    data: builtins.bytes = b""
    """The unit's bytes as sent; None and 0 when empty."""
    detail: Optional[PduMonitoringItemDetail] = None
    """Where the unit stands in the traffic."""
    unit: str = ""
    """The control unit's name. C: text1."""
    direction_text: str = ""
    """The direction as a word: "request" or "response". C: text2."""
    time: int = 0
    """Vehicle time of the exchange, in milliseconds. C: value2."""
    hex: str = ""
    """The bytes as spaced hex digits, "19 02 FF". C: text3."""

    @property
    def value1(self) -> int:
        """The C name of direction; read-only."""
        return self.direction

    @property
    def text1(self) -> str:
        """The C name of unit; read-only."""
        return self.unit

    @property
    def text2(self) -> str:
        """The C name of direction_text; read-only."""
        return self.direction_text

    @property
    def value2(self) -> int:
        """The C name of time; read-only."""
        return self.time

    @property
    def text3(self) -> str:
        """The C name of hex; read-only."""
        return self.hex


@dataclasses.dataclass(**_OPTIONS)
class PduMonitoringItemDetail:
    """Where a PduMonitoringItem stands in the traffic.

    Fields:
        sequence: The item's number in its monitor, from 1; a gap means items were dropped.
        exchange: The exchange's number on the vehicle: a request and its response share it.
    """
    sequence: int = 0
    """The item's number in its monitor, from 1; a gap means items were dropped."""
    exchange: int = 0
    """The exchange's number on the vehicle: a request and its response share it."""


@dataclasses.dataclass(**_OPTIONS)
class FileInfo:
    """A file in the engine's file system.

    Fields:
        name: The entry's name.
        error: The entry's own error; None when none.
        read_only: 1 when the entry is read-only. C: flag.
        attributes: Attributes: 0x01 read-only, 0x02 hidden (a leading dot), 0x10 directory,
            0x400 reached through a link. C: value1.
        path: The engine path. C: text1.
        modified: Last write time in UTC (2026-11-22T07:42:00Z). C: text2.
        size: The size in bytes. C: value2.
        modified_ms: Last write time in milliseconds since 1970. C: value3.
    """
    name: str = ""
    """The entry's name."""
    error: Optional[KelError] = None
    """The entry's own error; None when none."""
    read_only: bool = False
    """1 when the entry is read-only. C: flag."""
    attributes: int = 0
    """
    Attributes: 0x01 read-only, 0x02 hidden (a leading dot), 0x10 directory, 0x400
    reached through a link. C: value1.
    """
    path: str = ""
    """The engine path. C: text1."""
    modified: str = ""
    """Last write time in UTC (2026-11-22T07:42:00Z). C: text2."""
    size: int = 0
    """The size in bytes. C: value2."""
    modified_ms: int = 0
    """Last write time in milliseconds since 1970. C: value3."""

    @property
    def flag(self) -> bool:
        """The C name of read_only; read-only."""
        return self.read_only

    @property
    def value1(self) -> int:
        """The C name of attributes; read-only."""
        return self.attributes

    @property
    def text1(self) -> str:
        """The C name of path; read-only."""
        return self.path

    @property
    def text2(self) -> str:
        """The C name of modified; read-only."""
        return self.modified

    @property
    def value2(self) -> int:
        """The C name of size; read-only."""
        return self.size

    @property
    def value3(self) -> int:
        """The C name of modified_ms; read-only."""
        return self.modified_ms


@dataclasses.dataclass(**_OPTIONS)
class DirectoryInfo:
    """A directory with its files and, recursively, its sub-directories. Given as input it
    carries its entry members and its files only.

    Fields:
        name: The entry's name.
        error: The entry's own error; None when none.
        read_only: 1 when the entry is read-only. C: flag.
        attributes: Attributes: 0x01 read-only, 0x02 hidden (a leading dot), 0x10 directory,
            0x400 reached through a link. C: value1.
        path: The engine path. C: text1.
        modified: Last write time in UTC (2026-11-22T07:42:00Z). C: text2.
        files: The directory's files.
        directories: The sub-directories; not read from input.
        contents_read: 1 when the contents were read (not for the sub-directories of a one-
            level read, links, or below 64 levels); not read from input. C: flag2.
    """
    name: str = ""
    """The entry's name."""
    error: Optional[KelError] = None
    """The entry's own error; None when none."""
    read_only: bool = False
    """1 when the entry is read-only. C: flag."""
    attributes: int = 0
    """
    Attributes: 0x01 read-only, 0x02 hidden (a leading dot), 0x10 directory, 0x400
    reached through a link. C: value1.
    """
    path: str = ""
    """The engine path. C: text1."""
    modified: str = ""
    """Last write time in UTC (2026-11-22T07:42:00Z). C: text2."""
    files: list[Optional[FileInfo]] = dataclasses.field(default_factory=list)
    """The directory's files."""
    directories: list[Optional[DirectoryInfo]] = dataclasses.field(default_factory=list)
    """The sub-directories; not read from input."""
    contents_read: bool = False
    """
    1 when the contents were read (not for the sub-directories of a one-level read,
    links, or below 64 levels); not read from input. C: flag2.
    """

    @property
    def flag(self) -> bool:
        """The C name of read_only; read-only."""
        return self.read_only

    @property
    def value1(self) -> int:
        """The C name of attributes; read-only."""
        return self.attributes

    @property
    def text1(self) -> str:
        """The C name of path; read-only."""
        return self.path

    @property
    def text2(self) -> str:
        """The C name of modified; read-only."""
        return self.modified

    @property
    def flag2(self) -> bool:
        """The C name of contents_read; read-only."""
        return self.contents_read


@dataclasses.dataclass(**_OPTIONS)
class FileCopyResult:
    """The outcome of copying one file.

    Fields:
        failed: 0 copied, 1 not. C: value1.
        source: The source as given. C: text.
        error: The copy's own error; None when none.
        file: The copied file; None when none.
        index: The index in the configuration's list. C: value2.
    """
    failed: int = 0
    """0 copied, 1 not. C: value1."""
    source: str = ""
    """The source as given. C: text."""
    error: Optional[KelError] = None
    """The copy's own error; None when none."""
    file: Optional[FileInfo] = None
    """The copied file; None when none."""
    index: int = 0
    """The index in the configuration's list. C: value2."""

    @property
    def value1(self) -> int:
        """The C name of failed; read-only."""
        return self.failed

    @property
    def text(self) -> str:
        """The C name of source; read-only."""
        return self.source

    @property
    def value2(self) -> int:
        """The C name of index; read-only."""
        return self.index


@dataclasses.dataclass(**_OPTIONS)
class DirectoryCopyResult:
    """The outcome of copying one directory.

    Fields:
        outcome: 0 copied whole, 1 some files failed (the error lists them), 2 not copied.
            C: value1.
        source: The source as given. C: text.
        error: The copy's own error; None when none.
        directory: The nested directory result; None when none.
    """
    outcome: int = 0
    """0 copied whole, 1 some files failed (the error lists them), 2 not copied. C: value1."""
    source: str = ""
    """The source as given. C: text."""
    error: Optional[KelError] = None
    """The copy's own error; None when none."""
    directory: Optional[DirectoryCopyItem] = None
    """The nested directory result; None when none."""

    @property
    def value1(self) -> int:
        """The C name of outcome; read-only."""
        return self.outcome

    @property
    def text(self) -> str:
        """The C name of source; read-only."""
        return self.source


@dataclasses.dataclass(**_OPTIONS)
class DirectoryCopyItem:
    """What copying one directory did: where from and to, how much, and every file that
    failed, each with its own error.

    Fields:
        source: The directory copied.
        target: The copy.
        files: Files copied.
        directories: Directories created.
        bytes: Bytes copied.
        failures: One result per file that failed; None when none.
    """
    source: str = ""
    """The directory copied."""
    target: str = ""
    """The copy."""
    files: int = 0
    """Files copied."""
    directories: int = 0
    """Directories created."""
    bytes: int = 0
    """Bytes copied."""
    failures: list[Optional[FileCopyResult]] = dataclasses.field(default_factory=list)
    """One result per file that failed; None when none."""


@dataclasses.dataclass(**_OPTIONS)
class PathCopyResult:
    """The outcome of copying one path.

    Fields:
        failed: 0 copied, 1 not. C: value1.
        error: The copy's own error; None when none.
        is_directory: 0 a file, 1 a directory. C: value2.
        item: The nested record; None when none.
    """
    failed: int = 0
    """0 copied, 1 not. C: value1."""
    error: Optional[KelError] = None
    """The copy's own error; None when none."""
    is_directory: int = 0
    """0 a file, 1 a directory. C: value2."""
    item: Optional[PathCopyItem] = None
    """The nested record; None when none."""

    @property
    def value1(self) -> int:
        """The C name of failed; read-only."""
        return self.failed

    @property
    def value2(self) -> int:
        """The C name of is_directory; read-only."""
        return self.is_directory


@dataclasses.dataclass(**_OPTIONS)
class PathCopyItem:
    """One entry of a path copy: the source and target of a file or directory and its size.

    Fields:
        source: The entry copied.
        target: Its copy.
        size: The file's size in bytes; 0 for a directory.
    """
    source: str = ""
    """The entry copied."""
    target: str = ""
    """Its copy."""
    size: int = 0
    """The file's size in bytes; 0 for a directory."""


@dataclasses.dataclass(**_OPTIONS)
class FileReferenceResult:
    """The references of one file.

    Fields:
        references: The file's references.
        error: The lookup's own error; None when none.
    """
    references: list[str] = dataclasses.field(default_factory=list)
    """The file's references."""
    error: Optional[KelError] = None
    """The lookup's own error; None when none."""


@dataclasses.dataclass(**_OPTIONS)
class FileCopyConfig:
    """What copyFiles and copyProjectWithFilters copy: files into one directory.

    Fields:
        files: The files to copy; copyProjectWithFilters does not read them.
        target: The directory the copies go into.
        overwrite: Replace files that exist at the target.
    """
    files: list[str] = dataclasses.field(default_factory=list)
    """The files to copy; copyProjectWithFilters does not read them."""
    target: str = ""
    """The directory the copies go into."""
    overwrite: bool = False
    """Replace files that exist at the target."""


@dataclasses.dataclass(**_OPTIONS)
class DirectoryCopyConfig:
    """What copyDirectories copies: directories into one directory.

    Fields:
        directories: The directories to copy, each into target under its own name.
        target: The directory the copies go into.
        overwrite: Replace files that exist at the target.
        recursive: Copy sub-directories too, not only each directory's files.
        pattern: Only files whose names match (* and ?); empty for every file.
    """
    directories: list[str] = dataclasses.field(default_factory=list)
    """The directories to copy, each into target under its own name."""
    target: str = ""
    """The directory the copies go into."""
    overwrite: bool = False
    """Replace files that exist at the target."""
    recursive: bool = False
    """Copy sub-directories too, not only each directory's files."""
    pattern: str = ""
    """Only files whose names match (* and ?); empty for every file."""


@dataclasses.dataclass(**_OPTIONS)
class PathCopyConfig:
    """What copyPath copies: one file or directory tree to a new path.

    Fields:
        source: The file or directory to copy.
        target: The path of the copy itself, not its parent.
        overwrite: Replace files that exist at the target.
    """
    source: str = ""
    """The file or directory to copy."""
    target: str = ""
    """The path of the copy itself, not its parent."""
    overwrite: bool = False
    """Replace files that exist at the target."""


@dataclasses.dataclass(**_OPTIONS)
class UserInfo:
    """A user of the engine's server. The password is never handed out; the engine keeps
    only a salted hash of it.

    Fields:
        name: The user's name.
        role_name: The name of the user's role ("operator", "administrator"). C: text.
        role: The user's role: 1 operator, 2 administrator. C: value.
    """
    name: str = ""
    """The user's name."""
    role_name: str = ""
    """The name of the user's role ("operator", "administrator"). C: text."""
    role: int = 0
    """The user's role: 1 operator, 2 administrator. C: value."""

    @property
    def text(self) -> str:
        """The C name of role_name; read-only."""
        return self.role_name

    @property
    def value(self) -> int:
        """The C name of role; read-only."""
        return self.role


@dataclasses.dataclass(**_OPTIONS)
class LogInOutConfig:
    """What logIn and logOut pass to the engine: who logs in or out, and for logIn the
    password. The password never comes back, is never recorded and never traced.

    Fields:
        user: The user's name; for logOut, empty means whoever is logged in.
        password: The user's password (logIn); logOut does not read it.
    """
    user: str = ""
    """The user's name; for logOut, empty means whoever is logged in."""
    password: str = dataclasses.field(default="", repr=False)
    """The user's password (logIn); logOut does not read it."""


@dataclasses.dataclass(**_OPTIONS)
class TarnApiServerConfig:
    """The configuration of the engine's server.

    Fields:
        users: The server's users, by name.
        user_management: 1 while the server's user management is on. C: flag.
        connections: The number of remote connections now. C: value1.
        address: Where the server listens; empty while it is stopped. C: text1.
        sovd_address: Where the SOVD server listens; empty while it is stopped. C: text2.
        filters: The file filters of the server's clients; the simulated server has none.
        identity_provider: The name of the outside identity provider. C: text3.
        login_address: The identity provider's login address, without a login's state. C:
            text4.
        logged_in: The users logged in now, one entry per login. C: users2.
        login_attempts: Failed logins of one user before the engine throttles; 16 bits wide,
            as the engine's. C: value2.
    """
    users: list[Optional[UserInfo]] = dataclasses.field(default_factory=list)
    """The server's users, by name."""
    user_management: bool = False
    """1 while the server's user management is on. C: flag."""
    connections: int = 0
    """The number of remote connections now. C: value1."""
    address: str = ""
    """Where the server listens; empty while it is stopped. C: text1."""
    sovd_address: str = ""
    """Where the SOVD server listens; empty while it is stopped. C: text2."""
    filters: list[Optional[FileFilter]] = dataclasses.field(default_factory=list)
    """The file filters of the server's clients; the simulated server has none."""
    identity_provider: str = ""
    """The name of the outside identity provider. C: text3."""
    login_address: str = ""
    """The identity provider's login address, without a login's state. C: text4."""
    logged_in: list[Optional[UserInfo]] = dataclasses.field(default_factory=list)
    """The users logged in now, one entry per login. C: users2."""
    login_attempts: int = 0
    """
    Failed logins of one user before the engine throttles; 16 bits wide, as the
    engine's. C: value2.
    """

    @property
    def flag(self) -> bool:
        """The C name of user_management; read-only."""
        return self.user_management

    @property
    def value1(self) -> int:
        """The C name of connections; read-only."""
        return self.connections

    @property
    def text1(self) -> str:
        """The C name of address; read-only."""
        return self.address

    @property
    def text2(self) -> str:
        """The C name of sovd_address; read-only."""
        return self.sovd_address

    @property
    def text3(self) -> str:
        """The C name of identity_provider; read-only."""
        return self.identity_provider

    @property
    def text4(self) -> str:
        """The C name of login_address; read-only."""
        return self.login_address

    @property
    def users2(self) -> list[Optional[UserInfo]]:
        """The C name of logged_in; read-only."""
        return self.logged_in

    @property
    def value2(self) -> int:
        """The C name of login_attempts; read-only."""
        return self.login_attempts


@dataclasses.dataclass(**_OPTIONS)
class ServerSettings:
    """The settings of the engine's server; plain data that owns no memory.

    Fields:
        running: 1 while the server runs. C: flag.
        connections: The number of remote connections now. C: value1.
        users: The number of users. C: value2.
        sovd_running: 1 while the SOVD server runs. C: value3.
    """
    running: bool = False
    """1 while the server runs. C: flag."""
    connections: int = 0
    """The number of remote connections now. C: value1."""
    users: int = 0
    """The number of users. C: value2."""
    sovd_running: int = 0
    """1 while the SOVD server runs. C: value3."""

    @property
    def flag(self) -> bool:
        """The C name of running; read-only."""
        return self.running

    @property
    def value1(self) -> int:
        """The C name of connections; read-only."""
        return self.connections

    @property
    def value2(self) -> int:
        """The C name of users; read-only."""
        return self.users

    @property
    def value3(self) -> int:
        """The C name of sovd_running; read-only."""
        return self.sovd_running


@dataclasses.dataclass(**_OPTIONS)
class FlashSessionInfo:
    """One flash session a target offers: the software it installs and what installing it
    takes.

    Fields:
        name: The session's name, as executeFlashSessions takes it.
        target: The target it flashes.
        description: What the session installs, for a person.
        version: The software version the target reports after it.
        size: The bytes the session downloads into the target.
        duration: How long it is expected to take, in milliseconds.
        level: The security level the target must have unlocked.
    """
    name: str = ""
    """The session's name, as executeFlashSessions takes it."""
    target: str = ""
    """The target it flashes."""
    description: str = ""
    """What the session installs, for a person."""
    version: str = ""
    """The software version the target reports after it."""
    size: int = 0
    """The bytes the session downloads into the target."""
    duration: int = 0
    """How long it is expected to take, in milliseconds."""
    level: int = 0
    """The security level the target must have unlocked."""


@dataclasses.dataclass(**_OPTIONS)
class FlashSessionResult:
    """The outcome of one flash session, or how far it has got in an asynchronous report.

    Fields:
        name: The session's name.
        target: The target flashed.
        status: 0 flashed, 1 running (a report before the end), 2 failed, 3 not run.
        version_before: The software version the target reported before the session.
        version_after: The version it reports now; empty while an update is incomplete.
        size: The bytes to download.
        transferred: The bytes downloaded so far.
        progress: Per cent done, 0 to 100.
        duration: The milliseconds the session has taken so far.
        error: Why the session failed or was not run; None when it did not.
    """
    name: str = ""
    """The session's name."""
    target: str = ""
    """The target flashed."""
    status: FlashStatus = FlashStatus(0)
    """0 flashed, 1 running (a report before the end), 2 failed, 3 not run."""
    version_before: str = ""
    """The software version the target reported before the session."""
    version_after: str = ""
    """The version it reports now; empty while an update is incomplete."""
    size: int = 0
    """The bytes to download."""
    transferred: int = 0
    """The bytes downloaded so far."""
    progress: int = 0
    """Per cent done, 0 to 100."""
    duration: int = 0
    """The milliseconds the session has taken so far."""
    error: Optional[KelError] = None
    """Why the session failed or was not run; None when it did not."""


@dataclasses.dataclass(**_OPTIONS)
class FlashSessionsConfig:
    """What executeFlashSessionsConfig runs; an input that it consumes.

    Fields:
        target: The target to flash.
        sessions: The sessions to run, by name, in this order.
        block_length: The largest block to transfer at once in bytes; 0: as large as the
            target takes.
        stop_on_error: 1: a failed session leaves the later ones not run; 0: they run
            anyway.
    """
    target: str = ""
    """The target to flash."""
    sessions: list[str] = dataclasses.field(default_factory=list)
    """The sessions to run, by name, in this order."""
    block_length: int = 0
    """The largest block to transfer at once in bytes; 0: as large as the target takes."""
    stop_on_error: bool = False
    """1: a failed session leaves the later ones not run; 0: they run anyway."""


@dataclasses.dataclass(**_OPTIONS)
class CodingStringResult:
    """The coding of one target.

    Fields:
        target: The target's name.
        status: 0 read, 1 silent ECU, 2 unknown target, 3 refused or not coded.
        identifier: The data identifier the coding is kept in, as hex digits.
        coding: The coding as text.
        data: The coding's raw bytes; None when none were read.
        error: The error of this target, or None.
    """
    target: str = ""
    """The target's name."""
    status: TargetResultStatus = TargetResultStatus(0)
    """0 read, 1 silent ECU, 2 unknown target, 3 refused or not coded."""
    identifier: str = ""
    """The data identifier the coding is kept in, as hex digits."""
    coding: str = ""
    """The coding as text."""
    data: builtins.bytes = b""
    """The coding's raw bytes; None when none were read."""
    error: Optional[KelError] = None
    """The error of this target, or None."""


@dataclasses.dataclass(**_OPTIONS)
class CodingFileResult:
    """What writing a coding file did to one target.

    Fields:
        target: The target's name.
        status: 0 written and read back, 1 silent ECU, 2 unknown target, 3 refused or not in
            the file.
        written: The coding the file gives for the target, as text.
        coding: The coding read back after writing, as text.
        data: The raw bytes read back; None when none were read.
        verified: 1 when what was read back is what was written.
        error: The error of this target, or None.
    """
    target: str = ""
    """The target's name."""
    status: TargetResultStatus = TargetResultStatus(0)
    """0 written and read back, 1 silent ECU, 2 unknown target, 3 refused or not in the file."""
    written: str = ""
    """The coding the file gives for the target, as text."""
    coding: str = ""
    """The coding read back after writing, as text."""
    data: builtins.bytes = b""
    """The raw bytes read back; None when none were read."""
    verified: bool = False
    """1 when what was read back is what was written."""
    error: Optional[KelError] = None
    """The error of this target, or None."""


@dataclasses.dataclass(**_OPTIONS)
class QuickTestResult:
    """The quick test of one target: its variant and its DTCs, read in one pass.

    Fields:
        target: The target's name.
        status: 0 tested, 1 silent ECU, 2 unknown target, 3 refused.
        variant: The variant identified; empty when none was.
        identified: 1 when the variant was identified.
        dtcs: The DTCs read, as readDtcs gives them; dtcCount is the target's DTC count.
        error: The error of this target, or None.
    """
    target: str = ""
    """The target's name."""
    status: TargetResultStatus = TargetResultStatus(0)
    """0 tested, 1 silent ECU, 2 unknown target, 3 refused."""
    variant: str = ""
    """The variant identified; empty when none was."""
    identified: bool = False
    """1 when the variant was identified."""
    dtcs: list[Optional[DtcResult]] = dataclasses.field(default_factory=list)
    """The DTCs read, as readDtcs gives them; dtcCount is the target's DTC count."""
    error: Optional[KelError] = None
    """The error of this target, or None."""


@dataclasses.dataclass(**_OPTIONS)
class EcuConfigurationResult:
    """What applying an ECU configuration did to one target.

    Fields:
        target: The target's name.
        configuration: The configuration applied.
        status: 0 applied, 1 silent ECU, 2 unknown target, 3 refused or not part of the
            configuration.
        written: The values written to the target.
        error: The error of this target, or None.
    """
    target: str = ""
    """The target's name."""
    configuration: str = ""
    """The configuration applied."""
    status: TargetResultStatus = TargetResultStatus(0)
    """0 applied, 1 silent ECU, 2 unknown target, 3 refused or not part of the configuration."""
    written: int = 0
    """The values written to the target."""
    error: Optional[KelError] = None
    """The error of this target, or None."""


@dataclasses.dataclass(**_OPTIONS)
class EcuOrderEntry:
    """One control unit's place in an ECU order, the order in which a vehicle update visits
    the units.

    Fields:
        target: The unit's name.
        bus: The bus it is reached on, as the vehicle description names it.
        address: Its diagnostic address.
        gateway: 1 for the gateway, through which the other units are reached.
        optional: 1: the vehicle may lack the unit; an update then skips it instead of
            failing it.
    """
    target: str = ""
    """The unit's name."""
    bus: str = ""
    """The bus it is reached on, as the vehicle description names it."""
    address: int = 0
    """Its diagnostic address."""
    gateway: bool = False
    """1 for the gateway, through which the other units are reached."""
    optional: bool = False
    """1: the vehicle may lack the unit; an update then skips it instead of failing it."""


@dataclasses.dataclass(**_OPTIONS)
class VehicleUpdateConfig:
    """What a vehicle update installs, and how it goes on after a failure. Handed out by
    createVehicleUpdateConfig; an input that updateVehicle and performVehicleUpdate
    consume.

    Fields:
        targets: The units the update covers; it visits them in ECU order, not in this one.
        packages: The packages to install, by name and version, at most one per unit; a
            covered unit without one is left as it is.
        stop_on_error: 1: once a unit fails, the later units are left untouched; 0: they are
            updated all the same.
        force: 1: also install a package on a unit that already runs its version.
        block_length: The largest block to transfer at once in bytes; 0: as large as each
            unit takes.
    """
    targets: list[str] = dataclasses.field(default_factory=list)
    """The units the update covers; it visits them in ECU order, not in this one."""
    packages: list[Optional[UpdatePackageInfo]] = dataclasses.field(default_factory=list)
    """
    The packages to install, by name and version, at most one per unit; a covered unit
    without one is left as it is.
    """
    stop_on_error: bool = False
    """
    1: once a unit fails, the later units are left untouched; 0: they are updated all
    the same.
    """
    force: bool = False
    """1: also install a package on a unit that already runs its version."""
    block_length: int = 0
    """The largest block to transfer at once in bytes; 0: as large as each unit takes."""


@dataclasses.dataclass(**_OPTIONS)
class VehicleUpdateResult:
    """What a vehicle update did to one unit, or how far it has got in an asynchronous
    report.

    Fields:
        target: The unit's name.
        status: 0 updated, 1 running (a report before the end), 2 failed, 3 not run
            (cancelled, or left after a failure), 4 up to date (nothing to install), 5
            absent (an optional unit the vehicle lacks).
        package: The name of the package installed; empty when none was chosen for the unit.
        version_before: The software version the unit reported before the update.
        version_after: The version it reports now; empty while its update is incomplete.
        position: The unit's place in the ECU order, from 1.
        progress: Per cent of this unit's update done, 0 to 100.
        overall_progress: Per cent of the whole update done, 0 to 100.
        duration: The milliseconds of vehicle time this unit's update has taken so far.
        error: Why the unit failed or was not run; None when it did not.
    """
    target: str = ""
    """The unit's name."""
    status: int = 0
    """
    0 updated, 1 running (a report before the end), 2 failed, 3 not run (cancelled, or
    left after a failure), 4 up to date (nothing to install), 5 absent (an optional unit
    the vehicle lacks).
    """
    package: str = ""
    """The name of the package installed; empty when none was chosen for the unit."""
    version_before: str = ""
    """The software version the unit reported before the update."""
    version_after: str = ""
    """The version it reports now; empty while its update is incomplete."""
    position: int = 0
    """The unit's place in the ECU order, from 1."""
    progress: int = 0
    """Per cent of this unit's update done, 0 to 100."""
    overall_progress: int = 0
    """Per cent of the whole update done, 0 to 100."""
    duration: int = 0
    """The milliseconds of vehicle time this unit's update has taken so far."""
    error: Optional[KelError] = None
    """Why the unit failed or was not run; None when it did not."""


@dataclasses.dataclass(**_OPTIONS)
class UpdatePackageInfo:
    """An update package: software for control units, or for a component of the engine,
    with the checksum of its payload.

    Fields:
        name: The package's name.
        version: The software version it installs.
        description: What it brings, for a person.
        kind: 1 control-unit software (installed by a vehicle update), 2 a component of the
            engine (installed by applyUpdatePackage or autoUpdate).
        targets: The units it is for (kind 1), or the one component it replaces (kind 2).
        size: The payload's bytes.
        checksum: The payload's checksum as its manifest gives it: "crc32:" and eight hex
            digits.
        location: Where it lies: its folder in the sandbox once downloaded, else its folder
            on the broker.
        state: 0 offered by the broker, 1 downloaded, 2 installed.
    """
    name: str = ""
    """The package's name."""
    version: str = ""
    """The software version it installs."""
    description: str = ""
    """What it brings, for a person."""
    kind: int = 0
    """
    1 control-unit software (installed by a vehicle update), 2 a component of the engine
    (installed by applyUpdatePackage or autoUpdate).
    """
    targets: list[str] = dataclasses.field(default_factory=list)
    """The units it is for (kind 1), or the one component it replaces (kind 2)."""
    size: int = 0
    """The payload's bytes."""
    checksum: str = ""
    """The payload's checksum as its manifest gives it: "crc32:" and eight hex digits."""
    location: str = ""
    """Where it lies: its folder in the sandbox once downloaded, else its folder on the broker."""
    state: int = 0
    """0 offered by the broker, 1 downloaded, 2 installed."""


@dataclasses.dataclass(**_OPTIONS)
class VehicleReportConfig:
    """What createVehicleReport reads and writes; an input that it consumes.

    Fields:
        name: The report's file name, without extension; empty: "vehicle-<VIN>-<time>".
        title: The report's heading; empty: "Vehicle report".
        comment: A note of the workshop's, printed under the heading.
        targets: The units to report on; none: every unit of the vehicle.
        identification: 1: read and list each unit's identification values.
        dtcs: 1: read and list each unit's DTCs.
    """
    name: str = ""
    """The report's file name, without extension; empty: "vehicle-<VIN>-<time>"."""
    title: str = ""
    """The report's heading; empty: "Vehicle report"."""
    comment: str = ""
    """A note of the workshop's, printed under the heading."""
    targets: list[str] = dataclasses.field(default_factory=list)
    """The units to report on; none: every unit of the vehicle."""
    identification: bool = False
    """1: read and list each unit's identification values."""
    dtcs: bool = False
    """1: read and list each unit's DTCs."""


@dataclasses.dataclass(**_OPTIONS)
class VehicleData:
    """One control unit of the vehicle as it is now. getVehicleData hands out one per unit,
    each with the vehicle's VIN and model, so that every entry stands alone.

    Fields:
        vin: The vehicle identification number the vehicle reports; empty when no unit gives
            it.
        model: The vehicle's model, from the selected vehicle information.
        target: The unit's name.
        variant: The variant the unit identifies as; empty when it is silent.
        software_version: The software version it reports; empty when it is silent or its
            update is incomplete.
        bus: The bus it is reached on.
        address: Its diagnostic address.
        status: 0 answered, 1 silent.
        dtc_count: The DTCs it stores now; 0 when it is silent.
    """
    vin: str = ""
    """The vehicle identification number the vehicle reports; empty when no unit gives it."""
    model: str = ""
    """The vehicle's model, from the selected vehicle information."""
    target: str = ""
    """The unit's name."""
    variant: str = ""
    """The variant the unit identifies as; empty when it is silent."""
    software_version: str = ""
    """The software version it reports; empty when it is silent or its update is incomplete."""
    bus: str = ""
    """The bus it is reached on."""
    address: int = 0
    """Its diagnostic address."""
    status: int = 0
    """0 answered, 1 silent."""
    dtc_count: int = 0
    """The DTCs it stores now; 0 when it is silent."""


@dataclasses.dataclass(**_OPTIONS)
class UploadReportConfiguration:
    """Where uploadReport copies a report, and what the broker's upload log records of it;
    an input that it consumes.

    Fields:
        report_file: The report, as createVehicleReport or createVehicleUpdateReport named
            it.
        folder: The broker's folder to copy it into, relative to the broker; empty:
            "reports".
        name: The name it gets there; empty: the report's own name.
        vin: The vehicle it belongs to, for the upload log; empty: the VIN the report names.
        user: Who uploads it, for the upload log.
        comment: A note for the upload log.
        overwrite: 1: replace a report of the same name; 0: refuse to.
        with_twin: 1: also copy the report's JSON twin.
    """
    report_file: str = ""
    """The report, as createVehicleReport or createVehicleUpdateReport named it."""
    folder: str = ""
    """The broker's folder to copy it into, relative to the broker; empty: "reports"."""
    name: str = ""
    """The name it gets there; empty: the report's own name."""
    vin: str = ""
    """The vehicle it belongs to, for the upload log; empty: the VIN the report names."""
    user: str = ""
    """Who uploads it, for the upload log."""
    comment: str = ""
    """A note for the upload log."""
    overwrite: bool = False
    """1: replace a report of the same name; 0: refuse to."""
    with_twin: bool = False
    """1: also copy the report's JSON twin."""


@dataclasses.dataclass(**_OPTIONS)
class VehicleInformation:
    """The vehicle the engine works on, as the workshop selected it; reports carry it.

    Fields:
        vin: The vehicle identification number: 17 digits and capital letters other than I,
            O and Q.
        model: The vehicle's model.
        model_year: The model year; 0 when not known.
        mileage: The odometer reading in kilometres.
        license_plate: The registration plate; may be empty.
        equipment: The vehicle's equipment codes.
    """
    vin: str = ""
    """The vehicle identification number: 17 digits and capital letters other than I, O and Q."""
    model: str = ""
    """The vehicle's model."""
    model_year: int = 0
    """The model year; 0 when not known."""
    mileage: int = 0
    """The odometer reading in kilometres."""
    license_plate: str = ""
    """The registration plate; may be empty."""
    equipment: list[str] = dataclasses.field(default_factory=list)
    """The vehicle's equipment codes."""


__all__ = ["MvciServerError", "NegativeResponse", "KelError", "NamedItem", "ParameterResult", "ClearDtcResult", "DtcReadConfig", "ReadDtcResult", "DtcResult", "SpecialDataGroup", "VariantIdentResult", "ReadDataResult", "Target", "TargetStatus", "TargetFilter", "ParameterInput", "ServiceInput", "ServiceResult", "ResponseResult", "RequestResult", "UnlockResult", "ServiceInfo", "ResponseInfo", "ParameterInfo", "ConstraintInfo", "ScaleConstraintInfo", "UnitInfo", "ParameterInfoConfig", "KelEvent", "EventReport", "FileFilter", "TargetConfig", "ProjectConfig", "ProjectDetails", "DbFileInfo", "SystemInfo", "SystemProperty", "TarnApiConfig", "ServerConfig", "Oauth2Config", "MoxConfig", "TcpInfo", "StatusInfo", "TransmissionInfo", "ProcessInfo", "ProcessEntry", "ProcessThread", "ProcessMemory", "GlobalProtocolParameterSet", "GlobalProtocolParameter", "LoadDatabaseResult", "InterfaceInformation", "ResourceInformation", "InterfaceInformationItem", "ScanInterfaceResult", "DynInterfaceDetection", "ModuleDyn", "DeviceInfo", "PhysicalLinksOnModule", "PhysicalLink", "InterfaceConfiguration", "InterfaceConfigurationEntry", "InterfaceProvider", "DoIPParameter", "WLanSignalData", "SupportedInterface", "MonitoringItem", "MonitoringItemDetail", "PduMonitoringItem", "PduMonitoringItemDetail", "FileInfo", "DirectoryInfo", "FileCopyResult", "DirectoryCopyResult", "DirectoryCopyItem", "PathCopyResult", "PathCopyItem", "FileReferenceResult", "FileCopyConfig", "DirectoryCopyConfig", "PathCopyConfig", "UserInfo", "LogInOutConfig", "TarnApiServerConfig", "ServerSettings", "FlashSessionInfo", "FlashSessionResult", "FlashSessionsConfig", "CodingStringResult", "CodingFileResult", "QuickTestResult", "EcuConfigurationResult", "EcuOrderEntry", "VehicleUpdateConfig", "VehicleUpdateResult", "UpdatePackageInfo", "VehicleReportConfig", "VehicleData", "UploadReportConfiguration", "VehicleInformation"]
