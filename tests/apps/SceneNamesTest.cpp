#include "support/TestCase.h"

#include "scenes/SceneNames.h"

#include <QStringList>
#include <QTest>

using namespace Qt::StringLiterals;

class SceneNamesTest : public TestCase
{
    Q_OBJECT

private slots:
    void refusesWhatAnySystemRefuses_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("good");
        const QStringList good = {u"Market square"_s, u"Platform 2 (evening)"_s,
                                  u"v2.1"_s,          u"Überführung, größer"_s,
                                  u"  leading"_s,     u"CONsole"_s,
                                  u"COM12"_s,         u"a'b"_s,
                                  u"100 %1"_s,        QString(248, u'x'),
                                  u"Auxiliary"_s};
        const QStringList bad = {u""_s,
                                 u"   "_s,
                                 u"a/b"_s,
                                 u"a\\b"_s,
                                 u"a:b"_s,
                                 u"what?"_s,
                                 u"*"_s,
                                 u"<b>"_s,
                                 u"\"quoted\""_s,
                                 u"a|b"_s,
                                 u"a\nb"_s,
                                 u"a\x7f"_s,
                                 u".hidden"_s,
                                 u".."_s,
                                 u"dot."_s,
                                 u"blank "_s,
                                 u"con"_s,
                                 u"NUL"_s,
                                 u"Aux.backup"_s,
                                 u"com1"_s,
                                 u"LPT\u00b2"_s,
                                 u"conout$"_s,
                                 QString(249, u'x'),
                                 QString(130, u'ü'),
                                 QString(QChar(0xd800))};
        for (const QString &name : good)
            QTest::addRow("good: %s", qPrintable(name.left(20))) << name << true;
        for (const QString &name : bad)
            QTest::addRow("bad: %s", qPrintable(name.left(20))) << name << false;
    }
    void refusesWhatAnySystemRefuses()
    {
        QFETCH(QString, name);
        QTEST(SceneNames::problem(name).isEmpty(), "good");
    }

    void numbersFromTwoAndFillsGaps()
    {
        QStringList taken;
        const auto next = [&taken] {
            return SceneNames::firstFree(u"New scene"_s, [&](const QString &name) { return taken.contains(name); });
        };
        QCOMPARE(next(), u"New scene"_s);
        taken = QStringList{u"New scene"_s, u"New scene 2"_s, u"New scene 4"_s};
        QCOMPARE(next(), u"New scene 3"_s);
    }
};

VELMO_TEST_MAIN(SceneNamesTest)
#include "SceneNamesTest.moc"
