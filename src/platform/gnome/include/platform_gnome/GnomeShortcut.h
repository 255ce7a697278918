// SPDX-License-Identifier: MIT
#pragma once

#include <loop/Deadline.h>
#include <loop/MainQueue.h>
#include <platform/DesktopShortcut.h>
#include <platform/KeyboardLayout.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>

#include <deque>
#include <functional>
#include <memory>
#include <optional>

namespace quorvane {

class BoundCommands;
class SettingsCommand;

/// GNOME's custom shortcuts, kept by its daemon of media keys and written by the program
/// `gsettings`. There is such a list while that daemon is on the bus. Nothing is written but one
/// entry of our own, and the list of entries that names it. What others write to that entry is told
/// by dconf, which keeps the settings.
class GnomeShortcut final : public QObject, public DesktopShortcut {
    Q_OBJECT

public:
    /// What is written to the settings in a row is read once, this long after the first of it.
    static constexpr Seconds readingDelay{0.1};

    /// Queue and layout must outlive it. `program` is asked for the settings.
    GnomeShortcut(
        const QDBusConnection& bus,
        MainQueue& queue,
        const KeyboardLayout& layout,
        QString program = QStringLiteral("gsettings"));
    ~GnomeShortcut() override;

    [[nodiscard]] QString desktopName() const override;
    [[nodiscard]] std::optional<KeyChord> bound() const override;
    [[nodiscard]] QString holder(const KeyChord& chord) const override;
    void refresh() override;
    void bind(const KeyChord& chord) override;
    void unbind() override;

    void onChanged(std::function<void()> handler) override { m_changed = std::move(handler); }

    void onRebound(std::function<void(const KeyChord&)> handler) override {
        m_rebound = std::move(handler);
    }

private Q_SLOTS:
    void handleOwner(const QString& name, const QString& oldOwner, const QString& newOwner);
    void handleNotice(const QDBusMessage& signal);

private:
    using Task = std::function<void()>;
    using Lines = std::function<void(const QString&)>;

    void askForDaemon(const QDBusConnection& bus);
    void setDaemonThere(bool isThere);
    void tellChanged() const;
    void tellRebound() const;

    void enqueue(Task task);
    void startNext();
    void finishTask();
    /// Goes on with what the command wrote, or without.
    void run(const QStringList& arguments, Lines done, Task failed);
    void write(std::deque<QStringList> commands);
    void failToWrite();
    void failToRead();

    void readLists(std::size_t next);
    void readCustom(QStringList paths);
    void read();
    void adopt();
    void changePaths(const std::function<std::deque<QStringList>(QStringList paths)>& commands);

    MainQueue& m_queue;
    const KeyboardLayout& m_layout;
    QString m_program;
    bool m_isDaemonThere = false;
    bool m_isListThere = true;                ///< until it could not be read
    bool m_isRefreshDue = false;              ///< and not begun
    std::unique_ptr<BoundCommands> m_read;    ///< as it was read last
    std::unique_ptr<BoundCommands> m_reading; ///< while it is being read
    std::deque<Task> m_tasks;                 ///< the first one runs
    std::unique_ptr<SettingsCommand> m_command;
    bool m_isOwnChange = false; ///< what is being read follows a change of our own
    bool m_isReadingSoon = false;
    Deadline m_readingSoon;
    std::function<void()> m_changed;
    std::function<void(const KeyChord&)> m_rebound;
};

} // namespace quorvane
