#include "support/TestCase.h"

#include "VelmoSceneMetadataParser.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTranslator>
#include <QXmlStreamReader>

#include <thread>

using namespace Qt::StringLiterals;

namespace {

// The defaults and one full set of values, as fieldsOf() writes them.
const auto defaults = u";0;0;;(Undetected);"_s;
const auto stadium = u"Baked;12;3;00:02:30 | 25;Stadium;2.4.0"_s;

const QByteArray stadiumElement = "<scenemetadata version='2.4.0' time-fps='00:02:30 | 25' bakestatus='Baked' "
                                  "actorcount='12' vehiclescount='3' background-name='Stadium'/>";

QString fieldsOf(const VelmoSceneMetadataParser &parser)
{
    return QStringList{parser.bakeStatus,    parser.actorCount,     parser.vehicleCount,
                       parser.timeFramerate, parser.backgroundName, parser.version.toString()}
        .join(u';');
}

QByteArray scene(const QByteArray &content)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<VelmoSerializer>" + content + "</VelmoSerializer>\n";
}

// Closes every message box that comes up and keeps what it said.
class BoxReader : public QTimer
{
public:
    BoxReader()
    {
        callOnTimeout(this, [this] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                texts << box->windowTitle() + u'\n' + box->text();
                // A warning with one OK button, without parent, that shows its text as typed.
                isSober = box->standardButtons() == QMessageBox::Ok && !box->parentWidget()
                    && box->icon() == QMessageBox::Warning && box->textFormat() == Qt::PlainText;
                box->accept();
            }
        });
        start(1);
    }

    QStringList texts;
    bool isSober = false;
};

class Marked : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return u"[%1|%2]"_s.arg(QString::fromLatin1(context), QString::fromLatin1(text));
    }
};

// Elements inside each other, or one behind the other without and with something in between.
QByteArray randomContent(QRandomGenerator &random, int depth)
{
    static const QByteArrayList elements{"a", "scenemetadata version='3.1' actorcount='8'", "VelmoSerializer"};
    static const QByteArrayList leaves{stadiumElement,    "<scenemetadata actorcount='9' bakestatus=''/>",
                                       "<b c='d'/>",      "<!-- -->",
                                       "<![CDATA[<a>]]>", "<?p?>",
                                       "text &amp;",      "\n"};
    QByteArray content;
    for (int i = random.bounded(5); i > 0; --i) {
        if (depth > 0 && random.bounded(3) == 0) {
            const QByteArray &element = elements.at(random.bounded(elements.size()));
            content +=
                '<' + element + '>' + randomContent(random, depth - 1) + "</" + element.split(' ').constFirst() + '>';
        } else {
            content += leaves.at(random.bounded(leaves.size()));
        }
    }
    return content;
}

// Takes a tag away, doubles it, changes a byte or cuts the document.
void damage(QRandomGenerator &random, QByteArray &document)
{
    const qsizetype at = random.bounded(document.size());
    const qsizetype start = qMax(document.lastIndexOf('<', at), qsizetype(0));
    const qsizetype length = document.indexOf('>', start) + 1 - start;
    switch (random.bounded(4)) {
    case 0:
        document.remove(start, length);
        break;
    case 1:
        document.insert(start, document.mid(start, length));
        break;
    case 2:
        document[at] = char(random.bounded(256));
        break;
    default:
        document.truncate(qMax(at, qsizetype(1)));
    }
}

// The rules of reading a scene, word for word: elements are skipped by recursion and the reader is asked for its end.
class Reference
{
public:
    Reference(const QString &path, VelmoSceneMetadataParser &parser) : m_file(path), m_parser(parser) { }

    bool read()
    {
        if (!m_file.open(QIODevice::ReadOnly | QIODevice::Text))
            return false;
        m_xml.setDevice(&m_file);
        m_xml.readNext();
        while (!m_xml.atEnd()) {
            if (!m_xml.isStartElement())
                m_xml.readNext();
            else if (m_xml.name() != "VelmoSerializer"_L1)
                m_xml.raiseError();
            else
                root();
        }
        return !m_xml.hasError();
    }

private:
    void root()
    {
        m_xml.readNext();
        while (!m_xml.atEnd()) {
            if (m_xml.isEndElement()) {
                m_xml.readNext();
                return;
            }
            if (m_xml.isStartElement() && m_xml.name() == "scenemetadata"_L1) {
                take();
                m_xml.readNext();
                rest();
                m_xml.readNext();
            } else {
                const bool skips = m_xml.isStartElement();
                m_xml.readNext();
                if (skips)
                    rest();
            }
        }
    }

