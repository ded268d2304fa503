#include "choosers/oVIXCombo.h"

#include "choosers/AccessibleChoosers.h"
#include "choosers/ComboItems.h"
#include "choosers/ComboSheets.h"
#include "foundation/AccessibleWidgets.h"
#include "foundation/KeyboardPress.h"
#include "foundation/SheetOnChange.h"
#include "foundation/ShownText.h"

#include "VelmoDropData.h"

#include "ui_oVIXCombo.h"

#include <QAccessible>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QScreen>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int comboHeight = 20;
constexpr int fontPixels = 11;
constexpr int menuItemPadding = 10;
constexpr int menuBorder = 1;
constexpr int yesNoCaptionWidth = 16000;
constexpr int yesNoChoiceWidth = 59;

/// Whether it is dragged by the application, readable or not.
bool holdsPayload(const QMimeData &data)
{
    static const QString format = [] {
        const std::unique_ptr<QMimeData> payload(VelmoDropData({}, VelmoDropData::NoType).getMimeData());
        return payload->formats().constFirst();
    }();
    return data.hasFormat(format);
}

} // namespace

oVIXCombo::oVIXCombo(QWidget *parent)
    : QLabel(parent), m_ui(std::make_unique<Ui::oVIXCombo>()), m_items(std::make_unique<ComboItems>())
{
    AccessibleChoosers::install();
    m_ui->setupUi(this);
    setFixedHeight(comboHeight);
    setAcceptDrops(true);
    m_ui->openButton->setAccessibleName(tr("Open"));
    setOverride(false);
    m_ui->comboLabel->setText(QString());
    setAlignment(Qt::AlignLeft);

    connect(m_ui->textLabel, &QClickableLabel::clickReleased, this, &oVIXCombo::labelClicked);
    connect(m_ui->comboLabel, &QClickableLabel::clickReleased, this, &oVIXCombo::labelClicked);
    connect(m_ui->openButton, &OvixSvgButton::clicked, this, &oVIXCombo::buttonClicked);
}

oVIXCombo::~oVIXCombo()
{
    if (!m_menu)
        return;
    // We may be ended by what the menu tells: it goes once it has come out of its events.
    m_menu->setParent(nullptr, m_menu->windowFlags());
    m_menu->deleteLater();
}

void oVIXCombo::addItem(QString text, QString meta)
{
    m_items->add(text, meta);
    if (m_items->count() == 1)
        showChoice(text);
}

void oVIXCombo::addItems(QList<QString> texts, QList<QString> metas)
{
    for (int i = 0; i < int(texts.size()); ++i)
        addItem(texts[i], metas.value(i));
}

void oVIXCombo::clear()
{
    m_current = -1;
    *m_items = {};
    showChoice(QString());
}

int oVIXCombo::count() const
{
    return m_items->count();
}

bool oVIXCombo::isEmpty() const
{
    return m_items->count() == 0;
}

QString oVIXCombo::itemText(int index) const
{
    return m_items->texts.value(index);
}

QString oVIXCombo::itemMeta(int index) const
{
    return m_items->metas.value(index);
}

int oVIXCombo::currentIndex() const
{
    return m_current;
}

QString oVIXCombo::getCurrentComboText() const
{
    return m_ui->comboLabel->text();
}

QString oVIXCombo::getCurrentComboMeta() const
{
    return inOverrideMode() ? m_overrideText : itemMeta(m_current);
}

int oVIXCombo::getComboMetaIndex(QString meta) const
{
    return int(m_items->metas.indexOf(meta));
}

void oVIXCombo::setCurrentIndex(int index)
{
    if (!m_items->has(index))
        return;
    m_current = index;
    showChoice(itemText(index));
    setOverride(false);
    m_overrideText.clear();
}

void oVIXCombo::setComboText(QString text, QString meta)
{
    showChoice(text);
    const int index = m_items->find(text, meta);
    if (index >= 0)
        m_current = index;
    setOverride(index < 0);
    m_overrideText = index >= 0 ? QString() : meta.isEmpty() ? text : meta;
}

