// QBrush.
#include <qbrush.h>

#include <qpixmap.h>

QBrush::QBrush() : s(NoBrush), c(0, 0, 0), p(nullptr) {}

QBrush::QBrush(BrushStyle style) : s(style), c(0, 0, 0), p(nullptr) {}

QBrush::QBrush(const QColor& color, BrushStyle style) : s(style), c(color), p(nullptr) {}

QBrush::QBrush(const QColor& color, const QPixmap& pixmap) : s(CustomPattern), c(color), p(nullptr)
{
    setPixmap(pixmap);
}

QBrush::QBrush(const QBrush& other)
    : Qt(other), s(other.s), c(other.c), p(other.p ? new QPixmap(*other.p) : nullptr)
{
}

QBrush::~QBrush()
{
    delete p;
}

QBrush& QBrush::operator=(const QBrush& other)
{
    QPixmap* copy = other.p ? new QPixmap(*other.p) : nullptr;
    delete p;
    p = copy;
    s = other.s;
    c = other.c;
    return *this;
}

void QBrush::setStyle(BrushStyle style)
{
    if (style == CustomPattern)
        qWarning("QBrush::setStyle: CustomPattern is for internal use");
    s = style;
}

// A null pixmap takes the pattern away.
void QBrush::setPixmap(const QPixmap& pixmap)
{
    delete p;
    p = pixmap.isNull() ? nullptr : new QPixmap(pixmap);
    s = p ? CustomPattern : NoBrush;
}

bool QBrush::operator==(const QBrush& other) const
{
    if (s != other.s || c != other.c || !p != !other.p)
        return false;
    return !p || p->serialNumber() == other.p->serialNumber();
}
