#include "tool/board_document.h"

#include "tool/board_fields.h"
#include "tool/write_fields.h"

namespace kestrin::tool {

void Write(DocumentWriter& document, const Board& board) {
  constexpr int kVersion = 1;
  document.StartObject();
  document.Key("format");
  document.Utf8("kestrin-board");
  document.Key("version");
  document.Int(kVersion);
  WriteFields(document, board, board);
  document.EndObject();
}

}  // namespace kestrin::tool
