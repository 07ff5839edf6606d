#include "databases/Logon.h"

#include "databases/Keys.h"
#include "stores/UserStore.h"
#include "stores/modEnCrypt.h"
#include "support/Application.h"
#include "support/Text.h"

namespace {

bool IsSet(const std::wstring& name, const wchar_t* key) {
    return Text::WholeNumber(UserStore::Get(name, key)).value_or(0) != 0;
}

const wchar_t* Flag(bool isSet) { return isSet ? L"1" : L"0"; }

} // namespace

LogonValues LogonValues::Load(const std::wstring& name) {
    return {UserStore::Get(name, Keys::Username),
            modEnCrypt::DecryptText(UserStore::Get(name, Keys::Password), Application::Title),
            IsSet(name, Keys::UsePassword), IsSet(name, Keys::NoPasswordAtACTStartup)};
}

void LogonValues::Store(const std::wstring& name) const {
    UserStore::Set(name, Keys::Username, Username);
    UserStore::Set(name, Keys::UsePassword, Flag(UsesPassword));
    if (UsesPassword)
        UserStore::Set(name, Keys::Password, modEnCrypt::EncryptText(Password, Application::Title));
    else if (!UserStore::Get(name, Keys::Password).empty())
        UserStore::Delete(name, Keys::Password);
    UserStore::Set(name, Keys::NoPasswordAtACTStartup, Flag(IsWithoutPasswordAtStart));
}

namespace LogonHandOver {

void CopyToLogon(const std::wstring& name) {
    for (const wchar_t* key : {Keys::UsePassword, Keys::Username, Keys::Password})
        UserStore::Set(Keys::Logon, key, UserStore::Get(name, key));
    UserStore::Set(Keys::Settings, Keys::LastUsername, UserStore::Get(name, Keys::Username));
}

} // namespace LogonHandOver
