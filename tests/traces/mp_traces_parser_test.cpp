#include "kestrin/traces/mp_traces_parser.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

#include "kestrin/traces/traces_model.h"
#include "support/temporary_folder.h"
#include "tests/traces/described_traces.h"

namespace kestrin {
namespace {

using test::Described;

static_assert(std::is_empty_v<MPTracesParser> && !std::is_polymorphic_v<MPTracesParser>);
static_assert(std::is_copy_assignable_v<MPTracesParser> && std::is_move_assignable_v<MPTracesParser>);

class MPTracesParserTest : public testing::Test {
 protected:
  std::string Path(const std::string& text) {
    return folder_.File("t" + std::to_string(++files_) + ".traces", text);
  }

 private:
  test::TemporaryFolder folder_;
  int files_ = 0;
};

const std::string kBegin = "UNITS MM\nST 1 2 3 4\nXRF 1 U_1\n";
const std::string kEnd = "ST 1 2 3 4\n";
const std::string kModel = "UNITS [MM] ST 1 2 3 4 xrf{XRF 1 [U_1] [U_1] 0}";

TEST_F(MPTracesParserTest, ParsesAFileAndHandsItsModelOver) {
  MPTracesParser parser(Path(kBegin + kEnd).data());
  testing::internal::CaptureStderr();
  EXPECT_EQ(parser.Parse(), 0);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(parser.GetError(), "");
  EXPECT_EQ(parser.GetCurrentLineNum(), 4);
  const std::unique_ptr<CMTraces> traces(parser.GetTraces());
  ASSERT_NE(traces, nullptr);
  EXPECT_EQ(Described(*traces), kModel);
  parser.Close();
  parser.Close();
}

TEST_F(MPTracesParserTest, WritesEveryErrorToStandardErrorAndKeepsTheLast) {
  MPTracesParser parser;
  parser.SetFile(Path(kBegin + "TTT X\n\nTTT 1 2 3 4 5\nTTT 1 2 X\n" + kEnd).data());
  testing::internal::CaptureStderr();
  EXPECT_EQ(parser.Parse(), 0);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "\n\nSyntax error: parse error\nError Location : 3\n"
            "\n\nSyntax error: parse error\nError Location : 6\n");
  EXPECT_EQ(parser.GetError(), "Traces File Error: parse error - ErrorLine : 6");
  EXPECT_EQ(parser.GetCurrentLineNum(), 8);
  const std::unique_ptr<CMTraces> traces(parser.GetTraces());
  EXPECT_EQ(Described(*traces), kModel + " ttt{TTT 1 2 3 4 5}");
  parser.Close();
}

TEST_F(MPTracesParserTest, SharesItsStateAndKeepsTheModelOfAnEarlierParse) {
  MPTracesParser first(Path(kBegin + kEnd).data());
  ASSERT_EQ(first.Parse(), 0);
  const std::unique_ptr<CMTraces> traces(first.GetTraces());
  testing::internal::CaptureStderr();
  MPTracesParser second;
  EXPECT_EQ(second.Parse(), 1);  // the same file, at its end
  EXPECT_EQ(second.GetTraces(), traces.get());
  EXPECT_EQ(first.GetError(), "Traces File Error: parse error - ErrorLine : 0");
  second.SetFile(Path(kBegin + "# NET 'broken").data());
  EXPECT_EQ(first.Parse(), 1);
  const std::unique_ptr<CMTraces> broken(first.GetTraces());
  EXPECT_NE(broken, traces);
  second.SetFile(Path("ARE " + kBegin + kEnd).data());
  EXPECT_EQ(second.Parse(), 1);
  EXPECT_EQ(second.GetTraces(), broken.get());
  second = first;
  second.SetFile(Path(kBegin + kEnd).data());
  EXPECT_EQ(second.Parse(), 0);  // nothing is left of the parses before
  const std::unique_ptr<CMTraces> last(second.GetTraces());
  EXPECT_EQ(Described(*last), kModel);
  testing::internal::GetCapturedStderr();
  first.Close();
}

TEST_F(MPTracesParserTest, ReadsStandardInputWhereNoFileIsOpen) {
  const std::string path = Path(kBegin + kEnd);
  const std::string missing = path + ".missing";
  // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): standard input stays the process's
  ASSERT_NE(std::freopen(path.c_str(), "r", stdin), nullptr);
  MPTracesParser parser(std::string(missing).data());
  EXPECT_EQ(parser.Parse(), 0);
  const std::unique_ptr<CMTraces> traces(parser.GetTraces());
  parser.Close();
  testing::internal::CaptureStderr();
  EXPECT_EQ(parser.Parse(), 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "\n\nSyntax error: parse error\nError Location : 0\n");
  EXPECT_EQ(parser.GetTraces(), traces.get());
}

}  // namespace
}  // namespace kestrin
