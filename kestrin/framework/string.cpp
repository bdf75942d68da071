#include "kestrin/framework/string.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <limits>
#include <utility>

#include "kestrin/base/characters.h"
#include "kestrin/framework/exceptions.h"

namespace kestrin {
namespace {

constexpr char kWhiteSpace[] = " \t\n\v\f\r";

std::string_view Text(const char* text) { return text == nullptr ? std::string_view() : text; }

int Index(std::size_t position) {
  constexpr std::size_t kLimit = std::numeric_limits<int>::max();
  return position == std::string_view::npos ? -1 : static_cast<int>(std::min(position, kLimit));
}

std::size_t AtLeastZero(int value) { return value < 0 ? 0 : static_cast<std::size_t>(value); }

std::string Formatted(const char* format, std::va_list arguments) {
  std::va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(nullptr, 0, format, arguments);
  std::string result(AtLeastZero(length), '\0');
  if (length > 0) std::vsnprintf(result.data(), result.size() + 1, format, again);
  va_end(again);
  return result;
}

}  // namespace

int CString::GetLength() const noexcept { return Index(View().size()); }

char CString::GetAt(int index) const {
  if (index < 0 || static_cast<std::size_t>(index) > View().size()) AfxThrowInvalidArgException();
  return GetString()[index];
}

CString& CString::operator+=(char c) {
  text_.Append({&c, 1});
  return *this;
}

CString& CString::operator+=(const char* text) {
  text_.Append(Text(text));
  return *this;
}

CString& CString::operator+=(const CString& text) {
  text_.Append(text.View());
  return *this;
}

int CString::Compare(const char* text) const noexcept { return View().compare(Text(text)); }

int CString::Find(char c, int start) const noexcept { return Index(View().find(c, AtLeastZero(start))); }

int CString::Find(const char* text, int start) const noexcept {
  return Index(View().find(Text(text), AtLeastZero(start)));
}

int CString::ReverseFind(char c) const noexcept { return Index(View().rfind(c)); }

CString CString::Left(int count) const { return View().substr(0, AtLeastZero(count)); }

CString CString::Right(int count) const {
  return View().substr(View().size() - std::min(AtLeastZero(count), View().size()));
}

CString CString::Mid(int first) const { return View().substr(std::min(AtLeastZero(first), View().size())); }

CString CString::Mid(int first, int count) const {
  return View().substr(std::min(AtLeastZero(first), View().size()), AtLeastZero(count));
}

int CString::Replace(const char* oldText, const char* newText) {
  const std::string_view from = Text(oldText);
  if (from.empty()) return 0;
  const std::string_view source = View();
  std::string result;
  std::size_t replacements = 0;
  std::size_t position = 0;
  for (std::size_t hit; (hit = source.find(from, position)) != std::string_view::npos; ++replacements) {
    result.append(source, position, hit - position).append(Text(newText));
    position = hit + from.size();
  }
  if (replacements > 0) text_.Assign(result.append(source, position));
  return Index(replacements);
}

int CString::Remove(char c) {
  const std::size_t size = View().size();
  char* const first = text_.Data();
  const auto kept = static_cast<std::size_t>(std::remove(first, first + size, c) - first);
  text_.Resize(kept);
  return Index(size - kept);
}

int CString::Delete(int index, int count) {
  const std::size_t size = View().size();
  const std::size_t first = std::min(AtLeastZero(index), size);
  const std::size_t last = first + std::min(AtLeastZero(count), size - first);
  char* const bytes = text_.Data();
  std::copy(bytes + last, bytes + size, bytes + first);
  text_.Resize(size - (last - first));
  return GetLength();
}

CString& CString::TrimLeft() { return TrimLeft(kWhiteSpace); }

CString& CString::TrimRight() { return TrimRight(kWhiteSpace); }

CString& CString::TrimLeft(const char* characters) {
  const std::string_view text = View();
  return *this = text.substr(std::min(text.find_first_not_of(Text(characters)), text.size()));
}

CString& CString::TrimRight(const char* characters) {
  text_.Resize(View().find_last_not_of(Text(characters)) + 1);  // npos + 1 is 0
  return *this;
}

CString& CString::MakeUpper() {
  char* const bytes = text_.Data();
  std::transform(bytes, bytes + View().size(), bytes, &ToUpper);
  return *this;
}

CString& CString::MakeLower() {
  char* const bytes = text_.Data();
  std::transform(bytes, bytes + View().size(), bytes, &ToLower);
  return *this;
}

CString CString::Tokenize(const char* delimiters, int& start) const {
  if (start < 0) AfxThrowInvalidArgException();
  const std::string_view text = View();
  const std::size_t first = text.find_first_not_of(Text(delimiters), static_cast<std::size_t>(start));
  if (first == std::string_view::npos) {
    start = -1;
    return {};
  }
  const std::size_t end = std::min(text.find_first_of(Text(delimiters), first), text.size());
  start = Index(end + 1);
  return text.substr(first, end - first);
}

void CString::Format(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  text_.Assign(Formatted(format, arguments));
  va_end(arguments);
}

void CString::FormatUnchecked(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  text_.Assign(Formatted(format, arguments));
  va_end(arguments);
}

char* CString::GetBuffer(int minimumLength) { return text_.Lend(AtLeastZero(minimumLength)); }

void CString::ReleaseBuffer(int newLength) {
  const std::string_view room(GetString(), text_.Room());
  if (newLength == -1) newLength = Index(std::min(room.find('\0'), room.size()));
  if (newLength < 0 || static_cast<std::size_t>(newLength) > room.size()) AfxThrowInvalidArgException();
  text_.Resize(static_cast<std::size_t>(newLength));
}

}  // namespace kestrin
