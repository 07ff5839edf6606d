#pragma once

#include "common/Value.h"

#include <array>
#include <span>
#include <string>
#include <vector>

/// Thrown to fail a call: as DISP_E_EXCEPTION with EXCEPINFO, or as a plain code.
struct Failure {
    HRESULT Code = DISP_E_EXCEPTION;
    WORD Number = 0; ///< EXCEPINFO.wCode
    SCODE Scode = 0; ///< EXCEPINFO.scode
    std::wstring Description{};
    UINT Argument = 0; ///< for DISP_E_TYPEMISMATCH: the place counted from the last argument
};

/// Fails a call with one of Basic's error numbers.
[[noreturn]] void Fail(WORD number, const std::wstring& description);

/// The arguments of a call in call order, coerced to the types that the member's row asks for.
using Arguments = std::vector<Value>;

class Automation;

/// A row of an object's table. The number of a member (its DISPID) is its place in the table, counted from 1.
struct MemberRow {
    const wchar_t* Name;
    WORD Accepts;                      ///< DISPATCH_ flags; a call must come with one of them
    std::array<VARTYPE, 8> Parameters; ///< VT_EMPTY ends the list
    Value (*Handler)(Automation& object, const Arguments& arguments);
    void (*Put)(Automation& object, const Value& value);
};

inline constexpr WORD kMethod = DISPATCH_METHOD;
inline constexpr WORD kProperty = DISPATCH_PROPERTYGET;
inline constexpr WORD kEither = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
inline constexpr WORD kReadWrite = DISPATCH_PROPERTYGET | DISPATCH_PROPERTYPUT;

/// A late-bound object made of a table of members. Every call is written to the journal and may meet a fault on order.
class Automation : public IDispatch {
public:
    /// `name` is the journal's name for the object.
    Automation(const wchar_t* name, std::span<const MemberRow> members);
    Automation(const Automation&) = delete;
    Automation& operator=(const Automation&) = delete;
    virtual ~Automation();

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR** names, UINT count, LCID locale, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* exception, UINT* badArgument) override;

    /// Objects alive in this program or library.
    static long Count();

private:
    const MemberRow* MemberOf(DISPID id) const;
    DISPID IdOf(const wchar_t* name) const;
    Value Perform(const MemberRow* member, WORD flags, const DISPPARAMS& parameters);

    const wchar_t* name_;
    std::span<const MemberRow> members_;
    ULONG references_ = 1;
};
