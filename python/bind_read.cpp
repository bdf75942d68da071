#include "python/bind_read.h"

#include <pybind11/stl.h>

#include "python/handle.h"
#include "python/python_writer.h"
#include "python/read.h"
#include "tool/dump.h"

namespace kestrin::python {
namespace {

Handle<Board> ReadBoardOf(const Sources& sources, const tool::ReadingWords& words) {
  const auto set = Read(sources, tool::OptionsOf(words));
  return {set, &set->board};
}

py::object ModelsOf(Sources sources) {
  sources.encoding = "latin-1";  // a text has a character for each byte
  tool::Imported imported(sources.Set());
  ImportUnlocked(imported, sources, tool::StrictReading::kOnly);
  PythonWriter writer(tool::Encoding::kLatin1);
  tool::WriteModels(writer, imported);
  return writer.Document();
}

}  // namespace

void BindRead(py::module_& module) {
  py::class_<Sources>(module, "_Sources", "What to read.")
      .def(py::init([](const std::vector<std::string>& paths, std::map<std::string, std::string> files,
                       std::map<std::string, py::bytes> bytes, std::string encoding, bool strict,
                       bool partial) {
             return Sources{paths, std::move(files), std::move(bytes), std::move(encoding), strict, partial};
           }),
           "__init__(self, paths: list[bytes], files: dict[str, bytes], contents: dict[str, bytes], "
           "encoding: str, strict: bool, partial: bool) -> None");
  py::class_<tool::ReadingWords>(module, "_ReadingWords", "What the caller fixes of the reading of a board.")
      .def(py::init([](std::string rotation, std::string bottom, std::string bottomTurn,
                       std::optional<double> widthStep) {
             return tool::ReadingWords{std::move(rotation), std::move(bottom), std::move(bottomTurn),
                                       widthStep};
           }),
           "__init__(self, rotation: str, bottom: str, bottom_turn: str, width_step: float | None) -> None");
  module.def("_read", &ReadBoardOf, "_read(sources: _Sources, words: _ReadingWords) -> Board");
  module.def("_dump", &ModelsOf, "_dump(sources: _Sources) -> dict[str, Any]");
}

}  // namespace kestrin::python
