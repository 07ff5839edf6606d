#pragma once

#include "win32/Windows.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

/// All bytes of a file; none when there is no such file.
inline std::string FileBytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}
/// Writes a file of these bytes.
inline void FileBytes(const std::filesystem::path& path, std::string_view bytes) {
    std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

/// A path for one file in a folder of its own, which goes with everything in it at the end. The file does not exist
/// yet.
class TempFile {
public:
    explicit TempFile(const wchar_t* name) {
        static int count = 0;
        const std::wstring folder =
            L"kelmorra-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++count);
        path_ = std::filesystem::temp_directory_path() / folder / name;
        std::filesystem::remove_all(path_.parent_path()); // left by a process of that number that was killed
        std::filesystem::create_directories(path_.parent_path());
    }
    ~TempFile() {
        std::error_code ignored;
        std::filesystem::remove_all(path_.parent_path(), ignored);
    }
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

    std::wstring Path() const { return path_.wstring(); }
    std::wstring Folder() const { return path_.parent_path().wstring(); }
    std::string Bytes() const { return FileBytes(path_); }
    void Bytes(std::string_view bytes) const { FileBytes(path_, bytes); }

private:
    std::filesystem::path path_;
};
