// SPDX-License-Identifier: MIT
#pragma once

#include "KGlobalAccel.h"

#include <platform/EventTap.h>
#include <platform/KeyboardLayout.h>

#include <QObject>

#include <memory>

namespace quorvane {

/// The shortcut as an action of KDE's list. The list beats what is watched when the tap begins: the
/// user may have changed it in System Settings meanwhile. A shortcut that is given to a tap later,
/// or asked for again, goes into the list.
class KGlobalAccelTap final : public QObject, public EventTap {
    Q_OBJECT

public:
    /// `usual` is what System Settings offers to go back to. The layout must outlive the tap.
    KGlobalAccelTap(
        std::shared_ptr<KGlobalAccel> daemon,
        const KeyboardLayout& layout,
        const KeyChord& usual,
        TapHandlers handlers);
    ~KGlobalAccelTap() override;

    KGlobalAccelTap(const KGlobalAccelTap&) = delete;
    KGlobalAccelTap& operator=(const KGlobalAccelTap&) = delete;

    void watch(std::optional<KeyChord> chord) override;
    void enable() override;
    void disable() override;

    [[nodiscard]] TapDelivery delivery() const override { return m_delivery; }

    [[nodiscard]] QString holder() const override { return m_holder; }

    [[nodiscard]] bool tellsRelease() const override { return m_daemon->tellsRelease(); }

    [[nodiscard]] bool isKeyDown() override {
        return m_daemon->tellsRelease() && m_daemon->isKeyDown();
    }

private:
    using Claim = KGlobalAccel::Claim;

    void claim(Claim claim);
    void adopt(const std::optional<QList<int>>& keys);
    void adoptKey(int key);
    void nameHolder();
    void giveUp();
    void handlePress();
    void setDelivery(TapDelivery delivery, const QString& holder = {});

    std::shared_ptr<KGlobalAccel> m_daemon;
    const KeyboardLayout& m_layout;
    KeyChord m_usual;
    TapHandlers m_handlers;
    std::optional<KeyChord> m_chord;
    int m_key = 0; ///< what was claimed for it last
    int m_claims = 0;
    bool m_isEnabled = false;
    bool m_isClaimed = false;
    TapDelivery m_delivery = TapDelivery::Off;
    QString m_holder;
};

} // namespace quorvane
