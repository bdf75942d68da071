#include "tool/readable_text.h"

#include "tool/rapidjson.h"

namespace kestrin::tool {
namespace {

void AppendUtf8(std::string& out, unsigned char byte) {
  if (byte < 0x80) {
    out += static_cast<char>(byte);
  } else {
    out += static_cast<char>(0xC0 | (byte >> 6));
    out += static_cast<char>(0x80 | (byte & 0x3F));
  }
}

void AppendEscaped(std::string& out, unsigned char byte) {
  constexpr std::string_view kHexDigits = "0123456789ABCDEF";
  out += {'\\', 'x', kHexDigits[byte >> 4], kHexDigits[byte & 0xF]};
}

bool IsControl(unsigned char byte) { return byte < 0x20 || (byte >= 0x7F && byte < 0xA0); }

}  // namespace

std::string ToUtf8(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char c : bytes) AppendUtf8(text, static_cast<unsigned char>(c));
  return text;
}

std::string ToTerminal(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (IsControl(byte)) {
      AppendEscaped(text, byte);
    } else {
      AppendUtf8(text, byte);
    }
  }
  return text;
}

std::string PathToUtf8(std::string_view path) {
  std::string text(path);
  rapidjson::StringStream stream(text.c_str());
  for (unsigned codePoint = 0; stream.Peek() != '\0';) {
    if (!rapidjson::UTF8<>::Decode(stream, &codePoint)) return ToUtf8(path);
  }
  return text;
}

std::string PathToTerminal(std::string_view path) {
  std::string text;
  for (const char c : PathToUtf8(path)) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80 && IsControl(byte)) {
      AppendEscaped(text, byte);
    } else {
      text += c;
    }
  }
  return text;
}

}  // namespace kestrin::tool
