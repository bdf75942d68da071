#include "kestrin/geometry/drawing_commands.h"

#include <memory>
#include <utility>

#include "kestrin/base/numbers.h"
#include "kestrin/geometry/append_numbers.h"
#include "kestrin/geometry/geometry_words.h"
#include "kestrin/records/append.h"
#include "kestrin/text/contains.h"
#include "kestrin/text/trim.h"

namespace kestrin {
namespace {

constexpr std::string_view kRadius = "@radius";
constexpr std::string_view kCenter = "@center";

template <class Object>
LineOutcome AddObject(ReaderState& state, CMGeomDrawObjArray& objects,
                      void (*read)(ReaderState& state, Object& object)) {
  auto object = state.records.Make<Object>();
  read(state, *object);
  Append(objects, std::move(object));
  state.pending.Clear();
  return LineOutcome::Imported();
}

/// Calls read for every value that is not empty after cleaning, with its number, cleaned text and raw text.
template <class Read>
void ForEachFilled(Values& values, Read read) {
  for (std::size_t number = 1; values.HasAtLeast(number); ++number) {
    const std::string_view value = values[number];
    if (!value.empty()) read(number, value, values.Raw(number));
  }
}

void Read(ReaderState& state, CMGeomPath& path) {
  path.m_sLayer = state.values[1];
  path.m_dWidth = ToDouble(TrimmedLeft(state.values.Raw(2)));
  Append(*path.m_pCoords, state.TakePoints(3, kPathScan));
}

void Read(ReaderState& state, CMGeomArc& arc) {
  arc.m_dWidth = state.pathWidth;
  double* const numbers[] = {&arc.m_dX1, &arc.m_dY1, &arc.m_dX2,   &arc.m_dY2,
                             &arc.m_dX3, &arc.m_dY3, &arc.m_dWidth};
  ForEachFilled(state.values, [&](std::size_t number, std::string_view value, std::string_view raw) {
    if (number == 1) {
      arc.m_sLayer = value;
    } else if (number <= 8) {
      *numbers[number - 2] = ToDouble(TrimmedLeft(raw));
    } else if (Contains(value, kRadius)) {
      arc.m_nArcMode = 1;
    } else if (Contains(value, kCenter)) {
      arc.m_nArcMode = 2;
    }
  });
  if (arc.m_nArcMode != 0) {
    for (std::size_t number = 1; number <= 6; ++number) state.pending.CopyTo(number, *numbers[number - 1]);
  }
}

void Read(ReaderState& state, CMGeomPolygon& polygon) {
  polygon.m_sLayer = state.values[1];
  Append(*polygon.m_pCoords, state.TakePoints(2, kPolygonScan));
}

void Read(ReaderState& state, CMGeomCircle& circle) {
  circle.m_dWidth = state.pathWidth;
  double* const numbers[] = {&circle.m_dX, &circle.m_dY, &circle.m_dSize, &circle.m_dWidth};
  ForEachFilled(state.values, [&](std::size_t number, std::string_view value, std::string_view raw) {
    if (number == 1) {
      circle.m_sLayer = value;
    } else if (number <= 5) {
      *numbers[number - 2] = ToDouble(TrimmedLeft(raw));
    }
  });
  if (state.values[2].empty()) {
    for (std::size_t number = 1; number <= 4; ++number) state.pending.CopyTo(number, *numbers[number - 1]);
  }
}

}  // namespace

void ForEachDrawingWord(const FormatWordVisitor& visit) {
  visit({.text = CMGeomPath().m_sType.View()});
  visit({.text = CMGeomPolygon().m_sType.View()});
  visit({.text = CMGeomArc().m_sType.View()});
  visit({.text = CMGeomCircle().m_sType.View()});
  for (const std::string_view option : {kRadius, kCenter})
    visit({.text = option, .place = WordPlace::kInside});
}

LineOutcome BeginPoints(ReaderState& state) {
  state.pending.Begin(state.arguments);
  return LineOutcome::Imported();
}

LineOutcome ContinuePoints(ReaderState& state) {
  state.pending.Continue(state.arguments);
  return LineOutcome::Imported();
}

LineOutcome SetPathWidth(ReaderState& state) {
  state.pathWidth = ToDouble(WithoutTrailing(WithoutLeading(Trimmed(state.arguments), '('), ')'));
  return LineOutcome::Imported();
}

LineOutcome AddPath(ReaderState& state, CMGeomDrawObjArray& objects) {
  return AddObject<CMGeomPath>(state, objects, &Read);
}

LineOutcome AddArc(ReaderState& state, CMGeomDrawObjArray& objects) {
  return AddObject<CMGeomArc>(state, objects, &Read);
}

LineOutcome AddPolygon(ReaderState& state, CMGeomDrawObjArray& objects) {
  return AddObject<CMGeomPolygon>(state, objects, &Read);
}

LineOutcome AddCircle(ReaderState& state, CMGeomDrawObjArray& objects) {
  return AddObject<CMGeomCircle>(state, objects, &Read);
}

LineOutcome AddText(ReaderState& state, RecordArray<CMGeomText>& texts) {
  auto text = state.records.Make<CMGeomText>();
  ForEachFilled(state.values, [&](std::size_t number, std::string_view value, std::string_view /*raw*/) {
    switch (number) {
      case 1: text->m_sLayer = value; break;
      case 2: text->m_sText = value; break;
      case 3: text->m_dX = ToDouble(value); break;
      case 4: text->m_dY = ToDouble(value); break;
      case 5: text->m_dSize = ToDouble(value); break;
      case 6: text->m_sJustification = value; break;
      case 7: text->m_dAngle = ToInt(value); break;  // whole degrees
      case 8: text->m_dValue8 = ToDouble(value); break;
      case 9: text->m_dValue9 = ToDouble(value); break;
      case 10: text->m_sValue10 = value; break;
      case 11: text->m_sValue11 = value; break;
      case 12: text->m_dValue12 = ToDouble(value); break;
      case 13: text->m_dValue13 = ToDouble(value); break;
      case 14:
      case 15: text->m_sMirror = value; break;
      default: break;
    }
  });
  Append(texts, std::move(text));
  return LineOutcome::Imported();
}

LineOutcome PlaceGeometry(ReaderState& state, RecordArray<CMGeomAdd>& adds) {
  Values& values = state.values;
  auto add = state.records.Make<CMGeomAdd>();
  add->m_sArg0 = values[1];
  add->m_dArg1 = ToDouble(values[2]);
  add->m_dArg2 = ToDouble(values[3]);
  add->m_sArg3 = values[4];
  add->m_nArg4 = ToInt(values[5]);
  add->m_nArg5 = ToInt(values[6]);
  add->m_nArg6 = ToInt(values[7]);
  Append(adds, std::move(add));
  return LineOutcome::Imported();
}

}  // namespace kestrin