    void take()
    {
        const auto take = [attributes = m_xml.attributes()](QLatin1StringView name, QString &field) {
            if (attributes.hasAttribute(name) && attributes.value(name) != u"")
                field = attributes.value(name).toString();
        };
        QString version = m_parser.version.toString();
        take("version"_L1, version);
        take("time-fps"_L1, m_parser.timeFramerate);
        take("bakestatus"_L1, m_parser.bakeStatus);
        take("actorcount"_L1, m_parser.actorCount);
        take("vehiclescount"_L1, m_parser.vehicleCount);
        take("background-name"_L1, m_parser.backgroundName);
        m_parser.version = VelmoVersion(version);
    }

    void rest()
    {
        while (!m_xml.atEnd() && !m_xml.isEndElement()) {
            const bool skips = m_xml.isStartElement();
            m_xml.readNext();
            if (skips)
                rest();
        }
        if (!m_xml.atEnd())
            m_xml.readNext();
    }

    QFile m_file;
    QXmlStreamReader m_xml;
    VelmoSceneMetadataParser &m_parser;
};

} // namespace

class VelmoSceneMetadataParserTest : public TestCase
{
    Q_OBJECT

private slots:
    void readsTheMetadata_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QString>("fields");
        const auto row = [](const char *name, const QByteArray &document, bool ok, const QString &fields) {
            QTest::newRow(name) << document << ok << fields;
        };
        const QByteArray &metadata = stadiumElement;
        const QByteArray nine = "<scenemetadata actorcount='9'/>";
        const auto nineActors = u";9;0;;(Undetected);"_s;

        row("empty values change nothing", scene("<scenemetadata version='' time-fps='' background-name=''/>"), true,
            defaults);
        row("values stay texts", scene("<scenemetadata actorcount=' ' vehiclescount='007x' version='beta' more='1'/>"),
            true, u"; ;007x;;(Undetected);"_s);
        row("byte order mark", "\xef\xbb\xbf" + scene(metadata), true, stadium);
        row("carriage returns are dropped", scene("\r\n<scenemetadata actorcount='1\r2'/>\r\n"), true,
            u";12;0;;(Undetected);"_s);
        row("only as a child of the root", scene("<a>" + nine + "<b>" + nine + "</b></a>" + metadata), true, stadium);
        row("later values win", scene(metadata + "\n<a/>" + nine + "\n<scenemetadata version='3' actorcount=''/>\n"),
            true, u"Baked;9;3;00:02:30 | 25;Stadium;3"_s);

        row("start tag lost: its end is the root's", scene(nine + "<a/>\n"), true, nineActors);
        row("start tag lost: its content is walked", scene(nine + "<a><b/>" + metadata + "\n</a>"), true, stadium);
        row("start tag lost: one element more is no root", scene(nine + "<a/>" + metadata), false, nineActors);

        row("another letter case", "<velmoserializer>" + metadata + "</velmoserializer>", false, defaults);
        row("empty file", "", false, defaults);
        row("no text at all", QByteArray("\0\1\xfe\xff<\0>", 7), false, defaults);
        row("the same attribute twice", scene("<scenemetadata actorcount='9' actorcount='8'/>"), false, defaults);

