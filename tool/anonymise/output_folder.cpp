#include "tool/anonymise/output_folder.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <random>
#include <system_error>

#include "kestrin/base/file_handle.h"
#include "kestrin/text/ignoring_case.h"
#include "tool/usage_error.h"

namespace kestrin::tool {
namespace {

namespace fs = std::filesystem;

std::string Quoted(const fs::path& path) { return '"' + path.string() + '"'; }

void Check(const std::error_code& error, const std::string& what) {
  if (error) throw UsageError("cannot " + what + ": " + error.message());
}

/// The absolute path, without a separator at its end.
fs::path Normal(const std::string& path) {
  std::error_code error;
  fs::path normal = fs::absolute(path, error).lexically_normal();
  Check(error, "find folder \"" + path + '"');
  return normal.has_filename() ? normal : normal.parent_path();
}

/// A path beside another one that does not exist.
fs::path PathBeside(const fs::path& path) {
  std::random_device random;
  for (;;) {
    fs::path beside = path;
    beside.replace_filename('.' + path.filename().string() + '-' + std::to_string(random()));
    std::error_code error;
    if (!fs::exists(fs::symlink_status(beside, error))) return beside;
  }
}

bool IsOfExportSet(const fs::path& file) {
  return std::any_of(kFileKinds.begin(), kFileKinds.end(), [&](const FileKind& kind) {
    return EqualIgnoringCase(file.extension().string(), kind.ending);
  });
}

/// Raises UsageError unless the folder may be replaced.
void CheckReplaceable(const fs::path& folder, const ExportSet& source) {
  std::error_code error;
  const auto refuse = [&](const std::string& reason) {
    throw UsageError("cannot replace " + Quoted(folder) + ": " + reason);
  };
  if (!fs::is_directory(fs::symlink_status(folder, error))) refuse("it is no folder");
  fs::directory_iterator entries(folder, error);
  Check(error, "read folder " + Quoted(folder));
  for (; entries != fs::directory_iterator(); entries.increment(error)) {
    const fs::path& file = entries->path();
    if (!entries->is_regular_file(error) || !IsOfExportSet(file))
      refuse("it contains " + Quoted(file.filename()) + ", which is no file of an export set");
    for (const FileKind& kind : kFileKinds) {
      if (source.Has(kind.file) && fs::equivalent(source.PathOf(kind.file), file, error))
        refuse("it contains the original");
    }
  }
}

void CheckNew(const fs::path& path, bool replaces) {
  std::error_code error;
  if (fs::exists(fs::symlink_status(path, error)) && !replaces)
    throw UsageError(Quoted(path) + " exists; choose another name, or replace it with --force");
}

void WriteFile(const fs::path& path, std::string_view bytes) {
  FileHandle file(std::fopen(path.c_str(), "wb"));
  const bool isWritten = file != nullptr &&
                         std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size() &&
                         std::fflush(file.get()) == 0;
  if (!isWritten) throw UsageError("cannot write " + Quoted(path) + ": " + std::strerror(errno));
}

}  // namespace

OutputFolder::OutputFolder(const std::string& path, const ExportSet& source, bool replaces)
    : path_(Normal(path)), filled_(PathBeside(path_)) {
  std::error_code error;
  CheckNew(path_, replaces);
  if (fs::exists(fs::symlink_status(path_, error))) CheckReplaceable(path_, source);
  fs::create_directory(filled_, error);
  if (error) filled_.clear();
  Check(error, "create folder " + Quoted(path_));
}

OutputFolder::~OutputFolder() {
  std::error_code ignored;
  if (!filled_.empty()) fs::remove_all(filled_, ignored);
}

void OutputFolder::Write(const std::string& name, std::string_view bytes) const {
  WriteFile(filled_ / name, bytes);
}

void OutputFolder::Finish() {
  const fs::path replaced = PathBeside(path_);
  std::error_code error;
  std::error_code ignored;
  const bool exists = fs::exists(path_, ignored);
  if (exists) fs::rename(path_, replaced, error);
  Check(error, "replace folder " + Quoted(path_));
  fs::rename(filled_, path_, error);
  if (error && exists) fs::rename(replaced, path_, ignored);
  Check(error, "create folder " + Quoted(path_));
  filled_.clear();
  if (exists) fs::remove_all(replaced, ignored);
}

bool OutputFolder::HasPath(const std::string& path) const { return Normal(path).parent_path() == path_; }

OutputFile::OutputFile(const std::string& path, bool replaces)
    : path_(Normal(path)), filled_(PathBeside(path_)) {
  CheckNew(path_, replaces);
  std::error_code error;
  if (fs::is_directory(path_, error)) throw UsageError(Quoted(path_) + " is a folder, not a file");
  WriteFile(filled_, {});
  fs::permissions(filled_, fs::perms::owner_read | fs::perms::owner_write, error);
}

OutputFile::~OutputFile() {
  std::error_code ignored;
  if (!filled_.empty()) fs::remove(filled_, ignored);
}

void OutputFile::Write(std::string_view bytes) const { WriteFile(filled_, bytes); }

void OutputFile::Finish() {
  std::error_code error;
  fs::rename(filled_, path_, error);
  Check(error, "write " + Quoted(path_));
  filled_.clear();
}

}  // namespace kestrin::tool
