#pragma once

/// @file
/// Which part of a pin's text is the reference of its component.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "kestrin/board/board.h"

namespace kestrin {

class CMNetList;
class CMRefPin;

/// A pin's text, "reference-pin", cut in two.
struct PinText {
  std::string text;
  std::size_t cut = 0;       // the length of the reference
  bool hasReference = true;  // else all of the text is the pin

  [[nodiscard]] std::string_view Reference() const { return std::string_view(text).substr(0, cut); }
  [[nodiscard]] std::string_view Pin() const {
    return std::string_view(text).substr(hasReference ? cut + 1 : 0);
  }
};

/// Cuts the texts of pins in two. The models do it at the first hyphen, which may belong to the reference;
/// here the longest reference wins that a component has.
class PinTexts {
 public:
  /// Takes time in proportion to the names, however many hyphens they have. The nets are those to be asked
  /// about.
  PinTexts(const CMNetList& nets, const std::vector<Component>& components);

  /// The texts of the pins of the nets must be asked for one after another.
  [[nodiscard]] PinText Next(const CMRefPin& pin);

 private:
  void CutAtKnownReferences(const std::vector<std::string>& references);

  bool hasReferencesWithHyphens_ = false;
  std::vector<PinText> withHyphens_;  // pins that have one beyond the first, in order
  std::size_t next_ = 0;              // of these
};

}  // namespace kestrin
