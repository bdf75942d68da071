#include "kestrin/geom/attributes.h"

#include "kestrin/geom/attribute_handlers.h"
#include "kestrin/text/fields.h"
#include "kestrin/text/ignoring_case.h"
#include "kestrin/text/name_table.h"
#include "kestrin/text/trim.h"

namespace kestrin::attribute {
namespace {

using enum GeometryKind;

/// How the values of an attribute are cut.
enum class Cut : std::uint8_t {
  kUncut,
  kQuoted,  ///< commas between quotes do not separate
  kCommas,  ///< every comma separates
};
using enum Cut;

/// The records that an attribute is written to.
struct Owner {
  bool (*isThere)(const CurrentGeometry& geometry);
  RecordRule rule;
};

template <GeometryKind... KINDS>
bool IsOpen(const CurrentGeometry& geometry) {
  return ((geometry.Kind() == KINDS) || ...);
}

constexpr Owner kBoundBoard{[](const CurrentGeometry& geometry) { return geometry.BoundBoard() != nullptr; },
                            {"the attribute", "$$lock_windows or $$create_board before it"}};
constexpr Owner kLastComponent{
    [](const CurrentGeometry& geometry) { return geometry.LastComponent() != nullptr; },
    {"the attribute", "a component before it"}};
constexpr Owner kInBoard{IsOpen<kBoard>, {"the attribute", "a board to stand in"}};
constexpr Owner kInComponent{IsOpen<kComponent>, {"the attribute", "a component to stand in"}};
constexpr Owner kInPin{IsOpen<kPin>, {"the attribute", "a pin to stand in"}};
constexpr Owner kInVia{IsOpen<kVia>, {"the attribute", "a via to stand in"}};
constexpr Owner kInPadstack{IsOpen<kPin, kVia>, {"the attribute", "a pin or via to stand in"}};
constexpr Owner kInPart{IsOpen<kComponent, kGenericPart>,
                        {"the attribute", "a component or generic part to stand in"}};
constexpr Owner kInBoardOrPart{IsOpen<kBoard, kComponent, kGenericPart>,
                               {"the attribute", "a board, component or generic part to stand in"}};
constexpr Owner kInDrilled{IsOpen<kPanel, kBoard, kComponent, kGenericPart>,
                           {"the attribute", "a panel, board, component or generic part to stand in"}};

/// What becomes of a line whose owner is not there.
enum class Ownerless : std::uint8_t {
  kUntouched,  ///< it does nothing
  kRead,       ///< it is read, and only what it would add is lost
};
using enum Ownerless;

/// An attribute; without a handler it carries nothing.
struct Attribute {
  std::string_view name;
  Cut cut = kUncut;
  std::size_t leastValues = 0;  // with fewer it does nothing
  const Owner* owner = nullptr;
  Ownerless ownerless = kUntouched;
  LineOutcome (*read)(ReaderState& state) = nullptr;
};

// clang-format off
constexpr Attribute kRows[] = {
    {"BOARD_DEFAULT_PADSTACK",          kQuoted, 2, &kBoundBoard,    kUntouched, DefaultPadstackOfBoard},
    {"BOARD_DEFAULT_VIA",               kQuoted, 2, &kBoundBoard,    kUntouched, DefaultVia},
    {"BOARD_PLACEMENT_CLEARANCE",       kQuoted, 2, &kBoundBoard,    kUntouched, PlacementClearance},
    {"BOARD_PLACEMENT_KEEPOUT",         kQuoted, 0, &kInBoard,       kRead,      PlacementKeepout},
    {"BOARD_PLACEMENT_OUTLINE",         kQuoted, 0, &kBoundBoard,    kUntouched, PlacementOutlineOfBoard},
    {"BOARD_PLACEMENT_REGION",          kQuoted, 0, &kInBoard,       kRead,      PlacementRegion},
    {"BOARD_ROUTING_LAYERS",            kQuoted, 2, &kBoundBoard,    kUntouched, RoutingLayers},
    {"BOARD_ROUTING_OUTLINE",           kQuoted, 0, &kBoundBoard,    kUntouched, RoutingOutline},
    {"COMPONENT_BODY_OUTLINE",          kQuoted, 0, &kInPart,        kRead,      BodyOutline},
    {"COMPONENT_DEFAULT_PADSTACK",      kQuoted, 2, &kLastComponent, kUntouched, DefaultPadstackOfComponent},
    {"COMPONENT_HEIGHT",                kQuoted, 2, &kInComponent,   kUntouched, Height},
    {"COMPONENT_LAYOUT_SURFACE",        kQuoted, 2, &kLastComponent, kUntouched, LayoutSurface},
    {"COMPONENT_LAYOUT_TYPE",           kQuoted, 2, &kLastComponent, kUntouched, LayoutType},
    {"COMPONENT_METALIZATION_AREA"},
    {"COMPONENT_OUTLINE_OVERHANG",      kQuoted, 2, &kLastComponent, kUntouched, OutlineOverhang},
    {"COMPONENT_PADSTACK_OVERRIDE",     kCommas, 0, &kInComponent,   kUntouched, PadstackOverride},
    {"COMPONENT_PINANGLE_OVERRIDE"},
    {"COMPONENT_PIN_DEFINITION",        kCommas, 0, &kInComponent,   kUntouched, PinDefinition},
    {"COMPONENT_PLACEMENT_OUTLINE",     kCommas, 0, &kInPart,        kRead,      PlacementOutline},
    {"COMPONENT_TYPE",                  kCommas, 2, &kInComponent,   kUntouched, ComponentType},
    {"FIXED_COMPONENT_LOCATION"},
    {"DRILL_DEFINITION_UNPLATED",       kCommas, 0, &kInDrilled,     kRead,      UnplatedDrill},
    {"DRILL_DEFINITION",                kCommas, 0, &kInDrilled,     kRead,      Drill},
    {"DRILL_ORIGIN"},
    {"GEOMETRY_CONSTRUCT_POINT"},
    {"JUMPER_PART_NUMBER"},
    {"POWER_NET_NAMES",                 kCommas, 0, &kInBoard,       kUntouched, PowerNetNames},
    {"ROUTING_KEEPOUT",                 kCommas, 0, &kInBoardOrPart, kRead,      RoutingKeepout},
    {"TERMINAL_2_LAYER_VIA_DEFINITION", kUncut,  0, &kInVia,         kUntouched, ViaType<4>},
    {"TERMINAL_BLIND_DEFINITION",       kUncut,  0, &kInPin,         kUntouched, TerminalType<3>},
    {"TERMINAL_BURIED_VIA_DEFINITION",  kUncut,  0, &kInVia,         kUntouched, ViaType<2>},
    {"TERMINAL_DRILL_SIZE",             kCommas, 0, &kInPadstack,    kRead,      DrillSize},
    {"TERMINAL_SEGMENT_VIA_DEFINITION", kUncut,  0, &kInVia,         kUntouched, ViaType<3>},
    {"TERMINAL_SURFACE_DEFINITION",     kUncut,  0, &kInPin,         kUntouched, TerminalType<2>},
    {"TERMINAL_THRUHOLE_DEFINITION",    kUncut,  0, &kInPin,         kUntouched, TerminalType<1>},
    {"TERMINAL_THRUVIA_DEFINITION",     kUncut,  0, &kInVia,         kUntouched, ViaType<1>},
    {"TESTPOINT_KEEPOUT"},
    {"TRACE_KEEPOUT",                   kCommas, 0, &kInPart,        kRead,      TraceKeepout},
    {"VIA_KEEPOUT",                     kCommas, 0, &kInPart,        kRead,      ViaKeepout},
};
// clang-format on
constexpr NameTable kAttributes(kRows);

constexpr RecordRule kNameRule{"$$attribute", "a name"};
constexpr RecordRule kCountRule{"the attribute", "at least 2 values, its name being the first"};
constexpr RecordRule kLayerRule{"the attribute", "a stack-up to stand in"};
constexpr RecordRule kStackupRule{"the attribute", "another geometry than the stack-up to stand in"};

std::string_view NameIn(std::string_view arguments) {
  std::size_t position = 0;
  return Cleaned(NextCommaField(arguments, position).value_or(std::string_view()));
}

LineOutcome ReadRow(const Attribute& row, ReaderState& state, std::string_view arguments) {
  const bool hasOwner = row.owner->isThere(state.geometry);
  const auto ownerless = LineOutcome::Skipped(SkipCode::kNoOwner, row.owner->rule);
  if (!hasOwner && row.ownerless == kUntouched) return ownerless;
  if (row.cut == kQuoted) state.values.CutAtUnquotedCommas(arguments);
  if (row.cut == kCommas) state.values.CutAtCommas(arguments);
  if (state.values.Count() < row.leastValues) {
    return LineOutcome::WrongValueCount(kCountRule, state.values.Count());
  }
  const LineOutcome outcome = row.read(state);
  return hasOwner ? outcome : ownerless;
}

}  // namespace

LineOutcome Read(ReaderState& state, std::string_view arguments) {
  const std::string_view name = NameIn(arguments);
  if (name.empty()) return LineOutcome::Skipped(SkipCode::kMissingValue, kNameRule);
  const bool inStackup = state.geometry.Kind() == kStackup;
  if (ContainsIgnoringCase(name, "LAYER_DEFINITION")) {
    if (!inStackup) return LineOutcome::Skipped(SkipCode::kNoOwner, kLayerRule);
    state.values.CutAtCommas(arguments);
    return LayerDefinition(state, name);
  }
  const Attribute* row = kAttributes.Find(name);
  if (row == nullptr) return LineOutcome::Skipped(SkipCode::kUnknownAttribute);
  if (row->read == nullptr) return LineOutcome::Ignored();
  if (inStackup) return LineOutcome::Skipped(SkipCode::kNoOwner, kStackupRule);
  return ReadRow(*row, state, arguments);
}

}  // namespace kestrin::attribute
