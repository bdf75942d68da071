#include "tool/diff/difference_fields.h"
#include "tool/diff/print.h"
#include "tool/json_writer.h"
#include "tool/write_fields.h"

namespace kestrin::tool {

void PrintDifferenceAsJson(const Difference& difference) {
  JsonWriter json;
  json.StartObject();
  json.Key("format");
  json.Utf8("kestrin-diff");
  json.Key("version");
  json.Int(1);
  WriteFields(json, difference, difference);
  json.EndObject();
  json.Finish();
}

}  // namespace kestrin::tool
