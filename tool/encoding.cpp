#include "tool/encoding.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <vector>

#include "kestrin/framework/open_file.h"

namespace kestrin::tool {
namespace {

/// The length of the ASCII text at the start of some bytes.
std::size_t AsciiPrefix(std::string_view bytes) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080;
  std::size_t length = 0;
  for (std::uint64_t word = 0; bytes.size() - length >= sizeof word; length += sizeof word) {
    std::memcpy(&word, bytes.data() + length, sizeof word);
    if ((word & kHighBits) != 0) break;
  }
  while (length < bytes.size() && static_cast<unsigned char>(bytes[length]) < 0x80) ++length;
  return length;
}

/// Whether some bytes are valid UTF-8, but for a character that is cut off at the end. Leaves that there.
bool IsUtf8(std::string_view& bytes) {
  constexpr std::size_t kLongest = 4;
  while (!bytes.empty()) {
    bytes.remove_prefix(AsciiPrefix(bytes));
    if (bytes.empty()) return true;
    const std::size_t length = Utf8CharacterAt(bytes);
    if (length == 0) return bytes.size() < kLongest;
    bytes.remove_prefix(length);
  }
  return true;
}

bool IsUtf8File(const std::string& path) {
  constexpr std::size_t kBlock = std::size_t{1} << 16;
  const FileHandle file = OpenToRead(path.c_str());
  if (file == nullptr) return true;
  std::vector<char> block(kBlock);
  std::size_t kept = 0;  // bytes of a character that the last block cut off
  while (const std::size_t size = std::fread(block.data() + kept, 1, block.size() - kept, file.get())) {
    std::string_view rest(block.data(), kept + size);
    if (!IsUtf8(rest)) return false;
    std::copy(rest.begin(), rest.end(), block.begin());
    kept = rest.size();
  }
  return kept == 0;
}

}  // namespace

Encoding EncodingOf(const std::string& word, const ExportSet& files) {
  if (word != "auto") return word == "utf-8" ? Encoding::kUtf8 : Encoding::kLatin1;
  const bool areUtf8 = std::all_of(kFileKinds.begin(), kFileKinds.end(), [&](const FileKind& kind) {
    return !files.Has(kind.file) || IsUtf8File(files.ReadablePathOf(kind.file));
  });
  return areUtf8 ? Encoding::kUtf8 : Encoding::kLatin1;
}

}  // namespace kestrin::tool
