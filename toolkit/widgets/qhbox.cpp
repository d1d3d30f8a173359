// QHBox and QVBox.
#include <qhbox.h>
#include <qvbox.h>

#include <qapplication.h>
#include <qlayout.h>

namespace
{

// Children are added when their ChildInserted events arrive; this does not wait for that.
void addChildren(const QWidget* box)
{
    QApplication::sendPostedEvents(const_cast<QWidget*>(box), QEvent::ChildInserted);
}

} // namespace

QHBox::QHBox(QWidget* parent, const char* name, WFlags f) : QHBox(true, parent, name, f) {}

QHBox::QHBox(bool horizontal, QWidget* parent, const char* name, WFlags f) : QFrame(parent, name, f)
{
    if (horizontal)
        new QHBoxLayout(this, frameWidth(), frameWidth());
    else
        new QVBoxLayout(this, frameWidth(), frameWidth());
    layout()->setAutoAdd(true);
}

void QHBox::setSpacing(int spacing)
{
    if (layout())
        layout()->setSpacing(spacing);
}

bool QHBox::setStretchFactor(QWidget* child, int stretch)
{
    addChildren(this);
    return layout() && static_cast<QBoxLayout*>(layout())->setStretchFactor(child, stretch);
}

QSize QHBox::sizeHint() const
{
    addChildren(this);
    return layout() ? layout()->totalSizeHint() : QFrame::sizeHint();
}

void QHBox::frameChanged()
{
    if (layout())
        layout()->setMargin(frameWidth());
}

QVBox::QVBox(QWidget* parent, const char* name, WFlags f) : QHBox(false, parent, name, f) {}
