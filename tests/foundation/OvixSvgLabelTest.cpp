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

namespace {

/// A label that tells what its next paint would show.
struct Label : OvixSvgLabel
{
    explicit Label(const QString &filename = {}, QWidget *parent = nullptr) : OvixSvgLabel(parent)
    {
        resize(16, 16);
        if (!filename.isEmpty())
            setFilename(filename);
    }

    QString sheet()
    {
        paintEventUpdate();
        return styleSheet();
    }

    QColor colour() { return Picture::colourAt(this, rect().center()); }
};

/// A label in a window, for what only a label on screen does.
struct Shown
{
    QWidget window;
    Label label;
    Events::Count paints{&label, QEvent::Paint};

    explicit Shown(const QString &filename, bool checked = false) : label(filename, &window)
    {
        label.setChecked(checked);
        window.resize(400, 200);
        label.setGeometry(20, 20, 40, 40);
        Gestures::leave();
        Gestures::show(&window);
        paintsUntilIdle();
    }

    /// How many paints it takes until nothing is left to do; -1 when that never comes.
    int paintsUntilIdle() { return Events::untilIdle() ? paints.taken() : -1; }
};

} // namespace

class OvixSvgLabelTest : public TestCase
{
    Q_OBJECT

private slots:
    void wearsTheColoursOfItsScheme()
    {
        struct Scheme
        {
            int scheme;
            QString text, background, hover, checked;
        };
        const QString dark = u"rgb(59,59,59)"_s, light = u"rgb(219,219,219)"_s, blue = u"rgb(116, 211, 252)"_s,
                      charcoal = u"rgb(39,39,39)"_s, black = u"rgb(28,28,28)"_s, grey = u"rgb(81,81,81)"_s,
                      veil = u"rgba(255,255,255,38)"_s, none = u"transparent"_s;
        const QList<Scheme> schemes = {
            {0, dark, black, veil, black},
            {1, dark, charcoal, grey, grey},
            {2, light, charcoal, blue, blue},
            {3, dark, grey, dark, light},
            {4, dark, light, light, light},
            {5, dark, dark, veil, u"rgba(116, 211, 252,48)"_s}, // that of a new label
            {6, {}, {}, {}, {}},
        };
        const QString checkedSheet = u"QLabel { background-color:%1;\tborder-color:transparent;}"_s;
        for (const auto &[scheme, text, background, hover, checked] : schemes) {
            const QString sheet = u"QLabel { color:%1; background-color:%2;\tborder-color:transparent;}"
                                  "QLabel:hover { background-color:%3;\tborder-color:transparent;}"_s;
            Label label;
            QVERIFY(label.alignment() == Qt::AlignCenter && label.hasScaledContents());
            if (scheme != 5)
                label.setColorScheme(OvixSvgLabel::ColorScheme(scheme));
            QCOMPARE(label.sheet(), sheet.arg(text, none, none));
            label.setChecked(true);
            QCOMPARE(label.sheet(), checkedSheet.arg(checked));
            label.setBackgroundVisible(true, false);
            QCOMPARE(label.sheet(), checkedSheet.arg(none));
            label.setChecked(false);
            QCOMPARE(label.sheet(), sheet.arg(text, background, none));
            label.setHoverVisible(true);
            QCOMPARE(label.sheet(), sheet.arg(text, background, hover));
            label.setBackgroundVisible(false, true);
            QCOMPARE(label.sheet(), sheet.arg(text, none, hover));
        }
    }

    void sheetsEndWithTheBox()
    {
        const QString end = u"\tborder-color:transparent;%1}"_s;
        const QString padding = u"\tpadding-left:0px;\tpadding-top:2px;\tpadding-right:3px;\tpadding-bottom:-1px;"_s;
        const QString margin = u"\tmargin-left:5px;\tmargin-top:6px;\tmargin-right:7px;\tmargin-bottom:8px;"_s;
        Label label;
        label.setPadding(0, 2, 3, -1);
        QCOMPARE(label.sheet().count(end.arg(padding)), 2);
        label.setBackgroundMargins(5, 6, 7, 8);
        label.setRoundedBorder(9);
        QCOMPARE(label.sheet().count(end.arg(padding + margin + u"\tborder-radius:9px;"_s)), 2);
        label.setChecked(true);
        QCOMPARE(label.sheet().count(end.arg(padding + margin + u"\tborder-radius:9px;"_s)), 1);
        label.setPadding(0);
        label.setBackgroundMargins(0);
        label.setRoundedBorder(-3);
        QVERIFY2(label.sheet().endsWith(end.arg(QString())), qPrintable(label.sheet()));
    }

