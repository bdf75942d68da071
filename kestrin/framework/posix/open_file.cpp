#include "kestrin/framework/open_file.h"

#include <filesystem>
#include <system_error>

namespace kestrin {

FileHandle OpenToRead(const char* path) {
  std::error_code ignored;
  return FileHandle(std::filesystem::is_directory(path, ignored) ? nullptr : std::fopen(path, "rb"));
}

}  // namespace kestrin
