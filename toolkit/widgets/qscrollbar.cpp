// QScrollBar: places, values, painting.
#include <qscrollbar.h>

#include "kernel/applicationprivate.h"
#include "style/motifinputs.h"
#include "widgets/scrollbardata.h"

#include <qevent.h>
#include <qguardedptr.h>
#include <qpainter.h>

#include <algorithm>

namespace motif = zeltk::motif;

namespace
{

constexpr int grooveStart = 2 + motif::scrollBarArrow;

QSizePolicy policyFor(Qt::Orientation orientation)
{
    return orientation == Qt::Horizontal ? QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed)
                                         : QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Minimum);
}

} // namespace

QScrollBar::QScrollBar(QWidget* parent, const char* name) : QWidget(parent, name)
{
    init(Vertical);
}

QScrollBar::QScrollBar(Orientation orientation, QWidget* parent, const char* name) : QWidget(parent, name)
{
    init(orientation);
}

QScrollBar::QScrollBar(int minValue, int maxValue, int lineStep, int pageStep, int value,
                       Orientation orientation, QWidget* parent, const char* name)
    : QWidget(parent, name), QRangeControl(minValue, maxValue, lineStep, pageStep, value)
{
    init(orientation);
}

QScrollBar::~QScrollBar()
{
    delete d;
}

void QScrollBar::init(Orientation orientation)
{
    d = new zeltk::ScrollBarData;
    connect(&d->repeatTimer, SIGNAL(timeout()), SLOT(doAutoRepeat()));
    d->orientation = orientation;
    zeltk::ensureStyled();
    setFocusPolicy(NoFocus);
    setBackgroundMode(PaletteMid);
    QWidget::setSizePolicy(policyFor(orientation));
}

void QScrollBar::setOrientation(Orientation orientation)
{
    d->orientation = orientation;
    QWidget::setSizePolicy(policyFor(orientation));
    positionSliderFromValue();
    update();
    updateGeometry();
}

Qt::Orientation QScrollBar::orientation() const
{
    return d->orientation;
}

void QScrollBar::setTracking(bool enable)
{
    d->tracking = enable;
}

bool QScrollBar::tracking() const
{
    return d->tracking;
}

bool QScrollBar::draggingSlider() const
{
    return d->pressed == zeltk::ScrollBarData::Slider;
}

void QScrollBar::setPalette(const QPalette& palette)
{
    QWidget::setPalette(palette);
}

void QScrollBar::setSizePolicy(QSizePolicy policy)
{
    QWidget::setSizePolicy(policy);
}

QSize QScrollBar::sizeHint() const
{
    constPolish();
    const int length = 2 * motif::scrollBarArrow + 6;
    return orientation() == Horizontal ? QSize(length, motif::scrollBarExtent)
                                       : QSize(motif::scrollBarExtent, length);
}

int QScrollBar::sliderStart() const
{
    return d->sliderStart;
}

QRect QScrollBar::sliderRect() const
{
    const int length = sliderLength();
    return orientation() == Horizontal ? QRect(d->sliderStart, 2, length, motif::scrollBarArrow)
                                       : QRect(2, d->sliderStart, motif::scrollBarArrow, length);
}

int QScrollBar::grooveLength() const
{
    return (orientation() == Horizontal ? width() : height()) - 2 * grooveStart;
}

int QScrollBar::sliderLength() const
{
    const int groove = grooveLength();
    const long long range = static_cast<long long>(maxValue()) - minValue();
    if (range <= 0)
        return groove;
    const long long share = static_cast<long long>(pageStep()) * groove / (range + pageStep());
    return std::min(groove, std::max(static_cast<int>(share), motif::shortestSlider));
}

int QScrollBar::rangeValueToSliderPos(int value) const
{
    return grooveStart + positionFromValue(value, grooveLength() - sliderLength());
}

int QScrollBar::sliderPosToRangeValue(int pos) const
{
    return valueFromPosition(pos - grooveStart, grooveLength() - sliderLength());
}

void QScrollBar::positionSliderFromValue()
{
    d->sliderStart = rangeValueToSliderPos(value());
}

int QScrollBar::boundedSlider(int start) const
{
    const int last = grooveStart + grooveLength() - sliderLength();
    return std::max(grooveStart, std::min(start, last));
}

void QScrollBar::valueChange()
{
    if (!draggingSlider())
        positionSliderFromValue();
    const QGuardedPtr<QScrollBar> alive(this);
    repaint(false);
    if (alive)
        emit valueChanged(value());
}

void QScrollBar::rangeChange()
{
    positionSliderFromValue();
    repaint(false);
}

void QScrollBar::stepChange()
{
    positionSliderFromValue();
    repaint(false);
}

void QScrollBar::resizeEvent(QResizeEvent*)
{
    positionSliderFromValue();
}

void QScrollBar::hideEvent(QHideEvent*)
{
    d->pressed = zeltk::ScrollBarData::Nothing;
    stopAutoRepeat();
}

void QScrollBar::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    const QRect inside(2, 2, width() - 4, height() - 4);
    p.fillRect(inside, QBrush(paletteBackgroundColor()));
    motif::ScrollBarLook look;
    look.orientation = orientation();
    look.slider = sliderRect();
    look.groove = orientation() == Horizontal ? QRect(grooveStart, 2, grooveLength(), motif::scrollBarArrow)
                                              : QRect(2, grooveStart, motif::scrollBarArrow, grooveLength());
    look.background = paletteBackgroundColor();
    look.focus = hasFocus();
    look.decreasing = d->pressed == zeltk::ScrollBarData::LineBack && d->inside;
    look.increasing = d->pressed == zeltk::ScrollBarData::LineForward && d->inside;
    motif::drawScrollBar(&p, rect(), colorGroup(), look);
}
