#include "support/TestCase.h"

#include "browser/SceneNameIndex.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>

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
    void comparesAsStringsDo()
    {
        const QList<std::pair<QString, QString>> pairs = {{u"Plaza ÄÖÜ"_s, u"pLAZA äöü"_s},
                                                          {u"straße"_s, u"strasse"_s},
                                                          {u"straße"_s, u"STRAẞE"_s},
                                                          {u"İ"_s, u"i"_s},
                                                          {u"\u212A"_s, u"k"_s},
                                                          {u"\u00e9"_s, u"e\u0301"_s},
                                                          {QString(QChar(0xdc00)), QString(QChar(0xfffd))},
                                                          {u"a\0b"_s, u"a\0c"_s}};
        for (const auto &[name, askedFor] : pairs) {
            SceneNameIndex names;
            names.append(u"another"_s);
            names.append(name);
            QCOMPARE(names.find(askedFor), name.compare(askedFor, Qt::CaseInsensitive) == 0 ? 1 : -1);
            QCOMPARE(names.find(name), 1);
        }
    }

    void findsWhatASearchFinds()
    {
        QRandomGenerator random(1);
        const QString letters = u"aAßẞΣς"_s + QChar(0xd801) + QChar(0xdc28) + QChar(0xdc00);
        const auto anyName = [&] {
            QString name;
            for (int length = random.bounded(3); length > 0; --length)
                name += letters[random.bounded(letters.size())];
            return name;
        };
        SceneNameIndex names;
        QStringList plain;
        for (int step = 0; step < 10'000; ++step) {
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
        names.rename(-1, u"none"_s); // rows that do not exist
        names.rename(int(plain.size()), u"none"_s);
        QCOMPARE(names.find(u"none"_s), -1);
    }

    void doesNotWalkTheRows()
    {
        const auto timeOf = [](int rows) {
            SceneNameIndex names;
            for (int row = 0; row < rows; ++row)
                names.append(u"scene %1"_s.arg(row));
            QElapsedTimer timer;
            timer.start();
            for (int look = 0; look < 1000; ++look)
                names.find(u"SCENE %1"_s.arg(rows - 1));
            return timer.nsecsElapsed();
        };
        QVERIFY(timeOf(30'000) < 50 * timeOf(10));
    }
};

VELMO_TEST_MAIN(SceneNameIndexTest)
#include "SceneNameIndexTest.moc"
