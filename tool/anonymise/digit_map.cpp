#include "tool/anonymise/digit_map.h"

#include <algorithm>
#include <cstdint>

#include "kestrin/base/characters.h"

namespace kestrin::tool {
namespace {

std::string PatternOf(std::string_view run) {
  std::string pattern(run);
  std::replace_if(pattern.begin(), pattern.end(), IsDigit, '0');
  return pattern;
}

/// Counts the digits of a run up by one. After the highest number comes the lowest.
void Advance(std::string& run) {
  for (std::size_t i = run.size(); i-- > 0;) {
    if (!IsDigit(run[i])) continue;
    if (run[i] != '9') {
      ++run[i];
      return;
    }
    run[i] = '0';
  }
}

}  // namespace

std::string WithOtherDigits(const KeyedHash& hash, std::string_view run, std::uint64_t attempt) {
  std::string image(run);
  const std::u16string choices = hash.Choices('d', run, attempt, run.size());
  for (std::size_t i = 0; i < image.size(); ++i) {
    if (IsDigit(image[i])) image[i] = static_cast<char>('0' + choices[i] % 10);
  }
  return image;
}

void DigitMap::AddElsewhere(std::string_view run) {
  if (patterns_.empty()) FindPatterns();
  if (patterns_.contains(PatternOf(run))) taken_.emplace(run);
}

void DigitMap::FindPatterns() {
  for (const auto& [run, image] : images_) patterns_.insert(PatternOf(run));
}

void DigitMap::Choose(const KeyedHash& hash) {
  std::erase_if(images_, [&](const auto& entry) { return taken_.contains(entry.first); });
  for (auto& [run, image] : images_) {
    image = Image(hash, run);
    taken_.insert(image);
  }
}

/// There is always a free image: no other run than those in the set takes one.
std::string DigitMap::Image(const KeyedHash& hash, const std::string& run) const {
  constexpr std::uint64_t kAttempts = 100;
  std::string image;
  for (std::uint64_t i = 0; i < kAttempts; ++i) {
    image = WithOtherDigits(hash, run, i);
    if (!taken_.contains(image) && !images_.contains(image)) return image;
  }
  while (taken_.contains(image)) Advance(image);
  return image;
}

std::string_view DigitMap::ImageOf(std::string_view run) const {
  const auto found = images_.find(run);
  return found == images_.end() ? run : std::string_view(found->second);
}

}  // namespace kestrin::tool
