#include "support/Gestures.h"
#include "support/TestCase.h"

#include "messages/FeedbackRules.h"
#include "messages/VelmoFeedbackConsentDialog.h"

#include <QAccessible>
#include <QDirIterator>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using FeedbackRules::Choice;

namespace {

/// The given sheet of the three options has one brace too many, which the toolkit tells when it reads it.
void allowBrace()
{
    const QRegularExpression complaint(u"^Could not parse stylesheet of object QRadioButton"_s);
    for (int option = 0; option < 3; ++option)
        QTest::ignoreMessage(QtWarningMsg, complaint);
}

QList<QRadioButton *> options(const VelmoFeedbackConsentDialog &dialog)
{
    return dialog.findChildren<QRadioButton *>();
}

/// Their place, or -1.
int checkedOption(const VelmoFeedbackConsentDialog &dialog)
{
    const auto all = options(dialog);
    const auto found = std::find_if(all.cbegin(), all.cend(), [](auto *option) { return option->isChecked(); });
    return found == all.cend() ? -1 : int(found - all.cbegin());
}

} // namespace

class FeedbackConsentTest : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path());
        QSettings::setPath(QSettings::IniFormat, QSettings::SystemScope, m_folder.path());
    }

    void init()
    {
        TestCase::init();
        QCoreApplication::setOrganizationName(u"Test"_s);
        QSettings().clear();
    }

    void countsMonthsAndDays()
    {
        QCOMPARE(FeedbackRules::reminderAfter(QDate(2025, 1, 31)), u"2025-02-28"_s);
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
        QTest::addColumn<Choice>("choice");
        QTest::addColumn<bool>("asks");
        const QString future = QDate::currentDate().addDays(40).toString(Qt::ISODate);
        QTest::newRow("nothing") << QString() << QString() << Choice::No << true;
        QTest::newRow("agreed") << u"1"_s << u"2001-01-01"_s << Choice::Yes << false;
        QTest::newRow("another truth") << u"true"_s << QString() << Choice::No << true;
        QTest::newRow("not yet") << u"0"_s << future << Choice::RemindLater << false;
        QTest::newRow("long ago") << u"0"_s << u"2001-01-01"_s << Choice::RemindLater << true;
        QTest::newRow("month 13") << u"0"_s << u"2901-13-01"_s << Choice::No << true;
        QTest::newRow("another form") << u"0"_s << u"01.01.2901"_s << Choice::No << true;
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
            QTest::ignoreMessage(QtDebugMsg,
                                 QRegularExpression(u"^Date is valid: (true|false) , Date: \"[-0-9]*\"$"_s));
        QTEST(VelmoFeedbackConsentDialog::isFeedbackRemeberNecessary(), "asks");
        QFETCH(Choice, choice);
        QCOMPARE(checkedOption(VelmoFeedbackConsentDialog(nullptr)), int(choice));
    }

    void storesTheAnswer()
    {
        const auto answer = [](int option) {
            VelmoFeedbackConsentDialog dialog(nullptr);
            options(dialog).at(option)->setChecked(true);
            dialog.findChild<QPushButton *>(u"okButton"_s)->click();
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
        };
        const QDate before = QDate::currentDate();
        answer(0);
        QCOMPARE(QSettings().value(u"Telemetry/Enabled"_s).toString(), u"0"_s);
        const QString date = QSettings().value(u"Telemetry/RemenberDate"_s).toString();
        QVERIFY(date == FeedbackRules::reminderAfter(before)
                || date == FeedbackRules::reminderAfter(QDate::currentDate()));
        answer(1);
        QCOMPARE(QSettings().allKeys(), QStringList(u"Telemetry/Enabled"_s));
        QCOMPARE(QSettings().value(u"Telemetry/Enabled"_s).toString(), u"1"_s);
        answer(0);
        answer(2);
        QCOMPARE(QSettings().allKeys(), QStringList(u"Telemetry/Enabled"_s));
        QCOMPARE(QSettings().value(u"Telemetry/Enabled"_s).toString(), u"0"_s);
    }

    void storesNothing()
    {
        VelmoFeedbackConsentDialog dialog(nullptr);
        options(dialog).at(1)->setChecked(true);
        dialog.reject();
        QCOMPARE(QSettings().allKeys(), QStringList());

        QRadioButton *no = options(dialog).at(2);
        no->setChecked(true);
        no->setAutoExclusive(false);
        no->setChecked(false);
        QCOMPARE(checkedOption(dialog), -1);
        dialog.findChild<QPushButton *>()->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(QSettings().allKeys(), QStringList());
    }

    void storesNothingForNobody()
    {
        const auto files = [this] {
            QStringList found;
            for (QDirIterator file(m_folder.path(), QDir::Files, QDirIterator::Subdirectories); file.hasNext();)
                found << file.next();
            return found;
        };
        QCoreApplication::setOrganizationName(QString());
        const QStringList before = files();
        VelmoFeedbackConsentDialog dialog(nullptr);
        dialog.findChild<QPushButton *>()->click();
        QCOMPARE(files(), before);
        QTest::ignoreMessage(QtDebugMsg, "Date is valid: false , Date: \"\"");
        QVERIFY(VelmoFeedbackConsentDialog::isFeedbackRemeberNecessary());
    }

    void looksAsGiven()
    {
        VelmoFeedbackConsentDialog dialog(nullptr);
        QCOMPARE(dialog.size(), QSize(600, 350));
        allowBrace();
        Gestures::show(&dialog);
        QCOMPARE(dialog.size(), QSize(600, 380));
        QCOMPARE(dialog.layout()->contentsMargins(), QMargins(35, 45, 35, 15));
        const auto texts = dialog.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(texts.size(), 4);
        for (const QLabel *text : texts)
            QVERIFY2(text->height() >= text->heightForWidth(text->width()), qPrintable(text->text()));

        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&dialog);
        QCOMPARE(accessible->text(QAccessible::Name), u"Velmo: Feedback Program Settings"_s);
        auto *group = dialog.findChild<QGroupBox *>();
        accessible = QAccessible::queryAccessibleInterface(group);
        QCOMPARE(accessible->role(), QAccessible::Grouping);
        QVERIFY(accessible->text(QAccessible::Name).startsWith(u"Help us improve Velmo, by"_s));
        QCOMPARE(accessible->childCount(), 3);
    }

private:
    QTemporaryDir m_folder;
};

VELMO_TEST_MAIN(FeedbackConsentTest)
#include "FeedbackConsentTest.moc"
