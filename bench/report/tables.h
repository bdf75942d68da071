#pragma once

/// @file
/// Printing the results as tables in Markdown.

#include <ostream>

#include "bench/inputs.h"
#include "bench/report/medians.h"

namespace kestrin::bench {

/// Prints the date, the processor, the compiler and the sizes of the inputs.
void WriteConditions(std::ostream& out, const Inputs& inputs);

/// Prints the figures of every work.
void WriteFigures(std::ostream& out, const Medians& medians);

/// Prints every goal beside the measured value.
void WriteGoals(std::ostream& out, const Medians& medians);

}  // namespace kestrin::bench
