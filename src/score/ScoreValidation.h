#pragma once

#include "ScoreEntry.h"

#include <QString>
#include <functional>
#include <optional>

namespace quillon {

// An OK/Cancel question about a total the program calculated; true for OK.
using TotalQuestion = std::function<bool(const QString &question)>;
// The Yes/No question of the home course rule; true for Yes.
using HomeQuestion = std::function<bool(const QString &question)>;

// What the check of a score came to.
struct ScoreCheck {
    // Empty: the score may be saved; "Cancelled": the user cancelled at a total question;
    // anything else the message to show.
    QString message;
    QString focus; // the control that takes the focus with the message; empty: none
    bool detailsEntered = false;
    // Totals the user accepted from the program, to be written back into their boxes.
    std::optional<QString> out, in, totalScore;
    // A type the home course rule changed the round to.
    std::optional<int> type;
    // The home course rule was answered Yes: the course becomes the golfer's home course now.
    bool storeHomeCourse = false;
    bool passed() const { return message.isEmpty(); }
};

inline QString CancelledCheck()
{
    return QStringLiteral("Cancelled");
}

// The checks that stand before saving a score, in their fixed order.  `home` is the home course
// the rule of Home and Away rounds compares with; the form hands it a text that nothing fills,
// so that rule never fails (kept so).  Totals are read as plain numbers, an empty box as 0.
ScoreCheck ValidateScore(const ScoreEntry &entry, const QString &home, const TotalQuestion &askTotal,
                         const HomeQuestion &askHome);

// The rule of Home and Away rounds against a home course; empty when it passes.
ScoreCheck HomeAwayRule(const ScoreEntry &entry, const QString &home, const HomeQuestion &ask);

} // namespace quillon
