// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

/// Solids about the origin of the current OpenGL context's model-view, with normals.
///
/// They are freeglut's. Where that cannot be initialised, which it answers by ending the process,
/// the same solids are drawn without it.
namespace LightSolids {

/// Ends the process with "out of memory." when the memory for the drawing of spheres is refused.
void sphere(double radius, int slices, int stacks);
void cube(double side);

} // namespace LightSolids
