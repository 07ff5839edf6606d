#include "support/TempFile.h"

#include "win32/Windows.h"

#include <fstream>
#include <iterator>

namespace {

std::filesystem::path NewFolder() {
    static int count = 0;
    const std::wstring name = L"kelmorra-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++count);
    std::filesystem::path folder = std::filesystem::temp_directory_path() / name;
    std::filesystem::create_directories(folder);
    return folder;
}

} // namespace

TempFile::TempFile(const wchar_t* name) : path_(NewFolder() / name) {}

TempFile::~TempFile() {
    std::error_code ignored;
    std::filesystem::remove_all(path_.parent_path(), ignored);
}

std::string TempFile::Bytes() const {
    std::ifstream file(path_, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void TempFile::Bytes(std::string_view bytes) const {
    std::ofstream(path_, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}
