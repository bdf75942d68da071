#pragma once

/// @file
/// The board that the four models describe together: components with placed pins, nets with their copper,
/// layers in order, one unit. ReadBoard (read_board.h) makes it; from then on it is plain data without
/// pointers into the models, to be walked, copied and kept.
///
///     const kestrin::Board board = kestrin::ReadBoard({.nets = session.GetNetList(), .traces =
///     session.GetTraces()}); for (const kestrin::Net& net : board.nets)
///       for (const kestrin::LayerLength& length : net.lengths) Print(net.name, length.layer, length.length);
///
/// The formats do not say what most of their values mean. So every member here is one of three things, and
/// its comment or that of its class says which:
/// - given: the format says it;
/// - convention: what the values look like and what a host would take them for;
/// - fitted: chosen among several conventions because the data fit it best; Reading says how well.
///
/// Lengths and coordinates are millimetres, rounded to 1e-9, with x to the right and y upwards; angles are
/// degrees. A coordinate may be infinite, where a file says so or where it cannot be computed, and is never
/// not-a-number. Names are in the form in which they compare: without apostrophes and blanks at their ends,
/// and in references and pin names with "_" for a blank. A sourceIndex is the index of a record in its
/// model's list.

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kestrin/base/export.h"

namespace kestrin {

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

/// A side of the board.
enum class Side : std::uint8_t { kTop, kBottom };

/// Which way positive angles turn, seen from the top.
enum class Sense : std::uint8_t { kCounterClockwise, kClockwise };

/// How the placement of components and the widths of tracks were read. Fitted, as far as the caller did not
/// say.
struct Reading {
  Sense rotation = Sense::kCounterClockwise;  ///< of components on the top
  Sense bottom = Sense::kCounterClockwise;    ///< of components on the bottom, after they were mirrored
  int bottomTurn = 0;                         ///< added to the angle of components on the bottom: 0 or 180
  std::optional<double>
      widthStep;             ///< what widths of digits alone count, in the Traces file's unit; none: unknown
  bool isFitted = false;     ///< the data chose among readings that the caller left open
  bool isConfirmed = false;  ///< enough pins touch, and no other reading does as well; else it is a guess
  std::size_t pinsTouching = 0;  ///< of the pins that count, those that touch copper of their net
  std::size_t pinsCounted = 0;   ///< pins of nets that have copper
};

/// Millimetres in a unit of the files. Given where a file names a unit that is known.
struct Units {
  double neutral = 1.0;   ///< Neutral file
  double geometry = 1.0;  ///< Geometry file, for geometries that do not name one
  double traces = 1.0;    ///< Traces file

  /// The unit of a geometry that names it so.
  [[nodiscard]] KESTRIN_EXPORT double OfGeometry(std::string_view word) const;
};

/// A physical layer. Given by the Tech file; without one a convention.
struct Layer {
  int number = 0;                          ///< counted from the top
  std::string name;                        ///< the physical layer's
  std::vector<std::string> names;          ///< the logical layers on it; none without a Tech file
  std::optional<std::size_t> sourceIndex;  ///< in CMTech::m_pStackupArray
};

/// A padstack that pins name. Given.
struct Padstack {
  std::string name;                        ///< as pins name it
  double unit = 1.0;                       ///< millimetres in a unit of its drawing
  std::optional<std::size_t> sourceIndex;  ///< in CMGeom::m_pPins; none where no pin geometry has the name
};

/// A kind of via. Given.
struct ViaPadstack {
  std::string name;   ///< as points of tracks name it
  double unit = 1.0;  ///< millimetres in a unit of its drawing
  /// The layers that it joins, as indexes into Board::layers, rising: those that its drawing objects name.
  /// Empty for all layers (convention).
  std::vector<std::size_t> layers;
  std::optional<std::size_t> sourceIndex;  ///< in CMGeom::m_pVias; none where only a via rule has the name
};

/// Takes the drawing of a geometry to the board: into millimetres, mirrored in x, turned, moved.
struct Transform {
  double unit = 1.0;        ///< millimetres in a unit of the geometry
  bool isMirrored = false;  ///< left and right change places, before the turn
  ///@{
  /// Of the counter-clockwise angle.
  double cosine = 1.0;
  double sine = 0.0;
  ///@}
  Point origin;  ///< where the geometry's origin comes to

