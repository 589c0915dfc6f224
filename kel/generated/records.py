# Generated from the interface description by tools/generate.py. Do not edit.
"""The records of the engine interface, one keyword-only dataclass each."""

from __future__ import annotations

import builtins
import dataclasses
import sys
from typing import Any, Optional

# Keyword-only (and slotted) where the Python version allows: records have many fields
# and positions would say nothing.
_OPTIONS: dict[str, Any] = {'kw_only': True, 'slots': True} if sys.version_info >= (3, 10) else {}


@dataclasses.dataclass(**_OPTIONS)
class MvciServerError:
    """The MVCI (ISO 22900) server error beneath an engine error."""
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
    """A control unit's negative response."""
    code: int = 0
    """The response code."""
    text: str = ""
    """Its text."""
    value1: int = 0
    """Copied bit for bit from the engine."""
    value2: int = 0
    """Copied bit for bit from the engine."""
    bytes: builtins.bytes = b""
    """The raw response bytes; None when there are none."""


@dataclasses.dataclass(**_OPTIONS)
class KelError:
    """
    An engine error: what a failed call writes through its KelError** error, and the
    per-item error inside result records.
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
    """Four texts that name an item; they also lead every record with the NamedItem base."""
    item_text1: str = ""
    """The item's first text, usually its name."""
    item_text2: str = ""
    """Second text."""
    item_text3: str = ""
    """Third text."""
    item_text4: str = ""
    """Fourth text."""


@dataclasses.dataclass(**_OPTIONS)
class ParameterResult:
    """
    One decoded parameter value. A structured value carries its members as children, so
    the values form a tree.
    """
    item_text1: str = ""
    """The item's first text, usually its name."""
    item_text2: str = ""
    """Second text."""
    item_text3: str = ""
    """Third text."""
    item_text4: str = ""
    """Fourth text."""
    text1: str = ""
    """First text, usually the value."""
    text2: str = ""
    """Second text, usually the unit."""
    value1: int = 0
    """Copied unchanged from the engine."""
    children: list[Optional[ParameterResult]] = dataclasses.field(default_factory=list)
    """The members of a structured value, in engine order."""
    text3: str = ""
    """Third text."""
    error: Optional[KelError] = None
    """The error of this parameter, or None."""
    text4: str = ""
    """Fourth text."""
    value2: int = 0
    """Copied unchanged from the engine."""
    data: builtins.bytes = b""
    """The raw bytes of the value, exactly as many as the engine gives; None when there are none."""
    value3: int = 0
    """Copied unchanged from the engine."""
    flag: int = 0
    """A one-byte flag, copied unchanged."""
    value4: int = 0
    """Copied unchanged from the engine."""


@dataclasses.dataclass(**_OPTIONS)
class ClearDtcResult:
    """The outcome of clearing the DTCs of one target."""
    status: int = 0
    """The engine's status of this target."""
    target: str = ""
    """The target's name."""
    error: Optional[KelError] = None
    """The error of this target, or None."""


@dataclasses.dataclass(**_OPTIONS)
class DtcReadConfig:
    """Options of a DTC read; an input that the reading operations consume."""
    value: int = 0
    """The engine's first option, a number."""
    flag1: int = 0
    """First one-byte option."""
    flag2: int = 0
    """Second one-byte option."""
    flag3: int = 0
    """Third one-byte option."""


@dataclasses.dataclass(**_OPTIONS)
class ReadDtcResult:
    """The DTCs read from one target."""
    status: int = 0
    """The engine's status of this target."""
    target: str = ""
    """The target's name."""
    error: Optional[KelError] = None
    """The error of this target, or None."""
    dtcs: list[Optional[DtcResult]] = dataclasses.field(default_factory=list)
    """The DTCs read."""
    value: int = 0
    """A further number of the engine; 0 from kel_readSupportedDtcs."""


@dataclasses.dataclass(**_OPTIONS)
class DtcResult:
    """One diagnostic trouble code."""
    code: int = 0
    """The DTC number."""
    text1: str = ""
    """First text, usually the code as text."""
    text2: str = ""
    """Second text, usually what the code means."""
    value1: int = 0
    """Copied unchanged from the engine, usually the status byte."""
    parameters1: list[Optional[ParameterResult]] = dataclasses.field(default_factory=list)
    """First parameter list, usually the snapshot data."""
    parameters2: list[Optional[ParameterResult]] = dataclasses.field(default_factory=list)
    """Second parameter list, usually the extended data."""
    text3: str = ""
    """Third text."""
    text4: str = ""
    """Fourth text."""
    special_data_groups: list[Optional[SpecialDataGroup]] = dataclasses.field(default_factory=list)
    """Groups of special data."""
    value2: int = 0
    """Copied unchanged from the engine."""


@dataclasses.dataclass(**_OPTIONS)
class SpecialDataGroup:
    """One group of a DTC's special data."""
    items: list[Optional[NamedItem]] = dataclasses.field(default_factory=list)
    """Its entries."""


@dataclasses.dataclass(**_OPTIONS)
class VariantIdentResult:
    """The identified variant of one target."""
    target: str = ""
    """The target's name."""
    status: int = 0
    """The engine's status of this target."""
    error: Optional[KelError] = None
    """The error of this target, or None."""
    variant: str = ""
    """The variant identified."""


@dataclasses.dataclass(**_OPTIONS)
class ReadDataResult:
    """Identification values, or data read by identifier, of one target."""
    target: str = ""
    """The target's name."""
    status: int = 0
    """The engine's status of this target."""
    text: str = ""
    """A text of the engine, usually the variant."""
    error: Optional[KelError] = None
    """The error of this target, or None."""
    parameters: list[Optional[ParameterResult]] = dataclasses.field(default_factory=list)
    """The values read."""


