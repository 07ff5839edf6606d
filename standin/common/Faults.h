#pragma once

#include "win32/Windows.h"

#include <string>

/// Failures on order: section [Faults] of the state file, one key per member name.
///   wCode N | scode 0xN | hresult 0xN | hang MS | busy MS | die     each may end in: first N
/// "<member>.Description" holds the description of the first two kinds.
namespace Faults {

enum class Kind { None, WCode, Scode, HResult, Hang, Busy, Die };

struct Fault {
    Kind Is = Kind::None;
    DWORD Value = 0; ///< the code, or milliseconds
    std::wstring Description;
};

/// The fault that a call of a member is to meet. Counts the call: "first N" ends with the N-th call to a process.
Fault Take(const std::wstring& member);

/// Makes the fault happen: throws a Failure, or hangs, or lets the server reject the calls that follow.
void Strike(const Fault& fault, const std::wstring& member);

/// True for the time that a "busy" fault has ordered. Calls are then answered with RPC_E_SERVERCALL_RETRYLATER: a
/// message filter would be the natural way, but Wine 8 hands a filter's rejection to the client as success.
bool Rejecting();

/// Names what ends the process in a "die" fault. Without it (a component inside its client) the fault is E_FAIL.
void SetDeath(void (*die)());
void Die();

} // namespace Faults
