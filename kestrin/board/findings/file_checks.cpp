#include <algorithm>
#include <cstdio>
#include <map>

#include "kestrin/board/findings/checks.h"
#include "kestrin/board/findings/line_kinds.h"
#include "kestrin/framework/open_file.h"
#include "kestrin/framework/stdio_file.h"
#include "kestrin/geometry/command_line.h"
#include "kestrin/geometry/page_unit.h"
#include "kestrin/session/misread_numbers.h"

namespace kestrin {
namespace {

/// The file of which a file's lines are records, if most are of another one than they should be.
std::optional<ImportFile> OtherKindOf(ImportFile file, const FileReport& report) {
  if (report.Imported() > report.linesRead / 2) return std::nullopt;
  const LineKinds kinds = CountLineKinds(report.path);
  const auto most = std::max_element(kinds.imported.begin(), kinds.imported.end());
  const auto other = static_cast<ImportFile>(most - kinds.imported.begin());
  if (other == file || *most <= kinds.lines / 2) return std::nullopt;
  return *most > kinds.imported[static_cast<std::size_t>(file)] ? std::optional(other) : std::nullopt;
}

void CheckKind(ImportFile file, const FileReport& report, Collector& findings) {
  if (report.end == ReadingEnd::kStopped) findings.Doubt(file);
  if (const auto other = OtherKindOf(file, report)) {
    findings.Doubt(file);
    return findings.Add(FindingCode::kWrongFile, [&] {
      return Finding{.message = "most lines are records of a " + std::string(NameOf(*other)) +
                                " file, but the file was read as the " + std::string(NameOf(file)) + " file",
                     .at = {{file}}};
    });
  }
  if (report.Imported() > 0) return;
  findings.Doubt(file);
  findings.Add(FindingCode::kNothingImported, [&] {
    return Finding{.message = "no line of the " + std::string(NameOf(file)) + " file was imported",
                   .at = {{file}}};
  });
}

void CheckEnd(ImportFile file, const FileReport& report, Collector& findings) {
  const FileHandle bytes = OpenToRead(report.path.c_str());
  if (bytes == nullptr || std::fseek(bytes.get(), -1, SEEK_END) != 0 || std::fgetc(bytes.get()) == '\n')
    return;
  findings.Add(FindingCode::kNoFinalNewline, [&] {
    return Finding{.message = "the " + std::string(NameOf(file)) +
                              " file does not end with a line feed; it may be cut off",
                   .at = {{file, report.linesRead}}};
  });
}

void CheckNumbers(ImportFile file, const CheckedSet& set, Collector& findings) {
  const auto& given = set.misread[static_cast<std::size_t>(file)];
  const MisreadNumbers misread =
      given ? *given : FindMisreadNumbers(file, set.report->Of(file).path, Findings::kKept);
  std::vector<Finding> first;
  for (const MisreadNumber& number : misread.first) {
    first.push_back({.message = "value " + std::to_string(number.value) + " is " + Quoted(number.text) +
                                ", which is not a " + (number.asInteger ? "whole number" : "number"),
                     .at = {{file, number.line}}});
  }
  findings.AddAll(FindingCode::kNotANumber, std::move(first), misread.count);
}

/// The lines with an unknown unit.
struct UnknownUnit {
  std::string word;
  std::vector<FindingPlace> places;
};

/// The unknown units of geometries, in the order of the file.
std::vector<UnknownUnit> UnknownUnitsIn(CStdioFile& file) {
  constexpr std::size_t kMostPlaces = 100;
  std::vector<UnknownUnit> units;
  std::map<std::string, std::size_t, std::less<>> byWord;
  std::int64_t number = 0;
  while (const auto line = file.ReadLine()) {
    ++number;
    if (line->find('@') == std::string_view::npos) continue;
    const auto [command, arguments] = CutCommandLine(*line);
    const auto option = arguments.find('@');
    if (command != "$$page" || option == std::string_view::npos || !UnitOfPage(arguments).empty()) continue;
    const std::string word(arguments.substr(option));
    const std::size_t index = byWord.emplace(word, units.size()).first->second;
    if (index == units.size()) units.push_back({word, {}});
    if (units[index].places.size() < kMostPlaces)
      units[index].places.push_back({ImportFile::kGeometry, number});
  }
  return units;
}

/// The models do not tell unknown units of geometries from missing ones. One finding for each word.
void CheckPages(const FileReport& report, Collector& findings) {
  CStdioFile file;
  if (file.Open(report.path.c_str()) == 0) return;
  for (UnknownUnit& unit : UnknownUnitsIn(file)) {
    findings.Add(FindingCode::kUnknownUnit, [&] {
      return Finding{.message = "the unit " + Quoted(unit.word) + " of geometries is unknown",
                     .at = std::move(unit.places)};
    });
  }
}

}  // namespace

void CheckFiles(const CheckedSet& set, const Board& /*board*/, Collector& findings) {
  if (set.report == nullptr) return;
  for (std::size_t i = 0; i < kImportFileCount; ++i) {
    const auto file = static_cast<ImportFile>(i);
    const FileReport& report = set.report->Of(file);
    if (report.end == ReadingEnd::kNotRead || report.end == ReadingEnd::kNotOpened) continue;
    CheckKind(file, report, findings);
    CheckEnd(file, report, findings);
    CheckNumbers(file, set, findings);
    if (file == ImportFile::kGeometry) CheckPages(report, findings);
  }
}

}  // namespace kestrin