@dataclasses.dataclass(**_OPTIONS)
class Target:
    """One control unit known to the project."""
    item_text1: str = ""
    """The item's first text, usually its name."""
    item_text2: str = ""
    """Second text."""
    item_text3: str = ""
    """Third text."""
    item_text4: str = ""
    """Fourth text."""
    value1: int = 0
    """Copied unchanged from the engine."""
    text1: str = ""
    """First text."""
    text2: str = ""
    """Second text."""
    items: list[Optional[NamedItem]] = dataclasses.field(default_factory=list)
    """Named items of the target."""
    names: list[str] = dataclasses.field(default_factory=list)
    """Further names of the target."""
    text3: str = ""
    """Third text."""
    text4: str = ""
    """Fourth text."""
    value2: int = 0
    """Copied unchanged from the engine."""
    text5: str = ""
    """Fifth text."""


@dataclasses.dataclass(**_OPTIONS)
class TargetStatus:
    """The status of one target."""
    target: str = ""
    """The target's name."""
    text: str = ""
    """The status as text."""
    error: Optional[KelError] = None
    """The error of this target, or None."""
    values: list[int] = dataclasses.field(default_factory=lambda: [0] * 5)
    """Five numbers, copied in order from the engine."""
    text2: str = ""
    """A second text."""


@dataclasses.dataclass(**_OPTIONS)
class TargetFilter:
    """A pattern that selects targets by name; a session's target filter."""
    pattern: str = ""
    """The pattern, where * stands for any text."""
    flag: int = 0
    """A one-byte option, copied unchanged."""
    value: int = 0
    """Copied unchanged from the engine."""


@dataclasses.dataclass(**_OPTIONS)
class ParameterInput:
    """
    One parameter value to send with a service. A structured parameter carries its
    members as children, so the values form a tree.
    """
    name: str = ""
    """The parameter's name."""
    children: list[Optional[ParameterInput]] = dataclasses.field(default_factory=list)
    """The member values of a structured parameter."""
    value: str = ""
    """The value, written as text."""


@dataclasses.dataclass(**_OPTIONS)
class ServiceInput:
    """One service to execute, with its parameter values or its raw request bytes."""
    parameters: list[Optional[ParameterInput]] = dataclasses.field(default_factory=list)
    """The parameter values to send."""
    service: str = ""
    """The service's name."""
    data: builtins.bytes = b""
    """Raw request bytes, sent as given."""
    value: int = 0
    """Copied unchanged to the engine."""


@dataclasses.dataclass(**_OPTIONS)
class ServiceResult:
    """The result of one executed service: the request as sent and every response received."""
    item_text1: str = ""
    """The item's first text, usually its name."""
    item_text2: str = ""
    """Second text."""
    item_text3: str = ""
    """Third text."""
    item_text4: str = ""
    """Fourth text."""
    responses: list[Optional[ResponseResult]] = dataclasses.field(default_factory=list)
    """The responses received."""
    status: int = 0
    """The engine's status of the service."""
    text1: str = ""
    """Copied unchanged from the engine."""
    error: Optional[KelError] = None
    """The service's own error; None when it succeeded."""
    request: Optional[RequestResult] = None
    """The request as sent; None when the engine gives none."""
    value1: int = 0
    """Copied unchanged from the engine."""


@dataclasses.dataclass(**_OPTIONS)
class ResponseResult:
    """One response received for a service, as bytes and as decoded parameters."""
    item_text1: str = ""
    """The item's first text, usually its name."""
    item_text2: str = ""
    """Second text."""
    item_text3: str = ""
    """Third text."""
    item_text4: str = ""
    """Fourth text."""
    flag: bool = False
    """Copied unchanged from the engine."""
    error: Optional[KelError] = None
    """The response's own error; None when none."""
    data: builtins.bytes = b""
    """The response bytes; None and 0 when empty."""
    value1: int = 0
    """Copied unchanged from the engine."""
    value2: int = 0
    """Copied unchanged from the engine."""
    parameters: list[Optional[ParameterResult]] = dataclasses.field(default_factory=list)
    """The decoded response parameters."""


@dataclasses.dataclass(**_OPTIONS)
class RequestResult:
    """The request of a service as it was sent, as bytes and as decoded parameters."""
    error: Optional[KelError] = None
    """The request's own error; None when none."""
    data: builtins.bytes = b""
    """The request bytes; None and 0 when empty."""
    value1: int = 0
    """Copied unchanged from the engine."""
    value2: int = 0
    """Copied unchanged from the engine."""
    parameters: list[Optional[ParameterResult]] = dataclasses.field(default_factory=list)
    """The decoded request parameters."""


@dataclasses.dataclass(**_OPTIONS)
class UnlockResult:
    """The result of unlocking a vehicle: the services run for the unlock."""
    value: int = 0
    """Copied unchanged from the engine; releaseVehicleUnlock takes it."""
    services: list[Optional[ServiceResult]] = dataclasses.field(default_factory=list)
    """The services run for the unlock."""


@dataclasses.dataclass(**_OPTIONS)
class ServiceInfo:
    """One service that a target offers: its request parameters and its possible responses."""
    item_text1: str = ""
    """The item's first text, usually its name."""
    item_text2: str = ""
    """Second text."""
    item_text3: str = ""
    """Third text."""
    item_text4: str = ""
    """Fourth text."""
    flag: bool = False
    """Copied unchanged from the engine."""
    responses: list[Optional[ResponseInfo]] = dataclasses.field(default_factory=list)
    """The responses the service can give."""
    parameters: list[Optional[ParameterInfo]] = dataclasses.field(default_factory=list)
    """The request parameters."""
    text1: str = ""
    """Copied unchanged from the engine."""
    items: list[Optional[NamedItem]] = dataclasses.field(default_factory=list)
    """Further named entries of the service."""
    error: Optional[KelError] = None
    """An error describing this service; None when none."""
    values: list[int] = dataclasses.field(default_factory=lambda: [0] * 5)
    """Five engine values, in order."""


@dataclasses.dataclass(**_OPTIONS)
class ResponseInfo:
    """One response that a service can give, with its parameters."""
    item_text1: str = ""
    """The item's first text, usually its name."""
    item_text2: str = ""
    """Second text."""
    item_text3: str = ""
    """Third text."""
    item_text4: str = ""
    """Fourth text."""
    status: int = 0
    """The engine's kind of response."""
    parameters: list[Optional[ParameterInfo]] = dataclasses.field(default_factory=list)
    """The response parameters."""


