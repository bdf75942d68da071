#pragma once

/// @file
/// The board that the four models describe together: components with placed pins, nets with their copper,
/// and layers in order, all in one unit.
///
///     const kestrin::Board board = kestrin::ReadBoard(kestrin::ModelsOf(session));
///     for (const kestrin::Net& net : board.nets) {
///       for (const kestrin::Track& track : board.TracksOf(net)) Draw(track.layer, board.PointsOf(track));
///     }
///
/// ReadBoard (read_board.h) makes a board. It is plain data without pointers into the models: you may walk,
/// copy and keep it.
///
/// The formats do not say what most of their values mean. The comment of each member or class says how sure
/// its meaning is:
/// - given: the format defines it;
/// - convention: the values look like this, and a host would usually read them so;
/// - fitted: the one of several conventions that fits the data best. Reading says how well it fits.
///
/// Lengths and coordinates are in millimetres, rounded to 1e-9. x points right and y points up. Angles are in
/// degrees. A coordinate is infinite if the file says so or if it cannot be computed; it is never NaN.
///
/// Names are stored in the form in which they are compared: without apostrophes and blanks at either end. In
/// references and pin names, "_" also replaces each blank. A sourceIndex is the index of a record in its
/// model's list.

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "kestrin/base/export.h"

namespace kestrin {

/// An index into a list. It has 32 bits, since boards would otherwise be much larger: a list with more
/// elements counts as one for which there is no memory.
using Index = std::uint32_t;

/// A point in the plane.
struct Point {
  ///@{
  /// A coordinate.
  double x = 0.0;
  double y = 0.0;
  ///@}

  /// Whether both coordinates are equal.
  friend bool operator==(const Point&, const Point&) = default;
};

/// A closed outline: the last point joins the first, which is not repeated.
using Polygon = std::vector<Point>;

/// Consecutive elements of one of the board's lists. A board has few large lists instead of many small ones,
/// since it would otherwise take most of its time to allocate them.
struct Range {
  Index first = 0;  ///< the index of the first element
  Index count = 0;  ///< the number of elements
};

/// A side of the board.
enum class Side : std::uint8_t { kTop, kBottom };

/// The direction in which positive angles turn, seen from the top.
enum class Sense : std::uint8_t { kCounterClockwise, kClockwise };

/// How the placement of components and the widths of tracks were read. Fitted, except for what the caller
/// specified.
struct Reading {
  Sense rotation = Sense::kCounterClockwise;  ///< of components on the top
  Sense bottom = Sense::kCounterClockwise;    ///< of components on the bottom, after they were mirrored
  int bottomTurn = 0;                         ///< added to the angle of components on the bottom: 0 or 180
  /// The unit of widths that are written with digits only, in units of the Traces file; none if unknown. With
  /// a step of 0.001, `250` is 0.25.
  std::optional<double> widthStep;
  bool isFitted = false;     ///< the caller left something open, and the data decided it
  bool isConfirmed = false;  ///< enough pins touch copper, and no other reading fits as well; else a guess
  std::size_t pinsTouching = 0;  ///< how many of the counted pins touch copper of their net
  std::size_t pinsCounted = 0;   ///< the pins of nets with copper
};

/// The number of millimetres in a unit of each file. Given if the file names a known unit.
struct Units {
  double neutral = 1.0;   ///< of the Neutral file
  double geometry = 1.0;  ///< of the Geometry file, for geometries that name no unit
  double traces = 1.0;    ///< of the Traces file

  /// Millimetres in the unit that a geometry names; the Geometry file's if the word is not a known unit.
  [[nodiscard]] KESTRIN_EXPORT double OfGeometry(std::string_view word) const;
};

/// A physical layer. Given if there is a Tech file, else convention.
struct Layer {
  int number = 0;                    ///< counted from the top
  std::string name;                  ///< of the physical layer
  std::vector<std::string> names;    ///< of the logical layers on it; none without a Tech file
  std::optional<Index> sourceIndex;  ///< in CMTech::m_pStackupArray
};

/// A padstack that pins name. Given.
struct Padstack {
  std::string name;                  ///< as pins name it
  double unit = 1.0;                 ///< millimetres in a unit of its drawing
  std::optional<Index> sourceIndex;  ///< in CMGeom::m_pPins; none if no pin geometry has the name
};

/// A kind of via. Given.
struct ViaPadstack {
  std::string name;   ///< as points of tracks name it
  double unit = 1.0;  ///< millimetres in a unit of its drawing
  /// The layers that it joins, as ascending indexes into Board::layers. These are the layers that its drawing
  /// objects name; empty means all layers (convention).
  std::vector<Index> layers;
  std::optional<Index> sourceIndex;  ///< in CMGeom::m_pVias; none if only a via rule has the name
};

/// Maps the drawing of a geometry onto the board: scales it to millimetres, mirrors it in x, rotates it and
/// moves it.
struct Transform {
  double unit = 1.0;        ///< millimetres in a unit of the geometry
  bool isMirrored = false;  ///< x changes its sign before the rotation
  ///@{
  /// Of the counter-clockwise rotation.
  double cosine = 1.0;
  double sine = 0.0;
  ///@}
  Point origin;  ///< the position of the geometry's origin on the board

