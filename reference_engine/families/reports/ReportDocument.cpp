// The page is rendered from the JSON document alone, so that the two files of a report
// always hold the same values.
#include "ReportDocument.h"

#include <chrono>
#include <cstdio>

namespace Varno::Kel_cpp::Reference {
namespace {

const char* const style = "body{font-family:sans-serif;margin:2em;max-width:60em}"
                          "table{border-collapse:collapse;margin:0.5em 0 1.5em}"
                          "th,td{border:1px solid #999;padding:0.2em 0.6em;text-align:left;"
                          "vertical-align:top}"
                          "th{background:#eee}.comment{white-space:pre-wrap}"
                          ".silent,.failed{color:#a00}h3{font-size:1em;margin-bottom:0}";

std::string text(const ReportJson& j, const char* key) {
    const auto found = j.find(key);
    return found != j.end() && found->is_string() ? found->get<std::string>() : std::string();
}

// A member as text: strings as they are, numbers in decimal.
std::string cell(const ReportJson& j, const char* key) {
    const auto found = j.find(key);
    if (found == j.end() || found->is_null()) {
        return {};
    }
    return escapeHtml(found->is_string() ? found->get<std::string>() : found->dump());
}

// Addresses and status bytes: 32 bits at most.
std::string hex(uint64_t value, int digits = 1) {
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "0x%0*X", digits, static_cast<unsigned>(value));
    return buffer;
}

std::string errorText(const ReportJson& error) {
    if (!error.is_object()) {
        return {};
    }
    std::string out = "error " + error.value("code", ReportJson(0)).dump() + ": " +
                      escapeHtml(text(error, "message"));
    if (!text(error, "details").empty()) {
        out += " (" + escapeHtml(text(error, "details")) + ")";
    }
    return out;
}

void row(std::string& out, const char* heading, const std::string& value) {
    out += "<tr><th>" + std::string(heading) + "</th><td>" + value + "</td></tr>\n";
}

void vehicleTable(std::string& out, const ReportJson& report) {
    const auto& v = report.at("vehicle");
    out += "<table class=\"vehicle\">\n";
    row(out, "VIN", cell(v, "vin"));
    row(out, "Model", cell(v, "model"));
    row(out, "Model year", v.value("modelYear", 0) != 0 ? cell(v, "modelYear") : "");
    row(out, "Mileage", cell(v, "mileage") + " km");
    row(out, "Licence plate", cell(v, "licensePlate"));
    std::string equipment;
    for (const auto& code : v.value("equipment", ReportJson::array())) {
        equipment += (equipment.empty() ? "" : ", ") + escapeHtml(code.get<std::string>());
    }
    row(out, "Equipment", equipment);
    const auto& created = report.at("created");
    row(out, "Created",
        cell(created, "utc") + " (vehicle time " + cell(created, "vehicleTimeMs") + " ms)");
    out += "</table>\n";
}

void unitSection(std::string& out, const ReportJson& unit) {
    out += "<h2>" + cell(unit, "target");
    if (!text(unit, "description").empty()) {
        out += " &ndash; " + cell(unit, "description");
    }
    out += "</h2>\n<p>";
    if (!text(unit, "variant").empty()) {
        out += "Variant " + cell(unit, "variant") + ", ";
    }
    out += cell(unit, "bus") + ", address " + hex(unit.value("address", 0ULL)) + ": ";
    if (text(unit, "status") == "silent") {
        out += "<span class=\"silent\">silent, " + errorText(unit.at("error")) + "</span>";
    } else {
        out += "answered";
    }
    out += "</p>\n";
    if (unit.contains("identification")) {
        out += "<h3>Identification</h3>\n<table class=\"identification\">\n"
               "<tr><th>Identifier</th><th>Name</th><th>Value</th></tr>\n";
        for (const auto& v : unit.at("identification")) {
            out += "<tr><td>" + cell(v, "identifier") + "</td><td>" + cell(v, "name") + "</td><td>";
            out += v.contains("error")
                       ? "<span class=\"failed\">" + errorText(v.at("error")) + "</span>"
                       : cell(v, "value") +
                             (text(v, "unit").empty() ? std::string() : " " + cell(v, "unit"));
            out += "</td></tr>\n";
        }
        out += "</table>\n";
    }
    if (unit.contains("dtcs") || unit.contains("dtcError")) {
        out += "<h3>DTCs</h3>\n";
    }
    if (unit.contains("dtcError")) {
        out += "<p class=\"failed\">" + errorText(unit.at("dtcError")) + "</p>\n";
    }
    if (unit.contains("dtcs")) {
        if (unit.at("dtcs").empty()) {
            out += "<p>No DTCs stored.</p>\n";
        } else {
            out += "<table class=\"dtcs\">\n<tr><th>Code</th><th>Text</th><th>Status</th></tr>\n";
            for (const auto& d : unit.at("dtcs")) {
                out += "<tr><td>" + cell(d, "code") + "</td><td>" + cell(d, "text") + "</td><td>" +
                       hex(d.value("status", 0ULL), 2) + " " + cell(d, "statusText") +
                       "</td></tr>\n";
            }
            out += "</table>\n";
        }
    }
}

void resultTable(std::string& out, const ReportJson& results) {
    out += "<h2>Results</h2>\n<table class=\"results\">\n"
           "<tr><th>Position</th><th>Unit</th><th>Status</th>"
           "<th>Package</th><th>Version before</th><th>Version after</th><th>Duration</th>"
           "<th>Error</th></tr>\n";
    for (const auto& r : results) {
        out += "<tr><td>" + cell(r, "position") + "</td><td>" + cell(r, "target") + "</td><td>" +
               cell(r, "statusText") + "</td><td>" + cell(r, "package") + "</td><td>" +
               cell(r, "versionBefore") + "</td><td>" + cell(r, "versionAfter") + "</td><td>" +
               cell(r, "durationMs") + " ms</td><td>" + errorText(r.at("error")) + "</td></tr>\n";
    }
    out += "</table>\n";
}

} // namespace

