#include "kestrin/geometry/command_line.h"

namespace kestrin {

CommandLine CutCommandLine(std::string_view line) {
  const std::size_t open = line.find('(');
  if (open == std::string_view::npos) return {};
  std::string_view arguments = line.substr(open + 1);
  while (arguments.ends_with(')') || arguments.ends_with(';')) arguments.remove_suffix(1);
  return {line.substr(0, open), arguments};
}

}  // namespace kestrin
