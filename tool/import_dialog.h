#pragma once

/// @file
/// What an import reports its progress to.

#include "kestrin/session/import_session.h"

namespace kestrin::tool {

/// A dialog. It must outlive the import.
class ImportDialog {
 public:
  ImportDialog() = default;
  ImportDialog(const ImportDialog&) = delete;
  ImportDialog& operator=(const ImportDialog&) = delete;
  virtual ~ImportDialog() = default;

  /// Makes the session report its progress to this dialog.
  virtual void Attach(CPC_KESTRIN_GET& session) = 0;
  /// Called now and then where no session reads.
  virtual void StillReading() {}
};

}  // namespace kestrin::tool
