// QLineEdit: how its text changes, freely or within a mask.
#include "widgets/lineeditdata.h"

namespace zeltk
{

QString LineEditData::value() const
{
    return mask.isSet() ? mask.meaning(buffer.text(), 0, mask.length()) : buffer.text();
}

QString LineEditData::selectedValue() const
{
    if (!mask.isSet() || !buffer.hasSelection())
        return buffer.selectedText();
    const int from = buffer.selectionStart();
    return mask.meaning(buffer.text(), from, buffer.selectionEnd() - from);
}

void LineEditData::setValue(const QString& text)
{
    if (!mask.isSet()) {
        buffer.setText(text.left(static_cast<uint>(QMAX(maxLength, 0))));
        return;
    }
    int end = 0;
    buffer.setText(mask.filled(mask.empty(), 0, text, &end));
    buffer.moveCursor(mask.placeFrom(end), false);
}

void LineEditData::empty(int from, int count, int cursor)
{
    buffer.overwrite(mask.emptied(buffer.text(), from, count), cursor, true);
}

void LineEditData::insert(const QString& text)
{
    if (!mask.isSet()) {
        buffer.insert(text, maxLength);
        return;
    }
    if (buffer.hasSelection())
        removeBehind();
    int end = 0;
    const QString whole = mask.filled(buffer.text(), buffer.cursor(), text, &end);
    buffer.overwrite(whole, mask.placeFrom(end), false);
}

void LineEditData::removeBefore()
{
    if (!mask.isSet()) {
        buffer.removeBefore();
        return;
    }
    const int place = mask.placeBefore(buffer.cursor());
    if (buffer.hasSelection())
        removeBehind();
    else if (place >= 0)
        empty(place, 1, place);
}

void LineEditData::removeBehind()
{
    const int from = buffer.selectionStart();
    const int place = mask.placeFrom(buffer.cursor());
    if (!mask.isSet())
        buffer.removeBehind();
    else if (buffer.hasSelection())
        empty(from, buffer.selectionEnd() - from, from);
    else if (place < mask.length())
        empty(place, 1, place);
}

void LineEditData::removeRest()
{
    if (mask.isSet())
        empty(buffer.cursor(), mask.length() - buffer.cursor(), buffer.cursor());
    else
        buffer.removeRest();
}

} // namespace zeltk
