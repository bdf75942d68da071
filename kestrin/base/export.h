#pragma once

/// @file
/// Marks what the shared library shows to its hosts; everything else stays inside.
#if defined(_WIN32)
#if defined(KESTRIN_BUILDING_SHARED)
#define KESTRIN_EXPORT __declspec(dllexport)
#elif defined(KESTRIN_USING_SHARED)
#define KESTRIN_EXPORT __declspec(dllimport)
#else
#define KESTRIN_EXPORT
#endif
#else
/// Stands before the name of whatever hosts may use.
#define KESTRIN_EXPORT [[gnu::visibility("default")]]
#endif
