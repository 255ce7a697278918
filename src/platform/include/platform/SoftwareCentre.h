// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quorvane {

/// The desktop's own program to install and update others.
class SoftwareCentre {
public:
    virtual ~SoftwareCentre() = default;

    /// Opens the page of the program with this AppStream id; false where nothing can show it.
    [[nodiscard]] virtual bool showPage(const QString& applicationId) = 0;
};

} // namespace quorvane
