#include "kestrin/framework/open_file.h"

namespace kestrin {

// A path is in the code page of the process, which std::filesystem would not use. Folders do not open.
FileHandle OpenToRead(const char* path) { return FileHandle(std::fopen(path, "rb")); }

}  // namespace kestrin
