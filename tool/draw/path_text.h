#pragma once

/// @file
/// The text of SVG paths.

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "kestrin/board/board.h"

namespace kestrin::tool::draw {

/// Lengths as whole steps of a thousandth of a millimetre, or of a hundredth for boards larger than a metre.
/// Points are rounded before their differences are taken, so errors do not add up along a path.
class Steps {
 public:
  explicit Steps(double largestLength) : decimals_(largestLength > 1000.0 ? 2 : 3) {}

  [[nodiscard]] int Decimals() const { return decimals_; }
  [[nodiscard]] std::int64_t PerMillimetre() const { return decimals_ == 2 ? 100 : 1000; }
  /// The length must be less than a million kilometres.
  [[nodiscard]] std::int64_t Of(double length) const {
    const double steps = length * static_cast<double>(PerMillimetre());
    return static_cast<std::int64_t>(steps + std::copysign(0.5, steps));
  }

 private:
  int decimals_;
};

/// Appends lengths in the shortest decimal form: "12.5", "-.25".
class DecimalText {
 public:
  explicit DecimalText(Steps steps) : steps_(steps) {}

  [[nodiscard]] const Steps& GetSteps() const { return steps_; }
  void Append(std::string& text, double length) const;

  /// The end of a number, and whether it has a decimal point.
  struct Written {
    char* end;
    bool hasPoint;
  };
  static constexpr std::size_t kLongest = 32;
  /// Writes a number of steps to a place with room for the longest.
  [[nodiscard]] Written Write(char* place, std::int64_t steps) const;

 private:
  Steps steps_;
};

/// Appends polylines to the text of a path, each point relative to the one before.
class PathText {
 public:
  /// x of all points is multiplied by 1 or -1, y by -1, since y points down in SVG.
  PathText(std::string& text, const DecimalText& numbers, bool isMirrored)
      : text_(text), numbers_(numbers), signX_(isMirrored ? -1.0 : 1.0) {}
  PathText(const PathText&) = delete;
  PathText& operator=(const PathText&) = delete;
  ~PathText() = default;

  enum class End { kOpen, kClosed };
  /// A single point becomes a leg of length 0, which round pens draw as a dot.
  void Add(std::span<const Point> points, End end);
  /// Appends what is not in the text yet.
  void Flush();

 private:
  static constexpr std::size_t kLongestLeg = 2 * DecimalText::kLongest + 4;
  /// Makes room for a leg in the buffer.
  void MakeRoom() {
    if (static_cast<std::size_t>(buffer_.data() + buffer_.size() - place_) < kLongestLeg) Flush();
  }
  void Command(char letter);
  void Number(std::int64_t steps);
  void Move(std::int64_t dx, std::int64_t dy);
  void Leg(std::int64_t dx, std::int64_t dy);

  std::string& text_;
  std::array<char, 2048> buffer_;  // legs are collected here, since a string takes time for each call
  char* place_ = buffer_.data();
  const DecimalText& numbers_;
  double signX_;
  char command_ = ' ';           // the last letter
  bool needsSeparator_ = false;  // before a number without a sign
  bool lastHasPoint_ = false;    // the last number has a decimal point, so another may follow it directly
  std::int64_t x_ = 0;
  std::int64_t y_ = 0;
};

}  // namespace kestrin::tool::draw
