#include "docking/oVIXDockBar.h"

#include "choosers/QMultiCompleterLineEdit.h"
#include "docking/AccessibleDockBar.h"
#include "docking/DockBarView.h"
#include "docking/oVIXCloseDetachWidget.h"
#include "foundation/InterFont.h"
#include "foundation/OvixSvgButton.h"
#include "frame/TitleLabel.h"

#include <QAbstractItemModel>
#include <QCompleter>
#include <QCursor>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr int partSpacing = 50;
constexpr int searchPixels = 11;
constexpr int searchLeftMargin = 7;
constexpr int searchRightMargin = 4;
constexpr int clearSide = 16;

QString clearBackground()
{
    return u"background-color: transparent;"_s;
}

QString searchSheet()
{
    return u"QLineEdit {\tcolor:rgb(219,219,219);\tbackground-color:rgb(28,28,28);"
           "\tpadding-right:16px;\tpadding-left:5px;}"_s;
}

} // namespace

oVIXDockBar::oVIXDockBar(QWidget *parent) : QWidget(parent), m_closeDetach(new oVIXCloseDetachWidget(this))
{
    AccessibleDockBar::install();
    connect(m_closeDetach, &oVIXCloseDetachWidget::closeClicked, this, &oVIXDockBar::closeClicked);
    connect(m_closeDetach, &oVIXCloseDetachWidget::detachClicked, this, &oVIXDockBar::detachClicked);
    connect(m_closeDetach, &oVIXCloseDetachWidget::thumbClicked, this, &oVIXDockBar::thumbClicked);
    createTitle();
    createSearch();

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(partSpacing);
    row->addWidget(m_titleLabel);
    row->addWidget(m_searchContainer);
    row->addWidget(m_closeDetach);
    installEventFilter(this);
}

oVIXDockBar::~oVIXDockBar() = default;

void oVIXDockBar::setTitle(QString title, QString subtitle, QString fontFamily, int pixelSize)
{
    QFont font(fontFamily);
    if (pixelSize > 0)
        font.setPixelSize(pixelSize);
    m_titleLabel->setFont(font);
    m_titleLabel->setTexts(title.toUpper(), subtitle);
}

void oVIXDockBar::setSearch(QString text)
{
    m_searchEdit->setText(text);
}

void oVIXDockBar::setSearchEnabled(bool enabled)
{
    m_searchEnabled = enabled;
    m_closeDetach->hideIcons();
}

void oVIXDockBar::setHideSearchUntilHover(bool hide)
{
    m_hideSearchUntilHover = hide;
    updateVisibility();
}

void oVIXDockBar::setSuggestionModel(QAbstractItemModel *model)
{
    if (!model) {
        removeCompleter();
        return;
    }
    if (m_completer)
        return;
    m_completer = new QCompleter(this);
    m_completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_completer->setCompletionMode(QCompleter::PopupCompletion);
    m_completer->setModelSorting(QCompleter::CaseInsensitivelySortedModel);
    m_completer->setModel(model);
    // A completer that has been taken away waits to be deleted, and its model may end before it.
    connect(model, &QObject::destroyed, m_completer, [this, completer = m_completer.data()] {
        if (m_completer == completer)
            removeCompleter();
    });
    m_searchEdit->setCompleter(m_completer);
}

QMultiCompleterLineEdit *oVIXDockBar::getSearchLabel() const
{
    return m_searchEdit;
}

void oVIXDockBar::hideClose()
{
    m_closeDetach->hideClose();
}

void oVIXDockBar::hideDock()
{
    m_closeDetach->hideDock();
}

void oVIXDockBar::thumbAvailable()
{
    m_closeDetach->thumbAvailable();
}

void oVIXDockBar::setParentWindow(QMainWindow *window)
{
    m_closeDetach->setParentWindow(window);
}

void oVIXDockBar::setThumbnailSize(int size)
{
    m_closeDetach->setThumbnailSize(size);
}

int oVIXDockBar::getThumbnailSize() const
{
    return m_closeDetach->getThumbnailSize();
}

void oVIXDockBar::showDetachCloseOptions(bool show)
{
    m_closeDetach->setVisible(show);
}

/// The toolkit gives a header as much as it asks for, be it fixed in height or not.
QSize oVIXDockBar::sizeHint() const
{
    return QWidget::sizeHint().boundedTo(maximumSize());
}

