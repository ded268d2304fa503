#include "support/TestCase.h"

#include "browser/SceneNameIndex.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// The plain way to do it.
int firstOf(const QStringList &names, const QString &name)
{
    for (int row = 0; row < names.size(); ++row) {
        if (names[row].compare(name, Qt::CaseInsensitive) == 0)
            return row;
    }
    return -1;
}

} // namespace

class SceneNameIndexTest : public TestCase
{
    Q_OBJECT

private slots:
    void comparesAsStringsDo_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("askedFor");
        QTest::addColumn<bool>("same");
        QTest::newRow("case") << u"Plaza Mayor"_s << u"pLAZA mAYOR"_s << true;
        QTest::newRow("umlauts") << u"ÄÖÜ"_s << u"äöü"_s << true;
        QTest::newRow("sharp s is not ss") << u"straße"_s << u"strasse"_s << false;
        QTest::newRow("capital sharp s") << u"straße"_s << u"STRAẞE"_s << true;
        QTest::newRow("final sigma") << u"ΣΣς"_s << u"σςΣ"_s << true;
        QTest::newRow("dotless i") << u"ı"_s << u"I"_s << false;
        QTest::newRow("dotted capital i") << u"İ"_s << u"i"_s << false;
        QTest::newRow("Kelvin sign") << u"\u212A"_s << u"k"_s << true;
        QTest::newRow("ligature") << u"ﬀ"_s << u"ff"_s << false;
        QTest::newRow("composed and not") << u"\u00e9"_s << u"e\u0301"_s << false;
        QTest::newRow("beyond the basic plane") << u"\U00010400"_s << u"\U00010428"_s << true;
        QTest::newRow("emoji") << u"\U0001F3DF"_s << u"\U0001F3E0"_s << false;
        QTest::newRow("half pairs") << QString(QChar(0xd800)) << QString(QChar(0xd801)) << false;
        QTest::newRow("half pair and replacement") << QString(QChar(0xdc00)) << QString(QChar(0xfffd)) << false;
        QTest::newRow("nothing") << u""_s << QString() << true;
        QTest::newRow("blank") << u"a "_s << u"a"_s << false;
        QTest::newRow("null character") << u"a\0b"_s << u"a\0c"_s << false;
    }
    void comparesAsStringsDo()
    {
        QFETCH(QString, name);
        QFETCH(QString, askedFor);
        QFETCH(bool, same);
        QCOMPARE(name.compare(askedFor, Qt::CaseInsensitive) == 0, same);
        SceneNameIndex names;
        names.append(u"another"_s);
        names.append(name);
        QCOMPARE(names.find(askedFor), same ? 1 : -1);
        QCOMPARE(names.find(name), 1);
    }

    void ignoresRowsThatDoNotExist()
    {
        SceneNameIndex names;
        names.rename(0, u"a"_s);
        names.append(u"b"_s);
        names.rename(1, u"a"_s);
        names.rename(-1, u"a"_s);
        QCOMPARE(names.find(u"a"_s), -1);
        QCOMPARE(names.find(u"b"_s), 0);
        QCOMPARE(names.find(QString()), -1);
    }

    void findsWhatASearchFinds_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 8; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }
    void findsWhatASearchFinds()
    {
        QFETCH(quint32, seed);
        QRandomGenerator random(seed);
        const QStringList parts = {u"a"_s,
                                   u"A"_s,
                                   u"ß"_s,
                                   u"ss"_s,
                                   u"Σ"_s,
                                   u"ς"_s,
                                   u"\U00010400"_s,
                                   u"\U00010428"_s,
                                   QString(QChar(0xd801)),
                                   QString(QChar(0xdc28))};
        const auto anyName = [&] {
            QString name;
            for (int length = random.bounded(3); length > 0; --length)
                name += parts[random.bounded(parts.size())];
            return name;
        };
        SceneNameIndex names;
        QStringList plain;
        for (int step = 0; step < 2000; ++step) {
            const QString name = anyName();
            if (plain.isEmpty() || random.bounded(3) == 0) {
                names.append(name);
                plain.append(name);
            } else {
                const int row = random.bounded(int(plain.size()));
                names.rename(row, name);
                plain[row] = name;
            }
            if (random.bounded(500) == 0) {
                names.clear();
                plain.clear();
            }
            const QString askedFor = anyName();
            QCOMPARE(names.find(askedFor), firstOf(plain, askedFor));
        }
    }

    void doesNotWalkTheRows()
    {
        const auto timeOf = [](int rows) {
            SceneNameIndex names;
            for (int row = 0; row < rows; ++row)
                names.append(u"scene %1"_s.arg(row));
            const QString last = u"SCENE %1"_s.arg(rows - 1);
            qint64 best = std::numeric_limits<qint64>::max();
            for (int i = 0; i < 20; ++i) {
                QElapsedTimer timer;
                timer.start();
                for (int look = 0; look < 50; ++look)
                    names.find(last);
                best = std::min(best, timer.nsecsElapsed());
            }
            return best;
        };
        QVERIFY(timeOf(30'000) < 50 * timeOf(10));
    }
};

VELMO_TEST_MAIN(SceneNameIndexTest)
#include "SceneNameIndexTest.moc"
