#pragma once

#include "win32/Windows.h"

/// While one lives, the program's own calls of an imported function go elsewhere. `slot` is where the import table has
/// the function's address: `__imp_` and its decorated name.
template <class Function>
class Detour {
public:
    Detour(Function& slot, Function other) : slot_(slot), real_(slot) { Lead(other); }
    ~Detour() { Lead(real_); }
    Detour(const Detour&) = delete;
    Detour& operator=(const Detour&) = delete;

private:
    void Lead(Function function) const {
        DWORD protection = 0;
        VirtualProtect(&slot_, sizeof slot_, PAGE_READWRITE, &protection);
        slot_ = function;
        VirtualProtect(&slot_, sizeof slot_, protection, &protection);
    }

    Function& slot_;
    Function real_;
};
