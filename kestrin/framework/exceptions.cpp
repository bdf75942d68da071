#include "kestrin/framework/exceptions.h"

namespace kestrin {

CException::~CException() = default;

void AfxThrowInvalidArgException() { throw CInvalidArgException(); }

}  // namespace kestrin
