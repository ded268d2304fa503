#include "browser/VelmoProjectScenesWidget.h"

#include "browser/VelmoSceneMetadataParser.h"
#include "foundation/QPixmapScaling.h"
#include "foundation/SheetOnChange.h"
#include "ui_VelmoProjectScenesWidget.h"

#include <QDateTime>
#include <QFileInfo>
#include <QPixmap>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

constexpr int iconMargin = 8;
constexpr int buttonRadius = 4;

QString noPreviewSheet()
{
    return u"QLabel {  border-radius:4px; \tcolor:rgb(219,219,219);\tbackground:rgb(59,59,59);}"_s;
}

void setUpImageButton(OvixSvgButton *button, const QString &icon, const QString &name)
{
    button->setFilename(icon);
    button->setMargins(iconMargin);
    button->setRoundedBorder(buttonRadius);
    button->setBackgroundVisible(true, true);
    button->setHoverVisible(true);
    button->setAccessibleName(name);
}

} // namespace

VelmoProjectScenesWidget::VelmoProjectScenesWidget(QWidget *parent)
    : QWidget(parent), m_ui(new Ui::VelmoProjectScenesWidget)
{
    m_ui->setupUi(this);
    setUpImageButton(m_ui->closeSceneButton, u":/ProjectWindow/Duplicate"_s, tr("Clone scene"));
    setUpImageButton(m_ui->deleteSceneButton, u":/ProjectWindow/Delete"_s, tr("Delete scene"));
    setYesNoButtonEnabled(false);
    setYesNoButtonText(tr("OPEN"));

    connect(m_ui->yesNoWidget, &VelmoYesNoWidget::accept, this, &VelmoProjectScenesWidget::accept);
    connect(m_ui->yesNoWidget, &VelmoYesNoWidget::reject, this, &VelmoProjectScenesWidget::reject);
    connect(m_ui->deleteSceneButton, &OvixSvgButton::clicked, this, &VelmoProjectScenesWidget::deleteScenePressed);
    connect(m_ui->closeSceneButton, &OvixSvgButton::clicked, this, &VelmoProjectScenesWidget::cloneScenePressed);
    connect(m_ui->scenesTable, &VelmoScenesTable::newScenePressed, this, &VelmoProjectScenesWidget::newScenePressed);
    connect(m_ui->scenesTable, &VelmoScenesTable::selectionChanged, this,
            &VelmoProjectScenesWidget::sceneSelectionChanged);
    connect(m_ui->scenesTable, &VelmoScenesTable::renameRequested, this, &VelmoProjectScenesWidget::renameTriggered);
}

VelmoProjectScenesWidget::~VelmoProjectScenesWidget() = default;

void VelmoProjectScenesWidget::addScene(const QString &path)
{
    VelmoSceneMetadataParser metadata = VelmoSceneMetadataParser::withDefaults();
    QDateTime lastModified;
    const QPointer<VelmoProjectScenesWidget> guard(this); // a message box may be open for long
    parseScene(path, metadata, lastModified);
    if (guard)
        addScene(QFileInfo(path).fileName(), metadata, lastModified, true);
}

void VelmoProjectScenesWidget::addScene(const QString &name, const VelmoSceneMetadataParser &metadata,
                                        const QDateTime &lastModified, bool compatible)
{
    m_ui->scenesTable->addScene(name, VelmoVersion::current() < metadata.version, lastModified.toString(),
                                metadata.bakeStatus, metadata.actorCount, metadata.vehicleCount, metadata.timeFramerate,
                                metadata.version.toString(), compatible);
}

void VelmoProjectScenesWidget::parseScene(const QString &path, VelmoSceneMetadataParser &metadata,
                                          QDateTime &lastModified)
{
    // Qt prints a warning about a path that no file can have.
    lastModified = path.contains(QChar::Null) ? QDateTime() : QFileInfo(path).lastModified();
    metadata.parse(path);
}

void VelmoProjectScenesWidget::clearScenes()
{
    m_ui->scenesTable->clearScenes();
}

void VelmoProjectScenesWidget::renameScene(const QString &oldName, const QString &newName)
{
    m_ui->scenesTable->renameScene(oldName, newName);
}

int VelmoProjectScenesWidget::getSceneCount() const
{
    return m_ui->scenesTable->getSceneCount();
}

void VelmoProjectScenesWidget::setSceneEnabled(const QString &name, bool enabled)
{
    m_ui->scenesTable->setSceneEnabled(name, enabled);
}

bool VelmoProjectScenesWidget::isSceneEnabled(const QString &name) const
{
    return m_ui->scenesTable->isSceneEnabled(name);
}

void VelmoProjectScenesWidget::setSceneSelected(const QString &name)
{
    m_ui->scenesTable->setSelectedScene(name);
}

bool VelmoProjectScenesWidget::isSceneSelected(const QString &name) const
{
    return getSelectedScene().compare(name, Qt::CaseInsensitive) == 0;
}

QString VelmoProjectScenesWidget::getSelectedScene() const
{
    return m_ui->scenesTable->getSelectedScene();
}

int VelmoProjectScenesWidget::getSelectedRow() const
{
    return m_ui->scenesTable->getSelectedRow();
}

void VelmoProjectScenesWidget::setSelectedRow(int row)
{
    m_ui->scenesTable->setSelectedRow(row);
}

void VelmoProjectScenesWidget::setDefaultSelection()
{
    m_ui->scenesTable->setDefaultSelection();
}

void VelmoProjectScenesWidget::setEditingEnabled(bool enabled)
{
    m_ui->closeSceneButton->setVisible(enabled);
    m_ui->deleteSceneButton->setVisible(enabled);
    m_ui->scenesTable->setEditingEnabled(enabled);
}

void VelmoProjectScenesWidget::finishEditing()
{
    m_ui->scenesTable->finishEditing();
}

void VelmoProjectScenesWidget::setSceneButtonsEnabled(bool enabled)
{
    m_ui->closeSceneButton->setEnabled(enabled);
    m_ui->deleteSceneButton->setEnabled(enabled);
}

void VelmoProjectScenesWidget::setYesNoButtonText(const QString &text)
{
    m_ui->yesNoWidget->setOkText(text);
}

void VelmoProjectScenesWidget::setYesNoButtonEnabled(bool enabled)
{
    m_ui->yesNoWidget->enableOkButtonAndColor(enabled);
}

void VelmoProjectScenesWidget::setPreview(const QPixmap &picture)
{
    const QPixmap scaled = QPixmapScaling::scaleToWidth(picture, m_ui->thumbnailLabel->width(), devicePixelRatioF());
    if (scaled.isNull())
        return;
    m_ui->thumbnailLabel->setPixmap(scaled);
    m_ui->thumbnailLabel->setAccessibleName(tr("Scene preview"));
}

void VelmoProjectScenesWidget::clearPreview()
{
    const QString text = tr("NO SCENE PREVIEW");
    m_ui->thumbnailLabel->setText(u"<b>"_s + text + u"</b>"_s);
    m_ui->thumbnailLabel->setAccessibleName(text);
    setSheetOnChange(m_ui->thumbnailLabel, noPreviewSheet());
}
