#include "kestrin/framework/archive.h"

#include <array>
#include <bit>
#include <limits>

#include "kestrin/framework/exceptions.h"

namespace kestrin {
namespace {

template <class Unsigned>
void WriteLittleEndian(CArchive& archive, Unsigned value) {
  std::array<unsigned char, sizeof(Unsigned)> bytes{};
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<unsigned char>(value >> (8 * i));
  archive.Write(bytes.data(), bytes.size());
}

template <class Unsigned>
Unsigned ReadLittleEndian(CArchive& archive) {
  std::array<unsigned char, sizeof(Unsigned)> bytes{};
  archive.Read(bytes.data(), bytes.size());
  std::uint64_t value = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) value |= std::uint64_t{bytes[i]} << (8 * i);
  return static_cast<Unsigned>(value);
}

// The greatest value of a width is an escape: the count follows in the next wider integer.
constexpr auto kMax16 = std::numeric_limits<std::uint16_t>::max();
constexpr auto kMax32 = std::numeric_limits<std::uint32_t>::max();

}  // namespace

void CArchive::Read(void* bytes, std::size_t count) {
  if (source_ == nullptr || !source_->read(static_cast<char*>(bytes), static_cast<std::streamsize>(count))) {
    throw CArchiveException();
  }
}

void CArchive::Write(const void* bytes, std::size_t count) {
  if (target_ == nullptr ||
      !target_->write(static_cast<const char*>(bytes), static_cast<std::streamsize>(count))) {
    throw CArchiveException();
  }
}

std::uint64_t CArchive::ReadCount() {
  if (const auto count = ReadLittleEndian<std::uint16_t>(*this); count != kMax16) return count;
  if (const auto count = ReadLittleEndian<std::uint32_t>(*this); count != kMax32) return count;
  return ReadLittleEndian<std::uint64_t>(*this);
}

void CArchive::WriteCount(std::uint64_t count) {
  if (count < kMax16) return WriteLittleEndian(*this, static_cast<std::uint16_t>(count));
  WriteLittleEndian(*this, kMax16);
  if (count < kMax32) return WriteLittleEndian(*this, static_cast<std::uint32_t>(count));
  WriteLittleEndian(*this, kMax32);
  WriteLittleEndian(*this, count);
}

double CArchive::ReadDouble() { return std::bit_cast<double>(ReadLittleEndian<std::uint64_t>(*this)); }

void CArchive::WriteDouble(double value) { WriteLittleEndian(*this, std::bit_cast<std::uint64_t>(value)); }

}  // namespace kestrin
