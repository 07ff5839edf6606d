#pragma once

// The one place that includes the Windows headers.

#ifndef STRICT
#define STRICT
#endif
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <commctrl.h>
#include <commdlg.h>
#include <ole2.h>
#include <olectl.h>
#include <shellapi.h>
#include <windowsx.h>

// Macros of windowsx.h and winuser.h that would rewrite member names of our own.
#undef GetNextSibling
#undef GetFirstChild
#undef SubclassWindow
