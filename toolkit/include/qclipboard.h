// Text exchange with other programs.
#ifndef QCLIPBOARD_H
#define QCLIPBOARD_H

#include <qobject.h>
#include <qstring.h>

class QApplication;
class QCString;

namespace zeltk
{
struct ClipboardAccess;
}

//! The clipboard and the selection of the X server. QApplication::clipboard() gives the only one.
class Q_EXPORT QClipboard : public QObject
{
    Q_OBJECT

public:
    //! Clipboard is what the user copied, Selection what is marked with the mouse.
    enum Mode { Clipboard, Selection };

    //! These emit selectionChanged() or dataChanged(), which also tell that another program has taken over.
    void clear(Mode mode);
    void clear();

    bool supportsSelection() const;
    bool ownsSelection() const;
    bool ownsClipboard() const;

    //! Where the functions without a mode go.
    void setSelectionMode(bool enable);
    bool selectionModeEnabled() const;

    //! Null if there is none. Who has it is asked, and waited for.
    QString text(Mode mode) const;
    QString text() const;
    //! An empty subtype is set to the one that was found; only "plain" is offered.
    QString text(QCString& subtype, Mode mode) const;
    QString text(QCString& subtype) const;
    void setText(const QString& text, Mode mode);
    void setText(const QString& text);

signals:
    void selectionChanged();
    void dataChanged();

private:
    QClipboard(QObject* parent = 0, const char* name = 0);
    ~QClipboard();

    bool m_selectionMode;

    QClipboard(const QClipboard&);
    QClipboard& operator=(const QClipboard&);
    friend class QApplication;
    friend struct zeltk::ClipboardAccess;
};

#endif
