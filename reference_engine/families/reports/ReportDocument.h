// A report is one JSON document (README.md, "Vehicle reports"); the JSON twin is that
// document as it is, the HTML page a rendering of it for a person, every text escaped.
#pragma once

#include "WallClock.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <string>

namespace Varno::Kel_cpp::Reference {

using ReportJson = nlohmann::ordered_json;

// `text` (UTF-8) with & < > " ' as references and control characters other than tab,
// line feed and carriage return as U+FFFD.
std::string escapeHtml(const std::string& text);

// The ISO 14229 status bits a reader looks at first: "active, confirmed", "pending" ...
std::string dtcStatusWords(uint32_t status);

std::string renderHtml(const ReportJson& report);

// The twin's text: UTF-8, invalid sequences replaced.
std::string renderJson(const ReportJson& report);

} // namespace Varno::Kel_cpp::Reference
