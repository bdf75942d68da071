#pragma once

/// @file
/// The loop that feeds the lines of a file to a reader. No other code deals with files, progress and
/// messages.

#include <chrono>

#include "kestrin/framework/stdio_file.h"
#include "kestrin/framework/string.h"
#include "kestrin/session/dialog.h"
#include "kestrin/session/import_report.h"
#include "kestrin/session/line_count.h"
#include "kestrin/windowing/message_pump.h"

namespace kestrin {

/// What to read, and how.
struct FileReading {
  CString path;
  const CProgressCtrl* bar = nullptr;
  bool pumpsMessages = false;  // between lines, even without a bar
  bool disablesBar = false;    // after each move
};

/// Adds its own lifetime to a duration.
class Stopwatch {
 public:
  explicit Stopwatch(std::chrono::nanoseconds& elapsed) : elapsed_(elapsed) {}
  Stopwatch(const Stopwatch&) = delete;
  Stopwatch& operator=(const Stopwatch&) = delete;
  ~Stopwatch() { elapsed_ += std::chrono::steady_clock::now() - start_; }

 private:
  std::chrono::nanoseconds& elapsed_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

/// Feeds every line of a file to the reader and reports what became of it. A file that cannot be opened is
/// treated as having no lines. Exceptions of the reader, of the file and of the host's windows pass through.
template <class Reader>
void ReadLines(const FileReading& reading, Reader& reader, FileReport& report) {
  report = FileReport();
  report.end = ReadingEnd::kStopped;
  const Stopwatch stopwatch(report.duration);
  report.path = reading.path.View();
  ProgressDisplay progress(reading.bar, reading.disablesBar);
  if (progress.IsShown()) progress.SetLineCount(CountLines(reading.path));
  CStdioFile file;
  if (file.Open(reading.path) == 0) {
    report.end = ReadingEnd::kNotOpened;
    return;
  }
  MessagePump pump;
  while (const auto line = file.ReadLine()) {
    ++report.linesRead;
    if (reading.pumpsMessages) pump.BeforeLine();
    progress.LineRead(report.linesRead);
    report.CountLine(reader.ReadLine(*line), *line);
  }
  report.end = ReadingEnd::kComplete;
}

}  // namespace kestrin
