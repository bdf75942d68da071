#pragma once

/// @file
/// What the rules of the Traces grammar make: records from the values of their tokens, lists, and the model.

#include <memory>
#include <utility>

#include "kestrin/geometry/record_pool.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {

template <class RECORD>
using Record = std::unique_ptr<RECORD>;

/// A list on its way to the record that it belongs to.
template <class RECORD>
using Records = std::unique_ptr<OwningArray<RECORD>>;

template <class RECORD>
[[nodiscard]] Records<RECORD> ListOf(Record<RECORD> first) {
  auto list = std::make_unique<OwningArray<RECORD>>();
  list->Append(std::move(first));
  return list;
}

template <class LIST, class RECORD>
[[nodiscard]] LIST With(LIST list, Record<RECORD> next) {
  list->Append(std::move(next));
  return list;
}

/// The record with that one more in one of its lists.
template <class OWNER, class RECORD>
[[nodiscard]] Record<OWNER> With(Record<OWNER> owner, RecordList<RECORD> OWNER::*list, Record<RECORD> next) {
  ((*owner).*list)->Append(std::move(next));
  return owner;
}

/// The record with its vertices.
template <class RECORD>
[[nodiscard]] Record<RECORD> With(Record<RECORD> record, Records<CMTracesVER> vertices) {
  record->m_pVerArray->Swap(*vertices);
  return record;
}

/// Values of an area line behind its names.
struct AreaTail {
  double value5 = 0.0;
  int value6 = 0;
  int last = 0;
  int value8 = 0;
  int value9 = 0;
  double value10 = 0.0;
  double value11 = 0.0;
};

/// Values that only the long form of a fill line has.
struct FillExtension {
  int ext1 = 0;
  int ext2 = 0;
  double ext3 = 0.0;
  double ext4 = 0.0;
};

/// The last values of a fill line.
struct FillTail {
  CString item1;
  CString item2;
  CString item3;
};

[[nodiscard]] Record<CMTracesFIL> WithHeader(Record<CMTracesFIL> fill, double value9, int value10,
                                             int value11, int value12, const FillExtension& extension,
                                             FillTail tail);

template <class AREA>
[[nodiscard]] Record<AREA> WithTail(Record<AREA> area, const AreaTail& tail) {
  area->m_dValue5 = tail.value5;
  area->m_nValue6 = tail.value6;
  area->m_nLastValue = tail.last;
  area->m_nValue8 = tail.value8;
  area->m_nValue9 = tail.value9;
  area->m_dValue10 = tail.value10;
  area->m_dValue11 = tail.value11;
  return area;
}

/// Builds one model. Records that rules hold are not in it yet: they go with a rule that is never completed.
class ModelBuilder {
 public:
  /// The model; null before the units line.
  [[nodiscard]] Record<CMTraces> Take() { return std::move(root_); }

  void Start(CString units);
  void SetSt(double value1, double value2, int value3, int value4);
  void SetLongSt(int value1, int value2, int value3, int value4, int value5, int value6);

  template <class RECORD>
  void Add(RecordList<RECORD> CMTraces::*list, Record<RECORD> record) {
    ((*root_).*list)->Append(std::move(record));
  }

  ///@{
  /// Records of their lines' values.
  [[nodiscard]] Record<CMTracesXRF> MakeXrf(int value1, CString value2);
  [[nodiscard]] Record<CMTracesTET> MakeTet(int value1, CString value2, double value3, double value4,
                                            double value5);
  [[nodiscard]] Record<CMTracesTTT> MakeTtt(int value1, double value2, int value3, int value4, int value5);
  [[nodiscard]] Record<CMTracesNET> MakeNet(CString name);
  [[nodiscard]] Record<CMTracesWIRANT> MakeWire(int value1, double value2, double value3, double value4,
                                                double value5, Records<CMTracesSEG> segments);
  [[nodiscard]] Record<CMTracesINCANT> MakeIncomplete(int value1, double value2, double value3, int value4,
                                                      double value5, double value6, int value7,
                                                      Records<CMTracesSEG> segments);
  [[nodiscard]] Record<CMTracesGUICHG> MakeGuiOrChg(double value1, double value2, int value3, double value4,
                                                    double value5, int value6);
  [[nodiscard]] Record<CMTracesSEG> MakeSegment(const CString& value1, const CString& value2,
                                                const CString& value3, CString value4, CString value5 = {});
  [[nodiscard]] Record<CMTracesVER> MakeVertex(double x, double y);
  [[nodiscard]] Record<CMTracesFIL> MakeFill(CString name1, CString name2, CString value3, int value4,
                                             int value5, int value6, int value7, int value8);
  [[nodiscard]] Record<CMTracesTTI> MakeTti(double value1, double value2, CString value3, int value4 = 0,
                                            double value5 = 0.0, double value6 = 0.0, int value7 = 0);
  template <class ISLAND>
  [[nodiscard]] Record<ISLAND> MakeIsland(int value1, Records<CMTracesVER> vertices) {
    auto island = records_.Make<ISLAND>();
    island->m_nValue1 = value1;
    return With(std::move(island), std::move(vertices));
  }
  ///@}

  /// Makes an area and notes its names for the TTI records that follow.
  template <class AREA>
  [[nodiscard]] Record<AREA> MakeArea(CString name1, CString name2, CString value3, int value4) {
    auto area = records_.Make<AREA>();
    SetNames(*area, std::move(name1), std::move(name2));
    area->m_sValue3 = std::move(value3);
    area->m_nValue4 = value4;
    return area;
  }

  /// Adds an area without a FIL line before it to the fill of the loose area before it, or to a new fill
  /// where the names differ.
  void AddLooseArea(Record<CMTracesARE> area);

  /// Adds an area to a fill and returns the fill that goes on: a new one where the names differ. The fill
  /// before it is complete then, and part of the model.
  template <class AREA>
  [[nodiscard]] Record<CMTracesFIL> WithArea(Record<CMTracesFIL> fill, RecordList<AREA> CMTracesFIL::*list,
                                             Record<AREA> area) {
    if (!HasNamesOf(*fill, *area)) {
      auto next = MakeFillFor(*area);
      Add(&CMTraces::m_pFilArray, std::exchange(fill, std::move(next)));
    }
    return With(std::move(fill), list, std::move(area));
  }

  /// Adds a TTI record, which takes the names of the area header read last, whatever fill that was in.
  [[nodiscard]] Record<CMTracesFIL> WithTti(Record<CMTracesFIL> fill, Record<CMTracesTTI> record) const;

 private:
  void SetNames(CMTracesArea& area, CString name1, CString name2);
  [[nodiscard]] static bool HasNamesOf(const CMTracesFIL& fill, const CMTracesArea& area);
  [[nodiscard]] Record<CMTracesFIL> MakeFillFor(const CMTracesArea& area);

  RecordPool records_;
  Record<CMTraces> root_;
  CMTracesFIL* looseFill_ = nullptr;  // of the loose area read last
  CString lastAreaName1_;
  CString lastAreaName2_;
};

}  // namespace kestrin
