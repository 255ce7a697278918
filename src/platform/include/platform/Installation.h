// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>

namespace quorvane {

/// How this program came onto the machine, which decides where a newer one comes from.
struct Installation {
    enum class Kind {
        DebianPackage,
        Flatpak,
        ByHand,     ///< below `folder`
        BuildFolder ///< it runs in `folder`, where it was built
    };

    Kind kind = Kind::ByHand;
    QString folder = {};
    QDate built = {}; ///< the day of the build; invalid where it is not known

    /// Whether software centres know it.
    [[nodiscard]] bool isPackage() const {
        return kind == Kind::DebianPackage || kind == Kind::Flatpak;
    }
};

} // namespace quorvane
