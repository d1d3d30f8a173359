// QFont: as text, and back.
#include <qfont.h>

#include "painting/fontdata.h"

using zeltk::FontData;

QString QFont::toString() const
{
    const QString comma(",");
    return d->family + comma + QString::number(static_cast<double>(pointSizeFloat())) + comma +
           QString::number(d->pixelSize) + comma + QString::number(static_cast<int>(d->hint)) + comma +
           QString::number(d->weight) + comma + QString::number(static_cast<int>(d->italic)) + comma +
           QString::number(static_cast<int>(d->underline)) + comma +
           QString::number(static_cast<int>(d->strikeOut)) + comma +
           QString::number(static_cast<int>(d->fixedPitch)) + comma +
           QString::number(static_cast<int>(d->raw));
}

bool QFont::fromString(const QString& text)
{
    const QStringList parts = QStringList::split(",", text, true);
    if (parts.count() != 10) {
        qWarning("QFont::fromString: invalid description '%s'", text.isNull() ? "(null)" : text.latin1());
        return false;
    }
    *this = QFont(parts[0], 12, parts[4].toInt(), parts[5].toInt() != 0);
    if (parts[1].toDouble() > 0.0)
        setPointSizeFloat(parts[1].toFloat());
    else if (parts[2].toInt() > 0)
        setPixelSize(parts[2].toInt());
    const int hint = parts[3].toInt();
    d->hint = hint < Helvetica || hint > AnyStyle ? AnyStyle : static_cast<StyleHint>(hint);
    d->underline = parts[6].toInt() != 0;
    d->strikeOut = parts[7].toInt() != 0;
    d->fixedPitch = parts[8].toInt() != 0;
    d->raw = parts[9].toInt() != 0;
    d->set = FontData::All;
    return true;
}
