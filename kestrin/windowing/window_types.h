#pragma once

/// @file
/// The windowing system's types and numbers, as far as an import and its host need them.

#include <cstdint>

#include "kestrin/base/export.h"

namespace kestrin {

///@{
/// A number of the windowing system.
using BOOL = int;
using UINT = unsigned;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
///@}

///@{
/// What a BOOL is: 0, or not 0. Many C headers define macros with these names and values, and a host may
/// include them first; then the macros do instead.
#ifndef FALSE
inline constexpr BOOL FALSE = 0;
#endif
#ifndef TRUE
inline constexpr BOOL TRUE = 1;
#endif
///@}

class WindowHandle;
/// Names a window. A handle is never used twice; one whose window is gone names nothing.
using HWND = WindowHandle*;

/// A message that waits in, or was taken from, a thread's queue.
struct MSG {
  HWND hwnd;     ///< the window that it is for
  UINT message;  ///< its number
  ///@{
  /// What the number gives a meaning to.
  WPARAM wParam;
  LPARAM lParam;
  ///@}
};

///@{
/// Whether PeekMessageA leaves the message in the queue or takes it out.
inline constexpr UINT PM_NOREMOVE = 0;
inline constexpr UINT PM_REMOVE = 1;
///@}

/// The first message number that is free for applications.
inline constexpr UINT WM_USER = 0x400;
/// Moves a progress bar to the position in wParam.
inline constexpr UINT PBM_SETPOS = WM_USER + 2;

///@{
/// The style of a message box: with one button, with the sign of a warning.
inline constexpr UINT MB_OK = 0x00;
inline constexpr UINT MB_ICONWARNING = 0x30;
///@}

/// The number of the button of a box that has but one.
inline constexpr int IDOK = 1;

}  // namespace kestrin
