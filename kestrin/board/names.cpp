#include "kestrin/board/names.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <string>
#include <utility>

#include "kestrin/board/board.h"

namespace kestrin {

std::string_view ComparedName(std::string_view name) {
  const auto isPadding = [](char c) { return c == ' ' || c == '\''; };
  while (!name.empty() && isPadding(name.front())) name.remove_prefix(1);
  while (!name.empty() && isPadding(name.back())) name.remove_suffix(1);
  return name;
}

std::string ComparedReference(std::string_view reference) {
  std::string compared(ComparedName(reference));
  std::replace(compared.begin(), compared.end(), ' ', '_');
  return compared;
}

NameIndex::NameIndex(std::size_t names) : slots_(std::bit_ceil(2 * names + 2)) {}

std::size_t NameIndex::Add(std::string_view name, std::size_t index) {
  if (2 * taken_ >= slots_.size()) Grow();
  const std::size_t place = PlaceOf(name);
  if (place == kNoPlace) return crowded_.emplace(name, index).first->second;
  Slot& slot = slots_[place];
  if (slot.index != kFree) return slot.index;
  slot = {.text = name.data(),
          .size = static_cast<std::uint32_t>(name.size()),
          .index = static_cast<std::uint32_t>(index)};
  ++taken_;
  return index;
}

std::optional<std::size_t> NameIndex::Find(std::string_view name) const {
  if (slots_.empty()) return std::nullopt;
  if (const std::size_t place = PlaceOf(name); place != kNoPlace) {
    const Slot& slot = slots_[place];
    return slot.index == kFree ? std::nullopt : std::optional<std::size_t>(slot.index);
  }
  const auto found = crowded_.find(name);
  return found == crowded_.end() ? std::nullopt : std::optional(found->second);
}

/// The slot that has the name or would take it; kNoPlace if other names have all slots that it may take.
std::size_t NameIndex::PlaceOf(std::string_view name) const {
  const std::size_t hash = std::hash<std::string_view>()(name);
  for (std::size_t probe = 0; probe < kProbes; ++probe) {
    const std::size_t place = (hash + probe) & (slots_.size() - 1);
    if (slots_[place].index == kFree || slots_[place].Name() == name) return place;
  }
  return kNoPlace;
}

void NameIndex::Grow() {
  std::vector<Slot> slots(std::max<std::size_t>(16, 2 * slots_.size()));
  slots.swap(slots_);
  const auto crowded = std::exchange(crowded_, {});
  taken_ = 0;
  for (const Slot& slot : slots) {
    if (slot.index != kFree) Add(slot.Name(), slot.index);
  }
  for (const auto& [name, index] : crowded) Add(name, index);
}

}  // namespace kestrin
