// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;

namespace quorvane {

/// Says in the place of an empty list that a search found nothing.
class NothingFound final : public QWidget {
    Q_OBJECT

public:
    explicit NothingFound(QWidget* parent);

    void setQuery(const QString& query);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* m_text;
};

} // namespace quorvane
