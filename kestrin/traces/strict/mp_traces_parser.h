#pragma once

/// @file
/// The strict reader of the Traces file as a class with shared state. New code should use ParseStrictly.

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"

namespace kestrin {

class CMTraces;

/// Reads a Traces file by its grammar: checks the order of the records and the form of every value, which the
/// import session does not.
///
///     char path[] = "board.traces";
///     MPTracesParser parser(path);
///     const bool isAccepted = parser.Parse() == 0;
///     std::unique_ptr<CMTraces> traces(parser.GetTraces());  // the caller's, accepted or not
///     parser.Close();
///
/// This is right for the first file of a process; see GetTraces for the next ones.
///
/// All objects of the class share the same state, for the whole process: the input and the position in it,
/// the model, the error text and the line. So only one parse may run at a time, and its results are valid
/// until the next. Each syntax error is also printed to standard error as soon as it is detected.
/// ParseStrictly has none of these restrictions.
class KESTRIN_EXPORT MPTracesParser {
 public:
  MPTracesParser();
  /// Calls SetFile.
  MPTracesParser(char* file);
  ///@{
  /// Copies nothing: all objects share the same state.
  MPTracesParser(const MPTracesParser&);
  MPTracesParser(MPTracesParser&&) noexcept;
  MPTracesParser& operator=(const MPTracesParser&);
  MPTracesParser& operator=(MPTracesParser&&) noexcept;
  ///@}

  /// Closes the open file, if any, and opens this one; the next parse starts at its beginning. If the file
  /// cannot be opened, the parser silently reads standard input.
  void SetFile(char* file);

  /// Reads the input up to its end or to an error that the parser cannot resume after.
  ///
  /// Returns 0 if the input was accepted, perhaps with syntax errors that the parser resumed after. Returns 1
  /// if the parser had to give up: the next Parse then continues after the wrong token, with a new model and
  /// a line count that starts there. Returns 2 if memory or a limit of the parser was exhausted: what was
  /// read ahead is lost.
  ///
  /// Standard input is read line by line. So an error is detected as soon as its line has arrived, and lines
  /// after the one at which the parser gave up are left to be read. Opening a file does not lose the position
  /// in standard input.
  int Parse();

  /// The model of the last parse that read a units line, whatever Parse returned; null if none did. You own
  /// it: nothing here deletes it. If the last parse stopped before the units line, this is still an earlier
  /// model, which you may have deleted already. A parse that returned 0 always has its own.
  CMTraces* GetTraces();
  /// The last error of the last parse; empty if there was none.
  CString GetError();
  /// The number of line ends that the last parse read, at most the largest int.
  int GetCurrentLineNum();

  /// Closes the open file, if any. Further parses read standard input.
  void Close();
};

}  // namespace kestrin
