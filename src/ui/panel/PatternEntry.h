// SPDX-License-Identifier: MIT
#pragma once

#include "PatternPage.h"

#include <controls/PasteReader.h>
#include <controls/PopoverEffects.h>

namespace quorvane {

class PatternField;
class PatternHelpButton;

/// Where the user's own pattern is entered: a field, and at its end the button that opens the page
/// of what can stand in it. What is taken from that page goes into the field, which then has the
/// focus.
class PatternEntry final : public QWidget {
    Q_OBJECT

public:
    /// `sample` is called while the page opens.
    PatternEntry(
        const PopoverEffects& effects,
        PasteReader pasteReader,
        PatternPage::Sample sample,
        QWidget* parent);

    /// Shows another pattern than the one that is there, without edited().
    void setPattern(const QString& pattern);

    /// Gives the field the focus, with the cursor behind the pattern.
    void enter();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user has made another pattern of it.
    void edited(const QString& pattern);

protected:
    bool event(QEvent* event) override;

private:
    [[nodiscard]] QWidget* makePage();
    void takePattern(const QString& pattern);
    void takeLetter(const QString& letter);
    void place();

    PatternPage::Sample m_sample;
    PatternField* m_field;
    PatternHelpButton* m_help; ///< follows the field in the Tab order
};

} // namespace quorvane
