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


__all__ = ["MvciServerError", "NegativeResponse", "KelError", "NamedItem", "ParameterResult", "ClearDtcResult", "DtcReadConfig", "ReadDtcResult", "DtcResult", "SpecialDataGroup", "VariantIdentResult", "ReadDataResult", "Target", "TargetStatus", "TargetFilter", "KelEvent", "EventReport"]
