#include "kestrin/geometry/attributes.h"

#include "kestrin/geometry/attribute_handlers.h"
#include "kestrin/geometry/geometry_row.h"
#include "kestrin/geometry/geometry_words.h"
#include "kestrin/text/ignoring_case.h"
#include "kestrin/text/name_table.h"

namespace kestrin {
namespace {

using namespace attribute;
using enum Commas;
using enum Ownerless;

using Panel = CMGeomPanel;
using Board = CMGeomBoard;
using Component = CMGeomComponent;
using Part = CMGeomGenericPart;
using Pin = CMGeomPin;
using Via = CMGeomVia;

using BodyOutline = OfOpen<&Component::m_pBodyOutline, &Part::m_pBodyOutline>;
using PlacementOutline = OfOpen<&Component::m_pPlacementOutlines, &Part::m_pPlacementOutline>;
using Drills = OfOpen<&Panel::m_pDrills, &Board::m_pDrills, &Component::m_pDrills, &Part::m_pDrills>;
using UnplatedDrills = OfOpen<&Panel::m_pUnplatedDrills, &Board::m_pUnplatedDrills,
                              &Component::m_pUnplatedDrills, &Part::m_pUnplatedDrills>;
using RoutingKeepouts =
    OfOpen<&Board::m_pRoutingKeepouts, &Component::m_pRoutingKeepouts, &Part::m_pRoutingKeepouts>;
using TraceKeepouts = OfOpen<&Component::m_pTraceKeepouts, &Part::m_pTraceKeepouts>;
using ViaKeepouts = OfOpen<&Component::m_pViaKeepouts, &Part::m_pViaKeepouts>;
using TerminalType = OfOpen<&Pin::m_nTerminalType>;
using ViaType = OfOpen<&Via::m_nViaType>;
using DrillSize = OfOpen<&Pin::m_dDrillSize, &Via::m_dDrillSize>;

constexpr std::string_view kNumber = "a number in square brackets";
constexpr Reads kDecimalInBrackets{{}, FirstInBrackets<NumberKind::kDecimal>};
constexpr Reads kWholeInBrackets{{}, FirstInBrackets<NumberKind::kWhole>};

// clang-format off
constexpr GeometryRow kAttributeRows[] = {
    {"BOARD_DEFAULT_PADSTACK",          kUnquoted, AtLeast(2), To<OfBoundBoard<&Board::m_sDefaultPadstack>, SetText>()},
    {"BOARD_DEFAULT_VIA",               kUnquoted, AtLeast(2), To<OfBoundBoard<&Board::m_sDefaultVia>, SetText>()},
    {"BOARD_PLACEMENT_CLEARANCE",       kUnquoted, AtLeast(2), To<OfBoundBoard<&Board::m_dPlacementClearance>, SetNumber>(), kDecimalInBrackets, kNumber},
    {"BOARD_PLACEMENT_KEEPOUT",         kUnquoted, Any(),      To<OfOpen<&Board::m_pPlacementKeepouts>, AddPlacementKeepout>(), kConsumesPoints, Reads{{}, PointsFrom<3, kOutlineScan>}},
    {"BOARD_PLACEMENT_OUTLINE",         kUnquoted, Any(),      To<OfBoundBoard<&Board::m_pPlacementOutline>, AddPoints>(), Reads{{}, PointsFrom<2, kOutlineScan>}},
    {"BOARD_PLACEMENT_REGION",          kUnquoted, Any(),      To<OfOpen<&Board::m_pPlacementRegions>, AddPlacementRegion>(), kConsumesPoints, Reads{{}, PointsFrom<2, kOutlineScan>}},
    {"BOARD_ROUTING_LAYERS",            kUnquoted, AtLeast(2), To<OfBoundBoard<&Board::m_nRoutingLayers>, SetWholeNumber>(), kWholeInBrackets, kNumber},
    {"BOARD_ROUTING_OUTLINE",           kUnquoted, Any(),      To<OfBoundBoard<&Board::m_pRoutingOutline>, ReplacePoints>(), Reads{{}, PointsFrom<2, kOutlineScan>}},
    {"COMPONENT_BODY_OUTLINE",          kUnquoted, Any(),      To<BodyOutline, AddPoints>(), kConsumesPoints, Reads{{}, PointsFrom<2, kOutlineScan>}},
    {"COMPONENT_DEFAULT_PADSTACK",      kUnquoted, AtLeast(2), To<OfLastComponent<&Component::m_sDefaultPadstack>, SetText>()},
    {"COMPONENT_HEIGHT",                kUnquoted, AtLeast(2), To<OfOpen<&Component::m_dHeight>, SetNumber>(), kDecimalInBrackets, kNumber},
    {"COMPONENT_LAYOUT_SURFACE",        kUnquoted, AtLeast(2), To<OfLastComponent<&Component::m_sLayoutSurface>, SetText>()},
    {"COMPONENT_LAYOUT_TYPE",           kUnquoted, AtLeast(2), To<OfLastComponent<&Component::m_sLayoutType>, SetText>()},
    GeometryRow("COMPONENT_METALIZATION_AREA"),
    {"COMPONENT_OUTLINE_OVERHANG",      kUnquoted, AtLeast(2), To<OfLastComponent<&Component::m_bOutlineOverhang>, SetIfYes>()},
    {"COMPONENT_PADSTACK_OVERRIDE",     kEvery,    Any(),      To<OfOpen<&Component::m_pPadstackOverrides>, AddOverride>()},
    GeometryRow("COMPONENT_PINANGLE_OVERRIDE"),
    {"COMPONENT_PIN_DEFINITION",        kEvery,    Any(),      To<OfOpen<&Component::m_pPinDefs>, AddPin>(), Reads{{}, PointFrom<3>}},
    {"COMPONENT_PLACEMENT_OUTLINE",     kEvery,    Any(),      To<PlacementOutline, AddPlacementOutline{}>(), kConsumesPoints, Reads{{}, PointsFrom<3, kPlacementOutlineScan>}},
    {"COMPONENT_TYPE",                  kEvery,    AtLeast(2), To<OfOpen<&Component::m_sComponentType>, SetText>()},
    GeometryRow("FIXED_COMPONENT_LOCATION"),
    {"DRILL_DEFINITION_UNPLATED",       kEvery,    Any(),      To<UnplatedDrills, AddDrill>(), kConsumesPoints, Reads{".d", PointFrom<3>}},
    {"DRILL_DEFINITION",                kEvery,    Any(),      To<Drills, AddDrill>(), kConsumesPoints, Reads{".d", PointFrom<3>}},
    GeometryRow("DRILL_ORIGIN"),
    GeometryRow("GEOMETRY_CONSTRUCT_POINT"),
    GeometryRow("JUMPER_PART_NUMBER"),
    {"POWER_NET_NAMES",                 kEvery,    Any(),      To<OfOpen<&Board::m_pPowerNetNames>, AddNames>()},
    {"ROUTING_KEEPOUT",                 kEvery,    Any(),      To<RoutingKeepouts, AddKeepout>(), kConsumesPoints, Reads{{}, PointsFrom<3, kKeepoutScan>}},
    {"TERMINAL_2_LAYER_VIA_DEFINITION", kEvery,    Any(),      To<ViaType, SetType<4>>()},
    {"TERMINAL_BLIND_DEFINITION",       kEvery,    Any(),      To<TerminalType, SetType<3>>()},
    {"TERMINAL_BURIED_VIA_DEFINITION",  kEvery,    Any(),      To<ViaType, SetType<2>>()},
    {"TERMINAL_DRILL_SIZE",             kEvery,    Any(),      To<DrillSize, SetDrillSize>(), kConsumesPoints, kDecimalInBrackets, kNumber},
    {"TERMINAL_SEGMENT_VIA_DEFINITION", kEvery,    Any(),      To<ViaType, SetType<3>>()},
    {"TERMINAL_SURFACE_DEFINITION",     kEvery,    Any(),      To<TerminalType, SetType<2>>()},
    {"TERMINAL_THRUHOLE_DEFINITION",    kEvery,    Any(),      To<TerminalType, SetType<1>>()},
    {"TERMINAL_THRUVIA_DEFINITION",     kEvery,    Any(),      To<ViaType, SetType<1>>()},
    GeometryRow("TESTPOINT_KEEPOUT"),
    {"TRACE_KEEPOUT",                   kEvery,    Any(),      To<TraceKeepouts, AddKeepout>(), kConsumesPoints, Reads{{}, PointsFrom<3, kKeepoutScan>}},
    {"VIA_KEEPOUT",                     kEvery,    Any(),      To<ViaKeepouts, AddKeepout>(), kConsumesPoints, Reads{{}, PointsFrom<3, kKeepoutScan>}},
};
// clang-format on
constexpr NameTable kAttributes(kAttributeRows);

/// The row of every name that contains LAYER_DEFINITION, unless it is one of the above.
constexpr GeometryRow kLayerDefinition{"LAYER_DEFINITION", kUnquoted, Any(),
                                       To<OfOpen<&CMGeomStackup::m_pLayers>, AddLayerDefinition>()};
constexpr RecordRule kInStackup{"an attribute of a stack-up", Any(), "LAYER_DEFINITION in its name", ""};

}  // namespace

void ForEachAttributeWord(const FormatWordVisitor& visit) {
  ForEachRowName(kAttributeRows, visit, {.ignoresCase = true});
  visit({.text = kLayerDefinition.name, .place = WordPlace::kInside, .ignoresCase = true});
  visit({.text = CMGeomComponent().m_sLayoutSurface.View()});  // what a component without it has
  visit({.text = kYes, .place = WordPlace::kInside, .ignoresCase = true});
}

LineOutcome ReadAttribute(ReaderState& state) {
  const std::string_view name = state.values[1];
  if (name.empty()) return LineOutcome::Skipped(SkipCode::kMissingValue, *state.rule);
  const GeometryRow* row = kAttributes.Find(name);
  if (row == nullptr) {
    if (!ContainsIgnoringCase(name, kLayerDefinition.name)) {
      return LineOutcome::Skipped(SkipCode::kUnknownAttribute);
    }
    row = &kLayerDefinition;
  } else if (row->read != nullptr && state.geometry.Open<CMGeomStackup>() != nullptr) {
    return LineOutcome::NoOwner(kInStackup);
  }
  return ReadByRow(*row, state);
}

}  // namespace kestrin
