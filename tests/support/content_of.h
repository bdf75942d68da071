#pragma once

#include <fstream>
#include <sstream>
#include <string>

namespace kestrin::test {

inline std::string ContentOf(const std::string& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

}  // namespace kestrin::test
