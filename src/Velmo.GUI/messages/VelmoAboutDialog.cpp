#include "messages/VelmoAboutDialog.h"

#include "VelmoVersion.h"
#include "foundation/FocusRing.h"

#include "ui_VelmoAboutDialog.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QStringDecoder>
#include <QTabBar>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 longestPage = qint64(4) * 1024 * 1024;

QString nameSheet()
{
    return u"QLabel { color:rgb(219,219,219); font-family:Inter; font-size:20px; font-weight:600; }"_s;
}

QString factSheet()
{
    return u"QLabel { color:rgb(156,156,156); font-family:Inter; font-size:11px; }"_s;
}

QString pageSheet()
{
    return u"QTextBrowser { color:rgb(219,219,219); background-color:rgb(59,59,59); border:0px; padding:10px; }"_s;
}

/// Of the text inside the page: the default blue can hardly be read on the dark ground.
QString noticeLinkSheet()
{
    return u"a { color:rgb(116, 211, 252); }"_s;
}

QString readPage(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.read(longestPage);
    QStringDecoder decoder = QStringDecoder::decoderForHtml(bytes);
    if (!decoder.isValid())
        decoder = QStringDecoder(QStringDecoder::Utf8);
    return decoder.decode(bytes);
}

} // namespace

VelmoAboutDialog::VelmoAboutDialog(QWidget *parent, const QString &folder)
    : oVIXDialog(false, false, false, parent, nullptr), m_ui(new Ui::VelmoAboutDialog)
{
    m_ui->setupUi(this);
    const QString name = QGuiApplication::applicationDisplayName();
    setupTitle(tr("ABOUT"), name);
    setWindowTitle(tr("About %1").arg(name));
    setAccessibleName(windowTitle());
    setDragEnabled(true);

    m_ui->logo->setFilename(u":/Design/Logo"_s);
    m_ui->nameLabel->setText(name);
    m_ui->nameLabel->setStyleSheet(nameSheet());
    m_ui->versionLabel->setText(tr("Version %1").arg(VelmoVersion::current().toString()));
    m_ui->versionLabel->setStyleSheet(factSheet());
    m_ui->dateLabel->setText(tr("Built on %1").arg(QStringLiteral(VELMO_BUILD_DATE)));
    m_ui->dateLabel->setStyleSheet(factSheet());

    new FocusRing(m_ui->tabs->tabBar());

    const QDir help((folder.isEmpty() ? QCoreApplication::applicationDirPath() : folder) + u"/help"_s);
    showPage(m_ui->creditsBrowser, help.filePath(u"about_credits.html"_s));
    showPage(m_ui->termsBrowser, help.filePath(u"license.html"_s));
    showPage(m_ui->noticesBrowser, help.filePath(u"gcpp.html"_s));
}

VelmoAboutDialog::~VelmoAboutDialog() = default;

void VelmoAboutDialog::showPage(QTextBrowser *browser, const QString &path)
{
    browser->setStyleSheet(pageSheet());
    browser->document()->setDefaultStyleSheet(noticeLinkSheet());
    browser->setHtml(readPage(path));
    connect(browser, &QTextBrowser::anchorClicked, this, &VelmoAboutDialog::openLink);
}

void VelmoAboutDialog::openLink(const QUrl &url)
{
    if (url.scheme() == "http"_L1 || url.scheme() == "https"_L1)
        QDesktopServices::openUrl(url);
}
