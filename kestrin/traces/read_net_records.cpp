// The handlers of TracesReader for a net: its header, and its wires, incomplete connections and antennas with
// their segments.

#include <cstddef>
#include <memory>
#include <utility>

#include "kestrin/base/numbers.h"
#include "kestrin/records/append.h"
#include "kestrin/traces/record_values.h"
#include "kestrin/traces/shared_rules.h"
#include "kestrin/traces/traces_reader.h"

namespace kestrin {
namespace {

void Read(LineFields& values, CMTracesWIRANT& record) {
  record.m_nValue1 = values.Int(1);
  record.m_dValue2 = values.Double(2);
  record.m_dValue3 = values.Double(3);
  record.m_dValue4 = values.Double(4);
  record.m_dValue5 = values.Double(5);
}

void Read(LineFields& values, CMTracesINCANT& record) {
  record.m_nValue1 = values.Int(1);
  record.m_dValue2 = values.Double(2);
  record.m_dValue3 = values.Double(3);
  record.m_nValue4 = values.Int(4);
  record.m_dValue5 = values.Double(5);
  record.m_dValue6 = values.Double(6);
  record.m_nValue7 = ToInt(values.Double(7));
}

void Read(LineFields& values, CMTracesGUICHG& record) {
  record.m_dValue1 = values.Double(1);
  record.m_dValue2 = values.Double(2);
  record.m_nValue3 = values.Int(3);
  record.m_dValue4 = values.Double(4);
  record.m_dValue5 = values.Double(5);
  record.m_nValue6 = values.Int(6);
}

/// Reads as many values as the line has.
void Read(LineFields& values, CMTracesSEG& record) {
  values.Read(1, record.m_dValue1);
  values.Read(2, record.m_dValue2);
  if (values.Has(3)) record.m_nValue3 = values.Int(3);
  if (double number = 0.0; values.Read(4, number)) SetValue4(record, values.Text(4), number);
  if (values.Has(5)) record.m_sValue5 = values.Text(5);
}

}  // namespace

LineOutcome TracesReader::AddNet() {
  auto net = records_.Make<CMTracesNET>();
  net->m_sName = WithoutApostrophes(values_.Text(2));
  net_ = Append(*model_.m_pNetArray, std::move(net));
  fill_ = nullptr;
  return LineOutcome::Imported();
}

LineOutcome TracesReader::AddWir() {
  constexpr std::size_t kComplete = 5;
  if (CountValues(values_) >= kComplete) return AddWithSegments(&CMTracesNET::m_pWirArray);
  Append(*net_->m_pWirArray, records_.Make<CMTracesWIRANT>());
  return LineOutcome::Imported();
}

LineOutcome TracesReader::AddInc() { return AddWithSegments(&CMTracesNET::m_pIncArray); }

LineOutcome TracesReader::AddAnt() {
  return CountValues(values_) == 5 ? AddWithSegments(&CMTracesNET::m_pAntWirArray)
                                   : AddWithSegments(&CMTracesNET::m_pAntIncArray);
}

LineOutcome TracesReader::AddGui() { return AddGuiOrChg(&CMTracesNET::m_pGuiArray); }

LineOutcome TracesReader::AddChg() { return AddGuiOrChg(&CMTracesNET::m_pChgArray); }

LineOutcome TracesReader::AddSeg() {
  auto segment = records_.Make<CMTracesSEG>();
  Read(values_, *segment);
  Append(*segments_, std::move(segment));
  return LineOutcome::Imported();
}

/// Adds the record, which takes the SEG lines that follow.
template <class Wire>
LineOutcome TracesReader::AddWithSegments(RecordArray<Wire>* CMTracesNET::*list) {
  auto record = records_.Make<Wire>();
  Read(values_, *record);
  segments_ = Append(*(net_->*list), std::move(record))->m_pSegArray;
  return LineOutcome::Imported();
}

LineOutcome TracesReader::AddGuiOrChg(RecordArray<CMTracesGUICHG>* CMTracesNET::*list) {
  auto record = records_.Make<CMTracesGUICHG>();
  Read(values_, *record);
  Append(*(net_->*list), std::move(record));
  return LineOutcome::Imported();
}

}  // namespace kestrin
