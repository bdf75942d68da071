#include "python/read.h"

#include <stdio.h>

#include <cerrno>
#include <cstring>
#include <utility>

#include "kestrin/base/file_handle.h"
#include "python/errors.h"
#include "python/interruptible.h"
#include "python/signal_dialog.h"
#include "tool/usage_error.h"

namespace kestrin::python {
namespace {

FileHandle StreamOf(std::string_view bytes) {
  // The stream is only read, so it does not change the bytes.
  FileHandle stream(fmemopen(const_cast<char*>(bytes.data()), bytes.size(), "rb"));
  if (stream == nullptr) throw tool::UsageError(std::string("cannot read bytes: ") + std::strerror(errno));
  return stream;
}

/// Where a reader stopped.
StoppedError Stopped(const std::string& message, const tool::Imported& imported) {
  for (const tool::FileKind& kind : tool::kFileKinds) {
    const FileReport& report = imported.ReportOf(kind.file);
    if (report.end == ReadingEnd::kStopped)
      return {message, imported.files.PathOf(kind.file), report.linesRead};
  }
  const StrictParse& parse = imported.strictTraces->parse;
  const std::int64_t line = parse.errors.empty() ? parse.line + 1 : tool::LineOf(parse.errors.back());
  return {message, imported.files.PathOf(ImportFile::kTraces), line};
}

/// Runs an action without Python's lock. If a signal handler raises an error of Python meanwhile, raises
/// that.
template <class Action>
auto Unlocked(Action action) {
  try {
    const py::gil_scoped_release unlocked;
    return action();
  } catch (const Interrupted&) {
    throw py::error_already_set();
  } catch (...) {  // perhaps because a signal interrupted the reading of a pipe
    if (PyErr_CheckSignals() != 0) throw py::error_already_set();
    throw;
  }
}

}  // namespace

tool::ExportSet Sources::Set() const {
  tool::ExportSet set;
  set.EncodingWord() = encoding;
  set.Strict() = isStrict;
  for (const tool::FileKind& kind : tool::kFileKinds) {
    if (const auto path = files.find(tool::WordOf(kind.file)); path != files.end())
      set.PathOf(kind.file) = path->second;
    if (const auto content = bytes.find(tool::WordOf(kind.file)); content != bytes.end())
      set.AddStream(kind.file, StreamOf(content->second).get());
  }
  set.Add(paths);
  return set;
}

void ImportUnlocked(tool::Imported& imported, const Sources& sources, tool::StrictReading strict) {
  const std::string stopped = Unlocked([&] {
    SignalDialog dialog;
    return tool::Import(imported, dialog, strict);
  });
  if (!stopped.empty() && !sources.isPartial) throw Stopped(stopped, imported);
}

std::shared_ptr<ReadSet> Read(const Sources& sources, const BoardOptions& options) {
  auto set = std::make_shared<ReadSet>(sources.Set());
  set->imported.session.KeepSourceLines(true);
  Unlocked([&] {
    set->imported.files.Open();
    set->stamps = FileStamps(set->imported.files);  // before reading, since a file may change meanwhile
  });
  ImportUnlocked(set->imported, sources, tool::StrictReading::kAlso);
  set->encoding = tool::GetEncoding();
  for (const ImportFile file : set->imported.FilesRead())
    set->files.push_back(tool::ReadFileOf(set->imported.ReportOf(file), file));
  RunInterruptibly([=] { set->board = tool::BoardOf(set->imported, options); });
  if (set->imported.files.HasCopies()) {  // open files, of which a process may have few
    static_cast<void>(FindingsOf(set));
    set->imported.files.CloseCopies();
  }
  return set;
}

}  // namespace kestrin::python
