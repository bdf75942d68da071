#include "tool/anonymise/anonymise.h"
#include "tool/usage_error.h"

namespace kestrin::tool {

int Anonymise(ExportSet /*files*/, const std::string& /*folder*/, const AnonymiseWords& /*words*/) {
  throw UsageError("this kestrin was built without libsodium, which anonymise needs");
}

}  // namespace kestrin::tool
