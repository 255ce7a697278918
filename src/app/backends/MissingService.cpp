// SPDX-License-Identifier: MIT
#include "MissingService.h"

#include "QtClipboard.h"

#include <platform/ShortcutLists.h>
#include <platform_gnome/GnomeShortcut.h>

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace quorvane {

namespace {

/// The shortcut can be had, but nothing typed.
class NoTypingRight final : public AccessibilityRight {
public:
    [[nodiscard]] bool mayReadShortcut() const override { return true; }

    [[nodiscard]] TypingRight typing() const override { return TypingRight::Unavailable; }

    [[nodiscard]] bool canPrompt() const override { return false; }

    void prompt() override {}

    void onChanged(std::function<void()> /*handler*/) override {}
};

bool isShortcutWhole(const PlatformServices& services) {
    return std::ranges::any_of(services.states, [](const ServiceState& state) {
        return state.service == DesktopService::Shortcut && state.isWhole;
    });
}

/// After what the portal has: only the later portals of GNOME know shortcuts.
void addGnomesList(PlatformServices& services, const DesktopSession& session) {
    ShortcutLists::Lists lists;
    lists.push_back(std::move(services.desktopShortcut));
    lists.push_back(std::make_unique<GnomeShortcut>(
        QDBusConnection::sessionBus(), session.queue, *services.keyboardLayout));
    services.desktopShortcut = std::make_unique<ShortcutLists>(std::move(lists));
}

} // namespace

bool isForTheUser(ChosenService service) {
    return service != ChosenService::Layout;
}

DesktopService desktopServiceOf(ChosenService service) {
    switch (service) {
    case ChosenService::Clipboard:
        return DesktopService::Clipboard;
    case ChosenService::Keys:
        return DesktopService::Typing;
    case ChosenService::Shortcut:
        return DesktopService::Shortcut;
    case ChosenService::Windows:
        return DesktopService::FrontWindow;
    case ChosenService::Panel:
    case ChosenService::Layout:
        break;
    }
    return DesktopService::Panel;
}

QString explanationWithout(ChosenService service) {
    switch (service) {
    case ChosenService::Clipboard:
        return explanationOfQtClipboard();
    case ChosenService::Keys:
        return QCoreApplication::translate(
            "Backends", "This desktop does not let Quorvane type: Insert copies the text instead.");
    case ChosenService::Shortcut:
        return QCoreApplication::translate(
            "Backends",
            "This desktop does not let Quorvane take a shortcut: bind one to it in the desktop's "
            "own settings.");
    case ChosenService::Windows:
        return QCoreApplication::translate(
            "Backends",
            "This desktop does not tell which window is in front: Insert goes to the one that "
            "gets the keyboard when the panel has closed.");
    case ChosenService::Panel:
    case ChosenService::Layout:
        break;
    }
    return QCoreApplication::translate(
        "Backends",
        "The desktop places the panel, and does not keep it above other windows or on all virtual "
        "desktops.");
}

void standIn(
    PlatformServices& services,
    const std::set<ChosenService>& missing,
    const DesktopSession& session) {
    if (missing.contains(ChosenService::Clipboard))
        services.pasteboard = makeQtClipboard(session);
    if (!isShortcutWhole(services))
        addGnomesList(services, session);
    if (missing.contains(ChosenService::Keys) && !missing.contains(ChosenService::Shortcut))
        services.accessibilityRight = std::make_unique<NoTypingRight>();
}

} // namespace quorvane
