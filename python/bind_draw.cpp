#include "python/bind_draw.h"

#include <pybind11/stl.h>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "python/interruptible.h"
#include "python/texts.h"
#include "tool/draw/draw_board.h"

namespace kestrin::python {
namespace {

using BoardHandle = Handle<Board>;
using Names = std::variant<py::str, std::vector<py::str>>;

constexpr char kDoc[] = R"(draw(self, path: str | os.PathLike[str], *,
         view: Literal['layers', 'top', 'bottom'] = 'layers',
         layers: str | Sequence[str] = (), net: str | Sequence[str] = (),
         box: tuple[float, float, float, float] | None = None, width: int | None = None,
         theme: Literal['dark', 'print'] | None = None, tags: bool = False,
         against: Board | None = None) -> None

Draws the board into a file, whose name ends in .svg, .png, .pdf or .html.

view is 'layers', 'top' or 'bottom'. Only the layers named are drawn, and what is not on the nets named
is dimmed. box is what to show in mm: x0, y0, x1, y1. width is that of the picture in pixels. theme is
'dark' or 'print'. tags says the nets of tracks, vias, areas and pads in an .svg. against is a board with
which to compare: what it lacks is red, what it adds is green; it does not go with net or another view
than 'layers'. Remarks on the picture are warnings. After Ctrl-C, the file may still be written.)";

std::vector<std::string> BytesOfNames(tool::Encoding encoding, const Names& names) {
  if (const auto* name = std::get_if<py::str>(&names)) return {BytesOf(encoding, *name)};
  std::vector<std::string> all;
  for (const py::str& name : std::get<std::vector<py::str>>(names)) all.push_back(BytesOf(encoding, name));
  return all;
}

/// A word of the caller; raises Python's ValueError unless it is one of those allowed.
std::string Word(const char* argument, const std::string& word,
                 std::initializer_list<std::string_view> allowed) {
  if (std::find(allowed.begin(), allowed.end(), word) != allowed.end()) return word;
  std::string message = std::string(argument) + " is '" + word + "'; it must be";
  for (const std::string_view each : allowed) message += " '" + std::string(each) + "'";
  throw py::value_error(message);
}

/// The box as the tool takes it: "x0,y0,x1,y1".
std::string BoxWord(const std::optional<std::array<double, 4>>& box) {
  std::string word;
  if (!box) return word;
  for (const double number : *box)
    word += (word.empty() ? "" : ",") + std::string(py::repr(py::float_(number)));
  return word;
}

std::vector<std::string> Draw(const BoardHandle& board, const tool::draw::DrawWords& words,
                              const BoardHandle* against) {
  const auto warnings = std::make_shared<std::vector<std::string>>();
  const SharedSet set = SharedSetOf(board.owner);
  const SharedSet other = against == nullptr ? nullptr : SharedSetOf(against->owner);
  RunInterruptibly([=] {
    tool::SetEncoding(set->encoding);
    *warnings = tool::draw::DrawBoard({.imported = set->imported,
                                       .board = set->board,
                                       .against = other == nullptr ? nullptr : &other->imported},
                                      words);
  });
  return *warnings;
}

}  // namespace

void BindDraw(py::class_<BoardHandle>& board) {
  const auto draw = [](const BoardHandle& self, const py::object& path, const std::string& view,
                       const Names& layers, const Names& net, const std::optional<std::array<double, 4>>& box,
                       std::optional<int> width, const std::optional<std::string>& theme, bool tags,
                       const BoardHandle* against) {
    tool::draw::DrawWords words;
    words.output = py::bytes(py::module_::import("os").attr("fsencode")(path));
    words.view = Word("view", view, {"layers", "top", "bottom"});
    if (theme) words.theme = Word("theme", *theme, {"dark", "print"});
    words.box = BoxWord(box);
    words.layers = BytesOfNames(self.owner->encoding, layers);
    words.nets = BytesOfNames(self.owner->encoding, net);
    words.width = width;
    words.hasTags = tags;
    for (const std::string& warning : Draw(self, words, against)) {
      if (PyErr_WarnEx(PyExc_UserWarning, warning.c_str(), 1) != 0) throw py::error_already_set();
    }
  };
  const Names none = std::vector<py::str>();
  board.def("draw", draw, py::arg("path"), py::kw_only(), py::arg("view") = "layers",
            py::arg("layers") = none, py::arg("net") = none, py::arg("box") = py::none(),
            py::arg("width") = py::none(), py::arg("theme") = py::none(), py::arg("tags") = false,
            py::arg("against") = py::none(), kDoc);
}

}  // namespace kestrin::python
