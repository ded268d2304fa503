#include "support/TestCase.h"

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QLocale>
#include <QRegularExpression>
#include <QStyle>
#include <QTest>
#include <QWidget>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

QStringList applicationState()
{
    return {
        u"style sheet: "_s + qApp->styleSheet(),
        u"style: "_s + QString::fromLatin1(qApp->style()->metaObject()->className()),
        u"font: "_s + QApplication::font().toString(),
        u"override cursor: "_s + QString::number(QApplication::overrideCursor() != nullptr),
        u"folder: "_s + QDir::currentPath(),
        u"locale: "_s + QLocale().name(),
        u"quits with the last window: "_s + QString::number(QApplication::quitOnLastWindowClosed()),
        u"version: "_s + QApplication::applicationVersion(),
    };
}

QStringList topLevelWindows()
{
    QStringList windows;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (const QWidget *widget : widgets)
        windows << QString::fromLatin1(widget->metaObject()->className()) + u' ' + widget->objectName();
    return windows;
}

} // namespace

int TestCase::run(int argc, char **argv, const std::function<std::unique_ptr<QObject>()> &createTest)
{
    std::vector<char *> arguments;
    for (int i = 0; i < argc; ++i) {
        if (i > 0 && i + 1 < argc && qstrcmp(argv[i], "--scale") == 0)
            qputenv("QT_SCALE_FACTOR", argv[++i]);
        else
            arguments.push_back(argv[i]);
    }
    int argumentCount = int(arguments.size());
    arguments.push_back(nullptr);

    QLocale::setDefault(QLocale::c());
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argumentCount, arguments.data());
    QFont font(u"Inter"_s);
    font.setPixelSize(11);
    QApplication::setFont(font);
    QApplication::setCursorFlashTime(0);

    return QTest::qExec(createTest().get(), argumentCount, arguments.data());
}

void TestCase::init()
{
    // The lists of the two-pane tag editor and the answers of the consent dialog have sheets that are meant to be
    // broken.
    static const QRegularExpression anyOther(u"^(?!This plugin does not support|Could not parse stylesheet of object "
                                             "(oVIXDragDropListWidget\\(0x[0-9a-f]+, name = \"(left|right)List\"\\)|"
                                             "QRadioButton\\(0x[0-9a-f]+\\))$)"_s,
                                             QRegularExpression::DotMatchesEverythingOption);
    QTest::failOnWarning(anyOther);
    m_stateBefore = applicationState();
}

void TestCase::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(topLevelWindows(), QStringList());
    QCOMPARE(applicationState(), m_stateBefore);
}
