# Generated from the interface description by tools/generate.py. Do not edit.
"""The C records as ctypes sees them, and the asynchronous exports, which py_call does
not offer: their results arrive as C records in a callback, and their consumed inputs
are built on the library's heap."""

from __future__ import annotations

import ctypes
from typing import Any, Callable, Optional, Sequence, TypeVar

from . import records

# The callback of every asynchronous export: results, count, isFinal, callId, error, context.
CALLBACK = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_uint32, ctypes.c_bool, ctypes.c_uint64,
                            ctypes.c_void_p, ctypes.c_void_p)

_POINTER_SIZE = ctypes.sizeof(ctypes.c_void_p)
T = TypeVar("T")


def _text(address: Optional[int]) -> str:
    return ctypes.wstring_at(address) if address else ""


def _texts(address: Optional[int], count: int) -> list[str]:
    if not address:
        return []
    block = (ctypes.c_void_p * count).from_address(address)
    return [_text(p) for p in block]


def from_c_list(address: Optional[int], count: int, convert: Callable[[Optional[int]], T]) -> list[T]:
    if not address:
        return []
    return [convert(p) for p in (ctypes.c_void_p * count).from_address(address)]


def heap_block(lib: Any, size: int) -> int:
    address: Optional[int] = lib.allocate_Memory(size)
    if not address:
        raise MemoryError("the library's heap is exhausted")
    ctypes.memset(address, 0, size)
    return address


def heap_texts(lib: Any, texts: Sequence[str], always: bool) -> tuple[int, int]:
    if not texts and not always:
        return 0, 0
    address = heap_block(lib, max(len(texts), 1) * _POINTER_SIZE)
    block = (ctypes.c_void_p * max(len(texts), 1)).from_address(address)
    for i, text in enumerate(texts):
        block[i] = lib.duplicate_WString(text)
    return address, len(texts)


def heap_bytes(lib: Any, data: bytes) -> tuple[int, int]:
    if not data:
        return 0, 0
    address = heap_block(lib, len(data))
    ctypes.memmove(address, data, len(data))
    return address, len(data)


def heap_list(lib: Any, values: Sequence[Optional[T]], convert: Callable[[Any, Optional[T]], int]) -> tuple[int, int]:
    if not values:
        return 0, 0
    address = heap_block(lib, len(values) * _POINTER_SIZE)
    block = (ctypes.c_void_p * len(values)).from_address(address)
    for i, value in enumerate(values):
        block[i] = convert(lib, value)
    return address, len(values)

class C_MvciServerError(ctypes.Structure):
    _fields_ = [("code", ctypes.c_int32), ("codeText", ctypes.c_void_p), ("vendorCode", ctypes.c_int32), ("vendorCodeText", ctypes.c_void_p), ("extraText", ctypes.c_void_p), ("extraCode", ctypes.c_int32)]


class C_NegativeResponse(ctypes.Structure):
    _fields_ = [("code", ctypes.c_int32), ("text", ctypes.c_void_p), ("value1", ctypes.c_uint64), ("value2", ctypes.c_uint64), ("bytes", ctypes.c_void_p), ("byteCount", ctypes.c_uint32)]


class C_KelError(ctypes.Structure):
    _fields_ = [("code", ctypes.c_int32), ("message", ctypes.c_void_p), ("details", ctypes.c_void_p), ("subCode", ctypes.c_int32), ("mvciError", ctypes.c_void_p), ("negativeResponse", ctypes.c_void_p)]


class C_NamedItem(ctypes.Structure):
    _fields_ = [("itemText1", ctypes.c_void_p), ("itemText2", ctypes.c_void_p), ("itemText3", ctypes.c_void_p), ("itemText4", ctypes.c_void_p)]


