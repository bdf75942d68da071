#pragma once

/// @file
/// Who owns the lists of a record. Hosts see each list through a plain pointer and delete nothing.

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <stdexcept>

#include "kestrin/framework/array.h"

namespace kestrin {

/// A list of records: the framework's array of pointers to them.
template <class RECORD>
using RecordArray = CArray<RECORD*, RECORD*>;

/// Deletes every record of a list, in index order, and empties it. Null slots are skipped.
template <class ARRAY>
void DeleteRecords(ARRAY& list) {
  // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the one place that deletes the records of lists
  for (auto* record : list) delete record;
  list.RemoveAll();
}

/// An array of record pointers that deletes its records when it is destroyed. Removing a record from the
/// array or clearing the array does not delete anything.
template <class ARRAY>
class Owning : public ARRAY {
 public:
  Owning() = default;
  Owning(const Owning&) = delete;
  Owning& operator=(const Owning&) = delete;
  ~Owning() override { DeleteRecords(*this); }
};

/// The lists that a record owns, kept inside the record. Each is made where the pointer to it is declared:
///
///     class Net : private OwnedLists<2> {
///      public:
///       RecordArray<Pin>* m_pPins = MakeList();
///       RecordArray<Property>* m_pProperties = MakeList();
///     };
///
/// The lists and their records are destroyed with the record, in the order in which the lists were made. The
/// record cannot be copied.
template <std::size_t COUNT>
class OwnedLists {
 public:
  OwnedLists(const OwnedLists&) = delete;
  OwnedLists& operator=(const OwnedLists&) = delete;

 protected:
  OwnedLists() = default;
  ~OwnedLists() {
    for (std::size_t i = 0; i < made_; ++i) std::destroy_at(At(i));
  }

  /// Becomes a new list of the type that a pointer is declared with.
  class NewList {
   public:
    /// Makes the list.
    template <class LIST>
    operator LIST*() const {
      return owner_.template Make<LIST>();
    }

   private:
    friend class OwnedLists;
    explicit NewList(OwnedLists& owner) : owner_(owner) {}
    OwnedLists& owner_;
  };
  /// A list for the pointer that this initialises.
  [[nodiscard]] NewList MakeList() { return NewList(*this); }

 private:
  template <class LIST>
  struct Owner {
    using Type = LIST;
  };
  /// A list of records owns them.
  template <class RECORD>
  struct Owner<RecordArray<RECORD>> {
    using Type = Owning<RecordArray<RECORD>>;
  };

  struct alignas(CObject) Place {
    std::array<std::byte, sizeof(CArray<void*>)> bytes;  // every list is of this size
  };

  template <class LIST>
  LIST* Make() {
    using ListType = typename Owner<LIST>::Type;
    static_assert(sizeof(ListType) == sizeof(Place) && alignof(ListType) == alignof(Place));
    if (made_ == COUNT) throw std::logic_error("a record class makes more lists than it has room for");
    return std::construct_at(reinterpret_cast<ListType*>(&places_[made_++]));
  }
  [[nodiscard]] CObject* At(std::size_t index) noexcept {
    return std::launder(reinterpret_cast<CObject*>(&places_[index]));
  }

  std::array<Place, COUNT> places_;
  std::uint8_t made_ = 0;
};

}  // namespace kestrin
