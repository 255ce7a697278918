// SPDX-License-Identifier: MIT
#pragma once

#include <platform/WindowTraits.h>
#include <testing/CallLog.h>

#include <QPointer>
#include <QWindow>

namespace quorvane {

class FakeWindowTraits final : public WindowTraits {
public:
    explicit FakeWindowTraits(CallLog& log) : m_log(log) {}

    void setActivationPolicy(ActivationPolicy policy) override {
        m_log.add(policy == ActivationPolicy::Regular ? "policy regular" : "policy accessory");
    }

    void preparePanel(QWindow&) override { m_log.add("preparePanel"); }

    void presentPanel(QWindow&) override { m_log.add("presentPanel"); }

    void prepareDialog(QWindow& window) override { dialog = &window; }

    void orderFront(QWindow& window) override { m_log.add(named("orderFront", window)); }

    void activate(QWindow& window) override { m_log.add(named("activate", window)); }

    [[nodiscard]] bool placesWindows() const override { return places; }

    [[nodiscard]] bool isComposited() const override { return composited; }

    void onCompositingChanged(std::function<void()> handler) override {
        m_compositingChanged = std::move(handler);
    }

    void setShadow(QWindow&, const QMargins& margins) override { shadow = margins; }

    /// A compositing manager comes or goes.
    void setComposited(bool isThere) {
        composited = isThere;
        if (m_compositingChanged)
            m_compositingChanged();
    }

    [[nodiscard]] std::optional<HeldInput> heldInput() const override { return held; }

    bool composited = false;
    bool places = true; ///< windows stand where they ask to

    QMargins shadow; ///< the last that was set

    QPointer<QWindow> dialog; ///< the last that was prepared

    /// Nothing is held until a test says so.
    std::optional<HeldInput> held = HeldInput{};

private:
    static std::string named(const std::string& call, const QWindow& window) {
        const bool isPanel = window.title() == QStringLiteral("Quorvane");
        return call + (isPanel ? " panel" : " preferences");
    }

    CallLog& m_log;
    std::function<void()> m_compositingChanged;
};

} // namespace quorvane
