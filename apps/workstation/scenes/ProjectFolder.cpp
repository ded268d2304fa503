#include "scenes/ProjectFolder.h"

#include "VelmoVersion.h"
#include "scenes/Scene.h"
#include "scenes/SceneNames.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QXmlStreamWriter>

#include <algorithm>
#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 blockSize = 1 << 20;

bool comesBefore(const QString &left, const QString &right)
{
    const int order = left.compare(right, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : left < right;
}

/// What was wrong, empty when nothing was. For names of the same file, which cannot be claimed.
QString renameInPlace(const QString &path, const QString &newPath)
{
    QFile file(path);
    return file.rename(newPath) ? QString() : file.errorString();
}

/// The same for a name that nobody has. The toolkit copies where it cannot rename, over whatever has got the name
/// meanwhile: so the name is taken first, and then renamed to or not.
QString renameOntoClaim(const QString &path, const QString &newPath)
{
    QFile claim(newPath);
    if (!claim.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return claim.errorString();
    claim.close();
    std::error_code error;
    std::filesystem::rename(QFile(path).filesystemFileName(), claim.filesystemFileName(), error);
    if (!error)
        return {};
    claim.remove();
    return QString::fromLocal8Bit(error.message().c_str());
}

void writeEmptyScene(QIODevice &file)
{
    QXmlStreamWriter writer(&file);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(u"VelmoSerializer"_s);
    writer.writeStartElement(u"scenemetadata"_s);
    writer.writeAttribute(u"version"_s, VelmoVersion::current().toString());
    writer.writeAttribute(u"time-fps"_s, Scene().timeText());
    writer.writeAttribute(u"bakestatus"_s, Scene::notBakedStatus());
    writer.writeAttribute(u"actorcount"_s, u"0"_s);
    writer.writeAttribute(u"vehiclescount"_s, u"0"_s);
    writer.writeAttribute(u"background-name"_s, Scene::noGroundName());
    writer.writeEndElement();
    writer.writeEndElement();
    writer.writeEndDocument();
}

} // namespace

QList<ProjectFolder> ProjectFolder::projectsIn(const QString &folder)
{
    QList<ProjectFolder> projects;
    const QStringList names = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::NoSort);
    for (const QString &name : names)
        projects << ProjectFolder(QDir(folder).absoluteFilePath(name));
    std::sort(projects.begin(), projects.end(), [](const ProjectFolder &left, const ProjectFolder &right) {
        return comesBefore(left.name(), right.name());
    });
    return projects;
}

ProjectFolder::ProjectFolder(const QString &path) : m_path(path)
{ }

QString ProjectFolder::name() const
{
    return QFileInfo(m_path).fileName();
}

QString ProjectFolder::path() const
{
    return m_path;
}

QDateTime ProjectFolder::lastModified() const
{
    return QFileInfo(m_path).lastModified();
}

QString ProjectFolder::problem() const
{
    const QFileInfo folder(m_path);
    if (!folder.isDir())
        return tr("The folder of this project is missing.");
    return folder.isReadable() ? QString() : tr("The folder of this project cannot be read.");
}

QList<SceneFile> ProjectFolder::scenes() const
{
    QList<SceneFile> scenes;
    const QDir folder(m_path);
    const QStringList fileNames = folder.entryList({u'*' + SceneFile::ending()}, QDir::Files, QDir::NoSort);
    for (const QString &fileName : fileNames) {
        const QString name = fileName.chopped(SceneFile::ending().size());
        if (!name.isEmpty())
            scenes.append({name, folder.filePath(fileName)});
    }
    std::sort(scenes.begin(), scenes.end(),
              [](const SceneFile &left, const SceneFile &right) { return comesBefore(left.name, right.name); });
    return scenes;
}

