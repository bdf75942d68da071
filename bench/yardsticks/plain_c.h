#pragma once

/// @file
/// The yardstick "plain C": a reader as an ordinary C programmer writes it, with fgets into a buffer that is
/// cut in place, atof and atoi, one malloc for a record and arrays of pointers that double. Texts stand
/// inside the records, in arrays that are long enough for the files that are generated, so that they take no
/// malloc of their own. Nothing is freed: the process ends with the reading.

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
template <class RECORD>
struct List {
  RECORD** items;
  std::size_t count;
  std::size_t capacity;
};

/// A new record of zeros at the end of a list.
template <class RECORD>
RECORD* Append(List<RECORD>* list) {
  if (list->count == list->capacity) {
    list->capacity = list->capacity == 0 ? 8 : 2 * list->capacity;
    list->items = static_cast<RECORD**>(std::realloc(list->items, list->capacity * sizeof(RECORD*)));
  }
  auto* record = static_cast<RECORD*>(std::calloc(1, sizeof(RECORD)));
  list->items[list->count++] = record;
  return record;
}

/// Copies a text, as far as there is room, into a record of zeros.
inline void Keep(Text& room, const char* text) {
  const std::size_t length = std::strlen(text);
  std::memcpy(room, text, length < kTextSize ? length : kTextSize - 1);
}

/// Keeps a text that may stand between quotes without them.
inline void KeepUnquoted(Text& room, const char* text, char quote) {
  if (*text == quote) ++text;
  Keep(room, text);
  const std::size_t length = std::strlen(room);
  if (length > 0 && room[length - 1] == quote) room[length - 1] = '\0';
}

/// Cuts a line at separators in place. Returns how many fields it has, of which as many as there is room for
/// are given.
inline int Cut(char* line, const char* separators, char** fields, int room) {
  int count = 0;
  for (char* field = std::strtok(line, separators); field != nullptr && count < room;
       field = std::strtok(nullptr, separators)) {
    fields[count++] = field;
  }
  return count;
}

/// Feeds every line of a file to a function.
template <class FUNCTION>
void ForEachLine(const char* path, FUNCTION function) {
  static char line[kLineSize];
  std::FILE* file = std::fopen(path, "r");
  if (file == nullptr) return;
  while (std::fgets(line, sizeof(line), file) != nullptr) function(line);
  std::fclose(file);
}

// A work for every kind of file.
std::unique_ptr<Built> ReadTraces(const Input& input);
std::unique_ptr<Built> ReadGeometry(const Input& input);
std::unique_ptr<Built> ReadNeutral(const Input& input);
std::unique_ptr<Built> ReadTech(const Input& input);

}  // namespace kestrin::bench::plain_c
