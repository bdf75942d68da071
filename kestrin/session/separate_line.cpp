#include <cstddef>
#include <cstdint>
#include <string>

#include "kestrin/framework/exceptions.h"
#include "kestrin/session/import_session.h"
#include "kestrin/text/fields.h"

namespace kestrin {
namespace {

std::size_t PositionAfter(int start) {
  if (start < -1) AfxThrowInvalidArgException();
  return static_cast<std::size_t>(std::int64_t{start} + 1);
}

}  // namespace

void CPC_KESTRIN_GET::SeparateLineBasedonComma(CString line, CStringArray& fields) const {
  std::size_t position = 0;
  while (const auto field = NextCommaField(line.View(), position)) fields.Add(*field);
}

void CPC_KESTRIN_GET::SeparateLineBasedonSpace(CString line, int start, CStringArray& fields) const {
  std::size_t position = PositionAfter(start);
  while (const auto field = NextSpaceField(line.View(), position)) fields.Add(*field);
}

void CPC_KESTRIN_GET::SeparateLineForCompProperty(CString line, int start, CStringArray& fields) const {
  std::string scratch;
  std::size_t position = PositionAfter(start);
  while (const auto field = NextPropertyGroup(line.View(), position, scratch)) fields.Add(*field);
}

}  // namespace kestrin
