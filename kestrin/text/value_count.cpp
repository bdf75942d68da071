#include "kestrin/text/value_count.h"

#include <bit>

namespace kestrin {
namespace {

std::string Values(std::uint32_t count) {
  return std::to_string(count) + (count == 1 ? " value" : " values");
}

}  // namespace

std::string ValueCount::Text() const {
  if (IsOpenEnded()) return "at least " + Values(fewest);
  const auto last = static_cast<std::uint32_t>(std::bit_width(exact)) - 1;
  std::string others;
  for (std::uint32_t count = 0; count < last; ++count) {
    if (!Accepts(count)) continue;
    others.append(others.empty() ? "" : ", ").append(std::to_string(count));
  }
  return (others.empty() ? "exactly " : others + " or ") + Values(last);
}

}  // namespace kestrin
