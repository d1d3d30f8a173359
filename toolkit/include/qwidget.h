// The base of everything on the screen.
#ifndef QWIDGET_H
#define QWIDGET_H

#include <qcursor.h>
#include <qfont.h>
#include <qfontinfo.h>
#include <qfontmetrics.h>
#include <qobject.h>
#include <qpaintdevice.h>
#include <qpalette.h>
#include <qregion.h>
#include <qsizepolicy.h>

class QCloseEvent;
class QContextMenuEvent;
class QFocusEvent;
class QHideEvent;
class QKeyEvent;
class QLayout;
class QMouseEvent;
class QMoveEvent;
class QPaintEvent;
class QPixmap;
class QResizeEvent;
class QShowEvent;
class QWheelEvent;

namespace zeltk
{
struct WidgetData;
struct WidgetAccess;
} // namespace zeltk

/*!
 * \brief A rectangle of the screen that paints itself and hears the mouse and the keyboard.
 *
 * Without parent it is a window of its own. A new child is 100 x 30 pixels at (0, 0); a window starts centred
 * with a quarter of the screen's area.
 */
class Q_EXPORT QWidget : public QObject, public QPaintDevice
{
    Q_OBJECT

public:
    enum BackgroundOrigin { WidgetOrigin, ParentOrigin, WindowOrigin, AncestorOrigin };
    enum FocusPolicy {
        NoFocus = 0,
        TabFocus = 0x1,
        ClickFocus = 0x2,
        StrongFocus = TabFocus | ClickFocus | 0x8,
        WheelFocus = StrongFocus | 0x4
    };

    explicit QWidget(QWidget* parent = 0, const char* name = 0, WFlags f = 0);
    ~QWidget();

    //! The X server's window.
    WId winId() const { return hd; }
    virtual void setName(const char* name);

    //! Whether it is a window of its own. Dialogs, popups and the desktop are.
    bool isTopLevel() const { return testWFlags(WType_TopLevel); }
    bool isDialog() const { return testWFlags(WType_Dialog); }
    bool isPopup() const { return testWFlags(WType_Popup); }
    bool isDesktop() const { return testWFlags(WType_Desktop); }
    bool isModal() const;

    bool isEnabled() const { return !testWState(WState_Disabled); }
    //! Whether it would be enabled if the ancestor were.
    bool isEnabledTo(QWidget* ancestor) const;
    bool isEnabledToTLW() const { return isEnabled(); }

    //! In pixels, in the parent or, for a window, on the screen: with and without the window manager's frame.
    //! x(), y() and pos() are the frame's corner, size() is without the frame.
    QRect frameGeometry() const;
    const QRect& geometry() const;
    int x() const;
    int y() const;
    QPoint pos() const;
    QSize frameSize() const;
    QSize size() const { return geometry().size(); }
    int width() const { return geometry().width(); }
    int height() const { return geometry().height(); }
    QRect rect() const { return QRect(0, 0, width(), height()); }
    //! Around all children that are not hidden.
    QRect childrenRect() const;
    QRegion childrenRegion() const;

    //! From 0 to QWIDGETSIZE_MAX; others are brought there with a warning. A widget outside of its new limits
    //! is resized.
    QSize minimumSize() const;
    QSize maximumSize() const;
    int minimumWidth() const { return minimumSize().width(); }
    int minimumHeight() const { return minimumSize().height(); }
    int maximumWidth() const { return maximumSize().width(); }
    int maximumHeight() const { return maximumSize().height(); }
    void setMinimumSize(const QSize& s) { setMinimumSize(s.width(), s.height()); }
    virtual void setMinimumSize(int minw, int minh);
    void setMaximumSize(const QSize& s) { setMaximumSize(s.width(), s.height()); }
    virtual void setMaximumSize(int maxw, int maxh);
    void setMinimumWidth(int minw);
    void setMinimumHeight(int minh);
    void setMaximumWidth(int maxw);
    void setMaximumHeight(int maxh);
    //! A window is resized by the user to the base size and a whole number of increments.
    QSize sizeIncrement() const;
    void setSizeIncrement(const QSize& s) { setSizeIncrement(s.width(), s.height()); }
    virtual void setSizeIncrement(int w, int h);
    QSize baseSize() const;
    void setBaseSize(const QSize& s) { setBaseSize(s.width(), s.height()); }
    void setBaseSize(int basew, int baseh);
    void setFixedSize(const QSize& s) { setFixedSize(s.width(), s.height()); }
    void setFixedSize(int w, int h);
    void setFixedWidth(int w);
    void setFixedHeight(int h);

