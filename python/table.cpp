#include "python/table.h"

#include <array>
#include <string_view>

#include "python/column.h"

namespace kestrin::python {
namespace {

using Texts = Column<std::optional<std::string_view>>;

/// A record, and the name of what it belongs to.
template <class Record>
struct Row {
  std::string_view of;
  const Record* record;
};
template <class Record>
using Rows = std::vector<Row<Record>>;

/// Adds a column for each field of the records.
template <class Record>
void AddFields(py::dict& columns, const Owner& owner, const Rows<Record>& rows) {
  tool::ForEachFieldOf<Record>([&](const auto& field) {
    using Cell = decltype(CellOf(ValueOf(field, owner, *rows.front().record)));
    Column<Cell> column(rows.size());
    for (const Row<Record>& row : rows) column.Add(owner, CellOf(ValueOf(field, owner, *row.record)));
    columns[field.name] = column.Finish();
  });
}

/// The columns of records that belong to something, whose names are the first column.
template <class Record>
py::dict FieldsOf(const Owner& owner, const char* of, const Rows<Record>& rows) {
  py::dict columns;
  if (*of != '\0') {
    Texts names(rows.size());
    for (const Row<Record>& row : rows) names.Add(owner, row.of);
    columns[of] = names.Finish();
  }
  AddFields(columns, owner, rows);
  return columns;
}

/// The rows of lists in other records: the vias of each net.
template <class Record, class Outer, class ListOf>
Rows<Record> Nested(const std::vector<Outer>& outer, ListOf listOf) {
  Rows<Record> rows;
  for (const Outer& holder : outer) {
    for (const Record& record : listOf(holder)) rows.push_back({holder.name, &record});
  }
  return rows;
}

template <class Record>
Rows<Record> AllOf(const std::vector<Record>& records) {
  Rows<Record> rows;
  for (const Record& record : records) rows.push_back({{}, &record});
  return rows;
}

py::dict Components(const Handle<Board>& board) {
  return FieldsOf(*board.owner, "", AllOf(board.record->components));
}

py::dict PinsOf(const Handle<Board>& board) {
  return FieldsOf(*board.owner, "component",
                  Nested<Pin>(board.record->components,
                              [&](const Component& component) { return board.record->PinsOf(component); }));
}

py::dict Nets(const Handle<Board>& board) { return FieldsOf(*board.owner, "", AllOf(board.record->nets)); }

py::dict Legs(const Handle<Board>& board) {
  const Tracks tracks(board.owner, board.record->tracks);
  py::dict columns;
  tool::ForEachFieldOf<python::Legs>(
      [&](const auto& field) { columns[field.name] = tracks.Column(field.getter); });
  return columns;
}

py::dict ViasOf(const Handle<Board>& board) {
  return FieldsOf(*board.owner, "net",
                  Nested<Via>(board.record->nets, [&](const Net& net) { return board.record->ViasOf(net); }));
}

py::dict Areas(const Handle<Board>& board) {
  const auto areasOf = [](const Net& net) -> const std::vector<Area>& { return net.areas; };
  return FieldsOf(*board.owner, "net", Nested<Area>(board.record->nets, areasOf));
}

/// Findings, with the first line that each is about.
py::dict FindingsTable(const Handle<Board>& board) {
  const SharedSet shared = SharedSetOf(board.owner);
  const ReadSet& set = *shared;
  const Findings& findings = FindingsOf(shared);
  py::dict columns = FieldsOf(set, "", AllOf(findings.list));
  py::list files;
  std::vector<std::int64_t> lines;
  for (const Finding& finding : findings.list) {
    const bool isAnywhere = !finding.at.empty();
    files.append(isAnywhere ? py::object(PathOf(set.imported.files.PathOf(finding.at.front().file)))
                            : py::none());
    lines.push_back(isAnywhere ? finding.at.front().line : 0);
  }
  columns["file"] = files;
  columns["line"] = ArrayOf(lines);
  return columns;
}

struct Table {
  std::string_view name;
  py::dict (*columns)(const Handle<Board>& board);
};
constexpr std::array kTables{Table{"components", &Components}, Table{"pins", &PinsOf}, Table{"nets", &Nets},
                             Table{"tracks", &Legs},           Table{"vias", &ViasOf}, Table{"areas", &Areas},
                             Table{"findings", &FindingsTable}};

}  // namespace

py::dict TablesOf(const Handle<Board>& board) {
  py::dict tables;
  for (const Table& table : kTables) tables[py::str(std::string(table.name))] = table.columns(board);
  return tables;
}

}  // namespace kestrin::python
