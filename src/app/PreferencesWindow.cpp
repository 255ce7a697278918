// SPDX-License-Identifier: MIT
#include "PreferencesWindow.h"

#include "KeptFocus.h"

#include <controls/FocusRing.h>
#include <preferences/PreferencesMetrics.h>

#include <QKeyEvent>
#include <QShortcut>
#include <QVBoxLayout>

namespace quorvane {

PreferencesWindow::PreferencesWindow(QWidget* content)
    // It cannot be minimised: without an entry in the taskbar it could not be brought back.
    : QWidget(
          nullptr,
          Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
              Qt::WindowCloseButtonHint) {
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowTitle(tr("Quorvane Preferences"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
    setFixedWidth(preferencesmetrics::size.width());
    resize(preferencesmetrics::size);
    new FocusRing(this);
    new KeptFocus(this);
    // A shortcut, unlike a key press, is found in layouts without a Latin W as well.
    auto* closing = new QShortcut(Qt::CTRL | Qt::Key_W, this);
    connect(closing, &QShortcut::activated, this, &QWidget::close);
}

void PreferencesWindow::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel))
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace quorvane
