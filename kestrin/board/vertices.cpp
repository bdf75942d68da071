#include "kestrin/board/vertices.h"

#include <cmath>

#include "kestrin/base/numbers.h"
#include "kestrin/board/millimetres.h"
#include "kestrin/board/widths.h"
#include "kestrin/traces/net_records.h"

namespace kestrin {

Vertex VertexReader::Read(const CMTracesSEG& record) {
  Vertex vertex{
      .point = PointAt(record.m_dValue1, record.m_dValue2, unit_), .layer = record.m_nValue3, .via = {}};
  const std::string_view text = record.m_sValue4.View();
  if (text.empty()) {
    vertex.width = WidthOfSteps(record.m_dValue4);
  } else if (IsDecimalNumber(text)) {
    vertex.width = Width(ToDouble(text));
  } else {
    vertex.via = PadstackNamed(text);
  }
  return vertex;
}

/// The padstack of a name. Most vias repeat the name of the last one.
std::optional<Index> VertexReader::PadstackNamed(std::string_view name) {
  if (name != lastName_) {
    lastName_ = name;
    padstackOfLastName_ = viaPadstacks_.Find(ComparedName(name));
  }
  return padstackOfLastName_;
}

/// The width of a number of steps. Most points repeat the number of the last one.
double VertexReader::WidthOfSteps(double steps) {
  if (steps != lastSteps_) {
    lastSteps_ = steps;
    widthOfLastSteps_ = Width(steps * widthStep_);
  }
  return widthOfLastSteps_;
}

/// The width in millimetres; unknown unless it is positive and finite.
double VertexReader::Width(double inFile) const {
  const double width = Rounded(inFile * unit_);
  return width > 0.0 && std::isfinite(width) ? width : kUnknownWidth;
}

}  // namespace kestrin