@dataclasses.dataclass(**_OPTIONS)
class ParameterInfo:
    """
    The description of one parameter: its texts, limits and unit. Structured parameters
    describe their members as children.
    """
    item_text1: str = ""
    """The item's first text, usually its name."""
    item_text2: str = ""
    """Second text."""
    item_text3: str = ""
    """Third text."""
    item_text4: str = ""
    """Fourth text."""
    text1: str = ""
    """Copied unchanged from the engine."""
    text2: str = ""
    """Copied unchanged from the engine."""
    text3: str = ""
    """Copied unchanged from the engine."""
    value1: int = 0
    """Copied unchanged from the engine."""
    text4: str = ""
    """Copied unchanged from the engine."""
    children: list[Optional[ParameterInfo]] = dataclasses.field(default_factory=list)
    """The member parameters of a structured parameter."""
    text5: str = ""
    """Copied unchanged from the engine."""
    names: list[str] = dataclasses.field(default_factory=list)
    """Engine texts; the block is allocated even when empty."""
    flag1: bool = False
    """Copied unchanged from the engine."""
    value2: int = 0
    """Copied unchanged from the engine."""
    error: Optional[KelError] = None
    """An error describing this parameter; None when none."""
    flag2: bool = False
    """Copied unchanged from the engine."""
    values: list[int] = dataclasses.field(default_factory=lambda: [0] * 8)
    """Eight engine values, in order."""
    flag3: bool = False
    """Copied unchanged from the engine."""
    constraint1: Optional[ConstraintInfo] = None
    """The first constraint on the value; None when none."""
    constraint2: Optional[ConstraintInfo] = None
    """The second constraint on the value; None when none."""
    text6: str = ""
    """Copied unchanged from the engine."""
    text7: str = ""
    """Copied unchanged from the engine."""
    flag4: bool = False
    """Copied unchanged from the engine."""
    unit: Optional[UnitInfo] = None
    """The value's unit; None when none."""


@dataclasses.dataclass(**_OPTIONS)
class ConstraintInfo:
    """A constraint on a parameter's value, made of intervals."""
    text1: str = ""
    """Copied unchanged from the engine."""
    text2: str = ""
    """Copied unchanged from the engine."""
    flag: bool = False
    """Copied unchanged from the engine."""
    scales: list[Optional[ScaleConstraintInfo]] = dataclasses.field(default_factory=list)
    """The intervals; None and 0 when none."""


@dataclasses.dataclass(**_OPTIONS)
class ScaleConstraintInfo:
    """One interval of a constraint."""
    item_text1: str = ""
    """The item's first text, usually its name."""
    item_text2: str = ""
    """Second text."""
    item_text3: str = ""
    """Third text."""
    item_text4: str = ""
    """Fourth text."""
    text1: str = ""
    """Copied unchanged from the engine."""
    text2: str = ""
    """Copied unchanged from the engine."""
    flag: bool = False
    """Copied unchanged from the engine."""
    value: int = 0
    """Copied unchanged from the engine."""


@dataclasses.dataclass(**_OPTIONS)
class UnitInfo:
    """The unit of a parameter's value; plain data that owns no memory."""
    values: list[int] = dataclasses.field(default_factory=lambda: [0] * 7)
    """Seven engine values, in order."""
    value1: int = 0
    """Copied unchanged from the engine."""
    flag1: bool = False
    """Copied unchanged from the engine."""
    value2: int = 0
    """Copied unchanged from the engine."""
    flag2: bool = False
    """Copied unchanged from the engine."""


@dataclasses.dataclass(**_OPTIONS)
class ParameterInfoConfig:
    """Selects the parameter that getParameterInfo describes."""
    text1: str = ""
    """Passed unchanged to the engine."""
    text2: str = ""
    """Passed unchanged to the engine."""
    value: int = 0
    """Passed unchanged to the engine."""
    text3: str = ""
    """Passed unchanged to the engine."""
    text4: str = ""
    """Passed unchanged to the engine."""


@dataclasses.dataclass(**_OPTIONS)
class KelEvent:
    """One event of the engine, fetched from an event channel."""
    name: str = ""
    """The event's name."""
    kind: int = 0
    """Its kind, a number."""
    code: int = 0
    """Its code, a number."""
    text: str = ""
    """What happened."""
    error: Optional[KelError] = None
    """The error the event carries, or None."""
    detail: str = ""
    """Further detail."""


@dataclasses.dataclass(**_OPTIONS)
class EventReport:
    """The events fetched from an event channel, oldest first."""
    events: list[Optional[KelEvent]] = dataclasses.field(default_factory=list)
    """The events; None when there are none."""


@dataclasses.dataclass(**_OPTIONS)
class FileFilter:
    """One file filter: a name pattern with the engine's flag and value."""
    pattern: str = ""
    """The file name pattern."""
    flag: bool = False
    """Copied unchanged from the engine."""
    value: int = 0
    """Copied unchanged from the engine."""


@dataclasses.dataclass(**_OPTIONS)
class TargetConfig:
    """The configuration of one target within a project."""
    value: int = 0
    """Copied unchanged from the engine."""
    text1: str = ""
    """Copied unchanged from the engine."""
    text2: str = ""
    """Copied unchanged from the engine."""


