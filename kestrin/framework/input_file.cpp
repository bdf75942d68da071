#include "kestrin/framework/input_file.h"

#include "kestrin/framework/exceptions.h"
#include "kestrin/framework/open_file.h"

namespace kestrin {

bool InputFile::Open(const char* path) {
  file_ = OpenToRead(path);
  if (file_ != nullptr) std::setvbuf(file_.get(), nullptr, _IONBF, 0);  // callers read large blocks
  return file_ != nullptr;
}

std::size_t InputFile::Read(char* bytes, std::size_t size) {
  const std::size_t count = std::fread(bytes, 1, size, file_.get());
  if (count == 0 && size > 0 && std::ferror(file_.get()) != 0) throw CFileException();
  return count;
}

}  // namespace kestrin