std::string escapeHtml(const std::string& text) {
    std::string out;
    out.reserve(text.size());
    for (const char c : text) {
        const auto b = static_cast<unsigned char>(c);
        switch (c) {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '"':
            out += "&quot;";
            break;
        case '\'':
            out += "&#39;";
            break;
        default:
            if ((b < 0x20 && c != '\t' && c != '\n' && c != '\r') || b == 0x7F) {
                out += "\xEF\xBF\xBD";
            } else {
                out += c;
            }
        }
    }
    return out;
}

std::string dtcStatusWords(uint32_t status) {
    if ((status & 0x01) != 0) {
        return (status & 0x08) != 0 ? "active, confirmed" : "active";
    }
    if ((status & 0x08) != 0) {
        return "confirmed";
    }
    return (status & 0x04) != 0 ? "pending" : "stored";
}

std::string renderHtml(const ReportJson& report) {
    const auto title = escapeHtml(text(report, "title"));
    std::string out = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                      "<title>" +
                      title + "</title>\n<style>" + style + "</style>\n</head>\n<body>\n<h1>" +
                      title + "</h1>\n";
    if (!text(report, "comment").empty()) {
        out += "<p class=\"comment\">" + escapeHtml(text(report, "comment")) + "</p>\n";
    }
    vehicleTable(out, report);
    if (report.contains("units")) {
        for (const auto& unit : report.at("units")) {
            unitSection(out, unit);
        }
    }
    if (report.contains("results")) {
        resultTable(out, report.at("results"));
    }
    out += "</body>\n</html>\n";
    return out;
}

std::string renderJson(const ReportJson& report) {
    return report.dump(2, ' ', false, ReportJson::error_handler_t::replace) + "\n";
}

} // namespace Varno::Kel_cpp::Reference
