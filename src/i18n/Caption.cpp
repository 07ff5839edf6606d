#include "i18n/Caption.h"

#include "support/Text.h"

namespace Caption {

std::wstring Plain(const std::wstring& caption) { return Text::Replace(caption, L"&", L""); }

std::wstring WithDots(const std::wstring& caption) { return caption + L"..."; }

} // namespace Caption
