#pragma once

/// @file
/// The open geometry, to which the lines of a file belong.

#include <string_view>
#include <variant>

#include "kestrin/geometry/geometry_model.h"
#include "kestrin/records/record_pool.h"

namespace kestrin {

/// The open geometry, and the lists for drawing objects, texts and adds. Also remembers the last component
/// and the bound board after another geometry is opened.
class CurrentGeometry {
 public:
  /// Geometries are made in the record pool. The model and the pool must outlive this object.
  CurrentGeometry(CMGeom& model, RecordPool& records) : model_(model), records_(records) {}

  void BindBoard() { board_ = model_.m_pBoard; }

  /// Adds a geometry to the model and opens it: drawing objects, texts and adds that follow belong to it.
  void CreatePanel(std::string_view name);
  void CreateComponent(std::string_view name);
  void CreateGenericPart(std::string_view name);
  void CreatePin(std::string_view name);
  void CreateVia(std::string_view name);
  void CreateDrawing(std::string_view name);
  /// Opens the model's only board, and binds it.
  void CreateBoard(std::string_view name);
  /// Opens the model's only stack-up and removes its layer definitions. A stack-up has no drawing objects,
  /// texts or adds: they still belong to the geometry before it.
  void CreateStackup(std::string_view name);
  /// Opens a probe or test fixture, which is not in the model. Drawing objects, texts and adds still belong
  /// to the geometry before it.
  void CreateIgnored() { open_ = IgnoredGeometry(); }
  /// Starts a geometry of an unknown kind. Its texts and adds are dropped; drawing objects still belong to
  /// the geometry before it. Closes an open drawing.
  void CreateUnknown();

  /// The open geometry if it is of this kind, else null.
  template <class Geometry>
  [[nodiscard]] Geometry* Open() const {
    auto* const* geometry = std::get_if<Geometry*>(&open_);
    return geometry == nullptr ? nullptr : *geometry;
  }
  /// Whether the open geometry is one that is not in the model.
  [[nodiscard]] bool IsIgnored() const { return std::holds_alternative<IgnoredGeometry>(open_); }

  /// The board once it is bound, and the last component that was opened; null if there is none.
  [[nodiscard]] CMGeomBoard* BoundBoard() const { return board_; }
  [[nodiscard]] CMGeomComponent* LastComponent() const { return component_; }

  /// The lists for the drawing objects, texts and adds that follow; null if they are dropped.
  [[nodiscard]] CMGeomDrawObjArray* DrawObjs() const { return drawObjs_; }
  [[nodiscard]] RecordArray<CMGeomText>* Texts() const { return texts_; }
  [[nodiscard]] RecordArray<CMGeomAdd>* Adds() const { return adds_; }

 private:
  struct Nothing {};
  struct IgnoredGeometry {};

  template <class Geometry>
  Geometry* AppendNew(RecordArray<Geometry>& list);
  template <class Geometry>
  Geometry* Open(Geometry* geometry, std::string_view name);

  CMGeom& model_;
  RecordPool& records_;
  std::variant<Nothing, IgnoredGeometry, CMGeomPanel*, CMGeomBoard*, CMGeomComponent*, CMGeomDrawing*,
               CMGeomGenericPart*, CMGeomPin*, CMGeomStackup*, CMGeomVia*>
      open_;
  CMGeomBoard* board_ = nullptr;
  CMGeomComponent* component_ = nullptr;
  CMGeomDrawObjArray* drawObjs_ = nullptr;
  RecordArray<CMGeomText>* texts_ = nullptr;
  RecordArray<CMGeomAdd>* adds_ = nullptr;
};

}  // namespace kestrin
