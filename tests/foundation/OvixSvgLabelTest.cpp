#include "support/Drawings.h"
#include "support/Events.h"
#include "support/Gestures.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "foundation/OvixSvgLabel.h"

#include <QEnterEvent>
#include <QHBoxLayout>
#include <QTest>

#include <functional>
#include <limits>

using namespace Qt::StringLiterals;

using Step = std::function<void(OvixSvgLabel &)>;
Q_DECLARE_METATYPE(Step)

namespace {

void moveOnto(QWidget &widget)
{
    const QPointF middle(widget.rect().center());
    QEnterEvent event(middle, middle, middle);
    QCoreApplication::sendEvent(&widget, &event);
}

QColor middleOf(const QPixmap &pixmap)
{
    return pixmap.toImage().pixelColor(pixmap.width() / 2, pixmap.height() / 2);
}

/// A label in a window, for what only a label on screen does.
struct Shown
{
    QWidget window;
    OvixSvgLabel label{&window};

    explicit Shown(const QString &filename)
    {
        window.resize(400, 200);
        label.setGeometry(20, 20, 40, 40);
        label.setFilename(filename);
        Gestures::leave();
        Gestures::show(&window);
        QVERIFY(Events::untilIdle());
    }
};

} // namespace

class OvixSvgLabelTest : public TestCase
{
    Q_OBJECT

private slots:
    void wearsTheColoursOfItsScheme_data()
    {
        QTest::addColumn<int>("scheme");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("background");
        QTest::addColumn<QString>("hover");
        QTest::addColumn<QString>("checked");
        const QString dark = u"rgb(59,59,59)"_s;
        const QString light = u"rgb(219,219,219)"_s;
        const QString blue = u"rgb(116, 211, 252)"_s;
        const QString veil = u"rgba(255,255,255,38)"_s;
        QTest::newRow("Black") << 0 << dark << u"rgb(28,28,28)"_s << veil << u"rgb(28,28,28)"_s;
        QTest::newRow("Charcoal") << 1 << dark << u"rgb(39,39,39)"_s << u"rgb(81,81,81)"_s << u"rgb(81,81,81)"_s;
        QTest::newRow("CharcoalBlue") << 2 << light << u"rgb(39,39,39)"_s << blue << blue;
        QTest::newRow("Grey") << 3 << dark << u"rgb(81,81,81)"_s << dark << light;
        QTest::newRow("White") << 4 << dark << light << light << light;
        QTest::newRow("GraphiteBlue") << 5 << dark << dark << veil << u"rgba(116, 211, 252,48)"_s;
    }
    void wearsTheColoursOfItsScheme()
    {
        QFETCH(int, scheme);
        QFETCH(QString, text);
        QFETCH(QString, background);
        QFETCH(QString, hover);
        QFETCH(QString, checked);
        const auto normalSheet = [&](const QString &back, const QString &hovered) {
            return u"QLabel { color:%1; background-color:%2;\tborder-color:transparent;}"
                   "QLabel:hover { background-color:%3;\tborder-color:transparent;}"_s.arg(text, back, hovered);
        };
        const QString checkedSheet = u"QLabel { background-color:%1;\tborder-color:transparent;}"_s;
        const QString none = u"transparent"_s;

        OvixSvgLabel label;
        label.setColorScheme(OvixSvgLabel::ColorScheme(scheme));
        label.paintEventUpdate();
        QCOMPARE(label.styleSheet(), normalSheet(none, none));
        label.setBackgroundVisible(true, false);
        label.paintEventUpdate();
        QCOMPARE(label.styleSheet(), normalSheet(background, none));
        label.setHoverVisible(true);
        label.paintEventUpdate();
        QCOMPARE(label.styleSheet(), normalSheet(background, hover));
        label.setChecked(true);
        label.paintEventUpdate();
        QCOMPARE(label.styleSheet(), checkedSheet.arg(none));
        label.setBackgroundVisible(false, true);
        label.paintEventUpdate();
        QCOMPARE(label.styleSheet(), checkedSheet.arg(checked));
        label.setChecked(false);
        label.paintEventUpdate();
        QCOMPARE(label.styleSheet(), normalSheet(none, hover));
    }

