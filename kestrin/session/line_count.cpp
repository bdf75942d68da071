#include "kestrin/session/line_count.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "kestrin/framework/exceptions.h"
#include "kestrin/framework/input_file.h"

namespace kestrin {

int CountLines(const char* path) {
  constexpr std::size_t kBlockSize = std::size_t{256} * 1024;
  std::int64_t lines = 1;
  InputFile file;
  if (!file.Open(path)) return 1;
  std::vector<char> block(kBlockSize);
  try {
    while (const std::size_t count = file.Read(block.data(), block.size())) {
      lines += std::count(block.data(), block.data() + count, '\n');
    }
  } catch (const CFileException&) {
    // The reader will meet the same error and report it.
  }
  return static_cast<int>(std::min<std::int64_t>(lines, std::numeric_limits<int>::max()));
}

}  // namespace kestrin
