#include "kestrin/geometry/geometry_reader.h"

#include "kestrin/geometry/attributes.h"
#include "kestrin/geometry/command_line.h"
#include "kestrin/geometry/drawing_commands.h"
#include "kestrin/geometry/geometry_commands.h"
#include "kestrin/text/comment.h"
#include "kestrin/text/ignoring_case.h"
#include "kestrin/text/name_table.h"

namespace kestrin {
namespace {

/// A command; without a handler it carries nothing.
struct Command {
  std::string_view name;
  CommandHandler run = nullptr;
};

constexpr Command kRows[] = {
    {"$$lock_windows", LockWindows},
    {"$$create_panel", CreateNamed<&CurrentGeometry::CreatePanel>},
    {"$$create_board", CreateNamed<&CurrentGeometry::CreateBoard>},
    {"$$create_component", CreateNamed<&CurrentGeometry::CreateComponent>},
    {"$$create_generic_part", CreateNamed<&CurrentGeometry::CreateGenericPart>},
    {"$$create_stackup", CreateNamed<&CurrentGeometry::CreateStackup>},
    {"$$create_pin", CreateNamed<&CurrentGeometry::CreatePin>},
    {"$$create_via", CreateNamed<&CurrentGeometry::CreateVia>},
    {"$$create_probe", CreateUnkept<&CurrentGeometry::CreateProbe>},
    {"$$create_drawing", CreateNamed<&CurrentGeometry::CreateDrawing>},
    {"$$create_test_fixture", CreateUnkept<&CurrentGeometry::CreateTestFixture>},
    {"$$page", Page},
    {"$$initial", Initial},
    {"$$terminal", Terminal},
    {"$$add", Add},
    {"$$path", Path},
    {"$$arc", Arc},
    {"$$polygon", Polygon},
    {"$$circle", Circle},
    {"$$text", Text},
    {"$$template_path_width", TemplatePathWidth},
    {"$$internal_name"},
    {"$$template_line_style"},
    {"$$template_dimension"},
    {"$$template_layer"},
    {"$$add_dimension"},
    {"$$attribute", attribute::Read},
};
constexpr NameTable kCommands(kRows);

constexpr RecordRule kStartRule{"a command", "to stand at the very start of its line"};
constexpr RecordRule kParenthesisRule{"a command", "its arguments in parentheses"};

/// What becomes of a line that does not start with a command's word and a parenthesis.
LineOutcome OutcomeOfOtherLine(std::string_view line) {
  if (IsBlankOrComment(line)) return LineOutcome::Ignored();
  if (line.starts_with("$$")) return LineOutcome::Skipped(SkipCode::kUnknownCommand, kParenthesisRule);
  if (Trimmed(line).starts_with("$$")) return LineOutcome::Skipped(SkipCode::kUnknownCommand, kStartRule);
  return LineOutcome::Skipped(SkipCode::kUnknownRecord);
}

}  // namespace

LineOutcome GeometryReader::ReadLine(std::string_view line) {
  const auto [word, arguments] = CutCommandLine(line);
  if (!word.starts_with("$$")) return OutcomeOfOtherLine(line);
  if (const Command* command = kCommands.Find(word)) {
    return command->run == nullptr ? LineOutcome::Ignored() : command->run(state_, arguments);
  }
  if (ContainsIgnoringCase(word, "$$create_")) state_.geometry.CreateUnknown();
  return LineOutcome::Skipped(SkipCode::kUnknownCommand);
}

}  // namespace kestrin
