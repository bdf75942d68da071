#include "tool/anonymise/anonymise.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <optional>
#include <vector>

#include "kestrin/framework/open_file.h"
#include "tool/anonymise/output_folder.h"
#include "tool/anonymise/set_copy.h"
#include "tool/exit_status.h"
#include "tool/output.h"
#include "tool/readable_text.h"
#include "tool/usage_error.h"

namespace kestrin::tool {
namespace {

std::string BytesOf(const std::string& path) {
  constexpr std::size_t kBlock = std::size_t{1} << 20;
  const FileHandle file = OpenToRead(path.c_str());
  std::string bytes;
  std::size_t size = 0;
  do {
    bytes.resize(size + kBlock);
    if (file != nullptr) size += std::fread(bytes.data() + size, 1, kBlock, file.get());
  } while (size == bytes.size());
  if (file == nullptr || std::ferror(file.get()) != 0)
    throw UsageError("cannot read \"" + path + "\": " + std::strerror(errno));
  bytes.resize(size);
  return bytes;
}

SetBytes BytesOf(const ExportSet& files) {
  SetBytes set;
  for (const FileKind& kind : kFileKinds) {
    if (files.Has(kind.file))
      set[static_cast<std::size_t>(kind.file)] = BytesOf(files.ReadablePathOf(kind.file));
  }
  return set;
}

/// A line for each word: the original in capitals, a tab, the copy.
std::string MapOf(const SetCopy& copy) {
  std::string map;
  const auto add = [&](const std::string& original, const std::string& image) {
    map += original + '\t' + image + '\n';
  };
  copy.Words().ForEach(add);
  copy.Digits().ForEach(add);
  return map;
}

/// The names of files are chosen by people, too.
std::string NameOf(const FileKind& kind) { return std::string("board") + kind.ending; }

void Report(const std::string& folder, const AnonymiseWords& words, const SetCopy& copy) {
  std::printf("%s: %zu words and %zu numbers in texts replaced%s\n", PathToTerminal(folder).c_str(),
              copy.Words().Size(), copy.Digits().Size(),
              words.key.empty() ? "; the key was random and is not kept" : "");
  std::printf("The copy has the coordinates, the structure and the lengths of names of the original.\n");
}

}  // namespace

int Anonymise(ExportSet files, const std::string& folder, const AnonymiseWords& words) {
  files.Open();
  OutputFolder output(folder, files, words.force);
  std::optional<OutputFile> map;
  if (!words.map.empty() && output.HasPath(words.map))
    throw UsageError("the map does not belong into the copy; name another file");
  if (!words.map.empty()) map.emplace(words.map, words.force);
  const KeyedHash hash = words.key.empty() ? KeyedHash::WithRandomKey() : KeyedHash::WithKeyOf(words.key);
  const SetCopy copy(BytesOf(files), hash);
  for (const FileKind& kind : kFileKinds) {
    if (files.Has(kind.file)) output.Write(NameOf(kind), copy.Bytes()[static_cast<std::size_t>(kind.file)]);
  }
  if (map) map->Write(MapOf(copy));
  output.Finish();
  if (map) map->Finish();
  Report(folder, words, copy);
  return FinishOutput(kSuccess);
}

}  // namespace kestrin::tool
