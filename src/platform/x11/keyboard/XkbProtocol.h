// SPDX-License-Identifier: MIT
#pragma once

// The protocol header has a field of this name, which C++ reserves; the platform offers no other
// way to include it.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit
