#pragma once

#include "VelmoGuiExport.h"
#include "frame/oVIXGrip.h"

#include <QDockWidget>
#include <QPointer>

class QAbstractItemModel;
class QMainWindow;
class oVIXDockBar;
class oVIXTitleBarFilter;

/// A tool panel of the application: content below a header with title, search field and buttons. It docks at the left
/// or right of the main window, or floats as a frameless window that is resized at its left, right and bottom edges
/// and dragged by its header.
///
/// It passes what happens in its header on as signals. Closing hides the panel; it is never deleted. All lengths are
/// logical pixels.
class VELMO_GUI_EXPORT oVIXDock : public QDockWidget
{
    Q_OBJECT

public:
    /// @p name becomes the object name, by which the main window saves its layout. The panel is centred on @p parent,
    /// which may be null: it then floats from the start, and has no grips until it has been docked once. @p hideClose
    /// and @p hideDetach leave out a button of the header, @p thumbnailAvailable adds the one for the size of preview
    /// pictures, whose pop-up belongs to @p mainWindow; with null it belongs to nobody and is kept inside the screen.
    oVIXDock(QWidget *parent, QString name, bool hideClose, bool thumbnailAvailable, bool hideDetach,
             QMainWindow *mainWindow);
    ~oVIXDock() override;

    /// The content, owned by the panel from now on; what was there before is hidden and stays the panel's child.
    void setWidget(QWidget *widget);

    /// The header shows "TITLE: subtitle" in this font, the window's title is "title: subtitle". A pixel size of 0 or
    /// less leaves the size of the font.
    void setTitle(QString title, QString subtitle, QString fontFamily, int pixelSize);

    /// Writes into the search field, as typing would: `s_search` follows when the text differs.
    void changeSearchLabel(QString text);
    /// Off by default. On, the panel gets at least 240 wide, and stays so when it is off again.
    void setSearchEnabled(bool enabled);
    /// See `oVIXDockBar::setSuggestionModel`.
    void setSuggestionModel(QAbstractItemModel *model);
    /// Whether search field and buttons wait for the pointer to come to the header. On by default.
    void setHideSearchUntilHover(bool hide);
    /// Shows or hides all buttons of the header.
    void showDetachCloseOptions(bool show);

    /// The size that the pop-up shows as checked: 100 at first. Setting it emits nothing.
    void setThumbnailSize(int size);
    /// The size last set or chosen, in logical pixels.
    int getThumbnailSize() const;

    /// The header.
    oVIXDockBar *getTitleWidget();

    /// Lets the panel dock at the bottom only.
    void dockAtBottom();
    /// For a panel inside a window of its own: dragging the header moves @p window, and a double click on it asks to
    /// maximise. A second call replaces the window; null takes it away.
    void createTitleBar(QWidget *window);

signals:
    /// The close button has been pressed; the panel is hidden already.
    void closeClicked();
    /// The user has chosen a size of preview pictures: 0 for none, 100, 150 or 200.
    void thumbClicked(int size);
    /// The text of the search field has changed. Clearing the search repeats the empty text. A receiver that is done
    /// with the panel deletes it later: the field is still at work.
    void s_search(QString s);
    /// The search is being cleared.
    void s_clearoptions();

public slots:
    /// Hides the panel and emits `closeClicked`.
    void closeTriggered();
    /// Makes a docked panel float, and docks a floating one.
    void detachTriggered();
    /// Emits `s_search`.
    void fnSearch(QString text);
    /// One step of an edge grip, as `oVIXMainWindow::resizeByGrip` takes it. Nothing while the panel is maximised.
    void resizeByGrip(QPoint p, bool invert);
    /// Gives the panel the look of its state: while it floats, grips and an edge of two pixels in the background's
    /// colour.
    void dockChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void build();
    void placeGrips();

    oVIXDockBar *m_dockBar = nullptr;
    // Not used yet.
    [[maybe_unused]] int m_reserved = -1;
    [[maybe_unused]] int m_reservedToo = -1;
    // Grips are deleted when closed.
    QPointer<oVIXGrip> m_bottomGrip;
    QPointer<oVIXGrip> m_leftGrip;
    QPointer<oVIXGrip> m_rightGrip;
    QPointer<oVIXTitleBarFilter> m_titleBarFilter; // its window's child
};
