#pragma once

#include "win32/Windows.h"

/// The class objects through which COM reaches this process. They must be revoked on every way out: rpcss keeps the
/// entry of a server that dies, and every later creation fails until it is restarted.
namespace ClassObjects {

HRESULT Register();
/// May be called more than once.
void Revoke();
/// Revokes and ends the process on the spot, as a crash would.
void RevokeAndDie();

} // namespace ClassObjects
