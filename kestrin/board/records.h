#pragma once

/// @file
/// Walking the lists of the models.

#include <cstddef>

namespace kestrin {

/// Calls an action with every record of a list and its index. Skips null slots, which hosts may have left.
template <class List, class Action>
void ForEachRecord(const List& list, Action action) {
  std::size_t index = 0;
  for (const auto* record : *list) {
    if (record != nullptr) action(*record, index);
    ++index;
  }
}

}  // namespace kestrin
