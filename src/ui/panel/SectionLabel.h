// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Symbol.h>

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QSpacerItem;

namespace quorvane {

/// The first line of a section: its symbol and name, perhaps a note, and at its end whatever
/// belongs to the section as a whole.
class SectionLabel final : public QWidget {
    Q_OBJECT

public:
    SectionLabel(const QString& name, Symbol icon, QWidget* parent);

    void setNote(const QString& note);

    enum class End {
        WithColumn,
        BeyondColumn ///< by the overhang, so that what a symbol paints ends with the column
    };

    void addTrailing(QWidget* widget, End end = End::WithColumn);

    /// The control that the name stands for, to assistive technology.
    void setBuddy(QWidget* control);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void followFont();

    Symbol m_icon;
    QLabel* m_name;
    QLabel* m_note;
    QHBoxLayout* m_row;
    QSpacerItem* m_symbolRoom; ///< owned by the row
};

} // namespace quorvane
