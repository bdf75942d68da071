#include "tool/readable_text.h"

#include <algorithm>
#include <cstdint>

namespace kestrin::tool {
namespace {

// A thread prints the texts of one export set, from many places.
thread_local Encoding fileEncoding = Encoding::kLatin1;

constexpr unsigned kFirstOfMany = 0x80;

[[nodiscard]] unsigned ByteAt(std::string_view bytes, std::size_t index) {
  return static_cast<unsigned char>(bytes[index]);
}

/// The first bytes of UTF-8 characters, and the second bytes that may follow them. This excludes characters
/// that are too long, surrogates, and numbers beyond the last character.
struct FirstByte {
  unsigned from;
  unsigned to;
  std::size_t length;
  unsigned secondFrom;
  unsigned secondTo;
};
constexpr FirstByte kFirstBytes[] = {
    {0x00, 0x7F, 1, 0, 0},       {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF},
    {0xE1, 0xEC, 3, 0x80, 0xBF}, {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF},
    {0xF0, 0xF0, 4, 0x90, 0xBF}, {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F},
};

bool AreFollowing(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](char c) { return (c & 0xC0) == 0x80; });
}

void AppendLatin1(std::string& out, unsigned byte) {
  if (byte < kFirstOfMany) {
    out += static_cast<char>(byte);
  } else {
    out += static_cast<char>(0xC0 | (byte >> 6));
    out += static_cast<char>(0x80 | (byte & 0x3F));
  }
}

void AppendEscaped(std::string& out, unsigned byte) {
  constexpr std::string_view kHexDigits = "0123456789ABCDEF";
  out += {'\\', 'x', kHexDigits[byte >> 4], kHexDigits[byte & 0xF]};
}

/// The number of a control character; 0x100 for any other.
unsigned ControlOf(std::string_view character) {
  constexpr unsigned kNone = 0x100;
  const unsigned first = ByteAt(character, 0);
  if (character.size() == 1) return first < 0x20 || (first >= 0x7F && first < 0xA0) ? first : kNone;
  const bool isControl = character.size() == 2 && first == 0xC2 && ByteAt(character, 1) < 0xA0;
  return isControl ? ByteAt(character, 1) : kNone;
}

enum class Controls { kKept, kEscaped };

std::string Converted(std::string_view bytes, Encoding encoding, Controls controls) {
  constexpr unsigned kControls = 0x100;
  std::string text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    const std::size_t length = encoding == Encoding::kUtf8 ? Utf8CharacterAt(bytes) : 0;
    const std::string_view character = bytes.substr(0, std::max<std::size_t>(1, length));
    const unsigned control = controls == Controls::kEscaped ? ControlOf(character) : kControls;
    if (control < kControls) {
      AppendEscaped(text, control);
    } else if (length > 1) {
      text += character;
    } else {
      AppendLatin1(text, ByteAt(character, 0));
    }
    bytes.remove_prefix(character.size());
  }
  return text;
}

}  // namespace

void SetEncoding(Encoding encoding) { fileEncoding = encoding; }

Encoding GetEncoding() { return fileEncoding; }

std::size_t Utf8CharacterAt(std::string_view bytes) {
  if (bytes.empty()) return 0;
  for (const FirstByte& row : kFirstBytes) {
    if (ByteAt(bytes, 0) < row.from || ByteAt(bytes, 0) > row.to) continue;
    if (row.length == 1) return 1;
    if (bytes.size() < row.length || ByteAt(bytes, 1) < row.secondFrom || ByteAt(bytes, 1) > row.secondTo)
      return 0;
    return AreFollowing(bytes.substr(2, row.length - 2)) ? row.length : 0;
  }
  return 0;
}

std::string ToUtf8(std::string_view bytes) { return Converted(bytes, fileEncoding, Controls::kKept); }

std::string ToTerminal(std::string_view bytes) { return Converted(bytes, fileEncoding, Controls::kEscaped); }

std::string PathToUtf8(std::string_view path) { return Converted(path, Encoding::kUtf8, Controls::kKept); }

std::string PathToTerminal(std::string_view path) {
  return Converted(path, Encoding::kUtf8, Controls::kEscaped);
}

}  // namespace kestrin::tool
