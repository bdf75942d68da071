#pragma once

#include <string>
#include <utility>
#include <vector>

#include "kestrin/session/import_session.h"
#include "kestrin/windowing/message_box.h"
#include "kestrin/windowing/window.h"

namespace kestrin::test {

using Events = std::vector<std::string>;

/// A window that logs what happens to it. UpdateData(FALSE) is logged as "<name> refresh".
template <class WINDOW>
class Recording : public WINDOW {
 public:
  Recording(Events& events, std::string name, const CWnd* parent = nullptr)
      : WINDOW(parent), events_(events), name_(std::move(name)) {}

  BOOL UpdateData(BOOL save) override { return Write(save == FALSE ? "refresh" : "save"); }
  BOOL EnableWindow(BOOL enable) override { return Write(enable == FALSE ? "disable" : "enable"); }
  void SetWindowTextA(const char* text) override { Write(text); }
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message < WM_USER) return WINDOW::WindowProc(message, wParam, lParam);  // a system's own
    std::string what = message == PBM_SETPOS ? "position" : "message " + std::to_string(message);
    what += " " + std::to_string(wParam);
    if (lParam != 0) what += "," + std::to_string(lParam);
    return Write(what);
  }

 private:
  BOOL Write(const std::string& what) {
    events_.push_back(name_ + ": " + what);
    return TRUE;
  }

  Events& events_;
  std::string name_;
};

/// A host's dialog that logs everything that an import does to it.
struct RecordingDialog {
  /// Only the wanted bars are passed to the session.
  void Attach(CPC_KESTRIN_GET& session, bool withTech = true, bool withNeutral = true,
              bool withGeometry = true, bool withTraces = true) {
    session.m_pStatusWnd = &status;
    session.SetProgressPtr(withGeometry ? &geometryBar : nullptr, withNeutral ? &neutralBar : nullptr,
                           withTraces ? &tracesBar : nullptr, withTech ? &techBar : nullptr);
  }

  Events events;
  Recording<CWnd> dialog{events, "dialog"};
  Recording<CWnd> status{events, "status", &dialog};
  Recording<CProgressCtrl> techBar{events, "tech bar", &dialog};
  Recording<CProgressCtrl> neutralBar{events, "neutral bar", &dialog};
  Recording<CProgressCtrl> geometryBar{events, "geometry bar", &dialog};
  Recording<CProgressCtrl> tracesBar{events, "traces bar", &dialog};
};

/// Waits until an import looks for messages before the next line: on Windows, until the tick count changes.
inline void WaitUntilPumped() {
#ifdef _WIN32
  for (const DWORD tick = GetTickCount(); GetTickCount() == tick;) {
  }
#endif
}

/// Logs message boxes as long as it exists.
class RecordingMessageBoxes {
 public:
  RecordingMessageBoxes()
      : replaced_(SetMessageBoxHandler([this](HWND owner, const char* text, const char* caption, UINT style) {
          boxes.push_back(std::string(caption) + "|" + text + "|" + std::to_string(style) +
                          (owner == nullptr ? "" : "|owned"));
          return IDOK;
        })) {}
  RecordingMessageBoxes(const RecordingMessageBoxes&) = delete;
  RecordingMessageBoxes& operator=(const RecordingMessageBoxes&) = delete;
  ~RecordingMessageBoxes() { SetMessageBoxHandler(replaced_); }

  Events boxes;

 private:
  MessageBoxHandler replaced_;
};

}  // namespace kestrin::test
