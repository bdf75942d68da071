// Imports four files with one session, with and without a host that posts messages meanwhile.

#include <sys/mman.h>
#include <unistd.h>

#include <array>

#include "fuzz/four_files.h"
#include "fuzz/subjects.h"
#include "kestrin/session/import_session.h"
#include "kestrin/windowing/messages.h"
#include "kestrin/windowing/window.h"

namespace kestrin::fuzz {
namespace {

/// A file in memory, with a path.
class MemoryFile {
 public:
  explicit MemoryFile(std::string_view content) : descriptor_(memfd_create("import", 0)) {
    Require(write(descriptor_, content.data(), content.size()) == static_cast<ssize_t>(content.size()),
            "a file can be created in memory");
  }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;
  ~MemoryFile() { close(descriptor_); }

  [[nodiscard]] CString Path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

 private:
  int descriptor_;
};

/// Posts a message to itself whenever it is refreshed, and two for each message that it receives, up to a
/// limit.
class BusyDialog : public CWnd {
 public:
  BOOL UpdateData(BOOL /*saveAndValidate*/) override {
    PostMessageA(GetSafeHwnd(), WM_USER + 1, 0, 0);
    return TRUE;
  }
  LRESULT WindowProc(UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/) override {
    for (int i = 0; i < 2 && budget_ > 0; ++i, --budget_) PostMessageA(GetSafeHwnd(), message, 0, 0);
    return 0;
  }

 private:
  int budget_ = 200;
};

struct Import {
  std::array<std::string, kImportFileCount> models;
  std::size_t tracesLines = 0;
  bool raised = false;
};

/// The beginning of a text with this many lines.
std::string_view FirstLines(std::string_view text, std::size_t count) {
  const std::vector<std::string_view> lines = LinesOf(text);
  return count < lines.size() ? text.substr(0, static_cast<std::size_t>(lines[count].data() - text.data()))
                              : text;
}

Import Run(const FourFiles& files, bool withDialog) {
  const std::array<MemoryFile, kImportFileCount> stored{
      MemoryFile(files.texts[0]), MemoryFile(files.texts[1]), MemoryFile(files.texts[2]),
      MemoryFile(files.texts[3])};
  BusyDialog dialog;
  CProgressCtrl bars[kImportFileCount] = {CProgressCtrl(&dialog), CProgressCtrl(&dialog),
                                          CProgressCtrl(&dialog), CProgressCtrl(&dialog)};
  MemoryMeter memory;
  CPC_KESTRIN_GET session;
  if (withDialog) session.SetProgressPtr(&bars[2], &bars[1], &bars[3], &bars[0]);
  session.vSetTechFilePath(stored[0].Path());
  session.vSetNeutralFilePath(stored[1].Path());
  session.vSetGeomFilePath(stored[2].Path());
  session.vSetTraceFilePath(stored[3].Path());
  Import import;
  try {
    session.vParse();
  } catch (const CInvalidArgException&) {
    import.raised = true;
  }
  memory.Look();
  std::size_t size = 0;
  for (std::size_t i = 0; i < kImportFileCount; ++i) {
    const FileReport& report = session.GetReport().Of(static_cast<ImportFile>(i));
    const bool stopped = import.raised && i + 1 == kImportFileCount;
    Require(report.end == (stopped ? ReadingEnd::kStopped : ReadingEnd::kComplete), "every file is read");
    RequireCounts(report, files.texts[i], stopped);
    size += files.texts[i].size();
  }
  memory.RequireInProportion(size);
  import.tracesLines = static_cast<std::size_t>(session.GetReport().Of(ImportFile::kTraces).linesRead);
  import.models = {Dump(*session.GetTech()), Dump(*session.GetComps(), *session.GetNetList()),
                   Dump(*session.GetGeom()), Dump(*session.GetTraces())};
  return import;
}

}  // namespace
}  // namespace kestrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace kestrin::fuzz;
  const FourFiles files(TextOf(bytes, size));
  const Import busy = Run(files, true);
  const Import quiet = Run(files, false);
  Require(busy.raised == quiet.raised && busy.models == quiet.models,
          "an import with a dialog makes the same models");
  Require(quiet.models[0] == Read<TechSubject>(files.texts[0]).models &&
              quiet.models[1] == Read<NeutralSubject>(files.texts[1]).models &&
              quiet.models[2] == Read<GeometrySubject>(files.texts[2]).models &&
              quiet.models[3] == Read<TracesSubject>(FirstLines(files.texts[3], quiet.tracesLines)).models,
          "a session makes the same models as its readers alone");
  return 0;
}
