// The part of a dialog that is shown on demand.
#include "dialogs/dialogdata.h"

void QDialog::setExtension(QWidget* extension)
{
    if (extension != this->extension())
        delete this->extension();
    d->extension = extension;
    if (!extension)
        return;
    if (extension->parentWidget() != this)
        extension->reparent(this, QPoint(0, 0));
    extension->hide();
}

QWidget* QDialog::extension() const
{
    return d->extension;
}

void QDialog::setOrientation(Orientation orientation)
{
    d->orientation = orientation;
}

Qt::Orientation QDialog::orientation() const
{
    return d->orientation;
}

// The dialog grows by what the extension likes best.
void QDialog::showExtension(bool show)
{
    if (!d->extension || show == !d->sizeBefore.isNull())
        return;
    if (!show) {
        d->extension->hide();
        const QSize before = d->sizeBefore;
        d->sizeBefore = QSize(0, 0);
        resize(before);
        return;
    }
    d->sizeBefore = size();
    const QSize wanted = d->extension->sizeHint().expandedTo(d->extension->minimumSize());
    const QSize extra = wanted.boundedTo(d->extension->maximumSize());
    if (d->orientation == Horizontal) {
        d->extension->setGeometry(width(), 0, extra.width(), height());
        resize(width() + extra.width(), height());
    } else {
        d->extension->setGeometry(0, height(), width(), extra.height());
        resize(width(), height() + extra.height());
    }
    d->extension->show();
}
