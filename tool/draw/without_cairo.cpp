#include "tool/draw/cairo_writer.h"
#include "tool/usage_error.h"

namespace kestrin::tool::draw {
namespace {

[[noreturn]] void Refuse() {
  throw UsageError(
      "this kestrin was built without Cairo, which PNG and PDF need; draw an .svg or .html file");
}

}  // namespace

void WritePng(const Picture& /*picture*/, OutputFile& /*file*/) { Refuse(); }
void WritePdf(const Picture& /*picture*/, OutputFile& /*file*/) { Refuse(); }

}  // namespace kestrin::tool::draw
