// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// From now on a warning of Qt's, or something worse, is written once if it comes several times in
/// a row, from whatever threads: of a compositor that has gone each thread of Qt's tells by itself.
/// What is logged for whoever asks is left alone. What handled messages before still writes them.
void writeRepeatedWarningsOnce();

} // namespace quorvane