@dataclasses.dataclass(**_OPTIONS)
class ProjectConfig:
    """
    The configuration of one diagnostic project. itemText1 is the project's name; the
    other members are the engine's and copied unchanged.
    """
    item_text1: str = ""
    """The item's first text, usually its name."""
    item_text2: str = ""
    """Second text."""
    item_text3: str = ""
    """Third text."""
    item_text4: str = ""
    """Fourth text."""
    filters1: list[Optional[FileFilter]] = dataclasses.field(default_factory=list)
    """The project's first file filters."""
    value0: int = 0
    """Copied unchanged from the engine."""
    targets: list[Optional[TargetConfig]] = dataclasses.field(default_factory=list)
    """The project's targets."""
    filters2: list[Optional[FileFilter]] = dataclasses.field(default_factory=list)
    """The second file filters: pattern and flag, value 0."""
    strings1: list[str] = dataclasses.field(default_factory=list)
    """Engine texts; the block is allocated even when empty."""
    text1: str = ""
    """Copied unchanged from the engine."""
    value1: int = 0
    """Copied unchanged from the engine."""
    text2: str = ""
    """Copied unchanged from the engine."""
    strings2: list[str] = dataclasses.field(default_factory=list)
    """Engine texts; the block is allocated even when empty."""
    text3: str = ""
    """Copied unchanged from the engine."""
    value2: int = 0
    """Copied unchanged from the engine."""
    value3: int = 0
    """Copied unchanged from the engine."""
    flags: list[bool] = dataclasses.field(default_factory=lambda: [False] * 4)
    """Four engine flags, in order."""


@dataclasses.dataclass(**_OPTIONS)
class ProjectDetails:
    """The details of the selected project (or of one project): its database files and users."""
    db_files1: list[Optional[DbFileInfo]] = dataclasses.field(default_factory=list)
    """The database files in the project's folder."""
    db_files2: list[Optional[DbFileInfo]] = dataclasses.field(default_factory=list)
    """The database files loaded now."""
    text1: str = ""
    """The project's name."""
    value1: int = 0
    """The format of the project's files."""
    text2: str = ""
    """The project's folder."""
    value2: int = 0
    """1 when the project is the selected one."""
    users: list[Optional[UserInfo]] = dataclasses.field(default_factory=list)
    """The project's users."""


@dataclasses.dataclass(**_OPTIONS)
class DbFileInfo:
    """One database file of a project."""
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
    """Information on the system the engine runs on."""
    value1: int = 0
    """The number of processors."""
    value2: int = 0
    """The size of a memory page in bytes."""
    text1: str = ""
    """The operating system's name."""
    value3: int = 0
    """The width of a pointer in bits."""
    text2: str = ""
    """The operating system's release."""
    text3: str = ""
    """The host's name."""
    text4: str = ""
    """The processor architecture."""


@dataclasses.dataclass(**_OPTIONS)
class SystemProperty:
    """
    One system property of the engine; a property may hold child properties, so the
    properties form a tree, which release_SystemProperty frees whole. itemText1 is the
    property's full name, itemText2 its label, itemText4 its unit.
    """
    item_text1: str = ""
    """The item's first text, usually its name."""
    item_text2: str = ""
    """Second text."""
    item_text3: str = ""
    """Third text."""
    item_text4: str = ""
    """Fourth text."""
    text1: str = ""
    """The property's value, as text."""
    text2: str = ""
    """The value a reset gives."""
    value1: int = 0
    """Copied unchanged from the engine."""
    children: list[Optional[SystemProperty]] = dataclasses.field(default_factory=list)
    """The child properties."""
    text3: str = ""
    """Copied unchanged from the engine."""
    error: Optional[KelError] = None
    """The property's own error; None when none."""
    text4: str = ""
    """Copied unchanged from the engine."""
    value2: int = 0
    """Copied unchanged from the engine."""
    data: builtins.bytes = b""
    """The property's bytes; None and 0 when empty."""
    value3: int = 0
    """Copied unchanged from the engine."""
    flag: bool = False
    """1 when the value differs from the one a reset gives."""
    value4: int = 0
    """Copied unchanged from the engine."""


@dataclasses.dataclass(**_OPTIONS)
class TarnApiConfig:
    """The engine's own configuration."""
    value1: int = 0
    """Copied unchanged from the engine."""
    flag1: bool = False
    """Copied unchanged from the engine."""
    flag2: bool = False
    """Copied unchanged from the engine."""
    value2: int = 0
    """Copied unchanged from the engine."""
    server: Optional[ServerConfig] = None
    """The server configuration; None when none."""
    value3: int = 0
    """Copied unchanged from the engine."""
    value4: int = 0
    """Copied unchanged from the engine."""
    value5: int = 0
    """Copied unchanged from the engine."""
    flag3: bool = False
    """Copied unchanged from the engine."""
    value6: int = 0
    """Copied unchanged from the engine."""
    value7: int = 0
    """Copied unchanged; 16 bits wide, as the engine's."""
    oauth2_configs: list[Optional[Oauth2Config]] = dataclasses.field(default_factory=list)
    """The OAuth 2 configurations."""
    text: str = ""
    """Copied unchanged from the engine."""


@dataclasses.dataclass(**_OPTIONS)
class ServerConfig:
    """The server part of the engine's configuration."""
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
    """
    One OAuth 2 configuration of the engine. It names a client registered with an
    identity provider; no secret is part of it.
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
    """The engine's Mox configuration, as saveMoxConfiguration stores it."""
    text1: str = ""
    """Copied unchanged from the engine."""
    text2: str = ""
    """Copied unchanged from the engine."""
    text3: str = ""
    """Copied unchanged from the engine."""
    text4: str = ""
    """Copied unchanged from the engine."""
    text5: str = ""
    """Copied unchanged from the engine."""
    flag1: bool = False
    """Copied unchanged from the engine."""
    flag2: bool = False
    """Copied unchanged from the engine."""
    flag3: bool = False
    """Copied unchanged from the engine."""
    value: int = 0
    """Copied unchanged from the engine."""
    flag4: bool = False
    """Copied unchanged from the engine."""
    flag5: bool = False
    """Copied unchanged from the engine."""
    flag6: bool = False
    """Copied unchanged from the engine."""
    text6: str = ""
    """Copied unchanged from the engine."""
    text7: str = ""
    """Copied unchanged from the engine."""
    tcp: Optional[TcpInfo] = None
    """The TCP settings; None when none."""


