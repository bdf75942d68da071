#pragma once

/// @file
/// Finding the component's reference in the text of a pin.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "kestrin/board/board.h"

namespace kestrin {

class CMNetList;
class CMRefPin;

/// The text of a pin, "reference-pin", cut in two.
struct PinText {
  std::string text;
  std::size_t cut = 0;       // the length of the reference
  bool hasReference = true;  // else the whole text is the pin

  [[nodiscard]] std::string_view Reference() const { return std::string_view(text).substr(0, cut); }
  [[nodiscard]] std::string_view Pin() const {
    return std::string_view(text).substr(hasReference ? cut + 1 : 0);
  }
};

/// Cuts the texts of pins in two. The models cut at the first hyphen, which may be part of the reference.
/// Here the longest match with the reference of a component wins.
class PinTexts {
 public:
  /// Cuts the texts of all pins of the nets. Takes time in proportion to the names, however many hyphens they
  /// have.
  PinTexts(const CMNetList& nets, const std::vector<Component>& components);

  /// The text of a pin. Call it once for each pin of the nets, in order.
  [[nodiscard]] PinText Next(const CMRefPin& pin);

 private:
  void CutAtKnownReferences(const std::vector<std::string>& references);

  bool hasReferencesWithHyphens_ = false;
  std::vector<PinText> withHyphens_;  // the pins with more than one hyphen, in order
  std::size_t next_ = 0;              // in withHyphens_
};

}  // namespace kestrin
