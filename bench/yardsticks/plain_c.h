#pragma once

/// @file
/// The yardstick "plain C": readers as an ordinary C programmer would write them. They read lines with fgets,
/// cut them in place, convert with atof and atoi, allocate each record with calloc, and double arrays of
/// pointers. Texts are arrays inside the records, long enough for generated files. Nothing is freed.

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "bench/measuring/work.h"

namespace kestrin::bench::plain_c {

constexpr std::size_t kTextSize = 32;
constexpr std::size_t kLineSize = 65'536;
using Text = char[kTextSize];

/// An array of pointers to records.
template <class Record>
struct List {
  [[nodiscard]] Record** begin() const { return items; }
  [[nodiscard]] Record** end() const { return items + count; }

  Record** items;
  std::size_t count, capacity;
};

/// Appends a record of zeros to a list and returns it.
template <class Record>
Record* Append(List<Record>* list) {
  if (list->count == list->capacity) {
    list->capacity = list->capacity == 0 ? 8 : 2 * list->capacity;
    list->items = static_cast<Record**>(std::realloc(list->items, list->capacity * sizeof(Record*)));
  }
  auto* record = static_cast<Record*>(std::calloc(1, sizeof(Record)));
  list->items[list->count++] = record;
  return record;
}

/// Copies a text to a field of zeros, as far as it fits.
inline void Keep(Text& room, const char* text) {
  const std::size_t length = std::strlen(text);
  std::memcpy(room, text, length < kTextSize ? length : kTextSize - 1);
}

/// Calls a function with every line of a file.
template <class Function>
void ForEachLine(const char* path, Function function) {
  static char line[kLineSize];
  std::FILE* file = std::fopen(path, "r");
  if (file == nullptr) return;
  while (std::fgets(line, sizeof(line), file) != nullptr) function(line);
  std::fclose(file);
}

std::unique_ptr<Built> ReadTraces(const Input& input);
std::unique_ptr<Built> ReadGeometry(const Input& input);

}  // namespace kestrin::bench::plain_c
