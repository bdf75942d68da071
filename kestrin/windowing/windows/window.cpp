#include "kestrin/windowing/window.h"

#include <memory>
#include <mutex>
#include <unordered_map>
#include <utility>

#include "kestrin/windowing/windows/keep_exceptions.h"

namespace kestrin {
namespace {

/// Which object stands for which window of the system.
class WindowTable {
 public:
  static WindowTable& Instance() {
    static WindowTable table;
    return table;
  }

  /// Returns false if there is an object for the window.
  bool Add(HWND handle, CWnd* window) {
    const std::lock_guard lock(mutex_);
    return windows_.emplace(handle, window).second;
  }
  void Remove(HWND handle) {
    const std::lock_guard lock(mutex_);
    windows_.erase(handle);
  }
  CWnd* Find(HWND handle) {
    const std::lock_guard lock(mutex_);
    const auto found = windows_.find(handle);
    return found == windows_.end() ? nullptr : found->second;
  }

 private:
  std::mutex mutex_;
  std::unordered_map<HWND, CWnd*> windows_;
};

struct WindowDestroyer {
  using pointer = HWND;
  void operator()(HWND window) const { DestroyWindow(window); }
};
using OwnedWindow = std::unique_ptr<HWND, WindowDestroyer>;

/// A window that nobody sees: a child of the parent, or else one for messages only.
OwnedWindow CreateHidden(const CWnd* parent) {
  HWND above = parent == nullptr ? nullptr : parent->GetSafeHwnd();
  const DWORD style = above == nullptr ? 0 : WS_CHILD;
  return OwnedWindow(CreateWindowExA(WS_EX_NOPARENTNOTIFY, "STATIC", "", style, 0, 0, 0, 0,
                                     above == nullptr ? HWND_MESSAGE : above, nullptr, nullptr, nullptr));
}

}  // namespace

/// Stands between a window of the system and its object.
struct CWnd::Trampoline {
  static bool Install(HWND handle, CWnd* window) {
    if (GetWindowThreadProcessId(handle, nullptr) != GetCurrentThreadId()) return false;
    if (!WindowTable::Instance().Add(handle, window)) return false;
    if (SetWindowSubclass(handle, &Receive, 0, reinterpret_cast<DWORD_PTR>(window)) != FALSE) return true;
    WindowTable::Instance().Remove(handle);
    return false;
  }

  static void Remove(HWND handle) {
    RemoveWindowSubclass(handle, &Receive, 0);
    WindowTable::Instance().Remove(handle);
  }

 private:
  static LRESULT CALLBACK Receive(HWND handle, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                  DWORD_PTR object) noexcept {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the system keeps the pointer as a number
    auto* window = reinterpret_cast<CWnd*>(object);
    // An object that was destroyed on another thread could not be removed from the window.
    if (WindowTable::Instance().Find(handle) != window) {
      return DefSubclassProc(handle, message, wParam, lParam);
    }
    if (message == WM_NCDESTROY) {  // the last message
      window->m_hWnd = nullptr;
      window->m_bOwnsWindow = false;
      Remove(handle);
      return DefSubclassProc(handle, message, wParam, lParam);
    }
    try {
      return window->WindowProc(message, wParam, lParam);
    } catch (...) {
      ExceptionKeeper::KeepCurrent();
      return 0;
    }
  }
};

CWnd::CWnd(const CWnd* parent) {
  OwnedWindow hidden = CreateHidden(parent);
  if (Attach(hidden.get()) == FALSE) return;
  hidden.release();
  m_bOwnsWindow = true;
}

CWnd::~CWnd() { Detach(); }

BOOL CWnd::Attach(HWND window) {
  if (!Trampoline::Install(window, this)) return FALSE;
  Detach();
  m_hWnd = window;
  return TRUE;
}

HWND CWnd::Detach() {
  const HWND window = std::exchange(m_hWnd, nullptr);
  if (window != nullptr) Trampoline::Remove(window);
  if (!std::exchange(m_bOwnsWindow, false)) return window;
  DestroyWindow(window);
  return nullptr;
}

CWnd* CWnd::FromHandle(HWND handle) { return WindowTable::Instance().Find(handle); }

BOOL CWnd::UpdateData(BOOL /*saveAndValidate*/) { return TRUE; }

BOOL CWnd::EnableWindow(BOOL enable) {
  return CallSystem([&] { return ::EnableWindow(m_hWnd, enable); });
}

void CWnd::SetWindowTextA(const char* text) {
  CallSystem([&] { return ::SetWindowTextA(m_hWnd, text); });
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  return m_hWnd == nullptr ? 0 : DefSubclassProc(m_hWnd, message, wParam, lParam);
}

}  // namespace kestrin
