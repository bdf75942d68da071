#include "python/copper.h"

#include "python/texts.h"

namespace kestrin::python {
namespace {

/// The type of a column.
template <class Number>
std::string TypeOf(NumberBlock<Number> Legs::* /*column*/) {
  return ArrayType<Number>();
}

py::array ColumnOf(const Vias& vias, const auto& member) {
  static const Via kNone;
  const Via& first = vias.vias.empty() ? kNone : vias.vias.front();
  return ViewOf(vias.owner, vias.vias, member(first));
}

void BindTracks(py::module_& module) {
  py::class_<Tracks> tracks(
      module, "Tracks",
      "The legs of tracks, as arrays of equal length.\n\nA leg is straight and has one "
      "layer, width and net. The arrays are read-only views of memory that the board owns.");
  ForbidMaking(tracks);
  tool::ForEachFieldOf<Legs>([&](const auto& field) {
    tracks.def_property_readonly(
        field.name, [getter = field.getter](const Tracks& self) { return self.Column(getter); },
        (TypeOf(field.getter) + ": " + field.meaning).c_str());
  });
  tracks.def("__len__", &Tracks::Size, "__len__(self) -> int");
  tracks.def("__repr__",
             [](const Tracks& self) { return "<kestrin.Tracks: " + std::to_string(self.Size()) + " legs>"; });
}

void BindVias(py::module_& module) {
  py::class_<Vias> vias(
      module, "Vias",
      "Vias, as arrays of equal length.\n\nThe arrays are read-only views of memory that the "
      "board owns.");
  ForbidMaking(vias);
  vias.def_property_readonly(
      "x",
      [](const Vias& self) {
        return ColumnOf(
            self, [](const Via& via) -> auto& { return via.position.x; });
      },
      "NDArray[float64]: The positions in mm.");
  vias.def_property_readonly(
      "y",
      [](const Vias& self) {
        return ColumnOf(
            self, [](const Via& via) -> auto& { return via.position.y; });
      },
      "NDArray[float64]: The positions in mm.");
  vias.def_property_readonly(
      "kind",
      [](const Vias& self) {
        return ColumnOf(
            self, [](const Via& via) -> auto& { return via.padstack; });
      },
      "NDArray[uint32]: Their padstacks, as indexes into Board.via_kinds.");
  vias.def(
      "__len__", [](const Vias& self) { return self.vias.size(); }, "__len__(self) -> int");
  vias.def("__repr__",
           [](const Vias& self) { return "<kestrin.Vias: " + std::to_string(self.vias.size()) + " vias>"; });
}

}  // namespace

Tracks::Tracks(SharedOwner owner, std::span<const Track> tracks) : owner_(std::move(owner)) {
  if (tracks.empty()) return;
  const Board& board = SetOf(*owner_).board;
  const auto track = static_cast<std::size_t>(tracks.data() - board.tracks.data());
  first_ = LegsBefore(board, track);
  count_ = LegsBefore(board, track + tracks.size()) - first_;
}

void BindCopper(py::module_& module) {
  BindTracks(module);
  BindVias(module);
}

}  // namespace kestrin::python
