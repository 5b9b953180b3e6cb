#pragma once

#include <QRect>
#include <QWidget>
#include <array>

class QLabel;

namespace quillon {

struct ScorecardData;

// The scorecard as a page: a form that is never shown.  Its captions and lines stand where a
// paper card has them, at fixed places measured in twips; its labels take the values of one
// course and tees, or stay blank for a generic card.
class frmScorecard : public QWidget {
    Q_OBJECT
public:
    // The fixed scale of the card: so many twips to a pixel of the form.
    static constexpr int kTwipsPerPixel = 15;
    // The card's white area, in twips.
    static constexpr int kWidthTwips = 11880;
    static constexpr int kHeightTwips = 7050;
    // A rectangle given in twips, in pixels of the form.
    static QRect twips(int left, int top, int width, int height);

    explicit frmScorecard(QWidget *parent = nullptr);

    // Put a course's values on the card.
    void Fill(const ScorecardData &card);

private:
    QLabel *m_lblCourse = nullptr;
    QLabel *m_lblTees = nullptr;
    QLabel *m_lblFrontRating = nullptr;
    QLabel *m_lblBackRating = nullptr;
    QLabel *m_lblOverallRating = nullptr;
    QLabel *m_lblOutDistance = nullptr;
    QLabel *m_lblInDistance = nullptr;
    QLabel *m_lblTotalDistance = nullptr;
    QLabel *m_lblOutPar = nullptr;
    QLabel *m_lblInPar = nullptr;
    QLabel *m_lblTotalPar = nullptr;
    // By hole number, 1 to 18; index 0 is never used.
    std::array<QLabel *, 19> m_lblDistance{}, m_lblPar{}, m_lblHandicap{}, m_lblFairway{};
};

} // namespace quillon
