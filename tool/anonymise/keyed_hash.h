#pragma once

/// @file
/// Random choices that depend on a secret key.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kestrin::tool {

/// Random choices that a secret key and a word determine: a keyed hash (BLAKE2b) seeds a stream (ChaCha20).
/// Who does not know the key cannot tell the word from the choices, nor the choices from the word.
class KeyedHash {
 public:
  static constexpr std::size_t kKeySize = 32;

  /// A random key, or a key made of a text.
  static KeyedHash WithRandomKey();
  static KeyedHash WithKeyOf(std::string_view text);

  /// Numbers for a word, which are others for each purpose and attempt.
  [[nodiscard]] std::u16string Choices(char purpose, std::string_view word, std::uint64_t attempt,
                                       std::size_t count) const;

 private:
  std::array<unsigned char, kKeySize> key_{};
};

}  // namespace kestrin::tool
