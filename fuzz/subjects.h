#pragma once

/// @file
/// The line readers that the fuzz targets test, each with its models.

#include <string>

#include "fuzz/checks.h"
#include "kestrin/geometry/geometry_reader.h"
#include "kestrin/neutral/neutral_reader.h"
#include "kestrin/tech/tech_reader.h"
#include "kestrin/traces/traces_reader.h"

namespace kestrin::fuzz {

struct TechSubject {
  static constexpr bool kRaises = false;
  [[nodiscard]] std::string Dump() const { return fuzz::Dump(model); }

  CMTech model;
  TechReader reader{model};
};

struct NeutralSubject {
  static constexpr bool kRaises = false;
  [[nodiscard]] std::string Dump() const { return fuzz::Dump(components, nets); }

  CMComps components;
  CMNetList nets;
  BoardSelection selection;
  NeutralReader reader{components, nets, selection};
};

struct GeometrySubject {
  static constexpr bool kRaises = false;
  [[nodiscard]] std::string Dump() const { return fuzz::Dump(model); }

  CMGeom model;
  GeometryReader reader{model};
};

struct TracesSubject {
  static constexpr bool kRaises = true;
  [[nodiscard]] std::string Dump() const { return fuzz::Dump(model); }

  CMTraces model;
  TracesReader reader{model};
};

}  // namespace kestrin::fuzz
