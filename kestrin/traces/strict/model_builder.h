#pragma once

/// @file
/// What the rules of the Traces grammar make: records from the values of their tokens, lists, and the model.

#include <memory>
#include <string_view>
#include <tuple>
#include <utility>

#include "kestrin/records/append.h"
#include "kestrin/records/record_pool.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {

/// Builds one model. A net, a fill or an area is open from its header to the last of its records, and only
/// then becomes part of what it belongs to.
class ModelBuilder {
 public:
  template <class RECORD>
  using Record = std::unique_ptr<RECORD>;
  /// A list of records that another record has.
  template <class OWNER, class RECORD>
  using ListOf = RecordArray<RECORD>* OWNER::*;

  /// The model, without what is open; null before the units line.
  [[nodiscard]] Record<CMTraces> Take() { return std::move(root_); }

  /// Drops everything that is open.
  void DropOpen();

  ///@{
  /// The lines before the records.
  void Start(std::string_view units);
  void SetSt(double value1, double value2, int value3, int value4);
  void SetLongSt(int value1, int value2, int value3, int value4, int value5, int value6);
  ///@}

  ///@{
  /// Records of the model.
  void AddXrf(int value1, std::string_view value2);
  void AddTet(int value1, std::string_view value2, double value3, double value4, double value5);
  void AddTtt(int value1, double value2, int value3, int value4, int value5);
  ///@}

  ///@{
  /// A net, and records for one of its lists; their segments come first.
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

  /// Adds a vertex to those that the next record with vertices takes when it is complete.
  void AddVertex(double x, double y);

  ///@{
  /// A fill: the values of its line, which has its own vertices behind it, and its records.
  void OpenFill(std::string_view name1, std::string_view name2, std::string_view value3, int value4,
                int value5, int value6, int value7, int value8);
  void SetFillValues(double value9, int value10, int value11, int value12);
  void SetFillExtension(int ext1, int ext2, double ext3, double ext4);
  void SetFillTail(std::string_view item1, std::string_view item2, std::string_view item3);
  void CloseFillHead() { fill_->m_pVerArray->Swap(vertices_); }
  template <class ISLAND>
  void AddIsland(ListOf<CMTracesFIL, ISLAND> list, int value1);
  /// Adds a TTI record, which takes the names of the area header read last, whatever fill that was in.
  void AddTti(double value1, double value2, std::string_view value3, int value4 = 0, double value5 = 0.0,
              double value6 = 0.0, int value7 = 0);
  void CloseFill();
  ///@}

  ///@{
  /// An area: the values of its line, behind which are its vertices.
  template <class AREA>
  void OpenArea(std::string_view name1, std::string_view name2, std::string_view value3, int value4);
  void SetAreaTail(double value5, int value6, int last = 0, int value8 = 0, int value9 = 0,
                   double value10 = 0.0, double value11 = 0.0);
  /// Adds the area to the open fill. Where the names differ that fill is complete then, and part of the
  /// model, and a new one goes on.
  template <class AREA>
  void CloseArea(ListOf<CMTracesFIL, AREA> list);
  /// Adds an area without a FIL line before it to the fill of the loose area before it, or to a new fill
  /// where the names differ.
  void CloseLooseArea();
  ///@}

 private:
  void StartArea(CMTracesArea& area, std::string_view name1, std::string_view name2);
  template <class AREA>
  [[nodiscard]] Record<AREA> TakeArea();
  [[nodiscard]] static bool HasNamesOf(const CMTracesFIL& fill, const CMTracesArea& area);
  [[nodiscard]] Record<CMTracesFIL> MakeFillFor(const CMTracesArea& area);

  RecordPool records_;
  Record<CMTraces> root_;
  CMTracesFIL* looseFill_ = nullptr;  // of the loose area read last
  CString lastAreaName1_;
  CString lastAreaName2_;

  // What is open. An area of one kind is, at most.
  Record<CMTracesNET> net_;
  Record<CMTracesFIL> fill_;
  std::tuple<Record<CMTracesARE>, Record<CMTracesARS>> areas_;
  CMTracesArea* area_ = nullptr;  // the one in areas_
  Owning<RecordArray<CMTracesSEG>> segments_;
  Owning<RecordArray<CMTracesVER>> vertices_;
};

template <class ISLAND>
void ModelBuilder::AddIsland(ListOf<CMTracesFIL, ISLAND> list, int value1) {
  auto island = records_.Make<ISLAND>();
  island->m_nValue1 = value1;
  island->m_pVerArray->Swap(vertices_);
  Append(*((*fill_).*list), std::move(island));
}

template <class AREA>
void ModelBuilder::OpenArea(std::string_view name1, std::string_view name2, std::string_view value3,
                            int value4) {
  auto& area = std::get<Record<AREA>>(areas_);
  area = records_.Make<AREA>();
  StartArea(*area, name1, name2);
  area->m_sValue3 = value3;
  area->m_nValue4 = value4;
}

template <class AREA>
void ModelBuilder::CloseArea(ListOf<CMTracesFIL, AREA> list) {
  auto area = TakeArea<AREA>();
  if (!HasNamesOf(*fill_, *area)) {
    auto next = MakeFillFor(*area);
    CloseFill();
    fill_ = std::move(next);
  }
  Append(*((*fill_).*list), std::move(area));
}

template <class AREA>
ModelBuilder::Record<AREA> ModelBuilder::TakeArea() {
  area_->m_pVerArray->Swap(vertices_);
  return std::move(std::get<Record<AREA>>(areas_));
}

}  // namespace kestrin
