// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/AccessibilityRight.h>
#include <platform_portal/PortalClipboard.h>
#include <platform_portal/PortalDesktop.h>
#include <platform_portal/RestoreToken.h>

#include <QObject>

#include <cstdint>
#include <functional>
#include <memory>

namespace quorvane {

class PortalSession;
struct PortalResponse;

/// A keyboard that the portal lets us type on (org.freedesktop.portal.RemoteDesktop), once the user
/// has agreed. The consent holds for the session that it was given to, so there is one for the
/// whole run; where the portal can (version 2), it comes back in the next run without a question.
class PortalKeyboard final : public QObject {
    Q_OBJECT

public:
    enum class Move { Up, Down };
    using Sent = std::function<void(bool isTaken)>;

    /// Of one key.
    static constexpr std::chrono::milliseconds keyPatience{500};

    /// The queue must outlive it.
    PortalKeyboard(std::shared_ptr<PortalDesktop> portal, MainQueue& queue, RestoreToken token);
    ~PortalKeyboard() override;

    PortalKeyboard(const PortalKeyboard&) = delete;
    PortalKeyboard& operator=(const PortalKeyboard&) = delete;

    [[nodiscard]] TypingRight state() const { return m_state; }

    /// Whether the portal has keyboards to give; yes until it has said no.
    [[nodiscard]] bool isOffered() const { return m_isOffered; }

    /// Asks for the consent, unless it is given or asked for already.
    void open();

    /// Lets the clipboard take part in the sessions from now on; the user agrees to both at once.
    void share(std::shared_ptr<PortalClipboard> clipboard);

    /// Whether the portal shares the clipboard with us now.
    [[nodiscard]] bool sharesClipboard() const { return m_clipboard && m_clipboard->isShared(); }

    /// Replaces an earlier handler.
    void onChanged(std::function<void()> handler) { m_changed = std::move(handler); }

    /// Moves one key, by the kernel's code. `sent` runs when the portal has taken it or not, maybe
    /// before this returns, and not after the keyboard has gone. One that is not taken ends the
    /// consent.
    void move(std::uint16_t key, Move move, Sent sent);

private:
    void look();
    void adoptOffer(const std::optional<QVariantMap>& properties);
    void createSession();
    void selectDevices(bool isCreated);
    void requestClipboard(const PortalResponse& selected);
    void start();
    void adoptConsent(const PortalResponse& started);
    void wakeUp();
    void losePortal();
    void end(TypingRight state);
    void setState(TypingRight state);

    std::shared_ptr<PortalDesktop> m_portal;
    MainQueue& m_queue;
    RestoreToken m_token;
    TypingRight m_state = TypingRight::NotAsked;
    bool m_isOffered = true;
    bool m_keepsConsent = false;
    std::shared_ptr<PortalClipboard> m_clipboard; ///< null for none
    std::unique_ptr<PortalSession> m_session;
    std::function<void()> m_changed = [] {
    };
};

} // namespace quorvane
