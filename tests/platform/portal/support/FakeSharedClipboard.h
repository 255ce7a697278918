// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QList>
#include <QMap>
#include <QStringList>
#include <QVariant>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

namespace quorvane {

/// The portal's side of org.freedesktop.portal.Clipboard, with other programs that copy and paste
/// as a test says.
class FakeSharedClipboard final {
public:
    /// What the program said at the end of a transfer.
    struct End {
        std::uint32_t serial = 0;
        bool isWhole = false;

        friend bool operator==(const End&, const End&) = default;
    };

    explicit FakeSharedClipboard(QDBusConnection bus) : m_bus(std::move(bus)) {}

    ~FakeSharedClipboard();

    FakeSharedClipboard(const FakeSharedClipboard&) = delete;
    FakeSharedClipboard& operator=(const FakeSharedClipboard&) = delete;

    /// Whether the call is of this interface.
    bool handle(const QDBusMessage& message);

    /// Another program copies these, and the portal tells `client` so.
    void copy(QMap<QString, QByteArray> contents);

    /// The same before the portal began to share, which it does not tell.
    void setContents(QMap<QString, QByteArray> contents) { m_contents = std::move(contents); }

    /// Tells whatever a test likes.
    void tellOwner(const QVariant& types, bool isOurs = false);

    /// Another program wants that type of what the program has set; the serial.
    std::uint32_t paste(const QString& type);

    /// The end that the program's bytes come out of; none before it has asked for the other.
    [[nodiscard]] std::optional<int> pasted(std::uint32_t serial) const;

    /// The other program has had enough.
    void stopPasting(std::uint32_t serial);

    /// The types that the program has put there; none before.
    [[nodiscard]] const std::optional<QStringList>& types() const { return m_types; }

    [[nodiscard]] const QList<End>& ends() const { return m_ends; }

    [[nodiscard]] bool hasEnded(std::uint32_t serial) const {
        return std::ranges::find(m_ends, serial, &End::serial) != m_ends.end();
    }

    [[nodiscard]] const QStringList& reads() const { return m_reads; }

    [[nodiscard]] int settings() const { return m_settings; }

    QString client;  ///< the program's name on the bus
    QString session; ///< the program's
    QStringList silentAbout;
    QStringList refuses;
    bool leavesPipesOpen = false; ///< what is read never ends
    bool givesNoFiles = false;    ///< but texts

private:
    void answerRead(const QDBusMessage& message);
    void answerWrite(const QDBusMessage& message);
    void send(const QString& name, const QVariantList& arguments);

    QDBusConnection m_bus;
    QMap<QString, QByteArray> m_contents;
    std::optional<QStringList> m_types;
    QList<End> m_ends;
    QStringList m_reads;
    QMap<std::uint32_t, int> m_pastes;
    QList<int> m_open;
    std::uint32_t m_serial = 0;
    int m_settings = 0;
};

} // namespace quorvane
