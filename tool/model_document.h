#pragma once

/// @file
/// The models as documents: each record is an object of its fields.

#include "kestrin/geometry/geometry_fields.h"
#include "kestrin/neutral/neutral_fields.h"
#include "kestrin/records/fields.h"
#include "kestrin/tech/tech_fields.h"
#include "kestrin/traces/traces_fields.h"
#include "tool/document.h"

namespace kestrin::tool {

template <HasFields Record>
void Write(DocumentWriter& document, const Record& record) {
  DocumentObject object(document);
  ForEachField(record, [&](const char* name, const auto& value) { object.Member(name, value); });
}

}  // namespace kestrin::tool
