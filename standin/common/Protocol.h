#pragma once

#include "win32/Windows.h"

/// What the stand-in's program and its event component say to each other, by window messages.
namespace Protocol {

inline constexpr wchar_t WindowClass[] = L"ActStandIn";         ///< one window per running stand-in
inline constexpr wchar_t ComponentClass[] = L"ActStandInEvent"; ///< a message-only window per attached component

/// Posted to a component: may ACT! close? wParam: the window that asks.
inline UINT Question() {
    static const UINT message = RegisterWindowMessageW(L"ActStandIn.UserWantsToClose");
    return message;
}

/// Posted to the window that asked. wParam: the component's window; lParam: 1 lets ACT! close, 0 does not.
inline UINT Answer() {
    static const UINT message = RegisterWindowMessageW(L"ActStandIn.Answer");
    return message;
}

} // namespace Protocol

/// The stand-in's own class and interface ids.
namespace ClassIds {

inline constexpr CLSID AppObject = {0x6b1f6f10, 0x2c5e, 0x4d0b, {0x9a, 0x51, 0x3e, 0x0d, 0x7c, 0x41, 0xa6, 0x01}};
inline constexpr CLSID AuxCommands = {0x6b1f6f11, 0x2c5e, 0x4d0b, {0x9a, 0x51, 0x3e, 0x0d, 0x7c, 0x41, 0xa6, 0x01}};
inline constexpr CLSID ActEvent = {0x6b1f6f12, 0x2c5e, 0x4d0b, {0x9a, 0x51, 0x3e, 0x0d, 0x7c, 0x41, 0xa6, 0x01}};
/// The default source dispinterface of the event component.
inline constexpr IID ActEvents = {0x6b1f6f13, 0x2c5e, 0x4d0b, {0x9a, 0x51, 0x3e, 0x0d, 0x7c, 0x41, 0xa6, 0x01}};

} // namespace ClassIds
