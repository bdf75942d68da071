#pragma once

/// @file
/// What is measured: works, each of which makes something out of the same input.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace kestrin::bench {

/// What is counted in a model, to see that two works have built the same.
struct Tally {
  std::uint64_t records = 0;
  std::uint64_t characters = 0;  ///< of some of its texts
  double coordinates = 0.0;      ///< the sum of some of its numbers, in file order

  friend bool operator==(const Tally&, const Tally&) = default;
};

/// What a work has built. Destroying it destroys the model.
class Built {
 public:
  Built() = default;
  Built(const Built&) = delete;
  Built& operator=(const Built&) = delete;
  virtual ~Built() = default;

  [[nodiscard]] virtual Tally Count() const = 0;
};

/// What a work reads: a file, or the same bytes in memory.
struct Input {
  std::string path;
  std::string_view bytes;
};

/// Null for a work that builds nothing.
using Work = std::unique_ptr<Built> (*)(const Input& input);

}  // namespace kestrin::bench
