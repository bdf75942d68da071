#pragma once

/// @file
/// An array of record pointers that can search, move and delete records.

#include <algorithm>
#include <cstdint>
#include <type_traits>
#include <unordered_map>
#include <unordered_set>

#include "kestrin/framework/array.h"

namespace kestrin {

/// An array of pointers to records. Pointers are compared, never the records.
///
///     CExPtrArray<Layer*> layers;
///     layers.Add(new Layer);
///     Layer* top = layers.GetAt(0);
///     layers.Remove(top);   // the record is yours again
///     layers.GetAt(0);      // null: the array is empty
///
/// The array does not own its records: only Delete, DeleteAt, DeleteLastElement and DeleteAll delete them. If
/// you use these, put each record into one slot of one array only.
///
/// An index outside the array or a pointer that is not in it is no error: you get null, -1 or false. The
/// exceptions are MoveElementTo, DeleteAt and the operations inherited from CArray, such as operator[]: they
/// raise CInvalidArgException for an index outside the array.
///
/// The second template parameter exists because CArray has one. It must equal the first.
template <class Pointer, class ArgPointer = Pointer>
class CExPtrArray : public CArray<Pointer, ArgPointer> {
  static_assert(std::is_pointer_v<Pointer> && std::is_same_v<Pointer, ArgPointer>);
  using Base = CArray<Pointer, Pointer>;

 public:
  /// Removes every null slot.
  virtual void RemoveNullElement();
  /// Removes every slot whose pointer already appears in an earlier slot.
  virtual void RemoveDuplicatedElements();

  /// The element at the index; null outside the array.
  [[nodiscard]] Pointer GetAt(std::int64_t index) const {
    return IsInside(index) ? this->m_pData[index] : nullptr;
  }
  /// Replaces an element without deleting it. Does nothing outside the array.
  void SetAt(std::int64_t index, Pointer element) {
    if (IsInside(index)) this->m_pData[index] = element;
  }
  /// The last element; null if the array is empty.
  [[nodiscard]] Pointer GetLastElement() const { return GetAt(GetLastIndex()); }
  /// The index of the last element; -1 if the array is empty.
  [[nodiscard]] std::int64_t GetLastIndex() const { return this->GetUpperBound(); }
  /// Whether there is an element at the index.
  [[nodiscard]] bool IsValidIndex(const std::int32_t& index) const { return IsInside(index); }

  /// The index of the first slot with this pointer; -1 if there is none.
  [[nodiscard]] std::int32_t FindIndex(Pointer element) const {
    const auto* found = std::find(this->begin(), this->end(), element);
    return found == this->end() ? -1 : static_cast<std::int32_t>(found - this->begin());
  }
  /// Whether any slot holds this pointer.
  [[nodiscard]] bool Exists(Pointer element) const { return FindIndex(element) != -1; }
  /// Appends the pointer and returns its index; returns -1 if it is already in the array.
  std::int64_t Add_if_only_do_not_exists(Pointer element) {
    return Exists(element) ? -1 : this->Add(element);
  }
  /// Whether both arrays hold the same pointers in the same order.
  [[nodiscard]] bool IsElementEqual(const Base& other) const {
    return std::equal(this->begin(), this->end(), other.begin(), other.end());
  }

  /// Removes the first slot with this pointer; returns false if there is none. Does not delete the record.
  bool Remove(Pointer element);
  /// Removes the last slot and returns its pointer, null if the array is empty. Does not delete the record.
  Pointer RemoveLastElement();
  /// For every slot of the other array, removes one slot with the same pointer from this one, if there is
  /// any.
  void Subtract(const Base& other);
  /// Reverses the order of the slots.
  void Reverse() { std::reverse(this->begin(), this->end()); }
  /// Moves the slots first to last, both included, to the end of the destination. Returns false and does
  /// nothing if last is less than first. Raises CInvalidArgException for an index outside this array; both
  /// arrays are then unchanged.
  bool MoveElementTo(Base& destination, const std::int32_t& first, const std::int32_t& last);

  // A destructor may look at the array: its record's slot is removed only after it. Where several records are
  // deleted, the slots of those before it are null until all are gone.

