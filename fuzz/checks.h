#pragma once

/// @file
/// What the fuzz targets hold the readers to. A promise that is broken ends the process, and the fuzzer keeps
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
#include "tool/model_json.h"

namespace kestrin::fuzz {

/// Ends the process unless the promise is kept.
void Require(bool isKept, const char* promise);

[[nodiscard]] inline std::string_view TextOf(const std::uint8_t* bytes, std::size_t size) {
  return {reinterpret_cast<const char*>(bytes), size};
}

/// The lines of a text as the session's readers get them.
[[nodiscard]] std::vector<std::string_view> LinesOf(std::string_view text);

/// What is written as JSON; requires that it is a valid document.
[[nodiscard]] std::string ValidJson(const std::function<void(tool::JsonWriter&)>& write);

/// Models as JSON, whole.
template <class... Models>
[[nodiscard]] std::string Dump(const Models&... models) {
  return ValidJson([&](tool::JsonWriter& json) {
    json.StartArray();
    (WriteJson(json, models), ...);
    json.EndArray();
  });
}

/// Requires that a line that is skipped is skipped for a reason.
void RequireReason(const LineOutcome& outcome);

/// Requires that every line of the text is counted once, up to one that raised, and every skipped line under
/// its code.
void RequireCounts(const FileReport& report, std::string_view text, bool raised);

/// How much memory was taken since this was made. Models, report and scratch may take so many bytes for every
/// byte of the input: the largest record of a shortest line is what sets the number.
class MemoryMeter {
 public:
  MemoryMeter();
  void Look();
  /// Requires that no look saw more than inputs of this size may take.
  void RequireInProportion(std::size_t inputSize) const;

 private:
  std::size_t before_;
  std::size_t most_;
};

/// What a reader made of a text.
struct Outcome {
  std::string models;              ///< as JSON
  std::vector<LineOutcome> lines;  ///< of all lines that raised nothing
};

/// Feeds a text to a reader. Every line has memory of its own, which goes before the next: a reader that
/// looks beyond a line's ends, or back at it, is caught. SUBJECT has the reader and its models: `reader`,
/// `Dump()` and kRaises, whether a line may raise CInvalidArgException.
template <class SUBJECT>
[[nodiscard]] Outcome Read(std::string_view text) {
  const std::vector<std::string_view> lines = LinesOf(text);
  Outcome outcome;
  outcome.lines.reserve(lines.size());
  SUBJECT subject;
  MemoryMeter memory;
  for (const std::string_view line : lines) {
    const std::unique_ptr<char[]> copy(new char[line.size()]);
    line.copy(copy.get(), line.size());
    try {
      outcome.lines.push_back(subject.reader.ReadLine({copy.get(), line.size()}));
      RequireReason(outcome.lines.back());
    } catch (const CInvalidArgException&) {
      Require(SUBJECT::kRaises, "lines of this file raise nothing");
    }
    memory.Look();
  }
  memory.RequireInProportion(text.size());
  outcome.models = subject.Dump();
  return outcome;
}

/// The whole body of a line reader's target.
template <class SUBJECT>
int CheckReader(const std::uint8_t* bytes, std::size_t size) {
  const std::string_view text = TextOf(bytes, size);
  const Outcome first = Read<SUBJECT>(text);
  const Outcome second = Read<SUBJECT>(text);
  Require(first.models == second.models && first.lines == second.lines, "the same lines give the same");
  return 0;
}

}  // namespace kestrin::fuzz
