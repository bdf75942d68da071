#pragma once

/// @file
/// RapidJSON with a 64-bit size type, so that strings of any length can be written.

#include <cstddef>

#define RAPIDJSON_NO_SIZETYPEDEFINE
namespace rapidjson {
using SizeType = std::size_t;
}

#include <rapidjson/encodings.h>
#include <rapidjson/filewritestream.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/stream.h>
#include <rapidjson/stringbuffer.h>