@dataclasses.dataclass(**_OPTIONS)
class TcpInfo:
    """TCP settings; plain data that owns no memory."""
    value1: int = 0
    """Copied unchanged from the engine."""
    value2: int = 0
    """Copied unchanged from the engine."""
    value3: int = 0
    """Copied unchanged from the engine."""
    value4: int = 0
    """Copied unchanged from the engine."""
    value5: int = 0
    """Copied unchanged from the engine."""
    value6: int = 0
    """Copied unchanged from the engine."""


@dataclasses.dataclass(**_OPTIONS)
class StatusInfo:
    """The engine's status information; plain data that owns no memory."""
    value1: int = 0
    """The calls made on this engine object before this one."""
    value2: int = 0
    """How many of them failed."""
    value3: int = 0
    """Milliseconds since the engine started."""
    value4: int = 0
    """Microseconds spent in those calls."""
    value5: int = 0
    """Database files loaded now."""
    value6: int = 0
    """Projects in the projects folder."""
    value7: int = 0
    """Times the status text was set."""
    value8: int = 0
    """When the engine started, in milliseconds since 1970 (UTC)."""


@dataclasses.dataclass(**_OPTIONS)
class TransmissionInfo:
    """The engine's transmission information; plain data that owns no memory."""
    value1: int = 0
    """Requests sent to the control units."""
    value2: int = 0
    """Responses received from them."""
    value3: int = 0
    """Request bytes sent."""
    value4: int = 0
    """Response bytes received."""


@dataclasses.dataclass(**_OPTIONS)
class ProcessInfo:
    """Information on the engine's process."""
    processes: list[Optional[ProcessEntry]] = dataclasses.field(default_factory=list)
    """One entry: the engine's own process."""
    flag1: bool = False
    """1 in a 64-bit process."""
    flag2: bool = False
    """1 when the engine is initialized."""
    text: str = ""
    """The engine's status text."""


@dataclasses.dataclass(**_OPTIONS)
class ProcessEntry:
    """One process of ProcessInfo."""
    value: int = 0
    """The process id."""
    items1: list[Optional[ProcessThread]] = dataclasses.field(default_factory=list)
    """The process's threads."""
    text: str = ""
    """The process's executable."""
    items2: list[Optional[ProcessMemory]] = dataclasses.field(default_factory=list)
    """The process's memory figures."""


@dataclasses.dataclass(**_OPTIONS)
class ProcessThread:
    """One thread of a process."""
    id: int = 0
    """The thread's id."""
    name: str = ""
    """Its name; empty where the system names none."""


@dataclasses.dataclass(**_OPTIONS)
class ProcessMemory:
    """One memory figure of a process."""
    name: str = ""
    """What is counted: "resident", "virtual", "peak resident"."""
    bytes: int = 0
    """Its size in bytes."""


@dataclasses.dataclass(**_OPTIONS)
class GlobalProtocolParameterSet:
    """One set of global protocol parameters."""
    text1: str = ""
    """The set's name."""
    text2: str = ""
    """The protocol it is for."""
    text3: str = ""
    """Copied unchanged from the engine."""
    text4: str = ""
    """Copied unchanged from the engine."""
    parameters: list[Optional[GlobalProtocolParameter]] = dataclasses.field(default_factory=list)
    """The parameters of the set."""


@dataclasses.dataclass(**_OPTIONS)
class GlobalProtocolParameter:
    """
    One global protocol parameter: a parameter description with its value. itemText1 is
    its name, the other NamedItem texts its label, description and unit.
    """
    item_text1: str = ""
    """The item's first text, usually its name."""
    item_text2: str = ""
    """Second text."""
    item_text3: str = ""
    """Third text."""
    item_text4: str = ""
    """Fourth text."""
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
    """Copied unchanged from the engine."""
    flag: bool = False
    """Copied unchanged from the engine."""


@dataclasses.dataclass(**_OPTIONS)
class LoadDatabaseResult:
    """The outcome of loading or unloading one database file."""
    text: str = ""
    """The file as given."""
    flag: bool = False
    """1 when the file is loaded after the call."""
    error: Optional[KelError] = None
    """The file's own error; None when none."""


@dataclasses.dataclass(**_OPTIONS)
class InterfaceInformation:
    """
    A diagnostic interface (a vehicle communication interface) with its resources and
    vendor modules. itemText1 is its name, itemText2 its long name, itemText3 its vendor
    and itemText4 a description.
    """
    item_text1: str = ""
    """The item's first text, usually its name."""
    item_text2: str = ""
    """Second text."""
    item_text3: str = ""
    """Third text."""
    item_text4: str = ""
    """Fourth text."""
    resources: list[Optional[ResourceInformation]] = dataclasses.field(default_factory=list)
    """The resources on the interface."""
    flag1: bool = False
    """1 while the interface is connected."""
    flag2: bool = False
    """1 for a dynamic interface, one found on the network by detection."""
    text1: str = ""
    """The kind of interface, as kel_getSupportedInterfaces names it ("D-PDU", "DoIP")."""
    text2: str = ""
    """Its address: a host name or IP address, or a serial port."""
    flag3: bool = False
    """
    1 while the interface is plugged in (reachable); a scan reports an error for one
    that is not.
    """
    items: list[Optional[InterfaceInformationItem]] = dataclasses.field(default_factory=list)
    """Its vendor modules."""
    value: int = 0
    """The engine's handle of the interface, never 0 once the engine knows it; ignored on input."""


@dataclasses.dataclass(**_OPTIONS)
class ResourceInformation:
    """
    One resource on a diagnostic interface (a protocol on a physical link); also the
    input of kel_addResource. itemText1 is its name, itemText2 a description, itemText3
    its protocol and itemText4 the physical link it uses.
    """
    item_text1: str = ""
    """The item's first text, usually its name."""
    item_text2: str = ""
    """Second text."""
    item_text3: str = ""
    """Third text."""
    item_text4: str = ""
    """Fourth text."""
    id: int = 0
    """The engine's number of the resource on its interface, from 1; ignored on input."""
    pin: int = 0
    """The vehicle connector pin it uses; kel_addResource sets it from its 16-bit value."""
    in_use: bool = False
    """1 while a connection uses the resource."""


