// QLabel.
#include <qlabel.h>

#include "kernel/accelerators.h"
#include "style/motif.h"

#include <qevent.h>
#include <qpainter.h>

#include <algorithm>

namespace zeltk
{

struct LabelData : AcceleratorTarget {
    QLabel* label = nullptr;
    QString text;
    QPixmap* pixmap = nullptr;
    Qt::TextFormat format = Qt::AutoText;
    int align = Qt::AlignAuto | Qt::AlignVCenter | Qt::ExpandTabs;
    int indent = -1;
    bool autoResize = false;
    bool scaled = false;
    QWidget* buddy = nullptr;
    QSize measured; // the text, with room for 80 x; invalid: to be measured when asked for

    void activateAccelerator() override
    {
        if (!buddy)
            return;
        QFocusEvent::setReason(QFocusEvent::Shortcut);
        buddy->setFocus();
        QFocusEvent::resetReason();
    }
};

} // namespace zeltk

QLabel::QLabel(QWidget* parent, const char* name, WFlags f) : QFrame(parent, name, f), d(new zeltk::LabelData)
{
    d->label = this;
}

QLabel::QLabel(const QString& text, QWidget* parent, const char* name, WFlags f) : QLabel(parent, name, f)
{
    setText(text);
}

QLabel::QLabel(QWidget* buddy, const QString& text, QWidget* parent, const char* name, WFlags f)
    : QLabel(parent, name, f)
{
    setBuddy(buddy);
    setText(text);
}

QLabel::~QLabel()
{
    zeltk::removeAccelerators(d);
    delete d->pixmap;
    delete d;
}

QString QLabel::text() const
{
    return d->text;
}

QPixmap* QLabel::pixmap() const
{
    return d->pixmap;
}

void QLabel::setText(const QString& text)
{
    if (d->text == text && d->text.isNull() == text.isNull() && !d->pixmap)
        return;
    delete d->pixmap;
    d->pixmap = nullptr;
    d->text = text;
    updateAccelerator();
    contentsChanged();
}

void QLabel::setPixmap(const QPixmap& pixmap)
{
    QPixmap* copy = new QPixmap(pixmap);
    delete d->pixmap;
    d->pixmap = copy;
    d->text = QString::null;
    updateAccelerator();
    contentsChanged();
}

void QLabel::setNum(int number)
{
    setText(QString::number(number));
}

void QLabel::setNum(double number)
{
    setText(QString::number(number));
}

void QLabel::clear()
{
    setText(QString::fromLatin1(""));
}

void QLabel::contentsChanged()
{
    d->measured = QSize();
    if (d->autoResize)
        adjustSize();
    update(contentsRect());
    updateGeometry();
}

Qt::TextFormat QLabel::textFormat() const
{
    return d->format;
}

void QLabel::setTextFormat(TextFormat format)
{
    d->format = format;
}

int QLabel::alignment() const
{
    return d->align;
}

void QLabel::setAlignment(int alignment)
{
    if (alignment == d->align)
        return;
    d->align = alignment;
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth((alignment & WordBreak) != 0);
    setSizePolicy(policy);
    contentsChanged();
}

int QLabel::indent() const
{
    return d->indent;
}

void QLabel::setIndent(int indent)
{
    d->indent = indent;
    contentsChanged();
}

bool QLabel::autoResize() const
{
    return d->autoResize;
}

void QLabel::setAutoResize(bool enable)
{
    d->autoResize = enable;
    if (enable)
        adjustSize();
}

bool QLabel::hasScaledContents() const
{
    return d->scaled;
}

void QLabel::setScaledContents(bool enable)
{
    d->scaled = enable;
    update(contentsRect());
}

void QLabel::setBuddy(QWidget* buddy)
{
    if (d->buddy)
        disconnect(d->buddy, SIGNAL(destroyed()), this, SLOT(buddyDied()));
    d->buddy = buddy;
    if (buddy)
        connect(buddy, SIGNAL(destroyed()), this, SLOT(buddyDied()));
    updateAccelerator();
    update(contentsRect());
}

QWidget* QLabel::buddy() const
{
    return d->buddy;
}

