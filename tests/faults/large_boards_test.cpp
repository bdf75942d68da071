#include <gtest/gtest.h>

#include <cstdint>

#include "kestrin/board/read_board.h"
#include "support/generators/generators.h"
#include "support/temporary_folder.h"
#include "tests/support/no_threads.h"
#include "tests/support/sample_board.h"

namespace kestrin {
namespace {

TEST(Threads, LargeBoardsAreReadByTwoThreads) {
  const test::TemporaryFolder folder;
  constexpr std::uint64_t kLegs = 40'000;
  ASSERT_TRUE(test::GenerateBoard(folder.Path(), kLegs));
  CPC_KESTRIN_GET session;
  test::ImportBoard(session, folder.Path());
  const Board board = ReadBoard(ModelsOf(session));
  const Board byOne = [&] {
    const test::NoThreads noThreads;
    return ReadBoard(ModelsOf(session));
  }();
  EXPECT_GT(board.points.size(), kLegs);
  EXPECT_EQ(board.points, byOne.points);
  EXPECT_EQ(board.netPins.size(), byOne.netPins.size());
  EXPECT_GT(board.reading.pinsTouching, 1000U);
  EXPECT_EQ(board.reading.pinsTouching, byOne.reading.pinsTouching);
}

}  // namespace
}  // namespace kestrin
