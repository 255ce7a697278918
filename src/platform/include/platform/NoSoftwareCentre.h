// SPDX-License-Identifier: MIT
#pragma once

#include <platform/SoftwareCentre.h>

namespace quorvane {

/// A desktop that installs no programs.
class NoSoftwareCentre final : public SoftwareCentre {
public:
    [[nodiscard]] bool showPage(const QString&) override { return false; }
};

} // namespace quorvane
