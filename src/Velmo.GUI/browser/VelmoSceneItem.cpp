#include "browser/VelmoSceneItem.h"

#include "browser/AccessibleBrowser.h"
#include "browser/BrowserRow.h"
#include "foundation/AccessibleWidgets.h"
#include "foundation/OvixSvgKey.h"
#include "foundation/OvixSvgRenderer.h"
#include "foundation/ShownText.h"
#include "ui_VelmoSceneItem.h"

#include <QKeyEvent>
#include <QListWidgetItem>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int toggleColumnWidth = 18;
constexpr int statusIconMargin = 4;

/// An icon label keeps its last picture when it loses its files, so it is given an empty one first.
void showWarning(OvixSvgButton *label, bool warns)
{
    if (!warns && label->hasFilenames()) {
        label->setFilenames({QString()});
        label->paintEventUpdate();
    }
    label->setFilename(warns ? u":/Windows/Warning"_s : QString());
}

/// Gives the toggle its column before it has been painted for the first time.
QPixmap toggleBeforeFirstPaint()
{
    OvixSvgKey key;
    key.size = QSize(toggleColumnWidth, toggleColumnWidth);
    key.layers = {{u":/Windows/SceneAddOff"_s, {}, {}}};
    return OvixSvgRenderer::get(key);
}

} // namespace

VelmoSceneItem::VelmoSceneItem(QListWidgetItem *item, QWidget *parent)
    : QWidget(parent), m_ui(new Ui::VelmoSceneItem), m_item(item)
{
    AccessibleBrowser::install();
    m_ui->setupUi(this);
    m_texts = {{
        {m_ui->nameLabel, {}},
        {m_ui->lastModifiedLabel, {}},
        {m_ui->bakeLabel, {}},
        {m_ui->actorsLabel, {}},
        {m_ui->vehiclesLabel, {}},
        {m_ui->timeFramerateLabel, {}},
        {m_ui->versionLabel, {}},
    }};
    m_ui->nameEdit->hide();
    m_ui->nameEdit->setAccessibleName(tr("Scene name"));
    m_ui->nameEdit->setMaxLength(std::numeric_limits<int>::max()); // a shortened name would count as another one
    m_ui->nameEdit->installEventFilter(this);
    m_ui->addButton->setPixmap(toggleBeforeFirstPaint());
    m_ui->addButton->setAccessibleName(tr("Choose scene"));
    installEventFilter(this);
    updateStyle();

    connect(m_ui->addButton, &OvixSvgButton::clicked, this, &VelmoSceneItem::addTriggered);
    connect(m_ui->nameLabel, &QClickableLabel::doubleClicked, this, &VelmoSceneItem::doubleClickNameTriggered);
    connect(m_ui->statusLabel, &OvixSvgButton::doubleClicked, this, &VelmoSceneItem::doubleClickOtherTriggered);
    // Single clicks go through to the list, which selects the row.
    m_ui->statusLabel->setIgnoreSingleClick(true);
    m_ui->statusLabel->setMargins(statusIconMargin);
    for (const ElidedText &elided : m_texts) {
        auto *label = static_cast<QClickableLabel *>(elided.label);
        label->setIgnoreSingleClick(true);
        label->installEventFilter(this);
        if (label != m_ui->nameLabel)
            connect(label, &QClickableLabel::doubleClicked, this, &VelmoSceneItem::doubleClickOtherTriggered);
    }
    watchEditionFinished();
}

VelmoSceneItem::~VelmoSceneItem() = default;

void VelmoSceneItem::set(const QString &name, bool versionWarning, const QString &lastModified,
                         const QString &bakeStatus, const QString &actorCount, const QString &vehicleCount,
                         const QString &timeFramerate, const QString &version)
{
    setName(name);
    showWarning(m_ui->statusLabel, versionWarning);
    m_ui->statusLabel->setToolTip(versionWarning ? tr("Scene version warning tooltip.") : QString());
    setText(m_ui->lastModifiedLabel, lastModified);
    setText(m_ui->bakeLabel, bakeStatus);
    setText(m_ui->actorsLabel, actorCount);
    setText(m_ui->vehiclesLabel, vehicleCount);
    setText(m_ui->timeFramerateLabel, timeFramerate);
    setText(m_ui->versionLabel, version);
}

void VelmoSceneItem::setName(const QString &name)
{
    m_name = name;
    setText(m_ui->nameLabel, name);
    m_ui->nameLabel->setToolTip(name);
    setAccessibleName(name);
    if (m_item)
        m_item->setData(Qt::AccessibleTextRole, name);
}

QString VelmoSceneItem::getName() const
{
    return m_name;
}

void VelmoSceneItem::setAddEnabled(bool enabled)
{
    const bool changed = m_addEnabled != enabled;
    m_addEnabled = enabled;
    updateStyle();
    if (!changed)
        return;
    if (m_item)
        m_item->setData(Qt::AccessibleDescriptionRole, enabled ? tr("Chosen") : QString());
    AccessibleWidgets::announceChecked(this);
    AccessibleWidgets::announceChecked(m_ui->addButton);
}

