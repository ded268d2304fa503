#include "support/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

void Files::write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly)
        || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

QByteArray Files::read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool Files::onFullDisk(const std::function<void()> &act)
{
#ifdef Q_OS_UNIX
    rlimit before{};
    if (getrlimit(RLIMIT_FSIZE, &before) != 0)
        return false;
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit little{50000, before.rlim_max};
    if (setrlimit(RLIMIT_FSIZE, &little) != 0)
        return false;
    act();
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    return true;
#else
    Q_UNUSED(act)
    return false;
#endif
}
