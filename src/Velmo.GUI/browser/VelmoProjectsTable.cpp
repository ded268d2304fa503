#include "browser/VelmoProjectsTable.h"

#include "browser/VelmoProjectItem.h"
#include "ui_VelmoProjectsTable.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// clang-format off
QString projectsTableSheet()
{
    return u"#backgroundWidget {\tborder-radius:4px;\tbackground-color:rgb(59,59,59);}"
            "QListWidget { background-color:transparent; }"
            "QListWidget::item { selection-background-color:transparent; }"_s;
}
// clang-format on

} // namespace

VelmoProjectsTable::VelmoProjectsTable(QWidget *parent) : QWidget(parent), m_ui(new Ui::VelmoProjectsTable)
{
    setStyleSheet(projectsTableSheet()); // before there are children, which it would style anew
    m_ui->setupUi(this);
    connect(m_ui->listWidget, &QListWidget::itemSelectionChanged, this, &VelmoProjectsTable::listSelectionChanged);
}

VelmoProjectsTable::~VelmoProjectsTable() = default;

void VelmoProjectsTable::addProject(const QString &path, const QString &lastModified)
{
    auto *item = new QListWidgetItem(m_ui->listWidget);
    auto *row = new VelmoProjectItem(item, m_ui->listWidget->viewport());
    row->set(path, lastModified);
    m_ui->listWidget->addRow(item, row);
    m_rows.append(row);
    resizeItem(row);
}

int VelmoProjectsTable::getProjectCount() const
{
    return int(m_rows.size());
}

QString VelmoProjectsTable::getSelectedProject() const
{
    const int row = m_ui->listWidget->selectedRow(m_rows.size());
    return row < 0 ? QString() : m_rows[row]->getPath();
}

void VelmoProjectsTable::setSelectedProject(const QString &path)
{
    clearSelection();
    const auto found = std::find_if(m_rows.cbegin(), m_rows.cend(), [&](const VelmoProjectItem *row) {
        return row->getPath().compare(path, Qt::CaseInsensitive) == 0;
    });
    if (found != m_rows.cend())
        m_ui->listWidget->select((*found)->getItem());
}

void VelmoProjectsTable::setDefaultSelection()
{
    clearSelection();
    if (!m_rows.isEmpty())
        m_ui->listWidget->select(m_rows.constFirst()->getItem());
}

void VelmoProjectsTable::clearSelection()
{
    m_ui->listWidget->clearSelection();
}

void VelmoProjectsTable::listSelectionChanged()
{
    m_ui->listWidget->showSelectionIn(m_rows);
    emit selectionChanged();
}

void VelmoProjectsTable::resize()
{
    for (VelmoProjectItem *row : std::as_const(m_rows))
        resizeItem(row);
}

void VelmoProjectsTable::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    resize();
}

void VelmoProjectsTable::resizeItem(VelmoProjectItem *row) const
{
    row->setWidths(m_ui->lastModifiedLabel->width());
}
