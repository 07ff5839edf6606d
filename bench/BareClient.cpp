// A client of ACT! that does nothing else: the calls and writes of a start, or of a start and an open, one after
// another by plain IDispatch and plain Windows.
//   bench_client                              the calls of a start; the exit code is what they took, in microseconds
//   bench_client SETTINGS-FILE NAME HELPER    connects, shows a window, opens the database of that name at WM_APP

#include "Locations.h"
#include "win32/ComPtr.h"
#include "win32/Owner.h"

#include <shellapi.h>

#include <algorithm>
#include <string>

namespace {

using Object = ComPtr<IDispatch>;

constexpr wchar_t kUser[] = L"Software\\VB and VBA Program Settings\\Kelmorra\\";
/// Listens to the event component; it lives as long as the process.
class Sink final : public IDispatch {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override {
        *object = this;
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }
};

void Require(bool holds) {
    if (!holds) ExitProcess(0); // no time at all: the bench takes it for a failure
}

Object Create(const wchar_t* progId) {
    CLSID classId{};
    Object object;
    CLSIDFromProgID(progId, &classId);
    CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_IDispatch, object.ReceiveVoid());
    Require(static_cast<bool>(object));
    return object;
}

VARIANT Text(const std::wstring& text) {
    VARIANT value{};
    value.vt = VT_BSTR;
    value.bstrVal = SysAllocString(text.c_str());
    return value;
}

VARIANT Number(long number) {
    VARIANT value{};
    value.vt = VT_I4;
    value.lVal = number;
    return value;
}

/// One call by name. What it returns is the caller's.
VARIANT Invoke(const Object& object, const wchar_t* name, WORD flags, VARIANT* argument = nullptr) {
    std::wstring member = name;
    LPOLESTR names = member.data();
    DISPID identifier = DISPID_UNKNOWN;
    DISPID put = DISPID_PROPERTYPUT;
    object->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &identifier);
    DISPPARAMS parameters{argument, nullptr, argument ? 1U : 0U, 0};
    if (flags == DISPATCH_PROPERTYPUT) {
        parameters.rgdispidNamedArgs = &put;
        parameters.cNamedArgs = 1;
    }
    VARIANT result{};
    VARIANT* const wanted = (flags & DISPATCH_PROPERTYGET) != 0 ? &result : nullptr;
    Require(SUCCEEDED(
        object->Invoke(identifier, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, wanted, nullptr, nullptr)));
    if (argument) VariantClear(argument);
    return result;
}

VARIANT Get(const Object& object, const wchar_t* name, VARIANT* argument = nullptr) {
    return Invoke(object, name, DISPATCH_METHOD | DISPATCH_PROPERTYGET, argument);
}

void Ask(const Object& object, const wchar_t* name, VARIANT argument = {}) {
    VARIANT answer = Get(object, name, argument.vt == VT_EMPTY ? nullptr : &argument);
    VariantClear(&answer);
}

void Put(const Object& object, const wchar_t* name, const std::wstring& text) {
    VARIANT argument = Text(text);
    Invoke(object, name, DISPATCH_PROPERTYPUT, &argument);
}

void Do(const Object& object, const wchar_t* name, const std::wstring& text) {
    VARIANT argument = Text(text);
    Invoke(object, name, DISPATCH_METHOD, &argument);
}

struct Connection {
    Object Event, Application, Views, Preferences;
};

void Listen(const Object& event) {
    static Sink sink;
    DWORD cookie = 0;
    ComPtr<IEnumConnectionPoints> points;
    ComPtr<IConnectionPoint> point;
    if (const auto control = event.As<IOleObject>(IID_IOleObject)) control->SetClientSite(nullptr);
    event.As<IConnectionPointContainer>(IID_IConnectionPointContainer)->EnumConnectionPoints(points.Receive());
    points->Next(1, point.Receive(), nullptr);
    point->Advise(&sink, &cookie);
}

Connection Connect() {
    OleInitialize(nullptr);
    Connection act;
    act.Event = Create(L"ACTEVENTLib.ActEvent");
    Listen(act.Event);
    Ask(act.Event, L"InstanceCount");
    act.Application = Create(L"ACTOLE.APPOBJECT");
    Do(act.Application, L"OpenFile", L"");
    act.Views = Object(Get(act.Application, L"Views").pdispVal);
    act.Preferences = Object(Get(act.Application, L"Preferences").pdispVal);
    Ask(act.Application, L"GetCurrentUserName");
    for (const wchar_t* name : {L"DefaultContactLayout", L"DefaultGroupLayout", L"StartupMacro"})
        Ask(act.Preferences, name);
    for (const long kind : {0, 6, 7}) Ask(act.Preferences, L"GetDefaultLocation", Number(kind));
    Ask(act.Application, L"GetOpenDBName");
    return act;
}

