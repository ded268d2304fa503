#include "scenes/SceneNames.h"

#include "scenes/SceneFile.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Neither 255 bytes nor 255 UTF-16 units may be passed, whichever the file system counts. A file is written under a
// temporary name first, which is seven longer.
constexpr qsizetype longestFileName = 255 - 7;

constexpr auto separatorsAndWildcards = R"(<>:"/\|?*)"_L1;

bool isControl(QChar character)
{
    return character < u' ' || character == u'\x7f';
}

/// Device names of Windows stay device names with any ending behind them.
bool isReserved(const QString &name)
{
    const QString device = name.section(u'.', 0, 0).trimmed().toUpper();
    if (QStringList({u"CON"_s, u"PRN"_s, u"AUX"_s, u"NUL"_s, u"CONIN$"_s, u"CONOUT$"_s}).contains(device))
        return true;
    const bool isPort = device.size() == 4 && (device.startsWith("COM"_L1) || device.startsWith("LPT"_L1));
    return isPort && u"0123456789\u00b9\u00b2\u00b3"_s.contains(device.back());
}

} // namespace

QString SceneNames::problem(const QString &name)
{
    if (name.trimmed().isEmpty())
        return tr("A scene needs a name.");
    if (std::any_of(name.cbegin(), name.cend(), [](QChar c) { return QString(separatorsAndWildcards).contains(c); }))
        return tr("A name cannot contain any of %1").arg(separatorsAndWildcards);
    if (std::any_of(name.cbegin(), name.cend(), isControl) || !name.isValidUtf16())
        return tr("A name cannot contain control characters.");
    if (name.startsWith(u'.'))
        return tr("A name cannot start with a dot: the file would be hidden.");
    if (name.endsWith(u'.') || name.back().isSpace())
        return tr("A name cannot end with a dot or a blank.");
    if (isReserved(name))
        return tr("This name is reserved by the system.");
    if ((name + SceneFile::ending()).toUtf8().size() > longestFileName)
        return tr("This name is too long.");
    return {};
}

QString SceneNames::firstFree(const QString &base, const std::function<bool(const QString &)> &isTaken)
{
    QString name = base;
    for (int number = 2; isTaken(name); ++number)
        name = u"%1 %2"_s.arg(base, QString::number(number));
    return name;
}
