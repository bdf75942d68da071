#pragma once

/// @file
/// The fields of the records of a board. Their context is the board.

#include <span>
#include <string>
#include <string_view>

#include "kestrin/board/board.h"
#include "tool/fields.h"
#include "tool/reading_words.h"

namespace kestrin::tool {

template <>
inline constexpr auto kFields<Reading> = std::tuple{
    Field{"rotation", "How components on the top turn: \"ccw\" or \"cw\".",
          [](const Reading& reading) { return WordOf(reading.rotation); }},
    Field{"bottom", "How components on the bottom turn: \"ccw\" or \"cw\".",
          [](const Reading& reading) { return WordOf(reading.bottom); }},
    Field{"bottomTurn", "Degrees added to the angle of components on the bottom: 0 or 180.",
          &Reading::bottomTurn},
    Field{"widthStep", "The unit of widths written with digits only, in units of the Traces file.",
          &Reading::widthStep},
    Field{"fitted", "Whether the data decided something.", &Reading::isFitted},
    Field{"confirmed", "Whether the copper confirms the placement; else it is a guess.",
          &Reading::isConfirmed},
    Field{"pinsTouching", "How many of the counted pins touch copper of their net.", &Reading::pinsTouching},
    Field{"pinsCounted", "The number of pins of nets with copper.", &Reading::pinsCounted},
};

template <>
inline constexpr auto kFields<Layer> = std::tuple{
    Field{"number", "The number, counted from the top.", &Layer::number},
    Field{"name", "The name of the physical layer.", &Layer::name},
    Field{"names", "The names of the logical layers on it.", &Layer::names},
};

template <>
inline constexpr auto kFields<Pin> = std::tuple{
    Field{"name", "The name within its component.", &Pin::name},
    Field{"x", "The position on the board in mm.", [](const Pin& pin) { return pin.position.x; }},
    Field{"y", "The position on the board in mm.", [](const Pin& pin) { return pin.position.y; }},
    Field{"padstack", "The name of its padstack, if there is one.",
          [](const Board& board, const Pin& pin) {
            return pin.padstack ? &board.padstacks[*pin.padstack].name : nullptr;
          }},
    Field{"net", "Its net, if it has one.",
          [](const Board& board, const Pin& pin) { return pin.net ? &board.nets[*pin.net] : nullptr; }},
};

template <>
inline constexpr auto kFields<Component> = std::tuple{
    Field{"name", "Its reference.", &Component::name},
    Field{"part", "The part.", &Component::part},
    Field{"symbol", "The symbol.", &Component::symbol},
    Field{"geometry", "The name of its geometry.", &Component::geometry},
    Field{"x", "The position of its origin in mm.",
          [](const Component& component) { return component.position.x; }},
    Field{"y", "The position of its origin in mm.",
          [](const Component& component) { return component.position.y; }},
    Field{"rotation", "The angle in degrees, as the file has it.", &Component::rotation},
    Field{"side", "Where it is mounted: \"top\" or \"bottom\".",
          [](const Component& component) {
            return std::string_view(component.side == Side::kTop ? "top" : "bottom");
          }},
    Field{"pins", "Its pins, in the order of its geometry.",
          [](const Board& board, const Component& component) { return board.PinsOf(component); }},
};

template <>
inline constexpr auto kFields<NetPin> = std::tuple{
    Field{"name", "The component's reference, \"-\", the pin's name.", &NetPin::name},
    Field{"component", "Its component, if the board has it.",
          [](const Board& board, const NetPin& pin) {
            return pin.component ? &board.components[*pin.component] : nullptr;
          }},
    Field{"pin", "The pin, if its component has it.",
          [](const Board& board, const NetPin& pin) { return pin.pin ? &board.pins[*pin.pin] : nullptr; }},
};

template <>
inline constexpr auto kFields<Track> = std::tuple{
    Field{"layer", "The number of the physical layer.", &Track::layer},
    Field{"width", "The width in mm, if it is known.", &Track::width},
    Field{"points", "The points in mm.",
          [](const Board& board, const Track& track) { return board.PointsOf(track); }},
};

template <>
inline constexpr auto kFields<LayerLength> = std::tuple{
    Field{"layer", "The number of the physical layer.", &LayerLength::layer},
    Field{"mm", "The length of all tracks in mm.", &LayerLength::length},
};

template <>
inline constexpr auto kFields<Via> = std::tuple{
    Field{"name", "The name of its padstack.",
          [](const Board& board, const Via& via) -> const std::string& {
            return board.viaPadstacks[via.padstack].name;
          }},
    Field{"x", "The position in mm.", [](const Via& via) { return via.position.x; }},
    Field{"y", "The position in mm.", [](const Via& via) { return via.position.y; }},
};

template <>
inline constexpr auto kFields<Area> = std::tuple{
    Field{"layer", "The layer, as the file names it.", &Area::layer},
    Field{"outline", "The corners in mm.", &Area::outline},
    Field{"holes", "The corners of each hole in mm.", &Area::holes},
};

template <>
inline constexpr auto kFields<Net> = std::tuple{
    Field{"name", "The name.", &Net::name},
    Field{"pins", "The pins, in the order of the file.",
          [](const Board& board, const Net& net) { return board.PinsOf(net); }},
    Field{"tracks", "The tracks.", [](const Board& board, const Net& net) { return board.TracksOf(net); }},
    Field{"length", "The length of the tracks on each layer in mm.", &Net::lengths},
    Field{"vias", "The vias.", [](const Board& board, const Net& net) { return board.ViasOf(net); }},
    Field{"areas", "The filled areas.", &Net::areas},
    Field{"open", "The ends of connections that are not routed yet, in mm.", &Net::open},
};

template <>
inline constexpr auto kFields<Board> = std::tuple{
    Field{"name", "The name of the board geometry; may be empty.", &Board::name},
    Field{"units", "The unit of all lengths: \"mm\".", [](const Board&) { return std::string_view("mm"); }},
    Field{"reading", "How the board was read from the files, and how well that fits.", &Board::reading},
    Field{"outline", "The corners of the outline in mm, if there is one.",
          [](const Board& board) { return board.outline.empty() ? nullptr : &board.outline; }},
    Field{"layers", "The physical layers, from top to bottom.", &Board::layers},
    Field{"components", "The components, in the order of the file.", &Board::components},
    Field{"nets", "The nets, in the order of the files.", &Board::nets},
};

}  // namespace kestrin::tool
