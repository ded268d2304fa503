#include "messages/LinkLabel.h"

#include "foundation/AccessiblePressable.h"
#include "foundation/AccessibleWidgets.h"
#include "foundation/KeyboardPress.h"

#include <QDesktopServices>
#include <QKeyEvent>
#include <QProcess>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

enum Kind : int { WebAddress = 0, Program = 1 };

constexpr int linkHeight = 20;

QString linkSheet()
{
    return u"QLabel { color:rgb(105,105,105) ; text-align:center; font:Inter ;font-size:13px;}"
           " QLabel:hover { color:rgb(255,255,255); text-decoration: underline; font-weight: bold; }"_s;
}

class AccessibleLink : public AccessiblePressable
{
public:
    explicit AccessibleLink(QWidget *widget) : AccessiblePressable(widget, QAccessible::Link) { }

protected:
    QString purpose() const override { return link()->text(); }
    void press() override { link()->open(); }

private:
    LinkLabel *link() const { return static_cast<LinkLabel *>(widget()); }
};

} // namespace

LinkLabel::LinkLabel(QString text, QString target, int kind, QWidget *parent)
    : QLabel(text, parent), m_target(target), m_kind(kind)
{
    AccessibleWidgets::add("LinkLabel",
                           [](QWidget *link) -> QAccessibleInterface * { return new AccessibleLink(link); });
    AccessibleWidgets::install();
    setOpenExternalLinks(true);
    setFixedHeight(linkHeight);
    setStyleSheet(linkSheet());
    setAlignment(Qt::AlignCenter);
}

LinkLabel::~LinkLabel() = default;

void LinkLabel::open()
{
    if (!isEnabled() || m_target.isEmpty())
        return;
    if (m_kind == WebAddress)
        QDesktopServices::openUrl(QUrl(m_target));
    else if (m_kind == Program)
        QProcess::startDetached(m_target, {});
}

void LinkLabel::mousePressEvent(QMouseEvent *)
{
    open();
}

void LinkLabel::keyPressEvent(QKeyEvent *event)
{
    if (!isPressKey(this, event))
        QLabel::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        open();
}

void LinkLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    paintFocusRing(this);
}
