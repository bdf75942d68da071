#pragma once

/// @file
/// The semantic actions of the Traces grammar: they build the model from the values of tokens.

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <tuple>
#include <utility>

#include "kestrin/records/append.h"
#include "kestrin/records/record_pool.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {

/// Builds one model. A net, a fill or an area stays open from its header to the last of its records; only
/// then is it added to the model. So an error never leaves half a record there.
class ModelBuilder {
 public:
  template <class Record>
  using Owned = std::unique_ptr<Record>;
  /// A member of Owner that points to a list of records.
  template <class Owner, class Record>
  using ListOf = RecordArray<Record>* Owner::*;

  /// Notes the lines of records; to be called first. The lines must outlive this object.
  void NoteLines(SourceLines& lines) { records_.NoteLines(notes_.emplace(lines, line_)); }

  /// The next call is about the record that begins on this line.
  [[nodiscard]] ModelBuilder& At(std::int64_t line) {
    line_ = line;
    return *this;
  }

  /// Returns the model without what is still open; null before the units line.
  [[nodiscard]] Owned<CMTraces> Take() { return std::move(root_); }

  /// Drops everything that is open.
  void DropOpen();

  ///@{
  /// Lines before the records.
  void Start(std::string_view units);
  void SetSt(double value1, double value2, int value3, int value4);
  void SetLongSt(int value1, int value2, int value3, int value4, int value5, int value6);
  ///@}

  ///@{
  /// Records that belong to the root.
  void AddXrf(int value1, std::string_view value2);
  void AddTet(int value1, std::string_view value2, double value3, double value4, double value5);
  void AddTtt(int value1, double value2, int value3, int value4, int value5);
  ///@}

  ///@{
  /// A net and the records of its lists. Add the segments of a record first.
  void OpenNet(std::string_view name);
  void AddSegment(std::string_view value1, std::string_view value2, std::string_view value3,
                  std::string_view value4, std::string_view value5 = {});
  void AddWire(ListOf<CMTracesNET, CMTracesWIRANT> list, int value1, double value2, double value3,
               double value4, double value5);
  void AddIncomplete(ListOf<CMTracesNET, CMTracesINCANT> list, int value1, double value2, double value3,
                     int value4, double value5, double value6, int value7);
  void AddGuiOrChg(ListOf<CMTracesNET, CMTracesGUICHG> list, double value1, double value2, int value3,
                   double value4, double value5, int value6);
  void CloseNet();
  ///@}

  /// Adds a vertex. The next record with vertices that is completed takes all vertices added so far.
  void AddVertex(double x, double y);

  ///@{
  /// A fill: the values of its line, then its own vertices, then its records.
  void OpenFill(std::string_view name1, std::string_view name2, std::string_view value3, int value4,
                int value5, int value6, int value7, int value8);
  void SetFillValues(double value9, int value10, int value11, int value12);
  void SetFillExtension(int ext1, int ext2, double ext3, double ext4);
  void SetFillTail(std::string_view item1, std::string_view item2, std::string_view item3);
  void CloseFillHead() { fill_->m_pVerArray->Swap(vertices_); }
  template <class Island>
  void AddIsland(ListOf<CMTracesFIL, Island> list, int value1);
  /// Adds a TTI record. It gets the names of the last area that was opened, in this fill or an earlier one.
  void AddTti(double value1, double value2, std::string_view value3, int value4 = 0, double value5 = 0.0,
              double value6 = 0.0, int value7 = 0);
  void CloseFill();
  ///@}

  ///@{
  /// An area: the values of its line, then its vertices.
  template <class Area>
  void OpenArea(std::string_view name1, std::string_view name2, std::string_view value3, int value4);
  void SetAreaTail(double value5, int value6, int last = 0, int value8 = 0, int value9 = 0,
                   double value10 = 0.0, double value11 = 0.0);
  /// Adds the area to the open fill. If their names differ, closes that fill and opens a new one for the
  /// area.
  template <class Area>
  void CloseArea(ListOf<CMTracesFIL, Area> list);
  /// Adds a loose area, one before the first FIL line, to the fill of the previous loose area. If there is
  /// none or their names differ, adds a new fill for it.
  void CloseLooseArea();
  ///@}

 private:
  void StartArea(CMTracesArea& area, std::string_view name1, std::string_view name2);
  template <class Area>
  [[nodiscard]] Owned<Area> TakeArea();
  [[nodiscard]] static bool HasNamesOf(const CMTracesFIL& fill, const CMTracesArea& area);
  [[nodiscard]] Owned<CMTracesFIL> MakeFillFor(const CMTracesArea& area);

  std::int64_t line_ = 0;
  std::optional<LineNotes> notes_;
  RecordPool records_;
  Owned<CMTraces> root_;
  CMTracesFIL* looseFill_ = nullptr;  // the fill of the last loose area
  CString lastAreaName1_;
  CString lastAreaName2_;

  // What is open. At most one of the areas is.
  Owned<CMTracesNET> net_;
  Owned<CMTracesFIL> fill_;
  std::tuple<Owned<CMTracesARE>, Owned<CMTracesARS>> areas_;
  CMTracesArea* area_ = nullptr;  // points into areas_
  std::int64_t areaLine_ = 0;
  Owning<RecordArray<CMTracesSEG>> segments_;
  Owning<RecordArray<CMTracesVER>> vertices_;
};

template <class Island>
void ModelBuilder::AddIsland(ListOf<CMTracesFIL, Island> list, int value1) {
  auto island = records_.Make<Island>();
  island->m_nValue1 = value1;
  island->m_pVerArray->Swap(vertices_);
  Append(*((*fill_).*list), std::move(island));
}

template <class Area>
void ModelBuilder::OpenArea(std::string_view name1, std::string_view name2, std::string_view value3,
                            int value4) {
  auto& area = std::get<Owned<Area>>(areas_);
  area = records_.Make<Area>();
  StartArea(*area, name1, name2);
  area->m_sValue3 = value3;
  area->m_nValue4 = value4;
}

template <class Area>
void ModelBuilder::CloseArea(ListOf<CMTracesFIL, Area> list) {
  auto area = TakeArea<Area>();
  if (!HasNamesOf(*fill_, *area)) {
    auto next = MakeFillFor(*area);
    CloseFill();
    fill_ = std::move(next);
  }
  Append(*((*fill_).*list), std::move(area));
}

template <class Area>
ModelBuilder::Owned<Area> ModelBuilder::TakeArea() {
  area_->m_pVerArray->Swap(vertices_);
  return std::move(std::get<Owned<Area>>(areas_));
}

}  // namespace kestrin
