#include "tool/temporary_copy.h"

#include <stdlib.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <vector>

#include "tool/usage_error.h"

namespace kestrin::tool {
namespace {

/// Creates an empty file that only this user may read.
FileHandle CreateFile(std::string& path) {
  path = (std::filesystem::temp_directory_path() / "kestrin-XXXXXX").string();
  const int descriptor = mkstemp(path.data());
  if (descriptor >= 0) return FileHandle(fdopen(descriptor, "wb"));
  throw UsageError("cannot create the temporary file \"" + path + "\": " + std::strerror(errno));
}

FileHandle Open(const std::string& path) {
  FileHandle file(std::fopen(path.c_str(), "rb"));
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
  copy_ = CreateFile(path_);
  try {
    Copy(source, copy_.get(), name);
  } catch (const UsageError&) {
    std::remove(path_.c_str());
    throw;
  }
  // Without its name, the file disappears with the process, however that ends.
  const std::string open = "/proc/self/fd/" + std::to_string(fileno(copy_.get()));
  if (!std::filesystem::exists(open)) return;
  std::remove(path_.c_str());
  path_ = open;
}

TemporaryCopy::~TemporaryCopy() {
  if (!path_.starts_with("/proc/")) std::remove(path_.c_str());
}

}  // namespace kestrin::tool
