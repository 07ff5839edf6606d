// The system's helper writes the address of a late function into the table of imports at its first call. Newer linkers
// lay that table out for reading only, and the helper of their time does not know it yet.

#include "win32/Windows.h"

#include <delayimp.h>

namespace {

FARPROC WINAPI LetWrite(unsigned notice, PDelayLoadInfo info) {
    DWORD before = 0;
    if (notice == dliStartProcessing) VirtualProtect(info->ppfn, sizeof *info->ppfn, PAGE_READWRITE, &before);
    return nullptr;
}

} // namespace

PfnDliHook __pfnDliNotifyHook2 = &LetWrite; // NOLINT: the name is the helper's
