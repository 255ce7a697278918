// SPDX-License-Identifier: MIT
#pragma once

#include "FaultFixture.h"

#include <ostream>
#include <span>

namespace quorvane {

/// What a user does from the program's start on. A step that a fault has made impossible, because
/// what it would press does not show, is left out.
class Journeys : public FaultFixture {
public:
    struct Journey {
        const char* name; ///< an identifier
        void (Journeys::*take)();
        bool copies = false; ///< the user wants a text on the clipboard for good
        bool ends = false;   ///< the program is on its way out afterwards
        const char* settings = usersSettings;

        /// For readable failures.
        friend void PrintTo(const Journey& journey, std::ostream* out) { *out << journey.name; }
    };

    [[nodiscard]] static std::span<const Journey> all();

protected:
    /// Of a user who has favourites, and a program of another version.
    static constexpr const char* usersSettings =
        R"({"favoriteTZs": ["Asia/Tokyo", "Europe/Paris"], "of another version": [1]})";

    /// What the user had copied before the journey.
    [[nodiscard]] static PasteboardContents copiedBefore();

    /// Whether a text of ours that stands on the clipboard was announced.
    [[nodiscard]] bool wasTold() const { return m_wasTold; }

    /// The user works here.
    static inline const RunningApplication editor{42, QStringLiteral("editor")};

private:
    void showAndHide();
    void insert();
    void insertIntoATerminal();
    void insertTwice();
    void copy();
    void pickAZone();
    void pasteIntoAField();
    void changePreferences();
    void recordAShortcut();
    void useADesktopsListOfShortcuts();
    void allowTyping();
    void startWithTheSession();
    void useTheIcon();
    void lookForUpdates();
    void changeTheDesktop();
    void moveThePanel();
    void quitInTheMiddle();
    void startOnBrokenSettings();

    void startAndHide();
    void deliver(const QString& action);
    void pass(Seconds span);

    bool m_wasTold = false;
};

} // namespace quorvane
