#include "kestrin/framework/object.h"

namespace kestrin {

CRuntimeClass* CObject::GetRuntimeClass() const {
  static CRuntimeClass runtimeClass{"CObject"};
  return &runtimeClass;
}

CObject::~CObject() = default;

void CObject::Serialize(CArchive& /*archive*/) {}

void CObject::AssertValid() const {}

void CObject::Dump(CDumpContext& /*context*/) const {}

}  // namespace kestrin