class C_ParameterResult(ctypes.Structure):
    _fields_ = [("itemText1", ctypes.c_void_p), ("itemText2", ctypes.c_void_p), ("itemText3", ctypes.c_void_p), ("itemText4", ctypes.c_void_p), ("text1", ctypes.c_void_p), ("text2", ctypes.c_void_p), ("value1", ctypes.c_int32), ("children", ctypes.c_void_p), ("childCount", ctypes.c_uint32), ("text3", ctypes.c_void_p), ("error", ctypes.c_void_p), ("text4", ctypes.c_void_p), ("value2", ctypes.c_int32), ("data", ctypes.c_void_p), ("dataLength", ctypes.c_uint32), ("value3", ctypes.c_uint32), ("flag", ctypes.c_uint8), ("value4", ctypes.c_int32)]


class C_ClearDtcResult(ctypes.Structure):
    _fields_ = [("status", ctypes.c_int32), ("target", ctypes.c_void_p), ("error", ctypes.c_void_p)]


class C_DtcReadConfig(ctypes.Structure):
    _fields_ = [("value", ctypes.c_int32), ("flag1", ctypes.c_uint8), ("flag2", ctypes.c_uint8), ("flag3", ctypes.c_uint8)]


class C_ReadDtcResult(ctypes.Structure):
    _fields_ = [("status", ctypes.c_int32), ("target", ctypes.c_void_p), ("error", ctypes.c_void_p), ("dtcs", ctypes.c_void_p), ("dtcCount", ctypes.c_uint32), ("value", ctypes.c_int32)]


class C_DtcResult(ctypes.Structure):
    _fields_ = [("code", ctypes.c_int32), ("text1", ctypes.c_void_p), ("text2", ctypes.c_void_p), ("value1", ctypes.c_int32), ("parameters1", ctypes.c_void_p), ("parameterCount1", ctypes.c_uint32), ("parameters2", ctypes.c_void_p), ("parameterCount2", ctypes.c_uint32), ("text3", ctypes.c_void_p), ("text4", ctypes.c_void_p), ("specialDataGroups", ctypes.c_void_p), ("specialDataGroupCount", ctypes.c_uint32), ("value2", ctypes.c_int32)]


class C_SpecialDataGroup(ctypes.Structure):
    _fields_ = [("items", ctypes.c_void_p), ("itemCount", ctypes.c_uint32)]


class C_VariantIdentResult(ctypes.Structure):
    _fields_ = [("target", ctypes.c_void_p), ("status", ctypes.c_int32), ("error", ctypes.c_void_p), ("variant", ctypes.c_void_p)]


class C_ReadDataResult(ctypes.Structure):
    _fields_ = [("target", ctypes.c_void_p), ("status", ctypes.c_int32), ("text", ctypes.c_void_p), ("error", ctypes.c_void_p), ("parameters", ctypes.c_void_p), ("parameterCount", ctypes.c_uint32)]


class C_Target(ctypes.Structure):
    _fields_ = [("itemText1", ctypes.c_void_p), ("itemText2", ctypes.c_void_p), ("itemText3", ctypes.c_void_p), ("itemText4", ctypes.c_void_p), ("value1", ctypes.c_int32), ("text1", ctypes.c_void_p), ("text2", ctypes.c_void_p), ("items", ctypes.c_void_p), ("itemCount", ctypes.c_uint32), ("names", ctypes.c_void_p), ("nameCount", ctypes.c_uint32), ("text3", ctypes.c_void_p), ("text4", ctypes.c_void_p), ("value2", ctypes.c_int32), ("text5", ctypes.c_void_p)]


class C_TargetStatus(ctypes.Structure):
    _fields_ = [("target", ctypes.c_void_p), ("text", ctypes.c_void_p), ("error", ctypes.c_void_p), ("values", ctypes.c_uint32 * 5), ("text2", ctypes.c_void_p)]


class C_TargetFilter(ctypes.Structure):
    _fields_ = [("pattern", ctypes.c_void_p), ("flag", ctypes.c_uint8), ("value", ctypes.c_int32)]


