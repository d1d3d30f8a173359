// Labels show texts and pixmaps, and lead to their buddies.
#include "pixels.h"
#include "printers.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qfontmetrics.h>
#include <qlabel.h>
#include <qpixmap.h>

#include <X11/keysym.h>

#include <memory>

namespace
{

const unsigned grey = 0xc0c0c0;
const unsigned red = 0xff0000;

// The smallest rectangle with everything that is not background.
QRect ink(const Pixels& picture, unsigned background = grey)
{
    QRect box;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.at(x, y) != background)
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

class Label : public testing::Test
{
protected:
    Label() : label("Text", &window)
    {
        window.setGeometry(100, 100, 200, 120);
        label.setGeometry(10, 10, 120, 60);
    }

    QRect inkWith(int alignment)
    {
        label.setAlignment(alignment);
        showAndWait(&window);
        return ink(Pixels::of(&label));
    }

    QWidget window;
    QLabel label;
};

QPixmap redSquare(int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::red);
    return pixmap;
}

} // namespace

TEST_F(Label, Defaults)
{
    EXPECT_EQ("Text", label.text());
    EXPECT_EQ(nullptr, label.pixmap());
    EXPECT_EQ(Qt::AlignAuto | Qt::AlignVCenter | Qt::ExpandTabs, label.alignment());
    EXPECT_EQ(-1, label.indent());
    EXPECT_EQ(Qt::AutoText, label.textFormat());
    EXPECT_EQ(nullptr, label.buddy());
    EXPECT_FALSE(label.autoResize());
    EXPECT_FALSE(label.hasScaledContents());
    EXPECT_EQ(QWidget::NoFocus, label.focusPolicy());
}

TEST_F(Label, ShowsNumbers)
{
    label.setNum(5);
    EXPECT_EQ("5", label.text());
    label.setNum(2.5);
    EXPECT_EQ("2.5", label.text());
    label.clear();
    EXPECT_EQ("", label.text());
}

TEST_F(Label, ATextTakesThePlaceOfAPixmapAndTheOtherWayRound)
{
    label.setPixmap(redSquare(8));
    ASSERT_NE(nullptr, label.pixmap());
    EXPECT_EQ(QSize(8, 8), label.pixmap()->size());
    EXPECT_TRUE(label.text().isNull());
    label.setText("x");
    EXPECT_EQ(nullptr, label.pixmap());
}

TEST_F(Label, AlignmentMovesTheText)
{
    const QRect left = inkWith(Qt::AlignLeft | Qt::AlignTop);
    EXPECT_LE(left.left(), 2);
    EXPECT_LE(left.top(), 5);
    const QRect right = inkWith(Qt::AlignRight | Qt::AlignBottom);
    EXPECT_EQ(left.size(), right.size());
    EXPECT_GE(right.right(), 117);
    const int textHeight = label.fontMetrics().height();
    EXPECT_EQ(left.top() + 60 - textHeight, right.top());
    EXPECT_EQ(left.top() + (60 - textHeight) / 2, inkWith(Qt::AlignLeft | Qt::AlignVCenter).top());
    EXPECT_NEAR(60, inkWith(Qt::AlignCenter).center().x(), 1);
}

TEST_F(Label, AnIndentKeepsTheTextFromTheEdgeItIsAlignedTo)
{
    const QRect before = inkWith(Qt::AlignLeft | Qt::AlignTop);
    label.setIndent(20);
    EXPECT_EQ(before.topLeft() + QPoint(20, 20), inkWith(Qt::AlignLeft | Qt::AlignTop).topLeft());
    label.setIndent(-1);
    label.setFrameStyle(QFrame::Box | QFrame::Plain);
    label.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    const QRect framed = ink(Pixels::of(&label).part(1, 1, 118, 58));
    EXPECT_EQ(before.left() + label.fontMetrics().width('x') / 2, framed.left())
        << "half an x within a frame";
}

TEST_F(Label, SignsBeforeLettersAreLettersUntilThereIsABuddy)
{
    label.setText("&x");
    const int literal = inkWith(Qt::AlignLeft | Qt::AlignVCenter).width();
    QWidget buddy(&window);
    label.setBuddy(&buddy);
    const QRect marked = inkWith(Qt::AlignLeft | Qt::AlignVCenter);
    EXPECT_LT(marked.width(), literal);
    label.setText("x");
    EXPECT_LT(inkWith(Qt::AlignLeft | Qt::AlignVCenter).height(), marked.height()) << "it was underlined";
}

TEST_F(Label, ItsShortcutFocusesTheBuddy)
{
    QWidget first(&window), buddy(&window);
    first.setFocusPolicy(QWidget::StrongFocus);
    buddy.setFocusPolicy(QWidget::StrongFocus);
    label.setText("&Name");
    label.setBuddy(&buddy);
    showAndActivate(&window);
    first.setFocus();
    xinput::typeKey(XK_n, XK_Alt_L);
    EXPECT_TRUE(waitFor([&] { return buddy.hasFocus(); }));
    first.setFocus();
    label.setText("&Other");
    xinput::typeKey(XK_n, XK_Alt_L);
    settle();
    EXPECT_FALSE(buddy.hasFocus());
    xinput::typeKey(XK_o, XK_Alt_L);
    EXPECT_TRUE(waitFor([&] { return buddy.hasFocus(); }));
}

