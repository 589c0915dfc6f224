# Generated from the interface description by tools/generate.py. Do not edit.
"""The C records as ctypes sees them, and the asynchronous exports, which py_call does
not offer: their results arrive as C records in a callback, and their consumed inputs
are built on the library's heap."""

from __future__ import annotations

import ctypes
from typing import Any, Callable, Optional, Sequence, TypeVar

from . import enums, records

# The callback of every asynchronous export: results, count, isFinal, callId, error, context.
CALLBACK = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_uint32, ctypes.c_bool, ctypes.c_uint64,
                            ctypes.c_void_p, ctypes.c_void_p)

_POINTER_SIZE = ctypes.sizeof(ctypes.c_void_p)
T = TypeVar("T")


def check_texts(texts: Sequence[str], parameter: str) -> None:
    """As the stream's write_texts: a single str, or an element that is not a str, is refused."""
    if isinstance(texts, (str, bytes)):
        raise TypeError(f"{parameter} must be a sequence of str, not a single {type(texts).__name__}: "
                        f"write [{texts!r}]")
    for i, text in enumerate(texts):
        if not isinstance(text, str):
            raise TypeError(f"{parameter}[{i}] must be a str, not {type(text).__name__}")


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


class C_ParameterInput(ctypes.Structure):
    _fields_ = [("name", ctypes.c_void_p), ("children", ctypes.c_void_p), ("childCount", ctypes.c_uint32), ("value", ctypes.c_void_p)]


class C_ServiceInput(ctypes.Structure):
    _fields_ = [("parameters", ctypes.c_void_p), ("parameterCount", ctypes.c_uint32), ("service", ctypes.c_void_p), ("data", ctypes.c_void_p), ("dataLength", ctypes.c_uint32), ("value", ctypes.c_uint64)]


class C_ServiceResult(ctypes.Structure):
    _fields_ = [("itemText1", ctypes.c_void_p), ("itemText2", ctypes.c_void_p), ("itemText3", ctypes.c_void_p), ("itemText4", ctypes.c_void_p), ("responses", ctypes.c_void_p), ("responseCount", ctypes.c_uint32), ("status", ctypes.c_int32), ("text1", ctypes.c_void_p), ("error", ctypes.c_void_p), ("request", ctypes.c_void_p), ("value1", ctypes.c_int32)]


class C_ResponseResult(ctypes.Structure):
    _fields_ = [("itemText1", ctypes.c_void_p), ("itemText2", ctypes.c_void_p), ("itemText3", ctypes.c_void_p), ("itemText4", ctypes.c_void_p), ("flag", ctypes.c_uint8), ("error", ctypes.c_void_p), ("data", ctypes.c_void_p), ("dataLength", ctypes.c_uint32), ("value1", ctypes.c_uint64), ("value2", ctypes.c_uint64), ("parameters", ctypes.c_void_p), ("parameterCount", ctypes.c_uint32)]


class C_RequestResult(ctypes.Structure):
    _fields_ = [("error", ctypes.c_void_p), ("data", ctypes.c_void_p), ("dataLength", ctypes.c_uint32), ("value1", ctypes.c_uint64), ("value2", ctypes.c_uint64), ("parameters", ctypes.c_void_p), ("parameterCount", ctypes.c_uint32)]


class C_UnlockResult(ctypes.Structure):
    _fields_ = [("value", ctypes.c_uint64), ("services", ctypes.c_void_p), ("serviceCount", ctypes.c_uint32)]


class C_ServiceInfo(ctypes.Structure):
    _fields_ = [("itemText1", ctypes.c_void_p), ("itemText2", ctypes.c_void_p), ("itemText3", ctypes.c_void_p), ("itemText4", ctypes.c_void_p), ("flag", ctypes.c_uint8), ("responses", ctypes.c_void_p), ("responseCount", ctypes.c_uint32), ("parameters", ctypes.c_void_p), ("parameterCount", ctypes.c_uint32), ("text1", ctypes.c_void_p), ("items", ctypes.c_void_p), ("itemCount", ctypes.c_uint32), ("error", ctypes.c_void_p), ("values", ctypes.c_uint32 * 5)]


class C_ResponseInfo(ctypes.Structure):
    _fields_ = [("itemText1", ctypes.c_void_p), ("itemText2", ctypes.c_void_p), ("itemText3", ctypes.c_void_p), ("itemText4", ctypes.c_void_p), ("status", ctypes.c_int32), ("parameters", ctypes.c_void_p), ("parameterCount", ctypes.c_uint32)]


class C_ParameterInfo(ctypes.Structure):
    _fields_ = [("itemText1", ctypes.c_void_p), ("itemText2", ctypes.c_void_p), ("itemText3", ctypes.c_void_p), ("itemText4", ctypes.c_void_p), ("text1", ctypes.c_void_p), ("text2", ctypes.c_void_p), ("text3", ctypes.c_void_p), ("value1", ctypes.c_int32), ("text4", ctypes.c_void_p), ("children", ctypes.c_void_p), ("childCount", ctypes.c_uint32), ("text5", ctypes.c_void_p), ("names", ctypes.c_void_p), ("nameCount", ctypes.c_uint32), ("flag1", ctypes.c_uint8), ("value2", ctypes.c_int32), ("error", ctypes.c_void_p), ("flag2", ctypes.c_uint8), ("values", ctypes.c_uint32 * 8), ("flag3", ctypes.c_uint8), ("constraint1", ctypes.c_void_p), ("constraint2", ctypes.c_void_p), ("text6", ctypes.c_void_p), ("text7", ctypes.c_void_p), ("flag4", ctypes.c_uint8), ("unit", ctypes.c_void_p)]


class C_ConstraintInfo(ctypes.Structure):
    _fields_ = [("text1", ctypes.c_void_p), ("text2", ctypes.c_void_p), ("flag", ctypes.c_uint8), ("scales", ctypes.c_void_p), ("scaleCount", ctypes.c_uint32)]


class C_ScaleConstraintInfo(ctypes.Structure):
    _fields_ = [("itemText1", ctypes.c_void_p), ("itemText2", ctypes.c_void_p), ("itemText3", ctypes.c_void_p), ("itemText4", ctypes.c_void_p), ("text1", ctypes.c_void_p), ("text2", ctypes.c_void_p), ("flag", ctypes.c_uint8), ("value", ctypes.c_int32)]


class C_UnitInfo(ctypes.Structure):
    _fields_ = [("values", ctypes.c_uint32 * 7), ("value1", ctypes.c_uint64), ("flag1", ctypes.c_uint8), ("value2", ctypes.c_uint64), ("flag2", ctypes.c_uint8)]


class C_ParameterInfoConfig(ctypes.Structure):
    _fields_ = [("text1", ctypes.c_void_p), ("text2", ctypes.c_void_p), ("value", ctypes.c_int32), ("text3", ctypes.c_void_p), ("text4", ctypes.c_void_p)]


class C_KelEvent(ctypes.Structure):
    _fields_ = [("name", ctypes.c_void_p), ("kind", ctypes.c_int32), ("code", ctypes.c_int32), ("text", ctypes.c_void_p), ("error", ctypes.c_void_p), ("detail", ctypes.c_void_p)]


class C_EventReport(ctypes.Structure):
    _fields_ = [("events", ctypes.c_void_p), ("eventCount", ctypes.c_uint32)]


class C_FileFilter(ctypes.Structure):
    _fields_ = [("pattern", ctypes.c_void_p), ("flag", ctypes.c_uint8), ("value", ctypes.c_uint32)]


class C_TargetConfig(ctypes.Structure):
    _fields_ = [("value", ctypes.c_int32), ("text1", ctypes.c_void_p), ("text2", ctypes.c_void_p)]


class C_ProjectConfig(ctypes.Structure):
    _fields_ = [("itemText1", ctypes.c_void_p), ("itemText2", ctypes.c_void_p), ("itemText3", ctypes.c_void_p), ("itemText4", ctypes.c_void_p), ("filters1", ctypes.c_void_p), ("filterCount1", ctypes.c_uint32), ("value0", ctypes.c_int32), ("targets", ctypes.c_void_p), ("targetCount", ctypes.c_uint32), ("filters2", ctypes.c_void_p), ("filterCount2", ctypes.c_uint32), ("strings1", ctypes.c_void_p), ("stringCount1", ctypes.c_uint32), ("text1", ctypes.c_void_p), ("value1", ctypes.c_uint32), ("text2", ctypes.c_void_p), ("strings2", ctypes.c_void_p), ("stringCount2", ctypes.c_uint32), ("text3", ctypes.c_void_p), ("value2", ctypes.c_uint32), ("value3", ctypes.c_uint32), ("flags", ctypes.c_bool * 4)]


class C_ProjectDetails(ctypes.Structure):
    _fields_ = [("dbFiles1", ctypes.c_void_p), ("dbFileCount1", ctypes.c_uint32), ("dbFiles2", ctypes.c_void_p), ("dbFileCount2", ctypes.c_uint32), ("text1", ctypes.c_void_p), ("value1", ctypes.c_uint32), ("text2", ctypes.c_void_p), ("value2", ctypes.c_uint32), ("users", ctypes.c_void_p), ("userCount", ctypes.c_uint32)]


class C_DbFileInfo(ctypes.Structure):
    _fields_ = [("name", ctypes.c_void_p), ("path", ctypes.c_void_p), ("size", ctypes.c_uint64), ("loaded", ctypes.c_uint8), ("error", ctypes.c_void_p)]


class C_SystemInfo(ctypes.Structure):
    _fields_ = [("value1", ctypes.c_uint32), ("value2", ctypes.c_uint32), ("text1", ctypes.c_void_p), ("value3", ctypes.c_uint32), ("text2", ctypes.c_void_p), ("text3", ctypes.c_void_p), ("text4", ctypes.c_void_p)]


class C_SystemProperty(ctypes.Structure):
    _fields_ = [("itemText1", ctypes.c_void_p), ("itemText2", ctypes.c_void_p), ("itemText3", ctypes.c_void_p), ("itemText4", ctypes.c_void_p), ("text1", ctypes.c_void_p), ("text2", ctypes.c_void_p), ("value1", ctypes.c_uint32), ("children", ctypes.c_void_p), ("childCount", ctypes.c_uint32), ("text3", ctypes.c_void_p), ("error", ctypes.c_void_p), ("text4", ctypes.c_void_p), ("value2", ctypes.c_uint32), ("data", ctypes.c_void_p), ("dataLength", ctypes.c_uint32), ("value3", ctypes.c_uint32), ("flag", ctypes.c_uint8), ("value4", ctypes.c_uint32)]


class C_TarnApiConfig(ctypes.Structure):
    _fields_ = [("value1", ctypes.c_int32), ("flag1", ctypes.c_uint8), ("flag2", ctypes.c_uint8), ("value2", ctypes.c_int32), ("server", ctypes.c_void_p), ("value3", ctypes.c_uint32), ("value4", ctypes.c_uint32), ("value5", ctypes.c_uint32), ("flag3", ctypes.c_uint8), ("value6", ctypes.c_uint32), ("value7", ctypes.c_uint16), ("oauth2Configs", ctypes.c_void_p), ("oauth2ConfigCount", ctypes.c_uint32), ("text", ctypes.c_void_p)]


class C_ServerConfig(ctypes.Structure):
    _fields_ = [("address", ctypes.c_void_p), ("port", ctypes.c_uint32), ("enabled", ctypes.c_uint8), ("name", ctypes.c_void_p)]


class C_Oauth2Config(ctypes.Structure):
    _fields_ = [("issuer", ctypes.c_void_p), ("clientId", ctypes.c_void_p), ("scopes", ctypes.c_void_p), ("scopeCount", ctypes.c_uint32), ("redirectUrl", ctypes.c_void_p)]


class C_MoxConfig(ctypes.Structure):
    _fields_ = [("text1", ctypes.c_void_p), ("text2", ctypes.c_void_p), ("text3", ctypes.c_void_p), ("text4", ctypes.c_void_p), ("text5", ctypes.c_void_p), ("flag1", ctypes.c_uint8), ("flag2", ctypes.c_uint8), ("flag3", ctypes.c_uint8), ("value", ctypes.c_uint32), ("flag4", ctypes.c_uint8), ("flag5", ctypes.c_uint8), ("flag6", ctypes.c_uint8), ("text6", ctypes.c_void_p), ("text7", ctypes.c_void_p), ("tcp", ctypes.c_void_p)]


class C_TcpInfo(ctypes.Structure):
    _fields_ = [("value1", ctypes.c_uint8), ("value2", ctypes.c_uint8), ("value3", ctypes.c_uint8), ("value4", ctypes.c_uint32), ("value5", ctypes.c_uint32), ("value6", ctypes.c_uint32)]


class C_StatusInfo(ctypes.Structure):
    _fields_ = [("value1", ctypes.c_uint64), ("value2", ctypes.c_uint64), ("value3", ctypes.c_uint64), ("value4", ctypes.c_uint64), ("value5", ctypes.c_uint64), ("value6", ctypes.c_uint32), ("value7", ctypes.c_uint64), ("value8", ctypes.c_uint64)]


class C_TransmissionInfo(ctypes.Structure):
    _fields_ = [("value1", ctypes.c_uint64), ("value2", ctypes.c_uint64), ("value3", ctypes.c_uint64), ("value4", ctypes.c_uint64)]


class C_ProcessInfo(ctypes.Structure):
    _fields_ = [("processes", ctypes.c_void_p), ("processCount", ctypes.c_uint32), ("flag1", ctypes.c_uint8), ("flag2", ctypes.c_uint8), ("text", ctypes.c_void_p)]


class C_ProcessEntry(ctypes.Structure):
    _fields_ = [("value", ctypes.c_uint32), ("items1", ctypes.c_void_p), ("itemCount1", ctypes.c_uint32), ("text", ctypes.c_void_p), ("items2", ctypes.c_void_p), ("itemCount2", ctypes.c_uint32)]


class C_ProcessThread(ctypes.Structure):
    _fields_ = [("id", ctypes.c_uint32), ("name", ctypes.c_void_p)]


class C_ProcessMemory(ctypes.Structure):
    _fields_ = [("name", ctypes.c_void_p), ("bytes", ctypes.c_uint64)]


class C_GlobalProtocolParameterSet(ctypes.Structure):
    _fields_ = [("text1", ctypes.c_void_p), ("text2", ctypes.c_void_p), ("text3", ctypes.c_void_p), ("text4", ctypes.c_void_p), ("parameters", ctypes.c_void_p), ("parameterCount", ctypes.c_uint32)]


class C_GlobalProtocolParameter(ctypes.Structure):
    _fields_ = [("itemText1", ctypes.c_void_p), ("itemText2", ctypes.c_void_p), ("itemText3", ctypes.c_void_p), ("itemText4", ctypes.c_void_p), ("value", ctypes.c_void_p), ("defaultValue", ctypes.c_void_p), ("infos", ctypes.c_void_p), ("infoCount", ctypes.c_uint32), ("choices", ctypes.c_void_p), ("choiceCount", ctypes.c_uint32), ("error", ctypes.c_void_p), ("constraints", ctypes.c_void_p), ("constraintCount", ctypes.c_uint32), ("tcp", ctypes.c_void_p), ("value1", ctypes.c_uint32), ("flag", ctypes.c_uint8)]


class C_LoadDatabaseResult(ctypes.Structure):
    _fields_ = [("text", ctypes.c_void_p), ("flag", ctypes.c_uint8), ("error", ctypes.c_void_p)]


class C_InterfaceInformation(ctypes.Structure):
    _fields_ = [("itemText1", ctypes.c_void_p), ("itemText2", ctypes.c_void_p), ("itemText3", ctypes.c_void_p), ("itemText4", ctypes.c_void_p), ("resources", ctypes.c_void_p), ("resourceCount", ctypes.c_uint32), ("flag1", ctypes.c_uint8), ("flag2", ctypes.c_uint8), ("text1", ctypes.c_void_p), ("text2", ctypes.c_void_p), ("flag3", ctypes.c_uint8), ("items", ctypes.c_void_p), ("itemCount", ctypes.c_uint32), ("value", ctypes.c_uint64)]


class C_ResourceInformation(ctypes.Structure):
    _fields_ = [("itemText1", ctypes.c_void_p), ("itemText2", ctypes.c_void_p), ("itemText3", ctypes.c_void_p), ("itemText4", ctypes.c_void_p), ("id", ctypes.c_uint32), ("pin", ctypes.c_uint32), ("inUse", ctypes.c_uint8)]


class C_InterfaceInformationItem(ctypes.Structure):
    _fields_ = [("itemText1", ctypes.c_void_p), ("itemText2", ctypes.c_void_p), ("itemText3", ctypes.c_void_p), ("itemText4", ctypes.c_void_p)]


class C_ScanInterfaceResult(ctypes.Structure):
    _fields_ = [("interfaceInfo", ctypes.c_void_p), ("error", ctypes.c_void_p)]


class C_DynInterfaceDetection(ctypes.Structure):
    _fields_ = [("namePattern", ctypes.c_void_p), ("kind", ctypes.c_void_p), ("onlyFree", ctypes.c_uint8)]


