#include "support/TestCase.h"

#include "foundation/oVIXStyle.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QPainter>
#include <QPointer>
#include <QProcess>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOptionFocusRect>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr char readPaths[] = "--read-qt-paths";
constexpr char tellBaseStyle[] = "--tell-base-style";

/// Counts the icons that it is asked for.
class CountingStyle : public QProxyStyle
{
public:
    QIcon standardIcon(StandardPixmap which, const QStyleOption *option, const QWidget *widget) const override
    {
        ++m_count;
        return QProxyStyle::standardIcon(which, option, widget);
    }

    int count() const { return m_count; }

private:
    mutable int m_count = 0;
};

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

/// What the program does as its own child.
int tellPaths()
{
    oVIXStyle::readQtPaths();
    const QStringList told = QCoreApplication::libraryPaths() + QStringList(QDir::currentPath());
    std::fputs(qPrintable(told.join(u'\n')), stdout);
    return 0;
}

int tellStyle(int argc, char **argv)
{
    const QApplication application(argc, argv);
    std::fputs(qPrintable(oVIXStyle().baseStyle()->name()), stdout);
    return 0;
}

/// What the program prints when it is started with these arguments in another folder.
QStringList outputOfChild(const QStringList &arguments)
{
    const QTemporaryDir elsewhere;
    QProcess child;
    child.setProcessChannelMode(QProcess::MergedChannels);
    child.setWorkingDirectory(elsewhere.path());
    child.start(QCoreApplication::applicationFilePath(), arguments);
    child.waitForFinished();
    return QString::fromLocal8Bit(child.readAll()).split(u'\n');
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
        QVERIFY(sheet.contains(u"border: 1px solidrgb(39,39,39);    margin: 0;    padding-left: 10 px;"_s));
        // Every character of the rest.
        QCOMPARE(QCryptographicHash::hash(sheet.toUtf8(), QCryptographicHash::Sha256).toHex(),
                 "251dcc02dbedc32cd11be607af61637c6c5ca6f84f1ec522f82059ba076d9cf2");
    }

    void showsToolTipsAfter300Milliseconds()
    {
        const oVIXStyle style;
        const std::unique_ptr<QStyle> fusion(QStyleFactory::create(u"Fusion"_s));
        QWidget widget;
        const QStyleOption option;
        for (const QStyle::StyleHint hint : {QStyle::SH_ToolTip_WakeUpDelay, QStyle::SH_ToolTip_FallAsleepDelay}) {
            QCOMPARE(style.styleHint(hint, &option, &widget), 300);
        }
        for (const QStyle::StyleHint hint : {QStyle::SH_EtchDisabledText, QStyle::SH_Menu_SubMenuPopupDelay})
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
        QCOMPARE(drawnFocusRectangle(style, QStyle::PE_PanelMenu), drawnFocusRectangle(*fusion, QStyle::PE_PanelMenu));
    }

    void makesTheIconOfNarrowMenuBarsWhenItIsDrawn()
    {
        constexpr auto which = QStyle::SP_ToolBarHorizontalExtensionButton;
        auto *base = new CountingStyle; // belongs to the style
        auto style = std::make_unique<oVIXStyle>();
        style->setBaseStyle(base);
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QStyleOption option;
            option.direction = direction;
            const int before = base->count();
            const QIcon icon = style->standardIcon(which, &option);
            QCOMPARE(base->count(), before);
            const QIcon expected = base->QProxyStyle::standardIcon(which, &option);
            for (const qreal ratio : {1.0, 2.0}) {
                QCOMPARE(icon.pixmap(QSize(16, 16), ratio).toImage(), expected.pixmap(QSize(16, 16), ratio).toImage());
                QCOMPARE(icon.pixmap(QSize(16, 16), ratio).devicePixelRatio(), ratio);
            }
            QCOMPARE(icon.availableSizes(), expected.availableSizes());
            QCOMPARE(base->count(), before + 1);
        }

        const QIcon icon = style->standardIcon(which);
        style.reset();
        QVERIFY(!icon.pixmap(16, 16).isNull());
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
        const QStringList told = outputOfChild(
            {QLatin1StringView(tellBaseStyle), u"-platform"_s, u"offscreen"_s, u"-style"_s, u"windows"_s});
        QCOMPARE(told.constLast(), u"fusion"_s);
    }

    void readsTheExecutablesFolder()
    {
        const QString folder = QFileInfo(QCoreApplication::applicationFilePath()).canonicalPath();
        const QStringList told = outputOfChild({QLatin1StringView(readPaths)});
        QCOMPARE(told, QStringList({folder, folder + u"/plugins"_s, folder}));
    }
};

int main(int argc, char **argv)
{
    // In processes of their own: the one hides the plug-ins, the other needs an application of another style.
    if (argc > 1 && qstrcmp(argv[1], readPaths) == 0)
        return tellPaths();
    if (argc > 1 && qstrcmp(argv[1], tellBaseStyle) == 0)
        return tellStyle(argc, argv);
    return TestCase::run<OvixStyleTest>(argc, argv);
}
#include "OvixStyleTest.moc"
