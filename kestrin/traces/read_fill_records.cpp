// The handlers of TracesReader for a fill: its header, and its areas and islands with their vertices.

#include <cstddef>
#include <memory>
#include <utility>

#include "kestrin/records/append.h"
#include "kestrin/traces/record_values.h"
#include "kestrin/traces/traces_reader.h"

namespace kestrin {
namespace {

/// There are two forms, of 16 and 21 values. A line of any other length makes an empty fill.
void Read(LineFields& values, CMTracesFIL& fill) {
  const bool isLong = CountValues(values) == 21;
  if (!isLong && CountValues(values) != 16) return;
  fill.m_sName1 = WithoutApostrophes(values.Text(1));
  fill.m_sName2 = WithoutApostrophes(values.Text(2));
  fill.m_sValue3 = values.Text(3);
  fill.m_nValue4 = values.Int(4);
  fill.m_nValue5 = values.Int(5);
  fill.m_nValue6 = values.Int(6);
  fill.m_nValue7 = values.Int(7);
  fill.m_nValue8 = values.Int(8);
  fill.m_dValue9 = values.Double(9);
  fill.m_nValue10 = values.Int(10);
  fill.m_nValue11 = values.Int(11);
  fill.m_nValue12 = values.Int(12);
  if (isLong) {
    fill.m_nExt1 = values.Int(14);
    fill.m_nExt2 = values.Int(15);
    fill.m_dExt3 = values.Double(16);
    fill.m_dExt4 = values.Double(17);
  }
  const std::size_t tail = isLong ? 19 : 14;
  fill.m_sTail1 = values.Text(tail);
  fill.m_sTail2 = values.Text(tail + 1);
  fill.m_sTail3 = values.Text(tail + 2);
}

/// There are three forms, of 6, 8 and 13 values. A line of any other length makes an empty area.
void Read(LineFields& values, CMTracesArea& area) {
  const std::size_t count = CountValues(values);
  if (count != 6 && count != 8 && count != 13) return;
  area.m_sName1 = WithoutApostrophes(values.Text(1));
  area.m_sName2 = WithoutApostrophes(values.Text(2));
  area.m_sValue3 = values.Text(3);
  area.m_nValue4 = values.Int(4);
  area.m_dValue5 = values.Double(5);
  area.m_nValue6 = values.Int(6);
  if (count > 6) area.m_nLastValue = values.Int(count);
  if (count < 13) return;
  area.m_nValue8 = values.Int(8);
  area.m_nValue9 = values.Int(9);
  area.m_dValue10 = values.Double(10);
  area.m_dValue11 = values.Double(11);
}

void Read(LineFields& values, CMTracesTTI& record) {
  record.m_dValue1 = values.Double(1);
  record.m_dValue2 = values.Double(2);
  record.m_sValue3 = values.Text(3);
  if (CountValues(values) == 3) return;
  record.m_nValue4 = values.Int(4);
  record.m_dValue5 = values.Double(5);
  record.m_dValue6 = values.Double(6);
  record.m_nValue7 = values.Int(7);
}

}  // namespace

LineOutcome TracesReader::AddFil() {
  auto fill = records_.Make<CMTracesFIL>();
  Read(values_, *fill);
  fill_ = Append(*model_.m_pFilArray, std::move(fill));
  vertices_ = fill_->m_pVerArray;
  return LineOutcome::Imported();
}

LineOutcome TracesReader::AddAre() { return AddArea(&CMTracesFIL::m_pAreArray); }

LineOutcome TracesReader::AddArs() { return AddArea(&CMTracesFIL::m_pArsArray); }

LineOutcome TracesReader::AddIsl() { return AddIsland(&CMTracesFIL::m_pIslArray); }

LineOutcome TracesReader::AddIss() { return AddIsland(&CMTracesFIL::m_pIssArray); }

LineOutcome TracesReader::AddTti() {
  auto record = records_.Make<CMTracesTTI>();
  Read(values_, *record);
  record->m_sName1 = fill_->m_sName1;
  record->m_sName2 = fill_->m_sName2;
  Append(*fill_->m_pTtiArray, std::move(record));
  return LineOutcome::Imported();
}

LineOutcome TracesReader::AddVer() {
  auto vertex = records_.Make<CMTracesVER>();
  vertex->m_dX = values_.Double(1);
  vertex->m_dY = values_.Double(2);
  Append(*vertices_, std::move(vertex));
  return LineOutcome::Imported();
}

/// Adds the area to the current fill, even if their names differ.
template <class Area>
LineOutcome TracesReader::AddArea(RecordArray<Area>* CMTracesFIL::*list) {
  auto area = records_.Make<Area>();
  Read(values_, *area);
  if (fill_ == nullptr) AddFillFor(*area);
  vertices_ = Append(*(fill_->*list), std::move(area))->m_pVerArray;
  return LineOutcome::Imported();
}

/// Areas may appear without a FIL line. They then belong to a fill that is made from the first of them.
void TracesReader::AddFillFor(const CMTracesArea& area) {
  auto fill = records_.Make<CMTracesFIL>();
  fill->m_sName1 = area.m_sName1;
  fill->m_sName2 = area.m_sName2;
  fill->m_nValue7 = 1;
  fill->m_dValue9 = area.m_dValue5;
  fill_ = Append(*model_.m_pFilArray, std::move(fill));
}

template <class Island>
LineOutcome TracesReader::AddIsland(RecordArray<Island>* CMTracesFIL::*list) {
  auto island = records_.Make<Island>();
  island->m_nValue1 = values_.Int(1);
  vertices_ = Append(*(fill_->*list), std::move(island))->m_pVerArray;
  return LineOutcome::Imported();
}

}  // namespace kestrin
