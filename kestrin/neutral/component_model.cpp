#include "kestrin/neutral/component_model.h"

namespace kestrin {

CMCompsPanel::~CMCompsPanel() = default;

}  // namespace kestrin
