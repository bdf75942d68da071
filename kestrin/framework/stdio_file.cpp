#include "kestrin/framework/stdio_file.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "kestrin/framework/input_file.h"

namespace kestrin {
namespace {

constexpr std::size_t kBlockSize = std::size_t{256} * 1024;

}  // namespace

/// The part of the file that is in memory. Lines are taken from its front; blocks are appended to it.
class CStdioFile::LineBuffer {
 public:
  [[nodiscard]] bool Open(const char* path) { return file_.Open(path); }

  [[nodiscard]] std::optional<std::string_view> NextLine() {
    std::size_t searched = 0;  // the first bytes of this line; none is a line feed
    for (;;) {
      if (const char* feed = FindFeed(searched)) return TakeLine(feed);
      searched = filled_ - start_;
      if (!ReadBlock()) return TakeLastLine();
    }
  }

 private:
  [[nodiscard]] const char* FindFeed(std::size_t searched) const {
    if (start_ + searched == filled_) return nullptr;
    return static_cast<const char*>(
        std::memchr(bytes_.data() + start_ + searched, '\n', filled_ - start_ - searched));
  }

  std::string_view TakeLine(const char* feed) {
    const char* first = bytes_.data() + start_;
    start_ = static_cast<std::size_t>(feed - bytes_.data()) + 1;
    if (feed > first && feed[-1] == '\r') --feed;
    return {first, static_cast<std::size_t>(feed - first)};
  }

  std::optional<std::string_view> TakeLastLine() {
    if (start_ == filled_) return std::nullopt;
    const std::string_view line(bytes_.data() + start_, filled_ - start_);
    start_ = filled_;
    return line;
  }

  bool ReadBlock() {
    MoveToFront();
    if (bytes_.size() - filled_ < kBlockSize) bytes_.resize(std::max(2 * bytes_.size(), 2 * kBlockSize));
    const std::size_t count = file_.Read(bytes_.data() + filled_, bytes_.size() - filled_);
    filled_ += count;
    return count > 0;
  }

  void MoveToFront() {
    if (start_ == 0) return;
    std::memmove(bytes_.data(), bytes_.data() + start_, filled_ - start_);
    filled_ -= start_;
    start_ = 0;
  }

  InputFile file_;
  std::vector<char> bytes_;
  std::size_t start_ = 0;   // of the next line
  std::size_t filled_ = 0;  // the end of the bytes that have been read
};

CStdioFile::CStdioFile() = default;
CStdioFile::~CStdioFile() = default;

int CStdioFile::Open(const char* path, unsigned /*flags*/) {
  auto buffer = std::make_unique<LineBuffer>();
  if (!buffer->Open(path)) return 0;
  buffer_ = std::move(buffer);
  return 1;
}

void CStdioFile::Close() { buffer_.reset(); }

bool CStdioFile::ReadString(CString& line) {
  const std::optional<std::string_view> next = ReadLine();
  line = next.value_or(std::string_view());
  return next.has_value();
}

std::optional<std::string_view> CStdioFile::ReadLine() {
  return buffer_ == nullptr ? std::nullopt : buffer_->NextLine();
}

}  // namespace kestrin
