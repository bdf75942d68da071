#include "kestrin/tech/tech_reader.h"

#include <cstdint>
#include <utility>
#include <vector>

#include "kestrin/base/numbers.h"
#include "kestrin/records/append.h"
#include "kestrin/text/comment.h"
#include "kestrin/text/contains.h"
#include "kestrin/text/fields.h"
#include "kestrin/text/trim.h"

namespace kestrin {
namespace {

/// The text between the first "(" and the last ")". Without a "(", everything before the last ")"; without a
/// ")", nothing.
std::string_view ArgumentText(std::string_view line) {
  line.remove_prefix(line.find('(') + 1);  // npos + 1 is 0
  const std::size_t close = line.rfind(')');
  return close == std::string_view::npos ? std::string_view() : line.substr(0, close);
}

}  // namespace

struct TechReader::Table {
  static constexpr Command kCommands[] = {
      // if a line contains several keywords, the first row wins
      {"$$define_physical_layer", Any(), kNobody, &TechReader::AddLayer, "i"},
      {"$$define_rule_via", Any(), kNobody, &TechReader::AddViaRule},
  };
};

void TechReader::ForEachWord(const FormatWordVisitor& visit) {
  ForEachRowName(Table::kCommands, visit, {.place = WordPlace::kInside});
}

/// The row of the command that the line contains; null if it contains no command.
const TechReader::Command* TechReader::Find(std::string_view line) {
  for (const Command& command : Table::kCommands) {
    if (Contains(line, command.name)) return &command;
  }
  return nullptr;
}

LineOutcome TechReader::ReadLine(std::string_view line) {
  if (const Command* command = Find(line)) return (this->*command->read)(line);
  return IsBlankOrComment(line) ? LineOutcome::Ignored() : LineOutcome::Skipped(SkipCode::kUnknownRecord);
}

LineOutcome TechReader::AddLayer(std::string_view line) {
  auto layer = records_.Make<CMTechStackUpOrder>();
  ForEachArgument(line, [&](std::int64_t number, std::string_view argument) {
    switch (number) {
      case 1: layer->m_nPhysicalLayerNumber = ToInt(argument); break;
      case 2: layer->m_sPhysicalLayerName = argument; break;
      default: layer->m_arrLogicalLayerNames.Add(argument); break;
    }
  });
  Append(*model_.m_pStackupArray, std::move(layer));
  return LineOutcome::Imported();
}

LineOutcome TechReader::AddViaRule(std::string_view line) {
  auto via = records_.Make<CMTechVia>();
  ForEachArgument(line, [&](std::int64_t number, std::string_view argument) {
    switch (number) {
      case 1: via->m_sArg1 = argument; break;
      case 2: via->m_sArg2 = argument; break;
      default: via->m_sArgLast = argument; break;
    }
  });
  Append(*model_.m_pViaArray, std::move(via));
  return LineOutcome::Imported();
}

void TechReader::ForEachMisreadNumber(std::string_view line, const NumberAction& action) {
  struct Arguments {
    [[nodiscard]] bool HasAtLeast(std::size_t count) const { return texts.size() >= count; }
    [[nodiscard]] std::size_t Count() const { return texts.size(); }
    [[nodiscard]] std::string_view Text(std::size_t position) const { return texts[position - 1]; }
    std::vector<std::string_view> texts;
  };
  const Command* command = Find(line);
  if (command == nullptr || command->kinds.AreNone()) return;
  Arguments arguments;
  ForEachArgument(line,
                  [&](std::int64_t, std::string_view argument) { arguments.texts.push_back(argument); });
  command->kinds.ForEachMisreadNumber(arguments, action);
}

template <class Visit>
void TechReader::ForEachArgument(std::string_view line, Visit visit) {
  // Quotes are removed before the text is cut: they protect no comma, and `,"",` is a single separator.
  unquoted_ = ArgumentText(line);
  std::erase(unquoted_, '"');
  std::int64_t number = 0;
  std::size_t position = 0;
  while (const auto argument = NextToken(unquoted_, ',', position)) visit(++number, Trimmed(*argument));
}

}  // namespace kestrin
