#include "tool/write_fields.h"

#include "tool/readable_text.h"

namespace kestrin::tool {

void WriteValue(DocumentWriter& document, Point point) {
  document.StartArray(DocumentWriter::Layout::kRow);
  document.Double(point.x);
  document.Double(point.y);
  document.EndArray();
}

void WriteValue(DocumentWriter& document, const OpenConnection& open) {
  document.StartArray();
  WriteValue(document, open.from);
  WriteValue(document, open.to);
  document.EndArray();
}

void WriteValue(DocumentWriter& document, PathText path) { document.Utf8(PathToUtf8(path.path)); }

}  // namespace kestrin::tool
