# Generated from the interface description by tools/generate.py. Do not edit.
"""The stream form of every record for py_call: results arrive with length-prefixed
strings and a presence byte before every record; inputs go with NUL-terminated strings,
a presence byte before every record and bit sets as one 32-bit value."""

from __future__ import annotations

import builtins
import struct
from typing import Optional, Sequence

from .records import ClearDtcResult, CodingFileResult, CodingStringResult, ConstraintInfo, DbFileInfo, DeviceInfo, DirectoryCopyConfig, DirectoryCopyItem, DirectoryCopyResult, DirectoryInfo, DoIPParameter, DtcReadConfig, DtcResult, DynInterfaceDetection, EcuConfigurationResult, EcuOrderEntry, EventReport, FileCopyConfig, FileCopyResult, FileFilter, FileInfo, FileReferenceResult, FlashSessionInfo, FlashSessionResult, FlashSessionsConfig, GlobalProtocolParameter, GlobalProtocolParameterSet, InterfaceConfiguration, InterfaceConfigurationEntry, InterfaceInformation, InterfaceInformationItem, InterfaceProvider, KelError, KelEvent, LoadDatabaseResult, LogInOutConfig, ModuleDyn, MonitoringItem, MonitoringItemDetail, MoxConfig, MvciServerError, NamedItem, NegativeResponse, Oauth2Config, ParameterInfo, ParameterInfoConfig, ParameterInput, ParameterResult, PathCopyConfig, PathCopyItem, PathCopyResult, PduMonitoringItem, PduMonitoringItemDetail, PhysicalLink, PhysicalLinksOnModule, ProcessEntry, ProcessInfo, ProcessMemory, ProcessThread, ProjectConfig, ProjectDetails, QuickTestResult, ReadDataResult, ReadDtcResult, RequestResult, ResourceInformation, ResponseInfo, ResponseResult, ScaleConstraintInfo, ScanInterfaceResult, ServerConfig, ServerSettings, ServiceInfo, ServiceInput, ServiceResult, SpecialDataGroup, StatusInfo, SupportedInterface, SystemInfo, SystemProperty, Target, TargetConfig, TargetFilter, TargetStatus, TarnApiConfig, TarnApiServerConfig, TcpInfo, TransmissionInfo, UnitInfo, UnlockResult, UpdatePackageInfo, UploadReportConfiguration, UserInfo, VariantIdentResult, VehicleData, VehicleInformation, VehicleReportConfig, VehicleUpdateConfig, VehicleUpdateResult, WLanSignalData
from .enums import DtcStatus, EventKind, FlashStatus, ServiceStatus, TargetResultStatus

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
    """Input strings travel NUL-terminated, so a NUL inside cannot travel. An unpaired
    surrogate has no UTF-8 form: U+FFFD takes its place, as in the engine and the library."""
    try:
        data = text.encode()
    except UnicodeEncodeError:
        data = "".join("\ufffd" if "\ud800" <= c <= "\udfff" else c for c in text).encode()
    if b"\0" in data:
        raise ValueError(f"a text with a NUL character cannot be passed: {text!r}")
    o += data
    o.append(0)


def write_texts(o: bytearray, texts: Sequence[str], parameter: str = "texts") -> None:
    """A str is a sequence of strings too, one per character: refused, as is any element
    that is not a str, with the parameter's name."""
    if isinstance(texts, (str, builtins.bytes)):
        raise TypeError(f"{parameter} must be a sequence of str, not a single {type(texts).__name__}: "
                        f"write [{texts!r}]")
    o += _U32.pack(len(texts))
    for i, text in enumerate(texts):
        if not isinstance(text, str):
            raise TypeError(f"{parameter}[{i}] must be a str, not {type(text).__name__}")
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
_S_Q_read = struct.Struct("<Q").unpack_from
_S_Q_write = struct.Struct("<Q").pack
_S_b_read = struct.Struct("<?").unpack_from
_S_b_write = struct.Struct("<?").pack
_S_bi_read = struct.Struct("<?i").unpack_from
_S_bi_write = struct.Struct("<?i").pack
_S_8I_read = struct.Struct("<8I").unpack_from
_S_8I_write = struct.Struct("<8I").pack
_S_7I_read = struct.Struct("<7I").unpack_from
_S_7I_write = struct.Struct("<7I").pack
_S_QbQb_read = struct.Struct("<Q?Q?").unpack_from
_S_QbQb_write = struct.Struct("<Q?Q?").pack
_S_ii_read = struct.Struct("<ii").unpack_from
_S_ii_write = struct.Struct("<ii").pack
_S_bI_read = struct.Struct("<?I").unpack_from
_S_bI_write = struct.Struct("<?I").pack
_S_I_read = struct.Struct("<I").unpack_from
_S_I_write = struct.Struct("<I").pack
_S_II_read = struct.Struct("<II").unpack_from
_S_II_write = struct.Struct("<II").pack
_S_4b_read = struct.Struct("<4?").unpack_from
_S_4b_write = struct.Struct("<4?").pack
_S_Qb_read = struct.Struct("<Q?").unpack_from
_S_Qb_write = struct.Struct("<Q?").pack
_S_IbI_read = struct.Struct("<I?I").unpack_from
_S_IbI_write = struct.Struct("<I?I").pack
_S_ibbi_read = struct.Struct("<i??i").unpack_from
_S_ibbi_write = struct.Struct("<i??i").pack
_S_IIIbIH_read = struct.Struct("<III?IH").unpack_from
_S_IIIbIH_write = struct.Struct("<III?IH").pack
_S_Ib_read = struct.Struct("<I?").unpack_from
_S_Ib_write = struct.Struct("<I?").pack
_S_bbbIbbb_read = struct.Struct("<???I???").unpack_from
_S_bbbIbbb_write = struct.Struct("<???I???").pack
_S_BBBIII_read = struct.Struct("<BBBIII").unpack_from
_S_BBBIII_write = struct.Struct("<BBBIII").pack
_S_QQQQQIQQ_read = struct.Struct("<QQQQQIQQ").unpack_from
_S_QQQQQIQQ_write = struct.Struct("<QQQQQIQQ").pack
_S_QQQQ_read = struct.Struct("<QQQQ").unpack_from
_S_QQQQ_write = struct.Struct("<QQQQ").pack
_S_bb_read = struct.Struct("<??").unpack_from
_S_bb_write = struct.Struct("<??").pack
_S_IIb_read = struct.Struct("<II?").unpack_from
_S_IIb_write = struct.Struct("<II?").pack
_S_IbQ_read = struct.Struct("<I?Q").unpack_from
_S_IbQ_write = struct.Struct("<I?Q").pack
_S_bQIQQQ_read = struct.Struct("<?QIQQQ").unpack_from
_S_bQIQQQ_write = struct.Struct("<?QIQQQ").pack
_S_IIIIIQIIIIH_read = struct.Struct("<IIIIIQIIIIH").unpack_from
_S_IIIIIQIIIIH_write = struct.Struct("<IIIIIQIIIIH").pack
_S_QIbbbI_read = struct.Struct("<QI???I").unpack_from
_S_QIbbbI_write = struct.Struct("<QI???I").pack
_S_IIQ_read = struct.Struct("<IIQ").unpack_from
_S_IIQ_write = struct.Struct("<IIQ").pack
_S_H_read = struct.Struct("<H").unpack_from
_S_H_write = struct.Struct("<H").pack
_S_bIII_read = struct.Struct("<?III").unpack_from
_S_bIII_write = struct.Struct("<?III").pack
_S_QII_read = struct.Struct("<QII").unpack_from
_S_QII_write = struct.Struct("<QII").pack
_S_QQII_read = struct.Struct("<QQII").unpack_from
_S_QQII_write = struct.Struct("<QQII").pack
_S_iI_read = struct.Struct("<iI").unpack_from
_S_iI_write = struct.Struct("<iI").pack
_S_Ibb_read = struct.Struct("<I??").unpack_from
_S_Ibb_write = struct.Struct("<I??").pack
_S_bbI_read = struct.Struct("<??I").unpack_from
_S_bbI_write = struct.Struct("<??I").pack
_S_IIII_read = struct.Struct("<IIII").unpack_from
_S_IIII_write = struct.Struct("<IIII").pack
_S_IiI_read = struct.Struct("<IiI").unpack_from
_S_IiI_write = struct.Struct("<IiI").pack


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
    return NegativeResponse(code=v_code, name=v_text, service_id=v_value1, value2=v_value2, bytes=v_bytes), p


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
    return NamedItem(name=v_item_text1, item_text2=v_item_text2, item_text3=v_item_text3, item_text4=v_item_text4), p


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
    return ParameterResult(name=v_item_text1, description=v_item_text2, codec=v_item_text3, item_text4=v_item_text4, value=v_text1, unit=v_text2, child_count=v_value1, children=v_children, text3=v_text3, error=v_error, text4=v_text4, byte_position=v_value2, data=v_data, data_length=v_value3, flag=v_flag, value4=v_value4), p


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
    return ClearDtcResult(status=TargetResultStatus(v_status), target=v_target, error=v_error), p


