#pragma once

#include <type_traits>
#include <vector>

#include "kestrin/geometry/geometry_fields.h"
#include "kestrin/neutral/neutral_fields.h"
#include "kestrin/records/fields.h"
#include "kestrin/tech/tech_fields.h"
#include "kestrin/traces/traces_fields.h"

namespace kestrin::test {

/// Collects the addresses of the records in the lists of a record, and of those in their lists, and so on.
class RecordsIn {
 public:
  template <HasFields... Roots>
  explicit RecordsIn(const Roots&... roots) {
    (AddFieldsOf(roots), ...);
  }

  std::vector<const void*> addresses;

 private:
  template <HasFields Record>
  void AddFieldsOf(const Record& record) {
    ForEachField(record, [this](const char* /*name*/, const auto& value) { this->AddFrom(value); });
  }
  template <class Value>
  void AddFrom(const Value& value) {
    if constexpr (HasFields<Value>) {
      AddFieldsOf(value);
    } else if constexpr (requires { requires HasFields<std::remove_cvref_t<decltype(*value)>>; }) {
      AddFieldsOf(*value);
    } else if constexpr (requires { requires HasFields<std::remove_cvref_t<decltype(**value->begin())>>; }) {
      for (const auto* record : *value) {
        addresses.push_back(record);
        AddFieldsOf(*record);
      }
    }
  }
};

}  // namespace kestrin::test
