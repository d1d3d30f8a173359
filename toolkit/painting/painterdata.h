// What a painter carries.
#ifndef ZELTK_PAINTERDATA_H
#define ZELTK_PAINTERDATA_H

#include <qpainter.h>

#include "x11/draw.h"

#include <vector>

namespace zeltk
{

// What save() keeps.
struct PainterState {
    QFont font;
    QPen pen;
    QBrush brush;
    QPoint brushOrigin;
    QColor background = QColor(255, 255, 255);
    Qt::BGMode backgroundMode = Qt::TransparentMode;
    Qt::RasterOp rop = Qt::CopyROP;
    QWMatrix world;
    bool worldOn = false;
    QRect window;
    QRect viewport;
    bool viewKnown = false; // else both are all of the device
    bool viewOn = false;
    bool clipOn = false;
    QRegion clip; // in device coordinates
    QPoint pos;
    int tabStops = 0;
    std::vector<int> tabArray;
};

// A context from the store, as long as nobody else has taken it over.
struct KeptGc {
    x11::GcSlot* slot = nullptr;
    unsigned version = 0;
    bool valid() const { return slot && slot->version == version; }
};

enum class Transform { None, Translation, Scaling, Other };

struct PainterData {
    QPaintDevice* device = nullptr;
    x11::XId drawable = 0;
    bool bitmap = false;
    bool overChildren = false;
    bool hasEventClip = false;
    QRegion eventClip;

    PainterState state;
    std::vector<PainterState> saved;

    QWMatrix matrix; // from the program's coordinates to the device's
    Transform transform = Transform::None;
    int dx = 0; // of a translation
    int dy = 0;
    x11::Clip clip; // of the event and the program together; null: none
    KeptGc penGc;
    KeptGc brushGc;

    // All of the device; asks the server.
    QRect deviceRect() const;
    // Before window and viewport are used: asks for the size of the device if they were not set.
    void needView();
    // After a change of the state. All but the pen's and brush's own properties touch both contexts.
    void changed();
    void transformChanged();
    void clipChanged();

    unsigned long pixelOf(const QColor& color) const;
    x11::GcKey baseKey() const;
    x11::GcKey brushKey(const QBrush& brush) const;
    const x11::GcSlot* forPen() { return penGc.valid() ? penGc.slot : takePenGc(); }
    const x11::GcSlot* forBrush() { return brushGc.valid() ? brushGc.slot : takeBrushGc(); }
    const x11::GcSlot* takePenGc();
    const x11::GcSlot* takeBrushGc();

    bool hasPen() const { return state.pen.style() != Qt::NoPen; }
    // Open, and lines show.
    bool strokes() const { return device && hasPen(); }
    bool hasBrush() const { return state.brush.style() != Qt::NoBrush; }

    // From the program's coordinates to the device's.
    QPoint map(const QPoint& point) const
    {
        return transform == Transform::None ? point : transformed(point);
    }
    QPoint transformed(const QPoint& point) const;
    QRect mapRect(const QRect& rect) const;
    std::vector<x11::Point> mapPoints(const QPointArray& points, int index, int count) const;
    bool mapsRectsToRects() const { return transform != Transform::Other; }

    void fillDeviceRect(const QRect& rect, const x11::GcSlot* gc) const;
    // These two take rectangles in the program's coordinates; of a turned one the outline counts as inside.
    void fillMappedRect(const QRect& rect, const x11::GcSlot* gc) const;
    void fillTurnedRect(const QRect& rect, const x11::GcSlot* gc) const;
    // Inside the outline of an arc in the program's coordinates, as far as it is closed.
    void fillArc(const QRect& rect, int startAngle, int angleLength, bool chord);
    void fillPoints(const std::vector<x11::Point>& points, bool winding, const x11::GcSlot* gc) const;
};

// Cuts a part of an array to what there is. A negative count means all behind the index.
void cutToArray(const QPointArray& points, int* index, int* count);
// Negative extents lie on the other side of the corner.
QRect mirroredRect(int x, int y, int w, int h);

} // namespace zeltk

#endif
