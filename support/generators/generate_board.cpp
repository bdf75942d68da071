#include <fstream>

#include "support/generators/board/board_plan.h"
#include "support/generators/generators.h"

namespace kestrin::test {

bool WriteGenerated(const GeneratedFile& file, const std::string& path, std::uint64_t size) {
  std::ofstream out(path, std::ios::binary);
  file.generate(out, size);
  return static_cast<bool>(out.flush());
}

bool GenerateBoard(const std::string& folder, std::uint64_t legs) {
  struct BoardFile {
    const char* name;
    void (*write)(std::ostream& out, const BoardPlan& plan);
  };
  const BoardPlan plan = PlanBoard(legs);
  for (const BoardFile& file : {BoardFile{"/board.tech", &WriteTech},
                                {"/board.neutral", &WriteNeutral},
                                {"/board.geometry", &WriteGeometry},
                                {"/board.traces", &WriteTraces}}) {
    std::ofstream out(folder + file.name, std::ios::binary);
    file.write(out, plan);
    if (!out.flush()) return false;
  }
  return true;
}

}  // namespace kestrin::test
