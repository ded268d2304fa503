#include "browser/VelmoProjectItem.h"

#include "browser/AccessibleBrowser.h"
#include "browser/BrowserRow.h"
#include "ui_VelmoProjectItem.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QListWidgetItem>

namespace {

/// A folder's path may end in a separator.
QString lastComponent(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    return name.isEmpty() && !path.isEmpty() ? QDir(path).dirName() : name;
}

} // namespace

VelmoProjectItem::VelmoProjectItem(QListWidgetItem *item, QWidget *parent)
    : QWidget(parent), m_ui(new Ui::VelmoProjectItem), m_item(item)
{
    AccessibleBrowser::install();
    m_ui->setupUi(this);
    m_ui->nameLabel->installEventFilter(this);
    installEventFilter(this);
    updateStyle();
}

VelmoProjectItem::~VelmoProjectItem() = default;

void VelmoProjectItem::set(const QString &path, const QString &lastModified)
{
    m_path = path;
    const QString name = lastComponent(path);
    m_ui->nameLabel->setText(name);
    m_ui->nameLabel->setToolTip(path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath());
    m_ui->lastModifiedLabel->setText(lastModified);
    setAccessibleName(name);
    if (m_item)
        m_item->setData(Qt::AccessibleTextRole, name);
}

QString VelmoProjectItem::getPath() const
{
    return m_path;
}

QListWidgetItem *VelmoProjectItem::getItem() const
{
    return m_item;
}

void VelmoProjectItem::setSelected(bool selected)
{
    m_selected = selected;
    updateStyle();
}

bool VelmoProjectItem::isSelected() const
{
    return m_selected;
}

void VelmoProjectItem::setWidths(int lastModified)
{
    BrowserRow::fixWidth(m_ui->lastModifiedLabel, lastModified);
}

void VelmoProjectItem::updateStyle()
{
    BrowserRow::setLook(m_ui->backgroundWidget, m_selected, m_hovered);
}

bool VelmoProjectItem::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_ui->nameLabel)
        return BrowserRow::showsPlainToolTip(m_ui->nameLabel, event);
    if (BrowserRow::followsPointer(event, &m_hovered))
        updateStyle();
    return false;
}
