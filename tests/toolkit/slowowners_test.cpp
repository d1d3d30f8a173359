// Owners of the clipboard that take their time: who goes on is waited for, but not for ever, and what comes
// too late is nobody's answer.
#include "fastclock.h"
#include "printers.h"
#include "selectionowner.h"

#include <gtest/gtest.h>

namespace
{

// The owner takes two seconds for each of its pieces, and gives so many. How many were taken?
int piecesTaken(int pieces, QString* text)
{
    int taken = 0;
    *text = textFrom([&](Owner& owner, const XSelectionRequestEvent& r) {
        owner.announcePieces(r);
        while (owner.awaitTaking(r) && taken < pieces) {
            ++taken;
            skipSeconds(2);
            owner.set(r, owner.atom("UTF8_STRING"), 8, "piece ");
            XFlush(owner.display());
        }
        owner.set(r, owner.atom("UTF8_STRING"), 8, "");
        XFlush(owner.display());
    });
    return taken;
}

} // namespace

TEST(SlowOwner, WhoGivesAPieceNowAndThenIsHeardOut)
{
    QString text;
    EXPECT_EQ(20, piecesTaken(20, &text));
    EXPECT_EQ(20u * 6, text.length());
}

TEST(SlowOwner, WhoNeverEndsIsNotHeardForEver)
{
    QString text;
    EXPECT_LT(piecesTaken(200, &text), 100);
    EXPECT_TRUE(text.isNull());
}

TEST(SlowOwner, WhoAnswersTooLateDoesNotAnswerTheNextQuestion)
{
    XSelectionRequestEvent missed = {};
    Owner owner([&](Owner& self, XSelectionRequestEvent r) {
        if (!missed.requestor) {
            missed = r;
            skipSeconds(6);
            return;
        }
        self.set(missed, self.atom("UTF8_STRING"), 8, "late");
        self.notify(missed);
        r.property = None;
        self.notify(r);
    });
    settle();
    EXPECT_TRUE(QApplication::clipboard()->text(QClipboard::Clipboard).isNull());
    EXPECT_TRUE(QApplication::clipboard()->text(QClipboard::Clipboard).isNull());
}
