#pragma once

/// @file
/// The types and constants of the windowing system that the library brings.

#include <cstdint>

#include "kestrin/base/export.h"

namespace kestrin {

///@{
/// An integer type of the windowing system.
using BOOL = int;
using UINT = unsigned;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
///@}

///@{
/// A value of a BOOL. Any value other than FALSE means true. Many C headers define macros with these names
/// and values; where a host includes one of those first, the macros are used.
#ifndef FALSE
inline constexpr BOOL FALSE = 0;
#endif
#ifndef TRUE
inline constexpr BOOL TRUE = 1;
#endif
///@}

class WindowHandle;
/// Identifies a window. Handles are never reused: after a window is destroyed its handle identifies none.
using HWND = WindowHandle*;

/// A message in a thread's queue.
struct MSG {
  HWND hwnd;     ///< the receiving window
  UINT message;  ///< the message number, such as PBM_SETPOS
  ///@{
  /// An argument; its meaning depends on the message number.
  WPARAM wParam;
  LPARAM lParam;
  ///@}
};

///@{
/// A flag of PeekMessageA: leave the message in the queue, or remove it.
inline constexpr UINT PM_NOREMOVE = 0;
inline constexpr UINT PM_REMOVE = 1;
///@}

/// The first message number that applications may use for their own messages.
inline constexpr UINT WM_USER = 0x400;
/// Sets a progress bar to the position in wParam.
inline constexpr UINT PBM_SETPOS = WM_USER + 2;

///@{
/// A style of a message box: an OK button only, or a warning sign.
inline constexpr UINT MB_OK = 0x00;
inline constexpr UINT MB_ICONWARNING = 0x30;
///@}

/// The result of a message box: the OK button.
inline constexpr int IDOK = 1;

}  // namespace kestrin
