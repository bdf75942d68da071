#include "kestrin/traces/strict/mp_traces_parser.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "kestrin/traces/traces_model.h"
#include "support/described.h"
#include "support/temporary_folder.h"

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
const std::string kModel = "units=MM st=(1 2 3 4) xrf{1 U_1 U_1}";

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
  EXPECT_EQ(Described(*traces), kModel + " ttt{1 2 3 4 5}");
  parser.Close();
}

TEST_F(MPTracesParserTest, SharesItsStateAndKeepsTheModelOfAnEarlierParse) {
  MPTracesParser first(Path(kBegin + kEnd).data());
  ASSERT_EQ(first.Parse(), 0);
  const std::unique_ptr<CMTraces> traces(first.GetTraces());
  testing::internal::CaptureStderr();
  MPTracesParser second;
  EXPECT_EQ(second.Parse(), 1);  // both use the same file, which is at its end
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
  EXPECT_EQ(second.Parse(), 0);  // earlier parses have no effect
  const std::unique_ptr<CMTraces> last(second.GetTraces());
  EXPECT_EQ(Described(*last), kModel);
  testing::internal::GetCapturedStderr();
  first.Close();
}

/// Redirects standard input to a file.
void ReadFromStandardInput(const std::string& path) {
  // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): standard input stays the process's
  ASSERT_NE(std::freopen(path.c_str(), "r", stdin), nullptr);
}

TEST_F(MPTracesParserTest, ReadsStandardInputIfNoFileIsOpen) {
  const std::string path = Path(kBegin + kEnd);
  const std::string missing = path + ".missing";
  ReadFromStandardInput(path);
  MPTracesParser parser(std::string(missing).data());
  EXPECT_EQ(parser.Parse(), 0);
  const std::unique_ptr<CMTraces> traces(parser.GetTraces());
  parser.Close();
  testing::internal::CaptureStderr();
  EXPECT_EQ(parser.Parse(), 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "\n\nSyntax error: parse error\nError Location : 0\n");
  EXPECT_EQ(parser.GetTraces(), traces.get());
  ReadFromStandardInput(path);
  EXPECT_EQ(parser.Parse(), 0);
  const std::unique_ptr<CMTraces> again(parser.GetTraces());
  EXPECT_EQ(Described(*again), kModel);
}

/// Parses until the input is accepted: the line of the error that ended each parse, the line ends of the
/// last, and its model.
std::string Parses(MPTracesParser& parser) {
  constexpr std::string_view kBeforeLine = "Traces File Error: parse error - ErrorLine : ";
  std::string parses;
  testing::internal::CaptureStderr();
  for (int count = 0; count < 5; ++count) {
    if (parser.Parse() == 0) {
      const std::unique_ptr<CMTraces> traces(parser.GetTraces());
      parses += std::to_string(parser.GetCurrentLineNum()) + " " + Described(*traces);
      break;
    }
    parses += "@" + std::string(parser.GetError()).substr(kBeforeLine.size()) + " ";
  }
  testing::internal::GetCapturedStderr();
  return parses;
}

TEST_F(MPTracesParserTest, ReadsOnAfterTheTokenThatEndedAParse) {
  std::string many = "X\n" + kBegin;
  std::string manyModel = kModel;
  for (int i = 0; i < 10'000; ++i) {
    many += "TTT 1 2 3 4 5\n";
    manyModel += " ttt{1 2 3 4 5}";
  }
  struct Case {
    std::string text;
    std::string parses;
  };
  const std::string application = "# Application x\n" + kBegin;
  const Case cases[] = {
      {"X\n" + application, "@0 5 " + kModel},
      {"X\r\n\r\n Y\r\n" + kBegin + kEnd, "@0 @2 5 " + kModel},
      {many + kEnd, "@0 10005 " + manyModel},
      {"SEG UNITS\n" + kBegin + kEnd, "@0 @0 5 " + kModel},  // still in the SEG line
      {"X (A\n" + kBegin + kEnd, "@0 @0 5 " + kModel},
      {"UNITS ST X\n1 " + application, "@0 @0 @1 4 " + kModel},
      {"FIL\n" + application + "ARE 'A' 'L' S 4 5 6 VER 1 2\n",  // the first FIL of another parse
       "@0 6 " + kModel + " fil{name=(A L) are{name=(A L) 3=(S 4 5 6) ver{x=1 y=2}}}"},
  };
  for (const Case& c : cases) {
    const std::string path = Path(c.text);
    MPTracesParser parser(std::string(path).data());
    EXPECT_EQ(Parses(parser), c.parses) << c.text.substr(0, 200);
    parser.Close();
    ReadFromStandardInput(path);
    EXPECT_EQ(Parses(parser), c.parses) << c.text.substr(0, 200);
  }
}

TEST_F(MPTracesParserTest, MakesAModelOfItsOwnWithEveryParse) {
  const std::string begin = "# Application x\n" + kBegin;
  MPTracesParser parser(Path(begin + "# NET 'A'\nXRF\n" + begin + "TTT 1 2 3 4 5\n").data());
  testing::internal::CaptureStderr();
  EXPECT_EQ(parser.Parse(), 1);
  testing::internal::GetCapturedStderr();
  const std::unique_ptr<CMTraces> rejected(parser.GetTraces());
  EXPECT_EQ(parser.Parse(), 0);
  const std::unique_ptr<CMTraces> accepted(parser.GetTraces());
  EXPECT_EQ(Described(*accepted), kModel + " ttt{1 2 3 4 5}");
  EXPECT_EQ(Described(*rejected), kModel + " net{name=A}");
  parser.Close();
}

}  // namespace
}  // namespace kestrin
