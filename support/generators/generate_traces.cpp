#include <cstddef>
#include <random>
#include <string>

#include "support/generators/generators.h"

namespace kestrin::test {
namespace {

/// Writes one Traces file. Coordinates are integers, in ten-thousandths of a millimetre.
class TracesGenerator {
 public:
  TracesGenerator(std::ostream& out, std::uint64_t size) : out_(out), size_(size) {}

  void Generate() {
    WriteBoardRecords();
    while (Written() < size_ / 2) WriteNet();
    while (Written() < size_) WriteFill();
    Flush();
  }

 private:
  [[nodiscard]] std::uint64_t Written() const { return flushed_ + text_.size(); }

  void Flush() {
    out_.write(text_.data(), static_cast<std::streamsize>(text_.size()));
    flushed_ += text_.size();
    text_.clear();
  }

  /// A random number from first to last. The distributions of the standard library are not used because they
  /// differ between implementations.
  int Random(int first, int last) {
    return first + static_cast<int>(random_() % static_cast<std::uint64_t>(last - first + 1));
  }

  TracesGenerator& Put(std::string_view text) {
    text_.append(text);
    return *this;
  }
  TracesGenerator& Put(int number) { return Put(std::to_string(number)); }
  TracesGenerator& PutLength(int tenThousandths) {
    const std::string fraction = std::to_string(10'000 + tenThousandths % 10'000);
    return Put(tenThousandths / 10'000).Put(".").Put(std::string_view(fraction).substr(1));
  }
  TracesGenerator& PutPoint(int x, int y) { return PutLength(x).Put(" ").PutLength(y); }
  void EndLine() {
    text_ += '\n';
    if (text_.size() > std::size_t{1} << 16) Flush();
  }

  /// Moves to a point of the board near the last one.
  void Move() {
    x_ = (x_ + Random(0, 40'000) + kBoardSize - 20'000) % kBoardSize;
    y_ = (y_ + Random(0, 40'000) + kBoardSize - 20'000) % kBoardSize;
  }
  void Jump() {
    x_ = Random(0, kBoardSize - 1);
    y_ = Random(0, kBoardSize - 1);
  }

  void WriteBoardRecords() {
    Put("# Application board layout export, generated\nUNITS MM\nST 150.0 150.0 8 2\n");
    const int components = 1 + static_cast<int>(size_ / 25'000);
    for (int i = 1; i <= components; ++i) Put("XRF ").Put(i).Put(" U_").Put(i).EndLine();
    for (int i = 1; i <= 8; ++i) Put("TTT ").Put(i).Put(" ").PutLength(1'000 * i).Put(" 1 8 1").EndLine();
  }

  void WriteNet() {
    Put("# NET 'N$").Put(++nets_).Put("'").EndLine();
    const int wires = Random(1, 12);
    for (int i = 1; i <= wires; ++i) {
      Jump();
      const int segments = Random(2, 30);
      const bool isOpen = Random(0, 19) == 0;
      Put(isOpen ? "INC " : "WIR ").Put(i).Put(" ").PutPoint(x_, y_);
      Put(isOpen ? " 1 " : " ").PutPoint(y_, x_).Put(isOpen ? " 1" : "").EndLine();
      for (int k = 0; k < segments; ++k) WriteSegment();
    }
    if (Random(0, 9) > 0) return;
    Put("ANT 1 ").PutPoint(x_, y_).Put(" ").PutPoint(y_, x_).EndLine();
    WriteSegment();
    Put("GUI ").PutPoint(x_, y_).Put(" 1 ").PutPoint(y_, x_).Put(" 2").EndLine();
  }

  void WriteSegment() {
    Move();
    Put("SEG ").PutPoint(x_, y_).Put(" ").Put(Random(1, 8));
    Random(0, 9) == 0 ? Put(" VIA_T06 L_") : Put(" 25 L_");
    Put(Random(1, 8)).EndLine();
  }

  void WriteFill() {
    ++fills_;
    Jump();
    Put("FIL ").PutNames().Put(" SOLID 1 2 0 1 0 0.25 0 4 0 STYLE FULL CROSS 1").EndLine();
    WriteVertices(Random(4, 20));
    const int areas = Random(1, 3);
    for (int i = 0; i < areas; ++i) {
      Put("ARE ").PutNames().Put(" SOLID 1 0.25 8").EndLine();
      WriteVertices(Random(20, 600));
    }
    const int islands = Random(0, 80);
    for (int i = 1; i <= islands; ++i) {
      Put("ISL ").Put(i).EndLine();
      WriteVertices(Random(4, 40));
    }
    Put("TTI ").PutPoint(x_, y_).Put(" CROSS").EndLine();
  }

  TracesGenerator& PutNames() { return Put("'N$").Put(fills_).Put("' 'SIGNAL_2'"); }

  void WriteVertices(int count) {
    for (int i = 0; i < count; ++i) {
      Move();
      Put("VER ").PutPoint(x_, y_).EndLine();
    }
  }

  static constexpr int kBoardSize = 1'500'000;

  std::ostream& out_;
  std::uint64_t size_;
  std::uint64_t flushed_ = 0;
  std::string text_;
  std::mt19937_64 random_{1};  // the same file every time
  int x_ = 0;
  int y_ = 0;
  int nets_ = 0;
  int fills_ = 0;
};

}  // namespace

void GenerateTraces(std::ostream& out, std::uint64_t size) { TracesGenerator(out, size).Generate(); }

}  // namespace kestrin::test
