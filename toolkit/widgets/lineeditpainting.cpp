// QLineEdit: what one sees.
#include "widgets/lineeditdata.h"

#include <qpainter.h>
#include <qpixmap.h>

#include <algorithm>

namespace zeltk
{

QString LineEditData::shown() const
{
    if (echo == QLineEdit::NoEcho)
        return QString("");
    QString text = buffer.text().isNull() ? QString("") : buffer.text();
    if (echo == QLineEdit::Password)
        text.fill('*');
    return text;
}

QRect LineEditData::lineRect(const QLineEdit* edit) const
{
    const QFontMetrics metrics(edit->font());
    const QRect r = edit->contentsRect();
    return QRect(r.x() + 1, r.y() + (r.height() - metrics.height() + 1) / 2, r.width() - 2, metrics.height());
}

void LineEditData::keepCursorInSight(const QLineEdit* edit)
{
    const QFontMetrics metrics(edit->font());
    const QString text = shown();
    const int room = lineRect(edit).width();
    const int leftBearing = std::max(0, -metrics.minLeftBearing());
    const int rightBearing = std::max(0, -metrics.minRightBearing());
    const int used = metrics.width(text) + rightBearing + 1;
    const int cursor = metrics.width(text, echo == QLineEdit::NoEcho ? 0 : buffer.cursor());
    if (leftBearing + used <= room) {
        if (alignment & Qt::AlignRight)
            scroll = used - room + 1;
        else if (alignment & Qt::AlignHCenter)
            scroll = (used - room) / 2;
        else
            scroll = 0;
        scroll -= leftBearing;
    } else if (cursor - scroll >= room) {
        scroll = cursor - room + 1;
    } else if (cursor - scroll < 0) {
        scroll = cursor;
    } else if (used - scroll < room) {
        scroll = used - room + 1;
    }
}

int LineEditData::textStart(const QLineEdit* edit) const
{
    return lineRect(edit).x() - scroll;
}

} // namespace zeltk

namespace
{

// Line breaks and tabulators take the place of a blank.
QString onOneLine(QString text)
{
    for (uint i = 0; i < text.length(); ++i)
        if (text.at(i).unicode() < 32)
            text[i] = ' ';
    return text;
}

// The letters that can be seen. `start` is where the text begins; it becomes where they do.
QString seenPart(const QString& text, const QFontMetrics& metrics, const QRect& line, int* start)
{
    const int margin = metrics.height(); // letters may reach beyond their room
    uint from = 0;
    for (; from < text.length(); ++from) {
        const int next = *start + metrics.width(text.at(from));
        if (next >= line.left() - margin)
            break;
        *start = next;
    }
    uint to = from;
    for (int pen = *start; to < text.length() && pen <= line.right() + margin; ++to)
        pen += metrics.width(text.at(to));
    return text.mid(from, to - from);
}

} // namespace

// Through a pixmap, so that it does not flicker.
void QLineEdit::drawContents(QPainter* painter)
{
    const QRect contents = contentsRect() & rect();
    if (contents.isEmpty())
        return;
    d->keepCursorInSight(this);
    const QColorGroup& g = colorGroup();
    QPixmap picture(contents.size());
    QPainter p(&picture, this);
    p.fillRect(picture.rect(), QBrush(paletteBackgroundColor()));
    p.translate(-contents.x(), -contents.y());
    const QRect line = d->lineRect(this);
    p.setClipRect(QRect(line.x() - contents.x(), 0, line.width(), picture.height()));
    const QFontMetrics metrics(font());
    const QString text = onOneLine(d->shown());
    const int start = d->textStart(this);
    const int baseline = line.y() + metrics.ascent();
    int seenStart = start;
    const QString seen = seenPart(text, metrics, line, &seenStart);
    p.setPen(g.text());
    p.drawText(seenStart, baseline, seen);
    if (hasSelectedText() && echoMode() != NoEcho) {
        const int from = start + metrics.width(text, d->buffer.selectionStart());
        const int to = start + metrics.width(text, d->buffer.selectionEnd());
        p.save();
        p.setClipRect(QRect(std::max(from, line.x()) - contents.x(), 0,
                            std::min(to, line.right() + 1) - std::max(from, line.x()), picture.height()));
        p.fillRect(from, line.y(), to - from, line.height(), QBrush(g.highlight()));
        p.setPen(g.highlightedText());
        p.drawText(seenStart, baseline, seen);
        p.restore();
    }
    if (d->cursorVisible && !d->readOnly && hasFocus()) {
        const int x = start + metrics.width(text, echoMode() == NoEcho ? 0 : d->buffer.cursor());
        p.setPen(g.text());
        p.drawLine(x, line.y(), x, line.bottom());
    }
    p.end();
    painter->drawPixmap(contents.topLeft(), picture);
}
