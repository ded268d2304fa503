#pragma once

#include "VelmoGuiExport.h"

#include <QPointer>
#include <QWidget>

#include <optional>

class OvixSvgButton;
class QAbstractItemModel;
class QCompleter;
class QMainWindow;
class QMultiCompleterLineEdit;
class TitleLabel;
class oVIXCloseDetachWidget;

/// The header of a panel: the title, a search field that takes its place, and the buttons. It reports everything with
/// signals and does no docking.
///
/// Normally search field and buttons show only while the pointer is over the header, the field has the keyboard focus,
/// or something is written in it. They are out of reach of the Tab key until then: an application that wants them to
/// be reached by keys alone gives the buttons a focus policy and calls `setHideSearchUntilHover(false)`.
///
/// Assistive tools reach what is hidden through the header itself, whose actions bear the names of its buttons, and
/// "Search".
///
/// Presses on the title and on empty places go on to the panel, which may be dragged by them.
class VELMO_GUI_EXPORT oVIXDockBar : public QWidget
{
    Q_OBJECT
    // For forms; see the setters.
    Q_PROPERTY(bool searchEnabled MEMBER m_searchEnabled WRITE setSearchEnabled)
    Q_PROPERTY(bool hideSearchUntilHover MEMBER m_hideSearchUntilHover WRITE setHideSearchUntilHover)
    Q_PROPERTY(int thumbnailSize READ getThumbnailSize WRITE setThumbnailSize)

public:
    /// A header titled "DOCK BAR", without search, with detach and close.
    explicit oVIXDockBar(QWidget *parent);
    ~oVIXDockBar() override;

    /// @p title is shown in capitals, white; @p subtitle follows, grey. Both are plain text on one line, blanks
    /// included, and end in an ellipsis where they do not fit. A pixel size of 0 or less leaves the size of the font.
    void setTitle(QString title, QString subtitle, QString fontFamily, int pixelSize);

    /// Writes into the search field, as typing would.
    void setSearch(QString text);
    /// Off by default. Hides the buttons until the header next decides what to show: when the pointer comes or goes,
    /// with the next letter, or by `setHideSearchUntilHover`.
    void setSearchEnabled(bool enabled);
    /// On by default. Off, search field and buttons always show.
    void setHideSearchUntilHover(bool hide);
    /// What the search field offers while typing: the model's first column, upper and lower case alike. The model stays
    /// the caller's. A second model is ignored; null takes the first one away, and so does its deletion.
    void setSuggestionModel(QAbstractItemModel *model);
    /// The search field.
    QMultiCompleterLineEdit *getSearchLabel() const;

    /// See `oVIXCloseDetachWidget::hideClose`.
    void hideClose();
    /// See `oVIXCloseDetachWidget::hideDock`.
    void hideDock();
    /// See `oVIXCloseDetachWidget::thumbAvailable`.
    void thumbAvailable();
    /// See `oVIXCloseDetachWidget::setParentWindow`.
    void setParentWindow(QMainWindow *window);
    /// See `oVIXCloseDetachWidget::setThumbnailSize`.
    void setThumbnailSize(int size);
    /// See `oVIXCloseDetachWidget::getThumbnailSize`.
    int getThumbnailSize() const;
    /// Shows or hides the whole group.
    void showDetachCloseOptions(bool show);

    QSize sizeHint() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// The close button has been clicked; the panel does the closing.
    void closeClicked();
    /// The detach button has been clicked; the panel does the rest.
    void detachClicked();
    /// The user has chosen a thumbnail size.
    void thumbClicked(int size);
    /// The user has cleared the search. `s_search` with an empty text comes after it, and before it too if there was
    /// text to clear.
    void s_clearoptions();
    /// The text of the search field has changed. A receiver that is done with the header deletes it later: the field is
    /// still at work.
    void s_search(QString s);

public slots:
    /// Decides anew what shows, and emits `s_search`.
    void searchPatternChanged(const QString &text);
    /// Does what the clear button does.
    void clearSearchText();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    friend class AccessibleDockBar;

    void createTitle();
    void createSearch();
    void removeCompleter();
    /// Shows the search field and gives it the keyboard.
    void beginSearch();
    void updateVisibility(std::optional<bool> hovered = {});

    oVIXCloseDetachWidget *m_closeDetach;
    bool m_searchEnabled = false;
    QWidget *m_searchContainer;
    QMultiCompleterLineEdit *m_searchEdit;
    OvixSvgButton *m_clearButton;
    QPointer<QCompleter> m_completer; // null: no suggestions
    bool m_hideSearchUntilHover = true;
    TitleLabel *m_titleLabel;
};
