// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QWidget>

#include <functional>

namespace quorvane {

class SampleList;

/// What can stand in a date pattern: ready ones to take, and the letters that they are made of,
/// each with what it gives. Tab, Left and Right go from one list to the other.
class PatternPage final : public QWidget {
    Q_OBJECT

public:
    /// What a pattern gives for the present choice.
    using Sample = std::function<QString(const QString& pattern)>;

    PatternPage(const Sample& sample, const QFont& codeFont, QWidget* parent = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void patternChosen(const QString& pattern);
    void letterChosen(const QString& letter);

private:
    SampleList* m_ready;
    SampleList* m_letters;
};

} // namespace quorvane
