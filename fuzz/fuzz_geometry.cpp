#include "fuzz/subjects.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  return kestrin::fuzz::CheckReader<kestrin::fuzz::GeometrySubject>(bytes, size);
}
