#pragma once

/// @file
/// The works that are measured: different programs for the same input.

#include <bit>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace kestrin::bench {

/// A summary of a model, to check that two works build the same model.
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

/// The result of a work. Owns the model.
class Built {
 public:
  Built() = default;
  Built(const Built&) = delete;
  Built& operator=(const Built&) = delete;
  virtual ~Built() = default;

  /// Returns zeros if there is no other work to compare with.
  [[nodiscard]] virtual Tally Count() const { return {}; }
};

/// The input of a work: a file together with its contents, or the folder of a board.
struct Input {
  std::string kind;
  std::string path;
  std::string bytes;
  std::uint64_t size = 0;
  std::uint64_t lines = 0;
};

/// A function that reads the input. Returns null if it builds no model.
using Work = std::unique_ptr<Built> (*)(const Input& input);

}  // namespace kestrin::bench
