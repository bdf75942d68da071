#include "tool/import.h"

#include <exception>

#include "kestrin/framework/exceptions.h"
#include "tool/terminal_dialog.h"
#include "tool/usage_error.h"

namespace kestrin::tool {
namespace {

void Read(CPC_KESTRIN_GET& session, const ExportSet& files) {
  session.vSetTechFilePath(files.PathOf(ImportFile::kTech));
  session.vSetNeutralFilePath(files.PathOf(ImportFile::kNeutral));
  session.vSetGeomFilePath(files.PathOf(ImportFile::kGeometry));
  session.vSetTraceFilePath(files.PathOf(ImportFile::kTraces));
  session.ParseGivenFiles();
}

std::string WhereStopped(const ImportReport& report) {
  for (const FileKind& kind : kFileKinds) {
    const FileReport& file = report.Of(kind.file);
    if (file.end == ReadingEnd::kStopped) return file.path + ":" + std::to_string(file.linesRead) + ": ";
  }
  return {};
}

/// Returns what Import returns.
std::string ReadWithSession(CPC_KESTRIN_GET& session, const ExportSet& files) {
  std::string stopped;
  {
    TerminalDialog dialog(files);
    dialog.Attach(session);
    try {
      Read(session, files);
    } catch (const CInvalidArgException&) {
      stopped =
          WhereStopped(session.GetReport()) + "import stopped: the line has too few values for its record";
    } catch (const std::exception& error) {
      stopped = WhereStopped(session.GetReport()) + "import stopped: " + error.what();
    }
    session.m_pStatusWnd = nullptr;
    session.SetProgressPtr(nullptr, nullptr, nullptr, nullptr);
  }
  for (const FileKind& kind : kFileKinds) {
    const FileReport& file = session.GetReport().Of(kind.file);
    if (file.end == ReadingEnd::kNotOpened) throw UsageError("cannot open \"" + file.path + '"');
  }
  return stopped;
}

}  // namespace

std::string Import(Imported& imported, const ExportSet& files, StrictReading strict) {
  if (!files.IsStrict()) return ReadWithSession(imported.session, files);
  ExportSet forSession = files;
  if (strict == StrictReading::kOnly) forSession.PathOf(ImportFile::kTraces).clear();
  std::string stopped = ReadWithSession(imported.session, forSession);
  if (!stopped.empty() && strict == StrictReading::kOnly) return stopped;
  imported.strictTraces = ReadStrictly(files.PathOf(ImportFile::kTraces));
  return stopped.empty() ? imported.strictTraces->stopped : stopped;
}

}  // namespace kestrin::tool
