#pragma once

/// @file
/// Writing JSON documents.

#include <array>
#include <cstdio>

#include "tool/document_writer.h"
#include "tool/rapidjson.h"

namespace kestrin::tool {

/// Writes one document as text, without a copy of it in memory. The text is what the underlying writer makes.
template <class TextWriter>
class BasicJsonWriter final : public DocumentWriter {
 public:
  /// The caller keeps the stream open until Finish.
  explicit BasicJsonWriter(std::FILE* target = stdout);

  void Key(const char* name) override { writer_.Key(name); }
  void StartObject() override { writer_.StartObject(); }
  void EndObject() override { writer_.EndObject(); }
  using DocumentWriter::StartArray;
  void StartArray(Layout layout) override;
  void EndArray() override;

  void Null() override { writer_.Null(); }
  void Bool(bool value) override { writer_.Bool(value); }
  void Int(std::int64_t value) override { writer_.Int64(value); }
  /// Writes the shortest text that reads back as the same double.
  void Double(double value) override;
  void String(std::string_view bytes) override;
  void Utf8(std::string_view text) override;

  /// Ends the document.
  void Finish();

 private:
  std::array<char, 65536> buffer_;
  rapidjson::FileWriteStream stream_;
  TextWriter writer_;
};

/// A document for people, too: a member a line.
using JsonWriter = BasicJsonWriter<rapidjson::PrettyWriter<rapidjson::FileWriteStream>>;
/// A document in one line.
using JsonLineWriter = BasicJsonWriter<rapidjson::Writer<rapidjson::FileWriteStream>>;

}  // namespace kestrin::tool