class C_ModuleDyn(ctypes.Structure):
    _fields_ = [("name", ctypes.c_void_p), ("longName", ctypes.c_void_p), ("vendor", ctypes.c_void_p), ("kind", ctypes.c_void_p), ("address", ctypes.c_void_p), ("vendorModule", ctypes.c_void_p), ("flag1", ctypes.c_uint8), ("serialNumber", ctypes.c_void_p), ("firmware", ctypes.c_void_p), ("network", ctypes.c_void_p), ("resources", ctypes.c_void_p), ("resourceCount", ctypes.c_uint32), ("port", ctypes.c_uint32), ("flag2", ctypes.c_uint8), ("handle", ctypes.c_uint64)]


class C_DeviceInfo(ctypes.Structure):
    _fields_ = [("text1", ctypes.c_void_p), ("value1", ctypes.c_uint32), ("value2", ctypes.c_uint32), ("text2", ctypes.c_void_p), ("text3", ctypes.c_void_p), ("value3", ctypes.c_uint32), ("text4", ctypes.c_void_p), ("text5", ctypes.c_void_p), ("value4", ctypes.c_uint32), ("value5", ctypes.c_uint32), ("text6", ctypes.c_void_p), ("protocols", ctypes.c_void_p), ("protocolCount", ctypes.c_uint32), ("text7", ctypes.c_void_p), ("modules", ctypes.c_void_p), ("moduleCount", ctypes.c_uint32), ("text8", ctypes.c_void_p), ("flag", ctypes.c_uint8), ("handle", ctypes.c_uint64), ("value6", ctypes.c_uint32), ("value8", ctypes.c_uint64), ("value9", ctypes.c_uint64), ("value10", ctypes.c_uint64)]


class C_PhysicalLinksOnModule(ctypes.Structure):
    _fields_ = [("module", ctypes.c_void_p), ("links", ctypes.c_void_p), ("linkCount", ctypes.c_uint32)]


class C_PhysicalLink(ctypes.Structure):
    _fields_ = [("itemText1", ctypes.c_void_p), ("itemText2", ctypes.c_void_p), ("itemText3", ctypes.c_void_p), ("itemText4", ctypes.c_void_p), ("baudrate", ctypes.c_uint32), ("enabled", ctypes.c_uint8)]


class C_InterfaceConfiguration(ctypes.Structure):
    _fields_ = [("entries", ctypes.c_void_p), ("entryCount", ctypes.c_uint32)]


class C_InterfaceConfigurationEntry(ctypes.Structure):
    _fields_ = [("text1", ctypes.c_void_p), ("text2", ctypes.c_void_p), ("text3", ctypes.c_void_p), ("text4", ctypes.c_void_p), ("text5", ctypes.c_void_p), ("value", ctypes.c_uint32), ("flag", ctypes.c_uint8), ("items", ctypes.c_void_p), ("itemCount", ctypes.c_uint32)]


class C_InterfaceProvider(ctypes.Structure):
    _fields_ = [("itemText1", ctypes.c_void_p), ("itemText2", ctypes.c_void_p), ("itemText3", ctypes.c_void_p), ("itemText4", ctypes.c_void_p), ("text", ctypes.c_void_p), ("value", ctypes.c_uint32), ("flag", ctypes.c_uint8)]


class C_DoIPParameter(ctypes.Structure):
    _fields_ = [("value1", ctypes.c_uint32), ("value2", ctypes.c_uint32), ("text", ctypes.c_void_p), ("value3", ctypes.c_uint32), ("strings", ctypes.c_void_p), ("stringCount", ctypes.c_uint32)]


class C_WLanSignalData(ctypes.Structure):
    _fields_ = [("value1", ctypes.c_uint32), ("value2", ctypes.c_uint32), ("value3", ctypes.c_uint32), ("value4", ctypes.c_uint32), ("value5", ctypes.c_uint32), ("value6", ctypes.c_uint64), ("value7", ctypes.c_uint32), ("value8", ctypes.c_uint32), ("value9", ctypes.c_uint32), ("value10", ctypes.c_uint32), ("value11", ctypes.c_uint16), ("text", ctypes.c_void_p)]


class C_SupportedInterface(ctypes.Structure):
    _fields_ = [("text1", ctypes.c_void_p), ("text2", ctypes.c_void_p), ("names", ctypes.c_void_p), ("nameCount", ctypes.c_uint32), ("value", ctypes.c_uint32), ("text3", ctypes.c_void_p)]


class C_MonitoringItem(ctypes.Structure):
    _fields_ = [("text1", ctypes.c_void_p), ("data", ctypes.c_void_p), ("dataLength", ctypes.c_uint32), ("value1", ctypes.c_uint64), ("value2", ctypes.c_uint32), ("flag1", ctypes.c_uint8), ("flag2", ctypes.c_uint8), ("flag3", ctypes.c_uint8), ("value3", ctypes.c_uint32), ("text2", ctypes.c_void_p), ("value4", ctypes.c_uint32), ("detail", ctypes.c_void_p)]


class C_MonitoringItemDetail(ctypes.Structure):
    _fields_ = [("response", ctypes.c_void_p), ("responseLength", ctypes.c_uint32), ("text", ctypes.c_void_p)]


class C_PduMonitoringItem(ctypes.Structure):
    _fields_ = [("value1", ctypes.c_uint32), ("data", ctypes.c_void_p), ("dataLength", ctypes.c_uint32), ("detail", ctypes.c_void_p), ("text1", ctypes.c_void_p), ("text2", ctypes.c_void_p), ("value2", ctypes.c_uint64), ("text3", ctypes.c_void_p)]


class C_PduMonitoringItemDetail(ctypes.Structure):
    _fields_ = [("sequence", ctypes.c_uint64), ("exchange", ctypes.c_uint64)]


class C_FileInfo(ctypes.Structure):
    _fields_ = [("name", ctypes.c_void_p), ("error", ctypes.c_void_p), ("flag", ctypes.c_uint8), ("value1", ctypes.c_uint32), ("text1", ctypes.c_void_p), ("text2", ctypes.c_void_p), ("value2", ctypes.c_uint64), ("value3", ctypes.c_uint64)]


class C_DirectoryInfo(ctypes.Structure):
    _fields_ = [("name", ctypes.c_void_p), ("error", ctypes.c_void_p), ("flag", ctypes.c_uint8), ("value1", ctypes.c_uint32), ("text1", ctypes.c_void_p), ("text2", ctypes.c_void_p), ("files", ctypes.c_void_p), ("fileCount", ctypes.c_uint32), ("directories", ctypes.c_void_p), ("directoryCount", ctypes.c_uint32), ("flag2", ctypes.c_uint8)]


class C_FileCopyResult(ctypes.Structure):
    _fields_ = [("value1", ctypes.c_int32), ("text", ctypes.c_void_p), ("error", ctypes.c_void_p), ("file", ctypes.c_void_p), ("value2", ctypes.c_int32)]


class C_DirectoryCopyResult(ctypes.Structure):
    _fields_ = [("value1", ctypes.c_int32), ("text", ctypes.c_void_p), ("error", ctypes.c_void_p), ("directory", ctypes.c_void_p)]


class C_DirectoryCopyItem(ctypes.Structure):
    _fields_ = [("source", ctypes.c_void_p), ("target", ctypes.c_void_p), ("files", ctypes.c_uint32), ("directories", ctypes.c_uint32), ("bytes", ctypes.c_uint64), ("failures", ctypes.c_void_p), ("failureCount", ctypes.c_uint32)]


class C_PathCopyResult(ctypes.Structure):
    _fields_ = [("value1", ctypes.c_int32), ("error", ctypes.c_void_p), ("value2", ctypes.c_int32), ("item", ctypes.c_void_p)]


class C_PathCopyItem(ctypes.Structure):
    _fields_ = [("source", ctypes.c_void_p), ("target", ctypes.c_void_p), ("size", ctypes.c_uint64)]


class C_FileReferenceResult(ctypes.Structure):
    _fields_ = [("references", ctypes.c_void_p), ("referenceCount", ctypes.c_uint32), ("error", ctypes.c_void_p)]


class C_FileCopyConfig(ctypes.Structure):
    _fields_ = [("files", ctypes.c_void_p), ("fileCount", ctypes.c_uint32), ("target", ctypes.c_void_p), ("overwrite", ctypes.c_uint8)]


class C_DirectoryCopyConfig(ctypes.Structure):
    _fields_ = [("directories", ctypes.c_void_p), ("directoryCount", ctypes.c_uint32), ("target", ctypes.c_void_p), ("overwrite", ctypes.c_uint8), ("recursive", ctypes.c_uint8), ("pattern", ctypes.c_void_p)]


class C_PathCopyConfig(ctypes.Structure):
    _fields_ = [("source", ctypes.c_void_p), ("target", ctypes.c_void_p), ("overwrite", ctypes.c_uint8)]


class C_UserInfo(ctypes.Structure):
    _fields_ = [("name", ctypes.c_void_p), ("text", ctypes.c_void_p), ("value", ctypes.c_uint32)]


class C_LogInOutConfig(ctypes.Structure):
    _fields_ = [("user", ctypes.c_void_p), ("password", ctypes.c_void_p)]


class C_TarnApiServerConfig(ctypes.Structure):
    _fields_ = [("users", ctypes.c_void_p), ("userCount", ctypes.c_uint32), ("flag", ctypes.c_uint8), ("value1", ctypes.c_uint32), ("text1", ctypes.c_void_p), ("text2", ctypes.c_void_p), ("filters", ctypes.c_void_p), ("filterCount", ctypes.c_uint32), ("text3", ctypes.c_void_p), ("text4", ctypes.c_void_p), ("users2", ctypes.c_void_p), ("userCount2", ctypes.c_uint32), ("value2", ctypes.c_uint16)]


class C_ServerSettings(ctypes.Structure):
    _fields_ = [("flag", ctypes.c_uint8), ("value1", ctypes.c_uint32), ("value2", ctypes.c_uint32), ("value3", ctypes.c_uint32)]


class C_FlashSessionInfo(ctypes.Structure):
    _fields_ = [("name", ctypes.c_void_p), ("target", ctypes.c_void_p), ("description", ctypes.c_void_p), ("version", ctypes.c_void_p), ("size", ctypes.c_uint64), ("duration", ctypes.c_uint32), ("level", ctypes.c_uint32)]


class C_FlashSessionResult(ctypes.Structure):
    _fields_ = [("name", ctypes.c_void_p), ("target", ctypes.c_void_p), ("status", ctypes.c_int32), ("versionBefore", ctypes.c_void_p), ("versionAfter", ctypes.c_void_p), ("size", ctypes.c_uint64), ("transferred", ctypes.c_uint64), ("progress", ctypes.c_uint32), ("duration", ctypes.c_uint32), ("error", ctypes.c_void_p)]


class C_FlashSessionsConfig(ctypes.Structure):
    _fields_ = [("target", ctypes.c_void_p), ("sessions", ctypes.c_void_p), ("sessionCount", ctypes.c_uint32), ("blockLength", ctypes.c_uint32), ("stopOnError", ctypes.c_uint8)]


class C_CodingStringResult(ctypes.Structure):
    _fields_ = [("target", ctypes.c_void_p), ("status", ctypes.c_int32), ("identifier", ctypes.c_void_p), ("coding", ctypes.c_void_p), ("data", ctypes.c_void_p), ("dataLength", ctypes.c_uint32), ("error", ctypes.c_void_p)]


class C_CodingFileResult(ctypes.Structure):
    _fields_ = [("target", ctypes.c_void_p), ("status", ctypes.c_int32), ("written", ctypes.c_void_p), ("coding", ctypes.c_void_p), ("data", ctypes.c_void_p), ("dataLength", ctypes.c_uint32), ("verified", ctypes.c_uint8), ("error", ctypes.c_void_p)]


class C_QuickTestResult(ctypes.Structure):
    _fields_ = [("target", ctypes.c_void_p), ("status", ctypes.c_int32), ("variant", ctypes.c_void_p), ("identified", ctypes.c_uint8), ("dtcs", ctypes.c_void_p), ("dtcCount", ctypes.c_uint32), ("error", ctypes.c_void_p)]


class C_EcuConfigurationResult(ctypes.Structure):
    _fields_ = [("target", ctypes.c_void_p), ("configuration", ctypes.c_void_p), ("status", ctypes.c_int32), ("written", ctypes.c_uint32), ("error", ctypes.c_void_p)]


class C_EcuOrderEntry(ctypes.Structure):
    _fields_ = [("target", ctypes.c_void_p), ("bus", ctypes.c_void_p), ("address", ctypes.c_uint32), ("gateway", ctypes.c_uint8), ("optional", ctypes.c_uint8)]


class C_VehicleUpdateConfig(ctypes.Structure):
    _fields_ = [("targets", ctypes.c_void_p), ("targetCount", ctypes.c_uint32), ("packages", ctypes.c_void_p), ("packageCount", ctypes.c_uint32), ("stopOnError", ctypes.c_uint8), ("force", ctypes.c_uint8), ("blockLength", ctypes.c_uint32)]


class C_VehicleUpdateResult(ctypes.Structure):
    _fields_ = [("target", ctypes.c_void_p), ("status", ctypes.c_int32), ("package", ctypes.c_void_p), ("versionBefore", ctypes.c_void_p), ("versionAfter", ctypes.c_void_p), ("position", ctypes.c_uint32), ("progress", ctypes.c_uint32), ("overallProgress", ctypes.c_uint32), ("duration", ctypes.c_uint32), ("error", ctypes.c_void_p)]


class C_UpdatePackageInfo(ctypes.Structure):
    _fields_ = [("name", ctypes.c_void_p), ("version", ctypes.c_void_p), ("description", ctypes.c_void_p), ("kind", ctypes.c_uint32), ("targets", ctypes.c_void_p), ("targetCount", ctypes.c_uint32), ("size", ctypes.c_uint64), ("checksum", ctypes.c_void_p), ("location", ctypes.c_void_p), ("state", ctypes.c_int32)]


class C_VehicleReportConfig(ctypes.Structure):
    _fields_ = [("name", ctypes.c_void_p), ("title", ctypes.c_void_p), ("comment", ctypes.c_void_p), ("targets", ctypes.c_void_p), ("targetCount", ctypes.c_uint32), ("identification", ctypes.c_uint8), ("dtcs", ctypes.c_uint8)]


class C_VehicleData(ctypes.Structure):
    _fields_ = [("vin", ctypes.c_void_p), ("model", ctypes.c_void_p), ("target", ctypes.c_void_p), ("variant", ctypes.c_void_p), ("softwareVersion", ctypes.c_void_p), ("bus", ctypes.c_void_p), ("address", ctypes.c_uint32), ("status", ctypes.c_int32), ("dtcCount", ctypes.c_uint32)]


class C_UploadReportConfiguration(ctypes.Structure):
    _fields_ = [("reportFile", ctypes.c_void_p), ("folder", ctypes.c_void_p), ("name", ctypes.c_void_p), ("vin", ctypes.c_void_p), ("user", ctypes.c_void_p), ("comment", ctypes.c_void_p), ("overwrite", ctypes.c_uint8), ("withTwin", ctypes.c_uint8)]


class C_VehicleInformation(ctypes.Structure):
    _fields_ = [("vin", ctypes.c_void_p), ("model", ctypes.c_void_p), ("modelYear", ctypes.c_uint32), ("mileage", ctypes.c_uint32), ("licensePlate", ctypes.c_void_p), ("equipment", ctypes.c_void_p), ("equipmentCount", ctypes.c_uint32)]


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
        name=_text(s.text),
        service_id=s.value1,
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
        name=_text(s.itemText1),
        item_text2=_text(s.itemText2),
        item_text3=_text(s.itemText3),
        item_text4=_text(s.itemText4),
    )


def from_c_ParameterResult(address: Optional[int]) -> Optional[records.ParameterResult]:
    if not address:
        return None
    s = C_ParameterResult.from_address(address)
    return records.ParameterResult(
        name=_text(s.itemText1),
        description=_text(s.itemText2),
        codec=_text(s.itemText3),
        item_text4=_text(s.itemText4),
        value=_text(s.text1),
        unit=_text(s.text2),
        child_count=s.value1,
        children=from_c_list(s.children, s.childCount, from_c_ParameterResult),
        text3=_text(s.text3),
        error=from_c_KelError(s.error),
        text4=_text(s.text4),
        byte_position=s.value2,
        data=ctypes.string_at(s.data, s.dataLength) if s.data else b"",
        data_length=s.value3,
        flag=s.flag,
        value4=s.value4,
    )


def from_c_ClearDtcResult(address: Optional[int]) -> Optional[records.ClearDtcResult]:
    if not address:
        return None
    s = C_ClearDtcResult.from_address(address)
    return records.ClearDtcResult(
        status=enums.TargetResultStatus(s.status),
        target=_text(s.target),
        error=from_c_KelError(s.error),
    )


def from_c_DtcReadConfig(address: Optional[int]) -> Optional[records.DtcReadConfig]:
    if not address:
        return None
    s = C_DtcReadConfig.from_address(address)
    return records.DtcReadConfig(
        status_mask=s.value,
        with_snapshots=s.flag1,
        with_extended_data=s.flag2,
        with_special_data=s.flag3,
    )


