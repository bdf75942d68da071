#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <sstream>
#include <string>

#include "kestrin/traces/traces_reader.h"
#include "tests/traces/described_traces.h"

namespace kestrin {
namespace {

/// Reads every line, also behind one that raises; the sanitizers watch. Returns how many were imported.
int ReadAll(const std::string& text, CMTraces& traces) {
  TracesReader reader(traces);
  std::istringstream lines(text);
  int imported = 0;
  for (std::string line; std::getline(lines, line);) {
    try {
      if (reader.ReadLine(line) == LineOutcome::Imported()) ++imported;
    } catch (const CInvalidArgException&) {
    }
  }
  return imported;
}

TEST(TracesReader, SurvivesRandomBytes) {
  std::mt19937 random(1);
  const std::string common = "\n\n     ''#VERSGFILANTW1.5e-\t";
  for (int round = 0; round < 200; ++round) {
    std::string text(2000, '\0');
    for (char& c : text)
      c = random() % 4 == 0 ? static_cast<char>(random()) : common[random() % common.size()];
    CMTraces traces;
    ReadAll(text, traces);
  }
}

TEST(TracesReader, SurvivesDamagedFiles) {
  std::stringstream file;
  file << std::ifstream(KESTRIN_EXAMPLES "/board/board.traces").rdbuf();
  const std::string board = file.str();
  CMTraces whole;
  ASSERT_EQ(ReadAll(board, whole), 377);
  std::mt19937 random(1);
  for (int round = 0; round < 300; ++round) {
    std::string text = board;
    for (int damage = 0; damage < 20; ++damage) {
      const std::size_t place = random() % text.size();
      switch (random() % 4) {
        case 0: text[place] = static_cast<char>(random()); break;
        case 1: text.erase(place, random() % 40); break;
        case 2: text.insert(place, text.substr(random() % text.size(), random() % 40)); break;
        default: text.insert(place, 1, " '\n"[random() % 3]); break;
      }
    }
    CMTraces traces;
    ReadAll(text, traces);
    EXPECT_FALSE(test::Described(traces).empty());
  }
}

}  // namespace
}  // namespace kestrin
