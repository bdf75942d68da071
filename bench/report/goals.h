#pragma once

/// @file
/// The performance goals of the readers.

#include "bench/report/medians.h"
#include "bench/works.h"

namespace kestrin::bench {

struct Term {
  std::string_view work;
  const char* figure;
};

/// A goal for one kind of input: a bound on a figure, or on the quotient of two.
struct Goal {
  std::string_view kind;
  const char* text;
  Term dividend;
  std::optional<Term> divisor;
  const char* bound;
};

inline constexpr Term kReading{kReader, kTime};
inline constexpr Term kReadingFromMemory{kReaderFromMemory, kTime};

inline constexpr Goal kGoals[] = {
    {"traces", "reader ÷ fields", kReadingFromMemory, Term{kFields, kTime}, "≤ 1.20"},
    {"traces", "plain C ÷ reader", {kPlainC, kTime}, kReading, "≥ 3.50"},
    {"traces", "strict reader ÷ reader", {kStrictReader, kTime}, kReadingFromMemory, "≤ 2.00"},
    {"traces", "destroying the model ÷ building it", {kReader, kDestroying}, kReading, "≤ 0.25"},
    {"traces", kPeak, {kReader, kPeak}, std::nullopt, "≤ 2.50"},
    {"geometry", "reader ÷ fields", kReadingFromMemory, Term{kFields, kTime}, "≤ 1.30"},
    {"geometry", "plain C ÷ reader", {kPlainC, kTime}, kReading, "≥ 3.00"},
    {"geometry", "destroying the model ÷ building it", {kReader, kDestroying}, kReading, "≤ 0.25"},
    {"geometry", kPeak, {kReader, kPeak}, std::nullopt, "≤ 1.50"},
    {"neutral", "reader ÷ fields", kReadingFromMemory, Term{kFields, kTime}, "≤ 1.00"},
    {"neutral", "destroying the model ÷ building it", {kReader, kDestroying}, kReading, "≤ 0.25"},
    {"neutral", kPeak, {kReader, kPeak}, std::nullopt, "≤ 1.50"},
    {kBoard, "import and ReadBoard ÷ import", {kImportAndBoard, kTime}, Term{kImport, kTime}, "≤ 1.50"},
    {kBoard,
     "memory of import and ReadBoard ÷ that of import",
     {kImportAndBoard, kPeak},
     Term{kImport, kPeak},
     "≤ 2.00"},
    {kBoard, "destroying the model ÷ building it", {kImport, kDestroying}, Term{kImport, kTime}, "≤ 0.25"},
};

}  // namespace kestrin::bench
