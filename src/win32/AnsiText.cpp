#include "win32/AnsiText.h"

#include "win32/Windows.h"

std::string ToAnsi(std::wstring_view text) {
    if (text.empty()) return {};
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, 0, text.data(), length, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

namespace {

std::wstring Widened(std::string_view bytes, UINT codePage) {
    if (bytes.empty()) return {};
    const int size = static_cast<int>(bytes.size());
    std::wstring text(bytes.size(), L'\0'); // no byte becomes more than one character
    text.resize(static_cast<size_t>(MultiByteToWideChar(codePage, 0, bytes.data(), size, text.data(), size)));
    return text;
}

} // namespace

std::wstring ToWide(std::string_view bytes) { return Widened(bytes, CP_ACP); }
std::wstring FromUtf8(std::string_view bytes) { return Widened(bytes, CP_UTF8); }
