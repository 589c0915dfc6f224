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
from .._stream import member_of, positional

_make_MvciServerError = positional(MvciServerError)
_make_NegativeResponse = positional(NegativeResponse)
_make_KelError = positional(KelError)
_make_NamedItem = positional(NamedItem)
_make_ParameterResult = positional(ParameterResult)
_make_ClearDtcResult = positional(ClearDtcResult)
_make_DtcReadConfig = positional(DtcReadConfig)
_make_ReadDtcResult = positional(ReadDtcResult)
_make_DtcResult = positional(DtcResult)
_make_SpecialDataGroup = positional(SpecialDataGroup)
_make_VariantIdentResult = positional(VariantIdentResult)
_make_ReadDataResult = positional(ReadDataResult)
_make_Target = positional(Target)
_make_TargetStatus = positional(TargetStatus)
_make_TargetFilter = positional(TargetFilter)
_make_ParameterInput = positional(ParameterInput)
_make_ServiceInput = positional(ServiceInput)
_make_ServiceResult = positional(ServiceResult)
_make_ResponseResult = positional(ResponseResult)
_make_RequestResult = positional(RequestResult)
_make_UnlockResult = positional(UnlockResult)
_make_ServiceInfo = positional(ServiceInfo)
_make_ResponseInfo = positional(ResponseInfo)
_make_ParameterInfo = positional(ParameterInfo)
_make_ConstraintInfo = positional(ConstraintInfo)
_make_ScaleConstraintInfo = positional(ScaleConstraintInfo)
_make_UnitInfo = positional(UnitInfo)
_make_ParameterInfoConfig = positional(ParameterInfoConfig)
_make_KelEvent = positional(KelEvent)
_make_EventReport = positional(EventReport)
_make_FileFilter = positional(FileFilter)
_make_TargetConfig = positional(TargetConfig)
_make_ProjectConfig = positional(ProjectConfig)
_make_ProjectDetails = positional(ProjectDetails)
_make_DbFileInfo = positional(DbFileInfo)
_make_SystemInfo = positional(SystemInfo)
_make_SystemProperty = positional(SystemProperty)
_make_TarnApiConfig = positional(TarnApiConfig)
_make_ServerConfig = positional(ServerConfig)
_make_Oauth2Config = positional(Oauth2Config)
_make_MoxConfig = positional(MoxConfig)
_make_TcpInfo = positional(TcpInfo)
_make_StatusInfo = positional(StatusInfo)
_make_TransmissionInfo = positional(TransmissionInfo)
_make_ProcessInfo = positional(ProcessInfo)
_make_ProcessEntry = positional(ProcessEntry)
_make_ProcessThread = positional(ProcessThread)
_make_ProcessMemory = positional(ProcessMemory)
_make_GlobalProtocolParameterSet = positional(GlobalProtocolParameterSet)
_make_GlobalProtocolParameter = positional(GlobalProtocolParameter)
_make_LoadDatabaseResult = positional(LoadDatabaseResult)
_make_InterfaceInformation = positional(InterfaceInformation)
_make_ResourceInformation = positional(ResourceInformation)
_make_InterfaceInformationItem = positional(InterfaceInformationItem)
_make_ScanInterfaceResult = positional(ScanInterfaceResult)
_make_DynInterfaceDetection = positional(DynInterfaceDetection)
_make_ModuleDyn = positional(ModuleDyn)
_make_DeviceInfo = positional(DeviceInfo)
_make_PhysicalLinksOnModule = positional(PhysicalLinksOnModule)
_make_PhysicalLink = positional(PhysicalLink)
_make_InterfaceConfiguration = positional(InterfaceConfiguration)
_make_InterfaceConfigurationEntry = positional(InterfaceConfigurationEntry)
_make_InterfaceProvider = positional(InterfaceProvider)
_make_DoIPParameter = positional(DoIPParameter)
_make_WLanSignalData = positional(WLanSignalData)
_make_SupportedInterface = positional(SupportedInterface)
_make_MonitoringItem = positional(MonitoringItem)
_make_MonitoringItemDetail = positional(MonitoringItemDetail)
_make_PduMonitoringItem = positional(PduMonitoringItem)
_make_PduMonitoringItemDetail = positional(PduMonitoringItemDetail)
_make_FileInfo = positional(FileInfo)
_make_DirectoryInfo = positional(DirectoryInfo)
_make_FileCopyResult = positional(FileCopyResult)
_make_DirectoryCopyResult = positional(DirectoryCopyResult)
_make_DirectoryCopyItem = positional(DirectoryCopyItem)
_make_PathCopyResult = positional(PathCopyResult)
_make_PathCopyItem = positional(PathCopyItem)
_make_FileReferenceResult = positional(FileReferenceResult)
_make_FileCopyConfig = positional(FileCopyConfig)
_make_DirectoryCopyConfig = positional(DirectoryCopyConfig)
_make_PathCopyConfig = positional(PathCopyConfig)
_make_UserInfo = positional(UserInfo)
_make_LogInOutConfig = positional(LogInOutConfig)
_make_TarnApiServerConfig = positional(TarnApiServerConfig)
_make_ServerSettings = positional(ServerSettings)
_make_FlashSessionInfo = positional(FlashSessionInfo)
_make_FlashSessionResult = positional(FlashSessionResult)
_make_FlashSessionsConfig = positional(FlashSessionsConfig)
_make_CodingStringResult = positional(CodingStringResult)
_make_CodingFileResult = positional(CodingFileResult)
_make_QuickTestResult = positional(QuickTestResult)
_make_EcuConfigurationResult = positional(EcuConfigurationResult)
_make_EcuOrderEntry = positional(EcuOrderEntry)
_make_VehicleUpdateConfig = positional(VehicleUpdateConfig)
_make_VehicleUpdateResult = positional(VehicleUpdateResult)
_make_UpdatePackageInfo = positional(UpdatePackageInfo)
_make_VehicleReportConfig = positional(VehicleReportConfig)
_make_VehicleData = positional(VehicleData)
_make_UploadReportConfiguration = positional(UploadReportConfiguration)
_make_VehicleInformation = positional(VehicleInformation)
_as_DtcStatus = member_of(DtcStatus)
_as_EventKind = member_of(EventKind)
_as_FlashStatus = member_of(FlashStatus)
_as_ServiceStatus = member_of(ServiceStatus)
_as_TargetResultStatus = member_of(TargetResultStatus)

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

