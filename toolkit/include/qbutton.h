// What buttons have in common.
#ifndef QBUTTON_H
#define QBUTTON_H

#include <qkeysequence.h>
#include <qwidget.h>

namespace zeltk
{
struct ButtonData;
}

/*!
 * \brief Something to click, with a text or a pixmap.
 *
 * Toggle buttons are on or off, tristate ones also in between. A letter after & in the text is the shortcut,
 * with Alt. Subclasses draw the button and its label.
 */
class Q_EXPORT QButton : public QWidget
{
    Q_OBJECT

public:
    enum ToggleType { SingleShot, Toggle, Tristate };
    enum ToggleState { Off, NoChange, On };

    QButton(QWidget* parent = 0, const char* name = 0, WFlags f = 0);
    ~QButton();

    QString text() const;
    virtual void setText(const QString& text);
    //! Null if it shows a text.
    const QPixmap* pixmap() const;
    virtual void setPixmap(const QPixmap& pixmap);

    QKeySequence accel() const;
    virtual void setAccel(const QKeySequence& key);

    bool isToggleButton() const;
    ToggleType toggleType() const;
    //! Shows the button pressed or not; no signals.
    virtual void setDown(bool down);
    bool isDown() const;
    bool isOn() const;
    ToggleState state() const;

    bool autoResize() const;
    void setAutoResize(bool enable);
    //! While it is held down, click again and again.
    bool autoRepeat() const;
    virtual void setAutoRepeat(bool enable);

public slots:
    //! A click that one sees; its end comes a moment later.
    void animateClick();
    void toggle();

signals:
    //! By the mouse, the keyboard or the shortcut. A click may come without the others, as from Return.
    void pressed();
    void released();
    void clicked();
    //! Of toggle buttons, whoever changes their state.
    void toggled(bool on);
    void stateChanged(int state);

protected:
    void setToggleButton(bool enable);
    virtual void setToggleType(ToggleType type);
    void setOn(bool on);
    virtual void setState(ToggleState state);

    //! Whether a click there counts.
    virtual bool hitButton(const QPoint& pos) const;
    virtual void drawButton(QPainter* p);
    virtual void drawButtonLabel(QPainter* p);

    void keyPressEvent(QKeyEvent* event);
    void keyReleaseEvent(QKeyEvent* event);
    void mousePressEvent(QMouseEvent* event);
    void mouseReleaseEvent(QMouseEvent* event);
    void mouseMoveEvent(QMouseEvent* event);
    void paintEvent(QPaintEvent* event);
    void focusInEvent(QFocusEvent* event);
    void focusOutEvent(QFocusEvent* event);
    void enabledChange(bool oldEnabled);

private slots:
    void animateTimeout();
    void autoRepeatTimeout();
    void emulateClick();

private:
    friend struct zeltk::ButtonData;
    ZELTK_LOCAL void showDown(bool down);
    ZELTK_LOCAL void press();
    ZELTK_LOCAL void finishClick();
    void nextState();
    ZELTK_LOCAL void contentsChanged();

    zeltk::ButtonData* d;

    QButton(const QButton&);
    QButton& operator=(const QButton&);
};

#endif
