#include "tool/anonymise/set_copy.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace kestrin::tool {
namespace {

std::string Capitals(std::string_view text) {
  std::string capitals(text);
  for (char& c : capitals) c = ToUpper(c);
  return capitals;
}

bool HasDigit(std::string_view text) { return std::any_of(text.begin(), text.end(), IsDigit); }

/// A carriage return at the end is no part of a line.
std::string_view WithoutReturn(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

/// Finds the text that a run is in, for one run of a line after the other.
class TextCursor {
 public:
  explicit TextCursor(const std::vector<TextPlace>& texts) : texts_(texts) {}

  /// Null if the run is in no text.
  [[nodiscard]] const TextPlace* Around(Span run) {
    while (next_ < texts_.size() && texts_[next_].span.End() <= run.first) ++next_;
    const bool isInside = next_ < texts_.size() && texts_[next_].span.first <= run.first &&
                          run.End() <= texts_[next_].span.End();
    return isInside ? &texts_[next_] : nullptr;
  }

 private:
  const std::vector<TextPlace>& texts_;
  std::size_t next_ = 0;
};

/// Finds the spans that cover a part of a run, for one run of a line after the other.
class CoverCursor {
 public:
  /// The spans must be sorted.
  explicit CoverCursor(const std::vector<Span>& spans) : spans_(spans) {}

  /// The parts that are covered, counted from the beginning of the run.
  [[nodiscard]] const std::vector<Span>& PartsOf(Span run) {
    parts_.clear();
    while (next_ < spans_.size() && spans_[next_].End() <= run.first) ++next_;
    for (std::size_t i = next_; i < spans_.size() && spans_[i].first < run.End(); ++i) {
      const std::size_t first = std::max(run.first, spans_[i].first);
      const std::size_t end = std::min(run.End(), spans_[i].End());
      if (first < end) parts_.push_back({first - run.first, end - first});
    }
    return parts_;
  }

 private:
  const std::vector<Span>& spans_;
  std::vector<Span> parts_;
  std::size_t next_ = 0;
};

/// Whether the digits of a run in a text are replaced for themselves: a number in a comment is no name.
bool IsNumberInComment(std::string_view run, const TextPlace& text) {
  return text.isComment && std::all_of(run.begin(), run.end(), IsDigit);
}

/// Calls an action with every line of the set and the kind of its file.
template <class Action>
void ForEachLineOf(const SetBytes& set, Action action) {
  for (std::size_t i = 0; i < set.size(); ++i) {
    ForEachLine(set[i],
                [&](std::string_view line) { action(static_cast<ImportFile>(i), WithoutReturn(line)); });
  }
}

}  // namespace

SetCopy::SetCopy(const SetBytes& original, const KeyedHash& hash) : hash_(hash) {
  constexpr int kRounds = 100;
  ForEachLineOf(original, [&](ImportFile file, std::string_view line) {
    AddWords(line);
    AddDigits(file, line, true);
  });
  ForEachLineOf(original, [&](ImportFile file, std::string_view line) { AddDigits(file, line, false); });
  digits_.Choose(hash);
  for (int round = 0; round < kRounds; ++round) {
    words_.Choose(hash);
    CopyAll(original);
    if (!RejectNewWords(original)) return;
  }
  throw std::runtime_error("cannot find other names that are no words of the formats");
}

void SetCopy::AddWords(std::string_view line) {
  format_.FindTouched(line, touched_);
  CoverCursor touched(touched_);
  ForEachRun(line, IsLetter, [&](Span run) {
    const std::string word = Capitals(run.In(line));
    if (!format_.Has(word)) words_.Add(word, touched.PartsOf(run));
  });
}

void SetCopy::AddDigits(ImportFile file, std::string_view line, bool ofTexts) {
  FindTexts(file, line, texts_);
  if (ofTexts && texts_.empty()) return;
  TextCursor texts(texts_);
  ForEachRun(line, IsLetterOrDigit, [&](Span span) {
    const std::string_view run = span.In(line);
    if (!HasDigit(run)) return;
    const TextPlace* text = texts.Around(span);
    if (text == nullptr && !ofTexts) digits_.AddElsewhere(Capitals(run));
    if (text != nullptr && ofTexts && !IsNumberInComment(run, *text)) digits_.AddOfText(Capitals(run));
  });
}

void SetCopy::CopyAll(const SetBytes& original) {
  for (std::size_t i = 0; i < original.size(); ++i) {
    copy_[i] = original[i];
    ForEachLine(original[i], [&](std::string_view whole) {
      const std::string_view line = WithoutReturn(whole);
      char* const copy = copy_[i].data() + (line.data() - original[i].data());
      CopyWords(line, copy);
      CopyDigits(static_cast<ImportFile>(i), line, copy);
    });
  }
}

void SetCopy::CopyWords(std::string_view line, char* copy) const {
  ForEachRun(line, IsLetter, [&](Span run) {
    const std::string word = Capitals(run.In(line));
    if (format_.Has(word)) return;
    const std::string& image = words_.ImageOf(word);
    for (std::size_t i = 0; i < run.size; ++i) {
      const bool isSmall = line[run.first + i] != word[i];
      copy[run.first + i] = isSmall ? ToLower(image[i]) : image[i];
    }
  });
}

void SetCopy::CopyDigits(ImportFile file, std::string_view line, char* copy) {
  FindTexts(file, line, texts_);
  if (texts_.empty()) return;
  TextCursor texts(texts_);
  ForEachRun(line, IsLetterOrDigit, [&](Span span) {
    const std::string_view run = span.In(line);
    const TextPlace* text = HasDigit(run) ? texts.Around(span) : nullptr;
    if (text == nullptr) return;
    const std::string capitals = Capitals(run);
    const std::string image = IsNumberInComment(run, *text) ? WithOtherDigits(hash_, capitals)
                                                            : std::string(digits_.ImageOf(capitals));
    for (std::size_t i = 0; i < span.size; ++i) {
      if (IsDigit(run[i])) copy[span.first + i] = image[i];
    }
  });
}

/// Returns whether there are new words of formats in the copy.
bool SetCopy::RejectNewWords(const SetBytes& original) {
  bool hasNew = false;
  for (std::size_t i = 0; i < original.size(); ++i) {
    ForEachLine(original[i], [&](std::string_view line) {
      const auto first = static_cast<std::size_t>(line.data() - original[i].data());
      hasNew |= RejectNewWords(line, std::string_view(copy_[i]).substr(first, line.size()));
    });
  }
  return hasNew;
}

bool SetCopy::RejectNewWords(std::string_view line, std::string_view copy) {
  format_.FindTouched(line, touched_);
  format_.FindTouched(copy, touchedInCopy_);
  if (touched_ == touchedInCopy_) return false;
  std::vector<Span> added;
  std::set_difference(touchedInCopy_.begin(), touchedInCopy_.end(), touched_.begin(), touched_.end(),
                      std::back_inserter(added));
  CoverCursor words(added);
  ForEachRun(line, IsLetter, [&](Span run) {
    const std::string word = Capitals(run.In(line));
    if (!format_.Has(word)) words_.Reject(word, words.PartsOf(run));
  });
  return !added.empty();
}

}  // namespace kestrin::tool
