#include "window/SceneEditor.h"

#include "panels/CrowdEditor.h"
#include "panels/LibraryPanel.h"
#include "panels/ParametersPanel.h"
#include "panels/TagsPanel.h"
#include "window/SceneKeeper.h"
#include "window/ScenePage.h"
#include "window/SceneView.h"

#include <OvixSvgButton.h>
#include <oVIXDockBar.h>
#include <oVIXMainWindow.h>

#include <QApplication>
#include <QPointer>
#include <QStackedWidget>

namespace {

/// For the keyboard and for assistive tools, which have no pointer to hover with.
void keepHeaderInReach(oVIXDock *panel)
{
    const QList<OvixSvgButton *> buttons = panel->getTitleWidget()->findChildren<OvixSvgButton *>();
    for (OvixSvgButton *button : buttons)
        button->setFocusPolicy(Qt::TabFocus);
    panel->setHideSearchUntilHover(false);
}

} // namespace

SceneEditor::SceneEditor(oVIXMainWindow *window, QStackedWidget *pages)
    : QObject(window), m_page(new ScenePage(pages)), m_keeper(new SceneKeeper(m_page, window)),
      m_library(new LibraryPanel(window)), m_parameters(new ParametersPanel(window)), m_tags(new TagsPanel(window))
{
    m_page->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored); // until it is the page that is shown
    pages->addWidget(m_page);
    for (oVIXDock *panel : panels()) {
        keepHeaderInReach(panel);
        panel->hide(); // the window would show them
    }
    window->addDockWidget(Qt::LeftDockWidgetArea, m_library);
    window->addDockWidget(Qt::RightDockWidgetArea, m_parameters);
    window->addDockWidget(Qt::LeftDockWidgetArea, m_tags);
    connectPanels();
}

ScenePage *SceneEditor::page() const
{
    return m_page;
}

SceneKeeper *SceneEditor::keeper() const
{
    return m_keeper;
}

LibraryPanel *SceneEditor::library() const
{
    return m_library;
}

ParametersPanel *SceneEditor::parameters() const
{
    return m_parameters;
}

TagsPanel *SceneEditor::tags() const
{
    return m_tags;
}

QList<oVIXDock *> SceneEditor::panels() const
{
    return {m_library, m_parameters, m_tags};
}

void SceneEditor::setScene(const Scene &scene)
{
    m_library->setScene(scene);
    m_tags->setScene(scene);
    m_parameters->crowd()->setScene(scene);
    m_page->setScene(scene, m_parameters->crowd()->settings());
}

void SceneEditor::finishEdits()
{
    const QPointer<QWidget> typing = QApplication::focusWidget();
    if (typing)
        typing->clearFocus();
    if (typing && typing->isVisible())
        typing->setFocus();
    m_tags->finishEdits();
}

void SceneEditor::connectPanels()
{
    SceneView *view = m_page->view();
    connect(m_library, &LibraryPanel::typeSelected, this, [view](const QString &type) {
        ViewOptions options = view->options();
        options.highlightedType = type;
        view->setOptions(options);
    });
    connect(m_parameters, &ParametersPanel::optionsChanged, this, [view](ViewOptions options) {
        options.highlightedType = view->options().highlightedType;
        options.highlightedTag = view->options().highlightedTag;
        options.mode = view->options().mode;
        view->setOptions(options);
    });
    connect(view, &SceneView::moverPicked, m_library, &LibraryPanel::selectType);
    connect(view, &SceneView::zoomChanged, m_parameters, &ParametersPanel::setZoom);

    connect(m_tags, &TagsPanel::filterChanged, this, [view](const QString &tag) {
        ViewOptions options = view->options();
        options.highlightedTag = tag;
        view->setOptions(options);
    });
    connect(m_tags, &TagsPanel::tagsEdited, this, [this](const QStringList &assigned, const QStringList &available) {
        m_page->setTags(assigned, available);
        m_tags->setScene(m_page->scene());
    });

    CrowdEditor *crowd = m_parameters->crowd();
    connect(crowd, &CrowdEditor::edited, this, [this, crowd] { m_page->setCrowd(crowd->settings()); });
    connect(crowd, &CrowdEditor::bakeClicked, m_page, &ScenePage::toggleBaking);
    connect(m_page, &ScenePage::bakingChanged, crowd, &CrowdEditor::showBaking);
}
