#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

#include "kestrin/traces/strict/mp_traces_parser.h"
#include "kestrin/traces/traces_model.h"
#include "support/described.h"

namespace kestrin {
namespace {

/// Redirects standard input to a pipe that is written to while it is read.
class StandardInputPipe {
 public:
  StandardInputPipe() : saved_(dup(STDIN_FILENO)) {
    EXPECT_EQ(pipe(ends_.data()), 0);
    dup2(ends_[0], STDIN_FILENO);
    std::clearerr(stdin);
  }
  StandardInputPipe(const StandardInputPipe&) = delete;
  StandardInputPipe& operator=(const StandardInputPipe&) = delete;
  ~StandardInputPipe() {
    dup2(saved_, STDIN_FILENO);
    for (const int end : {ends_[0], saved_}) close(end);
    std::clearerr(stdin);
  }

  void Write(std::string_view text) const {
    EXPECT_EQ(write(ends_[1], text.data(), text.size()), static_cast<ssize_t>(text.size()));
  }
  void Finish() const { close(ends_[1]); }

 private:
  std::array<int, 2> ends_{-1, -1};
  int saved_;
};

TEST(StandardInput, IsReadNoFurtherThanItIsAvailable) {
  const StandardInputPipe input;
  MPTracesParser parser;
  testing::internal::CaptureStderr();
  input.Write("X\n");
  EXPECT_EQ(parser.Parse(), 1);  // without waiting for more input
  input.Write("UNITS MM\nST 1 2 3 4\nXRF 1 U_1\nST 1 2 3 4\n");
  input.Finish();
  EXPECT_EQ(parser.Parse(), 0);
  const std::unique_ptr<CMTraces> traces(parser.GetTraces());
  EXPECT_EQ(test::Described(*traces), "units=MM st=(1 2 3 4) xrf{1 U_1 U_1}");
  testing::internal::GetCapturedStderr();
}

TEST(StandardInput, IsNotReadInPlaceOfAFolder) {
  const StandardInputPipe input;
  input.Write("UNITS MM\n");
  input.Finish();
  std::string folder = testing::TempDir();
  MPTracesParser parser;
  parser.SetFile(folder.data());
  testing::internal::CaptureStderr();
  static_cast<void>(parser.Parse());
  static_cast<void>(testing::internal::GetCapturedStderr());
  parser.Close();
  EXPECT_EQ(std::getc(stdin), 'U');
  while (std::getc(stdin) != EOF) continue;
}

}  // namespace
}  // namespace kestrin
