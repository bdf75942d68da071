#include "tool/geometry_summary.h"

#include <algorithm>
#include <charconv>
#include <cinttypes>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <type_traits>

#include "kestrin/geometry/geometry_fields.h"
#include "tool/readable_text.h"
#include "tool/text_table.h"

namespace kestrin::tool {
namespace {

using Align = TextTable::Align;

std::string Number(double value) {
  char text[32];
  return {text, std::to_chars(text, text + sizeof text, value).ptr};
}

/// The bounding box of the coordinates x, y, x, y, …. Ignores a last x without a y.
std::string Extent(const NumberArray& coords) {
  if (coords.GetSize() < 2) return "none";
  double low[] = {coords[0], coords[1]};
  double high[] = {coords[0], coords[1]};
  for (std::int64_t i = 2; i < coords.GetSize() / 2 * 2; ++i) {
    low[i % 2] = std::min(low[i % 2], coords[i]);
    high[i % 2] = std::max(high[i % 2], coords[i]);
  }
  std::string corners = "from (" + Number(low[0]) + ", " + Number(low[1]) + ") to (" + Number(high[0]) +
                        ", " + Number(high[1]) + ")";
  const double width = high[0] - low[0];
  const double height = high[1] - low[1];
  if (!std::isfinite(width) || !std::isfinite(height)) return corners;
  return Number(width) + " x " + Number(height) + ", " + corners;
}

void PrintBoard(const CMGeomBoard& board) {
  const std::string units = board.m_sUnits.IsEmpty() ? "unit not given" : ToTerminal(board.m_sUnits.View());
  const std::string name = board.m_sName.IsEmpty() ? "no name" : ToTerminal(board.m_sName.View());
  std::printf("\nBoard: %s, %s, %d routing layers\n", name.c_str(), units.c_str(), board.m_nRoutingLayers);
  std::printf("  placement outline  %s\n", Extent(*board.m_pPlacementOutline).c_str());
  std::printf("  routing outline    %s\n", Extent(*board.m_pRoutingOutline).c_str());
}

/// The total contents of all geometries of a kind.
struct Counts {
  std::int64_t geometries = 0;
  std::int64_t drawObjs = 0;
  std::int64_t texts = 0;
  std::int64_t adds = 0;
  std::int64_t drills = 0;
  std::int64_t keepouts = 0;
};

/// Adds the contents of a geometry of any kind.
template <class Record>
void CountIn(const Record& record, Counts& counts) {
  ++counts.geometries;
  counts.drawObjs += record.m_pDrawObjs->GetSize();
  counts.texts += record.m_pTexts->GetSize();
  counts.adds += record.m_pAdds->GetSize();
  ForEachField(record, [&]<class Value>(const char* /*name*/, const Value& value) {
    if constexpr (std::is_same_v<Value, RecordArray<CMGeomDrill>*>) counts.drills += value->GetSize();
    if constexpr (std::is_same_v<Value, RecordArray<CMGeomKeepout>*>) counts.keepouts += value->GetSize();
  });
}

template <class Record>
Counts CountsOf(const CArray<Record*, Record*>& records) {
  Counts counts;
  for (const Record* record : records) CountIn(*record, counts);
  return counts;
}

Counts CountsOf(const CMGeomBoard& board) {
  Counts counts;
  CountIn(board, counts);
  return counts;
}

void AddRow(TextTable& table, const char* kind, const Counts& counts) {
  table.AddRow({kind, std::to_string(counts.geometries), std::to_string(counts.drawObjs),
                std::to_string(counts.texts), std::to_string(counts.adds), std::to_string(counts.drills),
                std::to_string(counts.keepouts)});
}

void PrintGeometries(const CMGeom& geom) {
  std::puts("\nGeometries");
  TextTable table({{"kind"},
                   {"number", Align::kRight},
                   {"drawing objects", Align::kRight},
                   {"texts", Align::kRight},
                   {"adds", Align::kRight},
                   {"drills", Align::kRight},
                   {"keep-outs", Align::kRight}});
  AddRow(table, "board", CountsOf(*geom.m_pBoard));
  AddRow(table, "panel", CountsOf(*geom.m_pPanels));
  AddRow(table, "component", CountsOf(*geom.m_pComponents));
  AddRow(table, "generic part", CountsOf(*geom.m_pGenericParts));
  AddRow(table, "pin", CountsOf(*geom.m_pPins));
  AddRow(table, "via", CountsOf(*geom.m_pVias));
  AddRow(table, "drawing", CountsOf(*geom.m_pDrawings));
  table.Print();
  const CMGeomStackup& stackup = *geom.m_pStackup;
  std::printf("  stack-up: %" PRId64 " layer definitions\n", stackup.m_pLayers->GetSize());
}

}  // namespace

void PrintGeometry(const CMGeom& geom) {
  PrintBoard(*geom.m_pBoard);
  PrintGeometries(geom);
}

}  // namespace kestrin::tool