  /// The position on the board of a point of the geometry.
  [[nodiscard]] KESTRIN_EXPORT Point Apply(Point point) const;
};

/// A pin of a component. Name and padstack are given, the position is fitted.
struct Pin {
  std::string name;               ///< within its component
  Point position;                 ///< on the board
  std::optional<Index> padstack;  ///< in Board::padstacks; none if the files name none
  std::optional<Index> net;       ///< in Board::nets; none if no net has the pin
};

/// A component. The meaning of the values of its record is convention.
struct Component {
  std::string name;  ///< its reference
  ///@{
  /// A name in its record.
  std::string part;
  std::string symbol;
  std::string geometry;
  ///@}
  Point position;          ///< of the geometry's origin
  int rotation = 0;        ///< as it is in the file
  Side side = Side::kTop;  ///< where it is mounted
  Range pins;              ///< in the geometry's order; empty without a geometry; see Board::PinsOf
  Transform transform;     ///< fitted
  Index sourceIndex = 0;   ///< in CMComps::m_pInfos
  std::optional<Index> geometryIndex;  ///< in CMGeom::m_pComponents; none if no geometry has the name
};

/// A pin of a net, as the net names it. Given.
struct NetPin {
  std::string name;                ///< the component's reference, "-", the pin's name
  std::optional<Index> component;  ///< in Board::components; none if no component has the reference
  std::optional<Index> pin;        ///< in Board::pins; none if the component has no such pin
  Index netRecord = 0;             ///< in CMNetList::m_pNets
  Index pinRecord = 0;             ///< in CMNetInfo::m_pPins of that net
};

/// The list of a net header that a polyline is in.
enum class WireKind : std::uint8_t {
  kWire,         ///< CMTracesNET::m_pWirArray
  kShortBranch,  ///< CMTracesNET::m_pAntWirArray
  kLongBranch    ///< CMTracesNET::m_pAntIncArray
};

/// Consecutive legs of a polyline with the same layer and width. Convention; widths may be fitted.
struct Track {
  Range points;                     ///< two or more; see Board::PointsOf
  std::optional<double> width;      ///< none if unknown
  int layer = 0;                    ///< number of the physical layer, whether or not the board has it
  WireKind kind = WireKind::kWire;  ///< the list with the polyline
  Index header = 0;                 ///< in CMTraces::m_pNetArray
  Index polyline = 0;               ///< in the header's list
};

/// The length of a net's tracks on a layer.
struct LayerLength {
  int layer = 0;        ///< number of the physical layer
  double length = 0.0;  ///< of all tracks
};

/// A via. Convention.
struct Via {
  Point position;      ///< on the board
  Index padstack = 0;  ///< in Board::viaPadstacks
};

/// A filled area. Convention.
struct Area {
  std::string layer;           ///< as the fill names it; look it up with Board::FindLayer
  Polygon outline;             ///< may have fewer than three points if the file does
  std::vector<Polygon> holes;  ///< in the file's order
  Index fill = 0;              ///< in CMTraces::m_pFilArray
  Index area = 0;              ///< in CMTracesFIL::m_pAreArray or m_pArsArray
  bool isFromArsList = false;  ///< whether that is m_pArsArray
};

/// A connection that is not routed yet. Convention.
struct OpenConnection {
  ///@{
  /// An end.
  Point from;
  Point to;
  ///@}
};

/// A net: everything that the Neutral file and the Traces file say under one name. If it has neither net
/// records nor headers, only a fill names it.
struct Net {
  ///@{
  /// A part of the net.
  std::string name;
  Range pins;    ///< in the order of the file; see Board::PinsOf
  Range tracks;  ///< see Board::TracksOf
  Range vias;    ///< see Board::ViasOf
  std::vector<Area> areas;
  std::vector<OpenConnection> open;
  ///@}
  std::vector<LayerLength> lengths;  ///< of the layers with tracks, by ascending layer number
  std::vector<Index> netRecords;     ///< in CMNetList::m_pNets
  std::vector<Index> headers;        ///< in CMTraces::m_pNetArray
};

/// A board. Components, pins and nets are in the order of their files. Nets of the Neutral file come first.
struct Board {
  std::string name;           ///< of the board geometry
  Units units;                ///< of its files
  Reading reading;            ///< how placement and widths were read
  Polygon outline;            ///< the placement outline, else the routing outline, else empty. Convention
  std::vector<Layer> layers;  ///< from top to bottom, by ascending number
  /// The indexes into layers of all logical layers, by name. Contains the names that the layers list, and the
  /// eighteen names of the two sides: "PAD_1" is the top layer and "PAD_2" the bottom layer, unless a layer
  /// lists that name (convention).
  std::map<std::string, Index, std::less<>> layersByName;
  ///@{
  /// The logical layer "SIGNAL_n" with the lowest or highest number; empty if there is none.
  std::string firstSignalLayer;
  std::string lastSignalLayer;
  ///@}
  ///@{
  /// A part of the board.
  std::vector<Padstack> padstacks;
  std::vector<ViaPadstack> viaPadstacks;
  std::vector<Component> components;
  std::vector<Net> nets;
  std::vector<Pin> pins;        ///< of all components, in the order of the components
  std::vector<NetPin> netPins;  ///< of all nets, in the order of the nets
  std::vector<Track> tracks;    ///< of all nets, in the order of the nets
  std::vector<Point> points;    ///< of all tracks, in the order of the tracks
  std::vector<Via> vias;        ///< of all nets, in the order of the nets
  ///@}
  /// The pins of net records that an earlier record has, too. The first net has the pin.
  std::vector<NetPin> repeatedPins;
  /// The number of components whose pins were left out. Files that name large geometries very often would
  /// otherwise make a board with far more pins than the files have lines.
  std::size_t componentsWithoutRoom = 0;