class C_KelEvent(ctypes.Structure):
    _fields_ = [("name", ctypes.c_void_p), ("kind", ctypes.c_int32), ("code", ctypes.c_int32), ("text", ctypes.c_void_p), ("error", ctypes.c_void_p), ("detail", ctypes.c_void_p)]


class C_EventReport(ctypes.Structure):
    _fields_ = [("events", ctypes.c_void_p), ("eventCount", ctypes.c_uint32)]


def from_c_MvciServerError(address: Optional[int]) -> Optional[records.MvciServerError]:
    if not address:
        return None
    s = C_MvciServerError.from_address(address)
    return records.MvciServerError(
        code=s.code,
        code_text=_text(s.codeText),
        vendor_code=s.vendorCode,
        vendor_code_text=_text(s.vendorCodeText),
        extra_text=_text(s.extraText),
        extra_code=s.extraCode,
    )


def from_c_NegativeResponse(address: Optional[int]) -> Optional[records.NegativeResponse]:
    if not address:
        return None
    s = C_NegativeResponse.from_address(address)
    return records.NegativeResponse(
        code=s.code,
        text=_text(s.text),
        value1=s.value1,
        value2=s.value2,
        bytes=ctypes.string_at(s.bytes, s.byteCount) if s.bytes else b"",
    )


def from_c_KelError(address: Optional[int]) -> Optional[records.KelError]:
    if not address:
        return None
    s = C_KelError.from_address(address)
    return records.KelError(
        code=s.code,
        message=_text(s.message),
        details=_text(s.details),
        sub_code=s.subCode,
        mvci_error=from_c_MvciServerError(s.mvciError),
        negative_response=from_c_NegativeResponse(s.negativeResponse),
    )


def from_c_NamedItem(address: Optional[int]) -> Optional[records.NamedItem]:
    if not address:
        return None
    s = C_NamedItem.from_address(address)
    return records.NamedItem(
        item_text1=_text(s.itemText1),
        item_text2=_text(s.itemText2),
        item_text3=_text(s.itemText3),
        item_text4=_text(s.itemText4),
    )


def from_c_ParameterResult(address: Optional[int]) -> Optional[records.ParameterResult]:
    if not address:
        return None
    s = C_ParameterResult.from_address(address)
    return records.ParameterResult(
        item_text1=_text(s.itemText1),
        item_text2=_text(s.itemText2),
        item_text3=_text(s.itemText3),
        item_text4=_text(s.itemText4),
        text1=_text(s.text1),
        text2=_text(s.text2),
        value1=s.value1,
        children=from_c_list(s.children, s.childCount, from_c_ParameterResult),
        text3=_text(s.text3),
        error=from_c_KelError(s.error),
        text4=_text(s.text4),
        value2=s.value2,
        data=ctypes.string_at(s.data, s.dataLength) if s.data else b"",
        value3=s.value3,
        flag=s.flag,
        value4=s.value4,
    )


def from_c_ClearDtcResult(address: Optional[int]) -> Optional[records.ClearDtcResult]:
    if not address:
        return None
    s = C_ClearDtcResult.from_address(address)
    return records.ClearDtcResult(
        status=s.status,
        target=_text(s.target),
        error=from_c_KelError(s.error),
    )


def from_c_DtcReadConfig(address: Optional[int]) -> Optional[records.DtcReadConfig]:
    if not address:
        return None
    s = C_DtcReadConfig.from_address(address)
    return records.DtcReadConfig(
        value=s.value,
        flag1=s.flag1,
        flag2=s.flag2,
        flag3=s.flag3,
    )


def from_c_ReadDtcResult(address: Optional[int]) -> Optional[records.ReadDtcResult]:
    if not address:
        return None
    s = C_ReadDtcResult.from_address(address)
    return records.ReadDtcResult(
        status=s.status,
        target=_text(s.target),
        error=from_c_KelError(s.error),
        dtcs=from_c_list(s.dtcs, s.dtcCount, from_c_DtcResult),
        value=s.value,
    )


