#pragma once

/// @file
/// The array of record pointers with search, move and delete operations.

#include <algorithm>
#include <cstdint>
#include <type_traits>
#include <unordered_map>
#include <unordered_set>

#include "kestrin/framework/array.h"

namespace kestrin {

/// An array of pointers to records, compared by identity. It never deletes records by itself: only Delete,
/// DeleteAt, DeleteLastElement and DeleteAll do. A record stands in at most one slot of such an array and in
/// no other array that deletes it.
///
/// Unlike the framework's array it answers null, -1 or false to an index or a record that it does not have;
/// of its own operations only MoveElementTo and DeleteAt raise CInvalidArgException for indexes outside it.
/// The type that elements are handed over as may be named as it is for the framework's array: the pointer
/// too.
template <class POINTER, class ARG_POINTER = POINTER>
class CExPtrArray : public CArray<POINTER, ARG_POINTER> {
  static_assert(std::is_pointer_v<POINTER> && std::is_same_v<POINTER, ARG_POINTER>);
  using Base = CArray<POINTER, POINTER>;

 public:
  /// Removes every null slot.
  virtual void RemoveNullElement();
  /// Keeps the first slot of every pointer.
  virtual void RemoveDuplicatedElements();

  /// The element, null outside the array.
  [[nodiscard]] POINTER GetAt(std::int64_t index) const {
    return IsInside(index) ? this->m_pData[index] : nullptr;
  }
  /// Replaces an element without deleting it; outside the array nothing happens.
  void SetAt(std::int64_t index, POINTER element) {
    if (IsInside(index)) this->m_pData[index] = element;
  }
  /// Null when empty.
  [[nodiscard]] POINTER GetLastElement() const { return GetAt(GetLastIndex()); }
  /// -1 when empty.
  [[nodiscard]] std::int64_t GetLastIndex() const { return this->GetUpperBound(); }
  /// Whether there is an element at the index.
  [[nodiscard]] bool IsValidIndex(const std::int32_t& index) const { return IsInside(index); }

  /// The first slot of this pointer, or -1.
  [[nodiscard]] std::int32_t FindIndex(POINTER element) const {
    const auto* found = std::find(this->begin(), this->end(), element);
    return found == this->end() ? -1 : static_cast<std::int32_t>(found - this->begin());
  }
  /// Whether the pointer stands in some slot.
  [[nodiscard]] bool Exists(POINTER element) const { return FindIndex(element) != -1; }
  /// The new index, or -1 when the pointer is in the array already.
  std::int64_t Add_if_only_do_not_exists(POINTER element) {
    return Exists(element) ? -1 : this->Add(element);
  }
  /// Whether both have the same pointers in the same order.
  [[nodiscard]] bool IsElementEqual(const Base& other) const {
    return std::equal(this->begin(), this->end(), other.begin(), other.end());
  }

  /// Removes the first slot of this pointer; false when there is none.
  bool Remove(POINTER element);
  /// Removes the last slot and hands its record to the caller; null when empty.
  POINTER RemoveLastElement();
  /// Removes one slot for every slot of the other array that holds the same pointer.
  void Subtract(const Base& other);
  /// Turns the order of the slots round.
  void Reverse() { std::reverse(this->begin(), this->end()); }
  /// Moves the slots first to last to the end of the destination. False when last is below first; raises for
  /// indexes outside this array, and both arrays stay as they were.
  bool MoveElementTo(Base& destination, const std::int32_t& first, const std::int32_t& last);

  // A destructor may look at the array: its record's slot is removed only after it. Where several records are
  // deleted, the slots of those before it are null until all are gone.

  /// Deletes the record and removes its first slot; false when there is none.
  bool Delete(POINTER element);
  /// Deletes the records in a range, in order, and removes their slots. Raises once it has run beyond the
  /// end.
  void DeleteAt(std::int32_t index, std::int32_t count = 1);
  /// Deletes the last record and removes its slot; false when empty.
  bool DeleteLastElement();
  /// Deletes every record, in order, and releases the memory.
  void DeleteAll();

