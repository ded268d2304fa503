#include "scenes/SceneContentReader.h"

#include "scenes/SceneAttributes.h"
#include "scenes/SceneTags.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Reads a file and keeps what has been read.
class KeepingDevice : public QIODevice
{
public:
    KeepingDevice(QFile *file, QByteArray *kept) : m_file(file), m_kept(kept) { open(ReadOnly | Unbuffered); }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const qint64 count = m_file->read(data, size);
        m_kept->append(data, std::max<qint64>(0, count));
        return count;
    }
    qint64 writeData(const char * /*data*/, qint64 /*size*/) override { return -1; }

private:
    QFile *m_file;
    QByteArray *m_kept;
};

} // namespace

bool SceneContentReader::read(const QString &path, Scene *scene)
{
    *scene = Scene();
    scene->name = QFileInfo(path).completeBaseName();
    scene->path = path;
    m_scene = scene;
    const auto refuse = [this](const QString &problem) {
        m_problem = problem;
        return false;
    };

    QFile file(path);
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile())
        return refuse(tr("\"%1\" is not a file.").arg(scene->name));
    if (!file.open(QIODevice::ReadOnly))
        return refuse(tr("\"%1\" cannot be opened: %2").arg(scene->name, file.errorString()));
    KeepingDevice device(&file, &scene->document);
    m_xml.setDevice(&device);
    m_size = file.size();
    if (!m_xml.readNextStartElement() || m_xml.name() != "VelmoSerializer"_L1)
        return refuse(tr("\"%1\" is not a scene.").arg(scene->name));

    while (!m_xml.atEnd() && !m_cancelled) {
        if (m_xml.readNext() == QXmlStreamReader::StartElement)
            readElement();
        report();
    }
    if (m_cancelled)
        return refuse(cancelledText(scene->name));
    if (file.error() != QFileDevice::NoError)
        return refuse(tr("\"%1\" cannot be read: %2").arg(scene->name, file.errorString()));
    if (m_xml.hasError()) {
        return refuse(tr("\"%1\" is damaged in line %2: %3")
                          .arg(scene->name, QString::number(m_xml.lineNumber()), m_xml.errorString()));
    }
    SceneTags::setAsideUnused(scene, m_settledTags);
    return true;
}

QString SceneContentReader::cancelledText(const QString &name)
{
    return tr("Opening \"%1\" has been cancelled.").arg(name);
}

QString SceneContentReader::problem() const
{
    return m_problem;
}

void SceneContentReader::readElement()
{
    const auto step = [this](const QString &words) {
        if (onStep)
            onStep(words);
    };
    const QStringView name = m_xml.name();
    if (name == "scenemetadata"_L1) {
        m_scene->version = text("version"_L1);
        if (const QString status = text("bakestatus"_L1); !status.isEmpty())
            m_scene->bakeStatus = status;
    } else if (name == "background"_L1) {
        step(tr("Reading the ground"));
        m_scene->groundName = text("name"_L1);
        m_scene->ground = {number("width"_L1), number("depth"_L1)};
    } else if (name == "timeline"_L1) {
        m_scene->frames = std::max(0, SceneAttributes::wholeNumber(m_xml.attributes(), "frames"_L1));
        m_scene->framesPerSecond = SceneAttributes::framesPerSecond(m_xml.attributes());
    } else if (name == "crop"_L1) {
        m_scene->cropFirst = SceneAttributes::wholeNumber(m_xml.attributes(), "first"_L1);
        m_scene->cropLast = SceneAttributes::wholeNumber(m_xml.attributes(), "last"_L1, -1);
    } else if (name == "bake"_L1) {
        m_scene->bakedFrames = SceneAttributes::bakedFrames(m_xml.attributes());
        if (m_scene->bakeStatus.isEmpty())
            m_scene->bakeStatus = text("status"_L1);
    } else if (name == "crowd"_L1) {
        readCrowd();
    } else if (name == "wall"_L1) {
        readWall();
    } else if (name == "tag"_L1) {
        m_scene->tags.append(SceneAttributes::tag(m_xml.attributes()));
        if (SceneAttributes::tellsStanding(m_xml.attributes()))
            m_settledTags.insert(m_scene->tags.last().name);
    } else if (name == "actors"_L1) {
        step(tr("Reading people"));
    } else if (name == "actor"_L1) {
        readMover(&m_scene->people);
    } else if (name == "vehicles"_L1) {
        step(tr("Reading vehicles"));
    } else if (name == "vehicle"_L1) {
        readMover(&m_scene->vehicles);
    }
}

void SceneContentReader::readWall()
{
    QPolygonF wall;
    while (!m_cancelled && m_xml.readNextStartElement()) {
        if (m_xml.name() == "point"_L1)
            wall << point();
        skipElement();
    }
    m_scene->walls.append(wall);
}

void SceneContentReader::readCrowd()
{
    CrowdSettings crowd;
    crowd.count = std::max(0, SceneAttributes::wholeNumber(m_xml.attributes(), "count"_L1));
    crowd.slowest = number("slowest"_L1, crowd.slowest);
    crowd.fastest = number("fastest"_L1, crowd.fastest);
    crowd.spacing = number("spacing"_L1, crowd.spacing);
    crowd.turnRate = number("turn-rate"_L1, crowd.turnRate);
    crowd.seed = SceneAttributes::wholeNumber(m_xml.attributes(), "seed"_L1, crowd.seed);
    while (!m_cancelled && m_xml.readNextStartElement()) {
        if (m_xml.name() == "share"_L1)
            crowd.shares.append({text("type"_L1), number("percent"_L1)});
        skipElement();
    }
    m_scene->crowd = crowd;
}

void SceneContentReader::readMover(QList<SceneMover> *movers)
{
    SceneMover mover;
    mover.name = text("name"_L1);
    mover.type = text("type"_L1);
    mover.tags = SceneAttributes::tagIds(m_xml.attributes());
    while (!m_cancelled && m_xml.readNextStartElement()) {
        const QStringView name = m_xml.name();
        if (name == "position"_L1) {
            mover.position = point();
            mover.heading = number("heading"_L1);
        } else if (name == "goal"_L1) {
            mover.goal = point();
            mover.hasGoal = true;
        } else if (name == "speed"_L1) {
            mover.preferredSpeed = number("preferred"_L1, mover.preferredSpeed);
            mover.maximumSpeed = number("maximum"_L1, mover.maximumSpeed);
        }
        skipElement();
    }
    movers->append(mover);
}

/// Like the toolkit's own, but it can be cancelled.
void SceneContentReader::skipElement()
{
    for (int depth = 1; depth > 0 && !m_xml.atEnd() && !m_cancelled; report()) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::StartElement)
            ++depth;
        else if (token == QXmlStreamReader::EndElement)
            --depth;
    }
}

void SceneContentReader::report()
{
    m_cancelled = m_cancelled || (isCancelled && isCancelled());
    const int percent = m_size > 0 ? int(m_scene->document.size() * 100 / m_size) : 0;
    if (percent == m_percent)
        return;
    m_percent = percent;
    if (onPercent)
        onPercent(percent);
}

double SceneContentReader::number(QLatin1String attribute, double otherwise) const
{
    return SceneAttributes::number(m_xml.attributes(), attribute, otherwise);
}

QString SceneContentReader::text(QLatin1String attribute) const
{
    return SceneAttributes::text(m_xml.attributes(), attribute);
}

QPointF SceneContentReader::point() const
{
    return {number("x"_L1), number("y"_L1)};
}
