#pragma once

/// @file
/// Creating files, which each system does in its own way, and paths as text in UTF-8.

#include <filesystem>
#include <string>

#include "kestrin/base/file_handle.h"

namespace kestrin::tool {

/// The path that a text names, and the text that names a path, with / on all systems.
[[nodiscard]] inline std::filesystem::path PathOfText(const std::string& text) {
  return std::u8string(text.begin(), text.end());
}
[[nodiscard]] inline std::string TextOfPath(const std::filesystem::path& path) {
  const std::u8string text = path.generic_u8string();
  return {text.begin(), text.end()};
}

/// Creates a file to write. Returns null, and sets errno, if there is one already or it cannot be created.
[[nodiscard]] FileHandle CreateNewFile(const std::string& path);

/// Creates a temporary file that only this user may read, and sets its path. Returns null, and sets errno, if
/// it cannot be created.
[[nodiscard]] FileHandle CreateTemporaryFile(std::string& path);

/// Takes the name from a file that has been written, so that the file disappears with the process, however
/// that ends. Returns the path by which it can be opened. Where files need names, closes the file, and the
/// path is the old one.
[[nodiscard]] std::string TakeName(FileHandle& file, const std::string& path);

}  // namespace kestrin::tool
