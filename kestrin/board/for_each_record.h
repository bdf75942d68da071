#pragma once

/// @file
/// Walking the lists of the models.

#include "kestrin/board/indexes.h"

namespace kestrin {

/// Calls an action with every record of a list and its index. Skips null slots, which hosts may have left.
template <class List, class Action>
void ForEachRecord(const List& list, Action action) {
  Index index = 0;
  static_cast<void>(ToIndex(static_cast<std::size_t>(list->GetSize())));
  for (const auto* record : *list) {
    if (record != nullptr) action(*record, index);
    ++index;
  }
}

/// The number of records of a model's list; 0 if the model is null.
template <class Model, class List>
[[nodiscard]] std::size_t SizeOf(const Model* model, List* Model::*list) {
  return model == nullptr ? 0 : static_cast<std::size_t>((model->*list)->GetSize());
}

}  // namespace kestrin
