// A widget that puts its children in a column.
#ifndef QVBOX_H
#define QVBOX_H

#include <qhbox.h>

//! Like QHBox, with the children one below the other.
class Q_EXPORT QVBox : public QHBox
{
    Q_OBJECT

public:
    QVBox(QWidget* parent = 0, const char* name = 0, WFlags f = 0);

private:
    QVBox(const QVBox&);
    QVBox& operator=(const QVBox&);
};

#endif
