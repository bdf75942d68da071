#pragma once

/// @file
/// Making polygons from the lists of the models.

#include "kestrin/board/for_each_record.h"
#include "kestrin/board/millimetres.h"
#include "kestrin/geometry/number_list.h"
#include "kestrin/traces/fill_records.h"

namespace kestrin {

/// Drops the last point if it repeats the first. Some outlines in files are closed this way and some are not.
inline void DropRepeatedFirstPoint(Polygon& outline) {
  if (outline.size() > 1 && outline.front() == outline.back()) outline.pop_back();
}

/// The polygon of the numbers x, y, x, y, …. Drops a last x without a y.
[[nodiscard]] inline Polygon PolygonOf(const NumberArray& numbers, double unit) {
  Polygon outline;
  outline.reserve(static_cast<std::size_t>(numbers.GetSize() / 2));
  for (std::int64_t i = 0; i + 1 < numbers.GetSize(); i += 2) {
    outline.push_back(PointAt(numbers[i], numbers[i + 1], unit));
  }
  DropRepeatedFirstPoint(outline);
  return outline;
}

/// The polygon of the vertices of an area or island.
template <class Record>
[[nodiscard]] Polygon VerticesOf(const Record& record, double unit) {
  Polygon outline;
  outline.reserve(static_cast<std::size_t>(record.m_pVerArray->GetSize()));
  ForEachRecord(record.m_pVerArray, [&](const CMTracesVER& vertex, std::size_t) {
    outline.push_back(PointAt(vertex.m_dX, vertex.m_dY, unit));
  });
  DropRepeatedFirstPoint(outline);
  return outline;
}

}  // namespace kestrin
