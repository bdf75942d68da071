#include "tool/diff/diff.h"

#include "tool/board.h"
#include "tool/diff/compare.h"
#include "tool/diff/print.h"
#include "tool/exit_status.h"
#include "tool/import.h"
#include "tool/output.h"
#include "tool/usage_error.h"

namespace kestrin::tool {
namespace {

void ImportWhole(Imported& imported) {
  const std::string stopped = Import(imported);
  if (!stopped.empty()) throw UsageError(stopped);
}

}  // namespace

int Diff(const ExportSet& before, const ExportSet& after, const std::string& format, bool all) {
  Imported first(before);
  Imported second(after);
  ImportWhole(first);
  ImportWhole(second);
  Sides sides = ReadSides(ModelsIn(first), ModelsIn(second));
  const Difference difference = Compare(sides);
  if (format == "json") {
    PrintDifferenceAsJson(difference);
  } else {
    PrintDifference(sides, difference, all);
  }
  const bool isSame = !difference.shift && difference.changes.empty();
  return FinishOutput(isSame ? kSuccess : kIncomplete);
}

}  // namespace kestrin::tool
