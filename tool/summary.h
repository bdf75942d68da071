#pragma once

/// @file
/// kestrin summary: the contents of an export set at a glance.

#include <string>

#include "tool/export_set.h"

namespace kestrin::tool {

/// Imports the files and prints tables ("text"), or one line of JSON ("json"). Returns the exit status.
[[nodiscard]] int Summary(const ExportSet& files, const std::string& format);

}  // namespace kestrin::tool
