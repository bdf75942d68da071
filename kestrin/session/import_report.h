#pragma once

/// @file
/// The report of an import: what became of every line. Skipped lines are data here; an import shows no
/// message and raises no exception because of them.

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "kestrin/neutral/board_selection.h"
#include "kestrin/text/line_outcome.h"

namespace kestrin {

/// The files of an export set, in the order in which they are read.
enum class ImportFile : std::uint8_t { kTech, kNeutral, kGeometry, kTraces };
/// The number of files in an export set.
inline constexpr std::size_t kImportFileCount = 4;

/// The name of a file for people: "Tech".
[[nodiscard]] constexpr std::string_view NameOf(ImportFile file) {
  constexpr std::array<std::string_view, kImportFileCount> kNames{"Tech", "Neutral", "Geometry", "Traces"};
  return kNames[static_cast<std::size_t>(file)];
}

/// How the reading of a file ended.
enum class ReadingEnd : std::uint8_t {
  kNotRead,    ///< the file has not been read
  kNotOpened,  ///< the file could not be opened
  kStopped,    ///< an exception stopped the reading at the last line read
  kComplete,   ///< the whole file was read
};

/// A line that was skipped.
struct SkippedLine {
  std::int64_t number = 0;  ///< the line number, counted from 1
  std::string reason;       ///< why it was skipped, in one sentence
  std::string text;         ///< the first FileReport::kKeptBytes bytes of the line
};

/// The lines that were skipped with the same code.
struct SkippedLines {
  std::int64_t count = 0;          ///< how many there are
  std::vector<SkippedLine> first;  ///< the first FileReport::kKeptLines of them, in file order
};

/// What became of the lines of one file. Each line read is imported, ignored or skipped. The exception is a
/// line at which an exception stopped the reading: it is counted in linesRead only.
///
///     const FileReport& report = session.GetReport().Of(ImportFile::kTraces);
///     for (const SkippedLine& line : report.Skipped(SkipCode::kUnknownRecord).first) {
///       std::cerr << report.path << ':' << line.number << ": " << line.reason << '\n';
///     }
class FileReport {
 public:
  static constexpr std::size_t kKeptLines = 100;  ///< how many lines are kept for each skip code
  static constexpr std::size_t kKeptBytes = 200;  ///< how many bytes are kept of each line

  ///@{
  /// How many lines were imported, ignored or skipped.
  [[nodiscard]] std::int64_t Imported() const { return CountOf(LineOutcome::Kind::kImported); }
  [[nodiscard]] std::int64_t Ignored() const { return CountOf(LineOutcome::Kind::kIgnored); }
  [[nodiscard]] std::int64_t Skipped() const { return CountOf(LineOutcome::Kind::kSkipped); }
  ///@}

  /// The lines that were skipped with this code. The reference is valid until the file is read again.
  [[nodiscard]] const SkippedLines& Skipped(SkipCode code) const {
    return skipped_[static_cast<std::size_t>(code)];
  }

  /// Counts the last line read. Called by the library while it reads.
  void CountLine(LineOutcome outcome, std::string_view line) {
    ++counts_[static_cast<std::size_t>(outcome.GetKind())];
    if (outcome.GetKind() == LineOutcome::Kind::kSkipped) CountSkipped(outcome, line);
  }

  std::string path;                       ///< the path as the host gave it
  ReadingEnd end = ReadingEnd::kNotRead;  ///< how the reading ended
  std::int64_t linesRead = 0;             ///< the number of the last line read
  std::chrono::nanoseconds duration{};    ///< how long the reading took, with progress and messages

 private:
  void CountSkipped(LineOutcome outcome, std::string_view line);
  [[nodiscard]] std::int64_t CountOf(LineOutcome::Kind kind) const {
    return counts_[static_cast<std::size_t>(kind)];
  }

  std::array<std::int64_t, 3> counts_{};  // by LineOutcome::Kind
  std::array<SkippedLines, kSkipCodes.size()> skipped_;
};

/// The reports of a session's files. Reading a file again replaces its report.
class ImportReport {
 public:
  /// The report of one file. The reference is valid as long as this object is.
  [[nodiscard]] const FileReport& Of(ImportFile file) const { return files_[static_cast<std::size_t>(file)]; }

  /// Which board of the Neutral file was imported.
  BoardSelection boardSelection;

 private:
  friend class CPC_KESTRIN_GET;

  [[nodiscard]] FileReport& Filled(ImportFile file) { return files_[static_cast<std::size_t>(file)]; }

  std::array<FileReport, kImportFileCount> files_;
};

}  // namespace kestrin
