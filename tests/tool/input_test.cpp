#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <cstdlib>
#include <string>

#include "support/temporary_folder.h"
#include "tests/support/process.h"

namespace kestrin {
namespace {

using test::RunTool;
using test::TemporaryFolder;

const std::string kBoard = KESTRIN_EXAMPLES "/board";

TEST(ToolInput, TakesFoldersFilesPipesAndStandardInput) {
  const std::string traces = kBoard + "/board.traces";
  const std::string expected = RunTool("dump --traces " + traces).out;
  ASSERT_GT(expected.size(), 1000U);
  const TemporaryFolder folder;
  ASSERT_EQ(std::system(("cp " + traces + " " + folder.Path("x.TRACES")).c_str()), 0);
  ASSERT_EQ(std::system(("mkfifo " + folder.Path("fifo")).c_str()), 0);
  for (const std::string& arguments :
       {"dump " + traces, "dump " + folder.Path("x.TRACES"), "dump --traces - <" + traces}) {
    EXPECT_EQ(RunTool(arguments).out, expected) << arguments;
  }
  ASSERT_EQ(std::system(("cat " + traces + " >" + folder.Path("fifo") + " &").c_str()), 0);
  EXPECT_EQ(RunTool("dump --traces " + folder.Path("fifo")).out, expected);
}

TEST(ToolInput, NeedsNoTechFile) {
  const TemporaryFolder folder;
  ASSERT_EQ(
      std::system(("cp " + kBoard + "/* " + folder.Path() + " && rm " + folder.Path("board.tech")).c_str()),
      0);
  for (const std::string command : {"summary", "board", "dump"}) {
    EXPECT_EQ(RunTool(command + " " + folder.Path()).status, 0) << command;
  }
}

TEST(ToolInput, NamesStandardInputInMessages) {
  const TemporaryFolder folder;
  const auto check = RunTool("check --tech - <" + folder.File("a", "what\n"));
  EXPECT_NE(check.out.find("\n-:1: warning: unknown record [unknown-record]\n"), std::string::npos)
      << check.out;
}

TEST(ToolInput, ReadsTextsInTheirEncoding) {
  const TemporaryFolder folder;
  const std::string utf8 = folder.File("utf8.tech", "$$define_rule_via(V\xC3\xA9)\n");
  const std::string latin1 = folder.File("latin1.tech", "$$define_rule_via(V\xE9)\n");
  const std::string neutral = folder.File("a.neutral", "###Nets\nNET N\xC3\xA9\n");
  struct Case {
    std::string arguments;
    std::string name;
  };
  const Case cases[] = {
      {"summary --tech " + utf8, "V\xC3\xA9\n"},
      {"summary --tech " + latin1, "V\xC3\xA9\n"},
      {"summary --encoding latin-1 --tech " + utf8, "V\xC3\x83\xC2\xA9\n"},
      {"summary --encoding utf-8 --tech " + latin1, "V\xC3\xA9\n"},
      {"board --neutral " + neutral, "\"N\xC3\xA9\""},
      {"board --neutral " + neutral + " --tech " + latin1, "\"N\xC3\x83\xC2\xA9\""},
      {"dump --tech " + utf8, "\"V\xC3\x83\xC2\xA9\""},
  };
  for (const Case& c : cases) {
    const std::string out = RunTool(c.arguments).out;
    EXPECT_NE(out.find(c.name), std::string::npos) << c.arguments << '\n' << out;
  }
}

TEST(ToolInput, NamesAByteOrderMark) {
  const TemporaryFolder folder;
  const auto check = RunTool("check --traces " + folder.File("a", "\xEF\xBB\xBFUNITS MM\nST 1 2 3 4\n"));
  EXPECT_NE(check.out.find(":1: warning: unknown record: the line begins with a byte order mark"),
            std::string::npos)
      << check.out;
}

}  // namespace
}  // namespace kestrin