_S_iI_read = struct.Struct("<iI").unpack_from
_S_iI_write = struct.Struct("<iI").pack
_S_i_read = struct.Struct("<i").unpack_from
_S_i_write = struct.Struct("<i").pack
_S_QQI_read = struct.Struct("<QQI").unpack_from
_S_QQI_write = struct.Struct("<QQI").pack
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
_S_QI_read = struct.Struct("<QI").unpack_from
_S_QI_write = struct.Struct("<QI").pack
_S_bI_read = struct.Struct("<?I").unpack_from
_S_bI_write = struct.Struct("<?I").pack
_S_bi_read = struct.Struct("<?i").unpack_from
_S_bi_write = struct.Struct("<?i").pack
_S_8I_read = struct.Struct("<8I").unpack_from
_S_8I_write = struct.Struct("<8I").pack
_S_7I_read = struct.Struct("<7I").unpack_from
_S_7I_write = struct.Struct("<7I").pack
_S_QbQb_read = struct.Struct("<Q?Q?").unpack_from
_S_QbQb_write = struct.Struct("<Q?Q?").pack
_S_iiI_read = struct.Struct("<iiI").unpack_from
_S_iiI_write = struct.Struct("<iiI").pack
_S_II_read = struct.Struct("<II").unpack_from
_S_II_write = struct.Struct("<II").pack
_S_4b_read = struct.Struct("<4?").unpack_from
_S_4b_write = struct.Struct("<4?").pack
_S_Qb_read = struct.Struct("<Q?").unpack_from
_S_Qb_write = struct.Struct("<Q?").pack
_S_III_read = struct.Struct("<III").unpack_from
_S_III_write = struct.Struct("<III").pack
_S_IbI_read = struct.Struct("<I?I").unpack_from
_S_IbI_write = struct.Struct("<I?I").pack
_S_ibbi_read = struct.Struct("<i??i").unpack_from
_S_ibbi_write = struct.Struct("<i??i").pack
_S_IIIbIHI_read = struct.Struct("<III?IHI").unpack_from
_S_IIIbIHI_write = struct.Struct("<III?IHI").pack
_S_bbbIbbbI_read = struct.Struct("<???I???I").unpack_from
_S_bbbIbbbI_write = struct.Struct("<???I???I").pack
_S_BBBIII_read = struct.Struct("<BBBIII").unpack_from
_S_BBBIII_write = struct.Struct("<BBBIII").pack
_S_QQQQQIQQ_read = struct.Struct("<QQQQQIQQ").unpack_from
_S_QQQQQIQQ_write = struct.Struct("<QQQQQIQQ").pack
_S_QQQQ_read = struct.Struct("<QQQQ").unpack_from
_S_QQQQ_write = struct.Struct("<QQQQ").pack
_S_bbI_read = struct.Struct("<??I").unpack_from
_S_bbI_write = struct.Struct("<??I").pack
_S_Ib_read = struct.Struct("<I?").unpack_from
_S_Ib_write = struct.Struct("<I?").pack
_S_IIb_read = struct.Struct("<II?").unpack_from
_S_IIb_write = struct.Struct("<II?").pack
_S_IbQ_read = struct.Struct("<I?Q").unpack_from
_S_IbQ_write = struct.Struct("<I?Q").pack
_S_bQIQQQ_read = struct.Struct("<?QIQQQ").unpack_from
_S_bQIQQQ_write = struct.Struct("<?QIQQQ").pack
_S_I_read = struct.Struct("<I").unpack_from
_S_I_write = struct.Struct("<I").pack
_S_IIIIIQIIIIHI_read = struct.Struct("<IIIIIQIIIIHI").unpack_from
_S_IIIIIQIIIIHI_write = struct.Struct("<IIIIIQIIIIHI").pack
_S_QIbbbII_read = struct.Struct("<QI???II").unpack_from
_S_QIbbbII_write = struct.Struct("<QI???II").pack
_S_QQ_read = struct.Struct("<QQ").unpack_from
_S_QQ_write = struct.Struct("<QQ").pack
_S_bII_read = struct.Struct("<?II").unpack_from
_S_bII_write = struct.Struct("<?II").pack
_S_IIQI_read = struct.Struct("<IIQI").unpack_from
_S_IIQI_write = struct.Struct("<IIQI").pack
_S_H_read = struct.Struct("<H").unpack_from
_S_H_write = struct.Struct("<H").pack
_S_bIII_read = struct.Struct("<?III").unpack_from
_S_bIII_write = struct.Struct("<?III").pack
_S_QII_read = struct.Struct("<QII").unpack_from
_S_QII_write = struct.Struct("<QII").pack
_S_QQII_read = struct.Struct("<QQII").unpack_from
_S_QQII_write = struct.Struct("<QQII").pack
_S_Ibb_read = struct.Struct("<I??").unpack_from
_S_Ibb_write = struct.Struct("<I??").pack
_S_IIII_read = struct.Struct("<IIII").unpack_from
_S_IIII_write = struct.Struct("<IIII").pack
_S_bb_read = struct.Struct("<??").unpack_from
_S_bb_write = struct.Struct("<??").pack
_S_IiI_read = struct.Struct("<IiI").unpack_from
_S_IiI_write = struct.Struct("<IiI").pack
_S_ii_read = struct.Struct("<ii").unpack_from
_S_ii_write = struct.Struct("<ii").pack
_S_IIIbIH_read = struct.Struct("<III?IH").unpack_from
_S_IIIbIH_write = struct.Struct("<III?IH").pack
_S_bbbIbbb_read = struct.Struct("<???I???").unpack_from
_S_bbbIbbb_write = struct.Struct("<???I???").pack
_S_IIIIIQIIIIH_read = struct.Struct("<IIIIIQIIIIH").unpack_from
_S_IIIIIQIIIIH_write = struct.Struct("<IIIIIQIIIIH").pack
_S_QIbbbI_read = struct.Struct("<QI???I").unpack_from
_S_QIbbbI_write = struct.Struct("<QI???I").pack
_S_IIQ_read = struct.Struct("<IIQ").unpack_from
_S_IIQ_write = struct.Struct("<IIQ").pack


