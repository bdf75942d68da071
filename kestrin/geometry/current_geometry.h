#pragma once

/// @file
/// The geometry that the lines of a file are in.

#include <cstdint>
#include <string_view>

#include "kestrin/geometry/geometry_model.h"
#include "kestrin/records/record_pool.h"

namespace kestrin {

/// What a create command opens. Probes and test fixtures have no place in the model.
enum class GeometryKind : std::uint8_t {
  kNone,
  kPanel,
  kBoard,
  kComponent,
  kDrawing,
  kGenericPart,
  kPin,
  kProbe,
  kStackup,
  kVia,
  kTestFixture,
};

/// Which kind of geometry is open, its record, and where its drawing objects, texts and adds go. The last
/// record of every kind stays known when another kind is opened; the board's is known once it is bound.
class CurrentGeometry {
 public:
  /// Geometries are made among the records. The model and these must outlive this.
  CurrentGeometry(CMGeom& model, RecordPool& records) : model_(model), records_(records) {}

  void BindBoard() { board_ = model_.m_pBoard; }

  /// What create commands do: the record gets the name and becomes the current one of its kind, and what
  /// follows goes to it.
  void CreatePanel(std::string_view name);
  void CreateComponent(std::string_view name);
  void CreateGenericPart(std::string_view name);
  void CreatePin(std::string_view name);
  void CreateVia(std::string_view name);
  void CreateDrawing(std::string_view name);
  /// The one board of the model, bound if it is not.
  void CreateBoard(std::string_view name);
  /// The one stack-up of the model, without its layer definitions. Has no drawing objects, texts and adds of
  /// its own: they go where they went before.
  void CreateStackup(std::string_view name);
  /// Neither do these have any.
  void CreateProbe() { kind_ = GeometryKind::kProbe; }
  void CreateTestFixture() { kind_ = GeometryKind::kTestFixture; }
  /// A geometry of a kind that is not known: its texts and adds are lost, its drawing objects go where they
  /// went before.
  void CreateUnknown();

  [[nodiscard]] GeometryKind Kind() const { return kind_; }

  /// Null as long as there is none.
  [[nodiscard]] CMGeomBoard* BoundBoard() const { return board_; }
  [[nodiscard]] CMGeomComponent* LastComponent() const { return component_; }
  [[nodiscard]] CMGeomStackup* LastStackup() const { return stackup_; }

  /// Where what follows goes; null when it is lost.
  [[nodiscard]] CMGeomDrawObjArray* DrawObjs() const { return drawObjs_; }
  [[nodiscard]] RecordArray<CMGeomText>* Texts() const { return texts_; }
  [[nodiscard]] RecordArray<CMGeomAdd>* Adds() const { return adds_; }

  /// Calls visit with the record of the open geometry, if it has one. Returns whether it has.
  template <class VISIT>
  bool VisitOpen(VISIT visit) const {
    const auto visitIfAny = [&](auto* record) {
      if (record != nullptr) visit(*record);
      return record != nullptr;
    };
    switch (kind_) {
      case GeometryKind::kPanel: return visitIfAny(panel_);
      case GeometryKind::kBoard: return visitIfAny(board_);
      case GeometryKind::kComponent: return visitIfAny(component_);
      case GeometryKind::kDrawing: return visitIfAny(drawing_);
      case GeometryKind::kGenericPart: return visitIfAny(genericPart_);
      case GeometryKind::kPin: return visitIfAny(pin_);
      case GeometryKind::kStackup: return visitIfAny(stackup_);
      case GeometryKind::kVia: return visitIfAny(via_);
      case GeometryKind::kNone:
      case GeometryKind::kProbe:
      case GeometryKind::kTestFixture: return false;
    }
    return false;
  }

 private:
  template <class RECORD>
  RECORD* AppendNew(RecordArray<RECORD>& list);
  template <class RECORD>
  RECORD* Open(GeometryKind kind, RECORD* record, std::string_view name);

  CMGeom& model_;
  RecordPool& records_;
  GeometryKind kind_ = GeometryKind::kNone;
  CMGeomPanel* panel_ = nullptr;
  CMGeomBoard* board_ = nullptr;
  CMGeomComponent* component_ = nullptr;
  CMGeomDrawing* drawing_ = nullptr;
  CMGeomGenericPart* genericPart_ = nullptr;
  CMGeomPin* pin_ = nullptr;
  CMGeomStackup* stackup_ = nullptr;
  CMGeomVia* via_ = nullptr;
  CMGeomDrawObjArray* drawObjs_ = nullptr;
  RecordArray<CMGeomText>* texts_ = nullptr;
  RecordArray<CMGeomAdd>* adds_ = nullptr;
};

}  // namespace kestrin
