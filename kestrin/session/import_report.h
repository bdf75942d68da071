#pragma once

/// @file
/// What became of the lines of an import, as data: an import itself shows and throws nothing because of it.

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
/// How many they are.
inline constexpr std::size_t kImportFileCount = 4;

/// How far the reading of a file came.
enum class ReadingEnd : std::uint8_t {
  kNotRead,    ///< its reader did not run
  kNotOpened,  ///< the file could not be opened
  kStopped,    ///< an exception ended the reading at the last line read
  kComplete,   ///< the whole file was read
};

/// A line that a reader skipped.
struct SkippedLine {
  std::int64_t number = 0;  ///< counted from 1
  std::string reason;       ///< why, in one sentence
  std::string text;         ///< its beginning, up to FileReport::kKeptBytes
};

/// The skipped lines of one code: all are counted, the first are kept.
struct SkippedLines {
  std::int64_t count = 0;          ///< of all of them
  std::vector<SkippedLine> first;  ///< up to FileReport::kKeptLines, in file order
};

/// What became of the lines of one file. Every line read is imported, ignored or skipped; only the line at
/// which an exception stopped the reading is none of these.
class FileReport {
 public:
  static constexpr std::size_t kKeptLines = 100;  ///< lines kept of each skip code
  static constexpr std::size_t kKeptBytes = 200;  ///< bytes kept of a line

  ///@{
  /// How many lines were imported, ignored, skipped.
  [[nodiscard]] std::int64_t Imported() const { return CountOf(LineOutcome::Kind::kImported); }
  [[nodiscard]] std::int64_t Ignored() const { return CountOf(LineOutcome::Kind::kIgnored); }
  [[nodiscard]] std::int64_t Skipped() const { return CountOf(LineOutcome::Kind::kSkipped); }
  ///@}

  /// The lines that were skipped with a code; valid until the file is read again.
  [[nodiscard]] const SkippedLines& Skipped(SkipCode code) const {
    return skipped_[static_cast<std::size_t>(code)];
  }

  /// Counts the line that was read last. Readers' loops call it; a host need not.
  void CountLine(LineOutcome outcome, std::string_view line) {
    ++counts_[static_cast<std::size_t>(outcome.GetKind())];
    if (outcome.GetKind() == LineOutcome::Kind::kSkipped) CountSkipped(outcome, line);
  }

  std::string path;                       ///< as it was given
  ReadingEnd end = ReadingEnd::kNotRead;  ///< how far the reading came
  std::int64_t linesRead = 0;             ///< the number of the last line read
  std::chrono::nanoseconds duration{};    ///< of the whole reading, progress and messages included

 private:
  void CountSkipped(LineOutcome outcome, std::string_view line);
  [[nodiscard]] std::int64_t CountOf(LineOutcome::Kind kind) const {
    return counts_[static_cast<std::size_t>(kind)];
  }

  std::array<std::int64_t, 3> counts_{};  // by LineOutcome::Kind
  std::array<SkippedLines, kSkipCodes.size()> skipped_;
};

/// The reports of a session's files; each reading of a file replaces the report of the one before.
class ImportReport {
 public:
  /// The report of a file; it lives as long as this report.
  [[nodiscard]] const FileReport& Of(ImportFile file) const { return files_[static_cast<std::size_t>(file)]; }

  /// Which of the boards of the Neutral file was imported.
  BoardSelection boardSelection;

 private:
  friend class CPC_KESTRIN_GET;

  [[nodiscard]] FileReport& Filled(ImportFile file) { return files_[static_cast<std::size_t>(file)]; }

  std::array<FileReport, kImportFileCount> files_;
};

}  // namespace kestrin
