#include "kestrin/windowing/messages.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <thread>

#include "tests/support/recording_dialog.h"

namespace kestrin {
namespace {

using test::Events;
using test::Recording;

std::optional<MSG> Peek(HWND window = nullptr, UINT first = 0, UINT last = 0, UINT flags = PM_REMOVE) {
  MSG message{};
  if (PeekMessageA(&message, window, first, last, flags) == FALSE) return std::nullopt;
  return message;
}

TEST(Messages, WaitInOrderUntilTakenAndDispatched) {
  Events events;
  Recording<CWnd> a(events, "a");
  Recording<CWnd> b(events, "b");
  PostMessageA(a.GetSafeHwnd(), WM_USER, 1, 0);
  PostMessageA(b.GetSafeHwnd(), WM_USER + 9, 2, 5);
  PostMessageA(a.GetSafeHwnd(), WM_USER, 3, 0);
  EXPECT_EQ(Peek(nullptr, 0, 0, PM_NOREMOVE)->wParam, 1U);
  EXPECT_EQ(Peek(b.GetSafeHwnd())->wParam, 2U);
  EXPECT_FALSE(Peek(nullptr, WM_USER + 1, WM_USER + 9));
  while (const auto message = Peek()) DispatchMessageA(&*message);
  EXPECT_EQ(events, (Events{"a: message 1024 1", "a: message 1024 3"}));
}

TEST(Messages, ADestroyedWindowReceivesNothing) {
  Events events;
  auto parent = std::make_unique<Recording<CWnd>>(events, "parent");
  auto child = std::make_unique<Recording<CProgressCtrl>>(events, "child", parent.get());
  const HWND handle = child->GetSafeHwnd();
  EXPECT_EQ(CWnd::FromHandle(handle), child.get());
  EXPECT_EQ(CWnd::FromHandle(GetParent(handle)), parent.get());
  PostMessageA(handle, WM_USER, 0, 0);
  parent.reset();
  EXPECT_EQ(GetParent(handle), nullptr);
  child.reset();
  EXPECT_EQ(CWnd::FromHandle(handle), nullptr);
  EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
  EXPECT_EQ(SendMessageA(handle, WM_USER, 0, 0), 0);
  EXPECT_EQ(PostMessageA(handle, WM_USER, 0, 0), FALSE);
  const auto waiting = Peek();
  EXPECT_EQ(waiting ? DispatchMessageA(&*waiting) : 0, 0);
  EXPECT_TRUE(events.empty());
}

TEST(Messages, EachThreadHasItsQueue) {
  Events events;
  Recording<CWnd> window(events, "window");
  std::thread([&] {
    EXPECT_EQ(PostMessageA(window.GetSafeHwnd(), WM_USER, 1, 0), TRUE);
    EXPECT_EQ(PostMessageA(nullptr, WM_USER, 2, 0), TRUE);
    EXPECT_EQ(Peek()->wParam, 2U);
    EXPECT_FALSE(Peek());
  }).join();
  EXPECT_EQ(Peek()->wParam, 1U);
  EXPECT_FALSE(Peek());
}

TEST(MessageBox, GoesToTheHandlerOrToStandardError) {
  {
    test::RecordingMessageBoxes recorded;
    EXPECT_EQ(MessageBoxA(nullptr, "text", "caption", MB_ICONWARNING), IDOK);
    EXPECT_EQ(recorded.boxes, (Events{"caption|text|48"}));
  }
  testing::internal::CaptureStderr();
  EXPECT_EQ(MessageBoxA(nullptr, "text", "caption", MB_OK), IDOK);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "caption: text\n");
}

}  // namespace
}  // namespace kestrin
