// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Theme.h>
#include <recorder/ShortcutRecorder.h>

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace quorvane {

class DateTimeModel;
class PreferencesView;

/// The preferences in five states. Of their settings: as they open, recording a shortcut with the
/// favourites alone in the list, searching, without favourites, and with every zone a favourite. Of
/// what a desktop asks of its user: the shortcut to be added to a list, standing there, taken by
/// another command, to be pasted into a configuration, and to be bound by hand.
class PreferencesBoard final : public QWidget {
    Q_OBJECT

public:
    enum class Content { Settings, DesktopHelp };

    explicit PreferencesBoard(
        ColorScheme scheme, Content content = Content::Settings, QWidget* parent = nullptr);
    ~PreferencesBoard() override;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

    /// What a pointer does to a list can be shown once the list is.
    void showEvent(QShowEvent* event) override;

private:
    struct Sample;

    enum class Icons { MenuBar, Nowhere, Everywhere };

    void addSettings();
    void addDesktopHelp();

    /// Adds a window with its stand-in for a title bar, right of those before it.
    PreferencesView& addWindow(
        const QString& note,
        Icons icons,
        ShortcutRecorder::Activity activity = ShortcutRecorder::Activity::Active,
        const std::function<void(Sample&)>& prepare = {});
    [[nodiscard]] QRect frameOf(std::size_t index) const;

    Content m_content;
    std::vector<std::unique_ptr<Sample>> m_samples;
};

} // namespace quorvane
