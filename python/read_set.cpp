#include "python/read_set.h"

#include <pybind11/pybind11.h>

#include <utility>

#include "python/interruptible.h"
#include "tool/check/check.h"

namespace kestrin::python {

// A thread that waits for another one to make something must not have Python's lock, since the other one may
// need it.

const Findings& FindingsOf(const SharedSet& set) {
  if (set->hasFindings_) return *set->findings_;
  RunInterruptibly([set] {
    std::call_once(set->findingsMade_, [&] {
      set->stamps.RequireSame();
      Findings findings = FindFaults(tool::SetOf(set->imported), set->board);
      set->stamps.RequireSame();  // a file may change while it is read
      set->findings_ = std::move(findings);
    });
  });
  set->hasFindings_ = true;
  return *set->findings_;
}

const Legs& LegsOf(const ReadSet& set) {
  const pybind11::gil_scoped_release unlocked;
  std::call_once(set.legsMade_, [&] { set.legs_ = LegsOf(set.board); });
  return *set.legs_;
}

}  // namespace kestrin::python