bool oVIXDockBar::eventFilter(QObject *watched, QEvent *event)
{
    if (m_hideSearchUntilHover) {
        const QEvent::Type type = event->type();
        if (watched == this && (type == QEvent::Enter || type == QEvent::Leave)) {
            updateVisibility(type == QEvent::Enter);
        } else if (watched == m_searchEdit && (type == QEvent::FocusIn || type == QEvent::FocusOut)) {
            // The field must not be hidden in the middle of the change of focus.
            QMetaObject::invokeMethod(
                this, [this] { updateVisibility(); }, Qt::QueuedConnection);
        }
    }
    return QWidget::eventFilter(watched, event);
}

void oVIXDockBar::searchPatternChanged(const QString &text)
{
    updateVisibility();
    emit s_search(text);
}

void oVIXDockBar::clearSearchText()
{
    const QPointer<oVIXDockBar> alive(this);
    m_searchEdit->setText(QString());
    if (alive)
        emit s_clearoptions();
    if (alive)
        emit s_search(QString());
}

void oVIXDockBar::mousePressEvent(QMouseEvent *event)
{
    event->setAccepted(childAt(event->position().toPoint()) != nullptr);
}

void oVIXDockBar::mouseMoveEvent(QMouseEvent *event)
{
    event->ignore();
}

void oVIXDockBar::mouseReleaseEvent(QMouseEvent *event)
{
    event->ignore();
}

void oVIXDockBar::createTitle()
{
    m_titleLabel = new TitleLabel(this);
    m_titleLabel->setFocusPolicy(Qt::NoFocus);
    m_titleLabel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_titleLabel->setMinimumWidth(1); // a long title does not widen the panel
    m_titleLabel->setStyleSheet(clearBackground());
    setTitle(u"DOCK"_s, u"BAR"_s, u"Inter"_s, 10);
}

void oVIXDockBar::createSearch()
{
    m_searchContainer = new QWidget(this);
    m_searchContainer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_searchContainer->setStyleSheet(clearBackground());

    m_searchEdit = new QMultiCompleterLineEdit(m_searchContainer);
    m_searchEdit->setFont(interFont(searchPixels));
    m_searchEdit->setStyleSheet(searchSheet());
    m_searchEdit->setPlaceholderText(tr("Search..."));
    m_searchEdit->setAccessibleName(tr("Search"));
    m_searchEdit->setContentsMargins(searchLeftMargin, 0, 0, 0);
    m_searchEdit->setCompleteEachWord(true);
    m_searchEdit->setMatchAnywhere(true);
    connect(m_searchEdit, &QLineEdit::textChanged, this, &oVIXDockBar::searchPatternChanged);
    m_searchEdit->installEventFilter(this);

    m_clearButton = new OvixSvgButton(m_searchContainer);
    m_clearButton->setFilename(u":/Windows/CancelIcon"_s);
    m_clearButton->setFixedSize(clearSide, clearSide);
    m_clearButton->setAccessibleName(tr("Clear search"));
    connect(m_clearButton, &OvixSvgButton::clicked, this, &oVIXDockBar::clearSearchText);

    auto *grid = new QGridLayout(m_searchContainer);
    grid->setContentsMargins(0, 0, searchRightMargin, 0);
    grid->setSpacing(0);
    grid->addWidget(m_searchEdit, 0, 0);
    grid->addWidget(m_clearButton, 0, 0, Qt::AlignRight | Qt::AlignVCenter);
    m_searchContainer->hide();
}

void oVIXDockBar::removeCompleter()
{
    if (!m_completer)
        return;
    m_searchEdit->setCompleter(nullptr);
    m_completer->deleteLater(); // its own pop-up may have led here
    m_completer = nullptr;
}

void oVIXDockBar::beginSearch()
{
    updateVisibility(true);
    m_searchEdit->setFocus(); // it keeps the field in sight
}

/// Without a flag it is the pointer's true place that counts.
void oVIXDockBar::updateVisibility(std::optional<bool> hovered)
{
    const auto holdsPointer = [this] { return QRect(mapToGlobal(QPoint(0, 0)), size()).contains(QCursor::pos()); };
    DockBarState state;
    state.searchEnabled = m_searchEnabled;
    state.hideSearchUntilHover = m_hideSearchUntilHover;
    state.hovered = hovered ? *hovered : holdsPointer();
    state.searchFocused = m_searchEdit->hasFocus();
    state.searchEmpty = m_searchEdit->text().isEmpty();

    if (state.showsButtons())
        m_closeDetach->showIcons();
    else
        m_closeDetach->hideIcons();
    if (state.showsSearch()) {
        m_titleLabel->hide();
        m_searchContainer->show();
    } else {
        m_searchContainer->hide();
        m_titleLabel->show();
    }
}
