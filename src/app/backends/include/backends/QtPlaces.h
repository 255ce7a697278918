// SPDX-License-Identifier: MIT
#pragma once

#include <settings/Environment.h>

namespace quorvane {

/// Where sway puts windows at the places that they ask for, Qt is told to believe it: on Wayland it
/// takes every window to be in the corner of its screen otherwise, and what opens at a control is
/// kept from leaving the screen by that. To be called before the application object is made.
void letQtKeepPlaces(const Environment& environment);

} // namespace quorvane
