#pragma once

#include "EngineDoubles.h"
#include "Fixtures.h"
#include "RecordRow.h"
#include "TestApp.h"

#include <QStringList>
#include <gtest/gtest.h>
#include <map>

namespace quillon::test {

// A fresh database with the frame and the gender dialog replaced by fakes,
// and "Palmer, Arnold" (a man, no handicap yet) as the current golfer.
class HandicapRulesTest : public ::testing::Test {
protected:
    HandicapRulesTest();

    Connection &db() { return app.db(); }

    // Make a golfer current as choosing him does: names, and his held score log and handicap row.
    void choose(const QString &last, const QString &first);

    // A round of the current golfer.
    RoundSpec round(const QDate &date, double differential, const QString &holes = QStringLiteral("18-holes"),
                    const QString &type = QStringLiteral("A")) const;
    qint64 add(const RoundSpec &r) { return addRound(db(), r); }
    // 18-hole rounds on consecutive days from `first`, one per differential; their ScoreIndex in order.
    QVector<qint64> addEighteens(const QDate &first, const QVector<double> &differentials);

    // What a record row must hold for an 18-hole round and for a combined pair
    // (older: the round the walk stands on; partner: the one found for it).
    static RecordRow eighteenRow(const RoundSpec &r, qint64 index, const QString &used = QStringLiteral("N"));
    static RecordRow combinedRow(const RoundSpec &older, qint64 olderIndex, const RoundSpec &partner,
                                 qint64 partnerIndex, const QString &used = QStringLiteral("N"));

    QVector<RecordRow> record() { return ReadScoringRecord(db(), last, first); }
    LogMark mark(qint64 index) { return ReadLogMark(db(), index); }
    QVariant storedHandicap();
    QVariant storedGender();
    // Used of the golfer's ScoreLog rows, in ScoreIndex order.
    QStringList usedColumn();
    // Used and CombinedIndex of every round of a golfer, by ScoreIndex.
    std::map<qint64, LogMark> marksOf(const QString &lastName, const QString &firstName);
    // Every other column of a golfer's rounds, which a run must leave alone.
    QStringList roundsApartFromMarks(const QString &lastName, const QString &firstName);

    // The handicap as the database, the panel and the calculator item show it.
    void expectNoHandicap();
    void expectHandicap(double stored, const QString &panel);
    // Exactly one message box since the last look, with this text, icon and the application's title.
    void expectOneMessage(const QString &text, MsgIcon icon);

    TestApp app;
    RecordingHandicapDisplay display;
    ScriptedGenderQuestion gender;
    QString last = QStringLiteral("Palmer");
    QString first = QStringLiteral("Arnold");
};

} // namespace quillon::test
