#pragma once

#include <QDate>
#include <QHash>
#include <QString>
#include <QVector>
#include <optional>

class QBoxLayout;
class QCheckBox;
class QLabel;
class QWidget;

namespace quillon {

class Connection;

// Where a round's card is shown.  The screen colours the scores by par, carries tool tips and
// tells whether the round is excluded and how many holes it has; the page is black and white
// without those two, and writes a single blank into a sum of nothing, so that no earlier text
// remains beside its caption.
enum class CardFace { Screen, Page };

// The labels of one round as the details view shows it: the header, the statistics typed with
// the round, the two nines with their sums, and the numbers derived from the holes.  The same
// labels, named as the view's controls, serve the view and its printed page.
struct ScoreDetailsCard {
    CardFace face = CardFace::Screen;
    QHash<QString, QLabel *> values; // every value label by name
    QVector<QLabel *> score, putts;  // index 0 is hole 1
    QVector<QCheckBox *> fairway;
    QVector<std::optional<int>> pars; // of the course's rows, as the last fill read them

    // A value label by name; null when this face has none of that name.
    QLabel *value(const QString &name) const { return values.value(name); }
};

// Lays the card out in `into`: the header, the frame "Misc. Stats", the frames "Front Nine" and
// "Back Nine", and the two panels of derived numbers.
ScoreDetailsCard BuildScoreDetailsCard(QWidget *parent, QBoxLayout *into, CardFace face);

// Fills the card with the golfer's round named by its index and date, on the course and tees of
// the card's `lblCourse` and `lblTees`: the course's pars (and on the screen the hole tips), the
// round's summary, the holes and their sums.  Returns false when the round has no hole rows: the
// card then stays blank and its derived numbers are not computed.
bool FillScoreDetailsCard(ScoreDetailsCard &card, Connection &c, const QString &last, const QString &first,
                          const QDate &date, qint64 scoreIndex);

// The numbers derived from the holes now on the card, into their labels.
void ShowRoundStatistics(ScoreDetailsCard &card);

} // namespace quillon
