#include "tool/draw/output_file.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "tool/system/files.h"
#include "tool/usage_error.h"

namespace kestrin::tool::draw {
namespace {

namespace fs = std::filesystem;

/// Where a path leads if it is a link, perhaps to a file that does not exist yet: the link is to stay.
std::string Followed(const std::string& path) {
  constexpr int kMostLinks = 40;
  std::error_code error;
  fs::path target = PathOfText(path);
  for (int i = 0; i < kMostLinks && fs::is_symlink(target, error); ++i) {
    target = target.parent_path() / fs::read_symlink(target, error);
  }
  return TextOfPath(target);
}

}  // namespace

OutputFile::OutputFile(const std::string& path) : path_(path), target_(Followed(path)) {
  constexpr int kMostTries = 100;
  std::error_code error;
  const fs::file_status status = fs::status(PathOfText(target_), error);
  if (fs::exists(status) && !fs::is_regular_file(status)) Fail("it is not a regular file");
  for (int i = 1; file_ == nullptr; ++i) {
    partPath_ = target_ + ".part" + std::to_string(i);
    file_ = CreateNewFile(partPath_);
    if (file_ == nullptr && (errno != EEXIST || i == kMostTries)) Fail(std::strerror(errno));
  }
}

OutputFile::~OutputFile() {
  if (partPath_.empty()) return;
  file_.reset();
  std::error_code ignored;
  fs::remove(PathOfText(partPath_), ignored);
}

void OutputFile::Write(std::string_view bytes) {
  if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size()) Fail(std::strerror(errno));
}

void OutputFile::Complete() {
  if (std::fflush(file_.get()) != 0) Fail(std::strerror(errno));
  file_.reset();  // some systems do not rename open files
  std::error_code error;
  fs::rename(PathOfText(partPath_), PathOfText(target_), error);
  if (error) Fail(error.message());
  partPath_.clear();
}

void OutputFile::Fail(const std::string& why) const {
  throw UsageError("cannot write \"" + path_ + "\": " + why);
}

}  // namespace kestrin::tool::draw
