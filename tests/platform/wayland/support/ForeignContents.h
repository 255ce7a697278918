// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <string>
#include <vector>

namespace quorvane {

/// How another program serves one type.
enum class ForeignAnswer {
    Whole,
    Nothing, ///< keeps the pipe open and never writes
    Endless, ///< writes for as long as somebody reads
};

struct ForeignType {
    std::string type;
    QByteArray bytes;
    ForeignAnswer answer = ForeignAnswer::Whole;
};

using ForeignContents = std::vector<ForeignType>;

} // namespace quorvane
