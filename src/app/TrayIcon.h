// SPDX-License-Identifier: MIT
#pragma once

#include <controls/SymbolIcon.h>
#include <loop/MainQueue.h>
#include <platform/Appearance.h>
#include <platform/StatusBar.h>

#include <QObject>
#include <QRect>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace quorvane {

/// The program's icon in the system tray, with its context menu.
class TrayIcon final : public QObject {
    Q_OBJECT

public:
    /// All must outlive the icon.
    struct Dependencies {
        StatusBar& statusBar;
        const Appearance& appearance;
        MainQueue& mainQueue;
    };

    /// The desktop may keep the menu's callbacks after the icon is gone.
    struct Callbacks {
        std::function<void()> onClick;
        std::function<void()> onShow;
        std::function<void()> onShowPreferences;
        std::function<void()> onCheckForUpdates;
        std::function<void()> onQuit;
    };

    TrayIcon(Dependencies dependencies, Callbacks callbacks);
    ~TrayIcon() override;

    /// Makes the icon and shows it, where the desktop takes icons.
    void makeStatusItem();

    /// Makes the icon first if it could not be made before.
    void setVisible(bool visible);

    /// What shows while the pointer rests on the icon; empty for the program's name.
    void setNotice(const QString& text);

    /// Whether the desktop has a place for the icon; one that is hidden keeps its place.
    [[nodiscard]] bool hasButton() const;

    /// Where the icon is, as far as the desktop tells.
    [[nodiscard]] std::optional<QRect> frame() const;

    /// Looks from now on whether the desktop's icon theme has the symbol: where there are several
    /// thousand icons the first look takes as long as painting the panel.
    void lookInTheme();

    /// Draws the icon anew, in what is known by now of the bar and of the desktop.
    void refreshImage();

    /// Follows the application's palette.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] SymbolColors colors() const;
    [[nodiscard]] QString nameInTheme() const;
    void statusBarButtonClicked(StatusItem::Click click);
    void showContextMenu();
    [[nodiscard]] StatusMenu contextMenu() const;
    [[nodiscard]] StatusMenu publishedMenu() const;

    Dependencies m_dependencies;
    Callbacks m_callbacks;
    std::unique_ptr<StatusItem> m_statusItem;
    QString m_notice;
    bool m_looksInTheme = false;
};

} // namespace quorvane
