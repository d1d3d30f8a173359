// Areas to pick hue, saturation and value from.
#include "dialogs/colorpickers.h"

#include <qdrawutil.h>
#include <qevent.h>
#include <qimage.h>
#include <qpainter.h>

#include <algorithm>

namespace
{

constexpr int side = 200; // of the areas
constexpr int last = side - 1;
constexpr int shownValue = 200; // of the colours to pick hues from
constexpr int arrow = 5;
constexpr int arrowRoom = 3; // above and below the strip, for the arrow
constexpr int stripWidth = 15;

int bounded(int position)
{
    return std::max(0, std::min(position, last));
}

int valueAt(int y)
{
    return 255 - y * 255 / last;
}

int hueAt(int x)
{
    return (360 - x * 360 / last) % 360;
}

QImage makeRainbow()
{
    QImage image(side, side, 32);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            image.setPixel(x, y, QColor(hueAt(x), valueAt(y), shownValue, QColor::Hsv).rgb());
    }
    return image;
}

} // namespace

QColorPicker::QColorPicker(QWidget* parent) : QFrame(parent)
{
    setFrameStyle(Panel | Sunken);
    rainbow.convertFromImage(makeRainbow());
}

QSize QColorPicker::sizeHint() const
{
    return QSize(side + 2 * frameWidth(), side + 2 * frameWidth());
}

QPoint QColorPicker::place() const
{
    return QPoint((360 - hue) * last / 360, (255 - saturation) * last / 255);
}

void QColorPicker::show(int h, int s)
{
    hue = h;
    saturation = s;
    update(contentsRect());
}

void QColorPicker::drawContents(QPainter* p)
{
    const QPoint origin = contentsRect().topLeft();
    const QPoint mark = origin + place();
    p->drawPixmap(origin, rainbow);
    p->fillRect(mark.x() - 9, mark.y(), 20, 2, Qt::black);
    p->fillRect(mark.x(), mark.y() - 9, 2, 20, Qt::black);
}

void QColorPicker::mousePressEvent(QMouseEvent* event)
{
    const QPoint p = event->pos() - contentsRect().topLeft();
    show(hueAt(bounded(p.x())), valueAt(bounded(p.y())));
    if (onPicked)
        onPicked(hue, saturation);
}

void QColorPicker::mouseMoveEvent(QMouseEvent* event)
{
    if (event->state() & LeftButton)
        mousePressEvent(event);
    else
        event->ignore();
}

QColorLuminancePicker::QColorLuminancePicker(QWidget* parent) : QWidget(parent) {}

QSize QColorLuminancePicker::sizeHint() const
{
    return QSize(stripWidth + arrow, side + 2 + 2 * arrowRoom);
}

void QColorLuminancePicker::show(int h, int s, int v)
{
    hue = h;
    saturation = s;
    value = v;
    update();
}

void QColorLuminancePicker::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    const int top = arrowRoom + 1;
    qDrawShadePanel(&p, 0, arrowRoom, stripWidth, side + 2, colorGroup(), true, 1);
    for (int y = 0; y < side; ++y) {
        p.setPen(QColor(hue, saturation, valueAt(y), QColor::Hsv));
        p.drawLine(1, top + y, stripWidth - 2, top + y);
    }
    const int tip = top + (255 - value) * last / 255;
    p.setPen(colorGroup().foreground());
    for (int i = 0; i < arrow; ++i)
        p.drawLine(stripWidth + i, tip - i, stripWidth + i, tip + i);
}

void QColorLuminancePicker::mousePressEvent(QMouseEvent* event)
{
    show(hue, saturation, valueAt(bounded(event->y() - arrowRoom - 1)));
    if (onPicked)
        onPicked(value);
}

void QColorLuminancePicker::mouseMoveEvent(QMouseEvent* event)
{
    if (event->state() & LeftButton)
        mousePressEvent(event);
    else
        event->ignore();
}
