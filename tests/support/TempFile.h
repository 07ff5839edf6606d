#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// A path for one file in a folder of its own, which goes with everything in it at the end. The file does not exist
/// yet.
class TempFile {
public:
    explicit TempFile(const wchar_t* name);
    ~TempFile();
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

    std::wstring Path() const { return path_.wstring(); }
    std::wstring Folder() const { return path_.parent_path().wstring(); }
    std::string Bytes() const;
    void Bytes(std::string_view bytes) const;

private:
    std::filesystem::path path_;
};