def from_c_ReadDtcResult(address: Optional[int]) -> Optional[records.ReadDtcResult]:
    if not address:
        return None
    s = C_ReadDtcResult.from_address(address)
    return records.ReadDtcResult(
        status=enums.TargetResultStatus(s.status),
        target=_text(s.target),
        error=from_c_KelError(s.error),
        dtcs=from_c_list(s.dtcs, s.dtcCount, from_c_DtcResult),
        dtc_total=s.value,
    )


def from_c_DtcResult(address: Optional[int]) -> Optional[records.DtcResult]:
    if not address:
        return None
    s = C_DtcResult.from_address(address)
    return records.DtcResult(
        code=s.code,
        display_code=_text(s.text1),
        description=_text(s.text2),
        status=enums.DtcStatus(s.value1),
        snapshots=from_c_list(s.parameters1, s.parameterCount1, from_c_ParameterResult),
        extended_data=from_c_list(s.parameters2, s.parameterCount2, from_c_ParameterResult),
        ecu=_text(s.text3),
        symptom=_text(s.text4),
        special_data_groups=from_c_list(s.specialDataGroups, s.specialDataGroupCount, from_c_SpecialDataGroup),
        severity=s.value2,
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
        status=enums.TargetResultStatus(s.status),
        error=from_c_KelError(s.error),
        variant=_text(s.variant),
    )


def from_c_ReadDataResult(address: Optional[int]) -> Optional[records.ReadDataResult]:
    if not address:
        return None
    s = C_ReadDataResult.from_address(address)
    return records.ReadDataResult(
        target=_text(s.target),
        status=enums.TargetResultStatus(s.status),
        variant=_text(s.text),
        error=from_c_KelError(s.error),
        parameters=from_c_list(s.parameters, s.parameterCount, from_c_ParameterResult),
    )


def from_c_Target(address: Optional[int]) -> Optional[records.Target]:
    if not address:
        return None
    s = C_Target.from_address(address)
    return records.Target(
        name=_text(s.itemText1),
        description=_text(s.itemText2),
        variant=_text(s.itemText3),
        item_text4=_text(s.itemText4),
        address=s.value1,
        protocol=_text(s.text1),
        bus=_text(s.text2),
        items=from_c_list(s.items, s.itemCount, from_c_NamedItem),
        aliases=_texts(s.names, s.nameCount),
        part_number=_text(s.text3),
        software_version=_text(s.text4),
        responds=s.value2,
        hardware_version=_text(s.text5),
    )


def from_c_TargetStatus(address: Optional[int]) -> Optional[records.TargetStatus]:
    if not address:
        return None
    s = C_TargetStatus.from_address(address)
    return records.TargetStatus(
        target=_text(s.target),
        state=_text(s.text),
        error=from_c_KelError(s.error),
        counts=list(s.values),
        variant=_text(s.text2),
    )


def from_c_TargetFilter(address: Optional[int]) -> Optional[records.TargetFilter]:
    if not address:
        return None
    s = C_TargetFilter.from_address(address)
    return records.TargetFilter(
        pattern=_text(s.pattern),
        exclude=s.flag,
        tag=s.value,
    )


def from_c_ParameterInput(address: Optional[int]) -> Optional[records.ParameterInput]:
    if not address:
        return None
    s = C_ParameterInput.from_address(address)
    return records.ParameterInput(
        name=_text(s.name),
        children=from_c_list(s.children, s.childCount, from_c_ParameterInput),
        value=_text(s.value),
    )


def from_c_ServiceInput(address: Optional[int]) -> Optional[records.ServiceInput]:
    if not address:
        return None
    s = C_ServiceInput.from_address(address)
    return records.ServiceInput(
        parameters=from_c_list(s.parameters, s.parameterCount, from_c_ParameterInput),
        service=_text(s.service),
        data=ctypes.string_at(s.data, s.dataLength) if s.data else b"",
        value=s.value,
    )


def from_c_ServiceResult(address: Optional[int]) -> Optional[records.ServiceResult]:
    if not address:
        return None
    s = C_ServiceResult.from_address(address)
    return records.ServiceResult(
        service=_text(s.itemText1),
        target=_text(s.itemText2),
        description=_text(s.itemText3),
        session=_text(s.itemText4),
        responses=from_c_list(s.responses, s.responseCount, from_c_ResponseResult),
        status=enums.ServiceStatus(s.status),
        outcome=_text(s.text1),
        error=from_c_KelError(s.error),
        request=from_c_RequestResult(s.request),
        service_id=s.value1,
    )


def from_c_ResponseResult(address: Optional[int]) -> Optional[records.ResponseResult]:
    if not address:
        return None
    s = C_ResponseResult.from_address(address)
    return records.ResponseResult(
        kind=_text(s.itemText1),
        target=_text(s.itemText2),
        item_text3=_text(s.itemText3),
        item_text4=_text(s.itemText4),
        positive=bool(s.flag),
        error=from_c_KelError(s.error),
        data=ctypes.string_at(s.data, s.dataLength) if s.data else b"",
        time=s.value1,
        nrc=s.value2,
        parameters=from_c_list(s.parameters, s.parameterCount, from_c_ParameterResult),
    )


def from_c_RequestResult(address: Optional[int]) -> Optional[records.RequestResult]:
    if not address:
        return None
    s = C_RequestResult.from_address(address)
    return records.RequestResult(
        error=from_c_KelError(s.error),
        data=ctypes.string_at(s.data, s.dataLength) if s.data else b"",
        time=s.value1,
        value2=s.value2,
        parameters=from_c_list(s.parameters, s.parameterCount, from_c_ParameterResult),
    )


def from_c_UnlockResult(address: Optional[int]) -> Optional[records.UnlockResult]:
    if not address:
        return None
    s = C_UnlockResult.from_address(address)
    return records.UnlockResult(
        unlock=s.value,
        services=from_c_list(s.services, s.serviceCount, from_c_ServiceResult),
    )


def from_c_ServiceInfo(address: Optional[int]) -> Optional[records.ServiceInfo]:
    if not address:
        return None
    s = C_ServiceInfo.from_address(address)
    return records.ServiceInfo(
        name=_text(s.itemText1),
        description=_text(s.itemText2),
        service_id=_text(s.itemText3),
        target=_text(s.itemText4),
        available=bool(s.flag),
        responses=from_c_list(s.responses, s.responseCount, from_c_ResponseInfo),
        parameters=from_c_list(s.parameters, s.parameterCount, from_c_ParameterInfo),
        uds_service=_text(s.text1),
        sessions=from_c_list(s.items, s.itemCount, from_c_NamedItem),
        error=from_c_KelError(s.error),
        numbers=list(s.values),
    )


def from_c_ResponseInfo(address: Optional[int]) -> Optional[records.ResponseInfo]:
    if not address:
        return None
    s = C_ResponseInfo.from_address(address)
    return records.ResponseInfo(
        kind=_text(s.itemText1),
        first_byte=_text(s.itemText2),
        item_text3=_text(s.itemText3),
        item_text4=_text(s.itemText4),
        status=s.status,
        parameters=from_c_list(s.parameters, s.parameterCount, from_c_ParameterInfo),
    )


def from_c_ParameterInfo(address: Optional[int]) -> Optional[records.ParameterInfo]:
    if not address:
        return None
    s = C_ParameterInfo.from_address(address)
    return records.ParameterInfo(
        name=_text(s.itemText1),
        description=_text(s.itemText2),
        codec=_text(s.itemText3),
        item_text4=_text(s.itemText4),
        default_value=_text(s.text1),
        unit_text=_text(s.text2),
        data_type=_text(s.text3),
        byte_position=s.value1,
        path=_text(s.text4),
        children=from_c_list(s.children, s.childCount, from_c_ParameterInfo),
        scaling=_text(s.text5),
        choices=_texts(s.names, s.nameCount),
        constant=bool(s.flag1),
        byte_length=s.value2,
        error=from_c_KelError(s.error),
        required=bool(s.flag2),
        numbers=list(s.values),
        structure=bool(s.flag3),
        valid_values=from_c_ConstraintInfo(s.constraint1),
        raw_range=from_c_ConstraintInfo(s.constraint2),
        minimum=_text(s.text6),
        maximum=_text(s.text7),
        repeated=bool(s.flag4),
        unit=from_c_UnitInfo(s.unit),
    )


def from_c_ConstraintInfo(address: Optional[int]) -> Optional[records.ConstraintInfo]:
    if not address:
        return None
    s = C_ConstraintInfo.from_address(address)
    return records.ConstraintInfo(
        kind=_text(s.text1),
        scale=_text(s.text2),
        present=bool(s.flag),
        scales=from_c_list(s.scales, s.scaleCount, from_c_ScaleConstraintInfo),
    )


def from_c_ScaleConstraintInfo(address: Optional[int]) -> Optional[records.ScaleConstraintInfo]:
    if not address:
        return None
    s = C_ScaleConstraintInfo.from_address(address)
    return records.ScaleConstraintInfo(
        name=_text(s.itemText1),
        item_text2=_text(s.itemText2),
        item_text3=_text(s.itemText3),
        item_text4=_text(s.itemText4),
        lower=_text(s.text1),
        upper=_text(s.text2),
        inclusive=bool(s.flag),
        raw_value=s.value,
    )


def from_c_UnitInfo(address: Optional[int]) -> Optional[records.UnitInfo]:
    if not address:
        return None
    s = C_UnitInfo.from_address(address)
    return records.UnitInfo(
        exponents=list(s.values),
        factor_bits=s.value1,
        known=bool(s.flag1),
        offset_bits=s.value2,
        has_offset=bool(s.flag2),
    )


def from_c_ParameterInfoConfig(address: Optional[int]) -> Optional[records.ParameterInfoConfig]:
    if not address:
        return None
    s = C_ParameterInfoConfig.from_address(address)
    return records.ParameterInfoConfig(
        target=_text(s.text1),
        service=_text(s.text2),
        in_response=s.value,
        path=_text(s.text3),
        text4=_text(s.text4),
    )


