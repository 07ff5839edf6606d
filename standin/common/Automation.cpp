#include "common/Automation.h"

#include "common/Faults.h"
#include "common/Journal.h"
#include "support/Text.h"
#include "win32/Owner.h"

#include <algorithm>
#include <cwchar>

namespace {

long objectCount = 0;

struct FlagName {
    WORD flag;
    const wchar_t* name;
};

constexpr FlagName kFlagNames[] = {
    {DISPATCH_METHOD, L"METHOD"},
    {DISPATCH_PROPERTYGET, L"GET"},
    {DISPATCH_PROPERTYPUT, L"PUT"},
    {DISPATCH_PROPERTYPUTREF, L"PUTREF"},
};

std::wstring FlagText(WORD flags) {
    std::wstring text;
    for (const FlagName& known : kFlagNames)
        if (flags & known.flag) text += (text.empty() ? L"" : L"|") + std::wstring(known.name);
    return text;
}

std::wstring ArgumentText(const DISPPARAMS& parameters) {
    std::wstring text;
    for (UINT index = parameters.cArgs; index > 0; --index)
        text += (text.empty() ? L"" : L", ") + Describe(parameters.rgvarg[index - 1]);
    return text;
}

std::wstring Hexadecimal(HRESULT code) {
    std::array<wchar_t, 16> text{};
    std::swprintf(text.data(), text.size(), L"0x%08lX", static_cast<unsigned long>(code));
    return text.data();
}

std::wstring FailureText(const Failure& failure) {
    std::wstring text = L"-> error " + Hexadecimal(failure.Code);
    if (failure.Code != DISP_E_EXCEPTION) return text;
    text += failure.Number ? L" wCode=" + std::to_wstring(failure.Number) : L" scode=" + Hexadecimal(failure.Scode);
    return text + L" \"" + failure.Description + L'"';
}

void FillIn(EXCEPINFO& exception, const Failure& failure) {
    exception = {};
    exception.wCode = failure.Number;
    exception.scode = failure.Scode;
    exception.bstrSource = SysAllocString(L"ACT! stand-in");
    exception.bstrDescription = SysAllocString(failure.Description.c_str());
}

size_t ParameterCount(const MemberRow& member) {
    const auto* const end = std::ranges::find(member.Parameters, static_cast<VARTYPE>(VT_EMPTY));
    return static_cast<size_t>(end - member.Parameters.begin());
}

Arguments Coerced(const MemberRow& member, const DISPPARAMS& parameters) {
    if (parameters.cNamedArgs != 0) throw Failure{.Code = DISP_E_NONAMEDARGS};
    if (parameters.cArgs != ParameterCount(member)) throw Failure{.Code = DISP_E_BADPARAMCOUNT};
    Arguments arguments;
    for (UINT index = 0; index < parameters.cArgs; ++index) {
        const UINT place = parameters.cArgs - 1 - index;
        std::optional<Value> value = Value::Converted(parameters.rgvarg[place], member.Parameters[index]);
        if (!value) throw Failure{.Code = DISP_E_TYPEMISMATCH, .Argument = place};
        arguments.push_back(std::move(*value));
    }
    return arguments;
}

Value PutValue(const DISPPARAMS& parameters) {
    if (parameters.cArgs != 1) throw Failure{.Code = DISP_E_BADPARAMCOUNT};
    if (parameters.cNamedArgs != 1 || parameters.rgdispidNamedArgs[0] != DISPID_PROPERTYPUT)
        throw Failure{.Code = DISP_E_PARAMNOTFOUND};
    // All properties that can be written hold text.
    std::optional<Value> value = Value::Converted(parameters.rgvarg[0], VT_BSTR);
    if (!value) throw Failure{.Code = DISP_E_TYPEMISMATCH};
    return std::move(*value);
}

} // namespace

