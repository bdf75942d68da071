#pragma once

/// @file
/// RapidJSON for texts of any length.

#include <cstddef>

#define RAPIDJSON_NO_SIZETYPEDEFINE
namespace rapidjson {
using SizeType = std::size_t;
}

#include <rapidjson/encodings.h>
#include <rapidjson/filewritestream.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/stream.h>
