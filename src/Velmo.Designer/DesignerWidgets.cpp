#include "DesignerWidgets.h"

#include <OvixMovableLabel.h>
#include <OvixSvgButton.h>
#include <OvixSvgLabel.h>
#include <QAnimatedLabel.h>
#include <QClickableLabel.h>
#include <QClickableWidget.h>
#include <QListWidgetNoDrag.h>
#include <QMultiCompleterLineEdit.h>
#include <VelmoCurtainLineWidget.h>
#include <VelmoCurtainWidget.h>
#include <VelmoProjectScenesWidget.h>
#include <VelmoProjectsTable.h>
#include <VelmoScenesTable.h>
#include <VelmoYesNoWidget.h>
#include <oVIXAspectRatioLabel.h>
#include <oVIXButton.h>
#include <oVIXCloseDetachWidget.h>
#include <oVIXCombo.h>
#include <oVIXDialogTitle.h>
#include <oVIXDockBar.h>
#include <oVIXDoubleSliderWidget.h>
#include <oVIXDragDropListWidget.h>
#include <oVIXDragDropTags.h>
#include <oVIXFrameBorder.h>
#include <oVIXLabelTitle.h>
#include <oVIXLineEdit.h>
#include <oVIXPieChartWidget.h>
#include <oVIXProgressBar.h>
#include <oVIXSliderBar.h>
#include <oVIXSliderWidget.h>
#include <oVIXTagListWidget.h>
#include <oVIXTagListWidgetItem.h>
#include <oVIXTimebarWidget.h>
#include <oVIXToggle.h>

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

/// What is left to say of a widget once its class and group are known.
struct Looks
{
    QString toolTip;
    QString whatsThis;
    QSize size;
    QList<std::pair<QString, QString>> properties = {};
    bool isContainer = false;
};

class WidgetTable
{
    Q_DECLARE_TR_FUNCTIONS(WidgetTable)

public:
    void addLabels();
    void addValues();
    void addChoosers();
    void addTags();
    void addPanels();
    void addBrowser();
    std::vector<DesignerEntry> take() { return std::move(m_entries); }

private:
    void begin(const QString &group) { m_group = group; }

    template <class Widget> void add(const Looks &looks)
    {
        DesignerEntry entry;
        entry.className = QString::fromLatin1(Widget::staticMetaObject.className());
        entry.create = [](QWidget *parent) -> QWidget * { return new Widget(parent); };
        entry.group = m_group;
        entry.toolTip = looks.toolTip;
        entry.whatsThis = looks.whatsThis;
        entry.size = looks.size;
        entry.properties = looks.properties;
        entry.isContainer = looks.isContainer;
        m_entries.push_back(std::move(entry));
    }

    QString m_group;
    std::vector<DesignerEntry> m_entries;
};

void WidgetTable::addLabels()
{
    begin(tr("Velmo Labels and Buttons"));
    const std::pair<QString, QString> picture{u"filename"_s, u":/Windows/Thumbnail"_s};
    const std::pair<QString, QString> text{u"text"_s, u"Text"_s};
    add<OvixSvgLabel>(
        {tr("Icon"), tr("Draws SVG pictures at any size, in one of six colour schemes."), {24, 24}, {picture}});
    add<OvixSvgButton>({tr("Icon button"), tr("A flat button with an icon."), {24, 24}, {picture}});
    add<oVIXButton>(
        {tr("Text button"), tr("A button with a text and, before it, an icon."), {84, 28}, {{u"text"_s, u"Button"_s}}});
    add<QClickableLabel>({tr("Clickable label"), tr("A label that tells of clicks."), {80, 20}, {text}});
    add<oVIXLabelTitle>({tr("Title of a group"),
                         tr("The raised strip above a list or a group."),
                         {160, 24},
                         {{u"text"_s, u"Title"_s}}});
    add<oVIXAspectRatioLabel>(
        {tr("Picture"), tr("Shows a picture as large as there is room, undistorted."), {160, 120}});
    add<QAnimatedLabel>({tr("Animated picture"), tr("Plays the frames of a sprite sheet."), {48, 48}});
    add<oVIXFrameBorder>({tr("Rounded frame"), tr("A rounded frame round other widgets."), {160, 120}, {}, true});
    add<QClickableWidget>(
        {tr("Clickable widget"), tr("Holds other widgets and tells of clicks."), {160, 120}, {}, true});
}

