#include "kestrin/geometry/current_geometry.h"

#include "kestrin/records/append.h"

namespace kestrin {

template <class RECORD>
RECORD* CurrentGeometry::AppendNew(RecordArray<RECORD>& list) {
  return Append(list, records_.Make<RECORD>());
}

template <class RECORD>
RECORD* CurrentGeometry::Open(GeometryKind kind, RECORD* record, std::string_view name) {
  kind_ = kind;
  record->m_sName = name;
  drawObjs_ = record->m_pDrawObjs;
  texts_ = record->m_pTexts;
  adds_ = record->m_pAdds;
  return record;
}

void CurrentGeometry::CreatePanel(std::string_view name) {
  panel_ = Open(GeometryKind::kPanel, AppendNew(*model_.m_pPanels), name);
}

void CurrentGeometry::CreateComponent(std::string_view name) {
  component_ = Open(GeometryKind::kComponent, AppendNew(*model_.m_pComponents), name);
}

void CurrentGeometry::CreateGenericPart(std::string_view name) {
  genericPart_ = Open(GeometryKind::kGenericPart, AppendNew(*model_.m_pGenericParts), name);
}

void CurrentGeometry::CreatePin(std::string_view name) {
  pin_ = Open(GeometryKind::kPin, AppendNew(*model_.m_pPins), name);
}

void CurrentGeometry::CreateVia(std::string_view name) {
  via_ = Open(GeometryKind::kVia, AppendNew(*model_.m_pVias), name);
}

void CurrentGeometry::CreateDrawing(std::string_view name) {
  drawing_ = Open(GeometryKind::kDrawing, AppendNew(*model_.m_pDrawings), name);
}

void CurrentGeometry::CreateBoard(std::string_view name) {
  BindBoard();
  Open(GeometryKind::kBoard, board_, name);
}

void CurrentGeometry::CreateStackup(std::string_view name) {
  kind_ = GeometryKind::kStackup;
  stackup_ = model_.m_pStackup;
  DeleteRecords(*stackup_->m_pLayers);
  stackup_->m_sName = name;
}

void CurrentGeometry::CreateUnknown() {
  drawing_ = nullptr;
  texts_ = nullptr;
  adds_ = nullptr;
}

}  // namespace kestrin