ProjectFolder::Change ProjectFolder::renameScene(const SceneFile &scene, const QString &newName) const
{
    for (const QString &problem : {SceneNames::problem(newName), goneProblem(scene)}) {
        if (!problem.isEmpty())
            return {scene, problem};
    }

    const QString oldFileName = QFileInfo(scene.path).fileName();
    const QString newFileName = newName + oldFileName.right(SceneFile::ending().size());
    if (isTaken(newFileName, oldFileName))
        return {scene, tr("There is already a scene called \"%1\".").arg(newName)};

    const QString newPath = QDir(m_path).filePath(newFileName);
    const QString problem = newFileName.compare(oldFileName, Qt::CaseInsensitive) == 0
        ? renameInPlace(scene.path, newPath)
        : renameOntoClaim(scene.path, newPath);
    if (!problem.isEmpty())
        return {scene, tr("The file cannot be renamed: %1").arg(problem)};
    return {{newName, newPath}, {}};
}

ProjectFolder::Change ProjectFolder::addScene() const
{
    return makeScene(tr("New scene"), [](QIODevice &file) {
        writeEmptyScene(file);
        return true;
    });
}

ProjectFolder::Change ProjectFolder::cloneScene(const SceneFile &scene) const
{
    if (const QString gone = goneProblem(scene); !gone.isEmpty())
        return {scene, gone};
    QFile original(scene.path);
    if (!original.open(QIODevice::ReadOnly))
        return {scene, tr("The scene cannot be read: %1").arg(original.errorString())};
    Change change = makeScene(tr("%1 copy").arg(scene.name), [&original](QIODevice &file) {
        while (true) {
            const QByteArray block = original.read(blockSize);
            if (block.isEmpty())
                return original.error() == QFileDevice::NoError;
            if (file.write(block) != block.size())
                return false;
        }
    });
    if (original.error() != QFileDevice::NoError)
        change.problem = tr("The scene cannot be read: %1").arg(original.errorString());
    return change;
}

ProjectFolder::Change ProjectFolder::deleteScene(const SceneFile &scene) const
{
    const QString gone = goneProblem(scene);
    if (!gone.isEmpty())
        return {scene, gone};
    QFile file(scene.path);
    if (!file.moveToTrash())
        return {scene, tr("\"%1\" cannot be moved to the trash: %2").arg(scene.name, file.errorString())};
    return {scene, {}};
}

ProjectFolder::Change ProjectFolder::removeScene(const SceneFile &scene) const
{
    const QString gone = goneProblem(scene);
    if (!gone.isEmpty())
        return {scene, gone};
    QFile file(scene.path);
    if (!file.remove())
        return {scene, tr("\"%1\" cannot be deleted: %2").arg(scene.name, file.errorString())};
    return {scene, {}};
}

QString ProjectFolder::goneProblem(const SceneFile &scene)
{
    return QFileInfo(scene.path).isFile() ? QString() : tr("There is no file of \"%1\" any more.").arg(scene.name);
}

ProjectFolder::Change ProjectFolder::makeScene(const QString &baseName,
                                               const std::function<bool(QIODevice &)> &write) const
{
    const QString name = SceneNames::firstFree(
        baseName, [this](const QString &candidate) { return isTaken(candidate + SceneFile::ending()); });
    const SceneFile scene{name, QDir(m_path).filePath(name + SceneFile::ending())};
    if (const QString problem = SceneNames::problem(name); !problem.isEmpty())
        return {scene, problem};

    // Whoever makes a file of this name first has it; only then is it safe to write over the file.
    QFile claim(scene.path);
    if (!claim.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return {scene, tr("The scene cannot be made: %1").arg(claim.errorString())};
    claim.close();

    QSaveFile file(scene.path);
    if (file.open(QIODevice::WriteOnly)) {
        if (!write(file))
            file.cancelWriting();
        if (file.commit())
            return {scene, {}};
    }
    claim.remove();
    return {scene, tr("The scene cannot be written: %1").arg(file.errorString())};
}

bool ProjectFolder::isTaken(const QString &fileName, const QString &exceptFileName) const
{
    const QStringList existing =
        QDir(m_path).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::NoSort);
    return std::any_of(existing.cbegin(), existing.cend(), [&](const QString &other) {
        return other != exceptFileName && other.compare(fileName, Qt::CaseInsensitive) == 0;
    });
}
