// SPDX-License-Identifier: MIT
#pragma once

#include "DelegateFixture.h"

#include <controls/FocusRing.h>
#include <settings/SettingsTable.h>

#include <QTest>

namespace quorvane {

/// A delegate that can be launched in either mode.
class PresentationFixture : public DelegateFixture {
protected:
    /// Launched in that mode, shown, and with the tasks that start-up queued done.
    void launchAs(PresentationMode mode) {
        defaults.setString(setting::presentationMode.key, rawValue(mode));
        makeDelegate();
        statusBar->hasButton = bar.hasButton;
        statusBar->frame = bar.frame;
        launch();
        queue.run();
    }

    /// What the bar is like when the program starts.
    struct Bar {
        bool hasButton = true;
        std::optional<QRect> frame = QRect(600, 0, 22, 22);
    } bar;

    void setMode(PresentationMode mode) {
        delegate->model().setPresentationMode(mode);
        queue.run();
    }

    /// Whether the window, which gets the focus now, shows where in it that is.
    [[nodiscard]] static bool showsFocus(QWidget* window) {
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window));
        return FocusRing::of(*window)->isVisible();
    }

    void clickIcon() {
        statusBar->click(StatusItem::Click::Left);
        queue.run();
    }
};

} // namespace quorvane
