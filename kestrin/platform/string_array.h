#pragma once

/// @file
/// The framework's array of strings.

#include "kestrin/platform/array.h"
#include "kestrin/platform/string.h"

namespace kestrin {

/// An ordered array of strings that it owns; indexes are checked as in CArray.
class CStringArray : public CArray<CString, const CString&> {};

}  // namespace kestrin
