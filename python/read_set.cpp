#include "python/read_set.h"

#include "tool/check/check.h"

namespace kestrin::python {

const Findings& ReadSet::FindingsOfSet() const {
  std::call_once(findingsMade_, [&] { findings_ = FindFaults(tool::SetOf(imported), board); });
  return *findings_;
}

const Legs& ReadSet::LegsOfBoard() const {
  std::call_once(legsMade_, [&] { legs_ = LegsOf(board); });
  return *legs_;
}

}  // namespace kestrin::python
