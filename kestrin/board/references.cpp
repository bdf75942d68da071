#include "kestrin/board/references.h"

#include <algorithm>
#include <utility>

#include "kestrin/board/for_each_record.h"
#include "kestrin/board/names.h"
#include "kestrin/neutral/net_model.h"

namespace kestrin {
namespace {

[[nodiscard]] bool HasHyphen(std::string_view text) { return text.find('-') != std::string_view::npos; }

/// The references that contain a hyphen, sorted. Each has the hyphen appended that follows it in a pin's
/// text.
std::vector<std::string> ReferencesWithHyphens(const std::vector<Component>& components) {
  std::vector<std::string> references;
  for (const Component& component : components) {
    if (HasHyphen(component.name)) references.push_back(component.name + "-");
  }
  std::sort(references.begin(), references.end());
  return references;
}

/// The text of a pin, cut where the model cuts it: at the first hyphen.
PinText PinTextOf(const CMRefPin& pin) {
  const std::string_view name = ComparedName(pin.m_sPin.View());
  PinText made;
  made.text = ComparedName(pin.m_sRef.View());
  made.cut = made.text.size();
  // If the reference is empty, a hyphen in the pin means that the text began with a hyphen.
  made.hasReference = made.cut != 0 || HasHyphen(name);
  if (made.hasReference) made.text += '-';
  made.text += name;
  JoinBlanks(made.text);
  return made;
}

}  // namespace

PinTexts::PinTexts(const CMNetList& nets, const std::vector<Component>& components) {
  const std::vector<std::string> references = ReferencesWithHyphens(components);
  hasReferencesWithHyphens_ = !references.empty();
  if (!hasReferencesWithHyphens_) return;
  ForEachRecord(nets.m_pNets, [&](const CMNetInfo& net, Index) {
    ForEachRecord(net.m_pPins, [&](const CMRefPin& pin, Index) {
      if (HasHyphen(pin.m_sPin.View())) withHyphens_.push_back(PinTextOf(pin));
    });
  });
  CutAtKnownReferences(references);
}

PinText PinTexts::Next(const CMRefPin& pin) {
  const bool wasCut = hasReferencesWithHyphens_ && HasHyphen(pin.m_sPin.View());
  return wasCut ? std::move(withHyphens_[next_++]) : PinTextOf(pin);
}

void PinTexts::CutAtKnownReferences(const std::vector<std::string>& references) {
  std::vector<PinText*> sorted;
  sorted.reserve(withHyphens_.size());
  for (PinText& text : withHyphens_) sorted.push_back(&text);
  std::sort(sorted.begin(), sorted.end(),
            [](const PinText* a, const PinText* b) { return a->text < b->text; });
  // Texts and references are visited in sorted order, with a stack of the references that the current text
  // begins with.
  std::vector<std::string_view> beginnings;
  const auto keepBeginningsOf = [&](std::string_view text) {
    while (!beginnings.empty() && !text.starts_with(beginnings.back())) beginnings.pop_back();
  };
  auto reference = references.begin();
  for (PinText* text : sorted) {
    for (; reference != references.end() && *reference <= text->text; ++reference) {
      keepBeginningsOf(*reference);
      beginnings.push_back(*reference);
    }
    keepBeginningsOf(text->text);
    if (beginnings.empty()) continue;
    text->cut = beginnings.back().size() - 1;
    text->hasReference = true;
  }
}

}  // namespace kestrin
