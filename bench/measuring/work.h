#pragma once

/// @file
/// What is measured: works, each of which makes something of the same input.

#include <bit>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace kestrin::bench {

/// What is counted in a model, to see that two works have built the same.
struct Tally {
  void AddNumber(double number) { numbers += std::bit_cast<std::uint64_t>(number); }
  void AddRecord(std::span<const double> itsNumbers) {
    ++records;
    for (const double number : itsNumbers) AddNumber(number);
  }

  std::uint64_t records = 0;
  std::uint64_t numbers = 0;  ///< the sum of their bits, which is the same in any order

  friend bool operator==(const Tally&, const Tally&) = default;
};

/// What a work has built. Destroying it destroys the model.
class Built {
 public:
  Built() = default;
  Built(const Built&) = delete;
  Built& operator=(const Built&) = delete;
  virtual ~Built() = default;

  /// Nothing where there is no other work to compare with.
  [[nodiscard]] virtual Tally Count() const { return {}; }
};

/// What a work reads: a file and the same bytes in memory, or the folder of a board.
struct Input {
  std::string kind;
  std::string path;
  std::string bytes;
  std::uint64_t size = 0;
  std::uint64_t lines = 0;
};

/// Null for a work that builds nothing.
using Work = std::unique_ptr<Built> (*)(const Input& input);

}  // namespace kestrin::bench
