#include "tool/board.h"

#include <cmath>

#include "tool/board_document.h"
#include "tool/exit_status.h"
#include "tool/json_writer.h"
#include "tool/output.h"
#include "tool/usage_error.h"

namespace kestrin::tool {
namespace {

std::optional<Sense> SenseOf(const std::string& word) {
  if (word.empty()) return std::nullopt;
  return word == kClockwise ? Sense::kClockwise : Sense::kCounterClockwise;
}

}  // namespace

BoardOptions OptionsOf(const ReadingWords& words) {
  BoardOptions options;
  options.rotation = SenseOf(words.rotation);
  options.bottom = SenseOf(words.bottom);
  if (!words.bottomTurn.empty()) options.bottomTurn = words.bottomTurn == "180" ? 180 : 0;
  options.widthStep = words.widthStep;
  if (words.widthStep && !(*words.widthStep > 0.0 && std::isfinite(*words.widthStep))) {
    throw UsageError("--width-step needs a number greater than 0");
  }
  return options;
}

BoardModels ModelsIn(const Imported& imported) {
  BoardModels models = ModelsOf(imported.session);
  models.traces = imported.Traces();
  return models;
}

Board BoardOf(const Imported& imported, const BoardOptions& options) {
  return ReadBoard(ModelsIn(imported), options);
}

int PrintBoard(const ExportSet& files, const ReadingWords& words) {
  const BoardOptions options = OptionsOf(words);
  Imported imported(files);
  const std::string stopped = Import(imported);
  JsonWriter json;
  Write(json, BoardOf(imported, options));
  json.Finish();
  return FinishOutput(stopped.empty() ? kSuccess : ReportError(stopped, kIncomplete));
}

}  // namespace kestrin::tool
