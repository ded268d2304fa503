#include "support/Files.h"
#include "support/Gestures.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "browser/VelmoCurtainWidget.h"
#include "choosers/oVIXCombo.h"
#include "foundation/OvixSvgButton.h"
#include "foundation/oVIXFrameBorder.h"
#include "values/oVIXSliderBar.h"
#include "values/oVIXSliderWidget.h"

#include <QBuffer>
#include <QDir>
#include <QDomDocument>
#include <QIcon>
#include <QPluginLoader>
#include <QRegularExpression>
#include <QTest>
#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

QString textOf(const QString &path)
{
    return QString::fromUtf8(Files::read(path));
}

/// The file names of the library's public headers, with their paths.
QHash<QString, QString> publicHeaders()
{
    QHash<QString, QString> headers;
    const QStringList paths = textOf(QStringLiteral(VELMO_GUI_HEADERS)).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &path : paths)
        headers.insert(QFileInfo(path).fileName(), QStringLiteral(VELMO_GUI_SOURCES) + u'/' + path);
    return headers;
}

/// The exported widgets that are created with a parent and nothing else.
QStringList plainWidgets()
{
    static const QRegularExpression classLine(u"class VELMO_GUI_EXPORT (\\w+) "_s);
    QStringList widgets;
    const QHash<QString, QString> headers = publicHeaders();
    for (const QString &path : headers) {
        const QString text = textOf(path);
        for (const QRegularExpressionMatch &match : classLine.globalMatch(text)) {
            const QRegularExpression constructor(
                u"\\b%1\\(QWidget \\*parent(?: = nullptr)?(?:, [^,)]+ = [^;]+)?\\);"_s.arg(match.captured(1)));
            if (text.contains(constructor))
                widgets << match.captured(1);
        }
    }
    return widgets;
}

/// Those that no form can hold.
QStringList leftOut()
{
    return {
        // windows of their own
        u"VelmoAboutDialog"_s,
        u"VelmoFeedbackConsentDialog"_s,
        u"oVIXDialogModalBase"_s,
        // pop-ups, placed and hidden by themselves
        u"OvixThumbnailSizeWidget"_s,
        u"oVIXFloatingWidget"_s,
        // overlays, which lay themselves over their parent
        u"oVIXFloatingProgressBar"_s,
        u"oVIXGuideOverlay"_s,
        u"oVIXWindowBlock"_s,
        u"oVIXWindowWait"_s,
        u"oVIXWindowWaitGlobal"_s,
    };
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

/// Loads with the plug-in alone.
std::unique_ptr<QWidget> load(QIODevice &form)
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QFileInfo(QStringLiteral(VELMO_DESIGNER_PLUGIN)).path());
    return std::unique_ptr<QWidget>(loader.load(&form));
}

QList<QDomElement> propertiesOf(const QDomElement &widget)
{
    QList<QDomElement> properties;
    for (QDomElement property = widget.firstChildElement(u"property"_s); !property.isNull();
         property = property.nextSiblingElement(u"property"_s))
        properties << property;
    return properties;
}

/// Whether the class has it; any other would become a dynamic property.
bool hasProperty(const QWidget &widget, const QDomElement &property)
{
    return widget.metaObject()->indexOfProperty(property.attribute(u"name"_s).toUtf8()) >= 0;
}

bool isOneColour(const QImage &picture)
{
    QImage plain(picture.size(), picture.format());
    plain.fill(picture.pixelColor(0, 0));
    return picture == plain;
}

} // namespace

class DesignerTest : public TestCase
{
    Q_OBJECT

private:
    QList<QDesignerCustomWidgetInterface *> m_widgets;

private slots:
    void initTestCase()
    {
        QPluginLoader plugin(QStringLiteral(VELMO_DESIGNER_PLUGIN));
        auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(plugin.instance());
        QVERIFY2(collection, qPrintable(plugin.errorString()));
        m_widgets = collection->customWidgets();
    }

    void hasEveryWidgetThatAFormCanHold()
    {
        QStringList names;
        for (const QDesignerCustomWidgetInterface *widget : std::as_const(m_widgets))
            names << widget->name();
        QCOMPARE(sorted(names + leftOut()).join(u' '), sorted(plainWidgets()).join(u' '));
    }

    void restsOnPublicHeadersAlone()
    {
        static const QRegularExpression include(u"#include <(.+\\.h)>|#include \"(.+)\""_s);
        const QDir folder(QStringLiteral(VELMO_DESIGNER_SOURCES));
        const QHash<QString, QString> headers = publicHeaders();
        const QFileInfoList sources = folder.entryInfoList({u"*.h"_s, u"*.cpp"_s});
        QVERIFY(!sources.isEmpty());
        for (const QFileInfo &source : sources) {
            const QString text = textOf(source.filePath());
            for (const QRegularExpressionMatch &match : include.globalMatch(text)) {
                QVERIFY2(headers.contains(match.captured(1)) || folder.exists(match.captured(2)),
                         qPrintable(source.fileName() + u": "_s + match.captured()));
            }
        }
    }

