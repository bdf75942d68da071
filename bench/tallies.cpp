#include "bench/tallies.h"

#include "kestrin/geometry/geometry_fields.h"
#include "kestrin/records/fields.h"
#include "kestrin/traces/traces_fields.h"

namespace kestrin::bench {
namespace {

/// Counts a model by the lists of its fields.
struct ModelTally : Tally {
  void Add(double number) { AddNumber(number); }
  void Add(int number) { AddNumber(number); }
  void Add(const CString& /*text*/) {}
  void Add(const CArray<CString, const CString&>& /*texts*/) {}
  void Add(const NumberArray& numbers) {
    for (const double number : numbers) AddNumber(number);
  }
  template <class Record>
  void Add(const RecordArray<Record>& list) {
    for (const Record* record : list) Add(*record);
  }
  template <class Value>
  void Add(const Value* value) {
    Add(*value);
  }
  template <HasFields Record>
  void Add(const Record& record) {
    AddRecord({});
    ForEachField(record, [this](const char* /*name*/, const auto& value) { this->Add(value); });
  }
};

template <class Model>
Tally TallyOf(const Model& model) {
  ModelTally tally;
  tally.Add(model);
  return tally;
}

}  // namespace

Tally CountTraces(const CMTraces& traces) { return TallyOf(traces); }
Tally CountGeometry(const CMGeom& geom) { return TallyOf(geom); }

}  // namespace kestrin::bench
