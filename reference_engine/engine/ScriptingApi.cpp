#include "DataRoot.h"
#include "Script.h"
#include "SimulatedVehicle.h"

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <filesystem>
#include <kel_sim.h>

using Varno::Kel_cpp::MvciServerError;
using Varno::Kel_cpp::TarnApiException;
using Varno::Kel_cpp::Reference::copyOut;
using Varno::Kel_cpp::Reference::Script;

namespace {

std::wstring text(const wchar_t* value) { return value != nullptr ? value : L""; }

} // namespace

int64_t Varno::Kel_cpp::Reference::copyOut(const std::string& value, char* buffer, size_t size) {
    if (buffer != nullptr && size > 0) {
        const size_t n = std::min(size - 1, value.size());
        std::memcpy(buffer, value.data(), n);
        buffer[n] = '\0';
    }
    return static_cast<int64_t>(value.size());
}

extern "C" {

void kelsim_failNext(const char* operation, uint32_t count, int32_t code, int32_t subCode,
                     const wchar_t* message, const wchar_t* details) {
    Script::global()->failNext(operation, count,
                               TarnApiException(code, text(message), text(details), subCode));
}

void kelsim_failNextWithMvci(const char* operation, uint32_t count, int32_t code, int32_t subCode,
                             const wchar_t* message, const wchar_t* details, int32_t mvciCode,
                             const wchar_t* mvciCodeText, int32_t vendorCode,
                             const wchar_t* vendorCodeText, const wchar_t* extraText,
                             int32_t extraCode) {
    auto mvci = std::make_shared<MvciServerError>();
    mvci->code = mvciCode;
    mvci->codeText = text(mvciCodeText);
    mvci->vendorCode = vendorCode;
    mvci->vendorCodeText = text(vendorCodeText);
    mvci->extraText = text(extraText);
    mvci->extraCode = extraCode;
    Script::global()->failNext(operation, count,
                               TarnApiException(code, text(message), text(details), subCode, mvci));
}

void kelsim_throwNext(const char* operation, uint32_t count, const char* what) {
    Script::global()->throwNext(operation, count, what != nullptr ? what : "");
}

void kelsim_setDelay(const char* operation, uint32_t milliseconds) {
    Script::global()->setDelay(operation, std::chrono::milliseconds(milliseconds));
}

int64_t kelsim_lastArguments(const char* operation, char* buffer, size_t size) {
    const auto arguments = Script::global()->lastArguments(operation);
    return arguments ? copyOut(*arguments, buffer, size) : -1;
}

int32_t kelsim_scriptResult(const char* operation, const char* json) {
    return Script::global()->scriptResult(operation != nullptr ? operation : "",
                                          json != nullptr ? json : "")
               ? 0
               : -1;
}

int64_t kelsim_lastScriptError(char* buffer, size_t size) {
    return copyOut(Script::global()->lastScriptError(), buffer, size);
}

uint64_t kelsim_callCount(const char* operation) { return Script::global()->callCount(operation); }

int32_t kelsim_postEvent(uint64_t handle, int32_t kind, int32_t code, const wchar_t* eventText,
                         const wchar_t* detail, int32_t errorCode, const wchar_t* errorMessage) {
    const auto vehicle = Varno::Kel_cpp::Reference::vehicleByHandle(handle);
    if (!vehicle) {
        return -1;
    }
    std::shared_ptr<Varno::Kel_cpp::KelError> error;
    if (errorMessage != nullptr) {
        error = std::make_shared<Varno::Kel_cpp::KelError>();
        error->code = errorCode;
        error->message = errorMessage;
    }
    Varno::Kel_cpp::Reference::post(*vehicle, kind, code, text(eventText), text(detail),
                                    std::move(error));
    return 0;
}

void kelsim_restart(void) { Varno::Kel_cpp::Reference::restartLocalEngine(); }

void kelsim_reset(void) {
    Script::global()->reset();
    Varno::Kel_cpp::Reference::resetVehicleScripts();
    Varno::Kel_cpp::Reference::setDataRoot({});
}

void kelsim_setDataRoot(const wchar_t* folder) {
    Varno::Kel_cpp::Reference::setDataRoot(folder != nullptr
                                               ? Varno::Kel_cpp::Reference::pathFromWide(folder)
                                               : std::filesystem::path());
}

int64_t kelsim_dataRoot(wchar_t* buffer, size_t size) {
    try {
        const std::wstring root =
            Varno::Kel_cpp::Reference::wideFromPath(Varno::Kel_cpp::Reference::dataRoot());
        if (buffer != nullptr && size > 0) {
            const size_t n = std::min(size - 1, root.size());
            std::wmemcpy(buffer, root.data(), n);
            buffer[n] = L'\0';
        }
        return static_cast<int64_t>(root.size());
    } catch (const TarnApiException&) {
        return -1;
    }
}

} // extern "C"
