// A widget that puts its children in a row.
#ifndef QHBOX_H
#define QHBOX_H

#include <qframe.h>

/*!
 * \brief A frame around its children, side by side in the order in which they were made.
 *
 * Its margin is QFrame's: what is between the frame and the children.
 */
class Q_EXPORT QHBox : public QFrame
{
    Q_OBJECT

public:
    QHBox(QWidget* parent = 0, const char* name = 0, WFlags f = 0);

    //! Between two children, in pixels.
    void setSpacing(int spacing);
    //! False if it is no child.
    bool setStretchFactor(QWidget* child, int stretch);
    QSize sizeHint() const;

protected:
    QHBox(bool horizontal, QWidget* parent, const char* name, WFlags f);
    void frameChanged();

private:
    QHBox(const QHBox&);
    QHBox& operator=(const QHBox&);
};

#endif
