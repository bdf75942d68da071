#pragma once

/// @file
/// The memory of a framework string.

#include <array>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#include "kestrin/base/export.h"

namespace kestrin {

/// A string of bytes with a zero byte after it, in an object of 16 bytes.
///
/// Most texts of an export file are short, and a model holds millions of them. So texts of up to 15 bytes are
/// inside the object. Longer texts are in a heap block with a reference count; copies share it until one of
/// them changes. A long name that is copied into a million records is in memory once.
class KESTRIN_EXPORT StringStorage {
 public:
  StringStorage() noexcept = default;
  ///@{
  /// Copies are independent of each other, also on different threads. An object that was moved from is valid;
  /// its bytes are unspecified.
  explicit StringStorage(std::string_view text) { Assign(text); }
  StringStorage(const StringStorage& other) : bytes_(other.bytes_) {
    if (!IsInline()) ShareBlock();
  }
  StringStorage(StringStorage&& other) noexcept : bytes_(other.bytes_) { other.bytes_ = kEmpty; }
  StringStorage& operator=(const StringStorage& other) {
    StringStorage copy(other);
    return *this = std::move(copy);
  }
  StringStorage& operator=(StringStorage&& other) noexcept {
    bytes_ = std::exchange(other.bytes_, bytes_);
    return *this;
  }
  ~StringStorage() {
    if (!IsInline()) ReleaseBlock();
  }
  ///@}

  /// The bytes, with a zero byte after them. The view is valid until the bytes change.
  [[nodiscard]] std::string_view View() const noexcept {
    return IsInline() ? std::string_view(bytes_.data(), kInlineSize - Tag()) : BlockView();
  }
  /// The bytes, to be changed in place. The pointer is valid until the storage is copied or changed.
  [[nodiscard]] char* Data() { return IsInline() ? bytes_.data() : UnsharedBlock(); }

  /// Returns writable memory for at least room bytes. It begins with the bytes; their number stays the same.
  /// The memory is valid until another operation changes the bytes. Copies made until then are deep.
  [[nodiscard]] char* Lend(std::size_t room);
  /// The size of the memory that Lend returned; the number of bytes if none is lent.
  [[nodiscard]] std::size_t Room() const noexcept;

  /// Replaces the bytes. The text may be a part of them.
  void Assign(std::string_view text) {
    if (text.size() > kInlineSize || !IsInline()) return AssignLong(text);
    std::char_traits<char>::move(bytes_.data(), text.data(), text.size());
    SetInlineSize(text.size());
  }
  /// Appends bytes. The text may be a part of those that are there.
  void Append(std::string_view text);
  /// Keeps the first size bytes, and ends the lending. The size must be at most Room().
  void Resize(std::size_t size);

 private:
  struct Block;
  static constexpr std::size_t kInlineSize = 15;
  static constexpr unsigned char kBlockTag = 0xFF;
  using InlineBytes = std::array<char, kInlineSize + 1>;
  static constexpr InlineBytes kEmpty{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, kInlineSize};

  /// The number of free inline bytes, or kBlockTag. With 15 inline bytes it is 0 and ends the text.
  [[nodiscard]] unsigned char Tag() const noexcept { return static_cast<unsigned char>(bytes_[kInlineSize]); }
  [[nodiscard]] bool IsInline() const noexcept { return Tag() != kBlockTag; }
  void SetInlineSize(std::size_t size) noexcept {
    bytes_[size] = '\0';
    bytes_[kInlineSize] = static_cast<char>(kInlineSize - size);
  }

  [[nodiscard]] Block* GetBlock() const noexcept {
    Block* block;
    std::memcpy(&block, bytes_.data(), sizeof(void*));
    return block;
  }
  [[nodiscard]] std::string_view BlockView() const noexcept;
  [[nodiscard]] char* UnsharedBlock();
  void ShareBlock();
  void ReleaseBlock() const noexcept;
  void TakeBlock(Block* block) noexcept;
  [[nodiscard]] bool HasRoomFor(std::size_t size) const noexcept;
  [[nodiscard]] char* Bytes() noexcept;
  void SetSize(std::size_t size) noexcept;
  void AssignLong(std::string_view text);

  alignas(8) InlineBytes bytes_ = kEmpty;
};

}  // namespace kestrin
