#pragma once

/// @file
/// The geometry that the lines of a file are in.

#include <string_view>
#include <variant>

#include "kestrin/geometry/geometry_model.h"
#include "kestrin/records/record_pool.h"

namespace kestrin {

/// Which geometry is open, and where drawing objects, texts and adds go. The last component stays known when
/// another geometry is opened, and so does the board once it is bound.
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
  /// A probe or a test fixture, which has no place in the model. Neither does it have any of these.
  void CreateUnkept() { open_ = Unkept(); }
  /// A geometry of a kind that is not known: its texts and adds are lost, its drawing objects go where they
  /// went before. Closes a drawing.
  void CreateUnknown();

  /// The open geometry if it is of this kind, else null.
  template <class Geometry>
  [[nodiscard]] Geometry* Open() const {
    auto* const* geometry = std::get_if<Geometry*>(&open_);
    return geometry == nullptr ? nullptr : *geometry;
  }
  /// Whether a geometry is open that has no place in the model.
  [[nodiscard]] bool IsUnkept() const { return std::holds_alternative<Unkept>(open_); }

  /// Null as long as there is none.
  [[nodiscard]] CMGeomBoard* BoundBoard() const { return board_; }
  [[nodiscard]] CMGeomComponent* LastComponent() const { return component_; }

  /// Where what follows goes; null when it is lost.
  [[nodiscard]] CMGeomDrawObjArray* DrawObjs() const { return drawObjs_; }
  [[nodiscard]] RecordArray<CMGeomText>* Texts() const { return texts_; }
  [[nodiscard]] RecordArray<CMGeomAdd>* Adds() const { return adds_; }

 private:
  struct Nothing {};
  struct Unkept {};

  template <class Geometry>
  Geometry* AppendNew(RecordArray<Geometry>& list);
  template <class Geometry>
  Geometry* Open(Geometry* geometry, std::string_view name);

  CMGeom& model_;
  RecordPool& records_;
  std::variant<Nothing, Unkept, CMGeomPanel*, CMGeomBoard*, CMGeomComponent*, CMGeomDrawing*,
               CMGeomGenericPart*, CMGeomPin*, CMGeomStackup*, CMGeomVia*>
      open_;
  CMGeomBoard* board_ = nullptr;
  CMGeomComponent* component_ = nullptr;
  CMGeomDrawObjArray* drawObjs_ = nullptr;
  RecordArray<CMGeomText>* texts_ = nullptr;
  RecordArray<CMGeomAdd>* adds_ = nullptr;
};

}  // namespace kestrin
