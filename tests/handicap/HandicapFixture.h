#pragma once

#include "EngineDoubles.h"
#include "Fixtures.h"
#include "TestApp.h"
#include "TestPrinting.h"

#include <gtest/gtest.h>
#include <memory>

namespace quillon::test {

// A fresh database with the golfer Arnold Palmer current, the panel recorded
// and the gender question answered "M" unless a test says otherwise.
class HandicapFixture : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    Connection &db() { return m_app->db(); }
    ScriptedPlatform &platform() { return m_app->platform(); }
    TestApp &app() { return *m_app; }

    // A round of the current golfer on day `day` of 2026 (1 = January 1st).
    qint64 addRoundOn(int day, double differential, const QString &holes = QStringLiteral("18-holes"),
                      const QString &type = QStringLiteral("A"), const QString &used = QStringLiteral("N"));
    static QDate dayOf(int day) { return QDate(2026, 1, 1).addDays(day - 1); }

    // The golfer's record, by Date and ScoreIndex: every column, "|"-joined.
    QStringList record();
    // ScoreIndex|Used|CombinedIndex of every ScoreLog row (all golfers), by ScoreIndex.
    QStringList marks();
    QVariant storedHandicap();
    QVariant storedGender();

    RoundSpec spec; // the defaults of addRoundOn
    RecordingHandicapDisplay display;
    ScriptedGenderQuestion gender{QStringLiteral("M")};

private:
    std::unique_ptr<TestApp> m_app;
};

} // namespace quillon::test