    void restylesOnlyForAnotherSheet()
    {
        Label label;
        label.ensurePolished();
        label.setChecked(true);
        label.paintEventUpdate();
        Events::Count restyled(&label, QEvent::StyleChange);
        label.setChecked(true);
        label.setPadding(0);
        label.paintEventUpdate();
        label.setChecked(false);
        QCOMPARE(restyled.taken(), 0);
        label.paintEventUpdate();
        QCOMPARE(restyled.taken(), 1);
        // A sheet from outside lasts until the next change of style.
        label.setStyleSheet(u"QLabel {color:red;}"_s);
        QCOMPARE(label.sheet(), u"QLabel {color:red;}"_s);
        label.setChecked(false);
        QVERIFY(label.sheet().startsWith(u"QLabel { color:rgb(59,59,59);"_s));
    }

    void turnsThePictureRoundOnceForCheckOrHover()
    {
        const QString black = m_drawings.filled();
        for (int bits = 0; bits < 32; ++bits) {
            const bool inverted = bits & 1, checked = bits & 2, hovered = bits & 4, onCheck = bits & 8,
                       onHover = bits & 16;
            Label label(black);
            label.setInverted(inverted);
            label.setChecked(checked);
            if (!onCheck) // what is set when nobody says otherwise
                label.setInvertOnCheck(false);
            if (onHover)
                label.setInvertOnHover(true);
            QEnterEvent enter({8, 8}, {8, 8}, {8, 8});
            QEvent leave(QEvent::Leave);
            QCoreApplication::sendEvent(&label, &enter);
            if (!hovered)
                QCoreApplication::sendEvent(&label, &leave);
            const bool turned = (onCheck && checked) || (onHover && hovered);
            QVERIFY2(label.colour() == QColor(inverted != turned ? Qt::white : Qt::black),
                     qPrintable(QString::number(bits)));
        }
    }

    void showsInvertedFilesInsteadOfInvertedPixels()
    {
        const QString red = m_drawings.filled("#ff0000");
        Label label(red);
        label.setFilenameInverted(m_drawings.filled("#00ff00"));
        label.setMargins(1, 2, 3, 4);
        QCOMPARE(label.colour(), QColor(Qt::red));
        QCOMPARE(Picture::drawnArea(Picture::of(&label)), QRect(1, 2, 12, 10));
        label.setInverted(true);
        QCOMPARE(label.colour(), QColor(Qt::green));
        QCOMPARE(Picture::drawnArea(Picture::of(&label)), QRect(1, 2, 12, 10));
        label.setFilenamesInverted({red, m_drawings.filled("#0000ff")});
        QCOMPARE(label.colour(), QColor(Qt::magenta));
        label.setFilenameInverted(QString());
        QCOMPARE(label.colour(), QColor(Qt::cyan));
    }

    void dimsWhenDisabledUnlessDrawnFromInvertedFiles()
    {
        for (const bool invertedFiles : {false, true})
            for (const bool enabled : {false, true}) {
                Label label(m_drawings.filled());
                label.setInverted(true);
                label.setOpacity(0.8);
                label.setEnabled(enabled);
                if (invertedFiles)
                    label.setFilenameInverted(m_drawings.filled());
                const int alpha = invertedFiles ? 255 : enabled ? 204 : 41;
                const int seen = Picture::colourAt(&label, {8, 8}).alpha();
                QVERIFY2(qAbs(seen - alpha) <= 2, qPrintable(QString::number(seen)));
            }
    }

