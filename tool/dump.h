#pragma once

/// @file
/// The command `kestrin dump`: prints the object model as a JSON document.

#include "tool/document_writer.h"
#include "tool/export_set.h"
#include "tool/import.h"

namespace kestrin::tool {

/// Imports the files and prints their models. Returns the exit status.
[[nodiscard]] int Dump(const ExportSet& files);

/// Writes the models of an import as a document.
void WriteModels(DocumentWriter& document, const Imported& imported);

}  // namespace kestrin::tool
