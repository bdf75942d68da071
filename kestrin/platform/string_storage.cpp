#include "kestrin/platform/string_storage.h"

#include <algorithm>
#include <memory>
#include <new>

namespace kestrin {

/// What precedes the bytes of a long text on the heap.
struct StringStorage::Block {
  Block(std::size_t textSize, std::size_t room) : size(textSize), capacity(room) {}

  [[nodiscard]] char* Data() noexcept { return reinterpret_cast<char*>(this + 1); }

  [[nodiscard]] static Block* Make(std::string_view text, std::size_t capacity) {
    void* const memory = ::operator new(sizeof(Block) + capacity + 1);
    Block* const block = std::construct_at(static_cast<Block*>(memory), text.size(), capacity);
    text.copy(block->Data(), text.size());
    return block;
  }

  std::size_t size;
  std::size_t capacity;
};

std::string_view StringStorage::BlockView() const noexcept { return {GetBlock()->Data(), GetBlock()->size}; }

char* StringStorage::BlockData() const noexcept { return GetBlock()->Data(); }

void StringStorage::FreeBlock() const noexcept { ::operator delete(GetBlock()); }

std::size_t StringStorage::Capacity() const noexcept {
  return IsInline() ? kInlineSize : GetBlock()->capacity;
}

void StringStorage::SetSize(std::size_t size) noexcept {
  if (IsInline()) return SetInlineSize(size);
  GetBlock()->size = size;
  BlockData()[size] = '\0';
}

void StringStorage::TakeBlock(Block* block) noexcept {
  if (!IsInline()) FreeBlock();
  std::memcpy(bytes_.data(), &block, sizeof(void*));
  bytes_[kInlineSize] = static_cast<char>(kBlockTag);
}

void StringStorage::AssignLong(std::string_view text) {
  if (text.size() > Capacity()) {
    TakeBlock(Block::Make(text, text.size()));
  } else {
    std::char_traits<char>::move(Data(), text.data(), text.size());
  }
  SetSize(text.size());
}

void StringStorage::Append(std::string_view text) {
  const std::string_view old = View();
  const std::size_t size = old.size() + text.size();
  if (size > Capacity()) {
    Block* const block = Block::Make(old, std::max(size, 2 * Capacity()));
    text.copy(block->Data() + old.size(), text.size());
    TakeBlock(block);  // only now, as the text may stand in the old one
  } else {
    std::char_traits<char>::move(Data() + old.size(), text.data(), text.size());
  }
  SetSize(size);
}

void StringStorage::Resize(std::size_t size) {
  const std::string_view old = View();
  if (size > Capacity()) TakeBlock(Block::Make(old, size));
  if (size > old.size()) std::fill(Data() + old.size(), Data() + size, '\0');
  SetSize(size);
}

}  // namespace kestrin
