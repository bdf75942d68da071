#include "tool/anonymise/keyed_hash.h"

#include <sodium.h>

#include <cstring>
#include <stdexcept>

namespace kestrin::tool {
namespace {

static_assert(KeyedHash::kKeySize == crypto_generichash_KEYBYTES);

void Start() {
  if (sodium_init() < 0) throw std::runtime_error("cannot start the library for keyed hashes");
}

const unsigned char* Bytes(const void* bytes) { return static_cast<const unsigned char*>(bytes); }

}  // namespace

KeyedHash KeyedHash::WithRandomKey() {
  Start();
  KeyedHash hash;
  crypto_generichash_keygen(hash.key_.data());
  return hash;
}

KeyedHash KeyedHash::WithKeyOf(std::string_view text) {
  Start();
  KeyedHash hash;
  crypto_generichash(hash.key_.data(), hash.key_.size(), Bytes(text.data()), text.size(), nullptr, 0);
  return hash;
}

std::u16string KeyedHash::Choices(char purpose, std::string_view word, std::uint64_t attempt,
                                  std::size_t count) const {
  std::array<unsigned char, 9> prefix{static_cast<unsigned char>(purpose)};
  for (std::size_t i = 0; i < 8; ++i) prefix[i + 1] = static_cast<unsigned char>(attempt >> 8 * i);
  std::array<unsigned char, randombytes_SEEDBYTES> seed{};
  crypto_generichash_state state;
  crypto_generichash_init(&state, key_.data(), key_.size(), seed.size());
  crypto_generichash_update(&state, prefix.data(), prefix.size());
  crypto_generichash_update(&state, Bytes(word.data()), word.size());
  crypto_generichash_final(&state, seed.data(), seed.size());
  std::string bytes(2 * count, '\0');
  randombytes_buf_deterministic(bytes.data(), bytes.size(), seed.data());
  std::u16string choices(count, u'\0');
  for (std::size_t i = 0; i < count; ++i) {  // the same on every machine
    choices[i] = static_cast<char16_t>(static_cast<unsigned char>(bytes[2 * i]) << 8 |
                                       static_cast<unsigned char>(bytes[2 * i + 1]));
  }
  return choices;
}

}  // namespace kestrin::tool
