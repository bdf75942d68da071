#include "tool/output.h"

#include <cstdio>

#include "tool/exit_status.h"
#include "tool/readable_text.h"

namespace kestrin::tool {

int ReportError(const std::string& what, int exitStatus) {
  std::fprintf(stderr, "kestrin: %s\n", PathToTerminal(what).c_str());
  return exitStatus;
}

int FinishOutput(int exitStatus) {
  if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return exitStatus;
  return ReportError("cannot write to standard output", kUnusable);
}

}  // namespace kestrin::tool
