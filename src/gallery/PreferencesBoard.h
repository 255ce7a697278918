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

/// The preferences in five states: as they open, recording a shortcut with the favourites alone in
/// the list, searching, without favourites, and with every zone a favourite.
class PreferencesBoard final : public QWidget {
    Q_OBJECT

public:
    explicit PreferencesBoard(ColorScheme scheme, QWidget* parent = nullptr);
    ~PreferencesBoard() override;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

    /// What a pointer does to a list can be shown once the list is.
    void showEvent(QShowEvent* event) override;

private:
    struct Sample;

    enum class Icons { MenuBar, Nowhere, Everywhere };

    /// Adds a window with its stand-in for a title bar, right of those before it.
    PreferencesView& addWindow(
        const QString& note,
        Icons icons,
        ShortcutRecorder::Activity activity = ShortcutRecorder::Activity::Active,
        const std::function<void(DateTimeModel&)>& prepare = {});
    [[nodiscard]] QRect frameOf(std::size_t index) const;

    std::vector<std::unique_ptr<Sample>> m_samples;
};

} // namespace quorvane