void QLabel::buddyDied()
{
    d->buddy = nullptr;
    updateAccelerator();
}

void QLabel::acceleratorSlot()
{
    d->activateAccelerator();
}

void QLabel::updateAccelerator()
{
    d->measured = QSize(); // whether & is shown depends on the buddy
    zeltk::removeAccelerators(d);
    const int key = zeltk::motif::shortcutOf(d->text);
    if (d->buddy && key)
        zeltk::addAccelerator(this, key, d);
}

namespace
{

// What is kept free at the edge the text is aligned to.
int effectiveIndent(const QLabel* label)
{
    if (label->indent() >= 0)
        return label->indent();
    if (label->frameWidth() == 0)
        return 0;
    return std::max(label->fontMetrics().width('x') / 2 - label->margin(), 0);
}

// Without a buddy a sign before a letter is a letter itself.
int textFlags(const QLabel* label)
{
    return label->buddy() ? label->alignment() | Qt::ShowPrefix : label->alignment();
}

} // namespace

QSize QLabel::sizeForWidth(int width) const
{
    const int around = 2 * frameWidth();
    const int indent = effectiveIndent(this);
    const bool sideways = (d->align & AlignHCenter) == 0;
    const bool upDown = !sideways && (d->align & (AlignTop | AlignBottom));
    const QSize extra(around + (sideways ? indent : 0), around + (upDown ? indent : 0));
    if (d->pixmap)
        return d->pixmap->size() + extra;
    if (width >= 0)
        return measureText(width - extra.width()) + extra;
    if (!d->measured.isValid())
        d->measured = measureText(80 * fontMetrics().width('x'));
    return d->measured + extra;
}

// The room counts only where the text may be wrapped.
QSize QLabel::measureText(int room) const
{
    const bool wraps = (d->align & WordBreak) != 0;
    const int flags = textFlags(this) & ~AlignHorizontal_Mask & ~AlignVertical_Mask;
    return fontMetrics().boundingRect(0, 0, wraps ? room : 0, wraps ? 2000 : 0, flags, d->text).size();
}

QSize QLabel::sizeHint() const
{
    return sizeForWidth(-1);
}

QSize QLabel::minimumSizeHint() const
{
    if (d->align & WordBreak)
        return QSize(sizeForWidth(0).width(), sizeForWidth(-1).height());
    return sizeForWidth(-1);
}

int QLabel::heightForWidth(int width) const
{
    return d->align & WordBreak ? sizeForWidth(width).height() : QWidget::heightForWidth(width);
}

void QLabel::setFont(const QFont& font)
{
    QFrame::setFont(font);
}

// Without a text the size hint stays what it was.
void QLabel::fontChange(const QFont& oldFont)
{
    if (!d->text.isEmpty() || d->pixmap)
        contentsChanged();
    QFrame::fontChange(oldFont);
}

void QLabel::drawContents(QPainter* p)
{
    if (d->pixmap) {
        drawPicture(p);
        return;
    }
    QRect r = contentsRect();
    const int indent = effectiveIndent(this);
    if ((d->align & AlignHCenter) == 0) {
        if (d->align & AlignRight)
            r.setRight(r.right() - indent);
        else
            r.setLeft(r.left() + indent);
    }
    if (d->align & AlignTop)
        r.setTop(r.top() + indent);
    else if (d->align & AlignBottom)
        r.setBottom(r.bottom() - indent);
    zeltk::motif::drawText(p, r, textFlags(this), colorGroup(), isEnabled(), d->text,
                           &paletteForegroundColor());
}

void QLabel::drawPicture(QPainter* p)
{
    const QRect r = contentsRect();
    const QPixmap& picture = *d->pixmap;
    if (!d->scaled) {
        zeltk::motif::drawPixmap(p, r, d->align, colorGroup(), isEnabled(), picture);
    } else if (!r.isEmpty() && !picture.isNull()) {
        p->save();
        p->translate(r.x(), r.y());
        p->scale(double(r.width()) / picture.width(), double(r.height()) / picture.height());
        p->drawPixmap(0, 0, picture);
        p->restore();
    }
}
