#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kestrin::test {

/// A temporary folder. It is removed, with its contents, when the object is destroyed.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "kestrin-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("cannot create a temporary folder");
    path_ = name;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() { std::filesystem::remove_all(path_); }

  [[nodiscard]] std::string Path(std::string_view name = "") const { return path_ + "/" + std::string(name); }

  /// Writes a file and returns its path.
  [[nodiscard]] std::string File(std::string_view name, std::string_view content) const {
    std::ofstream(Path(name), std::ios::binary) << content;
    return Path(name);
  }

 private:
  std::string path_;
};

}  // namespace kestrin::test