  /// Where a point of the geometry comes to.
  [[nodiscard]] KESTRIN_EXPORT Point Apply(Point point) const;
};

/// A pin of a component. Name and padstack are given, the position is fitted.
struct Pin {
  std::string name;                     ///< within its component
  Point position;                       ///< on the board
  std::optional<std::size_t> padstack;  ///< in Board::padstacks; none where nothing names one
  std::optional<std::size_t> net;       ///< in Board::nets; none where no net names the pin
};

/// A component. That the values of its record mean what these members say is convention.
struct Component {
  std::string name;  ///< its reference
  ///@{
  /// What its record names.
  std::string part;
  std::string symbol;
  std::string geometry;
  ///@}
  Point position;               ///< of the geometry's origin
  int rotation = 0;             ///< as the file has it
  Side side = Side::kTop;       ///< where it is mounted
  std::vector<Pin> pins;        ///< in the geometry's order; none without a geometry
  Transform transform;          ///< fitted
  std::size_t sourceIndex = 0;  ///< in CMComps::m_pInfos
  std::optional<std::size_t>
      geometryIndex;  ///< in CMGeom::m_pComponents; none where no geometry has the name
};

/// A pin as its net names it. Given.
struct NetPin {
  std::string name;                      ///< the reference, "-", the pin
  std::optional<std::size_t> component;  ///< in Board::components; none where no component has the reference
  std::optional<std::size_t> pin;        ///< in Component::pins; none where the component has no such pin
  std::size_t netRecord = 0;             ///< in CMNetList::m_pNets
  std::size_t pinRecord = 0;             ///< in CMNetInfo::m_pPins of that
};

/// Which of a net header's lists a polyline is in.
enum class WireKind : std::uint8_t {
  kWire,         ///< CMTracesNET::m_pWirArray
  kShortBranch,  ///< CMTracesNET::m_pAntWirArray
  kLongBranch    ///< CMTracesNET::m_pAntIncArray
};

/// Successive legs of one polyline that have a layer and a width in common. Convention; widths may be fitted.
struct Track {
  std::vector<Point> points;        ///< two or more
  std::optional<double> width;      ///< none where it is not known
  int layer = 0;                    ///< number of the physical layer, whether or not the board has it
  WireKind kind = WireKind::kWire;  ///< the list that the polyline is in
  std::size_t header = 0;           ///< in CMTraces::m_pNetArray
  std::size_t polyline = 0;         ///< in the header's list
};

/// How long the tracks of a net on a layer are.
struct LayerLength {
  int layer = 0;        ///< number of the physical layer
  double length = 0.0;  ///< of all tracks
};

/// A via. Convention.
struct Via {
  Point position;            ///< on the board
  std::size_t padstack = 0;  ///< in Board::viaPadstacks
};

/// A filled area. Convention.
struct Area {
  std::string layer;           ///< as the fill names it; FindLayer tells which that is
  Polygon outline;             ///< may have fewer than three points, as the file has it
  std::vector<Polygon> holes;  ///< in the order of the file
  std::size_t fill = 0;        ///< in CMTraces::m_pFilArray
  std::size_t area = 0;        ///< in CMTracesFIL::m_pAreArray, or m_pArsArray
  bool isFromArsList = false;  ///< which of the two
};

/// A connection that is still to be routed. Convention.
struct OpenConnection {
  ///@{
  /// An end.
  Point from;
  Point to;
  ///@}
};

/// A net: what the Neutral file and the Traces file say under one name.
struct Net {
  ///@{
  /// What it has.
  std::string name;
  std::vector<NetPin> pins;
  std::vector<Track> tracks;
  std::vector<Via> vias;
  std::vector<Area> areas;
  std::vector<OpenConnection> open;
  ///@}
  std::vector<LayerLength> lengths;     ///< by rising layer number; of layers with tracks
  std::vector<std::size_t> netRecords;  ///< in CMNetList::m_pNets
  std::vector<std::size_t>
      headers;  ///< in CMTraces::m_pNetArray; where both are empty only a fill names the net
};

/// A board. Components and pins are in the order of their files; so are nets, those of the Neutral file
/// first.
struct Board {
  std::string name;           ///< the board geometry's
  Units units;                ///< of its files
  Reading reading;            ///< how placement and widths were read
  Polygon outline;            ///< placement outline, else routing outline, else empty. Convention
  std::vector<Layer> layers;  ///< by rising number, top to bottom
  /// Every logical layer by name, as an index into layers: the names that layers list, and the eighteen names
  /// of the two sides ("PAD_1" is the top layer, "PAD_2" the bottom one) as far as none does (convention).
  std::map<std::string, std::size_t, std::less<>> layersByName;
  ///@{
  /// The lowest and the highest "SIGNAL_n"; empty where there is none.
  std::string firstSignalLayer;
  std::string lastSignalLayer;
  ///@}
  ///@{
  /// What it has.
  std::vector<Padstack> padstacks;
  std::vector<ViaPadstack> viaPadstacks;
  std::vector<Component> components;
  std::vector<Net> nets;
  ///@}
  /// Components whose pins were left out, because a board that names large geometries very often would have
  /// far more pins than its files have lines.
  std::size_t componentsWithoutRoom = 0;

  ///@{
  /// The layer with that number, or with that logical name; null when there is none. Valid until the board
  /// changes.
  [[nodiscard]] KESTRIN_EXPORT const Layer* FindLayer(int number) const;
  [[nodiscard]] KESTRIN_EXPORT const Layer* FindLayer(std::string_view name) const;
  ///@}

  /// The logical layer that a drawing object of a component's geometry comes to on that side of the board: on
  /// the bottom the names of the two sides change places ("SILKSCREEN_1", "SILKSCREEN_2"), and so do the
  /// first and the last "SIGNAL_n"; others stay. Convention.
  [[nodiscard]] KESTRIN_EXPORT std::string LayerOn(Side side, std::string_view layer) const;
};

/// Millimetres in a unit that files name: MM, CM, IN, INCH, MIL, MILS, THOU or UM, whatever their case; none
/// for any other word. Given.
[[nodiscard]] KESTRIN_EXPORT std::optional<double> MillimetresIn(std::string_view unit);

/// A name in the form in which names compare: without apostrophes and blanks at its ends. A view into the
/// name.
[[nodiscard]] KESTRIN_EXPORT std::string_view ComparedName(std::string_view name);

/// A component's reference or a pin's name in the form in which they compare: a blank inside counts as "_",
/// because pins of nets are written that way and components are not.
[[nodiscard]] KESTRIN_EXPORT std::string ComparedReference(std::string_view reference);

}  // namespace kestrin
