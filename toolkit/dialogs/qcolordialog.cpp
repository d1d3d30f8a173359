// QColorDialog.
#include "dialogs/colorpanel.h"

#include <qguardedptr.h>

QColorDialog::QColorDialog(QWidget* parent, const char* name, bool modal)
    : QDialog(parent, name, modal), d(new zeltk::ColorPanel(this))
{
    setCaption(tr("Select color"));
}

QColorDialog::~QColorDialog() {}

// The dialogs of the next two functions may die with their parent before they are answered.
QColor QColorDialog::getColor(const QColor& initial, QWidget* parent, const char* name)
{
    const QGuardedPtr<QColorDialog> dialog = new QColorDialog(parent, name, true);
    const QColor start = initial.isValid() ? initial : QColor(Qt::white);
    dialog->setColor(start);
    dialog->selectColor(start);
    const QColor chosen = dialog->exec() == Accepted ? dialog->color() : QColor();
    delete dialog;
    return chosen;
}

QRgb QColorDialog::getRgba(QRgb initial, bool* ok, QWidget* parent, const char* name)
{
    const QGuardedPtr<QColorDialog> dialog = new QColorDialog(parent, name, true);
    dialog->setColor(QColor(initial & 0xffffff));
    dialog->selectColor(QColor(initial & 0xffffff));
    dialog->setSelectedAlpha(qAlpha(initial));
    const bool accepted = dialog->exec() == Accepted;
    if (ok)
        *ok = accepted;
    if (!accepted) {
        delete dialog;
        return initial;
    }
    const QColor color = dialog->color();
    const int alpha = dialog->selectedAlpha();
    delete dialog;
    return qRgba(color.red(), color.green(), color.blue(), alpha);
}

void QColorDialog::setColor(const QColor& color)
{
    d->setColor(color);
}

QColor QColorDialog::color() const
{
    return d->color();
}

bool QColorDialog::selectColor(const QColor& color)
{
    return d->select(color);
}

void QColorDialog::setSelectedAlpha(int alpha)
{
    d->showAlpha(alpha);
}

int QColorDialog::selectedAlpha() const
{
    return d->alpha();
}

int QColorDialog::customCount()
{
    return static_cast<int>(zeltk::customColors().size());
}

QRgb QColorDialog::customColor(int index)
{
    return index >= 0 && index < customCount() ? zeltk::customColors()[static_cast<size_t>(index)]
                                               : qRgb(255, 255, 255);
}

void QColorDialog::setCustomColor(int index, QRgb color)
{
    if (index >= 0 && index < customCount())
        zeltk::customColors()[static_cast<size_t>(index)] = color | 0xff000000;
}

void QColorDialog::setStandardColor(int index, QRgb color)
{
    if (index >= 0 && index < static_cast<int>(zeltk::standardColors().size()))
        zeltk::standardColors()[static_cast<size_t>(index)] = color | 0xff000000;
}
