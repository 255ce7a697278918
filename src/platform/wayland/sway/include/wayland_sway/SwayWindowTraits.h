// SPDX-License-Identifier: MIT
#pragma once

#include <platform/WindowTraits.h>

#include <QObject>
#include <QPoint>
#include <QPointer>

#include <memory>
#include <wayland_sway/SwayLink.h>

namespace quorvane {

/// The panel as a floating window on all workspaces, at its own place: sway itself lets windows of
/// Wayland have none.
class SwayWindowTraits final : public QObject, public WindowTraits {
public:
    explicit SwayWindowTraits(std::shared_ptr<SwayLink> link);
    ~SwayWindowTraits() override;

    void setActivationPolicy(ActivationPolicy) override {} // there is no taskbar

    void preparePanel(QWindow& window) override;
    void presentPanel(QWindow& window) override;

    void prepareDialog(QWindow&) override {}

    void orderFront(QWindow&) override {} // floating windows lie above the others

    void activate(QWindow& window) override;

    [[nodiscard]] bool placesWindows() const override { return m_link->isConnected(); }

    [[nodiscard]] bool isComposited() const override { return false; }

    void onCompositingChanged(std::function<void()>) override {}

    void setShadow(QWindow&, const QMargins&) override {}

    [[nodiscard]] std::optional<HeldInput> heldInput() const override { return std::nullopt; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow(QWindow& panel);
    void setRule(const QString& rule);
    void handleNamedWindow(const SwayWindow& window);
    void tellPlace();
    void askPlace();
    void takePlace(const QByteArray& tree);

    std::shared_ptr<SwayLink> m_link;
    QPointer<QWindow> m_panel;
    QString m_rule; ///< of the place, as it was set last
    QPoint m_place; ///< where the panel is, as far as sway and we have told each other
};

} // namespace quorvane
