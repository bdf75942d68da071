#include "kestrin/framework/stdio_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kestrin/session/line_count.h"
#include "support/temporary_folder.h"

namespace kestrin {
namespace {

using namespace std::string_literals;

struct Content {
  std::string bytes;
  std::vector<std::string> lines;
  int count;
};

TEST(StdioFile, ReadsLinesOfAnyBytesAndAnyLength) {
  const std::string megabyte(1'000'000, 'x');
  const Content contents[] = {
      {"", {}, 1},
      {"a\nb", {"a", "b"}, 2},
      {"a\nb\n", {"a", "b"}, 3},
      {"\n\n", {"", ""}, 3},
      {"a\r\n\r\nb\r\r\n\rc\r", {"a", "", "b\r", "\rc\r"}, 4},
      {"a\0b\xFF\x1A\n\0"s, {"a\0b\xFF\x1A"s, "\0"s}, 2},
      {megabyte + "\r\n" + megabyte + "\nz", {megabyte, megabyte, "z"}, 3},
  };
  const test::TemporaryFolder folder;
  for (const Content& content : contents) {
    const std::string path = folder.File("text", content.bytes);
    CStdioFile file;
    ASSERT_NE(file.Open(path.c_str(), 0), 0);
    std::vector<std::string> lines;
    for (CString line; file.ReadString(line);) lines.emplace_back(line.View());
    EXPECT_EQ(lines, content.lines);
    EXPECT_EQ(CountLines(path.c_str()), content.count);
  }
}

TEST(StdioFile, ALineFeedMayBeAtEitherEndOfABlock) {
  const test::TemporaryFolder folder;
  for (int length = 262140; length < 262148; ++length) {
    const std::string first(static_cast<std::size_t>(length), 'a');
    CStdioFile file;
    ASSERT_NE(file.Open(folder.File("text", first + "\r\nb\r\nc").c_str()), 0);
    CString line;
    ASSERT_TRUE(file.ReadString(line));
    EXPECT_EQ(line.View(), first);
    ASSERT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, "b");
    ASSERT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, "c");
    EXPECT_FALSE(file.ReadString(line));
  }
}

TEST(StdioFile, OpensNeitherAMissingFileNorAFolder) {
  const test::TemporaryFolder folder;
  for (const std::string& path : {folder.Path("missing"), folder.Path(), ""s}) {
    CStdioFile file;
    CString line;
    EXPECT_EQ(file.Open(path.c_str()), 0);
    EXPECT_FALSE(file.ReadString(line));
    EXPECT_EQ(CountLines(path.c_str()), 1);
  }
}

}  // namespace
}  // namespace kestrin