def from_c_DtcResult(address: Optional[int]) -> Optional[records.DtcResult]:
    if not address:
        return None
    s = C_DtcResult.from_address(address)
    return records.DtcResult(
        code=s.code,
        text1=_text(s.text1),
        text2=_text(s.text2),
        value1=s.value1,
        parameters1=from_c_list(s.parameters1, s.parameterCount1, from_c_ParameterResult),
        parameters2=from_c_list(s.parameters2, s.parameterCount2, from_c_ParameterResult),
        text3=_text(s.text3),
        text4=_text(s.text4),
        special_data_groups=from_c_list(s.specialDataGroups, s.specialDataGroupCount, from_c_SpecialDataGroup),
        value2=s.value2,
    )


def from_c_SpecialDataGroup(address: Optional[int]) -> Optional[records.SpecialDataGroup]:
    if not address:
        return None
    s = C_SpecialDataGroup.from_address(address)
    return records.SpecialDataGroup(
        items=from_c_list(s.items, s.itemCount, from_c_NamedItem),
    )


def from_c_VariantIdentResult(address: Optional[int]) -> Optional[records.VariantIdentResult]:
    if not address:
        return None
    s = C_VariantIdentResult.from_address(address)
    return records.VariantIdentResult(
        target=_text(s.target),
        status=s.status,
        error=from_c_KelError(s.error),
        variant=_text(s.variant),
    )


def from_c_ReadDataResult(address: Optional[int]) -> Optional[records.ReadDataResult]:
    if not address:
        return None
    s = C_ReadDataResult.from_address(address)
    return records.ReadDataResult(
        target=_text(s.target),
        status=s.status,
        text=_text(s.text),
        error=from_c_KelError(s.error),
        parameters=from_c_list(s.parameters, s.parameterCount, from_c_ParameterResult),
    )


def from_c_Target(address: Optional[int]) -> Optional[records.Target]:
    if not address:
        return None
    s = C_Target.from_address(address)
    return records.Target(
        item_text1=_text(s.itemText1),
        item_text2=_text(s.itemText2),
        item_text3=_text(s.itemText3),
        item_text4=_text(s.itemText4),
        value1=s.value1,
        text1=_text(s.text1),
        text2=_text(s.text2),
        items=from_c_list(s.items, s.itemCount, from_c_NamedItem),
        names=_texts(s.names, s.nameCount),
        text3=_text(s.text3),
        text4=_text(s.text4),
        value2=s.value2,
        text5=_text(s.text5),
    )


def from_c_TargetStatus(address: Optional[int]) -> Optional[records.TargetStatus]:
    if not address:
        return None
    s = C_TargetStatus.from_address(address)
    return records.TargetStatus(
        target=_text(s.target),
        text=_text(s.text),
        error=from_c_KelError(s.error),
        values=list(s.values),
        text2=_text(s.text2),
    )


def from_c_TargetFilter(address: Optional[int]) -> Optional[records.TargetFilter]:
    if not address:
        return None
    s = C_TargetFilter.from_address(address)
    return records.TargetFilter(
        pattern=_text(s.pattern),
        flag=s.flag,
        value=s.value,
    )


def from_c_KelEvent(address: Optional[int]) -> Optional[records.KelEvent]:
    if not address:
        return None
    s = C_KelEvent.from_address(address)
    return records.KelEvent(
        name=_text(s.name),
        kind=s.kind,
        code=s.code,
        text=_text(s.text),
        error=from_c_KelError(s.error),
        detail=_text(s.detail),
    )


def from_c_EventReport(address: Optional[int]) -> Optional[records.EventReport]:
    if not address:
        return None
    s = C_EventReport.from_address(address)
    return records.EventReport(
        events=from_c_list(s.events, s.eventCount, from_c_KelEvent),
    )


