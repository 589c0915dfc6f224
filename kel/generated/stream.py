# Generated from the interface description by tools/generate.py. Do not edit.
"""The stream form of every record for py_call: results arrive with length-prefixed
strings and a presence byte before every record; inputs go with NUL-terminated strings,
a presence byte before every record and bit sets as one 32-bit value."""

from __future__ import annotations

import builtins
import struct
from typing import Optional, Sequence

from .records import ClearDtcResult, DtcReadConfig, DtcResult, EventReport, KelError, KelEvent, MvciServerError, NamedItem, NegativeResponse, ParameterResult, ReadDataResult, ReadDtcResult, SpecialDataGroup, Target, TargetFilter, TargetStatus, VariantIdentResult

_U32 = struct.Struct("<I")
_u32_read = _U32.unpack_from


def read_texts(b: bytes, p: int) -> tuple[list[str], int]:
    (n,) = _U32.unpack_from(b, p)
    p += 4
    texts = []
    for _ in range(n):
        (m,) = _U32.unpack_from(b, p)
        texts.append(b[p + 4 : p + 4 + m].decode())
        p += 4 + m
    return texts, p


def write_text(o: bytearray, text: str) -> None:
    """Input strings travel NUL-terminated, so a NUL inside cannot travel."""
    data = text.encode()
    if b"\0" in data:
        raise ValueError(f"a text with a NUL character cannot be passed: {text!r}")
    o += data
    o.append(0)


def write_texts(o: bytearray, texts: Sequence[str]) -> None:
    o += _U32.pack(len(texts))
    for text in texts:
        write_text(o, text)


def write_bytes(o: bytearray, data: builtins.bytes) -> None:
    o += _U32.pack(len(data))
    o += data


def write_values(o: bytearray, code: str, values: Sequence[int]) -> None:
    o += _U32.pack(len(values))
    o += struct.pack(f"<{len(values)}{code}", *values)

_S_i_read = struct.Struct("<i").unpack_from
_S_i_write = struct.Struct("<i").pack
_S_QQ_read = struct.Struct("<QQ").unpack_from
_S_QQ_write = struct.Struct("<QQ").pack
_S_IBi_read = struct.Struct("<IBi").unpack_from
_S_IBi_write = struct.Struct("<IBi").pack
_S_iBBB_read = struct.Struct("<iBBB").unpack_from
_S_iBBB_write = struct.Struct("<iBBB").pack
_S_5I_read = struct.Struct("<5I").unpack_from
_S_5I_write = struct.Struct("<5I").pack
_S_Bi_read = struct.Struct("<Bi").unpack_from
_S_Bi_write = struct.Struct("<Bi").pack
_S_ii_read = struct.Struct("<ii").unpack_from
_S_ii_write = struct.Struct("<ii").pack


