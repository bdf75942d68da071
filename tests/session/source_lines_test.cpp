#include "kestrin/records/source_lines.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "kestrin/framework/exceptions.h"
#include "kestrin/geometry/geometry_reader.h"
#include "kestrin/neutral/neutral_reader.h"
#include "kestrin/records/line_notes.h"
#include "kestrin/session/import_session.h"
#include "kestrin/tech/tech_reader.h"
#include "kestrin/traces/strict/strict_parser.h"
#include "kestrin/traces/traces_reader.h"
#include "support/generators/generators.h"
#include "support/source_of.h"
#include "support/temporary_folder.h"
#include "tests/support/content_of.h"
#include "tests/support/records_in.h"
#include "tests/support/sample_board.h"

namespace kestrin {
namespace {

using test::RecordsIn;
using Lines = std::vector<std::int64_t>;

/// The line after which each record of the models was there for the first time.
template <class Reader, class... Models>
Lines LinesOfNewRecords(Reader& reader, const std::string& text, const Models&... models) {
  std::map<const void*, std::int64_t> found;
  std::istringstream lines(text);
  std::int64_t number = 0;
  for (std::string line; std::getline(lines, line);) {
    static_cast<void>(reader.ReadLine(line));
    ++number;
    for (const void* record : RecordsIn(models...).addresses) found.try_emplace(record, number);
  }
  Lines result;
  for (const void* record : RecordsIn(models...).addresses) result.push_back(found[record]);
  return result;
}

Lines ExpectedLines(std::string_view kind, const std::string& text) {
  if (kind == "tech") {
    CMTech tech;
    TechReader reader(tech);
    return LinesOfNewRecords(reader, text, tech);
  }
  if (kind == "neutral") {
    CMComps components;
    CMNetList nets;
    BoardSelection selection;
    NeutralReader reader(components, nets, selection);
    return LinesOfNewRecords(reader, text, components, nets);
  }
  if (kind == "geometry") {
    CMGeom geom;
    GeometryReader reader(geom);
    return LinesOfNewRecords(reader, text, geom);
  }
  CMTraces traces;
  TracesReader reader(traces);
  return LinesOfNewRecords(reader, text, traces);
}

template <class... Models>
Lines KeptLines(const SourceLines* kept, const Models&... models) {
  Lines result;
  if (kept == nullptr) return result;
  for (const void* record : RecordsIn(models...).addresses) result.push_back(kept->LineOf(record));
  return result;
}

/// The lines that a session keeps while it reads a text.
Lines KeptBySession(std::string_view kind, const std::string& text) {
  const test::TemporaryFolder folder;
  const std::string path = folder.File("file", text);
  CPC_KESTRIN_GET session;
  session.KeepSourceLines(true);
  if (kind == "tech") {
    session.TechFileParse(path);
    return KeptLines(session.GetSourceLines(ImportFile::kTech), *session.GetTech());
  }
  if (kind == "neutral") {
    session.NeutralFileParse(path);
    return KeptLines(session.GetSourceLines(ImportFile::kNeutral), *session.GetComps(),
                     *session.GetNetList());
  }
  if (kind == "geometry") {
    session.GeomFileParse(path);
    return KeptLines(session.GetSourceLines(ImportFile::kGeometry), *session.GetGeom());
  }
  session.TraceFileParse(path);
  return KeptLines(session.GetSourceLines(ImportFile::kTraces), *session.GetTraces());
}

Lines KeptStrictly(const std::string& text) {
  const StrictParse parse = ParseStrictly(test::SourceOf(text), true);
  return KeptLines(parse.lines.get(), *parse.traces);
}

std::string WithCarriageReturns(const std::string& text) {
  std::string result;
  for (const char c : text) result.append(c == '\n' ? "\r\n" : std::string(1, c));
  return result;
}

/// The sample board's file, and one that takes several blocks of memory.
std::vector<std::string> TextsOf(const test::GeneratedFile& file) {
  std::ostringstream generated;
  file.generate(generated, 120'000);
  return {test::ContentOf(test::BoardFile(std::string(file.kind))), generated.str()};
}

TEST(SourceLines, EveryRecordHasTheLineThatMadeIt) {
  for (const test::GeneratedFile& file : test::kGeneratedFiles) {
    for (const std::string& text : TextsOf(file)) {
      const Lines expected = ExpectedLines(file.kind, text);
      EXPECT_GT(expected.size(), 5U) << file.kind;
      EXPECT_EQ(KeptBySession(file.kind, text), expected) << file.kind;
      EXPECT_EQ(KeptBySession(file.kind, WithCarriageReturns(text)), expected) << file.kind;
      if (file.kind != "traces") continue;
      EXPECT_EQ(KeptStrictly(text), expected);
      EXPECT_EQ(KeptStrictly(WithCarriageReturns(text)), expected);
    }
  }
}

TEST(SourceLines, OfTheStrictReaderAreThoseOfKeywordsWhateverTheLayout) {
  const std::string text =
      "UNITS\nMM\nST 1 2 3 4\n\nXRF 1\nU_1 XRF 2 U_2\n"
      "ARE A 'L' S 1\n2 3\nVER 1 2 VER\n3 4\n"
      "# NET 'A'\nTTT 1\n"  // an error
      "# NET 'B'\nWIR 1 2 3 4 5\nSEG 1 2 3 4\n\nSEG 1 2 3 4\nGUI 1 2 3\n4 5 6\n"
      "FIL 'A' 'L' S 1 2 3 4 5 6 7 8 9 W W W W\nVER 1 2\nARS B 'L' S 1 2 3\nVER 1 2\nST 1 2 3 4\n";
  const StrictParse parse = ParseStrictly(test::SourceOf(text), true);
  const Lines board{5, 6};
  const Lines nets{11, 13, 14, 15, 17, 18};
  const Lines fills{7, 7, 9, 9, 20, 21, 22, 22, 23};  // areas of other names have fills of their own
  Lines expected = board;
  expected.insert(expected.end(), nets.begin(), nets.end());
  expected.insert(expected.end(), fills.begin(), fills.end());
  EXPECT_EQ(KeptLines(parse.lines.get(), *parse.traces), expected);
  EXPECT_EQ(parse.lines->LineOf(&parse.traces->m_sUnits), 1);
  EXPECT_EQ(ParseStrictly(test::SourceOf(text)).lines, nullptr);
}

TEST(SourceLines, KnowTheLinesOfValuesThatAreNoRecords) {
  const test::TemporaryFolder folder;
  CPC_KESTRIN_GET session;
  session.KeepSourceLines(true);
  session.NeutralFileParse(folder.File("n", "\nB_UNITS MM\nB_UNITS IN\n"));
  session.TraceFileParse(folder.File("t", "# NET 'A'\nUNITS MM\n"));
  session.GeomFileParse(folder.File(
      "g",
      "$$create_board(\"B\");\n$$page(@mm);\n$$attribute(\"BOARD_DEFAULT_PADSTACK\", P);\n"
      "$$attribute(\"BOARD_PLACEMENT_OUTLINE\", [0, 1]);\n$$attribute(\"BOARD_ROUTING_OUTLINE\", [0, 1]);\n"
      "$$create_component(C);\n$$page(@in);\n$$attribute(\"COMPONENT_DEFAULT_PADSTACK\", P);\n"
      "$$create_pin(P);\n$$page(@mm);\n$$create_via(V);\n$$page(@mm);\n$$create_drawing(D);\n$$page(@mm);\n"
      "$$create_panel(Q);\n$$page(@mm);\n$$create_generic_part(G);\n$$page(@mm);\n"
      "$$attribute(\"COMPONENT_PLACEMENT_OUTLINE\", N, [1, 2]);\n$$create_stackup(S);\n$$page(@mm);\n"));
  const SourceLines& neutral = *session.GetSourceLines(ImportFile::kNeutral);
  const SourceLines& traces = *session.GetSourceLines(ImportFile::kTraces);
  const SourceLines& geometry = *session.GetSourceLines(ImportFile::kGeometry);
  const CMGeom& geom = *session.GetGeom();
  const CMGeomBoard& board = *geom.m_pBoard;
  const CMGeomComponent& component = *geom.m_pComponents->GetAt(0);
  const CMGeomGenericPart& part = *geom.m_pGenericParts->GetAt(0);
  struct Case {
    const SourceLines& lines;
    const void* value;
    std::int64_t line;
  };
  const Case cases[] = {
      {neutral, &session.GetComps()->m_sUnits, 3},
      {neutral, &session.GetComps()->m_dBoardValue3, 0},
      {neutral, nullptr, 0},
      {traces, &session.GetTraces()->m_sUnits, 2},
      {traces, session.GetTraces(), 0},
      {geometry, &board, 1},
      {geometry, &board.m_sUnits, 2},
      {geometry, &board.m_sDefaultPadstack, 3},
      {geometry, board.m_pPlacementOutline, 4},
      {geometry, board.m_pRoutingOutline, 5},
      {geometry, &component, 6},
      {geometry, &component.m_sUnits, 7},
      {geometry, &component.m_sDefaultPadstack, 8},
      {geometry, &geom.m_pPins->GetAt(0)->m_sUnits, 10},
      {geometry, &geom.m_pVias->GetAt(0)->m_sUnits, 12},
      {geometry, &geom.m_pDrawings->GetAt(0)->m_sUnits, 14},
      {geometry, &geom.m_pPanels->GetAt(0)->m_sUnits, 16},
      {geometry, &part.m_sUnits, 18},
      {geometry, part.m_pPlacementOutline, 19},
      {geometry, geom.m_pStackup, 20},
      {geometry, &geom.m_pStackup->m_sUnits, 21},
  };
  for (const Case& c : cases) EXPECT_EQ(c.lines.LineOf(c.value), c.line);
}

TEST(SourceLines, AreKeptOnlyOnRequestAndAsLongAsTheModel) {
  const test::TemporaryFolder folder;
  const std::string path = folder.File("t", "\n# NET 'A'\n# NET 'B'\nVER 1\n");
  const auto parse = [&](CPC_KESTRIN_GET& session) {
    EXPECT_THROW(session.TraceFileParse(path), CInvalidArgException);
  };
  auto session = std::make_unique<CPC_KESTRIN_GET>();
  parse(*session);
  EXPECT_EQ(session->GetSourceLines(ImportFile::kTraces), nullptr);
  session->KeepSourceLines(true);
  EXPECT_EQ(session->GetSourceLines(ImportFile::kTraces), nullptr);
  parse(*session);
  const CPC_KESTRIN_GET copy(*session);
  session->KeepSourceLines(false);
  parse(*session);
  EXPECT_EQ(session->GetSourceLines(ImportFile::kTraces), nullptr);
  session.reset();
  EXPECT_EQ(KeptLines(copy.GetSourceLines(ImportFile::kTraces), *copy.GetTraces()), (Lines{2, 3}));
  EXPECT_EQ(copy.GetSourceLines(ImportFile::kTech), nullptr);
}

TEST(SourceLines, OfOtherRecordsSurviveThatAHostDeletesSome) {
  const test::TemporaryFolder folder;
  CPC_KESTRIN_GET session;
  session.KeepSourceLines(true);
  session.TraceFileParse(folder.File("t", "# NET 'A'\n# NET 'B'\n# NET 'C'\n"));
  RecordArray<CMTracesNET>& nets = *session.GetTraces()->m_pNetArray;
  const std::unique_ptr<CMTracesNET> removed(nets.GetAt(1));
  nets.RemoveAt(1);
  nets.Add(std::make_unique<CMTracesNET>().release());
  EXPECT_EQ(KeptLines(session.GetSourceLines(ImportFile::kTraces), *session.GetTraces()), (Lines{1, 3, 0}));
}

TEST(SourceLines, ABlockHidesThoseThatWereInItsPlaceBefore) {
  std::array<char, 64> memory{};
  char* const first = memory.data();
  SourceLines lines;
  std::int64_t line = 1;
  {
    LineNotes notes(lines, line);
    const auto add = [&](const char* record) {
      notes.AddRecord(record);
      ++line;
    };
    notes.OpenBlock(first, 16);
    add(first + 8);
    notes.OpenBlock(first + 32, 16);
    add(first + 40);
    notes.OpenBlock(first + 48, 16);
    add(first + 56);
    notes.OpenBlock(first + 8, 32);  // overlaps the first two
    add(first + 16);
    add(first + 24);
    line = std::int64_t{1} << 32;
    add(first + 32);
  }
  const std::array<std::int64_t, 8> expected{0, 0, 4, 5, 0, 0, 0, 3};
  for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(lines.LineOf(first + 8 * i), expected[i]) << i;
}

}  // namespace
}  // namespace kestrin
