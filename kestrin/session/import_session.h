#pragma once

/// @file
/// The import session: the class through which a host imports an export set.

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

/// Reads the four files of an export set into the model roots that it owns.
///
/// Use: construct; set the paths, and a status window and progress bars if wanted; vParse; walk the roots.
/// All of it happens on one thread. Messages of the host are dispatched under way: their handlers must not
/// touch the session or its models until vParse returns. Different sessions may work in different threads.
///
/// Roots: a reader replaces the root of its file. The pointer from a getter is valid until the file is read
/// again or the session goes or is assigned to, and longer while a copy of the session shares the root:
/// copies share roots, and every one of them may be destroyed.
///
/// Errors: a file that cannot be opened leaves an empty root; lines that cannot be read are skipped;
/// GetReport tells of both. Exceptions of the framework (CInvalidArgException at a line of the Traces file
/// that is too short for its record, CFileException on a read error, memory exhaustion) and of the host's own
/// message handlers pass through; what was read before them stays in the roots.
class KESTRIN_EXPORT CPC_KESTRIN_GET {
  // The owners of the roots, which copies share. Members are destroyed last first.
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
  /// Set the path of a file for vParse.
  void vSetTechFilePath(CString path);
  void vSetNeutralFilePath(CString path);
  void vSetGeomFilePath(CString path);
  void vSetTraceFilePath(CString path);
  ///@}

  /// The bars stay the host's. Any may be null, and vParse sets those to null that the host destroys under
  /// way. The parent of a bar is what is refreshed.
  void SetProgressPtr(CProgressCtrl* geomProgress, CProgressCtrl* neutralProgress,
                      CProgressCtrl* traceProgress, CProgressCtrl* techProgress);

  /// Reads the files in the order Tech, Neutral, Geometry, Traces. Without a Geometry, Neutral or Traces path
  /// it shows a warning box for the first that is missing and reads nothing; the Tech path is optional.
  void vParse();
  /// Reads those of the files whose paths are set as vParse does, without asking for any.
  void ParseGivenFiles();

  ///@{
  /// Read one file each, replacing its roots; vParse calls them.
  void TechFileParse(CString path);
  void NeutralFileParse(CString path);
  void GeomFileParse(CString path);
  void TraceFileParse(CString path);
  ///@}

  ///@{
  /// The roots, null before their file was first read. They stay the session's.
  [[nodiscard]] CMTech* GetTech() const;
  [[nodiscard]] CMComps* GetComps() const;
  [[nodiscard]] CMNetList* GetNetList() const;
  [[nodiscard]] CMGeom* GetGeom() const;
  [[nodiscard]] CMTraces* GetTraces() const;
  ///@}

  /// What became of the lines of the files that were read.
  [[nodiscard]] const ImportReport& GetReport() const { return report_; }

  /// Empty: no reader sets an error text.
  [[nodiscard]] CString sGetErrorMsg() const;

  /// One more than the line feeds in the file; 1 when it cannot be opened.
  [[nodiscard]] int nGetFileLineCount(CString path) const;

  ///@{
  /// Cut a line into fields, which are appended to the array. Commas between double quotes do not separate,
  /// nor do spaces between apostrophes; quotes stay in the fields, and no field is empty. The scan begins
  /// behind the start index, -1 for the whole line; a start index below -1 raises CInvalidArgException.
  void SeparateLineBasedonComma(CString line, CStringArray& fields) const;
  void SeparateLineBasedonSpace(CString line, int start, CStringArray& fields) const;
  ///@}

  /// Groups in parentheses, without the spaces outside double quotes. Text that a closing parenthesis ends is
  /// dropped unless it begins with an opening one; text behind the last group is a field.
  void SeparateLineForCompProperty(CString line, int start, CStringArray& fields) const;

  CWnd* m_pStatusWnd = nullptr;  ///< the host's; its text says which file is being read
  ///@{
  /// A root, null before its file was first read. The session stays its owner whatever a host sets these to.
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
  /// A path for vParse.
  CString m_sGeomFilePath;
  CString m_sNeutralFilePath;
  CString m_sTraceFilePath;
  CString m_sTechFilePath;
  ///@}

  CString m_sErrorMsg;  ///< always empty

 private:
  [[nodiscard]] bool HasMandatoryPaths() const;
  void RefreshHost() const;

  ImportReport report_;
};

}  // namespace kestrin
