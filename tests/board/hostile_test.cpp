#include <gtest/gtest.h>

#include <memory>
#include <random>

#include "kestrin/geometry/geometry_model.h"
#include "kestrin/neutral/component_model.h"
#include "kestrin/neutral/net_model.h"
#include "kestrin/records/record_pool.h"
#include "kestrin/traces/traces_model.h"
#include "tests/board/board_of.h"

namespace kestrin {
namespace {

using test::BoardOf;

/// Adds a record from a pool, as readers do. Records on the heap take far more memory.
template <class Record, class List>
Record& AddTo(const List& list, RecordPool& pool) {
  list->Add(pool.Make<Record>().release());
  return *list->GetAt(list->GetUpperBound());
}

/// A net with many pins of one component and many legs. Functions set their positions.
struct BigNet {
  template <class PinAt, class LegAt>
  BigNet(int pins, PinAt pinAt, int points, LegAt legAt) {
    auto& geometryRecord = AddTo<CMGeomComponent>(geometry.m_pComponents, pool);
    auto& component = AddTo<CMCompsInfo>(components.m_pInfos, pool);
    component.m_Data.m_sValue1 = "U";
    component.m_Data.m_nValue8 = 30;
    auto& net = AddTo<CMNetInfo>(nets.m_pNets, pool);
    for (int i = 0; i < pins; ++i) {
      auto& pin = AddTo<CMGeomPinDef>(geometryRecord.m_pPinDefs, pool);
      pin.m_sName = CString(std::to_string(i));
      const Point at = pinAt(i);
      pin.m_dX = at.x;
      pin.m_dY = at.y;
      auto& onNet = AddTo<CMRefPin>(net.m_pPins, pool);
      onNet.m_sRef = "U";
      onNet.m_sPin = pin.m_sName;
    }
    auto& wire = AddTo<CMTracesWIRANT>(AddTo<CMTracesNET>(traces.m_pNetArray, pool).m_pWirArray, pool);
    for (int i = 0; i < points; ++i) {
      auto& point = AddTo<CMTracesSEG>(wire.m_pSegArray, pool);
      const Point at = legAt(i);
      point.m_dValue1 = at.x;
      point.m_dValue2 = at.y;
      point.m_nValue3 = 1;
    }
  }

  [[nodiscard]] Board Read() const {
    return ReadBoard({.tech = nullptr,
                      .components = &components,
                      .nets = &nets,
                      .geometry = &geometry,
                      .traces = &traces});
  }