    void startsAsAGraphiteBlueLabelThatShowsOnlyACheck()
    {
        OvixSvgLabel label;
        QCOMPARE(label.alignment(), Qt::AlignCenter);
        QVERIFY(label.hasScaledContents());
        QVERIFY(!label.isChecked() && !label.hasFilenames());
        label.paintEventUpdate();
        QCOMPARE(label.styleSheet(),
                 u"QLabel { color:rgb(59,59,59); background-color:transparent;\tborder-color:transparent;}"
                 "QLabel:hover { background-color:transparent;\tborder-color:transparent;}"_s);
        label.setChecked(true);
        label.paintEventUpdate();
        QCOMPARE(label.styleSheet(),
                 u"QLabel { background-color:rgba(116, 211, 252,48);\tborder-color:transparent;}"_s);
    }

    void leavesTheColoursOfUnknownSchemesEmpty()
    {
        OvixSvgLabel label;
        label.setColorScheme(OvixSvgLabel::ColorScheme(6));
        label.setHoverVisible(true);
        label.paintEventUpdate();
        QCOMPARE(label.styleSheet(),
                 u"QLabel { color:; background-color:transparent;\tborder-color:transparent;}"
                 "QLabel:hover { background-color:;\tborder-color:transparent;}"_s);
    }

    void sheetsEndWithTheBox_data()
    {
        QTest::addColumn<Step>("step");
        QTest::addColumn<QString>("tail");
        const QString padding = u"\tpadding-left:1px;\tpadding-top:2px;\tpadding-right:3px;\tpadding-bottom:4px;"_s;
        const QString margin = u"\tmargin-left:5px;\tmargin-top:6px;\tmargin-right:7px;\tmargin-bottom:8px;"_s;
        const auto row = [](const char *name, const QString &tail, const Step &step) {
            QTest::newRow(name) << step << u"\tborder-color:transparent;"_s + tail + u'}';
        };
        row("all", padding + margin + u"\tborder-radius:9px;"_s, [](OvixSvgLabel &label) {
            label.setPadding(1, 2, 3, 4);
            label.setBackgroundMargins(5, 6, 7, 8);
            label.setRoundedBorder(9);
        });
        row("one side of the padding",
            u"\tpadding-left:0px;\tpadding-top:0px;\tpadding-right:0px;\tpadding-bottom:-1px;"_s,
            [](OvixSvgLabel &label) { label.setPadding(0, 0, 0, -1); });
        row("same padding", u"\tpadding-left:2px;\tpadding-top:2px;\tpadding-right:2px;\tpadding-bottom:2px;"_s,
            [](OvixSvgLabel &label) { label.setPadding(2); });
        row("same margins", u"\tmargin-left:2px;\tmargin-top:2px;\tmargin-right:2px;\tmargin-bottom:2px;"_s,
            [](OvixSvgLabel &label) { label.setBackgroundMargins(2); });
        row("margins as one value", margin,
            [](OvixSvgLabel &label) { label.setBackgroundMargins(QMargins(5, 6, 7, 8)); });
        row("taken back", QString(), [](OvixSvgLabel &label) {
            label.setPadding(1);
            label.setBackgroundMargins(1);
            label.paintEventUpdate();
            label.setPadding(0);
            label.setBackgroundMargins(0);
            label.setRoundedBorder(-3);
        });
    }
    void sheetsEndWithTheBox()
    {
        QFETCH(Step, step);
        QFETCH(QString, tail);
        OvixSvgLabel label;
        step(label);
        label.paintEventUpdate();
        QCOMPARE(label.styleSheet().count(tail), 2);
        label.setChecked(true);
        label.paintEventUpdate();
        QVERIFY2(label.styleSheet().endsWith(tail), qPrintable(label.styleSheet()));
    }

