#include "window/SceneFactsDialog.h"

#include "look/ElidedLabel.h"
#include "look/Sheets.h"
#include "scenes/Scene.h"

#include <QDir>
#include <QFormLayout>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int factsWidth = 480;

} // namespace

SceneFactsDialog::SceneFactsDialog(const Scene &scene, QWidget *parent)
    : oVIXDialog(false, false, false, parent, nullptr)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setupTitle(tr("SCENE"), scene.name);
    setWindowTitle(tr("Facts of %1").arg(scene.name));
    setDragEnabled(true);
    setFixedWidth(factsWidth);

    auto *form = new QFormLayout;
    form->setHorizontalSpacing(24);
    form->setVerticalSpacing(10);
    form->setLabelAlignment(Qt::AlignLeft);
    const auto addFact = [this, form](const QString &name, const QString &value) {
        auto *shown = new ElidedLabel(this);
        shown->setFullText(value.isEmpty() ? tr("Not told") : value);
        auto *label = new QLabel(name, this);
        label->setObjectName(u"factName"_s);
        form->addRow(label, shown);
    };
    addFact(tr("File"), QDir::toNativeSeparators(scene.path));
    addFact(tr("Saved by release"), scene.version);
    addFact(tr("Bake"), scene.bakeStatus);
    addFact(tr("Ground"), scene.groundName);
    addFact(tr("Size"), tr("%1 x %2 m").arg(scene.ground.width()).arg(scene.ground.height()));
    addFact(tr("Length"), scene.timeText());
    addFact(tr("Walls"), QString::number(scene.walls.size()));
    addFact(tr("People"), QString::number(scene.crowdSize()));
    addFact(tr("Vehicles"), QString::number(scene.vehicles.size()));

    auto *closing = new QPushButton(tr("Close"), this);
    closing->setDefault(true);
    connect(closing, &QPushButton::clicked, this, &SceneFactsDialog::accept);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(20);
    layout->addLayout(form);
    layout->addWidget(closing, 0, Qt::AlignRight);
    for (QLabel *label : findChildren<QLabel *>(u"factName"_s))
        label->setStyleSheet(Sheets::secondaryText());
    closing->setStyleSheet(Sheets::button());
    adjustSize();
}