    void describesAndCreatesAWidget_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < m_widgets.size(); ++i)
            QTest::newRow(qPrintable(m_widgets.at(i)->name())) << i;
    }

    void describesAndCreatesAWidget()
    {
        QFETCH(int, index);
        QDesignerCustomWidgetInterface *entry = m_widgets.at(index);
        QVERIFY(publicHeaders().contains(entry->includeFile()));
        QVERIFY(!entry->toolTip().isEmpty() && !entry->whatsThis().isEmpty() && !entry->group().isEmpty());
        QVERIFY(entry->icon().availableSizes().contains(QSize(16, 16)));
        const QImage icon = entry->icon().pixmap(24, 24).toImage();
        QCOMPARE(icon.size(), QSize(24, 24));
        const QRect drawn = Picture::drawnArea(icon);
        QVERIFY(drawn.width() > 12 && QRect(1, 1, 22, 22).contains(drawn));

        const std::unique_ptr<QWidget> alone(entry->createWidget(nullptr));
        QCOMPARE(QString::fromLatin1(alone->metaObject()->className()), entry->name());

        // As it is dropped on a form.
        QDomDocument xml;
        QVERIFY(xml.setContent(entry->domXml()));
        QBuffer buffer;
        buffer.setData(xml.toByteArray());
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        const std::unique_ptr<QWidget> dropped = load(buffer);
        QVERIFY(dropped);
        QCOMPARE(QString::fromLatin1(dropped->metaObject()->className()), entry->name());
        QVERIFY(!dropped->objectName().isEmpty());
        const QDomElement element = xml.elementsByTagName(u"widget"_s).at(0).toElement();
        for (const QDomElement &property : propertiesOf(element))
            QVERIFY(hasProperty(*dropped, property));
        // A tag is as wide as its text, whatever the font.
        const QDomElement rectangle = xml.elementsByTagName(u"rect"_s).at(0).toElement();
        QVERIFY(qAbs(dropped->width() - rectangle.firstChildElement(u"width"_s).text().toInt()) < 5);
        QCOMPARE(dropped->height(), rectangle.firstChildElement(u"height"_s).text().toInt());
    }

    void loadsAForm()
    {
        QFile file(QStringLiteral(VELMO_FORM));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const std::unique_ptr<QWidget> form = load(file);
        QVERIFY(form);
        Gestures::show(form.get());

        QDomDocument xml;
        QVERIFY(file.seek(0) && xml.setContent(&file));
        const QDomNodeList widgets = xml.elementsByTagName(u"widget"_s);
        QVERIFY(widgets.size() > 10);
        for (int i = 1; i < widgets.size(); ++i) {
            const QDomElement element = widgets.at(i).toElement();
            const auto *widget = form->findChild<QWidget *>(element.attribute(u"name"_s));
            QVERIFY(widget);
            QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), element.attribute(u"class"_s));
            for (const QDomElement &property : propertiesOf(element)) {
                const QByteArray name = property.attribute(u"name"_s).toUtf8();
                QVERIFY2(hasProperty(*widget, property), name);
                const QString kind = property.firstChildElement().tagName();
                if (kind == u"string"_s || kind == u"bool"_s || kind == u"number"_s || kind == u"double"_s)
                    QCOMPARE(widget->property(name).toString(), property.text().trimmed());
            }
        }

        const auto *speed = form->findChild<oVIXSliderWidget *>(u"speed"_s);
        QCOMPARE(speed->property("mode").toInt(), int(oVIXSliderWidget::DoubleRange));
        QCOMPARE(speed->valueMin(), 2.5);
        QCOMPARE(speed->findChild<oVIXSliderBar *>()->text(), u"Speed"_s);
        QCOMPARE(form->findChild<QWidget *>(u"spread"_s)->findChild<oVIXSliderBar *>()->text(), u"Spread"_s);
        QVERIFY(form->findChild<VelmoCurtainWidget *>(u"section"_s)->isExpanded());
        QVERIFY(!form->findChild<oVIXCombo *>(u"behaviour"_s)->isOverride());
        const auto *lock = form->findChild<OvixSvgButton *>(u"lock"_s);
        QCOMPARE(lock->property("colorScheme").toInt(), int(OvixSvgLabel::Grey));
        QVERIFY(form->findChild<oVIXFrameBorder *>(u"actions"_s)->isAncestorOf(lock));

        const QImage picture = Picture::of(form.get());
        for (int i = 1; i < widgets.size(); ++i) {
            const QString name = widgets.at(i).toElement().attribute(u"name"_s);
            const auto *widget = form->findChild<QWidget *>(name);
            const QRect area(widget->mapTo(form.get(), QPoint()), widget->size());
            QVERIFY2(picture.rect().contains(area) && !isOneColour(picture.copy(area)), qPrintable(name));
        }
    }
};

VELMO_TEST_MAIN(DesignerTest)

#include "DesignerTest.moc"
