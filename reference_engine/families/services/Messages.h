// Service messages as a tester sees them: requests written from the caller's parameter
// values, responses and requests read back into parameter trees, and the descriptions
// of a unit's catalogue. All from the same layouts (ServiceSpec) that the unit answers
// by, so what getServiceInfos describes is what executeService runs.
#pragma once

#include "ControlUnits.h"

#include <Kel_cpp/Records.h>

#include <memory>
#include <string>
#include <vector>

namespace Varno::Kel_cpp::Reference::Messages {

using Values = std::vector<std::shared_ptr<ParameterInput>>;

// The request bytes of `service` with `values` (a tree shaped like the request's
// layout; a value left out takes the parameter's default). Throws
// std::invalid_argument naming the parameter when a value is missing, unknown, or
// cannot be written in its codec.
Bytes encodeRequest(const ServiceSpec& service, const Values& values);

// The parameters of `message` from byte `from` on, read by `layout`.
std::vector<std::shared_ptr<ParameterResult>> decode(const std::vector<ParameterSpec>& layout,
                                                     const Bytes& message, std::size_t from);

// Runs one service on `ecu`: encodes it (or takes its raw bytes), exchanges it, and
// reads the response back. Never throws for the service's own failures: they are the
// result's error (and status: 0 positive, 1 negative, 2 no response, 3 not sent).
std::shared_ptr<ServiceResult> execute(Bus& bus, Ecu& ecu, const ServiceInput& input);

// Descriptions.
std::shared_ptr<ServiceInfo> serviceInfo(const Ecu& ecu, const ServiceSpec& service, int64_t nowMs);
std::shared_ptr<ParameterInfo> parameterInfo(const ParameterSpec& p, std::size_t position,
                                             const std::wstring& path);
std::shared_ptr<ParameterInfo> dataInfo(const DataIdentifier& d);
// A structure named after an actuator service, its request parameters as children.
std::shared_ptr<ParameterInfo> actuatorInfo(const ServiceSpec& service);
// The parameter of `layout` at `path` ("Settings.Channel.Id"), or null.
std::shared_ptr<ParameterInfo> findParameter(const std::vector<ParameterSpec>& layout,
                                             const std::wstring& path);
// SI dimensions, factor and offset of a unit symbol; null for none.
std::shared_ptr<UnitInfo> unitInfo(const std::wstring& symbol);

} // namespace Varno::Kel_cpp::Reference::Messages
