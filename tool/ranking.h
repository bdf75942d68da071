#pragma once

/// @file
/// Printing the largest of many numbers.

#include <cstdint>
#include <string>
#include <vector>

#include "tool/text_table.h"

namespace kestrin::tool {

struct Ranked {
  std::string name;
  std::int64_t number;
};

/// Prints the ten rows with the largest numbers, largest first, and how many more rows there are.
void PrintGreatest(std::vector<Ranked> rows, const char* nameHeading, const char* numberHeading);

}  // namespace kestrin::tool
