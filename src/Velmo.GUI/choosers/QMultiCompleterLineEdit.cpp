#include "choosers/QMultiCompleterLineEdit.h"

#include "choosers/WordCompletion.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>

/// What is being completed.
struct QMultiCompleterLineEdit::Completion
{
    WordCompletion::Word typed;
    WordCompletion::Word shown; ///< the same place, with the candidate in it
    bool candidateIn = false; ///< a candidate is shown instead of what was typed: one step for undo
    QString text; ///< as we left it: a different one means that somebody else has changed it
    bool asking = false; ///< the list is being filled; what it says meanwhile is not the user's doing
};

QMultiCompleterLineEdit::QMultiCompleterLineEdit(QWidget *parent)
    : QLineEdit(parent), m_completion(std::make_unique<Completion>())
{ }

QMultiCompleterLineEdit::~QMultiCompleterLineEdit()
{
    setCompleter(nullptr);
}

void QMultiCompleterLineEdit::setCompleter(QCompleter *completer)
{
    if (m_completer == completer)
        return;
    if (m_completer) {
        disconnect(m_completer, nullptr, this, nullptr);
        if (m_completer->widget() == this) {
            closeList();
            m_completer->setWidget(nullptr);
        }
    }
    m_completer = completer;
    m_list = nullptr;
    if (!m_completer)
        return;
    applyFilterMode();
    connect(m_completer, qOverload<const QString &>(&QCompleter::highlighted), this, &QMultiCompleterLineEdit::putIn);
    connect(m_completer, qOverload<const QString &>(&QCompleter::activated), this, &QMultiCompleterLineEdit::putIn);
}

QCompleter *QMultiCompleterLineEdit::completer() const
{
    return m_completer;
}

void QMultiCompleterLineEdit::setCompleteEachWord(bool eachWord)
{
    if (m_eachWord == eachWord)
        return;
    m_eachWord = eachWord;
    closeList();
}

bool QMultiCompleterLineEdit::completesEachWord() const
{
    return m_eachWord;
}

void QMultiCompleterLineEdit::setMatchAnywhere(bool anywhere)
{
    if (m_anywhere == anywhere)
        return;
    m_anywhere = anywhere;
    closeList();
    applyFilterMode();
}

bool QMultiCompleterLineEdit::matchesAnywhere() const
{
    return m_anywhere;
}

void QMultiCompleterLineEdit::keyPressEvent(QKeyEvent *event)
{
    if (isListOpen() && event->matches(QKeySequence::Cancel)) {
        event->ignore(); // the completer closes the list
        return;
    }
    const QString before = text();
    const bool steppingBack = event->matches(QKeySequence::Undo) || event->matches(QKeySequence::Redo);
    QLineEdit::keyPressEvent(event);
    if (steppingBack)
        closeList();
    else
        followEdit(before);
}

void QMultiCompleterLineEdit::inputMethodEvent(QInputMethodEvent *event)
{
    const QString before = text();
    QLineEdit::inputMethodEvent(event);
    followEdit(before);
}

void QMultiCompleterLineEdit::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (!mayComplete())
        closeList();
}

void QMultiCompleterLineEdit::hideEvent(QHideEvent *event)
{
    closeList();
    QLineEdit::hideEvent(event);
}

bool QMultiCompleterLineEdit::mayComplete() const
{
    return m_completer && isEnabled() && !isReadOnly() && echoMode() == Normal;
}

bool QMultiCompleterLineEdit::isListOpen() const
{
    return m_completer && m_completer->widget() == this && m_list && m_list->isVisible();
}

void QMultiCompleterLineEdit::closeList()
{
    if (isListOpen())
        m_list->hide();
}

void QMultiCompleterLineEdit::followEdit(const QString &before)
{
    if (text() != before)
        complete();
    else if (!m_completion->shown.holds(cursorPosition()))
        closeList();
}

void QMultiCompleterLineEdit::complete()
{
    const WordCompletion::Word word = WordCompletion::wordAt(text(), cursorPosition(), m_eachWord);
    if (!mayComplete() || word.length == 0) {
        closeList();
        return;
    }
    m_completion->typed = m_completion->shown = word;
    m_completion->candidateIn = false;
    m_completion->text = text();
    const QScopedValueRollback asking(m_completion->asking, true);
    if (m_completer->widget() != this)
        m_completer->setWidget(this);
    m_completer->setCompletionPrefix(text().mid(word.start, word.length));
    m_completer->complete();
    m_list = m_completer->popup();
}

/// Puts the candidate in the place of the word, or of the candidate before it.
void QMultiCompleterLineEdit::putIn(const QString &candidate)
{
    Completion &completion = *m_completion;
    if (completion.asking || !mayComplete() || m_completer->widget() != this)
        return;
    const QString textBefore = text();
    const int cursorBefore = cursorPosition();
    if (textBefore != completion.text) {
        completion.typed = WordCompletion::wordAt(textBefore, cursorBefore, m_eachWord);
        completion.candidateIn = false;
    }
    {
        const QSignalBlocker silent(this);
        if (completion.candidateIn) {
            undo();
            if (text() == textBefore) // the text has been set anew, there is no way back
                completion.typed = completion.shown;
        }
        const QString typed = text();
        completion.shown = completion.typed;
        if (WordCompletion::accepted(typed, completion.typed, candidate) != typed) {
            setSelection(completion.typed.start, completion.typed.length);
            insert(candidate);
            completion.shown.length += int(text().size() - typed.size()); // a validator or a limit may have a say
        }
        setCursorPosition(completion.shown.start + completion.shown.length);
        completion.candidateIn = text() != typed;
        completion.text = text();
    }
    const QPointer<QMultiCompleterLineEdit> alive(this);
    if (cursorPosition() != cursorBefore)
        emit cursorPositionChanged(cursorBefore, cursorPosition());
    if (alive && text() != textBefore)
        emit textChanged(text());
}

void QMultiCompleterLineEdit::applyFilterMode()
{
    if (m_completer)
        m_completer->setFilterMode(m_anywhere ? Qt::MatchContains : Qt::MatchStartsWith);
}
