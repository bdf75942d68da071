#include "tool/temporary_copy.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <random>
#include <system_error>
#include <vector>

#include "kestrin/base/file_handle.h"
#include "tool/usage_error.h"

namespace kestrin::tool {
namespace {

/// Creates an empty file that did not exist.
FileHandle CreateFile(std::string& path) {
  constexpr int kAttempts = 100;
  std::random_device random;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    path = (std::filesystem::temp_directory_path() / ("kestrin-" + std::to_string(random()))).string();
    if (FileHandle file{std::fopen(path.c_str(), "wbx")}) return file;
    if (errno != EEXIST) break;
  }
  throw UsageError("cannot create the temporary file \"" + path + "\": " + std::strerror(errno));
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

TemporaryCopy::TemporaryCopy(const std::string& source) {
  const bool isStandardInput = source == "-";
  const FileHandle opened(isStandardInput ? nullptr : std::fopen(source.c_str(), "rb"));
  if (!isStandardInput && opened == nullptr)
    throw UsageError("cannot open \"" + source + "\": " + std::strerror(errno));
  const FileHandle copy = CreateFile(path_);
  try {
    Copy(isStandardInput ? stdin : opened.get(), copy.get(),
         isStandardInput ? "standard input" : "\"" + source + "\"");
  } catch (const UsageError&) {
    std::remove(path_.c_str());
    throw;
  }
}

TemporaryCopy::~TemporaryCopy() { std::remove(path_.c_str()); }

}  // namespace kestrin::tool
