#include "frmAbout.h"

#include "ui/DialogPlacement.h"
#include "ui/FormInstance.h"

#include "ApplicationIcon.h"
#include "SystemInformation.h"
#include "frmSysInfo.h"
#include "platform/Platform.h"

#include <QCoreApplication>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

namespace {

QLabel *namedLabel(const QString &name, const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

frmAbout::frmAbout(QWidget *parent) : QDialog(parent), m_sysInfoSource(SystemInformationText)
{
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("About Quillon for Golf"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setModal(true);

    m_picIcon = new QLabel(this);
    m_picIcon->setObjectName(QStringLiteral("picIcon"));
    m_picIcon->setPixmap(ApplicationIcon().pixmap(64, 64));
    m_picIcon->setAlignment(Qt::AlignTop | Qt::AlignHCenter);

    m_lblTitle = namedLabel(QStringLiteral("lblTitle"), appTitle() + QChar(0x2122), this);
    QFont titleFont = m_lblTitle->font();
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.6);
    titleFont.setBold(true);
    m_lblTitle->setFont(titleFont);

    m_lblVersion = namedLabel(QStringLiteral("lblVersion"), VersionText(), this);

    m_lblDescription = namedLabel(
        QStringLiteral("lblDescription"),
        QStringLiteral(
            "Keeps golfers' rounds and courses, and from the rounds each golfer's handicap index."),
        this);

    auto *line = new QFrame(this);
    line->setObjectName(QStringLiteral("Line1"));
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);

    m_lblDisclaimer = namedLabel(
        QStringLiteral("lblDisclaimer"),
        QStringLiteral("The handicap index is computed by the method of the USGA Handicap System, but it is "
                       "not an official USGA Handicap Index.  Only a golf club authorized by a golf "
                       "association can issue one."),
        this);
    m_lblCopyright = namedLabel(
        QStringLiteral("lblCopyright"),
        QStringLiteral("Copyright \u00a9 the makers of Quillon for Golf.  All rights reserved."), this);

    m_cmdOK = new QPushButton(QStringLiteral("OK"), this);
    m_cmdOK->setObjectName(QStringLiteral("cmdOK"));
    m_cmdOK->setDefault(true);
    m_cmdOK->setAutoDefault(true);
    connect(m_cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    m_cmdSysInfo = new QPushButton(QStringLiteral("&System Info..."), this);
    m_cmdSysInfo->setObjectName(QStringLiteral("cmdSysInfo"));
    m_cmdSysInfo->setAutoDefault(false);
    connect(m_cmdSysInfo, &QPushButton::clicked, this, &frmAbout::StartSysInfo);

    auto *text = new QVBoxLayout;
    text->addWidget(m_lblTitle);
    text->addWidget(m_lblVersion);
    text->addSpacing(6);
    text->addWidget(m_lblDescription);

    auto *head = new QHBoxLayout;
    head->addWidget(m_picIcon, 0, Qt::AlignTop);
    head->addSpacing(8);
    head->addLayout(text, 1);

    auto *buttons = new QVBoxLayout;
    buttons->addWidget(m_cmdOK);
    buttons->addWidget(m_cmdSysInfo);
    buttons->addStretch();

    auto *notices = new QVBoxLayout;
    notices->addWidget(m_lblDisclaimer);
    notices->addWidget(m_lblCopyright);
    notices->addStretch();

    auto *foot = new QHBoxLayout;
    foot->addLayout(notices, 1);
    foot->addSpacing(12);
    foot->addLayout(buttons);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(head);
    layout->addSpacing(4);
    layout->addWidget(line);
    layout->addSpacing(4);
    layout->addLayout(foot);

    // The labels wrap: give the box a width to wrap them in and let the height follow.
    for (QLabel *label : {m_lblDescription, m_lblDisclaimer, m_lblCopyright})
        label->setMinimumWidth(320);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

frmAbout &frmAbout::instance()
{
    return FormInstance<frmAbout>::get();
}

void frmAbout::ShowAbout()
{
    ensurePolished();
    layout()->activate();
    centreOnFrame();
    m_cmdOK->setFocus();
    exec();
}

void frmAbout::StartSysInfo()
{
    const QString text = m_sysInfoSource ? m_sysInfoSource() : QString();
    if (text.trimmed().isEmpty()) {
        platform().messageBox(QStringLiteral("System information is unavailable at this time."),
                              MsgIcon::Critical, appTitle());
        return;
    }
    frmSysInfo dialog(text, this);
    dialog.exec();
}

void frmAbout::setSysInfoSource(std::function<QString()> source)
{
    m_sysInfoSource = std::move(source);
}

void frmAbout::centreOnFrame()
{
    CentreOnFrame(*this);
}

} // namespace quillon
