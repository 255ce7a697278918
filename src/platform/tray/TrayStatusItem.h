// SPDX-License-Identifier: MIT
#pragma once

#include <platform/StatusItem.h>
#include <platform_tray/TrayHosts.h>

#include <QObject>
#include <QSystemTrayIcon>

#include <memory>

class QMenu;

namespace quorvane {

/// An icon that Qt shows to whatever host is there. An XEmbed host leaves the menu to us; a host of
/// StatusNotifierItems draws it itself and does not report right clicks.
class TrayStatusItem final : public QObject, public StatusItem {
    Q_OBJECT

public:
    /// The hosts must outlive it. `menu` is for a host that draws it.
    TrayStatusItem(const TrayHosts& hosts, StatusMenu menu);
    ~TrayStatusItem() override;

    [[nodiscard]] bool hasButton() const override { return m_hosts.areThere(); }

    void setImage(const QIcon& image, const QString& accessibilityDescription) override;

    void setToolTip(const QString& text) override;

    [[nodiscard]] std::optional<QColor> textColor() const override { return m_hosts.textColor(); }

    void onTextColorChanged(std::function<void()> handler) override {
        m_textColorChanged = std::move(handler);
    }

    void onClicked(std::function<void(Click)> handler) override { m_clicked = std::move(handler); }

    [[nodiscard]] bool isVisible() const override { return m_isVisible; }

    void setVisible(bool visible) override;

    void setMenu(const StatusMenu& menu) override { m_attached = menu; }

    void performClick() override;
    [[nodiscard]] std::optional<QRect> frame() const override;

private:
    void hostsChanged();
    void makeIcon();
    void showIcon();
    void activated(QSystemTrayIcon::ActivationReason reason);
    void click(Click click);
    void openMenu();
    [[nodiscard]] bool drawsMenuItself() const;

    const TrayHosts& m_hosts;
    StatusMenu m_published;
    StatusMenu m_attached;
    QIcon m_image;
    QString m_description;
    QString m_toolTip;
    bool m_isVisible = false;
    std::function<void(Click)> m_clicked;
    std::function<void()> m_textColorChanged;
    std::unique_ptr<QMenu> m_hostsMenu;      ///< what the host draws
    std::unique_ptr<QMenu> m_openMenu;       ///< the last one that we opened
    std::unique_ptr<QSystemTrayIcon> m_icon; ///< once a host has come
};

} // namespace quorvane
