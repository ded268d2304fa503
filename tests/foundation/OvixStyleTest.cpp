#include "support/Gestures.h"
#include "support/TestCase.h"

#include "foundation/oVIXStyle.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QProcess>
#include <QStyleFactory>
#include <QStyleOptionFocusRect>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr char childArgument[] = "--read-qt-paths";

QImage drawnFocusRectangle(const QStyle &style, QStyle::PrimitiveElement element)
{
    QImage image(40, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QStyleOptionFocusRect option;
    option.rect = image.rect();
    option.state = QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    QPainter painter(&image);
    style.drawPrimitive(element, &option, &painter);
    return image;
}

/// What the program does as its own child, before there is an application object.
int readPathsAndTell()
{
    oVIXStyle::readQtPaths();
    const QStringList told = QCoreApplication::libraryPaths() + QStringList(QDir::currentPath());
    std::fputs(qPrintable(told.join(u'\n')), stdout);
    return 0;
}

} // namespace

class OvixStyleTest : public TestCase
{
    Q_OBJECT

private slots:
    void sheetIsTheAgreedText()
    {
        const QString sheet = oVIXStyle::getAppStyleSheet();
        QCOMPARE(sheet.size(), 2456);
        QVERIFY(sheet.startsWith(u"QWidget {\tfont-family:\" + VELMO_FONT_REGULAR + \";}QWidget:disabled {"_s));
        QVERIFY(sheet.contains(u"}QMenu::item:selected {    color: rgb(116, 211, 252);     background-color:"_s));
        QVERIFY(sheet.contains(u"border: 1px solidrgb(39,39,39);    margin: 0;    padding-left: 10 px;"_s));
        QVERIFY(sheet.endsWith(u"subcontrol-position: top;    subcontrol-origin: margin;}"_s));
        // Every character of the rest.
        QCOMPARE(QCryptographicHash::hash(sheet.toUtf8(), QCryptographicHash::Sha256).toHex(),
                 "251dcc02dbedc32cd11be607af61637c6c5ca6f84f1ec522f82059ba076d9cf2");
    }

    void sheetIsTakenByTheToolkitWithoutComplaint()
    {
        QWidget window;
        window.setStyleSheet(oVIXStyle::getAppStyleSheet());
        QLabel label(u"x"_s, &window);
        label.setEnabled(false);
        Gestures::show(&window);
        QCOMPARE(label.palette().color(QPalette::Disabled, QPalette::WindowText), QColor(81, 81, 81));
    }

    void showsToolTipsAfter300Milliseconds()
    {
        const oVIXStyle style;
        const std::unique_ptr<QStyle> fusion(QStyleFactory::create(u"Fusion"_s));
        QWidget widget;
        const QStyleOption option;
        for (const QStyle::StyleHint hint : {QStyle::SH_ToolTip_WakeUpDelay, QStyle::SH_ToolTip_FallAsleepDelay}) {
            QCOMPARE(style.styleHint(hint), 300);
            QCOMPARE(style.styleHint(hint, &option, &widget), 300);
        }
        for (const QStyle::StyleHint hint : {QStyle::SH_EtchDisabledText, QStyle::SH_Menu_SubMenuPopupDelay,
                                             QStyle::SH_ToolTipLabel_Opacity, QStyle::SH_TabBar_Alignment})
            QCOMPARE(style.styleHint(hint, &option, &widget), fusion->styleHint(hint, &option, &widget));
    }

    void drawsFusionWithoutFocusRectangles()
    {
        const oVIXStyle style;
        const std::unique_ptr<QStyle> fusion(QStyleFactory::create(u"Fusion"_s));
        QImage blank(40, 20, QImage::Format_ARGB32_Premultiplied);
        blank.fill(Qt::white);
        QVERIFY(drawnFocusRectangle(*fusion, QStyle::PE_FrameFocusRect) != blank);
        QCOMPARE(drawnFocusRectangle(style, QStyle::PE_FrameFocusRect), blank);
        for (const QStyle::PrimitiveElement other : {QStyle::PE_FrameLineEdit, QStyle::PE_PanelMenu}) {
            QVERIFY(drawnFocusRectangle(style, other) != blank);
            QCOMPARE(drawnFocusRectangle(style, other), drawnFocusRectangle(*fusion, other));
        }
    }

    void leavesTheApplicationsStyleAlone()
    {
        const QPointer<QStyle> applications(QApplication::style());
        {
            const oVIXStyle style;
            QVERIFY(style.baseStyle() != applications);
        }
        QVERIFY(applications);
        QCOMPARE(QApplication::style(), applications);
    }

    void isFusionWhateverTheApplicationWears()
    {
        QApplication::setStyle(u"Windows"_s);
        const QString base = oVIXStyle().baseStyle()->name();
        QApplication::setStyle(u"Fusion"_s);
        QCOMPARE(base, u"fusion"_s);
    }

    void readsTheExecutablesFolder()
    {
        const QString folder = QFileInfo(QCoreApplication::applicationFilePath()).canonicalPath();
        const QTemporaryDir elsewhere;
        QProcess child;
        child.setWorkingDirectory(elsewhere.path());
        child.start(QCoreApplication::applicationFilePath(), {QLatin1StringView(childArgument)});
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.exitCode(), 0);
        QCOMPARE(QString::fromLocal8Bit(child.readAllStandardError()), QString());
        const QStringList told = QString::fromLocal8Bit(child.readAllStandardOutput()).split(u'\n');
        QCOMPARE(told, QStringList({folder, folder + u"/plugins"_s, folder}));
    }
};

int main(int argc, char **argv)
{
    // In a process of its own, since it hides the plug-ins.
    if (argc == 2 && qstrcmp(argv[1], childArgument) == 0)
        return readPathsAndTell();
    return TestCase::run<OvixStyleTest>(argc, argv);
}
#include "OvixStyleTest.moc"
