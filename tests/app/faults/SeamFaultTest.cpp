// SPDX-License-Identifier: MIT
#include "FaultyPasteboard.h"
#include "Journeys.h"
#include "SeamCalls.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gmock/gmock.h>

#include <set>
#include <string_view>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::Contains;

// Longer than everything that the program waits for.
constexpr auto patience = 15s;

/// Set by ./dev check.
constexpr const char* thorough = "QUORVANE_THOROUGH";

/// Calls that no part of the program makes while it runs.
const std::set<std::string> madeElsewhere{
    // By the process' entry, which the desktop tests of starts, ends and buses run.
    "ApplicationInstance::claim",
    "ApplicationInstance::release",
    "ApplicationInstance::onReopen",
    "ApplicationInstance::onAction",
    "StartupNotification::begin",
    "StartupNotification::end",
    // Its steps fail one by one: FileReplacement.
    "FileWriter::replace",
    // By backends, and by the tray's own tests.
    "KeyboardLayout::shiftedCharacters",
    "StatusItem::isVisible",
};

/// What takes the shortcut away for good, until the user does something about it.
const std::set<std::string> takingTheShortcut{
    "AccessibilityRight::mayReadShortcut", "EventTap::watch", "EventTap::enable"};

class SeamFaultTest : public Journeys {
protected:
    /// Takes the journey with this fault, and looks at what it leaves.
    void travel(const Journey& journey, const std::string& call, int time) {
        SCOPED_TRACE(
            std::string(journey.name) + ", " + call +
            (time == FaultPlan::always ? " always" : " " + std::to_string(time)));
        begin(journey.settings);
        plan.fail(call, time);
        go(journey);
        queue.advance(patience);
        expectUsersClipboard(journey, call);
        plan.heal();
        if (!journey.ends)
            expectWorks(call);
        expectUsersSettings(journey);
    }

    void go(const Journey& journey) {
        makeProgram();
        pasteboard->setContents(copiedBefore());
        (this->*journey.take)();
    }

    /// The calls that a journey makes where nothing fails.
    [[nodiscard]] std::map<std::string, int> callsOf(const Journey& journey) {
        begin(journey.settings);
        go(journey);
        queue.advance(patience);
        return plan.calls();
    }

    /// A text of ours stands there only if the user wants it, or knows of it.
    void expectUsersClipboard(const Journey& journey, const std::string& call) {
        const auto found = pasteboard->contents();
        const bool isEmptied = call == "Pasteboard::save" && found.items.empty();
        if (found.items == copiedBefore().items || isEmptied ||
            found.items == FaultyPasteboard::copiedMeanwhile().items)
            return;
        EXPECT_EQ(found.items, plainText(delegate->model().formattedOutput()).items);
        EXPECT_TRUE(journey.copies || wasTold());
    }

    /// Once nothing fails any more all of it works.
    void expectWorks(const std::string& failed) {
        right->setTyping(TypingRight::Granted);
        delegate->performAction(u"preferences"_s);
        EXPECT_TRUE(isShown(preferences()));
        expectToggles();
        if (!takingTheShortcut.contains(failed))
            expectShortcutWorks();
        queue.advance(patience);
        expectInserts();
    }

    void expectShortcutWorks() {
        ASSERT_NE(taps->tap(), nullptr);
        const auto chord = taps->tap()->watched.value_or(KeyChord{});
        EXPECT_EQ(taps->press({chord.keyCode, chord.flags}), TapVerdict::Swallow);
    }

    void expectToggles() {
        const auto isOut = [] {
            return isShown(panel()) || isShown(popover());
        };
        const bool before = isOut();
        delegate->togglePresentation();
        EXPECT_NE(isOut(), before);
        delegate->togglePresentation();
        EXPECT_EQ(isOut(), before);
    }

    void expectInserts() {
        workspace->setFront(browser);
        pasteboard->setContents(copiedBefore());
        log.clear();
        delegate->performAction(u"insert"_s);
        queue.advance(patience);
        EXPECT_THAT(calls(), Contains("paste"));
        EXPECT_EQ(pasteboard->contents(), copiedBefore());
    }

    /// The next change brings to the disk what a fault has kept from it, and nothing is lost there.
    void expectUsersSettings(const Journey& journey) {
        delegate->model().setShowInDock(!delegate->model().showInDock());
        queue.advance(1s);
        QFile file(settingsFile());
        ASSERT_TRUE(file.open(QFile::ReadOnly));
        const auto found = file.readAll();
        if (std::string_view(journey.settings) != usersSettings)
            return expectKept(journey.settings, found);
        const auto settings = QJsonDocument::fromJson(found).object();
        EXPECT_EQ(settings[u"of another version"_s], QJsonArray({1}));
        EXPECT_EQ(settings[u"favoriteTZs"_s], QJsonArray({u"Asia/Tokyo"_s, u"Europe/Paris"_s}));
        EXPECT_EQ(settings[u"showInDock"_s], delegate->model().showInDock());
    }

    /// What cannot be read is moved aside, or stays where it is.
    void expectKept(const QByteArray& written, const QByteArray& found) const {
        if (found == written)
            return;
        const auto aside = QDir(settingsFolder()).filePath(u"defaults.json.unreadable-1"_s);
        QFile file(aside);
        ASSERT_TRUE(file.open(QFile::ReadOnly));
        EXPECT_EQ(file.readAll(), written);
    }

    const RunningApplication browser{43, u"browser"_s};
};

TEST_F(SeamFaultTest, EveryCallOfASeamIsMadeOnSomeJourney) {
    auto missing = seamCalls();
    for (const auto& call : madeElsewhere)
        EXPECT_EQ(missing.erase(call), 1) << call << " is no call of a seam";
    std::set<std::string> unknown;
    const auto expected = missing;
    for (const auto& journey : all()) {
        for (const auto& [call, times] : callsOf(journey)) {
            missing.erase(call);
            if (!expected.contains(call))
                unknown.insert(call);
        }
    }
    EXPECT_THAT(missing, testing::IsEmpty());
    EXPECT_THAT(unknown, testing::IsEmpty());
}

class JourneyFaultTest : public SeamFaultTest,
                         public testing::WithParamInterface<Journeys::Journey> {
protected:
    /// Whether each single call fails in turn as well, which takes some minutes.
    [[nodiscard]] static bool failsEachTime() { return qEnvironmentVariableIsSet(thorough); }
};

TEST_P(JourneyFaultTest, EachCallMayFail) {
    for (const auto& [call, times] : callsOf(GetParam())) {
        travel(GetParam(), call, FaultPlan::always);
        for (int time = 0; failsEachTime() && time < times; ++time)
            travel(GetParam(), call, time);
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, JourneyFaultTest, testing::ValuesIn(Journeys::all()), [](const auto& journey) {
        return std::string(journey.param.name);
    });

} // namespace
} // namespace quorvane
