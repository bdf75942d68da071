#pragma once

/// @file
/// The import session: reads an export set into models.

#include <array>
#include <memory>

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"
#include "kestrin/framework/string_array.h"
#include "kestrin/session/import_report.h"
#include "kestrin/windowing/window.h"

namespace kestrin {

class CMComps;
class CMGeom;
class CMNetList;
class CMTech;
class CMTraces;
class SourceLines;
struct FileReading;

/// Reads the four files of an export set into models, whose roots it owns.
///
///     #include <iostream>
///     #include <kestrin/kestrin.h>
///
///     int main() {
///       kestrin::CPC_KESTRIN_GET session;
///       session.vSetNeutralFilePath("board.neutral");
///       session.ParseGivenFiles();
///       for (const auto* net : *session.GetNetList()->m_pNets) std::cout << net->m_sName << '\n';
///     }
///
/// To show progress, set m_pStatusWnd and call SetProgressPtr before you parse. To learn what became of each
/// line, call GetReport afterwards.
///
/// How long are the models valid? A pointer from a getter is valid until its file is read again, or until the
/// session is destroyed or assigned to. A copy of the session shares the roots and keeps them alive, whatever
/// happens to the original.
///
/// What happens on bad input? A file that cannot be opened leaves an empty root. A line that cannot be read
/// is skipped. The report tells you of both.
///
/// Which exceptions can a parse raise? CInvalidArgException at a line of the Traces file that has too few
/// values for its record, CFileException on a read error, std::bad_alloc when memory runs out, and whatever
/// your message handlers and windows throw. What was read before stays in the roots, and you can use the
/// session again.
///
/// When are messages dispatched? Between the lines of the Geometry and Traces files: before every line, and
/// on Windows before the first line and then whenever the system's tick count has changed, because a look at
/// the system's queue takes longer than a line.
///
/// May threads share a session? Use a session on one thread at a time. Several threads may read its models as
/// long as none changes them, and different sessions may work on different threads at once. During a parse,
/// messages of your windows are dispatched on the calling thread: their handlers must not use the session or
/// its models until vParse returns.
class KESTRIN_EXPORT CPC_KESTRIN_GET {
  // The owners of the roots, which copies share. Members are destroyed from last to first, and hosts expect
  // the roots to be deleted in the order Geometry, components, nets, Traces, Tech.
  std::shared_ptr<CMTech> tech_;
  std::shared_ptr<CMTraces> traces_;
  std::shared_ptr<CMNetList> netList_;
  std::shared_ptr<CMComps> comps_;
  std::shared_ptr<CMGeom> geom_;

 public:
  CPC_KESTRIN_GET();
  CPC_KESTRIN_GET(const CPC_KESTRIN_GET&);
  CPC_KESTRIN_GET& operator=(const CPC_KESTRIN_GET&);
  virtual ~CPC_KESTRIN_GET();

  ///@{
  /// Sets the path of a file for vParse and ParseGivenFiles. An empty path means no file.
  void vSetTechFilePath(CString path);
  void vSetNeutralFilePath(CString path);
  void vSetGeomFilePath(CString path);
  void vSetTraceFilePath(CString path);
  ///@}

  /// Sets the progress bars; any may be null. A bar's parent is the dialog that is refreshed; a bar without a
  /// parent is not moved. The host keeps the bars. It may destroy them during a parse: vParse and
  /// ParseGivenFiles then set the session's pointers to null.
  void SetProgressPtr(CProgressCtrl* geomProgress, CProgressCtrl* neutralProgress,
                      CProgressCtrl* traceProgress, CProgressCtrl* techProgress);

  /// Reads the files in the order Tech, Neutral, Geometry, Traces. The Tech path is optional. If the
  /// Geometry, Neutral or Traces path is empty, shows a message box about the first empty one, in this order,
  /// and reads nothing.
  void vParse();
  /// Like vParse, but reads only the files whose paths are set and requires none.
  void ParseGivenFiles();

  ///@{
  /// Reads one file and replaces its root; the Neutral file has two. vParse calls these.
  void TechFileParse(CString path);
  void NeutralFileParse(CString path);
  void GeomFileParse(CString path);
  void TraceFileParse(CString path);
  ///@}