def to_c_MvciServerError(lib: Any, v: Optional[records.MvciServerError]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_MvciServerError))
    s = C_MvciServerError.from_address(address)
    s.code = v.code
    s.codeText = lib.duplicate_WString(v.code_text)
    s.vendorCode = v.vendor_code
    s.vendorCodeText = lib.duplicate_WString(v.vendor_code_text)
    s.extraText = lib.duplicate_WString(v.extra_text)
    s.extraCode = v.extra_code
    return address


def to_c_NegativeResponse(lib: Any, v: Optional[records.NegativeResponse]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_NegativeResponse))
    s = C_NegativeResponse.from_address(address)
    s.code = v.code
    s.text = lib.duplicate_WString(v.text)
    s.value1 = v.value1
    s.value2 = v.value2
    s.bytes, s.byteCount = heap_bytes(lib, v.bytes)
    return address


def to_c_KelError(lib: Any, v: Optional[records.KelError]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_KelError))
    s = C_KelError.from_address(address)
    s.code = v.code
    s.message = lib.duplicate_WString(v.message)
    s.details = lib.duplicate_WString(v.details)
    s.subCode = v.sub_code
    s.mvciError = to_c_MvciServerError(lib, v.mvci_error)
    s.negativeResponse = to_c_NegativeResponse(lib, v.negative_response)
    return address


def to_c_NamedItem(lib: Any, v: Optional[records.NamedItem]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_NamedItem))
    s = C_NamedItem.from_address(address)
    s.itemText1 = lib.duplicate_WString(v.item_text1)
    s.itemText2 = lib.duplicate_WString(v.item_text2)
    s.itemText3 = lib.duplicate_WString(v.item_text3)
    s.itemText4 = lib.duplicate_WString(v.item_text4)
    return address


def to_c_ParameterResult(lib: Any, v: Optional[records.ParameterResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ParameterResult))
    s = C_ParameterResult.from_address(address)
    s.itemText1 = lib.duplicate_WString(v.item_text1)
    s.itemText2 = lib.duplicate_WString(v.item_text2)
    s.itemText3 = lib.duplicate_WString(v.item_text3)
    s.itemText4 = lib.duplicate_WString(v.item_text4)
    s.text1 = lib.duplicate_WString(v.text1)
    s.text2 = lib.duplicate_WString(v.text2)
    s.value1 = v.value1
    s.children, s.childCount = heap_list(lib, v.children, to_c_ParameterResult)
    s.text3 = lib.duplicate_WString(v.text3)
    s.error = to_c_KelError(lib, v.error)
    s.text4 = lib.duplicate_WString(v.text4)
    s.value2 = v.value2
    s.data, s.dataLength = heap_bytes(lib, v.data)
    s.value3 = v.value3
    s.flag = v.flag
    s.value4 = v.value4
    return address


def to_c_ClearDtcResult(lib: Any, v: Optional[records.ClearDtcResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ClearDtcResult))
    s = C_ClearDtcResult.from_address(address)
    s.status = v.status
    s.target = lib.duplicate_WString(v.target)
    s.error = to_c_KelError(lib, v.error)
    return address


def to_c_DtcReadConfig(lib: Any, v: Optional[records.DtcReadConfig]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_DtcReadConfig))
    s = C_DtcReadConfig.from_address(address)
    s.value = v.value
    s.flag1 = v.flag1
    s.flag2 = v.flag2
    s.flag3 = v.flag3
    return address


def to_c_ReadDtcResult(lib: Any, v: Optional[records.ReadDtcResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ReadDtcResult))
    s = C_ReadDtcResult.from_address(address)
    s.status = v.status
    s.target = lib.duplicate_WString(v.target)
    s.error = to_c_KelError(lib, v.error)
    s.dtcs, s.dtcCount = heap_list(lib, v.dtcs, to_c_DtcResult)
    s.value = v.value
    return address


