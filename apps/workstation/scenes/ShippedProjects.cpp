#include "scenes/ShippedProjects.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

QString ShippedProjects::firstExisting(const QStringList &candidates)
{
    const auto found = std::find_if(candidates.cbegin(), candidates.cend(),
                                    [](const QString &candidate) { return QFileInfo(candidate).isDir(); });
    return found != candidates.cend() ? *found : candidates.value(0);
}

QString ShippedProjects::folder()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    return QDir::cleanPath(firstExisting({
        programs.filePath(u"../share/velmo2/projects"_s),
        programs.filePath(u"projects"_s),
        QStringLiteral(WORKSTATION_SOURCE_PROJECTS),
    }));
}
