#include "gallery/LabelsPage.h"

#include "OvixSvgButton.h"
#include "QClickableLabel.h"
#include "QClickableWidget.h"
#include "QPixmapScaling.h"
#include "VelmoStyle.h"
#include "gallery/ApplicationSheetSamples.h"
#include "gallery/ClickCounter.h"
#include "gallery/SamplePicture.h"
#include "look/Sheets.h"
#include "oVIXAspectRatioLabel.h"

#include <QListWidget>
#include <QScrollBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

OvixSvgButton *createButton(const QString &path)
{
    auto *button = new OvixSvgButton;
    button->setFilename(path);
    button->setFixedSize(32, 32);
    button->setMargins(4);
    button->setRoundedBorder(4);
    button->setBackgroundVisible(true, true);
    button->setHoverVisible(true);
    return button;
}

/// A button and the count of its signals.
Sample counted(OvixSvgButton *button, const QString &caption)
{
    auto *counter = new ClickCounter;
    counter->count(button, &OvixSvgButton::clicked, LabelsPage::tr("clicked"));
    counter->count(button, &OvixSvgButton::doubleClicked, LabelsPage::tr("double"));
    counter->count(button, &OvixSvgButton::rightClicked, LabelsPage::tr("right"));
    return {createStrip({button, counter}), caption};
}

QWidget *createAspectRatioLabel(QSize size)
{
    auto *label = new oVIXAspectRatioLabel;
    label->setStyleSheet(u"background-color:rgb(59,59,59);"_s);
    label->setAlignment(Qt::AlignCenter);
    label->setFixedSize(size);
    label->setPixmap(SamplePicture::draw(QSize(300, 200)));
    return label;
}

QWidget *createImageButton(const QString &sheet, bool enabled = true)
{
    auto *label = new QLabel;
    label->setStyleSheet(sheet);
    label->setFixedSize(40, 32);
    label->setEnabled(enabled);
    return label;
}

QWidget *createDropList(bool roundLeft, bool roundRight)
{
    auto *list = new QListWidget;
    list->setStyleSheet(VelmoStyle::styleDragDropList(roundLeft, roundRight));
    list->verticalScrollBar()->setStyleSheet(Sheets::scrollBar());
    list->setFixedSize(160, 96);
    for (const QString &text : {LabelsPage::tr("Adults"), LabelsPage::tr("Children"), LabelsPage::tr("Cyclists")}) {
        auto *item = new QListWidgetItem(text, list);
        item->setSizeHint(QSize(0, 24));
        auto *words = new QLabel(text);
        words->setStyleSheet(u"color:rgb(219,219,219); padding-left:8px;"_s);
        list->setItemWidget(item, words);
    }
    return list;
}

} // namespace

LabelsPage::LabelsPage(QWidget *parent) : GalleryPage(tr("Labels and buttons"), parent)
{
    addClickables();
    addButtons();
    addPictures();
    addImageButtons();
    addDropLists();
    addApplicationSheet();
}

void LabelsPage::addClickables()
{
    const auto addLabel = [](QClickableLabel *label, const QString &caption) -> Sample {
        label->setStyleSheet(u"background-color:rgb(59,59,59); color:rgb(219,219,219); border-radius:4px;"
                             "padding:8px 12px;"_s);
        auto *counter = new ClickCounter;
        counter->count(label, &QClickableLabel::clicked, tr("clicked"));
        counter->count(label, &QClickableLabel::doubleClicked, tr("double"));
        counter->count(label, &QClickableLabel::clickReleased, tr("released"));
        return {createStrip({label, counter}), caption};
    };
    auto *doubleOnly = new QClickableLabel(tr("Double click me"));
    doubleOnly->setIgnoreSingleClick(true);

    auto *area = new QClickableWidget;
    area->setAttribute(Qt::WA_StyledBackground);
    area->setStyleSheet(u"QClickableWidget { background-color:rgb(59,59,59); border-radius:4px; }"_s);
    area->setFixedSize(112, 40);
    auto *areaLayout = new QVBoxLayout(area);
    areaLayout->setContentsMargins(0, 0, 0, 0);
    areaLayout->addWidget(createCaption(tr("Press anywhere")));
    auto *counter = new ClickCounter;
    counter->count(area, &QClickableWidget::clicked, tr("clicked"));

    addSection(tr("Clickable labels"), tr("They answer the press; the numbers count their signals."))
        ->addRow({
            addLabel(new QClickableLabel(tr("Click me")), tr("label")),
            addLabel(doubleOnly, tr("label, ignoring single clicks")),
            {createStrip({area, counter}), tr("widget")},
        });
}

