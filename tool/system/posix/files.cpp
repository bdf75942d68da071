#include "tool/system/files.h"

#include <stdlib.h>

#include <cstdio>

namespace kestrin::tool {

FileHandle CreateNewFile(const std::string& path) { return FileHandle(std::fopen(path.c_str(), "wbx")); }

FileHandle CreateTemporaryFile(std::string& path) {
  path = TextOfPath(std::filesystem::temp_directory_path() / "kestrin-XXXXXX");
  const int descriptor = mkstemp(path.data());
  return FileHandle(descriptor < 0 ? nullptr : fdopen(descriptor, "wb"));
}

std::string TakeName(FileHandle& file, const std::string& path) {
  std::string open = "/proc/self/fd/" + std::to_string(fileno(file.get()));
  if (!std::filesystem::exists(open)) return path;
  std::remove(path.c_str());
  return open;
}

}  // namespace kestrin::tool