  RecordPool pool;
  CMGeom geometry;
  CMComps components;
  CMNetList nets;
  CMTraces traces;
};

/// Each of these would take hours if every pin were compared with every leg. ctest stops them after a minute.
TEST(HostileBoard, TakesLinearTimeForAnyLayoutOfPinsAndLegs) {
  constexpr int kMany = 100'000;
  std::mt19937 random(1);
  std::uniform_real_distribution<double> anywhere(0, 1000);
  const auto scattered = [&](int) { return Point{anywhere(random), anywhere(random)}; };
  const auto onDiagonal = [](int i) { return Point{i * 0.01, i * 0.01}; };
  const auto alongDiagonal = [](int i) { return i % 2 == 0 ? Point{0.0, 0.005} : Point{3000.0, 3000.005}; };
  const auto inOnePlace = [](int) { return Point{1.0, 1.0}; };
  const auto farApart = [](int i) { return Point{i % 1000 == 0 ? i * 1e300 : i * 1e-9, i * 1e-9}; };
  EXPECT_EQ(BigNet(kMany, scattered, kMany, scattered).Read().reading.pinsCounted, std::size_t{kMany});
  EXPECT_EQ(BigNet(kMany, onDiagonal, kMany, alongDiagonal).Read().reading.pinsCounted, std::size_t{kMany});
  EXPECT_EQ(BigNet(kMany, inOnePlace, kMany, inOnePlace).Read().reading.pinsCounted, std::size_t{kMany});
  EXPECT_EQ(BigNet(kMany, farApart, kMany, farApart).Read().reading.pinsCounted, std::size_t{kMany});
}

TEST(HostileBoard, ReadsAMillionPinsAndATrackOfAMillionPoints) {
  constexpr int kMany = 1'000'000;
  const auto row = [](int i) { return Point{i * 0.5, 0.0}; };
  const Board board = BigNet(kMany, row, kMany, row).Read();
  EXPECT_EQ(board.nets[0].pins.count, std::size_t{kMany});
  ASSERT_EQ(board.tracks.size(), 1U);
  EXPECT_EQ(board.tracks[0].points.count, std::size_t{kMany});
  EXPECT_EQ(board.nets[0].lengths[0].length, (kMany - 1) * 0.5);
}

/// A few thousand lines must not make a billion pins.
TEST(HostileBoard, LeavesOutPinsThatFarOutnumberItsLines) {
  std::string geometry = "$$create_component(G)\n";
  std::string neutral = "###Component\n";
  for (int i = 0; i < 5000; ++i) {
    geometry += "$$attribute(COMPONENT_PIN_DEFINITION, " + std::to_string(i) + ", [1, 1])\n";
    neutral += "COMP U" + std::to_string(i) + " p s G 0 0 1 0\n";
  }
  const Board board = BoardOf({.tech = {},
                               .neutral = neutral + "###Nets\nNET A\nN_PIN U4999-1 a b c d\n",
                               .geometry = geometry,
                               .traces = {}});
  EXPECT_EQ(board.components.size(), 5000U);
  EXPECT_EQ(board.components[0].pins.count, 5000U);
  EXPECT_EQ(board.componentsWithoutRoom, 4792U);
  EXPECT_EQ(board.netPins[0].component, 4999U);
  EXPECT_EQ(board.netPins[0].pin, std::nullopt);
}

TEST(HostileBoard, CutsPinsWithManyHyphensInLinearTime) {
  std::string neutral = "###Component\n";
  for (int i = 0; i < 2000; ++i)
    neutral += "COMP " + std::string(static_cast<std::size_t>(i), '-') + "A p s G 0 0 1 0\nCOMP A" +
               std::string(static_cast<std::size_t>(i), '-') + " p s G 0 0 1 0\n";
  neutral += "###Nets\nNET N\n";
  for (int i = 0; i < 200; ++i)
    neutral += "N_PIN A" + std::string(20'000, '-') + std::to_string(i) + " a b c d\n";
  const Board board = BoardOf({.tech = {}, .neutral = neutral, .geometry = {}, .traces = {}});
  EXPECT_EQ(board.nets[0].pins.count, 200U);
  EXPECT_EQ(board.netPins[7].component, 3999U);
}

/// The area is a comb: every pin is between two edges that span the full height.
TEST(HostileBoard, SearchesAreasWithManyVerticesInLinearTime) {
  constexpr int kMany = 100'000;
  const auto row = [](int i) { return Point{i * 0.01, 0.5 + i * 1e-9}; };
  BigNet net(kMany, row, 0, row);
  RecordPool& pool = net.pool;
  auto& fill = AddTo<CMTracesFIL>(net.traces.m_pFilArray, pool);
  auto& area = AddTo<CMTracesARE>(fill.m_pAreArray, pool);
  for (int i = 0; i < kMany; ++i) {
    auto& vertex = AddTo<CMTracesVER>(area.m_pVerArray, pool);
    vertex.m_dX = i * 0.01;
    vertex.m_dY = i % 2 == 0 ? -1000.0 : 1000.0;
    auto& hole = AddTo<CMTracesVER>(AddTo<CMTracesISL>(fill.m_pIslArray, pool).m_pVerArray, pool);
    hole.m_dX = i * 0.01;
    hole.m_dY = 0.5;
  }
  const Board board = net.Read();
  EXPECT_EQ(board.reading.pinsCounted, std::size_t{kMany});
}

/// Puts any number in any place. The sanitizers report conversions out of range.
TEST(HostileBoard, HasNoNanCoordinates) {
  const char* numbers[] = {"1e400", "-1e400", "1e308", "-1e308", "1e-308", "0", "-0", "1e15", "-9e15", "4e6"};
  std::mt19937 random(2);
  const auto any = [&] { return std::string(numbers[random() % std::size(numbers)]) + " "; };
  for (int round = 0; round < 300; ++round) {
    std::string traces = "UNITS " + std::string(round % 2 == 0 ? "IN" : "UM") + "\n# NET A\nINC 1 " + any() +
                         any() + "1 " + any() + any() + "1\nWIR 1 0 0 0 0\n";
    for (int i = 0; i < 6; ++i) traces += "SEG " + any() + any() + "1 " + any() + "\n";
    traces += "FIL A L S\nARE A L S 1 0 4\n";
    for (int i = 0; i < 6; ++i) traces += "VER " + any() + any() + "\n";
    traces += "ISL 1\nVER " + any() + any() + "\n";
    const Board board = BoardOf(
        {.tech = {},
         .neutral = "B_UNITS IN\n###Nets\nNET A\nN_PIN U-1 a b c d\n###Component\nCOMP U p s G " + any() +
                    any() + std::to_string(1 + round % 2) + " " + std::to_string(round),
         .geometry = "$$create_component(G)\n$$page(@in)\n$$attribute(COMPONENT_PIN_DEFINITION, 1, [" +
                     any() + "," + any() + "])",
         .traces = traces});
    const std::string all = test::Components(board) + test::Copper(board) + test::Areas(board);
    EXPECT_EQ(all.find("nan"), std::string::npos) << all;
    EXPECT_EQ(all.find("(-0"), std::string::npos) << all;
  }
}

TEST(HostileBoard, SkipsNullSlotsThatHostsLeft) {
  BigNet net(
      4,
      [](int i) {
        return Point{i * 1.0, 0};
      },
      4,
      [](int i) {
        return Point{i * 1.0, 0};
      });
  const std::string before = test::Components(net.Read()) + test::Copper(net.Read());
  net.geometry.m_pComponents->InsertAt(0, static_cast<CMGeomComponent*>(nullptr));
  net.geometry.m_pVias->Add(nullptr);
  net.geometry.m_pPins->Add(nullptr);
  net.components.m_pInfos->Add(nullptr);
  net.nets.m_pNets->Add(nullptr);
  net.nets.m_pNets->GetAt(0)->m_pPins->InsertAt(2, static_cast<CMRefPin*>(nullptr));
  net.traces.m_pNetArray->Add(nullptr);
  net.traces.m_pFilArray->Add(nullptr);
  net.traces.m_pNetArray->GetAt(0)->m_pWirArray->InsertAt(0, static_cast<CMTracesWIRANT*>(nullptr));
  EXPECT_EQ(test::Components(net.Read()) + test::Copper(net.Read()), before);
}

}  // namespace
}  // namespace kestrin