@dataclasses.dataclass(**_OPTIONS)
class InterfaceInformationItem:
    """
    A vendor module of an interface (the vendor's D-PDU API module that drives it).
    itemText1 is the module's name, itemText2 its vendor, itemText3 its version and
    itemText4 a description.
    """
    item_text1: str = ""
    """The item's first text, usually its name."""
    item_text2: str = ""
    """Second text."""
    item_text3: str = ""
    """Third text."""
    item_text4: str = ""
    """Fourth text."""


@dataclasses.dataclass(**_OPTIONS)
class ScanInterfaceResult:
    """The outcome of scanning the connection of one interface."""
    interface_info: Optional[InterfaceInformation] = None
    """The interface; None when the engine knows no interface of that name."""
    error: Optional[KelError] = None
    """The scan's error for this interface; None when it succeeded."""


@dataclasses.dataclass(**_OPTIONS)
class DynInterfaceDetection:
    """What a dynamic interface detection looks for."""
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
    """A dynamically detected interface module."""
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
    flag1: bool = False
    """1 while the module is connected."""
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
    flag2: bool = False
    """1 when the module was connected for exclusive use."""
    handle: int = 0
    """The engine's handle of the module, never 0."""


@dataclasses.dataclass(**_OPTIONS)
class DeviceInfo:
    """A device registered with the engine: one per interface the engine knows."""
    text1: str = ""
    """The interface's name."""
    value1: int = 0
    """The vendor's number (USB vendor id style); 0 when unknown."""
    value2: int = 0
    """The product's number; 0 when unknown."""
    text2: str = ""
    """The vendor."""
    text3: str = ""
    """The serial number."""
    value3: int = 0
    """The number of resources."""
    text4: str = ""
    """The firmware version."""
    text5: str = ""
    """The kind of interface."""
    value4: int = 0
    """The Ethernet pin state."""
    value5: int = 0
    """The number of physical links."""
    text6: str = ""
    """The address."""
    protocols: list[str] = dataclasses.field(default_factory=list)
    """The protocols of its resources, each once, in resource order."""
    text7: str = ""
    """The long name."""
    modules: list[str] = dataclasses.field(default_factory=list)
    """The names of its vendor modules."""
    text8: str = ""
    """A description."""
    flag: bool = False
    """1 while connected."""
    handle: int = 0
    """The engine's handle of the interface."""
    value6: int = 0
    """1 for a dynamic interface, 0 for a configured one."""
    value8: int = 0
    """Reserved, 0."""
    value9: int = 0
    """Reserved, 0."""
    value10: int = 0
    """Reserved, 0."""


@dataclasses.dataclass(**_OPTIONS)
class PhysicalLinksOnModule:
    """The physical links on one interface module."""
    module: str = ""
    """The module's name: the name of an interface."""
    links: list[Optional[PhysicalLink]] = dataclasses.field(default_factory=list)
    """The module's physical links."""


@dataclasses.dataclass(**_OPTIONS)
class PhysicalLink:
    """
    One physical link of a module (a bus line of the vehicle connector). itemText1 is
    its name, itemText2 its type ("ISO_11898_2_DWCAN"), itemText3 the connector pins it
    uses and itemText4 a description.
    """
    item_text1: str = ""
    """The item's first text, usually its name."""
    item_text2: str = ""
    """Second text."""
    item_text3: str = ""
    """Third text."""
    item_text4: str = ""
    """Fourth text."""
    baudrate: int = 0
    """Its speed in bits per second."""
    enabled: bool = False
    """1 when the engine may use the link."""


@dataclasses.dataclass(**_OPTIONS)
class InterfaceConfiguration:
    """The engine's configuration of its interfaces."""
    entries: list[Optional[InterfaceConfigurationEntry]] = dataclasses.field(default_factory=list)
    """One entry per configured interface."""


@dataclasses.dataclass(**_OPTIONS)
class InterfaceConfigurationEntry:
    """One entry of the interface configuration: one interface."""
    text1: str = ""
    """The interface's name; must not be empty."""
    text2: str = ""
    """Its long name."""
    text3: str = ""
    """Its vendor."""
    text4: str = ""
    """The kind of interface."""
    text5: str = ""
    """Its address."""
    value: int = 0
    """Its Ethernet pin state."""
    flag: bool = False
    """1 when kel_connectInterfaces connects it."""
    items: list[Optional[ResourceInformation]] = dataclasses.field(default_factory=list)
    """Its resources."""


@dataclasses.dataclass(**_OPTIONS)
class InterfaceProvider:
    """
    A provider of diagnostic interfaces. itemText1 is its name, itemText2 a description,
    itemText3 its vendor and itemText4 its version.
    """
    item_text1: str = ""
    """The item's first text, usually its name."""
    item_text2: str = ""
    """Second text."""
    item_text3: str = ""
    """Third text."""
    item_text4: str = ""
    """Fourth text."""
    text: str = ""
    """The library through which the engine reaches the provider."""
    value: int = 0
    """Its priority: lower numbers are asked first."""
    flag: bool = False
    """1 when the provider is enabled."""


@dataclasses.dataclass(**_OPTIONS)
class DoIPParameter:
    """The engine's default DoIP parameters."""
    value1: int = 0
    """The UDP port of vehicle discovery (13400)."""
    value2: int = 0
    """How long a broadcast waits for vehicle announcements, in milliseconds."""
    text: str = ""
    """The broadcast address."""
    value3: int = 0
    """The TCP port of diagnostic connections (13400)."""
    strings: list[str] = dataclasses.field(default_factory=list)
    """The network adapters the broadcast goes out on."""


