#include "bench/kestrin_works.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

#include "kestrin/geom/geom_reader.h"
#include "kestrin/neutral/neutral_reader.h"
#include "kestrin/platform/stdio_file.h"
#include "kestrin/session/import_session.h"
#include "kestrin/tech/tech_reader.h"
#include "kestrin/traces/strict/strict_parser.h"
#include "kestrin/traces/traces_reader.h"

namespace kestrin::bench {
namespace {

struct BuiltTraces final : Built {
  [[nodiscard]] TracesReader Reader() { return TracesReader(traces); }
  [[nodiscard]] Tally Count() const override { return CountTraces(traces); }

  CMTraces traces;
};

struct BuiltGeometry final : Built {
  [[nodiscard]] GeomReader Reader() { return GeomReader(geom); }
  [[nodiscard]] Tally Count() const override { return CountGeometry(geom); }

  CMGeom geom;
};

struct BuiltNeutral final : Built {
  [[nodiscard]] NeutralReader Reader() { return {components, nets, selection}; }
  [[nodiscard]] Tally Count() const override { return CountNeutral(components, nets); }

  CMComps components;
  CMNetList nets;
  BoardSelection selection;
};

struct BuiltTech final : Built {
  [[nodiscard]] TechReader Reader() { return TechReader(tech); }
  [[nodiscard]] Tally Count() const override { return CountTech(tech); }

  CMTech tech;
};

struct BuiltStrictly final : Built {
  [[nodiscard]] Tally Count() const override { return CountTraces(*parse.traces); }

  StrictParse parse;
};

struct BuiltBoard final : Built {
  [[nodiscard]] Tally Count() const override {
    Tally sum;
    for (const Tally& tally :
         {CountTech(*session.GetTech()), CountGeometry(*session.GetGeom()),
          CountNeutral(*session.GetComps(), *session.GetNetList()), CountTraces(*session.GetTraces())}) {
      sum.records += tally.records;
      sum.characters += tally.characters;
      sum.coordinates += tally.coordinates;
    }
    return sum;
  }

  CPC_KESTRIN_GET session;
};

template <class BUILT>
std::unique_ptr<Built> ReadFromMemory(const Input& input) {
  auto built = std::make_unique<BUILT>();
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

template <class BUILT>
std::unique_ptr<Built> ReadFromFile(const Input& input) {
  auto built = std::make_unique<BUILT>();
  auto reader = built->Reader();
  CStdioFile file;
  if (file.Open(input.path.c_str()) == 0) throw std::runtime_error("no file");
  while (const auto line = file.ReadLine()) (void)reader.ReadLine(*line);
  return built;
}

void SetPaths(CPC_KESTRIN_GET& session, const std::string& folder) {
  session.vSetTechFilePath(folder + "/board.tech");
  session.vSetNeutralFilePath(folder + "/board.neutral");
  session.vSetGeomFilePath(folder + "/board.geometry");
  session.vSetTraceFilePath(folder + "/board.traces");
}

}  // namespace

std::unique_ptr<Built> ReadTracesFromMemory(const Input& input) { return ReadFromMemory<BuiltTraces>(input); }
std::unique_ptr<Built> ReadTracesFromFile(const Input& input) { return ReadFromFile<BuiltTraces>(input); }
std::unique_ptr<Built> ReadGeometryFromMemory(const Input& input) {
  return ReadFromMemory<BuiltGeometry>(input);
}
std::unique_ptr<Built> ReadGeometryFromFile(const Input& input) { return ReadFromFile<BuiltGeometry>(input); }
std::unique_ptr<Built> ReadNeutralFromMemory(const Input& input) {
  return ReadFromMemory<BuiltNeutral>(input);
}
std::unique_ptr<Built> ReadNeutralFromFile(const Input& input) { return ReadFromFile<BuiltNeutral>(input); }
std::unique_ptr<Built> ReadTechFromMemory(const Input& input) { return ReadFromMemory<BuiltTech>(input); }
std::unique_ptr<Built> ReadTechFromFile(const Input& input) { return ReadFromFile<BuiltTech>(input); }

std::unique_ptr<Built> ReadTracesStrictly(const Input& input) {
  auto built = std::make_unique<BuiltStrictly>();
  std::string_view rest = input.bytes;
  built->parse = ParseStrictly([&](char* bytes, std::size_t size) {
    const std::size_t count = rest.copy(bytes, size);
    rest.remove_prefix(count);
    return count;
  });
  return built;
}

std::unique_ptr<Built> ImportBoard(const Input& input) {
  auto built = std::make_unique<BuiltBoard>();
  SetPaths(built->session, input.path);
  built->session.vParse();
  return built;
}

std::unique_ptr<Built> ImportBoardWithDialog(const Input& input) {
  const CWnd dialog;
  CWnd status(&dialog);
  CProgressCtrl geometry(&dialog);
  CProgressCtrl neutral(&dialog);
  CProgressCtrl traces(&dialog);
  CProgressCtrl tech(&dialog);
  auto built = std::make_unique<BuiltBoard>();
  SetPaths(built->session, input.path);
  built->session.m_pStatusWnd = &status;
  built->session.SetProgressPtr(&geometry, &neutral, &traces, &tech);
  built->session.vParse();
  built->session.m_pStatusWnd = nullptr;
  built->session.SetProgressPtr(nullptr, nullptr, nullptr, nullptr);
  return built;
}

}  // namespace kestrin::bench