bool VelmoSceneItem::isAddEnabled() const
{
    return m_addEnabled;
}

void VelmoSceneItem::setAddVisible(bool visible)
{
    m_ui->addButton->setVisible(visible);
}

bool VelmoSceneItem::isAddVisible() const
{
    return !m_ui->addButton->isHidden();
}

void VelmoSceneItem::setSelected(bool selected)
{
    m_selected = selected;
    updateStyle();
}

bool VelmoSceneItem::isSelected() const
{
    return m_selected;
}

void VelmoSceneItem::setEditingEnabled(bool enabled)
{
    m_editingEnabled = enabled;
}

QListWidgetItem *VelmoSceneItem::getItem() const
{
    return m_item;
}

void VelmoSceneItem::setWidths(int status, int lastModified, int bake, int actors, int timeFramerate, int version)
{
    BrowserRow::fixWidth(m_ui->statusLabel, status);
    BrowserRow::fixWidth(m_ui->lastModifiedLabel, lastModified);
    BrowserRow::fixWidth(m_ui->bakeLabel, bake);
    BrowserRow::fixWidth(m_ui->actorsLabel, actors);
    BrowserRow::fixWidth(m_ui->timeFramerateLabel, timeFramerate);
    BrowserRow::fixWidth(m_ui->versionLabel, version);
}

void VelmoSceneItem::updateStyle()
{
    const QString border = m_addEnabled ? u"border:1px solid; border-color:rgb(22, 129, 189);"_s : QString();
    BrowserRow::setLook(m_ui->backgroundWidget, m_selected || m_addEnabled, m_hovered, border);
    m_ui->addButton->setFilename(m_addEnabled ? u":/Windows/ToggleOnChecked"_s : u":/Windows/ToggleOff"_s);
}

void VelmoSceneItem::finishEditing()
{
    editionFinished();
}

void VelmoSceneItem::addTriggered()
{
    setAddEnabled(!m_addEnabled);
    emit addChanged();
}

void VelmoSceneItem::renameTriggered()
{
    if (!m_editingEnabled)
        return;
    m_ui->nameLabel->hide();
    m_ui->nameEdit->show();
    m_ui->nameEdit->setText(m_name);
    m_ui->nameEdit->selectAll();
    m_ui->nameEdit->setFocus();
}

void VelmoSceneItem::doubleClickNameTriggered()
{
    if (m_selected && m_editingEnabled)
        renameTriggered();
    else
        doubleClickOtherTriggered();
}

void VelmoSceneItem::doubleClickOtherTriggered()
{
    if (m_selected && isAddVisible())
        addTriggered();
}

void VelmoSceneItem::editionFinished()
{
    if (!m_ui->nameEdit->isVisible())
        return;
    // Losing the focus would call for the end of the edit once more.
    disconnect(m_ui->nameEdit, &QLineEdit::editingFinished, this, &VelmoSceneItem::editionFinished);
    m_ui->nameEdit->clearFocus();
    m_ui->nameEdit->hide();
    m_ui->nameLabel->show();
    watchEditionFinished();

    const QString typed = m_ui->nameEdit->text();
    if (typed != m_name)
        emit renameRequested(m_name, typed);
}

bool VelmoSceneItem::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == this) {
        if (BrowserRow::followsPointer(event, &m_hovered))
            updateStyle();
        return false;
    }
    if (watched == m_ui->nameEdit)
        return event->type() == QEvent::KeyPress && handleEditKey(static_cast<QKeyEvent *>(event)->key());
    if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange) {
        for (const ElidedText &elided : m_texts) {
            if (elided.label == watched)
                showElided(elided);
        }
    }
    return watched == m_ui->nameLabel && BrowserRow::showsPlainToolTip(m_ui->nameLabel, event);
}

void VelmoSceneItem::watchEditionFinished()
{
    connect(m_ui->nameEdit, &QLineEdit::editingFinished, this, &VelmoSceneItem::editionFinished, Qt::QueuedConnection);
}

void VelmoSceneItem::setText(QLabel *label, const QString &text)
{
    for (ElidedText &elided : m_texts) {
        if (elided.label != label)
            continue;
        elided.text = text;
        label->setAccessibleName(text);
        showElided(elided);
    }
}

void VelmoSceneItem::showElided(const ElidedText &elided) const
{
    // The vehicles column has no width of its own: a long count must not push the others aside.
    const int column = elided.label == m_ui->vehiclesLabel ? elided.label->minimumWidth() : elided.label->width();
    const int width = column - std::max(elided.label->indent(), 0);
    const QString shown =
        elided.label->fontMetrics().elidedText(ShownText::oneLine(elided.text), Qt::ElideRight, width);
    if (elided.label->text() != shown)
        elided.label->setText(shown);
}

/// Escape drops what has been typed. Keys that a line does not use stay away from the list, which would select another
/// row. True when the key has been dealt with.
bool VelmoSceneItem::handleEditKey(int key)
{
    switch (key) {
    case Qt::Key_Escape:
        m_ui->nameEdit->setText(m_name);
        editionFinished();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}