def to_c_DtcResult(lib: Any, v: Optional[records.DtcResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_DtcResult))
    s = C_DtcResult.from_address(address)
    s.code = v.code
    s.text1 = lib.duplicate_WString(v.text1)
    s.text2 = lib.duplicate_WString(v.text2)
    s.value1 = v.value1
    s.parameters1, s.parameterCount1 = heap_list(lib, v.parameters1, to_c_ParameterResult)
    s.parameters2, s.parameterCount2 = heap_list(lib, v.parameters2, to_c_ParameterResult)
    s.text3 = lib.duplicate_WString(v.text3)
    s.text4 = lib.duplicate_WString(v.text4)
    s.specialDataGroups, s.specialDataGroupCount = heap_list(lib, v.special_data_groups, to_c_SpecialDataGroup)
    s.value2 = v.value2
    return address


def to_c_SpecialDataGroup(lib: Any, v: Optional[records.SpecialDataGroup]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_SpecialDataGroup))
    s = C_SpecialDataGroup.from_address(address)
    s.items, s.itemCount = heap_list(lib, v.items, to_c_NamedItem)
    return address


def to_c_VariantIdentResult(lib: Any, v: Optional[records.VariantIdentResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_VariantIdentResult))
    s = C_VariantIdentResult.from_address(address)
    s.target = lib.duplicate_WString(v.target)
    s.status = v.status
    s.error = to_c_KelError(lib, v.error)
    s.variant = lib.duplicate_WString(v.variant)
    return address


def to_c_ReadDataResult(lib: Any, v: Optional[records.ReadDataResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ReadDataResult))
    s = C_ReadDataResult.from_address(address)
    s.target = lib.duplicate_WString(v.target)
    s.status = v.status
    s.text = lib.duplicate_WString(v.text)
    s.error = to_c_KelError(lib, v.error)
    s.parameters, s.parameterCount = heap_list(lib, v.parameters, to_c_ParameterResult)
    return address


def to_c_Target(lib: Any, v: Optional[records.Target]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_Target))
    s = C_Target.from_address(address)
    s.itemText1 = lib.duplicate_WString(v.item_text1)
    s.itemText2 = lib.duplicate_WString(v.item_text2)
    s.itemText3 = lib.duplicate_WString(v.item_text3)
    s.itemText4 = lib.duplicate_WString(v.item_text4)
    s.value1 = v.value1
    s.text1 = lib.duplicate_WString(v.text1)
    s.text2 = lib.duplicate_WString(v.text2)
    s.items, s.itemCount = heap_list(lib, v.items, to_c_NamedItem)
    s.names, s.nameCount = heap_texts(lib, v.names, True)
    s.text3 = lib.duplicate_WString(v.text3)
    s.text4 = lib.duplicate_WString(v.text4)
    s.value2 = v.value2
    s.text5 = lib.duplicate_WString(v.text5)
    return address


def to_c_TargetStatus(lib: Any, v: Optional[records.TargetStatus]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_TargetStatus))
    s = C_TargetStatus.from_address(address)
    s.target = lib.duplicate_WString(v.target)
    s.text = lib.duplicate_WString(v.text)
    s.error = to_c_KelError(lib, v.error)
    s.values[:] = v.values
    s.text2 = lib.duplicate_WString(v.text2)
    return address


def to_c_TargetFilter(lib: Any, v: Optional[records.TargetFilter]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_TargetFilter))
    s = C_TargetFilter.from_address(address)
    s.pattern = lib.duplicate_WString(v.pattern)
    s.flag = v.flag
    s.value = v.value
    return address


def to_c_KelEvent(lib: Any, v: Optional[records.KelEvent]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_KelEvent))
    s = C_KelEvent.from_address(address)
    s.name = lib.duplicate_WString(v.name)
    s.kind = v.kind
    s.code = v.code
    s.text = lib.duplicate_WString(v.text)
    s.error = to_c_KelError(lib, v.error)
    s.detail = lib.duplicate_WString(v.detail)
    return address


def to_c_EventReport(lib: Any, v: Optional[records.EventReport]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_EventReport))
    s = C_EventReport.from_address(address)
    s.events, s.eventCount = heap_list(lib, v.events, to_c_KelEvent)
    return address


