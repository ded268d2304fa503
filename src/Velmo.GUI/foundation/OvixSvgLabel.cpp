#include "foundation/OvixSvgLabel.h"

#include "foundation/AccessibleWidgets.h"
#include "foundation/KeyboardPress.h"
#include "foundation/OvixSvgRenderer.h"
#include "foundation/SheetOnChange.h"
#include "foundation/SvgLabelSheets.h"
#include "foundation/UpdatesHeld.h"

#include <QBackingStore>
#include <QPaintEvent>
#include <QPixmap>

#include <algorithm>
#include <optional>

namespace {

constexpr double disabledOpacity = 0.2;

void setFirstLayer(QList<OvixSvgLayer> &layers, const QString &filename)
{
    if (filename.isEmpty()) {
        layers.clear();
        return;
    }
    if (layers.isEmpty())
        layers.append(OvixSvgLayer());
    layers[0].filename = filename;
}

void setAllLayers(QList<OvixSvgLayer> &layers, const QList<QString> &filenames)
{
    layers.resize(filenames.size());
    for (qsizetype i = 0; i < filenames.size(); ++i)
        layers[i].filename = filenames[i];
}

/// What margins take of a side; bad ones take no more than a widget can have.
int taken(int first, int second)
{
    return int(std::clamp<qint64>(qint64(first) + second, 0, QWIDGETSIZE_MAX));
}

QSize sizeOf(const QMargins &margins)
{
    return {taken(margins.left(), margins.right()), taken(margins.top(), margins.bottom())};
}

} // namespace

OvixSvgLabel::OvixSvgLabel(QWidget *parent) : QLabel(parent)
{
    AccessibleWidgets::install();
    setAlignment(Qt::AlignCenter);
    setScaledContents(true);
}

OvixSvgLabel::~OvixSvgLabel() = default;

void OvixSvgLabel::setFilename(const QString &filename)
{
    setFirstLayer(m_normalKey.layers, filename);
    update();
}

void OvixSvgLabel::setFilenames(const QList<QString> &filenames)
{
    setAllLayers(m_normalKey.layers, filenames);
}

void OvixSvgLabel::setFilenameInverted(const QString &filename)
{
    setFirstLayer(m_invertedKey.layers, filename);
    update();
}

void OvixSvgLabel::setFilenamesInverted(const QList<QString> &filenames)
{
    setAllLayers(m_invertedKey.layers, filenames);
}

bool OvixSvgLabel::hasFilenames() const
{
    return !m_normalKey.layers.isEmpty();
}

QString OvixSvgLabel::firstFilename() const
{
    return hasFilenames() ? m_normalKey.layers.constFirst().filename : QString();
}

void OvixSvgLabel::setRenderList(const QList<QString> &elementIds, int layer)
{
    QList<OvixSvgLayer> &layers = m_normalKey.layers;
    if (layer == 0 && layers.isEmpty())
        layers.append(OvixSvgLayer());
    const bool exists = layer >= 0 && layer < layers.size();
    Q_ASSERT_X(exists, "OvixSvgLabel::setRenderList", "no such layer");
    if (!exists)
        return;
    layers[layer].elementIds = elementIds;
    update();
}

void OvixSvgLabel::setMargins(int margin)
{
    setMargins(margin, margin, margin, margin);
}

void OvixSvgLabel::setMargins(int left, int top, int right, int bottom)
{
    m_normalKey.margins = m_invertedKey.margins = QMargins(left, top, right, bottom);
    update();
}

void OvixSvgLabel::setPadding(int padding)
{
    setPadding(padding, padding, padding, padding);
}

void OvixSvgLabel::setPadding(int left, int top, int right, int bottom)
{
    m_padding = QMargins(left, top, right, bottom);
    markSheetsDirty();
}

void OvixSvgLabel::setBackgroundMargins(int margin)
{
    setBackgroundMargins(QMargins(margin, margin, margin, margin));
}

void OvixSvgLabel::setBackgroundMargins(int left, int top, int right, int bottom)
{
    setBackgroundMargins(QMargins(left, top, right, bottom));
}

void OvixSvgLabel::setBackgroundMargins(const QMargins &margins)
{
    m_backgroundMargins = margins;
    markSheetsDirty();
}

void OvixSvgLabel::setRoundedBorder(int radius)
{
    m_roundedBorder = radius;
    markSheetsDirty();
}

void OvixSvgLabel::setColorScheme(ColorScheme scheme)
{
    m_colorScheme = scheme;
    markSheetsDirty();
}

void OvixSvgLabel::setBackgroundVisible(bool normal, bool checked)
{
    m_backgroundVisible = normal;
    m_checkedBackgroundVisible = checked;
    markSheetsDirty();
}

void OvixSvgLabel::setHoverVisible(bool visible)
{
    m_hoverVisible = visible;
    markSheetsDirty();
}

