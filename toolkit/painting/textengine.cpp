// Places text in rectangles.
#include "painting/textengine.h"

#include "painting/fontdata.h"
#include "tools/unicode.h"
#include "x11/fonts.h"

#include <qfontmetrics.h>

#include <algorithm>

namespace zeltk
{

namespace
{

struct Letter {
    char16_t c;
    bool marked;
};
using Letters = std::vector<Letter>;

// One letter or blank with its place on the line.
struct Placed {
    Letter letter;
    int x;
    int width;
};

struct Line {
    std::vector<Placed> letters;
    int width = 0;
};

// Takes out the signs before shortcut letters; two of them stand for one.
Letters lettersOf(const std::u16string& text, int flags)
{
    Letters letters;
    for (size_t i = 0; i < text.size(); ++i) {
        bool marked = false;
        if (text[i] == u'&' && (flags & Qt::ShowPrefix)) {
            if (i + 1 >= text.size())
                break;
            ++i;
            marked = text[i] != u'&' && !(flags & Qt::NoAccel);
        }
        letters.push_back({text[i], marked});
    }
    return letters;
}

class LineMaker
{
public:
    LineMaker(const QFont& font, const TextFormat& f, int available)
        : face(faceOf(font)), format(f), room(available),
          tabWidth(f.tabStops > 0 ? f.tabStops : 8 * x11::glyphBox(face, u'x').advance)
    {
    }

    std::vector<Line> run(const Letters& letters)
    {
        lines.emplace_back();
        for (const Letter& letter : letters) {
            if (letter.c == u'\n' && !(format.flags & Qt::SingleLine)) {
                endLine();
                continue;
            }
            add(letter);
        }
        return lines;
    }

private:
    Line& line() { return lines.back(); }

    bool wraps() const { return (format.flags & Qt::WordBreak) && !(format.flags & Qt::SingleLine); }

    // A line that is too wide has no place for the line end either.
    void endLine()
    {
        if (wraps() && line().width > room)
            lines.emplace_back();
        lines.emplace_back();
    }

    int widthOf(char16_t* c, int x) const
    {
        if (*c == u'\t' && (format.flags & Qt::ExpandTabs))
            return nextTab(x) - x;
        if (*c == u'\t' || *c == u'\n')
            *c = u' ';
        return x11::glyphBox(face, *c).advance;
    }

    int nextTab(int x) const
    {
        for (const int* tab = format.tabArray; tab && *tab; ++tab)
            if (*tab > x)
                return *tab;
        return (x / tabWidth + 1) * tabWidth;
    }

    void add(Letter letter)
    {
        const int width = widthOf(&letter.c, line().width);
        const bool blank = letter.c == u' ' || letter.c == u'\t';
        if (wraps() && !blank && line().width + width > room)
            breakLine();
        line().letters.push_back({letter, line().width, width});
        line().width += width;
    }

    // The word that does not fit goes to the next line; one that is alone on its line stays.
    void breakLine()
    {
        std::vector<Placed>& letters = line().letters;
        size_t start = letters.size();
        while (start > 0 && letters[start - 1].letter.c != u' ' && letters[start - 1].letter.c != u'\t')
            --start;
        if (start == 0) {
            if (!(format.flags & Qt::BreakAnywhere) || letters.empty())
                return;
            start = letters.size();
        }
        const std::vector<Placed> word(letters.begin() + static_cast<long>(start), letters.end());
        letters.erase(letters.begin() + static_cast<long>(start), letters.end());
        line().width = letters.empty() ? 0 : letters.back().x + letters.back().width;
        lines.emplace_back();
        for (Placed placed : word) {
            placed.x = line().width;
            line().letters.push_back(placed);
            line().width += placed.width;
        }
    }

    const x11::Font* face;
    const TextFormat& format;
    int room;
    int tabWidth;
    std::vector<Line> lines;
};

void placeLine(const Line& line, int x, int baseline, TextLayout* layout)
{
    TextRun run = {std::u16string(), 0, baseline, 0};
    const auto finish = [&] {
        if (!run.text.empty())
            layout->runs.push_back(run);
        run = {std::u16string(), 0, baseline, 0};
    };
    for (const Placed& placed : line.letters) {
        if (placed.letter.c == u'\t') {
            finish();
            continue;
        }
        if (run.text.empty())
            run.x = x + placed.x;
        run.text += placed.letter.c;
        run.width += placed.width;
        if (placed.letter.marked)
            layout->marks.push_back({x + placed.x, baseline, placed.width});
    }
    finish();
}

} // namespace

// The letters may reach over their widths by the font's bearings, so these are kept free on both sides.
TextLayout layoutText(const QFont& font, const QRect& rect, const TextFormat& format, const QString& text)
{
    const QFontMetrics metrics(font);
    const int leftRoom = std::max(0, -metrics.minLeftBearing());
    const int rightRoom = std::max(0, -metrics.minRightBearing());
    const int rooms = leftRoom + rightRoom;
    const std::vector<Line> lines =
        LineMaker(font, format, rect.width() - rooms).run(lettersOf(toUtf16(text), format.flags));

    const int height = static_cast<int>(lines.size()) * metrics.lineSpacing() - metrics.leading();
    int y = rect.y();
    if (format.flags & Qt::AlignBottom)
        y += rect.height() - height;
    else if (format.flags & Qt::AlignVCenter)
        y += (rect.height() - height) / 2;

    TextLayout layout;
    int left = rect.x();
    int widest = 0;
    bool first = true;
    int baseline = y + metrics.ascent();
    for (const Line& line : lines) {
        int x = rect.x();
        if (!text.isEmpty() && (format.flags & Qt::AlignRight))
            x += rect.width() - rooms - line.width;
        else if (!text.isEmpty() && (format.flags & Qt::AlignHCenter))
            x += (rect.width() - rooms - line.width) / 2;
        placeLine(line, x + leftRoom, baseline, &layout);
        left = first ? x : std::min(left, x);
        widest = std::max(widest, line.width + rooms);
        baseline += metrics.lineSpacing();
        first = false;
    }
    if (!text.isEmpty() && (format.flags & Qt::AlignRight) && rect.width() < rooms)
        widest += rooms - rect.width();
    layout.bounding = QRect(left, y, widest, height);
    return layout;
}

} // namespace zeltk
