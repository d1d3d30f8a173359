// Patterns for the search of objects by name.
#ifndef ZELTK_REGEXP_H
#define ZELTK_REGEXP_H

class QString;

namespace zeltk
{

// Whether the regular expression matches some part of the text. A pattern that cannot be read matches
// nothing.
bool matchesRegExp(const QString& pattern, const QString& text);

} // namespace zeltk

#endif
