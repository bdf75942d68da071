#pragma once

/// @file
/// The framework's growable array. Parentheses around max keep the macro of windows.h away.

#include <algorithm>
#include <cstdint>
#include <limits>
#include <memory>
#include <new>
#include <utility>

#include "kestrin/framework/exceptions.h"
#include "kestrin/framework/object.h"
#include "kestrin/framework/slot_buffer.h"

namespace kestrin {

/// A growable array of values or pointers. ARG_TYPE is the type in which elements are passed in.
///
///     kestrin::CArray<double> widths;
///     widths.Add(0.2);
///     widths.SetAtGrow(3, 0.5);   // widths is now 0.2, 0, 0, 0.5
///     for (double width : widths) Use(width);
///
/// Indexes and sizes are 64-bit. An index outside the array raises CInvalidArgException and leaves the array
/// unchanged.
///
/// If copying an element throws, appending and growing leave the array unchanged. After any other operation
/// the array is valid, but some of its elements may have changed.
///
/// An array of pointers never deletes the objects that they point to. Removing elements, clearing the array
/// and destroying it only drop the pointers.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public CObject {
 public:
  CArray() = default;
  ~CArray() override { Release(); }

  /// The number of elements.
  [[nodiscard]] std::int64_t GetSize() const noexcept { return m_nSize; }
  /// The number of elements.
  [[nodiscard]] std::int64_t GetCount() const noexcept { return m_nSize; }
  /// The index of the last element; -1 if the array is empty.
  [[nodiscard]] std::int64_t GetUpperBound() const noexcept { return m_nSize - 1; }
  /// Whether the array has no elements.
  [[nodiscard]] bool IsEmpty() const noexcept { return m_nSize == 0; }

  /// Sets the number of elements; new elements are zero (null, empty). Size 0 frees the memory. A growBy of 0
  /// or more becomes the array's growth step; 0 means a step computed from the size.
  void SetSize(std::int64_t newSize, std::int64_t growBy = -1);
  /// Reduces the capacity to the number of elements.
  void FreeExtra();
  /// Removes all elements and frees the memory.
  void RemoveAll() { SetSize(0); }

  /// The elements, contiguous in memory; null if no memory is allocated. Valid until the array grows or
  /// shrinks.
  [[nodiscard]] TYPE* GetData() noexcept { return m_pData; }
  /// The same for a constant array.
  [[nodiscard]] const TYPE* GetData() const noexcept { return m_pData; }

  /// The element at the index. The reference is valid until the array grows or shrinks.
  [[nodiscard]] TYPE& ElementAt(std::int64_t index) { return m_pData[Checked(index)]; }
  /// The same for a constant array.
  [[nodiscard]] const TYPE& ElementAt(std::int64_t index) const { return m_pData[Checked(index)]; }
  [[nodiscard]] TYPE& GetAt(std::int64_t index) { return ElementAt(index); }                   ///< the same
  [[nodiscard]] const TYPE& GetAt(std::int64_t index) const { return ElementAt(index); }       ///< the same
  [[nodiscard]] TYPE& operator[](std::int64_t index) { return ElementAt(index); }              ///< the same
  [[nodiscard]] const TYPE& operator[](std::int64_t index) const { return ElementAt(index); }  ///< the same
  /// Replaces the element at the index.
  void SetAt(std::int64_t index, ARG_TYPE element) { ElementAt(index) = element; }

  /// Replaces the element at the index. If the index is beyond the end, the array first grows to it; elements
  /// in between are zero. A negative index raises CInvalidArgException.
  void SetAtGrow(std::int64_t index, ARG_TYPE element);
  /// Appends an element and returns its index.
  std::int64_t Add(ARG_TYPE element) { return Emplace(element); }
  /// Appends copies of another array's elements and returns the index of the first. Appending an array to
  /// itself raises CInvalidArgException.
  std::int64_t Append(const CArray& source);
  /// Makes this array a copy of another. Copying an array to itself does nothing.
  void Copy(const CArray& source);
  /// Exchanges the elements, memory and growth steps of two arrays.
  void Swap(CArray& other) noexcept;

  /// Inserts count copies of an element before the index. If the index is beyond the end, zero elements fill
  /// the gap. A count below 1 raises CInvalidArgException.
  void InsertAt(std::int64_t index, ARG_TYPE element, std::int64_t count = 1);
  /// Inserts copies of another array's elements, which may be this array. Null raises CInvalidArgException.
  void InsertAt(std::int64_t startIndex, const CArray* source);
  /// Removes count elements from the index on. Raises CInvalidArgException, and removes nothing, unless all
  /// of them are in the array.
  void RemoveAt(std::int64_t index, std::int64_t count = 1);

  /// An iterator for range-based loops.
  [[nodiscard]] TYPE* begin() noexcept { return m_pData; }
  [[nodiscard]] TYPE* end() noexcept { return m_pData + m_nSize; }              ///< the same
  [[nodiscard]] const TYPE* begin() const noexcept { return m_pData; }          ///< the same
  [[nodiscard]] const TYPE* end() const noexcept { return m_pData + m_nSize; }  ///< the same

 protected:
  /// Appends an element constructed from the arguments and returns its index.
  template <class... Arguments>
  std::int64_t Emplace(Arguments&&... arguments);

  TYPE* m_pData = nullptr;      ///< the elements; null if no memory is allocated
  std::int64_t m_nSize = 0;     ///< the number of elements
  std::int64_t m_nMaxSize = 0;  ///< the capacity; the allocation may be larger, see AllocatedSlots
  std::int64_t m_nGrowBy = 0;   ///< the growth step; 0 for a computed step

