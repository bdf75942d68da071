#include "fuzz/checks.h"

#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>
#include <sanitizer/allocator_interface.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace kestrin::fuzz {

void Require(bool isKept, const char* promise) {
  if (isKept) return;
  std::fprintf(stderr, "broken promise: %s\n", promise);
  std::abort();
}

std::vector<std::string_view> LinesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t feed = text.find('\n');
    std::string_view line = text.substr(0, feed);
    if (feed != std::string_view::npos && line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(line);
    text.remove_prefix(feed == std::string_view::npos ? text.size() : feed + 1);
  }
  return lines;
}

std::string ValidJson(const std::function<void(tool::JsonWriter&)>& write) {
  std::string document;
  const auto append = [](void* cookie, const char* bytes, std::size_t size) {
    static_cast<std::string*>(cookie)->append(bytes, size);
    return static_cast<ssize_t>(size);
  };
  std::FILE* stream =
      fopencookie(&document, "w", {.read = nullptr, .write = append, .seek = nullptr, .close = nullptr});
  {
    const auto json = std::make_unique<tool::JsonWriter>(stream);  // with a buffer too large for the stack
    write(*json);
    json->Finish();
  }
  std::fclose(stream);
  rapidjson::MemoryStream text(document.data(), document.size());
  rapidjson::Reader reader;
  rapidjson::BaseReaderHandler<> anything;
  const auto result = reader.Parse<rapidjson::kParseValidateEncodingFlag>(text, anything);
  if (result.IsError()) std::fprintf(stderr, "%s\n", rapidjson::GetParseError_En(result.Code()));
  Require(!result.IsError(), "the dump is valid JSON");
  return document;
}

void RequireReason(const LineOutcome& outcome) {
  if (outcome.GetKind() != LineOutcome::Kind::kSkipped) return;
  Require(outcome.Code() < SkipCode::kCount && !outcome.Reason().empty(), "a skipped line has a reason");
}

void RequireCounts(const FileReport& report, std::string_view text, bool raised) {
  const auto lineCount = static_cast<std::int64_t>(LinesOf(text).size());
  Require(raised ? report.linesRead <= lineCount : report.linesRead == lineCount, "every line is read");
  Require(report.Imported() + report.Ignored() + report.Skipped() + (raised ? 1 : 0) == report.linesRead,
          "every line is imported, ignored or skipped, or raises an exception");
  std::int64_t skipped = 0;
  for (std::size_t i = 0; i < kSkipCodes.size(); ++i) {
    const SkippedLines& lines = report.Skipped(static_cast<SkipCode>(i));
    skipped += lines.count;
    Require(static_cast<std::int64_t>(lines.first.size()) ==
                std::min<std::int64_t>(lines.count, FileReport::kKeptLines),
            "the report keeps the first lines of every code");
    for (const SkippedLine& line : lines.first) {
      Require(line.number >= 1 && line.number <= report.linesRead && !line.reason.empty() &&
                  line.text.size() <= FileReport::kKeptBytes,
              "a skipped line has a number, a reason and its first bytes");
    }
  }
  Require(skipped == report.Skipped(), "the counts of the codes add up to the number of skipped lines");
}

MemoryMeter::MemoryMeter() : before_(__sanitizer_get_current_allocated_bytes()), most_(before_) {}

void MemoryMeter::Look() { most_ = std::max(most_, __sanitizer_get_current_allocated_bytes()); }

void MemoryMeter::RequireInProportion(std::size_t inputSize) const {
  constexpr std::size_t kPerByte = 200;
  constexpr std::size_t kFixed = std::size_t{2} << 20;
  const std::size_t taken = most_ - before_;
  const bool isKept = taken <= kPerByte * inputSize + kFixed;
  if (!isKept) std::fprintf(stderr, "%zu bytes for an input of %zu\n", taken, inputSize);
  Require(isKept, "memory is proportional to the input");
}

}  // namespace kestrin::fuzz
