#include <gtest/gtest.h>

#include "kestrin/framework/exceptions.h"
#include "kestrin/framework/stdio_file.h"
#include "kestrin/session/line_count.h"

namespace kestrin {
namespace {

TEST(StdioFile, AReadErrorIsAnException) {
  CStdioFile file;
  ASSERT_NE(file.Open("/proc/self/mem"), 0);  // can be opened, but not read at its start
  CString line;
  EXPECT_THROW(file.ReadString(line), CFileException);
  EXPECT_EQ(CountLines("/proc/self/mem"), 1);
}

}  // namespace
}  // namespace kestrin
