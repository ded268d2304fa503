#include "scenes/SceneContentWriter.h"

#include "VelmoVersion.h"
#include "scenes/SceneAttributes.h"
#include "scenes/SceneTags.h"

#include <QLocale>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// What a document can hold of a text.
QString writable(QString text)
{
    const auto isBad = [](QChar character) {
        const char16_t code = character.unicode();
        return (code < u' ' && code != u'\t' && code != u'\n' && code != u'\r') || code >= u'\xFFFE';
    };
    text.removeIf(isBad);
    return text.isValidUtf16() ? text : QString::fromUtf8(text.toUtf8());
}

QString exactly(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

QString lineBreak(int depth)
{
    return u'\n' + QString(qsizetype(4) * depth, u' ');
}

QString joined(const QList<int> &ids)
{
    QStringList words;
    for (const int id : ids)
        words << QString::number(id);
    return words.join(u' ');
}

} // namespace

class SceneContentWriter::Attributes
{
public:
    Attributes() = default;
    explicit Attributes(const QXmlStreamAttributes &original) : m_original(original)
    {
        for (const QXmlStreamAttribute &attribute : original) {
            if (!attribute.isDefault()) // those are in the document's own definition
                m_all.append({attribute.qualifiedName().toString(), attribute.value().toString()});
        }
    }

    /// As they were read.
    const QXmlStreamAttributes &original() const { return m_original; }
    bool has(QLatin1String name) const { return m_original.hasAttribute(name); }

    void set(QLatin1String name, const QString &value)
    {
        const auto found =
            std::find_if(m_all.begin(), m_all.end(), [name](const auto &attribute) { return attribute.first == name; });
        if (found != m_all.end())
            found->second = writable(value);
        else
            m_all.append({name, writable(value)});
    }
    void set(QLatin1String name, int value) { set(name, QString::number(value)); }
    void remove(QLatin1String name)
    {
        m_all.removeIf([name](const auto &attribute) { return attribute.first == name; });
    }

    void writeTo(QXmlStreamWriter &out) const
    {
        for (const auto &[name, value] : m_all)
            out.writeAttribute(name, value);
    }

private:
    QXmlStreamAttributes m_original;
    QList<std::pair<QString, QString>> m_all;
};

SceneContentWriter::SceneContentWriter(const Scene &scene) : m_scene(scene), m_in(scene.document), m_out(&m_document)
{
    Scene untold = scene;
    SceneTags::setAsideUnused(&untold);
    m_untoldTags = untold.tags;
    m_in.setNamespaceProcessing(false); // prefixes stay as they are
}

bool SceneContentWriter::write()
{
    while (!m_in.atEnd()) {
        m_in.readNext();
        copyToken();
    }
    if (m_in.hasError())
        m_problem = m_in.errorString();
    else if (m_out.hasError())
        m_problem = tr("It holds characters that no scene file can hold.");
    return m_problem.isEmpty();
}

QByteArray SceneContentWriter::document() const
{
    return m_document;
}

QString SceneContentWriter::problem() const
{
    return m_problem;
}

void SceneContentWriter::copyToken()
{
    switch (m_in.tokenType()) {
    case QXmlStreamReader::Invalid:
    case QXmlStreamReader::NoToken:
        return;
    case QXmlStreamReader::StartDocument:
        if (m_in.isStandaloneDocument())
            m_out.writeStartDocument(u"1.0"_s, true);
        else
            m_out.writeStartDocument();
        return;
    case QXmlStreamReader::StartElement:
        copyStart();
        return;
    case QXmlStreamReader::EndElement:
        copyEnd();
        return;
    case QXmlStreamReader::Characters:
        if (m_in.isWhitespace() && !m_in.isCDATA()) {
            m_space += m_in.text();
            return;
        }
        writeSpace();
        if (m_in.isCDATA())
            m_out.writeCDATA(m_in.text().toString());
        else
            writeText(m_in.text().toString());
        return;
    case QXmlStreamReader::EndDocument:
        m_out.writeEndDocument();
        return;
    case QXmlStreamReader::DTD:
        writeSpace();
        m_out.writeDTD(m_in.text().trimmed().toString());
        return;
    case QXmlStreamReader::Comment:
    case QXmlStreamReader::EntityReference:
    case QXmlStreamReader::ProcessingInstruction:
        writeSpace();
        m_out.writeCurrentToken(m_in);
        return;
    }
}

void SceneContentWriter::copyStart()
{
    const QString name = m_in.qualifiedName().toString();
    const QString kind = m_in.name().toString();
    Attributes attributes(m_in.attributes());
    const bool isShare = m_isInCrowd && m_depth == m_closedDepth && kind == "share"_L1;
    const bool isOpen = m_closedDepth == 0;
    if (isShare || (isOpen && kind == "tag"_L1 && !editTag(&attributes))) {
        m_in.skipCurrentElement();
        m_space.clear();
        return;
    }
    if (isOpen)
        edit(&attributes);
    writeSpace();
    startElement(name, attributes);
    ++m_depth;
    if (!isOpen)
        return;
    m_isInCrowd = kind == "crowd"_L1;
    if (m_isInCrowd || kind == "wall"_L1 || kind == "actor"_L1 || kind == "vehicle"_L1)
        m_closedDepth = m_depth;
}

