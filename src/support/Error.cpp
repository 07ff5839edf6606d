#include "support/Error.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

Error::Error(long number, std::wstring description, Where at, std::wstring procedure)
    : Number(number), Description(std::move(description)), At(at), Procedure(std::move(procedure)) {}

namespace {

struct KnownFailure {
    HRESULT code;
    long number;
};

constexpr HRESULT FromWin32(unsigned long code) { return static_cast<HRESULT>(0x80070000UL | (code & 0xFFFFUL)); }

constexpr std::array kKnownFailures{
    KnownFailure{REGDB_E_CLASSNOTREG, BasicError::CannotCreateObject},
    KnownFailure{CO_E_CLASSSTRING, BasicError::CannotCreateObject},
    KnownFailure{CO_E_SERVER_EXEC_FAILURE, BasicError::CannotCreateObject},
    KnownFailure{CLASS_E_CLASSNOTAVAILABLE, BasicError::CannotCreateObject},
    KnownFailure{DISP_E_UNKNOWNNAME, BasicError::NoSuchMember},
    KnownFailure{DISP_E_MEMBERNOTFOUND, BasicError::NoSuchMember},
    KnownFailure{DISP_E_TYPEMISMATCH, BasicError::TypeMismatch},
    KnownFailure{DISP_E_BADPARAMCOUNT, BasicError::WrongNumberOfArguments},
    KnownFailure{FromWin32(RPC_S_SERVER_UNAVAILABLE), BasicError::ServerUnavailable},
    KnownFailure{FromWin32(RPC_S_CALL_FAILED), BasicError::ServerUnavailable},
    KnownFailure{FromWin32(RPC_S_CALL_FAILED_DNE), BasicError::ServerUnavailable},
    KnownFailure{RPC_E_DISCONNECTED, BasicError::ServerUnavailable},
    KnownFailure{RPC_E_SERVER_DIED, BasicError::ServerUnavailable},
    KnownFailure{RPC_E_SERVER_DIED_DNE, BasicError::ServerUnavailable},
    KnownFailure{CO_E_OBJNOTCONNECTED, BasicError::ServerUnavailable},
    KnownFailure{E_OUTOFMEMORY, BasicError::OutOfMemory},
};

} // namespace

long ErrorNumber(HRESULT code) {
    const auto* const known = std::ranges::find(kKnownFailures, code, &KnownFailure::code);
    if (known != kKnownFailures.end()) return known->number;
    if (HRESULT_FACILITY(code) == FACILITY_CONTROL) return HRESULT_CODE(code);
    return code;
}

std::wstring SystemDescription(HRESULT code) {
    std::array<wchar_t, 512> buffer{};
    DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                  static_cast<DWORD>(code), 0, buffer.data(), buffer.size(), nullptr);
    while (length > 0 && (buffer[length - 1] == L'\n' || buffer[length - 1] == L'\r' || buffer[length - 1] == L' '))
        --length;
    return {buffer.data(), length};
}

void ThrowIfFailed(HRESULT code, Where at) {
    if (FAILED(code)) throw Error(ErrorNumber(code), SystemDescription(code), at);
}
