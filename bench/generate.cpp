// Writes an export file of a wanted size to standard output: kestrin_generate geometry 100000000 >
// large.geometry

#include <cstdlib>
#include <iostream>
#include <string_view>

#include "bench/generators.h"

namespace {

struct Kind {
  std::string_view name;
  void (*generate)(std::ostream& out, std::int64_t size);
};

constexpr Kind kKinds[] = {
    {"geometry", kestrin::bench::GenerateGeometry},
};

}  // namespace

int main(int count, char** words) {
  std::ios::sync_with_stdio(false);
  for (const Kind& kind : kKinds) {
    if (count != 3 || kind.name != words[1]) continue;
    kind.generate(std::cout, std::atoll(words[2]));
    return std::cout.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
  }
  std::cerr << "usage: kestrin_generate KIND BYTES, where KIND is one of:";
  for (const Kind& kind : kKinds) std::cerr << ' ' << kind.name;
  std::cerr << '\n';
  return 2;
}
