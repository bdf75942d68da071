#pragma once

/// @file
/// The bytes behind a framework string.

#include <array>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#include "kestrin/base/export.h"

namespace kestrin {

/// Bytes with a zero byte behind them, in 16 bytes of memory: most texts of an export file are short, and a
/// model keeps millions of them. Up to 15 bytes stand in the object itself, longer texts in a block on the
/// heap, which copies share until one of them changes: a name that a file gives once and a model keeps in a
/// million records takes the memory of one.
class KESTRIN_EXPORT StringStorage {
 public:
  StringStorage() noexcept = default;
  ///@{
  /// Copies behave like bytes of their own, also on different threads; what is moved from keeps bytes to be
  /// replaced.
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
    if (!IsInline()) LetGoOfBlock();
  }
  ///@}

  /// The bytes, valid until they change. A zero byte follows them.
  [[nodiscard]] std::string_view View() const noexcept {
    return IsInline() ? std::string_view(bytes_.data(), kInlineSize - Tag()) : BlockView();
  }
  /// The bytes, to be changed in place; the pointer ends when the storage is copied or changed.
  [[nodiscard]] char* Data() { return IsInline() ? bytes_.data() : UnsharedBlock(); }

  /// Room for at least that many bytes, to be written until something else changes the bytes. It starts with
  /// the bytes, whose number stays the same. Copies made meanwhile share nothing.
  [[nodiscard]] char* Lend(std::size_t room);
  /// The size of the room that is lent; of the bytes when none is.
  [[nodiscard]] std::size_t Room() const noexcept;

  /// Replaces the bytes; the text may be a part of them.
  void Assign(std::string_view text) {
    if (text.size() > kInlineSize || !IsInline()) return AssignLong(text);
    std::char_traits<char>::move(bytes_.data(), text.data(), text.size());
    SetInlineSize(text.size());
  }
  /// Adds bytes at the end; the text may be a part of those that are there.
  void Append(std::string_view text);
  /// Keeps the first bytes of the room.
  void Resize(std::size_t size);

 private:
  struct Block;
  static constexpr std::size_t kInlineSize = 15;
  static constexpr unsigned char kBlockTag = 0xFF;
  using InlineBytes = std::array<char, kInlineSize + 1>;
  static constexpr InlineBytes kEmpty{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, kInlineSize};

  /// How many inline bytes are free, so that it is the zero byte behind 15 of them; or that there is a block.
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
  void LetGoOfBlock() const noexcept;
  void TakeBlock(Block* block) noexcept;
  [[nodiscard]] bool HasRoomFor(std::size_t size) const noexcept;
  [[nodiscard]] char* Bytes() noexcept;
  void SetSize(std::size_t size) noexcept;
  void AssignLong(std::string_view text);

  alignas(8) InlineBytes bytes_ = kEmpty;
};

}  // namespace kestrin
