// SPDX-License-Identifier: MIT
#include "MainMenu.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>

namespace quorvane {

using namespace Qt::StringLiterals;

MainMenu::MainMenu(const Callbacks& callbacks)
    : m_application(std::make_unique<QMenu>(u"Quorvane"_s)),
      m_edit(std::make_unique<QMenu>(tr("Edit"))),
      m_quit(nullptr) {
    m_application->addAction(tr("Check for Updates…"), this, callbacks.checkForUpdates);
    m_application->addSeparator();
    m_quit = m_application->addAction(tr("Quit Quorvane"), this, callbacks.quit);
    m_quit->setShortcut(Qt::CTRL | Qt::Key_Q);
    // The keys work in the popups of a window as well, which are windows of their own.
    m_quit->setShortcutContext(Qt::ApplicationShortcut);
    addEdit(tr("Undo"), Qt::CTRL | Qt::Key_Z, "undo");
    addEdit(tr("Redo"), Qt::CTRL | Qt::SHIFT | Qt::Key_Z, "redo");
    m_edit->addSeparator();
    addEdit(tr("Cut"), Qt::CTRL | Qt::Key_X, "cut");
    addEdit(tr("Copy"), Qt::CTRL | Qt::Key_C, "copy");
    addEdit(tr("Paste"), Qt::CTRL | Qt::Key_V, "paste");
    addEdit(tr("Select All"), Qt::CTRL | Qt::Key_A, "selectAll");
}

MainMenu::~MainMenu() = default;

void MainMenu::attachTo(QWidget& window) {
    window.addAction(m_quit);
    window.installEventFilter(this);
}

bool MainMenu::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        auto* window = static_cast<QWidget*>(watched);
        QMetaObject::invokeMethod(
            window, [this, window] { addBar(*window); }, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void MainMenu::addBar(QWidget& window) const {
    auto* bar = new QMenuBar(&window);
    for (auto* menu : menus())
        bar->addMenu(menu);
    // A bar that the desktop does not show would be shown in the window.
    if (!bar->isNativeMenuBar())
        delete bar;
}

std::vector<QMenu*> MainMenu::menus() const {
    return {m_application.get(), m_edit.get()};
}

void MainMenu::addEdit(const QString& title, const QKeySequence& keys, const char* method) {
    auto* action = m_edit->addAction(title, this, [method] {
        // Only text fields have these methods; any other focused control is left alone.
        auto* focused = QApplication::focusWidget();
        if (focused != nullptr &&
            focused->metaObject()->indexOfMethod(QByteArray(method).append("()").constData()) >= 0)
            QMetaObject::invokeMethod(focused, method);
    });
    // Text fields handle these keys themselves; the menu only shows them.
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
}

} // namespace quorvane
