#include "kestrin/windowing/windows/keep_exceptions.h"

#include <utility>

namespace kestrin {
namespace {

thread_local ExceptionKeeper* innermost = nullptr;

}  // namespace

ExceptionKeeper::ExceptionKeeper() : outer_(std::exchange(innermost, this)) {}
ExceptionKeeper::~ExceptionKeeper() { innermost = outer_; }

void ExceptionKeeper::KeepCurrent() noexcept {
  if (innermost == nullptr) std::terminate();
  if (innermost->kept_ == nullptr) innermost->kept_ = std::current_exception();
}

void ExceptionKeeper::Raise() {
  if (kept_ != nullptr) std::rethrow_exception(kept_);
}

}  // namespace kestrin
