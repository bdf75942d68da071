#include "kestrin/geometry/current_geometry.h"

#include "kestrin/records/append.h"

namespace kestrin {

template <class Geometry>
Geometry* CurrentGeometry::AppendNew(RecordArray<Geometry>& list) {
  return Append(list, records_.Make<Geometry>());
}

template <class Geometry>
Geometry* CurrentGeometry::Open(Geometry* geometry, std::string_view name) {
  open_ = geometry;
  geometry->m_sName = name;
  drawObjs_ = geometry->m_pDrawObjs;
  texts_ = geometry->m_pTexts;
  adds_ = geometry->m_pAdds;
  return geometry;
}

void CurrentGeometry::CreatePanel(std::string_view name) { Open(AppendNew(*model_.m_pPanels), name); }

void CurrentGeometry::CreateComponent(std::string_view name) {
  component_ = Open(AppendNew(*model_.m_pComponents), name);
}

void CurrentGeometry::CreateGenericPart(std::string_view name) {
  Open(AppendNew(*model_.m_pGenericParts), name);
}

void CurrentGeometry::CreatePin(std::string_view name) { Open(AppendNew(*model_.m_pPins), name); }

void CurrentGeometry::CreateVia(std::string_view name) { Open(AppendNew(*model_.m_pVias), name); }

void CurrentGeometry::CreateDrawing(std::string_view name) { Open(AppendNew(*model_.m_pDrawings), name); }

void CurrentGeometry::CreateBoard(std::string_view name) {
  BindBoard();
  Open(board_, name);
  records_.NoteLineOf(board_);
}

void CurrentGeometry::CreateStackup(std::string_view name) {
  open_ = model_.m_pStackup;
  DeleteRecords(*model_.m_pStackup->m_pLayers);
  model_.m_pStackup->m_sName = name;
  records_.NoteLineOf(model_.m_pStackup);
}

void CurrentGeometry::CreateUnknown() {
  if (Open<CMGeomDrawing>() != nullptr) open_ = Nothing();
  texts_ = nullptr;
  adds_ = nullptr;
}

}  // namespace kestrin
