// SPDX-License-Identifier: MIT
#include <controls/ContextMenu.h>

#include <QEvent>
#include <QMenu>

namespace quorvane {

namespace {

/// Goes with its menu.
class OwnerWatch final : public QObject {
public:
    OwnerWatch(QMenu& menu, QWidget& owner) : QObject(&menu), m_menu(menu) {
        owner.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Hide)
            m_menu.close();
        return QObject::eventFilter(watched, event);
    }

private:
    QMenu& m_menu;
};

} // namespace

void openContextMenu(QMenu& menu, QWidget& owner, const QPoint& position) {
    menu.setAttribute(Qt::WA_DeleteOnClose);
    new OwnerWatch(menu, owner);
    menu.popup(position);
}

} // namespace quorvane