def start_identifyAllTargetsAsync(lib: Any, api: int, callback: Any) -> tuple[int, Optional[records.KelError]]:
    """kel_identifyAllTargetsAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    call_id: int = lib.kel_identifyAllTargetsAsync(api, ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_readIdentificationValuesAsync(lib: Any, api: int, callback: Any, targets: Sequence[str]) -> tuple[int, Optional[records.KelError]]:
    """kel_readIdentificationValuesAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    call_id: int = lib.kel_readIdentificationValuesAsync(api, ctypes.cast((ctypes.c_wchar_p * len(targets))(*targets), ctypes.c_void_p), len(targets), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_readDtcsAsync(lib: Any, api: int, callback: Any, targets: Sequence[str], config: Optional[records.DtcReadConfig]) -> tuple[int, Optional[records.KelError]]:
    """kel_readDtcsAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    call_id: int = lib.kel_readDtcsAsync(api, ctypes.cast((ctypes.c_wchar_p * len(targets))(*targets), ctypes.c_void_p), len(targets), to_c_DtcReadConfig(lib, config), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_readSupportedDtcsAsync(lib: Any, api: int, callback: Any, targets: Sequence[str], config: Optional[records.DtcReadConfig]) -> tuple[int, Optional[records.KelError]]:
    """kel_readSupportedDtcsAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    call_id: int = lib.kel_readSupportedDtcsAsync(api, ctypes.cast((ctypes.c_wchar_p * len(targets))(*targets), ctypes.c_void_p), len(targets), to_c_DtcReadConfig(lib, config), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_clearAllDtcsAsync(lib: Any, api: int, callback: Any, targets: Sequence[str]) -> tuple[int, Optional[records.KelError]]:
    """kel_clearAllDtcsAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    call_id: int = lib.kel_clearAllDtcsAsync(api, ctypes.cast((ctypes.c_wchar_p * len(targets))(*targets), ctypes.c_void_p), len(targets), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_readMeasurementValuesAsync(lib: Any, api: int, callback: Any, target: str, names: Sequence[str]) -> tuple[int, Optional[records.KelError]]:
    """kel_readMeasurementValuesAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    call_id: int = lib.kel_readMeasurementValuesAsync(api, target, ctypes.cast((ctypes.c_wchar_p * len(names))(*names), ctypes.c_void_p), len(names), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_identifyTargetsAsync(lib: Any, api: int, callback: Any, targets: Sequence[str]) -> tuple[int, Optional[records.KelError]]:
    """kel_identifyTargetsAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    call_id: int = lib.kel_identifyTargetsAsync(api, ctypes.cast((ctypes.c_wchar_p * len(targets))(*targets), ctypes.c_void_p), len(targets), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_clearSpecificDtcsAsync(lib: Any, api: int, callback: Any, target: str, dtc_codes: Sequence[int]) -> tuple[int, Optional[records.KelError]]:
    """kel_clearSpecificDtcsAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    call_id: int = lib.kel_clearSpecificDtcsAsync(api, target, ctypes.cast((ctypes.c_uint32 * len(dtc_codes))(*dtc_codes), ctypes.c_void_p), len(dtc_codes), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


# The C declarations of the exports used here: name -> (result, arguments).
EXPORTS: dict[str, tuple[Any, list[Any]]] = {
    "kel_identifyAllTargetsAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_readIdentificationValuesAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_readDtcsAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.c_void_p, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_readSupportedDtcsAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.c_void_p, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_clearAllDtcsAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_readMeasurementValuesAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_wchar_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_identifyTargetsAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_clearSpecificDtcsAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_wchar_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "release_MvciServerError_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_NegativeResponse_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_KelError_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_NamedItem_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ParameterResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ClearDtcResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_DtcReadConfig_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ReadDtcResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_DtcResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_SpecialDataGroup_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_VariantIdentResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ReadDataResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_Target_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_TargetStatus_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_TargetFilter_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_KelEvent_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_EventReport_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
}
