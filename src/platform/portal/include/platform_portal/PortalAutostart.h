// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/Autostart.h>
#include <platform_portal/PortalDesktop.h>
#include <settings/DefaultsStore.h>

#include <QObject>

#include <memory>

namespace quorvane {

class PortalRequest;
struct PortalResponse;

/// The start at login of a program in a sandbox, which cannot write the user's entries: the portal
/// does so, if the user or the desktop agrees (org.freedesktop.portal.Background). It never tells
/// what it has granted, so its last answer is kept in the settings.
class PortalAutostart final : public QObject, public Autostart {
    Q_OBJECT

public:
    /// Queue and settings must outlive it. Without a portal every request is refused.
    PortalAutostart(
        std::shared_ptr<PortalDesktop> portal, MainQueue& queue, DefaultsStore& defaults);
    ~PortalAutostart() override;

    PortalAutostart(const PortalAutostart&) = delete;
    PortalAutostart& operator=(const PortalAutostart&) = delete;

    [[nodiscard]] bool isAvailable() const override { return true; }

    [[nodiscard]] bool isOn() const override;

    /// Takes back a question that is not answered yet, and asks anew.
    void setOn(bool on) override;

    [[nodiscard]] Request request() const override { return m_state; }

    void onChanged(std::function<void()> handler) override;

private:
    void ask(bool on);
    void take(bool on, const PortalResponse& response);
    void settle(Request state);

    std::shared_ptr<PortalDesktop> m_portal;
    MainQueue& m_queue;
    DefaultsStore& m_defaults;
    std::unique_ptr<QObject> m_meeting; ///< while the portal is met for the last request
    std::unique_ptr<PortalRequest> m_question;
    Request m_state = Request::Settled;
    std::function<void()> m_changed;
};

} // namespace quorvane
