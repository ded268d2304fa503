#include "support/Files.h"
#include "support/Gestures.h"
#include "support/TestCase.h"

#include "messages/LinkLabel.h"
#include "messages/oVIXDialogModalBase.h"

#include <QAccessible>
#include <QDesktopServices>
#include <QFile>
#include <QPushButton>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

struct Dialog : oVIXDialogModalBase
{
    Dialog() : oVIXDialogModalBase(nullptr) { }
    using oVIXDialogModalBase::disableCloseButton;
    using oVIXDialogModalBase::enableCloseButton;
    using oVIXDialogModalBase::enableExitButton;

    QPushButton *close = findChild<QPushButton *>(u"closeButton"_s);
    QPushButton *exit = findChild<QPushButton *>(u"exitButton"_s);
    int exits = 0;

protected:
    void onExitButtonClicked() override { ++exits; }
};

} // namespace

class ModalDialogTest : public TestCase
{
    Q_OBJECT

public slots:
    void open(const QUrl &url) { m_opened << url.toString(); }

private slots:
    void endsByItsButtons()
    {
        Dialog dialog;
        auto *page = new QLabel(u"Page"_s);
        dialog.addWidget(nullptr);
        dialog.addWidget(page);
        Gestures::show(&dialog);
        QVERIFY(dialog.isModal() && page->isVisible());
        QVERIFY(!dialog.close->isVisible() && !dialog.exit->isVisible());
        dialog.enableExitButton(true);
        dialog.enableCloseButton(true);
        dialog.disableCloseButton(true);
        QVERIFY(!dialog.close->isVisible());
        dialog.enableCloseButton(true);
        QCOMPARE(dialog.close->text(), u"CLOSE WINDOW"_s);
        QCOMPARE(dialog.exit->text(), u"EXIT VELMO"_s);

        dialog.exit->click();
        QCOMPARE(dialog.exits, 1);
        QSignalSpy rejected(&dialog, &QDialog::rejected);
        dialog.setCloseEnabled(false);
        dialog.close->click();
        QCOMPARE(rejected.size(), 0);
        dialog.setCloseEnabled(true);
        dialog.close->click();
        QCOMPARE(rejected.size(), 1);
    }

    void scalesPicturesToTheWidth_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("limits");
        QTest::addColumn<QSize>("scaled");
        QTest::newRow("large") << QSize(1000, 1000) << QSize(250, 100) << QSize(250, 250);
        QTest::newRow("small") << QSize(100, 300) << QSize(250, 100) << QSize(100, 300);
        QTest::newRow("wide") << QSize(500, 100) << QSize(250, 10) << QSize(250, 50);
        QTest::newRow("no room") << QSize(500, 100) << QSize(0, 10) << QSize(0, 0);
        QTest::newRow("none") << QSize(0, 0) << QSize(250, 10) << QSize(0, 0);
    }
    void scalesPicturesToTheWidth()
    {
        QFETCH(QSize, size);
        QFETCH(QSize, limits);
        QPixmap pixmap(size);
        QTEST(oVIXDialogModalBase::scaleImg(pixmap, limits.width(), limits.height()).size(), "scaled");
    }

    void showsALogo()
    {
        QTemporaryDir folder;
        QImage picture(1000, 1000, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(picture.save(folder.filePath(u"logo.png"_s)));
        Dialog dialog;
        auto *logo = dialog.findChild<QLabel *>(u"mainImgLabel"_s);
        dialog.setLogoImg(folder.filePath(u"logo.png"_s));
        Gestures::show(&dialog);
        QCOMPARE(logo->size(), QSize(250, 250));
        dialog.setLogoImg(folder.filePath(u"none.png"_s));
        QCOMPARE(logo->maximumSize(), QSize(0, 0));
    }

    void opensWebLinks()
    {
        QDesktopServices::setUrlHandler(u"velmo-test"_s, this, "open");
        const auto restore = qScopeGuard([] { QDesktopServices::unsetUrlHandler(u"velmo-test"_s); });
        Dialog dialog;
        dialog.addNewWebLink(u"First"_s, u"velmo-test:one"_s);
        dialog.addNewWebLink(u"Second"_s, u"velmo-test:two"_s);
        dialog.addNewWebLink(u"Nowhere"_s, QString());
        Gestures::show(&dialog);
        const auto links = dialog.findChildren<LinkLabel *>();
        QVERIFY(links[0]->geometry().bottom() < links[1]->geometry().top());
        for (LinkLabel *link : links)
            Gestures::click(link);
        QCOMPARE(m_opened, QStringList({u"velmo-test:one"_s, u"velmo-test:two"_s}));

        QAccessibleInterface *link = QAccessible::queryAccessibleInterface(links[1]);
        QCOMPARE(link->role(), QAccessible::Link);
        QCOMPARE(link->text(QAccessible::Name), u"Second"_s);
        links[1]->setFocusPolicy(Qt::StrongFocus);
        Gestures::focus(links[1]);
        QTest::keyClick(links[1], Qt::Key_Space);
        QCOMPARE(m_opened.size(), 3);
    }

    void startsPrograms()
    {
        QTemporaryDir folder;
        const QString program = folder.filePath(u"with blank.sh"_s);
        LinkLabel(u"None"_s, folder.filePath(u"none"_s), 1, nullptr).open();
        LinkLabel(u"Empty"_s, QString(), 1, nullptr).open();
#ifdef Q_OS_UNIX
        Files::write(program, "#!/bin/sh\ntouch \"$0.$#\"\n");
        QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
        LinkLabel(u"Unknown"_s, program, 2, nullptr).open();
        LinkLabel link(u"Program"_s, program, 1, nullptr);
        Gestures::show(&link);
        QVERIFY(!QFile::exists(program + u".0"_s));
        Gestures::press(&link);
        QTRY_VERIFY(QFile::exists(program + u".0"_s));
#endif
    }

private:
    QStringList m_opened;
};

VELMO_TEST_MAIN(ModalDialogTest)
#include "ModalDialogTest.moc"
