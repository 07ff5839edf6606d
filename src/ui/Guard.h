#pragma once

/// The border where errors of handlers end: with this compiler an exception cannot pass through the frames of Windows.
namespace Guard {

/// Calls `call(target)`. What it throws is reported under "form: Sub object_event"; false then.
bool Run(const wchar_t* form, const wchar_t* object, const wchar_t* event, void (*call)(const void*),
         const void* target) noexcept;

/// The same for anything that can be called.
template <class Call>
bool Run(const wchar_t* form, const wchar_t* object, const wchar_t* event, const Call& call) noexcept {
    return Run(
        form, object, event, [](const void* target) { (*static_cast<const Call*>(target))(); }, &call);
}

} // namespace Guard
