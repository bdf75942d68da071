#include <gtest/gtest.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "kestrin/board/read_board.h"
#include "kestrin/traces/strict/strict_parser.h"
#include "kestrin/windowing/message_box.h"
#include "kestrin/windowing/messages.h"
#include "support/source_of.h"
#include "tests/support/content_of.h"
#include "tests/support/recording_dialog.h"
#include "tests/support/sample_board.h"

namespace kestrin {
namespace {

constexpr int kThreads = 3;
constexpr int kRounds = 3;

/// Runs a function in several threads at once, several times in each.
void InThreads(const std::function<void()>& run) {
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
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
  const std::string whole = test::DescribedModels(first);
  InThreads([&] {
    test::RecordingDialog host;
    CPC_KESTRIN_GET session;
    host.Attach(session);
    PostMessageA(host.dialog.GetSafeHwnd(), WM_USER, 1, 0);
    test::ImportBoard(session);
    EXPECT_EQ(test::DescribedModels(session), whole);
    EXPECT_GT(host.events.size(), 100U);
  });
}

TEST(Threads, StrictParsesRunAtOnce) {
  const std::string board = test::ContentOf(test::BoardFile("traces"));
  const std::string whole = test::Described(*ParseStrictly(test::SourceOf(board)).traces);
  InThreads([&] {
    const StrictParse parse = ParseStrictly(test::SourceOf(board));
    EXPECT_EQ(parse.result, ParseResult::kAccepted);
    EXPECT_EQ(test::Described(*parse.traces), whole);
  });
}

TEST(Threads, ModelsAreReadAndReleasedAtOnce) {
  auto session = std::make_unique<CPC_KESTRIN_GET>();
  test::ImportBoard(*session);
  const std::string whole = test::DescribedModels(*session);
  std::vector<std::unique_ptr<CPC_KESTRIN_GET>> copies(std::size_t{kThreads} * kRounds);
  for (auto& copy : copies) copy = std::make_unique<CPC_KESTRIN_GET>(*session);
  session.reset();
  std::atomic<std::size_t> next = 0;
  InThreads([&] {
    const auto copy = std::move(copies[next++]);
    EXPECT_EQ(test::DescribedModels(*copy), whole);
  });
}

TEST(Threads, BoardsAreReadFromTheSameModelsAtOnce) {
  CPC_KESTRIN_GET session;
  test::ImportBoard(session);
  const Board first = ReadBoard(ModelsOf(session));
  InThreads([&] {
    const Board board = ReadBoard(ModelsOf(session));
    EXPECT_EQ(board.points, first.points);
    EXPECT_EQ(board.reading.pinsTouching, first.reading.pinsTouching);
  });
}

TEST(Threads, CopiesOfAStringChangeWhileOthersAreMade) {
  const CString original(std::string(100, 'x'));
  InThreads([&] {
    for (int i = 0; i < 1000; ++i) {
      CString copy = original;
      copy += 'y';
      EXPECT_NE(copy, original);
    }
  });
  EXPECT_EQ(original, std::string(100, 'x').c_str());
}

TEST(Threads, MessagesArriveWhileTheyArePosted) {
  constexpr std::size_t kMessages = 1000;
  test::Events events;
  test::Recording<CWnd> window(events, "window");
  std::thread posting([handle = window.GetSafeHwnd()] {
    InThreads([handle] {
      for (std::size_t i = 0; i < kMessages; ++i) PostMessageA(handle, WM_USER, 0, 0);
      const CWnd passing;
      EXPECT_EQ(CWnd::FromHandle(passing.GetSafeHwnd()), &passing);
    });
  });
  CPC_KESTRIN_GET session;
  while (events.size() < kMessages * kThreads * kRounds) session.GeomFileParse(test::BoardFile("geometry"));
  posting.join();
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
