#include "support/TestCase.h"

#include "VelmoVersion.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;

class VelmoVersionTest : public TestCase
{
    Q_OBJECT

private slots:
    void readsAndWrites_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("written");
        QTest::newRow("three numbers") << "2.5.1"
                                       << "2.5.1";
        QTest::newRow("trailing zeros are kept") << "2.5.0"
                                                 << "2.5.0";
        QTest::newRow("blanks around") << " 2.5 \n"
                                       << "2.5";
        QTest::newRow("suffix dropped") << "2.5.1-beta"
                                        << "2.5.1";
        QTest::newRow("no number") << "beta"
                                   << "";
        QTest::newRow("empty") << ""
                               << "";
    }
    void readsAndWrites()
    {
        QFETCH(QString, text);
        QTEST(VelmoVersion(text).toString(), "written");
    }

    void ordersByNumberNotByText_data()
    {
        QTest::addColumn<QString>("older");
        QTest::addColumn<QString>("newer");
        QTest::addColumn<bool>("less");
        QTest::newRow("ten after nine") << "2.9"
                                        << "2.10" << true;
        QTest::newRow("equal") << "2.5"
                               << "2.5" << false;
        QTest::newRow("trailing zero") << "2.5"
                                       << "2.5.0" << false;
        QTest::newRow("default is the oldest") << ""
                                               << "0.0.1" << true;
        QTest::newRow("defaults are equal") << ""
                                            << "" << false;
    }
    void ordersByNumberNotByText()
    {
        QFETCH(QString, older);
        QFETCH(QString, newer);
        QTEST(VelmoVersion(older) < VelmoVersion(newer), "less");
        QVERIFY(!(VelmoVersion(newer) < VelmoVersion(older)));
    }

    void currentIsTheApplicationsElseTheLibrarys()
    {
        const QString before = QCoreApplication::applicationVersion();
        QCoreApplication::setApplicationVersion(u"7.3.1"_s);
        const QString told = VelmoVersion::current().toString();
        QCoreApplication::setApplicationVersion(QString());
        const QString untold = VelmoVersion::current().toString();
        QCoreApplication::setApplicationVersion(before);

        QCOMPARE(told, u"7.3.1"_s);
        QVERIFY(VelmoVersion() < VelmoVersion(untold));
    }
};

VELMO_TEST_MAIN(VelmoVersionTest)
#include "VelmoVersionTest.moc"
