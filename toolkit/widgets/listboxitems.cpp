// The entries of list boxes.
#include <qlistbox.h>

#include <qfontmetrics.h>
#include <qpainter.h>

namespace
{

constexpr int textMargin = 3; // left and right

int textHeight(const QListBox* listbox)
{
    return listbox->fontMetrics().lineSpacing() + 2;
}

int textWidth(const QListBox* listbox, const QString& text)
{
    return listbox->fontMetrics().width(text) + 2 * textMargin;
}

} // namespace

int QListBoxItem::RTTI = 0;
int QListBoxText::RTTI = 1;
int QListBoxPixmap::RTTI = 2;

QListBoxItem::QListBoxItem(QListBox* listbox) : lbox(0), s(false), able(true), own(false)
{
    if (listbox)
        listbox->insertItem(this);
}

QListBoxItem::QListBoxItem(QListBox* listbox, QListBoxItem* after) : lbox(0), s(false), able(true), own(false)
{
    if (listbox)
        listbox->insertItem(this, after);
}

QListBoxItem::~QListBoxItem()
{
    if (lbox)
        lbox->takeItem(this);
}

QString QListBoxItem::text() const
{
    return txt;
}

const QPixmap* QListBoxItem::pixmap() const
{
    return 0;
}

int QListBoxItem::height(const QListBox*) const
{
    return 0;
}

int QListBoxItem::width(const QListBox*) const
{
    return 0;
}

bool QListBoxItem::isCurrent() const
{
    return lbox && lbox->item(lbox->currentItem()) == this;
}

QListBoxItem* QListBoxItem::next() const
{
    return lbox ? lbox->item(lbox->index(this) + 1) : 0;
}

QListBoxItem* QListBoxItem::prev() const
{
    return lbox ? lbox->item(lbox->index(this) - 1) : 0;
}

int QListBoxItem::rtti() const
{
    return RTTI;
}

// The list box measures its entries when they come in; a text must be there by then.
QListBoxText::QListBoxText(QListBox* listbox, const QString& text) : QListBoxItem()
{
    setText(text);
    if (listbox)
        listbox->insertItem(this);
}

QListBoxText::QListBoxText(const QString& text) : QListBoxItem()
{
    setText(text);
}

QListBoxText::QListBoxText(QListBox* listbox, const QString& text, QListBoxItem* after) : QListBoxItem()
{
    setText(text);
    if (listbox)
        listbox->insertItem(this, after);
}

QListBoxText::~QListBoxText() {}

int QListBoxText::height(const QListBox* listbox) const
{
    return listbox ? textHeight(listbox) : 0;
}

int QListBoxText::width(const QListBox* listbox) const
{
    return listbox ? textWidth(listbox, text()) : 0;
}

int QListBoxText::rtti() const
{
    return RTTI;
}

void QListBoxText::paint(QPainter* p)
{
    const QFontMetrics metrics = p->fontMetrics();
    p->drawText(textMargin, (height(listBox()) - metrics.height()) / 2 + metrics.ascent(), text());
}

QListBoxPixmap::QListBoxPixmap(QListBox* listbox, const QPixmap& pixmap) : QListBoxItem(), pm(pixmap)
{
    if (listbox)
        listbox->insertItem(this);
}

QListBoxPixmap::QListBoxPixmap(const QPixmap& pixmap) : QListBoxItem(), pm(pixmap) {}

QListBoxPixmap::QListBoxPixmap(QListBox* listbox, const QPixmap& pixmap, QListBoxItem* after)
    : QListBoxItem(), pm(pixmap)
{
    if (listbox)
        listbox->insertItem(this, after);
}

QListBoxPixmap::QListBoxPixmap(QListBox* listbox, const QPixmap& pixmap, const QString& text)
    : QListBoxItem(), pm(pixmap)
{
    setText(text);
    if (listbox)
        listbox->insertItem(this);
}

QListBoxPixmap::QListBoxPixmap(const QPixmap& pixmap, const QString& text) : QListBoxItem(), pm(pixmap)
{
    setText(text);
}

QListBoxPixmap::QListBoxPixmap(QListBox* listbox, const QPixmap& pixmap, const QString& text,
                               QListBoxItem* after)
    : QListBoxItem(), pm(pixmap)
{
    setText(text);
    if (listbox)
        listbox->insertItem(this, after);
}

QListBoxPixmap::~QListBoxPixmap() {}

int QListBoxPixmap::height(const QListBox* listbox) const
{
    if (text().isEmpty() || !listbox)
        return pm.height();
    return QMAX(pm.height(), textHeight(listbox));
}

int QListBoxPixmap::width(const QListBox* listbox) const
{
    if (text().isEmpty() || !listbox)
        return pm.width() + 2 * textMargin;
    return pm.width() + textWidth(listbox, text()) + textMargin;
}

int QListBoxPixmap::rtti() const
{
    return RTTI;
}

void QListBoxPixmap::paint(QPainter* p)
{
    const int all = height(listBox());
    p->drawPixmap(textMargin, (all - pm.height()) / 2, pm);
    const QFontMetrics metrics = p->fontMetrics();
    if (!text().isEmpty())
        p->drawText(pm.width() + 2 * textMargin, (all - metrics.height()) / 2 + metrics.ascent(), text());
}