    //! Global is on the screen.
    QPoint mapToGlobal(const QPoint& p) const;
    QPoint mapFromGlobal(const QPoint& p) const;
    QPoint mapToParent(const QPoint& p) const;
    QPoint mapFromParent(const QPoint& p) const;
    QPoint mapTo(QWidget* ancestor, const QPoint& p) const;
    QPoint mapFrom(QWidget* ancestor, const QPoint& p) const;

    QWidget* topLevelWidget() const;

    BackgroundMode backgroundMode() const;
    virtual void setBackgroundMode(BackgroundMode mode);
    //! Paints with the first; paletteBackgroundColor() and its like mean the second.
    void setBackgroundMode(BackgroundMode mode, BackgroundMode visualMode);
    const QColor& foregroundColor() const;
    const QColor& eraseColor() const;
    virtual void setEraseColor(const QColor& color);
    const QPixmap* erasePixmap() const;
    virtual void setErasePixmap(const QPixmap& pixmap);

    const QColorGroup& colorGroup() const;
    const QPalette& palette() const;
    bool ownPalette() const;
    virtual void setPalette(const QPalette& palette);
    void setPalette(const QPalette& palette, bool) { setPalette(palette); }
    //! It follows its parent, or the application, again.
    void unsetPalette();
    const QColor& paletteForegroundColor() const;
    void setPaletteForegroundColor(const QColor& color);
    const QColor& paletteBackgroundColor() const;
    //! Sets the role of the background mode in a palette of the widget's own.
    virtual void setPaletteBackgroundColor(const QColor& color);
    const QPixmap* paletteBackgroundPixmap() const;
    virtual void setPaletteBackgroundPixmap(const QPixmap& pixmap);
    const QColor& backgroundColor() const { return eraseColor(); }
    virtual void setBackgroundColor(const QColor& color) { setEraseColor(color); }
    const QPixmap* backgroundPixmap() const { return erasePixmap(); }
    virtual void setBackgroundPixmap(const QPixmap& pixmap) { setErasePixmap(pixmap); }
    BackgroundOrigin backgroundOrigin() const;
    virtual void setBackgroundOrigin(BackgroundOrigin origin);
    QPoint backgroundOffset() const;

    QFont font() const;
    bool ownFont() const;
    virtual void setFont(const QFont& font);
    void setFont(const QFont& font, bool) { setFont(font); }
    void unsetFont();
    QFontMetrics fontMetrics() const;
    QFontInfo fontInfo() const;

    const QCursor& cursor() const;
    bool ownCursor() const;
    virtual void setCursor(const QCursor& cursor);
    virtual void unsetCursor();

    QString caption() const;
    const QPixmap* icon() const;
    QString iconText() const;
    bool hasMouseTracking() const { return testWState(WState_MouseTracking); }
    //! Whether the pointer is in the widget or in one of its children.
    bool hasMouse() const { return testWState(WState_HasMouse); }

    //! Nothing of the widget is outside of the region, neither to see nor to click.
    virtual void setMask(const QRegion& region);
    void clearMask();

    //! Whether the widget's window has the keyboard.
    bool isActiveWindow() const;
    //! Asks for the keyboard; has no effect on a hidden window.
    virtual void setActiveWindow();
    bool isFocusEnabled() const { return focusPolicy() != NoFocus; }
    FocusPolicy focusPolicy() const;
    virtual void setFocusPolicy(FocusPolicy policy);
    bool hasFocus() const;
    //! Tab goes from the first to the second, which must be in the same window.
    static void setTabOrder(QWidget* first, QWidget* second);
    //! The proxy gets the focus in its place. Null: nobody does.
    virtual void setFocusProxy(QWidget* proxy);
    QWidget* focusProxy() const;
    //! The one in the widget's window that has the focus, or gets it with the window; may be null.
    QWidget* focusWidget() const;

