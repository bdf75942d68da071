#pragma once

/// @file
/// The product's own readers as works.

#include <string>

#include "bench/measuring/work.h"
#include "kestrin/geom/geom_model.h"
#include "kestrin/neutral/component_model.h"
#include "kestrin/neutral/net_model.h"
#include "kestrin/tech/tech_model.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin::bench {

///@{
/// A reader, fed from memory or from the file.
std::unique_ptr<Built> ReadTracesFromMemory(const Input& input);
std::unique_ptr<Built> ReadTracesFromFile(const Input& input);
std::unique_ptr<Built> ReadGeometryFromMemory(const Input& input);
std::unique_ptr<Built> ReadGeometryFromFile(const Input& input);
std::unique_ptr<Built> ReadNeutralFromMemory(const Input& input);
std::unique_ptr<Built> ReadNeutralFromFile(const Input& input);
std::unique_ptr<Built> ReadTechFromMemory(const Input& input);
std::unique_ptr<Built> ReadTechFromFile(const Input& input);
///@}

/// The strict reader of the Traces file, fed from memory.
std::unique_ptr<Built> ReadTracesStrictly(const Input& input);

///@{
/// A session's import of the board whose folder is the input's path, without a dialog and with one that shows
/// progress.
std::unique_ptr<Built> ImportBoard(const Input& input);
std::unique_ptr<Built> ImportBoardWithDialog(const Input& input);
///@}

///@{
/// What a model holds.
[[nodiscard]] Tally CountTraces(const CMTraces& traces);
[[nodiscard]] Tally CountGeometry(const CMGeom& geom);
[[nodiscard]] Tally CountNeutral(const CMComps& components, const CMNetList& nets);
[[nodiscard]] Tally CountTech(const CMTech& tech);
///@}

}  // namespace kestrin::bench
