#include "kestrin/traces/strict/model_builder.h"

#include <algorithm>

#include "kestrin/platform/characters.h"
#include "kestrin/platform/numbers.h"

namespace kestrin {
namespace {

/// Without any apostrophe, wherever it stands.
CString Unquoted(CString text) {
  text.Remove('\'');
  return text;
}

}  // namespace

Record<CMTracesXRF> ModelBuilder::MakeXrf(int value1, CString value2) {
  auto record = records_.Make<CMTracesXRF>();
  record->m_nValue1 = value1;
  record->m_sValue2A = value2;
  record->m_sValue2B = std::move(value2);
  return record;
}

Record<CMTracesTET> ModelBuilder::MakeTet(int value1, CString value2, double value3, double value4,
                                          double value5) {
  auto record = records_.Make<CMTracesTET>();
  record->m_nValue1 = value1;
  record->m_sValue2 = std::move(value2);
  record->m_dValue3 = value3;
  record->m_dValue4 = value4;
  record->m_dValue5 = value5;
  return record;
}

Record<CMTracesTTT> ModelBuilder::MakeTtt(int value1, double value2, int value3, int value4, int value5) {
  auto record = records_.Make<CMTracesTTT>();
  record->m_nValue1 = value1;
  record->m_dValue2 = value2;
  record->m_nValue3 = value3;
  record->m_nValue4 = value4;
  record->m_nValue5 = value5;
  return record;
}

Record<CMTracesNET> ModelBuilder::MakeNet(CString name) {
  auto net = records_.Make<CMTracesNET>();
  net->m_sName = std::move(name);
  return net;
}

Record<CMTracesWIRANT> ModelBuilder::MakeWire(int value1, double value2, double value3, double value4,
                                              double value5, Records<CMTracesSEG> segments) {
  auto record = records_.Make<CMTracesWIRANT>();
  record->m_nValue1 = value1;
  record->m_dValue2 = value2;
  record->m_dValue3 = value3;
  record->m_dValue4 = value4;
  record->m_dValue5 = value5;
  record->m_pSegArray->Swap(*segments);
  return record;
}

Record<CMTracesINCANT> ModelBuilder::MakeIncomplete(int value1, double value2, double value3, int value4,
                                                    double value5, double value6, int value7,
                                                    Records<CMTracesSEG> segments) {
  auto record = records_.Make<CMTracesINCANT>();
  record->m_nValue1 = value1;
  record->m_dValue2 = value2;
  record->m_dValue3 = value3;
  record->m_nValue4 = value4;
  record->m_dValue5 = value5;
  record->m_dValue6 = value6;
  record->m_nValue7 = value7;
  record->m_pSegArray->Swap(*segments);
  return record;
}

Record<CMTracesGUICHG> ModelBuilder::MakeGuiOrChg(double value1, double value2, int value3, double value4,
                                                  double value5, int value6) {
  auto record = records_.Make<CMTracesGUICHG>();
  record->m_dValue1 = value1;
  record->m_dValue2 = value2;
  record->m_nValue3 = value3;
  record->m_dValue4 = value4;
  record->m_dValue5 = value5;
  record->m_nValue6 = value6;
  return record;
}

Record<CMTracesSEG> ModelBuilder::MakeSegment(const CString& value1, const CString& value2,
                                              const CString& value3, CString value4, CString value5) {
  auto record = records_.Make<CMTracesSEG>();
  record->m_dValue1 = ToDouble(value1.View());
  record->m_dValue2 = ToDouble(value2.View());
  record->m_nValue3 = ToInt(ToDouble(value3.View()));
  if (std::all_of(value4.View().begin(), value4.View().end(), IsDigit)) {
    record->m_dValue4 = ToDouble(value4.View());
  } else {
    record->m_sValue4 = std::move(value4);
  }
  record->m_sValue5 = std::move(value5);
  return record;
}

Record<CMTracesVER> ModelBuilder::MakeVertex(double x, double y) {
  auto vertex = records_.Make<CMTracesVER>();
  vertex->m_dX = x;
  vertex->m_dY = y;
  return vertex;
}

Record<CMTracesFIL> ModelBuilder::MakeFill(CString name1, CString name2, CString value3, int value4,
                                           int value5, int value6, int value7, int value8) {
  auto fill = records_.Make<CMTracesFIL>();
  fill->m_sName1 = Unquoted(std::move(name1));
  fill->m_sName2 = Unquoted(std::move(name2));
  fill->m_sValue3 = std::move(value3);
  fill->m_nValue4 = value4;
  fill->m_nValue5 = value5;
  fill->m_nValue6 = value6;
  fill->m_nValue7 = value7;
  fill->m_nValue8 = value8;
  return fill;
}

Record<CMTracesFIL> WithHeader(Record<CMTracesFIL> fill, double value9, int value10, int value11, int value12,
                               const FillExtension& extension, FillTail tail) {
  fill->m_dValue9 = value9;
  fill->m_nValue10 = value10;
  fill->m_nValue11 = value11;
  fill->m_nValue12 = value12;
  fill->m_nExt1 = extension.ext1;
  fill->m_nExt2 = extension.ext2;
  fill->m_dExt3 = extension.ext3;
  fill->m_dExt4 = extension.ext4;
  fill->m_sTail1 = std::move(tail.item1);
  fill->m_sTail2 = std::move(tail.item2);
  fill->m_sTail3 = std::move(tail.item3);
  return fill;
}

Record<CMTracesTTI> ModelBuilder::MakeTti(double value1, double value2, CString value3, int value4,
                                          double value5, double value6, int value7) {
  auto record = records_.Make<CMTracesTTI>();
  record->m_dValue1 = value1;
  record->m_dValue2 = value2;
  record->m_sValue3 = std::move(value3);
  record->m_nValue4 = value4;
  record->m_dValue5 = value5;
  record->m_dValue6 = value6;
  record->m_nValue7 = value7;
  return record;
}

void ModelBuilder::Start(CString units) {
  root_ = std::make_unique<CMTraces>();
  root_->m_sUnits = std::move(units);
}

void ModelBuilder::SetSt(double value1, double value2, int value3, int value4) {
  root_->m_dStValue1 = value1;
  root_->m_dStValue2 = value2;
  root_->m_nStValue3 = value3;
  root_->m_nStValue4 = value4;
}

void ModelBuilder::SetLongSt(int value1, int value2, int value3, int value4, int value5, int value6) {
  root_->m_nStLongValue1 = value1;
  root_->m_nStLongValue2 = value2;
  root_->m_nStLongValue3 = value3;
  root_->m_nStLongValue4 = value4;
  root_->m_nStLongValue5 = value5;
  root_->m_nStLongValue6 = value6;
  root_->m_nStLongValue7 = -1;
  root_->m_nStLongValue8 = -1;
}

void ModelBuilder::AddLooseArea(Record<CMTracesARE> area) {
  if (looseFill_ == nullptr || !HasNamesOf(*looseFill_, *area)) {
    looseFill_ = root_->m_pFilArray->Append(MakeFillFor(*area));
  }
  looseFill_->m_pAreArray->Append(std::move(area));
}

Record<CMTracesFIL> ModelBuilder::WithTti(Record<CMTracesFIL> fill, Record<CMTracesTTI> record) const {
  record->m_sName1 = lastAreaName1_;
  record->m_sName2 = lastAreaName2_;
  return With(std::move(fill), &CMTracesFIL::m_pTtiArray, std::move(record));
}

void ModelBuilder::SetNames(CMTracesArea& area, CString name1, CString name2) {
  area.m_sName1 = lastAreaName1_ = Unquoted(std::move(name1));
  area.m_sName2 = lastAreaName2_ = Unquoted(std::move(name2));
}

bool ModelBuilder::HasNamesOf(const CMTracesFIL& fill, const CMTracesArea& area) {
  return fill.m_sName1 == area.m_sName1 && fill.m_sName2 == area.m_sName2;
}

Record<CMTracesFIL> ModelBuilder::MakeFillFor(const CMTracesArea& area) {
  auto fill = records_.Make<CMTracesFIL>();
  fill->m_sName1 = area.m_sName1;
  fill->m_sName2 = area.m_sName2;
  return fill;
}

}  // namespace kestrin
