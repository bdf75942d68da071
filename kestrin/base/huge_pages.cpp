#include "kestrin/base/huge_pages.h"

#if __has_include(<sys/mman.h>)
#include <sys/mman.h>
#endif

namespace kestrin {

void PreferHugePages([[maybe_unused]] void* block, [[maybe_unused]] std::size_t size) noexcept {
#ifdef MADV_HUGEPAGE
  static_cast<void>(madvise(block, size, MADV_HUGEPAGE));  // only advice: a failure does no harm
#endif
}

}  // namespace kestrin
