// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/DesktopShortcut.h>
#include <platform/KeyboardLayout.h>

#include <QDBusConnection>
#include <QString>
#include <QStringList>

#include <deque>
#include <functional>
#include <memory>
#include <optional>

namespace quorvane {

class BoundCommands;
class MediaKeysDaemon;
class SettingsTasks;

/// GNOME's custom shortcuts, kept by its daemon of media keys and written by the program
/// `gsettings`. There is such a list while that daemon is on the bus. Nothing is written but one
/// entry of our own, and the list of entries that names it. What others write to that entry is told
/// by dconf, which keeps the settings.
class GnomeShortcut final : public DesktopShortcut {
public:
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

private:
    using Task = std::function<void()>;

    void tellChanged() const;
    void tellRebound() const;

    void write(std::deque<QStringList> commands);
    void failToWrite();
    void failToRead();

    void readLists(std::size_t next);
    void readCustom(QStringList paths);
    void read();
    void adopt();
    void changePaths(const std::function<std::deque<QStringList>(QStringList paths)>& commands);

    const KeyboardLayout& m_layout;
    std::unique_ptr<MediaKeysDaemon> m_daemon;
    std::unique_ptr<SettingsTasks> m_tasks;
    bool m_isListThere = true;                ///< until it could not be read
    bool m_isRefreshDue = false;              ///< and not begun
    bool m_isOwnChange = false;               ///< what is being read follows a change of our own
    std::unique_ptr<BoundCommands> m_read;    ///< as it was read last
    std::unique_ptr<BoundCommands> m_reading; ///< while it is being read
    std::function<void()> m_changed;
    std::function<void(const KeyChord&)> m_rebound;
};

} // namespace quorvane
