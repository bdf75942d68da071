#include "kestrin/framework/input_file.h"

#include <filesystem>
#include <system_error>

#include "kestrin/framework/exceptions.h"

namespace kestrin {

bool InputFile::Open(const char* path) {
  std::error_code ignored;
  file_.reset(std::filesystem::is_directory(path, ignored) ? nullptr : std::fopen(path, "rb"));
  if (file_ != nullptr) std::setvbuf(file_.get(), nullptr, _IONBF, 0);  // callers read large blocks
  return file_ != nullptr;
}

std::size_t InputFile::Read(char* bytes, std::size_t size) {
  const std::size_t count = std::fread(bytes, 1, size, file_.get());
  if (count == 0 && size > 0 && std::ferror(file_.get()) != 0) throw CFileException();
  return count;
}

}  // namespace kestrin