    void restylesOnlyForAnotherSheet()
    {
        OvixSvgLabel label;
        label.ensurePolished();
        label.setChecked(true);
        label.paintEventUpdate();
        Events::Count restyled(&label, QEvent::StyleChange);
        label.setChecked(true);
        label.setPadding(0);
        label.setColorScheme(OvixSvgLabel::GraphiteBlue);
        label.paintEventUpdate();
        QCOMPARE(restyled.taken(), 0);
        label.setChecked(false);
        QCOMPARE(restyled.taken(), 0);
        label.paintEventUpdate();
        QCOMPARE(restyled.taken(), 1);
        // A sheet from outside lasts until the next change of style.
        label.setStyleSheet(u"QLabel {color:red;}"_s);
        label.paintEventUpdate();
        QCOMPARE(label.styleSheet(), u"QLabel {color:red;}"_s);
        label.setChecked(false);
        label.paintEventUpdate();
        QVERIFY(label.styleSheet().startsWith(u"QLabel { color:rgb(59,59,59);"_s));
    }

    void turnsThePictureRoundOnceForCheckOrHover()
    {
        const QString black = m_drawings.filled();
        for (int bits = 0; bits < 32; ++bits) {
            const bool inverted = bits & 1, checked = bits & 2, hovered = bits & 4, onCheck = bits & 8,
                       onHover = bits & 16;
            OvixSvgLabel label;
            label.resize(16, 16);
            label.setFilename(black);
            label.setInverted(inverted);
            label.setChecked(checked);
            label.setInvertOnCheck(onCheck);
            label.setInvertOnHover(onHover);
            if (hovered)
                moveOnto(label);
            label.paintEventUpdate();
            const bool turned = (onCheck && checked) || (onHover && hovered);
            QVERIFY2(middleOf(label.pixmap()) == QColor(inverted != turned ? Qt::white : Qt::black),
                     qPrintable(QString::number(bits)));
        }
    }

