#pragma once

/// @file
/// The line readers as the fuzz targets take them: each with its models.

#include <cstddef>
#include <string>

#include "fuzz/checks.h"
#include "kestrin/geom/geom_reader.h"
#include "kestrin/neutral/neutral_reader.h"
#include "kestrin/tech/tech_reader.h"
#include "kestrin/traces/traces_reader.h"

namespace kestrin::fuzz {

struct TechSubject {
  static constexpr bool kRaises = false;
  [[nodiscard]] std::string Dump() const { return fuzz::Dump(model); }
  [[nodiscard]] std::size_t RepeatedBytes() const { return 0; }

  CMTech model;
  TechReader reader{model};
};

struct NeutralSubject {
  static constexpr bool kRaises = false;
  [[nodiscard]] std::string Dump() const { return fuzz::Dump(components, nets); }
  [[nodiscard]] std::size_t RepeatedBytes() const { return 0; }

  CMComps components;
  CMNetList nets;
  BoardSelection selection;
  NeutralReader reader{components, nets, selection};
};

struct GeometrySubject {
  static constexpr bool kRaises = false;
  [[nodiscard]] std::string Dump() const { return fuzz::Dump(model); }
  [[nodiscard]] std::size_t RepeatedBytes() const { return 0; }

  CMGeom model;
  GeomReader reader{model};
};

struct TracesSubject {
  static constexpr bool kRaises = true;
  [[nodiscard]] std::string Dump() const { return fuzz::Dump(model); }
  /// Every TTI record has its fill's names.
  [[nodiscard]] std::size_t RepeatedBytes() const {
    std::size_t bytes = 0;
    for (const CMTracesFIL* fill : *model.m_pFilArray) {
      const std::size_t names = fill->m_sName1.View().size() + fill->m_sName2.View().size();
      bytes += static_cast<std::size_t>(fill->m_pTtiArray->GetSize()) * names;
    }
    return bytes;
  }

  CMTraces model;
  TracesReader reader{model};
};

}  // namespace kestrin::fuzz
