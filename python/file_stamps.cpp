#include "python/file_stamps.h"

#include <system_error>

#include "tool/usage_error.h"

namespace kestrin::python {

FileStamps::FileStamps(const tool::ExportSet& set) {
  for (const tool::FileKind& kind : tool::kFileKinds) {
    if (set.Has(kind.file)) stamps_.push_back(StampOf(set.PathOf(kind.file), set.ReadablePathOf(kind.file)));
  }
}

void FileStamps::RequireSame() const {
  for (const Stamp& stamp : stamps_) {
    if (StampOf(stamp.name, stamp.path) == stamp) continue;
    throw tool::UsageError(
        '"' + stamp.name + "\" is gone or has changed since it was read; read the set again for its findings",
        stamp.name);
  }
}

FileStamps::Stamp FileStamps::StampOf(const std::string& name, const std::filesystem::path& path) {
  std::error_code none;  // then the size and the time are the greatest and the least there are
  return {name, path, std::filesystem::file_size(path, none), std::filesystem::last_write_time(path, none)};
}

}  // namespace kestrin::python