def read_DtcReadConfig(b: bytes, p: int) -> tuple[Optional[DtcReadConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value, v_flag1, v_flag2, v_flag3 = _S_iBBB_read(b, p)
    p += 7
    return DtcReadConfig(status_mask=v_value, with_snapshots=v_flag1, with_extended_data=v_flag2, with_special_data=v_flag3), p


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
    return ReadDtcResult(status=TargetResultStatus(v_status), target=v_target, error=v_error, dtcs=v_dtcs, dtc_total=v_value), p


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
    return DtcResult(code=v_code, display_code=v_text1, description=v_text2, status=DtcStatus(v_value1), snapshots=v_parameters1, extended_data=v_parameters2, ecu=v_text3, symptom=v_text4, special_data_groups=v_special_data_groups, severity=v_value2), p


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
    return VariantIdentResult(target=v_target, status=TargetResultStatus(v_status), error=v_error, variant=v_variant), p


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
    return ReadDataResult(target=v_target, status=TargetResultStatus(v_status), variant=v_text, error=v_error, parameters=v_parameters), p


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
    return Target(name=v_item_text1, description=v_item_text2, variant=v_item_text3, item_text4=v_item_text4, address=v_value1, protocol=v_text1, bus=v_text2, items=v_items, aliases=v_names, part_number=v_text3, software_version=v_text4, responds=v_value2, hardware_version=v_text5), p


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
    return TargetStatus(target=v_target, state=v_text, error=v_error, counts=v_values, variant=v_text2), p


def read_TargetFilter(b: bytes, p: int) -> tuple[Optional[TargetFilter], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_pattern = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_flag, v_value = _S_Bi_read(b, p)
    p += 5
    return TargetFilter(pattern=v_pattern, exclude=v_flag, tag=v_value), p


def read_ParameterInput(b: bytes, p: int) -> tuple[Optional[ParameterInput], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_children: list[Optional[ParameterInput]] = []
    for _ in range(n):
        e_v_children, p = read_ParameterInput(b, p)
        v_children.append(e_v_children)
    (n,) = _u32_read(b, p)
    v_value = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return ParameterInput(name=v_name, children=v_children, value=v_value), p


def read_ServiceInput(b: bytes, p: int) -> tuple[Optional[ServiceInput], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    p += 4
    v_parameters: list[Optional[ParameterInput]] = []
    for _ in range(n):
        e_v_parameters, p = read_ParameterInput(b, p)
        v_parameters.append(e_v_parameters)
    (n,) = _u32_read(b, p)
    v_service = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_data = b[p + 4 : p + 4 + n]
    p += 4 + n
    v_value, = _S_Q_read(b, p)
    p += 8
    return ServiceInput(parameters=v_parameters, service=v_service, data=v_data, value=v_value), p


def read_ServiceResult(b: bytes, p: int) -> tuple[Optional[ServiceResult], int]:
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
    p += 4
    v_responses: list[Optional[ResponseResult]] = []
    for _ in range(n):
        e_v_responses, p = read_ResponseResult(b, p)
        v_responses.append(e_v_responses)
    v_status, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_error, p = read_KelError(b, p)
    v_request, p = read_RequestResult(b, p)
    v_value1, = _S_i_read(b, p)
    p += 4
    return ServiceResult(service=v_item_text1, target=v_item_text2, description=v_item_text3, session=v_item_text4, responses=v_responses, status=ServiceStatus(v_status), outcome=v_text1, error=v_error, request=v_request, service_id=v_value1), p


def read_ResponseResult(b: bytes, p: int) -> tuple[Optional[ResponseResult], int]:
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
    v_flag, = _S_b_read(b, p)
    p += 1
    v_error, p = read_KelError(b, p)
    (n,) = _u32_read(b, p)
    v_data = b[p + 4 : p + 4 + n]
    p += 4 + n
    v_value1, v_value2 = _S_QQ_read(b, p)
    p += 16
    (n,) = _u32_read(b, p)
    p += 4
    v_parameters: list[Optional[ParameterResult]] = []
    for _ in range(n):
        e_v_parameters, p = read_ParameterResult(b, p)
        v_parameters.append(e_v_parameters)
    return ResponseResult(kind=v_item_text1, target=v_item_text2, item_text3=v_item_text3, item_text4=v_item_text4, positive=v_flag, error=v_error, data=v_data, time=v_value1, nrc=v_value2, parameters=v_parameters), p


def read_RequestResult(b: bytes, p: int) -> tuple[Optional[RequestResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_error, p = read_KelError(b, p)
    (n,) = _u32_read(b, p)
    v_data = b[p + 4 : p + 4 + n]
    p += 4 + n
    v_value1, v_value2 = _S_QQ_read(b, p)
    p += 16
    (n,) = _u32_read(b, p)
    p += 4
    v_parameters: list[Optional[ParameterResult]] = []
    for _ in range(n):
        e_v_parameters, p = read_ParameterResult(b, p)
        v_parameters.append(e_v_parameters)
    return RequestResult(error=v_error, data=v_data, time=v_value1, value2=v_value2, parameters=v_parameters), p


def read_UnlockResult(b: bytes, p: int) -> tuple[Optional[UnlockResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value, = _S_Q_read(b, p)
    p += 8
    (n,) = _u32_read(b, p)
    p += 4
    v_services: list[Optional[ServiceResult]] = []
    for _ in range(n):
        e_v_services, p = read_ServiceResult(b, p)
        v_services.append(e_v_services)
    return UnlockResult(unlock=v_value, services=v_services), p


def read_ServiceInfo(b: bytes, p: int) -> tuple[Optional[ServiceInfo], int]:
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
    v_flag, = _S_b_read(b, p)
    p += 1
    (n,) = _u32_read(b, p)
    p += 4
    v_responses: list[Optional[ResponseInfo]] = []
    for _ in range(n):
        e_v_responses, p = read_ResponseInfo(b, p)
        v_responses.append(e_v_responses)
    (n,) = _u32_read(b, p)
    p += 4
    v_parameters: list[Optional[ParameterInfo]] = []
    for _ in range(n):
        e_v_parameters, p = read_ParameterInfo(b, p)
        v_parameters.append(e_v_parameters)
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_items: list[Optional[NamedItem]] = []
    for _ in range(n):
        e_v_items, p = read_NamedItem(b, p)
        v_items.append(e_v_items)
    v_error, p = read_KelError(b, p)
    v_values = list(_S_5I_read(b, p))
    p += 20
    return ServiceInfo(name=v_item_text1, description=v_item_text2, service_id=v_item_text3, target=v_item_text4, available=v_flag, responses=v_responses, parameters=v_parameters, uds_service=v_text1, sessions=v_items, error=v_error, numbers=v_values), p


def read_ResponseInfo(b: bytes, p: int) -> tuple[Optional[ResponseInfo], int]:
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
    v_status, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    p += 4
    v_parameters: list[Optional[ParameterInfo]] = []
    for _ in range(n):
        e_v_parameters, p = read_ParameterInfo(b, p)
        v_parameters.append(e_v_parameters)
    return ResponseInfo(kind=v_item_text1, first_byte=v_item_text2, item_text3=v_item_text3, item_text4=v_item_text4, status=v_status, parameters=v_parameters), p


def read_ParameterInfo(b: bytes, p: int) -> tuple[Optional[ParameterInfo], int]:
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
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value1, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_children: list[Optional[ParameterInfo]] = []
    for _ in range(n):
        e_v_children, p = read_ParameterInfo(b, p)
        v_children.append(e_v_children)
    (n,) = _u32_read(b, p)
    v_text5 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_names, p = read_texts(b, p)
    v_flag1, v_value2 = _S_bi_read(b, p)
    p += 5
    v_error, p = read_KelError(b, p)
    v_flag2, = _S_b_read(b, p)
    p += 1
    v_values = list(_S_8I_read(b, p))
    p += 32
    v_flag3, = _S_b_read(b, p)
    p += 1
    v_constraint1, p = read_ConstraintInfo(b, p)
    v_constraint2, p = read_ConstraintInfo(b, p)
    (n,) = _u32_read(b, p)
    v_text6 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text7 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_flag4, = _S_b_read(b, p)
    p += 1
    v_unit, p = read_UnitInfo(b, p)
    return ParameterInfo(name=v_item_text1, description=v_item_text2, codec=v_item_text3, item_text4=v_item_text4, default_value=v_text1, unit_text=v_text2, data_type=v_text3, byte_position=v_value1, path=v_text4, children=v_children, scaling=v_text5, choices=v_names, constant=v_flag1, byte_length=v_value2, error=v_error, required=v_flag2, numbers=v_values, structure=v_flag3, valid_values=v_constraint1, raw_range=v_constraint2, minimum=v_text6, maximum=v_text7, repeated=v_flag4, unit=v_unit), p


def read_ConstraintInfo(b: bytes, p: int) -> tuple[Optional[ConstraintInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_flag, = _S_b_read(b, p)
    p += 1
    (n,) = _u32_read(b, p)
    p += 4
    v_scales: list[Optional[ScaleConstraintInfo]] = []
    for _ in range(n):
        e_v_scales, p = read_ScaleConstraintInfo(b, p)
        v_scales.append(e_v_scales)
    return ConstraintInfo(kind=v_text1, scale=v_text2, present=v_flag, scales=v_scales), p


def read_ScaleConstraintInfo(b: bytes, p: int) -> tuple[Optional[ScaleConstraintInfo], int]:
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
    v_flag, v_value = _S_bi_read(b, p)
    p += 5
    return ScaleConstraintInfo(name=v_item_text1, item_text2=v_item_text2, item_text3=v_item_text3, item_text4=v_item_text4, lower=v_text1, upper=v_text2, inclusive=v_flag, raw_value=v_value), p


def read_UnitInfo(b: bytes, p: int) -> tuple[Optional[UnitInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_values = list(_S_7I_read(b, p))
    p += 28
    v_value1, v_flag1, v_value2, v_flag2 = _S_QbQb_read(b, p)
    p += 18
    return UnitInfo(exponents=v_values, factor_bits=v_value1, known=v_flag1, offset_bits=v_value2, has_offset=v_flag2), p


def read_ParameterInfoConfig(b: bytes, p: int) -> tuple[Optional[ParameterInfoConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return ParameterInfoConfig(target=v_text1, service=v_text2, in_response=v_value, path=v_text3, text4=v_text4), p


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
    return KelEvent(name=v_name, kind=EventKind(v_kind), code=v_code, message=v_text, error=v_error, detail=v_detail), p


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


def read_FileFilter(b: bytes, p: int) -> tuple[Optional[FileFilter], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_pattern = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_flag, v_value = _S_bI_read(b, p)
    p += 5
    return FileFilter(pattern=v_pattern, exclude=v_flag, value=v_value), p


def read_TargetConfig(b: bytes, p: int) -> tuple[Optional[TargetConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return TargetConfig(value=v_value, text1=v_text1, text2=v_text2), p


def read_ProjectConfig(b: bytes, p: int) -> tuple[Optional[ProjectConfig], int]:
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
    p += 4
    v_filters1: list[Optional[FileFilter]] = []
    for _ in range(n):
        e_v_filters1, p = read_FileFilter(b, p)
        v_filters1.append(e_v_filters1)
    v_value0, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    p += 4
    v_targets: list[Optional[TargetConfig]] = []
    for _ in range(n):
        e_v_targets, p = read_TargetConfig(b, p)
        v_targets.append(e_v_targets)
    (n,) = _u32_read(b, p)
    p += 4
    v_filters2: list[Optional[FileFilter]] = []
    for _ in range(n):
        e_v_filters2, p = read_FilterPattern(b, p)
        v_filters2.append(e_v_filters2)
    v_strings1, p = read_texts(b, p)
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value1, = _S_I_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_strings2, p = read_texts(b, p)
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value2, v_value3 = _S_II_read(b, p)
    p += 8
    v_flags = list(_S_4b_read(b, p))
    p += 4
    return ProjectConfig(name=v_item_text1, item_text2=v_item_text2, item_text3=v_item_text3, item_text4=v_item_text4, filters1=v_filters1, value0=v_value0, targets=v_targets, filters2=v_filters2, strings1=v_strings1, text1=v_text1, value1=v_value1, text2=v_text2, strings2=v_strings2, text3=v_text3, value2=v_value2, value3=v_value3, flags=v_flags), p


def read_ProjectDetails(b: bytes, p: int) -> tuple[Optional[ProjectDetails], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    p += 4
    v_db_files1: list[Optional[DbFileInfo]] = []
    for _ in range(n):
        e_v_db_files1, p = read_DbFileInfo(b, p)
        v_db_files1.append(e_v_db_files1)
    (n,) = _u32_read(b, p)
    p += 4
    v_db_files2: list[Optional[DbFileInfo]] = []
    for _ in range(n):
        e_v_db_files2, p = read_DbFileInfo(b, p)
        v_db_files2.append(e_v_db_files2)
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value1, = _S_I_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value2, = _S_I_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    p += 4
    v_users: list[Optional[UserInfo]] = []
    for _ in range(n):
        e_v_users, p = read_UserInfo(b, p)
        v_users.append(e_v_users)
    return ProjectDetails(database_files=v_db_files1, loaded_database_files=v_db_files2, name=v_text1, format=v_value1, folder=v_text2, selected=v_value2, users=v_users), p


def read_DbFileInfo(b: bytes, p: int) -> tuple[Optional[DbFileInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_path = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_size, v_loaded = _S_Qb_read(b, p)
    p += 9
    v_error, p = read_KelError(b, p)
    return DbFileInfo(name=v_name, path=v_path, size=v_size, loaded=v_loaded, error=v_error), p


def read_SystemInfo(b: bytes, p: int) -> tuple[Optional[SystemInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, v_value2 = _S_II_read(b, p)
    p += 8
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value3, = _S_I_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return SystemInfo(processors=v_value1, page_size=v_value2, system=v_text1, pointer_bits=v_value3, release=v_text2, host=v_text3, architecture=v_text4), p


def read_SystemProperty(b: bytes, p: int) -> tuple[Optional[SystemProperty], int]:
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
    v_value1, = _S_I_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    p += 4
    v_children: list[Optional[SystemProperty]] = []
    for _ in range(n):
        e_v_children, p = read_SystemProperty(b, p)
        v_children.append(e_v_children)
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_error, p = read_KelError(b, p)
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value2, = _S_I_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_data = b[p + 4 : p + 4 + n]
    p += 4 + n
    v_value3, v_flag, v_value4 = _S_IbI_read(b, p)
    p += 9
    return SystemProperty(name=v_item_text1, label=v_item_text2, item_text3=v_item_text3, unit=v_item_text4, value=v_text1, default_value=v_text2, value1=v_value1, children=v_children, text3=v_text3, error=v_error, text4=v_text4, value2=v_value2, data=v_data, value3=v_value3, changed=v_flag, value4=v_value4), p


def read_TarnApiConfig(b: bytes, p: int) -> tuple[Optional[TarnApiConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, v_flag1, v_flag2, v_value2 = _S_ibbi_read(b, p)
    p += 10
    v_server, p = read_ServerConfig(b, p)
    v_value3, v_value4, v_value5, v_flag3, v_value6, v_value7 = _S_IIIbIH_read(b, p)
    p += 19
    (n,) = _u32_read(b, p)
    p += 4
    v_oauth2_configs: list[Optional[Oauth2Config]] = []
    for _ in range(n):
        e_v_oauth2_configs, p = read_Oauth2Config(b, p)
        v_oauth2_configs.append(e_v_oauth2_configs)
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return TarnApiConfig(value1=v_value1, flag1=v_flag1, flag2=v_flag2, value2=v_value2, server=v_server, value3=v_value3, value4=v_value4, value5=v_value5, flag3=v_flag3, value6=v_value6, value7=v_value7, oauth2_configs=v_oauth2_configs, text=v_text), p


def read_ServerConfig(b: bytes, p: int) -> tuple[Optional[ServerConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_address = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_port, v_enabled = _S_Ib_read(b, p)
    p += 5
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return ServerConfig(address=v_address, port=v_port, enabled=v_enabled, name=v_name), p


def read_Oauth2Config(b: bytes, p: int) -> tuple[Optional[Oauth2Config], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_issuer = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_client_id = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_scopes, p = read_texts(b, p)
    (n,) = _u32_read(b, p)
    v_redirect_url = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return Oauth2Config(issuer=v_issuer, client_id=v_client_id, scopes=v_scopes, redirect_url=v_redirect_url), p


def read_MoxConfig(b: bytes, p: int) -> tuple[Optional[MoxConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text5 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_flag1, v_flag2, v_flag3, v_value, v_flag4, v_flag5, v_flag6 = _S_bbbIbbb_read(b, p)
    p += 10
    (n,) = _u32_read(b, p)
    v_text6 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text7 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_tcp, p = read_TcpInfo(b, p)
    return MoxConfig(text1=v_text1, text2=v_text2, text3=v_text3, text4=v_text4, text5=v_text5, flag1=v_flag1, flag2=v_flag2, flag3=v_flag3, value=v_value, flag4=v_flag4, flag5=v_flag5, flag6=v_flag6, text6=v_text6, text7=v_text7, tcp=v_tcp), p


def read_TcpInfo(b: bytes, p: int) -> tuple[Optional[TcpInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, v_value2, v_value3, v_value4, v_value5, v_value6 = _S_BBBIII_read(b, p)
    p += 15
    return TcpInfo(value1=v_value1, value2=v_value2, value3=v_value3, value4=v_value4, value5=v_value5, value6=v_value6), p


def read_StatusInfo(b: bytes, p: int) -> tuple[Optional[StatusInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, v_value2, v_value3, v_value4, v_value5, v_value6, v_value7, v_value8 = _S_QQQQQIQQ_read(b, p)
    p += 60
    return StatusInfo(calls=v_value1, failed_calls=v_value2, uptime_ms=v_value3, call_microseconds=v_value4, database_files_loaded=v_value5, projects=v_value6, status_text_changes=v_value7, started_ms=v_value8), p


def read_TransmissionInfo(b: bytes, p: int) -> tuple[Optional[TransmissionInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, v_value2, v_value3, v_value4 = _S_QQQQ_read(b, p)
    p += 32
    return TransmissionInfo(requests=v_value1, responses=v_value2, request_bytes=v_value3, response_bytes=v_value4), p


def read_ProcessInfo(b: bytes, p: int) -> tuple[Optional[ProcessInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    p += 4
    v_processes: list[Optional[ProcessEntry]] = []
    for _ in range(n):
        e_v_processes, p = read_ProcessEntry(b, p)
        v_processes.append(e_v_processes)
    v_flag1, v_flag2 = _S_bb_read(b, p)
    p += 2
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return ProcessInfo(processes=v_processes, is64_bit=v_flag1, initialized=v_flag2, status_text=v_text), p


def read_ProcessEntry(b: bytes, p: int) -> tuple[Optional[ProcessEntry], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value, = _S_I_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    p += 4
    v_items1: list[Optional[ProcessThread]] = []
    for _ in range(n):
        e_v_items1, p = read_ProcessThread(b, p)
        v_items1.append(e_v_items1)
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_items2: list[Optional[ProcessMemory]] = []
    for _ in range(n):
        e_v_items2, p = read_ProcessMemory(b, p)
        v_items2.append(e_v_items2)
    return ProcessEntry(pid=v_value, threads=v_items1, executable=v_text, memory=v_items2), p


def read_ProcessThread(b: bytes, p: int) -> tuple[Optional[ProcessThread], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_id, = _S_I_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return ProcessThread(id=v_id, name=v_name), p


def read_ProcessMemory(b: bytes, p: int) -> tuple[Optional[ProcessMemory], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_bytes, = _S_Q_read(b, p)
    p += 8
    return ProcessMemory(name=v_name, bytes=v_bytes), p


def read_GlobalProtocolParameterSet(b: bytes, p: int) -> tuple[Optional[GlobalProtocolParameterSet], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_parameters: list[Optional[GlobalProtocolParameter]] = []
    for _ in range(n):
        e_v_parameters, p = read_GlobalProtocolParameter(b, p)
        v_parameters.append(e_v_parameters)
    return GlobalProtocolParameterSet(name=v_text1, protocol=v_text2, text3=v_text3, text4=v_text4, parameters=v_parameters), p


def read_GlobalProtocolParameter(b: bytes, p: int) -> tuple[Optional[GlobalProtocolParameter], int]:
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
    v_value = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_default_value = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_infos: list[Optional[ParameterInfo]] = []
    for _ in range(n):
        e_v_infos, p = read_ParameterInfo(b, p)
        v_infos.append(e_v_infos)
    v_choices, p = read_texts(b, p)
    v_error, p = read_KelError(b, p)
    (n,) = _u32_read(b, p)
    p += 4
    v_constraints: list[Optional[ConstraintInfo]] = []
    for _ in range(n):
        e_v_constraints, p = read_ConstraintInfo(b, p)
        v_constraints.append(e_v_constraints)
    v_tcp, p = read_TcpInfo(b, p)
    v_value1, v_flag = _S_Ib_read(b, p)
    p += 5
    return GlobalProtocolParameter(name=v_item_text1, item_text2=v_item_text2, item_text3=v_item_text3, item_text4=v_item_text4, value=v_value, default_value=v_default_value, infos=v_infos, choices=v_choices, error=v_error, constraints=v_constraints, tcp=v_tcp, value1=v_value1, flag=v_flag), p


def read_LoadDatabaseResult(b: bytes, p: int) -> tuple[Optional[LoadDatabaseResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_flag, = _S_b_read(b, p)
    p += 1
    v_error, p = read_KelError(b, p)
    return LoadDatabaseResult(file=v_text, loaded=v_flag, error=v_error), p


def read_InterfaceInformation(b: bytes, p: int) -> tuple[Optional[InterfaceInformation], int]:
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
    p += 4
    v_resources: list[Optional[ResourceInformation]] = []
    for _ in range(n):
        e_v_resources, p = read_ResourceInformation(b, p)
        v_resources.append(e_v_resources)
    v_flag1, v_flag2 = _S_bb_read(b, p)
    p += 2
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_flag3, = _S_b_read(b, p)
    p += 1
    (n,) = _u32_read(b, p)
    p += 4
    v_items: list[Optional[InterfaceInformationItem]] = []
    for _ in range(n):
        e_v_items, p = read_InterfaceInformationItem(b, p)
        v_items.append(e_v_items)
    v_value, = _S_Q_read(b, p)
    p += 8
    return InterfaceInformation(name=v_item_text1, long_name=v_item_text2, vendor=v_item_text3, description=v_item_text4, resources=v_resources, connected=v_flag1, dynamic=v_flag2, kind=v_text1, address=v_text2, plugged_in=v_flag3, vendor_modules=v_items, handle=v_value), p


def read_ResourceInformation(b: bytes, p: int) -> tuple[Optional[ResourceInformation], int]:
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
    v_id, v_pin, v_in_use = _S_IIb_read(b, p)
    p += 9
    return ResourceInformation(name=v_item_text1, description=v_item_text2, protocol=v_item_text3, physical_link=v_item_text4, id=v_id, pin=v_pin, in_use=v_in_use), p


def read_InterfaceInformationItem(b: bytes, p: int) -> tuple[Optional[InterfaceInformationItem], int]:
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
    return InterfaceInformationItem(name=v_item_text1, vendor=v_item_text2, version=v_item_text3, description=v_item_text4), p


def read_ScanInterfaceResult(b: bytes, p: int) -> tuple[Optional[ScanInterfaceResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_interface_info, p = read_InterfaceInformation(b, p)
    v_error, p = read_KelError(b, p)
    return ScanInterfaceResult(interface_info=v_interface_info, error=v_error), p


def read_DynInterfaceDetection(b: bytes, p: int) -> tuple[Optional[DynInterfaceDetection], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name_pattern = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_kind = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_only_free, = _S_b_read(b, p)
    p += 1
    return DynInterfaceDetection(name_pattern=v_name_pattern, kind=v_kind, only_free=v_only_free), p


def read_ModuleDyn(b: bytes, p: int) -> tuple[Optional[ModuleDyn], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_long_name = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_vendor = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_kind = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_address = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_vendor_module, p = read_InterfaceInformationItem(b, p)
    v_flag1, = _S_b_read(b, p)
    p += 1
    (n,) = _u32_read(b, p)
    v_serial_number = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_firmware = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_network = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_resources: list[Optional[ResourceInformation]] = []
    for _ in range(n):
        e_v_resources, p = read_ResourceInformation(b, p)
        v_resources.append(e_v_resources)
    v_port, v_flag2, v_handle = _S_IbQ_read(b, p)
    p += 13
    return ModuleDyn(name=v_name, long_name=v_long_name, vendor=v_vendor, kind=v_kind, address=v_address, vendor_module=v_vendor_module, connected=v_flag1, serial_number=v_serial_number, firmware=v_firmware, network=v_network, resources=v_resources, port=v_port, exclusive=v_flag2, handle=v_handle), p


def read_DeviceInfo(b: bytes, p: int) -> tuple[Optional[DeviceInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value1, v_value2 = _S_II_read(b, p)
    p += 8
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value3, = _S_I_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text5 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value4, v_value5 = _S_II_read(b, p)
    p += 8
    (n,) = _u32_read(b, p)
    v_text6 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_protocols, p = read_texts(b, p)
    (n,) = _u32_read(b, p)
    v_text7 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_modules, p = read_texts(b, p)
    (n,) = _u32_read(b, p)
    v_text8 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_flag, v_handle, v_value6, v_value8, v_value9, v_value10 = _S_bQIQQQ_read(b, p)
    p += 37
    return DeviceInfo(name=v_text1, vendor_id=v_value1, product_id=v_value2, vendor=v_text2, serial_number=v_text3, resources=v_value3, firmware=v_text4, kind=v_text5, ethernet_pin_state=v_value4, links=v_value5, address=v_text6, protocols=v_protocols, long_name=v_text7, modules=v_modules, description=v_text8, connected=v_flag, handle=v_handle, dynamic=v_value6, value8=v_value8, value9=v_value9, value10=v_value10), p


def read_PhysicalLinksOnModule(b: bytes, p: int) -> tuple[Optional[PhysicalLinksOnModule], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_module = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_links: list[Optional[PhysicalLink]] = []
    for _ in range(n):
        e_v_links, p = read_PhysicalLink(b, p)
        v_links.append(e_v_links)
    return PhysicalLinksOnModule(module=v_module, links=v_links), p


def read_PhysicalLink(b: bytes, p: int) -> tuple[Optional[PhysicalLink], int]:
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
    v_baudrate, v_enabled = _S_Ib_read(b, p)
    p += 5
    return PhysicalLink(name=v_item_text1, type=v_item_text2, pins=v_item_text3, description=v_item_text4, baudrate=v_baudrate, enabled=v_enabled), p


def read_InterfaceConfiguration(b: bytes, p: int) -> tuple[Optional[InterfaceConfiguration], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    p += 4
    v_entries: list[Optional[InterfaceConfigurationEntry]] = []
    for _ in range(n):
        e_v_entries, p = read_InterfaceConfigurationEntry(b, p)
        v_entries.append(e_v_entries)
    return InterfaceConfiguration(entries=v_entries), p


def read_InterfaceConfigurationEntry(b: bytes, p: int) -> tuple[Optional[InterfaceConfigurationEntry], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text5 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value, v_flag = _S_Ib_read(b, p)
    p += 5
    (n,) = _u32_read(b, p)
    p += 4
    v_items: list[Optional[ResourceInformation]] = []
    for _ in range(n):
        e_v_items, p = read_ResourceInformation(b, p)
        v_items.append(e_v_items)
    return InterfaceConfigurationEntry(name=v_text1, long_name=v_text2, vendor=v_text3, kind=v_text4, address=v_text5, ethernet_pin_state=v_value, enabled=v_flag, resources=v_items), p


def read_InterfaceProvider(b: bytes, p: int) -> tuple[Optional[InterfaceProvider], int]:
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
    v_text = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value, v_flag = _S_Ib_read(b, p)
    p += 5
    return InterfaceProvider(name=v_item_text1, description=v_item_text2, vendor=v_item_text3, version=v_item_text4, library=v_text, priority=v_value, enabled=v_flag), p


def read_DoIPParameter(b: bytes, p: int) -> tuple[Optional[DoIPParameter], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, v_value2 = _S_II_read(b, p)
    p += 8
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value3, = _S_I_read(b, p)
    p += 4
    v_strings, p = read_texts(b, p)
    return DoIPParameter(discovery_port=v_value1, announcement_wait_ms=v_value2, broadcast_address=v_text, tcp_port=v_value3, adapters=v_strings), p


def read_WLanSignalData(b: bytes, p: int) -> tuple[Optional[WLanSignalData], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, v_value2, v_value3, v_value4, v_value5, v_value6, v_value7, v_value8, v_value9, v_value10, v_value11 = _S_IIIIIQIIIIH_read(b, p)
    p += 46
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return WLanSignalData(quality=v_value1, signal_dbm_below_zero=v_value2, noise_dbm_below_zero=v_value3, channel=v_value4, frequency_mhz=v_value5, bytes_received=v_value6, transmit_rate_mbits=v_value7, receive_rate_mbits=v_value8, retransmissions=v_value9, lost_beacons=v_value10, channel_width_mhz=v_value11, ssid=v_text), p


def read_SupportedInterface(b: bytes, p: int) -> tuple[Optional[SupportedInterface], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_names, p = read_texts(b, p)
    v_value, = _S_I_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return SupportedInterface(kind=v_text1, description=v_text2, protocols=v_names, max_interfaces=v_value, vendor_module=v_text3), p


def read_MonitoringItem(b: bytes, p: int) -> tuple[Optional[MonitoringItem], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_data = b[p + 4 : p + 4 + n]
    p += 4 + n
    v_value1, v_value2, v_flag1, v_flag2, v_flag3, v_value3 = _S_QIbbbI_read(b, p)
    p += 19
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value4, = _S_I_read(b, p)
    p += 4
    v_detail, p = read_MonitoringItemDetail(b, p)
    return MonitoringItem(unit=v_text1, data=v_data, time=v_value1, number=v_value2, answered=v_flag1, positive=v_flag2, replayed=v_flag3, nrc=v_value3, source=v_text2, service_id=v_value4, detail=v_detail), p


def read_MonitoringItemDetail(b: bytes, p: int) -> tuple[Optional[MonitoringItemDetail], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_response = b[p + 4 : p + 4 + n]
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return MonitoringItemDetail(response=v_response, summary=v_text), p


def read_PduMonitoringItem(b: bytes, p: int) -> tuple[Optional[PduMonitoringItem], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, = _S_I_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_data = b[p + 4 : p + 4 + n]
    p += 4 + n
    v_detail, p = read_PduMonitoringItemDetail(b, p)
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value2, = _S_Q_read(b, p)
    p += 8
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return PduMonitoringItem(direction=v_value1, data=v_data, detail=v_detail, unit=v_text1, direction_text=v_text2, time=v_value2, hex=v_text3), p


def read_PduMonitoringItemDetail(b: bytes, p: int) -> tuple[Optional[PduMonitoringItemDetail], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_sequence, v_exchange = _S_QQ_read(b, p)
    p += 16
    return PduMonitoringItemDetail(sequence=v_sequence, exchange=v_exchange), p


def read_FileInfo(b: bytes, p: int) -> tuple[Optional[FileInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_error, p = read_KelError(b, p)
    v_flag, v_value1 = _S_bI_read(b, p)
    p += 5
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value2, v_value3 = _S_QQ_read(b, p)
    p += 16
    return FileInfo(name=v_name, error=v_error, read_only=v_flag, attributes=v_value1, path=v_text1, modified=v_text2, size=v_value2, modified_ms=v_value3), p


def read_DirectoryInfo(b: bytes, p: int) -> tuple[Optional[DirectoryInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_error, p = read_KelError(b, p)
    v_flag, v_value1 = _S_bI_read(b, p)
    p += 5
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_files: list[Optional[FileInfo]] = []
    for _ in range(n):
        e_v_files, p = read_FileInfo(b, p)
        v_files.append(e_v_files)
    (n,) = _u32_read(b, p)
    p += 4
    v_directories: list[Optional[DirectoryInfo]] = []
    for _ in range(n):
        e_v_directories, p = read_DirectoryInfo(b, p)
        v_directories.append(e_v_directories)
    v_flag2, = _S_b_read(b, p)
    p += 1
    return DirectoryInfo(name=v_name, error=v_error, read_only=v_flag, attributes=v_value1, path=v_text1, modified=v_text2, files=v_files, directories=v_directories, contents_read=v_flag2), p


def read_FileCopyResult(b: bytes, p: int) -> tuple[Optional[FileCopyResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_error, p = read_KelError(b, p)
    v_file, p = read_FileInfo(b, p)
    v_value2, = _S_i_read(b, p)
    p += 4
    return FileCopyResult(failed=v_value1, source=v_text, error=v_error, file=v_file, index=v_value2), p


def read_DirectoryCopyResult(b: bytes, p: int) -> tuple[Optional[DirectoryCopyResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_error, p = read_KelError(b, p)
    v_directory, p = read_DirectoryCopyItem(b, p)
    return DirectoryCopyResult(outcome=v_value1, source=v_text, error=v_error, directory=v_directory), p


def read_DirectoryCopyItem(b: bytes, p: int) -> tuple[Optional[DirectoryCopyItem], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_source = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_files, v_directories, v_bytes = _S_IIQ_read(b, p)
    p += 16
    (n,) = _u32_read(b, p)
    p += 4
    v_failures: list[Optional[FileCopyResult]] = []
    for _ in range(n):
        e_v_failures, p = read_FileCopyResult(b, p)
        v_failures.append(e_v_failures)
    return DirectoryCopyItem(source=v_source, target=v_target, files=v_files, directories=v_directories, bytes=v_bytes, failures=v_failures), p


def read_PathCopyResult(b: bytes, p: int) -> tuple[Optional[PathCopyResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, = _S_i_read(b, p)
    p += 4
    v_error, p = read_KelError(b, p)
    v_value2, = _S_i_read(b, p)
    p += 4
    v_item, p = read_PathCopyItem(b, p)
    return PathCopyResult(failed=v_value1, error=v_error, is_directory=v_value2, item=v_item), p


def read_PathCopyItem(b: bytes, p: int) -> tuple[Optional[PathCopyItem], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_source = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_size, = _S_Q_read(b, p)
    p += 8
    return PathCopyItem(source=v_source, target=v_target, size=v_size), p


def read_FileReferenceResult(b: bytes, p: int) -> tuple[Optional[FileReferenceResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_references, p = read_texts(b, p)
    v_error, p = read_KelError(b, p)
    return FileReferenceResult(references=v_references, error=v_error), p


def read_FileCopyConfig(b: bytes, p: int) -> tuple[Optional[FileCopyConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_files, p = read_texts(b, p)
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_overwrite, = _S_b_read(b, p)
    p += 1
    return FileCopyConfig(files=v_files, target=v_target, overwrite=v_overwrite), p


def read_DirectoryCopyConfig(b: bytes, p: int) -> tuple[Optional[DirectoryCopyConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_directories, p = read_texts(b, p)
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_overwrite, v_recursive = _S_bb_read(b, p)
    p += 2
    (n,) = _u32_read(b, p)
    v_pattern = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return DirectoryCopyConfig(directories=v_directories, target=v_target, overwrite=v_overwrite, recursive=v_recursive, pattern=v_pattern), p


def read_PathCopyConfig(b: bytes, p: int) -> tuple[Optional[PathCopyConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_source = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_overwrite, = _S_b_read(b, p)
    p += 1
    return PathCopyConfig(source=v_source, target=v_target, overwrite=v_overwrite), p


def read_UserInfo(b: bytes, p: int) -> tuple[Optional[UserInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value, = _S_I_read(b, p)
    p += 4
    return UserInfo(name=v_name, role_name=v_text, role=v_value), p


def read_LogInOutConfig(b: bytes, p: int) -> tuple[Optional[LogInOutConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_user = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_password = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    return LogInOutConfig(user=v_user, password=v_password), p


def read_TarnApiServerConfig(b: bytes, p: int) -> tuple[Optional[TarnApiServerConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    p += 4
    v_users: list[Optional[UserInfo]] = []
    for _ in range(n):
        e_v_users, p = read_UserInfo(b, p)
        v_users.append(e_v_users)
    v_flag, v_value1 = _S_bI_read(b, p)
    p += 5
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_filters: list[Optional[FileFilter]] = []
    for _ in range(n):
        e_v_filters, p = read_FileFilter(b, p)
        v_filters.append(e_v_filters)
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_users2: list[Optional[UserInfo]] = []
    for _ in range(n):
        e_v_users2, p = read_UserInfo(b, p)
        v_users2.append(e_v_users2)
    v_value2, = _S_H_read(b, p)
    p += 2
    return TarnApiServerConfig(users=v_users, user_management=v_flag, connections=v_value1, address=v_text1, sovd_address=v_text2, filters=v_filters, identity_provider=v_text3, login_address=v_text4, logged_in=v_users2, login_attempts=v_value2), p


def read_ServerSettings(b: bytes, p: int) -> tuple[Optional[ServerSettings], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_flag, v_value1, v_value2, v_value3 = _S_bIII_read(b, p)
    p += 13
    return ServerSettings(running=v_flag, connections=v_value1, users=v_value2, sovd_running=v_value3), p


def read_FlashSessionInfo(b: bytes, p: int) -> tuple[Optional[FlashSessionInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_description = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_version = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_size, v_duration, v_level = _S_QII_read(b, p)
    p += 16
    return FlashSessionInfo(name=v_name, target=v_target, description=v_description, version=v_version, size=v_size, duration=v_duration, level=v_level), p


def read_FlashSessionResult(b: bytes, p: int) -> tuple[Optional[FlashSessionResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_status, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_version_before = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_version_after = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_size, v_transferred, v_progress, v_duration = _S_QQII_read(b, p)
    p += 24
    v_error, p = read_KelError(b, p)
    return FlashSessionResult(name=v_name, target=v_target, status=FlashStatus(v_status), version_before=v_version_before, version_after=v_version_after, size=v_size, transferred=v_transferred, progress=v_progress, duration=v_duration, error=v_error), p


def read_FlashSessionsConfig(b: bytes, p: int) -> tuple[Optional[FlashSessionsConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_sessions, p = read_texts(b, p)
    v_block_length, v_stop_on_error = _S_Ib_read(b, p)
    p += 5
    return FlashSessionsConfig(target=v_target, sessions=v_sessions, block_length=v_block_length, stop_on_error=v_stop_on_error), p


def read_CodingStringResult(b: bytes, p: int) -> tuple[Optional[CodingStringResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_status, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_identifier = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_coding = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_data = b[p + 4 : p + 4 + n]
    p += 4 + n
    v_error, p = read_KelError(b, p)
    return CodingStringResult(target=v_target, status=TargetResultStatus(v_status), identifier=v_identifier, coding=v_coding, data=v_data, error=v_error), p


def read_CodingFileResult(b: bytes, p: int) -> tuple[Optional[CodingFileResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_status, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_written = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_coding = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_data = b[p + 4 : p + 4 + n]
    p += 4 + n
    v_verified, = _S_b_read(b, p)
    p += 1
    v_error, p = read_KelError(b, p)
    return CodingFileResult(target=v_target, status=TargetResultStatus(v_status), written=v_written, coding=v_coding, data=v_data, verified=v_verified, error=v_error), p


def read_QuickTestResult(b: bytes, p: int) -> tuple[Optional[QuickTestResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_status, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_variant = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_identified, = _S_b_read(b, p)
    p += 1
    (n,) = _u32_read(b, p)
    p += 4
    v_dtcs: list[Optional[DtcResult]] = []
    for _ in range(n):
        e_v_dtcs, p = read_DtcResult(b, p)
        v_dtcs.append(e_v_dtcs)
    v_error, p = read_KelError(b, p)
    return QuickTestResult(target=v_target, status=TargetResultStatus(v_status), variant=v_variant, identified=v_identified, dtcs=v_dtcs, error=v_error), p


def read_EcuConfigurationResult(b: bytes, p: int) -> tuple[Optional[EcuConfigurationResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_configuration = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_status, v_written = _S_iI_read(b, p)
    p += 8
    v_error, p = read_KelError(b, p)
    return EcuConfigurationResult(target=v_target, configuration=v_configuration, status=TargetResultStatus(v_status), written=v_written, error=v_error), p


def read_EcuOrderEntry(b: bytes, p: int) -> tuple[Optional[EcuOrderEntry], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_bus = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_address, v_gateway, v_optional = _S_Ibb_read(b, p)
    p += 6
    return EcuOrderEntry(target=v_target, bus=v_bus, address=v_address, gateway=v_gateway, optional=v_optional), p


def read_VehicleUpdateConfig(b: bytes, p: int) -> tuple[Optional[VehicleUpdateConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_targets, p = read_texts(b, p)
    (n,) = _u32_read(b, p)
    p += 4
    v_packages: list[Optional[UpdatePackageInfo]] = []
    for _ in range(n):
        e_v_packages, p = read_UpdatePackageInfo(b, p)
        v_packages.append(e_v_packages)
    v_stop_on_error, v_force, v_block_length = _S_bbI_read(b, p)
    p += 6
    return VehicleUpdateConfig(targets=v_targets, packages=v_packages, stop_on_error=v_stop_on_error, force=v_force, block_length=v_block_length), p


def read_VehicleUpdateResult(b: bytes, p: int) -> tuple[Optional[VehicleUpdateResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_status, = _S_i_read(b, p)
    p += 4
    (n,) = _u32_read(b, p)
    v_package = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_version_before = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_version_after = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_position, v_progress, v_overall_progress, v_duration = _S_IIII_read(b, p)
    p += 16
    v_error, p = read_KelError(b, p)
    return VehicleUpdateResult(target=v_target, status=v_status, package=v_package, version_before=v_version_before, version_after=v_version_after, position=v_position, progress=v_progress, overall_progress=v_overall_progress, duration=v_duration, error=v_error), p


def read_UpdatePackageInfo(b: bytes, p: int) -> tuple[Optional[UpdatePackageInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_version = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_description = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_kind, = _S_I_read(b, p)
    p += 4
    v_targets, p = read_texts(b, p)
    v_size, = _S_Q_read(b, p)
    p += 8
    (n,) = _u32_read(b, p)
    v_checksum = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_location = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_state, = _S_i_read(b, p)
    p += 4
    return UpdatePackageInfo(name=v_name, version=v_version, description=v_description, kind=v_kind, targets=v_targets, size=v_size, checksum=v_checksum, location=v_location, state=v_state), p


def read_VehicleReportConfig(b: bytes, p: int) -> tuple[Optional[VehicleReportConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_title = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_comment = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_targets, p = read_texts(b, p)
    v_identification, v_dtcs = _S_bb_read(b, p)
    p += 2
    return VehicleReportConfig(name=v_name, title=v_title, comment=v_comment, targets=v_targets, identification=v_identification, dtcs=v_dtcs), p


def read_VehicleData(b: bytes, p: int) -> tuple[Optional[VehicleData], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_vin = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_model = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_variant = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_software_version = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_bus = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_address, v_status, v_dtc_count = _S_IiI_read(b, p)
    p += 12
    return VehicleData(vin=v_vin, model=v_model, target=v_target, variant=v_variant, software_version=v_software_version, bus=v_bus, address=v_address, status=v_status, dtc_count=v_dtc_count), p


def read_UploadReportConfiguration(b: bytes, p: int) -> tuple[Optional[UploadReportConfiguration], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_report_file = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_folder = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_vin = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_user = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_comment = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_overwrite, v_with_twin = _S_bb_read(b, p)
    p += 2
    return UploadReportConfiguration(report_file=v_report_file, folder=v_folder, name=v_name, vin=v_vin, user=v_user, comment=v_comment, overwrite=v_overwrite, with_twin=v_with_twin), p


def read_VehicleInformation(b: bytes, p: int) -> tuple[Optional[VehicleInformation], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_vin = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_model = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_model_year, v_mileage = _S_II_read(b, p)
    p += 8
    (n,) = _u32_read(b, p)
    v_license_plate = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_equipment, p = read_texts(b, p)
    return VehicleInformation(vin=v_vin, model=v_model, model_year=v_model_year, mileage=v_mileage, license_plate=v_license_plate, equipment=v_equipment), p


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
    return ReadDtcResult(status=TargetResultStatus(v_status), target=v_target, error=v_error, dtcs=v_dtcs), p


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
    return NamedItem(name=v_item_text1, item_text2=v_item_text2, item_text3=v_item_text3, item_text4=v_item_text4), p


def read_FilterPattern(b: bytes, p: int) -> tuple[Optional[FileFilter], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_pattern = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_flag, = _S_b_read(b, p)
    p += 1
    return FileFilter(pattern=v_pattern, exclude=v_flag), p


def read_InterfaceProviderDyn(b: bytes, p: int) -> tuple[Optional[InterfaceProvider], int]:
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
    v_text = b[p + 4 : p + 4 + n].decode()
    p += 4 + n
    v_value, v_flag = _S_Ib_read(b, p)
    p += 5
    return InterfaceProvider(name=v_item_text1, description=v_item_text2, vendor=v_item_text3, version=v_item_text4, library=v_text, priority=v_value, enabled=v_flag), p


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
    write_text(o, v.name)
    o += _S_QQ_write(v.service_id, v.value2)
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
    write_text(o, v.name)
    write_text(o, v.item_text2)
    write_text(o, v.item_text3)
    write_text(o, v.item_text4)


def write_ParameterResult(o: bytearray, v: Optional[ParameterResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.description)
    write_text(o, v.codec)
    write_text(o, v.item_text4)
    write_text(o, v.value)
    write_text(o, v.unit)
    o += _S_i_write(v.child_count)
    o += _U32.pack(len(v.children))
    for e_children in v.children:
        write_ParameterResult(o, e_children)
    write_text(o, v.text3)
    write_KelError(o, v.error)
    write_text(o, v.text4)
    o += _S_i_write(v.byte_position)
    write_bytes(o, v.data)
    o += _S_IBi_write(v.data_length, v.flag, v.value4)


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
    o += _S_iBBB_write(v.status_mask, v.with_snapshots, v.with_extended_data, v.with_special_data)


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
    o += _S_i_write(v.dtc_total)


def write_DtcResult(o: bytearray, v: Optional[DtcResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_i_write(v.code)
    write_text(o, v.display_code)
    write_text(o, v.description)
    o += _S_i_write(v.status)
    o += _U32.pack(len(v.snapshots))
    for e_parameters1 in v.snapshots:
        write_ParameterResult(o, e_parameters1)
    o += _U32.pack(len(v.extended_data))
    for e_parameters2 in v.extended_data:
        write_ParameterResult(o, e_parameters2)
    write_text(o, v.ecu)
    write_text(o, v.symptom)
    o += _U32.pack(len(v.special_data_groups))
    for e_special_data_groups in v.special_data_groups:
        write_SpecialDataGroup(o, e_special_data_groups)
    o += _S_i_write(v.severity)


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
    write_text(o, v.variant)
    write_KelError(o, v.error)
    o += _U32.pack(len(v.parameters))
    for e_parameters in v.parameters:
        write_ParameterResult(o, e_parameters)


def write_Target(o: bytearray, v: Optional[Target]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.description)
    write_text(o, v.variant)
    write_text(o, v.item_text4)
    o += _S_i_write(v.address)
    write_text(o, v.protocol)
    write_text(o, v.bus)
    o += _U32.pack(len(v.items))
    for e_items in v.items:
        write_NamedItem(o, e_items)
    write_texts(o, v.aliases)
    write_text(o, v.part_number)
    write_text(o, v.software_version)
    o += _S_i_write(v.responds)
    write_text(o, v.hardware_version)


def write_TargetStatus(o: bytearray, v: Optional[TargetStatus]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.target)
    write_text(o, v.state)
    write_KelError(o, v.error)
    o += _S_5I_write(*v.counts)
    write_text(o, v.variant)


def write_TargetFilter(o: bytearray, v: Optional[TargetFilter]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.pattern)
    o += _S_Bi_write(v.exclude, v.tag)


def write_ParameterInput(o: bytearray, v: Optional[ParameterInput]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    o += _U32.pack(len(v.children))
    for e_children in v.children:
        write_ParameterInput(o, e_children)
    write_text(o, v.value)


def write_ServiceInput(o: bytearray, v: Optional[ServiceInput]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _U32.pack(len(v.parameters))
    for e_parameters in v.parameters:
        write_ParameterInput(o, e_parameters)
    write_text(o, v.service)
    write_bytes(o, v.data)
    o += _S_Q_write(v.value)


def write_ServiceResult(o: bytearray, v: Optional[ServiceResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.service)
    write_text(o, v.target)
    write_text(o, v.description)
    write_text(o, v.session)
    o += _U32.pack(len(v.responses))
    for e_responses in v.responses:
        write_ResponseResult(o, e_responses)
    o += _S_i_write(v.status)
    write_text(o, v.outcome)
    write_KelError(o, v.error)
    write_RequestResult(o, v.request)
    o += _S_i_write(v.service_id)


def write_ResponseResult(o: bytearray, v: Optional[ResponseResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.kind)
    write_text(o, v.target)
    write_text(o, v.item_text3)
    write_text(o, v.item_text4)
    o += _S_b_write(v.positive)
    write_KelError(o, v.error)
    write_bytes(o, v.data)
    o += _S_QQ_write(v.time, v.nrc)
    o += _U32.pack(len(v.parameters))
    for e_parameters in v.parameters:
        write_ParameterResult(o, e_parameters)


def write_RequestResult(o: bytearray, v: Optional[RequestResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_KelError(o, v.error)
    write_bytes(o, v.data)
    o += _S_QQ_write(v.time, v.value2)
    o += _U32.pack(len(v.parameters))
    for e_parameters in v.parameters:
        write_ParameterResult(o, e_parameters)


def write_UnlockResult(o: bytearray, v: Optional[UnlockResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_Q_write(v.unlock)
    o += _U32.pack(len(v.services))
    for e_services in v.services:
        write_ServiceResult(o, e_services)


def write_ServiceInfo(o: bytearray, v: Optional[ServiceInfo]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.description)
    write_text(o, v.service_id)
    write_text(o, v.target)
    o += _S_b_write(v.available)
    o += _U32.pack(len(v.responses))
    for e_responses in v.responses:
        write_ResponseInfo(o, e_responses)
    o += _U32.pack(len(v.parameters))
    for e_parameters in v.parameters:
        write_ParameterInfo(o, e_parameters)
    write_text(o, v.uds_service)
    o += _U32.pack(len(v.sessions))
    for e_items in v.sessions:
        write_NamedItem(o, e_items)
    write_KelError(o, v.error)
    o += _S_5I_write(*v.numbers)


def write_ResponseInfo(o: bytearray, v: Optional[ResponseInfo]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.kind)
    write_text(o, v.first_byte)
    write_text(o, v.item_text3)
    write_text(o, v.item_text4)
    o += _S_i_write(v.status)
    o += _U32.pack(len(v.parameters))
    for e_parameters in v.parameters:
        write_ParameterInfo(o, e_parameters)


def write_ParameterInfo(o: bytearray, v: Optional[ParameterInfo]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.description)
    write_text(o, v.codec)
    write_text(o, v.item_text4)
    write_text(o, v.default_value)
    write_text(o, v.unit_text)
    write_text(o, v.data_type)
    o += _S_i_write(v.byte_position)
    write_text(o, v.path)
    o += _U32.pack(len(v.children))
    for e_children in v.children:
        write_ParameterInfo(o, e_children)
    write_text(o, v.scaling)
    write_texts(o, v.choices)
    o += _S_bi_write(v.constant, v.byte_length)
    write_KelError(o, v.error)
    o += _S_b_write(v.required)
    o += _S_8I_write(*v.numbers)
    o += _S_b_write(v.structure)
    write_ConstraintInfo(o, v.valid_values)
    write_ConstraintInfo(o, v.raw_range)
    write_text(o, v.minimum)
    write_text(o, v.maximum)
    o += _S_b_write(v.repeated)
    write_UnitInfo(o, v.unit)


def write_ConstraintInfo(o: bytearray, v: Optional[ConstraintInfo]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.kind)
    write_text(o, v.scale)
    o += _S_b_write(v.present)
    o += _U32.pack(len(v.scales))
    for e_scales in v.scales:
        write_ScaleConstraintInfo(o, e_scales)


def write_ScaleConstraintInfo(o: bytearray, v: Optional[ScaleConstraintInfo]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.item_text2)
    write_text(o, v.item_text3)
    write_text(o, v.item_text4)
    write_text(o, v.lower)
    write_text(o, v.upper)
    o += _S_bi_write(v.inclusive, v.raw_value)


def write_UnitInfo(o: bytearray, v: Optional[UnitInfo]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_7I_write(*v.exponents)
    o += _S_QbQb_write(v.factor_bits, v.known, v.offset_bits, v.has_offset)


def write_ParameterInfoConfig(o: bytearray, v: Optional[ParameterInfoConfig]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.target)
    write_text(o, v.service)
    o += _S_i_write(v.in_response)
    write_text(o, v.path)
    write_text(o, v.text4)


def write_KelEvent(o: bytearray, v: Optional[KelEvent]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    o += _S_ii_write(v.kind, v.code)
    write_text(o, v.message)
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


def write_FileFilter(o: bytearray, v: Optional[FileFilter]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.pattern)
    o += _S_bI_write(v.exclude, v.value)


def write_TargetConfig(o: bytearray, v: Optional[TargetConfig]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_i_write(v.value)
    write_text(o, v.text1)
    write_text(o, v.text2)


def write_ProjectConfig(o: bytearray, v: Optional[ProjectConfig]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.item_text2)
    write_text(o, v.item_text3)
    write_text(o, v.item_text4)
    o += _U32.pack(len(v.filters1))
    for e_filters1 in v.filters1:
        write_FileFilter(o, e_filters1)
    o += _S_i_write(v.value0)
    o += _U32.pack(len(v.targets))
    for e_targets in v.targets:
        write_TargetConfig(o, e_targets)
    o += _U32.pack(len(v.filters2))
    for e_filters2 in v.filters2:
        write_FilterPattern(o, e_filters2)
    write_texts(o, v.strings1)
    write_text(o, v.text1)
    o += _S_I_write(v.value1)
    write_text(o, v.text2)
    write_texts(o, v.strings2)
    write_text(o, v.text3)
    o += _S_II_write(v.value2, v.value3)
    o += _S_4b_write(*v.flags)


def write_ProjectDetails(o: bytearray, v: Optional[ProjectDetails]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _U32.pack(len(v.database_files))
    for e_db_files1 in v.database_files:
        write_DbFileInfo(o, e_db_files1)
    o += _U32.pack(len(v.loaded_database_files))
    for e_db_files2 in v.loaded_database_files:
        write_DbFileInfo(o, e_db_files2)
    write_text(o, v.name)
    o += _S_I_write(v.format)
    write_text(o, v.folder)
    o += _S_I_write(v.selected)
    o += _U32.pack(len(v.users))
    for e_users in v.users:
        write_UserInfo(o, e_users)


def write_DbFileInfo(o: bytearray, v: Optional[DbFileInfo]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.path)
    o += _S_Qb_write(v.size, v.loaded)
    write_KelError(o, v.error)


def write_SystemInfo(o: bytearray, v: Optional[SystemInfo]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_II_write(v.processors, v.page_size)
    write_text(o, v.system)
    o += _S_I_write(v.pointer_bits)
    write_text(o, v.release)
    write_text(o, v.host)
    write_text(o, v.architecture)


def write_SystemProperty(o: bytearray, v: Optional[SystemProperty]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.label)
    write_text(o, v.item_text3)
    write_text(o, v.unit)
    write_text(o, v.value)
    write_text(o, v.default_value)
    o += _S_I_write(v.value1)
    o += _U32.pack(len(v.children))
    for e_children in v.children:
        write_SystemProperty(o, e_children)
    write_text(o, v.text3)
    write_KelError(o, v.error)
    write_text(o, v.text4)
    o += _S_I_write(v.value2)
    write_bytes(o, v.data)
    o += _S_IbI_write(v.value3, v.changed, v.value4)


def write_TarnApiConfig(o: bytearray, v: Optional[TarnApiConfig]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_ibbi_write(v.value1, v.flag1, v.flag2, v.value2)
    write_ServerConfig(o, v.server)
    o += _S_IIIbIH_write(v.value3, v.value4, v.value5, v.flag3, v.value6, v.value7)
    o += _U32.pack(len(v.oauth2_configs))
    for e_oauth2_configs in v.oauth2_configs:
        write_Oauth2Config(o, e_oauth2_configs)
    write_text(o, v.text)


def write_ServerConfig(o: bytearray, v: Optional[ServerConfig]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.address)
    o += _S_Ib_write(v.port, v.enabled)
    write_text(o, v.name)


def write_Oauth2Config(o: bytearray, v: Optional[Oauth2Config]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.issuer)
    write_text(o, v.client_id)
    write_texts(o, v.scopes)
    write_text(o, v.redirect_url)


def write_MoxConfig(o: bytearray, v: Optional[MoxConfig]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.text1)
    write_text(o, v.text2)
    write_text(o, v.text3)
    write_text(o, v.text4)
    write_text(o, v.text5)
    o += _S_bbbIbbb_write(v.flag1, v.flag2, v.flag3, v.value, v.flag4, v.flag5, v.flag6)
    write_text(o, v.text6)
    write_text(o, v.text7)
    write_TcpInfo(o, v.tcp)


def write_TcpInfo(o: bytearray, v: Optional[TcpInfo]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_BBBIII_write(v.value1, v.value2, v.value3, v.value4, v.value5, v.value6)


def write_StatusInfo(o: bytearray, v: Optional[StatusInfo]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_QQQQQIQQ_write(v.calls, v.failed_calls, v.uptime_ms, v.call_microseconds, v.database_files_loaded, v.projects, v.status_text_changes, v.started_ms)


def write_TransmissionInfo(o: bytearray, v: Optional[TransmissionInfo]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_QQQQ_write(v.requests, v.responses, v.request_bytes, v.response_bytes)


def write_ProcessInfo(o: bytearray, v: Optional[ProcessInfo]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _U32.pack(len(v.processes))
    for e_processes in v.processes:
        write_ProcessEntry(o, e_processes)
    o += _S_bb_write(v.is64_bit, v.initialized)
    write_text(o, v.status_text)


def write_ProcessEntry(o: bytearray, v: Optional[ProcessEntry]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_I_write(v.pid)
    o += _U32.pack(len(v.threads))
    for e_items1 in v.threads:
        write_ProcessThread(o, e_items1)
    write_text(o, v.executable)
    o += _U32.pack(len(v.memory))
    for e_items2 in v.memory:
        write_ProcessMemory(o, e_items2)


def write_ProcessThread(o: bytearray, v: Optional[ProcessThread]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_I_write(v.id)
    write_text(o, v.name)


def write_ProcessMemory(o: bytearray, v: Optional[ProcessMemory]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    o += _S_Q_write(v.bytes)


def write_GlobalProtocolParameterSet(o: bytearray, v: Optional[GlobalProtocolParameterSet]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.protocol)
    write_text(o, v.text3)
    write_text(o, v.text4)
    o += _U32.pack(len(v.parameters))
    for e_parameters in v.parameters:
        write_GlobalProtocolParameter(o, e_parameters)


def write_GlobalProtocolParameter(o: bytearray, v: Optional[GlobalProtocolParameter]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.item_text2)
    write_text(o, v.item_text3)
    write_text(o, v.item_text4)
    write_text(o, v.value)
    write_text(o, v.default_value)
    o += _U32.pack(len(v.infos))
    for e_infos in v.infos:
        write_ParameterInfo(o, e_infos)
    write_texts(o, v.choices)
    write_KelError(o, v.error)
    o += _U32.pack(len(v.constraints))
    for e_constraints in v.constraints:
        write_ConstraintInfo(o, e_constraints)
    write_TcpInfo(o, v.tcp)
    o += _S_Ib_write(v.value1, v.flag)


def write_LoadDatabaseResult(o: bytearray, v: Optional[LoadDatabaseResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.file)
    o += _S_b_write(v.loaded)
    write_KelError(o, v.error)


def write_InterfaceInformation(o: bytearray, v: Optional[InterfaceInformation]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.long_name)
    write_text(o, v.vendor)
    write_text(o, v.description)
    o += _U32.pack(len(v.resources))
    for e_resources in v.resources:
        write_ResourceInformation(o, e_resources)
    o += _S_bb_write(v.connected, v.dynamic)
    write_text(o, v.kind)
    write_text(o, v.address)
    o += _S_b_write(v.plugged_in)
    o += _U32.pack(len(v.vendor_modules))
    for e_items in v.vendor_modules:
        write_InterfaceInformationItem(o, e_items)
    o += _S_Q_write(v.handle)


def write_ResourceInformation(o: bytearray, v: Optional[ResourceInformation]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.description)
    write_text(o, v.protocol)
    write_text(o, v.physical_link)
    o += _S_IIb_write(v.id, v.pin, v.in_use)


def write_InterfaceInformationItem(o: bytearray, v: Optional[InterfaceInformationItem]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.vendor)
    write_text(o, v.version)
    write_text(o, v.description)


def write_ScanInterfaceResult(o: bytearray, v: Optional[ScanInterfaceResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_InterfaceInformation(o, v.interface_info)
    write_KelError(o, v.error)


def write_DynInterfaceDetection(o: bytearray, v: Optional[DynInterfaceDetection]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name_pattern)
    write_text(o, v.kind)
    o += _S_b_write(v.only_free)


def write_ModuleDyn(o: bytearray, v: Optional[ModuleDyn]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.long_name)
    write_text(o, v.vendor)
    write_text(o, v.kind)
    write_text(o, v.address)
    write_InterfaceInformationItem(o, v.vendor_module)
    o += _S_b_write(v.connected)
    write_text(o, v.serial_number)
    write_text(o, v.firmware)
    write_text(o, v.network)
    o += _U32.pack(len(v.resources))
    for e_resources in v.resources:
        write_ResourceInformation(o, e_resources)
    o += _S_IbQ_write(v.port, v.exclusive, v.handle)


def write_DeviceInfo(o: bytearray, v: Optional[DeviceInfo]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    o += _S_II_write(v.vendor_id, v.product_id)
    write_text(o, v.vendor)
    write_text(o, v.serial_number)
    o += _S_I_write(v.resources)
    write_text(o, v.firmware)
    write_text(o, v.kind)
    o += _S_II_write(v.ethernet_pin_state, v.links)
    write_text(o, v.address)
    write_texts(o, v.protocols)
    write_text(o, v.long_name)
    write_texts(o, v.modules)
    write_text(o, v.description)
    o += _S_bQIQQQ_write(v.connected, v.handle, v.dynamic, v.value8, v.value9, v.value10)


def write_PhysicalLinksOnModule(o: bytearray, v: Optional[PhysicalLinksOnModule]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.module)
    o += _U32.pack(len(v.links))
    for e_links in v.links:
        write_PhysicalLink(o, e_links)


def write_PhysicalLink(o: bytearray, v: Optional[PhysicalLink]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.type)
    write_text(o, v.pins)
    write_text(o, v.description)
    o += _S_Ib_write(v.baudrate, v.enabled)


def write_InterfaceConfiguration(o: bytearray, v: Optional[InterfaceConfiguration]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _U32.pack(len(v.entries))
    for e_entries in v.entries:
        write_InterfaceConfigurationEntry(o, e_entries)


def write_InterfaceConfigurationEntry(o: bytearray, v: Optional[InterfaceConfigurationEntry]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.long_name)
    write_text(o, v.vendor)
    write_text(o, v.kind)
    write_text(o, v.address)
    o += _S_Ib_write(v.ethernet_pin_state, v.enabled)
    o += _U32.pack(len(v.resources))
    for e_items in v.resources:
        write_ResourceInformation(o, e_items)


def write_InterfaceProvider(o: bytearray, v: Optional[InterfaceProvider]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.description)
    write_text(o, v.vendor)
    write_text(o, v.version)
    write_text(o, v.library)
    o += _S_Ib_write(v.priority, v.enabled)


def write_DoIPParameter(o: bytearray, v: Optional[DoIPParameter]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_II_write(v.discovery_port, v.announcement_wait_ms)
    write_text(o, v.broadcast_address)
    o += _S_I_write(v.tcp_port)
    write_texts(o, v.adapters)


def write_WLanSignalData(o: bytearray, v: Optional[WLanSignalData]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_IIIIIQIIIIH_write(v.quality, v.signal_dbm_below_zero, v.noise_dbm_below_zero, v.channel, v.frequency_mhz, v.bytes_received, v.transmit_rate_mbits, v.receive_rate_mbits, v.retransmissions, v.lost_beacons, v.channel_width_mhz)
    write_text(o, v.ssid)


def write_SupportedInterface(o: bytearray, v: Optional[SupportedInterface]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.kind)
    write_text(o, v.description)
    write_texts(o, v.protocols)
    o += _S_I_write(v.max_interfaces)
    write_text(o, v.vendor_module)


def write_MonitoringItem(o: bytearray, v: Optional[MonitoringItem]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.unit)
    write_bytes(o, v.data)
    o += _S_QIbbbI_write(v.time, v.number, v.answered, v.positive, v.replayed, v.nrc)
    write_text(o, v.source)
    o += _S_I_write(v.service_id)
    write_MonitoringItemDetail(o, v.detail)


def write_MonitoringItemDetail(o: bytearray, v: Optional[MonitoringItemDetail]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_bytes(o, v.response)
    write_text(o, v.summary)


def write_PduMonitoringItem(o: bytearray, v: Optional[PduMonitoringItem]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_I_write(v.direction)
    write_bytes(o, v.data)
    write_PduMonitoringItemDetail(o, v.detail)
    write_text(o, v.unit)
    write_text(o, v.direction_text)
    o += _S_Q_write(v.time)
    write_text(o, v.hex)


def write_PduMonitoringItemDetail(o: bytearray, v: Optional[PduMonitoringItemDetail]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_QQ_write(v.sequence, v.exchange)


def write_FileInfo(o: bytearray, v: Optional[FileInfo]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_KelError(o, v.error)
    o += _S_bI_write(v.read_only, v.attributes)
    write_text(o, v.path)
    write_text(o, v.modified)
    o += _S_QQ_write(v.size, v.modified_ms)


def write_DirectoryInfo(o: bytearray, v: Optional[DirectoryInfo]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_KelError(o, v.error)
    o += _S_bI_write(v.read_only, v.attributes)
    write_text(o, v.path)
    write_text(o, v.modified)
    o += _U32.pack(len(v.files))
    for e_files in v.files:
        write_FileInfo(o, e_files)
    o += _U32.pack(len(v.directories))
    for e_directories in v.directories:
        write_DirectoryInfo(o, e_directories)
    o += _S_b_write(v.contents_read)


def write_FileCopyResult(o: bytearray, v: Optional[FileCopyResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_i_write(v.failed)
    write_text(o, v.source)
    write_KelError(o, v.error)
    write_FileInfo(o, v.file)
    o += _S_i_write(v.index)


def write_DirectoryCopyResult(o: bytearray, v: Optional[DirectoryCopyResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_i_write(v.outcome)
    write_text(o, v.source)
    write_KelError(o, v.error)
    write_DirectoryCopyItem(o, v.directory)


def write_DirectoryCopyItem(o: bytearray, v: Optional[DirectoryCopyItem]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.source)
    write_text(o, v.target)
    o += _S_IIQ_write(v.files, v.directories, v.bytes)
    o += _U32.pack(len(v.failures))
    for e_failures in v.failures:
        write_FileCopyResult(o, e_failures)


def write_PathCopyResult(o: bytearray, v: Optional[PathCopyResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_i_write(v.failed)
    write_KelError(o, v.error)
    o += _S_i_write(v.is_directory)
    write_PathCopyItem(o, v.item)


def write_PathCopyItem(o: bytearray, v: Optional[PathCopyItem]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.source)
    write_text(o, v.target)
    o += _S_Q_write(v.size)


def write_FileReferenceResult(o: bytearray, v: Optional[FileReferenceResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_texts(o, v.references)
    write_KelError(o, v.error)


def write_FileCopyConfig(o: bytearray, v: Optional[FileCopyConfig]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_texts(o, v.files)
    write_text(o, v.target)
    o += _S_b_write(v.overwrite)


def write_DirectoryCopyConfig(o: bytearray, v: Optional[DirectoryCopyConfig]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_texts(o, v.directories)
    write_text(o, v.target)
    o += _S_bb_write(v.overwrite, v.recursive)
    write_text(o, v.pattern)


def write_PathCopyConfig(o: bytearray, v: Optional[PathCopyConfig]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.source)
    write_text(o, v.target)
    o += _S_b_write(v.overwrite)


def write_UserInfo(o: bytearray, v: Optional[UserInfo]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.role_name)
    o += _S_I_write(v.role)


def write_LogInOutConfig(o: bytearray, v: Optional[LogInOutConfig]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.user)
    write_text(o, v.password)


def write_TarnApiServerConfig(o: bytearray, v: Optional[TarnApiServerConfig]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _U32.pack(len(v.users))
    for e_users in v.users:
        write_UserInfo(o, e_users)
    o += _S_bI_write(v.user_management, v.connections)
    write_text(o, v.address)
    write_text(o, v.sovd_address)
    o += _U32.pack(len(v.filters))
    for e_filters in v.filters:
        write_FileFilter(o, e_filters)
    write_text(o, v.identity_provider)
    write_text(o, v.login_address)
    o += _U32.pack(len(v.logged_in))
    for e_users2 in v.logged_in:
        write_UserInfo(o, e_users2)
    o += _S_H_write(v.login_attempts)


def write_ServerSettings(o: bytearray, v: Optional[ServerSettings]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    o += _S_bIII_write(v.running, v.connections, v.users, v.sovd_running)


def write_FlashSessionInfo(o: bytearray, v: Optional[FlashSessionInfo]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.target)
    write_text(o, v.description)
    write_text(o, v.version)
    o += _S_QII_write(v.size, v.duration, v.level)


def write_FlashSessionResult(o: bytearray, v: Optional[FlashSessionResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.target)
    o += _S_i_write(v.status)
    write_text(o, v.version_before)
    write_text(o, v.version_after)
    o += _S_QQII_write(v.size, v.transferred, v.progress, v.duration)
    write_KelError(o, v.error)


def write_FlashSessionsConfig(o: bytearray, v: Optional[FlashSessionsConfig]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.target)
    write_texts(o, v.sessions)
    o += _S_Ib_write(v.block_length, v.stop_on_error)


def write_CodingStringResult(o: bytearray, v: Optional[CodingStringResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.target)
    o += _S_i_write(v.status)
    write_text(o, v.identifier)
    write_text(o, v.coding)
    write_bytes(o, v.data)
    write_KelError(o, v.error)


def write_CodingFileResult(o: bytearray, v: Optional[CodingFileResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.target)
    o += _S_i_write(v.status)
    write_text(o, v.written)
    write_text(o, v.coding)
    write_bytes(o, v.data)
    o += _S_b_write(v.verified)
    write_KelError(o, v.error)


def write_QuickTestResult(o: bytearray, v: Optional[QuickTestResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.target)
    o += _S_i_write(v.status)
    write_text(o, v.variant)
    o += _S_b_write(v.identified)
    o += _U32.pack(len(v.dtcs))
    for e_dtcs in v.dtcs:
        write_DtcResult(o, e_dtcs)
    write_KelError(o, v.error)


def write_EcuConfigurationResult(o: bytearray, v: Optional[EcuConfigurationResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.target)
    write_text(o, v.configuration)
    o += _S_iI_write(v.status, v.written)
    write_KelError(o, v.error)


def write_EcuOrderEntry(o: bytearray, v: Optional[EcuOrderEntry]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.target)
    write_text(o, v.bus)
    o += _S_Ibb_write(v.address, v.gateway, v.optional)


def write_VehicleUpdateConfig(o: bytearray, v: Optional[VehicleUpdateConfig]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_texts(o, v.targets)
    o += _U32.pack(len(v.packages))
    for e_packages in v.packages:
        write_UpdatePackageInfo(o, e_packages)
    o += _S_bbI_write(v.stop_on_error, v.force, v.block_length)


def write_VehicleUpdateResult(o: bytearray, v: Optional[VehicleUpdateResult]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.target)
    o += _S_i_write(v.status)
    write_text(o, v.package)
    write_text(o, v.version_before)
    write_text(o, v.version_after)
    o += _S_IIII_write(v.position, v.progress, v.overall_progress, v.duration)
    write_KelError(o, v.error)


def write_UpdatePackageInfo(o: bytearray, v: Optional[UpdatePackageInfo]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.version)
    write_text(o, v.description)
    o += _S_I_write(v.kind)
    write_texts(o, v.targets)
    o += _S_Q_write(v.size)
    write_text(o, v.checksum)
    write_text(o, v.location)
    o += _S_i_write(v.state)


def write_VehicleReportConfig(o: bytearray, v: Optional[VehicleReportConfig]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.title)
    write_text(o, v.comment)
    write_texts(o, v.targets)
    o += _S_bb_write(v.identification, v.dtcs)


def write_VehicleData(o: bytearray, v: Optional[VehicleData]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.vin)
    write_text(o, v.model)
    write_text(o, v.target)
    write_text(o, v.variant)
    write_text(o, v.software_version)
    write_text(o, v.bus)
    o += _S_IiI_write(v.address, v.status, v.dtc_count)


def write_UploadReportConfiguration(o: bytearray, v: Optional[UploadReportConfiguration]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.report_file)
    write_text(o, v.folder)
    write_text(o, v.name)
    write_text(o, v.vin)
    write_text(o, v.user)
    write_text(o, v.comment)
    o += _S_bb_write(v.overwrite, v.with_twin)


def write_VehicleInformation(o: bytearray, v: Optional[VehicleInformation]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.vin)
    write_text(o, v.model)
    o += _S_II_write(v.model_year, v.mileage)
    write_text(o, v.license_plate)
    write_texts(o, v.equipment)


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
    write_text(o, v.name)
    write_text(o, v.item_text2)
    write_text(o, v.item_text3)
    write_text(o, v.item_text4)


def write_FilterPattern(o: bytearray, v: Optional[FileFilter]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.pattern)
    o += _S_b_write(v.exclude)


def write_InterfaceProviderDyn(o: bytearray, v: Optional[InterfaceProvider]) -> None:
    if v is None:
        o.append(0)
        return
    o.append(1)
    write_text(o, v.name)
    write_text(o, v.description)
    write_text(o, v.vendor)
    write_text(o, v.version)
    write_text(o, v.library)
    o += _S_Ib_write(v.priority, v.enabled)
