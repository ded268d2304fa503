#include "browser/VelmoSceneMetadataParser.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

using Token = QXmlStreamReader::TokenType;

constexpr auto sceneRootName = "VelmoSerializer"_L1;
constexpr auto metadataName = "scenemetadata"_L1;

// The token says it as well as QXmlStreamReader::atEnd, which asks the file once more: after a read error that answer
// is "no" for ever.
bool isAtEnd(Token token)
{
    return token == QXmlStreamReader::Invalid || token == QXmlStreamReader::EndDocument;
}

// Reads from the start of an element to the token behind its end. A counter instead of recursion: the depth of a file
// is limited by nothing but its size.
Token skipElement(QXmlStreamReader &reader)
{
    qsizetype depth = 1;
    Token token = reader.readNext();
    while (!isAtEnd(token)) {
        if (token == QXmlStreamReader::StartElement)
            ++depth;
        else if (token == QXmlStreamReader::EndElement)
            --depth;
        token = reader.readNext();
        if (depth == 0)
            break;
    }
    return token;
}

void takeIfGiven(const QXmlStreamAttributes &attributes, QLatin1StringView name, QString &field)
{
    const QStringView value = attributes.value(name);
    if (!value.isEmpty())
        field = value.toString();
}

void takeMetadata(const QXmlStreamAttributes &attributes, VelmoSceneMetadataParser &metadata)
{
    takeIfGiven(attributes, "time-fps"_L1, metadata.timeFramerate);
    takeIfGiven(attributes, "bakestatus"_L1, metadata.bakeStatus);
    takeIfGiven(attributes, "actorcount"_L1, metadata.actorCount);
    takeIfGiven(attributes, "vehiclescount"_L1, metadata.vehicleCount);
    takeIfGiven(attributes, "background-name"_L1, metadata.backgroundName);

    QString version;
    takeIfGiven(attributes, "version"_L1, version);
    if (!version.isEmpty())
        metadata.version = VelmoVersion(version);
}

// Reads from the start of the root to the token behind its end.
Token readRoot(QXmlStreamReader &reader, VelmoSceneMetadataParser &metadata)
{
    Token token = reader.readNext();
    while (!isAtEnd(token)) {
        if (token == QXmlStreamReader::EndElement)
            return reader.readNext();
        if (token != QXmlStreamReader::StartElement) {
            token = reader.readNext();
        } else if (reader.name() == metadataName) {
            takeMetadata(reader.attributes(), metadata);
            skipElement(reader);
            // On purpose: the token behind the metadata, white space as a rule, is dropped unseen.
            token = reader.readNext();
        } else {
            token = skipElement(reader);
        }
    }
    return token;
}

void readScene(QXmlStreamReader &reader, VelmoSceneMetadataParser &metadata)
{
    Token token = reader.readNext();
    while (!isAtEnd(token)) {
        if (token != QXmlStreamReader::StartElement) {
            token = reader.readNext();
        } else if (reader.name() == sceneRootName) {
            token = readRoot(reader, metadata);
        } else {
            reader.raiseError(u"Not an scene file."_s);
            return;
        }
    }
}

// Opening a pipe or a device can block for ever, so only a regular file is tried.
bool openForReading(QFile &file)
{
    return QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly | QIODevice::Text);
}

} // namespace

VelmoSceneMetadataParser VelmoSceneMetadataParser::withDefaults()
{
    VelmoSceneMetadataParser parser;
    parser.actorCount = u"0"_s;
    parser.vehicleCount = u"0"_s;
    parser.backgroundName = u"(Undetected)"_s;
    return parser;
}

bool VelmoSceneMetadataParser::parse(const QString &path)
{
    const ReadResult result = read(path);
    report(result);
    return result.ok;
}

VelmoSceneMetadataParser::ReadResult VelmoSceneMetadataParser::read(const QString &path)
{
    // Qt prints a warning about a path that no file can have.
    if (path.contains(QChar::Null) || !QFile::exists(path))
        return {};

    QFile file(path);
    if (!openForReading(file)) {
        return {false, QCoreApplication::translate("VelmoSceneMetadataParser", "Not valid xml file."),
                path + QCoreApplication::translate("VelmoSceneMetadataParser", "file can't be read.")};
    }

    QXmlStreamReader reader(&file);
    readScene(reader, *this);

    // Closing the file forgets its error.
    const bool readingFailed = file.error() != QFileDevice::NoError;
    const QString failure = file.errorString();
    file.close();

    if (reader.hasError())
        return {};
    if (readingFailed) {
        return {false, QCoreApplication::translate("VelmoSceneMetadataParser", "Error."),
                QCoreApplication::translate("VelmoSceneMetadataParser", "Cannot read file %1: %2").arg(path, failure)};
    }
    return {true, {}, {}};
}

void VelmoSceneMetadataParser::report(const ReadResult &result)
{
    if (result.warningTitle.isEmpty() && result.warningText.isEmpty())
        return;

    QMessageBox box(QMessageBox::Warning, result.warningTitle, result.warningText, QMessageBox::Ok);
    // A path is shown as it is typed, even when it looks like markup.
    box.setTextFormat(Qt::PlainText);
    box.exec();
}