TEST_F(Label, ForgetsABuddyThatDied)
{
    std::unique_ptr<QWidget> buddy(new QWidget(&window));
    label.setBuddy(buddy.get());
    EXPECT_EQ(buddy.get(), label.buddy());
    buddy.reset();
    EXPECT_EQ(nullptr, label.buddy());
}

TEST_F(Label, LongTextsBreakAtWordsIfAsked)
{
    label.setText("some words that do not fit into one line");
    const int line = label.fontMetrics().height();
    EXPECT_EQ(line, label.sizeHint().height());
    EXPECT_FALSE(label.sizePolicy().hasHeightForWidth());
    label.setAlignment(Qt::AlignLeft | Qt::AlignTop | Qt::WordBreak);
    EXPECT_TRUE(label.sizePolicy().hasHeightForWidth());
    EXPECT_GT(label.heightForWidth(100), 2 * line);
    EXPECT_GT(label.heightForWidth(60), label.heightForWidth(100));
    EXPECT_GT(inkWith(label.alignment()).height(), 2 * line);
}

TEST_F(Label, WantsTheRoomOfItsText)
{
    const QSize plain = label.sizeHint();
    EXPECT_EQ(label.fontMetrics().height(), plain.height());
    EXPECT_GE(plain.width(), label.fontMetrics().width("Text"));
    EXPECT_EQ(plain, label.minimumSizeHint());
    label.setFrameStyle(QFrame::Panel | QFrame::Sunken);
    label.setLineWidth(3);
    label.setMargin(5);
    label.setIndent(10);
    EXPECT_EQ(plain + QSize(2 * 8 + 10, 2 * 8), label.sizeHint());
    label.setText("two\nlines");
    EXPECT_EQ(label.fontMetrics().height() + label.fontMetrics().lineSpacing() + 16,
              label.sizeHint().height());
}

TEST_F(Label, GrowsWithItsFontUnlessItIsEmpty)
{
    QLabel empty("", &window);
    const QSize wanted = label.sizeHint();
    const QSize wantedByEmpty = empty.sizeHint();
    const QFont large("DejaVu Sans", 24);
    label.setFont(large);
    empty.setFont(large);
    EXPECT_LT(wanted.width(), label.sizeHint().width());
    EXPECT_LT(wanted.height(), label.sizeHint().height());
    EXPECT_EQ(wantedByEmpty, empty.sizeHint());
    empty.setText("x");
    EXPECT_EQ(QFontMetrics(large).height(), empty.sizeHint().height());
}

TEST_F(Label, ABuddyTakesTheSignOutOfItsSize)
{
    label.setText("&Text");
    const int wanted = label.sizeHint().width();
    label.setBuddy(&window);
    EXPECT_EQ(wanted - label.fontMetrics().width('&'), label.sizeHint().width());
    label.setBuddy(nullptr);
    EXPECT_EQ(wanted, label.sizeHint().width());
}

TEST_F(Label, AChangedTextIsPaintedSoonAndTheOldOneGoes)
{
    label.setText("MMMMMM");
    const QRect before = inkWith(Qt::AlignLeft | Qt::AlignVCenter);
    label.setText(".");
    EXPECT_TRUE(waitFor([&] { return ink(Pixels::now(&label)).width() < 5; })) << before.width();
}

TEST_F(Label, DisabledTextsArePale)
{
    showAndWait(&window);
    EXPECT_GT(Pixels::of(&label).count(0x000000), 0);
    label.setEnabled(false);
    const Pixels pale = Pixels::of(&label);
    EXPECT_EQ(0, pale.count(0x000000));
    EXPECT_GT(pale.count(0x808080), 0);
}

TEST_F(Label, TakesTheColoursOfItsPalette)
{
    label.setPaletteForegroundColor(Qt::red);
    label.setPaletteBackgroundColor(Qt::yellow);
    showAndWait(&window);
    const Pixels picture = Pixels::of(&label);
    EXPECT_EQ(0xffff00u, picture.at(110, 5));
    EXPECT_GT(picture.count(red), 0);
}

TEST_F(Label, PlacesItsPixmapByTheAlignmentWithoutIndent)
{
    label.setPixmap(redSquare(20));
    label.setIndent(15);
    EXPECT_EQ(QRect(0, 20, 20, 20), inkWith(Qt::AlignLeft | Qt::AlignVCenter));
    EXPECT_EQ(QRect(100, 40, 20, 20), inkWith(Qt::AlignRight | Qt::AlignBottom));
    EXPECT_EQ(QRect(50, 20, 20, 20), inkWith(Qt::AlignCenter));
}

TEST_F(Label, AScaledPixmapFillsTheInside)
{
    label.setPixmap(redSquare(20));
    label.setScaledContents(true);
    label.setFrameStyle(QFrame::Box | QFrame::Plain);
    showAndWait(&window);
    EXPECT_EQ(118 * 58, Pixels::of(&label).count(red));
}

TEST_F(Label, FollowsItsTextInSizeIfAsked)
{
    label.setAutoResize(true);
    EXPECT_EQ(label.sizeHint(), label.size());
    label.setText("A longer text");
    EXPECT_EQ(label.sizeHint(), label.size());
}
