#include <memory>
#include <utility>

#include "kestrin/geometry/attribute_handlers.h"
#include "kestrin/records/append.h"

namespace kestrin::attribute {

LineOutcome LayerDefinition(ReaderState& state, std::string_view name) {
  auto layer = std::make_unique<CMGeomLayerDEF>();
  layer->m_sDefinition = name;
  layer->m_sDefinition.MakeUpper();
  for (std::size_t number = 2; state.values.HasAtLeast(number); ++number) {
    const std::string_view value = state.values[number];
    const bool hasBracket = value.find_first_of("[]") != std::string_view::npos;
    if (!value.empty() && !hasBracket) layer->m_pValues->Add(value);
  }
  Append(*state.geometry.LastStackup()->m_pLayers, std::move(layer));
  return LineOutcome::Imported();
}

}  // namespace kestrin::attribute
