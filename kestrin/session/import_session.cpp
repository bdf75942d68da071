#include "kestrin/session/import_session.h"

#include <optional>

#include "kestrin/geometry/geometry_model.h"
#include "kestrin/geometry/geometry_reader.h"
#include "kestrin/neutral/neutral_reader.h"
#include "kestrin/records/line_notes.h"
#include "kestrin/session/dialog.h"
#include "kestrin/session/line_count.h"
#include "kestrin/session/reader_loop.h"
#include "kestrin/tech/tech_model.h"
#include "kestrin/tech/tech_reader.h"
#include "kestrin/traces/traces_model.h"
#include "kestrin/traces/traces_reader.h"
#include "kestrin/windowing/host_calls.h"

namespace kestrin {
namespace {

/// The host's windows during an import. Message handlers may destroy them: their pointers in the session are
/// then set to null.
class HostWindows {
 public:
  explicit HostWindows(CPC_KESTRIN_GET& session)
      : status_(session.m_pStatusWnd),
        bars_{WatchedWindow(session.m_pTechProgress), WatchedWindow(session.m_pNeutralProgress),
              WatchedWindow(session.m_pGeomProgress), WatchedWindow(session.m_pTraceProgress)} {}
  HostWindows(const HostWindows&) = delete;
  HostWindows& operator=(const HostWindows&) = delete;
  ~HostWindows() { ResetDestroyed(); }

  void ResetDestroyed() {
    status_.ResetIfDestroyed();
    for (auto& bar : bars_) bar.ResetIfDestroyed();
  }