    void invertsOnCheckButNotOnHoverByDefault()
    {
        OvixSvgLabel label;
        label.resize(16, 16);
        label.setFilename(m_drawings.filled());
        moveOnto(label);
        label.paintEventUpdate();
        QCOMPARE(middleOf(label.pixmap()), QColor(Qt::black));
        label.setChecked(true);
        label.paintEventUpdate();
        QCOMPARE(middleOf(label.pixmap()), QColor(Qt::white));
        label.setInvertOnHover(true);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&label, &leave);
        label.setChecked(false);
        label.paintEventUpdate();
        QCOMPARE(middleOf(label.pixmap()), QColor(Qt::black));
    }

    void showsInvertedFilesInsteadOfInvertedPixels()
    {
        const QString red = m_drawings.filled("#ff0000");
        OvixSvgLabel label;
        label.resize(16, 16);
        label.setFilename(red);
        label.setFilenameInverted(m_drawings.filled("#00ff00"));
        label.paintEventUpdate();
        QCOMPARE(middleOf(label.pixmap()), QColor(Qt::red));
        label.setInverted(true);
        label.paintEventUpdate();
        QCOMPARE(middleOf(label.pixmap()), QColor(Qt::green));
        label.setFilenamesInverted({red, m_drawings.filled("#0000ff")});
        label.paintEventUpdate();
        QCOMPARE(middleOf(label.pixmap()), QColor(Qt::magenta));
        label.setFilenameInverted(QString());
        label.paintEventUpdate();
        QCOMPARE(middleOf(label.pixmap()), QColor(Qt::cyan));
    }

    void dimsWhenDisabledUnlessDrawnFromInvertedFiles_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("invertedFiles");
        QTest::addColumn<int>("alpha");
        QTest::newRow("enabled") << true << false << 204;
        QTest::newRow("disabled") << false << false << 41;
        QTest::newRow("enabled, inverted files") << true << true << 255;
        QTest::newRow("disabled, inverted files") << false << true << 255;
    }
    void dimsWhenDisabledUnlessDrawnFromInvertedFiles()
    {
        QFETCH(bool, enabled);
        QFETCH(bool, invertedFiles);
        QFETCH(int, alpha);
        OvixSvgLabel label;
        label.resize(16, 16);
        label.setFilename(m_drawings.filled());
        label.setInverted(true);
        label.setOpacity(0.8);
        label.setEnabled(enabled);
        if (invertedFiles)
            label.setFilenameInverted(m_drawings.filled());
        const int seen = Picture::colourAt(&label, {8, 8}).alpha();
        QVERIFY2(qAbs(seen - alpha) <= 2, qPrintable(QString::number(seen)));
    }

    void fitsThePictureIntoTheWidget_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("shape");
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QMargins>("around");
        QTest::newRow("wide") << QSize(40, 20) << 0 << QSize(20, 20) << QMargins(10, 0, 10, 0);
        QTest::newRow("high") << QSize(20, 40) << 0 << QSize(20, 20) << QMargins(0, 10, 0, 10);
        QTest::newRow("odd") << QSize(21, 26) << 0 << QSize(21, 21) << QMargins(0, 2, 0, 2);
        QTest::newRow("square") << QSize(20, 20) << 0 << QSize(20, 20) << QMargins();
        QTest::newRow("stretched") << QSize(40, 20) << 1 << QSize(40, 20) << QMargins();
        QTest::newRow("flat") << QSize(40, 0) << 0 << QSize() << QMargins(20, 0, 20, 0);
    }
    void fitsThePictureIntoTheWidget()
    {
        QFETCH(QSize, size);
        QFETCH(int, shape);
        QFETCH(QSize, picture);
        OvixSvgLabel label;
        label.resize(size);
        label.setFilename(m_drawings.filled());
        label.setContentsMargins(1, 2, 3, 4);
        label.setImageShape(OvixSvgLabel::ImageShape(shape));
        label.paintEventUpdate();
        label.paintEventUpdate(); // the first gave it a style sheet, and the toolkit then sets margins of its own
        QTEST(label.contentsMargins(), "around");
        const double ratio = label.devicePixelRatio();
        const auto pixels = [ratio](int side) { return qRound(qRound(side * 2 * ratio) / 2.0); };
        QCOMPARE(label.pixmap().isNull(), picture.isEmpty());
        if (picture.isEmpty())
            return;
        QCOMPARE(label.pixmap().size(), QSize(pixels(picture.width()), pixels(picture.height())));
        QCOMPARE(label.pixmap().devicePixelRatio(), ratio);
        const QImage drawn = label.pixmap().toImage();
        QCOMPARE(Picture::drawnArea(drawn), drawn.rect());
    }

    void keepsMarginsFreeInBothPictures()
    {
        OvixSvgLabel label;
        label.resize(20, 20);
        label.setFilename(m_drawings.filled());
        label.setFilenameInverted(m_drawings.filled());
        for (const bool inverted : {false, true}) {
            label.setInverted(inverted);
            label.setMargins(1, 2, 3, 4);
            QCOMPARE(Picture::drawnArea(Picture::of(&label)), QRect(1, 2, 16, 14));
            label.setMargins(5);
            QCOMPARE(Picture::drawnArea(Picture::of(&label)), QRect(5, 5, 10, 10));
        }
    }

    void keepsItsLayersByIndex()
    {
        const QString red = m_drawings.filled("#ff0000"), green = m_drawings.filled("#00ff00"),
                      blue = m_drawings.filled("#0000ff");
        OvixSvgLabel label;
        label.resize(16, 16);
        const auto shown = [&label] {
            label.paintEventUpdate();
            return middleOf(label.pixmap());
        };
        label.setFilenames({red, green});
        QCOMPARE(shown(), QColor(Qt::yellow));
        label.setFilename(blue);
        QCOMPARE(shown(), QColor(Qt::cyan));
        QCOMPARE(label.firstFilename(), blue);
        label.setFilenames({red});
        QCOMPARE(shown(), QColor(Qt::red));

        // Without layers the last picture stays.
        for (const bool together : {true, false}) {
            label.setFilename(red);
            QCOMPARE(shown(), QColor(Qt::red));
            if (together)
                label.setFilenames({});
            else
                label.setFilename(QString());
            QVERIFY(!label.hasFilenames());
            QVERIFY(label.firstFilename().isEmpty());
            QCOMPARE(shown(), QColor(Qt::red));
        }
    }

    void drawsTheElementsOfItsRenderList()
    {
        const QByteArray halves =
            "<rect id=\"left\" width=\"8\" height=\"16\"/><rect id=\"right\" x=\"8\" width=\"8\" height=\"16\"/>";
        OvixSvgLabel label;
        label.resize(16, 16);
        const auto drawn = [&label] {
            label.paintEventUpdate();
            const QRect area = Picture::drawnArea(label.pixmap().toImage());
            return QRect(area.topLeft() / label.devicePixelRatio(), area.size() / label.devicePixelRatio());
        };
        label.setRenderList({u"right"_s}, 0); // makes the layer
        QVERIFY(label.hasFilenames());
        label.setFilename(m_drawings.svg(halves));
        QCOMPARE(drawn(), QRect(8, 0, 8, 16));
        label.setFilenames({m_drawings.svg(halves), m_drawings.svg(halves)});
        QCOMPARE(drawn(), QRect(0, 0, 16, 16));
        label.setRenderList({u"right"_s}, 1);
        QCOMPARE(drawn(), QRect(8, 0, 8, 16));
        label.setFilenameInverted(m_drawings.svg(halves));
        label.setInverted(true);
        QCOMPARE(drawn(), QRect(0, 0, 16, 16));
        label.setInverted(false);
        label.setRenderList({}, 0);
        QCOMPARE(drawn(), QRect(0, 0, 16, 16));
    }

    void asksForARepaint_data()
    {
        QTest::addColumn<Step>("step");
        QTest::addColumn<bool>("repaints");
        const auto row = [](const char *name, const Step &step, bool repaints = true) {
            QTest::newRow(name) << step << repaints;
        };
        const QString other = m_drawings.filled("#00ff00");
        row("file", [=](OvixSvgLabel &label) { label.setFilename(other); });
        row("inverted file", [=](OvixSvgLabel &label) { label.setFilenameInverted(other); });
        row("render list", [](OvixSvgLabel &label) { label.setRenderList({}, 0); });
        row("margins", [](OvixSvgLabel &label) { label.setMargins(1); });
        row("padding", [](OvixSvgLabel &label) { label.setPadding(1); });
        row("background margins", [](OvixSvgLabel &label) { label.setBackgroundMargins(1); });
        row("border", [](OvixSvgLabel &label) { label.setRoundedBorder(1); });
        row("scheme", [](OvixSvgLabel &label) { label.setColorScheme(OvixSvgLabel::White); });
        row("background", [](OvixSvgLabel &label) { label.setBackgroundVisible(true, true); });
        row("hover background", [](OvixSvgLabel &label) { label.setHoverVisible(true); });
        row("inverted", [](OvixSvgLabel &label) { label.setInverted(true); });
        row("opacity", [](OvixSvgLabel &label) { label.setOpacity(0.5); });
        row("invert on check", [](OvixSvgLabel &label) { label.setInvertOnCheck(false); });
        row("invert on hover", [](OvixSvgLabel &label) { label.setInvertOnHover(true); });
        row("checked", [](OvixSvgLabel &label) { label.setChecked(true); });
        row(
            "files", [=](OvixSvgLabel &label) { label.setFilenames({other}); }, false);
        row(
            "no files", [](OvixSvgLabel &label) { label.setFilenames({}); }, false);
        row(
            "inverted files", [=](OvixSvgLabel &label) { label.setFilenamesInverted({other}); }, false);
        row(
            "shape", [](OvixSvgLabel &label) { label.setImageShape(OvixSvgLabel::Stretch); }, false);
    }
    void asksForARepaint()
    {
        QFETCH(Step, step);
        QFETCH(bool, repaints);
        Shown shown(m_drawings.filled());
        Events::Count paints(&shown.label, QEvent::Paint);
        const QString sheet = shown.label.styleSheet();
        const qint64 picture = shown.label.pixmap().cacheKey();
        step(shown.label);
        // Nothing is fetched or restyled before the paint.
        QCOMPARE(shown.label.styleSheet(), sheet);
        QCOMPARE(shown.label.pixmap().cacheKey(), picture);
        QVERIFY(Events::untilIdle());
        const int count = paints.taken();
        QCOMPARE(count > 0, repaints);
        QVERIFY2(count <= 3, qPrintable(QString::number(count)));
    }

    void paintsOnceForAFlipOfThePicture()
    {
        Shown shown(m_drawings.filled());
        shown.label.setInvertOnHover(true);
        QVERIFY(Events::untilIdle());
        Events::Count paints(&shown.label, QEvent::Paint);
        for (int i = 0; i < 2; ++i) {
            Gestures::hover(&shown.label);
            QVERIFY(Events::untilIdle());
            QCOMPARE(paints.taken(), 1);
            QCOMPARE(middleOf(shown.label.pixmap()), QColor(Qt::white));
            QCOMPARE(Picture::colourAt(&shown.label, {20, 20}), QColor(Qt::white));
            paints.taken();
            Gestures::hover(&shown.window, {120, 50});
            QVERIFY(Events::untilIdle());
            QCOMPARE(paints.taken(), 1);
            QCOMPARE(middleOf(shown.label.pixmap()), QColor(Qt::black));
        }
        shown.label.setInverted(true);
        QVERIFY(Events::untilIdle());
        QCOMPARE(paints.taken(), 1);

        // The sheet of a checked label has no hover rule that would make the toolkit repaint.
        shown.label.setChecked(true);
        QVERIFY(Events::untilIdle());
        paints.taken();
        shown.label.setInvertOnCheck(false);
        QVERIFY(Events::untilIdle());
        QCOMPARE(paints.taken(), 1);
        for (const QPoint point : {shown.label.geometry().center(), QPoint(120, 50)}) {
            Gestures::hover(&shown.window, point);
            QVERIFY(Events::untilIdle());
            QCOMPARE(paints.taken(), 1);
        }
    }

    void setsAPictureOnlyForAnotherKey()
    {
        Shown shown(m_drawings.filled());
        QPixmap foreign(40, 40);
        foreign.fill(Qt::blue);
        shown.label.setPixmap(foreign);
        QVERIFY(Events::untilIdle());
        QCOMPARE(middleOf(shown.label.pixmap()), QColor(Qt::blue));
        shown.label.setInverted(true);
        QVERIFY(Events::untilIdle());
        QCOMPARE(middleOf(shown.label.pixmap()), QColor(Qt::white));
    }

    void aPaintElsewhereIsFollowedByOneOfTheWholeOnScreen()
    {
        Shown shown(m_drawings.filled());
        shown.label.setFilenames({m_drawings.filled("#00ff00")});
        Events::Count paints(&shown.label, QEvent::Paint);
        shown.label.update(0, 0, 5, 5);
        QVERIFY(Events::untilIdle());
        QCOMPARE(paints.taken(), 2);
        shown.label.setFilenames({m_drawings.filled("#0000ff")});
        shown.label.grab();
        QCOMPARE(paints.taken(), 1);
        QVERIFY(Events::untilIdle());
        QCOMPARE(paints.taken(), 1);
    }

    void paintsTheHoverBackground()
    {
        Shown shown(m_drawings.svg(""));
        shown.label.setColorScheme(OvixSvgLabel::Charcoal);
        shown.label.setHoverVisible(true);
        QVERIFY(Events::untilIdle());
        Events::Count paints(&shown.label, QEvent::Paint);
        Gestures::hover(&shown.label);
        QVERIFY(Events::untilIdle());
        QCOMPARE(paints.taken(), 1);
        QCOMPARE(Picture::colourAt(&shown.label, {2, 2}), QColor(81, 81, 81));
    }

    void settlesAfterAChangeOfStyle_data()
    {
        QTest::addColumn<Step>("step");
        QTest::newRow("checked") << Step([](OvixSvgLabel &label) { label.setChecked(true); });
        QTest::newRow("padding") << Step([](OvixSvgLabel &label) { label.setPadding(4); });
        QTest::newRow("background margins") << Step([](OvixSvgLabel &label) { label.setBackgroundMargins(4); });
        QTest::newRow("everything, wide") << Step([](OvixSvgLabel &label) {
            label.resize(61, 20);
            label.setChecked(true);
            label.setPadding(1, 2, 3, 4);
            label.setBackgroundMargins(1, 2, 3, 4);
            label.setEnabled(false);
        });
    }
    void settlesAfterAChangeOfStyle()
    {
        QFETCH(Step, step);
        Shown shown(m_drawings.filled());
        Events::Count paints(&shown.label, QEvent::Paint);
        step(shown.label);
        QVERIFY(Events::untilIdle());
        const int count = paints.taken();
        QVERIFY2(count >= 1 && count <= 3, qPrintable(QString::number(count)));
        const int beside = (shown.label.width() - shown.label.height()) / 2;
        QCOMPARE(shown.label.contentsMargins(), QMargins(beside, 0, beside, 0));
        shown.label.update();
        QVERIFY(Events::untilIdle());
        QCOMPARE(paints.taken(), 1);
    }

    void growsAndShrinksWithItsLayout()
    {
        QWidget window;
        auto *layout = new QHBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        OvixSvgLabel label;
        label.setFilename(m_drawings.filled());
        label.setMargins(1);
        label.setPadding(2);
        label.setBackgroundMargins(3);
        layout->addWidget(&label);
        QCOMPARE(label.minimumSizeHint(), QSize(12, 12));
        Gestures::show(&window);
        for (const int side : {300, 40, 120, 12}) {
            window.resize(side, side);
            QVERIFY(Events::untilIdle());
            QCOMPARE(label.size(), QSize(side, side));
            QCOMPARE(label.minimumSizeHint(), QSize(12, 12));
        }
    }

    void asksForNoImpossibleRoom()
    {
        OvixSvgLabel label;
        label.setMargins(std::numeric_limits<int>::max());
        label.setPadding(std::numeric_limits<int>::min());
        QCOMPARE(label.minimumSizeHint(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
        label.setMargins(-5);
        QCOMPARE(label.minimumSizeHint(), QSize(0, 0));
    }

    void doesNotCreepOverItsNeighbour()
    {
        QWidget window;
        auto *layout = new QHBoxLayout(&window);
        OvixSvgLabel label;
        label.setFilename(m_drawings.filled());
        label.setPadding(4);
        QWidget neighbour;
        layout->addWidget(&label);
        layout->addWidget(&neighbour, 1);
        window.resize(400, 60);
        Gestures::show(&window);
        QVERIFY(Events::untilIdle());
        const QSize settled = label.size();
        Events::Count resizes(&label, QEvent::Resize);
        for (int i = 0; i < 5; ++i) {
            label.setInverted(i % 2 == 0);
            label.setChecked(i % 2 == 0);
            QVERIFY(Events::untilIdle());
        }
        QCOMPARE(resizes.taken(), 0);
        QCOMPARE(label.size(), settled);
    }

private:
    Drawings m_drawings;
};

VELMO_TEST_MAIN(OvixSvgLabelTest)
#include "OvixSvgLabelTest.moc"
