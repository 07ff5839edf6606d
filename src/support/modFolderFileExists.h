#pragma once

#include <string>

namespace modFolderFileExists {

/// True when an absolute path (with a drive, or of a share) names an existing file, folder or drive root. Relative
/// paths and the empty text name nothing.
bool FileExists(const std::wstring& path);

} // namespace modFolderFileExists
