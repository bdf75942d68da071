#pragma once

#include <pthread.h>

#include <cstddef>

namespace kestrin::test {

/// Makes it impossible to start threads as long as it exists: their stacks would be larger than the memory.
class NoThreads {
 public:
  NoThreads() {
    constexpr std::size_t kTooLarge = std::size_t{1} << 47U;
    pthread_getattr_default_np(&usual_);
    pthread_attr_t attributes;
    pthread_getattr_default_np(&attributes);
    pthread_attr_setstacksize(&attributes, kTooLarge);
    pthread_setattr_default_np(&attributes);
    pthread_attr_destroy(&attributes);
  }
  NoThreads(const NoThreads&) = delete;
  NoThreads& operator=(const NoThreads&) = delete;
  ~NoThreads() {
    pthread_setattr_default_np(&usual_);
    pthread_attr_destroy(&usual_);
  }

 private:
  pthread_attr_t usual_{};
};

}  // namespace kestrin::test
