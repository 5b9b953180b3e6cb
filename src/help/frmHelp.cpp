#include "frmHelp.h"

#include "ui/FormInstance.h"

#include "ApplicationIcon.h"
#include "platform/Platform.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QStyle>
#include <QTextBrowser>
#include <QToolBar>

namespace quillon {

namespace {

const QString kContentsPage = QStringLiteral("index.html");

QString windowTitleFor(const QString &pageTitle)
{
    const QString base = QStringLiteral("Quillon for Golf Help");
    if (pageTitle.isEmpty() || pageTitle == base)
        return base;
    return base + QStringLiteral(" - ") + pageTitle;
}

} // namespace

frmHelp::frmHelp(QWidget *parent) : QMainWindow(parent)
{
    setObjectName(QStringLiteral("frmHelp"));
    setWindowTitle(windowTitleFor(QString()));
    setWindowIcon(ApplicationIcon());
    // Reading help must not keep the program running once the main window is closed.
    setAttribute(Qt::WA_QuitOnClose, false);

    m_txtHelp = new QTextBrowser(this);
    m_txtHelp->setObjectName(QStringLiteral("txtHelp"));
    // Links are followed here, so that a page that is not there gets a page saying so
    // instead of an empty window.
    m_txtHelp->setOpenLinks(false);
    m_txtHelp->setOpenExternalLinks(false);
    connect(m_txtHelp, &QTextBrowser::anchorClicked, this, &frmHelp::followLink);
    connect(m_txtHelp, &QTextBrowser::sourceChanged, this, &frmHelp::updateTitle);
    setCentralWidget(m_txtHelp);

    auto *toolbar = new QToolBar(QStringLiteral("Navigation"), this);
    toolbar->setObjectName(QStringLiteral("tbrHelp"));
    toolbar->setMovable(false);
    toolbar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    addToolBar(toolbar);

    m_cmdContents =
        toolbar->addAction(style()->standardIcon(QStyle::SP_DirHomeIcon), QStringLiteral("&Contents"));
    m_cmdContents->setObjectName(QStringLiteral("cmdContents"));
    m_cmdContents->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Home));
    connect(m_cmdContents, &QAction::triggered, this, &frmHelp::showContents);

    m_cmdBack = toolbar->addAction(style()->standardIcon(QStyle::SP_ArrowBack), QStringLiteral("&Back"));
    m_cmdBack->setObjectName(QStringLiteral("cmdBack"));
    m_cmdBack->setShortcut(QKeySequence::Back);
    m_cmdBack->setEnabled(false);
    connect(m_cmdBack, &QAction::triggered, m_txtHelp, &QTextBrowser::backward);
    connect(m_txtHelp, &QTextBrowser::backwardAvailable, m_cmdBack, &QAction::setEnabled);

    m_cmdForward =
        toolbar->addAction(style()->standardIcon(QStyle::SP_ArrowForward), QStringLiteral("&Forward"));
    m_cmdForward->setObjectName(QStringLiteral("cmdForward"));
    m_cmdForward->setShortcut(QKeySequence::Forward);
    m_cmdForward->setEnabled(false);
    connect(m_cmdForward, &QAction::triggered, m_txtHelp, &QTextBrowser::forward);
    connect(m_txtHelp, &QTextBrowser::forwardAvailable, m_cmdForward, &QAction::setEnabled);

    auto *close = new QAction(QStringLiteral("Close"), this);
    close->setObjectName(QStringLiteral("cmdClose"));
    close->setShortcut(QKeySequence(Qt::Key_Escape));
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);

    resize(780, 640);
}

frmHelp &frmHelp::instance()
{
    return FormInstance<frmHelp>::get();
}

QString frmHelp::helpFolder()
{
    if (platformInstalled())
        return appFile(QStringLiteral("help"));
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("help"));
}

QUrl frmHelp::anchorUrl(const QString &anchor)
{
    const QString trimmed = anchor.trimmed();
    const qsizetype hash = trimmed.indexOf(QLatin1Char('#'));
    // Only a page name counts: a help anchor never leads out of the help folder.
    QString page = QFileInfo(hash < 0 ? trimmed : trimmed.left(hash)).fileName();
    const QString place = hash < 0 ? QString() : trimmed.mid(hash + 1);
    if (page.isEmpty())
        page = kContentsPage;
    else if (!page.endsWith(QLatin1String(".html"), Qt::CaseInsensitive))
        page += QStringLiteral(".html");

    QUrl url = QUrl::fromLocalFile(QDir(helpFolder()).filePath(page));
    if (!place.isEmpty())
        url.setFragment(place);
    return url;
}

void frmHelp::ShowHelp(const QString &anchor)
{
    go(anchorUrl(anchor));
    if (isMinimized())
        showNormal();
    else
        show();
    raise();
    activateWindow();
}

void frmHelp::showContents()
{
    go(anchorUrl(QString()));
}

void frmHelp::go(const QUrl &url)
{
    const QString folder = helpFolder();
    if (!QFileInfo::exists(QDir(folder).filePath(kContentsPage))) {
        showMissing(QStringLiteral("The help files were not found in the folder %1.")
                        .arg(QDir::toNativeSeparators(folder)));
        return;
    }
    if (!QFileInfo(url.toLocalFile()).isFile()) {
        showMissing(QStringLiteral("The help page %1 was not found in the folder %2.")
                        .arg(QFileInfo(url.toLocalFile()).fileName(), QDir::toNativeSeparators(folder)));
        return;
    }
    m_txtHelp->setSource(url, QTextDocument::HtmlResource);
}

void frmHelp::followLink(const QUrl &link)
{
    const QUrl target = m_txtHelp->source().resolved(link);
    // The help has no pages on the web; an outside link is not followed.
    if (!target.isLocalFile())
        return;
    go(target);
}

void frmHelp::showMissing(const QString &what)
{
    m_txtHelp->clearHistory();
    m_txtHelp->setHtml(
        QStringLiteral("<html><head><title>Help not found</title></head><body style=\"margin: 10px 16px\">"
                       "<h2>Help not found</h2><p>%1</p>"
                       "<p>Install Quillon for Golf again to put the help files back beside the program. "
                       "Everything else in the program works without them.</p></body></html>")
            .arg(what.toHtmlEscaped()));
    updateTitle();
}

void frmHelp::updateTitle()
{
    setWindowTitle(windowTitleFor(m_txtHelp->documentTitle()));
}

} // namespace quillon
