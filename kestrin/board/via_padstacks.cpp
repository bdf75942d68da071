#include <algorithm>

#include "kestrin/board/copper.h"
#include "kestrin/board/drawing_layer.h"
#include "kestrin/board/for_each_record.h"
#include "kestrin/board/read_board.h"
#include "kestrin/geometry/geometry_model.h"
#include "kestrin/tech/tech_model.h"

namespace kestrin {
namespace {

/// Convention: a via joins the layers on which it has a pad.
std::vector<Index> LayersOf(const CMGeomVia& via, const Board& board) {
  std::vector<Index> layers;
  ForEachRecord(via.m_pDrawObjs, [&](const CMGeomDrawObj& object, Index) {
    const auto found = board.layersByName.find(LayerOf(object));
    if (found != board.layersByName.end()) layers.push_back(found->second);
  });
  std::sort(layers.begin(), layers.end());
  layers.erase(std::unique(layers.begin(), layers.end()), layers.end());
  return layers;
}

}  // namespace

NameIndex ReadViaPadstacks(const BoardModels& models, Board& board) {
  NameIndex byName;
  // Null if the name is empty or already has a padstack.
  const auto addNew = [&](std::string_view name) -> ViaPadstack* {
    const Index next = ToIndex(board.viaPadstacks.size());
    if (name.empty() || byName.Add(name, next) != next) return nullptr;
    ViaPadstack& padstack = board.viaPadstacks.emplace_back();
    padstack.name = name;
    padstack.unit = board.units.geometry;
    return &padstack;
  };
  if (models.geometry != nullptr) {
    ForEachRecord(models.geometry->m_pVias, [&](const CMGeomVia& via, Index index) {
      ViaPadstack* padstack = addNew(ComparedName(via.m_sName.View()));
      if (padstack == nullptr) return;
      padstack->unit = board.units.OfGeometry(via.m_sUnits.View());
      padstack->layers = LayersOf(via, board);
      padstack->sourceIndex = index;
    });
  }
  if (models.tech != nullptr) {
    ForEachRecord(models.tech->m_pViaArray,
                  [&](const CMTechVia& rule, Index) { addNew(ComparedName(rule.m_sArg1.View())); });
  }
  return byName;
}

}  // namespace kestrin
