#include "gallery/IconStatesPage.h"

#include "OvixSvgLabel.h"
#include "OvixSvgRenderer.h"
#include "gallery/FrozenHover.h"
#include "look/Palette.h"

#include <QGridLayout>
#include <QLabel>
#include <QMetaEnum>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int iconSize = 32;

using Scheme = OvixSvgLabel::ColorScheme;
using Setup = std::function<void(OvixSvgLabel *)>;

struct State
{
    QString name;
    std::function<void(OvixSvgLabel *, Scheme)> setUp;
    /// What lies under the icons.
    QColor ground = Palette::window;
};

OvixSvgLabel *createIcon(const QString &path, const Setup &setUp, QSize size = {iconSize, iconSize})
{
    auto *icon = new OvixSvgLabel;
    icon->setFilename(path);
    icon->setFixedSize(size);
    icon->setMargins(4);
    setUp(icon);
    return icon;
}

bool isLightWhenChecked(Scheme scheme)
{
    return scheme == OvixSvgLabel::CharcoalBlue || scheme == OvixSvgLabel::Grey || scheme == OvixSvgLabel::White;
}

/// Light backgrounds get the dark, inverted picture, as an application would set them up.
QList<State> states()
{
    return {
        {IconStatesPage::tr("normal"), [](OvixSvgLabel *, Scheme) {}},
        {IconStatesPage::tr("background"),
         [](OvixSvgLabel *icon, Scheme scheme) {
             icon->setBackgroundVisible(true, true);
             icon->setInverted(scheme == OvixSvgLabel::White);
         }},
        {IconStatesPage::tr("hover"),
         [](OvixSvgLabel *icon, Scheme scheme) {
             icon->setHoverVisible(true);
             icon->setInvertOnHover(scheme == OvixSvgLabel::CharcoalBlue || scheme == OvixSvgLabel::White);
             freezeHover(icon);
         }},
        {IconStatesPage::tr("checked"),
         [](OvixSvgLabel *icon, Scheme scheme) {
             icon->setInvertOnCheck(isLightWhenChecked(scheme));
             icon->setChecked(true);
         }},
        {IconStatesPage::tr("disabled"),
         [](OvixSvgLabel *icon, Scheme scheme) {
             icon->setBackgroundVisible(true, true);
             icon->setInverted(scheme == OvixSvgLabel::White);
             icon->setEnabled(false);
         }},
        {IconStatesPage::tr("inverted"), [](OvixSvgLabel *icon, Scheme) { icon->setInverted(true); },
         Palette::secondaryText},
        {IconStatesPage::tr("inverted file"),
         [](OvixSvgLabel *icon, Scheme) {
             icon->setFilenameInverted(u":/Windows/AddButtonChecked"_s);
             icon->setInverted(true);
         }},
    };
}

QWidget *createShadowPicture(bool asImage, int shadow)
{
    auto *label = new QLabel;
    OvixSvgKey key;
    key.devicePixelRatio = label->devicePixelRatio();
    key.size = QSize(64, 64);
    key.margins = QMargins(8, 8, 8, 8);
    // The shadow alone does not tell two keys apart.
    key.supersampling = shadow > 0 ? 2 : 1;
    key.shadow = shadow;
    key.layers = {{u":/Windows/Detach"_s, {}, {}}};
    QPixmap picture = OvixSvgRenderer::get(key);
    if (asImage)
        picture = QPixmap::fromImage(OvixSvgRenderer::generateShadow(picture.toImage(), 4));
    picture.setDevicePixelRatio(key.devicePixelRatio);
    label->setPixmap(picture);
    return createPlate(label, Palette::secondaryText, 8);
}

} // namespace

IconStatesPage::IconStatesPage(QWidget *parent) : GalleryPage(tr("Icon states"), parent)
{
    addSchemes();
    addShapes();
    addOpacity();
    addShadows();
}

void IconStatesPage::addSchemes()
{
    auto *table = new QWidget;
    auto *grid = new QGridLayout(table);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(8);

    const QList<State> columns = states();
    const QMetaEnum schemes = QMetaEnum::fromType<OvixSvgLabel::ColorScheme>();
    for (int column = 0; column < int(columns.size()); ++column)
        grid->addWidget(createCaption(columns[column].name), 0, column + 1);
    for (int row = 0; row < schemes.keyCount(); ++row) {
        grid->addWidget(createCaption(QString::fromLatin1(schemes.key(row)), Qt::AlignLeft | Qt::AlignVCenter), row + 1,
                        0);
        const auto scheme = static_cast<Scheme>(schemes.value(row));
        for (int column = 0; column < int(columns.size()); ++column) {
            QList<QWidget *> icons;
            for (const QString &path : {u":/Windows/Detach"_s, u":/Design/Lock"_s, u":/Windows/Thumbnail"_s}) {
                icons << createIcon(path, [&](OvixSvgLabel *icon) {
                    icon->setColorScheme(scheme);
                    icon->setRoundedBorder(4);
                    columns[column].setUp(icon, scheme);
                });
            }
            grid->addWidget(createPlate(createStrip(icons, 4), columns[column].ground, 4), row + 1, column + 1);
        }
    }
    grid->setColumnStretch(int(columns.size()) + 1, 1);
    addSection(tr("Colour schemes"), tr("Six schemes in every state. Light backgrounds take the inverted picture."))
        ->addWide(table);
}

void IconStatesPage::addShapes()
{
    const QString path = u":/Windows/Thumbnail"_s;
    const QSize wide(96, 40);
    const auto sample = [&](const QString &caption, const Setup &setUp) -> Sample {
        return {createIcon(
                    path,
                    [&](OvixSvgLabel *icon) {
                        icon->setMargins(0);
                        icon->setBackgroundVisible(true, true);
                        setUp(icon);
                    },
                    wide),
                caption};
    };
    addSection(tr("Shapes, borders and margins"))
        ->addRow({
            sample(tr("Square"), [](OvixSvgLabel *) {}),
            sample(tr("Stretch"), [](OvixSvgLabel *icon) { icon->setImageShape(OvixSvgLabel::Stretch); }),
            sample(tr("border 4"), [](OvixSvgLabel *icon) { icon->setRoundedBorder(4); }),
            sample(tr("border 16"), [](OvixSvgLabel *icon) { icon->setRoundedBorder(16); }),
            sample(tr("picture margins 8"), [](OvixSvgLabel *icon) { icon->setMargins(8); }),
            sample(tr("padding 8"), [](OvixSvgLabel *icon) { icon->setPadding(8); }),
            sample(tr("background margins 8"), [](OvixSvgLabel *icon) { icon->setBackgroundMargins(8); }),
        });
}

void IconStatesPage::addOpacity()
{
    QList<Sample> samples;
    for (const double opacity : {1.0, 0.75, 0.5, 0.25}) {
        samples.append({createIcon(u":/Design/LockChecked"_s, [&](OvixSvgLabel *icon) { icon->setOpacity(opacity); }),
                        tr("%1 %").arg(qRound(opacity * 100))});
    }
    samples.append(
        {createIcon(u":/Design/LockChecked"_s, [](OvixSvgLabel *icon) { icon->setEnabled(false); }), tr("disabled")});
    addSection(tr("Opacity"))->addRow(samples);
}

void IconStatesPage::addShadows()
{
    addSection(tr("Shadow"), tr("A soft dark halo keeps light icons legible on a light ground."))
        ->addRow({
            {createShadowPicture(false, 0), tr("none")},
            {createShadowPicture(false, 1), tr("of the icon service")},
            {createShadowPicture(true, 0), tr("of an image")},
        });
}