void oVIXCombo::setComboMeta(QString meta)
{
    setCurrentIndex(getComboMetaIndex(meta));
}

void oVIXCombo::setItemText(int index, QString text)
{
    if (!m_items->has(index))
        return;
    m_items->texts[index] = text;
    if (index == m_current)
        showChoice(text);
}

void oVIXCombo::setItemEnabled(int index, bool enabled)
{
    if (m_items->has(index))
        m_items->enabled[index] = enabled;
}

void oVIXCombo::removeItem(int index)
{
    if (!m_items->has(index))
        return;
    const bool wasCurrent = index == m_current;
    m_items->remove(index);
    if (isEmpty()) {
        m_current = -1;
        if (wasCurrent || !inOverrideMode())
            showChoice(QString());
    } else if (index < m_current) {
        --m_current;
    } else if (wasCurrent) {
        setCurrentIndex(0);
    }
}

void oVIXCombo::removeItem(QString text)
{
    removeItem(int(m_items->texts.indexOf(text)));
}

void oVIXCombo::setOverride(bool on)
{
    if (!m_allowOverride || m_override == on)
        return;
    m_override = on;
    m_ui->openButton->setFilename(on ? u":/Windows/ClearCross"_s : u":/Windows/DropArrow"_s);
}

bool oVIXCombo::isOverride() const
{
    return m_override;
}

void oVIXCombo::setAllowOverride(bool allow)
{
    m_allowOverride = allow;
}

bool oVIXCombo::allowOverride() const
{
    return m_allowOverride;
}

void oVIXCombo::setYesNo(QString caption)
{
    m_ui->textLabel->setText(caption);
    setYesNo();
}

void oVIXCombo::setYesNo()
{
    clear();
    m_ui->textLabel->setFont(m_ui->comboLabel->font());
    m_ui->textLabel->setMaximumWidth(yesNoCaptionWidth);
    m_ui->comboLabel->setMaximumWidth(yesNoChoiceWidth);
    addItem(tr("YES"), QString());
    addItem(tr("NO"), QString());
}

void oVIXCombo::setChecked(bool checked)
{
    if (count() == 2)
        setCurrentIndex(checked ? 0 : 1);
}

bool oVIXCombo::isChecked() const
{
    return m_current == 0;
}

void oVIXCombo::setText(QString caption)
{
    m_ui->textLabel->setText(caption);
    m_ui->comboLabel->setFont(m_ui->textLabel->font());
}

QString oVIXCombo::caption() const
{
    return m_ui->textLabel->text();
}

void oVIXCombo::setAlignment(Qt::Alignment alignment)
{
    QLabel::setAlignment(alignment);
    updateStyle();
}

QSize oVIXCombo::sizeHint() const
{
    return {layout()->totalSizeHint().width(), comboHeight};
}

QSize oVIXCombo::minimumSizeHint() const
{
    return {layout()->totalMinimumSize().width(), comboHeight};
}

void oVIXCombo::dragEnterEvent(QDragEnterEvent *event)
{
    dragMoveEvent(event);
}

void oVIXCombo::dragMoveEvent(QDragMoveEvent *event)
{
    if (holdsPayload(*event->mimeData()))
        event->acceptProposedAction();
    else
        event->ignore();
}

void oVIXCombo::dropEvent(QDropEvent *event)
{
    if (!holdsPayload(*event->mimeData())) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    emit dropped(const_cast<QMimeData *>(event->mimeData()), event->source());
}

void oVIXCombo::keyPressEvent(QKeyEvent *event)
{
    const bool opens = hasKeyboardFocus(this) && event->key() == Qt::Key_Down;
    if (!opens && !isPressKey(this, event))
        QLabel::keyPressEvent(event);
    else if (opens)
        showMenu();
    else if (!event->isAutoRepeat())
        buttonClicked();
}

void oVIXCombo::labelClicked()
{
    if (!inOverrideMode())
        showMenu();
}

