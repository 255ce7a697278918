// SPDX-License-Identifier: MIT
#pragma once

#include "support/Keyboard.h"
#include "support/WaitUntil.h"

#include <loop/QtMainQueue.h>
#include <x11_server/X11Connection.h>

#include <gtest/gtest.h>

#include <memory>

namespace quorvane {

/// The display of the test program, without a window manager, with a US keyboard; a test leaves it
/// as it was.
class X11Test : public testing::Test {
protected:
    void TearDown() override {
        if (m_layoutChanged)
            m_keyboard.setLayout(QStringLiteral("us"));
    }

    void setLayout(const QString& layout, const QString& options = {}) {
        m_layoutChanged = true;
        m_keyboard.setLayout(layout, options);
    }

    QtMainQueue m_queue;
    std::shared_ptr<X11Connection> m_connection = X11Connection::open();
    Keyboard m_keyboard;

private:
    bool m_layoutChanged = false;
};

} // namespace quorvane
