#include "tool/temporary_copy.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <vector>

#include "kestrin/framework/open_file.h"
#include "tool/system/files.h"
#include "tool/usage_error.h"

namespace kestrin::tool {
namespace {

FileHandle Create(std::string& path) {
  if (FileHandle file = CreateTemporaryFile(path)) return file;
  throw UsageError("cannot create the temporary file \"" + path + "\": " + std::strerror(errno));
}

FileHandle Open(const std::string& path) {
  FileHandle file = OpenToRead(path.c_str());
  if (file == nullptr) throw UsageError("cannot open \"" + path + "\": " + std::strerror(errno));
  return file;
}

void Copy(std::FILE* from, std::FILE* to, const std::string& source) {
  constexpr std::size_t kBlock = std::size_t{1} << 16;
  std::vector<char> block(kBlock);
  while (const std::size_t size = std::fread(block.data(), 1, block.size(), from)) {
    if (std::fwrite(block.data(), 1, size, to) != size) throw UsageError("cannot store " + source);
  }
  if (std::ferror(from) != 0) throw UsageError("cannot read " + source);
  if (std::fflush(to) != 0) throw UsageError("cannot store " + source);
}

}  // namespace

TemporaryCopy::TemporaryCopy(const std::string& path)
    : TemporaryCopy(path == "-" ? stdin : Open(path).get(),
                    path == "-" ? "standard input" : "\"" + path + "\"") {}

TemporaryCopy::TemporaryCopy(std::FILE* source, const std::string& name) {
  copy_ = Create(path_);
  try {
    Copy(source, copy_.get(), name);
  } catch (const UsageError&) {
    copy_.reset();
    std::remove(path_.c_str());
    throw;
  }
  path_ = TakeName(copy_, path_);
}

TemporaryCopy::~TemporaryCopy() {
  if (!path_.starts_with("/proc/")) std::remove(path_.c_str());
}

}  // namespace kestrin::tool