def from_c_KelEvent(address: Optional[int]) -> Optional[records.KelEvent]:
    if not address:
        return None
    s = C_KelEvent.from_address(address)
    return records.KelEvent(
        name=_text(s.name),
        kind=enums.EventKind(s.kind),
        code=s.code,
        message=_text(s.text),
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


def from_c_FileFilter(address: Optional[int]) -> Optional[records.FileFilter]:
    if not address:
        return None
    s = C_FileFilter.from_address(address)
    return records.FileFilter(
        pattern=_text(s.pattern),
        exclude=bool(s.flag),
        value=s.value,
    )


def from_c_TargetConfig(address: Optional[int]) -> Optional[records.TargetConfig]:
    if not address:
        return None
    s = C_TargetConfig.from_address(address)
    return records.TargetConfig(
        value=s.value,
        text1=_text(s.text1),
        text2=_text(s.text2),
    )


def from_c_ProjectConfig(address: Optional[int]) -> Optional[records.ProjectConfig]:
    if not address:
        return None
    s = C_ProjectConfig.from_address(address)
    return records.ProjectConfig(
        name=_text(s.itemText1),
        item_text2=_text(s.itemText2),
        item_text3=_text(s.itemText3),
        item_text4=_text(s.itemText4),
        filters1=from_c_list(s.filters1, s.filterCount1, from_c_FileFilter),
        value0=s.value0,
        targets=from_c_list(s.targets, s.targetCount, from_c_TargetConfig),
        filters2=from_c_list(s.filters2, s.filterCount2, from_c_FileFilter),
        strings1=_texts(s.strings1, s.stringCount1),
        text1=_text(s.text1),
        value1=s.value1,
        text2=_text(s.text2),
        strings2=_texts(s.strings2, s.stringCount2),
        text3=_text(s.text3),
        value2=s.value2,
        value3=s.value3,
        flags=list(s.flags),
    )


def from_c_ProjectDetails(address: Optional[int]) -> Optional[records.ProjectDetails]:
    if not address:
        return None
    s = C_ProjectDetails.from_address(address)
    return records.ProjectDetails(
        database_files=from_c_list(s.dbFiles1, s.dbFileCount1, from_c_DbFileInfo),
        loaded_database_files=from_c_list(s.dbFiles2, s.dbFileCount2, from_c_DbFileInfo),
        name=_text(s.text1),
        format=s.value1,
        folder=_text(s.text2),
        selected=s.value2,
        users=from_c_list(s.users, s.userCount, from_c_UserInfo),
    )


def from_c_DbFileInfo(address: Optional[int]) -> Optional[records.DbFileInfo]:
    if not address:
        return None
    s = C_DbFileInfo.from_address(address)
    return records.DbFileInfo(
        name=_text(s.name),
        path=_text(s.path),
        size=s.size,
        loaded=bool(s.loaded),
        error=from_c_KelError(s.error),
    )


def from_c_SystemInfo(address: Optional[int]) -> Optional[records.SystemInfo]:
    if not address:
        return None
    s = C_SystemInfo.from_address(address)
    return records.SystemInfo(
        processors=s.value1,
        page_size=s.value2,
        system=_text(s.text1),
        pointer_bits=s.value3,
        release=_text(s.text2),
        host=_text(s.text3),
        architecture=_text(s.text4),
    )


def from_c_SystemProperty(address: Optional[int]) -> Optional[records.SystemProperty]:
    if not address:
        return None
    s = C_SystemProperty.from_address(address)
    return records.SystemProperty(
        name=_text(s.itemText1),
        label=_text(s.itemText2),
        item_text3=_text(s.itemText3),
        unit=_text(s.itemText4),
        value=_text(s.text1),
        default_value=_text(s.text2),
        value1=s.value1,
        children=from_c_list(s.children, s.childCount, from_c_SystemProperty),
        text3=_text(s.text3),
        error=from_c_KelError(s.error),
        text4=_text(s.text4),
        value2=s.value2,
        data=ctypes.string_at(s.data, s.dataLength) if s.data else b"",
        value3=s.value3,
        changed=bool(s.flag),
        value4=s.value4,
    )


def from_c_TarnApiConfig(address: Optional[int]) -> Optional[records.TarnApiConfig]:
    if not address:
        return None
    s = C_TarnApiConfig.from_address(address)
    return records.TarnApiConfig(
        value1=s.value1,
        flag1=bool(s.flag1),
        flag2=bool(s.flag2),
        value2=s.value2,
        server=from_c_ServerConfig(s.server),
        value3=s.value3,
        value4=s.value4,
        value5=s.value5,
        flag3=bool(s.flag3),
        value6=s.value6,
        value7=s.value7,
        oauth2_configs=from_c_list(s.oauth2Configs, s.oauth2ConfigCount, from_c_Oauth2Config),
        text=_text(s.text),
    )


def from_c_ServerConfig(address: Optional[int]) -> Optional[records.ServerConfig]:
    if not address:
        return None
    s = C_ServerConfig.from_address(address)
    return records.ServerConfig(
        address=_text(s.address),
        port=s.port,
        enabled=bool(s.enabled),
        name=_text(s.name),
    )


def from_c_Oauth2Config(address: Optional[int]) -> Optional[records.Oauth2Config]:
    if not address:
        return None
    s = C_Oauth2Config.from_address(address)
    return records.Oauth2Config(
        issuer=_text(s.issuer),
        client_id=_text(s.clientId),
        scopes=_texts(s.scopes, s.scopeCount),
        redirect_url=_text(s.redirectUrl),
    )


def from_c_MoxConfig(address: Optional[int]) -> Optional[records.MoxConfig]:
    if not address:
        return None
    s = C_MoxConfig.from_address(address)
    return records.MoxConfig(
        text1=_text(s.text1),
        text2=_text(s.text2),
        text3=_text(s.text3),
        text4=_text(s.text4),
        text5=_text(s.text5),
        flag1=bool(s.flag1),
        flag2=bool(s.flag2),
        flag3=bool(s.flag3),
        value=s.value,
        flag4=bool(s.flag4),
        flag5=bool(s.flag5),
        flag6=bool(s.flag6),
        text6=_text(s.text6),
        text7=_text(s.text7),
        tcp=from_c_TcpInfo(s.tcp),
    )


def from_c_TcpInfo(address: Optional[int]) -> Optional[records.TcpInfo]:
    if not address:
        return None
    s = C_TcpInfo.from_address(address)
    return records.TcpInfo(
        value1=s.value1,
        value2=s.value2,
        value3=s.value3,
        value4=s.value4,
        value5=s.value5,
        value6=s.value6,
    )


def from_c_StatusInfo(address: Optional[int]) -> Optional[records.StatusInfo]:
    if not address:
        return None
    s = C_StatusInfo.from_address(address)
    return records.StatusInfo(
        calls=s.value1,
        failed_calls=s.value2,
        uptime_ms=s.value3,
        call_microseconds=s.value4,
        database_files_loaded=s.value5,
        projects=s.value6,
        status_text_changes=s.value7,
        started_ms=s.value8,
    )


def from_c_TransmissionInfo(address: Optional[int]) -> Optional[records.TransmissionInfo]:
    if not address:
        return None
    s = C_TransmissionInfo.from_address(address)
    return records.TransmissionInfo(
        requests=s.value1,
        responses=s.value2,
        request_bytes=s.value3,
        response_bytes=s.value4,
    )


def from_c_ProcessInfo(address: Optional[int]) -> Optional[records.ProcessInfo]:
    if not address:
        return None
    s = C_ProcessInfo.from_address(address)
    return records.ProcessInfo(
        processes=from_c_list(s.processes, s.processCount, from_c_ProcessEntry),
        is64_bit=bool(s.flag1),
        initialized=bool(s.flag2),
        status_text=_text(s.text),
    )


def from_c_ProcessEntry(address: Optional[int]) -> Optional[records.ProcessEntry]:
    if not address:
        return None
    s = C_ProcessEntry.from_address(address)
    return records.ProcessEntry(
        pid=s.value,
        threads=from_c_list(s.items1, s.itemCount1, from_c_ProcessThread),
        executable=_text(s.text),
        memory=from_c_list(s.items2, s.itemCount2, from_c_ProcessMemory),
    )


def from_c_ProcessThread(address: Optional[int]) -> Optional[records.ProcessThread]:
    if not address:
        return None
    s = C_ProcessThread.from_address(address)
    return records.ProcessThread(
        id=s.id,
        name=_text(s.name),
    )


def from_c_ProcessMemory(address: Optional[int]) -> Optional[records.ProcessMemory]:
    if not address:
        return None
    s = C_ProcessMemory.from_address(address)
    return records.ProcessMemory(
        name=_text(s.name),
        bytes=s.bytes,
    )


def from_c_GlobalProtocolParameterSet(address: Optional[int]) -> Optional[records.GlobalProtocolParameterSet]:
    if not address:
        return None
    s = C_GlobalProtocolParameterSet.from_address(address)
    return records.GlobalProtocolParameterSet(
        name=_text(s.text1),
        protocol=_text(s.text2),
        text3=_text(s.text3),
        text4=_text(s.text4),
        parameters=from_c_list(s.parameters, s.parameterCount, from_c_GlobalProtocolParameter),
    )


def from_c_GlobalProtocolParameter(address: Optional[int]) -> Optional[records.GlobalProtocolParameter]:
    if not address:
        return None
    s = C_GlobalProtocolParameter.from_address(address)
    return records.GlobalProtocolParameter(
        name=_text(s.itemText1),
        item_text2=_text(s.itemText2),
        item_text3=_text(s.itemText3),
        item_text4=_text(s.itemText4),
        value=_text(s.value),
        default_value=_text(s.defaultValue),
        infos=from_c_list(s.infos, s.infoCount, from_c_ParameterInfo),
        choices=_texts(s.choices, s.choiceCount),
        error=from_c_KelError(s.error),
        constraints=from_c_list(s.constraints, s.constraintCount, from_c_ConstraintInfo),
        tcp=from_c_TcpInfo(s.tcp),
        value1=s.value1,
        flag=bool(s.flag),
    )


def from_c_LoadDatabaseResult(address: Optional[int]) -> Optional[records.LoadDatabaseResult]:
    if not address:
        return None
    s = C_LoadDatabaseResult.from_address(address)
    return records.LoadDatabaseResult(
        file=_text(s.text),
        loaded=bool(s.flag),
        error=from_c_KelError(s.error),
    )


def from_c_InterfaceInformation(address: Optional[int]) -> Optional[records.InterfaceInformation]:
    if not address:
        return None
    s = C_InterfaceInformation.from_address(address)
    return records.InterfaceInformation(
        name=_text(s.itemText1),
        long_name=_text(s.itemText2),
        vendor=_text(s.itemText3),
        description=_text(s.itemText4),
        resources=from_c_list(s.resources, s.resourceCount, from_c_ResourceInformation),
        connected=bool(s.flag1),
        dynamic=bool(s.flag2),
        kind=_text(s.text1),
        address=_text(s.text2),
        plugged_in=bool(s.flag3),
        vendor_modules=from_c_list(s.items, s.itemCount, from_c_InterfaceInformationItem),
        handle=s.value,
    )


def from_c_ResourceInformation(address: Optional[int]) -> Optional[records.ResourceInformation]:
    if not address:
        return None
    s = C_ResourceInformation.from_address(address)
    return records.ResourceInformation(
        name=_text(s.itemText1),
        description=_text(s.itemText2),
        protocol=_text(s.itemText3),
        physical_link=_text(s.itemText4),
        id=s.id,
        pin=s.pin,
        in_use=bool(s.inUse),
    )


def from_c_InterfaceInformationItem(address: Optional[int]) -> Optional[records.InterfaceInformationItem]:
    if not address:
        return None
    s = C_InterfaceInformationItem.from_address(address)
    return records.InterfaceInformationItem(
        name=_text(s.itemText1),
        vendor=_text(s.itemText2),
        version=_text(s.itemText3),
        description=_text(s.itemText4),
    )


def from_c_ScanInterfaceResult(address: Optional[int]) -> Optional[records.ScanInterfaceResult]:
    if not address:
        return None
    s = C_ScanInterfaceResult.from_address(address)
    return records.ScanInterfaceResult(
        interface_info=from_c_InterfaceInformation(s.interfaceInfo),
        error=from_c_KelError(s.error),
    )


def from_c_DynInterfaceDetection(address: Optional[int]) -> Optional[records.DynInterfaceDetection]:
    if not address:
        return None
    s = C_DynInterfaceDetection.from_address(address)
    return records.DynInterfaceDetection(
        name_pattern=_text(s.namePattern),
        kind=_text(s.kind),
        only_free=bool(s.onlyFree),
    )


def from_c_ModuleDyn(address: Optional[int]) -> Optional[records.ModuleDyn]:
    if not address:
        return None
    s = C_ModuleDyn.from_address(address)
    return records.ModuleDyn(
        name=_text(s.name),
        long_name=_text(s.longName),
        vendor=_text(s.vendor),
        kind=_text(s.kind),
        address=_text(s.address),
        vendor_module=from_c_InterfaceInformationItem(s.vendorModule),
        connected=bool(s.flag1),
        serial_number=_text(s.serialNumber),
        firmware=_text(s.firmware),
        network=_text(s.network),
        resources=from_c_list(s.resources, s.resourceCount, from_c_ResourceInformation),
        port=s.port,
        exclusive=bool(s.flag2),
        handle=s.handle,
    )


def from_c_DeviceInfo(address: Optional[int]) -> Optional[records.DeviceInfo]:
    if not address:
        return None
    s = C_DeviceInfo.from_address(address)
    return records.DeviceInfo(
        name=_text(s.text1),
        vendor_id=s.value1,
        product_id=s.value2,
        vendor=_text(s.text2),
        serial_number=_text(s.text3),
        resources=s.value3,
        firmware=_text(s.text4),
        kind=_text(s.text5),
        ethernet_pin_state=s.value4,
        links=s.value5,
        address=_text(s.text6),
        protocols=_texts(s.protocols, s.protocolCount),
        long_name=_text(s.text7),
        modules=_texts(s.modules, s.moduleCount),
        description=_text(s.text8),
        connected=bool(s.flag),
        handle=s.handle,
        dynamic=s.value6,
        value8=s.value8,
        value9=s.value9,
        value10=s.value10,
    )


def from_c_PhysicalLinksOnModule(address: Optional[int]) -> Optional[records.PhysicalLinksOnModule]:
    if not address:
        return None
    s = C_PhysicalLinksOnModule.from_address(address)
    return records.PhysicalLinksOnModule(
        module=_text(s.module),
        links=from_c_list(s.links, s.linkCount, from_c_PhysicalLink),
    )


def from_c_PhysicalLink(address: Optional[int]) -> Optional[records.PhysicalLink]:
    if not address:
        return None
    s = C_PhysicalLink.from_address(address)
    return records.PhysicalLink(
        name=_text(s.itemText1),
        type=_text(s.itemText2),
        pins=_text(s.itemText3),
        description=_text(s.itemText4),
        baudrate=s.baudrate,
        enabled=bool(s.enabled),
    )


def from_c_InterfaceConfiguration(address: Optional[int]) -> Optional[records.InterfaceConfiguration]:
    if not address:
        return None
    s = C_InterfaceConfiguration.from_address(address)
    return records.InterfaceConfiguration(
        entries=from_c_list(s.entries, s.entryCount, from_c_InterfaceConfigurationEntry),
    )


def from_c_InterfaceConfigurationEntry(address: Optional[int]) -> Optional[records.InterfaceConfigurationEntry]:
    if not address:
        return None
    s = C_InterfaceConfigurationEntry.from_address(address)
    return records.InterfaceConfigurationEntry(
        name=_text(s.text1),
        long_name=_text(s.text2),
        vendor=_text(s.text3),
        kind=_text(s.text4),
        address=_text(s.text5),
        ethernet_pin_state=s.value,
        enabled=bool(s.flag),
        resources=from_c_list(s.items, s.itemCount, from_c_ResourceInformation),
    )


def from_c_InterfaceProvider(address: Optional[int]) -> Optional[records.InterfaceProvider]:
    if not address:
        return None
    s = C_InterfaceProvider.from_address(address)
    return records.InterfaceProvider(
        name=_text(s.itemText1),
        description=_text(s.itemText2),
        vendor=_text(s.itemText3),
        version=_text(s.itemText4),
        library=_text(s.text),
        priority=s.value,
        enabled=bool(s.flag),
    )


def from_c_DoIPParameter(address: Optional[int]) -> Optional[records.DoIPParameter]:
    if not address:
        return None
    s = C_DoIPParameter.from_address(address)
    return records.DoIPParameter(
        discovery_port=s.value1,
        announcement_wait_ms=s.value2,
        broadcast_address=_text(s.text),
        tcp_port=s.value3,
        adapters=_texts(s.strings, s.stringCount),
    )


def from_c_WLanSignalData(address: Optional[int]) -> Optional[records.WLanSignalData]:
    if not address:
        return None
    s = C_WLanSignalData.from_address(address)
    return records.WLanSignalData(
        quality=s.value1,
        signal_dbm_below_zero=s.value2,
        noise_dbm_below_zero=s.value3,
        channel=s.value4,
        frequency_mhz=s.value5,
        bytes_received=s.value6,
        transmit_rate_mbits=s.value7,
        receive_rate_mbits=s.value8,
        retransmissions=s.value9,
        lost_beacons=s.value10,
        channel_width_mhz=s.value11,
        ssid=_text(s.text),
    )


def from_c_SupportedInterface(address: Optional[int]) -> Optional[records.SupportedInterface]:
    if not address:
        return None
    s = C_SupportedInterface.from_address(address)
    return records.SupportedInterface(
        kind=_text(s.text1),
        description=_text(s.text2),
        protocols=_texts(s.names, s.nameCount),
        max_interfaces=s.value,
        vendor_module=_text(s.text3),
    )


def from_c_MonitoringItem(address: Optional[int]) -> Optional[records.MonitoringItem]:
    if not address:
        return None
    s = C_MonitoringItem.from_address(address)
    return records.MonitoringItem(
        unit=_text(s.text1),
        data=ctypes.string_at(s.data, s.dataLength) if s.data else b"",
        time=s.value1,
        number=s.value2,
        answered=bool(s.flag1),
        positive=bool(s.flag2),
        replayed=bool(s.flag3),
        nrc=s.value3,
        source=_text(s.text2),
        service_id=s.value4,
        detail=from_c_MonitoringItemDetail(s.detail),
    )


def from_c_MonitoringItemDetail(address: Optional[int]) -> Optional[records.MonitoringItemDetail]:
    if not address:
        return None
    s = C_MonitoringItemDetail.from_address(address)
    return records.MonitoringItemDetail(
        response=ctypes.string_at(s.response, s.responseLength) if s.response else b"",
        summary=_text(s.text),
    )


def from_c_PduMonitoringItem(address: Optional[int]) -> Optional[records.PduMonitoringItem]:
    if not address:
        return None
    s = C_PduMonitoringItem.from_address(address)
    return records.PduMonitoringItem(
        direction=s.value1,
        data=ctypes.string_at(s.data, s.dataLength) if s.data else b"",
        detail=from_c_PduMonitoringItemDetail(s.detail),
        unit=_text(s.text1),
        direction_text=_text(s.text2),
        time=s.value2,
        hex=_text(s.text3),
    )


def from_c_PduMonitoringItemDetail(address: Optional[int]) -> Optional[records.PduMonitoringItemDetail]:
    if not address:
        return None
    s = C_PduMonitoringItemDetail.from_address(address)
    return records.PduMonitoringItemDetail(
        sequence=s.sequence,
        exchange=s.exchange,
    )


def from_c_FileInfo(address: Optional[int]) -> Optional[records.FileInfo]:
    if not address:
        return None
    s = C_FileInfo.from_address(address)
    return records.FileInfo(
        name=_text(s.name),
        error=from_c_KelError(s.error),
        read_only=bool(s.flag),
        attributes=s.value1,
        path=_text(s.text1),
        modified=_text(s.text2),
        size=s.value2,
        modified_ms=s.value3,
    )


def from_c_DirectoryInfo(address: Optional[int]) -> Optional[records.DirectoryInfo]:
    if not address:
        return None
    s = C_DirectoryInfo.from_address(address)
    return records.DirectoryInfo(
        name=_text(s.name),
        error=from_c_KelError(s.error),
        read_only=bool(s.flag),
        attributes=s.value1,
        path=_text(s.text1),
        modified=_text(s.text2),
        files=from_c_list(s.files, s.fileCount, from_c_FileInfo),
        directories=from_c_list(s.directories, s.directoryCount, from_c_DirectoryInfo),
        contents_read=bool(s.flag2),
    )


def from_c_FileCopyResult(address: Optional[int]) -> Optional[records.FileCopyResult]:
    if not address:
        return None
    s = C_FileCopyResult.from_address(address)
    return records.FileCopyResult(
        failed=s.value1,
        source=_text(s.text),
        error=from_c_KelError(s.error),
        file=from_c_FileInfo(s.file),
        index=s.value2,
    )


def from_c_DirectoryCopyResult(address: Optional[int]) -> Optional[records.DirectoryCopyResult]:
    if not address:
        return None
    s = C_DirectoryCopyResult.from_address(address)
    return records.DirectoryCopyResult(
        outcome=s.value1,
        source=_text(s.text),
        error=from_c_KelError(s.error),
        directory=from_c_DirectoryCopyItem(s.directory),
    )


def from_c_DirectoryCopyItem(address: Optional[int]) -> Optional[records.DirectoryCopyItem]:
    if not address:
        return None
    s = C_DirectoryCopyItem.from_address(address)
    return records.DirectoryCopyItem(
        source=_text(s.source),
        target=_text(s.target),
        files=s.files,
        directories=s.directories,
        bytes=s.bytes,
        failures=from_c_list(s.failures, s.failureCount, from_c_FileCopyResult),
    )


def from_c_PathCopyResult(address: Optional[int]) -> Optional[records.PathCopyResult]:
    if not address:
        return None
    s = C_PathCopyResult.from_address(address)
    return records.PathCopyResult(
        failed=s.value1,
        error=from_c_KelError(s.error),
        is_directory=s.value2,
        item=from_c_PathCopyItem(s.item),
    )


def from_c_PathCopyItem(address: Optional[int]) -> Optional[records.PathCopyItem]:
    if not address:
        return None
    s = C_PathCopyItem.from_address(address)
    return records.PathCopyItem(
        source=_text(s.source),
        target=_text(s.target),
        size=s.size,
    )


def from_c_FileReferenceResult(address: Optional[int]) -> Optional[records.FileReferenceResult]:
    if not address:
        return None
    s = C_FileReferenceResult.from_address(address)
    return records.FileReferenceResult(
        references=_texts(s.references, s.referenceCount),
        error=from_c_KelError(s.error),
    )


def from_c_FileCopyConfig(address: Optional[int]) -> Optional[records.FileCopyConfig]:
    if not address:
        return None
    s = C_FileCopyConfig.from_address(address)
    return records.FileCopyConfig(
        files=_texts(s.files, s.fileCount),
        target=_text(s.target),
        overwrite=bool(s.overwrite),
    )


def from_c_DirectoryCopyConfig(address: Optional[int]) -> Optional[records.DirectoryCopyConfig]:
    if not address:
        return None
    s = C_DirectoryCopyConfig.from_address(address)
    return records.DirectoryCopyConfig(
        directories=_texts(s.directories, s.directoryCount),
        target=_text(s.target),
        overwrite=bool(s.overwrite),
        recursive=bool(s.recursive),
        pattern=_text(s.pattern),
    )


def from_c_PathCopyConfig(address: Optional[int]) -> Optional[records.PathCopyConfig]:
    if not address:
        return None
    s = C_PathCopyConfig.from_address(address)
    return records.PathCopyConfig(
        source=_text(s.source),
        target=_text(s.target),
        overwrite=bool(s.overwrite),
    )


def from_c_UserInfo(address: Optional[int]) -> Optional[records.UserInfo]:
    if not address:
        return None
    s = C_UserInfo.from_address(address)
    return records.UserInfo(
        name=_text(s.name),
        role_name=_text(s.text),
        role=s.value,
    )


def from_c_LogInOutConfig(address: Optional[int]) -> Optional[records.LogInOutConfig]:
    if not address:
        return None
    s = C_LogInOutConfig.from_address(address)
    return records.LogInOutConfig(
        user=_text(s.user),
        password=_text(s.password),
    )


def from_c_TarnApiServerConfig(address: Optional[int]) -> Optional[records.TarnApiServerConfig]:
    if not address:
        return None
    s = C_TarnApiServerConfig.from_address(address)
    return records.TarnApiServerConfig(
        users=from_c_list(s.users, s.userCount, from_c_UserInfo),
        user_management=bool(s.flag),
        connections=s.value1,
        address=_text(s.text1),
        sovd_address=_text(s.text2),
        filters=from_c_list(s.filters, s.filterCount, from_c_FileFilter),
        identity_provider=_text(s.text3),
        login_address=_text(s.text4),
        logged_in=from_c_list(s.users2, s.userCount2, from_c_UserInfo),
        login_attempts=s.value2,
    )


def from_c_ServerSettings(address: Optional[int]) -> Optional[records.ServerSettings]:
    if not address:
        return None
    s = C_ServerSettings.from_address(address)
    return records.ServerSettings(
        running=bool(s.flag),
        connections=s.value1,
        users=s.value2,
        sovd_running=s.value3,
    )


def from_c_FlashSessionInfo(address: Optional[int]) -> Optional[records.FlashSessionInfo]:
    if not address:
        return None
    s = C_FlashSessionInfo.from_address(address)
    return records.FlashSessionInfo(
        name=_text(s.name),
        target=_text(s.target),
        description=_text(s.description),
        version=_text(s.version),
        size=s.size,
        duration=s.duration,
        level=s.level,
    )


def from_c_FlashSessionResult(address: Optional[int]) -> Optional[records.FlashSessionResult]:
    if not address:
        return None
    s = C_FlashSessionResult.from_address(address)
    return records.FlashSessionResult(
        name=_text(s.name),
        target=_text(s.target),
        status=enums.FlashStatus(s.status),
        version_before=_text(s.versionBefore),
        version_after=_text(s.versionAfter),
        size=s.size,
        transferred=s.transferred,
        progress=s.progress,
        duration=s.duration,
        error=from_c_KelError(s.error),
    )


def from_c_FlashSessionsConfig(address: Optional[int]) -> Optional[records.FlashSessionsConfig]:
    if not address:
        return None
    s = C_FlashSessionsConfig.from_address(address)
    return records.FlashSessionsConfig(
        target=_text(s.target),
        sessions=_texts(s.sessions, s.sessionCount),
        block_length=s.blockLength,
        stop_on_error=bool(s.stopOnError),
    )


def from_c_CodingStringResult(address: Optional[int]) -> Optional[records.CodingStringResult]:
    if not address:
        return None
    s = C_CodingStringResult.from_address(address)
    return records.CodingStringResult(
        target=_text(s.target),
        status=enums.TargetResultStatus(s.status),
        identifier=_text(s.identifier),
        coding=_text(s.coding),
        data=ctypes.string_at(s.data, s.dataLength) if s.data else b"",
        error=from_c_KelError(s.error),
    )


def from_c_CodingFileResult(address: Optional[int]) -> Optional[records.CodingFileResult]:
    if not address:
        return None
    s = C_CodingFileResult.from_address(address)
    return records.CodingFileResult(
        target=_text(s.target),
        status=enums.TargetResultStatus(s.status),
        written=_text(s.written),
        coding=_text(s.coding),
        data=ctypes.string_at(s.data, s.dataLength) if s.data else b"",
        verified=bool(s.verified),
        error=from_c_KelError(s.error),
    )


def from_c_QuickTestResult(address: Optional[int]) -> Optional[records.QuickTestResult]:
    if not address:
        return None
    s = C_QuickTestResult.from_address(address)
    return records.QuickTestResult(
        target=_text(s.target),
        status=enums.TargetResultStatus(s.status),
        variant=_text(s.variant),
        identified=bool(s.identified),
        dtcs=from_c_list(s.dtcs, s.dtcCount, from_c_DtcResult),
        error=from_c_KelError(s.error),
    )


def from_c_EcuConfigurationResult(address: Optional[int]) -> Optional[records.EcuConfigurationResult]:
    if not address:
        return None
    s = C_EcuConfigurationResult.from_address(address)
    return records.EcuConfigurationResult(
        target=_text(s.target),
        configuration=_text(s.configuration),
        status=enums.TargetResultStatus(s.status),
        written=s.written,
        error=from_c_KelError(s.error),
    )


def from_c_EcuOrderEntry(address: Optional[int]) -> Optional[records.EcuOrderEntry]:
    if not address:
        return None
    s = C_EcuOrderEntry.from_address(address)
    return records.EcuOrderEntry(
        target=_text(s.target),
        bus=_text(s.bus),
        address=s.address,
        gateway=bool(s.gateway),
        optional=bool(s.optional),
    )


def from_c_VehicleUpdateConfig(address: Optional[int]) -> Optional[records.VehicleUpdateConfig]:
    if not address:
        return None
    s = C_VehicleUpdateConfig.from_address(address)
    return records.VehicleUpdateConfig(
        targets=_texts(s.targets, s.targetCount),
        packages=from_c_list(s.packages, s.packageCount, from_c_UpdatePackageInfo),
        stop_on_error=bool(s.stopOnError),
        force=bool(s.force),
        block_length=s.blockLength,
    )


def from_c_VehicleUpdateResult(address: Optional[int]) -> Optional[records.VehicleUpdateResult]:
    if not address:
        return None
    s = C_VehicleUpdateResult.from_address(address)
    return records.VehicleUpdateResult(
        target=_text(s.target),
        status=s.status,
        package=_text(s.package),
        version_before=_text(s.versionBefore),
        version_after=_text(s.versionAfter),
        position=s.position,
        progress=s.progress,
        overall_progress=s.overallProgress,
        duration=s.duration,
        error=from_c_KelError(s.error),
    )


def from_c_UpdatePackageInfo(address: Optional[int]) -> Optional[records.UpdatePackageInfo]:
    if not address:
        return None
    s = C_UpdatePackageInfo.from_address(address)
    return records.UpdatePackageInfo(
        name=_text(s.name),
        version=_text(s.version),
        description=_text(s.description),
        kind=s.kind,
        targets=_texts(s.targets, s.targetCount),
        size=s.size,
        checksum=_text(s.checksum),
        location=_text(s.location),
        state=s.state,
    )


def from_c_VehicleReportConfig(address: Optional[int]) -> Optional[records.VehicleReportConfig]:
    if not address:
        return None
    s = C_VehicleReportConfig.from_address(address)
    return records.VehicleReportConfig(
        name=_text(s.name),
        title=_text(s.title),
        comment=_text(s.comment),
        targets=_texts(s.targets, s.targetCount),
        identification=bool(s.identification),
        dtcs=bool(s.dtcs),
    )


def from_c_VehicleData(address: Optional[int]) -> Optional[records.VehicleData]:
    if not address:
        return None
    s = C_VehicleData.from_address(address)
    return records.VehicleData(
        vin=_text(s.vin),
        model=_text(s.model),
        target=_text(s.target),
        variant=_text(s.variant),
        software_version=_text(s.softwareVersion),
        bus=_text(s.bus),
        address=s.address,
        status=s.status,
        dtc_count=s.dtcCount,
    )


def from_c_UploadReportConfiguration(address: Optional[int]) -> Optional[records.UploadReportConfiguration]:
    if not address:
        return None
    s = C_UploadReportConfiguration.from_address(address)
    return records.UploadReportConfiguration(
        report_file=_text(s.reportFile),
        folder=_text(s.folder),
        name=_text(s.name),
        vin=_text(s.vin),
        user=_text(s.user),
        comment=_text(s.comment),
        overwrite=bool(s.overwrite),
        with_twin=bool(s.withTwin),
    )


def from_c_VehicleInformation(address: Optional[int]) -> Optional[records.VehicleInformation]:
    if not address:
        return None
    s = C_VehicleInformation.from_address(address)
    return records.VehicleInformation(
        vin=_text(s.vin),
        model=_text(s.model),
        model_year=s.modelYear,
        mileage=s.mileage,
        license_plate=_text(s.licensePlate),
        equipment=_texts(s.equipment, s.equipmentCount),
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
    s.text = lib.duplicate_WString(v.name)
    s.value1 = v.service_id
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
    s.itemText1 = lib.duplicate_WString(v.name)
    s.itemText2 = lib.duplicate_WString(v.item_text2)
    s.itemText3 = lib.duplicate_WString(v.item_text3)
    s.itemText4 = lib.duplicate_WString(v.item_text4)
    return address


def to_c_ParameterResult(lib: Any, v: Optional[records.ParameterResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ParameterResult))
    s = C_ParameterResult.from_address(address)
    s.itemText1 = lib.duplicate_WString(v.name)
    s.itemText2 = lib.duplicate_WString(v.description)
    s.itemText3 = lib.duplicate_WString(v.codec)
    s.itemText4 = lib.duplicate_WString(v.item_text4)
    s.text1 = lib.duplicate_WString(v.value)
    s.text2 = lib.duplicate_WString(v.unit)
    s.value1 = v.child_count
    s.children, s.childCount = heap_list(lib, v.children, to_c_ParameterResult)
    s.text3 = lib.duplicate_WString(v.text3)
    s.error = to_c_KelError(lib, v.error)
    s.text4 = lib.duplicate_WString(v.text4)
    s.value2 = v.byte_position
    s.data, s.dataLength = heap_bytes(lib, v.data)
    s.value3 = v.data_length
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
    s.value = v.status_mask
    s.flag1 = v.with_snapshots
    s.flag2 = v.with_extended_data
    s.flag3 = v.with_special_data
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
    s.value = v.dtc_total
    return address


def to_c_DtcResult(lib: Any, v: Optional[records.DtcResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_DtcResult))
    s = C_DtcResult.from_address(address)
    s.code = v.code
    s.text1 = lib.duplicate_WString(v.display_code)
    s.text2 = lib.duplicate_WString(v.description)
    s.value1 = v.status
    s.parameters1, s.parameterCount1 = heap_list(lib, v.snapshots, to_c_ParameterResult)
    s.parameters2, s.parameterCount2 = heap_list(lib, v.extended_data, to_c_ParameterResult)
    s.text3 = lib.duplicate_WString(v.ecu)
    s.text4 = lib.duplicate_WString(v.symptom)
    s.specialDataGroups, s.specialDataGroupCount = heap_list(lib, v.special_data_groups, to_c_SpecialDataGroup)
    s.value2 = v.severity
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
    s.text = lib.duplicate_WString(v.variant)
    s.error = to_c_KelError(lib, v.error)
    s.parameters, s.parameterCount = heap_list(lib, v.parameters, to_c_ParameterResult)
    return address


def to_c_Target(lib: Any, v: Optional[records.Target]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_Target))
    s = C_Target.from_address(address)
    s.itemText1 = lib.duplicate_WString(v.name)
    s.itemText2 = lib.duplicate_WString(v.description)
    s.itemText3 = lib.duplicate_WString(v.variant)
    s.itemText4 = lib.duplicate_WString(v.item_text4)
    s.value1 = v.address
    s.text1 = lib.duplicate_WString(v.protocol)
    s.text2 = lib.duplicate_WString(v.bus)
    s.items, s.itemCount = heap_list(lib, v.items, to_c_NamedItem)
    s.names, s.nameCount = heap_texts(lib, v.aliases, True)
    s.text3 = lib.duplicate_WString(v.part_number)
    s.text4 = lib.duplicate_WString(v.software_version)
    s.value2 = v.responds
    s.text5 = lib.duplicate_WString(v.hardware_version)
    return address


def to_c_TargetStatus(lib: Any, v: Optional[records.TargetStatus]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_TargetStatus))
    s = C_TargetStatus.from_address(address)
    s.target = lib.duplicate_WString(v.target)
    s.text = lib.duplicate_WString(v.state)
    s.error = to_c_KelError(lib, v.error)
    s.values[:] = v.counts
    s.text2 = lib.duplicate_WString(v.variant)
    return address


