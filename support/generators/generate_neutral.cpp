#include <array>
#include <ostream>
#include <random>
#include <string>

#include "support/generators/generators.h"

namespace kestrin::test {
namespace {

/// Writes lines and counts their bytes. Draw at most one random number in the arguments of a call: their
/// order of evaluation differs between compilers.
class Lines {
 public:
  explicit Lines(std::ostream& out) : out_(out) {}

  template <class... Parts>
  void Write(const Parts&... parts) {
    line_.clear();
    (line_.append(parts), ...);
    out_ << line_ << '\n';
    bytes_ += line_.size() + 1;
  }
  [[nodiscard]] std::uint64_t Bytes() const { return bytes_; }

 private:
  std::ostream& out_;
  std::string line_;
  std::uint64_t bytes_ = 0;
};

std::string Decimal(std::mt19937_64& random, int greatest) {
  const auto thousandths = static_cast<long>(random() % (static_cast<std::uint64_t>(greatest) * 1000));
  std::string fraction = std::to_string(thousandths % 1000);
  fraction.insert(0, 3 - fraction.size(), '0');
  return std::to_string(thousandths / 1000) + "." + fraction;
}

std::string Reference(std::uint64_t number) {
  constexpr std::array kLetters = {"R", "C", "U", "L", "J", "D"};
  return kLetters[number % kLetters.size()] + std::string("_") + std::to_string(number);
}

std::string Whole(std::mt19937_64& random, std::uint64_t most) { return std::to_string(1 + random() % most); }

void WriteNet(Lines& lines, std::mt19937_64& random, std::uint64_t number, std::uint64_t componentCount) {
  lines.Write("NET 'NET_", std::to_string(number), "'");
  lines.Write("N_PROP (NET_TYPE,\"SIGNAL\")");
  const std::uint64_t pins = number % 100 == 0 ? 200 : 2 + random() % 5;
  for (std::uint64_t i = 0; i < pins; ++i) {
    const std::string reference = Reference(random() % componentCount);
    const std::string pin = Whole(random, 300);
    const std::string x = Decimal(random, 400);
    const std::string y = Decimal(random, 300);
    lines.Write("N_PIN ", reference, "-", pin, " ", x, " ", y, " PAD_", Whole(random, 40), " 1");
  }
}

void WriteComponent(Lines& lines, std::mt19937_64& random, std::uint64_t number) {
  const std::string reference = Reference(number);
  const std::string part = Whole(random, 3000);
  const std::string geometry = Whole(random, 200);
  const std::string x = Decimal(random, 400);
  const std::string y = Decimal(random, 300);
  lines.Write("COMP ", reference, " PN-", part, " SYM_", geometry, " GEOM_", geometry, " ", x, " ", y, " ",
              Whole(random, 2), " 90");
  const std::string height = Decimal(random, 9);
  lines.Write("C_PROP (REFLOC,\"", reference, ",", x, ",", y,
              ",0,@CC,1.0,1.0,0.15,std,@SHOW,SILKSCREEN_1\") (HEIGHT,\"", height, "\") (VALUE,\"10 k\")");
  const std::uint64_t pins = 2 + random() % 6;
  for (std::uint64_t i = 1; i <= pins; ++i)
    lines.Write("C_PIN ", reference, "-", std::to_string(i), " ", x, " ", y, " 0 1 PAD_3");
}

}  // namespace

void GenerateNeutral(std::ostream& out, std::uint64_t size) {
  std::mt19937_64 random(4711);
  Lines lines(out);
  lines.Write("###Panel");
  lines.Write("P_ADDP 1 BENCH B_1 10.0 10.0 1 0 0");
  lines.Write("###Board Information");
  lines.Write("BOARD BENCH REV_A X:400.0 Y:300.0 4 1.6");
  lines.Write("B_UNITS MM");
  lines.Write("###Nets");
  for (std::uint64_t net = 0; lines.Bytes() < size / 2; ++net) WriteNet(lines, random, net, 1 + size / 1000);
  lines.Write("###Component");
  for (std::uint64_t component = 0; lines.Bytes() < size; ++component)
    WriteComponent(lines, random, component);
}

}  // namespace kestrin::test
