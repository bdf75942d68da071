#include "kestrin/traces/strict/traces_parser.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "support/described.h"

namespace kestrin {
namespace {

const std::string kBegin = "UNITS MM\nST 1 2 3 4\nXRF 1 U_1\n";
const std::string kEnd = "ST 1 2 3 4\n";
const std::string kModel = "units=MM st=(1 2 3 4) xrf{1 U_1 U_1}";

/// A source that performs one of these actions for each read, and then ends.
using Step = std::function<std::string()>;
ByteSource SourceThat(std::vector<Step> steps) {
  return [steps = std::move(steps), next = std::size_t{0}](char* bytes, std::size_t size) mutable {
    return next < steps.size() ? steps[next++]().copy(bytes, size) : 0;
  };
}

Step Gives(std::string text) {
  return [text = std::move(text)] { return text; };
}

template <class EXCEPTION>
std::string Raise() {
  throw EXCEPTION("raised");
}

TEST(TracesParser, ReportsAnErrorBeforeItReadsOn) {
  std::vector<std::int64_t> lines;
  const auto hasHeardOf = [&lines](std::size_t count, std::string text) -> Step {
    return [&lines, count, text = std::move(text)] {
      EXPECT_EQ(lines.size(), count);
      return text;
    };
  };
  TracesParser parser(SourceThat(
      {hasHeardOf(0, kBegin + "TTT X\n"), hasHeardOf(1, "TTT 1 2 3 4 5\nTTT 1 2 X\n"), hasHeardOf(2, kEnd)}));
  const StrictParse parse = parser.Parse([&](const SyntaxError& error) { lines.push_back(error.line); });
  EXPECT_EQ(parse.result, ParseResult::kAccepted);
  EXPECT_EQ(lines, (std::vector<std::int64_t>{3, 5}));
  EXPECT_EQ(parse.errors.size(), 2U);
}

TEST(TracesParser, StartsOverAfterAnExceptionOfTheSource) {
  const std::string open = "# Application x\n" + kBegin + "# NET 'A'\n";
  TracesParser parser(SourceThat({Gives(open), Raise<std::runtime_error>, Gives(open),
                                  []() -> std::string { throw std::bad_alloc(); }, Gives(kBegin + kEnd)}));
  EXPECT_THROW(static_cast<void>(parser.Parse()), std::runtime_error);
  const StrictParse exhausted = parser.Parse();
  EXPECT_EQ(exhausted.result, ParseResult::kExhausted);
  EXPECT_EQ(test::Described(*exhausted.traces), kModel);
  const StrictParse parse = parser.Parse();
  EXPECT_EQ(parse.result, ParseResult::kAccepted);
  EXPECT_EQ(parse.line, 4);
  EXPECT_EQ(test::Described(*parse.traces), kModel);
}

}  // namespace
}  // namespace kestrin
