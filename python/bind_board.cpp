#include "python/bind_board.h"

#include <pybind11/stl.h>

#include "python/bind_draw.h"
#include "python/bind_record.h"
#include "python/python_writer.h"
#include "python/table.h"
#include "tool/board_document.h"

namespace kestrin::python {
namespace {

using BoardHandle = Handle<Board>;

py::dict ReportOf(const BoardHandle& board) {
  py::dict report;
  for (const tool::ReadFile& file : SetOf(*board.owner).files)
    report[py::str(tool::WordOf(file.file))] = MakePython(board.owner, file);
  return report;
}

py::object SyntaxErrorsOf(const Handle<tool::ReadFile>& file) {
  static const std::vector<SyntaxError> kNone;
  const auto& strict = SetOf(*file.owner).imported.strictTraces;
  const bool isRead = strict && file.record->file == ImportFile::kTraces;
  return MakePython(file.owner, isRead ? strict->parse.errors : kNone);
}

py::list KindsOfVias(const BoardHandle& board) {
  py::list names;
  for (const ViaPadstack& kind : board.record->viaPadstacks)
    names.append(TextOf(board.owner->encoding, kind.name));
  return names;
}

py::object DocumentOf(const BoardHandle& board) {
  PythonWriter writer(board.owner->encoding);
  tool::Write(writer, *board.record);
  return writer.Document();
}

void BindWholeBoard(py::module_& module) {
  auto board = BindRecord<Board>(module);
  BindDraw(board);
  board
      .def_property_readonly(
          "tracks",
          [](const BoardHandle& self) {
            return Tracks(self.owner, std::span<const Track>(self.record->tracks));
          },
          "Tracks: The tracks of all nets.")
      .def_property_readonly(
          "vias",
          [](const BoardHandle& self) {
            return Vias{self.owner, self.record->vias};
          },
          "Vias: The vias of all nets.")
      .def_property_readonly("via_kinds", &KindsOfVias, "list[str]: The names of the padstacks of vias.")
      .def_property_readonly(
          "findings",
          [](const BoardHandle& self) {
            return MakePython(self.owner, FindingsOf(SharedSetOf(self.owner)).list);
          },
          "list[Finding]: What is wrong with the files, the first hundred of each code. They are looked for "
          "when first asked for, which reads the files again; in contents and pipes, at once.")
      .def_property_readonly("report", &ReportOf,
                             "dict[str, FileReport]: What became of the lines of each file: \"tech\", "
                             "\"neutral\", \"geometry\", \"traces\".")
      .def("_tables", &TablesOf, "_tables(self) -> dict[str, dict[str, Any]]")
      .def(
          "tables",
          [](const py::object& self) { return py::module_::import("kestrin._tables").attr("of")(self); },
          "tables(self) -> dict[str, Any]\n\nThe board as data frames of pandas: \"components\", "
          "\"pins\", \"nets\", \"tracks\", \"vias\", \"areas\", \"findings\".")
      .def("to_dict", &DocumentOf,
           "to_dict(self) -> dict[str, Any]\n\nThe board as nested plain data: what `kestrin board` prints.");
}

template <class... Records>
void BindAll(py::module_& module) {
  (BindRecord<Records>(module), ...);
}

}  // namespace

void BindBoard(py::module_& module) {
  BindAll<Reading, Layer, Pin, Component, NetPin, Area, Net>(module);
  BindNames<Layer>(module);
  BindNames<Component>(module);
  BindNames<Pin>(module);
  BindNames<NetPin>(module);
  BindNames<Net>(module);
  BindAll<FindingPlace, Finding, SkippedLine, tool::SkippedGroup, SyntaxError>(module);
  BindRecord<tool::ReadFile>(module)
      .def_property_readonly(
          "codes",
          [](const Handle<tool::ReadFile>& self) { return MakePython(self.owner, self.record->codes); },
          "list[SkippedLines]: The skipped lines by reason.")
      .def_property_readonly(
          "syntax_errors", &SyntaxErrorsOf,
          "list[SyntaxFault]: Of the Traces file after read(strict=True): where it breaks its "
          "grammar.");
  BindCopper(module);
  BindWholeBoard(module);
}

}  // namespace kestrin::python
