#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <utility>

#include "kestrin/board/read_board.h"
#include "kestrin/session/dialog.h"
#include "kestrin/traces/strict/mp_traces_parser.h"
#include "kestrin/traces/strict/strict_parser.h"
#include "kestrin/windowing/host_calls.h"
#include "kestrin/windowing/messages.h"
#include "support/source_of.h"
#include "support/temporary_folder.h"
#include "tests/faults/faults.h"
#include "tests/support/content_of.h"
#include "tests/support/sample_board.h"

namespace kestrin {
namespace {

using test::AllocationsSoFar;
using test::FailingAllocations;
using test::SourceOf;
using Which = FailingAllocations::Which;

/// Runs a function with failing allocations. Returns whether it threw std::bad_alloc.
bool RunsOut(const std::function<void()>& run, std::int64_t succeeding, Which which) {
  const FailingAllocations failing(succeeding, which);
  try {
    run();
  } catch (const std::bad_alloc&) {
    return true;
  }
  return false;
}

std::int64_t AllocationsOf(const std::function<void()>& run) {
  const std::int64_t before = AllocationsSoFar().made;
  run();
  return AllocationsSoFar().made - before;
}

/// A host with a dialog.
struct Host {
  explicit Host(CPC_KESTRIN_GET& session) { session.SetProgressPtr(&bar, &bar, &bar, &bar); }
  CWnd dialog;
  CProgressCtrl bar{&dialog};
};

/// Expects complete files, then at most one whose reading stopped, then files that were not read.
void ExpectReportOfAnImportThatStopped(const ImportReport& report) {
  bool stopped = false;
  for (const ImportFile file :
       {ImportFile::kTech, ImportFile::kNeutral, ImportFile::kGeometry, ImportFile::kTraces}) {
    const ReadingEnd end = report.Of(file).end;
    EXPECT_TRUE(end == ReadingEnd::kNotRead || (!stopped && end != ReadingEnd::kNotOpened));
    stopped = stopped || end != ReadingEnd::kComplete;
  }
  EXPECT_TRUE(stopped);
}

TEST(OutOfMemory, AnImportPassesItOnAndTheSessionStaysUsable) {
  std::string whole;
  std::int64_t allocations = 0;
  for (int round = 0; round < 2; ++round) {  // the first round allocates what lasts as long as the process
    CPC_KESTRIN_GET session;
    const Host host(session);
    session.KeepSourceLines(true);
    allocations = AllocationsOf([&] { test::ImportBoard(session); });
    whole = test::DescribedModels(session);
  }
  ASSERT_GT(allocations, 50);
  for (const Which which : {Which::kOne, Which::kAllFromThere}) {
    for (std::int64_t number = 0; number < allocations; ++number) {
      const std::int64_t alive = AllocationsSoFar().alive;
      {
        CPC_KESTRIN_GET session;
        const Host host(session);
        session.KeepSourceLines(true);
        EXPECT_TRUE(RunsOut([&] { test::ImportBoard(session); }, number, which)) << number;
        ExpectReportOfAnImportThatStopped(session.GetReport());
        EXPECT_LT(test::DescribedModels(session).size(), whole.size());
        test::ImportBoard(session);
        EXPECT_EQ(test::DescribedModels(session), whole);
      }
      ASSERT_EQ(AllocationsSoFar().alive, alive) << "leaked, allocation " << number;
    }
  }
}

TEST(OutOfMemory, APostThatRunsOutOfMemoryThrowsAndTheOthersArrive) {
  struct Counter : CWnd {
    LRESULT WindowProc(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/) override { return ++received; }
    int received = 0;
  } window;
  int posted = 0;
  for (int i = 0; i < 10; ++i) {
    const auto post = [&] {
      for (;; ++posted) PostMessageA(window.GetSafeHwnd(), WM_USER, 0, 0);
    };
    EXPECT_TRUE(RunsOut(post, i, Which::kAllFromThere));
  }
  PumpMessages();
  EXPECT_EQ(window.received, posted);
}

TEST(OutOfMemory, TheStrictReaderReportsThatMemoryRanOut) {
  const std::string board = test::ContentOf(test::BoardFile("traces"));
  const std::string whole = test::Described(*ParseStrictly(SourceOf(board)).traces);
  ByteSource counted = SourceOf(board);
  const std::int64_t allocations =
      AllocationsOf([&] { static_cast<void>(ParseStrictly(std::move(counted), true)); });
  ASSERT_GT(allocations, 50);
  for (const Which which : {Which::kOne, Which::kAllFromThere}) {
    for (std::int64_t number = 0; number < allocations; ++number) {
      const std::int64_t alive = AllocationsSoFar().alive;
      {
        std::optional<StrictParse> parse;
        ByteSource source = SourceOf(board);
        const bool ranOut = RunsOut([&] { parse = ParseStrictly(std::move(source), true); }, number, which);
        // If there is no memory for the text of the error, the exception is passed on.
        EXPECT_TRUE(ranOut ? which == Which::kAllFromThere || number == 0
                           : parse->result == ParseResult::kExhausted);
        EXPECT_TRUE(ranOut || !parse->error.empty());
      }
      ASSERT_EQ(AllocationsSoFar().alive, alive) << "leaked, allocation " << number;
    }
  }
  EXPECT_EQ(test::Described(*ParseStrictly(SourceOf(board)).traces), whole);
}

/// Parses files and takes over their models.
struct Parsing {
  bool Succeeds(std::string path) {
    MPTracesParser parser(path.data());
    const int result = parser.Parse();
    parser.Close();
    if (parser.GetTraces() != traces.get()) traces.reset(parser.GetTraces());
    return result == 0;
  }
  std::unique_ptr<CMTraces> traces;  // kept until the next one exists, so that their addresses differ
};

TEST(OutOfMemory, TheParserOfAFileLosesNoModel) {
  const test::TemporaryFolder folder;
  const std::string good = "UNITS MM\nST 1 2 3 4\nXRF 1 U_1\n";
  const std::string path = folder.File("good", good + "ST 1 2 3 4\n");
  const std::string faulty = folder.File("faulty", good + "TTT X\nTTT 1 2 3 4 5\n# NET 'A'\nST 1 2 3 4\n");
  Parsing parsing;
  testing::internal::CaptureStderr();
  ASSERT_TRUE(parsing.Succeeds(path));
  const std::int64_t allocations = AllocationsOf([&] { ASSERT_TRUE(parsing.Succeeds(faulty)); });
  ASSERT_TRUE(parsing.Succeeds(path));  // frees the text of the error
  const std::int64_t alive = AllocationsSoFar().alive;
  for (std::int64_t number = 0; number < allocations; ++number) {
    const auto parse = [&] { EXPECT_FALSE(parsing.Succeeds(faulty)); };
    static_cast<void>(RunsOut(parse, number, Which::kOne));
    ASSERT_TRUE(parsing.Succeeds(path));
    ASSERT_EQ(AllocationsSoFar().alive, alive) << "leaked, allocation " << number;
  }
  testing::internal::GetCapturedStderr();
}

TEST(OutOfMemory, ReadBoardPassesItOnAndLeaksNothing) {
  CPC_KESTRIN_GET session;
  test::ImportBoard(session);
  const auto read = [&] { return ReadBoard(ModelsOf(session)); };
  const std::size_t points = read().points.size();
  const std::int64_t allocations = AllocationsOf([&] { static_cast<void>(read()); });
  ASSERT_GT(allocations, 50);
  for (const Which which : {Which::kOne, Which::kAllFromThere}) {
    for (std::int64_t number = 0; number < allocations; ++number) {
      const std::int64_t alive = AllocationsSoFar().alive;
      // Sorting makes do with less memory.
      const bool ranOut = RunsOut([&] { EXPECT_EQ(read().points.size(), points); }, number, which);
      EXPECT_TRUE(ranOut || which == Which::kOne) << number;
      ASSERT_EQ(AllocationsSoFar().alive, alive) << "leaked, allocation " << number;
    }
  }
  EXPECT_EQ(read().points.size(), points);
}

}  // namespace
}  // namespace kestrin
