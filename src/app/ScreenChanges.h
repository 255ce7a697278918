// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QScreen;

namespace quorvane {

/// Tells that a screen came, went, or has another place, size or free part than before.
class ScreenChanges final : public QObject {
    Q_OBJECT

public:
    ScreenChanges();

Q_SIGNALS:
    void changed();

private:
    void follow(const QScreen* screen);
};

} // namespace quorvane
