#pragma once

/// @file
/// The points that lines collect for a later line.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kestrin {

/// A value of the pending points, cleaned and converted.
struct PendingValue {
  double number = 0.0;
  bool isEmpty = false;  ///< the cleaned text is empty, and the number is 0
};

/// The points that `$$initial` and `$$terminal` collect. The next drawing object, or attribute with points,
/// consumes them.
class PendingPoints {
 public:
  /// Reads the values in the square brackets of a command's arguments. Begin drops earlier values; Continue
  /// appends.
  void Begin(std::string_view arguments);
  void Continue(std::string_view arguments);

  void Clear() { values_.clear(); }

  [[nodiscard]] const std::vector<PendingValue>& Values() const { return values_; }
  [[nodiscard]] bool IsEmpty() const { return values_.empty(); }

  /// Sets the target to a value, numbered from 1, if it exists.
  void CopyTo(std::size_t number, double& target) const {
    if (number <= values_.size()) target = values_[number - 1].number;
  }

  /// The part of a command's arguments that Begin and Continue read: the text between the first "[" and the
  /// first "]". Without a "[", everything before the "]"; without a "]", or if it comes first, nothing.
  [[nodiscard]] static std::string_view BracketedIn(std::string_view arguments);

 private:
  template <class AddOther>
  void AddEach(std::string_view points, AddOther addOther);
  void Add(std::string_view value);
  std::string_view WithoutBlanks(std::string_view text);

  std::vector<PendingValue> values_;
  std::string scratch_;
};

}  // namespace kestrin
