#include "tool/diff/print.h"
#include "tool/json_writer.h"

namespace kestrin::tool {
namespace {

std::string_view WordOf(ChangedKind kind) {
  constexpr std::string_view kWords[] = {"board",    "layer", "geometry", "padstack", "via", "component",
                                         "property", "net",   "pin",      "wire",     "fill"};
  return kWords[static_cast<std::size_t>(kind)];
}

std::string_view WordOf(ChangeType type) {
  constexpr std::string_view kWords[] = {"added", "removed", "changed", "renamed"};
  return kWords[static_cast<std::size_t>(type)];
}

void WriteValue(JsonWriter& json, const char* name, const Value& value) {
  json.Key(name);
  if (const auto* number = std::get_if<double>(&value)) return json.Double(*number);
  if (const auto* text = std::get_if<std::string>(&value)) return json.String(*text);
  json.Null();
}

void Write(JsonWriter& json, const Change& change) {
  json.StartObject();
  json.Key("kind");
  json.Utf8(WordOf(change.kind));
  json.Key("name");
  json.String(change.name);
  json.Key("change");
  json.Utf8(WordOf(change.type));
  json.Key("details");
  json.StartArray();
  for (const Detail& detail : change.details) {
    json.StartObject();
    json.Key("what");
    json.String(detail.what);
    WriteValue(json, "before", detail.before);
    WriteValue(json, "after", detail.after);
    json.EndObject();
  }
  json.EndArray();
  json.EndObject();
}

}  // namespace

void PrintDifferenceAsJson(const Difference& difference) {
  JsonWriter json;
  json.StartObject();
  json.Key("format");
  json.Utf8("kestrin-diff");
  json.Key("version");
  json.Int(1);
  json.Key("shift");
  if (difference.shift) {
    json.StartArray(JsonWriter::Layout::kRow);
    json.Double(difference.shift->x);
    json.Double(difference.shift->y);
    json.EndArray();
  } else {
    json.Null();
  }
  json.Key("changes");
  json.StartArray();
  for (const Change& change : difference.changes) Write(json, change);
  json.EndArray();
  json.EndObject();
  json.Finish();
}

}  // namespace kestrin::tool