    void fitsThePictureIntoTheWidget()
    {
        struct Fit
        {
            QSize size;
            OvixSvgLabel::ImageShape shape;
            QSize picture;
            QMargins around;
        };
        for (const Fit &fit :
             {Fit{{40, 20}, {}, {20, 20}, {10, 0, 10, 0}}, Fit{{21, 26}, {}, {21, 21}, {0, 2, 0, 2}},
              Fit{{40, 20}, OvixSvgLabel::Stretch, {40, 20}, {}}, Fit{{40, 0}, {}, {0, 0}, {20, 0, 20, 0}}}) {
            Label label(m_drawings.filled());
            label.resize(fit.size);
            label.setPadding(3); // the toolkit makes contents margins of it
            label.setImageShape(fit.shape);
            label.paintEventUpdate();
            QCOMPARE(label.contentsMargins(), fit.around);
            const double ratio = label.devicePixelRatio();
            const auto pixels = [ratio](int side) { return qRound(qRound(side * 2 * ratio) / 2.0); };
            QCOMPARE(label.pixmap().size(), QSize(pixels(fit.picture.width()), pixels(fit.picture.height())));
            QVERIFY(fit.picture.isEmpty() || label.pixmap().devicePixelRatio() == ratio);
        }
    }

    void keepsItsLayersByIndex()
    {
        const QString red = m_drawings.filled("#ff0000"), blue = m_drawings.filled("#0000ff");
        Label label;
        label.setFilenames({red, m_drawings.filled("#00ff00")});
        QCOMPARE(label.colour(), QColor(Qt::yellow));
        label.setFilename(blue);
        QCOMPARE(label.colour(), QColor(Qt::cyan));
        QCOMPARE(label.firstFilename(), blue);
        label.setFilenames({red});
        QCOMPARE(label.colour(), QColor(Qt::red));
        label.setFilename(QString());
        QVERIFY(!label.hasFilenames() && label.firstFilename().isEmpty());
        QCOMPARE(label.colour(), QColor(Qt::red)); // without layers the last picture stays
    }

    void drawsTheElementsOfItsRenderList()
    {
        const QString halves = m_drawings.svg("<rect id=\"left\" width=\"8\" height=\"16\"/>"
                                              "<rect id=\"right\" x=\"8\" width=\"8\" height=\"16\"/>");
        Label label;
        const auto drawn = [&label] { return Picture::drawnArea(Picture::of(&label)); };
        label.setRenderList({u"right"_s}, 0); // makes the layer
        label.setFilename(halves);
        QCOMPARE(drawn(), QRect(8, 0, 8, 16));
        label.setFilenames({halves, halves});
        QCOMPARE(drawn(), QRect(0, 0, 16, 16));
        label.setRenderList({u"right"_s}, 1);
        QCOMPARE(drawn(), QRect(8, 0, 8, 16));
        label.setFilenameInverted(halves);
        label.setInverted(true);
        QCOMPARE(drawn(), QRect(0, 0, 16, 16));
    }

    void asksForARepaint()
    {
        using Step = std::function<void(OvixSvgLabel &)>;
        const QString other = m_drawings.filled("#00ff00");
        const QList<Step> repainting = {
            [=](OvixSvgLabel &label) { label.setFilename(other); },
            [=](OvixSvgLabel &label) { label.setFilenameInverted(other); },
            [](OvixSvgLabel &label) { label.setRenderList({}, 0); },
            [](OvixSvgLabel &label) { label.setMargins(1); },
            [](OvixSvgLabel &label) { label.setPadding(1); },
            [](OvixSvgLabel &label) { label.setBackgroundMargins(1); },
            [](OvixSvgLabel &label) { label.setRoundedBorder(1); },
            [](OvixSvgLabel &label) { label.setColorScheme(OvixSvgLabel::White); },
            [](OvixSvgLabel &label) { label.setBackgroundVisible(true, true); },
            [](OvixSvgLabel &label) { label.setHoverVisible(true); },
            [](OvixSvgLabel &label) { label.setOpacity(0.5); },
            [](OvixSvgLabel &label) { label.setInverted(true); },
            [](OvixSvgLabel &label) { label.setInvertOnHover(true); },
            [](OvixSvgLabel &label) { label.setChecked(true); },
            [](OvixSvgLabel &label) { label.setInvertOnCheck(false); },
        };
        const QList<Step> quiet = {
            [=](OvixSvgLabel &label) { label.setFilenames({other}); },
            [=](OvixSvgLabel &label) { label.setFilenamesInverted({other}); },
            [](OvixSvgLabel &label) { label.setImageShape(OvixSvgLabel::Stretch); },
        };
        const QList<Step> steps = repainting + quiet;
        for (qsizetype i = 0; i < steps.size(); ++i) {
            Shown shown(m_drawings.filled());
            const QString sheet = shown.label.styleSheet();
            const qint64 picture = shown.label.pixmap().cacheKey();
            steps[i](shown.label);
            // Nothing is fetched or restyled before the paint.
            QCOMPARE(shown.label.styleSheet(), sheet);
            QCOMPARE(shown.label.pixmap().cacheKey(), picture);
            const int count = shown.paintsUntilIdle();
            QVERIFY2(i < repainting.size() ? count == 1 || count == 2 : count == 0,
                     qPrintable(u"step %1: %2 paints"_s.arg(i).arg(count)));
        }
    }

