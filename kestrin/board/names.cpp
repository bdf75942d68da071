#include "kestrin/board/names.h"

#include <algorithm>
#include <bit>
#include <cstring>
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
  JoinBlanks(compared);
  return compared;
}

void JoinBlanks(std::string& reference) { std::replace(reference.begin(), reference.end(), ' ', '_'); }

namespace {

template <class Word>
[[nodiscard]] std::uint64_t WordAt(const char* text) {
  Word word = 0;
  std::memcpy(&word, text, sizeof word);
  return word;
}

}  // namespace

/// Reads whole words, the last of which may overlap the one before. Most names consist of one or two words.
std::size_t HashOf(std::string_view name) {
  std::uint64_t hash = name.size();
  const auto add = [&](std::uint64_t word) {
    hash = (hash ^ word) * 0x9e3779b97f4a7c15;
    hash ^= hash >> 32;
  };
  const char* const end = name.data() + name.size();
  if (name.size() >= sizeof(std::uint64_t)) {
    for (const char* at = name.data(); at < end - 8; at += 8) add(WordAt<std::uint64_t>(at));
    add(WordAt<std::uint64_t>(end - 8));
  } else if (name.size() >= sizeof(std::uint32_t)) {
    add(WordAt<std::uint32_t>(name.data()) << 32 | WordAt<std::uint32_t>(end - 4));
  } else {
    for (const char c : name) add(static_cast<unsigned char>(c));
  }
  return static_cast<std::size_t>(hash);
}

NameIndex::NameIndex(std::size_t names) : slots_(std::bit_ceil(2 * names + 2)) {}

Index NameIndex::Add(std::string_view name, Index index) {
  if (2 * taken_ >= slots_.size()) Grow();
  const std::size_t place = PlaceOf(name);
  if (place == kNoPlace) return crowded_.emplace(name, index).first->second;
  Slot& slot = slots_[place];
  if (slot.index != kFree) return slot.index;
  slot = {.text = name.data(), .size = static_cast<std::uint32_t>(name.size()), .index = index};
  ++taken_;
  return index;
}

std::optional<Index> NameIndex::Find(std::string_view name) const {
  if (slots_.empty()) return std::nullopt;
  if (const std::size_t place = PlaceOf(name); place != kNoPlace) {
    const Slot& slot = slots_[place];
    return slot.index == kFree ? std::nullopt : std::optional<Index>(slot.index);
  }
  const auto found = crowded_.find(name);
  return found == crowded_.end() ? std::nullopt : std::optional(found->second);
}

/// The slot that has the name or would take it; kNoPlace if other names have all slots that it may take.
std::size_t NameIndex::PlaceOf(std::string_view name) const {
  const std::size_t hash = HashOf(name);
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
