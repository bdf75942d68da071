#include "kestrin/framework/string_storage.h"

#include <algorithm>
#include <atomic>
#include <memory>
#include <new>

namespace kestrin {

/// The header of a long text on the heap. The bytes follow it.
struct StringStorage::Block {
  Block(std::size_t textSize, std::size_t room) : size(textSize), capacity(room) {}

  [[nodiscard]] char* Bytes() noexcept { return reinterpret_cast<char*>(this + 1); }
  [[nodiscard]] bool IsShared() const noexcept { return holders.load(std::memory_order_acquire) > 1; }

  [[nodiscard]] static Block* Make(std::string_view text, std::size_t capacity) {
    void* const memory = ::operator new(sizeof(Block) + capacity + 1);
    Block* const block = std::construct_at(static_cast<Block*>(memory), text.size(), capacity);
    text.copy(block->Bytes(), text.size());
    block->Bytes()[text.size()] = '\0';
    return block;
  }

  std::size_t size;
  std::size_t capacity;
  std::atomic<std::size_t> holders{1};
  bool isLent = false;  // a caller may write to the bytes, so the block must not be shared
};

std::string_view StringStorage::BlockView() const noexcept { return {GetBlock()->Bytes(), GetBlock()->size}; }

char* StringStorage::UnsharedBlock() {
  if (GetBlock()->IsShared()) TakeBlock(Block::Make(View(), View().size()));
  return GetBlock()->Bytes();
}

std::size_t StringStorage::Room() const noexcept {
  return !IsInline() && GetBlock()->isLent ? GetBlock()->capacity : View().size();
}

// Short texts move to a block too: inside the object, a caller could overwrite the tag.
char* StringStorage::Lend(std::size_t room) {
  if (IsInline() || !GetBlock()->isLent || GetBlock()->capacity < room) {
    const std::string_view kept(View().data(), Room());
    Block* const block = Block::Make(kept, std::max(room, kept.size()));
    std::fill(block->Bytes() + kept.size(), block->Bytes() + block->capacity + 1, '\0');
    block->size = View().size();
    block->isLent = true;
    TakeBlock(block);
  }
  return GetBlock()->Bytes();
}

/// Completes a copy whose members are already copied: shares the block, or copies it if it is lent.
void StringStorage::ShareBlock() {
  Block* const block = GetBlock();
  if (!block->isLent) {
    block->holders.fetch_add(1, std::memory_order_relaxed);
    return;
  }
  bytes_ = kEmpty;
  AssignLong({block->Bytes(), block->size});
}

void StringStorage::ReleaseBlock() const noexcept {
  if (GetBlock()->holders.fetch_sub(1, std::memory_order_acq_rel) == 1) ::operator delete(GetBlock());
}

void StringStorage::TakeBlock(Block* block) noexcept {
  if (!IsInline()) ReleaseBlock();
  std::memcpy(bytes_.data(), &block, sizeof(void*));
  bytes_[kInlineSize] = static_cast<char>(kBlockTag);
}

/// Whether size bytes fit into the present memory, and it is not shared.
bool StringStorage::HasRoomFor(std::size_t size) const noexcept {
  if (IsInline()) return size <= kInlineSize;
  return size <= GetBlock()->capacity && !GetBlock()->IsShared();
}

/// The bytes for writing. Call HasRoomFor first: a shared block must not be written to.
char* StringStorage::Bytes() noexcept { return IsInline() ? bytes_.data() : GetBlock()->Bytes(); }

/// Sets the number of bytes, which must already be written.
void StringStorage::SetSize(std::size_t size) noexcept {
  if (IsInline()) return SetInlineSize(size);
  GetBlock()->size = size;
  GetBlock()->Bytes()[size] = '\0';
  GetBlock()->isLent = false;
}

void StringStorage::AssignLong(std::string_view text) {
  if (!HasRoomFor(text.size())) return TakeBlock(Block::Make(text, text.size()));
  std::char_traits<char>::move(Bytes(), text.data(), text.size());
  SetSize(text.size());
}

void StringStorage::Append(std::string_view text) {
  const std::string_view old = View();
  const std::size_t size = old.size() + text.size();
  if (HasRoomFor(size)) {
    std::char_traits<char>::move(Bytes() + old.size(), text.data(), text.size());
  } else {
    Block* const block = Block::Make(old, std::max(size, 2 * old.size()));
    text.copy(block->Bytes() + old.size(), text.size());
    TakeBlock(block);  // only now: the text may be in the old block
  }
  SetSize(size);
}

void StringStorage::Resize(std::size_t size) {
  if (!HasRoomFor(size)) TakeBlock(Block::Make(View().substr(0, size), size));  // the block is shared
  SetSize(size);
}

}  // namespace kestrin
