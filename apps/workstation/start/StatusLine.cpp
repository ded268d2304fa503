#include "start/StatusLine.h"

#include "OvixSvgLabel.h"
#include "look/ApplicationLook.h"
#include "look/ElidedLabel.h"

#include <QHBoxLayout>
#include <QStyle>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace {

constexpr int signSize = 16;
constexpr auto problemProperty = "problem";

} // namespace

StatusLine::StatusLine(QWidget *parent) : QWidget(parent), m_sign(new OvixSvgLabel(this)), m_text(new ElidedLabel(this))
{
    setObjectName(u"statusLine"_s);
    setAttribute(Qt::WA_StyledBackground);

    m_sign->setFilename(u":/Windows/Warning"_s);
    m_sign->setFixedSize(signSize, signSize);
    m_sign->hide();
    m_text->setObjectName(u"statusText"_s);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 8, 16, 8);
    layout->setSpacing(8);
    layout->addWidget(m_sign);
    layout->addWidget(m_text, 1);

    if (const QString problem = ApplicationLook::problem(); !problem.isEmpty()) {
        auto *standing = new QLabel(problem, this);
        standing->setObjectName(u"standingProblem"_s);
        layout->addWidget(standing);
    }
}

void StatusLine::showNote(const QString &text)
{
    setText(text, false);
}

void StatusLine::showProblem(const QString &text)
{
    setText(text, true);
}

QString StatusLine::text() const
{
    return m_text->fullText();
}

bool StatusLine::showsProblem() const
{
    return m_text->property(problemProperty).toBool();
}

void StatusLine::setText(const QString &text, bool isProblem)
{
    m_text->setFullText(text);
    m_sign->setVisible(isProblem);
    if (isProblem == showsProblem())
        return;
    m_text->setProperty(problemProperty, isProblem);
    m_text->style()->unpolish(m_text);
    m_text->style()->polish(m_text);
}