std::string Ansi(const std::wstring& text) {
    std::string bytes(text.size() * 2, '\0');
    const int size = WideCharToMultiByte(CP_ACP, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                                         static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<size_t>(size));
    return bytes;
}

std::wstring Wide(const std::string& bytes) {
    std::wstring text(bytes.size(), L'\0');
    text.resize(static_cast<size_t>(MultiByteToWideChar(CP_ACP, 0, bytes.data(), static_cast<int>(bytes.size()),
                                                        text.data(), static_cast<int>(text.size()))));
    return text;
}

std::string ReadSetting(const std::wstring& file, const std::wstring& section, const char* key) {
    std::string value(1000, '\0');
    value.resize(GetPrivateProfileStringA(Ansi(section).c_str(), key, "", value.data(), 999, Ansi(file).c_str()));
    return value;
}

void WriteLocation(const char* name, const std::string& folder) {
    RegistryKey key;
    if (folder.empty() || RegOpenKeyExW(HKEY_CURRENT_USER, L"Software\\Symantec\\ACT!", 0, KEY_WRITE, key.Receive()))
        return;
    RegSetValueExA(key.Get(), (std::string(name) + " File Type").c_str(), 0, REG_SZ,
                   reinterpret_cast<const BYTE*>(folder.c_str()), static_cast<DWORD>(folder.size()));
}

void CopyUserValue(const std::wstring& fromSection, const wchar_t* fromKey, const std::wstring& section,
                   const wchar_t* name) {
    wchar_t text[256]{};
    DWORD size = sizeof text - sizeof(wchar_t);
    RegistryKey from, to;
    if (!RegOpenKeyExW(HKEY_CURRENT_USER, (kUser + fromSection).c_str(), 0, KEY_READ, from.Receive()))
        RegQueryValueExW(from.Get(), fromKey, nullptr, nullptr, reinterpret_cast<BYTE*>(text), &size);
    RegCreateKeyExW(HKEY_CURRENT_USER, (kUser + section).c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, to.Receive(),
                    nullptr);
    const auto length = static_cast<DWORD>((std::wstring_view(text).size() + 1) * sizeof(wchar_t));
    RegSetValueExW(to.Get(), name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text), length);
}

void StartHelper(const std::wstring& program) {
    SHELLEXECUTEINFOW execute{};
    execute.cbSize = sizeof execute;
    execute.fMask = SEE_MASK_FLAG_NO_UI;
    execute.lpVerb = L"open";
    execute.lpFile = program.c_str();
    execute.nShow = SW_SHOWNORMAL;
    ShellExecuteExW(&execute);
}

void Open(const Connection& act, const std::wstring& file, const std::wstring& name, const std::wstring& helper) {
    const std::string path = ReadSetting(file, name, "Path");
    const std::string contact = ReadSetting(file, name, "CLY");
    const std::string group = ReadSetting(file, name, "GLY");
    ReadSetting(file, name, "StartupMacro");
    Put(act.Preferences, L"DefaultContactLayout", Wide(contact));
    Put(act.Preferences, L"DefaultGroupLayout", Wide(group));
    ReadSetting(file, name, "UseLocationsFrom");
    for (const char* location : Locations) WriteLocation(location, ReadSetting(file, name, location));
    for (const wchar_t* key : {L"UsePassword", L"Username", L"Password"}) CopyUserValue(name, key, L"Logon", key);
    CopyUserValue(name, L"Username", L"Settings", L"Last Username");
    StartHelper(helper);
    Do(act.Application, L"openDB", Wide(path));
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    LARGE_INTEGER frequency{}, start{}, end{};
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&start);
    const Connection act = Connect();
    QueryPerformanceCounter(&end);
    if (__argc == 4) {
        CreateWindowExW(0, L"STATIC", L"Bare client", WS_OVERLAPPED | WS_VISIBLE, 0, 0, 100, 50, nullptr, nullptr,
                        nullptr, nullptr);
        MSG message{};
        while (message.message != WM_APP && message.message != WM_CLOSE && GetMessageW(&message, nullptr, 0, 0) > 0)
            DispatchMessageW(&message);
        if (message.message == WM_APP) Open(act, __wargv[1], __wargv[2], __wargv[3]);
    }
    return static_cast<int>((end.QuadPart - start.QuadPart) * 1'000'000 / frequency.QuadPart);
}