def to_c_TargetFilter(lib: Any, v: Optional[records.TargetFilter]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_TargetFilter))
    s = C_TargetFilter.from_address(address)
    s.pattern = lib.duplicate_WString(v.pattern)
    s.flag = v.exclude
    s.value = v.tag
    return address


def to_c_ParameterInput(lib: Any, v: Optional[records.ParameterInput]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ParameterInput))
    s = C_ParameterInput.from_address(address)
    s.name = lib.duplicate_WString(v.name)
    s.children, s.childCount = heap_list(lib, v.children, to_c_ParameterInput)
    s.value = lib.duplicate_WString(v.value)
    return address


def to_c_ServiceInput(lib: Any, v: Optional[records.ServiceInput]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ServiceInput))
    s = C_ServiceInput.from_address(address)
    s.parameters, s.parameterCount = heap_list(lib, v.parameters, to_c_ParameterInput)
    s.service = lib.duplicate_WString(v.service)
    s.data, s.dataLength = heap_bytes(lib, v.data)
    s.value = v.value
    return address


def to_c_ServiceResult(lib: Any, v: Optional[records.ServiceResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ServiceResult))
    s = C_ServiceResult.from_address(address)
    s.itemText1 = lib.duplicate_WString(v.service)
    s.itemText2 = lib.duplicate_WString(v.target)
    s.itemText3 = lib.duplicate_WString(v.description)
    s.itemText4 = lib.duplicate_WString(v.session)
    s.responses, s.responseCount = heap_list(lib, v.responses, to_c_ResponseResult)
    s.status = v.status
    s.text1 = lib.duplicate_WString(v.outcome)
    s.error = to_c_KelError(lib, v.error)
    s.request = to_c_RequestResult(lib, v.request)
    s.value1 = v.service_id
    return address


def to_c_ResponseResult(lib: Any, v: Optional[records.ResponseResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ResponseResult))
    s = C_ResponseResult.from_address(address)
    s.itemText1 = lib.duplicate_WString(v.kind)
    s.itemText2 = lib.duplicate_WString(v.target)
    s.itemText3 = lib.duplicate_WString(v.item_text3)
    s.itemText4 = lib.duplicate_WString(v.item_text4)
    s.flag = v.positive
    s.error = to_c_KelError(lib, v.error)
    s.data, s.dataLength = heap_bytes(lib, v.data)
    s.value1 = v.time
    s.value2 = v.nrc
    s.parameters, s.parameterCount = heap_list(lib, v.parameters, to_c_ParameterResult)
    return address


def to_c_RequestResult(lib: Any, v: Optional[records.RequestResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_RequestResult))
    s = C_RequestResult.from_address(address)
    s.error = to_c_KelError(lib, v.error)
    s.data, s.dataLength = heap_bytes(lib, v.data)
    s.value1 = v.time
    s.value2 = v.value2
    s.parameters, s.parameterCount = heap_list(lib, v.parameters, to_c_ParameterResult)
    return address


def to_c_UnlockResult(lib: Any, v: Optional[records.UnlockResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_UnlockResult))
    s = C_UnlockResult.from_address(address)
    s.value = v.unlock
    s.services, s.serviceCount = heap_list(lib, v.services, to_c_ServiceResult)
    return address


def to_c_ServiceInfo(lib: Any, v: Optional[records.ServiceInfo]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ServiceInfo))
    s = C_ServiceInfo.from_address(address)
    s.itemText1 = lib.duplicate_WString(v.name)
    s.itemText2 = lib.duplicate_WString(v.description)
    s.itemText3 = lib.duplicate_WString(v.service_id)
    s.itemText4 = lib.duplicate_WString(v.target)
    s.flag = v.available
    s.responses, s.responseCount = heap_list(lib, v.responses, to_c_ResponseInfo)
    s.parameters, s.parameterCount = heap_list(lib, v.parameters, to_c_ParameterInfo)
    s.text1 = lib.duplicate_WString(v.uds_service)
    s.items, s.itemCount = heap_list(lib, v.sessions, to_c_NamedItem)
    s.error = to_c_KelError(lib, v.error)
    s.values[:] = v.numbers
    return address


def to_c_ResponseInfo(lib: Any, v: Optional[records.ResponseInfo]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ResponseInfo))
    s = C_ResponseInfo.from_address(address)
    s.itemText1 = lib.duplicate_WString(v.kind)
    s.itemText2 = lib.duplicate_WString(v.first_byte)
    s.itemText3 = lib.duplicate_WString(v.item_text3)
    s.itemText4 = lib.duplicate_WString(v.item_text4)
    s.status = v.status
    s.parameters, s.parameterCount = heap_list(lib, v.parameters, to_c_ParameterInfo)
    return address


