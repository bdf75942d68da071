#pragma once

// Large export files that look like real ones: the same bytes for the same size on every machine.

#include <cstdint>
#include <iosfwd>

namespace kestrin::bench {

/// Writes a Neutral file of about this many bytes.
void GenerateNeutral(std::ostream& out, std::uint64_t size);

}  // namespace kestrin::bench