    //! A visible widget gets all events of the mouse or the keyboard until it releases them or is hidden.
    void grabMouse();
    void grabMouse(const QCursor& cursor);
    void releaseMouse();
    void grabKeyboard();
    void releaseKeyboard();
    static QWidget* mouseGrabber();
    static QWidget* keyboardGrabber();

    bool isUpdatesEnabled() const { return !testWState(WState_BlockUpdates); }

    //! Hides the widget unless its closeEvent() refuses; false then. With `alsoDelete` it is deleted at once,
    //! with WDestructiveClose later by close(). Closing the main widget ends the program; of the last window
    //! the application tells.
    virtual bool close(bool alsoDelete);
    //! Whether it is shown and all around it are; others may cover it.
    bool isVisible() const { return testWState(WState_Visible); }
    //! Whether it would be visible if the ancestor were.
    bool isVisibleTo(QWidget* ancestor) const;
    bool isVisibleToTLW() const { return isVisible(); }
    //! What of it is inside all its parents; null if it is not visible.
    QRect visibleRect() const;
    //! Whether only show() makes it appear: it was hidden, or it is new and has no parent or a visible one.
    bool isHidden() const { return testWState(WState_ForceHide); }
    bool isShown() const { return !isHidden(); }
    bool isMinimized() const;
    bool isMaximized() const;
    bool isFullScreen() const;
    //! Bits of Qt::WindowState.
    uint windowState() const;
    void setWindowState(uint state);

    //! What the layout wants; an invalid size without one.
    virtual QSize sizeHint() const;
    virtual QSize minimumSizeHint() const;
    virtual QSizePolicy sizePolicy() const;
    virtual void setSizePolicy(QSizePolicy policy);
    void setSizePolicy(QSizePolicy::SizeType hor, QSizePolicy::SizeType ver, bool hfw = false)
    {
        setSizePolicy(QSizePolicy(hor, ver, hfw));
    }
    //! The layout's height for that width; 0 if it does not depend on it.
    virtual int heightForWidth(int width) const;
    //! What of visibleRect() is not covered by children and by siblings above it.
    QRegion clipRegion() const;
    //! The layout that arranges the children; null if there is none.
    QLayout* layout() const;
    //! To be called when a size hint has changed.
    void updateGeometry();

    //! Moves it to that place in another parent, without parent to a window of its own. Unless `showIt` it is
    //! hidden, or appears with its parent. The second form keeps the flags except those of a window.
    virtual void reparent(QWidget* parent, WFlags f, const QPoint& p, bool showIt = false);
    void reparent(QWidget* parent, const QPoint& p, bool showIt = false);

    //! Clear the background.
    void erase();
    void erase(int x, int y, int width, int height) { erase(QRegion(x, y, width, height)); }
    void erase(const QRect& rect) { erase(QRegion(rect)); }
    void erase(const QRegion& region);
    //! Moves what is painted, and paints what comes into sight; without a rectangle all children, too.
    void scroll(int dx, int dy);
    void scroll(int dx, int dy, const QRect& rect);

    void drawText(int x, int y, const QString& text);
    void drawText(const QPoint& p, const QString& text) { drawText(p.x(), p.y(), text); }

    WState getWState() const;
    bool testWState(WState s) const { return (getWState() & s) != 0; }
    bool testWFlags(WFlags f) const;
    //! The widget of that window; null if it is none of this program.
    static QWidget* find(WId id);

    //! The innermost child there that is not hidden; without one the widget itself, or null.
    QWidget* childAt(int x, int y, bool includeThis = false) const;
    QWidget* childAt(const QPoint& p, bool includeThis = false) const
    {
        return childAt(p.x(), p.y(), includeThis);
    }

