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

/// The program's menus, for desktops that show the menus of whatever is in front in a bar of their
/// own. Elsewhere they are not shown; quitting by its keys works all the same.
class MainMenu final : public QObject {
    Q_OBJECT

public:
    struct Callbacks {
        std::function<void()> checkForUpdates;
        std::function<void()> quit;
    };

    explicit MainMenu(const Callbacks& callbacks);
    ~MainMenu() override;

    /// Gives the menus to a window; each of the program's windows has them.
    void attachTo(QWidget& window);

    [[nodiscard]] std::vector<QMenu*> menus() const;

private:
    void addEdit(const QString& title, const QKeySequence& keys, const char* method);

    std::unique_ptr<QMenu> m_application;
    std::unique_ptr<QMenu> m_edit;
    QAction* m_quit;
};

} // namespace quorvane