void oVIXCombo::buttonClicked()
{
    if (!isEmpty()) {
        showMenu();
        return;
    }
    setComboText(QString(), QString());
    emit resetCombo();
}

void oVIXCombo::showMenu()
{
    if (isEmpty() || m_menu)
        return;
    m_menu = new QMenu(this);
    fillMenu();
    connect(m_menu, &QMenu::hovered, this, &oVIXCombo::hoveredMenuAction);
    connect(m_menu, &QMenu::triggered, this, &oVIXCombo::triggeredMenuAction);
    m_triggered.clear();
    AccessibleWidgets::announceExpanded(this);

    // Whoever hears of the menu, and whatever happens while it is open, may change the items or end the combo.
    const QPointer<oVIXCombo> alive(this);
    emit menuOpened();
    if (!alive || !m_menu)
        return;
    QAction *const chosen = m_menu->exec(m_ui->comboLabel->mapToGlobal(QPoint()));
    if (!alive)
        return;
    const int index = m_actions.value(chosen ? chosen : m_triggered.data(), -1);
    if (m_menu) {
        disconnect(m_menu, nullptr, this, nullptr);
        m_menu->deleteLater();
        m_menu = nullptr;
    }
    AccessibleWidgets::announceExpanded(this);
    emit menuClosed();
    if (!alive)
        return;
    if (!m_items->has(index))
        return;
    setComboText(itemText(index), itemMeta(index));
    emit currentIndexChanged(m_current);
}

void oVIXCombo::hoveredMenuAction(QAction *action)
{
    const int index = m_actions.value(action, -1);
    if (m_items->has(index))
        emit hovered(index);
}

/// Assistive tools trigger an item without closing the menu.
void oVIXCombo::triggeredMenuAction(QAction *action)
{
    m_triggered = action;
    if (m_menu)
        m_menu->close();
}

/// Override mode counts only while it is allowed.
bool oVIXCombo::inOverrideMode() const
{
    return m_allowOverride && m_override;
}

void oVIXCombo::showChoice(const QString &text)
{
    if (m_ui->comboLabel->text() == text)
        return;
    m_ui->comboLabel->setText(text);
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent event(this, text);
        QAccessible::updateAccessibility(&event);
    }
}

void oVIXCombo::fillMenu()
{
    m_menu->setStyleSheet(ComboSheets::menu());
    m_menu->ensurePolished(); // the font may be a sheet's
    const int width = this->width() - m_ui->comboLabel->x() - m_ui->openButton->width();
    if (width > 0)
        m_menu->setFixedWidth(width);

    QFont font = m_menu->font();
    font.setPixelSize(fontPixels);
    const QFontMetrics metrics(font);
    const int room = (width > 0 ? width : screen()->availableSize().width()) - 2 * (menuItemPadding + menuBorder);
    m_actions.clear();
    for (int i = 0; i < count(); ++i) {
        if (!m_items->enabled[i])
            continue;
        QString line = ShownText::oneLine(itemText(i));
        if (line.size() * metrics.maxWidth() > room) // or else it surely fits
            line = metrics.elidedText(line, Qt::ElideRight, room);
        m_actions.insert(m_menu->addAction(ShownText::withoutMnemonics(line)), i);
    }
}

void oVIXCombo::updateStyle()
{
    const QString left = u"'AlignVCenter | AlignLeft'"_s;
    const QString right = u"'AlignVCenter | AlignRight'"_s;
    const QString centre = u"'AlignVCenter | AlignCenter'"_s;
    const bool centred = alignment() & Qt::AlignHCenter;
    const bool rightwards = alignment() & Qt::AlignRight;
    setSheetOnChange(m_ui->textWidget, ComboSheets::strip());
    setSheetOnChange(m_ui->textLabel, ComboSheets::caption(centred ? centre : rightwards ? right : left));
    setSheetOnChange(m_ui->comboLabel, ComboSheets::choice(centred ? centre : rightwards ? left : right));
}
