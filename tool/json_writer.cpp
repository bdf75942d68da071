#include "tool/json_writer.h"

#include <charconv>
#include <cmath>
#include <string>

#include "tool/readable_text.h"

namespace kestrin::tool {

JsonWriter::JsonWriter(std::FILE* target)
    : buffer_(), stream_(target, buffer_.data(), buffer_.size()), writer_(stream_) {
  writer_.SetIndent(' ', 2);
}

void JsonWriter::StartArray(Layout layout) {
  writer_.StartArray();
  if (layout == Layout::kRow) writer_.SetFormatOptions(rapidjson::kFormatSingleLineArray);
}

void JsonWriter::EndArray() {
  writer_.EndArray();
  writer_.SetFormatOptions(rapidjson::kFormatDefault);
}

void JsonWriter::Double(double value) {
  if (std::isinf(value)) return String(value > 0 ? "Infinity" : "-Infinity");
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  writer_.RawValue(text.data(), static_cast<std::size_t>(end - text.data()), rapidjson::kNumberType);
}

void JsonWriter::String(std::string_view bytes) { Utf8(ToUtf8(bytes)); }

void JsonWriter::Utf8(std::string_view text) { writer_.String(text.data(), text.size()); }

void JsonWriter::Finish() {
  stream_.Put('\n');
  stream_.Flush();
}

}  // namespace kestrin::tool