def read_MvciServerError(b: bytes, p: int) -> tuple[Optional[MvciServerError], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_code, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_code_text = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_vendor_code, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_vendor_code_text = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_extra_text = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_extra_code, = _S_i_read(b, p)
    p += 4
    return MvciServerError(code=v_code, code_text=v_code_text, vendor_code=v_vendor_code, vendor_code_text=v_vendor_code_text, extra_text=v_extra_text, extra_code=v_extra_code), p


def read_NegativeResponse(b: bytes, p: int) -> tuple[Optional[NegativeResponse], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_code, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value1, v_value2 = _S_QQ_read(b, p)
    p += 16
    (n,) = _u32_read(b, p)
    v_bytes = b[p + 4 : p + 4 + n]
    p += 4 + n
    return NegativeResponse(code=v_code, text=v_text, value1=v_value1, value2=v_value2, bytes=v_bytes), p


def read_KelError(b: bytes, p: int) -> tuple[Optional[KelError], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_code, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_message = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_details = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_sub_code, = _S_i_read(b, p)
    p += 4
    v_mvci_error, p = read_MvciServerError(b, p)
    v_negative_response, p = read_NegativeResponse(b, p)
    return KelError(code=v_code, message=v_message, details=v_details, sub_code=v_sub_code, mvci_error=v_mvci_error, negative_response=v_negative_response), p


def read_NamedItem(b: bytes, p: int) -> tuple[Optional[NamedItem], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return NamedItem(item_text1=v_item_text1, item_text2=v_item_text2, item_text3=v_item_text3, item_text4=v_item_text4), p


def read_ParameterResult(b: bytes, p: int) -> tuple[Optional[ParameterResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value1, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    p += 4
    v_children: list[Optional[ParameterResult]] = []
    for _ in range(n):
        e_v_children, p = read_ParameterResult(b, p)
        v_children.append(e_v_children)
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_error, p = read_KelError(b, p)
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value2, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_data = b[p + 4 : p + 4 + n]
    p += 4 + n
    v_value3, v_flag, v_value4 = _S_IBi_read(b, p)
    p += 9
    return ParameterResult(item_text1=v_item_text1, item_text2=v_item_text2, item_text3=v_item_text3, item_text4=v_item_text4, text1=v_text1, text2=v_text2, value1=v_value1, children=v_children, text3=v_text3, error=v_error, text4=v_text4, value2=v_value2, data=v_data, value3=v_value3, flag=v_flag, value4=v_value4), p


def read_ClearDtcResult(b: bytes, p: int) -> tuple[Optional[ClearDtcResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_status, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_error, p = read_KelError(b, p)
    return ClearDtcResult(status=v_status, target=v_target, error=v_error), p


def read_DtcReadConfig(b: bytes, p: int) -> tuple[Optional[DtcReadConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value, v_flag1, v_flag2, v_flag3 = _S_iBBB_read(b, p)
    p += 7
    return DtcReadConfig(value=v_value, flag1=v_flag1, flag2=v_flag2, flag3=v_flag3), p


def read_ReadDtcResult(b: bytes, p: int) -> tuple[Optional[ReadDtcResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_status, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_error, p = read_KelError(b, p)
    (n,) = _u32_read(b, p)
    p += 4
    v_dtcs: list[Optional[DtcResult]] = []
    for _ in range(n):
        e_v_dtcs, p = read_DtcResult(b, p)
        v_dtcs.append(e_v_dtcs)
    v_value, = _S_i_read(b, p)
    p += 4
    return ReadDtcResult(status=v_status, target=v_target, error=v_error, dtcs=v_dtcs, value=v_value), p


def read_DtcResult(b: bytes, p: int) -> tuple[Optional[DtcResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_code, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value1, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    p += 4
    v_parameters1: list[Optional[ParameterResult]] = []
    for _ in range(n):
        e_v_parameters1, p = read_ParameterResult(b, p)
        v_parameters1.append(e_v_parameters1)
    (n,) = _u32_read(b, p)
    p += 4
    v_parameters2: list[Optional[ParameterResult]] = []
    for _ in range(n):
        e_v_parameters2, p = read_ParameterResult(b, p)
        v_parameters2.append(e_v_parameters2)
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_special_data_groups: list[Optional[SpecialDataGroup]] = []
    for _ in range(n):
        e_v_special_data_groups, p = read_SpecialDataGroup(b, p)
        v_special_data_groups.append(e_v_special_data_groups)
    v_value2, = _S_i_read(b, p)
    p += 4
    return DtcResult(code=v_code, text1=v_text1, text2=v_text2, value1=v_value1, parameters1=v_parameters1, parameters2=v_parameters2, text3=v_text3, text4=v_text4, special_data_groups=v_special_data_groups, value2=v_value2), p


def read_SpecialDataGroup(b: bytes, p: int) -> tuple[Optional[SpecialDataGroup], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    p += 4
    v_items: list[Optional[NamedItem]] = []
    for _ in range(n):
        e_v_items, p = read_SpecialData(b, p)
        v_items.append(e_v_items)
    return SpecialDataGroup(items=v_items), p


def read_VariantIdentResult(b: bytes, p: int) -> tuple[Optional[VariantIdentResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_status, = _S_i_read(b, p)
    p += 4
    v_error, p = read_KelError(b, p)
    (n,) = _u32_read(b, p)
    v_variant = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return VariantIdentResult(target=v_target, status=v_status, error=v_error, variant=v_variant), p


def read_ReadDataResult(b: bytes, p: int) -> tuple[Optional[ReadDataResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_status, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_error, p = read_KelError(b, p)
    (n,) = _u32_read(b, p)
    p += 4
    v_parameters: list[Optional[ParameterResult]] = []
    for _ in range(n):
        e_v_parameters, p = read_ParameterResult(b, p)
        v_parameters.append(e_v_parameters)
    return ReadDataResult(target=v_target, status=v_status, text=v_text, error=v_error, parameters=v_parameters), p


def read_Target(b: bytes, p: int) -> tuple[Optional[Target], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value1, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_items: list[Optional[NamedItem]] = []
    for _ in range(n):
        e_v_items, p = read_NamedItem(b, p)
        v_items.append(e_v_items)
    v_names, p = read_texts(b, p)
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value2, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_text5 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return Target(item_text1=v_item_text1, item_text2=v_item_text2, item_text3=v_item_text3, item_text4=v_item_text4, value1=v_value1, text1=v_text1, text2=v_text2, items=v_items, names=v_names, text3=v_text3, text4=v_text4, value2=v_value2, text5=v_text5), p


def read_TargetStatus(b: bytes, p: int) -> tuple[Optional[TargetStatus], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_error, p = read_KelError(b, p)
    v_values = list(_S_5I_read(b, p))
    p += 20
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return TargetStatus(target=v_target, text=v_text, error=v_error, values=v_values, text2=v_text2), p


def read_TargetFilter(b: bytes, p: int) -> tuple[Optional[TargetFilter], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_pattern = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_flag, v_value = _S_Bi_read(b, p)
    p += 5
    return TargetFilter(pattern=v_pattern, flag=v_flag, value=v_value), p


def read_KelEvent(b: bytes, p: int) -> tuple[Optional[KelEvent], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_kind, v_code = _S_ii_read(b, p)
    p += 8
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_error, p = read_KelError(b, p)
    (n,) = _u32_read(b, p)
    v_detail = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return KelEvent(name=v_name, kind=v_kind, code=v_code, text=v_text, error=v_error, detail=v_detail), p


def read_EventReport(b: bytes, p: int) -> tuple[Optional[EventReport], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    p += 4
    v_events: list[Optional[KelEvent]] = []
    for _ in range(n):
        e_v_events, p = read_KelEvent(b, p)
        v_events.append(e_v_events)
    return EventReport(events=v_events), p


def read_SupportedDtcResult(b: bytes, p: int) -> tuple[Optional[ReadDtcResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_status, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_error, p = read_KelError(b, p)
    (n,) = _u32_read(b, p)
    p += 4
    v_dtcs: list[Optional[DtcResult]] = []
    for _ in range(n):
        e_v_dtcs, p = read_DtcResult(b, p)
        v_dtcs.append(e_v_dtcs)
    return ReadDtcResult(status=v_status, target=v_target, error=v_error, dtcs=v_dtcs), p


def read_SpecialData(b: bytes, p: int) -> tuple[Optional[NamedItem], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return NamedItem(item_text1=v_item_text1, item_text2=v_item_text2, item_text3=v_item_text3, item_text4=v_item_text4), p


def write_MvciServerError(o: bytearray, v: Optional[MvciServerError]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_i_write(v.code)
    write_text(o, v.code_text)
    o += _S_i_write(v.vendor_code)
    write_text(o, v.vendor_code_text)
    write_text(o, v.extra_text)
    o += _S_i_write(v.extra_code)


def write_NegativeResponse(o: bytearray, v: Optional[NegativeResponse]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_i_write(v.code)
    write_text(o, v.text)
    o += _S_QQ_write(v.value1, v.value2)
    write_bytes(o, v.bytes)


def write_KelError(o: bytearray, v: Optional[KelError]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_i_write(v.code)
    write_text(o, v.message)
    write_text(o, v.details)
    o += _S_i_write(v.sub_code)
    write_MvciServerError(o, v.mvci_error)
    write_NegativeResponse(o, v.negative_response)


def write_NamedItem(o: bytearray, v: Optional[NamedItem]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.item_text1)
    write_text(o, v.item_text2)
    write_text(o, v.item_text3)
    write_text(o, v.item_text4)


def write_ParameterResult(o: bytearray, v: Optional[ParameterResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.item_text1)
    write_text(o, v.item_text2)
    write_text(o, v.item_text3)
    write_text(o, v.item_text4)
    write_text(o, v.text1)
    write_text(o, v.text2)
    o += _S_i_write(v.value1)
    o += _U32.pack(len(v.children))
    for e_children in v.children:
        write_ParameterResult(o, e_children)
    write_text(o, v.text3)
    write_KelError(o, v.error)
    write_text(o, v.text4)
    o += _S_i_write(v.value2)
    write_bytes(o, v.data)
    o += _S_IBi_write(v.value3, v.flag, v.value4)


def write_ClearDtcResult(o: bytearray, v: Optional[ClearDtcResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_i_write(v.status)
    write_text(o, v.target)
    write_KelError(o, v.error)


def write_DtcReadConfig(o: bytearray, v: Optional[DtcReadConfig]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_iBBB_write(v.value, v.flag1, v.flag2, v.flag3)


def write_ReadDtcResult(o: bytearray, v: Optional[ReadDtcResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_i_write(v.status)
    write_text(o, v.target)
    write_KelError(o, v.error)
    o += _U32.pack(len(v.dtcs))
    for e_dtcs in v.dtcs:
        write_DtcResult(o, e_dtcs)
    o += _S_i_write(v.value)


def write_DtcResult(o: bytearray, v: Optional[DtcResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_i_write(v.code)
    write_text(o, v.text1)
    write_text(o, v.text2)
    o += _S_i_write(v.value1)
    o += _U32.pack(len(v.parameters1))
    for e_parameters1 in v.parameters1:
        write_ParameterResult(o, e_parameters1)
    o += _U32.pack(len(v.parameters2))
    for e_parameters2 in v.parameters2:
        write_ParameterResult(o, e_parameters2)
    write_text(o, v.text3)
    write_text(o, v.text4)
    o += _U32.pack(len(v.special_data_groups))
    for e_special_data_groups in v.special_data_groups:
        write_SpecialDataGroup(o, e_special_data_groups)
    o += _S_i_write(v.value2)


def write_SpecialDataGroup(o: bytearray, v: Optional[SpecialDataGroup]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _U32.pack(len(v.items))
    for e_items in v.items:
        write_SpecialData(o, e_items)


def write_VariantIdentResult(o: bytearray, v: Optional[VariantIdentResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.target)
    o += _S_i_write(v.status)
    write_KelError(o, v.error)
    write_text(o, v.variant)


def write_ReadDataResult(o: bytearray, v: Optional[ReadDataResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.target)
    o += _S_i_write(v.status)
    write_text(o, v.text)
    write_KelError(o, v.error)
    o += _U32.pack(len(v.parameters))
    for e_parameters in v.parameters:
        write_ParameterResult(o, e_parameters)


def write_Target(o: bytearray, v: Optional[Target]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.item_text1)
    write_text(o, v.item_text2)
    write_text(o, v.item_text3)
    write_text(o, v.item_text4)
    o += _S_i_write(v.value1)
    write_text(o, v.text1)
    write_text(o, v.text2)
    o += _U32.pack(len(v.items))
    for e_items in v.items:
        write_NamedItem(o, e_items)
    write_texts(o, v.names)
    write_text(o, v.text3)
    write_text(o, v.text4)
    o += _S_i_write(v.value2)
    write_text(o, v.text5)


def write_TargetStatus(o: bytearray, v: Optional[TargetStatus]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.target)
    write_text(o, v.text)
    write_KelError(o, v.error)
    o += _S_5I_write(*v.values)
    write_text(o, v.text2)


def write_TargetFilter(o: bytearray, v: Optional[TargetFilter]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.pattern)
    o += _S_Bi_write(v.flag, v.value)


def write_KelEvent(o: bytearray, v: Optional[KelEvent]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    o += _S_ii_write(v.kind, v.code)
    write_text(o, v.text)
    write_KelError(o, v.error)
    write_text(o, v.detail)


def write_EventReport(o: bytearray, v: Optional[EventReport]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _U32.pack(len(v.events))
    for e_events in v.events:
        write_KelEvent(o, e_events)


def write_SupportedDtcResult(o: bytearray, v: Optional[ReadDtcResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_i_write(v.status)
    write_text(o, v.target)
    write_KelError(o, v.error)
    o += _U32.pack(len(v.dtcs))
    for e_dtcs in v.dtcs:
        write_DtcResult(o, e_dtcs)


def write_SpecialData(o: bytearray, v: Optional[NamedItem]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.item_text1)
    write_text(o, v.item_text2)
    write_text(o, v.item_text3)
    write_text(o, v.item_text4)