def read_MvciServerError(b: bytes, p: int) -> tuple[Optional[MvciServerError], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_code, n = _S_iI_read(b, p)
    p += 8
    v_code_text = b[p : p + n].decode() if n else ""
    p += n
    v_vendor_code, n = _S_iI_read(b, p)
    p += 8
    v_vendor_code_text = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_extra_text = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_extra_code, = _S_i_read(b, p)
    p += 4
    return _make_MvciServerError(v_code, v_code_text, v_vendor_code, v_vendor_code_text, v_extra_text, v_extra_code), p


def read_NegativeResponse(b: bytes, p: int) -> tuple[Optional[NegativeResponse], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_code, n = _S_iI_read(b, p)
    p += 8
    v_text = b[p : p + n].decode() if n else ""
    p += n
    v_value1, v_value2, n = _S_QQI_read(b, p)
    p += 20
    v_bytes = b[p : p + n]
    p += n
    return _make_NegativeResponse(v_code, v_text, v_value1, v_value2, v_bytes), p


def read_KelError(b: bytes, p: int) -> tuple[Optional[KelError], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_code, n = _S_iI_read(b, p)
    p += 8
    v_message = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_details = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_sub_code, = _S_i_read(b, p)
    p += 4
    if b[p]:
        v_mvci_error, p = read_MvciServerError(b, p)
    else:
        v_mvci_error = None
        p += 1
    if b[p]:
        v_negative_response, p = read_NegativeResponse(b, p)
    else:
        v_negative_response = None
        p += 1
    return _make_KelError(v_code, v_message, v_details, v_sub_code, v_mvci_error, v_negative_response), p


def read_NamedItem(b: bytes, p: int) -> tuple[Optional[NamedItem], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    return _make_NamedItem(v_item_text1, v_item_text2, v_item_text3, v_item_text4), p


def read_ParameterResult(b: bytes, p: int) -> tuple[Optional[ParameterResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value1, n = _S_iI_read(b, p)
    p += 8
    v_children: list[Optional[ParameterResult]] = []
    for _ in range(n):
        e_v_children, p = read_ParameterResult(b, p)
        v_children.append(e_v_children)
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value2, n = _S_iI_read(b, p)
    p += 8
    v_data = b[p : p + n]
    p += n
    v_value3, v_flag, v_value4 = _S_IBi_read(b, p)
    p += 9
    return _make_ParameterResult(v_item_text1, v_item_text2, v_item_text3, v_item_text4, v_text1, v_text2, v_value1, v_children, v_text3, v_error, v_text4, v_value2, v_data, v_value3, v_flag, v_value4), p


def read_ClearDtcResult(b: bytes, p: int) -> tuple[Optional[ClearDtcResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_status, n = _S_iI_read(b, p)
    p += 8
    v_target = b[p : p + n].decode() if n else ""
    p += n
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    return _make_ClearDtcResult(_as_TargetResultStatus(v_status), v_target, v_error), p


def read_DtcReadConfig(b: bytes, p: int) -> tuple[Optional[DtcReadConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value, v_flag1, v_flag2, v_flag3 = _S_iBBB_read(b, p)
    p += 7
    return _make_DtcReadConfig(v_value, v_flag1, v_flag2, v_flag3), p


def read_ReadDtcResult(b: bytes, p: int) -> tuple[Optional[ReadDtcResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_status, n = _S_iI_read(b, p)
    p += 8
    v_target = b[p : p + n].decode() if n else ""
    p += n
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    (n,) = _u32_read(b, p)
    p += 4
    v_dtcs: list[Optional[DtcResult]] = []
    for _ in range(n):
        e_v_dtcs, p = read_DtcResult(b, p)
        v_dtcs.append(e_v_dtcs)
    v_value, = _S_i_read(b, p)
    p += 4
    return _make_ReadDtcResult(_as_TargetResultStatus(v_status), v_target, v_error, v_dtcs, v_value), p


def read_DtcResult(b: bytes, p: int) -> tuple[Optional[DtcResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_code, n = _S_iI_read(b, p)
    p += 8
    v_text1 = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value1, n = _S_iI_read(b, p)
    p += 8
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
    v_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_special_data_groups: list[Optional[SpecialDataGroup]] = []
    for _ in range(n):
        e_v_special_data_groups, p = read_SpecialDataGroup(b, p)
        v_special_data_groups.append(e_v_special_data_groups)
    v_value2, = _S_i_read(b, p)
    p += 4
    return _make_DtcResult(v_code, v_text1, v_text2, _as_DtcStatus(v_value1), v_parameters1, v_parameters2, v_text3, v_text4, v_special_data_groups, v_value2), p


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
    return _make_SpecialDataGroup(v_items), p


def read_VariantIdentResult(b: bytes, p: int) -> tuple[Optional[VariantIdentResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_status, = _S_i_read(b, p)
    p += 4
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    (n,) = _u32_read(b, p)
    v_variant = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    return _make_VariantIdentResult(v_target, _as_TargetResultStatus(v_status), v_error, v_variant), p


def read_ReadDataResult(b: bytes, p: int) -> tuple[Optional[ReadDataResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_status, n = _S_iI_read(b, p)
    p += 8
    v_text = b[p : p + n].decode() if n else ""
    p += n
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    (n,) = _u32_read(b, p)
    p += 4
    v_parameters: list[Optional[ParameterResult]] = []
    for _ in range(n):
        e_v_parameters, p = read_ParameterResult(b, p)
        v_parameters.append(e_v_parameters)
    return _make_ReadDataResult(v_target, _as_TargetResultStatus(v_status), v_text, v_error, v_parameters), p


def read_Target(b: bytes, p: int) -> tuple[Optional[Target], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value1, n = _S_iI_read(b, p)
    p += 8
    v_text1 = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_items: list[Optional[NamedItem]] = []
    for _ in range(n):
        e_v_items, p = read_NamedItem(b, p)
        v_items.append(e_v_items)
    v_names, p = read_texts(b, p)
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value2, n = _S_iI_read(b, p)
    p += 8
    v_text5 = b[p : p + n].decode() if n else ""
    p += n
    return _make_Target(v_item_text1, v_item_text2, v_item_text3, v_item_text4, v_value1, v_text1, v_text2, v_items, v_names, v_text3, v_text4, v_value2, v_text5), p


def read_TargetStatus(b: bytes, p: int) -> tuple[Optional[TargetStatus], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    v_values = list(_S_5I_read(b, p))
    p += 20
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    return _make_TargetStatus(v_target, v_text, v_error, v_values, v_text2), p


def read_TargetFilter(b: bytes, p: int) -> tuple[Optional[TargetFilter], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_pattern = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_flag, v_value = _S_Bi_read(b, p)
    p += 5
    return _make_TargetFilter(v_pattern, v_flag, v_value), p


def read_ParameterInput(b: bytes, p: int) -> tuple[Optional[ParameterInput], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_children: list[Optional[ParameterInput]] = []
    for _ in range(n):
        e_v_children, p = read_ParameterInput(b, p)
        v_children.append(e_v_children)
    (n,) = _u32_read(b, p)
    v_value = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    return _make_ParameterInput(v_name, v_children, v_value), p


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
    v_service = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_data = b[p + 4 : p + 4 + n]
    p += 4 + n
    v_value, = _S_Q_read(b, p)
    p += 8
    return _make_ServiceInput(v_parameters, v_service, v_data, v_value), p


def read_ServiceResult(b: bytes, p: int) -> tuple[Optional[ServiceResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_responses: list[Optional[ResponseResult]] = []
    for _ in range(n):
        e_v_responses, p = read_ResponseResult(b, p)
        v_responses.append(e_v_responses)
    v_status, n = _S_iI_read(b, p)
    p += 8
    v_text1 = b[p : p + n].decode() if n else ""
    p += n
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    if b[p]:
        v_request, p = read_RequestResult(b, p)
    else:
        v_request = None
        p += 1
    v_value1, = _S_i_read(b, p)
    p += 4
    return _make_ServiceResult(v_item_text1, v_item_text2, v_item_text3, v_item_text4, v_responses, _as_ServiceStatus(v_status), v_text1, v_error, v_request, v_value1), p


def read_ResponseResult(b: bytes, p: int) -> tuple[Optional[ResponseResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_flag, = _S_b_read(b, p)
    p += 1
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    (n,) = _u32_read(b, p)
    v_data = b[p + 4 : p + 4 + n]
    p += 4 + n
    v_value1, v_value2, n = _S_QQI_read(b, p)
    p += 20
    v_parameters: list[Optional[ParameterResult]] = []
    for _ in range(n):
        e_v_parameters, p = read_ParameterResult(b, p)
        v_parameters.append(e_v_parameters)
    return _make_ResponseResult(v_item_text1, v_item_text2, v_item_text3, v_item_text4, v_flag, v_error, v_data, v_value1, v_value2, v_parameters), p


def read_RequestResult(b: bytes, p: int) -> tuple[Optional[RequestResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    (n,) = _u32_read(b, p)
    v_data = b[p + 4 : p + 4 + n]
    p += 4 + n
    v_value1, v_value2, n = _S_QQI_read(b, p)
    p += 20
    v_parameters: list[Optional[ParameterResult]] = []
    for _ in range(n):
        e_v_parameters, p = read_ParameterResult(b, p)
        v_parameters.append(e_v_parameters)
    return _make_RequestResult(v_error, v_data, v_value1, v_value2, v_parameters), p


def read_UnlockResult(b: bytes, p: int) -> tuple[Optional[UnlockResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value, n = _S_QI_read(b, p)
    p += 12
    v_services: list[Optional[ServiceResult]] = []
    for _ in range(n):
        e_v_services, p = read_ServiceResult(b, p)
        v_services.append(e_v_services)
    return _make_UnlockResult(v_value, v_services), p


def read_ServiceInfo(b: bytes, p: int) -> tuple[Optional[ServiceInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_flag, n = _S_bI_read(b, p)
    p += 5
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
    v_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_items: list[Optional[NamedItem]] = []
    for _ in range(n):
        e_v_items, p = read_NamedItem(b, p)
        v_items.append(e_v_items)
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    v_values = list(_S_5I_read(b, p))
    p += 20
    return _make_ServiceInfo(v_item_text1, v_item_text2, v_item_text3, v_item_text4, v_flag, v_responses, v_parameters, v_text1, v_items, v_error, v_values), p


def read_ResponseInfo(b: bytes, p: int) -> tuple[Optional[ResponseInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_status, n = _S_iI_read(b, p)
    p += 8
    v_parameters: list[Optional[ParameterInfo]] = []
    for _ in range(n):
        e_v_parameters, p = read_ParameterInfo(b, p)
        v_parameters.append(e_v_parameters)
    return _make_ResponseInfo(v_item_text1, v_item_text2, v_item_text3, v_item_text4, v_status, v_parameters), p


def read_ParameterInfo(b: bytes, p: int) -> tuple[Optional[ParameterInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value1, n = _S_iI_read(b, p)
    p += 8
    v_text4 = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    p += 4
    v_children: list[Optional[ParameterInfo]] = []
    for _ in range(n):
        e_v_children, p = read_ParameterInfo(b, p)
        v_children.append(e_v_children)
    (n,) = _u32_read(b, p)
    v_text5 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_names, p = read_texts(b, p)
    v_flag1, v_value2 = _S_bi_read(b, p)
    p += 5
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    v_flag2, = _S_b_read(b, p)
    p += 1
    v_values = list(_S_8I_read(b, p))
    p += 32
    v_flag3, = _S_b_read(b, p)
    p += 1
    if b[p]:
        v_constraint1, p = read_ConstraintInfo(b, p)
    else:
        v_constraint1 = None
        p += 1
    if b[p]:
        v_constraint2, p = read_ConstraintInfo(b, p)
    else:
        v_constraint2 = None
        p += 1
    (n,) = _u32_read(b, p)
    v_text6 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text7 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_flag4, = _S_b_read(b, p)
    p += 1
    if b[p]:
        v_unit, p = read_UnitInfo(b, p)
    else:
        v_unit = None
        p += 1
    return _make_ParameterInfo(v_item_text1, v_item_text2, v_item_text3, v_item_text4, v_text1, v_text2, v_text3, v_value1, v_text4, v_children, v_text5, v_names, v_flag1, v_value2, v_error, v_flag2, v_values, v_flag3, v_constraint1, v_constraint2, v_text6, v_text7, v_flag4, v_unit), p


def read_ConstraintInfo(b: bytes, p: int) -> tuple[Optional[ConstraintInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_flag, n = _S_bI_read(b, p)
    p += 5
    v_scales: list[Optional[ScaleConstraintInfo]] = []
    for _ in range(n):
        e_v_scales, p = read_ScaleConstraintInfo(b, p)
        v_scales.append(e_v_scales)
    return _make_ConstraintInfo(v_text1, v_text2, v_flag, v_scales), p


def read_ScaleConstraintInfo(b: bytes, p: int) -> tuple[Optional[ScaleConstraintInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_flag, v_value = _S_bi_read(b, p)
    p += 5
    return _make_ScaleConstraintInfo(v_item_text1, v_item_text2, v_item_text3, v_item_text4, v_text1, v_text2, v_flag, v_value), p


def read_UnitInfo(b: bytes, p: int) -> tuple[Optional[UnitInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_values = list(_S_7I_read(b, p))
    p += 28
    v_value1, v_flag1, v_value2, v_flag2 = _S_QbQb_read(b, p)
    p += 18
    return _make_UnitInfo(v_values, v_value1, v_flag1, v_value2, v_flag2), p


def read_ParameterInfoConfig(b: bytes, p: int) -> tuple[Optional[ParameterInfoConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value, n = _S_iI_read(b, p)
    p += 8
    v_text3 = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    return _make_ParameterInfoConfig(v_text1, v_text2, v_value, v_text3, v_text4), p


def read_KelEvent(b: bytes, p: int) -> tuple[Optional[KelEvent], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_kind, v_code, n = _S_iiI_read(b, p)
    p += 12
    v_text = b[p : p + n].decode() if n else ""
    p += n
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    (n,) = _u32_read(b, p)
    v_detail = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    return _make_KelEvent(v_name, _as_EventKind(v_kind), v_code, v_text, v_error, v_detail), p


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
    return _make_EventReport(v_events), p


def read_FileFilter(b: bytes, p: int) -> tuple[Optional[FileFilter], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_pattern = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_flag, v_value = _S_bI_read(b, p)
    p += 5
    return _make_FileFilter(v_pattern, v_flag, v_value), p


def read_TargetConfig(b: bytes, p: int) -> tuple[Optional[TargetConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value, n = _S_iI_read(b, p)
    p += 8
    v_text1 = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    return _make_TargetConfig(v_value, v_text1, v_text2), p


def read_ProjectConfig(b: bytes, p: int) -> tuple[Optional[ProjectConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_filters1: list[Optional[FileFilter]] = []
    for _ in range(n):
        e_v_filters1, p = read_FileFilter(b, p)
        v_filters1.append(e_v_filters1)
    v_value0, n = _S_iI_read(b, p)
    p += 8
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
    v_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value1, n = _S_II_read(b, p)
    p += 8
    v_text2 = b[p : p + n].decode() if n else ""
    p += n
    v_strings2, p = read_texts(b, p)
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value2, v_value3 = _S_II_read(b, p)
    p += 8
    v_flags = list(_S_4b_read(b, p))
    p += 4
    return _make_ProjectConfig(v_item_text1, v_item_text2, v_item_text3, v_item_text4, v_filters1, v_value0, v_targets, v_filters2, v_strings1, v_text1, v_value1, v_text2, v_strings2, v_text3, v_value2, v_value3, v_flags), p


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
    v_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value1, n = _S_II_read(b, p)
    p += 8
    v_text2 = b[p : p + n].decode() if n else ""
    p += n
    v_value2, n = _S_II_read(b, p)
    p += 8
    v_users: list[Optional[UserInfo]] = []
    for _ in range(n):
        e_v_users, p = read_UserInfo(b, p)
        v_users.append(e_v_users)
    return _make_ProjectDetails(v_db_files1, v_db_files2, v_text1, v_value1, v_text2, v_value2, v_users), p


def read_DbFileInfo(b: bytes, p: int) -> tuple[Optional[DbFileInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_path = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_size, v_loaded = _S_Qb_read(b, p)
    p += 9
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    return _make_DbFileInfo(v_name, v_path, v_size, v_loaded, v_error), p


def read_SystemInfo(b: bytes, p: int) -> tuple[Optional[SystemInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, v_value2, n = _S_III_read(b, p)
    p += 12
    v_text1 = b[p : p + n].decode() if n else ""
    p += n
    v_value3, n = _S_II_read(b, p)
    p += 8
    v_text2 = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    return _make_SystemInfo(v_value1, v_value2, v_text1, v_value3, v_text2, v_text3, v_text4), p


def read_SystemProperty(b: bytes, p: int) -> tuple[Optional[SystemProperty], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value1, n = _S_II_read(b, p)
    p += 8
    v_children: list[Optional[SystemProperty]] = []
    for _ in range(n):
        e_v_children, p = read_SystemProperty(b, p)
        v_children.append(e_v_children)
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value2, n = _S_II_read(b, p)
    p += 8
    v_data = b[p : p + n]
    p += n
    v_value3, v_flag, v_value4 = _S_IbI_read(b, p)
    p += 9
    return _make_SystemProperty(v_item_text1, v_item_text2, v_item_text3, v_item_text4, v_text1, v_text2, v_value1, v_children, v_text3, v_error, v_text4, v_value2, v_data, v_value3, v_flag, v_value4), p


def read_TarnApiConfig(b: bytes, p: int) -> tuple[Optional[TarnApiConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, v_flag1, v_flag2, v_value2 = _S_ibbi_read(b, p)
    p += 10
    if b[p]:
        v_server, p = read_ServerConfig(b, p)
    else:
        v_server = None
        p += 1
    v_value3, v_value4, v_value5, v_flag3, v_value6, v_value7, n = _S_IIIbIHI_read(b, p)
    p += 23
    v_oauth2_configs: list[Optional[Oauth2Config]] = []
    for _ in range(n):
        e_v_oauth2_configs, p = read_Oauth2Config(b, p)
        v_oauth2_configs.append(e_v_oauth2_configs)
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    return _make_TarnApiConfig(v_value1, v_flag1, v_flag2, v_value2, v_server, v_value3, v_value4, v_value5, v_flag3, v_value6, v_value7, v_oauth2_configs, v_text), p


def read_ServerConfig(b: bytes, p: int) -> tuple[Optional[ServerConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_address = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_port, v_enabled, n = _S_IbI_read(b, p)
    p += 9
    v_name = b[p : p + n].decode() if n else ""
    p += n
    return _make_ServerConfig(v_address, v_port, v_enabled, v_name), p


def read_Oauth2Config(b: bytes, p: int) -> tuple[Optional[Oauth2Config], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_issuer = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_client_id = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_scopes, p = read_texts(b, p)
    (n,) = _u32_read(b, p)
    v_redirect_url = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    return _make_Oauth2Config(v_issuer, v_client_id, v_scopes, v_redirect_url), p


def read_MoxConfig(b: bytes, p: int) -> tuple[Optional[MoxConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text5 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_flag1, v_flag2, v_flag3, v_value, v_flag4, v_flag5, v_flag6, n = _S_bbbIbbbI_read(b, p)
    p += 14
    v_text6 = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_text7 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    if b[p]:
        v_tcp, p = read_TcpInfo(b, p)
    else:
        v_tcp = None
        p += 1
    return _make_MoxConfig(v_text1, v_text2, v_text3, v_text4, v_text5, v_flag1, v_flag2, v_flag3, v_value, v_flag4, v_flag5, v_flag6, v_text6, v_text7, v_tcp), p


def read_TcpInfo(b: bytes, p: int) -> tuple[Optional[TcpInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, v_value2, v_value3, v_value4, v_value5, v_value6 = _S_BBBIII_read(b, p)
    p += 15
    return _make_TcpInfo(v_value1, v_value2, v_value3, v_value4, v_value5, v_value6), p


def read_StatusInfo(b: bytes, p: int) -> tuple[Optional[StatusInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, v_value2, v_value3, v_value4, v_value5, v_value6, v_value7, v_value8 = _S_QQQQQIQQ_read(b, p)
    p += 60
    return _make_StatusInfo(v_value1, v_value2, v_value3, v_value4, v_value5, v_value6, v_value7, v_value8), p


def read_TransmissionInfo(b: bytes, p: int) -> tuple[Optional[TransmissionInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, v_value2, v_value3, v_value4 = _S_QQQQ_read(b, p)
    p += 32
    return _make_TransmissionInfo(v_value1, v_value2, v_value3, v_value4), p


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
    v_flag1, v_flag2, n = _S_bbI_read(b, p)
    p += 6
    v_text = b[p : p + n].decode() if n else ""
    p += n
    return _make_ProcessInfo(v_processes, v_flag1, v_flag2, v_text), p


def read_ProcessEntry(b: bytes, p: int) -> tuple[Optional[ProcessEntry], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value, n = _S_II_read(b, p)
    p += 8
    v_items1: list[Optional[ProcessThread]] = []
    for _ in range(n):
        e_v_items1, p = read_ProcessThread(b, p)
        v_items1.append(e_v_items1)
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_items2: list[Optional[ProcessMemory]] = []
    for _ in range(n):
        e_v_items2, p = read_ProcessMemory(b, p)
        v_items2.append(e_v_items2)
    return _make_ProcessEntry(v_value, v_items1, v_text, v_items2), p


def read_ProcessThread(b: bytes, p: int) -> tuple[Optional[ProcessThread], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_id, n = _S_II_read(b, p)
    p += 8
    v_name = b[p : p + n].decode() if n else ""
    p += n
    return _make_ProcessThread(v_id, v_name), p


def read_ProcessMemory(b: bytes, p: int) -> tuple[Optional[ProcessMemory], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_bytes, = _S_Q_read(b, p)
    p += 8
    return _make_ProcessMemory(v_name, v_bytes), p


def read_GlobalProtocolParameterSet(b: bytes, p: int) -> tuple[Optional[GlobalProtocolParameterSet], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_parameters: list[Optional[GlobalProtocolParameter]] = []
    for _ in range(n):
        e_v_parameters, p = read_GlobalProtocolParameter(b, p)
        v_parameters.append(e_v_parameters)
    return _make_GlobalProtocolParameterSet(v_text1, v_text2, v_text3, v_text4, v_parameters), p


def read_GlobalProtocolParameter(b: bytes, p: int) -> tuple[Optional[GlobalProtocolParameter], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_value = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_default_value = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_infos: list[Optional[ParameterInfo]] = []
    for _ in range(n):
        e_v_infos, p = read_ParameterInfo(b, p)
        v_infos.append(e_v_infos)
    v_choices, p = read_texts(b, p)
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    (n,) = _u32_read(b, p)
    p += 4
    v_constraints: list[Optional[ConstraintInfo]] = []
    for _ in range(n):
        e_v_constraints, p = read_ConstraintInfo(b, p)
        v_constraints.append(e_v_constraints)
    if b[p]:
        v_tcp, p = read_TcpInfo(b, p)
    else:
        v_tcp = None
        p += 1
    v_value1, v_flag = _S_Ib_read(b, p)
    p += 5
    return _make_GlobalProtocolParameter(v_item_text1, v_item_text2, v_item_text3, v_item_text4, v_value, v_default_value, v_infos, v_choices, v_error, v_constraints, v_tcp, v_value1, v_flag), p


def read_LoadDatabaseResult(b: bytes, p: int) -> tuple[Optional[LoadDatabaseResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_flag, = _S_b_read(b, p)
    p += 1
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    return _make_LoadDatabaseResult(v_text, v_flag, v_error), p


def read_InterfaceInformation(b: bytes, p: int) -> tuple[Optional[InterfaceInformation], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_resources: list[Optional[ResourceInformation]] = []
    for _ in range(n):
        e_v_resources, p = read_ResourceInformation(b, p)
        v_resources.append(e_v_resources)
    v_flag1, v_flag2, n = _S_bbI_read(b, p)
    p += 6
    v_text1 = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_flag3, n = _S_bI_read(b, p)
    p += 5
    v_items: list[Optional[InterfaceInformationItem]] = []
    for _ in range(n):
        e_v_items, p = read_InterfaceInformationItem(b, p)
        v_items.append(e_v_items)
    v_value, = _S_Q_read(b, p)
    p += 8
    return _make_InterfaceInformation(v_item_text1, v_item_text2, v_item_text3, v_item_text4, v_resources, v_flag1, v_flag2, v_text1, v_text2, v_flag3, v_items, v_value), p


def read_ResourceInformation(b: bytes, p: int) -> tuple[Optional[ResourceInformation], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_id, v_pin, v_in_use = _S_IIb_read(b, p)
    p += 9
    return _make_ResourceInformation(v_item_text1, v_item_text2, v_item_text3, v_item_text4, v_id, v_pin, v_in_use), p


def read_InterfaceInformationItem(b: bytes, p: int) -> tuple[Optional[InterfaceInformationItem], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    return _make_InterfaceInformationItem(v_item_text1, v_item_text2, v_item_text3, v_item_text4), p


def read_ScanInterfaceResult(b: bytes, p: int) -> tuple[Optional[ScanInterfaceResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    if b[p]:
        v_interface_info, p = read_InterfaceInformation(b, p)
    else:
        v_interface_info = None
        p += 1
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    return _make_ScanInterfaceResult(v_interface_info, v_error), p


def read_DynInterfaceDetection(b: bytes, p: int) -> tuple[Optional[DynInterfaceDetection], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name_pattern = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_kind = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_only_free, = _S_b_read(b, p)
    p += 1
    return _make_DynInterfaceDetection(v_name_pattern, v_kind, v_only_free), p


def read_ModuleDyn(b: bytes, p: int) -> tuple[Optional[ModuleDyn], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_long_name = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_vendor = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_kind = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_address = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    if b[p]:
        v_vendor_module, p = read_InterfaceInformationItem(b, p)
    else:
        v_vendor_module = None
        p += 1
    v_flag1, n = _S_bI_read(b, p)
    p += 5
    v_serial_number = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_firmware = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_network = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_resources: list[Optional[ResourceInformation]] = []
    for _ in range(n):
        e_v_resources, p = read_ResourceInformation(b, p)
        v_resources.append(e_v_resources)
    v_port, v_flag2, v_handle = _S_IbQ_read(b, p)
    p += 13
    return _make_ModuleDyn(v_name, v_long_name, v_vendor, v_kind, v_address, v_vendor_module, v_flag1, v_serial_number, v_firmware, v_network, v_resources, v_port, v_flag2, v_handle), p


def read_DeviceInfo(b: bytes, p: int) -> tuple[Optional[DeviceInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value1, v_value2, n = _S_III_read(b, p)
    p += 12
    v_text2 = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value3, n = _S_II_read(b, p)
    p += 8
    v_text4 = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_text5 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value4, v_value5, n = _S_III_read(b, p)
    p += 12
    v_text6 = b[p : p + n].decode() if n else ""
    p += n
    v_protocols, p = read_texts(b, p)
    (n,) = _u32_read(b, p)
    v_text7 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_modules, p = read_texts(b, p)
    (n,) = _u32_read(b, p)
    v_text8 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_flag, v_handle, v_value6, v_value8, v_value9, v_value10 = _S_bQIQQQ_read(b, p)
    p += 37
    return _make_DeviceInfo(v_text1, v_value1, v_value2, v_text2, v_text3, v_value3, v_text4, v_text5, v_value4, v_value5, v_text6, v_protocols, v_text7, v_modules, v_text8, v_flag, v_handle, v_value6, v_value8, v_value9, v_value10), p


def read_PhysicalLinksOnModule(b: bytes, p: int) -> tuple[Optional[PhysicalLinksOnModule], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_module = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_links: list[Optional[PhysicalLink]] = []
    for _ in range(n):
        e_v_links, p = read_PhysicalLink(b, p)
        v_links.append(e_v_links)
    return _make_PhysicalLinksOnModule(v_module, v_links), p


def read_PhysicalLink(b: bytes, p: int) -> tuple[Optional[PhysicalLink], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_baudrate, v_enabled = _S_Ib_read(b, p)
    p += 5
    return _make_PhysicalLink(v_item_text1, v_item_text2, v_item_text3, v_item_text4, v_baudrate, v_enabled), p


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
    return _make_InterfaceConfiguration(v_entries), p


def read_InterfaceConfigurationEntry(b: bytes, p: int) -> tuple[Optional[InterfaceConfigurationEntry], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text5 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value, v_flag, n = _S_IbI_read(b, p)
    p += 9
    v_items: list[Optional[ResourceInformation]] = []
    for _ in range(n):
        e_v_items, p = read_ResourceInformation(b, p)
        v_items.append(e_v_items)
    return _make_InterfaceConfigurationEntry(v_text1, v_text2, v_text3, v_text4, v_text5, v_value, v_flag, v_items), p


def read_InterfaceProvider(b: bytes, p: int) -> tuple[Optional[InterfaceProvider], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value, v_flag = _S_Ib_read(b, p)
    p += 5
    return _make_InterfaceProvider(v_item_text1, v_item_text2, v_item_text3, v_item_text4, v_text, v_value, v_flag), p


def read_DoIPParameter(b: bytes, p: int) -> tuple[Optional[DoIPParameter], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, v_value2, n = _S_III_read(b, p)
    p += 12
    v_text = b[p : p + n].decode() if n else ""
    p += n
    v_value3, = _S_I_read(b, p)
    p += 4
    v_strings, p = read_texts(b, p)
    return _make_DoIPParameter(v_value1, v_value2, v_text, v_value3, v_strings), p


def read_WLanSignalData(b: bytes, p: int) -> tuple[Optional[WLanSignalData], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, v_value2, v_value3, v_value4, v_value5, v_value6, v_value7, v_value8, v_value9, v_value10, v_value11, n = _S_IIIIIQIIIIHI_read(b, p)
    p += 50
    v_text = b[p : p + n].decode() if n else ""
    p += n
    return _make_WLanSignalData(v_value1, v_value2, v_value3, v_value4, v_value5, v_value6, v_value7, v_value8, v_value9, v_value10, v_value11, v_text), p


def read_SupportedInterface(b: bytes, p: int) -> tuple[Optional[SupportedInterface], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_names, p = read_texts(b, p)
    v_value, n = _S_II_read(b, p)
    p += 8
    v_text3 = b[p : p + n].decode() if n else ""
    p += n
    return _make_SupportedInterface(v_text1, v_text2, v_names, v_value, v_text3), p


def read_MonitoringItem(b: bytes, p: int) -> tuple[Optional[MonitoringItem], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_data = b[p + 4 : p + 4 + n]
    p += 4 + n
    v_value1, v_value2, v_flag1, v_flag2, v_flag3, v_value3, n = _S_QIbbbII_read(b, p)
    p += 23
    v_text2 = b[p : p + n].decode() if n else ""
    p += n
    v_value4, = _S_I_read(b, p)
    p += 4
    if b[p]:
        v_detail, p = read_MonitoringItemDetail(b, p)
    else:
        v_detail = None
        p += 1
    return _make_MonitoringItem(v_text1, v_data, v_value1, v_value2, v_flag1, v_flag2, v_flag3, v_value3, v_text2, v_value4, v_detail), p


def read_MonitoringItemDetail(b: bytes, p: int) -> tuple[Optional[MonitoringItemDetail], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_response = b[p + 4 : p + 4 + n]
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    return _make_MonitoringItemDetail(v_response, v_text), p


def read_PduMonitoringItem(b: bytes, p: int) -> tuple[Optional[PduMonitoringItem], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, n = _S_II_read(b, p)
    p += 8
    v_data = b[p : p + n]
    p += n
    if b[p]:
        v_detail, p = read_PduMonitoringItemDetail(b, p)
    else:
        v_detail = None
        p += 1
    (n,) = _u32_read(b, p)
    v_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value2, n = _S_QI_read(b, p)
    p += 12
    v_text3 = b[p : p + n].decode() if n else ""
    p += n
    return _make_PduMonitoringItem(v_value1, v_data, v_detail, v_text1, v_text2, v_value2, v_text3), p


def read_PduMonitoringItemDetail(b: bytes, p: int) -> tuple[Optional[PduMonitoringItemDetail], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_sequence, v_exchange = _S_QQ_read(b, p)
    p += 16
    return _make_PduMonitoringItemDetail(v_sequence, v_exchange), p


def read_FileInfo(b: bytes, p: int) -> tuple[Optional[FileInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    v_flag, v_value1, n = _S_bII_read(b, p)
    p += 9
    v_text1 = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value2, v_value3 = _S_QQ_read(b, p)
    p += 16
    return _make_FileInfo(v_name, v_error, v_flag, v_value1, v_text1, v_text2, v_value2, v_value3), p


def read_DirectoryInfo(b: bytes, p: int) -> tuple[Optional[DirectoryInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    v_flag, v_value1, n = _S_bII_read(b, p)
    p += 9
    v_text1 = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
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
    return _make_DirectoryInfo(v_name, v_error, v_flag, v_value1, v_text1, v_text2, v_files, v_directories, v_flag2), p


def read_FileCopyResult(b: bytes, p: int) -> tuple[Optional[FileCopyResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, n = _S_iI_read(b, p)
    p += 8
    v_text = b[p : p + n].decode() if n else ""
    p += n
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    if b[p]:
        v_file, p = read_FileInfo(b, p)
    else:
        v_file = None
        p += 1
    v_value2, = _S_i_read(b, p)
    p += 4
    return _make_FileCopyResult(v_value1, v_text, v_error, v_file, v_value2), p


def read_DirectoryCopyResult(b: bytes, p: int) -> tuple[Optional[DirectoryCopyResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, n = _S_iI_read(b, p)
    p += 8
    v_text = b[p : p + n].decode() if n else ""
    p += n
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    if b[p]:
        v_directory, p = read_DirectoryCopyItem(b, p)
    else:
        v_directory = None
        p += 1
    return _make_DirectoryCopyResult(v_value1, v_text, v_error, v_directory), p


def read_DirectoryCopyItem(b: bytes, p: int) -> tuple[Optional[DirectoryCopyItem], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_source = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_files, v_directories, v_bytes, n = _S_IIQI_read(b, p)
    p += 20
    v_failures: list[Optional[FileCopyResult]] = []
    for _ in range(n):
        e_v_failures, p = read_FileCopyResult(b, p)
        v_failures.append(e_v_failures)
    return _make_DirectoryCopyItem(v_source, v_target, v_files, v_directories, v_bytes, v_failures), p


def read_PathCopyResult(b: bytes, p: int) -> tuple[Optional[PathCopyResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_value1, = _S_i_read(b, p)
    p += 4
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    v_value2, = _S_i_read(b, p)
    p += 4
    if b[p]:
        v_item, p = read_PathCopyItem(b, p)
    else:
        v_item = None
        p += 1
    return _make_PathCopyResult(v_value1, v_error, v_value2, v_item), p


def read_PathCopyItem(b: bytes, p: int) -> tuple[Optional[PathCopyItem], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_source = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_size, = _S_Q_read(b, p)
    p += 8
    return _make_PathCopyItem(v_source, v_target, v_size), p


def read_FileReferenceResult(b: bytes, p: int) -> tuple[Optional[FileReferenceResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_references, p = read_texts(b, p)
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    return _make_FileReferenceResult(v_references, v_error), p


def read_FileCopyConfig(b: bytes, p: int) -> tuple[Optional[FileCopyConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_files, p = read_texts(b, p)
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_overwrite, = _S_b_read(b, p)
    p += 1
    return _make_FileCopyConfig(v_files, v_target, v_overwrite), p


def read_DirectoryCopyConfig(b: bytes, p: int) -> tuple[Optional[DirectoryCopyConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_directories, p = read_texts(b, p)
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_overwrite, v_recursive, n = _S_bbI_read(b, p)
    p += 6
    v_pattern = b[p : p + n].decode() if n else ""
    p += n
    return _make_DirectoryCopyConfig(v_directories, v_target, v_overwrite, v_recursive, v_pattern), p


def read_PathCopyConfig(b: bytes, p: int) -> tuple[Optional[PathCopyConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_source = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_overwrite, = _S_b_read(b, p)
    p += 1
    return _make_PathCopyConfig(v_source, v_target, v_overwrite), p


def read_UserInfo(b: bytes, p: int) -> tuple[Optional[UserInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_value, = _S_I_read(b, p)
    p += 4
    return _make_UserInfo(v_name, v_text, v_value), p


def read_LogInOutConfig(b: bytes, p: int) -> tuple[Optional[LogInOutConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_user = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_password = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    return _make_LogInOutConfig(v_user, v_password), p


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
    v_flag, v_value1, n = _S_bII_read(b, p)
    p += 9
    v_text1 = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_filters: list[Optional[FileFilter]] = []
    for _ in range(n):
        e_v_filters, p = read_FileFilter(b, p)
        v_filters.append(e_v_filters)
    (n,) = _u32_read(b, p)
    v_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    p += 4
    v_users2: list[Optional[UserInfo]] = []
    for _ in range(n):
        e_v_users2, p = read_UserInfo(b, p)
        v_users2.append(e_v_users2)
    v_value2, = _S_H_read(b, p)
    p += 2
    return _make_TarnApiServerConfig(v_users, v_flag, v_value1, v_text1, v_text2, v_filters, v_text3, v_text4, v_users2, v_value2), p


def read_ServerSettings(b: bytes, p: int) -> tuple[Optional[ServerSettings], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_flag, v_value1, v_value2, v_value3 = _S_bIII_read(b, p)
    p += 13
    return _make_ServerSettings(v_flag, v_value1, v_value2, v_value3), p


def read_FlashSessionInfo(b: bytes, p: int) -> tuple[Optional[FlashSessionInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_description = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_version = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_size, v_duration, v_level = _S_QII_read(b, p)
    p += 16
    return _make_FlashSessionInfo(v_name, v_target, v_description, v_version, v_size, v_duration, v_level), p


def read_FlashSessionResult(b: bytes, p: int) -> tuple[Optional[FlashSessionResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_status, n = _S_iI_read(b, p)
    p += 8
    v_version_before = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_version_after = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_size, v_transferred, v_progress, v_duration = _S_QQII_read(b, p)
    p += 24
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    return _make_FlashSessionResult(v_name, v_target, _as_FlashStatus(v_status), v_version_before, v_version_after, v_size, v_transferred, v_progress, v_duration, v_error), p


def read_FlashSessionsConfig(b: bytes, p: int) -> tuple[Optional[FlashSessionsConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_sessions, p = read_texts(b, p)
    v_block_length, v_stop_on_error = _S_Ib_read(b, p)
    p += 5
    return _make_FlashSessionsConfig(v_target, v_sessions, v_block_length, v_stop_on_error), p


def read_CodingStringResult(b: bytes, p: int) -> tuple[Optional[CodingStringResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_status, n = _S_iI_read(b, p)
    p += 8
    v_identifier = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_coding = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_data = b[p + 4 : p + 4 + n]
    p += 4 + n
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    return _make_CodingStringResult(v_target, _as_TargetResultStatus(v_status), v_identifier, v_coding, v_data, v_error), p


def read_CodingFileResult(b: bytes, p: int) -> tuple[Optional[CodingFileResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_status, n = _S_iI_read(b, p)
    p += 8
    v_written = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_coding = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_data = b[p + 4 : p + 4 + n]
    p += 4 + n
    v_verified, = _S_b_read(b, p)
    p += 1
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    return _make_CodingFileResult(v_target, _as_TargetResultStatus(v_status), v_written, v_coding, v_data, v_verified, v_error), p


def read_QuickTestResult(b: bytes, p: int) -> tuple[Optional[QuickTestResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_status, n = _S_iI_read(b, p)
    p += 8
    v_variant = b[p : p + n].decode() if n else ""
    p += n
    v_identified, n = _S_bI_read(b, p)
    p += 5
    v_dtcs: list[Optional[DtcResult]] = []
    for _ in range(n):
        e_v_dtcs, p = read_DtcResult(b, p)
        v_dtcs.append(e_v_dtcs)
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    return _make_QuickTestResult(v_target, _as_TargetResultStatus(v_status), v_variant, v_identified, v_dtcs, v_error), p


def read_EcuConfigurationResult(b: bytes, p: int) -> tuple[Optional[EcuConfigurationResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_configuration = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_status, v_written = _S_iI_read(b, p)
    p += 8
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    return _make_EcuConfigurationResult(v_target, v_configuration, _as_TargetResultStatus(v_status), v_written, v_error), p


def read_EcuOrderEntry(b: bytes, p: int) -> tuple[Optional[EcuOrderEntry], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_bus = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_address, v_gateway, v_optional = _S_Ibb_read(b, p)
    p += 6
    return _make_EcuOrderEntry(v_target, v_bus, v_address, v_gateway, v_optional), p


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
    return _make_VehicleUpdateConfig(v_targets, v_packages, v_stop_on_error, v_force, v_block_length), p


def read_VehicleUpdateResult(b: bytes, p: int) -> tuple[Optional[VehicleUpdateResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_status, n = _S_iI_read(b, p)
    p += 8
    v_package = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_version_before = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_version_after = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_position, v_progress, v_overall_progress, v_duration = _S_IIII_read(b, p)
    p += 16
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    return _make_VehicleUpdateResult(v_target, v_status, v_package, v_version_before, v_version_after, v_position, v_progress, v_overall_progress, v_duration, v_error), p


def read_UpdatePackageInfo(b: bytes, p: int) -> tuple[Optional[UpdatePackageInfo], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_version = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_description = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_kind, = _S_I_read(b, p)
    p += 4
    v_targets, p = read_texts(b, p)
    v_size, n = _S_QI_read(b, p)
    p += 12
    v_checksum = b[p : p + n].decode() if n else ""
    p += n
    (n,) = _u32_read(b, p)
    v_location = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_state, = _S_i_read(b, p)
    p += 4
    return _make_UpdatePackageInfo(v_name, v_version, v_description, v_kind, v_targets, v_size, v_checksum, v_location, v_state), p


def read_VehicleReportConfig(b: bytes, p: int) -> tuple[Optional[VehicleReportConfig], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_title = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_comment = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_targets, p = read_texts(b, p)
    v_identification, v_dtcs = _S_bb_read(b, p)
    p += 2
    return _make_VehicleReportConfig(v_name, v_title, v_comment, v_targets, v_identification, v_dtcs), p


def read_VehicleData(b: bytes, p: int) -> tuple[Optional[VehicleData], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_vin = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_model = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_target = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_variant = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_software_version = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_bus = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_address, v_status, v_dtc_count = _S_IiI_read(b, p)
    p += 12
    return _make_VehicleData(v_vin, v_model, v_target, v_variant, v_software_version, v_bus, v_address, v_status, v_dtc_count), p


def read_UploadReportConfiguration(b: bytes, p: int) -> tuple[Optional[UploadReportConfiguration], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_report_file = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_folder = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_name = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_vin = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_user = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_comment = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_overwrite, v_with_twin = _S_bb_read(b, p)
    p += 2
    return _make_UploadReportConfiguration(v_report_file, v_folder, v_name, v_vin, v_user, v_comment, v_overwrite, v_with_twin), p


def read_VehicleInformation(b: bytes, p: int) -> tuple[Optional[VehicleInformation], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_vin = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_model = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_model_year, v_mileage, n = _S_III_read(b, p)
    p += 12
    v_license_plate = b[p : p + n].decode() if n else ""
    p += n
    v_equipment, p = read_texts(b, p)
    return _make_VehicleInformation(v_vin, v_model, v_model_year, v_mileage, v_license_plate, v_equipment), p


def read_SupportedDtcResult(b: bytes, p: int) -> tuple[Optional[ReadDtcResult], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    v_status, n = _S_iI_read(b, p)
    p += 8
    v_target = b[p : p + n].decode() if n else ""
    p += n
    if b[p]:
        v_error, p = read_KelError(b, p)
    else:
        v_error = None
        p += 1
    (n,) = _u32_read(b, p)
    p += 4
    v_dtcs: list[Optional[DtcResult]] = []
    for _ in range(n):
        e_v_dtcs, p = read_DtcResult(b, p)
        v_dtcs.append(e_v_dtcs)
    return ReadDtcResult(status=_as_TargetResultStatus(v_status), target=v_target, error=v_error, dtcs=v_dtcs), p


def read_SpecialData(b: bytes, p: int) -> tuple[Optional[NamedItem], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    return NamedItem(name=v_item_text1, item_text2=v_item_text2, item_text3=v_item_text3, item_text4=v_item_text4), p


def read_FilterPattern(b: bytes, p: int) -> tuple[Optional[FileFilter], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_pattern = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    v_flag, = _S_b_read(b, p)
    p += 1
    return FileFilter(pattern=v_pattern, exclude=v_flag), p


def read_InterfaceProviderDyn(b: bytes, p: int) -> tuple[Optional[InterfaceProvider], int]:
    if not b[p]:
        return None, p + 1
    p += 1
    (n,) = _u32_read(b, p)
    v_item_text1 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text2 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text3 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_item_text4 = b[p + 4 : p + 4 + n].decode() if n else ""
    p += 4 + n
    (n,) = _u32_read(b, p)
    v_text = b[p + 4 : p + 4 + n].decode() if n else ""
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
