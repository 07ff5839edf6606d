#pragma once

#include "win32/Windows.h"

#include <exception>
#include <string>

/// A place in the source: as a last default argument it names the caller's line. The standard library's class would
/// also keep the names of file and function of every call in the program.
class Where {
public:
    static constexpr Where current(unsigned line = __builtin_LINE()) {
        Where here;
        here.line_ = line;
        return here;
    }
    constexpr unsigned line() const { return line_; }

private:
    unsigned line_ = 0;
};

/// A failure on its way to the report that the user sees.
struct Error : std::exception {
    Error(long number, std::wstring description, Where at = Where::current(), std::wstring procedure = {});
    const char* what() const noexcept override { return "Kelmorra error"; }

    long Number;              ///< the number shown to the user
    std::wstring Description; ///< the text shown between quotes
    Where At;                 ///< the failing statement
    std::wstring Procedure;   ///< the procedure to name instead of the reporting one; usually empty
};

/// Numbers that Basic programmers know, used where Windows has a failure of the same meaning.
namespace BasicError {
inline constexpr long InvalidCall = 5;
inline constexpr long OutOfMemory = 7;
inline constexpr long OutOfRange = 9;
inline constexpr long TypeMismatch = 13;
inline constexpr long FileNotAccessible = 75;
inline constexpr long ObjectNotSet = 91;
inline constexpr long CannotCreateObject = 429;
inline constexpr long NoSuchMember = 438;
inline constexpr long WrongNumberOfArguments = 450;
inline constexpr long ServerUnavailable = 462;
inline constexpr long FirstOfOurs = -2147221504; ///< vbObjectError, 0x80040000: errors that a program defines itself
} // namespace BasicError

/// The number shown to the user for a failure code: the Basic number of a well-known COM failure, the low 16 bits of a
/// code of FACILITY_CONTROL (0x800A005B is 91), else the code itself as a signed number.
long ErrorNumber(HRESULT code);

/// The system's description of a failure code in the user's language, without a line end; "" when it has none.
std::wstring SystemDescription(HRESULT code);

/// Throws an Error made of a failure code when the code is one.
void ThrowIfFailed(HRESULT code, Where at = Where::current());