        QByteArray laughs = "<!ENTITY l0 'ha'>";
        for (int i = 1; i < 30; ++i) {
            const QByteArray before = "&l" + QByteArray::number(i - 1) + ";";
            laughs += "<!ENTITY l" + QByteArray::number(i) + " '" + before.repeated(10) + "'>";
        }
        row("entity from another file",
            "<!DOCTYPE v [<!ENTITY f SYSTEM 'file:///etc/hostname'>]>" + scene(metadata + "\n&f;" + nine).mid(39), true,
            u"Baked;9;3;00:02:30 | 25;Stadium;2.4.0"_s);
        row("multiplying entities",
            "<!DOCTYPE v [" + laughs + "]>" + scene("<scenemetadata actorcount='&l29;'/>").mid(39), false, defaults);
    }
    void readsTheMetadata()
    {
        QFETCH(QByteArray, document);
        QFETCH(bool, ok);
        BoxReader boxes;
        auto parser = VelmoSceneMetadataParser::withDefaults();
        QCOMPARE(parser.parse(write(document)), ok);
        QTEST(fieldsOf(parser), "fields");
        QCOMPARE(boxes.texts, QStringList());
    }

    void takesAMillionLevelsAndHugeValues()
    {
        const QByteArray up = QByteArray("<a>").repeated(1'000'000);
        const QByteArray down = QByteArray("</a>").repeated(1'000'000);
        const QByteArray name(10'000'000, 'n');
        const QByteArray huge = "<scenemetadata background-name='" + name + "'/><a b='" + name + "'/>";
        auto parser = VelmoSceneMetadataParser::withDefaults();
        QVERIFY(parser.parse(write(scene(huge))));
        QVERIFY(parser.backgroundName == QString::fromLatin1(name));
        QVERIFY(parser.parse(write(scene(up + down + stadiumElement))));
        QVERIFY(parser.parse(write(scene(stadiumElement + up + down)))); // its start tag is lost
        QVERIFY(!parser.parse(write(scene(stadiumElement + "\n" + up))));
        QCOMPARE(fieldsOf(parser), stadium);
    }

    void warnsOnlyOfAFileThatIsThere()
    {
        const QString folder = m_folder.filePath(u"a &amp; folder"_s);
        QVERIFY(QDir().mkdir(folder));
        BoxReader boxes;
        auto parser = VelmoSceneMetadataParser::withDefaults();
        for (const QString &path : {QString(), m_folder.filePath(u"none.vscene"_s), u"a\0b"_s, folder})
            QVERIFY(!parser.parse(path));
        QCOMPARE(boxes.texts, QStringList(u"Not valid xml file.\n"_s + folder + u"file can't be read."_s));
        QVERIFY(boxes.isSober);
        QCOMPARE(fieldsOf(parser), defaults);
    }

    void readsInAWorkerThread()
    {
        const QString good = write(scene(stadiumElement));
        auto parser = VelmoSceneMetadataParser::withDefaults();
        QList<VelmoSceneMetadataParser::ReadResult> results;
        Marked translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        BoxReader boxes;
        std::thread worker([&] {
            for (const QString &path : {good, m_folder.path()})
                results << parser.read(path);
        });
        worker.join();
        QCoreApplication::processEvents();

        QCOMPARE(fieldsOf(parser), stadium);
        QVERIFY(results.at(0).ok && results.at(0).warningText.isEmpty() && !results.at(1).ok);
        QCOMPARE(results.at(1).warningTitle, u"[VelmoSceneMetadataParser|Not valid xml file.]"_s);
        QCOMPARE(results.at(1).warningText, m_folder.path() + u"[VelmoSceneMetadataParser|file can't be read.]"_s);
        QCOMPARE(boxes.texts, QStringList());
    }

    // Documents put together at random, some of them damaged, against the rules word for word.
    void agreesWithTheRulesOnRandomFiles()
    {
        const quint32 seed = qEnvironmentVariableIsSet("VELMO_TEST_SEED")
            ? qEnvironmentVariable("VELMO_TEST_SEED").toUInt()
            : QRandomGenerator::global()->generate();
        QRandomGenerator random(seed);
        int read = 0;
        for (int round = 0; round < 3000; ++round) {
            QByteArray document = scene(randomContent(random, 4));
            for (int i = random.bounded(2) * random.bounded(3); i > 0; --i)
                damage(random, document);

            const QString path = write(document);
            auto parser = VelmoSceneMetadataParser::withDefaults();
            auto expected = VelmoSceneMetadataParser::withDefaults();
            const bool ok = parser.read(path).ok;
            const bool expectedOk = Reference(path, expected).read();
            read += ok;
            QVERIFY2(ok == expectedOk && fieldsOf(parser) == fieldsOf(expected),
                     qPrintable(u"VELMO_TEST_SEED=%1, round %2: %3, %4 instead of %5, %6 in\n%7"_s.arg(
                         QString::number(seed), QString::number(round), QString::number(ok), fieldsOf(parser),
                         QString::number(expectedOk), fieldsOf(expected), QString::fromLatin1(document))));
        }
        // The run tells nothing when nearly all files are good or nearly all are broken.
        QVERIFY2(read > 300 && read < 2700, qPrintable(QString::number(read)));
    }

private:
    QString write(const QByteArray &document)
    {
        const QString path = m_folder.filePath(u"scene.vscene"_s);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(document) != document.size())
            qFatal("The scene file cannot be written.");
        return path;
    }

    QTemporaryDir m_folder;
};

VELMO_TEST_MAIN(VelmoSceneMetadataParserTest)
#include "VelmoSceneMetadataParserTest.moc"
