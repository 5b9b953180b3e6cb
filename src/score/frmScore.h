#pragma once

#include "ScoreEntry.h"
#include "ScoreGrid.h"
#include "ui/EntryForm.h"

#include <QDate>
#include <QHash>
#include <QVector>

class QCalendarWidget;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QHBoxLayout;
class QVBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace quillon {

class BoxArray;

// The form on which a round is entered (new mode) or changed (edit mode): course, tees, date,
// holes, type, the optional statistics, and the hole grid of score, putts and fairway.
class frmScore : public EntryForm {
    Q_OBJECT
public:
    explicit frmScore(QWidget *parent = nullptr);
    static frmScore &instance();
    static frmScore *existing();

    void NewScore();
    void EditScore(const QString &courseName, const QString &tees, const QDate &scoreDate, qint64 scoreIndex);
    void FormActivate() override;

    QString CourseName() const;
    QString Tees() const;
    QString ScoreDate() const;
    bool editMode() const { return m_editMode; }

    // The form's texts as the rules read them.
    ScoreEntry entry() const;
    void cmdSave_Click();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    QString helpAnchor() const override;

private:
    void buildHeader(QVBoxLayout *layout);
    void buildStatistics(QHBoxLayout *row);
    void buildGrid(QVBoxLayout *layout);
    QGroupBox *buildNine(int first);
    void courseChosen();
    void teesChosen();
    void holesChosen();
    void ClearScoreEntries();
    void EnableScoreDetails(bool enabled);
    void ArrangeScoreGrid(const QString &holes);
    void SetFairwayBoxes(const QString &course, const QString &tees);
    void setNineEnabled(int first, bool enabled);
    void scoreTyped(int index);
    void nineTotalTyped();
    void totalTyped();
    void puttsTyped(int index);
    void statTyped(StatBox box);
    // The hole check of a box being left: its message, the box emptied and given the focus again.
    void refuseHoleBox(BoxArray *boxes, int index, const QString &message);
    void UpdateSaveButton();
    void showCalendar();
    QLineEdit *statBox(StatBox box) const;

    bool m_editMode = false;
    qint64 m_scoreIndex = 0;
    QDate m_scoreDate;
    bool m_leaving = false; // a leave check is showing its message

    QComboBox *m_cboCourses = nullptr;
    QLabel *m_lblCourse = nullptr;
    QComboBox *m_cboTees = nullptr;
    QLabel *m_lblTees = nullptr;
    QLineEdit *m_txtDate = nullptr;
    QLabel *m_lblDate = nullptr;
    QPushButton *m_cmdCalendar = nullptr;
    QCalendarWidget *m_calendar = nullptr;
    QComboBox *m_cboHoles = nullptr;
    QLabel *m_lblHoles = nullptr;
    QVector<QRadioButton *> m_optType;
    QCheckBox *m_chkExclude = nullptr;
    QLineEdit *m_txtTotalScore = nullptr;
    QLabel *m_lblTotalScoreCaption = nullptr;
    QHash<StatBox, QLineEdit *> m_stats;

    QGroupBox *m_fraScoreDetails = nullptr;
    QGroupBox *m_fraFrontNine = nullptr;
    QGroupBox *m_fraBackNine = nullptr;
    BoxArray *m_txtScore = nullptr;
    BoxArray *m_txtPutts = nullptr;
    QVector<QCheckBox *> m_chkFairway;
    QVector<QLabel *> m_lblHoleCaption;
    QVector<QLabel *> m_lblDetailsCaption;
    QLineEdit *m_txtOut = nullptr;
    QLineEdit *m_txtIn = nullptr;
    QLineEdit *m_txtTotal = nullptr;
    QLabel *m_lblOutPutts = nullptr;
    QLabel *m_lblInPutts = nullptr;
    QLabel *m_lblTotalPutts = nullptr;
    QLabel *m_lblOutCaption = nullptr;
    QLabel *m_lblInCaption = nullptr;
    QLabel *m_lblTotalCaption = nullptr;

    QVector<QWidget *> m_tabOrder;
};

} // namespace quillon
