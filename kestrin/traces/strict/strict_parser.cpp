#include "kestrin/traces/strict/strict_parser.h"

#include <utility>

#include "kestrin/traces/strict/traces_parser.h"

namespace kestrin {

StrictParse ParseStrictly(ByteSource source, bool keepsSourceLines) {
  return TracesParser(std::move(source)).Parse({}, keepsSourceLines);
}

}  // namespace kestrin
