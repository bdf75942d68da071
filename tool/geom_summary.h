#pragma once

/// @file
/// What a person wants to know of a Geometry file at a glance.

namespace kestrin {
class CMGeom;
}

namespace kestrin::tool {

void PrintGeometry(const CMGeom& geom);

}  // namespace kestrin::tool
