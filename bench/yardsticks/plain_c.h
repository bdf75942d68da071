#pragma once

/// @file
/// The yardstick "plain C": a reader as an ordinary C programmer writes it. It reads with fgets into a
/// buffer, cuts it in place, converts with atof and atoi, takes one calloc for each record and doubles its
/// arrays of pointers. Texts are arrays inside their records, long enough for generated files. Nothing is
/// freed: the process ends after reading.

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

/// A new record of zeros at the end of a list.
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

/// Copies a text into a record of zeros, as far as there is room.
inline void Keep(Text& room, const char* text) {
  const std::size_t length = std::strlen(text);
  std::memcpy(room, text, length < kTextSize ? length : kTextSize - 1);
}

/// Feeds every line of a file to a function.
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
