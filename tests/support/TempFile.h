#pragma once

#include "win32/Windows.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

/// A path for one file in a folder of its own, which goes with everything in it at the end. The file does not exist
/// yet.
class TempFile {
public:
    explicit TempFile(const wchar_t* name) {
        static int count = 0;
        const std::wstring folder =
            L"kelmorra-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++count);
        path_ = std::filesystem::temp_directory_path() / folder / name;
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
    std::string Bytes() const {
        std::ifstream file(path_, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void Bytes(std::string_view bytes) const {
        std::ofstream(path_, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }

private:
    std::filesystem::path path_;
};
