// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

class QAction;
class QKeySequence;
class QMenu;
class QWidget;

namespace quorvane {

/// The program's menus, for desktops that show the menus of the active window in a bar of their
/// own. Elsewhere they are not shown, but the keys of Quit work all the same.
class MainMenu final : public QObject {
    Q_OBJECT

public:
    struct Callbacks {
        std::function<void()> checkForUpdates;
        std::function<void()> quit;
    };

    explicit MainMenu(const Callbacks& callbacks);
    ~MainMenu() override;

    /// Adds the menus to a window; to be called for each of the program's windows. Whether the
    /// desktop shows menus is asked over the bus, once the window has been painted.
    void attachTo(QWidget& window);

    /// Sees the first paint of a window.
    bool eventFilter(QObject* watched, QEvent* event) override;

    [[nodiscard]] std::vector<QMenu*> menus() const;

private:
    void addBar(QWidget& window) const;
    void addEdit(const QString& title, const QKeySequence& keys, const char* method);

    std::unique_ptr<QMenu> m_application;
    std::unique_ptr<QMenu> m_edit;
    QAction* m_quit;
};

} // namespace quorvane
