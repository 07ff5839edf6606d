#pragma once

#include "win32/ComPtr.h"
#include "win32/Windows.h"

#include <optional>
#include <string>
#include <string_view>

/// Owner of a VARIANT.
class Value {
public:
    Value() { VariantInit(&value_); }
    Value(Value&& other) noexcept : value_(other.Detach()) {}
    Value& operator=(Value&& other) noexcept {
        if (this != &other) {
            VariantClear(&value_);
            value_ = other.Detach();
        }
        return *this;
    }
    Value(const Value&) = delete;
    Value& operator=(const Value&) = delete;
    ~Value() { VariantClear(&value_); }

    static Value Text(std::wstring_view text);
    static Value Short(short number);
    static Value Long(long number);
    static Value Flag(bool flag);
    static Value Object(ComPtr<IDispatch> object);
    /// A copy without indirection, coerced to a type (VT_VARIANT: as it comes); nothing when that is not possible.
    static std::optional<Value> Converted(const VARIANT& source, VARTYPE type);

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
