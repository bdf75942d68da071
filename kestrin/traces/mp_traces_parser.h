#pragma once

/// @file
/// The strict reader of the Traces file as hosts know it.

#include "kestrin/platform/export.h"
#include "kestrin/platform/string.h"

namespace kestrin {

class CMTraces;

/// Reads a Traces file by its grammar: checks the order of its records and the form of every value, which the
/// import session does not.
///
/// Use: construct with a path; Parse; GetTraces and GetError; Close.
///
/// All objects share one state, the process's: the open file, the model, the error text, the line. So one
/// parse may run at a time, and its results hold until the next. Syntax errors are also written to standard
/// error.
class KESTRIN_EXPORT MPTracesParser {
 public:
  MPTracesParser();
  /// As SetFile.
  MPTracesParser(char* file);
  ///@{
  /// There is nothing to copy: all objects share one state.
  MPTracesParser(const MPTracesParser&);
  MPTracesParser(MPTracesParser&&) noexcept;
  MPTracesParser& operator=(const MPTracesParser&);
  MPTracesParser& operator=(MPTracesParser&&) noexcept;
  ///@}

  /// Opens a file, closing the one that is open. Where none can be opened, Parse reads standard input.
  void SetFile(char* file);

  /// Reads on from where the file stands, to its end unless there is an error that nothing can be resumed
  /// behind. Returns 0 when the file was accepted, perhaps with errors that the parser resumed behind; 1
  /// when it was not; 2 when memory or a limit of the parser ended the parse.
  int Parse();

  /// The model of the last parse that came as far as the units line, null when none did. It belongs to the
  /// caller: nothing here deletes it, nor does a later parse that makes another. After a parse that did not
  /// come so far it is still an earlier one's, which its owner may have deleted; a parse that gave 0 has made
  /// its own.
  CMTraces* GetTraces();
  /// The error that the last parse reported last, empty when it reported none.
  CString GetError();
  /// How many line ends the last parse has read.
  int GetCurrentLineNum();

  /// Closes the file, if one is open.
  void Close();
};

}  // namespace kestrin
