#include "tool/export_set.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "kestrin/framework/open_file.h"
#include "kestrin/text/ignoring_case.h"
#include "tool/system/files.h"
#include "tool/usage_error.h"

namespace kestrin::tool {
namespace {

namespace fs = std::filesystem;

std::string Quoted(const std::string& path) { return '"' + path + '"'; }

std::vector<std::string> FilesIn(const std::string& folder) {
  std::error_code error;
  fs::directory_iterator entries(PathOfText(folder), error);
  if (error) throw UsageError("cannot read folder " + Quoted(folder) + ": " + error.message(), folder);
  std::vector<std::string> files;
  for (; entries != fs::directory_iterator() && !error; entries.increment(error)) {
    if (entries->is_regular_file(error)) files.push_back(TextOfPath(entries->path()));
  }
  if (error) throw UsageError("cannot read folder " + Quoted(folder) + ": " + error.message(), folder);
  std::sort(files.begin(), files.end());
  return files;
}

bool HasEnding(std::string_view path, std::string_view ending) {
  return path.size() >= ending.size() && EqualIgnoringCase(path.substr(path.size() - ending.size()), ending);
}

/// The file of a kind in a folder. Empty if a file that may be missing is missing.
std::string FileOfKind(const std::vector<std::string>& files, const FileKind& kind,
                       const std::string& folder) {
  std::vector<std::string> found;
  std::copy_if(files.begin(), files.end(), std::back_inserter(found),
               [&](std::string_view file) { return HasEnding(file, kind.ending); });
  if (found.empty()) {
    if (kind.file == ImportFile::kTech) return {};
    throw UsageError(
        std::string("no ") + kind.ending + " file in " + Quoted(folder) + "; name one with " + kind.option,
        folder);
  }
  if (found.size() > 1) {
    throw UsageError(Quoted(found[0]) + " and " + Quoted(found[1]) + " both end in " + kind.ending +
                     "; choose one with " + kind.option);
  }
  return found[0];
}

/// Whether an import can read the path more than once. Raises UsageError if it cannot be read at all.
bool IsRegularFile(const std::string& path) {
  if (path == "-") return false;
  std::error_code error;
  const fs::file_status status = fs::status(PathOfText(path), error);
  if (fs::is_directory(status)) throw UsageError(Quoted(path) + " is a folder, not a file", path);
  if (fs::exists(status) && !fs::is_regular_file(status)) return false;
  const FileHandle file = OpenToRead(path.c_str());
  if (file == nullptr) throw UsageError("cannot open " + Quoted(path) + ": " + std::strerror(errno), path);
  return true;
}

}  // namespace

void ExportSet::Add(const std::vector<std::string>& paths) {
  std::vector<std::string> folders;
  for (const std::string& path : paths) {
    std::error_code error;
    fs::is_directory(PathOfText(path), error) ? folders.push_back(path) : AddFile(path);
  }
  if (folders.size() > 1) {
    throw UsageError(Quoted(folders[0]) + " and " + Quoted(folders[1]) + " are both folders; name one");
  }
  if (!folders.empty()) AddFolder(folders.front());
}

void ExportSet::AddFile(const std::string& path) {
  for (const FileKind& kind : kFileKinds) {
    if (!HasEnding(path, kind.ending)) continue;
    if (Has(kind.file)) {
      throw UsageError(Quoted(PathOf(kind.file)) + " and " + Quoted(path) + " are both the " + kind.name +
                       " file; name one");
    }
    PathOf(kind.file) = path;
    return;
  }
  std::error_code error;
  if (path != "-" && !fs::exists(PathOfText(path), error)) {
    throw UsageError("cannot open " + Quoted(path) + ": " + std::strerror(ENOENT), path);
  }
  throw UsageError("the ending of " + Quoted(path) +
                   " does not tell which file it is; name it with --tech, --neutral, --geometry or --traces");
}

void ExportSet::AddFolder(const std::string& folder) {
  const std::vector<std::string> files = FilesIn(folder);
  for (const FileKind& kind : kFileKinds) {
    if (!Has(kind.file)) PathOf(kind.file) = FileOfKind(files, kind, folder);
  }
}

void ExportSet::AddStream(ImportFile file, std::FILE* source) {
  PathOf(file) = '<' + std::string(WordOf(file)) + '>';
  copies_[At(file)] = std::make_shared<const TemporaryCopy>(source, PathOf(file));
}

bool ExportSet::HasCopies() const {
  return std::any_of(copies_.begin(), copies_.end(), [](const auto& copy) { return copy != nullptr; });
}

void ExportSet::Open() {
  bool any = false;
  bool usesStandardInput = false;
  for (std::size_t i = 0; i < paths_.size(); ++i) {
    if (paths_[i].empty()) continue;
    any = true;
    if (paths_[i] == "-" && std::exchange(usesStandardInput, true))
      throw UsageError("only one file can be standard input (-)");
    if (copies_[i] == nullptr && !IsRegularFile(paths_[i]))
      copies_[i] = std::make_shared<const TemporaryCopy>(paths_[i]);
  }
  if (!any) throw UsageError("no file to read; name a folder, files, or - with an option such as --traces");
  if (strict_ && !Has(ImportFile::kTraces)) {
    throw UsageError("--strict needs a Traces file; name one with --traces");
  }
}

}  // namespace kestrin::tool
