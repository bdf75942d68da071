#pragma once

/// @file
/// Finding things by their names.

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

namespace kestrin {

/// Names with an index each; of two that are equal the first counts. The texts stay the caller's and must
/// outlive the index.
///
/// It is a hash table that looks into a few slots only: names that find no room there, because there are many
/// of one hash, go to a map. So a file cannot make it slow by its choice of names.
class NameIndex {
 public:
  NameIndex() = default;
  /// With room for that many names.
  explicit NameIndex(std::size_t names);

  /// Adds a name unless it is there. Returns the index that counts, which is the given one for a new name.
  std::size_t Add(std::string_view name, std::size_t index);

  [[nodiscard]] std::optional<std::size_t> Find(std::string_view name) const;

 private:
  /// Small, so that many are in the processor's cache.
  struct Slot {
    const char* text = nullptr;
    std::uint32_t size = 0;
    std::uint32_t index = kFree;

    [[nodiscard]] std::string_view Name() const { return {text, size}; }
  };

  [[nodiscard]] std::size_t PlaceOf(std::string_view name) const;
  void Grow();

  static constexpr std::uint32_t kFree = static_cast<std::uint32_t>(-1);
  static constexpr std::size_t kNoPlace = static_cast<std::size_t>(-1);
  static constexpr std::size_t kProbes = 8;

  std::vector<Slot> slots_;  // a power of two, at most half of them taken
  std::size_t taken_ = 0;
  std::map<std::string_view, std::size_t> crowded_;
};

}  // namespace kestrin