void OvixSvgLabel::setInverted(bool inverted)
{
    m_inverted = inverted;
    update();
}

void OvixSvgLabel::setOpacity(double opacity)
{
    m_opacity = opacity;
    update();
}

void OvixSvgLabel::setInvertOnCheck(bool invert)
{
    m_invertOnCheck = invert;
    update();
}

void OvixSvgLabel::setInvertOnHover(bool invert)
{
    m_invertOnHover = invert;
    update();
}

void OvixSvgLabel::setImageShape(ImageShape shape)
{
    m_imageShape = shape;
}

void OvixSvgLabel::setChecked(bool checked)
{
    const bool changed = m_checked != checked;
    m_checked = checked;
    m_sheetPending = true;
    update();
    if (changed)
        AccessibleWidgets::announceChecked(this);
}

bool OvixSvgLabel::isChecked() const
{
    return m_checked;
}

void OvixSvgLabel::paintEventUpdate()
{
    updatePicture(nullptr);
    updateSheet();
}

QSize OvixSvgLabel::minimumSizeHint() const
{
    const QSize sum = sizeOf(m_normalKey.margins) + sizeOf(m_padding) + sizeOf(m_backgroundMargins);
    return sum.boundedTo(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

void OvixSvgLabel::paintEvent(QPaintEvent *event)
{
    updatePicture(event);
    updateSheet();
    QLabel::paintEvent(event);
    paintFocusRing(this);
}

void OvixSvgLabel::enterEvent(QEnterEvent *event)
{
    m_hovered = true;
    repaintIfHoverShows();
    QWidget::enterEvent(event);
}

void OvixSvgLabel::leaveEvent(QEvent *event)
{
    m_hovered = false;
    repaintIfHoverShows();
    QWidget::leaveEvent(event);
}

void OvixSvgLabel::markSheetsDirty()
{
    m_sheetsDirty = true;
    update();
}

bool OvixSvgLabel::isInvertedNow() const
{
    const bool turned = (m_invertOnCheck && m_checked) || (m_invertOnHover && m_hovered);
    return m_inverted != turned;
}

void OvixSvgLabel::updateKeys()
{
    if (m_invertedKey.layers.isEmpty())
        m_normalKey.inverted = isInvertedNow();
    // The inverted files keep their full opacity while disabled.
    m_normalKey.opacity = (isEnabled() ? 1.0 : disabledOpacity) * m_opacity;
    m_normalKey.devicePixelRatio = m_invertedKey.devicePixelRatio = devicePixelRatio();
}

void OvixSvgLabel::updateSizes()
{
    QSize picture = size();
    QMargins around;
    if (m_imageShape == Square) {
        const int side = std::min(width(), height());
        const int left = (width() - side) / 2;
        const int top = (height() - side) / 2;
        picture = QSize(side, side);
        around = QMargins(left, top, left, top);
    }
    m_normalKey.size = m_invertedKey.size = picture;
    if (contentsMargins() != around)
        setContentsMargins(around);
}

/// What changes during a paint of the whole widget on the screen is to be seen at the end of that paint. A paint into a
/// picture (`grab`) shows nothing on the screen.
bool OvixSvgLabel::showsWholeChange(const QPaintEvent *paint) const
{
    QPoint offset;
    QBackingStore *screen = backingStore();
    return paint && screen && redirected(&offset) == screen->paintDevice()
        && visibleRegion().subtracted(paint->region()).isEmpty();
}

void OvixSvgLabel::updatePicture(const QPaintEvent *paint)
{
    updateKeys();
    updateSizes();

    const bool useInverted = isInvertedNow() && !m_invertedKey.layers.isEmpty();
    const OvixSvgKey &key = useInverted ? m_invertedKey : m_normalKey;
    if (key.layers.isEmpty())
        return;
    const size_t hash = qHash(key, 0);
    if (hash == m_lastHash)
        return;

    std::optional<UpdatesHeld> held;
    if (showsWholeChange(paint))
        held.emplace(this);
    setPixmap(OvixSvgRenderer::get(key, hash));
    m_lastHash = hash;
}

void OvixSvgLabel::updateSheet()
{
    if (m_sheetsDirty) {
        const SvgLabelSheets sheets =
            SvgLabelSheets::of({m_colorScheme, m_backgroundVisible, m_hoverVisible, m_checkedBackgroundVisible,
                                m_padding, m_backgroundMargins, m_roundedBorder});
        m_normalSheet = sheets.normal;
        m_checkedSheet = sheets.checked;
        m_sheetsDirty = false;
        m_sheetPending = true;
    }
    if (m_sheetPending) {
        setSheetOnChange(this, m_checked ? m_checkedSheet : m_normalSheet);
        updateSizes(); // a sheet with padding has set margins of its own
        m_sheetPending = false;
    }
}

void OvixSvgLabel::repaintIfHoverShows()
{
    if (m_invertOnHover || m_hoverVisible)
        update();
}
