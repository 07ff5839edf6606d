#include "stores/Permissions.h"

#include "stores/Patience.h"

#include <vector>

namespace {

using Bytes = std::vector<BYTE>;

/// Reads the descriptor with a file's access list as the system hands it out. An error code.
DWORD Describe(const std::wstring& path, Bytes& descriptor) {
    DWORD size = 0;
    GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    descriptor.resize(size);
    const BOOL isRead =
        GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), size, &size) && size > 0;
    return isRead ? ERROR_SUCCESS : GetLastError();
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

DWORD CarryOver(const std::wstring& original, const std::wstring& copy) {
    Bytes wanted, present;
    // A file system without access lists has none to carry over.
    for (const DWORD error : {Describe(original, wanted), Describe(copy, present)})
        if (error != ERROR_SUCCESS) return Patience::IsOutage(error) ? error : ERROR_SUCCESS;
    if (OwnEntries(wanted) == OwnEntries(present)) return ERROR_SUCCESS;
    // Inherited entries stay known as such: a later change of the folder's reaches the file.
    constexpr SECURITY_DESCRIPTOR_CONTROL kInherits = SE_DACL_AUTO_INHERITED | SE_DACL_AUTO_INHERIT_REQ;
    if (ControlOf(wanted) & SE_DACL_AUTO_INHERITED) SetSecurityDescriptorControl(wanted.data(), kInherits, kInherits);
    return SetFileSecurityW(copy.c_str(), DACL_SECURITY_INFORMATION, wanted.data()) ? ERROR_SUCCESS : GetLastError();
}

} // namespace Permissions