  ///@{
  /// Returns a root; null if its file has not been read. The session owns it.
  [[nodiscard]] CMTech* GetTech() const;
  [[nodiscard]] CMComps* GetComps() const;
  [[nodiscard]] CMNetList* GetNetList() const;
  [[nodiscard]] CMGeom* GetGeom() const;
  [[nodiscard]] CMTraces* GetTraces() const;
  ///@}

  /// Whether the files that are parsed from now on keep the line of each record; false at first. That takes
  /// 8 bytes a record.
  void KeepSourceLines(bool keep);
  /// Which lines of a file made the records of its roots; null if they were not kept. The session owns the
  /// object, which is valid as long as the roots of the file are, also in copies of the session. Include
  /// kestrin/records/source_lines.h to use it.
  [[nodiscard]] const SourceLines* GetSourceLines(ImportFile file) const;

  /// What became of each line of the files that were read. The reference is valid as long as the session is.
  [[nodiscard]] const ImportReport& GetReport() const { return report_; }

  /// Returns m_sErrorMsg, which no reader sets. Use GetReport instead.
  [[nodiscard]] CString sGetErrorMsg() const;

  /// The number of line feeds in a file plus one, at most the largest int; 1 if the file cannot be opened.
  [[nodiscard]] int nGetFileLineCount(CString path) const;

  /// Appends the fields between the commas of a line: `A,"B,C",,D` has the fields `A`, `"B,C"` and `D`. A
  /// comma between double quotes does not separate; a quote after a backslash does not count. Quotes stay in
  /// the fields; empty fields are left out.
  void SeparateLineBasedonComma(CString line, CStringArray& fields) const;

  /// Appends the fields between the spaces of a line: `A 'B C'  D` has the fields `A`, `'B C'` and `D`. A
  /// space between apostrophes does not separate. Apostrophes stay in the fields; empty fields are left out.
  /// Begins after the start index; -1 is the whole line. A start index less than -1 raises
  /// CInvalidArgException.
  void SeparateLineBasedonSpace(CString line, int start, CStringArray& fields) const;

  /// Appends the groups in parentheses of a line: `(A,"B C") (D, E)` has the fields `(A,"B C")` and `(D,E)`.
  /// Spaces outside double quotes are removed. A group that does not begin with its opening parenthesis is
  /// dropped: `x(A) (B)` has the field `(B)` only. Text after the last group is a field. The start index is
  /// that of SeparateLineBasedonSpace.
  void SeparateLineForCompProperty(CString line, int start, CStringArray& fields) const;

  CWnd* m_pStatusWnd = nullptr;  ///< the host's status window: its text says which file is being read
  ///@{
  /// A root; null if its file has not been read. Setting the pointer does not change what the session owns.
  CMGeom* m_pGeom = nullptr;
  CMComps* m_pComps = nullptr;
  CMNetList* m_pNetList = nullptr;
  CMTraces* m_pTraces = nullptr;
  CMTech* m_pTech = nullptr;
  ///@}

  ///@{
  /// A progress bar of the host, or null.
  CProgressCtrl* m_pGeomProgress = nullptr;
  CProgressCtrl* m_pNeutralProgress = nullptr;
  CProgressCtrl* m_pTraceProgress = nullptr;
  CProgressCtrl* m_pTechProgress = nullptr;
  ///@}

  ///@{
  /// The path of a file for vParse and ParseGivenFiles; empty for none.
  CString m_sGeomFilePath;
  CString m_sNeutralFilePath;
  CString m_sTraceFilePath;
  CString m_sTechFilePath;
  ///@}

  CString m_sErrorMsg;  ///< never set by a reader

 private:
  [[nodiscard]] bool HasMandatoryPaths() const;
  void RefreshHost() const;
  template <class Reader>
  void Read(ImportFile file, const FileReading& reading, Reader& reader);

  ImportReport report_;
  bool keepsSourceLines_ = false;
  std::array<std::shared_ptr<const SourceLines>, kImportFileCount> sourceLines_;
};

}  // namespace kestrin
