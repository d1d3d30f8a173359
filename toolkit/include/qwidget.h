// The base of everything that is seen on the screen.
#ifndef QWIDGET_H
#define QWIDGET_H

#include <qfont.h>
#include <qfontinfo.h>
#include <qfontmetrics.h>
#include <qobject.h>
#include <qpaintdevice.h>
#include <qpalette.h>
#include <qregion.h>
#include <qsizepolicy.h>
#include <qwindowdefs.h>

class QCloseEvent;
class QContextMenuEvent;
class QFocusEvent;
class QHideEvent;
class QKeyEvent;
class QMouseEvent;
class QMoveEvent;
class QPaintEvent;
class QResizeEvent;
class QShowEvent;
class QWheelEvent;

namespace zeltk
{
struct WidgetAccess;
struct WidgetData;
} // namespace zeltk

//! A rectangle on the screen that paints itself and hears mouse and keyboard. Without a parent, or with a
//! flag that says so, it is a window of its own; else it lies inside its parent, clipped by it.
class Q_EXPORT QWidget : public QObject, public QPaintDevice
{
    Q_OBJECT

public:
    enum FocusPolicy {
        NoFocus = 0,
        TabFocus = 0x1,
        ClickFocus = 0x2,
        StrongFocus = TabFocus | ClickFocus | 0x8,
        WheelFocus = StrongFocus | 0x4
    };
    enum BackgroundOrigin { WidgetOrigin, ParentOrigin, WindowOrigin, AncestorOrigin };

    QWidget(QWidget* parent = 0, const char* name = 0, WFlags f = 0);
    ~QWidget();

    WId winId() const;
    static QWidget* find(WId id);

    // Kind and state
    bool isTopLevel() const;
    bool isDialog() const;
    bool isPopup() const;
    bool isDesktop() const;
    bool isModal() const;
    bool isEnabled() const;
    bool isEnabledTo(QWidget* ancestor) const;
    bool isEnabledToTLW() const;
    WFlags testWFlags(WFlags flags) const;
    WState testWState(WState states) const;
    QWidget* topLevelWidget() const;
    //! `sameWindow`: null for windows of their own.
    QWidget* parentWidget(bool sameWindow = false) const;

    // Geometry. Top-level windows: relative to the screen; others: to the parent.
    QRect frameGeometry() const;
    QSize frameSize() const;
    const QRect& geometry() const;
    int x() const;
    int y() const;
    QPoint pos() const;
    QSize size() const;
    int width() const;
    int height() const;
    QRect rect() const;
    QRect childrenRect() const;
    QRegion childrenRegion() const;

    QSize minimumSize() const;
    QSize maximumSize() const;
    int minimumWidth() const;
    int minimumHeight() const;
    int maximumWidth() const;
    int maximumHeight() const;
    void setMinimumSize(const QSize& size);
    virtual void setMinimumSize(int width, int height);
    void setMaximumSize(const QSize& size);
    virtual void setMaximumSize(int width, int height);
    void setMinimumWidth(int width);
    void setMinimumHeight(int height);
    void setMaximumWidth(int width);
    void setMaximumHeight(int height);
    QSize sizeIncrement() const;
    void setSizeIncrement(const QSize& size);
    virtual void setSizeIncrement(int width, int height);
    QSize baseSize() const;
    void setBaseSize(const QSize& size);
    void setBaseSize(int width, int height);
    void setFixedSize(const QSize& size);
    void setFixedSize(int width, int height);
    void setFixedWidth(int width);
    void setFixedHeight(int height);

    virtual QSize sizeHint() const;
    virtual QSize minimumSizeHint() const;
    virtual QSizePolicy sizePolicy() const;
    virtual void setSizePolicy(QSizePolicy policy);
    void setSizePolicy(QSizePolicy::SizeType horizontal, QSizePolicy::SizeType vertical,
                       bool heightForWidth = false);
    virtual int heightForWidth(int width) const;
    //! Tells the layout that the hints have changed.
    void updateGeometry();