void WidgetTable::addValues()
{
    begin(tr("Velmo Values"));
    const std::pair<QString, QString> prefix{u"prefix"_s, u"Value"_s};
    add<oVIXSliderWidget>(
        {tr("Slider"), tr("Edits a whole number, or a range of them; the mode says which."), {200, 20}, {prefix}});
    add<oVIXDoubleSliderWidget>(
        {tr("Slider with decimals"), tr("Edits a number; the mode may make it a range."), {200, 20}, {prefix}});
    add<oVIXSliderBar>({tr("Slider bar"), tr("The bar of a slider alone, from 0 to 1."), {160, 20}});
    add<oVIXTimebarWidget>({tr("Timebar"), tr("The frames of the player, with play head and crop."), {400, 40}});
    add<OvixMovableLabel>({tr("Marker"), tr("A marker that is dragged along a line or edited."), {40, 24}});
    add<oVIXPieChartWidget>({tr("Pie chart"), tr("Edits the percentage shares of a model's rows."), {320, 200}});
    add<oVIXToggle>({tr("Toggle"), tr("One of several states, each a button with an icon."), {96, 32}});
    add<oVIXProgressBar>({tr("Frame bar"), tr("A thin bar of frames: cached, crop, play head."), {300, 8}});
}

void WidgetTable::addChoosers()
{
    begin(tr("Velmo Choosers"));
    add<oVIXCombo>(
        {tr("Combo"), tr("A caption and a choice; clicked, it opens a menu."), {200, 20}, {{u"text"_s, u"Caption"_s}}});
    add<oVIXLineEdit>({tr("Line edit"), tr("A line edit in the look of the library."), {140, 24}});
    add<QMultiCompleterLineEdit>(
        {tr("Completing line edit"), tr("Completes every word that is typed, or the whole text."), {140, 24}});
}

void WidgetTable::addTags()
{
    begin(tr("Velmo Tags"));
    add<oVIXDragDropTags>({tr("Tag editor"), tr("Two lists of tags to drag between."), {360, 200}});
    add<oVIXDragDropListWidget>({tr("Drop list"), tr("A list of tags that are dragged and dropped."), {180, 200}});
    add<oVIXTagListWidget>({tr("Tag list"), tr("A list of chips that can be dragged out."), {180, 120}});
    add<oVIXTagListWidgetItem>({tr("Tag"), tr("One chip, as in the tag list."), {60, 20}, {{u"text"_s, u"Tag"_s}}});
    add<QListWidgetNoDrag>({tr("Plain list"), tr("A list that does not select while dragging."), {180, 120}});
}

void WidgetTable::addPanels()
{
    begin(tr("Velmo Panels and Dialogs"));
    add<oVIXDialogTitle>({tr("Dialog title"), tr("The title strip of a frameless dialog."), {300, 30}});
    add<oVIXDockBar>({tr("Panel header"), tr("Title, search field and buttons of a panel."), {240, 30}});
    add<oVIXCloseDetachWidget>(
        {tr("Panel buttons"), tr("Thumbnail size, detach and close, as in a panel's header."), {50, 25}});
    add<VelmoYesNoWidget>({tr("OK and cancel"),
                           tr("A message with an OK and a cancel half."),
                           {400, 36},
                           {{u"msgText"_s, u"Message"_s}}});
}

void WidgetTable::addBrowser()
{
    begin(tr("Velmo Projects and Scenes"));
    add<VelmoProjectsTable>({tr("Project list"), tr("The projects of the start screen."), {320, 240}});
    add<VelmoScenesTable>({tr("Scene list"), tr("The scenes of a project, with their data."), {640, 240}});
    add<VelmoProjectScenesWidget>(
        {tr("Project scenes"), tr("Scene list, preview and buttons of one project."), {720, 420}});
    add<VelmoCurtainWidget>(
        {tr("Curtain"), tr("A section that unfolds below its title."), {300, 30}, {{u"title"_s, u"Section"_s}}});
    add<VelmoCurtainLineWidget>({tr("Section line"), tr("A dark line between two sections."), {300, 3}});
}

} // namespace

std::vector<DesignerEntry> designerWidgets()
{
    WidgetTable table;
    table.addLabels();
    table.addValues();
    table.addChoosers();
    table.addTags();
    table.addPanels();
    table.addBrowser();
    return table.take();
}
