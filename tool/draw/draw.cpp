#include "tool/draw/draw.h"

#include <optional>

#include "tool/exit_status.h"
#include "tool/output.h"
#include "tool/usage_error.h"

namespace kestrin::tool::draw {
namespace {

/// Imports the other export that was asked for; none if none was.
void ImportOther(const DrawWords& words, const ExportSet& files, std::optional<Imported>& other) {
  if (words.against.empty()) return;
  ExportSet against;
  against.EncodingWord() = files.EncodingWord();
  against.Add({words.against});
  const std::string stopped = Import(other.emplace(against));
  if (!stopped.empty()) throw UsageError(stopped);
}

}  // namespace

int Draw(const ExportSet& files, const ReadingWords& reading, const DrawWords& words) {
  const BoardOptions options = OptionsOf(reading);
  CheckWords(words, !words.against.empty());
  Imported imported(files);
  const std::string stopped = Import(imported);
  std::optional<Imported> other;
  ImportOther(words, files, other);
  const Board board = BoardOf(imported, options);
  const Subject subject{.imported = imported, .board = board, .against = other ? &*other : nullptr};
  for (const std::string& warning : DrawBoard(subject, words)) ReportError(warning, kSuccess);
  return stopped.empty() ? kSuccess : ReportError(stopped, kIncomplete);
}

}  // namespace kestrin::tool::draw
