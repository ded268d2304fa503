#include "support/Gestures.h"
#include "support/OwnSettings.h"
#include "support/TestCase.h"

#include "messages/FeedbackRules.h"
#include "messages/VelmoFeedbackConsentDialog.h"

#include <QAccessible>
#include <QDir>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

enum Option { remindLater, yes, no };

struct Dialog : VelmoFeedbackConsentDialog
{
    Dialog() : VelmoFeedbackConsentDialog(nullptr), options(findChildren<QRadioButton *>()) { }
    void pressOk() { findChild<QPushButton *>(u"okButton"_s)->click(); }

    const QList<QRadioButton *> options;
};

QString stored(const QString &key)
{
    return QSettings().value(u"Telemetry/"_s + key).toString();
}

} // namespace

class FeedbackConsentTest : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase() { keepSettingsIn(m_folder.path()); }

    void init()
    {
        TestCase::init();
        QCoreApplication::setOrganizationName(u"Test"_s);
        QSettings().clear();
    }

    void countsMonthsAndDays()
    {
        QCOMPARE(FeedbackRules::reminderAfter(QDate(2024, 1, 31)), u"2024-02-29"_s);
        QCOMPARE(FeedbackRules::reminderAfter(QDate(2024, 12, 31)), u"2025-01-31"_s);
        const QDate date(2024, 3, 15);
        QVERIFY(!FeedbackRules::isTimeToAsk(date, date));
        QVERIFY(FeedbackRules::isTimeToAsk(date, date.addDays(1)));
    }

    void readsWhatIsStored_data()
    {
        QTest::addColumn<QString>("enabled");
        QTest::addColumn<QString>("date");
        QTest::addColumn<Option>("choice");
        QTest::addColumn<bool>("asks");
        const QString future = QDate::currentDate().addDays(40).toString(Qt::ISODate);
        QTest::newRow("nothing") << QString() << QString() << no << true;
        QTest::newRow("agreed") << u"1"_s << u"2001-01-01"_s << yes << false;
        QTest::newRow("another truth") << u"true"_s << QString() << no << true;
        QTest::newRow("not yet") << u"0"_s << future << remindLater << false;
        QTest::newRow("long ago") << u"0"_s << u"2001-01-01"_s << remindLater << true;
        QTest::newRow("month 13") << u"0"_s << u"2901-13-01"_s << no << true;
        QTest::newRow("another form") << u"0"_s << u"01.01.2901"_s << no << true;
    }
    void readsWhatIsStored()
    {
        QFETCH(QString, enabled);
        QFETCH(QString, date);
        QSettings settings;
        if (!enabled.isNull())
            settings.setValue(u"Telemetry/Enabled"_s, enabled);
        if (!date.isNull())
            settings.setValue(u"Telemetry/RemenberDate"_s, date);
        if (enabled != u"1"_s)
            QTest::ignoreMessage(QtDebugMsg, QRegularExpression(uR"(^Date is valid: \w+ , Date: "[-0-9]*"$)"_s));
        QTEST(VelmoFeedbackConsentDialog::isFeedbackRemeberNecessary(), "asks");
        QFETCH(Option, choice);
        QVERIFY(Dialog().options[choice]->isChecked());
    }

    void storesTheAnswer()
    {
        const auto answer = [](Option option) {
            Dialog dialog;
            dialog.options[option]->setChecked(true);
            dialog.pressOk();
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
            QCOMPARE(stored(u"Enabled"_s), option == yes ? u"1"_s : u"0"_s);
        };
        const QDate before = QDate::currentDate();
        answer(remindLater);
        const QString date = stored(u"RemenberDate"_s);
        QVERIFY(date == FeedbackRules::reminderAfter(before)
                || date == FeedbackRules::reminderAfter(QDate::currentDate()));
        answer(yes);
        QCOMPARE(QSettings().allKeys(), QStringList(u"Telemetry/Enabled"_s));
        answer(remindLater);
        answer(no);
        QCOMPARE(QSettings().allKeys(), QStringList(u"Telemetry/Enabled"_s));
    }

    void storesNothing()
    {
        Dialog dialog;
        dialog.options[yes]->setChecked(true);
        dialog.reject();
        dialog.options[yes]->setAutoExclusive(false);
        dialog.options[yes]->setChecked(false);
        dialog.pressOk();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(QSettings().allKeys(), QStringList());

        QCoreApplication::setOrganizationName(QString());
        const QStringList before = QDir(m_folder.path()).entryList();
        Dialog().pressOk();
        QCOMPARE(QDir(m_folder.path()).entryList(), before);
        QTest::ignoreMessage(QtDebugMsg, "Date is valid: false , Date: \"\"");
        QVERIFY(VelmoFeedbackConsentDialog::isFeedbackRemeberNecessary());
    }

    void looksAsGiven()
    {
        Dialog dialog;
        QCOMPARE(dialog.size(), QSize(600, 350));
        for (int brace = 0; brace < 3; ++brace) // the one too many of each option
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Could not parse stylesheet of object QRadio"_s));
        Gestures::show(&dialog);
        QCOMPARE(dialog.size(), QSize(600, 380));
        QCOMPARE(dialog.layout()->contentsMargins(), QMargins(35, 45, 35, 15));
        const auto texts = dialog.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(texts.size(), 4);
        for (const QLabel *text : texts)
            QVERIFY2(text->height() >= text->heightForWidth(text->width()), qPrintable(text->text()));

        QCOMPARE(dialog.accessibleName(), u"Velmo: Feedback Program Settings"_s);
        auto *group = QAccessible::queryAccessibleInterface(dialog.options[no]->parentWidget());
        QCOMPARE(group->role(), QAccessible::Grouping);
        QVERIFY(group->text(QAccessible::Name).startsWith(u"Help us improve Velmo, by"_s));
    }

    void isAnsweredByTheArrowKeys()
    {
        Dialog dialog;
        Gestures::show(&dialog);
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Up);
        QVERIFY(dialog.options[yes]->isChecked());
    }

private:
    QTemporaryDir m_folder;
};

VELMO_TEST_MAIN(FeedbackConsentTest)
#include "FeedbackConsentTest.moc"
