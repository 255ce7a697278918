// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

namespace quorvane {

/// KDE's daemon of global shortcuts as KWin 5.27 answers: what an action has had is kept when it
/// registers again, and a key that another action has is refused.
class FakeKGlobalAccel final : public QDBusVirtualObject {
public:
    struct Action {
        QStringList id;
        QList<int> keys;
        QList<int> usualKeys;
        bool isFresh = true;
        bool isPresent = false;
    };

    explicit FakeKGlobalAccel(QDBusConnection bus);
    ~FakeKGlobalAccel() override;

    FakeKGlobalAccel(const FakeKGlobalAccel&) = delete;
    FakeKGlobalAccel& operator=(const FakeKGlobalAccel&) = delete;

    void appear();
    void vanish();

    /// Takes calls and answers none from now on.
    void hang() { m_hangs = true; }

    /// Ours, or nothing where there is none.
    [[nodiscard]] const Action* ours() const;

    /// What a user does in System Settings.
    void change(const QList<int>& keys);

    /// Another program has the key.
    void giveTo(const QString& program, int key);
    void takeFrom(const QString& program);

    /// Presses or releases a key: the action that has it and is present is told.
    void press(int key) { tell(u"globalShortcutPressed", key); }

    void release(int key) { tell(u"globalShortcutReleased", key); }

    /// Something else than what the method promises, from now on.
    void answerNonsense() { m_isNonsense = true; }

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    bool tellsRelease = true;

private:
    [[nodiscard]] QVariantList answerTo(const QDBusMessage& call);
    [[nodiscard]] QVariantList setKeys(const QDBusMessage& call);
    [[nodiscard]] const Action* holderOf(int key) const;
    void tell(QStringView signal, int key);

    QDBusConnection m_bus;
    QMap<QString, Action> m_actions; ///< by component
    bool m_hangs = false;
    bool m_isNonsense = false;
};

} // namespace quorvane