 private:
  void DeleteRecords(std::int64_t first, std::int64_t count);
  [[nodiscard]] bool IsInside(std::int64_t index) const { return index >= 0 && index < this->m_nSize; }
  void CutAt(const POINTER* newEnd) { this->RemoveAt(newEnd - this->begin(), this->end() - newEnd); }
};

template <class POINTER, class ARG_POINTER>
void CExPtrArray<POINTER, ARG_POINTER>::RemoveNullElement() {
  CutAt(std::remove(this->begin(), this->end(), nullptr));
}

template <class POINTER, class ARG_POINTER>
void CExPtrArray<POINTER, ARG_POINTER>::RemoveDuplicatedElements() {
  std::unordered_set<POINTER> seen;
  CutAt(std::remove_if(this->begin(), this->end(),
                       [&](POINTER element) { return !seen.insert(element).second; }));
}

template <class POINTER, class ARG_POINTER>
bool CExPtrArray<POINTER, ARG_POINTER>::Remove(POINTER element) {
  const std::int64_t index = FindIndex(element);
  if (index < 0) return false;
  this->RemoveAt(index);
  return true;
}

template <class POINTER, class ARG_POINTER>
POINTER CExPtrArray<POINTER, ARG_POINTER>::RemoveLastElement() {
  if (this->IsEmpty()) return nullptr;
  POINTER last = GetLastElement();
  this->RemoveAt(GetLastIndex());
  return last;
}

template <class POINTER, class ARG_POINTER>
void CExPtrArray<POINTER, ARG_POINTER>::Subtract(const Base& other) {
  std::unordered_map<POINTER, std::int64_t> left;
  for (POINTER element : other) ++left[element];
  CutAt(std::remove_if(this->begin(), this->end(), [&](POINTER element) {
    const auto found = left.find(element);
    return found != left.end() && found->second-- > 0;
  }));
}

template <class POINTER, class ARG_POINTER>
bool CExPtrArray<POINTER, ARG_POINTER>::MoveElementTo(Base& destination, const std::int32_t& first,
                                                      const std::int32_t& last) {
  if (last < first) return false;
  if (!IsInside(first) || !IsInside(last)) AfxThrowInvalidArgException();
  const std::int64_t start = first;
  const std::int64_t count = std::int64_t{last} - first + 1;
  for (std::int64_t i = start; i < start + count; ++i) destination.Add(this->m_pData[i]);
  this->RemoveAt(start, count);
  return true;
}

template <class POINTER, class ARG_POINTER>
bool CExPtrArray<POINTER, ARG_POINTER>::Delete(POINTER element) {
  const std::int32_t index = FindIndex(element);
  if (index < 0) return false;
  DeleteAt(index);
  return true;
}

template <class POINTER, class ARG_POINTER>
void CExPtrArray<POINTER, ARG_POINTER>::DeleteAt(std::int32_t index, std::int32_t count) {
  if (count <= 0) return;
  if (!IsInside(index)) AfxThrowInvalidArgException();
  const std::int64_t inside = std::min<std::int64_t>(count, this->m_nSize - index);
  DeleteRecords(index, inside);
  this->RemoveAt(index, inside);
  if (inside < count) AfxThrowInvalidArgException();
}

template <class POINTER, class ARG_POINTER>
bool CExPtrArray<POINTER, ARG_POINTER>::DeleteLastElement() {
  if (this->IsEmpty()) return false;
  const std::int64_t last = GetLastIndex();
  DeleteRecords(last, 1);
  this->RemoveAt(last);
  return true;
}

template <class POINTER, class ARG_POINTER>
void CExPtrArray<POINTER, ARG_POINTER>::DeleteAll() {
  DeleteRecords(0, this->m_nSize);
  this->SetSize(0);
}

/// Leaves the slots null. Every access is checked, as a destructor may even shorten the array.
template <class POINTER, class ARG_POINTER>
void CExPtrArray<POINTER, ARG_POINTER>::DeleteRecords(std::int64_t first, std::int64_t count) {
  for (std::int64_t i = first; i < first + count; ++i) {
    delete GetAt(i);  // NOLINT(cppcoreguidelines-owning-memory): a delete operation owns its records
    SetAt(i, nullptr);
  }
}

}  // namespace kestrin
