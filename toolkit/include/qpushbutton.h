// Push buttons.
#ifndef QPUSHBUTTON_H
#define QPUSHBUTTON_H

#include <qbutton.h>

namespace zeltk
{
struct PushButtonAccess;
}

/*!
 * \brief A button with a bevel.
 *
 * In a dialog one button is the default button, which Return presses; auto-default buttons, all those in
 * dialogs at first, become it while they have the focus.
 */
class Q_EXPORT QPushButton : public QButton
{
    Q_OBJECT

public:
    QPushButton(QWidget* parent, const char* name = 0);
    QPushButton(const QString& text, QWidget* parent, const char* name = 0);
    ~QPushButton();

    QSize sizeHint() const;

    virtual void setToggleButton(bool enable);

    bool autoDefault() const { return automatic; }
    virtual void setAutoDefault(bool enable);
    bool isDefault() const { return isdefault; }
    virtual void setDefault(bool enable);
    //! No bevel until it is pressed.
    bool isFlat() const { return flat; }
    void setFlat(bool enable);

public slots:
    virtual void setOn(bool on);

protected:
    void drawButton(QPainter* p);
    void drawButtonLabel(QPainter* p);
    void focusInEvent(QFocusEvent* event);
    void focusOutEvent(QFocusEvent* event);

private:
    friend class QDialog;
    friend struct zeltk::PushButtonAccess;
    void init();
    ZELTK_LOCAL void showDefault(bool on);

    bool automatic;
    bool isdefault; // now
    bool chosen;    // by the program; while another has the focus that one may be it
    bool flat;

    QPushButton(const QPushButton&);
    QPushButton& operator=(const QPushButton&);
};

#endif