 private:
  [[nodiscard]] std::int64_t Checked(std::int64_t index) const {
    if (index < 0 || index >= m_nSize) AfxThrowInvalidArgException();
    return index;
  }
  [[nodiscard]] static std::int64_t SizeOf(std::int64_t first, std::int64_t more) {
    if (more > (std::numeric_limits<std::int64_t>::max)() - first) throw std::bad_alloc();
    return first + more;
  }
  void Reserve(std::int64_t newSize, std::int64_t growBy);
  void SetCapacity(std::int64_t capacity);
  void Release() noexcept;
  void OpenGap(std::int64_t index, std::int64_t count);
};

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetSize(std::int64_t newSize, std::int64_t growBy) {
  if (newSize < 0) AfxThrowInvalidArgException();
  const std::int64_t step = growBy < 0 ? m_nGrowBy : growBy;
  if (newSize == 0) {
    Release();
  } else {
    Reserve(newSize, step);
    if (newSize > m_nSize) {
      std::uninitialized_value_construct_n(m_pData + m_nSize, newSize - m_nSize);
    } else {
      std::destroy_n(m_pData + newSize, m_nSize - newSize);
    }
    m_nSize = newSize;
  }
  m_nGrowBy = step;
}

/// Makes the capacity at least newSize, by the framework's growth rule.
template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Reserve(std::int64_t newSize, std::int64_t growBy) {
  if (m_pData == nullptr) {
    SetCapacity((std::max)(newSize, growBy));
  } else if (newSize > m_nMaxSize) {
    const std::int64_t step = growBy != 0 ? growBy : std::clamp(m_nSize / 8, kSmallestStep, kGreatestStep);
    SetCapacity((std::max)(newSize, SizeOf(m_nMaxSize, step)));
  }
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::FreeExtra() {
  if (m_nSize == 0) return Release();
  if (m_nSize != m_nMaxSize) SetCapacity(m_nSize);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetAtGrow(std::int64_t index, ARG_TYPE element) {
  if (index < 0) AfxThrowInvalidArgException();
  if (index < m_nSize) {
    m_pData[index] = element;
    return;
  }
  if (index == m_nSize) {
    Add(element);
    return;
  }
  TYPE value(element);  // the element may be in the memory that is about to move
  SetSize(SizeOf(index, 1));
  m_pData[index] = std::move(value);
}

template <class TYPE, class ARG_TYPE>
template <class... Arguments>
std::int64_t CArray<TYPE, ARG_TYPE>::Emplace(Arguments&&... arguments) {
  TYPE value(std::forward<Arguments>(arguments)...);  // they may refer to the memory that is about to move
  if (m_nSize == m_nMaxSize) Reserve(SizeOf(m_nSize, 1), m_nGrowBy);
  std::construct_at(m_pData + m_nSize, std::move(value));
  return m_nSize++;
}

template <class TYPE, class ARG_TYPE>
std::int64_t CArray<TYPE, ARG_TYPE>::Append(const CArray& source) {
  if (this == &source) AfxThrowInvalidArgException();
  const std::int64_t first = m_nSize;
  if (source.IsEmpty()) return first;
  Reserve(SizeOf(first, source.m_nSize), m_nGrowBy);
  std::uninitialized_copy_n(source.m_pData, source.m_nSize, m_pData + first);
  m_nSize += source.m_nSize;
  return first;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Copy(const CArray& source) {
  if (this == &source) return;
  SetSize(source.m_nSize);
  std::copy_n(source.m_pData, source.m_nSize, m_pData);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Swap(CArray& other) noexcept {
  std::swap(m_pData, other.m_pData);
  std::swap(m_nSize, other.m_nSize);
  std::swap(m_nMaxSize, other.m_nMaxSize);
  std::swap(m_nGrowBy, other.m_nGrowBy);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(std::int64_t index, ARG_TYPE element, std::int64_t count) {
  if (index < 0 || count < 1) AfxThrowInvalidArgException();
  const TYPE value(element);
  OpenGap(index, count);
  std::fill_n(m_pData + index, count, value);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(std::int64_t startIndex, const CArray* source) {
  if (startIndex < 0 || source == nullptr) AfxThrowInvalidArgException();
  if (source->IsEmpty()) return;
  if (source == this) {
    CArray copy;
    copy.Copy(*this);
    return InsertAt(startIndex, &copy);
  }
  OpenGap(startIndex, source->m_nSize);
  std::copy_n(source->m_pData, source->m_nSize, m_pData + startIndex);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::RemoveAt(std::int64_t index, std::int64_t count) {
  if (index < 0 || count < 0 || index > m_nSize || count > m_nSize - index) AfxThrowInvalidArgException();
  if (count == 0) return;
  std::move(m_pData + index + count, m_pData + m_nSize, m_pData + index);
  std::destroy_n(m_pData + m_nSize - count, count);
  m_nSize -= count;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetCapacity(std::int64_t capacity) {
  if (m_pData == nullptr || AllocatedSlots(capacity) != AllocatedSlots(m_nMaxSize)) {
    m_pData = ReallocateSlots(m_pData, m_nSize, AllocatedSlots(capacity));
  }
  m_nMaxSize = capacity;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Release() noexcept {
  FreeSlots(m_pData, m_nSize);
  m_pData = nullptr;
  m_nSize = 0;
  m_nMaxSize = 0;
}

/// Makes room for count elements at an index. The caller must overwrite them: their values are leftovers.
template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::OpenGap(std::int64_t index, std::int64_t count) {
  const std::int64_t oldSize = m_nSize;
  SetSize(SizeOf((std::max)(index, oldSize), count));
  if (index < oldSize) std::move_backward(m_pData + index, m_pData + oldSize, m_pData + m_nSize);
}

}  // namespace kestrin
