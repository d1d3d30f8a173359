// The pattern that a field's text is typed into.
#ifndef ZELTK_EDITMASK_H
#define ZELTK_EDITMASK_H

#include <qstring.h>

#include <vector>

namespace zeltk
{

// Of a mask such as "99.99;_" the nines are places for digits, the point is a separator, and the underscore
// stands in places without a letter. A text that fits has one letter for each place and separator.
class EditMask
{
public:
    EditMask() {}
    explicit EditMask(const QString& mask);

    bool isSet() const { return !m_places.empty(); }
    const QString& pattern() const { return m_pattern; }
    int length() const { return static_cast<int>(m_places.size()); }

    // The text put into the places, from `from` on; `whole` is what stands there before. Letters that fit
    // nowhere are left out. `end` becomes the place behind the last letter used.
    QString filled(const QString& whole, int from, const QString& text, int* end) const;
    // Without any letter.
    QString empty() const;
    // `count` places emptied.
    QString emptied(const QString& whole, int from, int count) const;
    // What a part of a text means to the program: without blanks.
    QString meaning(const QString& whole, int from, int count) const;
    // Whether each place that needs a letter has one.
    bool isComplete(const QString& whole) const;

    // The first place for a letter at or behind `from`; length() if there is none.
    int placeFrom(int from) const;
    // The last one before it; -1 if there is none.
    int placeBefore(int from) const;

private:
    enum class Case { AsTyped, Upper, Lower };
    struct Place {
        QChar kind; // of letters; or the separator
        bool isSeparator;
        Case letterCase;
    };

    bool takes(const Place& place, QChar letter) const;
    int separatorFrom(int from, QChar letter) const; // length() if there is none

    QString m_pattern;
    QChar m_blank = ' ';
    std::vector<Place> m_places;
};

} // namespace zeltk

#endif
