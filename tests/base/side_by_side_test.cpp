#include "kestrin/base/side_by_side.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <thread>

#include "tests/support/no_threads.h"

namespace kestrin {
namespace {

TEST(RunSideBySide, RunsBothActionsInTheThreadsThatThereAre) {
  const auto caller = std::this_thread::get_id();
  const auto threadOfSecond = [&](bool isWorthThread) {
    std::thread::id first;
    std::thread::id second;
    RunSideBySide(
        isWorthThread, [&] { first = std::this_thread::get_id(); },
        [&] { second = std::this_thread::get_id(); });
    EXPECT_EQ(first, caller);
    return second;
  };
  EXPECT_NE(threadOfSecond(true), caller);
  EXPECT_EQ(threadOfSecond(false), caller);
  const test::NoThreads noThreads;
  EXPECT_EQ(threadOfSecond(true), caller);
}

TEST(RunSideBySide, RaisesWhatAnActionRaises) {
  const auto raise = [](const char* what) { return [what] { throw std::runtime_error(what); }; };
  const auto raised = [](auto first, auto second) -> std::string {
    try {
      RunSideBySide(true, first, second);
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return "nothing";
  };
  bool hasEnded = false;
  EXPECT_EQ(raised(raise("first"), [&] { hasEnded = true; }), "first");
  EXPECT_TRUE(hasEnded);
  EXPECT_EQ(raised([] {}, raise("second")), "second");
  EXPECT_EQ(raised(raise("first"), raise("second")), "first");
}

}  // namespace
}  // namespace kestrin
