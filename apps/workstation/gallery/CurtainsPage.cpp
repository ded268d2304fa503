#include "gallery/CurtainsPage.h"

#include "VelmoCurtainLineWidget.h"
#include "VelmoCurtainWidget.h"
#include "oVIXCombo.h"

#include <QVBoxLayout>

namespace {

constexpr int usual = 300;

VelmoCurtainWidget *createCurtain(const QString &title, const QString &subtitle)
{
    auto *curtain = new VelmoCurtainWidget;
    curtain->setTitle(title);
    curtain->setSubtitle(subtitle);
    for (const QString &option : {CurtainsPage::tr("Goals"), CurtainsPage::tr("Vehicles")}) {
        auto *combo = new oVIXCombo;
        combo->setYesNo(option);
        curtain->addToContainerWidget(combo);
    }
    return curtain;
}

/// Curtains below each other as in a panel of this width.
QWidget *createPanel(int width, const QList<QWidget *> &widgets)
{
    auto *content = new QWidget;
    content->setFixedWidth(width);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *widget : widgets)
        layout->addWidget(widget);
    layout->addStretch();
    return createPlate(content, QColor(59, 59, 59));
}

} // namespace

CurtainsPage::CurtainsPage(QWidget *parent) : GalleryPage(tr("Curtains"), parent)
{
    addStates();
    addNested();
    addTexts();
    addLines();
}

void CurtainsPage::addStates()
{
    VelmoCurtainWidget *collapsed = createCurtain(tr("Display"), tr("2 options"));
    collapsed->setExpanded(false);
    VelmoCurtainWidget *disabled = createCurtain(tr("Display"), tr("2 options"));
    disabled->setEnabled(false);
    addSection(tr("States"), tr("The titles of a disabled curtain keep their colours."))
        ->addRow({{createPanel(usual, {createCurtain(tr("Display"), tr("2 options"))}), tr("Expanded")},
                  {createPanel(usual, {collapsed}), tr("Collapsed")},
                  {createPanel(usual, {disabled}), tr("Disabled")}});
}

void CurtainsPage::addNested()
{
    VelmoCurtainWidget *outer = createCurtain(tr("Crowd"), tr("with sections of its own"));
    outer->addToContainerWidget(createCurtain(tr("People"), tr("expanded")));
    VelmoCurtainWidget *inner = createCurtain(tr("Vehicles"), tr("collapsed"));
    inner->setExpanded(false);
    outer->addToContainerWidget(inner);

    QList<QWidget *> column;
    for (const QString &title : {tr("View"), tr("Crowd"), tr("Bake")}) {
        VelmoCurtainWidget *curtain = createCurtain(title, tr("2 options"));
        curtain->setExpanded(title == tr("Crowd"));
        column << curtain;
    }
    addSection(tr("Several"))
        ->addRow({{createPanel(usual, {outer}), tr("Inside another")}, {createPanel(usual, column), tr("A column")}});
}

void CurtainsPage::addTexts()
{
    const QString longTitle = tr("A title that is longer than its panel");
    const QString longSubtitle = tr("and a subtitle that is no shorter than that");
    QList<Sample> samples;
    for (const int width : {160, usual, 500})
        samples.append({createPanel(width, {createCurtain(longTitle, longSubtitle)}), tr("%1 pixels").arg(width)});
    addSection(tr("Texts"), tr("Title and subtitle are plain text and give way at the right."))->addRow(samples);
}

void CurtainsPage::addLines()
{
    auto *hidden = new VelmoCurtainLineWidget;
    hidden->setLineVisible(false);
    addSection(tr("Line"))
        ->addRow({{createPanel(usual, {new VelmoCurtainLineWidget}), tr("Shown")},
                  {createPanel(usual, {hidden}), tr("Hidden")}});
}
