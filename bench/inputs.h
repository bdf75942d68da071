#pragma once

/// @file
/// The generated inputs of the benchmarks.

#include <cstdint>
#include <list>

#include "bench/measuring/work.h"
#include "support/temporary_folder.h"

namespace kestrin::bench {

/// A file of each kind, and the four files of a board. Each file, and the board as a whole, has the given
/// size. They are in a temporary folder, which is removed with the object.
class Inputs {
 public:
  explicit Inputs(std::uint64_t size);

  /// The references are valid as long as the object is.
  [[nodiscard]] const std::list<Input>& All() const { return inputs_; }

 private:
  test::TemporaryFolder folder_;
  std::list<Input> inputs_;
};

}  // namespace kestrin::bench
