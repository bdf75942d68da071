#include "kestrin/traces/strict/model_builder.h"

#include "kestrin/base/numbers.h"
#include "kestrin/records/append.h"
#include "kestrin/traces/shared_rules.h"

namespace kestrin {
namespace {

/// Removes every apostrophe of the text, not only those around it.
CString Unquoted(CString text) {
  text.Remove('\'');
  return text;
}

}  // namespace

void ModelBuilder::DropOpen() {
  net_.reset();
  fill_.reset();
  areas_ = {};
  DeleteRecords(segments_);
  DeleteRecords(vertices_);
}

void ModelBuilder::Start(std::string_view units) {
  root_ = std::make_unique<CMTraces>();
  root_->m_sUnits = units;
  records_.NoteLineOf(&root_->m_sUnits);
}

void ModelBuilder::SetSt(double value1, double value2, int value3, int value4) {
  root_->m_dStValue1 = value1;
  root_->m_dStValue2 = value2;
  root_->m_nStValue3 = value3;
  root_->m_nStValue4 = value4;
}

void ModelBuilder::SetLongSt(int value1, int value2, int value3, int value4, int value5, int value6) {
  SetLongStValues(*root_, value1, value2, value3, value4, value5, value6);
}

void ModelBuilder::AddXrf(int value1, std::string_view value2) {
  auto record = records_.Make<CMTracesXRF>();
  record->m_nValue1 = value1;
  SetValue2(*record, value2);
  Append(*root_->m_pXrfArray, std::move(record));
}

void ModelBuilder::AddTet(int value1, std::string_view value2, double value3, double value4, double value5) {
  auto record = records_.Make<CMTracesTET>();
  record->m_nValue1 = value1;
  record->m_sValue2 = value2;
  record->m_dValue3 = value3;
  record->m_dValue4 = value4;
  record->m_dValue5 = value5;
  Append(*root_->m_pTetArray, std::move(record));
}

void ModelBuilder::AddTtt(int value1, double value2, int value3, int value4, int value5) {
  auto record = records_.Make<CMTracesTTT>();
  record->m_nValue1 = value1;
  record->m_dValue2 = value2;
  record->m_nValue3 = value3;
  record->m_nValue4 = value4;
  record->m_nValue5 = value5;
  Append(*root_->m_pTttArray, std::move(record));
}

void ModelBuilder::OpenNet(std::string_view name) {
  net_ = records_.Make<CMTracesNET>();
  net_->m_sName = name;
}

void ModelBuilder::AddSegment(std::string_view value1, std::string_view value2, std::string_view value3,
                              std::string_view value4, std::string_view value5) {
  auto record = records_.Make<CMTracesSEG>();
  record->m_dValue1 = ToDouble(value1);
  record->m_dValue2 = ToDouble(value2);
  record->m_nValue3 = ToInt(ToDouble(value3));
  SetValue4(*record, value4, ToDouble(value4));
  record->m_sValue5 = value5;
  Append(segments_, std::move(record));
}

void ModelBuilder::AddWire(ListOf<CMTracesNET, CMTracesWIRANT> list, int value1, double value2, double value3,
                           double value4, double value5) {
  auto record = records_.Make<CMTracesWIRANT>();
  record->m_nValue1 = value1;
  record->m_dValue2 = value2;
  record->m_dValue3 = value3;
  record->m_dValue4 = value4;
  record->m_dValue5 = value5;
  record->m_pSegArray->Swap(segments_);
  Append(*((*net_).*list), std::move(record));
}

void ModelBuilder::AddIncomplete(ListOf<CMTracesNET, CMTracesINCANT> list, int value1, double value2,
                                 double value3, int value4, double value5, double value6, int value7) {
  auto record = records_.Make<CMTracesINCANT>();
  record->m_nValue1 = value1;
  record->m_dValue2 = value2;
  record->m_dValue3 = value3;
  record->m_nValue4 = value4;
  record->m_dValue5 = value5;
  record->m_dValue6 = value6;
  record->m_nValue7 = value7;
  record->m_pSegArray->Swap(segments_);
  Append(*((*net_).*list), std::move(record));
}

void ModelBuilder::AddGuiOrChg(ListOf<CMTracesNET, CMTracesGUICHG> list, double value1, double value2,
                               int value3, double value4, double value5, int value6) {
  auto record = records_.Make<CMTracesGUICHG>();
  record->m_dValue1 = value1;
  record->m_dValue2 = value2;
  record->m_nValue3 = value3;
  record->m_dValue4 = value4;
  record->m_dValue5 = value5;
  record->m_nValue6 = value6;
  Append(*((*net_).*list), std::move(record));
}

void ModelBuilder::CloseNet() { Append(*root_->m_pNetArray, std::move(net_)); }

void ModelBuilder::AddVertex(double x, double y) {
  auto vertex = records_.Make<CMTracesVER>();
  vertex->m_dX = x;
  vertex->m_dY = y;
  Append(vertices_, std::move(vertex));
}

void ModelBuilder::OpenFill(std::string_view name1, std::string_view name2, std::string_view value3,
                            int value4, int value5, int value6, int value7, int value8) {
  fill_ = records_.Make<CMTracesFIL>();
  fill_->m_sName1 = Unquoted(name1);
  fill_->m_sName2 = Unquoted(name2);
  fill_->m_sValue3 = value3;
  fill_->m_nValue4 = value4;
  fill_->m_nValue5 = value5;
  fill_->m_nValue6 = value6;
  fill_->m_nValue7 = value7;
  fill_->m_nValue8 = value8;
}

void ModelBuilder::SetFillValues(double value9, int value10, int value11, int value12) {
  fill_->m_dValue9 = value9;
  fill_->m_nValue10 = value10;
  fill_->m_nValue11 = value11;
  fill_->m_nValue12 = value12;
}

void ModelBuilder::SetFillExtension(int ext1, int ext2, double ext3, double ext4) {
  fill_->m_nExt1 = ext1;
  fill_->m_nExt2 = ext2;
  fill_->m_dExt3 = ext3;
  fill_->m_dExt4 = ext4;
}

void ModelBuilder::SetFillTail(std::string_view item1, std::string_view item2, std::string_view item3) {
  fill_->m_sTail1 = item1;
  fill_->m_sTail2 = item2;
  fill_->m_sTail3 = item3;
}

void ModelBuilder::AddTti(double value1, double value2, std::string_view value3, int value4, double value5,
                          double value6, int value7) {
  auto record = records_.Make<CMTracesTTI>();
  record->m_sName1 = lastAreaName1_;
  record->m_sName2 = lastAreaName2_;
  record->m_dValue1 = value1;
  record->m_dValue2 = value2;
  record->m_sValue3 = value3;
  record->m_nValue4 = value4;
  record->m_dValue5 = value5;
  record->m_dValue6 = value6;
  record->m_nValue7 = value7;
  Append(*fill_->m_pTtiArray, std::move(record));
}

void ModelBuilder::CloseFill() { Append(*root_->m_pFilArray, std::move(fill_)); }

void ModelBuilder::StartArea(CMTracesArea& area, std::string_view name1, std::string_view name2) {
  area.m_sName1 = lastAreaName1_ = Unquoted(name1);
  area.m_sName2 = lastAreaName2_ = Unquoted(name2);
  area_ = &area;
  areaLine_ = line_;
}

void ModelBuilder::SetAreaTail(double value5, int value6, int last, int value8, int value9, double value10,
                               double value11) {
  area_->m_dValue5 = value5;
  area_->m_nValue6 = value6;
  area_->m_nLastValue = last;
  area_->m_nValue8 = value8;
  area_->m_nValue9 = value9;
  area_->m_dValue10 = value10;
  area_->m_dValue11 = value11;
}

void ModelBuilder::CloseLooseArea() {
  auto area = TakeArea<CMTracesARE>();
  if (looseFill_ == nullptr || !HasNamesOf(*looseFill_, *area)) {
    looseFill_ = Append(*root_->m_pFilArray, MakeFillFor(*area));
  }
  Append(*looseFill_->m_pAreArray, std::move(area));
}

bool ModelBuilder::HasNamesOf(const CMTracesFIL& fill, const CMTracesArea& area) {
  return fill.m_sName1 == area.m_sName1 && fill.m_sName2 == area.m_sName2;
}

ModelBuilder::Owned<CMTracesFIL> ModelBuilder::MakeFillFor(const CMTracesArea& area) {
  line_ = areaLine_;
  auto fill = records_.Make<CMTracesFIL>();
  fill->m_sName1 = area.m_sName1;
  fill->m_sName2 = area.m_sName2;
  return fill;
}

}  // namespace kestrin