@dataclasses.dataclass(**_OPTIONS)
class WLanSignalData:
    """The WLAN signal of an interface."""
    value1: int = 0
    """The signal quality in percent."""
    value2: int = 0
    """The signal strength, in dBm below 0 (60 means -60 dBm)."""
    value3: int = 0
    """The noise, in dBm below 0."""
    value4: int = 0
    """The channel."""
    value5: int = 0
    """The frequency in MHz."""
    value6: int = 0
    """The bytes received since the interface connected."""
    value7: int = 0
    """The transmit rate in Mbit/s."""
    value8: int = 0
    """The receive rate in Mbit/s."""
    value9: int = 0
    """The retransmissions."""
    value10: int = 0
    """The lost beacons."""
    value11: int = 0
    """The channel width in MHz; 16 bits wide, as the engine's."""
    text: str = ""
    """The network name (SSID)."""


@dataclasses.dataclass(**_OPTIONS)
class SupportedInterface:
    """A kind of interface the engine supports."""
    text1: str = ""
    """The kind's name ("D-PDU", "DoIP"), as InterfaceInformation.text1 carries it."""
    text2: str = ""
    """A description."""
    names: list[str] = dataclasses.field(default_factory=list)
    """The protocols it carries."""
    value: int = 0
    """How many interfaces of the kind the engine takes at most."""
    text3: str = ""
    """The vendor module that usually drives it."""


@dataclasses.dataclass(**_OPTIONS)
class MonitoringItem:
    """
    One exchange with a control unit seen by a monitoring link: the request and the
    unit's answer, live or replayed from a trace file.
    """
    text1: str = ""
    """The control unit's name."""
    data: builtins.bytes = b""
    """The request's bytes; None and 0 when empty."""
    value1: int = 0
    """Vehicle time of the request, in milliseconds."""
    value2: int = 0
    """The item's number in its link, from 1; a gap means items were dropped."""
    flag1: bool = False
    """1 when the unit answered."""
    flag2: bool = False
    """1 when the answer is a positive response."""
    flag3: bool = False
    """1 when the item was replayed from a trace file."""
    value3: int = 0
    """The negative response code; 0 for a positive answer or none."""
    text2: str = ""
    """Where the item comes from: the link's name, or the trace file's path when replayed."""
    value4: int = 0
    """The request's service id (its first byte); 0 for an empty request."""
    detail: Optional[MonitoringItemDetail] = None
    """The unit's answer; None when it stayed silent."""


@dataclasses.dataclass(**_OPTIONS)
class MonitoringItemDetail:
    """The answer part of a MonitoringItem."""
    response: builtins.bytes = b""
    """The answer's bytes."""
    text: str = ""
    """
    The answer for reading: "positive response" or "negative response 0x31:
    requestOutOfRange".
    """


@dataclasses.dataclass(**_OPTIONS)
class PduMonitoringItem:
    """
    One protocol data unit seen by a PDU monitor: a request sent to a control unit or
    the unit's response.
    """
    value1: int = 0
    """The direction: 1 request (tester to unit), 2 response (unit to tester)."""
    data: builtins.bytes = b""
    """The unit's bytes as sent; None and 0 when empty."""
    detail: Optional[PduMonitoringItemDetail] = None
    """Where the unit stands in the traffic."""
    text1: str = ""
    """The control unit's name."""
    text2: str = ""
    """The direction as a word: "request" or "response"."""
    value2: int = 0
    """Vehicle time of the exchange, in milliseconds."""
    text3: str = ""
    """The bytes as spaced hex digits, "19 02 FF"."""


@dataclasses.dataclass(**_OPTIONS)
class PduMonitoringItemDetail:
    """Where a PduMonitoringItem stands in the traffic."""
    sequence: int = 0
    """The item's number in its monitor, from 1; a gap means items were dropped."""
    exchange: int = 0
    """The exchange's number on the vehicle: a request and its response share it."""


@dataclasses.dataclass(**_OPTIONS)
class FileInfo:
    """A file in the engine's file system."""
    name: str = ""
    """The entry's name."""
    error: Optional[KelError] = None
    """The entry's own error; None when none."""
    flag: bool = False
    """Copied unchanged from the engine."""
    value1: int = 0
    """Copied unchanged from the engine."""
    text1: str = ""
    """Copied unchanged from the engine."""
    text2: str = ""
    """Copied unchanged from the engine."""
    value2: int = 0
    """Copied unchanged from the engine."""
    value3: int = 0
    """Copied unchanged from the engine."""


@dataclasses.dataclass(**_OPTIONS)
class DirectoryInfo:
    """
    A directory with its files and, recursively, its sub-directories. Given as input it
    carries its entry members and its files only.
    """
    name: str = ""
    """The entry's name."""
    error: Optional[KelError] = None
    """The entry's own error; None when none."""
    flag: bool = False
    """Copied unchanged from the engine."""
    value1: int = 0
    """Copied unchanged from the engine."""
    text1: str = ""
    """Copied unchanged from the engine."""
    text2: str = ""
    """Copied unchanged from the engine."""
    files: list[Optional[FileInfo]] = dataclasses.field(default_factory=list)
    """The directory's files."""
    directories: list[Optional[DirectoryInfo]] = dataclasses.field(default_factory=list)
    """The sub-directories; not read from input."""
    flag2: bool = False
    """Copied unchanged from the engine; not read from input."""


@dataclasses.dataclass(**_OPTIONS)
class FileCopyResult:
    """The outcome of copying one file."""
    value1: int = 0
    """Copied unchanged from the engine."""
    text: str = ""
    """Copied unchanged from the engine."""
    error: Optional[KelError] = None
    """The copy's own error; None when none."""
    file: Optional[FileInfo] = None
    """The copied file; None when none."""
    value2: int = 0
    """Copied unchanged from the engine."""


@dataclasses.dataclass(**_OPTIONS)
class DirectoryCopyResult:
    """The outcome of copying one directory."""
    value1: int = 0
    """Copied unchanged from the engine."""
    text: str = ""
    """Copied unchanged from the engine."""
    error: Optional[KelError] = None
    """The copy's own error; None when none."""
    directory: Optional[DirectoryCopyItem] = None
    """The nested directory result; None when none."""