    // Coordinates
    QPoint mapToGlobal(const QPoint& pos) const;
    QPoint mapFromGlobal(const QPoint& pos) const;
    QPoint mapToParent(const QPoint& pos) const;
    QPoint mapFromParent(const QPoint& pos) const;
    QPoint mapTo(QWidget* ancestor, const QPoint& pos) const;
    QPoint mapFrom(QWidget* ancestor, const QPoint& pos) const;
    //! The innermost visible child there.
    QWidget* childAt(int x, int y, bool includeThis = false) const;
    QWidget* childAt(const QPoint& pos, bool includeThis = false) const;
    //! What of the widget its ancestors let see.
    QRect visibleRect() const;
    //! The same without what children and higher siblings cover.
    QRegion clipRegion() const;

    // Looks
    BackgroundMode backgroundMode() const;
    virtual void setBackgroundMode(BackgroundMode mode);
    //! `visual`: the mode whose colours the widget really paints with.
    void setBackgroundMode(BackgroundMode mode, BackgroundMode visual);
    const QColor& foregroundColor() const;
    const QColor& eraseColor() const;
    virtual void setEraseColor(const QColor& color);
    const QPixmap* erasePixmap() const;
    virtual void setErasePixmap(const QPixmap& pixmap);
    const QColor& backgroundColor() const;
    virtual void setBackgroundColor(const QColor& color);
    const QPixmap* backgroundPixmap() const;
    virtual void setBackgroundPixmap(const QPixmap& pixmap);
    QBrush backgroundBrush() const;
    BackgroundOrigin backgroundOrigin() const;
    virtual void setBackgroundOrigin(BackgroundOrigin origin);
    QPoint backgroundOffset() const;

    //! The group of the palette that applies now.
    const QColorGroup& colorGroup() const;
    const QPalette& palette() const;
    bool ownPalette() const;
    virtual void setPalette(const QPalette& palette);
    void setPalette(const QPalette& palette, bool fixed);
    void unsetPalette();
    const QColor& paletteForegroundColor() const;
    void setPaletteForegroundColor(const QColor& color);
    const QColor& paletteBackgroundColor() const;
    //! Sets the role of the background mode. The palette is the widget's own from then on.
    virtual void setPaletteBackgroundColor(const QColor& color);
    const QPixmap* paletteBackgroundPixmap() const;
    virtual void setPaletteBackgroundPixmap(const QPixmap& pixmap);

    QFont font() const;
    bool ownFont() const;
    virtual void setFont(const QFont& font);
    void setFont(const QFont& font, bool fixed);
    void unsetFont();
    QFontMetrics fontMetrics() const;
    QFontInfo fontInfo() const;

    const QCursor& cursor() const;
    bool ownCursor() const;
    virtual void setCursor(const QCursor& cursor);
    virtual void unsetCursor();

    // Window properties
    QString caption() const;
    const QPixmap* icon() const;
    QString iconText() const;
    bool isActiveWindow() const;
    virtual void setActiveWindow();
    bool isMinimized() const;
    bool isMaximized() const;
    bool isFullScreen() const;
    //! Bits of Qt::WindowState.
    uint windowState() const;
    void setWindowState(uint state);

    // Mouse and keyboard
    bool hasMouseTracking() const;
    bool hasMouse() const;
    bool isFocusEnabled() const;
    FocusPolicy focusPolicy() const;
    virtual void setFocusPolicy(FocusPolicy policy);
    bool hasFocus() const;
    static void setTabOrder(QWidget* first, QWidget* second);
    virtual void setFocusProxy(QWidget* proxy);
    QWidget* focusProxy() const;
    //! The widget of this window that has the focus or will have it when the window is active.
    QWidget* focusWidget() const;
    void grabMouse();
    void grabMouse(const QCursor& cursor);
    void releaseMouse();
    void grabKeyboard();
    void releaseKeyboard();
    static QWidget* mouseGrabber();
    static QWidget* keyboardGrabber();

