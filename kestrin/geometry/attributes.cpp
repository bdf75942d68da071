#include "kestrin/geometry/attributes.h"

#include "kestrin/geometry/attribute_handlers.h"
#include "kestrin/text/ignoring_case.h"
#include "kestrin/text/name_table.h"

namespace kestrin::attribute {
namespace {

using enum GeometryKind;
using enum Commas;

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
  Commas commas = kEvery;       // behind the name
  std::size_t leastValues = 0;  // with fewer it does nothing
  const Owner* owner = nullptr;
  Ownerless ownerless = kUntouched;
  LineOutcome (*read)(ReaderState& state) = nullptr;
};

// clang-format off
constexpr Attribute kRows[] = {
    {"BOARD_DEFAULT_PADSTACK",          kUnquoted, 2, &kBoundBoard,    kUntouched, DefaultPadstackOfBoard},
    {"BOARD_DEFAULT_VIA",               kUnquoted, 2, &kBoundBoard,    kUntouched, DefaultVia},
    {"BOARD_PLACEMENT_CLEARANCE",       kUnquoted, 2, &kBoundBoard,    kUntouched, PlacementClearance},
    {"BOARD_PLACEMENT_KEEPOUT",         kUnquoted, 0, &kInBoard,       kRead,      PlacementKeepout},
    {"BOARD_PLACEMENT_OUTLINE",         kUnquoted, 0, &kBoundBoard,    kUntouched, PlacementOutlineOfBoard},
    {"BOARD_PLACEMENT_REGION",          kUnquoted, 0, &kInBoard,       kRead,      PlacementRegion},
    {"BOARD_ROUTING_LAYERS",            kUnquoted, 2, &kBoundBoard,    kUntouched, RoutingLayers},
    {"BOARD_ROUTING_OUTLINE",           kUnquoted, 0, &kBoundBoard,    kUntouched, RoutingOutline},
    {"COMPONENT_BODY_OUTLINE",          kUnquoted, 0, &kInPart,        kRead,      BodyOutline},
    {"COMPONENT_DEFAULT_PADSTACK",      kUnquoted, 2, &kLastComponent, kUntouched, DefaultPadstackOfComponent},
    {"COMPONENT_HEIGHT",                kUnquoted, 2, &kInComponent,   kUntouched, Height},
    {"COMPONENT_LAYOUT_SURFACE",        kUnquoted, 2, &kLastComponent, kUntouched, LayoutSurface},
    {"COMPONENT_LAYOUT_TYPE",           kUnquoted, 2, &kLastComponent, kUntouched, LayoutType},
    {"COMPONENT_METALIZATION_AREA"},
    {"COMPONENT_OUTLINE_OVERHANG",      kUnquoted, 2, &kLastComponent, kUntouched, OutlineOverhang},
    {"COMPONENT_PADSTACK_OVERRIDE",     kEvery,    0, &kInComponent,   kUntouched, PadstackOverride},
    {"COMPONENT_PINANGLE_OVERRIDE"},
    {"COMPONENT_PIN_DEFINITION",        kEvery,    0, &kInComponent,   kUntouched, PinDefinition},
    {"COMPONENT_PLACEMENT_OUTLINE",     kEvery,    0, &kInPart,        kRead,      PlacementOutline},
    {"COMPONENT_TYPE",                  kEvery,    2, &kInComponent,   kUntouched, ComponentType},
    {"FIXED_COMPONENT_LOCATION"},
    {"DRILL_DEFINITION_UNPLATED",       kEvery,    0, &kInDrilled,     kRead,      UnplatedDrill},
    {"DRILL_DEFINITION",                kEvery,    0, &kInDrilled,     kRead,      Drill},
    {"DRILL_ORIGIN"},
    {"GEOMETRY_CONSTRUCT_POINT"},
    {"JUMPER_PART_NUMBER"},
    {"POWER_NET_NAMES",                 kEvery,    0, &kInBoard,       kUntouched, PowerNetNames},
    {"ROUTING_KEEPOUT",                 kEvery,    0, &kInBoardOrPart, kRead,      RoutingKeepout},
    {"TERMINAL_2_LAYER_VIA_DEFINITION", kEvery,    0, &kInVia,         kUntouched, ViaType<4>},
    {"TERMINAL_BLIND_DEFINITION",       kEvery,    0, &kInPin,         kUntouched, TerminalType<3>},
    {"TERMINAL_BURIED_VIA_DEFINITION",  kEvery,    0, &kInVia,         kUntouched, ViaType<2>},
    {"TERMINAL_DRILL_SIZE",             kEvery,    0, &kInPadstack,    kRead,      DrillSize},
    {"TERMINAL_SEGMENT_VIA_DEFINITION", kEvery,    0, &kInVia,         kUntouched, ViaType<3>},
    {"TERMINAL_SURFACE_DEFINITION",     kEvery,    0, &kInPin,         kUntouched, TerminalType<2>},
    {"TERMINAL_THRUHOLE_DEFINITION",    kEvery,    0, &kInPin,         kUntouched, TerminalType<1>},
    {"TERMINAL_THRUVIA_DEFINITION",     kEvery,    0, &kInVia,         kUntouched, ViaType<1>},
    {"TESTPOINT_KEEPOUT"},
    {"TRACE_KEEPOUT",                   kEvery,    0, &kInPart,        kRead,      TraceKeepout},
    {"VIA_KEEPOUT",                     kEvery,    0, &kInPart,        kRead,      ViaKeepout},
};
// clang-format on
constexpr NameTable kAttributes(kRows);

constexpr RecordRule kNameRule{"$$attribute", "a name"};
constexpr RecordRule kCountRule{"the attribute", "at least 2 values, its name being the first"};
constexpr RecordRule kLayerRule{"the attribute", "a stack-up to stand in"};
constexpr RecordRule kStackupRule{"the attribute", "another geometry than the stack-up to stand in"};

LineOutcome ReadRow(const Attribute& row, ReaderState& state) {
  const bool hasOwner = row.owner->isThere(state.geometry);
  const auto ownerless = LineOutcome::Skipped(SkipCode::kNoOwner, row.owner->rule);
  if (!hasOwner && row.ownerless == kUntouched) return ownerless;
  state.values.GoOnWith(row.commas);  // the name has no commas and is the same value either way
  if (!state.values.HasAtLeast(row.leastValues)) {
    return LineOutcome::WrongValueCount(kCountRule, state.values.Count());
  }
  const LineOutcome outcome = row.read(state);
  return hasOwner ? outcome : ownerless;
}

/// Layer definitions have no names of their own: any name may have these words in it.
LineOutcome ReadLayerDefinition(std::string_view name, ReaderState& state, std::string_view arguments) {
  if (!ContainsIgnoringCase(name, "LAYER_DEFINITION")) {
    return LineOutcome::Skipped(SkipCode::kUnknownAttribute);
  }
  if (!IsOpen<kStackup>(state.geometry)) return LineOutcome::Skipped(SkipCode::kNoOwner, kLayerRule);
  state.values.Cut(arguments, kEvery);
  return LayerDefinition(state, name);
}

}  // namespace

LineOutcome Read(ReaderState& state, std::string_view arguments) {
  state.values.Cut(arguments, kUnquoted);
  const std::string_view name = state.values[1];
  if (name.empty()) return LineOutcome::Skipped(SkipCode::kMissingValue, kNameRule);
  const Attribute* row = kAttributes.Find(name);
  if (row == nullptr) return ReadLayerDefinition(name, state, arguments);
  if (row->read == nullptr) return LineOutcome::Ignored();
  if (IsOpen<kStackup>(state.geometry)) return LineOutcome::Skipped(SkipCode::kNoOwner, kStackupRule);
  return ReadRow(*row, state);
}

}  // namespace kestrin::attribute
