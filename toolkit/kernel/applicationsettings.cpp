// QApplication: cursors and what the user likes.
#include <qapplication.h>

#include "kernel/applicationdata.h"
#include "kernel/widgetdata.h"

using zeltk::application;

QCursor* QApplication::overrideCursor()
{
    std::vector<QCursor>& cursors = application()->overrideCursors;
    return cursors.empty() ? nullptr : &cursors.back();
}

namespace
{

void applyCursors()
{
    for (QWidget* widget : zeltk::everyWidget())
        if (widget->ownCursor() || widget->isTopLevel())
            zeltk::applyCursor(widget);
}

} // namespace

void QApplication::setOverrideCursor(const QCursor& cursor, bool replace)
{
    std::vector<QCursor>& cursors = application()->overrideCursors;
    if (replace && !cursors.empty())
        cursors.pop_back();
    cursors.push_back(cursor);
    applyCursors();
    flushX();
}

void QApplication::restoreOverrideCursor()
{
    std::vector<QCursor>& cursors = application()->overrideCursors;
    if (cursors.empty())
        return;
    cursors.pop_back();
    applyCursors();
    flushX();
}

bool QApplication::hasGlobalMouseTracking()
{
    return application()->globalTracking;
}

void QApplication::setGlobalMouseTracking(bool enable)
{
    application()->globalTracking = enable;
}

void QApplication::setCursorFlashTime(int msecs)
{
    application()->flashTime = msecs;
}

int QApplication::cursorFlashTime()
{
    return application()->flashTime;
}

void QApplication::setDoubleClickInterval(int msecs)
{
    application()->doubleClickInterval = msecs;
}

int QApplication::doubleClickInterval()
{
    return application()->doubleClickInterval;
}

void QApplication::setWheelScrollLines(int lines)
{
    application()->wheelLines = lines;
}

int QApplication::wheelScrollLines()
{
    return application()->wheelLines;
}

void QApplication::setStartDragTime(int msecs)
{
    application()->dragTime = msecs;
}

int QApplication::startDragTime()
{
    return application()->dragTime;
}

void QApplication::setStartDragDistance(int pixels)
{
    application()->dragDistance = pixels;
}

int QApplication::startDragDistance()
{
    return application()->dragDistance;
}
