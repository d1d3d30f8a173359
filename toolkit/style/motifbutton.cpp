// How push buttons and check boxes look.
#include "style/motif.h"

#include <qdrawutil.h>
#include <qpainter.h>
#include <qpalette.h>

#include <algorithm>

namespace zeltk
{
namespace motif
{

namespace
{

constexpr int defaultRoom = 3; // around the bevel of a button that is or may be the default button
constexpr int defaultMinimum = 80;
constexpr int indicatorSize = 13;
constexpr int labelDistance = 9; // from the indicator

QRect inside(const QRect& r, int by)
{
    return QRect(r.x() + by, r.y() + by, r.width() - 2 * by, r.height() - 2 * by);
}

bool hasRoom(const ButtonLook& look)
{
    return look.isDefault || look.autoDefault;
}

QRect bevel(const QRect& r, const ButtonLook& look)
{
    return hasRoom(look) ? inside(r, defaultRoom) : r;
}

} // namespace

QSize pushButtonSize(const QSize& label, const ButtonLook& look)
{
    const QSize size = label + QSize(10, 10);
    if (!hasRoom(look))
        return size;
    return QSize(std::max(size.width() + 2 * defaultRoom, defaultMinimum), size.height() + 2 * defaultRoom);
}

QRect pushButtonContents(const QRect& r, const ButtonLook& look)
{
    return inside(bevel(r, look), frameWidth);
}

QRect pushButtonFocusFrame(const QRect& r, const ButtonLook& look)
{
    return inside(pushButtonContents(r, look), frameWidth);
}

void drawPushButton(QPainter* p, const QRect& r, const QColorGroup& g, const ButtonLook& look)
{
    if (look.isDefault)
        qDrawShadePanel(p, r, g, true, 1);
    const bool sunken = look.down || look.on;
    if (look.flat && !sunken)
        return;
    QBrush fill = g.brush(QColorGroup::Button);
    if (look.down)
        fill = g.brush(QColorGroup::Mid);
    else if (look.on)
        fill = QBrush(g.mid(), Qt::Dense4Pattern);
    qDrawShadePanel(p, bevel(r, look), g, sunken, frameWidth, &fill);
}

QSize checkBoxSize(const QSize& label)
{
    if (!label.isValid())
        return QSize(indicatorSize, indicatorSize);
    return QSize(indicatorSize + labelDistance + label.width(), std::max(indicatorSize, label.height() + 4));
}

QRect checkIndicator(const QRect& r)
{
    return QRect(r.x(), r.y() + (r.height() - indicatorSize) / 2, indicatorSize, indicatorSize);
}

QRect checkLabel(const QRect& r)
{
    const int left = indicatorSize + labelDistance;
    return QRect(r.x() + left, r.y(), r.width() - left - 1, r.height());
}

// Around the label, or inside the indicator if there is none.
QRect checkFocusFrame(const QRect& r, const QSize& label)
{
    if (!label.isValid())
        return inside(checkIndicator(r), 1);
    const QRect place(checkLabel(r).x() - 3, r.y() + (r.height() - label.height()) / 2 - 2, label.width() + 6,
                      label.height() + 4);
    return place & r;
}

void drawCheckIndicator(QPainter* p, const QRect& r, const QColorGroup& g, const CheckLook& look)
{
    if (look.undecided) {
        p->setPen(g.foreground());
        p->setBrush(look.down ? g.brush(QColorGroup::Mid) : g.brush(QColorGroup::Button));
        p->drawRect(r);
        p->drawLine(r.bottomLeft(), r.topRight());
        return;
    }
    const bool sunken = look.on != look.down;
    const QBrush& fill = g.brush(sunken ? QColorGroup::Mid : QColorGroup::Button);
    qDrawShadePanel(p, r, g, sunken, frameWidth, &fill);
}

} // namespace motif
} // namespace zeltk
