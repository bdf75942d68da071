#include "tool/diff/values.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>

namespace kestrin::tool {
namespace {

std::optional<double> NumberOf(std::string_view text) {
  double number = 0.0;
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  const bool isNumber = read.ec == std::errc() && read.ptr == end && std::isfinite(number);
  return isNumber ? std::optional(number) : std::nullopt;
}

}  // namespace

Value ValueOf(std::string_view text) { return text.empty() ? Value() : Value(std::string(text)); }

Value ShownValueOf(std::string_view content) {
  constexpr std::size_t kLongestShown = 100;
  return content.size() > kLongestShown ? Value() : ValueOf(content);
}

bool AreEqual(std::string_view before, std::string_view after) {
  if (before == after) return true;
  const auto number = NumberOf(before);
  return number && number == NumberOf(after);
}

void CompareValue(std::vector<Detail>& details, const char* what, double before, double after) {
  if (before != after) details.push_back({what, before, after});
}

void CompareName(std::vector<Detail>& details, const char* what, std::string_view before,
                 std::string_view after) {
  if (before != after) details.push_back({what, ValueOf(before), ValueOf(after)});
}

std::string TextOf(double number) {
  std::array<char, 32> text{};
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), number).ptr};
}

std::string TextOf(const Value& value) {
  if (const auto* number = std::get_if<double>(&value)) return TextOf(*number);
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  return "none";
}

}  // namespace kestrin::tool
