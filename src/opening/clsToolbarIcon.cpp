#include "opening/clsToolbarIcon.h"

#include "support/Application.h"
#include "support/Text.h"
#include "win32/AnsiText.h"
#include "win32/Owner.h"
#include "win32/Windows.h"

#include <array>
#include <utility>

namespace {

constexpr wchar_t kProbeName[] = L"test.dbf";

/// A file for the shell to look at, deleted at the end unless it was there before.
class ProbeFile {
public:
    explicit ProbeFile(std::wstring folder) : folder_(std::move(folder)), path_(Text::JoinPath(folder_, kProbeName)) {
        const FileHandle file(
            CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (!file) return;
        isOurs_ = true;
        DWORD written = 0;
        WriteFile(file.Get(), "x\r\n", 3, &written, nullptr);
    }
    ~ProbeFile() {
        if (isOurs_) DeleteFileW(path_.c_str());
    }
    ProbeFile(const ProbeFile&) = delete;
    ProbeFile& operator=(const ProbeFile&) = delete;

    bool Exists() const { return isOurs_ || GetFileAttributesW(path_.c_str()) != INVALID_FILE_ATTRIBUTES; }
    const std::wstring& Folder() const { return folder_; }

private:
    std::wstring folder_;
    std::wstring path_;
    bool isOurs_ = false;
};

std::wstring TemporaryFolder() {
    std::array<wchar_t, MAX_PATH + 1> folder{};
    GetTempPathW(MAX_PATH + 1, folder.data());
    return folder.data();
}

std::wstring AssociatedProgram(const std::wstring& folder) {
    constexpr INT_PTR kNoAssociation = 31; // SE_ERR_NOASSOC
    constexpr INT_PTR kFirstSuccess = 32;
    std::array<char, MAX_PATH> program{};
    program.fill(' ');
    const auto answer =
        reinterpret_cast<INT_PTR>(FindExecutableA(ToAnsi(kProbeName).c_str(), ToAnsi(folder).c_str(), program.data()));
    if (answer == kNoAssociation) return L"none";
    if (answer < kFirstSuccess) return {};
    const std::string_view text(program.data(), program.size());
    return ToWide(text.substr(0, text.find('\0')));
}

} // namespace

std::wstring clsToolbarIcon::GetACTLocation() const {
    const ProbeFile beside(Application::Folder());
    if (beside.Exists()) return AssociatedProgram(beside.Folder());
    // A program folder that the user may not write to, as under "Program Files".
    const ProbeFile temporary(TemporaryFolder());
    return AssociatedProgram(temporary.Folder());
}
