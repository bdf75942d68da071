#pragma once

/// @file
/// Documents as Python's objects.

#include <pybind11/pybind11.h>

#include <map>
#include <vector>

#include "tool/document_writer.h"
#include "tool/readable_text.h"

namespace kestrin::python {

namespace py = pybind11;

/// Pauses Python's collector of cycles. It would run again and again while many containers are made, for most
/// of the time.
class GarbagePause {
 public:
  GarbagePause() : wasOn_(PyGC_Disable() == 1) {}
  GarbagePause(const GarbagePause&) = delete;
  GarbagePause& operator=(const GarbagePause&) = delete;
  ~GarbagePause() {
    if (wasOn_) PyGC_Enable();
  }

 private:
  bool wasOn_;
};

/// Makes dictionaries, lists, numbers and texts of a document. Ctrl-C ends that.
class PythonWriter final : public tool::DocumentWriter {
 public:
  explicit PythonWriter(tool::Encoding encoding) : encoding_(encoding) {}

  void Key(const char* name) override;
  void StartObject() override { open_.push_back({py::dict(), {}}); }
  void EndObject() override { Close(); }
  using DocumentWriter::StartArray;
  void StartArray(Layout layout) override;
  void EndArray() override { Close(); }

  void Null() override { Add(py::none()); }
  void Bool(bool value) override { Add(py::bool_(value)); }
  void Int(std::int64_t value) override { Add(py::int_(value)); }
  void Double(double value) override;
  void String(std::string_view bytes) override;
  void Utf8(std::string_view text) override;

  /// The document, once it is complete.
  [[nodiscard]] const py::object& Document() const { return document_; }

 private:
  /// An object or array that is not complete.
  struct Open {
    py::object container;
    py::handle key;  // of the next member
  };

  void Add(const py::object& value);
  void Close();

  GarbagePause pause_;
  tool::Encoding encoding_;
  py::object document_;
  std::vector<Open> open_;                // from the outermost
  std::map<const char*, py::str> names_;  // of all keys, which are constants
  std::size_t closed_ = 0;                // how many objects and arrays are complete
};

}  // namespace kestrin::python
