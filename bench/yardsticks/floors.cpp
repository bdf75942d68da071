#include "bench/yardsticks/floors.h"

#include <charconv>
#include <cstring>

namespace kestrin::bench {
namespace {

bool EndsField(char c) { return c == ' ' || c == ',' || c == '\n'; }

bool BeginsNumber(char c) { return (c >= '0' && c <= '9') || c == '-' || c == '+' || c == '.'; }

}  // namespace

std::uint64_t CountNewlines(std::string_view text) {
  std::uint64_t lines = 0;
  const char* position = text.data();
  const char* const end = position + text.size();
  while (const void* newline = std::memchr(position, '\n', static_cast<std::size_t>(end - position))) {
    position = static_cast<const char*>(newline) + 1;
    ++lines;
  }
  return lines;
}

double SumOfNumbers(std::string_view text) {
  double sum = 0.0;
  const char* position = text.data();
  const char* const end = position + text.size();
  while (position != end) {
    if (EndsField(*position)) {
      ++position;
      continue;
    }
    const char* field = position;
    while (position != end && !EndsField(*position)) ++position;
    if (!BeginsNumber(*field)) continue;
    if (*field == '+') ++field;  // from_chars does not accept it
    double number = 0.0;
    std::from_chars(field, position, number);
    sum += number;
  }
  return sum;
}

}  // namespace kestrin::bench
