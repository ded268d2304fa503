#include "scenes/SceneContentReader.h"

#include "scenes/SceneTags.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

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
    m_xml.setDevice(&file);
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
    if (m_xml.hasError()) {
        return refuse(tr("\"%1\" is damaged in line %2: %3")
                          .arg(scene->name, QString::number(m_xml.lineNumber()), m_xml.errorString()));
    }
    SceneTags::setAsideUnused(scene);
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
        m_scene->bakeStatus = text("bakestatus"_L1);
    } else if (name == "background"_L1) {
        step(tr("Reading the ground"));
        m_scene->groundName = text("name"_L1);
        m_scene->ground = {number("width"_L1), number("depth"_L1)};
    } else if (name == "timeline"_L1) {
        m_scene->frames = std::max(0, int(number("frames"_L1)));
        m_scene->framesPerSecond = std::clamp(int(number("fps"_L1, 25)), 1, 240);
    } else if (name == "crop"_L1) {
        m_scene->cropFirst = int(number("first"_L1));
        m_scene->cropLast = int(number("last"_L1));
    } else if (name == "wall"_L1) {
        readWall();
    } else if (name == "tag"_L1) {
        m_scene->tags.append({text("id"_L1).toInt(), text("name"_L1), QColor(text("color"_L1))});
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

void SceneContentReader::readMover(QList<SceneMover> *movers)
{
    SceneMover mover;
    mover.name = text("name"_L1);
    mover.type = text("type"_L1);
    // Older releases separate them by commas.
    const QStringList tags = text("tags"_L1).replace(u',', u' ').split(u' ', Qt::SkipEmptyParts);
    for (const QString &tag : tags)
        mover.tags << tag.toInt();
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
    const int percent = m_size > 0 ? int(m_xml.device()->pos() * 100 / m_size) : 0;
    if (percent == m_percent)
        return;
    m_percent = percent;
    if (onPercent)
        onPercent(percent);
}

double SceneContentReader::number(QLatin1String attribute, double otherwise) const
{
    constexpr double largest = 1e6;
    bool isNumber = false;
    const double value = m_xml.attributes().value(attribute).toDouble(&isNumber);
    return isNumber && std::abs(value) <= largest ? value : otherwise;
}

QString SceneContentReader::text(QLatin1String attribute) const
{
    return m_xml.attributes().value(attribute).toString();
}

QPointF SceneContentReader::point() const
{
    return {number("x"_L1), number("y"_L1)};
}