def to_c_ParameterInfo(lib: Any, v: Optional[records.ParameterInfo]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ParameterInfo))
    s = C_ParameterInfo.from_address(address)
    s.itemText1 = lib.duplicate_WString(v.name)
    s.itemText2 = lib.duplicate_WString(v.description)
    s.itemText3 = lib.duplicate_WString(v.codec)
    s.itemText4 = lib.duplicate_WString(v.item_text4)
    s.text1 = lib.duplicate_WString(v.default_value)
    s.text2 = lib.duplicate_WString(v.unit_text)
    s.text3 = lib.duplicate_WString(v.data_type)
    s.value1 = v.byte_position
    s.text4 = lib.duplicate_WString(v.path)
    s.children, s.childCount = heap_list(lib, v.children, to_c_ParameterInfo)
    s.text5 = lib.duplicate_WString(v.scaling)
    s.names, s.nameCount = heap_texts(lib, v.choices, True)
    s.flag1 = v.constant
    s.value2 = v.byte_length
    s.error = to_c_KelError(lib, v.error)
    s.flag2 = v.required
    s.values[:] = v.numbers
    s.flag3 = v.structure
    s.constraint1 = to_c_ConstraintInfo(lib, v.valid_values)
    s.constraint2 = to_c_ConstraintInfo(lib, v.raw_range)
    s.text6 = lib.duplicate_WString(v.minimum)
    s.text7 = lib.duplicate_WString(v.maximum)
    s.flag4 = v.repeated
    s.unit = to_c_UnitInfo(lib, v.unit)
    return address


def to_c_ConstraintInfo(lib: Any, v: Optional[records.ConstraintInfo]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ConstraintInfo))
    s = C_ConstraintInfo.from_address(address)
    s.text1 = lib.duplicate_WString(v.kind)
    s.text2 = lib.duplicate_WString(v.scale)
    s.flag = v.present
    s.scales, s.scaleCount = heap_list(lib, v.scales, to_c_ScaleConstraintInfo)
    return address


def to_c_ScaleConstraintInfo(lib: Any, v: Optional[records.ScaleConstraintInfo]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ScaleConstraintInfo))
    s = C_ScaleConstraintInfo.from_address(address)
    s.itemText1 = lib.duplicate_WString(v.name)
    s.itemText2 = lib.duplicate_WString(v.item_text2)
    s.itemText3 = lib.duplicate_WString(v.item_text3)
    s.itemText4 = lib.duplicate_WString(v.item_text4)
    s.text1 = lib.duplicate_WString(v.lower)
    s.text2 = lib.duplicate_WString(v.upper)
    s.flag = v.inclusive
    s.value = v.raw_value
    return address


def to_c_UnitInfo(lib: Any, v: Optional[records.UnitInfo]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_UnitInfo))
    s = C_UnitInfo.from_address(address)
    s.values[:] = v.exponents
    s.value1 = v.factor_bits
    s.flag1 = v.known
    s.value2 = v.offset_bits
    s.flag2 = v.has_offset
    return address


def to_c_ParameterInfoConfig(lib: Any, v: Optional[records.ParameterInfoConfig]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ParameterInfoConfig))
    s = C_ParameterInfoConfig.from_address(address)
    s.text1 = lib.duplicate_WString(v.target)
    s.text2 = lib.duplicate_WString(v.service)
    s.value = v.in_response
    s.text3 = lib.duplicate_WString(v.path)
    s.text4 = lib.duplicate_WString(v.text4)
    return address


def to_c_KelEvent(lib: Any, v: Optional[records.KelEvent]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_KelEvent))
    s = C_KelEvent.from_address(address)
    s.name = lib.duplicate_WString(v.name)
    s.kind = v.kind
    s.code = v.code
    s.text = lib.duplicate_WString(v.message)
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


def to_c_FileFilter(lib: Any, v: Optional[records.FileFilter]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_FileFilter))
    s = C_FileFilter.from_address(address)
    s.pattern = lib.duplicate_WString(v.pattern)
    s.flag = v.exclude
    s.value = v.value
    return address


def to_c_TargetConfig(lib: Any, v: Optional[records.TargetConfig]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_TargetConfig))
    s = C_TargetConfig.from_address(address)
    s.value = v.value
    s.text1 = lib.duplicate_WString(v.text1)
    s.text2 = lib.duplicate_WString(v.text2)
    return address


def to_c_ProjectConfig(lib: Any, v: Optional[records.ProjectConfig]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ProjectConfig))
    s = C_ProjectConfig.from_address(address)
    s.itemText1 = lib.duplicate_WString(v.name)
    s.itemText2 = lib.duplicate_WString(v.item_text2)
    s.itemText3 = lib.duplicate_WString(v.item_text3)
    s.itemText4 = lib.duplicate_WString(v.item_text4)
    s.filters1, s.filterCount1 = heap_list(lib, v.filters1, to_c_FileFilter)
    s.value0 = v.value0
    s.targets, s.targetCount = heap_list(lib, v.targets, to_c_TargetConfig)
    s.filters2, s.filterCount2 = heap_list(lib, v.filters2, to_c_FileFilter)
    s.strings1, s.stringCount1 = heap_texts(lib, v.strings1, True)
    s.text1 = lib.duplicate_WString(v.text1)
    s.value1 = v.value1
    s.text2 = lib.duplicate_WString(v.text2)
    s.strings2, s.stringCount2 = heap_texts(lib, v.strings2, True)
    s.text3 = lib.duplicate_WString(v.text3)
    s.value2 = v.value2
    s.value3 = v.value3
    s.flags[:] = v.flags
    return address


def to_c_ProjectDetails(lib: Any, v: Optional[records.ProjectDetails]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ProjectDetails))
    s = C_ProjectDetails.from_address(address)
    s.dbFiles1, s.dbFileCount1 = heap_list(lib, v.database_files, to_c_DbFileInfo)
    s.dbFiles2, s.dbFileCount2 = heap_list(lib, v.loaded_database_files, to_c_DbFileInfo)
    s.text1 = lib.duplicate_WString(v.name)
    s.value1 = v.format
    s.text2 = lib.duplicate_WString(v.folder)
    s.value2 = v.selected
    s.users, s.userCount = heap_list(lib, v.users, to_c_UserInfo)
    return address


def to_c_DbFileInfo(lib: Any, v: Optional[records.DbFileInfo]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_DbFileInfo))
    s = C_DbFileInfo.from_address(address)
    s.name = lib.duplicate_WString(v.name)
    s.path = lib.duplicate_WString(v.path)
    s.size = v.size
    s.loaded = v.loaded
    s.error = to_c_KelError(lib, v.error)
    return address


def to_c_SystemInfo(lib: Any, v: Optional[records.SystemInfo]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_SystemInfo))
    s = C_SystemInfo.from_address(address)
    s.value1 = v.processors
    s.value2 = v.page_size
    s.text1 = lib.duplicate_WString(v.system)
    s.value3 = v.pointer_bits
    s.text2 = lib.duplicate_WString(v.release)
    s.text3 = lib.duplicate_WString(v.host)
    s.text4 = lib.duplicate_WString(v.architecture)
    return address


def to_c_SystemProperty(lib: Any, v: Optional[records.SystemProperty]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_SystemProperty))
    s = C_SystemProperty.from_address(address)
    s.itemText1 = lib.duplicate_WString(v.name)
    s.itemText2 = lib.duplicate_WString(v.label)
    s.itemText3 = lib.duplicate_WString(v.item_text3)
    s.itemText4 = lib.duplicate_WString(v.unit)
    s.text1 = lib.duplicate_WString(v.value)
    s.text2 = lib.duplicate_WString(v.default_value)
    s.value1 = v.value1
    s.children, s.childCount = heap_list(lib, v.children, to_c_SystemProperty)
    s.text3 = lib.duplicate_WString(v.text3)
    s.error = to_c_KelError(lib, v.error)
    s.text4 = lib.duplicate_WString(v.text4)
    s.value2 = v.value2
    s.data, s.dataLength = heap_bytes(lib, v.data)
    s.value3 = v.value3
    s.flag = v.changed
    s.value4 = v.value4
    return address


def to_c_TarnApiConfig(lib: Any, v: Optional[records.TarnApiConfig]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_TarnApiConfig))
    s = C_TarnApiConfig.from_address(address)
    s.value1 = v.value1
    s.flag1 = v.flag1
    s.flag2 = v.flag2
    s.value2 = v.value2
    s.server = to_c_ServerConfig(lib, v.server)
    s.value3 = v.value3
    s.value4 = v.value4
    s.value5 = v.value5
    s.flag3 = v.flag3
    s.value6 = v.value6
    s.value7 = v.value7
    s.oauth2Configs, s.oauth2ConfigCount = heap_list(lib, v.oauth2_configs, to_c_Oauth2Config)
    s.text = lib.duplicate_WString(v.text)
    return address


def to_c_ServerConfig(lib: Any, v: Optional[records.ServerConfig]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ServerConfig))
    s = C_ServerConfig.from_address(address)
    s.address = lib.duplicate_WString(v.address)
    s.port = v.port
    s.enabled = v.enabled
    s.name = lib.duplicate_WString(v.name)
    return address


def to_c_Oauth2Config(lib: Any, v: Optional[records.Oauth2Config]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_Oauth2Config))
    s = C_Oauth2Config.from_address(address)
    s.issuer = lib.duplicate_WString(v.issuer)
    s.clientId = lib.duplicate_WString(v.client_id)
    s.scopes, s.scopeCount = heap_texts(lib, v.scopes, False)
    s.redirectUrl = lib.duplicate_WString(v.redirect_url)
    return address


def to_c_MoxConfig(lib: Any, v: Optional[records.MoxConfig]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_MoxConfig))
    s = C_MoxConfig.from_address(address)
    s.text1 = lib.duplicate_WString(v.text1)
    s.text2 = lib.duplicate_WString(v.text2)
    s.text3 = lib.duplicate_WString(v.text3)
    s.text4 = lib.duplicate_WString(v.text4)
    s.text5 = lib.duplicate_WString(v.text5)
    s.flag1 = v.flag1
    s.flag2 = v.flag2
    s.flag3 = v.flag3
    s.value = v.value
    s.flag4 = v.flag4
    s.flag5 = v.flag5
    s.flag6 = v.flag6
    s.text6 = lib.duplicate_WString(v.text6)
    s.text7 = lib.duplicate_WString(v.text7)
    s.tcp = to_c_TcpInfo(lib, v.tcp)
    return address


def to_c_TcpInfo(lib: Any, v: Optional[records.TcpInfo]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_TcpInfo))
    s = C_TcpInfo.from_address(address)
    s.value1 = v.value1
    s.value2 = v.value2
    s.value3 = v.value3
    s.value4 = v.value4
    s.value5 = v.value5
    s.value6 = v.value6
    return address


def to_c_StatusInfo(lib: Any, v: Optional[records.StatusInfo]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_StatusInfo))
    s = C_StatusInfo.from_address(address)
    s.value1 = v.calls
    s.value2 = v.failed_calls
    s.value3 = v.uptime_ms
    s.value4 = v.call_microseconds
    s.value5 = v.database_files_loaded
    s.value6 = v.projects
    s.value7 = v.status_text_changes
    s.value8 = v.started_ms
    return address


def to_c_TransmissionInfo(lib: Any, v: Optional[records.TransmissionInfo]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_TransmissionInfo))
    s = C_TransmissionInfo.from_address(address)
    s.value1 = v.requests
    s.value2 = v.responses
    s.value3 = v.request_bytes
    s.value4 = v.response_bytes
    return address


def to_c_ProcessInfo(lib: Any, v: Optional[records.ProcessInfo]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ProcessInfo))
    s = C_ProcessInfo.from_address(address)
    s.processes, s.processCount = heap_list(lib, v.processes, to_c_ProcessEntry)
    s.flag1 = v.is64_bit
    s.flag2 = v.initialized
    s.text = lib.duplicate_WString(v.status_text)
    return address


def to_c_ProcessEntry(lib: Any, v: Optional[records.ProcessEntry]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ProcessEntry))
    s = C_ProcessEntry.from_address(address)
    s.value = v.pid
    s.items1, s.itemCount1 = heap_list(lib, v.threads, to_c_ProcessThread)
    s.text = lib.duplicate_WString(v.executable)
    s.items2, s.itemCount2 = heap_list(lib, v.memory, to_c_ProcessMemory)
    return address


def to_c_ProcessThread(lib: Any, v: Optional[records.ProcessThread]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ProcessThread))
    s = C_ProcessThread.from_address(address)
    s.id = v.id
    s.name = lib.duplicate_WString(v.name)
    return address


def to_c_ProcessMemory(lib: Any, v: Optional[records.ProcessMemory]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ProcessMemory))
    s = C_ProcessMemory.from_address(address)
    s.name = lib.duplicate_WString(v.name)
    s.bytes = v.bytes
    return address


def to_c_GlobalProtocolParameterSet(lib: Any, v: Optional[records.GlobalProtocolParameterSet]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_GlobalProtocolParameterSet))
    s = C_GlobalProtocolParameterSet.from_address(address)
    s.text1 = lib.duplicate_WString(v.name)
    s.text2 = lib.duplicate_WString(v.protocol)
    s.text3 = lib.duplicate_WString(v.text3)
    s.text4 = lib.duplicate_WString(v.text4)
    s.parameters, s.parameterCount = heap_list(lib, v.parameters, to_c_GlobalProtocolParameter)
    return address


def to_c_GlobalProtocolParameter(lib: Any, v: Optional[records.GlobalProtocolParameter]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_GlobalProtocolParameter))
    s = C_GlobalProtocolParameter.from_address(address)
    s.itemText1 = lib.duplicate_WString(v.name)
    s.itemText2 = lib.duplicate_WString(v.item_text2)
    s.itemText3 = lib.duplicate_WString(v.item_text3)
    s.itemText4 = lib.duplicate_WString(v.item_text4)
    s.value = lib.duplicate_WString(v.value)
    s.defaultValue = lib.duplicate_WString(v.default_value)
    s.infos, s.infoCount = heap_list(lib, v.infos, to_c_ParameterInfo)
    s.choices, s.choiceCount = heap_texts(lib, v.choices, True)
    s.error = to_c_KelError(lib, v.error)
    s.constraints, s.constraintCount = heap_list(lib, v.constraints, to_c_ConstraintInfo)
    s.tcp = to_c_TcpInfo(lib, v.tcp)
    s.value1 = v.value1
    s.flag = v.flag
    return address


def to_c_LoadDatabaseResult(lib: Any, v: Optional[records.LoadDatabaseResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_LoadDatabaseResult))
    s = C_LoadDatabaseResult.from_address(address)
    s.text = lib.duplicate_WString(v.file)
    s.flag = v.loaded
    s.error = to_c_KelError(lib, v.error)
    return address


def to_c_InterfaceInformation(lib: Any, v: Optional[records.InterfaceInformation]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_InterfaceInformation))
    s = C_InterfaceInformation.from_address(address)
    s.itemText1 = lib.duplicate_WString(v.name)
    s.itemText2 = lib.duplicate_WString(v.long_name)
    s.itemText3 = lib.duplicate_WString(v.vendor)
    s.itemText4 = lib.duplicate_WString(v.description)
    s.resources, s.resourceCount = heap_list(lib, v.resources, to_c_ResourceInformation)
    s.flag1 = v.connected
    s.flag2 = v.dynamic
    s.text1 = lib.duplicate_WString(v.kind)
    s.text2 = lib.duplicate_WString(v.address)
    s.flag3 = v.plugged_in
    s.items, s.itemCount = heap_list(lib, v.vendor_modules, to_c_InterfaceInformationItem)
    s.value = v.handle
    return address


def to_c_ResourceInformation(lib: Any, v: Optional[records.ResourceInformation]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ResourceInformation))
    s = C_ResourceInformation.from_address(address)
    s.itemText1 = lib.duplicate_WString(v.name)
    s.itemText2 = lib.duplicate_WString(v.description)
    s.itemText3 = lib.duplicate_WString(v.protocol)
    s.itemText4 = lib.duplicate_WString(v.physical_link)
    s.id = v.id
    s.pin = v.pin
    s.inUse = v.in_use
    return address


def to_c_InterfaceInformationItem(lib: Any, v: Optional[records.InterfaceInformationItem]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_InterfaceInformationItem))
    s = C_InterfaceInformationItem.from_address(address)
    s.itemText1 = lib.duplicate_WString(v.name)
    s.itemText2 = lib.duplicate_WString(v.vendor)
    s.itemText3 = lib.duplicate_WString(v.version)
    s.itemText4 = lib.duplicate_WString(v.description)
    return address


def to_c_ScanInterfaceResult(lib: Any, v: Optional[records.ScanInterfaceResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ScanInterfaceResult))
    s = C_ScanInterfaceResult.from_address(address)
    s.interfaceInfo = to_c_InterfaceInformation(lib, v.interface_info)
    s.error = to_c_KelError(lib, v.error)
    return address


def to_c_DynInterfaceDetection(lib: Any, v: Optional[records.DynInterfaceDetection]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_DynInterfaceDetection))
    s = C_DynInterfaceDetection.from_address(address)
    s.namePattern = lib.duplicate_WString(v.name_pattern)
    s.kind = lib.duplicate_WString(v.kind)
    s.onlyFree = v.only_free
    return address