void LabelsPage::addButtons()
{
    OvixSvgButton *checkable = createButton(u":/Design/Lock"_s);
    OvixSvgButton *checked = createButton(u":/Design/Lock"_s);
    for (OvixSvgButton *button : {checkable, checked}) {
        button->setCheckable(true);
        button->setFilenameInverted(u":/Design/LockChecked"_s);
    }
    checked->setChecked(true);
    OvixSvgButton *doubleOnly = createButton(u":/Windows/Detach"_s);
    doubleOnly->setIgnoreSingleClick(true);
    OvixSvgButton *focused = createButton(u":/Windows/AddButton"_s);
    focused->setFocusPolicy(Qt::StrongFocus);
    focused->setFocus();

    addSection(tr("Icon buttons"), tr("They answer the release. The last one takes the keyboard: Space presses it."))
        ->addRow({
            counted(createButton(u":/Windows/Close"_s), tr("plain")),
            counted(checkable, tr("checkable")),
            counted(checked, tr("checked")),
            counted(doubleOnly, tr("ignoring single clicks")),
            counted(focused, tr("with keyboard focus")),
        });
}

void LabelsPage::addPictures()
{
    QList<Sample> kept;
    for (const QSize size : {QSize(60, 40), QSize(120, 80), QSize(160, 80), QSize(80, 120)})
        kept.append({createAspectRatioLabel(size), tr("%1 × %2").arg(size.width()).arg(size.height())});
    addSection(tr("Aspect ratio label"), tr("A picture of 300 × 200 keeps its shape in fields of several sizes."))
        ->addRow(kept);

    QList<Sample> scaled;
    for (const double ratio : {1.0, 1.5, 2.0, 3.0}) {
        auto *label = new QLabel;
        label->setObjectName(u"otherDensity"_s); // than that of the screen, mostly
        const QPixmap picture = QPixmapScaling::scale(SamplePicture::draw(QSize(600, 400)), 96, 64, ratio);
        label->setPixmap(picture);
        scaled.append({label, tr("ratio %1: %2 × %3").arg(ratio).arg(picture.width()).arg(picture.height())});
    }
    addSection(tr("Pixmap scaling"), tr("96 × 64 logical pixels for screens of several densities.")) //
        ->addRow(scaled);
}

void LabelsPage::addImageButtons()
{
    const QString image = u":/Design/Lock"_s;
    const QString disabledImage = u":/Design/LockChecked"_s;
    addSection(tr("Picture buttons made of sheets"))
        ->addRow({
            {createImageButton(VelmoStyle::regularButtonGrayStyle(image, disabledImage)), tr("grey")},
            {createImageButton(VelmoStyle::regularButtonGrayStyle(image, disabledImage), false), tr("grey, disabled")},
            {createImageButton(VelmoStyle::regularButtonYellowStyle(image)), tr("accent")},
            {createImageButton(VelmoStyle::labelGrayStyleAndImage(image)), tr("label")},
        });
}

void LabelsPage::addDropLists()
{
    addSection(tr("Drop lists"), tr("Either side can be rounded; the rows are widgets of their own."))
        ->addRow({
            {createDropList(true, true), tr("both sides rounded")},
            {createDropList(true, false), tr("left side rounded")},
            {createDropList(false, true), tr("right side rounded")},
            {createDropList(false, false), tr("square")},
        });
}

void LabelsPage::addApplicationSheet()
{
    addSection(tr("Application-wide sheet"), tr("Toolkit widgets as every window of the application shows them."))
        ->addRow({
            {ApplicationSheetSamples::createMenu(), tr("menu")},
            {ApplicationSheetSamples::createTabs(), tr("tabs")},
            {ApplicationSheetSamples::createGroupBox(), tr("group box on a light panel")},
            {ApplicationSheetSamples::createToolTip(), tr("tool tip")},
        });
}
