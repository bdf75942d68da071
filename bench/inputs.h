#pragma once

/// @file
/// What the works read, generated.

#include <cstdint>
#include <list>

#include "bench/measuring/work.h"
#include "support/temporary_folder.h"

namespace kestrin::bench {

/// A file of every kind and the four files of a board, each of the given size, in a folder that goes with
/// them.
class Inputs {
 public:
  explicit Inputs(std::uint64_t size);

  /// They stay where they are.
  [[nodiscard]] const std::list<Input>& All() const { return inputs_; }

 private:
  test::TemporaryFolder folder_;
  std::list<Input> inputs_;
};

}  // namespace kestrin::bench
