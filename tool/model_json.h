#pragma once

/// @file
/// The models as JSON: each record is an object of its fields.

#include "kestrin/geometry/geometry_fields.h"
#include "kestrin/neutral/neutral_fields.h"
#include "kestrin/records/fields.h"
#include "kestrin/tech/tech_fields.h"
#include "kestrin/traces/traces_fields.h"
#include "tool/json_writer.h"

namespace kestrin::tool {

template <HasFields Record>
void WriteJson(JsonWriter& json, const Record& record) {
  JsonObject object(json);
  ForEachField(record, [&](const char* name, const auto& value) { object.Member(name, value); });
}

}  // namespace kestrin::tool
