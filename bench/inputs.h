#pragma once

/// @file
/// What the works read, generated.

#include <cstdint>
#include <list>
#include <string>

#include "bench/measuring/work.h"
#include "bench/report/results.h"
#include "support/generators/generators.h"
#include "support/temporary_folder.h"

namespace kestrin::bench {

/// One input. The bytes are in memory of exactly their size that is never let go, so that the heap stays as a
/// fresh program has it.
struct Prepared {
  std::string kind;
  std::string bytes;
  Input input;
  InputSize size;
};

/// All inputs of a run, in a folder that goes with it.
class Inputs {
 public:
  /// A file of a kind, also in memory.
  void AddFile(const test::GeneratedFile& file, std::uint64_t size);
  /// A file that is not held in memory too; its size is part of the kind's name.
  void AddLargeFile(const test::GeneratedFile& file, std::uint64_t megabytes);
  /// The four files of a board.
  void AddBoard(std::uint64_t size);

  /// They stay where they are.
  [[nodiscard]] const std::list<Prepared>& All() const { return inputs_; }

 private:
  Prepared& Add(const test::GeneratedFile& file, const std::string& kind, std::uint64_t size);

  test::TemporaryFolder folder_;
  std::list<Prepared> inputs_;
};

}  // namespace kestrin::bench
