#pragma once

/// @file
/// Who hears of syntax errors while a file is still read.

#include <functional>

#include "kestrin/traces/strict/syntax_error.h"

namespace kestrin {

/// Called with every error that is reported, when the parser notices it.
using ErrorListener = std::function<void(const SyntaxError&)>;

}  // namespace kestrin
