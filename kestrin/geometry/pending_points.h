#pragma once

/// @file
/// The points that lines gather ahead of the line that uses them.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kestrin {

/// One value of the pending points, cleaned and converted: nothing asks for its text.
struct PendingValue {
  double number = 0.0;
  bool isEmpty = false;  ///< nothing is left of its text; the number is then 0
};

/// The values that `$$initial` begins with and `$$terminal` adds to, in the order of the file.
class PendingPoints {
 public:
  /// Take the values from the square brackets of a command's arguments.
  void Begin(std::string_view arguments);
  void Continue(std::string_view arguments);

  void Clear() { values_.clear(); }

  [[nodiscard]] const std::vector<PendingValue>& Values() const { return values_; }
  [[nodiscard]] bool IsEmpty() const { return values_.empty(); }

  /// Overwrites a number with the value of that number, from 1, if there is one.
  void CopyTo(std::size_t number, double& target) const {
    if (number <= values_.size()) target = values_[number - 1].number;
  }

 private:
  template <class AddOther>
  void AddEach(std::string_view points, AddOther addOther);
  void Add(std::string_view value);
  std::string_view WithoutBlanks(std::string_view text);

  std::vector<PendingValue> values_;
  std::string scratch_;
};

}  // namespace kestrin
