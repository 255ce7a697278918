// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace quorvane {

/// The window around the preferences. Closing it, also by Escape or Ctrl+W, only
/// hides it.
class PreferencesWindow final : public QWidget {
    Q_OBJECT

public:
    /// Takes ownership of the content.
    explicit PreferencesWindow(QWidget* content);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace quorvane
