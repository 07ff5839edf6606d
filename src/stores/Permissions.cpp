#include "stores/Permissions.h"

#include "win32/Windows.h"

#include <vector>

namespace {

using Bytes = std::vector<BYTE>;

/// The descriptor with a file's access list as the system hands it out; empty when it has none to give.
Bytes Descriptor(const std::wstring& path) {
    DWORD size = 0;
    GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    Bytes descriptor(size);
    if (!GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), size, &size)) return {};
    return descriptor;
}

SECURITY_DESCRIPTOR_CONTROL ControlOf(Bytes& descriptor) {
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    GetSecurityDescriptorControl(descriptor.data(), &control, &revision);
    return control;
}

/// What a file has of its own: whether it inherits at all, and the entries that it has not inherited.
Bytes OwnEntries(Bytes& descriptor) {
    Bytes own(1, (ControlOf(descriptor) & SE_DACL_PROTECTED) != 0);
    BOOL isThere = FALSE, isDefault = FALSE;
    ACL* list = nullptr;
    if (!GetSecurityDescriptorDacl(descriptor.data(), &isThere, &list, &isDefault) || !isThere || !list) return own;
    for (DWORD index = 0; index < list->AceCount; ++index) {
        void* entry = nullptr;
        if (!GetAce(list, index, &entry)) continue;
        const auto& header = *static_cast<const ACE_HEADER*>(entry);
        const BYTE* const bytes = static_cast<const BYTE*>(entry);
        if ((header.AceFlags & INHERITED_ACE) == 0) own.insert(own.end(), bytes, bytes + header.AceSize);
    }
    return own;
}

} // namespace

namespace Permissions {

bool CarryOver(const std::wstring& original, const std::wstring& copy) {
    Bytes wanted = Descriptor(original);
    Bytes present = Descriptor(copy);
    if (wanted.empty()) return true;
    if (present.empty()) return false;
    if (OwnEntries(wanted) == OwnEntries(present)) return true;
    // Inherited entries stay known as such: a later change of the folder's reaches the file.
    constexpr SECURITY_DESCRIPTOR_CONTROL kInherits = SE_DACL_AUTO_INHERITED | SE_DACL_AUTO_INHERIT_REQ;
    if (ControlOf(wanted) & SE_DACL_AUTO_INHERITED) SetSecurityDescriptorControl(wanted.data(), kInherits, kInherits);
    return SetFileSecurityW(copy.c_str(), DACL_SECURITY_INFORMATION, wanted.data()) != FALSE;
}

} // namespace Permissions
