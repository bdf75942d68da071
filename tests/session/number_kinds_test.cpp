// What the rows of the readers' tables say about values agrees with what the handlers do with them.

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "kestrin/geometry/geometry_reader.h"
#include "kestrin/neutral/neutral_reader.h"
#include "kestrin/tech/tech_reader.h"
#include "kestrin/text/fields.h"
#include "kestrin/text/line_fields.h"
#include "kestrin/traces/traces_reader.h"
#include "support/described.h"
#include "tests/support/content_of.h"
#include "tests/support/sample_board.h"

namespace kestrin {
namespace {

using Texts = std::vector<std::string_view>;

/// The values between the blanks of a line, without its keyword.
Texts ValuesBetweenBlanks(std::string_view line) {
  LineFields fields;
  fields.Begin(line);
  Texts values;
  for (std::size_t i = 1; fields.Has(i); ++i) values.push_back(fields.Text(i));
  return values;
}

/// The values between the commas in the parentheses of a line, without blanks, quotes and brackets.
Texts ValuesBetweenCommas(std::string_view line) {
  Texts values;
  if (line.starts_with('#') || line.find('(') == std::string_view::npos) return values;
  const std::string_view arguments = line.substr(0, line.rfind(')'));
  std::size_t position = line.find('(') + 1;
  while (auto value = NextCommaField(arguments, position)) {
    while (!value->empty() && std::string_view(" \"[").find(value->front()) != std::string_view::npos)
      value->remove_prefix(1);
    while (!value->empty() && std::string_view(" \"]").find(value->back()) != std::string_view::npos)
      value->remove_suffix(1);
    values.push_back(*value);
  }
  return values;
}

struct TechFile {
  static constexpr const char* kKind = "tech";
  static Texts ValuesOf(std::string_view line) { return ValuesBetweenCommas(line); }
  [[nodiscard]] std::string Description() const { return test::Described(tech); }
  CMTech tech;
  TechReader reader{tech};
};

struct NeutralFile {
  static constexpr const char* kKind = "neutral";
  static Texts ValuesOf(std::string_view line) { return ValuesBetweenBlanks(line); }
  [[nodiscard]] std::string Description() const {
    return test::Described(components) + test::Described(nets);
  }
  CMComps components;
  CMNetList nets;
  BoardSelection selection;
  NeutralReader reader{components, nets, selection};
};

struct GeometryFile {
  static constexpr const char* kKind = "geometry";
  static Texts ValuesOf(std::string_view line) { return ValuesBetweenCommas(line); }
  [[nodiscard]] std::string Description() const { return test::Described(geom); }
  CMGeom geom;
  GeometryReader reader{geom};
};

struct TracesFile {
  static constexpr const char* kKind = "traces";
  static Texts ValuesOf(std::string_view line) { return ValuesBetweenBlanks(line); }
  [[nodiscard]] std::string Description() const { return test::Described(traces); }
  CMTraces traces;
  TracesReader reader{traces};
};

template <class File>
class Lines {
 public:
  explicit Lines(const std::string& text) {
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines_.push_back(line);
  }

  [[nodiscard]] std::size_t Count() const { return lines_.size(); }
  [[nodiscard]] const std::string& operator[](std::size_t index) const { return lines_[index]; }

  /// How the reader treats a value, by what becomes of the model: d, i or t for a number, a point for
  /// anything else.
  [[nodiscard]] char BehaviourOf(std::size_t index, std::string_view value) const {
    const auto with = [&](const std::string& text) { return ModelWith(Replaced(index, value, text), index); };
    const std::string seven = with("7");
    if (with("8") == seven || with("7x") != seven) return '.';
    if (with("7.25") != seven) return 'd';
    return with("7e1") == seven ? 'i' : 't';
  }

  /// How the reader says that it treats the value.
  [[nodiscard]] char PromiseFor(std::size_t index, std::string_view value, int position) const {
    const std::string line = Replaced(index, value, "7x");
    File file;
    for (std::size_t i = 0; i < index; ++i) static_cast<void>(file.reader.ReadLine(lines_[i]));
    char promise = '.';
    if (file.reader.ReadLine(line) != LineOutcome::Imported()) return promise;
    file.reader.ForEachMisreadNumber(line, [&](int shown, std::string_view text, NumberKind kind) {
      if (shown != position) return;
      EXPECT_EQ(text.substr(0, 2), "7x") << line;
      promise = kind == NumberKind::kDecimal ? 'd' : kind == NumberKind::kWhole ? 'i' : 't';
    });
    return promise;
  }

 private:
  [[nodiscard]] std::string Replaced(std::size_t index, std::string_view value,
                                     const std::string& text) const {
    std::string line = lines_[index];
    return line.replace(static_cast<std::size_t>(value.data() - lines_[index].data()), value.size(), text);
  }
  [[nodiscard]] std::string ModelWith(const std::string& line, std::size_t index) const {
    File file;
    for (std::size_t i = 0; i < lines_.size(); ++i)
      static_cast<void>(file.reader.ReadLine(i == index ? line : lines_[i]));
    return file.Description();
  }

  std::vector<std::string> lines_;
};

/// Compares both for every value of the lines that are imported of the sample board, of which one of each
/// kind is looked at: lines with the same keyword or attribute and number of values.
template <class File>
void ExpectAgreement(const std::string& moreLines, const std::set<std::string>& exceptions) {
  const Lines<File> lines(test::ContentOf(test::BoardFile(File::kKind)) + moreLines);
  std::set<std::string> seen;
  int numbers = 0;
  File file;
  for (std::size_t i = 0; i < lines.Count(); ++i) {
    if (file.reader.ReadLine(lines[i]) != LineOutcome::Imported()) continue;
    const Texts values = File::ValuesOf(lines[i]);
    const bool hasName = lines[i].starts_with("$$attribute");
    const std::string word = lines[i].substr(0, lines[i].find_first_of(hasName ? ",)" : " ("));
    if (!seen.insert(word + " " + std::to_string(values.size())).second) continue;
    for (std::size_t n = 0; n < values.size() && n < 24; ++n) {
      if (values[n].empty() || exceptions.count(word + " " + std::to_string(n + 1)) > 0) continue;
      const char behaviour = lines.BehaviourOf(i, values[n]);
      EXPECT_EQ(lines.PromiseFor(i, values[n], static_cast<int>(n) + 1), behaviour)
          << lines[i] << ", value " << n + 1;
      numbers += behaviour == '.' ? 0 : 1;
    }
  }
  EXPECT_GT(numbers, 0);
}

TEST(NumberKinds, AreThoseOfTheTechReader) { ExpectAgreement<TechFile>("", {}); }

TEST(NumberKinds, AreThoseOfTheNeutralReader) {
  ExpectAgreement<NeutralFile>("", {"BOARD 3", "BOARD 4"});  // cut at a colon first
}

TEST(NumberKinds, AreThoseOfTheGeometryReader) { ExpectAgreement<GeometryFile>("", {}); }

TEST(NumberKinds, AreThoseOfTheTracesReader) {
  ExpectAgreement<TracesFile>("\nWIR 1 2 3\nFIL 1 2 3 4 5\nARE 1 2 3 4 5 6 7\n", {});
}

}  // namespace
}  // namespace kestrin
