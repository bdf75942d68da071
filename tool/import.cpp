#include "tool/import.h"

#include <cstdint>
#include <exception>
#include <future>
#include <memory>

#include "kestrin/framework/exceptions.h"
#include "tool/encoding.h"
#include "tool/terminal_dialog.h"
#include "tool/usage_error.h"

namespace kestrin::tool {
namespace {

void Read(CPC_KESTRIN_GET& session, const ExportSet& files) {
  session.vSetTechFilePath(files.ReadablePathOf(ImportFile::kTech));
  session.vSetNeutralFilePath(files.ReadablePathOf(ImportFile::kNeutral));
  session.vSetGeomFilePath(files.ReadablePathOf(ImportFile::kGeometry));
  session.vSetTraceFilePath(files.ReadablePathOf(ImportFile::kTraces));
  session.ParseGivenFiles();
}

std::string WhereStopped(const ImportReport& report, const ExportSet& files) {
  for (const FileKind& kind : kFileKinds) {
    const FileReport& file = report.Of(kind.file);
    if (file.end == ReadingEnd::kStopped)
      return files.PathOf(kind.file) + ":" + std::to_string(file.linesRead) + ": ";
  }
  return {};
}

/// Returns what Import returns.
std::string ReadWithSession(CPC_KESTRIN_GET& session, const ExportSet& files, ImportDialog& dialog) {
  std::string stopped;
  dialog.Attach(session);
  try {
    Read(session, files);
  } catch (const CInvalidArgException&) {
    stopped = WhereStopped(session.GetReport(), files) +
              "import stopped: the line has too few values for its record";
  } catch (const std::exception& error) {
    stopped = WhereStopped(session.GetReport(), files) + "import stopped: " + error.what();
  }
  session.m_pStatusWnd = nullptr;
  session.SetProgressPtr(nullptr, nullptr, nullptr, nullptr);
  for (const FileKind& kind : kFileKinds) {
    const FileReport& file = session.GetReport().Of(kind.file);
    if (file.end == ReadingEnd::kNotOpened)
      throw UsageError("cannot open \"" + files.PathOf(kind.file) + '"', files.PathOf(kind.file));
  }
  return stopped;
}

}  // namespace

std::vector<ImportFile> Imported::FilesRead() const {
  std::vector<ImportFile> read;
  for (const FileKind& kind : kFileKinds) {
    if (ReportOf(kind.file).end != ReadingEnd::kNotRead) read.push_back(kind.file);
  }
  return read;
}

namespace {

/// Returns what Import returns.
std::string ReadFiles(Imported& imported, ImportDialog& dialog, StrictReading strict) {
  const ExportSet& files = imported.files;
  if (!files.IsStrict()) return ReadWithSession(imported.session, files, dialog);
  ExportSet forSession = files;
  if (strict == StrictReading::kOnly) forSession.Remove(ImportFile::kTraces);
  std::string stopped = ReadWithSession(imported.session, forSession, dialog);
  if (!stopped.empty() && strict == StrictReading::kOnly) return stopped;
  imported.strictTraces = ReadStrictly(files, strict == StrictReading::kAlso, dialog);
  return stopped.empty() ? imported.strictTraces->stopped : stopped;
}

/// Keeps large models of a session until the process ends. The system then frees their memory at once;
/// destroying them would take a fifth of the time of the import.
void LeaveToSystem(const CPC_KESTRIN_GET& session) {
  constexpr std::int64_t kManyLines = 10'000;
  std::int64_t lines = 0;
  for (const FileKind& kind : kFileKinds) lines += session.GetReport().Of(kind.file).linesRead;
  if (lines < kManyLines) return;
  static auto* const kept = std::make_unique<std::vector<CPC_KESTRIN_GET>>().release();
  kept->push_back(session);
}

}  // namespace

std::string Import(Imported& imported, StrictReading strict) {
  TerminalDialog dialog(imported.files);
  std::string stopped = Import(imported, dialog, strict);
  LeaveToSystem(imported.session);
  return stopped;
}

std::string Import(Imported& imported, ImportDialog& dialog, StrictReading strict) {
  imported.files.Open();
  auto encoding = std::async([&files = imported.files] { return EncodingOf(files.EncodingWord(), files); });
  std::string stopped = ReadFiles(imported, dialog, strict);
  SetEncoding(encoding.get());
  return stopped;
}

}  // namespace kestrin::tool
