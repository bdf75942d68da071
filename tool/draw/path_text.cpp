#include "tool/draw/path_text.h"

#include <array>
#include <charconv>
#include <cstring>

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

/// The texts of all numbers below a thousand.
struct Texts {
  struct Text {
    std::array<char, 4> characters{};
    std::uint8_t size = 0;
  };
  std::array<Text, 1000> whole;        // "12"; empty for 0
  std::array<Text, 1000> thousandths;  // ".012", without zeros at the end; empty for 0
};

constexpr char Digit(std::size_t digit) { return static_cast<char>('0' + digit); }

constexpr Texts MakeTexts() {
  Texts texts;
  const auto add = [](Texts::Text& text, char c) { text.characters[text.size++] = c; };
  for (std::size_t number = 1; number < texts.whole.size(); ++number) {
    for (std::size_t unit = 100; unit > 0; unit /= 10) {
      if (number >= unit) add(texts.whole[number], Digit(number / unit % 10));
    }
    add(texts.thousandths[number], '.');
    for (std::size_t rest = number, unit = 100; rest > 0; rest %= unit, unit /= 10)
      add(texts.thousandths[number], Digit(rest / unit));
  }
  return texts;
}

constexpr Texts kTexts = MakeTexts();

/// Copies all characters of a text, which is faster than those that count, and returns the end of the latter.
char* Copy(const Texts::Text& text, char* place) {
  std::memcpy(place, text.characters.data(), text.characters.size());
  return place + text.size;
}

}  // namespace

DecimalText::Written DecimalText::Write(char* place, std::int64_t steps) const {
  constexpr std::size_t kMostDigits = 20;
  if (steps == 0) *place++ = '0';
  if (steps < 0) *place++ = '-';
  const auto [whole, rest] =
      Divided(steps < 0 ? ~static_cast<std::uint64_t>(steps) + 1 : static_cast<std::uint64_t>(steps), steps_);
  place = whole < kTexts.whole.size() ? Copy(kTexts.whole[whole], place)
                                      : std::to_chars(place, place + kMostDigits, whole).ptr;
  return {Copy(kTexts.thousandths[rest], place), rest != 0};
}

void DecimalText::Append(std::string& text, double length) const {
  std::array<char, kLongest> number;
  text.append(number.data(), Write(number.data(), steps_.Of(length)).end);
}

void PathText::Command(char letter) {
  *place_++ = letter;
  command_ = letter;
  needsSeparator_ = false;
}

void PathText::Number(std::int64_t steps) {
  const bool startsWithPoint = steps > 0 && steps < numbers_.GetSteps().PerMillimetre();
  if (needsSeparator_ && steps >= 0 && !(startsWithPoint && lastHasPoint_)) *place_++ = ' ';
  const auto [end, hasPoint] = numbers_.Write(place_, steps);
  place_ = end;
  lastHasPoint_ = hasPoint;
  needsSeparator_ = true;
}

void PathText::Move(std::int64_t dx, std::int64_t dy) {
  MakeRoom();
  Command('m');
  Number(dx);
  Number(dy);
}

void PathText::Leg(std::int64_t dx, std::int64_t dy) {
  MakeRoom();
  if (dx == 0 || dy == 0) {
    Command(dy == 0 ? 'h' : 'v');
    return Number(dy == 0 ? dx : dy);
  }
  // Pairs of numbers after "m" are legs, too.
  if (command_ != 'm' && command_ != 'l') Command('l');
  Number(dx);
  Number(dy);
}

void PathText::Flush() {
  text_.append(buffer_.data(), place_);
  place_ = buffer_.data();
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
  MakeRoom();
  *place_++ = 'z';
  x_ = startX;
  y_ = startY;
}

}  // namespace kestrin::tool::draw
