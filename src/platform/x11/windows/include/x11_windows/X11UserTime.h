// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/X11Connection.h>

#include <QObject>

#include <memory>

namespace quorvane {

/// Tells the connection when the user last pressed a key or a button in a window of ours. Window
/// managers refuse a request for the focus that is older than what the user did last.
class X11UserTime final : public QObject {
public:
    explicit X11UserTime(std::shared_ptr<X11Connection> connection);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::shared_ptr<X11Connection> m_connection;
};

} // namespace quorvane