def to_c_ModuleDyn(lib: Any, v: Optional[records.ModuleDyn]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ModuleDyn))
    s = C_ModuleDyn.from_address(address)
    s.name = lib.duplicate_WString(v.name)
    s.longName = lib.duplicate_WString(v.long_name)
    s.vendor = lib.duplicate_WString(v.vendor)
    s.kind = lib.duplicate_WString(v.kind)
    s.address = lib.duplicate_WString(v.address)
    s.vendorModule = to_c_InterfaceInformationItem(lib, v.vendor_module)
    s.flag1 = v.connected
    s.serialNumber = lib.duplicate_WString(v.serial_number)
    s.firmware = lib.duplicate_WString(v.firmware)
    s.network = lib.duplicate_WString(v.network)
    s.resources, s.resourceCount = heap_list(lib, v.resources, to_c_ResourceInformation)
    s.port = v.port
    s.flag2 = v.exclusive
    s.handle = v.handle
    return address


def to_c_DeviceInfo(lib: Any, v: Optional[records.DeviceInfo]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_DeviceInfo))
    s = C_DeviceInfo.from_address(address)
    s.text1 = lib.duplicate_WString(v.name)
    s.value1 = v.vendor_id
    s.value2 = v.product_id
    s.text2 = lib.duplicate_WString(v.vendor)
    s.text3 = lib.duplicate_WString(v.serial_number)
    s.value3 = v.resources
    s.text4 = lib.duplicate_WString(v.firmware)
    s.text5 = lib.duplicate_WString(v.kind)
    s.value4 = v.ethernet_pin_state
    s.value5 = v.links
    s.text6 = lib.duplicate_WString(v.address)
    s.protocols, s.protocolCount = heap_texts(lib, v.protocols, False)
    s.text7 = lib.duplicate_WString(v.long_name)
    s.modules, s.moduleCount = heap_texts(lib, v.modules, False)
    s.text8 = lib.duplicate_WString(v.description)
    s.flag = v.connected
    s.handle = v.handle
    s.value6 = v.dynamic
    s.value8 = v.value8
    s.value9 = v.value9
    s.value10 = v.value10
    return address


def to_c_PhysicalLinksOnModule(lib: Any, v: Optional[records.PhysicalLinksOnModule]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_PhysicalLinksOnModule))
    s = C_PhysicalLinksOnModule.from_address(address)
    s.module = lib.duplicate_WString(v.module)
    s.links, s.linkCount = heap_list(lib, v.links, to_c_PhysicalLink)
    return address


def to_c_PhysicalLink(lib: Any, v: Optional[records.PhysicalLink]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_PhysicalLink))
    s = C_PhysicalLink.from_address(address)
    s.itemText1 = lib.duplicate_WString(v.name)
    s.itemText2 = lib.duplicate_WString(v.type)
    s.itemText3 = lib.duplicate_WString(v.pins)
    s.itemText4 = lib.duplicate_WString(v.description)
    s.baudrate = v.baudrate
    s.enabled = v.enabled
    return address


def to_c_InterfaceConfiguration(lib: Any, v: Optional[records.InterfaceConfiguration]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_InterfaceConfiguration))
    s = C_InterfaceConfiguration.from_address(address)
    s.entries, s.entryCount = heap_list(lib, v.entries, to_c_InterfaceConfigurationEntry)
    return address


def to_c_InterfaceConfigurationEntry(lib: Any, v: Optional[records.InterfaceConfigurationEntry]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_InterfaceConfigurationEntry))
    s = C_InterfaceConfigurationEntry.from_address(address)
    s.text1 = lib.duplicate_WString(v.name)
    s.text2 = lib.duplicate_WString(v.long_name)
    s.text3 = lib.duplicate_WString(v.vendor)
    s.text4 = lib.duplicate_WString(v.kind)
    s.text5 = lib.duplicate_WString(v.address)
    s.value = v.ethernet_pin_state
    s.flag = v.enabled
    s.items, s.itemCount = heap_list(lib, v.resources, to_c_ResourceInformation)
    return address


def to_c_InterfaceProvider(lib: Any, v: Optional[records.InterfaceProvider]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_InterfaceProvider))
    s = C_InterfaceProvider.from_address(address)
    s.itemText1 = lib.duplicate_WString(v.name)
    s.itemText2 = lib.duplicate_WString(v.description)
    s.itemText3 = lib.duplicate_WString(v.vendor)
    s.itemText4 = lib.duplicate_WString(v.version)
    s.text = lib.duplicate_WString(v.library)
    s.value = v.priority
    s.flag = v.enabled
    return address


def to_c_DoIPParameter(lib: Any, v: Optional[records.DoIPParameter]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_DoIPParameter))
    s = C_DoIPParameter.from_address(address)
    s.value1 = v.discovery_port
    s.value2 = v.announcement_wait_ms
    s.text = lib.duplicate_WString(v.broadcast_address)
    s.value3 = v.tcp_port
    s.strings, s.stringCount = heap_texts(lib, v.adapters, False)
    return address


def to_c_WLanSignalData(lib: Any, v: Optional[records.WLanSignalData]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_WLanSignalData))
    s = C_WLanSignalData.from_address(address)
    s.value1 = v.quality
    s.value2 = v.signal_dbm_below_zero
    s.value3 = v.noise_dbm_below_zero
    s.value4 = v.channel
    s.value5 = v.frequency_mhz
    s.value6 = v.bytes_received
    s.value7 = v.transmit_rate_mbits
    s.value8 = v.receive_rate_mbits
    s.value9 = v.retransmissions
    s.value10 = v.lost_beacons
    s.value11 = v.channel_width_mhz
    s.text = lib.duplicate_WString(v.ssid)
    return address


def to_c_SupportedInterface(lib: Any, v: Optional[records.SupportedInterface]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_SupportedInterface))
    s = C_SupportedInterface.from_address(address)
    s.text1 = lib.duplicate_WString(v.kind)
    s.text2 = lib.duplicate_WString(v.description)
    s.names, s.nameCount = heap_texts(lib, v.protocols, False)
    s.value = v.max_interfaces
    s.text3 = lib.duplicate_WString(v.vendor_module)
    return address


def to_c_MonitoringItem(lib: Any, v: Optional[records.MonitoringItem]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_MonitoringItem))
    s = C_MonitoringItem.from_address(address)
    s.text1 = lib.duplicate_WString(v.unit)
    s.data, s.dataLength = heap_bytes(lib, v.data)
    s.value1 = v.time
    s.value2 = v.number
    s.flag1 = v.answered
    s.flag2 = v.positive
    s.flag3 = v.replayed
    s.value3 = v.nrc
    s.text2 = lib.duplicate_WString(v.source)
    s.value4 = v.service_id
    s.detail = to_c_MonitoringItemDetail(lib, v.detail)
    return address


def to_c_MonitoringItemDetail(lib: Any, v: Optional[records.MonitoringItemDetail]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_MonitoringItemDetail))
    s = C_MonitoringItemDetail.from_address(address)
    s.response, s.responseLength = heap_bytes(lib, v.response)
    s.text = lib.duplicate_WString(v.summary)
    return address


def to_c_PduMonitoringItem(lib: Any, v: Optional[records.PduMonitoringItem]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_PduMonitoringItem))
    s = C_PduMonitoringItem.from_address(address)
    s.value1 = v.direction
    s.data, s.dataLength = heap_bytes(lib, v.data)
    s.detail = to_c_PduMonitoringItemDetail(lib, v.detail)
    s.text1 = lib.duplicate_WString(v.unit)
    s.text2 = lib.duplicate_WString(v.direction_text)
    s.value2 = v.time
    s.text3 = lib.duplicate_WString(v.hex)
    return address


def to_c_PduMonitoringItemDetail(lib: Any, v: Optional[records.PduMonitoringItemDetail]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_PduMonitoringItemDetail))
    s = C_PduMonitoringItemDetail.from_address(address)
    s.sequence = v.sequence
    s.exchange = v.exchange
    return address


def to_c_FileInfo(lib: Any, v: Optional[records.FileInfo]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_FileInfo))
    s = C_FileInfo.from_address(address)
    s.name = lib.duplicate_WString(v.name)
    s.error = to_c_KelError(lib, v.error)
    s.flag = v.read_only
    s.value1 = v.attributes
    s.text1 = lib.duplicate_WString(v.path)
    s.text2 = lib.duplicate_WString(v.modified)
    s.value2 = v.size
    s.value3 = v.modified_ms
    return address


def to_c_DirectoryInfo(lib: Any, v: Optional[records.DirectoryInfo]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_DirectoryInfo))
    s = C_DirectoryInfo.from_address(address)
    s.name = lib.duplicate_WString(v.name)
    s.error = to_c_KelError(lib, v.error)
    s.flag = v.read_only
    s.value1 = v.attributes
    s.text1 = lib.duplicate_WString(v.path)
    s.text2 = lib.duplicate_WString(v.modified)
    s.files, s.fileCount = heap_list(lib, v.files, to_c_FileInfo)
    s.directories, s.directoryCount = heap_list(lib, v.directories, to_c_DirectoryInfo)
    s.flag2 = v.contents_read
    return address


def to_c_FileCopyResult(lib: Any, v: Optional[records.FileCopyResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_FileCopyResult))
    s = C_FileCopyResult.from_address(address)
    s.value1 = v.failed
    s.text = lib.duplicate_WString(v.source)
    s.error = to_c_KelError(lib, v.error)
    s.file = to_c_FileInfo(lib, v.file)
    s.value2 = v.index
    return address


def to_c_DirectoryCopyResult(lib: Any, v: Optional[records.DirectoryCopyResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_DirectoryCopyResult))
    s = C_DirectoryCopyResult.from_address(address)
    s.value1 = v.outcome
    s.text = lib.duplicate_WString(v.source)
    s.error = to_c_KelError(lib, v.error)
    s.directory = to_c_DirectoryCopyItem(lib, v.directory)
    return address


def to_c_DirectoryCopyItem(lib: Any, v: Optional[records.DirectoryCopyItem]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_DirectoryCopyItem))
    s = C_DirectoryCopyItem.from_address(address)
    s.source = lib.duplicate_WString(v.source)
    s.target = lib.duplicate_WString(v.target)
    s.files = v.files
    s.directories = v.directories
    s.bytes = v.bytes
    s.failures, s.failureCount = heap_list(lib, v.failures, to_c_FileCopyResult)
    return address


def to_c_PathCopyResult(lib: Any, v: Optional[records.PathCopyResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_PathCopyResult))
    s = C_PathCopyResult.from_address(address)
    s.value1 = v.failed
    s.error = to_c_KelError(lib, v.error)
    s.value2 = v.is_directory
    s.item = to_c_PathCopyItem(lib, v.item)
    return address


def to_c_PathCopyItem(lib: Any, v: Optional[records.PathCopyItem]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_PathCopyItem))
    s = C_PathCopyItem.from_address(address)
    s.source = lib.duplicate_WString(v.source)
    s.target = lib.duplicate_WString(v.target)
    s.size = v.size
    return address


def to_c_FileReferenceResult(lib: Any, v: Optional[records.FileReferenceResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_FileReferenceResult))
    s = C_FileReferenceResult.from_address(address)
    s.references, s.referenceCount = heap_texts(lib, v.references, False)
    s.error = to_c_KelError(lib, v.error)
    return address


def to_c_FileCopyConfig(lib: Any, v: Optional[records.FileCopyConfig]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_FileCopyConfig))
    s = C_FileCopyConfig.from_address(address)
    s.files, s.fileCount = heap_texts(lib, v.files, False)
    s.target = lib.duplicate_WString(v.target)
    s.overwrite = v.overwrite
    return address


def to_c_DirectoryCopyConfig(lib: Any, v: Optional[records.DirectoryCopyConfig]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_DirectoryCopyConfig))
    s = C_DirectoryCopyConfig.from_address(address)
    s.directories, s.directoryCount = heap_texts(lib, v.directories, False)
    s.target = lib.duplicate_WString(v.target)
    s.overwrite = v.overwrite
    s.recursive = v.recursive
    s.pattern = lib.duplicate_WString(v.pattern)
    return address


def to_c_PathCopyConfig(lib: Any, v: Optional[records.PathCopyConfig]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_PathCopyConfig))
    s = C_PathCopyConfig.from_address(address)
    s.source = lib.duplicate_WString(v.source)
    s.target = lib.duplicate_WString(v.target)
    s.overwrite = v.overwrite
    return address


def to_c_UserInfo(lib: Any, v: Optional[records.UserInfo]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_UserInfo))
    s = C_UserInfo.from_address(address)
    s.name = lib.duplicate_WString(v.name)
    s.text = lib.duplicate_WString(v.role_name)
    s.value = v.role
    return address


def to_c_LogInOutConfig(lib: Any, v: Optional[records.LogInOutConfig]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_LogInOutConfig))
    s = C_LogInOutConfig.from_address(address)
    s.user = lib.duplicate_WString(v.user)
    s.password = lib.duplicate_WString(v.password)
    return address


def to_c_TarnApiServerConfig(lib: Any, v: Optional[records.TarnApiServerConfig]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_TarnApiServerConfig))
    s = C_TarnApiServerConfig.from_address(address)
    s.users, s.userCount = heap_list(lib, v.users, to_c_UserInfo)
    s.flag = v.user_management
    s.value1 = v.connections
    s.text1 = lib.duplicate_WString(v.address)
    s.text2 = lib.duplicate_WString(v.sovd_address)
    s.filters, s.filterCount = heap_list(lib, v.filters, to_c_FileFilter)
    s.text3 = lib.duplicate_WString(v.identity_provider)
    s.text4 = lib.duplicate_WString(v.login_address)
    s.users2, s.userCount2 = heap_list(lib, v.logged_in, to_c_UserInfo)
    s.value2 = v.login_attempts
    return address


def to_c_ServerSettings(lib: Any, v: Optional[records.ServerSettings]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_ServerSettings))
    s = C_ServerSettings.from_address(address)
    s.flag = v.running
    s.value1 = v.connections
    s.value2 = v.users
    s.value3 = v.sovd_running
    return address


def to_c_FlashSessionInfo(lib: Any, v: Optional[records.FlashSessionInfo]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_FlashSessionInfo))
    s = C_FlashSessionInfo.from_address(address)
    s.name = lib.duplicate_WString(v.name)
    s.target = lib.duplicate_WString(v.target)
    s.description = lib.duplicate_WString(v.description)
    s.version = lib.duplicate_WString(v.version)
    s.size = v.size
    s.duration = v.duration
    s.level = v.level
    return address


def to_c_FlashSessionResult(lib: Any, v: Optional[records.FlashSessionResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_FlashSessionResult))
    s = C_FlashSessionResult.from_address(address)
    s.name = lib.duplicate_WString(v.name)
    s.target = lib.duplicate_WString(v.target)
    s.status = v.status
    s.versionBefore = lib.duplicate_WString(v.version_before)
    s.versionAfter = lib.duplicate_WString(v.version_after)
    s.size = v.size
    s.transferred = v.transferred
    s.progress = v.progress
    s.duration = v.duration
    s.error = to_c_KelError(lib, v.error)
    return address


def to_c_FlashSessionsConfig(lib: Any, v: Optional[records.FlashSessionsConfig]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_FlashSessionsConfig))
    s = C_FlashSessionsConfig.from_address(address)
    s.target = lib.duplicate_WString(v.target)
    s.sessions, s.sessionCount = heap_texts(lib, v.sessions, False)
    s.blockLength = v.block_length
    s.stopOnError = v.stop_on_error
    return address


def to_c_CodingStringResult(lib: Any, v: Optional[records.CodingStringResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_CodingStringResult))
    s = C_CodingStringResult.from_address(address)
    s.target = lib.duplicate_WString(v.target)
    s.status = v.status
    s.identifier = lib.duplicate_WString(v.identifier)
    s.coding = lib.duplicate_WString(v.coding)
    s.data, s.dataLength = heap_bytes(lib, v.data)
    s.error = to_c_KelError(lib, v.error)
    return address


def to_c_CodingFileResult(lib: Any, v: Optional[records.CodingFileResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_CodingFileResult))
    s = C_CodingFileResult.from_address(address)
    s.target = lib.duplicate_WString(v.target)
    s.status = v.status
    s.written = lib.duplicate_WString(v.written)
    s.coding = lib.duplicate_WString(v.coding)
    s.data, s.dataLength = heap_bytes(lib, v.data)
    s.verified = v.verified
    s.error = to_c_KelError(lib, v.error)
    return address


def to_c_QuickTestResult(lib: Any, v: Optional[records.QuickTestResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_QuickTestResult))
    s = C_QuickTestResult.from_address(address)
    s.target = lib.duplicate_WString(v.target)
    s.status = v.status
    s.variant = lib.duplicate_WString(v.variant)
    s.identified = v.identified
    s.dtcs, s.dtcCount = heap_list(lib, v.dtcs, to_c_DtcResult)
    s.error = to_c_KelError(lib, v.error)
    return address


def to_c_EcuConfigurationResult(lib: Any, v: Optional[records.EcuConfigurationResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_EcuConfigurationResult))
    s = C_EcuConfigurationResult.from_address(address)
    s.target = lib.duplicate_WString(v.target)
    s.configuration = lib.duplicate_WString(v.configuration)
    s.status = v.status
    s.written = v.written
    s.error = to_c_KelError(lib, v.error)
    return address


def to_c_EcuOrderEntry(lib: Any, v: Optional[records.EcuOrderEntry]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_EcuOrderEntry))
    s = C_EcuOrderEntry.from_address(address)
    s.target = lib.duplicate_WString(v.target)
    s.bus = lib.duplicate_WString(v.bus)
    s.address = v.address
    s.gateway = v.gateway
    s.optional = v.optional
    return address


