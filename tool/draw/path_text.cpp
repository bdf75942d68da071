#include "tool/draw/path_text.h"

#include <array>
#include <charconv>

namespace kestrin::tool::draw {

namespace {

/// A length as whole millimetres and thousandths.
struct Thousandths {
  std::uint64_t whole;
  unsigned rest;
};

/// Dividing by constants is much faster than by a variable.
Thousandths Divided(std::uint64_t steps, const Steps& unit) {
  if (unit.Decimals() == 2) return {steps / 100, static_cast<unsigned>(steps % 100 * 10)};
  return {steps / 1000, static_cast<unsigned>(steps % 1000)};
}

char Digit(unsigned digit) { return static_cast<char>('0' + digit); }

}  // namespace

DecimalText::Written DecimalText::Write(char* place, std::int64_t steps) const {
  constexpr std::size_t kMostDigits = 20;
  if (steps < 0) *place++ = '-';
  const auto [whole, rest] =
      Divided(steps < 0 ? ~static_cast<std::uint64_t>(steps) + 1 : static_cast<std::uint64_t>(steps), steps_);
  if (whole == 0 && rest == 0) {
    *place++ = '0';
  } else if (whole >= 10) {
    place = std::to_chars(place, place + kMostDigits, whole).ptr;
  } else if (whole > 0) {
    *place++ = Digit(static_cast<unsigned>(whole));
  }
  if (rest != 0) {
    *place++ = '.';
    *place++ = Digit(rest / 100);
    if (rest % 100 != 0) *place++ = Digit(rest / 10 % 10);
    if (rest % 10 != 0) *place++ = Digit(rest % 10);
  }
  return {place, rest != 0};
}

void DecimalText::Append(std::string& text, double length) const {
  std::array<char, kLongest> number;
  text.append(number.data(), Write(number.data(), steps_.Of(length)).end);
}

char* PathText::Command(char* place, char letter) {
  *place++ = letter;
  command_ = letter;
  needsSeparator_ = false;
  return place;
}

char* PathText::Number(char* place, std::int64_t steps) {
  const bool startsWithPoint = steps > 0 && steps < numbers_.GetSteps().PerMillimetre();
  if (needsSeparator_ && steps >= 0 && !(startsWithPoint && lastHasPoint_)) *place++ = ' ';
  const auto [end, hasPoint] = numbers_.Write(place, steps);
  lastHasPoint_ = hasPoint;
  needsSeparator_ = true;
  return end;
}

void PathText::Move(std::int64_t dx, std::int64_t dy) {
  std::array<char, kLongestLeg> leg;
  text_.append(leg.data(), Number(Number(Command(leg.data(), 'm'), dx), dy));
}

void PathText::Leg(std::int64_t dx, std::int64_t dy) {
  std::array<char, kLongestLeg> leg;
  char* place = leg.data();
  if (dx == 0 || dy == 0) {
    place = Number(Command(place, dy == 0 ? 'h' : 'v'), dy == 0 ? dx : dy);
  } else {
    // Pairs of numbers after "m" are legs, too.
    if (command_ != 'm' && command_ != 'l') place = Command(place, 'l');
    place = Number(Number(place, dx), dy);
  }
  text_.append(leg.data(), place);
}

void PathText::Add(std::span<const Point> points, End end) {
  const Steps& steps = numbers_.GetSteps();
  const auto stepsX = [&](Point point) { return steps.Of(point.x * signX_); };
  const auto stepsY = [&](Point point) { return steps.Of(-point.y); };
  const std::int64_t startX = stepsX(points.front());
  const std::int64_t startY = stepsY(points.front());
  Move(startX - x_, startY - y_);  // the first one of a path is absolute, since the path begins at (0, 0)
  x_ = startX;
  y_ = startY;
  bool hasLegs = false;
  for (const Point point : points.subspan(1)) {
    const std::int64_t x = stepsX(point);
    const std::int64_t y = stepsY(point);
    if (x == x_ && y == y_) continue;
    Leg(x - x_, y - y_);
    x_ = x;
    y_ = y;
    hasLegs = true;
  }
  if (!hasLegs) Leg(0, 0);
  if (end != End::kClosed) return;
  text_ += 'z';
  x_ = startX;
  y_ = startY;
}

}  // namespace kestrin::tool::draw
