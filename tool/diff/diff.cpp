#include "tool/diff/diff.h"

#include "tool/board.h"
#include "tool/diff/compare.h"
#include "tool/diff/print.h"
#include "tool/encoding.h"
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

void RequireSameFiles(const ExportSet& before, const ExportSet& after) {
  for (const FileKind& kind : kFileKinds) {
    if (kind.file == ImportFile::kTech || before.Has(kind.file) == after.Has(kind.file)) continue;
    throw UsageError(std::string("only one of the two sets has a ") + kind.name + " file");
  }
}

int Diff(const ExportSet& before, const ExportSet& after, const std::string& format, bool all) {
  RequireSameFiles(before, after);
  Imported first(before);
  Imported second(after);
  ImportWhole(first);
  ImportWhole(second);
  const bool areUtf8 = EncodingOf(before.EncodingWord(), first.files) == Encoding::kUtf8 &&
                       EncodingOf(after.EncodingWord(), second.files) == Encoding::kUtf8;
  SetEncoding(areUtf8 ? Encoding::kUtf8 : Encoding::kLatin1);
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
