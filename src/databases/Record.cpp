#include "databases/Record.h"

DatabaseRecord ExtractInfo(const IniLib::Reading& stored, const std::wstring& name) {
    return {stored.Value(name, Keys::Path), stored.Value(name, Keys::ContactLayout),
            stored.Value(name, Keys::GroupLayout), stored.Value(name, Keys::OpeningMacro)};
}

Folders OwnFolders(const IniLib::Reading& stored, const std::wstring& name) {
    Folders folders;
    for (size_t index = 0; index < folders.size(); ++index) folders[index] = stored.Value(name, Keys::Locations[index]);
    return folders;
}

Folders UsedFolders(const IniLib::Reading& stored, const std::wstring& name) {
    const std::wstring lender = stored.Value(name, Keys::UseLocationsFrom);
    return OwnFolders(stored, lender.empty() ? name : lender);
}
