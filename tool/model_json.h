#pragma once

/// @file
/// The models as JSON: an object a record, its members in declaration order.

#include "kestrin/geom/geom_model.h"
#include "kestrin/neutral/component_model.h"
#include "kestrin/neutral/net_model.h"
#include "kestrin/tech/tech_model.h"
#include "kestrin/traces/traces_model.h"
#include "tool/json_writer.h"

namespace kestrin::tool {

void WriteJson(JsonWriter& json, const CMTech& tech);
void WriteJson(JsonWriter& json, const CMComps& components);
void WriteJson(JsonWriter& json, const CMNetList& nets);
void WriteJson(JsonWriter& json, const CMTraces& traces);
void WriteJson(JsonWriter& json, const CMGeom& geom);

}  // namespace kestrin::tool
