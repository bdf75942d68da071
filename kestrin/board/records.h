#pragma once

/// @file
/// Walking the lists of the models.

#include <cstddef>

namespace kestrin {

/// Hands every record of a list with its index to an action. A host may have left null slots.
template <class List, class Action>
void ForEachRecord(const List& list, Action action) {
  std::size_t index = 0;
  for (const auto* record : *list) {
    if (record != nullptr) action(*record, index);
    ++index;
  }
}

}  // namespace kestrin
