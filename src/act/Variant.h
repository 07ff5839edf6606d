#pragma once

#include "support/Error.h"
#include "win32/ComPtr.h"

#include <string>
#include <string_view>
#include <type_traits>

/// Owner of a VARIANT, with the conversions that late-bound calls need. Conversions that fail throw Error (13).
class Variant {
public:
    Variant() { VariantInit(&value_); }
    /// VT_BSTR
    explicit Variant(std::wstring_view text);
    /// VT_I2
    explicit Variant(short number);
    /// VT_I4
    explicit Variant(long number);
    /// VT_BOOL
    explicit Variant(bool truth);
    Variant(Variant&& other) noexcept;
    Variant& operator=(Variant&& other) noexcept;
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;
    ~Variant() { VariantClear(&value_); }

    VARTYPE Type() const { return value_.vt; }
    /// The value as text; an empty or null value is "".
    std::wstring Text(Where at = Where::current()) const;
    /// The value as a whole number; an empty value is 0.
    long Number(Where at = Where::current()) const;
    /// True for VARIANT_TRUE and for any number but 0.
    bool Truth(Where at = Where::current()) const { return Number(at) != 0; }
    /// The object. Error 91 when the value is none or a null one.
    ComPtr<IDispatch> Object(Where at = Where::current()) const;

    VARIANT* Receive();
    const VARIANT& Get() const { return value_; }

private:
    VARIANT value_;
};