  ///@{
  /// The elements of a range, valid until the board changes.
  [[nodiscard]] std::span<const Pin> PinsOf(const Component& component) const {
    return Elements(pins, component.pins);
  }
  [[nodiscard]] std::span<const NetPin> PinsOf(const Net& net) const { return Elements(netPins, net.pins); }
  [[nodiscard]] std::span<const Track> TracksOf(const Net& net) const { return Elements(tracks, net.tracks); }
  [[nodiscard]] std::span<const Via> ViasOf(const Net& net) const { return Elements(vias, net.vias); }
  [[nodiscard]] std::span<const Point> PointsOf(const Track& track) const {
    return Elements(points, track.points);
  }
  ///@}

  ///@{
  /// The layer with a number, or with the logical layer of a name; null if there is none. The pointer is
  /// valid until the board changes.
  [[nodiscard]] KESTRIN_EXPORT const Layer* FindLayer(int number) const;
  [[nodiscard]] KESTRIN_EXPORT const Layer* FindLayer(std::string_view name) const;
  ///@}

  /// The logical layer of a drawing object in the geometry of a component on a side of the board. For the
  /// top, that is the layer as named. For the bottom, the names of the two sides are exchanged
  /// ("SILKSCREEN_1" becomes "SILKSCREEN_2" and the reverse), and so are the first and last "SIGNAL_n"; other
  /// names stay the same. Convention.
  [[nodiscard]] KESTRIN_EXPORT std::string LayerOn(Side side, std::string_view layer) const;

 private:
  template <class Element>
  [[nodiscard]] static std::span<const Element> Elements(const std::vector<Element>& list, Range range) {
    return std::span<const Element>(list).subspan(range.first, range.count);
  }
};

/// The number of millimetres in a unit: MM, CM, IN, INCH, MIL, MILS, THOU or UM, in upper or lower case; none
/// for any other word. Given.
[[nodiscard]] KESTRIN_EXPORT std::optional<double> MillimetresIn(std::string_view unit);

/// The form in which a name is compared: without apostrophes and blanks at either end. Returns a view into
/// the name.
[[nodiscard]] KESTRIN_EXPORT std::string_view ComparedName(std::string_view name);

/// The form in which the reference of a component or the name of a pin is compared: like ComparedName, with
/// "_" for each blank inside. Pins of nets are written with "_" and components with blanks.
[[nodiscard]] KESTRIN_EXPORT std::string ComparedReference(std::string_view reference);

}  // namespace kestrin
