// SPDX-License-Identifier: MIT
#include <controls/PopoverFade.h>

#include <QPropertyAnimation>
#include <QStyle>
#include <QWidget>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr int fadeMilliseconds = 90;
const auto fadeName = u"popover fade"_s;

bool isWanted(const QWidget& window, bool isComposited) {
    const auto* style = window.style();
    return isComposited &&
           style->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &window) != 0;
}

} // namespace

void fadeIn(QWidget& window, bool isComposited) {
    // A window that is shown again may still be fading from the last time.
    delete window.findChild<QPropertyAnimation*>(fadeName, Qt::FindDirectChildrenOnly);
    if (!isWanted(window, isComposited)) {
        window.setWindowOpacity(1);
        return;
    }
    auto* fade = new QPropertyAnimation(&window, "windowOpacity", &window);
    fade->setObjectName(fadeName);
    fade->setDuration(fadeMilliseconds);
    fade->setStartValue(0.0);
    fade->setEndValue(1.0);
    window.setWindowOpacity(0);
    fade->start(QAbstractAnimation::DeleteWhenStopped);
}

} // namespace quorvane
