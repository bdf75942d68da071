#include <utility>

#include "kestrin/board/copper.h"
#include "kestrin/board/for_each_record.h"
#include "kestrin/board/point_strips.h"
#include "kestrin/board/polygons.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {
namespace {

/// Assigns every hole to the first area that contains its first point. Drops holes outside all areas.
class HoleAssignment {
 public:
  void Add(Polygon hole) {
    if (hole.empty()) return;
    firstPoints_.push_back(hole.front());
    vertices_ += hole.size();
    holes_.push_back(std::move(hole));
  }

  void Assign(std::vector<Area>& areas, std::size_t firstArea) {
    if (holes_.empty()) return;
    for (std::size_t i = firstArea; i < areas.size(); ++i) vertices_ += areas[i].outline.size();
    Effort effort(vertices_);
    PointStrips strips;
    strips.Assign(firstPoints_);
    std::vector<std::size_t> owners(holes_.size(), areas.size());
    for (std::size_t i = firstArea; i < areas.size(); ++i) {
      for (const std::size_t hole : strips.Inside(areas[i].outline, effort))
        owners[hole] = std::min(owners[hole], i);
    }
    for (std::size_t hole = 0; hole < holes_.size(); ++hole) {
      if (owners[hole] < areas.size()) areas[owners[hole]].holes.push_back(std::move(holes_[hole]));
    }
  }

 private:
  std::vector<Polygon> holes_;
  std::vector<Point> firstPoints_;
  std::size_t vertices_ = 0;
};

struct Fill {
  const CMTracesFIL& record;
  Index index;
  double unit;
};

template <class Areas, class Islands>
void AddAreas(const Fill& fill, const Areas& areas, const Islands& islands, bool isFromArsList, Net& net) {
  const std::size_t firstArea = net.areas.size();
  ForEachRecord(areas, [&](const CMTracesArea& record, Index index) {
    Area& area = net.areas.emplace_back();
    area.layer = ComparedName(fill.record.m_sName2.View());
    area.outline = VerticesOf(record, fill.unit);
    area.fill = fill.index;
    area.area = index;
    area.isFromArsList = isFromArsList;
  });
  HoleAssignment holes;
  ForEachRecord(islands, [&](const auto& island, Index) { holes.Add(VerticesOf(island, fill.unit)); });
  holes.Assign(net.areas, firstArea);
}

}  // namespace

void ReadAreas(const CMTraces* traces, const std::vector<Index>& netOf, Board& board) {
  if (traces == nullptr) return;
  ForEachRecord(traces->m_pFilArray, [&](const CMTracesFIL& record, Index index) {
    if (record.m_pAreArray->IsEmpty() && record.m_pArsArray->IsEmpty()) return;
    Net& net = board.nets[netOf[index]];
    const Fill fill{record, index, board.units.traces};
    AddAreas(fill, record.m_pAreArray, record.m_pIslArray, false, net);
    AddAreas(fill, record.m_pArsArray, record.m_pIssArray, true, net);
  });
}

}  // namespace kestrin
