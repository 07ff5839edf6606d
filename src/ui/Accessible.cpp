#include "ui/Accessible.h"

#include "win32/ComPtr.h"

#include <oleacc.h>

namespace {

// The service of oleacc.dll, and its property "accessible name" (both since Windows XP).
constexpr GUID kServices{0xb5f8350b, 0x0548, 0x48b1, {0xa6, 0xee, 0x88, 0xbd, 0x00, 0xb4, 0xa5, 0xe7}};
constexpr GUID kServicesInterface{0x6e26e776, 0x04f0, 0x495d, {0x80, 0xe4, 0x33, 0x30, 0x35, 0x2e, 0x31, 0x69}};
constexpr GUID kName{0x608d3df8, 0x8128, 0x4aa7, {0xa4, 0x28, 0xf5, 0x5e, 0x49, 0x26, 0x72, 0x91}};

} // namespace

namespace Accessible {

void Name(HWND control, const std::wstring& name) { ItemName(control, CHILDID_SELF, name); }

void ItemName(HWND control, int item, const std::wstring& name) {
    ComPtr<IAccPropServices> services;
    if (FAILED(CoCreateInstance(kServices, nullptr, CLSCTX_INPROC_SERVER, kServicesInterface, services.ReceiveVoid())))
        return;
    const auto child = static_cast<DWORD>(item);
    const auto object = static_cast<DWORD>(OBJID_CLIENT);
    if (name.empty())
        services->ClearHwndProps(control, object, child, &kName, 1);
    else
        services->SetHwndPropStr(control, object, child, kName, name.c_str());
}

} // namespace Accessible
