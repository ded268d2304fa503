#include "DesignerWidget.h"

#include <QIcon>
#include <QXmlStreamWriter>

using namespace Qt::StringLiterals;

namespace {

/// "sliderWidget" for oVIXSliderWidget.
QString objectNameFor(const QString &className)
{
    for (const QString &prefix : {u"oVIX"_s, u"Ovix"_s, u"Velmo"_s, u"Q"_s}) {
        if (className.startsWith(prefix)) {
            const QString name = className.sliced(prefix.size());
            return name.front().toLower() + name.sliced(1);
        }
    }
    return className;
}

void writeGeometry(QXmlStreamWriter &xml, QSize size)
{
    xml.writeStartElement(u"property"_s);
    xml.writeAttribute(u"name"_s, u"geometry"_s);
    xml.writeStartElement(u"rect"_s);
    xml.writeTextElement(u"x"_s, u"0"_s);
    xml.writeTextElement(u"y"_s, u"0"_s);
    xml.writeTextElement(u"width"_s, QString::number(size.width()));
    xml.writeTextElement(u"height"_s, QString::number(size.height()));
    xml.writeEndElement();
    xml.writeEndElement();
}

void writeText(QXmlStreamWriter &xml, const QString &property, const QString &value)
{
    xml.writeStartElement(u"property"_s);
    xml.writeAttribute(u"name"_s, property);
    xml.writeStartElement(u"string"_s);
    if (value.startsWith(u":/"_s))
        xml.writeAttribute(u"notr"_s, u"true"_s);
    xml.writeCharacters(value);
    xml.writeEndElement();
    xml.writeEndElement();
}

} // namespace

DesignerWidget::DesignerWidget(DesignerEntry entry) : m_entry(std::move(entry))
{ }

DesignerWidget::~DesignerWidget() = default;

QString DesignerWidget::name() const
{
    return m_entry.className;
}

QString DesignerWidget::group() const
{
    return m_entry.group;
}

QString DesignerWidget::toolTip() const
{
    return m_entry.toolTip;
}

QString DesignerWidget::whatsThis() const
{
    return m_entry.whatsThis;
}

QString DesignerWidget::includeFile() const
{
    return m_entry.className + u".h"_s;
}

QIcon DesignerWidget::icon() const
{
    // A drawing tells no sizes of its own, and Designer takes such an icon for none.
    const QIcon drawing(u":/Designer/"_s + m_entry.className + u".svg"_s);
    QIcon icon;
    for (const int side : {16, 24, 32, 48})
        icon.addPixmap(drawing.pixmap(QSize(side, side), 1.0));
    return icon;
}

bool DesignerWidget::isContainer() const
{
    return m_entry.isContainer;
}

QWidget *DesignerWidget::createWidget(QWidget *parent)
{
    return m_entry.create(parent);
}

QString DesignerWidget::domXml() const
{
    QString text;
    QXmlStreamWriter xml(&text);
    xml.writeStartElement(u"ui"_s);
    xml.writeAttribute(u"language"_s, u"c++"_s);
    xml.writeStartElement(u"widget"_s);
    xml.writeAttribute(u"class"_s, m_entry.className);
    xml.writeAttribute(u"name"_s, objectNameFor(m_entry.className));
    writeGeometry(xml, m_entry.size);
    for (const auto &[property, value] : m_entry.properties)
        writeText(xml, property, value);
    xml.writeEndElement();
    xml.writeEndElement();
    return text;
}
