#pragma once

/// @file
/// Who owns a list or a record, said by its type. Hosts see every holder here as a pointer that is never null
/// unless its description says so.

#include <cstddef>
#include <memory>
#include <utility>

#include "kestrin/platform/array.h"

namespace kestrin {

/// An array of record pointers that deletes its records when it goes, in index order; null slots are skipped.
/// ARRAY is the array that hosts see. Only destruction and DeleteRecords delete: removing and clearing drop
/// pointers as ever.
template <class ARRAY>
class Owning : public ARRAY {
 public:
  Owning() = default;
  Owning(const Owning&) = delete;
  Owning& operator=(const Owning&) = delete;
  ~Owning() override { DeleteRecords(); }

  /// Deletes every record and empties the list.
  void DeleteRecords() {
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the one place that owns records
    for (auto* record : *this) delete record;
    this->RemoveAll();
  }

  using ARRAY::Append;

  /// Hands a record to the list, at its end, and returns it.
  template <class RECORD>
  RECORD* Append(std::unique_ptr<RECORD> record) {
    this->Add(record.get());
    return record.release();
  }

  /// Exchanges the records of two lists, without touching them.
  void Swap(Owning& other) noexcept {
    std::swap(this->m_pData, other.m_pData);
    std::swap(this->m_nSize, other.m_nSize);
    std::swap(this->m_nMaxSize, other.m_nMaxSize);
    std::swap(this->m_nGrowBy, other.m_nGrowBy);
  }
};

/// Holds an object that belongs to one record alone, and is used like a pointer to it. The object lives
/// inside.
template <class T>
class Owned {
 public:
  Owned() = default;
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;

  ///@{
  /// The object; it stays the holder's.
  T* operator->() const noexcept { return &object_; }
  T& operator*() const noexcept { return object_; }
  operator T*() const noexcept { return &object_; }
  ///@}

 private:
  mutable T object_;  // a pointer member's target can be changed through a const record, so can this
};

/// Holds an object that copies of its record share, and is used like a pointer to it. The object goes with
/// the last holder. May be null.
template <class T>
class Shared {
 public:
  Shared() = default;
  /// Holds nothing.
  Shared(std::nullptr_t) {}

  /// Holds a new object, made from the arguments.
  template <class... Arguments>
  [[nodiscard]] static Shared Make(Arguments&&... arguments) {
    Shared made;
    made.object_ = std::make_shared<T>(std::forward<Arguments>(arguments)...);
    return made;
  }

  ///@{
  /// The object, null when nothing is held; it stays the holders'.
  T* operator->() const noexcept { return object_.get(); }
  T& operator*() const noexcept { return *object_; }
  operator T*() const noexcept { return object_.get(); }
  ///@}

 private:
  std::shared_ptr<T> object_;
};

/// A framework array of records that it owns.
template <class RECORD>
using OwningArray = Owning<CArray<RECORD*, RECORD*>>;

/// A record's list of other records, which it owns: a pointer to CArray<RECORD*, RECORD*> for hosts.
template <class RECORD>
using RecordList = Owned<OwningArray<RECORD>>;

/// The same for a record whose copies share the list.
template <class RECORD>
using SharedRecordList = Shared<OwningArray<RECORD>>;

}  // namespace kestrin
