#include "kestrin/windowing/window.h"

#include "kestrin/windowing/in_process/windowing_system.h"

namespace kestrin {

CWnd::CWnd(const CWnd* parent)
    : m_hWnd(
          WindowingSystem::Instance().Register(this, parent == nullptr ? nullptr : parent->GetSafeHwnd())) {}

CWnd::~CWnd() { WindowingSystem::Instance().Unregister(m_hWnd); }

CWnd* CWnd::FromHandle(HWND handle) { return WindowingSystem::Instance().WindowOf(handle); }

BOOL CWnd::UpdateData(BOOL /*saveAndValidate*/) { return TRUE; }

BOOL CWnd::EnableWindow(BOOL /*enable*/) { return FALSE; }

void CWnd::SetWindowTextA(const char* /*text*/) {}

LRESULT CWnd::WindowProc(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/) { return 0; }

}  // namespace kestrin
