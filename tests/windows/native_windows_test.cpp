// What windows do on Windows that they do not do elsewhere.

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "kestrin/kestrin.h"
#include "kestrin/windowing/host_calls.h"
#include "kestrin/windowing/message_pump.h"
#include "support/temporary_folder.h"
#include "tests/support/recording_dialog.h"

namespace kestrin {
namespace {

using test::Events;
using test::Recording;

/// A window of the system, as a host has it.
class NativeWindow {
 public:
  explicit NativeWindow(const char* kind, HWND parent = nullptr)
      : handle_(CreateWindowExA(0, kind, "", parent == nullptr ? WS_OVERLAPPED : WS_CHILD, 0, 0, 100, 20,
                                parent, nullptr, nullptr, nullptr)) {}
  NativeWindow(const NativeWindow&) = delete;
  NativeWindow& operator=(const NativeWindow&) = delete;
  ~NativeWindow() { Destroy(); }

  void Destroy() { DestroyWindow(std::exchange(handle_, nullptr)); }
  [[nodiscard]] HWND Handle() const { return handle_; }
  [[nodiscard]] std::string Text() const {
    std::string text(100, '\0');
    text.resize(
        static_cast<std::size_t>(GetWindowTextA(handle_, text.data(), static_cast<int>(text.size()))));
    return text;
  }

 private:
  HWND handle_;
};

class NativeWindows : public testing::Test {
 protected:
  void SetUp() override {
    const INITCOMMONCONTROLSEX bars{sizeof(bars), ICC_PROGRESS_CLASS};
    InitCommonControlsEx(&bars);
  }
  NativeWindow dialog_{"STATIC"};
};

TEST_F(NativeWindows, AnAttachedBarMovesTheBarOfTheSystem) {
  const NativeWindow native(PROGRESS_CLASSA, dialog_.Handle());
  CProgressCtrl bar;
  EXPECT_EQ(bar.Attach(native.Handle()), TRUE);
  EXPECT_EQ(CWnd::FromHandle(native.Handle()), &bar);
  CPC_KESTRIN_GET session;
  session.SetProgressPtr(&bar, nullptr, nullptr, nullptr);
  const test::TemporaryFolder folder;
  session.GeomFileParse(folder.File("a.geometry", "$$create_pin(P)\n$$create_via(V)\n"));
  EXPECT_EQ(SendMessageA(native.Handle(), PBM_GETPOS, 0, 0), 66);
  bar.EnableWindow(FALSE);
  EXPECT_EQ(IsWindowEnabled(native.Handle()), FALSE);
}

TEST_F(NativeWindows, AnAttachedWindowTakesTextAndSeesMessagesFirst) {
  Events events;
  CWnd status;
  ASSERT_EQ(status.Attach(dialog_.Handle()), TRUE);
  status.SetWindowTextA("Parsing");
  EXPECT_EQ(dialog_.Text(), "Parsing");
  EXPECT_EQ(status.Detach(), dialog_.Handle());
  Recording<CWnd> recording(events, "window");
  ASSERT_EQ(recording.Attach(dialog_.Handle()), TRUE);
  SendMessageA(dialog_.Handle(), WM_USER, 3, 0);
  EXPECT_EQ(events, (Events{"window: message 1024 3"}));
}

TEST_F(NativeWindows, OnlyOneObjectStandsForAWindow) {
  CWnd first;
  CWnd second;
  const HWND own = second.GetSafeHwnd();
  ASSERT_EQ(first.Attach(dialog_.Handle()), TRUE);
  EXPECT_EQ(second.Attach(dialog_.Handle()), FALSE);
  EXPECT_EQ(second.Attach(nullptr), FALSE);
  EXPECT_EQ(second.Attach(GetDesktopWindow()), FALSE);  // of another thread
  EXPECT_EQ(second.GetSafeHwnd(), own);
  EXPECT_EQ(first.Detach(), dialog_.Handle());
  EXPECT_EQ(first.GetSafeHwnd(), nullptr);
  EXPECT_EQ(CWnd::FromHandle(dialog_.Handle()), nullptr);
  EXPECT_EQ(second.Attach(dialog_.Handle()), TRUE);
  EXPECT_EQ(IsWindow(own), FALSE);
}

TEST_F(NativeWindows, TheDestructorKeepsAttachedWindowsAndDestroysItsOwn) {
  auto attached = std::make_unique<CWnd>();
  ASSERT_EQ(attached->Attach(dialog_.Handle()), TRUE);
  auto child = std::make_unique<CWnd>(attached.get());
  const HWND own = child->GetSafeHwnd();
  EXPECT_EQ(GetParent(own), dialog_.Handle());
  child.reset();
  attached.reset();
  EXPECT_EQ(IsWindow(own), FALSE);
  EXPECT_EQ(IsWindow(dialog_.Handle()), TRUE);
}

TEST_F(NativeWindows, AWindowThatTheSystemDestroysIsForgotten) {
  const NativeWindow native(PROGRESS_CLASSA, dialog_.Handle());
  struct Destroyer : CWnd {
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
      if (message == WM_USER) dialog->Destroy();
      return CWnd::WindowProc(message, wParam, lParam);
    }
    NativeWindow* dialog = nullptr;
  };
  Destroyer dialog;
  dialog.dialog = &dialog_;
  CProgressCtrl bar;
  ASSERT_TRUE(dialog.Attach(dialog_.Handle()) && bar.Attach(native.Handle()));
  CPC_KESTRIN_GET session;
  session.SetProgressPtr(&bar, nullptr, nullptr, nullptr);
  const test::TemporaryFolder folder;
  session.vSetGeomFilePath(folder.File("a.geometry", "$$create_pin(P)\n$$create_via(V)\n"));
  PostMessageA(dialog_.Handle(), WM_USER, 0, 0);
  session.ParseGivenFiles();
  EXPECT_EQ(session.m_pGeomProgress, nullptr);
  EXPECT_EQ(bar.GetSafeHwnd(), nullptr);
  EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
  EXPECT_EQ(session.GetReport().Of(ImportFile::kGeometry).Imported(), 2);
}

/// Throws when it receives a message, and then notes what it still receives.
class Throwing : public CWnd {
 public:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message < WM_USER) return CWnd::WindowProc(message, wParam, lParam);
    ++received;
    throw std::runtime_error(std::to_string(wParam));
  }
  int received = 0;
};

