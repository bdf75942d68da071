#pragma once

/// @file
/// The root of the framework's classes.

#include "kestrin/base/export.h"

namespace kestrin {

class CArchive;
class CDumpContext;

/// The result of a run-time class query.
struct CRuntimeClass {
  const char* m_lpszClassName;  ///< the name of the class
};

/// The base of the framework's arrays and windows. Not copyable unless a derived class makes itself so.
class KESTRIN_EXPORT CObject {
 public:
  /// The run-time class of the object. The pointer is valid as long as the program runs.
  virtual CRuntimeClass* GetRuntimeClass() const;
  virtual ~CObject();
  /// Stores the object to an archive or loads it from one. CObject itself has no data and does nothing.
  virtual void Serialize(CArchive& archive);
  /// Does nothing. A derived class may check its consistency here.
  virtual void AssertValid() const;
  /// Does nothing. A derived class may describe itself here.
  virtual void Dump(CDumpContext& context) const;

  CObject& operator=(const CObject&) = delete;

 protected:
  CObject() = default;
  CObject(const CObject&) = delete;
};

}  // namespace kestrin