@dataclasses.dataclass(**_OPTIONS)
class DirectoryCopyItem:
    """
    What copying one directory did: where from and to, how much, and every file that
    failed, each with its own error.
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
    """The outcome of copying one path."""
    value1: int = 0
    """Copied unchanged from the engine."""
    error: Optional[KelError] = None
    """The copy's own error; None when none."""
    value2: int = 0
    """Copied unchanged from the engine."""
    item: Optional[PathCopyItem] = None
    """The nested record; None when none."""


@dataclasses.dataclass(**_OPTIONS)
class PathCopyItem:
    """One entry of a path copy: the source and target of a file or directory and its size."""
    source: str = ""
    """The entry copied."""
    target: str = ""
    """Its copy."""
    size: int = 0
    """The file's size in bytes; 0 for a directory."""


@dataclasses.dataclass(**_OPTIONS)
class FileReferenceResult:
    """The references of one file."""
    references: list[str] = dataclasses.field(default_factory=list)
    """The file's references."""
    error: Optional[KelError] = None
    """The lookup's own error; None when none."""


@dataclasses.dataclass(**_OPTIONS)
class FileCopyConfig:
    """What copyFiles and copyProjectWithFilters copy: files into one directory."""
    files: list[str] = dataclasses.field(default_factory=list)
    """The files to copy; copyProjectWithFilters does not read them."""
    target: str = ""
    """The directory the copies go into."""
    overwrite: bool = False
    """Replace files that exist at the target."""


@dataclasses.dataclass(**_OPTIONS)
class DirectoryCopyConfig:
    """What copyDirectories copies: directories into one directory."""
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
    """What copyPath copies: one file or directory tree to a new path."""
    source: str = ""
    """The file or directory to copy."""
    target: str = ""
    """The path of the copy itself, not its parent."""
    overwrite: bool = False
    """Replace files that exist at the target."""


@dataclasses.dataclass(**_OPTIONS)
class UserInfo:
    """
    A user of the engine's server. The password is never handed out; the engine keeps
    only a salted hash of it.
    """
    name: str = ""
    """The user's name."""
    text: str = ""
    """The name of the user's role ("operator", "administrator")."""
    value: int = 0
    """The user's role: 1 operator, 2 administrator."""


@dataclasses.dataclass(**_OPTIONS)
class LogInOutConfig:
    """
    What logIn and logOut pass to the engine: who logs in or out, and for logIn the
    password. The password never comes back, is never recorded and never traced.
    """
    user: str = ""
    """The user's name; for logOut, empty means whoever is logged in."""
    password: str = ""
    """The user's password (logIn); logOut does not read it."""


@dataclasses.dataclass(**_OPTIONS)
class TarnApiServerConfig:
    """The configuration of the engine's server."""
    users: list[Optional[UserInfo]] = dataclasses.field(default_factory=list)
    """The server's users, by name."""
    flag: bool = False
    """1 while the server's user management is on."""
    value1: int = 0
    """The number of remote connections now."""
    text1: str = ""
    """Where the server listens; empty while it is stopped."""
    text2: str = ""
    """Where the SOVD server listens; empty while it is stopped."""
    filters: list[Optional[FileFilter]] = dataclasses.field(default_factory=list)
    """The file filters of the server's clients; the simulated server has none."""
    text3: str = ""
    """The name of the outside identity provider."""
    text4: str = ""
    """The identity provider's login address, without a login's state."""
    users2: list[Optional[UserInfo]] = dataclasses.field(default_factory=list)
    """The users logged in now, one entry per login."""
    value2: int = 0
    """Failed logins of one user before the engine throttles; 16 bits wide, as the engine's."""


@dataclasses.dataclass(**_OPTIONS)
class ServerSettings:
    """The settings of the engine's server; plain data that owns no memory."""
    flag: bool = False
    """1 while the server runs."""
    value1: int = 0
    """The number of remote connections now."""
    value2: int = 0
    """The number of users."""
    value3: int = 0
    """1 while the SOVD server runs."""


@dataclasses.dataclass(**_OPTIONS)
class FlashSessionInfo:
    """One flash session a target offers: the software it installs and what installing it takes."""
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
    """The outcome of one flash session, or how far it has got in an asynchronous report."""
    name: str = ""
    """The session's name."""
    target: str = ""
    """The target flashed."""
    status: int = 0
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
    """What executeFlashSessionsConfig runs; an input that it consumes."""
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
    """The coding of one target."""
    target: str = ""
    """The target's name."""
    status: int = 0
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
    """What writing a coding file did to one target."""
    target: str = ""
    """The target's name."""
    status: int = 0
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
    """The quick test of one target: its variant and its DTCs, read in one pass."""
    target: str = ""
    """The target's name."""
    status: int = 0
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
    """What applying an ECU configuration did to one target."""
    target: str = ""
    """The target's name."""
    configuration: str = ""
    """The configuration applied."""
    status: int = 0
    """0 applied, 1 silent ECU, 2 unknown target, 3 refused or not part of the configuration."""
    written: int = 0
    """The values written to the target."""
    error: Optional[KelError] = None
    """The error of this target, or None."""


@dataclasses.dataclass(**_OPTIONS)
class EcuOrderEntry:
    """
    One control unit's place in an ECU order, the order in which a vehicle update visits
    the units.
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
    """
    What a vehicle update installs, and how it goes on after a failure. Handed out by
    createVehicleUpdateConfig; an input that updateVehicle and performVehicleUpdate
    consume.
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
    """What a vehicle update did to one unit, or how far it has got in an asynchronous report."""
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
    """
    An update package: software for control units, or for a component of the engine,
    with the checksum of its payload.
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
    """What createVehicleReport reads and writes; an input that it consumes."""
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
    """
    One control unit of the vehicle as it is now. getVehicleData hands out one per unit,
    each with the vehicle's VIN and model, so that every entry stands alone.
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
    """
    Where uploadReport copies a report, and what the broker's upload log records of it;
    an input that it consumes.
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
    """The vehicle the engine works on, as the workshop selected it; reports carry it."""
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
