#pragma once

#include <cstdio>
#include <memory>
#include <string>

#include "kestrin/session/import_session.h"
#include "tool/model_json.h"

namespace kestrin::test {

/// Models as a JSON array, whole.
template <class... MODELS>
std::string Dump(const MODELS&... models) {
  std::string text;
  const auto append = [](void* cookie, const char* bytes, std::size_t size) {
    static_cast<std::string*>(cookie)->append(bytes, size);
    return static_cast<ssize_t>(size);
  };
  std::FILE* stream =
      fopencookie(&text, "w", {.read = nullptr, .write = append, .seek = nullptr, .close = nullptr});
  {
    const auto json = std::make_unique<tool::JsonWriter>(stream);
    json->StartArray();
    (WriteJson(*json, models), ...);
    json->EndArray();
    json->Finish();
  }
  std::fclose(stream);  // NOLINT(cppcoreguidelines-owning-memory): opened above
  return text;
}

/// All that a session has read.
inline std::string DumpOf(const CPC_KESTRIN_GET& session) {
  return Dump(session.m_pTech, session.m_pComps, session.m_pNetList, session.m_pGeom, session.m_pTraces);
}

}  // namespace kestrin::test
