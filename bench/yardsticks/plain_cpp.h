#pragma once

/// @file
/// The yardstick "plain C++": a reader as an ordinary C++ programmer writes it, with std::getline, a
/// std::istringstream for every line, std::stod and std::stoi, strings, and vectors of std::unique_ptr.

#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "bench/measuring/work.h"

namespace kestrin::bench::plain_cpp {

template <class RECORD>
using List = std::vector<std::unique_ptr<RECORD>>;

/// A new record at the end of a list.
template <class RECORD>
RECORD& Append(List<RECORD>& list) {
  list.push_back(std::make_unique<RECORD>());
  return *list.back();
}

/// The words of a line.
inline std::vector<std::string> Words(const std::string& line) {
  std::istringstream stream(line);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

/// A text without the quotes at its ends.
inline std::string Unquoted(const std::string& text, char quote) {
  const std::size_t first = text.find_first_not_of(quote);
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(quote) - first + 1);
}

/// The arguments of a command, without blanks and quotes at their ends; commas between quotes do not
/// separate.
inline std::vector<std::string> Arguments(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> arguments;
  while (stream >> std::ws && !stream.eof()) {
    std::string argument;
    if (stream.peek() == '"') {
      std::string rest;
      stream.get();
      std::getline(stream, argument, '"');
      std::getline(stream, rest, ',');
    } else {
      std::getline(stream, argument, ',');
    }
    arguments.push_back(argument);
  }
  return arguments;
}

/// Feeds every line of a file to a function.
template <class FUNCTION>
void ForEachLine(const std::string& path, FUNCTION function) {
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) function(line);
}

// A work for every kind of file.
std::unique_ptr<Built> ReadTraces(const Input& input);
std::unique_ptr<Built> ReadGeometry(const Input& input);
std::unique_ptr<Built> ReadNeutral(const Input& input);
std::unique_ptr<Built> ReadTech(const Input& input);

}  // namespace kestrin::bench::plain_cpp
