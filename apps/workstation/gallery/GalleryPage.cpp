#include "gallery/GalleryPage.h"

#include "VelmoColor.h"

#include <QAccessible>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int pageWidth = 1164;

QLabel *createText(const QString &text, const QString &sheet, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setStyleSheet(sheet);
    return label;
}

QString textSheet(int pixels, int weight, const QString &colour)
{
    return u"QLabel { font-family:Inter; font-size:%1px; font-weight:%2; color:%3; }"_s.arg(
        QString::number(pixels), QString::number(weight), colour);
}

/// Whether assistive tools ask for a name of what has this role.
bool isUsed(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::Button:
    case QAccessible::Chart:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::List:
    case QAccessible::ProgressBar:
    case QAccessible::Slider:
    case QAccessible::SpinBox:
        return true;
    default:
        return false;
    }
}

/// Gives what is used in a sample these words for a name, where it has none of its own.
void nameSample(QWidget *sample, const QString &words)
{
    const QList<QWidget *> widgets = QList<QWidget *>{sample} + sample->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
        if (accessible && isUsed(accessible->role()) && accessible->text(QAccessible::Name).isEmpty())
            widget->setAccessibleName(words);
    }
}

} // namespace

SampleSection::SampleSection(const QString &title, const QString &note, QWidget *parent)
    : QWidget(parent), m_layout(new QVBoxLayout(this))
{
    setObjectName(u"panel"_s);
    setAccessibleName(title);
    setAttribute(Qt::WA_StyledBackground);
    m_layout->setContentsMargins(16, 12, 16, 16);
    m_layout->setSpacing(12);

    auto *words = new QVBoxLayout;
    words->setSpacing(4);
    words->addWidget(createText(title, textSheet(13, 600, u"rgb(219,219,219)"_s), this));
    if (!note.isEmpty())
        words->addWidget(createText(note, textSheet(11, 400, u"rgb(156,156,156)"_s), this));
    m_layout->addLayout(words);
}

void SampleSection::addRow(const QList<Sample> &samples)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(8);
    int column = 0;
    for (const Sample &sample : samples) {
        grid->addWidget(sample.widget, 0, column, Qt::AlignCenter);
        nameSample(sample.widget, sample.caption.isEmpty() ? accessibleName() : sample.caption);
        if (!sample.caption.isEmpty())
            grid->addWidget(createCaption(sample.caption), 1, column);
        ++column;
    }
    grid->setColumnStretch(column, 1);
    m_layout->addLayout(grid);
}

void SampleSection::addWide(QWidget *widget)
{
    m_layout->addWidget(widget);
    nameSample(widget, accessibleName());
}

GalleryPage::GalleryPage(const QString &title, QWidget *parent) : QWidget(parent), m_layout(new QVBoxLayout(this))
{
    setObjectName(u"page"_s);
    setMinimumWidth(pageWidth);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(u"#page { background-color:rgb(39,39,39); }"
                  "#panel { background-color:rgb(28,28,28); border-radius:4px; }"_s);
    m_layout->setContentsMargins(16, 16, 16, 16);
    m_layout->setSpacing(16);
    m_layout->setAlignment(Qt::AlignTop);
    m_layout->addWidget(createText(title, textSheet(20, 600, u"rgb(219,219,219)"_s), this));
}

SampleSection *GalleryPage::addSection(const QString &title, const QString &note)
{
    auto *section = new SampleSection(title, note, this);
    m_layout->addWidget(section);
    return section;
}

QWidget *createCaption(const QString &text, Qt::Alignment alignment)
{
    QLabel *caption = createText(text, textSheet(11, 400, u"rgb(156,156,156)"_s), nullptr);
    caption->setAlignment(alignment);
    return caption;
}

QWidget *createPlate(QWidget *content, const QColor &colour, int margin)
{
    auto *plate = new QWidget;
    plate->setObjectName(u"plate"_s);
    plate->setAttribute(Qt::WA_StyledBackground);
    plate->setStyleSheet(u"#plate { background-color:%1; border-radius:4px; }"_s.arg(VelmoColor::colorToSheet(colour)));
    auto *layout = new QVBoxLayout(plate);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(content, 0, Qt::AlignCenter);
    return plate;
}

QWidget *createStrip(const QList<QWidget *> &widgets, int spacing)
{
    auto *strip = new QWidget;
    auto *layout = new QHBoxLayout(strip);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    for (QWidget *widget : widgets)
        layout->addWidget(widget);
    return strip;
}
