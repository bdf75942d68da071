#pragma once

/// @file
/// Choosing the encoding of an export set.

#include <string>

#include "tool/export_set.h"
#include "tool/readable_text.h"

namespace kestrin::tool {

/// The encoding that a word of the command line names: "utf-8", "latin-1", or "auto" for UTF-8 if all files
/// are valid UTF-8. Call ExportSet::Open before.
[[nodiscard]] Encoding EncodingOf(const std::string& word, const ExportSet& files);

}  // namespace kestrin::tool
