#include <array>
#include <ostream>
#include <random>
#include <string>

#include "bench/generators.h"

namespace kestrin::bench {
namespace {

/// Writes lines and knows how many bytes they were.
class Lines {
 public:
  explicit Lines(std::ostream& out) : out_(out) {}
  void Write(const std::string& line) {
    out_ << line << '\n';
    bytes_ += line.size() + 1;
  }
  [[nodiscard]] std::uint64_t Bytes() const { return bytes_; }

 private:
  std::ostream& out_;
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

void WriteNet(Lines& lines, std::mt19937_64& random, std::uint64_t number, std::uint64_t componentCount) {
  lines.Write("NET 'NET_" + std::to_string(number) + "'");
  lines.Write("N_PROP (NET_TYPE,\"SIGNAL\")");
  const std::uint64_t pins = number % 100 == 0 ? 200 : 2 + random() % 5;
  for (std::uint64_t i = 0; i < pins; ++i) {
    lines.Write("N_PIN " + Reference(random() % componentCount) + "-" + std::to_string(1 + random() % 300) +
                " " + Decimal(random, 400) + " " + Decimal(random, 300) + " PAD_" +
                std::to_string(random() % 40) + " 1");
  }
  if (random() % 2 == 0)
    lines.Write("N_VIA " + Decimal(random, 400) + " " + Decimal(random, 300) + " VIA_T06 1 4");
}

void WriteComponent(Lines& lines, std::mt19937_64& random, std::uint64_t number) {
  const std::string reference = Reference(number);
  lines.Write("COMP " + reference + " PN-" + std::to_string(random() % 3000) + " SYM_" +
              std::to_string(random() % 60) + " GEOM_" + std::to_string(random() % 200) + " " +
              Decimal(random, 400) + " " + Decimal(random, 300) + " " + std::to_string(1 + random() % 2) +
              " " + std::to_string(random() % 4 * 90));
  lines.Write("C_PROP (REFLOC,\"" + reference + "," + Decimal(random, 5) + "," + Decimal(random, 5) +
              ",0,@CC,1.0,1.0,0.15,std,@SHOW,SILKSCREEN_1\") (HEIGHT,\"" + Decimal(random, 9) +
              "\") (VALUE,\"10 k\")");
  const std::uint64_t pins = 2 + random() % 6;
  for (std::uint64_t i = 1; i <= pins; ++i) {
    lines.Write("C_PIN " + reference + "-" + std::to_string(i) + " " + Decimal(random, 400) + " " +
                Decimal(random, 300) + " 0 1 PAD_3");
  }
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

}  // namespace kestrin::bench
