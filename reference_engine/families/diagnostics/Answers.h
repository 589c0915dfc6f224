// The answers of the diagnostic operations, built from the control units as fresh
// engine records. They run inside ControlUnits::read or update, so a result handed to
// a caller never changes afterwards.
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
std::vector<std::shared_ptr<VariantIdentResult>> identify(std::vector<Ecu>& ecus,
                                                          const Names& targets);
std::vector<std::shared_ptr<ReadDataResult>> identification(const std::vector<Ecu>& ecus,
                                                            const Names& targets);
std::vector<std::shared_ptr<ReadDataResult>>
readData(const std::vector<Ecu>& ecus, const std::wstring& target, const Names& identifiers);
std::vector<std::shared_ptr<ReadDtcResult>>
readDtcs(const std::vector<Ecu>& ecus, const Names& targets, const DtcReadConfig* config);
std::vector<std::shared_ptr<SupportedDtcResult>>
readSupportedDtcs(const std::vector<Ecu>& ecus, const Names& targets, const DtcReadConfig* config);
// `cleared`: how many targets were cleared (for the DtcsCleared event).
std::vector<std::shared_ptr<ClearDtcResult>> clearAll(std::vector<Ecu>& ecus, const Names& targets,
                                                      int32_t& cleared);
std::vector<std::shared_ptr<ClearDtcResult>> clearSpecific(std::vector<Ecu>& ecus,
                                                           const std::wstring& target,
                                                           const std::vector<uint32_t>& codes,
                                                           int32_t& cleared);
std::vector<std::shared_ptr<Target>> targets(const std::vector<Ecu>& ecus, const Filters& filters);
std::vector<std::shared_ptr<TargetStatus>> status(const std::vector<Ecu>& ecus,
                                                  const Names& targets);

// `*` matches any run of characters, `?` any one. Greedy, going back only to the last
// `*`: at most pattern length times text length steps, however many stars.
bool matchesPattern(std::wstring_view pattern, std::wstring_view text);

} // namespace Varno::Kel_cpp::Reference::Answers
