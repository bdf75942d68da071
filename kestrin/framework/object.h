#pragma once

/// @file
/// The root of the framework's classes.

#include "kestrin/base/export.h"

namespace kestrin {

class CArchive;
class CDumpContext;

/// What a run-time class query answers.
struct CRuntimeClass {
  const char* m_lpszClassName;  ///< the name of the class
};

/// Base of the framework's arrays and windows; not copyable unless a derived class says so.
class KESTRIN_EXPORT CObject {
 public:
  /// The run-time class of the object, which lives as long as the program.
  virtual CRuntimeClass* GetRuntimeClass() const;
  virtual ~CObject();
  /// Writes the object to an archive or reads it from one; this one has nothing to write.
  virtual void Serialize(CArchive& archive);
  /// Would check the object in debug builds; does nothing.
  virtual void AssertValid() const;
  /// Would describe the object to a debugger; does nothing.
  virtual void Dump(CDumpContext& context) const;

  CObject& operator=(const CObject&) = delete;

 protected:
  CObject() = default;
  CObject(const CObject&) = delete;
};

}  // namespace kestrin
