#include "support/Files.h"
#include "support/TestCase.h"

#include "look/Wording.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

/// A text that no user should read. Sentences about messages and tool tips would have to be put differently.
bool isKey(const QString &text)
{
    return text.contains("tooltip"_L1, Qt::CaseInsensitive) || text.endsWith(" message."_L1);
}

struct Text
{
    QString context;
    QString text;
};

/// What a source passes to `tr` and `translate`; the context is the class that the call names, else the file's. Of a
/// form its texts.
QList<Text> textsOf(const QFileInfo &file)
{
    static const QRegularExpression declared(u"Q_DECLARE_TR_FUNCTIONS\\((\\w+)\\)"_s);
    static const QRegularExpression call(u"(?:(\\w+)::)?\\btr\\(\\s*\"([^\"]*)\"|"
                                         "\\btranslate\\(\\s*\"([^\"]*)\",\\s*\"([^\"]*)\""_s);
    static const QRegularExpression formText(u"<string>([^<]*)</string>"_s);
    const QString content = QString::fromUtf8(Files::read(file.filePath()));
    QList<Text> texts;
    if (file.suffix() == "ui"_L1) {
        const QString context = content.section(u"<class>"_s, 1).section(u"</class>"_s, 0, 0);
        for (auto found = formText.globalMatch(content); found.hasNext();)
            texts.append({context, found.next().captured(1)});
        return texts;
    }
    const QString header = QString::fromUtf8(Files::read(file.path() + u'/' + file.completeBaseName() + u".h"_s));
    const QRegularExpressionMatch named = declared.match(header);
    const QString ownContext = named.hasMatch() ? named.captured(1) : file.completeBaseName();
    for (auto calls = call.globalMatch(content); calls.hasNext();) {
        const QRegularExpressionMatch found = calls.next();
        if (found.hasCaptured(3))
            texts.append({found.captured(3), found.captured(4)});
        else
            texts.append({found.hasCaptured(1) ? found.captured(1) : ownContext, found.captured(2)});
    }
    return texts;
}

} // namespace

class WordingTest : public TestCase
{
    Q_OBJECT

private slots:
    void everyKeyOfTheLibraryHasWords()
    {
        QVERIFY(Wording::install());
        int keys = 0;
        for (QDirIterator files(u"" VELMO_SOURCES ""_s, {u"*.cpp"_s, u"*.h"_s, u"*.ui"_s}, QDir::Files,
                                QDirIterator::Subdirectories);
             files.hasNext();) {
            const QFileInfo file(files.next());
            for (const Text &text : textsOf(file)) {
                if (!isKey(text.text))
                    continue;
                ++keys;
                const QString words =
                    QCoreApplication::translate(text.context.toUtf8().constData(), text.text.toUtf8().constData());
                QVERIFY2(words != text.text, qPrintable(text.context + u": "_s + text.text));
                QCOMPARE(words.count(u"%1"_s), text.text.count(u"%1"_s));
            }
        }
        QVERIFY2(keys >= 4, "the texts in the sources are not found");
    }

    void everyTranslationIsFinished()
    {
        QXmlStreamReader xml(Files::read(u"" VELMO_WORDING ""_s));
        int finished = 0;
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != "translation"_L1)
                continue;
            const qint64 line = xml.lineNumber();
            QVERIFY2(!xml.attributes().hasAttribute(u"type"_s), qPrintable(QString::number(line)));
            QVERIFY2(!xml.readElementText().trimmed().isEmpty(), qPrintable(QString::number(line)));
            ++finished;
        }
        QVERIFY(!xml.hasError() && finished > 0);
    }
};

VELMO_TEST_MAIN(WordingTest)
#include "WordingTest.moc"
