#include "python/bind_compare.h"

#include "python/bind_record.h"
#include "python/interruptible.h"
#include "tool/board.h"
#include "tool/diff/compare.h"
#include "tool/diff/diff.h"

namespace kestrin::python {
namespace {

/// The differences between two boards, whose texts they have.
struct Compared : Owner {
  tool::Difference difference;
};

Handle<tool::Difference> CompareBoards(const Handle<Board>& before, const Handle<Board>& after) {
  const auto compared = std::make_shared<Compared>();
  const SharedSet first = SharedSetOf(before.owner);
  const SharedSet second = SharedSetOf(after.owner);
  tool::RequireSameFiles(first->imported.files, second->imported.files);
  const bool areUtf8 =
      before.owner->encoding == tool::Encoding::kUtf8 && after.owner->encoding == tool::Encoding::kUtf8;
  compared->encoding = areUtf8 ? tool::Encoding::kUtf8 : tool::Encoding::kLatin1;
  RunInterruptibly([=] {
    tool::Sides sides = tool::ReadSides(tool::ModelsIn(first->imported), tool::ModelsIn(second->imported));
    compared->difference = tool::Compare(sides);
  });
  return {compared, &compared->difference};
}

}  // namespace

void BindCompare(py::module_& module) {
  BindRecord<tool::Detail>(module);
  BindRecord<tool::Change>(module);
  BindRecord<tool::Difference>(module).def(
      "__bool__",
      [](const Handle<tool::Difference>& self) {
        return self.record->shift.has_value() || !self.record->changes.empty();
      },
      "__bool__(self) -> bool\n\nWhether there is a difference.");
  module.def(
      "compare", &CompareBoards, py::arg("before"), py::arg("after"),
      "compare(before: Board, after: Board) -> Difference\n\nWhat changed between two exports of a board.");
}

}  // namespace kestrin::python
