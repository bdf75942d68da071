#include "tool/json_writer.h"

#include <charconv>
#include <cmath>
#include <string>
#include <type_traits>

#include "tool/readable_text.h"

namespace kestrin::tool {
namespace {

/// Whether a writer puts elements on lines of their own.
template <class TextWriter>
constexpr bool kHasLines = std::is_same_v<BasicJsonWriter<TextWriter>, JsonWriter>;

}  // namespace

template <class TextWriter>
BasicJsonWriter<TextWriter>::BasicJsonWriter(std::FILE* target)
    : buffer_(), stream_(target, buffer_.data(), buffer_.size()), writer_(stream_) {
  if constexpr (kHasLines<TextWriter>) writer_.SetIndent(' ', 2);
}

template <class TextWriter>
void BasicJsonWriter<TextWriter>::StartArray(Layout layout) {
  writer_.StartArray();
  if constexpr (kHasLines<TextWriter>) {
    if (layout == Layout::kRow) writer_.SetFormatOptions(rapidjson::kFormatSingleLineArray);
  }
}

template <class TextWriter>
void BasicJsonWriter<TextWriter>::EndArray() {
  writer_.EndArray();
  if constexpr (kHasLines<TextWriter>) writer_.SetFormatOptions(rapidjson::kFormatDefault);
}

template <class TextWriter>
void BasicJsonWriter<TextWriter>::Double(double value) {
  if (std::isinf(value)) return String(value > 0 ? "Infinity" : "-Infinity");
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  writer_.RawValue(text.data(), static_cast<std::size_t>(end - text.data()), rapidjson::kNumberType);
}

template <class TextWriter>
void BasicJsonWriter<TextWriter>::String(std::string_view bytes) {
  Utf8(ToUtf8(bytes));
}

template <class TextWriter>
void BasicJsonWriter<TextWriter>::Utf8(std::string_view text) {
  writer_.String(text.data(), text.size());
}

template <class TextWriter>
void BasicJsonWriter<TextWriter>::Finish() {
  stream_.Put('\n');
  stream_.Flush();
}

template class BasicJsonWriter<rapidjson::PrettyWriter<rapidjson::FileWriteStream>>;
template class BasicJsonWriter<rapidjson::Writer<rapidjson::FileWriteStream>>;

}  // namespace kestrin::tool
