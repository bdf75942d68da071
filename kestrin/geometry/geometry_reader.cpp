#include "kestrin/geometry/geometry_reader.h"

#include "kestrin/geometry/attributes.h"
#include "kestrin/geometry/command_line.h"
#include "kestrin/geometry/drawing_commands.h"
#include "kestrin/geometry/geometry_commands.h"
#include "kestrin/geometry/geometry_row.h"
#include "kestrin/geometry/geometry_words.h"
#include "kestrin/text/comment.h"
#include "kestrin/text/ignoring_case.h"
#include "kestrin/text/name_table.h"

namespace kestrin {
namespace {

using enum Commas;
using enum Ownerless;
using DrawObjs = OfCurrentList<&CurrentGeometry::DrawObjs>;
using Texts = OfCurrentList<&CurrentGeometry::Texts>;
using Adds = OfCurrentList<&CurrentGeometry::Adds>;

constexpr GeometryRow kCommandRows[] = {
    {"$$lock_windows", kEvery, Any(), kNobody, BindBoard},
    {"$$create_panel", kEvery, Any(), kNobody, CreateNamed<&CurrentGeometry::CreatePanel>},
    {"$$create_board", kEvery, Any(), kNobody, CreateNamed<&CurrentGeometry::CreateBoard>},
    {"$$create_component", kEvery, Any(), kNobody, CreateNamed<&CurrentGeometry::CreateComponent>},
    {"$$create_generic_part", kEvery, Any(), kNobody, CreateNamed<&CurrentGeometry::CreateGenericPart>},
    {"$$create_stackup", kEvery, Any(), kNobody, CreateNamed<&CurrentGeometry::CreateStackup>},
    {"$$create_pin", kEvery, Any(), kNobody, CreateNamed<&CurrentGeometry::CreatePin>},
    {"$$create_via", kEvery, Any(), kNobody, CreateNamed<&CurrentGeometry::CreateVia>},
    {"$$create_probe", kEvery, Any(), kNobody, CreateIgnored},
    {"$$create_drawing", kEvery, Any(), kNobody, CreateNamed<&CurrentGeometry::CreateDrawing>},
    {"$$create_test_fixture", kEvery, Any(), kNobody, CreateIgnored},
    {"$$page", kEvery, Any(), To<UnitOfOpen, SetUnit>()},
    {"$$initial", kEvery, Any(), kNobody, BeginPoints, Reads{{}, InitialPoints}},
    {"$$terminal", kEvery, Any(), kNobody, ContinuePoints, Reads{{}, TerminalPoints}},
    {"$$add", kEvery, Any(), To<Adds, PlaceGeometry>(), Reads{".dd.iii"}},
    {"$$path", kEvery, Any(), To<DrawObjs, AddPath>(), kConsumesPoints,
     Reads{".r", PointsFrom<3, kPathScan>}},
    {"$$arc", kEvery, Any(), To<DrawObjs, AddArc>(), kConsumesPoints, Reads{".rrrrrrr"}},
    {"$$polygon", kEvery, Any(), To<DrawObjs, AddPolygon>(), kConsumesPoints,
     Reads{{}, PointsFrom<2, kPolygonScan>}},
    {"$$circle", kEvery, Any(), To<DrawObjs, AddCircle>(), kConsumesPoints, Reads{".rrrr"}},
    {"$$text", kUnquoted, Any(), To<Texts, AddText>(), Reads{"..ddd.idd..dd"}},
    {"$$template_path_width", kEvery, Any(), kNobody, SetPathWidth, Reads{{}, PathWidth}},
    GeometryRow("$$internal_name"),
    GeometryRow("$$template_line_style"),
    GeometryRow("$$template_dimension"),
    GeometryRow("$$template_layer"),
    GeometryRow("$$add_dimension"),
    {"$$attribute", kUnquoted, Any(), kNobody, ReadAttribute, Reads{}, "a name"},
};
constexpr NameTable kCommands(kCommandRows);

/// A word that contains this creates a geometry, known or not.
constexpr std::string_view kCreate = "$$create_";

constexpr RecordRule kStart{"a command", Any(), "", "to begin in the first column"};
constexpr RecordRule kParentheses{"a command", Any(), "", "its arguments in parentheses"};

/// The outcome of a line that does not begin with "$$" and have an opening parenthesis.
LineOutcome OutcomeOfOtherLine(std::string_view line) {
  if (IsBlankOrComment(line)) return LineOutcome::Ignored();
  if (line.starts_with("$$")) return LineOutcome::Skipped(SkipCode::kUnknownCommand, kParentheses);
  if (Trimmed(line).starts_with("$$")) return LineOutcome::Skipped(SkipCode::kUnknownCommand, kStart);
  return LineOutcome::Skipped(SkipCode::kUnknownRecord);
}

}  // namespace

void GeometryReader::ForEachMisreadNumber(std::string_view /*line*/, const NumberAction& action) {
  struct CleanedValues {
    [[nodiscard]] bool HasAtLeast(std::size_t count) const { return values.HasAtLeast(count); }
    [[nodiscard]] std::size_t Count() const { return values.Count(); }
    [[nodiscard]] std::string_view Text(std::size_t position) const { return values[position]; }
    [[nodiscard]] std::string_view Raw(std::size_t position) const { return values.Raw(position); }
    Values& values;
  };
  const auto& row = *static_cast<const GeometryRow*>(state_.rule);  // all rules of lines are rows
  row.kinds.ForEachMisreadNumber(CleanedValues{state_.values}, action);
  if (row.numbersInBrackets != nullptr) row.numbersInBrackets(state_, action);
}

void GeometryReader::ForEachWord(const FormatWordVisitor& visit) {
  ForEachRowName(kCommandRows, visit, {.ignoresCase = true});
  visit({.text = kCreate, .place = WordPlace::kInside, .ignoresCase = true});
  ForEachAttributeWord(visit);
  ForEachDrawingWord(visit);
  ForEachPageWord(visit);
  ForEachTextWord(visit);
}

LineOutcome GeometryReader::ReadLine(std::string_view line) {
  const auto [word, arguments] = CutCommandLine(line);
  if (!word.starts_with("$$")) return OutcomeOfOtherLine(line);
  if (const GeometryRow* command = kCommands.Find(word)) {
    state_.arguments = arguments;
    state_.values.Cut(arguments, command->commas);
    return ReadByRow(*command, state_);
  }
  if (ContainsIgnoringCase(word, kCreate)) state_.geometry.CreateUnknown();
  return LineOutcome::Skipped(SkipCode::kUnknownCommand);
}

}  // namespace kestrin
