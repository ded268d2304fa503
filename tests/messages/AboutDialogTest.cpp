#include "support/Files.h"
#include "support/Gestures.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "VelmoVersion.h"
#include "messages/VelmoAboutDialog.h"

#include <QDate>
#include <QDesktopServices>
#include <QDir>
#include <QLabel>
#include <QScopeGuard>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

QStringList texts(const VelmoAboutDialog &dialog)
{
    QStringList texts;
    const auto *tabs = dialog.findChild<QTabWidget *>();
    for (int tab = 0; tab < tabs->count(); ++tab)
        texts << tabs->tabText(tab) + u": "_s + tabs->widget(tab)->findChild<QTextBrowser *>()->toPlainText();
    return texts;
}

} // namespace

class AboutDialogTest : public TestCase
{
    Q_OBJECT

public slots:
    void open(const QUrl &url) { m_opened << url.toString(); }

private slots:
    void tellsWhatTheApplicationIs()
    {
        QTemporaryDir folder;
        const QDir help(folder.path() + u"/help"_s);
        QVERIFY(help.mkpath(u"license.html"_s)); // a folder in the place of a file
        Files::write(help.filePath(u"about_credits.html"_s), "<b>J\xc3\xb6rg</b>");
        Files::write(help.filePath(u"gcpp.html"_s), "<meta charset=\"iso-8859-1\">J\xf6rg");
        VelmoAboutDialog dialog(nullptr, folder.path());
        Gestures::show(&dialog);
        QCOMPARE(texts(dialog),
                 QStringList({u"Credits: J\u00f6rg"_s, u"End-user terms: "_s, u"Third-party notices: J\u00f6rg"_s}));
        auto *tabs = dialog.findChild<QTabBar *>();
        const QPoint edge = tabs->tabRect(0).topLeft() + QPoint(20, 0);
        tabs->clearFocus();
        QVERIFY(Picture::colourAt(tabs, edge) != QColor(116, 211, 252));
        Gestures::focus(tabs);
        QCOMPARE(Picture::colourAt(tabs, edge), QColor(116, 211, 252)); // where the keyboard is
        QCOMPARE(dialog.findChild<QLabel *>(u"versionLabel"_s)->text(),
                 u"Version "_s + VelmoVersion::current().toString());
        const QString date = dialog.findChild<QLabel *>(u"dateLabel"_s)->text().section(u' ', -1);
        QVERIFY2(QDate::fromString(date, Qt::ISODate).isValid(), qPrintable(date));
        QVERIFY(dialog.windowTitle().endsWith(QGuiApplication::applicationDisplayName()));
    }

    void opensLinksInTheBrowserOnly_data()
    {
        QTest::addColumn<bool>("opens");
        for (const char *web : {"https://example.org/a?b=c#d", "HTTP://example.org/"})
            QTest::newRow(web) << true;
        for (const char *other : {"file:///bin/true", "license.html", "#place"})
            QTest::newRow(other) << false;
    }
    void opensLinksInTheBrowserOnly()
    {
        const QStringList schemes{u"http"_s, u"https"_s, u"file"_s, QString()};
        for (const QString &scheme : schemes)
            QDesktopServices::setUrlHandler(scheme, this, "open");
        const auto restore = qScopeGuard([&] {
            for (const QString &scheme : schemes)
                QDesktopServices::unsetUrlHandler(scheme);
        });
        const QByteArray address = QTest::currentDataTag();
        QTemporaryDir folder;
        Files::write(folder.filePath(u"help/about_credits.html"_s),
                     "<a href=\"" + address + "\">Link</a><img src=\"https://example.org/logo.png\">");
        Files::write(folder.filePath(u"help/license.html"_s), "Terms");

        VelmoAboutDialog dialog(nullptr, folder.path());
        Gestures::show(&dialog);
        auto *browser = dialog.findChild<QTextBrowser *>(u"creditsBrowser"_s);
        const QString before = browser->toPlainText();
        m_opened.clear();
        Gestures::focus(browser);
        QTest::keyClick(browser, Qt::Key_Tab); // to the link
        QTest::keyClick(browser, Qt::Key_Return);
        QFETCH(bool, opens);
        QCOMPARE(m_opened, opens ? QStringList(QUrl(QString::fromLatin1(address)).toString()) : QStringList());
        QCOMPARE(browser->toPlainText(), before);
    }

private:
    QStringList m_opened;
};

VELMO_TEST_MAIN(AboutDialogTest)
#include "AboutDialogTest.moc"
