#pragma once

/// @file
/// What was read from an export set.

#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "kestrin/board/findings.h"
#include "python/file_stamps.h"
#include "python/legs.h"
#include "tool/check/finding_fields.h"
#include "tool/import.h"
#include "tool/readable_text.h"

namespace kestrin::python {

/// Where the records of a list are, by their names in UTF-8.
using PositionsByName = std::unordered_map<std::string, std::size_t>;

/// What Python's objects refer to and keep alive.
struct Owner {
  tool::Encoding encoding = tool::Encoding::kLatin1;  ///< of all texts
  /// Of long lists, by where they begin in memory: no two lists begin at one record. Made when a name is
  /// looked up, with Python's lock.
  mutable std::unordered_map<const void*, PositionsByName> positions;
};

class ReadSet;
using SharedOwner = std::shared_ptr<const Owner>;
using SharedSet = std::shared_ptr<const ReadSet>;

/// An export set: its files, models, report and board. Nothing changes after it was read; what takes time and
/// is not always asked for is made when it is asked for first.
class ReadSet : public Owner {
 public:
  explicit ReadSet(const tool::ExportSet& files) : imported(files) {}

  tool::Imported imported;
  Board board;
  std::vector<tool::ReadFile> files;  ///< the reports of the files that were read
  FileStamps stamps;

 private:
  friend const Findings& FindingsOf(const SharedSet& set);
  friend const Legs& LegsOf(const ReadSet& set);

  mutable bool hasFindings_ = false;  ///< used with Python's lock: then no thread is needed to get them
  mutable std::once_flag findingsMade_;
  mutable std::optional<Findings> findings_;
  mutable std::once_flag legsMade_;
  mutable std::optional<Legs> legs_;
};

///@{
/// What a set makes when it is asked first. Call them with Python's lock. FindingsOf raises UsageError if a
/// file changed since it was read, and what Ctrl-C raises.
[[nodiscard]] const Findings& FindingsOf(const SharedSet& set);
[[nodiscard]] const Legs& LegsOf(const ReadSet& set);
///@}

///@{
/// The set that owns records of a board or of its files.
[[nodiscard]] inline const ReadSet& SetOf(const Owner& owner) { return static_cast<const ReadSet&>(owner); }
[[nodiscard]] inline SharedSet SharedSetOf(const SharedOwner& owner) {
  return std::static_pointer_cast<const ReadSet>(owner);
}
///@}

}  // namespace kestrin::python
