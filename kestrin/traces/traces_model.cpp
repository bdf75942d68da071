#include "kestrin/traces/traces_model.h"

namespace kestrin {

CMTracesISS::~CMTracesISS() = default;

}  // namespace kestrin
