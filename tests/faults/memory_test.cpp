#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <optional>
#include <string>
#include <utility>

#include "kestrin/traces/strict/strict_parser.h"
#include "tests/faults/faults.h"
#include "tests/support/content_of.h"
#include "tests/support/model_dump.h"
#include "tests/support/sample_board.h"
#include "tests/support/source_of.h"

namespace kestrin {
namespace {

using test::AllocationsSoFar;
using test::FailingAllocations;
using test::SourceOf;
using Which = FailingAllocations::Which;

/// Runs it with an allocation that fails. Whether std::bad_alloc came out.
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

/// A host with a dialog and a queue of messages.
struct Host {
  explicit Host(CPC_KESTRIN_GET& session) { session.SetProgressPtr(&bar, &bar, &bar, &bar); }
  CWnd dialog;
  CProgressCtrl bar{&dialog};
};

TEST(OutOfMemory, AnImportLetsItThroughAndTheSessionReadsOn) {
  std::string whole;
  std::int64_t allocations = 0;
  for (int round = 0; round < 2; ++round) {  // the first makes what lasts as long as the process
    CPC_KESTRIN_GET session;
    const Host host(session);
    allocations = AllocationsOf([&] { test::ImportBoard(session); });
    whole = test::DumpOf(session);
  }
  ASSERT_GT(allocations, 50);
  for (const Which which : {Which::kOne, Which::kAllFromThere}) {
    for (std::int64_t number = 0; number < allocations; ++number) {
      const std::int64_t alive = AllocationsSoFar().alive;
      {
        CPC_KESTRIN_GET session;
        const Host host(session);
        EXPECT_TRUE(RunsOut([&] { test::ImportBoard(session); }, number, which)) << number;
        if (number % 50 == 0) {
          test::ImportBoard(session);
          EXPECT_EQ(test::DumpOf(session), whole);
        }
      }
      ASSERT_EQ(AllocationsSoFar().alive, alive) << "leaked, allocation " << number;
    }
  }
}

TEST(OutOfMemory, TheStrictReaderSaysThatMemoryEndedTheParse) {
  const std::string board = test::ContentOf(test::BoardFile("traces"));
  const std::string whole = test::Dump(*ParseStrictly(SourceOf(board)).traces);
  ByteSource counted = SourceOf(board);
  const std::int64_t allocations =
      AllocationsOf([&] { static_cast<void>(ParseStrictly(std::move(counted))); });
  ASSERT_GT(allocations, 50);
  for (const Which which : {Which::kOne, Which::kAllFromThere}) {
    for (std::int64_t number = 0; number < allocations; ++number) {
      const std::int64_t alive = AllocationsSoFar().alive;
      {
        std::optional<StrictParse> parse;
        ByteSource source = SourceOf(board);
        const bool ranOut = RunsOut([&] { parse = ParseStrictly(std::move(source)); }, number, which);
        // Without memory for the text of the error the exception itself comes out.
        EXPECT_TRUE(ranOut ? which == Which::kAllFromThere || number == 0
                           : parse->result == ParseResult::kExhausted);
        EXPECT_TRUE(ranOut || !parse->error.empty());
      }
      ASSERT_EQ(AllocationsSoFar().alive, alive) << "leaked, allocation " << number;
    }
  }
  EXPECT_EQ(test::Dump(*ParseStrictly(SourceOf(board)).traces), whole);
}

}  // namespace
}  // namespace kestrin