void SceneContentWriter::copyEnd()
{
    const QStringView kind = m_in.name();
    if (m_depth == m_closedDepth) {
        if (m_isInCrowd)
            addShares();
        m_isInCrowd = false;
        m_closedDepth = 0;
    } else if (m_closedDepth == 0) {
        if (kind == "tags"_L1)
            addTags();
        else if (kind == "timeline"_L1 && m_scene.hasCrop() && !m_seen.contains(u"crop"_s))
            addCrop(m_depth);
        else if (m_depth == 1)
            addMissing();
    }
    endElement();
    // Readers of the facts alone need something between them and the next element.
    m_needsSpace = kind == "scenemetadata"_L1 && m_depth == 1;
}

void SceneContentWriter::edit(Attributes *attributes)
{
    const QString kind = m_in.name().toString();
    if (kind == "scenemetadata"_L1) {
        editMetadata(attributes);
        if (m_depth != 1)
            return; // not where lists of scenes look for it
    } else if (kind == "timeline"_L1) {
        editTimeline(attributes);
    } else if (kind == "crop"_L1) {
        editCrop(attributes);
    } else if (kind == "bake"_L1) {
        editBake(attributes);
    } else if (kind == "crowd"_L1) {
        editCrowd(attributes);
    } else if (kind == "actor"_L1) {
        editMover(attributes, m_scene.people, m_nextPerson++);
    } else if (kind == "vehicle"_L1) {
        editMover(attributes, m_scene.vehicles, m_nextVehicle++);
    }
    m_seen.insert(kind);
}

void SceneContentWriter::editMetadata(Attributes *attributes) const
{
    // What the scene does not know stays as it was told, and is told as a new scene does where it was not.
    const auto tell = [attributes](QLatin1String name, const QString &value, const QString &unknown) {
        if (!value.isEmpty())
            attributes->set(name, value);
        else if (!attributes->original().hasAttribute(name))
            attributes->set(name, unknown);
    };
    attributes->set("time-fps"_L1, m_scene.timeText());
    attributes->set("actorcount"_L1, QString::number(m_scene.crowdSize()));
    attributes->set("vehiclescount"_L1, QString::number(m_scene.vehicles.size()));
    tell("version"_L1, m_scene.version, VelmoVersion::current().toString());
    tell("bakestatus"_L1, m_scene.bakeStatus, Scene::notBakedStatus());
    tell("background-name"_L1, m_scene.groundName, Scene::noGroundName());
}

void SceneContentWriter::editTimeline(Attributes *attributes) const
{
    const QXmlStreamAttributes &original = attributes->original();
    if (std::max(0, SceneAttributes::wholeNumber(original, "frames"_L1)) != m_scene.frames)
        attributes->set("frames"_L1, m_scene.frames);
    if (SceneAttributes::framesPerSecond(original) != m_scene.framesPerSecond)
        attributes->set("fps"_L1, exactly(m_scene.framesPerSecond));
}

void SceneContentWriter::editCrop(Attributes *attributes) const
{
    const QXmlStreamAttributes &original = attributes->original();
    if (SceneAttributes::wholeNumber(original, "first"_L1) != m_scene.cropFirst)
        attributes->set("first"_L1, m_scene.cropFirst);
    if (SceneAttributes::wholeNumber(original, "last"_L1, -1) != m_scene.cropLast)
        attributes->set("last"_L1, m_scene.cropLast);
}

void SceneContentWriter::editBake(Attributes *attributes) const
{
    if (!m_scene.bakeStatus.isEmpty())
        attributes->set("status"_L1, m_scene.bakeStatus);
    if (SceneAttributes::bakedFrames(attributes->original()) == m_scene.bakedFrames)
        return;
    if (m_scene.bakedFrames > 0) {
        attributes->set("first"_L1, 0);
        attributes->set("last"_L1, m_scene.bakedFrames - 1);
    } else {
        attributes->remove("first"_L1);
        attributes->remove("last"_L1);
    }
}

void SceneContentWriter::editCrowd(Attributes *attributes) const
{
    if (!m_scene.crowd)
        return;
    attributes->set("count"_L1, m_scene.crowd->count);
    attributes->set("slowest"_L1, exactly(m_scene.crowd->slowest));
    attributes->set("fastest"_L1, exactly(m_scene.crowd->fastest));
    attributes->set("spacing"_L1, exactly(m_scene.crowd->spacing));
    attributes->set("turn-rate"_L1, exactly(m_scene.crowd->turnRate));
    attributes->set("seed"_L1, m_scene.crowd->seed);
}

