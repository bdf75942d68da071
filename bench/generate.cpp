// kestrin_generate KIND SIZE > FILE: writes a large export file of about SIZE bytes.

#include <cstdlib>
#include <iostream>
#include <string_view>

#include "bench/generators.h"

namespace {

struct Kind {
  std::string_view name;
  void (*generate)(std::ostream& out, std::uint64_t size);
};

constexpr Kind kKinds[] = {
    {"neutral", &kestrin::bench::GenerateNeutral},
};

}  // namespace

int main(int count, char** words) {
  for (const Kind& kind : kKinds) {
    if (count != 3 || words[1] != kind.name) continue;
    std::ios::sync_with_stdio(false);
    kind.generate(std::cout, std::strtoull(words[2], nullptr, 10));
    return std::cout.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
  }
  std::cerr << "usage: kestrin_generate KIND SIZE > FILE; KIND is one of:";
  for (const Kind& kind : kKinds) std::cerr << ' ' << kind.name;
  std::cerr << '\n';
  return EXIT_FAILURE;
}
