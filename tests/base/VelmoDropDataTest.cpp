#include "support/TestCase.h"

#include "VelmoDropData.h"

#include <QMimeData>
#include <QRandomGenerator>
#include <QTest>

#include <limits>
#include <memory>

using namespace Qt::StringLiterals;

using Items = QList<VelmoDropData::Item>;

namespace {

const QString format = u"application/x-velmodropdata"_s;

QByteArray bytesOf(const VelmoDropData &payload)
{
    return std::unique_ptr<QMimeData>(payload.getMimeData())->data(format);
}

VelmoDropData read(const QByteArray &bytes)
{
    QMimeData mime;
    mime.setData(format, bytes);
    return VelmoDropData(&mime);
}

/// Two items with a name and a data block each.
QByteArray sampleBytes()
{
    return bytesOf({{{u"tree"_s, "abc"}, {u"\u00e9t\u00e9"_s, {}}}, VelmoDropData::Categories});
}

} // namespace

class VelmoDropDataTest : public TestCase
{
    Q_OBJECT

private slots:
    void comesBackAsItWent_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QByteArray>("data");
        QTest::newRow("nothing") << QStringList() << QByteArray();
        QTest::newRow("empty name") << QStringList{QString(), u"tree"_s} << QByteArray();
        QTest::newRow("NULs") << QStringList{u"a\0b\0"_s} << QByteArray("\0x\0", 3);
        QTest::newRow("unicode") << QStringList{u"\u0412\U0001f333,<b>&\n"_s, QString(QChar(0xd800))}
                                 << QByteArray("\xff");
        QTest::newRow("1 MB") << QStringList{QString(1 << 20, u'x')} << QByteArray(1 << 20, '\xa5');
        QTest::newRow("many") << QStringList(5000, u"x"_s) << QByteArray("1");
    }
    void comesBackAsItWent()
    {
        QFETCH(QStringList, names);
        QFETCH(QByteArray, data);
        for (const int type : {0, 1, 7, std::numeric_limits<int>::max()}) {
            Items items;
            for (const QString &name : names)
                items.append({name, data});
            const QByteArray bytes = bytesOf({items, VelmoDropData::Type(type)});
            QVERIFY(names.isEmpty() || bytes.endsWith(data));
            const VelmoDropData back = read(bytes);
            QCOMPARE(int(back.getType()), type);
            QCOMPARE(back.getItemNames(), names);
            QCOMPARE(bytesOf(back), bytes);
        }
    }

    void whatIsOddIsOfNoType_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray good = sampleBytes();
        for (int size = 0; size < good.size(); ++size)
            QTest::addRow("first %d bytes", size) << good.first(size);
        QTest::newRow("longer") << good + '\0';
        const auto with = [&good](int at, const QByteArray &part) { return QByteArray(good).replace(at, 4, part); };
        QTest::newRow("other magic") << with(0, "abcd");
        QTest::newRow("other version") << with(4, QByteArray("\2\0\0\0", 4));
        QTest::newRow("negative type") << with(8, "\xff\xff\xff\xff");
        QTest::newRow("one item less") << with(12, QByteArray("\1\0\0\0", 4));
        QTest::newRow("huge count") << with(12, "\xff\xff\xff\xff");
        QTest::newRow("huge name") << with(16, "\xff\xff\xff\x7f");
        QTest::newRow("huge block") << with(28, "\xff\xff\xff\xff");
        QTest::newRow("written without a type") << bytesOf({Items{{u"tree"_s, {}}}, VelmoDropData::NoType});
    }
    void whatIsOddIsOfNoType()
    {
        QFETCH(QByteArray, bytes);
        const VelmoDropData payload = read(bytes);
        QCOMPARE(payload.getType(), VelmoDropData::NoType);
        QCOMPARE(payload.getItemNames(), QStringList());
        QCOMPARE(read(bytesOf(payload)).getType(), VelmoDropData::NoType);
    }

    void noMimeDataIsOfNoType()
    {
        QCOMPARE(VelmoDropData(nullptr).getType(), VelmoDropData::NoType);
        QMimeData text;
        text.setText(u"tree"_s);
        QCOMPARE(VelmoDropData(&text).getType(), VelmoDropData::NoType);
    }

    /// Whatever is read either is refused whole or is exactly what would be written.
    void survivesDamage()
    {
        const quint32 seed = 20261121;
        QRandomGenerator random(seed);
        const QByteArray good = sampleBytes();
        for (int round = 0; round < 20000; ++round) {
            QByteArray bytes = good;
            for (int change = random.bounded(1, 4); change > 0; --change) {
                const int at = random.bounded(int(bytes.size()));
                if (random.bounded(4) == 0)
                    bytes.insert(at, char(random.bounded(256)));
                else
                    bytes[at] = char(random.bounded(2) ? random.bounded(256) : random.bounded(4));
            }
            const VelmoDropData payload = read(bytes);
            const bool refused = payload.getType() == VelmoDropData::NoType && payload.getItemNames().isEmpty();
            QVERIFY2(refused || bytesOf(payload) == bytes, qPrintable(u"seed %1 round %2"_s.arg(seed).arg(round)));
        }
    }
};

VELMO_TEST_MAIN(VelmoDropDataTest)
#include "VelmoDropDataTest.moc"
