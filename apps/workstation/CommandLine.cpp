#include "CommandLine.h"

#include <QCommandLineParser>
#include <QDir>

using namespace Qt::StringLiterals;

namespace {

CommandLine refuse(const QString &message)
{
    CommandLine line;
    line.task = CommandLine::Task::Refuse;
    line.message = message;
    return line;
}

/// The toolkit's own options. An application with a display never gets to see them.
QStringList toolkitOptions()
{
    return {u"display"_s,       u"fontengine"_s,      u"plugin"_s,      u"platformpluginpath"_s,
            u"platformtheme"_s, u"qwindowgeometry"_s, u"qwindowicon"_s, u"qwindowtitle"_s,
            u"session"_s,       u"style"_s,           u"stylesheet"_s};
}

CommandLine justDo(CommandLine::Task task, const QString &message = {})
{
    CommandLine line;
    line.task = task;
    line.message = message;
    return line;
}

} // namespace

CommandLine CommandLine::parse(const QStringList &arguments, const QString &currentFolder)
{
    const QCommandLineOption gallery(u"gallery"_s,
                                     tr("Open the pages that show every widget; the argument names a page."));
    const QCommandLineOption shots(u"shots"_s, tr("Draw every window and page into pictures in this folder."),
                                   tr("folder"));
    const QCommandLineOption platform(u"platform"_s, tr("The toolkit's platform plug-in."), tr("name"));
    QCommandLineOption scale(u"scale"_s, tr("Draw the pictures at this scale only."), tr("factor"));
    scale.setFlags(QCommandLineOption::HiddenFromHelp);

    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(tr("Lists the scenes of crowd simulation projects."));
    const QCommandLineOption help({u"h"_s, u"help"_s}, tr("Show this help."));
    const QCommandLineOption version = parser.addVersionOption();
    parser.addOptions({gallery, shots, platform, scale, help});
    for (const QString &name : toolkitOptions()) {
        QCommandLineOption option(name, {}, u"value"_s);
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(option);
    }
    parser.addPositionalArgument(tr("folder"), tr("The folder of projects; the shipped ones when left out."),
                                 tr("[folder]"));

    if (!parser.parse(arguments))
        return refuse(parser.errorText());
    if (parser.isSet(help))
        return justDo(Task::Help, parser.helpText());
    if (parser.isSet(version))
        return justDo(Task::Version);

    const QStringList names = parser.positionalArguments();
    if (names.size() > 1)
        return refuse(tr("Only one folder or page can be opened, not %1.").arg(names.size()));

    const QDir here(currentFolder);
    CommandLine line;
    line.shotsPlatform = parser.value(platform);
    if (parser.isSet(gallery)) {
        line.task = Task::Gallery;
        line.galleryPage = names.value(0);
    } else if (!names.isEmpty()) {
        line.projectsFolder = QDir::cleanPath(here.absoluteFilePath(names.first()));
    }
    // The pictures have the gallery in them anyway.
    if (parser.isSet(shots)) {
        if (parser.value(shots).isEmpty())
            return refuse(tr("The folder for the pictures has no name."));
        line.task = Task::Shots;
        line.shotsFolder = QDir::cleanPath(here.absoluteFilePath(parser.value(shots)));
    }
    if (parser.isSet(scale)) {
        bool isNumber = false;
        line.shotsScale = parser.value(scale).toDouble(&isNumber);
        if (!isNumber || line.shotsScale < 1 || line.shotsScale > 4)
            return refuse(tr("The scale has to be a number from 1 to 4, not \"%1\".").arg(parser.value(scale)));
    }
    return line;
}
