#pragma once

/// @file
/// The system's types and constants. What you define before windows.h holds, such as WIN32_LEAN_AND_MEAN,
/// whether you include windows.h or this first. Only the macros min and max are left out, unless you include
/// windows.h first.

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
// After windows.h, which it needs.
#include <commctrl.h>

namespace kestrin {

using ::BOOL;
using ::HWND;
using ::LPARAM;
using ::LRESULT;
using ::MSG;
using ::UINT;
using ::WPARAM;

}  // namespace kestrin
