#pragma once

/// @file
/// How records own their lists, and lists their records. You see each list through a plain pointer and delete
/// nothing.

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <stdexcept>

#include "kestrin/framework/array.h"

namespace kestrin {

/// A list of records: a framework array of pointers to them.
template <class Record>
using RecordArray = CArray<Record*, Record*>;

/// Deletes every record of a list, in index order, and empties the list. Skips null slots.
template <class Array>
void DeleteRecords(Array& list) {
  // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the one place that deletes the records of lists
  for (auto* record : list) delete record;
  list.RemoveAll();
}

/// An array of record pointers that deletes its records when it is destroyed. Removing a record, or clearing
/// the array, deletes nothing: those records are yours.
template <class Array>
class Owning : public Array {
 public:
  Owning() = default;
  Owning(const Owning&) = delete;
  Owning& operator=(const Owning&) = delete;
  ~Owning() override { DeleteRecords(*this); }
};

/// Base class of records that own lists: it stores up to Count lists inside the record. Create each list
/// where you declare the pointer to it:
///
///     class Net : private OwnedLists<2> {
///      public:
///       RecordArray<Pin>* m_pPins = MakeList();
///       RecordArray<Property>* m_pProperties = MakeList();
///     };
///
/// The lists and their records are destroyed with the record, in the order in which the lists were created.
/// Such a record cannot be copied.
template <std::size_t Count>
class OwnedLists {
 public:
  OwnedLists(const OwnedLists&) = delete;
  OwnedLists& operator=(const OwnedLists&) = delete;

 protected:
  OwnedLists() = default;
  ~OwnedLists() {
    for (std::size_t i = 0; i < made_; ++i) std::destroy_at(At(i));
  }

  /// What MakeList returns: converts to a pointer to a new list, whose type is that of the pointer.
  class NewList {
   public:
    /// Creates the list.
    template <class List>
    operator List*() const {
      return owner_.template Make<List>();
    }

   private:
    friend class OwnedLists;
    explicit NewList(OwnedLists& owner) : owner_(owner) {}
    OwnedLists& owner_;
  };
  /// Creates a list for the pointer that it initializes. Raises std::logic_error at more than Count lists.
  [[nodiscard]] NewList MakeList() { return NewList(*this); }

 private:
  /// The type that is created for a list: one that owns its elements if they are records.
  template <class List>
  struct Owner {
    using Type = List;
  };
  template <class Record>
  struct Owner<RecordArray<Record>> {
    using Type = Owning<RecordArray<Record>>;
  };

  struct alignas(CObject) Place {
    std::array<std::byte, sizeof(CArray<void*>)> bytes;  // every list has this size
  };

  template <class List>
  List* Make() {
    using ListType = typename Owner<List>::Type;
    static_assert(sizeof(ListType) == sizeof(Place) && alignof(ListType) == alignof(Place));
    if (made_ == Count) throw std::logic_error("OwnedLists: more lists than the record class declares");
    return std::construct_at(reinterpret_cast<ListType*>(&places_[made_++]));
  }
  [[nodiscard]] CObject* At(std::size_t index) noexcept {
    return std::launder(reinterpret_cast<CObject*>(&places_[index]));
  }

  std::array<Place, Count> places_;
  std::uint8_t made_ = 0;
};

}  // namespace kestrin
