#pragma once

#include <cstdint>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <string_view>

namespace kestrin::test {

inline std::string ContentOf(const std::string& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

/// Texts that no exporter writes, the same ones in every run.
class ByteSoup {
 public:
  explicit ByteSoup(std::uint32_t seed) : random_(seed) {}

  /// Any bytes.
  std::string Bytes(std::size_t size) {
    std::string text(size, '\0');
    for (char& c : text) c = static_cast<char>(Below(256));
    return text;
  }

  /// A text with some bytes replaced by bytes of the palette, dropped, doubled, or moved elsewhere with what
  /// follows them.
  std::string Mutated(std::string text, std::string_view palette, std::size_t mutations) {
    for (; mutations > 0 && !text.empty(); --mutations) {
      const std::size_t position = Below(text.size());
      const std::size_t length = Below(30);
      switch (Below(4)) {
        case 0: text[position] = palette[Below(palette.size())]; break;
        case 1: text.erase(position, length); break;
        case 2: text.insert(position, text.substr(position, length)); break;
        default: text.insert(Below(text.size()), text.substr(position, length)); break;
      }
    }
    return text;
  }

 private:
  std::size_t Below(std::size_t limit) { return random_() % limit; }

  std::mt19937 random_;
};

}  // namespace kestrin::test
