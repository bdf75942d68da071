#include "bench/report/goals.h"

#include "bench/works.h"

namespace kestrin::bench {
namespace {

std::optional<double> TimeRatio(const Results& results, std::string_view kind, std::string_view work,
                                std::string_view other) {
  const auto dividend = results.Medians(kind, work);
  const auto divisor = results.Medians(kind, other);
  if (!dividend || !divisor) return std::nullopt;
  return dividend->seconds / divisor->seconds;
}

template <const std::string_view& WORK>
std::optional<double> DestructionShare(const Results& results, std::string_view kind) {
  const auto cost = results.Medians(kind, WORK);
  if (!cost) return std::nullopt;
  return cost->destructionSeconds / cost->seconds;
}

template <const std::string_view& WORK>
std::optional<double> DestructionShareWithRest(const Results& results, std::string_view kind) {
  const auto cost = results.Medians(kind, WORK);
  if (!cost) return std::nullopt;
  return (cost->destructionSeconds + cost->leftSeconds) / cost->seconds;
}

std::optional<double> Allocations(const Results& results, std::string_view kind) {
  const auto cost = results.Medians(kind, kReader);
  if (!cost) return std::nullopt;
  return 1000.0 * static_cast<double>(cost->allocations) / static_cast<double>(results.SizeOf(kind).lines);
}

std::optional<double> Peak(const Results& results, std::string_view kind) {
  const auto cost = results.Medians(kind, kReader);
  if (!cost) return std::nullopt;
  return static_cast<double>(cost->peakBytes) / static_cast<double>(results.SizeOf(kind).bytes);
}

constexpr std::string_view kToFields = "reader ÷ fields";
constexpr std::string_view kCToReader = "plain C ÷ reader";
constexpr std::string_view kCppToReader = "plain C++ ÷ reader";
constexpr std::string_view kStrictToReader = "strict reader ÷ reader";
constexpr std::string_view kDestroying = "destroying the model ÷ building it";
constexpr std::string_view kDestroyingAll = "the same, with what is left to the heap";
constexpr std::string_view kAllocations = "allocations per 1,000 lines";
constexpr std::string_view kPeak = "peak memory ÷ file";

constexpr Goal kGoals[] = {
    {"traces", kToFields, &ReaderToFields, Bound::kAtMost, 1.2},
    {"traces", kCToReader, &PlainCToReader, Bound::kAtLeast, 3.5},
    {"traces", kCppToReader, &PlainCppToReader, Bound::kAtLeast, 9.0},
    {"traces", kStrictToReader, &StrictReaderToReader, Bound::kAtMost, 2.0},
    {"traces", kDestroying, &DestructionShare<kReader>, Bound::kAtMost, 0.25},
    {"traces", kDestroyingAll, &DestructionShareWithRest<kReader>, Bound::kAtMost, 0.25},
    {"traces", kAllocations, &Allocations, Bound::kAtMost, 1050.0},
    {"traces", kPeak, &Peak, Bound::kAtMost, 2.5},
    {"geometry", kToFields, &ReaderToFields, Bound::kAtMost, 1.3},
    {"geometry", kCToReader, &PlainCToReader, Bound::kAtLeast, 3.0},
    {"geometry", kCppToReader, &PlainCppToReader, Bound::kAtLeast, 5.0},
    {"geometry", kDestroying, &DestructionShare<kReader>, Bound::kAtMost, 0.25},
    {"geometry", kDestroyingAll, &DestructionShareWithRest<kReader>, Bound::kAtMost, 0.25},
    {"geometry", kPeak, &Peak, Bound::kAtMost, 1.5},
    {"neutral", kToFields, &ReaderToFields, Bound::kAtMost, 1.0},
    {"neutral", kCToReader, &PlainCToReader, Bound::kAtLeast, 1.3},
    {"neutral", kCppToReader, &PlainCppToReader, Bound::kAtLeast, 4.0},
    {"neutral", kDestroying, &DestructionShare<kReader>, Bound::kAtMost, 0.25},
    {"neutral", kDestroyingAll, &DestructionShareWithRest<kReader>, Bound::kAtMost, 0.25},
    {"neutral", kPeak, &Peak, Bound::kAtMost, 1.5},
    {kBoard, kDestroying, &DestructionShare<kImport>, Bound::kAtMost, 0.25},
    {kBoard, kDestroyingAll, &DestructionShareWithRest<kImport>, Bound::kAtMost, 0.25},
};

}  // namespace

std::optional<double> ReaderToNewlines(const Results& results, std::string_view kind) {
  return TimeRatio(results, kind, kReaderFromMemory, kNewlines);
}
std::optional<double> ReaderToFields(const Results& results, std::string_view kind) {
  return TimeRatio(results, kind, kReaderFromMemory, kFields);
}
std::optional<double> ReaderInUsedHeapToFields(const Results& results, std::string_view kind) {
  return TimeRatio(results, kind, kReaderInUsedHeap, kFields);
}
std::optional<double> PlainCToReader(const Results& results, std::string_view kind) {
  return TimeRatio(results, kind, kPlainC, kReader);
}
std::optional<double> PlainCppToReader(const Results& results, std::string_view kind) {
  return TimeRatio(results, kind, kPlainCpp, kReader);
}
std::optional<double> StrictReaderToReader(const Results& results, std::string_view kind) {
  return TimeRatio(results, kind, kStrictReader, kReaderFromMemory);
}

std::span<const Goal> AllGoals() { return kGoals; }

}  // namespace kestrin::bench