def to_c_VehicleUpdateConfig(lib: Any, v: Optional[records.VehicleUpdateConfig]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_VehicleUpdateConfig))
    s = C_VehicleUpdateConfig.from_address(address)
    s.targets, s.targetCount = heap_texts(lib, v.targets, False)
    s.packages, s.packageCount = heap_list(lib, v.packages, to_c_UpdatePackageInfo)
    s.stopOnError = v.stop_on_error
    s.force = v.force
    s.blockLength = v.block_length
    return address


def to_c_VehicleUpdateResult(lib: Any, v: Optional[records.VehicleUpdateResult]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_VehicleUpdateResult))
    s = C_VehicleUpdateResult.from_address(address)
    s.target = lib.duplicate_WString(v.target)
    s.status = v.status
    s.package = lib.duplicate_WString(v.package)
    s.versionBefore = lib.duplicate_WString(v.version_before)
    s.versionAfter = lib.duplicate_WString(v.version_after)
    s.position = v.position
    s.progress = v.progress
    s.overallProgress = v.overall_progress
    s.duration = v.duration
    s.error = to_c_KelError(lib, v.error)
    return address


def to_c_UpdatePackageInfo(lib: Any, v: Optional[records.UpdatePackageInfo]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_UpdatePackageInfo))
    s = C_UpdatePackageInfo.from_address(address)
    s.name = lib.duplicate_WString(v.name)
    s.version = lib.duplicate_WString(v.version)
    s.description = lib.duplicate_WString(v.description)
    s.kind = v.kind
    s.targets, s.targetCount = heap_texts(lib, v.targets, False)
    s.size = v.size
    s.checksum = lib.duplicate_WString(v.checksum)
    s.location = lib.duplicate_WString(v.location)
    s.state = v.state
    return address


def to_c_VehicleReportConfig(lib: Any, v: Optional[records.VehicleReportConfig]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_VehicleReportConfig))
    s = C_VehicleReportConfig.from_address(address)
    s.name = lib.duplicate_WString(v.name)
    s.title = lib.duplicate_WString(v.title)
    s.comment = lib.duplicate_WString(v.comment)
    s.targets, s.targetCount = heap_texts(lib, v.targets, False)
    s.identification = v.identification
    s.dtcs = v.dtcs
    return address


def to_c_VehicleData(lib: Any, v: Optional[records.VehicleData]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_VehicleData))
    s = C_VehicleData.from_address(address)
    s.vin = lib.duplicate_WString(v.vin)
    s.model = lib.duplicate_WString(v.model)
    s.target = lib.duplicate_WString(v.target)
    s.variant = lib.duplicate_WString(v.variant)
    s.softwareVersion = lib.duplicate_WString(v.software_version)
    s.bus = lib.duplicate_WString(v.bus)
    s.address = v.address
    s.status = v.status
    s.dtcCount = v.dtc_count
    return address


def to_c_UploadReportConfiguration(lib: Any, v: Optional[records.UploadReportConfiguration]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_UploadReportConfiguration))
    s = C_UploadReportConfiguration.from_address(address)
    s.reportFile = lib.duplicate_WString(v.report_file)
    s.folder = lib.duplicate_WString(v.folder)
    s.name = lib.duplicate_WString(v.name)
    s.vin = lib.duplicate_WString(v.vin)
    s.user = lib.duplicate_WString(v.user)
    s.comment = lib.duplicate_WString(v.comment)
    s.overwrite = v.overwrite
    s.withTwin = v.with_twin
    return address


def to_c_VehicleInformation(lib: Any, v: Optional[records.VehicleInformation]) -> int:
    if v is None:
        return 0
    address = heap_block(lib, ctypes.sizeof(C_VehicleInformation))
    s = C_VehicleInformation.from_address(address)
    s.vin = lib.duplicate_WString(v.vin)
    s.model = lib.duplicate_WString(v.model)
    s.modelYear = v.model_year
    s.mileage = v.mileage
    s.licensePlate = lib.duplicate_WString(v.license_plate)
    s.equipment, s.equipmentCount = heap_texts(lib, v.equipment, False)
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
    check_texts(targets, "targets")
    call_id: int = lib.kel_readIdentificationValuesAsync(api, ctypes.cast((ctypes.c_wchar_p * len(targets))(*targets), ctypes.c_void_p), len(targets), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_readDtcsAsync(lib: Any, api: int, callback: Any, targets: Sequence[str], config: Optional[records.DtcReadConfig]) -> tuple[int, Optional[records.KelError]]:
    """kel_readDtcsAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    check_texts(targets, "targets")
    call_id: int = lib.kel_readDtcsAsync(api, ctypes.cast((ctypes.c_wchar_p * len(targets))(*targets), ctypes.c_void_p), len(targets), to_c_DtcReadConfig(lib, config), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_readSupportedDtcsAsync(lib: Any, api: int, callback: Any, targets: Sequence[str], config: Optional[records.DtcReadConfig]) -> tuple[int, Optional[records.KelError]]:
    """kel_readSupportedDtcsAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    check_texts(targets, "targets")
    call_id: int = lib.kel_readSupportedDtcsAsync(api, ctypes.cast((ctypes.c_wchar_p * len(targets))(*targets), ctypes.c_void_p), len(targets), to_c_DtcReadConfig(lib, config), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_clearAllDtcsAsync(lib: Any, api: int, callback: Any, targets: Sequence[str]) -> tuple[int, Optional[records.KelError]]:
    """kel_clearAllDtcsAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    check_texts(targets, "targets")
    call_id: int = lib.kel_clearAllDtcsAsync(api, ctypes.cast((ctypes.c_wchar_p * len(targets))(*targets), ctypes.c_void_p), len(targets), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_executeFlashSessionsAsync(lib: Any, api: int, callback: Any, target: str, sessions: Sequence[str]) -> tuple[int, Optional[records.KelError]]:
    """kel_executeFlashSessionsAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    check_texts(sessions, "sessions")
    call_id: int = lib.kel_executeFlashSessionsAsync(api, target, ctypes.cast((ctypes.c_wchar_p * len(sessions))(*sessions), ctypes.c_void_p), len(sessions), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_readCodingStringsAsync(lib: Any, api: int, callback: Any, targets: Sequence[str]) -> tuple[int, Optional[records.KelError]]:
    """kel_readCodingStringsAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    check_texts(targets, "targets")
    call_id: int = lib.kel_readCodingStringsAsync(api, ctypes.cast((ctypes.c_wchar_p * len(targets))(*targets), ctypes.c_void_p), len(targets), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_performQuickTestAsync(lib: Any, api: int, callback: Any, targets: Sequence[str], config: Optional[records.DtcReadConfig]) -> tuple[int, Optional[records.KelError]]:
    """kel_performQuickTestAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    check_texts(targets, "targets")
    call_id: int = lib.kel_performQuickTestAsync(api, ctypes.cast((ctypes.c_wchar_p * len(targets))(*targets), ctypes.c_void_p), len(targets), to_c_DtcReadConfig(lib, config), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_scanInterfaceConnectionAsync(lib: Any, api: int, callback: Any, interfaces: Sequence[str]) -> tuple[int, Optional[records.KelError]]:
    """kel_scanInterfaceConnectionAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    check_texts(interfaces, "interfaces")
    call_id: int = lib.kel_scanInterfaceConnectionAsync(api, ctypes.cast((ctypes.c_wchar_p * len(interfaces))(*interfaces), ctypes.c_void_p), len(interfaces), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_readMeasurementValuesAsync(lib: Any, api: int, callback: Any, target: str, names: Sequence[str]) -> tuple[int, Optional[records.KelError]]:
    """kel_readMeasurementValuesAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    check_texts(names, "names")
    call_id: int = lib.kel_readMeasurementValuesAsync(api, target, ctypes.cast((ctypes.c_wchar_p * len(names))(*names), ctypes.c_void_p), len(names), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_identifyTargetsAsync(lib: Any, api: int, callback: Any, targets: Sequence[str]) -> tuple[int, Optional[records.KelError]]:
    """kel_identifyTargetsAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    check_texts(targets, "targets")
    call_id: int = lib.kel_identifyTargetsAsync(api, ctypes.cast((ctypes.c_wchar_p * len(targets))(*targets), ctypes.c_void_p), len(targets), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_executeServiceAsync(lib: Any, api: int, callback: Any, target: str, services: Sequence[Optional[records.ServiceInput]]) -> tuple[int, Optional[records.KelError]]:
    """kel_executeServiceAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    l_services = heap_list(lib, services, to_c_ServiceInput)[0]
    try:
        call_id: int = lib.kel_executeServiceAsync(api, target, l_services, len(services), ctypes.byref(error), callback, None)
    finally:
        lib.release_ServiceInput_array(l_services, len(services))
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_detectDynInterfacesAsync(lib: Any, api: int, callback: Any, value: int, detection: Optional[records.DynInterfaceDetection]) -> tuple[int, Optional[records.KelError]]:
    """kel_detectDynInterfacesAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    call_id: int = lib.kel_detectDynInterfacesAsync(api, value, to_c_DynInterfaceDetection(lib, detection), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_detectDynInterfacesExAsync(lib: Any, api: int, callback: Any, value: int) -> tuple[int, Optional[records.KelError]]:
    """kel_detectDynInterfacesExAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    call_id: int = lib.kel_detectDynInterfacesExAsync(api, value, ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_copyFilesAsync(lib: Any, api: int, callback: Any, config: Optional[records.FileCopyConfig]) -> tuple[int, Optional[records.KelError]]:
    """kel_copyFilesAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    call_id: int = lib.kel_copyFilesAsync(api, to_c_FileCopyConfig(lib, config), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_copyDirectoriesAsync(lib: Any, api: int, callback: Any, config: Optional[records.DirectoryCopyConfig]) -> tuple[int, Optional[records.KelError]]:
    """kel_copyDirectoriesAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    call_id: int = lib.kel_copyDirectoriesAsync(api, to_c_DirectoryCopyConfig(lib, config), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_executeFlashSessionsConfigAsync(lib: Any, api: int, callback: Any, config: Optional[records.FlashSessionsConfig]) -> tuple[int, Optional[records.KelError]]:
    """kel_executeFlashSessionsConfigAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    call_id: int = lib.kel_executeFlashSessionsConfigAsync(api, to_c_FlashSessionsConfig(lib, config), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_updateVehicleAsync(lib: Any, api: int, callback: Any, config: Optional[records.VehicleUpdateConfig]) -> tuple[int, Optional[records.KelError]]:
    """kel_updateVehicleAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    call_id: int = lib.kel_updateVehicleAsync(api, to_c_VehicleUpdateConfig(lib, config), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_executeServiceInDefaultSessionAsync(lib: Any, api: int, callback: Any, target: str, services: Sequence[Optional[records.ServiceInput]]) -> tuple[int, Optional[records.KelError]]:
    """kel_executeServiceInDefaultSessionAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    l_services = heap_list(lib, services, to_c_ServiceInput)[0]
    try:
        call_id: int = lib.kel_executeServiceInDefaultSessionAsync(api, target, l_services, len(services), ctypes.byref(error), callback, None)
    finally:
        lib.release_ServiceInput_array(l_services, len(services))
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_copyPathAsync(lib: Any, api: int, callback: Any, config: Optional[records.PathCopyConfig]) -> tuple[int, Optional[records.KelError]]:
    """kel_copyPathAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    call_id: int = lib.kel_copyPathAsync(api, to_c_PathCopyConfig(lib, config), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_writeCodingFileAsync(lib: Any, api: int, callback: Any, coding_file: str, targets: Sequence[str]) -> tuple[int, Optional[records.KelError]]:
    """kel_writeCodingFileAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    check_texts(targets, "targets")
    call_id: int = lib.kel_writeCodingFileAsync(api, coding_file, ctypes.cast((ctypes.c_wchar_p * len(targets))(*targets), ctypes.c_void_p), len(targets), ctypes.byref(error), callback, None)
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_performVehicleUpdateAsync(lib: Any, api: int, callback: Any, entries: Sequence[Optional[records.EcuOrderEntry]], config: Optional[records.VehicleUpdateConfig]) -> tuple[int, Optional[records.KelError]]:
    """kel_performVehicleUpdateAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    l_entries = heap_list(lib, entries, to_c_EcuOrderEntry)[0]
    try:
        call_id: int = lib.kel_performVehicleUpdateAsync(api, l_entries, len(entries), to_c_VehicleUpdateConfig(lib, config), ctypes.byref(error), callback, None)
    finally:
        lib.release_EcuOrderEntry_array(l_entries, len(entries))
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_executeSequenceAsync(lib: Any, api: int, callback: Any, target: str, sequence: str, parameters: Sequence[Optional[records.ParameterInput]]) -> tuple[int, Optional[records.KelError]]:
    """kel_executeSequenceAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    l_parameters = heap_list(lib, parameters, to_c_ParameterInput)[0]
    try:
        call_id: int = lib.kel_executeSequenceAsync(api, target, sequence, l_parameters, len(parameters), ctypes.byref(error), callback, None)
    finally:
        lib.release_ParameterInput_array(l_parameters, len(parameters))
    failure = from_c_KelError(error.value)
    if error.value:
        lib.release_KelError(error.value)
    return call_id, failure


def start_performEcuConfigurationAsync(lib: Any, api: int, callback: Any, targets: Sequence[str], configuration: str) -> tuple[int, Optional[records.KelError]]:
    """kel_performEcuConfigurationAsync: the call id, or 0 and the error of a failed start."""
    error = ctypes.c_void_p()
    check_texts(targets, "targets")
    call_id: int = lib.kel_performEcuConfigurationAsync(api, ctypes.cast((ctypes.c_wchar_p * len(targets))(*targets), ctypes.c_void_p), len(targets), configuration, ctypes.byref(error), callback, None)
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
    "kel_executeFlashSessionsAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_wchar_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_readCodingStringsAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_performQuickTestAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.c_void_p, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_scanInterfaceConnectionAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_readMeasurementValuesAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_wchar_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_identifyTargetsAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_executeServiceAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_wchar_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_detectDynInterfacesAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_uint32, ctypes.c_void_p, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_detectDynInterfacesExAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_uint32, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_copyFilesAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_void_p, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_copyDirectoriesAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_void_p, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_executeFlashSessionsConfigAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_void_p, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_updateVehicleAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_void_p, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_executeServiceInDefaultSessionAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_wchar_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_copyPathAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_void_p, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_writeCodingFileAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_wchar_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_performVehicleUpdateAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.c_void_p, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_executeSequenceAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_wchar_p, ctypes.c_wchar_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
    "kel_performEcuConfigurationAsync": (ctypes.c_uint64, [ctypes.c_void_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.c_wchar_p, ctypes.POINTER(ctypes.c_void_p), CALLBACK, ctypes.c_void_p]),
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
    "release_ParameterInput_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ServiceInput_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ServiceResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ResponseResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_RequestResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_UnlockResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ServiceInfo_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ResponseInfo_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ParameterInfo_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ConstraintInfo_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ScaleConstraintInfo_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_UnitInfo_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ParameterInfoConfig_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_KelEvent_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_EventReport_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_FileFilter_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_TargetConfig_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ProjectConfig_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ProjectDetails_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_DbFileInfo_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_SystemInfo_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_SystemProperty_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_TarnApiConfig_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ServerConfig_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_Oauth2Config_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_MoxConfig_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_TcpInfo_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_StatusInfo_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_TransmissionInfo_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ProcessInfo_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ProcessEntry_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ProcessThread_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ProcessMemory_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_GlobalProtocolParameterSet_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_GlobalProtocolParameter_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_LoadDatabaseResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_InterfaceInformation_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ResourceInformation_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_InterfaceInformationItem_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ScanInterfaceResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_DynInterfaceDetection_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ModuleDyn_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_DeviceInfo_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_PhysicalLinksOnModule_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_PhysicalLink_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_InterfaceConfiguration_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_InterfaceConfigurationEntry_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_InterfaceProvider_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_DoIPParameter_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_WLanSignalData_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_SupportedInterface_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_MonitoringItem_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_MonitoringItemDetail_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_PduMonitoringItem_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_PduMonitoringItemDetail_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_FileInfo_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_DirectoryInfo_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_FileCopyResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_DirectoryCopyResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_DirectoryCopyItem_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_PathCopyResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_PathCopyItem_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_FileReferenceResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_FileCopyConfig_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_DirectoryCopyConfig_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_PathCopyConfig_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_UserInfo_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_LogInOutConfig_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_TarnApiServerConfig_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_ServerSettings_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_FlashSessionInfo_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_FlashSessionResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_FlashSessionsConfig_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_CodingStringResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_CodingFileResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_QuickTestResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_EcuConfigurationResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_EcuOrderEntry_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_VehicleUpdateConfig_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_VehicleUpdateResult_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_UpdatePackageInfo_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_VehicleReportConfig_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_VehicleData_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_UploadReportConfiguration_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
    "release_VehicleInformation_array": (None, [ctypes.c_void_p, ctypes.c_uint64]),
}
