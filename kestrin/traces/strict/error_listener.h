#pragma once

/// @file
/// Receiving syntax errors during a parse.

#include <functional>

#include "kestrin/traces/strict/syntax_error.h"

namespace kestrin {

/// Called with each reported error as soon as the parser detects it.
using ErrorListener = std::function<void(const SyntaxError&)>;

}  // namespace kestrin
