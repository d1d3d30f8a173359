// Check boxes.
#ifndef QCHECKBOX_H
#define QCHECKBOX_H

#include <qbutton.h>

//! An indicator that is on or off, or with setTristate() undecided, and a text beside it.
class Q_EXPORT QCheckBox : public QButton
{
    Q_OBJECT

public:
    QCheckBox(QWidget* parent, const char* name = 0);
    QCheckBox(const QString& text, QWidget* parent, const char* name = 0);

    bool isChecked() const { return isOn(); }
    //! Neither on nor off; makes it tristate.
    void setNoChange();
    void setTristate(bool enable = true);
    bool isTristate() const { return toggleType() == Tristate; }

    QSize sizeHint() const;

public slots:
    void setChecked(bool checked);

protected:
    bool hitButton(const QPoint& pos) const;
    void drawButton(QPainter* p);
    void drawButtonLabel(QPainter* p);

private:
    ZELTK_LOCAL void init();
    ZELTK_LOCAL QSize labelSize() const;

    QCheckBox(const QCheckBox&);
    QCheckBox& operator=(const QCheckBox&);
};

#endif
