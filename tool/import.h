#pragma once

/// @file
/// Running an import as a host.

#include <string>

#include "kestrin/session/import_session.h"
#include "tool/export_set.h"

namespace kestrin::tool {

/// Imports the files into the session, with progress on the terminal. Returns an empty text, or when a reader
/// stopped early one line that says where and why; the files after it are not read then. Raises UsageError
/// when a file cannot be opened.
[[nodiscard]] std::string Import(CPC_KESTRIN_GET& session, const ExportSet& files);

}  // namespace kestrin::tool
