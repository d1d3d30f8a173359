// The application's font.
#ifndef ZELTK_DEFAULTFONT_H
#define ZELTK_DEFAULTFONT_H

class QFont;

namespace zeltk
{

// Helvetica 12 at first.
const QFont& defaultFont();
void setDefaultFont(const QFont& font);

} // namespace zeltk

#endif