bool SceneContentWriter::editTag(Attributes *attributes)
{
    if (m_nextTag >= m_scene.tags.size())
        return false;
    const SceneTag &tag = m_scene.tags[m_nextTag];
    const SceneTag original = SceneAttributes::tag(attributes->original());
    if (original.id != tag.id || original.name != tag.name || original.colour != tag.colour)
        return false; // tags go, and new ones come behind those that stay
    if (attributes->has("assigned"_L1) || tag.isAssigned != m_untoldTags[m_nextTag].isAssigned)
        attributes->set("assigned"_L1, tag.isAssigned ? u"true"_s : u"false"_s);
    ++m_nextTag;
    return true;
}

void SceneContentWriter::editMover(Attributes *attributes, const QList<SceneMover> &movers, qsizetype index) const
{
    if (index < movers.size() && SceneAttributes::tagIds(attributes->original()) != movers[index].tags)
        attributes->set("tags"_L1, joined(movers[index].tags));
}

void SceneContentWriter::addTags()
{
    for (; m_nextTag < m_scene.tags.size(); ++m_nextTag) {
        const SceneTag &tag = m_scene.tags[m_nextTag];
        Attributes attributes;
        attributes.set("id"_L1, tag.id);
        attributes.set("name"_L1, tag.name);
        if (tag.colour.isValid())
            attributes.set("color"_L1, tag.colour.name());
        if (tag.isAssigned != m_untoldTags[m_nextTag].isAssigned)
            attributes.set("assigned"_L1, tag.isAssigned ? u"true"_s : u"false"_s);
        addElement(u"tag"_s, m_depth, attributes);
        m_out.writeEndElement();
    }
}

void SceneContentWriter::addShares()
{
    if (!m_scene.crowd)
        return;
    for (const CrowdSettings::Share &share : m_scene.crowd->shares) {
        Attributes attributes;
        attributes.set("type"_L1, share.type);
        attributes.set("percent"_L1, exactly(share.percent));
        addElement(u"share"_s, m_depth, attributes);
        m_out.writeEndElement();
    }
}

void SceneContentWriter::addCrop(int depth)
{
    Attributes attributes;
    attributes.set("first"_L1, m_scene.cropFirst);
    attributes.set("last"_L1, m_scene.cropLast);
    addElement(u"crop"_s, depth, attributes);
    m_out.writeEndElement();
    m_seen.insert(u"crop"_s);
}

void SceneContentWriter::addMissing()
{
    const QString rootSpace = m_space;
    const auto start = [this](const QString &name, const Attributes &attributes) {
        addElement(name, m_depth, attributes);
        ++m_depth;
        m_space.clear();
    };
    const auto end = [this, &rootSpace] {
        endElement();
        m_space = rootSpace.isEmpty() ? lineBreak(0) : rootSpace;
    };
    Attributes attributes;
    if (!m_seen.contains(u"scenemetadata"_s)) {
        editMetadata(&attributes);
        start(u"scenemetadata"_s, std::exchange(attributes, {}));
        end();
    }
    if (!m_seen.contains(u"timeline"_s) && m_scene.frames > 0) {
        attributes.set("frames"_L1, m_scene.frames);
        attributes.set("fps"_L1, exactly(m_scene.framesPerSecond));
        start(u"timeline"_s, std::exchange(attributes, {}));
        if (m_scene.hasCrop() && !m_seen.contains(u"crop"_s))
            addCrop(m_depth);
        end();
    }
    if (!m_seen.contains(u"bake"_s) && m_scene.bakedFrames > 0) {
        editBake(&attributes);
        start(u"bake"_s, std::exchange(attributes, {}));
        end();
    }
    if (!m_seen.contains(u"crowd"_s) && m_scene.crowd) {
        editCrowd(&attributes);
        start(u"crowd"_s, attributes);
        addShares();
        end();
    }
    if (m_nextTag < m_scene.tags.size()) {
        start(u"tags"_s, Attributes());
        addTags();
        end();
    }
}

/// Behind what there is inside of its parent, on a line of its own. White space that has not been written is that in
/// front of the parent's end, and stays there.
void SceneContentWriter::addElement(const QString &name, int depth, const Attributes &attributes)
{
    m_out.writeCharacters(lineBreak(depth));
    startElement(name, attributes);
    if (m_space.isEmpty())
        m_space = lineBreak(depth - 1);
}

void SceneContentWriter::startElement(const QString &name, const Attributes &attributes)
{
    m_out.writeStartElement(name);
    attributes.writeTo(m_out);
}

void SceneContentWriter::endElement()
{
    writeSpace();
    m_out.writeEndElement();
    --m_depth;
}

void SceneContentWriter::writeSpace()
{
    if (m_depth == 0 || (m_needsSpace && m_space.isEmpty()))
        m_space = lineBreak(m_depth);
    m_needsSpace = false;
    if (!m_space.isEmpty())
        writeText(std::exchange(m_space, QString()));
}

/// A carriage return has to be a reference: else it would be read as a line feed.
void SceneContentWriter::writeText(const QString &text)
{
    const QStringList parts = text.split(u'\r');
    for (qsizetype i = 0; i < parts.size(); ++i) {
        if (i > 0)
            m_out.writeEntityReference(u"#13"_s);
        m_out.writeCharacters(parts[i]);
    }
}
