#pragma once

/// @file
/// What every public header needs first: C++20, and the marks that compilers spell differently. What is not
/// marked as exported is hidden.

#if __cplusplus < 202002L && (!defined(_MSVC_LANG) || _MSVC_LANG < 202002L)
#error "kestrin needs C++20; compile with -std=c++20 (/std:c++20)"
#include "kestrin needs C++20"  // a missing file ends the compilation; an #error alone does not
#endif

#if defined(_WIN32)
#if defined(KESTRIN_BUILDING_SHARED)
#define KESTRIN_EXPORT __declspec(dllexport)
#elif defined(KESTRIN_USING_SHARED)
#define KESTRIN_EXPORT __declspec(dllimport)
#else
#define KESTRIN_EXPORT
#endif
#else
/// Marks a class or function that hosts may use.
#define KESTRIN_EXPORT [[gnu::visibility("default")]]
#endif

/// Lets the compiler check the arguments of a function like printf: which of its parameters is the format,
/// which the first argument.
#ifdef __GNUC__
#define KESTRIN_PRINTF(text, first) [[gnu::format(printf, text, first)]]
#else
#define KESTRIN_PRINTF(text, first)
#endif

/// Marks a class that has a template among its bases. MSVC would export the template's members, too: for it,
/// the members of the class are marked one by one.
#ifdef _MSC_VER
#define KESTRIN_TYPE
#else
#define KESTRIN_TYPE KESTRIN_EXPORT
#endif