    void paintsOnceForAFlipOfThePicture()
    {
        Shown shown(m_drawings.filled());
        shown.label.setInvertOnHover(true);
        shown.paintsUntilIdle();
        for (int i = 0; i < 2; ++i) {
            Gestures::hover(&shown.label);
            QCOMPARE(shown.paintsUntilIdle(), 1);
            QCOMPARE(Picture::colourAt(&shown.label, {20, 20}), QColor(Qt::white));
            shown.paints.taken();
            Gestures::hover(&shown.window, {120, 50});
            QCOMPARE(shown.paintsUntilIdle(), 1);
            QCOMPARE(Picture::colourAt(&shown.label, {20, 20}), QColor(Qt::black));
            shown.paints.taken();
        }
    }

    void flipsWithoutAHoverRuleInItsSheet()
    {
        Shown shown(m_drawings.filled(), true);
        shown.label.setInvertOnCheck(false);
        shown.label.setInvertOnHover(true);
        shown.paintsUntilIdle();
        for (const QPoint point : {QPoint(40, 40), QPoint(120, 50)}) {
            Gestures::hover(&shown.window, point);
            QCOMPARE(shown.paintsUntilIdle(), 1);
        }
    }

    void setsAPictureOnlyForAnotherKey()
    {
        Label label(m_drawings.filled());
        label.paintEventUpdate();
        QPixmap foreign(16, 16);
        foreign.fill(Qt::blue);
        label.setPixmap(foreign);
        QCOMPARE(label.colour(), QColor(Qt::blue));
        label.setInverted(true);
        QCOMPARE(label.colour(), QColor(Qt::white));
    }

    void aPaintElsewhereIsFollowedByOneOfTheWholeOnScreen()
    {
        Shown shown(m_drawings.filled());
        shown.label.setFilenames({m_drawings.filled("#00ff00")});
        shown.label.update(0, 0, 5, 5);
        QCOMPARE(shown.paintsUntilIdle(), 2);
        shown.label.setFilenames({m_drawings.filled("#0000ff")});
        shown.label.grab();
        QCOMPARE(shown.paints.taken(), 1);
        QCOMPARE(shown.paintsUntilIdle(), 1);
    }

    void settlesAfterAChangeOfStyle()
    {
        Shown shown(m_drawings.filled());
        shown.label.resize(61, 20);
        shown.label.setChecked(true);
        shown.label.setPadding(1, 2, 3, 4);
        shown.label.setBackgroundMargins(1, 2, 3, 4);
        shown.label.setEnabled(false);
        const int count = shown.paintsUntilIdle();
        QVERIFY2(count == 1 || count == 2, qPrintable(QString::number(count)));
        QCOMPARE(shown.label.contentsMargins(), QMargins(20, 0, 20, 0));
        shown.label.update();
        QCOMPARE(shown.paintsUntilIdle(), 1);
    }

    void growsAndShrinksWithItsLayout()
    {
        QWidget window;
        auto *layout = new QHBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        Label label(m_drawings.filled());
        label.setMargins(1);
        label.setPadding(2);
        label.setBackgroundMargins(3);
        layout->addWidget(&label);
        Gestures::show(&window);
        for (const int side : {300, 40, 120, 12}) {
            window.resize(side, side);
            QVERIFY(Events::untilIdle());
            QCOMPARE(label.size(), QSize(side, side));
            QCOMPARE(label.minimumSizeHint(), QSize(12, 12));
        }
        label.setMargins(std::numeric_limits<int>::max());
        label.setPadding(std::numeric_limits<int>::min());
        QCOMPARE(label.minimumSizeHint(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    }

private:
    Drawings m_drawings;
};

VELMO_TEST_MAIN(OvixSvgLabelTest)
#include "OvixSvgLabelTest.moc"
