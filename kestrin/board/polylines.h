#pragma once

/// @file
/// Walking the polylines of net headers.

#include "kestrin/board/board.h"
#include "kestrin/board/for_each_record.h"
#include "kestrin/traces/net_records.h"

namespace kestrin {

/// Calls an action with every polyline of a header, its kind, and its index in the list of that kind.
template <class Action>
void ForEachPolyline(const CMTracesNET& header, Action action) {
  const auto visit = [&](const auto& polylines, WireKind kind) {
    ForEachRecord(polylines, [&](const auto& polyline, Index index) { action(polyline, kind, index); });
  };
  visit(header.m_pWirArray, WireKind::kWire);
  visit(header.m_pAntWirArray, WireKind::kShortBranch);
  visit(header.m_pAntIncArray, WireKind::kLongBranch);
}

}  // namespace kestrin
