#include "support/TestCase.h"

#include "foundation/VelmoColor.h"
#include "foundation/VelmoStyle.h"

#include <QColor>
#include <QTest>

using namespace Qt::StringLiterals;

class StyleTextsTest : public TestCase
{
    Q_OBJECT

private slots:
    void writesColours()
    {
        QCOMPARE(VelmoColor::colorToSheet(QColor(59, 0, 255)), u"rgb(59, 0, 255)"_s);
        QCOMPARE(VelmoColor::colorToSheet(QColor(0, 0, 0, 0)), u"rgb(0, 0, 0)"_s);
    }

    void buildsPictureButtonSheets()
    {
        const QString grey =
            u"QLabel{border:0px; border-radius:4px; background-color:rgb(59,59,59);background-image:url(:/a); "_s
            "background-repeat: no-repeat; background-position:center;} QLabel:hover{ "
            "background-color:rgb(156,156,156);}"_s;
        QCOMPARE(VelmoStyle::regularButtonGrayStyle(u":/a"_s, QString()), grey);
        QCOMPARE(VelmoStyle::regularButtonGrayStyle(u":/a"_s, u":/b"_s),
                 grey + u" QLabel:disabled{background-image:url(:/b);}"_s);
        QCOMPARE(VelmoStyle::regularButtonYellowStyle(u":/%1"_s),
                 u"QLabel{border:0px; border-radius:4px; background-color:rgb(116, 211, "_s
                 "252);background-image:url(:/%1); background-repeat: no-repeat; "
                 "background-position:center;}"_s);
        QCOMPARE(VelmoStyle::labelGrayStyleAndImage(u":/a"_s),
                 u"QLabel{border:0px; background-color:rgb(59,59,59);background-image:url(:/a); "_s
                 "background-repeat: no-repeat; background-position:center;}"_s);
    }

    void roundsTheCornersOfADropListIndependently()
    {
        const QString left = u"\tborder-top-left-radius:4px;\tborder-bottom-left-radius:4px;"_s;
        const QString right = u"\tborder-top-right-radius:4px;\tborder-bottom-right-radius:4px;"_s;
        const QString head = u"QListWidget {\tborder:0px;"_s;
        const QString tail =
            u"\tbackground-color:rgb(59,59,59);}QListWidget::item {\tcolor:transparent;\tbackground:transparent;}"_s
            "QListWidget::item:selected {\tcolor:rgb(28,28,28);\tbackground:transparent;}"_s;
        QCOMPARE(VelmoStyle::styleDragDropList(false, false), head + tail);
        QCOMPARE(VelmoStyle::styleDragDropList(true, false), head + left + tail);
        QCOMPARE(VelmoStyle::styleDragDropList(false, true), head + right + tail);
        QCOMPARE(VelmoStyle::styleDragDropList(true, true), head + left + right + tail);
    }

    void measuresAPanelTitle()
    {
        QCOMPARE(VelmoStyle::styleDockTextWidth(QString()), 0);
        const int one = VelmoStyle::styleDockTextWidth(u"LIBRARY"_s);
        QVERIFY(one > 20 && one < 90);
        QVERIFY(VelmoStyle::styleDockTextWidth(u"LIBRARY LIBRARY"_s) > 2 * one);
    }
};

VELMO_TEST_MAIN(StyleTextsTest)
#include "StyleTextsTest.moc"
