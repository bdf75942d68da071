// kestrin_generate KIND SIZE > file: writes a large file of a kind, about SIZE bytes long.

#include <charconv>
#include <cstdio>
#include <iostream>
#include <string>
#include <string_view>

#include "bench/generators.h"

namespace {

struct Kind {
  std::string_view name;
  void (*generate)(std::ostream& out, std::uint64_t size);
};

constexpr Kind kKinds[] = {
    {"geometry", &kestrin::bench::GenerateGeometry},
    {"neutral", &kestrin::bench::GenerateNeutral},
    {"traces", &kestrin::bench::GenerateTraces},
};

int Usage() {
  std::string kinds;
  for (const Kind& kind : kKinds) kinds.append(" ").append(kind.name);
  std::fprintf(stderr, "usage: kestrin_generate KIND SIZE-IN-BYTES > file\nkinds:%s\n", kinds.c_str());
  return 2;
}

}  // namespace

int main(int count, char** words) {
  if (count != 3) return Usage();
  const std::string_view digits = words[2];
  std::uint64_t size = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), size);
  if (error != std::errc() || end != digits.data() + digits.size()) return Usage();
  for (const Kind& kind : kKinds) {
    if (kind.name != words[1]) continue;
    std::ios::sync_with_stdio(false);
    kind.generate(std::cout, size);
    return std::cout.flush() ? 0 : 1;
  }
  return Usage();
}
