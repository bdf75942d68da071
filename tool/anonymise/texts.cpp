#include "tool/anonymise/texts.h"

#include <algorithm>
#include <array>
#include <string>

#include "kestrin/geometry/command_line.h"
#include "kestrin/geometry/values.h"
#include "kestrin/neutral/component_properties.h"
#include "kestrin/text/comment.h"
#include "kestrin/text/contains.h"
#include "kestrin/text/fields.h"
#include "kestrin/text/ignoring_case.h"
#include "kestrin/text/line_fields.h"

namespace kestrin::tool {
namespace {

using Texts = std::vector<TextPlace>;

Span SpanOf(std::string_view part, std::string_view line) {
  return {static_cast<std::size_t>(part.data() - line.data()), part.size()};
}

/// A line that looks like a comment but contains a command is read as the command.
void FindInTech(std::string_view line, Texts& texts) {
  if (IsBlankOrComment(line) && !Contains(line, "$$")) texts.push_back({{0, line.size()}, true});
}

/// The groups of a line of properties, but those of reference locations, which contain coordinates.
void FindInProperties(std::string_view line, std::size_t first, Texts& texts) {
  std::string scratch;
  std::size_t end = first;
  for (std::size_t begin = first; const auto group = NextPropertyGroup(line, end, scratch); begin = end) {
    if (!Contains(*group, kReferenceLocations)) texts.push_back({{begin, end - begin}});
  }
}

void FindInNeutral(std::string_view line, Texts& texts) {
  constexpr std::array<std::string_view, 4> kProperties{"C_PROP", "N_PROP", "B_ATTR", "G_ATTR"};
  constexpr std::size_t kValuesOfComponent = 8;
  constexpr std::size_t kPart = 2;
  if (line.starts_with('#')) return texts.push_back({{0, line.size()}, true});
  LineFields fields;
  fields.Begin(line);
  if (!fields.Has(0)) return;
  const std::string_view keyword = fields.Text(0);
  if (std::find(kProperties.begin(), kProperties.end(), keyword) != kProperties.end()) {
    FindInProperties(line, SpanOf(keyword, line).End(), texts);
  } else if (keyword == "COMP" && fields.Count() == 1 + kValuesOfComponent) {
    texts.push_back({SpanOf(fields.Text(kPart), line)});
  }
}

void FindInGeometry(std::string_view line, Texts& texts) {
  if (IsBlankOrComment(line)) return texts.push_back({{0, line.size()}, true});
  const CommandLine command = CutCommandLine(line);
  Values values;
  values.Cut(command.arguments, Commas::kUnquoted);
  const bool isText = EqualIgnoringCase(command.word, "$$text");
  const bool isPartNumber =
      EqualIgnoringCase(command.word, "$$attribute") && EqualIgnoringCase(values[1], "JUMPER_PART_NUMBER");
  if ((isText || isPartNumber) && values.HasAtLeast(2)) texts.push_back({SpanOf(values.Raw(2), line)});
}

/// Comments and properties that both readers of the file pass over. The strict reader takes numbers from
/// other comments.
void FindInTraces(std::string_view line, Texts& texts) {
  constexpr std::array<std::string_view, 4> kComments{"# Application", "# BOARD", "# date", "# STI"};
  const std::string_view text = Trimmed(line);
  const bool isNote = text.starts_with('(') && text.ends_with(')');
  const bool isComment = std::any_of(kComments.begin(), kComments.end(),
                                     [&](std::string_view start) { return line.starts_with(start); });
  if (isNote || isComment || line.starts_with("PRP ")) texts.push_back({{0, line.size()}});
}

}  // namespace

void FindTexts(ImportFile file, std::string_view line, Texts& texts) {
  texts.clear();
  switch (file) {
    case ImportFile::kTech: return FindInTech(line, texts);
    case ImportFile::kNeutral: return FindInNeutral(line, texts);
    case ImportFile::kGeometry: return FindInGeometry(line, texts);
    case ImportFile::kTraces: return FindInTraces(line, texts);
  }
}

}  // namespace kestrin::tool