TEST_F(NativeWindows, AnExceptionComesOutOfTheCallThatMetIt) {
  Throwing window;
  const auto thrownBy = [](auto call) -> std::string {
    try {
      call();
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return "nothing";
  };
  PostMessageA(window.GetSafeHwnd(), WM_USER, 1, 0);
  PostMessageA(window.GetSafeHwnd(), WM_USER, 2, 0);
  EXPECT_EQ(thrownBy(PumpMessages), "1");
  EXPECT_EQ(window.received, 1);
  EXPECT_EQ(thrownBy(PumpMessages), "2");
  EXPECT_EQ(thrownBy(PumpMessages), "nothing");
  EXPECT_EQ(thrownBy([&] { Send(window.GetSafeHwnd(), WM_USER, 3); }), "3");
}

TEST_F(NativeWindows, OfTwoExceptionsTheFirstComesOut) {
  struct Forwarding : CWnd {
    explicit Forwarding(CWnd& target) : target_(target) {}
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
      if (message < WM_USER) return CWnd::WindowProc(message, wParam, lParam);
      SendMessageA(target_.GetSafeHwnd(), message, wParam, lParam);  // the system's code lies between
      throw std::logic_error("second");
    }
    CWnd& target_;
  };
  Throwing first;
  Forwarding second(first);
  EXPECT_THROW(Send(second.GetSafeHwnd(), WM_USER, 1), std::runtime_error);
}

TEST_F(NativeWindows, TheHostsLoopGetsTheMessageThatEndsIt) {
  PostQuitMessage(5);
  CPC_KESTRIN_GET session;
  const test::TemporaryFolder folder;
  session.GeomFileParse(folder.File("a.geometry", "$$create_pin(P)\n"));
  MSG message;
  ASSERT_NE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE), FALSE);
  EXPECT_EQ(message.wParam, 5U);
}

TEST_F(NativeWindows, ThePumpLooksWhenTheTickCountHasChanged) {
  Events events;
  Recording<CWnd> window(events, "window");
  MessagePump pump;
  DWORD last = 0;
  bool wasSure = false;  // the tick was the same before and after the look
  for (int looks = 0; looks < 3;) {
    PostMessageA(window.GetSafeHwnd(), WM_USER, 0, 0);
    const DWORD tick = GetTickCount();
    pump.BeforeLine();
    const bool isSure = GetTickCount() == tick;
    EXPECT_TRUE(!isSure || !wasSure || events.empty() == (tick == last)) << looks;
    last = tick;
    wasSure = isSure;
    if (!events.empty()) ++looks;
    events.clear();
  }
}

TEST_F(NativeWindows, ABoxOfTheLibraryGoesToTheHandler) {
  const test::RecordingMessageBoxes recorded;
  CPC_KESTRIN_GET().vParse();
  EXPECT_EQ(recorded.boxes, (Events{"WARNING|No definition for Geom file path|48"}));
}

}  // namespace
}  // namespace kestrin