  /// Deletes the record and removes its first slot; returns false if there is none.
  bool Delete(Pointer element);
  /// Deletes count records from the index on, in order, and removes their slots; does nothing if count is not
  /// positive. Raises CInvalidArgException for an index outside the array. Also raises it if count reaches
  /// beyond the end: the records up to the end are then deleted.
  void DeleteAt(std::int32_t index, std::int32_t count = 1);
  /// Deletes the last record and removes its slot; returns false if the array is empty.
  bool DeleteLastElement();
  /// Deletes every record, in order, and frees the array's memory.
  void DeleteAll();

 private:
  void DeleteRecords(std::int64_t first, std::int64_t count);
  [[nodiscard]] bool IsInside(std::int64_t index) const { return index >= 0 && index < this->m_nSize; }
  void CutAt(const Pointer* newEnd) { this->RemoveAt(newEnd - this->begin(), this->end() - newEnd); }
};

template <class Pointer, class ArgPointer>
void CExPtrArray<Pointer, ArgPointer>::RemoveNullElement() {
  CutAt(std::remove(this->begin(), this->end(), nullptr));
}

template <class Pointer, class ArgPointer>
void CExPtrArray<Pointer, ArgPointer>::RemoveDuplicatedElements() {
  std::unordered_set<Pointer> seen;
  CutAt(std::remove_if(this->begin(), this->end(),
                       [&](Pointer element) { return !seen.insert(element).second; }));
}

template <class Pointer, class ArgPointer>
bool CExPtrArray<Pointer, ArgPointer>::Remove(Pointer element) {
  const std::int64_t index = FindIndex(element);
  if (index < 0) return false;
  this->RemoveAt(index);
  return true;
}

template <class Pointer, class ArgPointer>
Pointer CExPtrArray<Pointer, ArgPointer>::RemoveLastElement() {
  if (this->IsEmpty()) return nullptr;
  Pointer last = GetLastElement();
  this->RemoveAt(GetLastIndex());
  return last;
}

template <class Pointer, class ArgPointer>
void CExPtrArray<Pointer, ArgPointer>::Subtract(const Base& other) {
  std::unordered_map<Pointer, std::int64_t> left;
  for (Pointer element : other) ++left[element];
  CutAt(std::remove_if(this->begin(), this->end(), [&](Pointer element) {
    const auto found = left.find(element);
    return found != left.end() && found->second-- > 0;
  }));
}

template <class Pointer, class ArgPointer>
bool CExPtrArray<Pointer, ArgPointer>::MoveElementTo(Base& destination, const std::int32_t& first,
                                                     const std::int32_t& last) {
  if (last < first) return false;
  if (!IsInside(first) || !IsInside(last)) AfxThrowInvalidArgException();
  const std::int64_t start = first;
  const std::int64_t count = std::int64_t{last} - first + 1;
  for (std::int64_t i = start; i < start + count; ++i) destination.Add(this->m_pData[i]);
  this->RemoveAt(start, count);
  return true;
}

template <class Pointer, class ArgPointer>
bool CExPtrArray<Pointer, ArgPointer>::Delete(Pointer element) {
  const std::int32_t index = FindIndex(element);
  if (index < 0) return false;
  DeleteAt(index);
  return true;
}

template <class Pointer, class ArgPointer>
void CExPtrArray<Pointer, ArgPointer>::DeleteAt(std::int32_t index, std::int32_t count) {
  if (count <= 0) return;
  if (!IsInside(index)) AfxThrowInvalidArgException();
  const std::int64_t inside = std::min<std::int64_t>(count, this->m_nSize - index);
  DeleteRecords(index, inside);
  this->RemoveAt(index, inside);
  if (inside < count) AfxThrowInvalidArgException();
}

template <class Pointer, class ArgPointer>
bool CExPtrArray<Pointer, ArgPointer>::DeleteLastElement() {
  if (this->IsEmpty()) return false;
  const std::int64_t last = GetLastIndex();
  DeleteRecords(last, 1);
  this->RemoveAt(last);
  return true;
}

template <class Pointer, class ArgPointer>
void CExPtrArray<Pointer, ArgPointer>::DeleteAll() {
  DeleteRecords(0, this->m_nSize);
  this->SetSize(0);
}

/// Leaves the slots null. Every access is checked, as a destructor may even shorten the array.
template <class Pointer, class ArgPointer>
void CExPtrArray<Pointer, ArgPointer>::DeleteRecords(std::int64_t first, std::int64_t count) {
  for (std::int64_t i = first; i < first + count; ++i) {
    delete GetAt(i);  // NOLINT(cppcoreguidelines-owning-memory): a delete operation owns its records
    SetAt(i, nullptr);
  }
}

}  // namespace kestrin
