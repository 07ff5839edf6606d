#include "act/Variant.h"

#include <utility>

namespace {

void ChangeType(VARIANT& target, VARIANT source, VARTYPE type, Where at) {
    ThrowIfFailed(VariantChangeType(&target, &source, 0, type), at); // `source` is a shallow copy: it owns nothing
}

} // namespace

Variant::Variant(std::wstring_view text) : Variant() {
    value_.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (!value_.bstrVal) ThrowIfFailed(E_OUTOFMEMORY);
    value_.vt = VT_BSTR;
}

Variant::Variant(short number) : Variant() {
    value_.vt = VT_I2;
    value_.iVal = number;
}

Variant::Variant(long number) : Variant() {
    value_.vt = VT_I4;
    value_.lVal = number;
}

Variant::Variant(bool truth) : Variant() {
    value_.vt = VT_BOOL;
    value_.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
}

Variant::Variant(Variant&& other) noexcept : Variant() { std::swap(value_, other.value_); }

Variant& Variant::operator=(Variant&& other) noexcept {
    std::swap(value_, other.value_);
    return *this;
}

VARIANT* Variant::Receive() {
    VariantClear(&value_);
    return &value_;
}

std::wstring Variant::Text(Where at) const {
    if (value_.vt == VT_EMPTY || value_.vt == VT_NULL) return {};
    Variant text;
    ChangeType(text.value_, value_, VT_BSTR, at);
    return text.value_.bstrVal ? std::wstring(text.value_.bstrVal, SysStringLen(text.value_.bstrVal)) : std::wstring();
}

long Variant::Number(Where at) const {
    Variant number;
    ChangeType(number.value_, value_, VT_I4, at);
    return number.value_.lVal;
}

ComPtr<IDispatch> Variant::Object(Where at) const {
    const bool isObject = value_.vt == VT_DISPATCH || value_.vt == VT_UNKNOWN;
    ComPtr<IDispatch> object;
    if (isObject && value_.punkVal) value_.punkVal->QueryInterface(IID_IDispatch, object.ReceiveVoid());
    if (!object) throw Error(BasicError::ObjectNotSet, L"Object variable or With block variable not set", at);
    return object;
}
