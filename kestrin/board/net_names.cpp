#include "kestrin/board/net_names.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "kestrin/board/for_each_record.h"
#include "kestrin/board/names.h"
#include "kestrin/board/read_board.h"
#include "kestrin/neutral/net_model.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {
namespace {

/// The nets of a board by name. Does not copy the names: they must outlive it.
class NetTable {
 public:
  /// Reserves room for a number of names.
  NetTable(std::size_t names, Board& board) : nets_(board.nets), byName_(names) { nets_.reserve(names); }

  /// The net of a name. Adds it to the board if the name is new.
  [[nodiscard]] Index IndexOf(std::string_view name) {
    const std::string_view compared = ComparedName(name);
    const Index next = ToIndex(nets_.size());
    const Index index = byName_.Add(compared, next);
    if (index == next) nets_.emplace_back().name = compared;
    return index;
  }

 private:
  std::vector<Net>& nets_;
  NameIndex byName_;
};

}  // namespace

NetsOfRecords ReadNetNames(const BoardModels& models, Board& board) {
  const std::size_t netRecords = SizeOf(models.nets, &CMNetList::m_pNets);
  // Headers mostly repeat the names of net records.
  NetTable table(std::max(netRecords, SizeOf(models.traces, &CMTraces::m_pNetArray)), board);
  NetsOfRecords nets;
  if (models.nets != nullptr) {
    nets.netRecords.resize(netRecords);
    ForEachRecord(models.nets->m_pNets, [&](const CMNetInfo& record, Index index) {
      const Index net = nets.netRecords[index] = table.IndexOf(record.m_sName.View());
      board.nets[net].netRecords.push_back(index);
    });
  }
  if (models.traces == nullptr) return nets;
  ForEachRecord(models.traces->m_pNetArray, [&](const CMTracesNET& record, Index index) {
    board.nets[table.IndexOf(record.m_sName.View())].headers.push_back(index);
  });
  nets.fills.resize(SizeOf(models.traces, &CMTraces::m_pFilArray));
  ForEachRecord(models.traces->m_pFilArray, [&](const CMTracesFIL& record, Index index) {
    const bool hasAreas = !record.m_pAreArray->IsEmpty() || !record.m_pArsArray->IsEmpty();
    if (hasAreas) nets.fills[index] = table.IndexOf(record.m_sName1.View());
  });
  return nets;
}

}  // namespace kestrin
