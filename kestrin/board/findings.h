#pragma once

/// @file
/// Checking an export set: what is wrong with it, and in which lines.
///
///     session.KeepSourceLines(true);
///     session.ParseGivenFiles();
///     const kestrin::Board board = kestrin::ReadBoard(kestrin::ModelsOf(session));
///     const kestrin::Findings findings = kestrin::FindFaults(kestrin::CheckedSetOf(session), board);
///     for (const kestrin::Finding& finding : findings.list) Show(finding.message, finding.at);

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kestrin/base/export.h"
#include "kestrin/board/read_board.h"
#include "kestrin/session/import_report.h"
#include "kestrin/session/misread_numbers.h"

namespace kestrin {

class SourceLines;

/// How bad a finding is.
enum class Severity : std::uint8_t {
  kError,    ///< the files contradict themselves or each other
  kWarning,  ///< probably a mistake; the import may lack something
  kNote      ///< unusual; good to know
};

/// What is wrong.
enum class FindingCode : std::uint8_t {
  kUnknownComponent,
  kUnknownPin,
  kPinInTwoNets,
  kDuplicateComponent,
  kUnknownGeometry,
  kUnknownPadstack,
  kDuplicateLayer,
  kNetNotInNeutral,
  kNetNotInTraces,
  kDuplicateNet,
  kDuplicateGeometry,
  kUnitMismatch,
  kUnknownUnit,
  kNotANumber,
  kNothingImported,
  kWrongFile,
  kNoMatch,
  kUnknownVia,
  kUnknownLayer,
  kDegenerateArea,
  kOutsideOutline,
  kUnknownFillNet,
  kUnconfirmedReading,
  kNoFinalNewline,
  kCount,  // the number of codes
};

/// What a code means.
struct FindingKind {
  Severity severity;         ///< how bad it is
  std::string_view name;     ///< short and stable, for scripts: "unknown-pin"
  std::string_view meaning;  ///< when it is found
  std::string_view verdict;  ///< what it says about the set: "nets and components do not agree"
};

/// The catalogue, in the order of FindingCode.
inline constexpr std::array kFindingKinds{
    FindingKind{Severity::kError, "unknown-component", "a pin of a net names a component that does not exist",
                "nets and components do not agree"},
    FindingKind{Severity::kError, "unknown-pin", "a net names a pin that its component's geometry lacks",
                "nets and geometries do not agree"},
    FindingKind{Severity::kError, "pin-in-two-nets", "two nets have the same pin", "nets share pins"},
    FindingKind{Severity::kError, "duplicate-component", "two components have the same reference",
                "references are not unique"},
    FindingKind{Severity::kError, "unknown-geometry", "a component names a geometry that does not exist",
                "components and geometries do not agree"},
    FindingKind{Severity::kError, "unknown-padstack", "a padstack does not exist", "padstacks are missing"},
    FindingKind{Severity::kError, "duplicate-layer", "two physical layers have the same number or name",
                "layers are not unique"},
    FindingKind{Severity::kWarning, "net-not-in-neutral", "only the Traces file has the net",
                "nets and tracks do not agree"},
    FindingKind{Severity::kWarning, "net-not-in-traces", "only the Neutral file has the net",
                "nets and tracks do not agree"},
    FindingKind{Severity::kWarning, "duplicate-net", "two nets have the same name", "nets are not unique"},
    FindingKind{Severity::kWarning, "duplicate-geometry", "two geometries of a kind have the same name",
                "geometries are not unique"},
    FindingKind{Severity::kWarning, "unit-mismatch", "files or geometries have different units",
                "units differ"},
    FindingKind{Severity::kWarning, "unknown-unit", "a unit is missing or unknown", "units are unknown"},
    FindingKind{Severity::kWarning, "not-a-number", "a value that is read as a number is none",
                "numbers are not what they seem"},
    FindingKind{Severity::kWarning, "nothing-imported", "no line of a file was imported", "a file is empty"},
    FindingKind{Severity::kWarning, "wrong-file", "most lines belong into another of the four files",
                "files are mixed up"},
    FindingKind{Severity::kWarning, "no-match", "most names of a kind match nothing",
                "the files do not belong together"},
    FindingKind{Severity::kNote, "unknown-via", "a point of a track names a via that does not exist",
                "vias are missing"},
    FindingKind{Severity::kNote, "unknown-layer", "a layer is not in the Tech file", "layers are missing"},
    FindingKind{Severity::kNote, "degenerate-area",
                "an outline, an area or a hole has fewer than three points or half a point",
                "areas are incomplete"},
    FindingKind{Severity::kNote, "outside-outline", "a component is outside the board's outline",
                "components are outside the board"},
    FindingKind{Severity::kNote, "unknown-fill-net", "a fill names a net that no file has",
                "fills and nets do not agree"},
    FindingKind{Severity::kNote, "unconfirmed-reading", "the pins do not fit the copper",
                "pins and copper do not agree"},
    FindingKind{Severity::kNote, "no-final-newline", "a file does not end with a line feed",
                "a file may be cut off"},
};
static_assert(kFindingKinds.size() == static_cast<std::size_t>(FindingCode::kCount));

/// The catalogue's row of a code.
[[nodiscard]] constexpr const FindingKind& KindOf(FindingCode code) {
  return kFindingKinds[static_cast<std::size_t>(code)];
}

/// A line of a file. The number counts from 1; 0 means that the file as a whole is meant, or that the line is
/// not known.
struct FindingPlace {
  ImportFile file = ImportFile::kTech;  ///< which file of the set
  std::int64_t line = 0;                ///< the number of the line
};

/// Something that is wrong.
struct Finding {
  FindingCode code = FindingCode::kCount;  ///< what is wrong
  std::string message;                     ///< a sentence with the names in it, without a full stop
  std::vector<FindingPlace> at;            ///< the records that it is about
};

/// All findings of a set.
struct Findings {
  static constexpr std::size_t kKept = 100;  ///< how many findings are kept for each code

  std::vector<Finding> list;                               ///< by code, then in the order of the records
  std::array<std::size_t, kFindingKinds.size()> counts{};  ///< by code; includes findings that are not kept

  /// How many findings of a code there are.
  [[nodiscard]] std::size_t CountOf(FindingCode code) const { return counts[static_cast<std::size_t>(code)]; }
};

/// What is checked. Everything may be null or empty; what depends on it is not checked.
struct CheckedSet {
  BoardModels models;                                        ///< the models that the board was read from
  std::array<const SourceLines*, kImportFileCount> lines{};  ///< by ImportFile; without them, lines are 0
  const ImportReport* report = nullptr;  ///< without it, only the models are checked, not the files
  /// By ImportFile: what another thread may have found during the import. What is missing is looked for.
  std::array<std::optional<MisreadNumbers>, kImportFileCount> misread;
};

/// The models, lines and report of a session. They must outlive the result.
[[nodiscard]] KESTRIN_EXPORT CheckedSet CheckedSetOf(const CPC_KESTRIN_GET& session);

/// Finds what is wrong with a set. The board must have been read from its models. Reads the files of the
/// report again, at their paths. A file that cannot be read a second time is not checked further. Time and
/// memory are in proportion to the models and files. Throws only std::bad_alloc.
///
/// One mistake makes one finding: if most names of a kind match nothing, such as the components of pins,
/// there is one `no-match` instead of a finding for each name.
[[nodiscard]] KESTRIN_EXPORT Findings FindFaults(const CheckedSet& set, const Board& board);

}  // namespace kestrin
