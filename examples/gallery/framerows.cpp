// ZelFrame and ZelEdge.
#include "gallerywindow.h"
#include "rows.h"

#include <zeledge.h>
#include <zelframe.h>

void addFrameRow(GalleryWindow& gallery)
{
    QWidget* const row = gallery.addRow("ZelFrame and ZelEdge", 40);
    ZelFrame* const frame = new ZelFrame(row, "Press here");
    frame->setFrameStyle(int(QFrame::Box) | int(QFrame::Sunken));
    frame->setPaletteBackgroundColor(QColor(210, 220, 240));
    frame->setGeometry(0, 0, 150, 40);
    gallery.watch(frame, SIGNAL(mousePress(QMouseEvent*)));

    ZelEdge* const edge = new ZelEdge(row, "Edge to drag");
    edge->setGeometry(170, 0, 12, 40);
    gallery.watch(edge, SIGNAL(mouseMove(QMouseEvent*)));
    gallery.watch(edge, SIGNAL(mouseRelease(QMouseEvent*)));
}