void Fail(WORD number, const std::wstring& description) {
    throw Failure{.Scode = MAKE_SCODE(SEVERITY_ERROR, FACILITY_CONTROL, number), .Description = description};
}

Automation::Automation(const wchar_t* name, std::span<const MemberRow> members) : name_(name), members_(members) {
    ++objectCount;
}

Automation::~Automation() { --objectCount; }

long Automation::Count() { return objectCount; }

STDMETHODIMP Automation::QueryInterface(REFIID iid, void** object) {
    const bool known = iid == IID_IUnknown || iid == IID_IDispatch;
    *object = known ? static_cast<IDispatch*>(this) : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) Automation::AddRef() { return ++references_; }

STDMETHODIMP_(ULONG) Automation::Release() {
    const ULONG left = --references_;
    if (left == 0) const Owned<Automation> last(this);
    return left;
}

STDMETHODIMP Automation::GetTypeInfoCount(UINT* count) {
    *count = 0;
    return S_OK;
}

STDMETHODIMP Automation::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    *info = nullptr;
    return E_NOTIMPL;
}

DISPID Automation::IdOf(const wchar_t* name) const {
    for (size_t index = 0; index < members_.size(); ++index)
        if (Text::EqualNoCase(members_[index].Name, name)) return static_cast<DISPID>(index) + 1;
    return DISPID_UNKNOWN;
}

const MemberRow* Automation::MemberOf(DISPID id) const {
    return id >= 1 && static_cast<size_t>(id) <= members_.size() ? &members_[static_cast<size_t>(id) - 1] : nullptr;
}

STDMETHODIMP Automation::GetIDsOfNames(REFIID, OLECHAR** names, UINT count, LCID, DISPID* ids) {
    // No member has named arguments: what follows the first name is unknown.
    std::fill_n(ids, count, DISPID_UNKNOWN);
    if (count > 0) ids[0] = IdOf(names[0]);
    if (count == 1 && ids[0] != DISPID_UNKNOWN) return S_OK;
    Journal::Write({{}, name_, names[0], L"NAME", {}, FailureText({.Code = DISP_E_UNKNOWNNAME})});
    return DISP_E_UNKNOWNNAME;
}

Value Automation::Perform(const MemberRow* member, WORD flags, const DISPPARAMS& parameters) {
    if (!member || !(flags & member->Accepts)) throw Failure{.Code = DISP_E_MEMBERNOTFOUND};
    if (!(flags & DISPATCH_PROPERTYPUT)) return member->Handler(*this, Coerced(*member, parameters));
    member->Put(*this, PutValue(parameters));
    return {};
}

STDMETHODIMP Automation::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                                EXCEPINFO* exception, UINT* badArgument) {
    // A handler may let go of the object.
    const ComPtr<Automation> alive = ComPtr<Automation>::Share(this);
    const MemberRow* const member = MemberOf(id);
    Journal::Entry entry{
        {}, name_, member ? member->Name : std::to_wstring(id), FlagText(flags), ArgumentText(*parameters), {}};
    try {
        if (Faults::Rejecting()) throw Failure{.Code = RPC_E_SERVERCALL_RETRYLATER};
        const Faults::Fault fault = Faults::Take(entry.Member);
        if (fault.Is == Faults::Kind::Die) {
            entry.Result = L"-> died";
            Journal::Write(entry);
            Faults::Die();
        }
        Faults::Strike(fault, entry.Member);
        Value value = Perform(member, flags, *parameters);
        entry.Result = L"-> " + Describe(value.Get());
        Journal::Write(entry);
        if (result) *result = value.Detach();
        return S_OK;
    } catch (const Failure& failure) {
        entry.Result = FailureText(failure);
        Journal::Write(entry);
        if (exception && failure.Code == DISP_E_EXCEPTION) FillIn(*exception, failure);
        if (badArgument) *badArgument = failure.Argument;
        return failure.Code;
    } catch (...) {
        return E_OUTOFMEMORY;
    }
}