    // Showing
    bool isVisible() const;
    bool isVisibleTo(QWidget* ancestor) const;
    bool isVisibleToTLW() const;
    bool isHidden() const;
    bool isShown() const;
    bool isUpdatesEnabled() const;
    //! True if the widget accepted to be closed. `alsoDelete` deletes it then at once.
    virtual bool close(bool alsoDelete);
    virtual void reparent(QWidget* parent, WFlags f, const QPoint& pos, bool showIt = false);
    void reparent(QWidget* parent, const QPoint& pos, bool showIt = false);

    // Painting
    void erase();
    void erase(int x, int y, int w, int h);
    void erase(const QRect& rect);
    void erase(const QRegion& region);
    void drawText(int x, int y, const QString& text);
    void drawText(const QPoint& pos, const QString& text);

public slots:
    virtual void setEnabled(bool enable);
    void setDisabled(bool disable);
    virtual void setCaption(const QString& caption);
    virtual void setIcon(const QPixmap& icon);
    virtual void setIconText(const QString& text);
    virtual void setMouseTracking(bool enable);
    virtual void setFocus();
    void clearFocus();
    virtual void setUpdatesEnabled(bool enable);
    //! Paints when control returns to the event loop.
    void update();
    void update(int x, int y, int w, int h);
    void update(const QRect& rect);
    //! Paints before it returns. A negative width or height reaches to the edge.
    void repaint();
    void repaint(bool erase);
    void repaint(int x, int y, int w, int h, bool erase = true);
    void repaint(const QRect& rect, bool erase = true);
    void repaint(const QRegion& region, bool erase = true);
    virtual void show();
    virtual void hide();
    void setShown(bool show);
    void setHidden(bool hide);
    void iconify();
    virtual void showMinimized();
    virtual void showMaximized();
    virtual void showFullScreen();
    virtual void showNormal();
    //! Called once, before the first show.
    virtual void polish();
    void constPolish() const;
    bool close();
    void raise();
    void lower();
    void stackUnder(QWidget* sibling);
    //! Moves the window with its frame.
    virtual void move(int x, int y);
    void move(const QPoint& pos);
    virtual void resize(int width, int height);
    void resize(const QSize& size);
    //! Without the frame.
    virtual void setGeometry(int x, int y, int w, int h);
    virtual void setGeometry(const QRect& rect);
    virtual void adjustSize();

protected:
    bool event(QEvent* event);
    virtual void mousePressEvent(QMouseEvent* event);
    virtual void mouseReleaseEvent(QMouseEvent* event);
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

    virtual void enabledChange(bool wasEnabled);
    virtual void paletteChange(const QPalette& oldPalette);
    virtual void fontChange(const QFont& oldFont);
    virtual void windowActivationChange(bool wasActive);

    WState getWState() const;
    void setWState(WState states);
    void clearWState(WState states);
    WFlags getWFlags() const;
    virtual void setWFlags(WFlags flags);
    void clearWFlags(WFlags flags);

    virtual bool focusNextPrevChild(bool next);

private slots:
    void focusProxyDestroyed();

private:
    void setBackgroundFromMode();
    void setBackgroundEmpty();
    void setBackgroundColorDirect(const QColor& color);
    void setBackgroundPixmapDirect(const QPixmap& pixmap);
    void setBackgroundModeDirect(BackgroundMode mode);
    void internalSetGeometry(int x, int y, int w, int h, bool isMove);
    void showWindow();
    void hideWindow();
    void showChildren(bool spontaneous);
    void hideChildren(bool spontaneous);

    friend class QApplication;
    friend struct zeltk::WidgetAccess;
    zeltk::WidgetData* wd;

    QWidget(const QWidget&);
    QWidget& operator=(const QWidget&);
};

#endif
