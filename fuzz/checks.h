#pragma once

/// @file
/// The promises that the fuzz targets check. A broken promise aborts the process, so that the fuzzer keeps
/// the input.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "kestrin/framework/exceptions.h"
#include "kestrin/session/import_report.h"
#include "kestrin/text/line_outcome.h"
#include "tool/json_writer.h"
#include "tool/model_document.h"

namespace kestrin::fuzz {

/// Prints the promise and aborts the process unless isKept.
void Require(bool isKept, const char* promise);

[[nodiscard]] inline std::string_view TextOf(const std::uint8_t* bytes, std::size_t size) {
  return {reinterpret_cast<const char*>(bytes), size};
}

/// Splits a text into lines as the session does.
[[nodiscard]] std::vector<std::string_view> LinesOf(std::string_view text);

/// What is written as JSON; requires that it is a valid document.
[[nodiscard]] std::string ValidJson(const std::function<void(tool::JsonWriter&)>& write);

/// Models as JSON, whole.
template <class... Models>
[[nodiscard]] std::string Dump(const Models&... models) {
  return ValidJson([&](tool::JsonWriter& json) {
    json.StartArray();
    (Write(json, models), ...);
    json.EndArray();
  });
}

/// Requires that a skipped line has a reason.
void RequireReason(const LineOutcome& outcome);

/// Requires that the report counts every line of the text once, and every skipped line by its code. If a line
/// raised an exception, the counts end there.
void RequireCounts(const FileReport& report, std::string_view text, bool raised);

/// Measures the memory allocated since it was constructed. The limit is proportional to the input; it is set
/// by the shortest line that makes the largest record.
class MemoryMeter {
 public:
  MemoryMeter();
  /// Takes a measurement.
  void Look();
  /// Requires that no measurement exceeded the limit for inputs of this size.
  void RequireInProportion(std::size_t inputSize) const;

 private:
  std::size_t before_;
  std::size_t most_;
};

/// The result of feeding a text to a reader.
struct Outcome {
  std::string models;              ///< as JSON
  std::vector<LineOutcome> lines;  ///< the outcomes of all lines that did not raise
};

/// Feeds a text to a reader. Each line is in its own memory, which is freed before the next: so the sanitizer
/// catches a reader that reads beyond a line or keeps a view of it.
///
/// Subject has the reader and its models: `reader`, `Dump()`, and `kRaises`, whether a line may raise
/// CInvalidArgException.
template <class Subject>
[[nodiscard]] Outcome Read(std::string_view text) {
  const std::vector<std::string_view> lines = LinesOf(text);
  Outcome outcome;
  outcome.lines.reserve(lines.size());
  Subject subject;
  MemoryMeter memory;
  for (const std::string_view line : lines) {
    const std::unique_ptr<char[]> copy(new char[line.size()]);
    line.copy(copy.get(), line.size());
    try {
      outcome.lines.push_back(subject.reader.ReadLine({copy.get(), line.size()}));
      RequireReason(outcome.lines.back());
    } catch (const CInvalidArgException&) {
      Require(Subject::kRaises, "no line of this file raises an exception");
    }
    memory.Look();
  }
  memory.RequireInProportion(text.size());
  outcome.models = subject.Dump();
  return outcome;
}

/// The body of a line reader's fuzz target.
template <class Subject>
int CheckReader(const std::uint8_t* bytes, std::size_t size) {
  const std::string_view text = TextOf(bytes, size);
  const Outcome first = Read<Subject>(text);
  const Outcome second = Read<Subject>(text);
  Require(first.models == second.models && first.lines == second.lines,
          "the same lines make the same models and outcomes");
  return 0;
}

}  // namespace kestrin::fuzz
