#ifndef ZELLABEL_H
#define ZELLABEL_H

#include <qcolor.h>
#include <qlabel.h>

#include "zelexport.h"

/*!
 * \brief A label that reports its mouse events and works as a toggle.
 *
 * An active label turns bold and takes the hover colour while the pointer is over it, and draws its text
 * itself, centred. A passive one looks as a QLabel always does. Both emit all signals and toggle, and their
 * mouse events go on to the parent afterwards.
 */
class ZELKIT_EXPORT ZelLabel : public QLabel
{
    Q_OBJECT

public:
    //! Makes a label whose hover colour is (0, 0, 240); its normal colour is black. The toggle is off.
    ZelLabel(const QString& text, QWidget* parent, const char* name, bool active, WFlags flags);

    //! Makes a label whose hover colour is (0, 0, 200); its normal colour is black. The toggle is off.
    ZelLabel(const char* text, QWidget* parent, const char* name, bool active, WFlags flags);

    //! Destroys the label.
    ~ZelLabel();

    //! Copies the colours of an active label's text. They show at the next repaint.
    void setTextColors(QColor& hover, QColor& normal);

    //! Sets the toggle and emits clicked(), also when it had that state already. Repaints nothing.
    void setOn(bool on);

    //! Whether the toggle is on.
    bool isOn() const { return on; }

signals:
    //! A button went down on the label. This and the other three are emitted before the label handles the
    //! event, which is valid during the emission.
    void mousePress(QMouseEvent* event);
    //! A button that went down on the label was let go.
    void mouseRelease(QMouseEvent* event);
    //! A button went down on the label twice. A mousePress() follows for the same event.
    void mouseDoubleClick(QMouseEvent* event);
    //! The pointer moved while a button was held, or at any time with mouse tracking.
    void mouseMove(QMouseEvent* event);

    //! The left button was released inside \a label, which is the sender, or setOn() was called. The toggle
    //! has its new state already.
    void clicked(ZelLabel* label);

protected:
    void mousePressEvent(QMouseEvent* event);
    void mouseReleaseEvent(QMouseEvent* event);
    void mouseDoubleClickEvent(QMouseEvent* event);
    void mouseMoveEvent(QMouseEvent* event);
    void enterEvent(QEvent* event);
    void leaveEvent(QEvent* event);
    void drawContents(QPainter* painter);

private:
    ZelLabel(const ZelLabel&);
    ZelLabel& operator=(const ZelLabel&);

    void setLook(int weight, const QColor& color);

    bool active;
    bool on;
    QColor hoverColor;
    QColor normalColor;
    const QColor* currentColor; // one of the two
};

#endif
