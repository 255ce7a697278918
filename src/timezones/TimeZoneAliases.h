// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <QString>

#include <array>
#include <optional>
#include <set>

namespace quorvane {

/// Names that people search for and that the time zone database does not have: cities that share
/// the zone of a larger one, and their short forms.
struct TimeZoneAliases {
    struct Alias {
        QLatin1StringView name; ///< in lower case
        QLatin1StringView identifier;
    };

    static constexpr std::array map{
        Alias{QLatin1StringView("washington"), QLatin1StringView("America/New_York")},
        Alias{QLatin1StringView("washington dc"), QLatin1StringView("America/New_York")},
        Alias{QLatin1StringView("dc"), QLatin1StringView("America/New_York")},
        Alias{QLatin1StringView("boston"), QLatin1StringView("America/New_York")},
        Alias{QLatin1StringView("philadelphia"), QLatin1StringView("America/New_York")},
        Alias{QLatin1StringView("miami"), QLatin1StringView("America/New_York")},
        Alias{QLatin1StringView("atlanta"), QLatin1StringView("America/New_York")},
        Alias{QLatin1StringView("nyc"), QLatin1StringView("America/New_York")},
        Alias{QLatin1StringView("seattle"), QLatin1StringView("America/Los_Angeles")},
        Alias{QLatin1StringView("san francisco"), QLatin1StringView("America/Los_Angeles")},
        Alias{QLatin1StringView("sf"), QLatin1StringView("America/Los_Angeles")},
        Alias{QLatin1StringView("san diego"), QLatin1StringView("America/Los_Angeles")},
        Alias{QLatin1StringView("portland"), QLatin1StringView("America/Los_Angeles")},
        Alias{QLatin1StringView("las vegas"), QLatin1StringView("America/Los_Angeles")},
        Alias{QLatin1StringView("vegas"), QLatin1StringView("America/Los_Angeles")},
        Alias{QLatin1StringView("la"), QLatin1StringView("America/Los_Angeles")},
        Alias{QLatin1StringView("dallas"), QLatin1StringView("America/Chicago")},
        Alias{QLatin1StringView("houston"), QLatin1StringView("America/Chicago")},
        Alias{QLatin1StringView("austin"), QLatin1StringView("America/Chicago")},
        Alias{QLatin1StringView("london uk"), QLatin1StringView("Europe/London")},
        Alias{QLatin1StringView("paris france"), QLatin1StringView("Europe/Paris")},
        Alias{QLatin1StringView("frankfurt"), QLatin1StringView("Europe/Berlin")},
        Alias{QLatin1StringView("munich"), QLatin1StringView("Europe/Berlin")},
        Alias{QLatin1StringView("milan"), QLatin1StringView("Europe/Rome")},
        Alias{QLatin1StringView("beijing"), QLatin1StringView("Asia/Shanghai")},
        Alias{QLatin1StringView("shenzhen"), QLatin1StringView("Asia/Shanghai")},
        Alias{QLatin1StringView("mumbai"), QLatin1StringView("Asia/Kolkata")},
        Alias{QLatin1StringView("delhi"), QLatin1StringView("Asia/Kolkata")},
        Alias{QLatin1StringView("bangalore"), QLatin1StringView("Asia/Kolkata")},
        Alias{QLatin1StringView("bengaluru"), QLatin1StringView("Asia/Kolkata")},
    };

    /// The zones of all aliases that contain `query`, which is trimmed and in lower case already.
    [[nodiscard]] static std::set<QString> identifiersMatching(const QString& query);

    /// The alias by which such a query finds the zone, as one writes it: "Boston", "NYC". The one
    /// that is the query, else one that begins with it; none if no alias contains it.
    [[nodiscard]] static std::optional<QString>
    nameMatching(const QString& query, const QString& identifier);
};

} // namespace quorvane
