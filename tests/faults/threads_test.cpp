#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "kestrin/platform/message_box.h"
#include "kestrin/platform/messages.h"
#include "kestrin/traces/strict/strict_parser.h"
#include "tests/support/content_of.h"
#include "tests/support/model_dump.h"
#include "tests/support/recording_dialog.h"
#include "tests/support/sample_board.h"
#include "tests/support/source_of.h"

namespace kestrin {
namespace {

constexpr int kThreads = 3;
constexpr int kRounds = 3;

/// Runs it in several threads at once, several times in each.
void InThreads(const std::function<void()>& run) {
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([&] {
      for (int round = 0; round < kRounds; ++round) run();
    });
  }
  for (std::thread& thread : threads) thread.join();
}

TEST(Threads, SessionsWithDialogsWorkAtOnce) {
  CPC_KESTRIN_GET first;
  test::ImportBoard(first);
  const std::string whole = test::DumpOf(first);
  InThreads([&] {
    test::RecordingDialog host;
    CPC_KESTRIN_GET session;
    host.Attach(session);
    PostMessageA(host.dialog.GetSafeHwnd(), WM_USER, 1, 0);
    test::ImportBoard(session);
    EXPECT_EQ(test::DumpOf(session), whole);
    EXPECT_GT(host.events.size(), 100U);
  });
}

TEST(Threads, StrictParsesRunAtOnce) {
  const std::string board = test::ContentOf(test::BoardFile("traces"));
  InThreads([&] {
    const StrictParse parse = ParseStrictly(test::SourceOf(board));
    EXPECT_EQ(parse.result, ParseResult::kAccepted);
    EXPECT_EQ(parse.traces->m_pNetArray->GetSize(), 15);
  });
}

TEST(Threads, AnyThreadMayPostAndReadAndLetGoOfSharedModels) {
  CPC_KESTRIN_GET session;
  test::ImportBoard(session);
  const std::string whole = test::DumpOf(session);
  test::Events events;
  test::Recording<CWnd> window(events, "window");
  InThreads([&, handle = window.GetSafeHwnd()] {
    const CPC_KESTRIN_GET copy(session);
    EXPECT_EQ(test::DumpOf(copy), whole);
    EXPECT_EQ(PostMessageA(handle, WM_USER, 0, 0), TRUE);
    const CWnd passing;
    EXPECT_EQ(CWnd::FromHandle(passing.GetSafeHwnd()), &passing);
  });
  session.GeomFileParse(test::BoardFile("tech"));  // dispatches what was posted
  EXPECT_EQ(events.size(), std::size_t{kThreads} * kRounds);
}

TEST(Threads, MessageBoxesAreShownWhileTheirHandlerIsReplaced) {
  const test::RecordingMessageBoxes kept;
  InThreads([] {
    SetMessageBoxHandler([](HWND, const char*, const char*, UINT) { return IDOK; });
    CPC_KESTRIN_GET session;
    session.vParse();
  });
}

}  // namespace
}  // namespace kestrin
