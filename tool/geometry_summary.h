#pragma once

/// @file
/// The summary of a Geometry file.

namespace kestrin {
class CMGeom;
}

namespace kestrin::tool {

void PrintGeometry(const CMGeom& geom);

}  // namespace kestrin::tool
