#include "tags/oVIXDragTag.h"

#include "foundation/OvixSvgLabel.h"
#include "foundation/QClickableLabel.h"
#include "foundation/SheetOnChange.h"
#include "foundation/VelmoColor.h"
#include "foundation/VelmoPalette.h"
#include "tags/AccessibleTags.h"
#include "tags/ChipWidth.h"
#include "tags/TagSheets.h"
#include "tags/oVIXAutoHideLine.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

constexpr int tagHeight = 20;
constexpr int widthBesideText = 40;
constexpr int widthBesideTextAndButton = 55;
constexpr int leftPadding = 10;
constexpr int leftPaddingWithButton = 15;
constexpr QRect iconArea(2, 2, 20, 20);
constexpr QRect clickArea(2, 4, 16, 16);
constexpr QRect lineArea(0, 0, 150, 18);

} // namespace

oVIXDragTag::oVIXDragTag(const QString &text, const QColor &background, const QColor &textColor, DRAG_BUTTON button,
                         bool showButton, QWidget *parent)
    : QLabel(parent), m_button(button), m_showButton(showButton), m_background(background), m_textColor(textColor)
{
    AccessibleTags::install();
    setTextFormat(Qt::PlainText);
    setText(text);
    setAutoFillBackground(true);
    setFixedHeight(tagHeight);
    if (isAdd()) {
        addIcon(u":/Windows/AddButton"_s, u":/Windows/AddButtonChecked"_s);
    } else {
        const int beside = hasButton() ? widthBesideTextAndButton : widthBesideText;
        setFixedWidth(chipWidth(text, beside));
        if (hasButton())
            addIcon(u":/Windows/CancelCross"_s, {});
    }
    if (isAdd() || hasButton())
        addClickArea();
    updateSheet();
}

oVIXDragTag::~oVIXDragTag() = default;

void oVIXDragTag::setColors(const QColor &background, const QColor &text)
{
    m_background = background;
    m_textColor = text;
    updateSheet();
}

DRAG_BUTTON oVIXDragTag::getButtonOptions() const
{
    return m_button;
}

bool oVIXDragTag::isAdd() const
{
    return m_button == BUTTON_ADD;
}

void oVIXDragTag::fnAddClicked()
{
    if (!m_line)
        return;
    m_line->show();
    m_line->setFocus();
    m_line->setGeometry(lineArea);
    update();
}

void oVIXDragTag::fnAddNewTag()
{
    if (!m_line)
        return;
    const QPointer<oVIXAutoHideLine> line(m_line);
    emit tagAdd(m_line->text().replace(u',', u'.'));
    if (line)
        line->clear();
}

void oVIXDragTag::fnHideLine()
{
    if (m_line)
        m_line->hide();
}

void oVIXDragTag::mousePressEvent(QMouseEvent *event)
{
    if (isEnabled() && event->button() == Qt::LeftButton && !isAdd()) {
        m_dragArmed = true;
        m_pressPosition = event->position().toPoint();
    }
    event->accept();
}

void oVIXDragTag::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_dragArmed || !(event->buttons() & Qt::LeftButton))
        return;
    if ((event->position().toPoint() - m_pressPosition).manhattanLength() < QApplication::startDragDistance())
        return;
    m_dragArmed = false;
    emit startDrag(event);
}

void oVIXDragTag::mouseDoubleClickEvent(QMouseEvent * /*event*/)
{
    if (!isAdd())
        emit doubleClick();
}

bool oVIXDragTag::hasButton() const
{
    return m_button != BUTTON_NONE && (m_showButton || m_button == BUTTON_REMOVE);
}

void oVIXDragTag::addIcon(const QString &filename, const QString &invertedFilename)
{
    auto *icon = new OvixSvgLabel(this);
    icon->setFilename(filename);
    if (invertedFilename.isEmpty())
        icon->setInverted(true);
    else
        icon->setFilenameInverted(invertedFilename);
    icon->setGeometry(iconArea);
}

void oVIXDragTag::addClickArea()
{
    auto *area = new QClickableLabel(this);
    area->setGeometry(clickArea);
    if (!isAdd()) {
        area->setAccessibleName(tr("Remove"));
        connect(area, &QClickableLabel::clicked, this, &oVIXDragTag::tagClicked);
        return;
    }
    area->setAccessibleName(tr("Add"));
    m_line = new oVIXAutoHideLine(this, m_background, m_textColor);
    m_line->setAccessibleName(tr("New tag"));
    m_line->resize(m_line->width(), height());
    connect(area, &QClickableLabel::clicked, this, &oVIXDragTag::fnAddClicked);
    connect(m_line, &QLineEdit::returnPressed, this, &oVIXDragTag::fnAddNewTag);
    connect(m_line, &QLineEdit::editingFinished, this, &oVIXDragTag::fnHideLine);
}

void oVIXDragTag::updateSheet()
{
    const QString background = isAdd() ? QString(VelmoPalette::transparent) : VelmoColor::colorToSheet(m_background);
    const int padding = isAdd() || hasButton() ? leftPaddingWithButton : leftPadding;
    setSheetOnChange(this, TagSheets::dragTag(background, m_textColor, padding));
}
