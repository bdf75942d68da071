#include "kestrin/version.h"

namespace kestrin {

const char* LibraryVersion() noexcept { return kVersion; }

}  // namespace kestrin
