#pragma once

#include "VelmoGuiExport.h"

#include <QLineEdit>
#include <QPointer>

#include <memory>

class QAbstractItemView;
class QCompleter;

/// A line edit that completes what is typed, either as a whole or word by word.
///
/// The candidates are shown in the completer's list while the user types. Up and Down put one after the other in the
/// place of the word, going past the ends brings back what was typed, Return and a click accept, Escape closes the list
/// and keeps what is shown, Tab keeps it and moves on. Whatever was put in is one step for undo, and is told of by
/// `textChanged` only, like every completion of a `QLineEdit`.
///
/// Read-only, disabled and password edits do not complete. A completer with inline completion offers nothing here.
class VELMO_GUI_EXPORT QMultiCompleterLineEdit : public QLineEdit
{
    Q_OBJECT
    // For forms; see the setters.
    Q_PROPERTY(bool completeEachWord READ completesEachWord WRITE setCompleteEachWord)
    Q_PROPERTY(bool matchAnywhere READ matchesAnywhere WRITE setMatchAnywhere)

public:
    /// An empty line without a completer.
    explicit QMultiCompleterLineEdit(QWidget *parent = nullptr);
    ~QMultiCompleterLineEdit() override;

    /// Takes its candidates from @p completer, which stays the caller's; null removes it. Several edits may share one.
    /// The edit sets its filter mode. Takes the place of the `QLineEdit` function of this name, which must not be used
    /// besides it.
    ///
    /// The completer and its model may be deleted while the list is open, but, as in the toolkit, not directly from a
    /// signal that a key in the open list leads to: use `deleteLater` there.
    void setCompleter(QCompleter *completer);
    /// Null also after the completer has been deleted.
    QCompleter *completer() const;

    /// Completes the word at the cursor instead of the whole text: white space and commas part words. Off by default.
    void setCompleteEachWord(bool eachWord);
    /// See `setCompleteEachWord`.
    bool completesEachWord() const;

    /// Finds what was typed anywhere inside a candidate instead of at its start. Off by default.
    void setMatchAnywhere(bool anywhere);
    /// See `setMatchAnywhere`.
    bool matchesAnywhere() const;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    struct Completion;

    bool mayComplete() const;
    bool isListOpen() const;
    void closeList();
    void followEdit(const QString &before);
    void complete();
    void putIn(const QString &candidate);
    void applyFilterMode();

    QPointer<QCompleter> m_completer;
    QPointer<QAbstractItemView> m_list;
    std::unique_ptr<Completion> m_completion;
    bool m_eachWord = false;
    bool m_anywhere = false;
};
