// Text exchange with other programs.
#include <qclipboard.h>

#include "tools/unicode.h"
#include "x11/selection.h"

#include <qapplication.h>
#include <qcstring.h>
#include <qguardedptr.h>

namespace x11 = zeltk::x11;

namespace
{

x11::Selection selectionOf(QClipboard::Mode mode)
{
    return mode == QClipboard::Selection ? x11::Selection::Primary : x11::Selection::Clipboard;
}

} // namespace

namespace zeltk
{

struct ClipboardAccess {
    static void changed(QClipboard* clipboard, x11::Selection selection)
    {
        if (selection == x11::Selection::Primary)
            clipboard->selectionChanged();
        else
            clipboard->dataChanged();
    }
    static void lost(x11::Selection selection) { changed(QApplication::clipboard(), selection); }
};

} // namespace zeltk

QClipboard::QClipboard(QObject* parent, const char* name) : QObject(parent, name), m_selectionMode(false)
{
    x11::setSelectionLostHandler(zeltk::ClipboardAccess::lost);
}

QClipboard::~QClipboard()
{
    x11::setSelectionLostHandler(nullptr);
}

bool QClipboard::supportsSelection() const
{
    return true;
}

bool QClipboard::ownsSelection() const
{
    return x11::ownsSelection(x11::Selection::Primary);
}

bool QClipboard::ownsClipboard() const
{
    return x11::ownsSelection(x11::Selection::Clipboard);
}

void QClipboard::setSelectionMode(bool enable)
{
    m_selectionMode = enable;
}

bool QClipboard::selectionModeEnabled() const
{
    return m_selectionMode;
}

void QClipboard::clear()
{
    clear(m_selectionMode ? Selection : Clipboard);
}

void QClipboard::clear(Mode mode)
{
    x11::disownSelection(selectionOf(mode));
    zeltk::ClipboardAccess::changed(this, selectionOf(mode));
}

QString QClipboard::text() const
{
    return text(m_selectionMode ? Selection : Clipboard);
}

QString QClipboard::text(Mode mode) const
{
    QCString subtype("plain");
    return text(subtype, mode);
}

QString QClipboard::text(QCString& subtype) const
{
    return text(subtype, m_selectionMode ? Selection : Clipboard);
}

QString QClipboard::text(QCString& subtype, Mode mode) const
{
    if (subtype.isEmpty())
        subtype = "plain";
    std::string text;
    if (subtype != "plain" || !x11::selectionText(selectionOf(mode), &text))
        return QString::null;
    return zeltk::fromUtf8(text);
}

void QClipboard::setText(const QString& text)
{
    setText(text, m_selectionMode ? Selection : Clipboard);
}

void QClipboard::setText(const QString& text, Mode mode)
{
    if (!x11::ownSelection(selectionOf(mode), zeltk::toUtf8(text)))
        qWarning("QClipboard::setText: the X server gave the %s to another program",
                 mode == Selection ? "selection" : "clipboard");
    zeltk::ClipboardAccess::changed(this, selectionOf(mode));
}

QClipboard* QApplication::clipboard()
{
    static QGuardedPtr<QClipboard> made; // goes with the application
    if (made.isNull())
        made = new QClipboard(qApp, "clipboard");
    return made;
}
