#include "common/Value.h"

#include "support/Error.h"

#include <array>
#include <cwchar>

namespace {

struct TypeName {
    VARTYPE type;
    const wchar_t* name;
};

constexpr TypeName kTypeNames[] = {
    {VT_EMPTY, L"VT_EMPTY"},     {VT_NULL, L"VT_NULL"},
    {VT_I2, L"VT_I2"},           {VT_I4, L"VT_I4"},
    {VT_R4, L"VT_R4"},           {VT_R8, L"VT_R8"},
    {VT_CY, L"VT_CY"},           {VT_DATE, L"VT_DATE"},
    {VT_BSTR, L"VT_BSTR"},       {VT_DISPATCH, L"VT_DISPATCH"},
    {VT_ERROR, L"VT_ERROR"},     {VT_BOOL, L"VT_BOOL"},
    {VT_VARIANT, L"VT_VARIANT"}, {VT_UNKNOWN, L"VT_UNKNOWN"},
    {VT_UI1, L"VT_UI1"},         {VT_UI2, L"VT_UI2"},
    {VT_UI4, L"VT_UI4"},         {VT_INT, L"VT_INT"},
};

std::wstring NameOfType(VARTYPE type) {
    const VARTYPE plain = type & VT_TYPEMASK;
    std::wstring name = L"VT_" + std::to_wstring(plain);
    for (const TypeName& known : kTypeNames)
        if (known.type == plain) name = known.name;
    if (type & VT_ARRAY) name = L"VT_ARRAY|" + name;
    return type & VT_BYREF ? L"VT_BYREF|" + name : name;
}

std::wstring Quoted(std::wstring_view text) {
    std::wstring quoted = L"\"";
    for (const wchar_t character : text) {
        std::array<wchar_t, 8> code{};
        if (character < L' ') std::swprintf(code.data(), code.size(), L"{%02X}", static_cast<unsigned>(character));
        if (character < L' ')
            quoted += code.data();
        else
            quoted.append(character == L'"' ? 2 : 1, character);
    }
    return quoted + L'"';
}

/// The value alone; "" for one that has no short text.
std::wstring ValueText(const VARIANT& value) {
    const std::optional<Value> plain = Value::Converted(value, VT_VARIANT);
    if (!plain) return {};
    switch (plain->Get().vt) {
    case VT_BSTR: return Quoted(plain->AsText());
    case VT_BOOL: return plain->AsFlag() ? L"True" : L"False";
    case VT_EMPTY:
    case VT_NULL:
    case VT_ERROR:
    case VT_DISPATCH:
    case VT_UNKNOWN: return {};
    default: break;
    }
    const std::optional<Value> text = Value::Converted(plain->Get(), VT_BSTR);
    return text ? text->AsText() : std::wstring();
}

} // namespace

Value Value::Text(std::wstring_view text) {
    Value made;
    made.value_.vt = VT_BSTR;
    made.value_.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (!made.value_.bstrVal) ThrowIfFailed(E_OUTOFMEMORY);
    return made;
}

Value Value::Short(short number) {
    Value made;
    made.value_.vt = VT_I2;
    made.value_.iVal = number;
    return made;
}

Value Value::Long(long number) {
    Value made;
    made.value_.vt = VT_I4;
    made.value_.lVal = number;
    return made;
}

Value Value::Flag(bool flag) {
    Value made;
    made.value_.vt = VT_BOOL;
    made.value_.boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
    return made;
}

Value Value::Object(ComPtr<IDispatch> object) {
    Value made;
    made.value_.vt = VT_DISPATCH;
    made.value_.pdispVal = object.Detach();
    return made;
}

std::optional<Value> Value::Converted(const VARIANT& source, VARTYPE type) {
    std::optional<Value> made(std::in_place);
    if (FAILED(VariantCopyInd(&made->value_, const_cast<VARIANT*>(&source)))) return std::nullopt;
    if (type == VT_VARIANT || made->value_.vt == type) return made;
    if (FAILED(VariantChangeType(&made->value_, &made->value_, 0, type))) return std::nullopt;
    return made;
}

std::wstring Value::AsText() const {
    if (value_.vt != VT_BSTR || !value_.bstrVal) return {};
    return {value_.bstrVal, SysStringLen(value_.bstrVal)};
}

long Value::AsNumber() const { return value_.vt == VT_I2 ? value_.iVal : value_.vt == VT_I4 ? value_.lVal : 0; }

bool Value::AsFlag() const { return value_.vt == VT_BOOL && value_.boolVal != VARIANT_FALSE; }

VARIANT Value::Detach() noexcept {
    const VARIANT given = value_;
    VariantInit(&value_);
    return given;
}

std::wstring Describe(const VARIANT& value) {
    if (value.vt == (VT_BYREF | VT_VARIANT) && value.pvarVal)
        return L"VT_BYREF|VT_VARIANT(" + Describe(*value.pvarVal) + L")";
    const std::wstring text = ValueText(value);
    return text.empty() ? NameOfType(value.vt) : NameOfType(value.vt) + L' ' + text;
}
