// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/EventTap.h>
#include <platform_portal/PortalDesktop.h>
#include <settings/DefaultsStore.h>

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace quorvane {

class PortalBackendName;
class PortalSession;

/// The shortcut as the portal delivers it (org.freedesktop.portal.GlobalShortcuts), once the user
/// has had the desktop add it. Which keys that are is the desktop's to say: it takes ours as a
/// wish. What was added comes back in later runs; nothing but bind() ever asks the user.
class PortalShortcut final : public QObject {
    Q_OBJECT

public:
    struct Presses {
        std::function<void()> pressed;
        std::function<void()> released;
        /// The desktop has other keys for it than were wished for.
        std::function<void(const KeyChord&)> chordChanged;
        /// isBound() says something else than before.
        std::function<void()> bindingChanged;
    };

    /// Queue and settings must outlive it.
    PortalShortcut(
        std::shared_ptr<PortalDesktop> portal, MainQueue& queue, DefaultsStore& defaults);
    ~PortalShortcut() override;

    PortalShortcut(const PortalShortcut&) = delete;
    PortalShortcut& operator=(const PortalShortcut&) = delete;

    /// Whether the portal has shortcuts to give; not before it has said so.
    [[nodiscard]] bool isOffered() const { return m_isOffered; }

    /// What people call the desktop that gives them; empty where it is not known.
    [[nodiscard]] QString desktopName() const;

    [[nodiscard]] bool isBound() const { return m_isBound; }

    /// As far as it can be understood, else as it was wished for; none while it is not bound.
    [[nodiscard]] std::optional<KeyChord> chord() const;

    [[nodiscard]] bool isDown() const { return m_isDown; }

    /// Has the desktop ask the user about this chord. Only for what the user has just asked for.
    void bind(const KeyChord& chord);

    /// Takes no more presses, in later runs neither.
    void unbind();

    /// Somebody waits for presses of this chord. Another one than was wished for before in this run
    /// has just been recorded by the user, and is bound.
    void watch(const KeyChord& chord);

    /// Who gets the presses from now on.
    void deliverTo(Presses presses) { m_presses = std::move(presses); }

    /// isOffered(), desktopName(), isBound() or chord() may say something else; replaces an earlier
    /// handler.
    void onChanged(std::function<void()> handler) { m_changed = std::move(handler); }

private Q_SLOTS:
    void activate(const QDBusMessage& signal);
    void deactivate(const QDBusMessage& signal);
    void adoptChange(const QDBusMessage& signal);

private:
    using Made = std::function<void()>;

    void look();
    void listen();
    void makeSession(Made made);
    void recall();
    void sendBinding();
    void adopt(const QVariant& list);
    void lose();
    [[nodiscard]] bool isOurs(const QDBusMessage& signal) const;
    void tellChord() const;
    void setBound(bool isBound);
    void setDown(bool isDown);

    std::shared_ptr<PortalDesktop> m_portal;
    MainQueue& m_queue;
    DefaultsStore& m_defaults;
    std::unique_ptr<PortalBackendName> m_backendName;
    std::unique_ptr<PortalSession> m_session;
    QString m_listenedOwner;
    bool m_isOffered = false;
    bool m_isBound = false;
    bool m_isDown = false;
    std::optional<KeyChord> m_wished;
    std::optional<KeyChord> m_understood;
    Presses m_presses;
    std::function<void()> m_changed = [] {
    };
};

} // namespace quorvane
