#include "tool/system/files.h"

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

#include <random>

namespace kestrin::tool {

FileHandle CreateNewFile(const std::string& path) {
  const int descriptor =
      _open(path.c_str(), _O_CREAT | _O_EXCL | _O_WRONLY | _O_BINARY, _S_IREAD | _S_IWRITE);
  return FileHandle(descriptor < 0 ? nullptr : _fdopen(descriptor, "wb"));
}

FileHandle CreateTemporaryFile(std::string& path) {
  std::random_device random;
  const std::string name = "kestrin-" + std::to_string(random()) + std::to_string(random());
  path = TextOfPath(std::filesystem::temp_directory_path() / name);  // a folder of this user
  return CreateNewFile(path);
}

std::string TakeName(FileHandle& file, const std::string& path) {
  file.reset();
  return path;
}

}  // namespace kestrin::tool
