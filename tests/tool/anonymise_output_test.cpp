#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

#include "support/temporary_folder.h"
#include "tests/support/content_of.h"
#include "tests/support/process.h"

namespace kestrin {
namespace {

using test::ContentOf;
using test::RunTool;
using test::TemporaryFolder;

const std::string kBoard = KESTRIN_EXAMPLES "/board";

/// The names in a folder.
std::set<std::string> EntriesOf(const std::string& folder) {
  std::set<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) names.insert(entry.path().filename());
  return names;
}

TEST(AnonymiseOutput, TheFolderIsWrittenAsAWholeOrNotAtAll) {
  const TemporaryFolder folder;
  const auto run = [&](const std::string& arguments) { return RunTool("anonymise " + arguments).status; };
  const std::string out = folder.Path("out");
  EXPECT_EQ(run(kBoard + " " + out), 0);
  EXPECT_EQ(EntriesOf(out),
            (std::set<std::string>{"board.geometry", "board.neutral", "board.tech", "board.traces"}));
  EXPECT_EQ(run(kBoard + " " + out), 2);
  EXPECT_EQ(run(kBoard + "/board.tech " + out + "/ --force"), 0);
  EXPECT_EQ(EntriesOf(out), (std::set<std::string>{"board.tech"}));

  // Neither the original nor anything else is replaced.
  EXPECT_EQ(run(out + "/board.tech " + out + " --force"), 2);
  static_cast<void>(folder.File("out/notes.txt", "kept"));
  EXPECT_EQ(run(kBoard + " " + out + " --force"), 2);
  EXPECT_EQ(ContentOf(folder.Path("out/notes.txt")), "kept");

  EXPECT_EQ(run(kBoard + " " + folder.Path("no/such/folder")), 2);
  EXPECT_EQ(run(kBoard + " " + folder.Path("new") + " --map " + folder.Path("no/such/map")), 2);
  EXPECT_EQ(run(folder.Path("missing") + " " + folder.Path("new")), 2);
  EXPECT_EQ(run(folder.Path("new")), 2);
  EXPECT_EQ(EntriesOf(folder.Path()), (std::set<std::string>{"out"}));
}

TEST(AnonymiseOutput, TheMapIsWrittenOnRequestAndSaysWhatEachWordBecame) {
  const TemporaryFolder folder;
  const std::string map = folder.Path("map");
  const std::string arguments = "anonymise " + kBoard + "/board.tech " + folder.Path("out") + " --map ";
  EXPECT_EQ(RunTool(arguments + folder.Path("out") + "/map").status, 2);
  EXPECT_EQ(RunTool(arguments + map).status, 0);
  const std::string text = ContentOf(map);
  const auto inner = text.find("INNER\t");
  ASSERT_NE(inner, std::string::npos) << text;
  EXPECT_NE(ContentOf(folder.Path("out/board.tech")).find('"' + text.substr(inner + 6, 5) + "_1\""),
            std::string::npos);
  EXPECT_EQ(RunTool("anonymise " + kBoard + "/board.tech " + folder.Path("new") + " --map " + map).status, 2);
  EXPECT_EQ(ContentOf(map), text);
  EXPECT_EQ(static_cast<unsigned>(std::filesystem::status(map).permissions()), 0600U);
}

}  // namespace
}  // namespace kestrin
