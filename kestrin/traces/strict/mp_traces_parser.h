#pragma once

/// @file
/// The strict reader of the Traces file as hosts know it.

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"

namespace kestrin {

class CMTraces;

/// Reads a Traces file by its grammar: checks the order of its records and the form of every value, which the
/// import session does not.
///
/// Use: construct with a path; Parse; GetTraces and GetError; Close.
///
/// All objects share one state, the process's: the input and how far it was read, the model, the error text,
/// the line. So one parse may run at a time, and its results hold until the next. A syntax error is also
/// written to standard error, at the moment when it is noticed.
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

  /// Opens a file, closing the one that is open. The next parse begins at its beginning, whatever the last
  /// one left unread. Where none can be opened, Parse reads standard input.
  void SetFile(char* file);

  /// Reads the input to its end, unless there is an error that nothing can be resumed after. Then the next
  /// parse goes on after the token that is wrong there: it makes a model of its own and counts lines from
  /// there. Returns 0 when the input was accepted, perhaps with errors that the parser resumed after; 1 when
  /// it was not; 2 when memory or a limit of the parser ended the parse, and what was read ahead is lost.
  ///
  /// Standard input is read line by line: an error is noticed when its line has come, and the lines after one
  /// that ended the parse are still there to be read. It keeps its place while a file is open.
  int Parse();

  /// The model of the last parse that came as far as the units line, whatever it returned; null when none
  /// did. It belongs to the caller: nothing here deletes it, nor does a later parse that makes another. After
  /// a parse that did not come so far it is still an earlier one's, which its owner may have deleted; a parse
  /// that returned 0 has made its own.
  CMTraces* GetTraces();
  /// The error that the last parse reported last, empty when it reported none.
  CString GetError();
  /// How many line ends the last parse has read.
  int GetCurrentLineNum();

  /// Closes the file, if one is open.
  void Close();
};

}  // namespace kestrin
