#include "frmGender.h"

#include "ui/DialogPlacement.h"
#include "ui/FormInstance.h"

#include <QCoreApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quillon {

frmGender::frmGender(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmGender"));
    setWindowTitle(QStringLiteral("Gender"));
    // A question without a help button: the only way on is an answer.
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    m_lblInstructions = new QLabel(this);
    m_lblInstructions->setObjectName(QStringLiteral("lblInstructions"));
    m_lblInstructions->setWordWrap(true);
    m_lblInstructions->setMinimumWidth(300);

    m_frame1 = new QGroupBox(QStringLiteral("Gender"), this);
    m_frame1->setObjectName(QStringLiteral("Frame1"));
    m_optFemale = new QRadioButton(QStringLiteral("&Female"), m_frame1);
    m_optFemale->setObjectName(QStringLiteral("optFemale"));
    m_optMale = new QRadioButton(QStringLiteral("&Male"), m_frame1);
    m_optMale->setObjectName(QStringLiteral("optMale"));
    auto *options = new QHBoxLayout(m_frame1);
    options->addWidget(m_optFemale);
    options->addWidget(m_optMale);
    options->addStretch();

    m_cmdOK = new QPushButton(QStringLiteral("&OK"), this);
    m_cmdOK->setObjectName(QStringLiteral("cmdOK"));
    m_cmdOK->setDefault(true);
    connect(m_cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_cmdOK);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_lblInstructions);
    layout->addWidget(m_frame1);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

frmGender &frmGender::instance()
{
    return FormInstance<frmGender>::get();
}

QString frmGender::GetGender(const QString &first, const QString &last)
{
    m_lblInstructions->setText(
        QStringLiteral("Please indicate the gender of golfer %1 %2.  This information is "
                       "needed for the handicap calculations.")
            .arg(first, last));
    clearOptions();
    // Take the size the new text needs before measuring where to stand.
    ensurePolished();
    layout()->activate();
    CentreOnFrame(*this);
    // Escape and the close box end the dialog as well; the answer is then taken as it stands.
    exec();
    return m_optFemale->isChecked() ? QStringLiteral("F") : QStringLiteral("M");
}

void frmGender::clearOptions()
{
    // Exclusive buttons refuse to be unchecked while exclusive.
    for (QRadioButton *option : {m_optFemale, m_optMale}) {
        option->setAutoExclusive(false);
        option->setChecked(false);
        option->setAutoExclusive(true);
    }
}

} // namespace quillon