 private:
  WatchedWindow<CWnd> status_;
  WatchedWindow<CProgressCtrl> bars_[4];
};

/// Replaces a root of the session and the public pointer to it.
template <class Root>
void Replace(std::shared_ptr<Root>& owner, Root*& pointer, const std::shared_ptr<Root>& root) {
  pointer = root.get();
  owner = root;
}

}  // namespace

CPC_KESTRIN_GET::CPC_KESTRIN_GET() = default;
CPC_KESTRIN_GET::CPC_KESTRIN_GET(const CPC_KESTRIN_GET&) = default;
CPC_KESTRIN_GET& CPC_KESTRIN_GET::operator=(const CPC_KESTRIN_GET&) = default;

CPC_KESTRIN_GET::~CPC_KESTRIN_GET() = default;

void CPC_KESTRIN_GET::vSetTechFilePath(CString path) { m_sTechFilePath = path; }
void CPC_KESTRIN_GET::vSetNeutralFilePath(CString path) { m_sNeutralFilePath = path; }
void CPC_KESTRIN_GET::vSetGeomFilePath(CString path) { m_sGeomFilePath = path; }
void CPC_KESTRIN_GET::vSetTraceFilePath(CString path) { m_sTraceFilePath = path; }

void CPC_KESTRIN_GET::SetProgressPtr(CProgressCtrl* geomProgress, CProgressCtrl* neutralProgress,
                                     CProgressCtrl* traceProgress, CProgressCtrl* techProgress) {
  m_pGeomProgress = geomProgress;
  m_pNeutralProgress = neutralProgress;
  m_pTraceProgress = traceProgress;
  m_pTechProgress = techProgress;
}

void CPC_KESTRIN_GET::vParse() {
  if (HasMandatoryPaths()) ParseGivenFiles();
}

void CPC_KESTRIN_GET::ParseGivenFiles() {
  struct Step {
    const CString& path;
    const char* status;
    void (CPC_KESTRIN_GET::*read)(CString);
  };
  const Step steps[] = {
      {m_sTechFilePath, "Parsing Tech File", &CPC_KESTRIN_GET::TechFileParse},
      {m_sNeutralFilePath, "Parsing Neutral File", &CPC_KESTRIN_GET::NeutralFileParse},
      {m_sGeomFilePath, "Parsing Geometry File", &CPC_KESTRIN_GET::GeomFileParse},
      {m_sTraceFilePath, "Parsing Trace File", &CPC_KESTRIN_GET::TraceFileParse},
  };
  HostWindows windows(*this);
  RefreshHost();
  for (const Step& step : steps) {
    if (step.path.IsEmpty()) continue;
    windows.ResetDestroyed();
    if (m_pStatusWnd != nullptr) m_pStatusWnd->SetWindowTextA(step.status);
    windows.ResetDestroyed();
    (this->*step.read)(step.path);
  }
}

bool CPC_KESTRIN_GET::HasMandatoryPaths() const {
  struct MandatoryPath {
    const CString& path;
    const char* warning;
  };
  const MandatoryPath paths[] = {
      {m_sGeomFilePath, "No definition for Geom file path"},
      {m_sNeutralFilePath, "No definition for Neutral file path"},
      {m_sTraceFilePath, "No definition for Traces file path"},
  };
  for (const MandatoryPath& mandatory : paths) {
    if (!mandatory.path.IsEmpty()) continue;
    ShowMessageBox(nullptr, mandatory.warning, "WARNING", MB_OK | MB_ICONWARNING);
    return false;
  }
  return true;
}

/// Pumps messages and refreshes the dialog once before the import keeps the thread busy.
void CPC_KESTRIN_GET::RefreshHost() const {
  for (const CProgressCtrl* bar : {m_pTechProgress, m_pNeutralProgress, m_pGeomProgress, m_pTraceProgress}) {
    if (bar == nullptr) continue;
    const HWND dialog = DialogOf(bar);
    if (dialog == nullptr) return;
    PumpMessages();
    RefreshDialog(dialog);
    return;
  }
}

/// Reads a file, whose roots have just been replaced.
template <class Reader>
void CPC_KESTRIN_GET::Read(ImportFile file, const FileReading& reading, Reader& reader) {
  FileReport& report = report_.Filled(file);
  auto& kept = sourceLines_[static_cast<std::size_t>(file)];
  kept.reset();
  std::optional<LineNotes> notes;
  if (keepsSourceLines_) {
    const auto lines = std::make_shared<SourceLines>();
    kept = lines;
    reader.NoteLines(notes.emplace(*lines, report.linesRead));
  }
  ReadLines(reading, reader, report);
}

void CPC_KESTRIN_GET::TechFileParse(CString path) {
  const auto tech = std::make_shared<CMTech>();
  TechReader reader(*tech);
  Replace(tech_, m_pTech, tech);
  Read(ImportFile::kTech, {.path = path, .bar = m_pTechProgress, .disablesBar = true}, reader);
}

void CPC_KESTRIN_GET::NeutralFileParse(CString path) {
  const auto components = std::make_shared<CMComps>();
  const auto nets = std::make_shared<CMNetList>();
  NeutralReader reader(*components, *nets, report_.boardSelection);
  Replace(comps_, m_pComps, components);
  Replace(netList_, m_pNetList, nets);
  Read(ImportFile::kNeutral, {.path = path, .bar = m_pNeutralProgress}, reader);
}

void CPC_KESTRIN_GET::GeomFileParse(CString path) {
  const auto geom = std::make_shared<CMGeom>();
  GeometryReader reader(*geom);
  Replace(geom_, m_pGeom, geom);
  Read(ImportFile::kGeometry, {.path = path, .bar = m_pGeomProgress, .pumpsMessages = true}, reader);
}

void CPC_KESTRIN_GET::TraceFileParse(CString path) {
  const auto traces = std::make_shared<CMTraces>();
  TracesReader reader(*traces);
  Replace(traces_, m_pTraces, traces);
  Read(ImportFile::kTraces, {.path = path, .bar = m_pTraceProgress, .pumpsMessages = true}, reader);
}

CMTech* CPC_KESTRIN_GET::GetTech() const { return m_pTech; }
CMComps* CPC_KESTRIN_GET::GetComps() const { return m_pComps; }
CMNetList* CPC_KESTRIN_GET::GetNetList() const { return m_pNetList; }
CMGeom* CPC_KESTRIN_GET::GetGeom() const { return m_pGeom; }
CMTraces* CPC_KESTRIN_GET::GetTraces() const { return m_pTraces; }

void CPC_KESTRIN_GET::KeepSourceLines(bool keep) { keepsSourceLines_ = keep; }

const SourceLines* CPC_KESTRIN_GET::GetSourceLines(ImportFile file) const {
  return sourceLines_[static_cast<std::size_t>(file)].get();
}

CString CPC_KESTRIN_GET::sGetErrorMsg() const { return m_sErrorMsg; }

int CPC_KESTRIN_GET::nGetFileLineCount(CString path) const { return CountLines(path); }

}  // namespace kestrin