    //! The parent; with `sameWindow` null for windows.
    QWidget* parentWidget(bool sameWindow = false) const;

public slots:
    //! A disabled widget hears neither mouse nor keyboard, nor does any in it.
    virtual void setEnabled(bool enable);
    void setDisabled(bool disable);
    //! These are for windows; children have none.
    virtual void setCaption(const QString& caption);
    virtual void setIcon(const QPixmap& icon);
    virtual void setIconText(const QString& text);
    //! Whether it hears of moves without a button.
    virtual void setMouseTracking(bool enable);
    //! At once if the window is active, else as soon as it is. A disabled widget takes no focus.
    virtual void setFocus();
    void clearFocus();
    //! Without updates nothing is painted, and nothing later of what was missed.
    virtual void setUpdatesEnabled(bool enable);

    //! Paint when control returns to the event loop.
    void update();
    void update(int x, int y, int w, int h);
    void update(const QRect& rect);
    //! Paint at once. Negative widths and heights reach to the edge.
    void repaint();
    void repaint(bool erase);
    void repaint(int x, int y, int w, int h, bool erase = true);
    void repaint(const QRect& rect, bool erase = true);
    void repaint(const QRegion& region, bool erase = true);

    //! A child of a hidden parent appears with it. Before a widget is shown first it is polished and hears of
    //! its place and size.
    virtual void show();
    virtual void hide();
    void setShown(bool show);
    void setHidden(bool hide);
    void iconify();
    virtual void showMinimized();
    virtual void showMaximized();
    virtual void showFullScreen();
    virtual void showNormal();
    //! Called once before the widget is shown first.
    virtual void polish();
    void constPolish() const;
    bool close();

    //! Above all siblings, below them, or right below one.
    void raise();
    void lower();
    void stackUnder(QWidget* sibling);
    //! The frame's corner; setGeometry() means the widget without it. A size is kept in its limits and at
    //! least 1 x 1. A visible widget hears of it at once, others when they are shown.
    virtual void move(int x, int y);
    void move(const QPoint& p);
    virtual void resize(int w, int h);
    void resize(const QSize& size);
    virtual void setGeometry(int x, int y, int w, int h);
    virtual void setGeometry(const QRect& rect);
    //! Takes the size hint, or, without one, the room of the children.
    virtual void adjustSize();

protected:
    virtual bool event(QEvent* event);
    virtual void mousePressEvent(QMouseEvent* event);
    virtual void mouseReleaseEvent(QMouseEvent* event);
    //! Calls mousePressEvent().
    virtual void mouseDoubleClickEvent(QMouseEvent* event);
    virtual void mouseMoveEvent(QMouseEvent* event);
    virtual void wheelEvent(QWheelEvent* event);
    virtual void keyPressEvent(QKeyEvent* event);
    virtual void keyReleaseEvent(QKeyEvent* event);
    virtual void focusInEvent(QFocusEvent* event);
    virtual void focusOutEvent(QFocusEvent* event);
    virtual void enterEvent(QEvent* event);
    virtual void leaveEvent(QEvent* event);
    virtual void paintEvent(QPaintEvent* event);
    virtual void moveEvent(QMoveEvent* event);
    virtual void resizeEvent(QResizeEvent* event);
    virtual void closeEvent(QCloseEvent* event);
    virtual void contextMenuEvent(QContextMenuEvent* event);
    virtual void showEvent(QShowEvent* event);
    virtual void hideEvent(QHideEvent* event);

    //! Called after the change.
    virtual void enabledChange(bool oldEnabled);
    virtual void paletteChange(const QPalette& oldPalette);
    virtual void fontChange(const QFont& oldFont);
    virtual void windowActivationChange(bool oldActive);

    //! Moves the focus as Tab (or Backtab) does; false if there is nobody else.
    virtual bool focusNextPrevChild(bool next);

    WFlags getWFlags() const;
    virtual void setWFlags(WFlags f);
    void clearWFlags(WFlags f);
    void setWState(WState s);
    void clearWState(WState s);

private slots:
    void focusProxyDestroyed();

private:
    friend struct zeltk::WidgetAccess;
    zeltk::WidgetData* w;

    QWidget(const QWidget&);
    QWidget& operator=(const QWidget&);
};

#endif
