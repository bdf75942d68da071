#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

namespace kestrin::test {

/// A temporary folder. It is removed, with its contents, when the object is destroyed.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::random_device random;
    const std::filesystem::path temporary = std::filesystem::temp_directory_path();
    do {
      path_ = (temporary / ("kestrin-" + std::to_string(random()))).string();
    } while (!std::filesystem::create_directory(path_));
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;  // some systems remove no open files
    std::filesystem::remove_all(path_, ignored);
  }

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
