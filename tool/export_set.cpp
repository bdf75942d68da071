#include "tool/export_set.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <string_view>
#include <system_error>
#include <vector>

#include "kestrin/base/file_handle.h"
#include "tool/usage_error.h"

namespace kestrin::tool {
namespace {

namespace fs = std::filesystem;

std::string Quoted(const std::string& path) { return '"' + path + '"'; }

std::vector<std::string> FilesIn(const std::string& folder) {
  std::error_code error;
  fs::directory_iterator entries(folder, error);
  if (error) throw UsageError("cannot read folder " + Quoted(folder) + ": " + error.message());
  std::vector<std::string> files;
  for (; entries != fs::directory_iterator() && !error; entries.increment(error)) {
    if (entries->is_regular_file(error)) files.push_back(entries->path().string());
  }
  if (error) throw UsageError("cannot read folder " + Quoted(folder) + ": " + error.message());
  std::sort(files.begin(), files.end());
  return files;
}

std::string OnlyFileWithEnding(const std::vector<std::string>& files, const FileKind& kind,
                               const std::string& folder) {
  std::vector<std::string> found;
  std::copy_if(files.begin(), files.end(), std::back_inserter(found),
               [&](std::string_view file) { return file.ends_with(kind.ending); });
  if (found.empty()) {
    throw UsageError(std::string("no ") + kind.ending + " file in " + Quoted(folder) + "; name one with " +
                     kind.option);
  }
  if (found.size() > 1) {
    throw UsageError(Quoted(found[0]) + " and " + Quoted(found[1]) + " both end in " + kind.ending +
                     "; choose one with " + kind.option);
  }
  return found[0];
}

void CheckReadable(const std::string& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (fs::exists(status) && !fs::is_regular_file(status)) {
    throw UsageError(Quoted(path) + " is not a regular file");
  }
  const FileHandle file(std::fopen(path.c_str(), "rb"));
  if (file == nullptr) throw UsageError("cannot open " + Quoted(path) + ": " + std::strerror(errno));
}

}  // namespace

void ExportSet::FindInFolder(const std::string& folder) {
  const std::vector<std::string> files = FilesIn(folder);
  for (const FileKind& kind : kFileKinds) {
    if (!Has(kind.file)) PathOf(kind.file) = OnlyFileWithEnding(files, kind, folder);
  }
}

void ExportSet::CheckReadable() const {
  bool any = false;
  for (const std::string& path : paths_) {
    if (path.empty()) continue;
    tool::CheckReadable(path);
    any = true;
  }
  if (!any) throw UsageError("no file to read; name one with --tech, --neutral, --geometry or --traces");
  if (strict_ && !Has(ImportFile::kTraces)) {
    throw UsageError("--strict needs a Traces file; name one with --traces");
  }
}

}  // namespace kestrin::tool
