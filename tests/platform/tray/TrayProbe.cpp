// SPDX-License-Identifier: MIT
#include "TrayStatusItem.h"

#include <controls/SymbolIcon.h>
#include <loop/QtMainQueue.h>

#include <QApplication>
#include <QSocketNotifier>

#include <cstdio>
#include <iostream>
#include <string>
#include <unistd.h>

// A program that is nothing but its icon: it writes what becomes of it to its output, a line each,
// and takes orders from its input. Tests run it on real desktops.

namespace {

using namespace quorvane;
using namespace Qt::StringLiterals;

void say(const QString& line) {
    std::puts(qUtf8Printable(line));
    std::fflush(stdout);
}

StatusMenu menu() {
    const auto entry = [](const QString& title, const QKeySequence& keys = {}) {
        return StatusMenuEntry{title, keys, [title] {
                                   say(u"ran %1"_s.arg(title));
                               }};
    };
    return {
        entry(u"Preferences…"_s, QKeySequence(Qt::CTRL | Qt::Key_Comma)),
        entry(u"Check for Updates…"_s),
        {},
        entry(u"Quit Quorvane"_s, QKeySequence(Qt::CTRL | Qt::Key_Q))};
}

class Probe {
public:
    Probe() {
        if (!m_hosts.arePossible()) {
            say(u"no bar"_s);
            return;
        }
        m_item = std::make_unique<TrayStatusItem>(m_hosts, menu());
        setImage(QApplication::palette());
        m_item->onClicked([this](StatusItem::Click click) { clicked(click); });
        // Connected after the item, so that its icon is there when the button is announced.
        QObject::connect(&m_hosts, &TrayHosts::changed, m_item.get(), [this] { sayButton(); });
        m_item->setVisible(true);
        sayButton();
    }

    void obey(const std::string& order) {
        if (order == "show" || order == "hide")
            m_item->setVisible(order == "show");
        else if (order == "light")
            setImage(QPalette(Qt::white));
        else if (order == "dark")
            setImage(QPalette(Qt::black));
        else if (order == "frame")
            sayFrame();
        else
            say(u"unknown order"_s);
    }

private:
    void setImage(const QPalette& palette) {
        m_item->setImage(
            symbolIcon(Symbol::CalendarBadgeClock, SymbolColors::of(palette)), u"Quorvane"_s);
    }

    void clicked(StatusItem::Click click) {
        say(click == StatusItem::Click::Left ? u"left click"_s : u"right click"_s);
        if (click == StatusItem::Click::Left)
            return;
        m_item->setMenu(menu());
        m_item->performClick();
        m_queue.async([this] { m_item->setMenu({}); });
    }

    void sayButton() { say(m_item->hasButton() ? u"button"_s : u"no button"_s); }

    void sayFrame() {
        const auto frame = m_item->frame();
        if (!frame)
            say(u"frame none"_s);
        else
            say(u"frame %1 %2 %3 %4"_s.arg(frame->x())
                    .arg(frame->y())
                    .arg(frame->width())
                    .arg(frame->height()));
    }

    QtMainQueue m_queue;
    TrayHosts m_hosts{QDBusConnection::sessionBus()};
    std::unique_ptr<TrayStatusItem> m_item;
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"quorvane"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    Probe probe;
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [&] {
        std::string order;
        if (std::getline(std::cin, order))
            probe.obey(order);
        else
            QApplication::quit();
    });
    return QApplication::exec();
}
