// The answers of the diagnostic operations, built from the control units as fresh
// engine records. Identification and DTCs are read as a tester reads them, by UDS
// exchanges on the bus (ReadDataByIdentifier, ReadDTCInformation, ClearDiagnostic-
// Information), so they are views of the same unit that services change. They run
// inside ControlUnits::talk or read, so a result handed to a caller never changes
// afterwards.
#pragma once

#include "ControlUnits.h"

#include <Kel_cpp/Records.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Varno::Kel_cpp::Reference::Answers {

using Names = std::vector<std::wstring>;
using Filters = std::vector<std::shared_ptr<TargetFilter>>;

// Identifying marks the units as identified (TargetStatus reports it).
std::vector<std::shared_ptr<VariantIdentResult>> identify(Bus& bus, const Names& targets);
std::vector<std::shared_ptr<ReadDataResult>> identification(Bus& bus, const Names& targets);
std::vector<std::shared_ptr<ReadDataResult>> readData(Bus& bus, const std::wstring& target,
                                                      const Names& identifiers);
std::vector<std::shared_ptr<ReadDtcResult>> readDtcs(Bus& bus, const Names& targets,
                                                     const DtcReadConfig* config);
std::vector<std::shared_ptr<SupportedDtcResult>> readSupportedDtcs(Bus& bus, const Names& targets,
                                                                   const DtcReadConfig* config);
// `cleared`: how many targets were cleared (for the DtcsCleared event).
std::vector<std::shared_ptr<ClearDtcResult>> clearAll(Bus& bus, const Names& targets,
                                                      int32_t& cleared);
std::vector<std::shared_ptr<ClearDtcResult>> clearSpecific(Bus& bus, const std::wstring& target,
                                                           const std::vector<uint32_t>& codes,
                                                           int32_t& cleared);
// Identifies each target and reads its DTCs in one pass; a silent or unknown target is
// not asked for DTCs.
std::vector<std::shared_ptr<QuickTestResult>> quickTest(Bus& bus, const Names& targets,
                                                        const DtcReadConfig* config);
std::vector<std::shared_ptr<Target>> targets(const std::vector<Ecu>& ecus, const Filters& filters);
std::vector<std::shared_ptr<TargetStatus>> status(const std::vector<Ecu>& ecus,
                                                  const Names& targets);

// The per-target error of a unit that stays silent (1010, with the MVCI error beneath).
std::shared_ptr<KelError> silent(const Ecu& ecu);
// The error that a negative response (7F, service id, code) carries: `code` (1102
// unless the caller has a more precise one), the response code as subCode, and the
// NegativeResponse with the code, its text, the service id (value1) and the bytes.
std::shared_ptr<KelError> negative(const Bytes& response, int32_t code);
// A value read from a unit as a parameter: name, identifier, decoded text, unit, bytes.
std::shared_ptr<ParameterResult> dataParameter(const DataIdentifier& d, const Bytes& bytes);

// `*` matches any run of characters, `?` any one. Greedy, going back only to the last
// `*`: at most pattern length times text length steps, however many stars.
bool matchesPattern(std::wstring_view pattern, std::wstring_view text);

} // namespace Varno::Kel_cpp::Reference::Answers
