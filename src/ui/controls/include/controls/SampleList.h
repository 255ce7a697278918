// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QString>
#include <QWidget>

#include <vector>

namespace quorvane {

/// A code, what it is for, and what it gives.
struct SampleItem {
    QString code;
    QString title;
    QString sample;
};

/// Codes to press one of, in rows with keys as in a menu. To assistive technology each is an item
/// that has the title for its name, and the rest for a description.
class SampleList final : public QWidget {
    Q_OBJECT

public:
    enum class Form {
        OneLine, ///< code, title, sample
        TwoLines ///< the code below title and sample
    };

    /// `name` is the list's, for assistive technology too; `codeFont` is that of the codes.
    SampleList(
        const QString& name,
        Form form,
        const std::vector<SampleItem>& items,
        const QFont& codeFont,
        QWidget* parent = nullptr);

    /// Gives the focus to the row that is nearest to the height of `place`, in this window.
    void focusRowAt(QPoint place);

Q_SIGNALS:
    void chosen(int index);

private:
    std::vector<QWidget*> m_rows;
};

} // namespace quorvane
