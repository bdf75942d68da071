#pragma once

/// @file
/// The results as tables in Markdown.

#include <ostream>

#include "bench/inputs.h"
#include "bench/report/medians.h"

namespace kestrin::bench {

/// The day, the processor, the compiler and the sizes of what was read.
void WriteCircumstances(std::ostream& out, const Inputs& inputs);

/// Every work with its figures.
void WriteFigures(std::ostream& out, const Medians& medians);

/// Every goal with what was measured.
void WriteGoals(std::ostream& out, const Medians& medians);

}  // namespace kestrin::bench
