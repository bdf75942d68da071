#include "tool/summary_document.h"

#include <map>

#include "kestrin/board/millimetres.h"
#include "tool/board_fields.h"
#include "tool/check/finding_fields.h"
#include "tool/document.h"
#include "tool/write_fields.h"

namespace kestrin::tool {
namespace {

/// The length of the tracks on a layer.
void WriteLength(DocumentWriter& document, const Board& board, int number, double length) {
  const Layer* layer = board.FindLayer(number);
  document.StartObject();
  document.Key("layer");
  document.Int(number);
  document.Key("name");
  layer == nullptr ? document.Null() : document.String(layer->name);
  document.Key("mm");
  document.Double(Rounded(length));
  document.EndObject();
}

void WriteLengths(DocumentWriter& document, const Board& board) {
  std::map<int, double> lengths;
  for (const Net& net : board.nets) {
    for (const LayerLength& layer : net.lengths) lengths[layer.layer] += layer.length;
  }
  WriteList(document, "length", lengths,
            [&](const auto& length) { WriteLength(document, board, length.first, length.second); });
}

void WriteCount(DocumentWriter& document, const char* name, std::size_t count) {
  document.Key(name);
  document.Int(static_cast<std::int64_t>(count));
}

}  // namespace

void WriteSummary(DocumentWriter& document, const Imported& imported, const Board& board) {
  constexpr int kVersion = 1;
  std::size_t areas = 0;
  std::size_t open = 0;
  for (const Net& net : board.nets) {
    areas += net.areas.size();
    open += net.open.size();
  }
  DocumentObject summary(document);
  summary.Member("format", std::string_view("kestrin-summary")).Member("version", kVersion);
  WriteList(document, "files", imported.FilesRead(), [&](ImportFile file) {
    WriteValue(document, imported.files, ReadFileOf(imported.ReportOf(file), file));
  });
  document.Key("name");
  document.String(board.name);
  document.Key("reading");
  WriteValue(document, board, board.reading);
  WriteCount(document, "layers", board.layers.size());
  WriteCount(document, "components", board.components.size());
  WriteCount(document, "pins", board.pins.size());
  WriteCount(document, "nets", board.nets.size());
  WriteCount(document, "tracks", board.tracks.size());
  WriteCount(document, "vias", board.vias.size());
  WriteCount(document, "areas", areas);
  WriteCount(document, "open", open);
  WriteLengths(document, board);
}

}  // namespace kestrin::tool
