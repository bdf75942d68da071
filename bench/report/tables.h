#pragma once

/// @file
/// The results as tables in Markdown.

#include <ostream>

#include "bench/report/results.h"

namespace kestrin::bench {

/// The day, the processor and the compiler.
void WriteCircumstances(std::ostream& out);

/// The sizes of what was read.
void WriteInputs(std::ostream& out, const Results& results);

/// Every work with its costs.
void WriteCosts(std::ostream& out, const Results& results);

/// The readers beside the yardsticks.
void WriteRatios(std::ostream& out, const Results& results);

/// Every goal with what was measured and whether it is reached.
void WriteGoals(std::ostream& out, const Results& results);

/// The reader at every size of a file, beside the smallest.
void WriteGrowth(std::ostream& out, const Results& results);

}  // namespace kestrin::bench
