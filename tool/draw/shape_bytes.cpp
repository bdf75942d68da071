#include "tool/draw/shape_bytes.h"

#include <array>
#include <string_view>

namespace kestrin::tool::draw {
namespace {

std::uint64_t OwnerNumber(const Owner& owner) {
  if (owner.pin != kNone) return std::uint64_t{owner.pin} * 4 + 3;
  if (owner.component != kNone) return std::uint64_t{owner.component} * 4 + 2;
  if (owner.net != kNone) return std::uint64_t{owner.net} * 4 + 1;
  return 0;
}

class ShapeEncoder {
 public:
  explicit ShapeEncoder(const Steps& steps) : steps_(steps) {}

  void Add(const Shape& shape) {
    constexpr std::uint64_t kIsHole = 1;
    constexpr std::uint64_t kNextOwner = 2;
    constexpr std::uint64_t kOtherOwner = 4;
    constexpr std::int64_t kNextOfKind = 4;
    const std::uint64_t owner = OwnerNumber(shape.owner);
    const auto change = static_cast<std::int64_t>(owner) - static_cast<std::int64_t>(owner_);
    const std::uint64_t ownerBits = change == 0 ? 0 : change == kNextOfKind ? kNextOwner : kOtherOwner;
    std::string legs;
    const std::int64_t startX = x_;
    const std::int64_t startY = y_;
    MoveTo(shape.points.front(), nullptr);
    const std::int64_t firstX = x_;
    const std::int64_t firstY = y_;
    for (const Point point : shape.points.subspan(1)) MoveTo(point, &legs);
    const bool isRepeated = shape.points.size() > 2 && legs == legs_;
    const std::uint64_t count = isRepeated ? 0 : shape.points.size();
    AppendNumber(bytes_, count * 8 + (shape.isHole ? kIsHole : 0) + ownerBits);
    if (ownerBits == kOtherOwner) AppendSigned(bytes_, change);
    AppendSigned(bytes_, firstX - startX);
    AppendSigned(bytes_, firstY - startY);
    if (!isRepeated) bytes_ += legs;
    legs_ = std::move(legs);
    owner_ = owner;
  }

  [[nodiscard]] std::string Take() { return std::move(bytes_); }

 private:
  void MoveTo(Point point, std::string* legs) {
    const std::int64_t x = steps_.Of(point.x);
    const std::int64_t y = steps_.Of(point.y);
    if (legs != nullptr) {
      AppendSigned(*legs, x - x_);
      AppendSigned(*legs, y - y_);
    }
    x_ = x;
    y_ = y;
  }

  const Steps& steps_;
  std::string bytes_;
  std::string legs_;  // of the last shape
  std::uint64_t owner_ = 0;
  std::int64_t x_ = 0;
  std::int64_t y_ = 0;
};

}  // namespace

void AppendNumber(std::string& bytes, std::uint64_t number) {
  for (; number >= 0x80; number >>= 7) bytes += static_cast<char>(number | 0x80);
  bytes += static_cast<char>(number);
}

void AppendSigned(std::string& bytes, std::int64_t number) {
  AppendNumber(bytes, number < 0 ? ~static_cast<std::uint64_t>(number) * 2 + 1
                                 : static_cast<std::uint64_t>(number) * 2);
}

std::string BytesOf(std::span<const Shape> shapes, const Steps& steps) {
  ShapeEncoder encoder(steps);
  for (const Shape& shape : shapes) encoder.Add(shape);
  return encoder.Take();
}

std::string Base85Of(const std::string& bytes) {
  constexpr std::string_view kDigits =
      "!#%()*+,./0123456789:;=?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[]^_abcdefghijklmnopqrstuvwxyz{|}~";
  static_assert(kDigits.size() == 85);
  std::string text;
  text.reserve(bytes.size() / 4 * 5 + 5);
  for (std::size_t i = 0; i < bytes.size(); i += 4) {
    std::uint32_t group = 0;
    for (std::size_t j = i; j < i + 4; ++j) {
      group = group << 8 | (j < bytes.size() ? static_cast<unsigned char>(bytes[j]) : 0U);
    }
    std::array<char, 5> digits{};
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, group /= 85)
      *digit = kDigits[group % 85];
    text.append(digits.data(), digits.size());
  }
  return text;
}

}  // namespace kestrin::tool::draw
