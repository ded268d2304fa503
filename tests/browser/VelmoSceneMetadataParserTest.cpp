#include "support/Files.h"
#include "support/TestCase.h"

#include "VelmoSceneMetadataParser.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTranslator>

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

        row("whatever else stands between", scene("<!-- --><?p?>text<![CDATA[<a>]]>" + metadata + "<!-- -->" + nine),
            true, u"Baked;9;3;00:02:30 | 25;Stadium;2.4.0"_s);
        row("cut off", scene(metadata).chopped(3), false, stadium);

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

private:
    QString write(const QByteArray &document)
    {
        const QString path = m_folder.filePath(u"scene.vscene"_s);
        Files::write(path, document);
        return path;
    }

    QTemporaryDir m_folder;
};

VELMO_TEST_MAIN(VelmoSceneMetadataParserTest)
#include "VelmoSceneMetadataParserTest.moc"
