#pragma once

#include "win32/ComPtr.h"
#include "win32/Windows.h"

#include <optional>
#include <string>
#include <string_view>

/// Owner of a VARIANT.
class Variant {
public:
    Variant() { VariantInit(&value_); }
    Variant(Variant&& other) noexcept : value_(other.Detach()) {}
    Variant& operator=(Variant&& other) noexcept {
        if (this != &other) {
            VariantClear(&value_);
            value_ = other.Detach();
        }
        return *this;
    }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;
    ~Variant() { VariantClear(&value_); }

    static Variant Text(std::wstring_view text);
    static Variant Short(short number);
    static Variant Long(long number);
    static Variant Flag(bool flag);
    static Variant Object(ComPtr<IDispatch> object);
    /// A copy without indirection, coerced to a type (VT_VARIANT: as it comes); nothing when that is not possible.
    static std::optional<Variant> Converted(const VARIANT& source, VARTYPE type);

    const VARIANT& Get() const { return value_; }
    std::wstring AsText() const;
    long AsNumber() const;
    bool AsFlag() const;
    /// Gives the value away; the caller clears it.
    VARIANT Detach() noexcept;

private:
    VARIANT value_;
};

/// A value as the journal shows it: type name and value, such as VT_I2 3, VT_BSTR "V" or VT_BOOL True. Quotes inside
/// a text are doubled, control characters become their number in braces.
std::wstring Describe(const VARIANT& value);
