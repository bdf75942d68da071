#include "kestrin/framework/open_file.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace kestrin {

FileHandle OpenToRead(const char* path) {
  std::error_code ignored;
  if (!std::filesystem::is_directory(path, ignored)) return FileHandle(std::fopen(path, "rb"));
  errno = EISDIR;
  return nullptr;
}

}  // namespace kestrin
