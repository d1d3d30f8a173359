// How combo boxes look.
#include "style/motifinputs.h"

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

// An arrow with a bar below it.
struct ComboPlaces {
    int room;  // what the arrow takes from the field
    int arrow; // its size
    int x;
    int y;
    int barHeight;
    int barY;
};

ComboPlaces placesIn(const QRect& inside)
{
    ComboPlaces places;
    const int height = inside.height();
    places.arrow = height < 8 ? 6 : height < 14 ? height - 2 : height / 2;
    places.room = places.arrow * 3 / 2;
    places.barHeight = std::max(3, (places.arrow + 3) / 4);
    const int gap = places.barHeight / 2 + 1;
    places.x = inside.right() + 1 - places.room + (places.room - places.arrow) / 2;
    places.y = inside.y() + (height - places.arrow - places.barHeight - gap) / 2;
    places.barY = places.y + places.arrow + gap;
    return places;
}

QRect insideOf(const QRect& r)
{
    return QRect(r.x() + 2, r.y() + 2, r.width() - 4, r.height() - 4);
}

} // namespace

QRect comboBoxField(const QRect& r)
{
    const QRect inside = insideOf(r);
    return QRect(inside.x() + 1, inside.y() + 1, inside.width() - 2 - placesIn(inside).room,
                 inside.height() - 2);
}

QRect comboBoxFocusFrame(const QRect& r)
{
    const ComboPlaces places = placesIn(insideOf(r));
    return QRect(places.x - 2, places.y - 2, places.arrow + 4, places.barY + places.barHeight - places.y + 4);
}

void drawComboBox(QPainter* p, const QRect& r, const QColorGroup& g, bool editable)
{
    const QBrush fill(g.button());
    qDrawShadePanel(p, r, g, false, 2, &fill);
    const ComboPlaces places = placesIn(insideOf(r));
    drawArrow(p, places.x, places.y, places.arrow, Arrow::Down, false, g);
    const QRect bar(places.x, places.barY, places.arrow, places.barHeight);
    p->fillRect(bar.x(), bar.bottom(), bar.width(), 1, QBrush(g.dark()));
    p->fillRect(bar.right(), bar.y(), 1, bar.height(), QBrush(g.dark()));
    p->fillRect(bar.x(), bar.y(), bar.width(), 1, QBrush(g.light()));
    p->fillRect(bar.x(), bar.y(), 1, bar.height(), QBrush(g.light()));
    if (editable) {
        const QRect field = comboBoxField(r);
        qDrawShadePanel(p, field.x() - 1, field.y() - 1, field.width() + 2, field.height() + 2, g, true, 1);
    }
}

} // namespace motif
} // namespace zeltk
