#pragma once

/// @file
/// The library's readers as works.

#include <cstring>
#include <optional>
#include <stdexcept>
#include <string_view>

#include "bench/measuring/work.h"
#include "bench/tallies.h"
#include "kestrin/board/read_board.h"
#include "kestrin/framework/stdio_file.h"
#include "kestrin/geometry/geometry_reader.h"
#include "kestrin/neutral/neutral_reader.h"
#include "kestrin/session/import_session.h"
#include "kestrin/tech/tech_reader.h"
#include "kestrin/traces/strict/strict_parser.h"
#include "kestrin/traces/traces_reader.h"
#include "support/source_of.h"

namespace kestrin::bench {

struct BuiltTraces final : Built {
  [[nodiscard]] TracesReader Reader() { return TracesReader(traces); }
  [[nodiscard]] Tally Count() const override { return CountTraces(traces); }

  CMTraces traces;
};

struct BuiltGeometry final : Built {
  [[nodiscard]] GeometryReader Reader() { return GeometryReader(geom); }
  [[nodiscard]] Tally Count() const override { return CountGeometry(geom); }

  CMGeom geom;
};

struct BuiltNeutral final : Built {
  [[nodiscard]] NeutralReader Reader() { return {components, nets, selection}; }

  CMComps components;
  CMNetList nets;
  BoardSelection selection;
};

struct BuiltTech final : Built {
  [[nodiscard]] TechReader Reader() { return TechReader(tech); }

  CMTech tech;
};

struct BuiltStrictly final : Built {
  [[nodiscard]] Tally Count() const override { return CountTraces(*parse.traces); }

  StrictParse parse;
};

struct BuiltBoard final : Built {
  explicit BuiltBoard(const std::string& folder) {
    session.vSetTechFilePath(folder + "/board.tech");
    session.vSetNeutralFilePath(folder + "/board.neutral");
    session.vSetGeomFilePath(folder + "/board.geometry");
    session.vSetTraceFilePath(folder + "/board.traces");
  }

  CPC_KESTRIN_GET session;
  std::optional<Board> board;
};

/// Runs a reader on text in memory.
template <class Model>
std::unique_ptr<Built> ReadFromMemory(const Input& input) {
  auto built = std::make_unique<Model>();
  auto reader = built->Reader();
  const char* position = input.bytes.data();
  const char* const end = position + input.bytes.size();
  while (position != end) {
    const void* newline = std::memchr(position, '\n', static_cast<std::size_t>(end - position));
    const char* lineEnd = newline == nullptr ? end : static_cast<const char*>(newline);
    (void)reader.ReadLine({position, static_cast<std::size_t>(lineEnd - position)});
    position = newline == nullptr ? end : lineEnd + 1;
  }
  return built;
}

/// Runs a reader on a file.
template <class Model>
std::unique_ptr<Built> ReadFromFile(const Input& input) {
  auto built = std::make_unique<Model>();
  auto reader = built->Reader();
  CStdioFile file;
  if (file.Open(input.path.c_str()) == 0) throw std::runtime_error("cannot open \"" + input.path + '"');
  while (const auto line = file.ReadLine()) (void)reader.ReadLine(*line);
  return built;
}

/// Runs the strict reader on text in memory.
inline std::unique_ptr<Built> ReadTracesStrictly(const Input& input) {
  auto built = std::make_unique<BuiltStrictly>();
  built->parse = ParseStrictly(test::SourceOf(input.bytes, input.bytes.size()));
  return built;
}

/// Imports the board in a folder with a session, without a dialog.
inline std::unique_ptr<Built> ImportBoard(const Input& input) {
  auto built = std::make_unique<BuiltBoard>(input.path);
  built->session.vParse();
  return built;
}

/// Imports the board and joins the models into one.
inline std::unique_ptr<Built> ImportAndReadBoard(const Input& input) {
  auto built = std::make_unique<BuiltBoard>(input.path);
  built->session.vParse();
  built->board = ReadBoard(ModelsOf(built->session));
  return built;
}

/// Imports the board with a dialog that shows progress.
inline std::unique_ptr<Built> ImportBoardWithDialog(const Input& input) {
  const CWnd dialog;
  CWnd status(&dialog);
  CProgressCtrl geometry(&dialog);
  CProgressCtrl neutral(&dialog);
  CProgressCtrl traces(&dialog);
  CProgressCtrl tech(&dialog);
  auto built = std::make_unique<BuiltBoard>(input.path);
  built->session.m_pStatusWnd = &status;
  built->session.SetProgressPtr(&geometry, &neutral, &traces, &tech);
  built->session.vParse();
  built->session.m_pStatusWnd = nullptr;
  built->session.SetProgressPtr(nullptr, nullptr, nullptr, nullptr);
  return built;
}

}  // namespace kestrin::bench
