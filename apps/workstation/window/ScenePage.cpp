#include "window/ScenePage.h"

#include "look/Sheets.h"
#include "start/StatusLine.h"
#include "window/SceneView.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ScenePage::ScenePage(QWidget *parent) : QWidget(parent), m_view(new SceneView(this)), m_facts(new StatusLine(this))
{
    setObjectName(u"window"_s);
    setStyleSheet(Sheets::window());
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_facts);
}

void ScenePage::setScene(const Scene &scene)
{
    m_view->setScene(scene);
    m_facts->showNote(tr("%1: %2 people, %3 vehicles, %4")
                          .arg(scene.name, QString::number(scene.people.size()), QString::number(scene.vehicles.size()),
                               scene.groundName));
}

const Scene &ScenePage::scene() const
{
    return m_view->scene();
}
